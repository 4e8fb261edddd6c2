// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "install/RVRepair.h"

#include "archive/InstallScript.h"
#include "core/RVLogger.h"
#include "install/RVInstallerEnvironment.h"

RVRepair::RVRepair(const RVPaths &paths, QObject *parent)
    : QProcess(parent)
    , m_keeper(paths)
    , m_shell(paths.shell)
{
    setProcessEnvironment(RVInstallerEnvironment::of(paths));
    setStandardInputFile(nullDevice());
    setProcessChannelMode(QProcess::MergedChannels);
    connect(this, &QProcess::stateChanged, this, [this](QProcess::ProcessState state) {
        switch (state) {
        case QProcess::Starting:
            m_keeper.prepare(true, heldLocks);
            break;
        case QProcess::Running:
            m_keeper.release();
            break;
        case QProcess::NotRunning:
            m_keeper.forget();
            break;
        }
    });
}

RVRepair::~RVRepair()
{
    if (state() != QProcess::NotRunning) {
        // As RVInstallProc does.
        blockSignals(true);
        waitForFinished(-1);
    }
}

void RVRepair::configure()
{
    // What is done with configuration files is what the installation would have done.
    run({QStringLiteral("--force-confdef"), QStringLiteral("--force-confnew"),
         QStringLiteral("--force-confmiss"), QStringLiteral("--configure"),
         QStringLiteral("--pending")});
}

void RVRepair::remove(const QStringList &packages)
{
    run(QStringList{QStringLiteral("--force-remove-reinstreq"), QStringLiteral("--remove"),
                    QStringLiteral("--")}
        + packages);
}

void RVRepair::setupChildProcess()
{
    m_keeper.keep();
}

void RVRepair::run(const QStringList &arguments)
{
    RVLogger().log(5, "Repair: dpkg %s",
                   RVLogger::oneLine(arguments.join(QLatin1Char(' '))).constData());
    start(m_shell,
          QStringList{QStringLiteral("-c"), QString::fromLatin1(unlockedScript("dpkg \"$@\"")),
                      QStringLiteral("RVrepair.sh")}
              + arguments,
          QIODevice::ReadOnly);
}

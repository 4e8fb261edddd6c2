// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/support/ServerProcess.h"

#include "tests/support/OrdinaryUser.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTcpServer>

#include <csignal>
#include <grp.h>
#include <sys/prctl.h>
#include <unistd.h>

namespace
{

constexpr int startTimeout = 20000;

bool becomeOrdinary()
{
    return ::geteuid() != 0
        || (::setgroups(0, nullptr) == 0
            && ::setresgid(OrdinaryUser::id, OrdinaryUser::id, OrdinaryUser::id) == 0
            && ::setresuid(OrdinaryUser::id, OrdinaryUser::id, OrdinaryUser::id) == 0);
}

} // namespace

ServerProcess::ServerProcess(Rights rights)
    : m_rights(rights)
{
    setProcessChannelMode(QProcess::MergedChannels);
    setStandardInputFile(QProcess::nullDevice());
}

bool ServerProcess::launch(const QString &folder, const QString &program,
                           const QStringList &arguments, const std::function<bool()> &isReady)
{
    setStandardOutputFile(folder + QStringLiteral("/output"));
    setWorkingDirectory(folder);
    start(program, arguments);
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < startTimeout && !waitForFinished(20)) {
        if (isReady()) {
            return true;
        }
    }
    return false;
}

void ServerProcess::killGroup()
{
    const auto group = static_cast<pid_t>(processId());
    if (group > 0) {
        ::kill(-group, SIGKILL);
        waitForFinished(5000);
    }
}

quint16 ServerProcess::freePort(const QHostAddress &address)
{
    QTcpServer probe;
    return probe.listen(address) ? probe.serverPort() : quint16(0);
}

void ServerProcess::makeOpenFolder(const QString &folder)
{
    QDir().mkpath(folder);
    QFile::setPermissions(folder,
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadGroup
                              | QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther);
}

void ServerProcess::setupChildProcess()
{
    ::setpgid(0, 0);
    // A change of user takes the signal of the parent's death back: that comes last.
    if ((m_rights == OrdinaryRights && !becomeOrdinary())
        || ::prctl(PR_SET_PDEATHSIG, SIGTERM) != 0) {
        ::_exit(126);
    }
}

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/RVCtlInstallRun.h"

#include "cli/RVCtlAccess.h"
#include "cli/RVCtlArchive.h"
#include "cli/RVCtlDeadline.h"
#include "cli/RVCtlMessages.h"
#include "cli/RVCtlObstacle.h"
#include "cli/RVCtlText.h"
#include "cli/RVCtlTrust.h"
#include "core/RVUrl.h"
#include "install/RVFreeSpace.h"
#include "install/RVInstallProc.h"
#include "install/RVPackageDatabase.h"
#include "repository/RVRepository.h"

#include <QCommandLineParser>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>

#include <algorithm>

namespace
{

qint64 sizeOf(const RVData &data)
{
    return qMax(data.descriptor()->size(), QFileInfo(data.archiveUrl().toLocalFile()).size());
}

bool isSameFile(const QUrl &a, const QUrl &b)
{
    return a.adjusted(QUrl::RemoveUserInfo) == b.adjusted(QUrl::RemoveUserInfo);
}

} // namespace

RVCtlInstallRun::RVCtlInstallRun(const RVCtlCall &call, RVCtlAccess *access,
                                 const RVCtlOffers &section, const RVCtlBatch &batch,
                                 RVPreflight *preflight, int lockTimeoutSeconds,
                                 ImageQuestion *question)
    : m_call(call)
    , m_access(access)
    , m_repository(*section.section().repository)
    , m_batch(batch)
    , m_preflight(preflight)
    , m_lockTimeoutSeconds(lockTimeoutSeconds)
    , m_question(question)
    , m_isJson(call.parser.isSet(QStringLiteral("json")))
    , m_output(m_isJson ? (call.messages.isQuiet() ? nullptr : stderr) : stdout, &call.messages)
    , m_faults(batch.downloads.size())
{
}

RVCtlInstallRun::~RVCtlInstallRun() = default;

bool RVCtlInstallRun::isDatabaseReady()
{
    m_refusal = RVCtlObstacle::takeLocks(m_call, m_preflight, m_batch.kind, m_lockTimeoutSeconds);
    QStringList names;
    for (const RVBatch::Item &item : m_batch.items) {
        names.append(item.name);
    }
    if (m_call.deadline.isOver()) {
        m_refusal.reset();
        return false;
    }
    if (!m_refusal) {
        m_refusal = m_preflight->interruption(names);
    }
    if (m_refusal) {
        return false;
    }
    const auto unfinished = RVPackageDatabase(m_call.world.paths()).unfinished();
    for (const RVPackageDatabase::Package &package : unfinished) {
        m_call.messages.warning(QStringLiteral("%1 is %2; it is installed again now.")
                                    .arg(package.name, package.state));
    }
    return true;
}

void RVCtlInstallRun::run()
{
    m_process =
        std::make_unique<RVInstallProc>(m_batch.entries(), m_repository.user(),
                                        m_repository.password(), nullptr, m_call.world.paths());
    m_process->access = m_repository.access();
    m_process->imageQuestion = m_question;
    if (m_preflight->runLock().handle() >= 0) {
        m_process->heldLocks.append(m_preflight->runLock().handle());
    }
    // What it writes stays in its order.
    m_process->setProcessChannelMode(QProcess::MergedChannels);

    connect(m_process.get(), &RVInstallProc::networkError, this, &RVCtlInstallRun::networkError);
    connect(m_process.get(), &RVInstallProc::authenticationRequired, this,
            [this](QNetworkReply *reply, QAuthenticator *auth) {
                m_repository.access().answer(reply, auth);
            });
    connect(m_process.get(), &RVInstallProc::proxyAuthenticationRequired, this,
            [this](const QNetworkProxy &proxy, QAuthenticator *auth) {
                m_repository.access().answer(proxy, auth);
            });
    connect(m_process.get(), &RVInstallProc::sslErrors, this,
            [this](QNetworkReply *reply, const QList<QSslError> &errors) {
                m_access->judge(reply, errors);
            });
    connect(m_process.get(), &RVInstallProc::downloadProgress, this,
            [this](qint64 received, qint64 total) {
                if (m_progress) {
                    m_progress->show(received, total);
                }
            });
    connect(m_process.get(), &RVInstallProc::archiveRefused, this,
            &RVCtlInstallRun::archiveRefused);
    connect(m_process.get(), &RVInstallProc::trustFailed, this, [this] {
        m_call.messages.error(m_process->trustFault().text);
    });
    // Before the procedure's own, which starts the installer.
    connect(m_process.get(), &RVInstallProc::extractFinished, this,
            &RVCtlInstallRun::beforeInstaller);
    connect(m_process.get(), &RVInstallProc::installStarted, this, [this] {
        m_isInstallerRun = true;
        m_call.messages.note(QStringLiteral("Installing updates..."));
    });
    connect(m_process.get(), &QProcess::readyReadStandardOutput, this, [this] {
        m_output.add(m_process->readAllStandardOutput());
    });
    connect(m_process.get(), &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) {
            m_startError = m_process->errorString();
            end(1, QProcess::NormalExit);
        }
    });
    connect(m_process.get(), qOverload<int, QProcess::ExitStatus>(&QProcess::finished), this,
            &RVCtlInstallRun::end);
    connect(&m_call.deadline, &RVCtlDeadline::over, m_process.get(), &RVInstallProc::cancel);
    connect(&m_call.deadline, &RVCtlDeadline::heldBack, this, [this] {
        m_call.messages.warning(
            QStringLiteral("The installer runs and cannot be interrupted; waiting for its end."));
    });

    // An image of a list of sums is read, and not kept.
    if (!m_batch.downloads.isEmpty() || m_batch.items.first().entry.trust) {
        m_progress =
            std::make_unique<RVCtlProgress>(&m_call.messages, QStringLiteral("Retrieving updates"));
    }
    QEventLoop loop;
    connect(this, &RVCtlInstallRun::ended, &loop, &QEventLoop::quit);
    m_process->start();
    if (m_stage == Stage::Downloading && !m_faults.isEmpty() && faults() == m_faults.size()) {
        // Nothing is under way, of which the procedure could tell an end.
        m_process->cancel();
    }
    if (m_stage != Stage::Ended) {
        loop.exec();
    }
    m_progress.reset();
}

int RVCtlInstallRun::faults() const
{
    return static_cast<int>(
        std::count_if(m_faults.cbegin(), m_faults.cend(), [](const RVCtlFault &fault) {
            return fault.isSet();
        }));
}

void RVCtlInstallRun::networkError(const QNetworkReply *reply)
{
    if (!reply || m_stage != Stage::Downloading || m_call.deadline.isOver()) {
        return;
    }
    if (m_faults.isEmpty()) {
        m_imageFault = RVCtlFault::ofReply(*reply);
        return;
    }
    // What was asked for, wherever a login stood in it.
    const QUrl url = reply->request().url();
    for (int i = 0; i < m_faults.size(); ++i) {
        if (isSameFile(m_batch.downloads.at(i).archiveUrl(), url) && !m_faults.at(i).isSet()) {
            m_faults[i] = RVCtlFault::ofReply(*reply);
            m_call.messages.error(
                QStringLiteral("%1: %2").arg(RVUrl::shown(url), m_faults.at(i).text));
            return;
        }
    }
}

void RVCtlInstallRun::archiveRefused(const QUrl &archive, const QString &reason)
{
    for (int i = 0; i < m_faults.size(); ++i) {
        if (m_batch.downloads.at(i).archiveUrl() == archive) {
            m_faults[i].kind = RVCtlFault::Damaged;
            m_faults[i].text = reason;
        }
    }
    if (m_batch.isImage()) {
        // The one there is: the error of the run says it.
        m_imageFault.kind = m_imageFault.isSet() ? m_imageFault.kind : RVCtlFault::Damaged;
        m_imageFault.text = reason;
        return;
    }
    m_call.messages.error(QStringLiteral("%1: %2").arg(RVUrl::shown(archive), reason));
}

void RVCtlInstallRun::beforeInstaller()
{
    m_progress.reset();
    for (int i = 0; i < m_faults.size(); ++i) {
        judgeArchive(i);
    }
    const bool hasNothing = !m_faults.isEmpty() && faults() == m_faults.size();
    const bool isReady =
        !hasNothing && !m_call.deadline.isOver() && (!m_batch.isPackages() || isDatabaseReady());
    // An image may still be answered with a no: its question holds the deadline.
    if (!isReady || (!m_batch.isImage() && !m_call.deadline.hold())) {
        m_process->cancel();
        return;
    }
    m_stage = Stage::Installing;
}

void RVCtlInstallRun::judgeArchive(int index)
{
    if (m_faults.at(index).isSet()) {
        return;
    }
    // The procedure works in the directory of what it unpacked.
    const RVData &data = m_batch.downloads.at(index);
    const QString name = RVUrl::fileName(data.archiveUrl());
    const bool isPackage = name.endsWith(QLatin1String(".deb"), Qt::CaseInsensitive);
    RVCtlFault fault;
    if (isPackage) {
        const QString file = QStringLiteral("./") + name;
        const bool exists = QFileInfo(file).isFile();
        if (exists && RVCtlArchive::isWholePackage(file)) {
            return;
        }
        fault.kind = RVCtlFault::Damaged;
        fault.text = QStringLiteral("The package is damaged or not complete.");
        // The installer takes every package of the directory.
        if (exists) {
            QFile::remove(file);
        } else if (RVFreeSpace::freeBytes(QDir::currentPath()) < sizeOf(data)) {
            fault.kind = RVCtlFault::Space;
            fault.text = QStringLiteral("There is no space left for the package.");
        }
    } else {
        const QDir::Filters everything =
            QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
        if (!QDir().entryList(everything).isEmpty()) {
            return;
        }
        fault.kind = RVCtlFault::Damaged;
        fault.text = QStringLiteral("The archive cannot be unpacked.");
    }
    m_faults[index] = fault;
    m_call.messages.error(
        QStringLiteral("%1: %2").arg(RVUrl::shown(data.archiveUrl()), fault.text));
}

void RVCtlInstallRun::end(int exitCode, QProcess::ExitStatus status)
{
    if (m_stage == Stage::Ended) {
        return;
    }
    m_stage = Stage::Ended;
    m_output.add(m_process->readAllStandardOutput());
    m_output.end();
    m_exitCode = exitCode;
    m_isCrashed = status == QProcess::CrashExit;
    Q_EMIT ended();
}

QJsonObject RVCtlInstallRun::toJson() const
{
    QJsonObject object = m_batch.toJson();
    QJsonArray downloads = object.value(QStringLiteral("downloads")).toArray();
    for (int i = 0; i < m_faults.size(); ++i) {
        QJsonObject download = downloads.at(i).toObject();
        download.insert(QStringLiteral("error"), m_faults.at(i).toJson());
        downloads.replace(i, download);
    }
    object.insert(QStringLiteral("downloads"), downloads);
    if (m_process && m_process->trustFault().isSet()) {
        QJsonObject trust = m_batch.trust;
        trust.insert(QStringLiteral("error"), RVCtlTrust::toJson(m_process->trustFault()));
        object.insert(QStringLiteral("trust"), trust);
    }
    QJsonValue installer;
    if (m_isInstallerRun) {
        installer = QJsonObject{
            {QStringLiteral("program"), m_process->program()},
            {QStringLiteral("arguments"), QJsonArray::fromStringList(m_process->arguments())},
            {QStringLiteral("exitCode"),
             m_isCrashed || !m_startError.isEmpty() ? QJsonValue() : QJsonValue(m_exitCode)},
            {QStringLiteral("output"), m_output.kept()},
            {QStringLiteral("outputIsCut"), m_output.isCut()},
        };
    }
    object.insert(QStringLiteral("installer"), installer);
    return object;
}

void RVCtlInstallRun::judge(RVCtlResult *result) const
{
    const auto fail = [result](RVCtlExit exit, const QString &error) {
        result->exit = exit;
        result->error = error;
    };
    if (m_process->trustFault().isSet()) {
        fail(RVCtlExit::NotTrusted,
             QStringLiteral("Nothing was installed: %1").arg(m_process->trustFault().text));
        return;
    }
    if (m_imageFault.isSet()) {
        fail(RVCtlFault::exitFor({m_imageFault}),
             QStringLiteral("Nothing was installed: %1").arg(m_imageFault.text));
        return;
    }
    if (m_process->isDeclined()) {
        fail(RVCtlExit::Usage, QStringLiteral("The image was not confirmed. Nothing was started."));
        return;
    }
    if (m_refusal) {
        const RVCtlResult refusal = RVCtlObstacle::result(*m_refusal);
        fail(refusal.exit, refusal.error);
        return;
    }
    if (!m_faults.isEmpty() && faults() == m_faults.size()) {
        fail(RVCtlFault::exitFor(m_faults),
             QStringLiteral("Nothing was installed: %1").arg(m_faults.constFirst().text));
        return;
    }
    if (!m_startError.isEmpty()) {
        fail(RVCtlExit::InstallerFailed,
             QStringLiteral("The installer '%1' cannot be started: %2")
                 .arg(m_process->program(), m_startError));
        return;
    }
    if (m_isCrashed) {
        fail(RVCtlExit::InstallerFailed,
             m_isInstallerRun ? QStringLiteral("The installer was ended by a signal.")
                              : QStringLiteral("There is no installer for this archive, or no "
                                               "place to unpack it in."));
        return;
    }
    if (m_exitCode != 0) {
        fail(RVCtlExit::InstallerFailed,
             QStringLiteral("The installer ended with exit code %1.").arg(m_exitCode));
        return;
    }
    QStringList left;
    for (int i = 0; i < m_batch.updates.size(); ++i) {
        if (!m_batch.items.at(i).isReached) {
            left.append(m_batch.updates.at(i).name());
        }
    }
    if (faults() > 0) {
        fail(RVCtlExit::DoneInPart,
             QStringLiteral("%1 of %2 archives could not be downloaded and were left out.")
                 .arg(faults())
                 .arg(m_faults.size()));
    } else if (!left.isEmpty()) {
        fail(RVCtlExit::DoneInPart,
             QStringLiteral("The installer takes one archive of this kind at a time: install the "
                            "others by themselves (chosen were also %1).")
                 .arg(left.join(QLatin1String(", "))));
    }
}

RVCtlResult RVCtlInstallRun::result(const RVCtlResult &refreshed) const
{
    RVCtlResult result = refreshed;
    result.json = toJson();
    judge(&result);
    if (result.exit == RVCtlExit::Done || result.exit == RVCtlExit::DoneInPart) {
        result.text = QStringLiteral("The installer is done.\n");
    }
    return result;
}

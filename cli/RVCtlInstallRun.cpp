// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/RVCtlInstallRun.h"

#include "cli/RVCtlAccess.h"
#include "cli/RVCtlDeadline.h"
#include "cli/RVCtlMessages.h"
#include "cli/RVCtlObstacle.h"
#include "cli/RVCtlText.h"
#include "cli/RVCtlTrust.h"
#include "core/RVUrl.h"
#include "install/RVInstallProc.h"
#include "install/RVPackageDatabase.h"
#include "install/RVVerify.h"
#include "repository/RVRepository.h"

#include <QCommandLineParser>
#include <QEventLoop>
#include <QJsonArray>

#include <algorithm>

namespace
{

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
            [this](const QUrl &archive, const RVSentence &reason) {
                if (!m_batch.isImage()) {
                    m_call.messages.error(
                        QStringLiteral("%1: %2").arg(RVUrl::shown(archive), reason.english()));
                }
            });
    connect(m_process.get(), &RVInstallProc::trustFailed, this, [this] {
        m_call.messages.error(m_process->trustFault().text);
    });
    // Before the procedure's own, which starts the installer.
    connect(m_process.get(), &RVInstallProc::extractFinished, this,
            &RVCtlInstallRun::beforeInstaller);
    connect(m_process.get(), &RVInstallProc::installStarted, this, [this] {
        m_call.messages.note(QStringLiteral("Installing updates..."));
    });
    connect(m_process.get(), &QProcess::readyReadStandardOutput, this, [this] {
        m_output.add(m_process->readAllStandardOutput());
    });
    connect(m_process.get(), &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) {
            end();
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
    if (m_stage != Stage::Ended) {
        loop.exec();
    }
    m_progress.reset();
}

void RVCtlInstallRun::networkError(const QNetworkReply *reply)
{
    // Of an image, which is all there is, the error of the run says it.
    if (reply && m_stage == Stage::Downloading && !m_call.deadline.isOver() && !m_batch.isImage()) {
        m_call.messages.error(QStringLiteral("%1: %2").arg(RVUrl::shown(reply->request().url()),
                                                           reply->errorString()));
    }
}

void RVCtlInstallRun::beforeInstaller()
{
    m_progress.reset();
    const bool isReady = !m_call.deadline.isOver() && (!m_batch.isPackages() || isDatabaseReady());
    // An image may still be answered with a no: its question holds the deadline.
    if (!isReady || (!m_batch.isImage() && !m_call.deadline.hold())) {
        m_process->cancel();
        return;
    }
    m_stage = Stage::Installing;
}

void RVCtlInstallRun::end()
{
    if (m_stage == Stage::Ended) {
        return;
    }
    m_stage = Stage::Ended;
    m_output.add(m_process->readAllStandardOutput());
    m_output.end();
    const RVResult &result = m_process->result();
    result.log();
    if (!result.isWhole()) {
        RVResult::logOutput(m_output.kept());
    }
    RVResult::logEnd();
    Q_EMIT ended();
}

QJsonObject RVCtlInstallRun::toJson() const
{
    QJsonObject object = m_batch.toJson();
    const RVResult &result = m_process->result();
    QJsonArray downloads = object.value(QStringLiteral("downloads")).toArray();
    QJsonArray results;
    for (const RVItemResult &item : result.items) {
        const int index = m_batch.downloadOf(item.entry);
        if (index >= 0) {
            QJsonObject download = downloads.at(index).toObject();
            download.insert(QStringLiteral("error"), RVCtlFault::ofItem(item).toJson());
            downloads.replace(index, download);
        }
        results.append(QJsonObject{
            {QStringLiteral("name"), item.name},
            {QStringLiteral("from"), RVCtlText::jsonOrNull(item.from)},
            {QStringLiteral("to"), RVCtlText::jsonOrNull(item.to)},
            {QStringLiteral("state"), item.stateWord()},
            {QStringLiteral("reason"), RVCtlText::jsonOrNull(item.reason.english())},
        });
    }
    object.insert(QStringLiteral("downloads"), downloads);
    object.insert(QStringLiteral("results"), results);
    if (m_process->trustFault().isSet()) {
        QJsonObject trust = m_batch.trust;
        trust.insert(QStringLiteral("error"), RVCtlTrust::toJson(m_process->trustFault()));
        object.insert(QStringLiteral("trust"), trust);
    }
    QJsonValue installer;
    if (result.isInstallerStarted) {
        installer = QJsonObject{
            {QStringLiteral("program"), m_process->program()},
            {QStringLiteral("arguments"), QJsonArray::fromStringList(m_process->arguments())},
            {QStringLiteral("exitCode"),
             result.exitStatus == QProcess::CrashExit || !result.reason.isEmpty()
                 ? QJsonValue()
                 : QJsonValue(result.exitCode)},
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
    if (m_process->isDeclined()) {
        fail(RVCtlExit::Usage, QStringLiteral("The image was not confirmed. Nothing was started."));
        return;
    }
    if (m_refusal) {
        const RVCtlResult refusal = RVCtlObstacle::result(*m_refusal);
        fail(refusal.exit, refusal.error);
        return;
    }
    const RVResult &ended = m_process->result();
    if (ended.isWhole()) {
        return;
    }
    QVector<RVCtlFault> faults;
    for (const RVItemResult &item : ended.items) {
        const RVCtlFault fault = RVCtlFault::ofItem(item);
        if (fault.isSet()) {
            faults.append(fault);
        }
    }
    const auto isDone = [](const RVItemResult &item) {
        return item.isDone();
    };
    const auto undone = std::find_if_not(ended.items.cbegin(), ended.items.cend(), isDone);
    const QString first = undone == ended.items.cend()
        ? QString()
        : QStringLiteral(": %1: %2").arg(undone->name, undone->reason.english());
    if (!ended.isInstallerStarted && !faults.isEmpty()) {
        fail(RVCtlFault::exitFor(faults), QStringLiteral("Nothing was installed%1").arg(first));
    } else if (!ended.reason.isEmpty()) {
        fail(RVCtlExit::InstallerFailed, ended.reason.english());
    } else if (ended.exitCode != 0 || ended.exitStatus == QProcess::CrashExit) {
        const RVVerify::End end{ended.exitCode, ended.exitStatus == QProcess::CrashExit};
        fail(RVCtlExit::InstallerFailed, end.sentence().english());
    } else if (std::none_of(ended.items.cbegin(), ended.items.cend(), isDone)) {
        fail(RVCtlExit::InstallerFailed, ended.summary().english() + first);
    } else {
        fail(RVCtlExit::DoneInPart, ended.summary().english() + first);
    }
}

QString RVCtlInstallRun::table() const
{
    QVector<QStringList> rows;
    for (const RVItemResult &item : m_process->result().items) {
        QString state = item.stateWord();
        if (!item.reason.isEmpty()) {
            state += QStringLiteral(": ") + item.reason.english();
        }
        rows.append(
            {item.name, item.from.isEmpty() ? QStringLiteral("none") : item.from, item.to, state});
    }
    return RVCtlText::table({QStringLiteral("UPDATE"), QStringLiteral("BEFORE"),
                             QStringLiteral("OFFERED"), QStringLiteral("RESULT")},
                            rows);
}

RVCtlResult RVCtlInstallRun::result(const RVCtlResult &refreshed) const
{
    RVCtlResult result = refreshed;
    result.json = toJson();
    judge(&result);
    result.text = table() + QLatin1Char('\n') + m_process->result().summary().english()
        + QLatin1String(".\n");
    return result;
}

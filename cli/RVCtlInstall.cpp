// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/RVCtlAccess.h"
#include "cli/RVCtlBatch.h"
#include "cli/RVCtlCommand.h"
#include "cli/RVCtlDeadline.h"
#include "cli/RVCtlInstallRun.h"
#include "cli/RVCtlMessages.h"
#include "cli/RVCtlOffers.h"
#include "cli/RVCtlTrust.h"
#include "core/RVLogger.h"
#include "install/RVFreeSpace.h"

#include <QCommandLineParser>
#include <QEventLoop>
#include <QFile>
#include <QJsonArray>
#include <QSocketNotifier>

#include <csignal>
#include <cstdio>
#include <unistd.h>

namespace
{

const QString yesOption = QStringLiteral("yes");
const QString lockTimeoutOption = QStringLiteral("lock-timeout");
constexpr int longestLockTimeout = 1000000;
constexpr int longestAnswer = 80;

/// The next line of standard input, or nothing when the deadline comes first.
QByteArray readAnswer(RVCtlDeadline *deadline)
{
    QByteArray answer;
    QEventLoop loop;
    QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, &loop, [&] {
        char byte = 0;
        if (::read(STDIN_FILENO, &byte, 1) != 1 || byte == '\n' || answer.size() >= longestAnswer) {
            loop.quit();
        } else {
            answer += byte;
        }
    });
    QObject::connect(deadline, &RVCtlDeadline::over, &loop, [&] {
        answer.clear();
        loop.quit();
    });
    if (!deadline->isOver()) {
        loop.exec();
    }
    return answer.trimmed().toLower();
}

/// A full image wipes the device: it needs a yes. False, and why, without one.
bool isConfirmed(const RVCtlCall &call, const RVCtlBatch &batch, QString *error)
{
    if (call.parser.isSet(yesOption)) {
        return true;
    }
    if (::isatty(STDIN_FILENO) != 1 || ::isatty(STDERR_FILENO) != 1) {
        *error = QStringLiteral("An image replaces everything on the device and restarts it, so it "
                                "needs --yes. Nothing was started.");
        return false;
    }
    const RVCtlOffers::Entry &image = batch.updates.constFirst();
    call.messages.error(QStringLiteral("%1 %2 replaces everything on the device and restarts it.")
                            .arg(image.name(), image.version()));
    if (batch.items.first().entry.trust) {
        call.messages.error(
            QStringLiteral("It is read once now and compared with its sum, which reveals damage. "
                           "After the restart the device fetches it again and checks nothing: a "
                           "hostile server can then deliver another one."));
    }
    std::fputs("Install it? [y/N] ", stderr);
    std::fflush(stderr);
    const QByteArray answer = readAnswer(&call.deadline);
    if (answer == "y" || answer == "yes") {
        return true;
    }
    *error = QStringLiteral("The image was not confirmed. Nothing was started.");
    return false;
}

QVector<RVFreeSpace::Update> spaceOf(const RVCtlBatch &batch)
{
    QVector<RVFreeSpace::Update> result;
    for (int i = 0; i < batch.updates.size(); ++i) {
        result.append({batch.items.at(i).entry, !batch.items.at(i).installed.isEmpty()});
    }
    return result;
}

} // namespace

QList<QCommandLineOption> RVCtlCommands::installOptions()
{
    QList<QCommandLineOption> options{
        {yesOption, QStringLiteral("Install an image without asking.")},
        {lockTimeoutOption,
         QStringLiteral(
             "Wait up to SECONDS for the lock of the package database; the default is 0."),
         QStringLiteral("SECONDS")},
    };
    return options + RVCtlAccess::options();
}

RVCtlResult RVCtlCommands::install(const RVCtlCall &call)
{
    int lockTimeout = 0;
    if (call.parser.isSet(lockTimeoutOption)) {
        bool isNumber = false;
        lockTimeout = call.parser.value(lockTimeoutOption).toInt(&isNumber);
        if (!isNumber || lockTimeout < 0 || lockTimeout > longestLockTimeout) {
            return RVCtlResult::failed(
                RVCtlExit::Usage,
                QStringLiteral("--lock-timeout takes a number of seconds, from 0 to %1.")
                    .arg(longestLockTimeout));
        }
    }
    // A reader that goes away must not take the installer with it.
    std::signal(SIGPIPE, SIG_IGN);

    RVCtlResult result;
    call.world.setRememberingTrust(true);
    RVCtlAccess access(call.messages);
    QList<RVCtlOffers> sections;
    if (!RVCtlOffers::read(call, call.arguments.mid(0, 1), &access, &sections, &result)) {
        return result;
    }
    const RVCtlOffers &section = sections.constFirst();
    RVCtlOffers::judge(sections, &result);
    if (section.failure().isSet()) {
        result.json.insert(QStringLiteral("trust"),
                           RVCtlTrust::toJson(*section.section().repository));
        return result;
    }
    QString error;
    QVector<RVCtlOffers::Entry> chosen;
    if (!section.choose(call.arguments.mid(1), &chosen, &error)) {
        return RVCtlResult::failed(RVCtlExit::Usage, error);
    }
    const RVCtlBatch batch = RVCtlBatch::of(section, chosen, call.world.system());
    if (batch.updates.isEmpty()) {
        result.text = QStringLiteral("Nothing is new.\n");
        result.json = batch.toJson();
        result.json.insert(QStringLiteral("installer"), QJsonValue());
        return result;
    }

    RVCtlInstallRun run(call, &access, section, batch, lockTimeout);
    const auto refused = [&batch](RVCtlExit exit, const QString &reason) {
        RVLogger().log(3, "%s", RVLogger::oneLine(reason).constData());
        RVCtlResult refusal = RVCtlResult::failed(exit, reason);
        refusal.json = batch.toJson();
        refusal.json.insert(QStringLiteral("installer"), QJsonValue());
        return refusal;
    };
    if (batch.isImage() && !isConfirmed(call, batch, &error)) {
        return refused(RVCtlExit::Usage, error);
    }
    if (const auto shortage = RVFreeSpace::shortage(spaceOf(batch), call.world.paths())) {
        return refused(RVCtlExit::NoSpace, shortage->sentence().english());
    }
    if (batch.isPackages() && !run.awaitDatabase(&error)) {
        return refused(RVCtlExit::DatabaseLocked, error);
    }
    if (call.deadline.isOver()) {
        return result;
    }
    run.run();
    return run.result(result);
}

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/RVCtlCommand.h"
#include "cli/RVCtlDeadline.h"
#include "cli/RVCtlMessages.h"
#include "cli/RVCtlObstacle.h"
#include "cli/RVCtlOutput.h"
#include "cli/RVCtlQuestion.h"
#include "cli/RVCtlWorld.h"
#include "core/RVLogger.h"
#include "install/RVPackageDatabase.h"
#include "install/RVRepair.h"

#include <QCommandLineParser>
#include <QEventLoop>
#include <QJsonArray>
#include <QJsonObject>

#include <csignal>
#include <functional>

namespace
{

const QString removeOption = QStringLiteral("yes");

/// Runs one step to its end.
void run(const RVCtlCall &call, const RVPreflight &preflight,
         const std::function<void(RVRepair *)> &step)
{
    RVRepair repair(call.world.paths());
    if (preflight.runLock().handle() >= 0) {
        repair.heldLocks.append(preflight.runLock().handle());
    }
    const bool isJson = call.parser.isSet(QStringLiteral("json"));
    RVCtlOutput output(isJson ? (call.messages.isQuiet() ? nullptr : stderr) : stdout,
                       &call.messages);
    QEventLoop loop;
    QObject::connect(&repair, &QProcess::readyReadStandardOutput, &loop, [&] {
        output.add(repair.readAllStandardOutput());
    });
    QObject::connect(&repair, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), &loop,
                     &QEventLoop::quit);
    QObject::connect(&repair, &QProcess::errorOccurred, &loop, [&](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) {
            call.messages.error(repair.errorString());
            loop.quit();
        }
    });
    QObject::connect(&call.deadline, &RVCtlDeadline::heldBack, &loop, [&] {
        call.messages.warning(
            QStringLiteral("The repair runs and cannot be interrupted; waiting for its end."));
    });
    step(&repair);
    loop.exec();
    output.add(repair.readAllStandardOutput());
    output.end();
}

QJsonArray toJson(const QVector<RVPackageDatabase::Package> &packages)
{
    QJsonArray array;
    for (const RVPackageDatabase::Package &package : packages) {
        array.append(QJsonObject{
            {QStringLiteral("name"), package.name},
            {QStringLiteral("state"), package.state},
        });
    }
    return array;
}

QStringList namesOf(const QVector<RVPackageDatabase::Package> &packages)
{
    QStringList names;
    for (const RVPackageDatabase::Package &package : packages) {
        names.append(package.name);
    }
    return names;
}

/// Packages that cannot be configured are removed after a yes.
bool isRemovalWanted(const RVCtlCall &call, const QStringList &names)
{
    if (call.parser.isSet(removeOption)) {
        return true;
    }
    if (!RVCtlQuestion::canAsk()) {
        return false;
    }
    call.messages.error(QStringLiteral("These packages cannot be configured: %1.")
                            .arg(names.join(QLatin1String(", "))));
    return RVCtlQuestion::isYes(QStringLiteral("Remove them?"), &call.deadline);
}

} // namespace

QList<QCommandLineOption> RVCtlCommands::repairOptions()
{
    return {
        {removeOption, QStringLiteral("Remove what cannot be repaired without asking.")},
        RVCtlObstacle::timeoutOption(),
    };
}

RVCtlResult RVCtlCommands::repair(const RVCtlCall &call)
{
    int lockTimeout = 0;
    QString error;
    if (!RVCtlObstacle::readTimeout(call, &lockTimeout, &error)) {
        return RVCtlResult::failed(RVCtlExit::Usage, error);
    }
    std::signal(SIGPIPE, SIG_IGN);

    RVPreflight preflight(call.world.paths());
    const RVPackageDatabase database(call.world.paths());
    const auto first =
        RVCtlObstacle::takeLocks(call, &preflight, RVBatch::Kind::Packages, lockTimeout);
    RVCtlResult result;
    if (call.deadline.isOver()) {
        return result;
    }
    if (first) {
        return RVCtlObstacle::result(*first);
    }
    const QVector<RVObstacle> obstacles =
        preflight.obstacles(RVBatch::Kind::Packages, call.world.paths().shell);
    if (!obstacles.isEmpty()) {
        return RVCtlObstacle::result(obstacles.constFirst());
    }
    const QVector<RVPackageDatabase::Package> before = database.unfinished();
    QStringList removed;
    if (preflight.interruption({})) {
        if (!call.deadline.hold()) {
            return result;
        }
        run(call, preflight, [](RVRepair *repair) {
            repair->configure();
        });
        const QStringList left = namesOf(database.unfinished());
        if (!left.isEmpty() && isRemovalWanted(call, left)) {
            removed = left;
            run(call, preflight, [&left](RVRepair *repair) {
                repair->remove(left);
            });
        }
        result.text = QStringLiteral("The package database is repaired.\n");
    } else {
        result.text = QStringLiteral("There is nothing to repair.\n");
    }
    const QVector<RVPackageDatabase::Package> after = database.unfinished();
    if (const auto left = preflight.interruption({})) {
        result.text.clear();
        result.exit = removed.isEmpty() ? RVCtlExit::DatabaseLocked : RVCtlExit::InstallerFailed;
        result.error = left->sentence.english()
            + (removed.isEmpty() ? QStringLiteral(" Install those packages again, or remove them "
                                                  "with 'ravelctl repair --yes'.")
                                 : QString());
        RVLogger().log(3, "%s", RVLogger::oneLine(result.error).constData());
    }
    result.json = {
        {QStringLiteral("found"), toJson(before)},
        {QStringLiteral("removed"), QJsonArray::fromStringList(removed)},
        {QStringLiteral("left"), toJson(after)},
    };
    return result;
}

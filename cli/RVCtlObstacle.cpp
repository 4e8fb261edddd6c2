// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/RVCtlObstacle.h"

#include "cli/RVCtlDeadline.h"
#include "cli/RVCtlMessages.h"
#include "install/RVLockWait.h"

#include <QCommandLineParser>
#include <QEventLoop>
#include <QJsonObject>

namespace
{

constexpr int longestLockWait = 1000000;
const QString timeoutName = QStringLiteral("lock-timeout");

struct Rendering {
    const char *word;
    RVCtlExit exit;
};

Rendering rendering(RVObstacle::Kind kind)
{
    switch (kind) {
    case RVObstacle::Kind::OtherRun:
        return {"other-run", RVCtlExit::DatabaseLocked};
    case RVObstacle::Kind::DatabaseLocked:
        return {"locked", RVCtlExit::DatabaseLocked};
    case RVObstacle::Kind::Interrupted:
        return {"interrupted", RVCtlExit::DatabaseLocked};
    case RVObstacle::Kind::Rights:
        return {"rights", RVCtlExit::InstallerFailed};
    case RVObstacle::Kind::MissingProgram:
        return {"missing-program", RVCtlExit::InstallerFailed};
    case RVObstacle::Kind::ReadOnly:
        return {"read-only", RVCtlExit::InstallerFailed};
    case RVObstacle::Kind::NoSpace:
        break;
    }
    return {"space", RVCtlExit::NoSpace};
}

} // namespace

QString RVCtlObstacle::text(const RVObstacle &obstacle)
{
    const QString sentence = obstacle.sentence.english();
    return obstacle.kind == RVObstacle::Kind::Interrupted ? sentence
            + QLatin1String(" Repair it with 'ravelctl repair' or by installing those packages "
                            "again.")
                                                          : sentence;
}

RVCtlResult RVCtlObstacle::result(const RVObstacle &obstacle)
{
    return RVCtlResult::failed(rendering(obstacle.kind).exit, text(obstacle));
}

QJsonArray RVCtlObstacle::toJson(const QVector<RVObstacle> &obstacles)
{
    QJsonArray array;
    for (const RVObstacle &obstacle : obstacles) {
        const Rendering shown = rendering(obstacle.kind);
        array.append(QJsonObject{
            {QStringLiteral("kind"), QLatin1String(shown.word)},
            {QStringLiteral("code"), static_cast<int>(shown.exit)},
            {QStringLiteral("text"), text(obstacle)},
        });
    }
    return array;
}

QCommandLineOption RVCtlObstacle::timeoutOption()
{
    return {timeoutName,
            QStringLiteral("Wait up to SECONDS for another installation and for the lock of the "
                           "package database; the default is 0."),
            QStringLiteral("SECONDS")};
}

bool RVCtlObstacle::readTimeout(const RVCtlCall &call, int *seconds, QString *error)
{
    *seconds = 0;
    if (!call.parser.isSet(timeoutName)) {
        return true;
    }
    bool isNumber = false;
    *seconds = call.parser.value(timeoutName).toInt(&isNumber);
    if (isNumber && *seconds >= 0 && *seconds <= longestLockWait) {
        return true;
    }
    *error = QStringLiteral("--lock-timeout takes a number of seconds, from 0 to %1.")
                 .arg(longestLockWait);
    return false;
}

std::optional<RVObstacle> RVCtlObstacle::takeLocks(const RVCtlCall &call, RVPreflight *preflight,
                                                   RVBatch::Kind kind, int seconds)
{
    RVLockWait wait(preflight, kind);
    QEventLoop loop;
    bool isFree = false;
    bool isTold = false;
    QObject::connect(&wait, &RVLockWait::ended, &loop, [&](bool free) {
        isFree = free;
        loop.quit();
    });
    QObject::connect(&wait, &RVLockWait::waiting, &loop, [&](const RVSentence &holder) {
        if (!isTold) {
            call.messages.note(QStringLiteral("%1 Waiting...").arg(holder.english()));
            isTold = true;
        }
    });
    QObject::connect(&call.deadline, &RVCtlDeadline::over, &loop, &QEventLoop::quit);
    if (!call.deadline.isOver()) {
        wait.start(seconds);
        loop.exec();
    }
    return isFree ? std::nullopt : std::optional<RVObstacle>(wait.obstacle());
}

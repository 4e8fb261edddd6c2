// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/RVCtlLastRun.h"

#include "cli/RVCtlCommand.h"
#include "cli/RVCtlMessages.h"
#include "cli/RVCtlWorld.h"

#include <QJsonObject>

QString RVCtlLastRun::toText(const std::optional<RVKeptRun> &run)
{
    if (!run) {
        return {};
    }
    const QString text = run->sentence().english();
    return run->outputFile.isEmpty()
        ? text
        : QStringLiteral("%1 Its output is in '%2'.").arg(text, run->outputFile);
}

QJsonValue RVCtlLastRun::toJson(const std::optional<RVKeptRun> &run)
{
    if (!run) {
        return {};
    }
    const auto stateWord = [&run] {
        switch (run->state) {
        case RVKeptRun::State::Running:
            return "running";
        case RVKeptRun::State::Exited:
            return "exited";
        case RVKeptRun::State::Killed:
            return "killed";
        case RVKeptRun::State::Unknown:
            break;
        }
        return "unknown";
    };
    const auto valueIn = [&run](RVKeptRun::State state) {
        return run->state == state ? QJsonValue(run->value) : QJsonValue();
    };
    return QJsonObject{
        {QStringLiteral("state"), QLatin1String(stateWord())},
        {QStringLiteral("exitCode"), valueIn(RVKeptRun::State::Exited)},
        {QStringLiteral("signal"), valueIn(RVKeptRun::State::Killed)},
        {QStringLiteral("started"), run->started.toString(Qt::ISODate)},
        {QStringLiteral("outputFile"), run->outputFile},
    };
}

void RVCtlLastRun::tell(const RVCtlCall &call)
{
    const std::optional<RVKeptRun> run = RVKeptRun::last(call.world.paths());
    if (run) {
        call.messages.warning(toText(run));
        run->forget(call.world.paths());
    }
}

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/RVCtlCommand.h"
#include "cli/RVCtlLastRun.h"
#include "cli/RVCtlText.h"
#include "cli/RVCtlWorld.h"

#include <QJsonArray>

namespace
{

struct Status {
    QString baseSystem;
    QStringList servicePacks;
    QString architecture;
    QString model;
    /// -1 when the package database cannot be read.
    int packages = -1;
    /// An installation that outlived its program.
    std::optional<RVKeptRun> lastRun;
};

Status statusOf(const OSInfo &system, const RVPaths &paths)
{
    Status status;
    status.baseSystem = system.baseOSName().toString();
    for (const VersionString &pack : system.servicePackList()) {
        status.servicePacks.append(pack.toString());
    }
    status.architecture = system.architecture();
    status.model = system.thinClient();
    status.packages = system.installedPackageCount();
    status.lastRun = RVKeptRun::last(paths);
    return status;
}

QString toText(const Status &status)
{
    QVector<QPair<QString, QString>> fields{
        {QStringLiteral("Base system"), status.baseSystem},
        {QStringLiteral("Service packs"),
         status.servicePacks.isEmpty() ? QStringLiteral("none")
                                       : status.servicePacks.join(QLatin1String(", "))},
        {QStringLiteral("Architecture"), status.architecture},
        {QStringLiteral("Model"),
         status.model.isEmpty() ? QStringLiteral("unknown") : status.model},
        {QStringLiteral("Packages installed"),
         status.packages < 0 ? QStringLiteral("unknown") : QString::number(status.packages)},
    };
    if (status.lastRun) {
        fields.append({QStringLiteral("Last installation"), RVCtlLastRun::toText(status.lastRun)});
    }
    return RVCtlText::fields(fields);
}

QJsonObject toJson(const Status &status)
{
    return {
        {QStringLiteral("baseSystem"), status.baseSystem},
        {QStringLiteral("servicePacks"), QJsonArray::fromStringList(status.servicePacks)},
        {QStringLiteral("architecture"), status.architecture},
        {QStringLiteral("model"), status.model},
        {QStringLiteral("packages"), status.packages < 0 ? QJsonValue() : status.packages},
        {QStringLiteral("lastRun"), RVCtlLastRun::toJson(status.lastRun)},
    };
}

} // namespace

RVCtlResult RVCtlCommands::status(const RVCtlCall &call)
{
    QString error;
    if (!call.world.readSystem(&error)) {
        return RVCtlResult::failed(RVCtlExit::Failed, error);
    }
    const Status status = statusOf(call.world.system(), call.world.paths());
    return {RVCtlExit::Done, toText(status), toJson(status), {}};
}

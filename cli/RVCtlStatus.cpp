// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/RVCtlCommand.h"
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
};

Status statusOf(const OSInfo &system)
{
    Status status;
    status.baseSystem = system.baseOSName().toString();
    for (const VersionString &pack : system.servicePackList()) {
        status.servicePacks.append(pack.toString());
    }
    status.architecture = system.architecture();
    status.model = system.thinClient();
    status.packages = system.installedPackageCount();
    return status;
}

QString toText(const Status &status)
{
    return RVCtlText::fields({
        {QStringLiteral("Base system"), status.baseSystem},
        {QStringLiteral("Service packs"),
         status.servicePacks.isEmpty() ? QStringLiteral("none")
                                       : status.servicePacks.join(QLatin1String(", "))},
        {QStringLiteral("Architecture"), status.architecture},
        {QStringLiteral("Model"),
         status.model.isEmpty() ? QStringLiteral("unknown") : status.model},
        {QStringLiteral("Packages installed"),
         status.packages < 0 ? QStringLiteral("unknown") : QString::number(status.packages)},
    });
}

QJsonObject toJson(const Status &status)
{
    return {
        {QStringLiteral("baseSystem"), status.baseSystem},
        {QStringLiteral("servicePacks"), QJsonArray::fromStringList(status.servicePacks)},
        {QStringLiteral("architecture"), status.architecture},
        {QStringLiteral("model"), status.model},
        {QStringLiteral("packages"), status.packages < 0 ? QJsonValue() : status.packages},
    };
}

} // namespace

RVCtlResult RVCtlCommands::status(const RVCtlCall &call)
{
    QString error;
    if (!call.world.readSystem(&error)) {
        return RVCtlResult::failed(RVCtlExit::Failed, error);
    }
    const Status status = statusOf(call.world.system());
    return {RVCtlExit::Done, toText(status), toJson(status), {}};
}

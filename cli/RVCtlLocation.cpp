// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/RVCtlCommand.h"
#include "cli/RVCtlMessages.h"
#include "cli/RVCtlPassword.h"
#include "cli/RVCtlText.h"
#include "cli/RVCtlWorld.h"
#include "core/RVLogger.h"
#include "core/RVSettings.h"
#include "core/RVUrl.h"
#include "network/XNetworkAccessManager.h"
#include "repository/RVRepDesc.h"
#include "repository/RVRepository.h"

#include <QSettings>

namespace
{

struct Location {
    int index = -1;
    QString settingsKey;
    QUrl location;
    QUrl standard;
};

QString toText(const Location &location)
{
    const bool isStandard = location.location == location.standard;
    return RVCtlText::fields({
        {QStringLiteral("Location"),
         location.location.isEmpty() ? QStringLiteral("none") : RVUrl::shown(location.location)},
        {QStringLiteral("Default"),
         isStandard ? QStringLiteral("the same") : RVUrl::shown(location.standard)},
        {QStringLiteral("Settings key"), location.settingsKey},
    });
}

QJsonObject toJson(const Location &location)
{
    return {
        {QStringLiteral("index"), location.index},
        {QStringLiteral("settingsKey"), location.settingsKey},
        {QStringLiteral("location"), RVUrl::shown(location.location)},
        {QStringLiteral("default"), RVUrl::shown(location.standard)},
        {QStringLiteral("isDefault"), location.location == location.standard},
    };
}

/// Why the options page would not take it either; else empty.
QString refusal(const QString &text, const QUrl &url)
{
    if (text.isEmpty()) {
        return {};
    }
    if (!url.isValid()) {
        return QStringLiteral("'%1' is not a valid URI.").arg(text);
    }
    if (!XNetworkAccessManager().schemeIsSupported(url.scheme())) {
        return QStringLiteral("'%1' is not a supported URI scheme.").arg(url.scheme());
    }
    return {};
}

/// Writes what is pending, and says whether that worked.
bool areSettingsStored()
{
    QSettings settings{QLatin1String(RVSettings::organisation),
                       QLatin1String(RVSettings::application)};
    settings.sync();
    return settings.status() == QSettings::NoError;
}

} // namespace

RVCtlResult RVCtlCommands::location(const RVCtlCall &call)
{
    QString error;
    if (!call.world.readSections(&error)) {
        return RVCtlResult::failed(RVCtlExit::Failed, error);
    }
    const RVCtlWorld::Section *section = call.world.find(call.arguments.constFirst(), &error);
    if (!section) {
        return RVCtlResult::failed(RVCtlExit::Usage, error);
    }
    RVRepository *repository = section->repository;
    if (call.arguments.size() > 1) {
        QString text = call.arguments.at(1);
        if (text == QLatin1String("-")) {
            if (!RVCtlPassword::fromFile(QStringLiteral("/dev/stdin"), call.deadline, &text,
                                         &error)) {
                return RVCtlResult::failed(RVCtlExit::Usage,
                                           QStringLiteral("Standard input holds no location."));
            }
        } else if (!QUrl(text).password().isEmpty()) {
            return RVCtlResult::failed(
                RVCtlExit::Usage,
                QStringLiteral(
                    "Every user can see a location with a password among the arguments; use "
                    "`ravelctl location SECTION -`, which reads it from standard input."));
        }
        const bool isStandard = text == QLatin1String("default");
        const QUrl url = isStandard ? repository->defaultUrl() : QUrl(text);
        error = isStandard ? QString() : refusal(text, url);
        if (!error.isEmpty()) {
            return RVCtlResult::failed(RVCtlExit::Usage, error);
        }
        if (repository->settingsKey().isEmpty()) {
            return RVCtlResult::failed(
                RVCtlExit::Failed,
                QStringLiteral("Section %1 has no settings key: its location cannot be stored.")
                    .arg(section->index));
        }
        if (url.isRelative() && !url.isEmpty() && !url.path().startsWith(QLatin1Char('/'))) {
            call.messages.warning(
                QStringLiteral("'%1' is relative to the directory that the program runs in.")
                    .arg(text));
        }
        RVLogger().log(5, "New repository URI (%d) '%s'", section->index,
                       RVLogger::oneLine(url).constData());
        repository->setUrl(url);
        if (!areSettingsStored()) {
            return RVCtlResult::failed(RVCtlExit::Failed,
                                       QStringLiteral("The settings cannot be stored."));
        }
    }
    const Location location{section->index, repository->settingsKey(), repository->url(),
                            repository->defaultUrl()};
    return {RVCtlExit::Done, toText(location), toJson(location), {}};
}

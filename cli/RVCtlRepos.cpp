// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/RVCtlCommand.h"
#include "cli/RVCtlText.h"
#include "cli/RVCtlTrust.h"
#include "cli/RVCtlWorld.h"
#include "core/RVText.h"
#include "core/RVUrl.h"
#include "descriptor/DataXML.h"
#include "repository/RVRepDesc.h"
#include "repository/RVRepository.h"

#include <QJsonArray>

namespace
{

QString selectorOf(const RVRepDesc &definition)
{
    return definition.picksOne() ? QStringLiteral("PickOne") : QStringLiteral("PickAny");
}

QJsonObject toJson(const RVCtlWorld::Section &section)
{
    const RVRepDesc &definition = *section.definition;
    QJsonArray filters;
    for (int i = 0; i < definition.archivePatterns.size(); ++i) {
        filters.append(QJsonObject{
            {QStringLiteral("archive"), definition.archivePatterns.at(i)},
            {QStringLiteral("descriptor"), definition.descriptorPatterns.at(i)},
        });
    }
    return {
        {QStringLiteral("index"), section.index},
        {QStringLiteral("title"), DataXML::plainText(definition.title.value({}))},
        {QStringLiteral("description"), DataXML::plainText(definition.description.value({}))},
        {QStringLiteral("locationLabel"), DataXML::plainText(definition.uriDescription.value({}))},
        {QStringLiteral("location"), RVUrl::shown(section.repository->url())},
        {QStringLiteral("default"), RVUrl::shown(definition.defaultUri)},
        {QStringLiteral("settingsKey"), definition.settingsKey},
        {QStringLiteral("selector"), selectorOf(definition)},
        {QStringLiteral("filters"), filters},
        {QStringLiteral("icon"), definition.icon},
        {QStringLiteral("filterServicePacks"), definition.filterSps},
        {QStringLiteral("trust"), RVCtlTrust::toJson(*section.repository)},
    };
}

QString toText(const RVCtlWorld::Section &section)
{
    const RVRepDesc &definition = *section.definition;
    const QString location = RVUrl::shown(section.repository->url());
    const QString standard = RVUrl::shown(definition.defaultUri);
    QVector<QPair<QString, QString>> fields{
        {QStringLiteral("   Location"), location.isEmpty() ? QStringLiteral("none") : location},
        {QStringLiteral("   Default"), location == standard ? QString() : standard},
        {QStringLiteral("   Settings key"), definition.settingsKey},
        {QStringLiteral("   Selector"), selectorOf(definition)},
    };
    for (int i = 0; i < definition.archivePatterns.size(); ++i) {
        fields.append({QStringLiteral("   Filter"),
                       definition.archivePatterns.at(i) + QLatin1String("  ")
                           + definition.descriptorPatterns.at(i)});
    }
    fields.append({QStringLiteral("   Icon"), definition.icon});
    fields.append({QStringLiteral("   Signed by"), definition.trust.keyring});
    if (definition.trust.fault.isSet()) {
        fields.append({QStringLiteral("   Error"), definition.trust.fault.text});
    }
    return RVText::safe(QStringLiteral("%1. %2")
                            .arg(section.index)
                            .arg(DataXML::plainText(definition.title.value({}))))
        + QLatin1Char('\n') + RVCtlText::fields(fields);
}

} // namespace

RVCtlResult RVCtlCommands::repos(const RVCtlCall &call)
{
    QString error;
    if (!call.world.readSections(&error)) {
        return RVCtlResult::failed(RVCtlExit::Failed, error);
    }
    QStringList texts;
    QJsonArray repositories;
    for (const RVCtlWorld::Section &section : call.world.sections()) {
        texts.append(toText(section));
        repositories.append(toJson(section));
    }
    return {RVCtlExit::Done,
            texts.join(QLatin1Char('\n')),
            {{QStringLiteral("repositories"), repositories}},
            {}};
}

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/RVCtlAccess.h"
#include "cli/RVCtlCommand.h"
#include "cli/RVCtlOffers.h"
#include "cli/RVCtlText.h"
#include "core/RVText.h"
#include "core/RVUrl.h"
#include "descriptor/DataXML.h"
#include "repository/RVExplain.h"
#include "repository/RVRepDesc.h"
#include "repository/RVRepository.h"

#include <QJsonArray>

namespace
{

constexpr int longestList = 300;

QString quoted(const QStringList &list)
{
    return RVText::shortened(DataXML::plainText(list.join(QLatin1String(", "))), longestList);
}

QString orUnknown(const QString &text)
{
    return text.isEmpty() ? QStringLiteral("unknown") : text;
}

QString sentence(RVEligibility reason, const DescriptorGeneric &descriptor,
                 const OSInfoBaseClass &system)
{
    switch (reason) {
    case RVEligibility::Offered:
        return QStringLiteral("offered");
    case RVEligibility::NoFilter:
        return QStringLiteral("no filter of the section matches it");
    case RVEligibility::NoDescriptor:
        return QStringLiteral("no descriptor of the same core name");
    case RVEligibility::ForeignLink:
        return QStringLiteral("the listing links it where it must not lead");
    case RVEligibility::NotListed:
        return QStringLiteral("not in the section's list of sums, or not in its folder");
    case RVEligibility::OtherDescriptor:
        return QStringLiteral("its descriptor is not the file that the list of sums has");
    case RVEligibility::UnreadableDescriptor:
        return QStringLiteral("its descriptor cannot be read");
    case RVEligibility::OtherBaseRelease:
        return QStringLiteral("for base release %1; this system is %2")
            .arg(quoted(descriptor.baseReleases()), system.baseOSName().toString());
    case RVEligibility::OtherArchitecture:
        return QStringLiteral("for architecture %1; this system is %2")
            .arg(quoted(descriptor.architectureList()), system.architecture());
    case RVEligibility::OtherThinClient:
        return descriptor.thinClientList().isEmpty()
            ? QStringLiteral("its descriptor names no model")
            : QStringLiteral("for model %1; this one is %2")
                  .arg(quoted(descriptor.thinClientList()), orUnknown(system.thinClient()));
    case RVEligibility::ServicePackInstalled:
        return QStringLiteral("this service pack is installed");
    }
    return {};
}

QString sentence(const RVVerdict &verdict, const RVRepository &repository,
                 const OSInfoBaseClass &system)
{
    // An archive of which no entry was made has nothing to quote.
    static const DescriptorGeneric nothing{QUrl(QStringLiteral("none.xml"))};
    const auto descriptor = verdict.entry < 0 ? QSharedPointer<DescriptorGeneric>()
                                              : repository.entries().at(verdict.entry).descriptor();
    return sentence(verdict.reason, descriptor ? *descriptor : nothing, system);
}

} // namespace

RVCtlResult RVCtlCommands::explain(const RVCtlCall &call)
{
    RVCtlResult result;
    QList<RVCtlOffers> sections;
    if (!RVCtlOffers::read(call, call.arguments, &sections, &result)) {
        return result;
    }
    const OSInfoBaseClass &system = call.world.system();
    QStringList texts;
    QJsonArray repositories;
    for (const RVCtlOffers &section : qAsConst(sections)) {
        const RVRepository &repository = *section.section().repository;
        QVector<QStringList> rows;
        QJsonArray archives;
        const QList<RVVerdict> verdicts =
            explain(repository, system, section.section().definition->filterSps);
        for (const RVVerdict &verdict : verdicts) {
            const QString text = sentence(verdict, repository, system);
            rows.append({verdict.reason == RVEligibility::Offered ? QStringLiteral("yes")
                                                                  : QStringLiteral("no"),
                         RVUrl::fileName(verdict.archive), text});
            archives.append(QJsonObject{
                {QStringLiteral("archive"), RVUrl::shown(verdict.archive)},
                {QStringLiteral("offered"), verdict.reason == RVEligibility::Offered},
                {QStringLiteral("reason"), reasonWord(verdict.reason)},
                {QStringLiteral("text"), text},
            });
        }
        QString text = section.heading();
        if (!rows.isEmpty()) {
            text += RVCtlText::table(
                {QStringLiteral("OFFERED"), QStringLiteral("ARCHIVE"), QStringLiteral("REASON")},
                rows);
        } else if (!section.failure().isSet()) {
            text += QStringLiteral("   There is no archive.\n");
        }
        texts.append(text);
        QJsonObject object = section.toJson();
        object.insert(QStringLiteral("archives"), archives);
        repositories.append(object);
    }
    result.text = texts.join(QLatin1Char('\n'));
    result.json.insert(QStringLiteral("repositories"), repositories);
    RVCtlOffers::judge(sections, &result);
    return result;
}

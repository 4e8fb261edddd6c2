// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/RVCtlAccess.h"
#include "cli/RVCtlBatch.h"
#include "cli/RVCtlCommand.h"
#include "cli/RVCtlObstacle.h"
#include "cli/RVCtlOffers.h"
#include "cli/RVCtlText.h"
#include "cli/RVCtlTrust.h"
#include "core/RVText.h"
#include "core/RVUrl.h"

#include <QJsonArray>

namespace
{

/// What no description tells.
const QStringList unforeseen{
    QStringLiteral("what the scripts of packages and service packs do"),
    QStringLiteral("needs and conflicts of packages"),
    QStringLiteral("files that several packages have"),
    QStringLiteral("damage inside an archive"),
};

QString toText(const RVCtlBatch &plan, const QVector<RVObstacle> &obstacles)
{
    if (plan.updates.isEmpty()) {
        return QStringLiteral("Nothing would be installed.\n");
    }
    QVector<QStringList> rows;
    for (const RVCtlOffers::Entry &entry : plan.updates) {
        rows.append({entry.name(), entry.installed(), entry.version()});
    }
    QString text = RVCtlText::table(
        {QStringLiteral("UPDATE"), QStringLiteral("INSTALLED"), QStringLiteral("OFFERED")}, rows);
    text += plan.downloads.isEmpty() ? QStringLiteral("\nDownloads nothing.\n")
                                     : QStringLiteral("\nDownloads:\n");
    for (const RVData &data : plan.downloads) {
        const QString size = RVCtlText::size(data.descriptor()->size());
        text += QLatin1String("  ") + RVText::safe(RVUrl::shown(data.archiveUrl()))
            + (size.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(size)) + QLatin1Char('\n');
    }
    if (!obstacles.isEmpty()) {
        text += QStringLiteral("\nStands in the way:\n");
        for (const RVObstacle &obstacle : obstacles) {
            text += QLatin1String("  ") + RVText::safe(RVCtlObstacle::text(obstacle))
                + QLatin1Char('\n');
        }
    }
    text += QStringLiteral("\nKnown only when installing:\n");
    for (const QString &line : unforeseen) {
        text += QLatin1String("  ") + line + QLatin1Char('\n');
    }
    if (plan.installer.program.isEmpty()) {
        return text + QStringLiteral("\nThere is no installer for this archive.\n");
    }
    text += QStringLiteral("\nRuns:\n  ")
        + RVText::safe((QStringList(plan.installer.program) + plan.installerArguments())
                           .join(QLatin1Char(' ')))
        + QLatin1Char('\n');
    if (!plan.installer.script.isEmpty()) {
        text += QStringLiteral("\nRVinstall.sh:\n")
            + RVText::safeLines(QString::fromUtf8(plan.installer.script));
    }
    return text;
}

QJsonObject toJson(const RVCtlBatch &plan, const QVector<RVObstacle> &obstacles)
{
    QJsonObject object = plan.toJson();
    object.insert(QStringLiteral("obstacles"), RVCtlObstacle::toJson(obstacles));
    object.insert(QStringLiteral("unforeseen"),
                  plan.items.isEmpty() ? QJsonArray() : QJsonArray::fromStringList(unforeseen));
    QJsonValue installer;
    if (!plan.installer.program.isEmpty()) {
        installer = QJsonObject{
            {QStringLiteral("program"), plan.installer.program},
            {QStringLiteral("arguments"), QJsonArray::fromStringList(plan.installerArguments())},
            {QStringLiteral("script"),
             plan.installer.script.isEmpty()
                 ? QJsonValue()
                 : QJsonValue(QString::fromUtf8(plan.installer.script))},
        };
    }
    object.insert(QStringLiteral("installer"), installer);
    return object;
}

} // namespace

RVCtlResult RVCtlCommands::plan(const RVCtlCall &call)
{
    RVCtlResult result;
    QList<RVCtlOffers> sections;
    if (!RVCtlOffers::read(call, call.arguments.mid(0, 1), &sections, &result)) {
        return result;
    }
    const RVCtlOffers &section = sections.constFirst();
    if (section.failure().isSet()) {
        RVCtlOffers::judge(sections, &result);
        result.json.insert(QStringLiteral("trust"),
                           RVCtlTrust::toJson(*section.section().repository));
        return result;
    }
    QString error;
    QVector<RVCtlOffers::Entry> chosen;
    if (!section.choose(call.arguments.mid(1), RVCtlOffers::runningImage(call.parser), &chosen,
                        &error)) {
        return RVCtlResult::failed(RVCtlExit::Usage, error);
    }
    const RVCtlBatch plan = RVCtlBatch::of(section, chosen, call.world.system());
    const QVector<RVObstacle> obstacles = RVPreflight(call.world.paths()).obstacles(plan);
    result.text = toText(plan, obstacles);
    result.json = toJson(plan, obstacles);
    RVCtlOffers::judge(sections, &result);
    return result;
}

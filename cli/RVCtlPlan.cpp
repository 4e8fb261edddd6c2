// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/RVCtlPlan.h"

#include "archive/RVInstallProc.h"
#include "repository/RVRepository.h"

#include <QJsonArray>

#include "cli/RVCtlAccess.h"
#include "cli/RVCtlOffers.h"
#include "cli/RVCtlText.h"

namespace
{

struct Plan {
    QVector<RVCtlOffers::Entry> updates;
    QList<RVData> downloads;
    /// Of what is downloaded; -1 when a size is not known.
    qint64 size = 0;
    InstallCommand installer;
};

Plan planFor(const RVCtlOffers &section, const QVector<RVCtlOffers::Entry> &chosen)
{
    Plan plan;
    plan.updates = chosen;
    QList<RVData> batch;
    for (const RVCtlOffers::Entry &entry : chosen) {
        batch.append(section.data(entry));
    }
    if (batch.isEmpty()) {
        return plan;
    }
    plan.downloads = RVInstallProc::downloads(batch);
    for (const RVData &data : qAsConst(plan.downloads)) {
        const qint64 size = data.descriptor()->size();
        plan.size = size < 0 || plan.size < 0 ? -1 : plan.size + size;
    }
    // The first archive's installer runs over all of them.
    ArchiveGeneric &first = *batch.first().archive();
    const RVRepository &repository = *section.section().repository;
    if (!repository.proxyHost().isEmpty() && repository.proxyPort() > 0) {
        first.setProxy(repository.proxyHost(), repository.proxyPort());
    }
    plan.installer = first.installCommand();
    return plan;
}

QStringList shownArguments(const InstallCommand &command)
{
    QStringList result;
    for (QString argument : command.arguments) {
        result.append(
            argument.replace(QLatin1String("%1"), QLatin1String("<directory of the archive>")));
    }
    return result;
}

QString toText(const Plan &plan)
{
    if (plan.updates.isEmpty()) {
        return QStringLiteral("Nothing would be installed.\n");
    }
    QVector<QStringList> rows;
    for (const RVCtlOffers::Entry &entry : plan.updates) {
        rows.append(
            {entry.name(),
             entry.proposal.installed.isEmpty() ? QStringLiteral("none") : entry.proposal.installed,
             entry.version()});
    }
    QString text = RVCtlText::table(
        {QStringLiteral("UPDATE"), QStringLiteral("INSTALLED"), QStringLiteral("OFFERED")}, rows);
    text += plan.downloads.isEmpty() ? QStringLiteral("\nDownloads nothing.\n")
                                     : QStringLiteral("\nDownloads:\n");
    for (const RVData &data : plan.downloads) {
        const QString size = RVCtlText::size(data.descriptor()->size());
        text += QLatin1String("  ")
            + RVCtlText::safe(data.archiveUrl().toString(QUrl::RemovePassword))
            + (size.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(size)) + QLatin1Char('\n');
    }
    if (plan.installer.program.isEmpty()) {
        return text + QStringLiteral("\nThere is no installer for this archive.\n");
    }
    text += QStringLiteral("\nRuns:\n  ")
        + RVCtlText::safe((QStringList(plan.installer.program) + shownArguments(plan.installer))
                              .join(QLatin1Char(' ')))
        + QLatin1Char('\n');
    if (!plan.installer.script.isEmpty()) {
        text += QStringLiteral("\nRVinstall.sh:\n")
            + RVCtlText::safeLines(QString::fromUtf8(plan.installer.script));
    }
    return text;
}

QJsonObject toJson(const Plan &plan)
{
    QJsonArray updates;
    for (const RVCtlOffers::Entry &entry : plan.updates) {
        updates.append(entry.toJson());
    }
    QJsonArray downloads;
    for (const RVData &data : plan.downloads) {
        const qint64 size = data.descriptor()->size();
        downloads.append(QJsonObject{
            {QStringLiteral("url"), data.archiveUrl().toString(QUrl::RemovePassword)},
            {QStringLiteral("size"), size < 0 ? QJsonValue() : QJsonValue(size)},
        });
    }
    QJsonValue installer;
    if (!plan.installer.program.isEmpty()) {
        installer = QJsonObject{
            {QStringLiteral("program"), plan.installer.program},
            {QStringLiteral("arguments"),
             QJsonArray::fromStringList(shownArguments(plan.installer))},
            {QStringLiteral("script"),
             plan.installer.script.isEmpty()
                 ? QJsonValue()
                 : QJsonValue(QString::fromUtf8(plan.installer.script))},
        };
    }
    return {
        {QStringLiteral("updates"), updates},
        {QStringLiteral("downloads"), downloads},
        {QStringLiteral("downloadSize"), plan.size < 0 ? QJsonValue() : QJsonValue(plan.size)},
        {QStringLiteral("installer"), installer},
    };
}

} // namespace

QList<QCommandLineOption> RVCtlPlan::options() const
{
    return RVCtlAccess::options();
}

RVCtlResult RVCtlPlan::run(const RVCtlCall &call)
{
    RVCtlResult result;
    QList<RVCtlOffers> sections;
    if (!RVCtlOffers::read(call, call.arguments.mid(0, 1), &sections, &result)) {
        return result;
    }
    const RVCtlOffers &section = sections.constFirst();
    if (section.failure().isSet()) {
        RVCtlOffers::judge(sections, &result);
        return result;
    }
    QString error;
    QVector<RVCtlOffers::Entry> chosen;
    if (!section.choose(call.arguments.mid(1), &chosen, &error)) {
        return RVCtlResult::failed(RVCtlExit::Usage, error);
    }
    const Plan plan = planFor(section, chosen);
    result.text = toText(plan);
    result.json = toJson(plan);
    RVCtlOffers::judge(sections, &result);
    return result;
}

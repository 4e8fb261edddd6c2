// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/RVCtlAccess.h"
#include "cli/RVCtlCommand.h"
#include "cli/RVCtlOffers.h"
#include "cli/RVCtlText.h"
#include "core/RVText.h"
#include "core/RVUrl.h"

#include <QCommandLineParser>
#include <QJsonArray>

namespace
{

constexpr int longestCell = 60;

QString cell(const QString &text)
{
    return RVText::shortened(text, longestCell);
}

QString mark(const RVCtlOffers::Entry &entry)
{
    if (entry.isPreselected()) {
        return QStringLiteral("*");
    }
    return entry.isNew() ? QStringLiteral("+") : QString();
}

QString toText(const RVCtlOffers &section, bool all)
{
    QStringList headings{QString(),
                         QStringLiteral("NAME"),
                         QStringLiteral("INSTALLED"),
                         QStringLiteral("OFFERED"),
                         QStringLiteral("SIZE"),
                         QStringLiteral("TITLE")};
    if (all) {
        headings.append(QStringLiteral("REASON"));
    }
    QVector<QStringList> rows;
    for (const RVCtlOffers::Entry &entry : section.entries()) {
        if (!all && !entry.isOffered()) {
            continue;
        }
        const QString name = entry.name().isEmpty() ? RVUrl::fileName(entry.archive) : entry.name();
        QStringList row{mark(entry),
                        cell(name),
                        entry.proposal.installed.isEmpty() ? QStringLiteral("none")
                                                           : cell(entry.proposal.installed),
                        cell(entry.version()),
                        RVCtlText::size(entry.description ? entry.description->size() : -1),
                        cell(entry.title())};
        if (all) {
            row.append(reasonWord(entry.reason));
        }
        rows.append(row);
    }
    QString text = section.heading();
    if (!rows.isEmpty()) {
        text += RVCtlText::table(headings, rows);
    } else if (!section.failure().isSet()) {
        text += QStringLiteral("   No updates of this type are available.\n");
    }
    return text;
}

QJsonObject toJson(const RVCtlOffers &section, bool all)
{
    QJsonArray entries;
    for (const RVCtlOffers::Entry &entry : section.entries()) {
        if (all || entry.isOffered()) {
            entries.append(entry.toJson());
        }
    }
    QJsonObject object = section.toJson();
    object.insert(QStringLiteral("entries"), entries);
    return object;
}

} // namespace

QList<QCommandLineOption> RVCtlCommands::listOptions()
{
    return QList<QCommandLineOption>{
               {QStringLiteral("all"),
                QStringLiteral("Also show what is not offered, each with its reason.")},
               {QStringLiteral("exit-code"), QStringLiteral("Exit with 10 if something is new.")},
           }
    + RVCtlAccess::options();
}

RVCtlResult RVCtlCommands::list(const RVCtlCall &call)
{
    RVCtlResult result;
    QList<RVCtlOffers> sections;
    if (!RVCtlOffers::read(call, call.arguments, &sections, &result)) {
        return result;
    }
    const bool all = call.parser.isSet(QStringLiteral("all"));
    QStringList texts;
    QJsonArray repositories;
    bool hasNews = false;
    for (const RVCtlOffers &section : qAsConst(sections)) {
        texts.append(toText(section, all));
        repositories.append(toJson(section, all));
        hasNews = hasNews || section.hasNews();
    }
    result.text = texts.join(QLatin1Char('\n'));
    result.json.insert(QStringLiteral("repositories"), repositories);
    RVCtlOffers::judge(sections, &result);
    if (result.exit == RVCtlExit::Done && hasNews
        && call.parser.isSet(QStringLiteral("exit-code"))) {
        result.exit = RVCtlExit::News;
    }
    return result;
}

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/RVCtlCommand.h"
#include "cli/RVCtlMessages.h"
#include "cli/RVCtlText.h"
#include "cli/RVCtlWorld.h"
#include "install/RVHistory.h"
#include "repository/RVRepDesc.h"

#include <QCommandLineParser>
#include <QJsonArray>

#include <algorithm>

namespace
{

const QString sinceOption = QStringLiteral("since");

QString byOf(const RVHistory::Run &run)
{
    const QString behind = run.sudoUser.isEmpty() ? run.login : run.sudoUser;
    return behind.isEmpty() || behind == run.user ? run.user
                                                  : QStringLiteral("%1 (%2)").arg(run.user, behind);
}

QString resultOf(const RVHistory::Run &run, const RVHistory::Item &item)
{
    if (run.isOpen()) {
        return QStringLiteral("not ended");
    }
    return item.state.isEmpty() ? QStringLiteral("unknown") : item.state;
}

QString toText(const QVector<RVHistory::Run> &runs)
{
    QVector<QStringList> rows;
    for (const RVHistory::Run &run : runs) {
        const QString begun = run.begun.toLocalTime().toString(QStringLiteral("yyyy-MM-dd HH:mm"));
        for (const RVHistory::Item &item : run.items) {
            rows.append({begun, item.name, item.from, item.to, resultOf(run, item), byOf(run),
                         item.reason});
        }
        if (run.more > 0) {
            rows.append({begun, QStringLiteral("and %1 more").arg(run.more), {}, {}, {}, {}, {}});
        }
    }
    return RVCtlText::table({QStringLiteral("Begun"), QStringLiteral("Update"),
                             QStringLiteral("From"), QStringLiteral("To"), QStringLiteral("Result"),
                             QStringLiteral("By"), QStringLiteral("Reason")},
                            rows);
}

/// Whether the run is of that section, or has an update of that name.
bool isAbout(const RVHistory::Run &run, const QString &settingsKey, const QString &name)
{
    return (!settingsKey.isEmpty() && run.section == settingsKey) || run.section == name
        || std::any_of(run.items.cbegin(), run.items.cend(), [&name](const RVHistory::Item &item) {
               return item.name == name;
           });
}

/// The settings key of the section that an argument names; empty when it names none.
QString sectionKey(RVCtlWorld *world, const QString &argument)
{
    QString ignored;
    const RVCtlWorld::Section *section =
        world->readSections(&ignored) ? world->find(argument, &ignored) : nullptr;
    return section ? section->definition->settingsKey : QString();
}

} // namespace

QList<QCommandLineOption> RVCtlCommands::historyOptions()
{
    return {{sinceOption, QStringLiteral("Show what began on DATE, as 2026-11-20, or later."),
             QStringLiteral("DATE")}};
}

RVCtlResult RVCtlCommands::history(const RVCtlCall &call)
{
    QDateTime since;
    if (call.parser.isSet(sinceOption)) {
        since = QDateTime::fromString(call.parser.value(sinceOption), Qt::ISODate);
        if (!since.isValid()) {
            return RVCtlResult::failed(
                RVCtlExit::Usage,
                QStringLiteral("--since takes a date, such as 2026-11-20, or 2026-11-20T12:00."));
        }
    }
    RVHistory::Reading reading = RVHistory(call.world.paths()).read();
    if (reading.damaged > 0) {
        call.messages.warning(
            QStringLiteral("The history has damaged lines, which were passed over: %1.")
                .arg(reading.damaged));
    }
    const QString name = call.arguments.value(0);
    const QString key = name.isEmpty() ? QString() : sectionKey(&call.world, name);
    QVector<RVHistory::Run> runs;
    std::copy_if(reading.runs.cbegin(), reading.runs.cend(), std::back_inserter(runs),
                 [&](const RVHistory::Run &run) {
                     return (!since.isValid() || run.begun >= since)
                         && (name.isEmpty() || isAbout(run, key, name));
                 });
    QJsonArray list;
    for (const RVHistory::Run &run : qAsConst(runs)) {
        list.append(run.toJson());
    }
    return {RVCtlExit::Done,
            runs.isEmpty() ? QStringLiteral("The history has nothing.\n") : toText(runs),
            {{QStringLiteral("runs"), list}, {QStringLiteral("damaged"), reading.damaged}},
            {}};
}

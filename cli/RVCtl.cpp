// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/RVCtl.h"

#include "cli/RVCtlCommand.h"
#include "cli/RVCtlDeadline.h"
#include "cli/RVCtlMessages.h"
#include "cli/RVCtlText.h"
#include "cli/RVCtlWorld.h"
#include "core/RVLogger.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>
#include <cstdio>

namespace
{

/// A day and more; a run is never meant to take that long.
constexpr int longestTimeout = 1000000;

const QString rootOption = QStringLiteral("root");
const QString definitionsOption = QStringLiteral("definitions");
const QString jsonOption = QStringLiteral("json");
const QString timeoutOption = QStringLiteral("timeout");
const QString quietOption = QStringLiteral("quiet");
const QString helpOption = QStringLiteral("help");
const QString versionOption = QStringLiteral("version");

QList<QCommandLineOption> programOptions()
{
    return {
        {rootOption, QStringLiteral("Work on the system below DIR instead of this one."),
         QStringLiteral("DIR")},
        {definitionsOption, QStringLiteral("Read the definition files in DIR."),
         QStringLiteral("DIR")},
        {jsonOption, QStringLiteral("Print one JSON document.")},
        {timeoutOption, QStringLiteral("Give up after SECONDS with exit code 124."),
         QStringLiteral("SECONDS")},
        {quietOption, QStringLiteral("Print only errors on standard error.")},
        {{QStringLiteral("h"), helpOption}, QStringLiteral("Show this help.")},
        {{QStringLiteral("v"), versionOption}, QStringLiteral("Show the version.")},
    };
}

QString exitCodes()
{
    return QStringLiteral(
        "Exit codes:\n"
        "  0 done, 1 unusable system or settings, or lint found defects, 2 usage,\n"
        "  3 network, 4 damaged archive, 5 not enough space,\n"
        "  6 package database locked or interrupted, or another installation under way,\n"
        "  7 installer failed or cannot run, 8 done in part, 9 wrong or missing signature\n"
        "  or sum, 10 something is new (list --exit-code), 124 timeout,\n"
        "  128+N ended by signal N\n");
}

QString optionsText(const QList<QCommandLineOption> &options)
{
    QVector<QPair<QString, QString>> lines;
    int columns = 0;
    for (const QCommandLineOption &option : options) {
        QStringList names;
        for (const QString &name : option.names()) {
            names.append((name.size() == 1 ? QLatin1String("-") : QLatin1String("--")) + name);
        }
        QString left = names.join(QLatin1String(", "));
        if (!option.valueName().isEmpty()) {
            left += QLatin1Char(' ') + option.valueName();
        }
        columns = qMax(columns, left.size());
        lines.append({left, option.description()});
    }
    QString text;
    for (const auto &line : qAsConst(lines)) {
        text += QLatin1String("  ") + line.first.leftJustified(columns + 2) + line.second
            + QLatin1Char('\n');
    }
    return text;
}

QString programHelp()
{
    QString text = QStringLiteral("usage: ravelctl [OPTION...] COMMAND [ARGUMENT...]\n\n"
                                  "Finds, explains and installs software updates.\n\nCommands:\n");
    for (const RVCtlCommand &command : RVCtlCommand::all()) {
        text += QStringLiteral("  %1 %2\n      %3\n")
                    .arg(QLatin1String(command.name), QLatin1String(command.syntax),
                         QLatin1String(command.summary));
    }
    text +=
        QStringLiteral("\nA SECTION is its index, from 0, or its settings key.\n"
                       "`ravelctl COMMAND --help` shows a command's own options.\n\nOptions:\n");
    return text + optionsText(programOptions()) + QLatin1Char('\n') + exitCodes();
}

QString commandHelp(const RVCtlCommand &command)
{
    QString text = QStringLiteral("usage: ravelctl [OPTION...] %1 %2\n\n%3\n\n")
                       .arg(QLatin1String(command.name), QLatin1String(command.syntax),
                            QLatin1String(command.summary));
    if (!command.options.isEmpty()) {
        text += QStringLiteral("Options of the command:\n") + optionsText(command.options)
            + QLatin1Char('\n');
    }
    return text + QStringLiteral("Options:\n") + optionsText(programOptions()) + QLatin1Char('\n')
        + exitCodes();
}

/// Null when there is none.
const RVCtlCommand *commandNamed(const QString &name)
{
    const std::vector<RVCtlCommand> &commands = RVCtlCommand::all();
    const auto found =
        std::find_if(commands.begin(), commands.end(), [&name](const RVCtlCommand &command) {
            return name == QLatin1String(command.name);
        });
    return found == commands.end() ? nullptr : &*found;
}

/// Which command it is, whatever options stand before it: those of all commands are known here.
QString commandName(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.addOptions(programOptions());
    QStringList known;
    for (const RVCtlCommand &command : RVCtlCommand::all()) {
        for (const QCommandLineOption &option : command.options) {
            if (!known.contains(option.names().constFirst())) {
                known.append(option.names().constFirst());
                parser.addOption(option);
            }
        }
    }
    parser.parse(arguments);
    return parser.positionalArguments().value(0);
}

/// Also where the rest of the arguments makes no sense.
bool wantsJson(const QStringList &arguments)
{
    const int end = arguments.indexOf(QStringLiteral("--"));
    return arguments.mid(0, end).contains(QLatin1String("--") + jsonOption);
}

RVCtlResult usage(const QString &error)
{
    return RVCtlResult::failed(RVCtlExit::Usage, error);
}

RVCtlResult information(const QString &key, const QString &text)
{
    return {RVCtlExit::Done, text, {{key, text}}, {}};
}

bool isDirectory(const QString &name, QString *error)
{
    if (name.isEmpty() || !QFileInfo(name).isDir()) {
        *error = QStringLiteral("'%1' is not a directory.").arg(name);
        return false;
    }
    return true;
}

/// The system that the options name.
bool readPaths(const QCommandLineParser &parser, RVPaths *paths, QString *error)
{
    if (parser.isSet(rootOption)) {
        if (!isDirectory(parser.value(rootOption), error)) {
            return false;
        }
        *paths = RVPaths::enterRoot(QFileInfo(parser.value(rootOption)).canonicalFilePath());
    }
    if (parser.isSet(definitionsOption)) {
        if (!isDirectory(parser.value(definitionsOption), error)) {
            return false;
        }
        paths->definitionDir = QFileInfo(parser.value(definitionsOption)).absoluteFilePath();
    }
    return true;
}

/// The log is for what changes the system; whoever only reads leaves no trace on the disk.
void setLog(RVPaths paths, bool isLogged)
{
    if (!isLogged) {
        paths.rootLog.clear();
        paths.userLog.clear();
    }
    RVLogger::setPaths(paths);
}

RVCtlResult runCommand(const QStringList &arguments, RVCtlMessages *messages)
{
    const QString name = commandName(arguments);
    const RVCtlCommand *command = commandNamed(name);

    QCommandLineParser parser;
    parser.addOptions(programOptions());
    if (command) {
        parser.addOptions(command->options);
    }
    const bool isParsed = parser.parse(arguments);
    if (parser.isSet(helpOption)) {
        return information(helpOption, command ? commandHelp(*command) : programHelp());
    }
    if (parser.isSet(versionOption)) {
        return information(
            versionOption,
            QStringLiteral("ravelctl %1\n").arg(QCoreApplication::applicationVersion()));
    }
    if (name.isEmpty() && isParsed) {
        return usage(QStringLiteral("No command given; --help lists the commands."));
    }
    if (!name.isEmpty() && !command) {
        return usage(QStringLiteral("Unknown command '%1'; --help lists the commands.").arg(name));
    }
    if (!isParsed) {
        return usage(parser.errorText());
    }
    const QStringList rest = parser.positionalArguments().mid(1);
    if (rest.size() < command->fewestArguments || rest.size() > command->mostArguments) {
        return usage(
            QStringLiteral("usage: ravelctl %1 %2").arg(name, QLatin1String(command->syntax)));
    }

    messages->setQuiet(parser.isSet(quietOption));
    RVCtlDeadline deadline;
    if (parser.isSet(timeoutOption)) {
        bool isNumber = false;
        const int seconds = parser.value(timeoutOption).toInt(&isNumber);
        if (!isNumber || seconds < 1 || seconds > longestTimeout) {
            return usage(QStringLiteral("--timeout takes a number of seconds, from 1 to %1.")
                             .arg(longestTimeout));
        }
        deadline.setSeconds(seconds);
    }
    RVPaths paths;
    QString error;
    if (!readPaths(parser, &paths, &error)) {
        return usage(error);
    }
    setLog(paths, rest.size() >= command->loggedFrom);
    deadline.catchSignals();
    RVCtlWorld world(paths);
    RVCtlResult result = command->run({parser, rest, world, deadline, *messages});
    // A signal that came while no event loop ran.
    QCoreApplication::processEvents();
    if (deadline.signal() != 0) {
        return RVCtlResult::failed(
            static_cast<RVCtlExit>(static_cast<int>(RVCtlExit::Interrupted) + deadline.signal()),
            QStringLiteral("Interrupted."));
    }
    if (deadline.timedOut()) {
        return RVCtlResult::failed(RVCtlExit::Timeout, QStringLiteral("Timed out."));
    }
    return result;
}

QByteArray rendered(const RVCtlResult &result, bool json)
{
    if (!json) {
        return result.text.toLocal8Bit();
    }
    QJsonObject document = result.json;
    QJsonValue error;
    if (!result.error.isEmpty()) {
        error = QJsonObject{{QStringLiteral("code"), static_cast<int>(result.exit)},
                            {QStringLiteral("text"), result.error}};
    }
    document.insert(QStringLiteral("error"), error);
    return RVCtlText::json(document);
}

} // namespace

int RVCtl::run(const QStringList &arguments)
{
    RVCtlMessages messages;
    const RVCtlResult result = runCommand(arguments, &messages);
    const QByteArray output = rendered(result, wantsJson(arguments));
    const bool printed =
        std::fwrite(output.constData(), 1, static_cast<size_t>(output.size()), stdout)
            == static_cast<size_t>(output.size())
        && std::fflush(stdout) == 0;
    if (!result.error.isEmpty()) {
        messages.error(result.error);
    }
    RVLogger::close();
    if (!printed) {
        messages.error(QStringLiteral("The result could not be written."));
        return static_cast<int>(RVCtlExit::Failed);
    }
    return static_cast<int>(result.exit);
}

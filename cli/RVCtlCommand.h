// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "cli/RVCtlResult.h"

#include <QCommandLineOption>
#include <QList>
#include <QStringList>

#include <limits>
#include <vector>

class QCommandLineParser;
class RVCtlDeadline;
class RVCtlMessages;
class RVCtlWorld;

/// What a command works with.
struct RVCtlCall {
    /// Holds the program's options and the command's own.
    const QCommandLineParser &parser;
    /// What stands behind the command's name.
    const QStringList arguments;
    RVCtlWorld &world;
    RVCtlDeadline &deadline;
    RVCtlMessages &messages;
};

/// One command of the program: a line of the table of all.
struct RVCtlCommand {
    static constexpr int anyNumber = std::numeric_limits<int>::max();
    static constexpr int never = anyNumber;

    const char *name;
    /// What follows the name: "SECTION [NAME...]".
    const char *syntax;
    int fewestArguments;
    int mostArguments;
    /// With so many arguments or more it changes the system or its settings, and is logged. No
    /// other run is; `download` and `sums` write only into the folder that the user names.
    int loggedFrom;
    /// Its own.
    QList<QCommandLineOption> options;
    RVCtlResult (*run)(const RVCtlCall &call);
    /// One sentence.
    const char *summary;

    /// Every command, in the order of the help text.
    static const std::vector<RVCtlCommand> &all();
};

/// What the commands do, each in a file of its name: RVCtlStatus.cpp and so on.
namespace RVCtlCommands
{

RVCtlResult status(const RVCtlCall &call);
RVCtlResult repos(const RVCtlCall &call);
RVCtlResult list(const RVCtlCall &call);
RVCtlResult explain(const RVCtlCall &call);
RVCtlResult details(const RVCtlCall &call);
RVCtlResult plan(const RVCtlCall &call);
RVCtlResult install(const RVCtlCall &call);
RVCtlResult repair(const RVCtlCall &call);
RVCtlResult history(const RVCtlCall &call);
RVCtlResult download(const RVCtlCall &call);
RVCtlResult lint(const RVCtlCall &call);
RVCtlResult location(const RVCtlCall &call);
RVCtlResult proxy(const RVCtlCall &call);
RVCtlResult trust(const RVCtlCall &call);
RVCtlResult sums(const RVCtlCall &call);

QList<QCommandLineOption> listOptions();
QList<QCommandLineOption> installOptions();
QList<QCommandLineOption> repairOptions();
QList<QCommandLineOption> historyOptions();
QList<QCommandLineOption> downloadOptions();
QList<QCommandLineOption> lintOptions();
QList<QCommandLineOption> sumsOptions();

} // namespace RVCtlCommands

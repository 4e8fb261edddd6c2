// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "cli/RVCtlResult.h"

#include <QCommandLineOption>
#include <QList>
#include <QStringList>

#include <limits>
#include <memory>
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

/// One command of the program.
class RVCtlCommand
{
public:
    static constexpr int anyNumber = std::numeric_limits<int>::max();

    virtual ~RVCtlCommand() = default;

    virtual QString name() const = 0;
    /// What follows the name: "SECTION [NAME...]".
    virtual QString syntax() const = 0;
    /// One sentence.
    virtual QString summary() const = 0;
    virtual QList<QCommandLineOption> options() const { return {}; }
    virtual int fewestArguments() const { return 0; }
    virtual int mostArguments() const { return anyNumber; }
    /// Whether it is to leave its traces in the log; commands that only read leave none anywhere.
    virtual bool isLogged(const QStringList &arguments) const;
    virtual RVCtlResult run(const RVCtlCall &call) = 0;

    /// Every command, in the order of the help text.
    static std::vector<std::unique_ptr<RVCtlCommand>> all();

protected:
    RVCtlCommand() = default;

private:
    Q_DISABLE_COPY_MOVE(RVCtlCommand)
};

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QJsonObject>
#include <QString>

/// How a run ended: the program's exit code.
enum class RVCtlExit : int {
    Done = 0, ///< also when nothing is new
    /// The system, its definition files or its settings cannot be used, or have defects.
    Failed = 1,
    Usage = 2,
    Network = 3,
    DamagedArchive = 4,
    NoSpace = 5,
    DatabaseLocked = 6,
    InstallerFailed = 7,
    DoneInPart = 8,
    NotTrusted = 9, ///< a signature or a sum is wrong
    News = 10, ///< something is new, and the caller asked to be told so
    Interrupted = 128, ///< plus the signal's number
    Timeout = 124,
};

/// What a command has to say, for a reader and for a program.
struct RVCtlResult {
    RVCtlExit exit = RVCtlExit::Done;
    /// Ends in a line feed unless it is empty; safe for a terminal.
    QString text;
    QJsonObject json;
    /// Why it is not done, in one sentence; empty when it is.
    QString error;

    static RVCtlResult failed(RVCtlExit exit, const QString &error)
    {
        return {exit, {}, {}, error};
    }
};

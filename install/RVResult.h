// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/RVSentence.h"
#include "repository/RVData.h"

#include <QProcess>
#include <QString>
#include <QVector>

/// How one update of a run ended.
struct RVItemResult {
    enum class State {
        Installed, ///< the system says so
        Failed, ///< the system does not have it, or not as it was offered
        Arranged, ///< an image: the device fetches and writes it at its next start
        NotConfirmable, ///< the installer reported no error, and nothing on the system tells
        LeftOut, ///< its archive never reached the installer
        NotTried, ///< the run ended before its turn
        Cancelled, ///< by the user
    };
    /// What kept the archive from the installer.
    enum class Fault {
        None,
        Network,
        Damaged, ///< it came to an early end, or is not what was described
        Space,
        Untrusted, ///< it is not the one that the repository's list has
        OtherKind, ///< the installer of the batch does not take it
    };

    RVData entry;
    /// English, and plain text.
    QString name;
    /// The installed version before; empty where none was, or where none is known.
    QString from;
    /// The offered version.
    QString to;
    State state = State::NotTried;
    /// Why it is not installed, or cannot be confirmed; empty when it is.
    RVSentence reason;
    Fault fault = Fault::None;
    /// The code of the log, for a fault of the network; else 0.
    int networkError = 0;

    /// Installed as far as anybody can tell: Installed, Arranged or NotConfirmable.
    bool isDone() const;
    /// "installed", "left-out" and the like: what documents and the history say.
    QString stateWord() const;
    /// "network" and the like; empty without a fault.
    QString faultWord() const;
};

/// How a run ended, item by item. Both faces, the log and the history show this one.
struct RVResult {
    /// In the order in which they were chosen.
    QVector<RVItemResult> items;
    bool isInstallerStarted = false;
    /// The installer's; without one, what finished() says.
    int exitCode = 0;
    QProcess::ExitStatus exitStatus = QProcess::NormalExit;
    /// Why the run as a whole ended as it did, where its items do not say so already.
    RVSentence reason;

    int count(RVItemResult::State state) const;
    /// Every item is done, and the installer ended without an error.
    bool isWhole() const;
    /// The user ended it before anything was installed.
    bool isCancelled() const;
    /// "3 updates installed", "2 of 5 updates installed", "Installation failed" …
    RVSentence summary() const;
    /// Writes the installer's status, the summary and the items to the log.
    void log() const;
    /// What the installer of a failed run wrote.
    static void logOutput(const QString &text);
    /// The last line of every run.
    static void logEnd();
};

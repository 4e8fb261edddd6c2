// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/RVSentence.h"
#include "install/RVBatch.h"

#include <QByteArray>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QVector>

struct RVPaths;

/// Why a run of an installer failed, as far as its output, its end and the system tell. What does
/// not tell it for certain is not recognised: a wrong cause costs more than none.
///
/// The output is in English, as the installer's environment asks for it. Packages write into it
/// too, so only what the installer itself says of a package counts, and the last of it.
class RVCause
{
public:
    enum class Kind {
        NotRecognised,
        LockHeld,
        NoRights,
        DependencyMissing,
        DependencyVersion,
        DependencyNotConfigured,
        DependencyBroken, ///< it was left half installed
        Conflict,
        Breaks,
        FileConflict,
        DiskFull,
        ReadOnly,
        UnlockFailed, ///< read-only, and the system's own tool did not change that
        NotPermitted,
        Incomplete,
        Damaged,
        NotAPackage,
        UnknownFormat,
        BadPackage, ///< its publisher built it incorrectly
        WrongArchitecture,
        Downgrade,
        ScriptFailed,
        ScriptKilled,
        ScriptNotRun,
        InterpreterMissing,
        TriggerFailed,
        HalfInstalled,
        TooManyErrors,
        DatabaseDamaged,
        UnknownUser,
        ToolMissing,
        ToolBroken,
        NothingToInstall,
        InstallerKilled,
        InstallerMissing,
        InstallerNotExecutable,
        InstallerFailed,
        RestartFailed,
    };
    /// How the installer ended.
    struct Run {
        RVBatch::Kind kind = RVBatch::Kind::Packages;
        QString program;
        /// Whether the program could be started.
        bool isStarted = true;
        /// Or the number of the signal.
        int exitCode = 0;
        QProcess::ExitStatus exitStatus = QProcess::NormalExit;
        /// As it came; of two channels, standard error last. Of a long one the end is enough.
        QByteArray output;
        /// Where the installer looked for programs.
        QStringList searchPath;
    };
    struct Answer {
        Kind kind = Kind::NotRecognised;
        /// One sentence each. Without a known cause: the installer's own words, and no advice.
        RVSentence cause;
        RVSentence advice;

        bool isRecognised() const { return kind != Kind::NotRecognised; }
    };

    /// Bytes at the end of the output; what stands before is not searched.
    static constexpr int searched = 64 * 1024;

    RVCause(const Run &run, const RVPaths &paths);

    /// Why the run failed: the first cause that it names.
    Answer ofRun() const;
    /// Why this package of it failed, whose archive had that name.
    Answer ofPackage(const QString &package, const QString &fileName) const;
    /// The end of the output, a few lines that are not empty, safe for a terminal.
    QStringList lastLines() const;

private:
    struct Finding {
        /// A package, or the name of an archive; empty for the whole run.
        QString subject;
        Answer answer;
    };
    class Reader;

    QString lastLine() const;
    static Answer ofStart(const Run &run);

    QVector<Finding> m_findings;
    QStringList m_lines;
};

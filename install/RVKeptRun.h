// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/RVPaths.h"
#include "core/RVSentence.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include <optional>

/// A run of an installer as its keeper recorded it (RVKeeper): one that goes on, or one whose end
/// its program did not live to hear of. A value.
struct RVKeptRun {
    enum class State {
        Running,
        Exited, ///< `value` is the exit code
        Killed, ///< `value` is the signal
        Unknown, ///< the keeper was ended before it
    };

    State state = State::Unknown;
    int value = 0;
    QDateTime started;
    /// Empty where it could not be kept.
    QString outputFile;

    /// The newest such run of the running user's programs. Reading changes nothing.
    static std::optional<RVKeptRun> last(const RVPaths &paths);
    /// The user knows: last() gives neither this run nor earlier ones again, unless they still go
    /// on.
    void forget(const RVPaths &paths) const;

    RVSentence sentence() const;
    /// At most so many bytes from the end of what the installer wrote.
    QByteArray output(qint64 most) const;

    /// The record's file name.
    QString id;
    /// Where in the end of the output its oldest byte lies; -1 when it is one text.
    qint64 seam = -1;
};

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include <cstddef>
#include <cstdint>

/// What changes of a run's record, and how much of its output is stored. Async-signal-safe.
struct RVRunHead {
    static constexpr std::size_t size = 64;
    /// Of the output, so many bytes from its beginning and so many from its end are stored. The end
    /// goes round and round behind the beginning until the run is over.
    static constexpr std::uint64_t firstBytes = 1024 * 1024;
    static constexpr std::uint64_t lastBytes = 16 * 1024 * 1024;

    enum class State : char {
        Running = 'r',
        Exited = 'x',
        Killed = 'k',
    };

    State state = State::Running;
    /// Exit code or signal.
    int value = 0;
    /// Of the output that reached the store.
    std::uint64_t outputSize = 0;
    /// The stored output is one text from its beginning to its end.
    bool isStraight = true;

    void write(char (&text)[size]) const;
};

/// The file in which a keeper says how its run goes. What changes stands in front, in fields of
/// fixed width that are overwritten in place, which works on a full disk too. Whoever holds the
/// file's lock (flock) is the keeper.
struct RVRunRecord {
    RVRunHead head;
    QDateTime started;
    /// Empty where the output is not stored.
    QString outputFile;

    QByteArray toText() const;
    static bool fromText(const QByteArray &text, RVRunRecord *record);
};

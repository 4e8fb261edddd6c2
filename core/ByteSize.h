// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

/// A byte count as people read it: a number, rounded to one decimal or none, and its unit. The word
/// for the unit is the caller's, in the caller's language.
struct ByteSize {
    enum Unit {
        Bytes,
        KiB, ///< 1024 bytes
        MiB, ///< 1024 * 1024 bytes
        GiB, ///< 1024 * 1024 * 1024 bytes
    };

    explicit ByteSize(qint64 bytes);

    /// "1.5 KiB".
    QString toEnglish() const;

    QString number;
    Unit unit = Bytes;
};

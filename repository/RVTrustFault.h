// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

/// Why a repository, or one file of it, is not taken for what its publisher made.
struct RVTrustFault {
    enum Kind {
        None,
        /// The definition asks for something that is not understood.
        Definition,
        Keyring,
        /// The list or its signature cannot be had.
        NoList,
        BadList,
        BadSignature,
        /// gpgv is missing, or gives no answer.
        NoVerifier,
        OtherRepository,
        Expired,
        /// The signature is of tomorrow.
        FutureTime,
        /// An older list than one that was seen.
        OlderList,
        /// Another list with the same serial.
        OtherList,
        /// What is remembered cannot be read.
        State,
        /// A file is not the one that the list has.
        OtherFile,
    };

    Kind kind = None;
    /// One sentence, with the values that it is about.
    QString text;

    bool isSet() const { return kind != None; }
};

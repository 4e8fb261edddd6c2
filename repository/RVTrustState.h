// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/RVPaths.h"
#include "repository/RVTrustFault.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include <optional>

/// What a device knows of the time; seconds since 1970.
struct RVClock {
    qint64 system = 0;
    /// When this program was built.
    qint64 built = 0;

    static RVClock now();
    /// A device without a clock of its own starts somewhere in the past.
    bool isSet() const { return system >= built; }
};

/// The newest list that was seen of each repository, so that an older one is not taken for it: in
/// the state folder, a file for each repository id and keyring. Reading changes nothing.
class RVTrustState
{
public:
    /// One signed list.
    struct Seen {
        qint64 serial = 0;
        /// By the signer's clock, seconds since 1970.
        qint64 signedAt = 0;
        /// The SHA-256 of its text.
        QByteArray list;

        bool operator==(const Seen &other) const
        {
            return serial == other.serial && signedAt == other.signedAt && list == other.list;
        }
    };

    explicit RVTrustState(const RVPaths &paths, const RVClock &clock = RVClock::now());

    /// Whether a list, whose signature is good, is the newest one and still valid.
    RVTrustFault judge(const QString &repositoryId, const QString &keyring, const Seen &list,
                       const QDateTime &validUntil) const;
    /// To be called for what judge() found no fault with. False, and why, where nothing can be
    /// stored.
    bool remember(const QString &repositoryId, const QString &keyring, const Seen &list,
                  QString *reason);
    /// True also when nothing was remembered.
    bool forget(const QString &repositoryId, const QString &keyring, QString *reason);
    /// Nothing when no list was seen. False when what is there cannot be read.
    bool read(const QString &repositoryId, const QString &keyring, std::optional<Seen> *seen) const;

private:
    qint64 newestSignature() const;

    const QString m_folder;
    const RVClock m_clock;
};

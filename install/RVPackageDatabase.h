// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/RVPaths.h"
#include "core/RVSentence.h"
#include "install/RVLockHolder.h"

#include <QString>
#include <QVector>

/// The package database as the next dpkg will find it. Looks only: nothing is locked, made or
/// changed.
class RVPackageDatabase
{
public:
    struct Package {
        QString name;
        /// dpkg's word: "unpacked", "half-configured" and the like.
        QString state;
    };

    explicit RVPackageDatabase(const RVPaths &paths);

    /// Who holds a lock that dpkg takes; not set when nobody does, or when the locks may not be
    /// looked at.
    RVLockHolder lockHolder() const;
    static RVSentence lockedBy(const RVLockHolder &holder);
    /// Whether the journal of an interrupted run is left.
    bool hasJournal() const;
    /// The packages whose installation, removal or triggers did not come to their end: those that
    /// the next `dpkg --configure -a` would work on, or that have to be installed again.
    QVector<Package> unfinished() const;

private:
    QString m_adminDir;
};

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/RVPaths.h"
#include "core/RVSentence.h"
#include "install/RVLockHolder.h"

#include <QString>
#include <QStringList>

/// The package database as the next dpkg will find it. Looks only: nothing is locked, made or
/// changed.
class RVPackageDatabase
{
public:
    explicit RVPackageDatabase(const RVPaths &paths);

    /// Who holds a lock that dpkg takes; not set when nobody does, or when the locks may not be
    /// looked at.
    RVLockHolder lockHolder() const;
    static RVSentence lockedBy(const RVLockHolder &holder);
    /// Whether the journal of an interrupted run is left.
    bool hasJournal() const;
    /// The packages that are neither installed nor gone, "NAME is half-installed"; those named in
    /// `repaired` are left out: to install them again is what repairs them.
    QStringList brokenPackages(const QStringList &repaired) const;
    /// What an administrator runs to repair it.
    QString repairCommand() const;

private:
    QString m_adminDir;
    QString m_root;
};

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/RVPaths.h"
#include "core/RVSentence.h"
#include "install/RVBatch.h"
#include "install/RVRunLock.h"

#include <QStringList>
#include <QVector>

#include <optional>

/// What stands in the way of an installation. A value.
struct RVObstacle {
    enum class Kind {
        OtherRun, ///< another installation of ours is under way
        DatabaseLocked, ///< another program holds a lock of the package database
        Rights, ///< the running user may not change what has to be changed
        MissingProgram, ///< there is no installer, or not what it needs
        ReadOnly, ///< the system cannot be written to, and nothing unlocks it
        Interrupted, ///< the package database has to be repaired first
        NoSpace,
    };

    Kind kind = Kind::OtherRun;
    RVSentence sentence;
    /// Of Interrupted: the packages that are left half-way; none for a mere journal.
    QStringList packages = {};

    /// Goes away by itself, sooner or later.
    bool isPassing() const { return kind == Kind::OtherRun || kind == Kind::DatabaseLocked; }
};

/// The questions before an installation, before its first byte, for both faces. Changes nothing but
/// the lock of the run.
class RVPreflight
{
public:
    explicit RVPreflight(const RVPaths &paths);

    /// Takes the lock of the run, unless it is held already, and looks at the package database's
    /// where packages are installed: who is first, or nothing. The lock goes with this object.
    std::optional<RVObstacle> takeLocks(RVBatch::Kind kind);
    /// All obstacles, in the order in which they matter. Takes and makes nothing.
    QVector<RVObstacle> obstacles(const RVBatch &batch);
    /// Those of a repair, or of packages that are not known yet, which are all but what concerns
    /// the single update.
    QVector<RVObstacle> obstacles(RVBatch::Kind kind, const QString &installer);
    /// That the package database has to be repaired before anything but `repaired` is installed: to
    /// install those again is what repairs them.
    std::optional<RVObstacle> interruption(const QStringList &repaired) const;

    /// Held by this object, or why it is not.
    const RVRunLock &runLock() const { return m_runLock; }

private:
    Q_DISABLE_COPY_MOVE(RVPreflight)

    std::optional<RVObstacle> otherRun(RVRunLock::State state) const;
    std::optional<RVObstacle> lockedDatabase(RVBatch::Kind kind) const;

    const RVPaths m_paths;
    RVRunLock m_runLock;
};

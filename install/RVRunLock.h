// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/RVPaths.h"
#include "install/RVLockHolder.h"

#include <QString>

/// The lock of a whole installation, from its first question to the end of its installer, so that
/// no two of ours overlap on one system. It goes with the last process that holds handle(): who
/// starts the installer may leave it to a child and end before it.
class RVRunLock
{
public:
    enum class State {
        Free, ///< not held here
        Held,
        Busy, ///< held by another run, of holder()
        /// There is no place for it that others cannot write to: nothing is guarded.
        Unavailable,
    };

    explicit RVRunLock(const RVPaths &paths);
    /// Closes this process's handle.
    ~RVRunLock();

    /// Tries once, and never waits. Nothing while it is held.
    State take();
    /// Whether it could be taken now; takes and makes nothing.
    State look();
    void release();

    State state() const { return m_state; }
    /// Who is first. Not set where that cannot be told, as for a run whose program is gone already.
    const RVLockHolder &holder() const { return m_holder; }
    /// Why it is Unavailable, in the system's words.
    const QString &reason() const { return m_reason; }
    /// Open while it is held, else -1. Closes itself in a program that is started.
    int handle() const { return m_handle; }

private:
    Q_DISABLE_COPY_MOVE(RVRunLock)

    const QString m_folder;
    State m_state = State::Free;
    RVLockHolder m_holder;
    QString m_reason;
    int m_handle = -1;
};

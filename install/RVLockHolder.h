// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

/// The process that holds a lock. A value.
struct RVLockHolder {
    /// Whether somebody holds it.
    bool isSet = false;
    /// 0 where it cannot be told: it belongs to another container, or several share the lock.
    qint64 process = 0;
    /// Of its program; empty where it is gone or may not be looked at.
    QString program;

    static RVLockHolder ofProcess(qint64 process);
    /// When a process began: its number may be another's later. Empty when it is gone.
    static QByteArray beginOf(qint64 process);
    bool operator==(const RVLockHolder &other) const
    {
        return isSet == other.isSet && process == other.process && program == other.program;
    }
};

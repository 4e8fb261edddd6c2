// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

/// Says of a temporary folder that it is ours and in use, for as long as this object or a process
/// that inherits lock() lives. A marked folder that is no longer in use was left by a program that
/// was killed, and can be removed.
class RVFolderMark
{
public:
    /// Marks an existing folder. Without a place for the mark, the folder is never removed by
    /// removeLeft().
    explicit RVFolderMark(const QString &folder);
    ~RVFolderMark();

    /// Of the folder; -1 without one. Closes itself in a program that is started.
    int lock() const { return m_lock; }

    /// Removes what programs of the running user have left in `parent`: folders with a mark whose
    /// lock is free. No link is followed, and nothing on another file system is touched. Returns
    /// how many were removed.
    static int removeLeft(const QString &parent);

private:
    Q_DISABLE_COPY_MOVE(RVFolderMark)

    int m_lock = -1;
};

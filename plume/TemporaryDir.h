// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <plume/PlumeExport.h>

#include <QString>

/// A directory of its own under the system's temporary one, mode 0700, removed with its contents on
/// destruction. The removal never leaves the directory: symbolic links are removed and not
/// followed, and what is mounted inside stays as it is.
class PLUME_EXPORT TemporaryDir
{
public:
    TemporaryDir();
    /// A process whose current directory goes with it continues in "/".
    ~TemporaryDir();

    /// False when the directory could not be made.
    bool isValid() const { return !m_path.isEmpty(); }
    /// Absolute; empty when not valid.
    const QString &path() const { return m_path; }
    /// Makes it the process's current directory.
    bool cdTo() const;

private:
    Q_DISABLE_COPY_MOVE(TemporaryDir)

    QString m_path;
    /// Open on the directory for as long as it lives, so that no other can take its place by its
    /// name.
    int m_fd = -1;
};

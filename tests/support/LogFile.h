// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/RVPaths.h"

#include <QStringList>
#include <QTemporaryDir>

#include <functional>

/// Sends the process's log to a private place for as long as it lives, and reads it back. Without
/// one, a test program logs into its own folder.
class LogFile
{
public:
    LogFile();
    ~LogFile();

    static void sendToTestFolder();

    QString path() const;
    /// The file as it stands, header and time stamps included.
    QByteArray raw() const;
    /// The entries' texts without header and time stamps; a continuation line is an element of its
    /// own.
    QStringList lines() const;
    bool contains(const QString &line) const { return lines().contains(line); }
    int count(const QString &line) const { return static_cast<int>(lines().count(line)); }
    void clear();
    /// The level of the entry that `action` writes `line` with, or -1. Runs `action` for each level
    /// up to that one, on an empty log.
    int levelOf(const QString &line, const std::function<void()> &action);

private:
    Q_DISABLE_COPY_MOVE(LogFile)

    QTemporaryDir m_dir;
};

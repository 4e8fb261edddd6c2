// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/RVPaths.h"

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QUrl>

#include <cstdio>

/// Handle onto the process's one log file; made on the stack wherever something is to be logged.
/// Levels: 0 fatal, 2 severe configuration problem, 3 error, 4 warning, 5 progress; a lower number
/// is more serious. A log that cannot be written is silently off: no caller ever sees an error. GUI
/// thread only.
class RVLogger : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(RVLogger)

public:
    /// Opens the log if it is not open yet.
    explicit RVLogger(QObject *parent = nullptr);

    /// Writes one entry if `level` is at most m_level. `format` and arguments are printf's.
    void log(int level, const char *format, ...) Q_ATTRIBUTE_FORMAT_PRINTF(3, 4);
    /// An entry without a level: written while m_level is above 5.
    void log(const char *format, ...) Q_ATTRIBUTE_FORMAT_PRINTF(2, 3);

    /// Opens the log for appending and writes its header. Returns null when the place is not
    /// writable or holds anything but a regular file of our own with one link, or a symbolic link
    /// of root's into a folder that only root may write; of any other link standard error is told,
    /// once. The caller keeps the stream.
    static std::FILE *open();
    /// Closes the log; the next entry opens it again, with a new header.
    static void close();
    /// Moves the log to where `paths` says, closing one that is open elsewhere.
    static void setPaths(const RVPaths &paths);

    /// The characters that oneLine() keeps of a text.
    static constexpr int longestText = 500;
    /// A text that came from outside, in UTF-8 and on one line: what is not visible becomes '?', so
    /// that it cannot write entries of its own, and a long one is cut.
    static QByteArray oneLine(const QString &text);
    /// A whole URL, without its password.
    static QByteArray oneLine(const QUrl &url);

    /// The open log, or null.
    static std::FILE *m_stream;
    /// The highest level that is written.
    static int m_level;
};

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QSet>
#include <QString>

/// What the program says beside its result, on standard error: one line a message, safe for a
/// terminal. While one lives, Qt's own messages go the same way. One at a time.
class RVCtlMessages
{
public:
    RVCtlMessages();
    ~RVCtlMessages();

    /// Quiet: only errors.
    void setQuiet(bool quiet) { m_quiet = quiet; }
    bool isQuiet() const { return m_quiet; }

    void error(const QString &text) const;
    void warning(const QString &text) const;
    void note(const QString &text) const;

    /// A line at the foot of a terminal, until the next one or an empty text takes its place. Other
    /// messages go above it. `line` is safe and fits.
    void setStatus(const QString &line);

private:
    Q_DISABLE_COPY_MOVE(RVCtlMessages)

    static void handleQtMessage(QtMsgType type, const QMessageLogContext &context,
                                const QString &text);

    bool m_quiet = false;
    QString m_status;
    QtMessageHandler m_previous;
};

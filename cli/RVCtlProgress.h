// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QElapsedTimer>
#include <QString>

class RVCtlMessages;

/// How far downloads are, on standard error: a bar on a terminal, a line now and then elsewhere,
/// nothing when the caller wants to hear of errors only.
class RVCtlProgress
{
public:
    /// `what` is what happens, "Retrieving updates".
    RVCtlProgress(RVCtlMessages *messages, const QString &what);
    /// Leaves the terminal without the bar.
    ~RVCtlProgress();

    /// Bytes, of a total that is above 0.
    void show(qint64 received, qint64 total);
    void end();

    /// The bar for a terminal of so many columns, which it never fills to the last.
    static QString bar(const QString &what, qint64 received, qint64 total, int columns);

private:
    Q_DISABLE_COPY_MOVE(RVCtlProgress)

    RVCtlMessages *m_messages;
    const QString m_what;
    const bool m_isTerminal;
    QElapsedTimer m_last;
    bool m_isComplete = false;
};

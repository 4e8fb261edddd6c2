// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QObject>
#include <QTimer>

/// What ends a run before it is done: `--timeout`, SIGINT or SIGTERM. One for the process.
class RVCtlDeadline : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(RVCtlDeadline)

public:
    explicit RVCtlDeadline(QObject *parent = nullptr);
    ~RVCtlDeadline() override;

    /// Starts the clock.
    void setSeconds(int seconds);
    /// From here on SIGINT and SIGTERM stop the run instead of ending the process.
    void catchSignals();

    bool isOver() const { return timedOut() || m_signal != 0; }
    /// Also when no event loop has run since.
    bool timedOut() const { return m_timedOut || m_timer.remainingTime() == 0; }
    /// The signal that came, or 0.
    int signal() const { return m_signal; }
    /// Milliseconds that are left, or -1 when there is no limit.
    int remaining() const;

Q_SIGNALS:
    /// Once.
    void over();

private:
    void readSignal();

    QTimer m_timer;
    bool m_timedOut = false;
    int m_signal = 0;
};

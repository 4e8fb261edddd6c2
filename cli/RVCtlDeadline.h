// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QObject>
#include <QTimer>

/// What ends a run before it is done: `--timeout`, or a signal that asks the process to end. One
/// for the process.
class RVCtlDeadline : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(RVCtlDeadline)

public:
    explicit RVCtlDeadline(QObject *parent = nullptr);
    ~RVCtlDeadline() override;

    /// Starts the clock.
    void setSeconds(int seconds);
    /// From here on SIGINT, SIGTERM, SIGHUP and SIGQUIT stop the run instead of ending the process.
    /// One that is ignored, as nohup leaves SIGHUP, stays so.
    void catchSignals();

    /// From here on nothing ends the run: it is in the middle of what must not be left half done.
    /// False when it is over already.
    bool hold();

    bool isOver() const { return timedOut() || m_signal != 0; }
    /// Also when no event loop has run since.
    bool timedOut() const { return m_timedOut || (!m_isHeld && m_timer.remainingTime() == 0); }
    /// The signal that came, or 0.
    int signal() const { return m_signal; }
    /// Milliseconds that are left, or -1 when there is no limit.
    int remaining() const;

Q_SIGNALS:
    /// Once.
    void over();
    /// Something would have ended the run, had hold() not been called.
    void heldBack();

private:
    void readSignal();

    QTimer m_timer;
    bool m_isHeld = false;
    bool m_timedOut = false;
    int m_signal = 0;
};

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "install/RVPreflight.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

/// Waits until the locks that an installation takes are free. Its final signal, once after each
/// start() and never inside it, is ended().
class RVLockWait : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(RVLockWait)

public:
    /// `preflight` is not owned, and then has the lock of the run.
    RVLockWait(RVPreflight *preflight, RVBatch::Kind kind, QObject *parent = nullptr);
    ~RVLockWait() override;

    /// Who was first when it was last looked; without a sentence when nobody is.
    const RVObstacle &obstacle() const { return m_obstacle; }

public Q_SLOTS:
    /// At most so long.
    void start(int seconds);
    /// No signal comes any more.
    void stop();

Q_SIGNALS:
    /// Once a second, and when another is first.
    void waiting(const RVSentence &holder, int secondsLeft);
    /// Whether the locks are free.
    void ended(bool isFree);

private:
    void look();

    RVPreflight *m_preflight;
    const RVBatch::Kind m_kind;
    RVObstacle m_obstacle;
    QTimer m_timer;
    QElapsedTimer m_waited;
    qint64 m_limitMs = 0;
    int m_secondsLeft = -1;
};

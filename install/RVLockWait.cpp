// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "install/RVLockWait.h"

namespace
{

constexpr int lookMs = 250;
constexpr int second = 1000;

} // namespace

RVLockWait::RVLockWait(RVPreflight *preflight, RVBatch::Kind kind, QObject *parent)
    : QObject(parent)
    , m_preflight(preflight)
    , m_kind(kind)
{
    connect(&m_timer, &QTimer::timeout, this, &RVLockWait::look);
}

RVLockWait::~RVLockWait() = default;

void RVLockWait::start(int seconds)
{
    m_limitMs = qint64(seconds) * second;
    m_secondsLeft = -1;
    m_obstacle = {};
    m_waited.start();
    // The first look comes at once.
    m_timer.start(0);
}

void RVLockWait::stop()
{
    m_timer.stop();
}

void RVLockWait::look()
{
    m_timer.setInterval(lookMs);
    const RVSentence last = m_obstacle.sentence;
    const std::optional<RVObstacle> obstacle = m_preflight->takeLocks(m_kind);
    m_obstacle = obstacle.value_or(RVObstacle());
    const qint64 left = m_limitMs - m_waited.elapsed();
    if (!obstacle || left <= 0) {
        m_timer.stop();
        Q_EMIT ended(!obstacle);
        return;
    }
    const int seconds = static_cast<int>((left + second - 1) / second);
    if (seconds != m_secondsLeft || last != m_obstacle.sentence) {
        m_secondsLeft = seconds;
        Q_EMIT waiting(m_obstacle.sentence, seconds);
    }
}

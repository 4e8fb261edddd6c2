// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/RVCtlDeadline.h"

#include <QSocketNotifier>

#include <csignal>
#include <sys/socket.h>
#include <unistd.h>

namespace
{

int s_signalPipe[2] = {-1, -1};

void onSignal(int number)
{
    const char byte = static_cast<char>(number);
    [[maybe_unused]] const ssize_t written = ::write(s_signalPipe[1], &byte, 1);
}

} // namespace

RVCtlDeadline::RVCtlDeadline(QObject *parent)
    : QObject(parent)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, [this] {
        if (m_isHeld) {
            Q_EMIT heldBack();
            return;
        }
        m_timedOut = true;
        if (m_signal == 0) {
            Q_EMIT over();
        }
    });
}

RVCtlDeadline::~RVCtlDeadline() = default;

void RVCtlDeadline::setSeconds(int seconds)
{
    m_timer.start(seconds * 1000);
}

void RVCtlDeadline::catchSignals()
{
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0, s_signalPipe) != 0) {
        return;
    }
    auto *notifier = new QSocketNotifier(s_signalPipe[0], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, &RVCtlDeadline::readSignal);
    struct sigaction action = {};
    action.sa_handler = onSignal;
    action.sa_flags = SA_RESTART;
    for (const int number : {SIGINT, SIGTERM, SIGHUP, SIGQUIT}) {
        struct sigaction before = {};
        ::sigaction(number, nullptr, &before);
        if (before.sa_handler != SIG_IGN) {
            ::sigaction(number, &action, nullptr);
        }
    }
}

bool RVCtlDeadline::hold()
{
    m_isHeld = !isOver();
    return m_isHeld;
}

int RVCtlDeadline::remaining() const
{
    if (m_timedOut) {
        return 0;
    }
    return m_timer.isActive() ? m_timer.remainingTime() : -1;
}

void RVCtlDeadline::readSignal()
{
    unsigned char byte = 0;
    while (::read(s_signalPipe[0], &byte, 1) == 1) {
        if (m_isHeld) {
            Q_EMIT heldBack();
        } else if (!isOver()) {
            m_signal = byte;
            Q_EMIT over();
        }
    }
}

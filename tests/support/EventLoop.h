// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QAbstractEventDispatcher>
#include <QCoreApplication>

/// Serves all that is pending now, what follows from it included. Once a server is stopped, or
/// everything that could speak is gone, nothing comes after this.
inline void runUntilIdle()
{
    QAbstractEventDispatcher *dispatcher = QAbstractEventDispatcher::instance();
    while (dispatcher->processEvents(QEventLoop::AllEvents)) { }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

/// Whether these name a proxy. An empty host or any port of 0 or less means none: settings, options
/// and repositories each begin with a value of their own.
inline bool isProxy(const QString &host, int port)
{
    return !host.isEmpty() && port > 0;
}

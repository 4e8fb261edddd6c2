// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>
#include <QUrl>

/// The server that a URL leads to, as text: scheme, host and port, the port that the scheme implies
/// included. No user name, no password; empty for a URL without a host.
QString originOf(const QUrl &url);

/// Whether a listing of `location` may lead to `link`: nothing on the network may name a file of
/// this system, and what came encrypted leads to nothing that travels in clear.
bool mayLeadTo(const QUrl &location, const QUrl &link);

/// Whether what is meant for one server may be given to the other. Never for URLs without a host.
bool isSameOrigin(const QUrl &a, const QUrl &b);

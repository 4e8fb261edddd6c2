// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "network/RVLogin.h"

#include <QHash>
#include <QString>

class QAuthenticator;
class QNetworkProxy;

/// What the user typed in this run for places that are no repository of ours: the servers that a
/// listing leads to, and the proxies. The sections of a page share one; nothing of it is stored.
/// A place is originOf() a server's URL, or placeOf() a proxy.
class RVKeyring
{
public:
    /// "host:port".
    static QString placeOf(const QNetworkProxy &proxy);

    RVLogin login(const QString &place) const { return m_logins.value(place); }
    void keep(const QString &place, const RVLogin &login) { m_logins.insert(place, login); }
    /// Unless another one is kept for the place by now.
    void forget(const QString &place, const RVLogin &refused);

    /// Fills in the login for the proxy; false when none is kept, and the user has to be asked.
    /// What the authenticator shows has been refused and is forgotten; where it shows nothing,
    /// XNetworkAccessManager tells.
    bool answer(const QNetworkProxy &proxy, QAuthenticator *auth);

private:
    QHash<QString, RVLogin> m_logins;
};

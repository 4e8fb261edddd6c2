// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "network/RVKeyring.h"

#include <QAuthenticator>
#include <QNetworkProxy>

QString RVKeyring::placeOf(const QNetworkProxy &proxy)
{
    return QStringLiteral("%1:%2").arg(proxy.hostName().toLower(), QString::number(proxy.port()));
}

void RVKeyring::forget(const QString &place, const RVLogin &refused)
{
    if (login(place) == refused) {
        m_logins.remove(place);
    }
}

bool RVKeyring::answer(const QNetworkProxy &proxy, QAuthenticator *auth)
{
    const QString place = placeOf(proxy);
    forget(place, {auth->user(), auth->password()});
    const RVLogin kept = login(place);
    if (kept.isEmpty()) {
        return false;
    }
    auth->setUser(kept.user);
    auth->setPassword(kept.password);
    return true;
}

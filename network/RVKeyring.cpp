// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "network/RVKeyring.h"

#include <QAuthenticator>
#include <QNetworkProxy>
#include <QNetworkReply>
#include <QVariant>

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

bool answerChallenge(const RVLogin &login, QNetworkReply *reply, QAuthenticator *auth)
{
    // Also when the authenticator shows another one by now: an empty answer of the user is
    // challenged as well, and to offer the refused login after it would go on for ever.
    constexpr char refused[] = "_ravel_login_refused";
    if (login.isEmpty() || (reply && reply->property(refused).toBool())) {
        return false;
    }
    if (auth->user() == login.user && auth->password() == login.password) {
        if (reply) {
            reply->setProperty(refused, true);
        }
        return false;
    }
    auth->setUser(login.user);
    auth->setPassword(login.password);
    return true;
}

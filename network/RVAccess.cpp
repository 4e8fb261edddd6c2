// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "network/RVAccess.h"

#include "core/RVOrigin.h"
#include "network/XNetworkAccessManager.h"

#include <QAuthenticator>

namespace
{

bool isFtp(const QUrl &url)
{
    // The scheme of a QUrl is lower case.
    return url.scheme() == QLatin1String("ftp");
}

} // namespace

RVAccess::RVAccess()
    : keyring(QSharedPointer<RVKeyring>::create())
{
}

QNetworkProxy RVAccess::proxyFor(const QUrl &url) const
{
    if (!hasProxy()) {
        return {QNetworkProxy::DefaultProxy};
    }
    return {isFtp(url) ? QNetworkProxy::FtpCachingProxy : QNetworkProxy::HttpProxy, proxyHost,
            static_cast<quint16>(proxyPort)};
}

void RVAccess::configure(XNetworkAccessManager *manager, const QUrl &url) const
{
    manager->setKeyring(keyring);
    manager->inactivityLimit = inactivityLimit;
    manager->bodyLimit = bodyLimit;
    manager->stored = stored;
    if (hasProxy()) {
        manager->setProxy(proxyFor(url));
    }
}

QUrl RVAccess::withLogin(const QUrl &url) const
{
    QUrl result = url;
    if (isFtp(url) && isOwn(url) && !login.user.isEmpty() && !login.password.isEmpty()) {
        result.setUserName(login.user, QUrl::DecodedMode);
        result.setPassword(login.password, QUrl::DecodedMode);
    }
    return result;
}

bool RVAccess::answer(QNetworkReply *reply, QAuthenticator *auth) const
{
    // A listing may lead to any other server.
    const RVLogin offer =
        !reply || isOwn(reply->url()) ? login : keyring->login(originOf(reply->url()));
    // Also when the authenticator shows another one by now: an empty answer of the user is
    // challenged as well, and to offer the refused login after it would go on for ever.
    constexpr char refused[] = "_ravel_login_refused";
    if (offer.isEmpty() || (reply && reply->property(refused).toBool())) {
        return false;
    }
    if (auth->user() == offer.user && auth->password() == offer.password) {
        if (reply) {
            reply->setProperty(refused, true);
        }
        return false;
    }
    auth->setUser(offer.user);
    auth->setPassword(offer.password);
    return true;
}

bool RVAccess::answer(const QNetworkProxy &proxy, QAuthenticator *auth) const
{
    return keyring->answer(proxy, auth);
}

bool RVAccess::isOwn(const QUrl &url) const
{
    return server.isEmpty() || isSameOrigin(url, server);
}

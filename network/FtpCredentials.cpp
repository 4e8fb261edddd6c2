// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "network/FtpCredentials.h"

#include "core/RVOrigin.h"
#include "network/XNetworkAccessManager.h"

#include <QAuthenticator>
#include <QMap>
#include <QUrl>

#include <algorithm>

namespace FtpCredentials
{

namespace
{

using Texts = QMap<QString, QString>;

struct Remembered {
    Texts userByUrl;
    Texts passwordByUrl;
    // A host with its port: another port of the same machine may be somebody else's server.
    Texts userByHost;
    Texts passwordByHost;
};

Remembered &remembered()
{
    static Remembered all;
    return all;
}

RVLogin anonymous()
{
    return {QStringLiteral("anonymous"), QStringLiteral("anonymous@example.org")};
}

QString firstOf(const QString &own, const Texts &byUrl, const Texts &byHost, const QUrl &url,
                const QString &anonymous)
{
    if (!own.isEmpty()) {
        return own;
    }
    const auto forUrl = byUrl.constFind(url.toString());
    if (forUrl != byUrl.constEnd()) {
        return *forUrl;
    }
    return byHost.value(originOf(url), anonymous);
}

void remember(const QUrl &url, const RVLogin &login)
{
    Remembered &all = remembered();
    all.userByUrl.insert(url.toString(), login.user);
    all.passwordByUrl.insert(url.toString(), login.password);
    const QString host = originOf(url);
    if (!all.userByHost.contains(host)) {
        all.userByHost.insert(host, login.user);
        all.passwordByHost.insert(host, login.password);
    }
}

} // namespace

RVLogin forUrl(const QUrl &url)
{
    const Remembered &all = remembered();
    return {firstOf(url.userName(QUrl::FullyDecoded), all.userByUrl, all.userByHost, url,
                    anonymous().user),
            firstOf(url.password(QUrl::FullyDecoded), all.passwordByUrl, all.passwordByHost, url,
                    anonymous().password)};
}

RVLogin ofUrl(const QUrl &url)
{
    return url.userName().isEmpty()
        ? anonymous()
        : RVLogin{url.userName(QUrl::FullyDecoded), url.password(QUrl::FullyDecoded)};
}

Answer ask(XNetworkAccessManager *manager, QNetworkReply *reply, const QUrl &url,
           const RVLogin &refused)
{
    if (!manager || (!url.userName().isEmpty() && !url.password().isEmpty())) {
        return Refused;
    }
    QAuthenticator authenticator;
    authenticator.setUser(refused.user);
    authenticator.setPassword(refused.password);
    manager->relayAuthenticationRequired(reply, &authenticator);
    if (authenticator.isNull() || authenticator.user().isEmpty()) {
        return Canceled;
    }
    const RVLogin given{authenticator.user(), authenticator.password()};
    if (given == refused) {
        return Refused;
    }
    remember(url, given);
    // The URL's own user comes before the answer's. Sent again and again, the same login would
    // only lock the account.
    return forUrl(url) == refused ? Refused : Given;
}

QNetworkProxy proxyFor(const QNetworkAccessManager *manager, const QUrl &url)
{
    QList<QNetworkProxy> candidates;
    const QNetworkProxyQuery query(url, QNetworkProxyQuery::UrlRequest);
    if (!manager) {
        return QNetworkProxy(QNetworkProxy::NoProxy);
    }
    if (QNetworkProxyFactory *factory = manager->proxyFactory()) {
        candidates = factory->queryProxy(query);
    } else if (manager->proxy().type() == QNetworkProxy::DefaultProxy) {
        candidates = QNetworkProxyFactory::proxyForQuery(query);
    } else {
        candidates = {manager->proxy()};
    }
    const auto usable =
        std::find_if(candidates.cbegin(), candidates.cend(), [](const QNetworkProxy &proxy) {
            return proxy.type() == QNetworkProxy::FtpCachingProxy
                || proxy.type() == QNetworkProxy::NoProxy;
        });
    return usable != candidates.cend() ? *usable : QNetworkProxy(QNetworkProxy::NoProxy);
}

QByteArray rawPath(const QUrl &url)
{
    const QByteArray path =
        QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1());
    return path.isEmpty() ? QByteArray("/") : path;
}

} // namespace FtpCredentials

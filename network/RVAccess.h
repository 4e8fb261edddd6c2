// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/RVProxy.h"
#include "network/RVKeyring.h"
#include "network/XSpooledReply.h"

#include <QNetworkProxy>
#include <QSharedPointer>
#include <QUrl>

#include <memory>

class XNetworkAccessManager;

/// Who may be given what: all that the transfers of one repository need beside their URLs, and the
/// one answer to which proxy they take, whose login a server is offered, and what goes into a URL.
///
/// A value. A repository owns one and hands it to the descriptor fetch, the install procedure, the
/// table and the command line; the copies share the keyring.
class RVAccess
{
public:
    RVAccess();

    /// The repository's location. The login is for its scheme, host and port and for nobody else;
    /// for any server while it is empty.
    QUrl server;
    RVLogin login;
    /// See isProxy().
    QString proxyHost;
    int proxyPort = -2;
    /// Logins for other servers and for proxies; never null.
    QSharedPointer<RVKeyring> keyring;
    /// See XSpooledReply::setInactivityLimit() and setBodyLimit().
    int inactivityLimit = XSpooledReply::defaultInactivityMs;
    qint64 bodyLimit = XSpooledReply::defaultBodyLimit;
    /// See XSpooledReply::setStored(); never null. The copies share it.
    std::shared_ptr<qint64> stored = std::make_shared<qint64>(0);

    bool hasProxy() const { return isProxy(proxyHost, proxyPort); }
    /// An FTP proxy for ftp, an HTTP proxy for everything else; DefaultProxy where none is set.
    QNetworkProxy proxyFor(const QUrl &url) const;
    /// Proxy, keyring and limits for a transfer from `url`.
    void configure(XNetworkAccessManager *manager, const QUrl &url) const;
    /// For ftp, where no server asks first: the URL with the login in it, if there is a whole one
    /// and it is for this server. Any other URL as it stands.
    QUrl withLogin(const QUrl &url) const;

    /// Answers a server's challenge: the repository's own server with the login, any other one
    /// with what the keyring has for it. False when there is nothing to offer, or when the server
    /// refused it for this reply: the user has to be asked. Without a reply the challenge is the
    /// repository's.
    bool answer(QNetworkReply *reply, QAuthenticator *auth) const;
    /// Answers a proxy's challenge from the keyring; false when the user has to be asked.
    bool answer(const QNetworkProxy &proxy, QAuthenticator *auth) const;

private:
    bool isOwn(const QUrl &url) const;
};

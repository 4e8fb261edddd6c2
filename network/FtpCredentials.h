// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "network/RVLogin.h"

#include <QNetworkProxy>
#include <QString>

class QNetworkAccessManager;
class QNetworkReply;
class QUrl;
class XNetworkAccessManager;

/// What the directory backend and the reply for files share before an FTP connection starts: the
/// logins that users gave, remembered until the process ends, and the choice of the proxy. All
/// calls come from the thread of the network's event loop.
namespace FtpCredentials
{

/// User and password are looked for apart, each in the URL itself, then among what was given for
/// this URL, then for its host and port; else they are those of an anonymous login.
RVLogin forUrl(const QUrl &url);
/// What stands in the URL, and that of an anonymous login where no user does.
RVLogin ofUrl(const QUrl &url);

enum Answer {
    /// Nobody was asked, nobody answered, or the answer was the refused login again.
    Refused,
    /// The user gave none.
    Canceled,
    /// forUrl() knows it now.
    Given,
};
/// Asks for another login than the refused one, by the manager's authenticationRequired(), and
/// remembers it: for exactly this URL in any case, for its host and port unless one is known for
/// those.
/// Nobody is asked about a URL that brings user and password itself. The receivers of the signal
/// may delete the reply, the manager and whoever called this.
Answer ask(XNetworkAccessManager *manager, QNetworkReply *reply, const QUrl &url,
           const RVLogin &refused);

/// The proxy that the manager uses for this URL, as far as FTP can use one: an FTP caching proxy,
/// or NoProxy.
QNetworkProxy proxyFor(const QNetworkAccessManager *manager, const QUrl &url);

/// The path of the URL, as the very bytes that go to the server; "/" for an empty one.
QByteArray rawPath(const QUrl &url);

} // namespace FtpCredentials

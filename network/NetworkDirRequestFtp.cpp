// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "network/NetworkDirRequestFtp.h"

#include "core/RVLogger.h"
#include "network/FtpCredentials.h"
#include "network/XNetworkAccessManager.h"
#include "network/XNetworkReply.h"

#include <QHostInfo>
#include <QTimer>

namespace
{

/// A query or a fragment is no part of a directory, and nothing can be appended to it.
QString directoryText(const QUrl &url)
{
    return url.toString(QUrl::RemoveQuery | QUrl::RemoveFragment);
}

/// The name is what the file is called, not part of a URL: whatever it holds, it is one segment of
/// a path. The URL's other parts are not encoded anew.
QString entryName(const QUrl &directory, const QByteArray &rawName)
{
    const QByteArray encoded = rawName.toPercentEncoding("!$&'()*+,;=:@[]");
    const QUrl url(directoryText(directory) + QLatin1Char('/') + QLatin1String(encoded));
    return url.toString();
}

} // namespace

NetworkDirRequestFtp::NetworkDirRequestFtp(const QUrl &url, int commandLimitMs)
    : NetworkDirRequestBase(url)
    , m_url(url)
    , m_ftp(newFtp())
    , m_timer(new QTimer(this))
    , m_commandLimitMs(commandLimitMs)
{
    m_timer->setSingleShot(true);
    connect(m_timer, &QTimer::timeout, this, &NetworkDirRequestFtp::timeout);
}

NetworkDirRequestFtp::~NetworkDirRequestFtp()
{
    m_timer->stop();
    if (m_isLookingUpHost) {
        QHostInfo::abortHostLookup(m_hostLookup);
    }
    dropFtp();
}

bool NetworkDirRequestFtp::directoryCapable() const
{
    return true;
}

void NetworkDirRequestFtp::setManager(XNetworkAccessManager *manager)
{
    m_manager = manager;
    m_proxy = FtpCredentials::proxyFor(manager, m_url);
}

XNetworkReply *NetworkDirRequestFtp::getDirectory()
{
    m_reply = new XNetworkReply;
    m_reply->manager = m_manager;
    m_reply->setDirectoryRequest(m_request);
    connect(m_reply, &XNetworkReply::abortOut, this, &NetworkDirRequestFtp::cancel);
    connect(m_reply, &QObject::destroyed, this, &NetworkDirRequestFtp::cancel);
    requestFtpListing();
    return m_reply;
}

XFtp *NetworkDirRequestFtp::newFtp() const
{
    auto *ftp = new XFtp;
    connect(ftp, &XFtp::commandStarted, this, &NetworkDirRequestFtp::commandStarted);
    connect(ftp, &XFtp::commandFinished, this, &NetworkDirRequestFtp::commandFinished);
    connect(ftp, &XFtp::listInfo, this, &NetworkDirRequestFtp::listInfo);
    connect(ftp, &XFtp::stateChanged, this, &NetworkDirRequestFtp::stateChanged);
    connect(ftp, &XFtp::done, this, &NetworkDirRequestFtp::done);
    return ftp;
}

void NetworkDirRequestFtp::dropFtp()
{
    m_ftp->disconnect(this);
    m_ftp->clearPendingCommands();
    m_ftp->close();
    m_ftp->deleteLater();
}

void NetworkDirRequestFtp::requestFtpListing()
{
    if (m_proxy.type() == QNetworkProxy::FtpCachingProxy) {
        m_ftp->setProxy(m_proxy.hostName(), m_proxy.port());
    }
    m_host = m_url.host().isEmpty() ? QStringLiteral("127.0.0.1") : m_url.host();
    m_port = m_url.port(XFtp::defaultPort);
    const RVLogin login = FtpCredentials::forUrl(m_url);
    m_user = login.user;
    m_password = login.password;
    m_path = FtpCredentials::rawPath(m_url);

    m_connectId = m_ftp->connectToHost(m_host, static_cast<quint16>(m_port));
    m_loginId = m_ftp->login(m_user, m_password);
    m_cdId = m_ftp->cd(m_path);
    m_listId = m_ftp->list();
    m_closeId = m_ftp->close();
    m_timer->start(m_commandLimitMs);
}

void NetworkDirRequestFtp::commandStarted(int id)
{
    m_currentId = id;
    if (id == m_closeId) {
        m_timer->stop();
    } else {
        m_timer->start(m_commandLimitMs);
    }
}

void NetworkDirRequestFtp::commandFinished(int id, bool error)
{
    if (error) {
        const QPointer<NetworkDirRequestFtp> self(this);
        const XFtp *ftp = m_ftp;
        handleError(id, m_ftp->error());
        // A new connection counts its commands anew.
        if (!self || ftp != m_ftp) {
            return;
        }
    }
    m_currentId = 0;
    if (id == m_closeId || !m_reply || m_reply->finished || m_isLookingUpHost) {
        m_timer->stop();
    } else {
        m_timer->start(m_commandLimitMs);
    }
}

void NetworkDirRequestFtp::listInfo(XUrlInfo info, const QByteArray &rawName)
{
    if (!m_reply || m_reply->finished) {
        return;
    }
    info.setName(entryName(m_url, rawName));
    m_reply->entries.append(info);
}

void NetworkDirRequestFtp::done(bool error)
{
    m_timer->stop();
    if (error) {
        handleError(m_isLoginGivenUp ? m_loginId : -1, m_ftp->error());
    } else if (m_isLoginGivenUp) {
        handleError(m_loginId, XFtp::UnknownError);
    } else if (m_reply && !m_reply->finished) {
        m_reply->finish();
    }
}

void NetworkDirRequestFtp::stateChanged(int state)
{
    if (state != XFtp::Unconnected) {
        return;
    }
    if (m_isLoginGivenUp) {
        handleError(m_loginId, XFtp::UnknownError);
    } else if (m_currentId != 0 && m_currentId == m_closeId) {
        disconnect(m_ftp, &XFtp::done, this, &NetworkDirRequestFtp::done);
        m_ftp->clearPendingCommands();
        done(false);
    } else {
        handleError(m_currentId, XFtp::UnknownError);
    }
}

void NetworkDirRequestFtp::timeout()
{
    if (!m_reply || m_reply->finished) {
        return;
    }
    RVLogger().log(3, "Ftp transaction timeout");
    fail(QNetworkReply::TimeoutError, QObject::tr("FTP transaction timed out"));
}

void NetworkDirRequestFtp::cancel()
{
    fail(QNetworkReply::OperationCanceledError, QObject::tr("Operation canceled"));
}

void NetworkDirRequestFtp::handleError(int id, XFtp::Error error)
{
    m_timer->stop();
    // The end of a failed connection is told more than once; while the host is looked up, only an
    // error that says more than that ends the reply.
    if (!m_reply || m_reply->finished || (m_isLookingUpHost && error == XFtp::UnknownError)) {
        return;
    }
    m_ftp->clearPendingCommands();
    const QString text = m_ftp->errorString();
    RVLogger().log(4, "QFtp Err, code %d, err %d, str '%s'", id, static_cast<int>(error),
                   qUtf8Printable(text));
    if (error == XFtp::ConnectionRefused) {
        fail(QNetworkReply::ConnectionRefusedError, text);
    } else if (error == XFtp::NotConnected) {
        fail(QNetworkReply::RemoteHostClosedError, text);
    } else if (error == XFtp::HostNotFound) {
        fail(QNetworkReply::HostNotFoundError, text);
    } else if (id == m_connectId) {
        m_isLookingUpHost = true;
        // By its name: of a look-up that is aborted, Qt 5.15 does not release a pointer to member.
        m_hostLookup = QHostInfo::lookupHost(m_host, this, SLOT(hostLookupDone(QHostInfo)));
    } else if (id == m_loginId) {
        if (m_isLoginGivenUp || !askForLogin()) {
            fail(QNetworkReply::AuthenticationRequiredError, QObject::tr("Authentication failed"));
        }
    } else if (id == m_cdId) {
        fail(QNetworkReply::ContentOperationNotPermittedError,
             QObject::tr("URI is not a directory"));
    } else if (id == m_listId) {
        fail(QNetworkReply::ContentAccessDenied, QObject::tr("Directory is not readable"));
    } else {
        fail(QNetworkReply::ProtocolFailure, text);
    }
}

bool NetworkDirRequestFtp::askForLogin()
{
    const QPointer<NetworkDirRequestFtp> self(this);
    const FtpCredentials::Answer answer =
        FtpCredentials::ask(m_manager, m_reply, m_url, {m_user, m_password});
    if (!self || !m_reply || m_reply->finished) {
        return true;
    }
    switch (answer) {
    case FtpCredentials::Refused:
        return false;
    case FtpCredentials::Canceled:
        // The reply ends when the connection is closed.
        m_isLoginGivenUp = true;
        m_ftp->clearPendingCommands();
        m_ftp->close();
        return true;
    case FtpCredentials::Given:
        dropFtp();
        m_currentId = 0;
        m_ftp = newFtp();
        requestFtpListing();
        return true;
    }
    return false;
}

void NetworkDirRequestFtp::hostLookupDone(const QHostInfo &info)
{
    m_isLookingUpHost = false;
    if (info.error() == QHostInfo::HostNotFound) {
        fail(QNetworkReply::HostNotFoundError, tr("FTP hostname lookup failed '%1'.").arg(m_host));
    } else {
        fail(QNetworkReply::ConnectionRefusedError, QObject::tr("Connection to FTP host refused"));
    }
}

void NetworkDirRequestFtp::fail(QNetworkReply::NetworkError code, const QString &text)
{
    m_timer->stop();
    if (m_reply && m_reply->finished) {
        return;
    }
    if (m_isLookingUpHost) {
        m_isLookingUpHost = false;
        QHostInfo::abortHostLookup(m_hostLookup);
    }
    // What the aborted command says comes too late.
    m_ftp->disconnect(this);
    m_ftp->clearPendingCommands();
    m_ftp->abort();
    if (!m_reply) {
        return;
    }
    // A slot may delete this object, or the reply.
    const QPointer<XNetworkReply> reply = m_reply;
    reply->finished = true;
    reply->fail(code, text);
    if (reply) {
        reply->finish();
    }
}

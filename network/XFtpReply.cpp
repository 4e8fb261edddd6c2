// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "network/XFtpReply.h"

#include "network/FtpCredentials.h"
#include "network/XNetworkAccessManager.h"

XFtpReply::XFtpReply(XNetworkAccessManager *manager, const QNetworkRequest &request)
    : XSpooledReply(QNetworkAccessManager::GetOperation, request, manager)
    , m_manager(manager)
    , m_path(FtpCredentials::rawPath(request.url()))
{
    start();
}

XFtpReply::~XFtpReply() = default;

void XFtpReply::start()
{
    m_ftp = new XFtp(this);
    connect(m_ftp, &XFtp::commandStarted, this, &XFtpReply::restartInactivity);
    connect(m_ftp, &XFtp::commandFinished, this, &XFtpReply::commandFinished);
    connect(m_ftp, &XFtp::readyRead, this, &XFtpReply::receive);
    connect(m_ftp, &XFtp::dataTransferProgress, this, &XFtpReply::progress);

    const QNetworkProxy proxy = FtpCredentials::proxyFor(m_manager, url());
    if (proxy.type() == QNetworkProxy::FtpCachingProxy) {
        m_ftp->setProxy(proxy.hostName(), proxy.port());
    }
    const RVLogin login = request().attribute(XNetworkAccessManager::plainAttribute).toBool()
        ? FtpCredentials::ofUrl(url())
        : FtpCredentials::forUrl(url());
    m_user = login.user;
    m_password = login.password;
    const QString host = url().host();
    m_connectId = m_ftp->connectToHost(host.isEmpty() ? QStringLiteral("127.0.0.1") : host,
                                       static_cast<quint16>(url().port(21)));
    m_loginId = m_ftp->login(m_user, m_password);
    m_getId = m_ftp->get(m_path);
}

void XFtpReply::stop()
{
    m_ftp->disconnect(this);
    m_ftp->abort();
    m_ftp->close();
}

void XFtpReply::progress(qint64 /*done*/, qint64 total)
{
    if (total == m_total) {
        return;
    }
    m_total = total;
    if (total >= 0) {
        setHeader(QNetworkRequest::ContentLengthHeader, total);
    }
    announce(total);
}

void XFtpReply::receive()
{
    append(m_ftp->readAll(), m_total);
}

void XFtpReply::commandFinished(int id, bool error)
{
    if (error) {
        handleError(id);
        return;
    }
    restartInactivity();
    if (id != m_getId) {
        return;
    }
    if (m_ftp->bytesAvailable() == 0 || append(m_ftp->readAll(), m_total)) {
        finish(NoError, {});
    }
}

void XFtpReply::handleError(int id)
{
    const bool isLost = m_ftp->state() == XFtp::Unconnected;
    const XFtp::Error error = m_ftp->error();
    if (error == XFtp::ConnectionRefused) {
        finish(ConnectionRefusedError, m_ftp->errorString());
    } else if (error == XFtp::HostNotFound) {
        finish(HostNotFoundError, m_ftp->errorString());
    } else if (id == m_connectId) {
        finish(ConnectionRefusedError, QObject::tr("Connection to FTP host refused"));
    } else if (id == m_loginId && (!isLost || m_ftp->lastReplyCode() / 100 == 5)) {
        // Some servers hang up right after a refusal.
        loginRefused();
    } else if (id == m_getId && !isLost) {
        getRefused();
    } else {
        finish(RemoteHostClosedError, m_ftp->errorString());
    }
}

void XFtpReply::loginRefused()
{
    const QPointer<XFtpReply> self(this);
    suspendInactivity(true);
    const FtpCredentials::Answer answer =
        FtpCredentials::ask(m_manager, this, url(), {m_user, m_password});
    if (!self) {
        return;
    }
    suspendInactivity(false);
    if (hasEnded()) {
        return;
    }
    if (answer != FtpCredentials::Given) {
        finish(AuthenticationRequiredError, QObject::tr("Authentication failed"));
        return;
    }
    m_ftp->disconnect(this);
    m_ftp->clearPendingCommands();
    m_ftp->deleteLater();
    start();
}

void XFtpReply::getRefused()
{
    const QString text = m_ftp->errorString();
    const int code = m_ftp->lastReplyCode();
    if (m_path.contains('\r') || m_path.contains('\n') || m_path.contains('\0')) {
        // Never sent: a line break would begin a command of its own.
        finish(ContentNotFoundError, text);
    } else if (code == 550 || code == 450) {
        // RFC 959 §4.2.2: the same code for a file that is not there and one that is closed; most
        // servers tell them apart in the words of strerror().
        const bool isClosed = text.contains(QLatin1String("denied"), Qt::CaseInsensitive)
            || text.contains(QLatin1String("privilege"), Qt::CaseInsensitive);
        finish(isClosed ? ContentAccessDenied : ContentNotFoundError, text);
    } else if (code == 530 || code == 532 || code == 553) {
        finish(ContentAccessDenied, text);
    } else if (code < 300 || code == 425 || code == 426) {
        // The data connection failed, or brought less than the server announced.
        finish(RemoteHostClosedError, text);
    } else {
        finish(ProtocolFailure, text);
    }
}

void XFtpReply::finish(NetworkError code, const QString &text)
{
    m_ftp->disconnect(this);
    m_ftp->clearPendingCommands();
    m_ftp->close();
    if (code == NoError) {
        end();
    } else {
        end(code, text);
    }
}

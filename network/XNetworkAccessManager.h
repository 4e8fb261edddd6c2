// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "network/RVKeyring.h"
#include "network/XSpooledReply.h"

#include <QHash>
#include <QList>
#include <QNetworkAccessManager>
#include <QNetworkProxy>
#include <QNetworkReply>
#include <QSharedPointer>
#include <QSslError>

#include <memory>
#include <vector>

class NetworkDirRequest;
class XNetworkReply;

/// Qt's network access manager with one more operation, the listing of a directory, and the one
/// place of policy for transfers: over http and https, redirects are not followed, HTTP/2 and
/// pipelining are off, no compression is asked for, and what get() returns is an XHttpReply; over
/// ftp it is an XFtpReply, and for a file of this system an XFileReply.
class XNetworkAccessManager : public QNetworkAccessManager
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(XNetworkAccessManager)

public:
    /// Of a get: true makes it as a device would that knows nothing but the URL. It has no login
    /// beside the URL's, and takes the bytes as they come, of a part (206) or of what is called
    /// encoded too.
    static constexpr auto plainAttribute =
        static_cast<QNetworkRequest::Attribute>(QNetworkRequest::User + 1);

    explicit XNetworkAccessManager(QObject *parent = nullptr);
    ~XNetworkAccessManager() override;

    /// From whose logins for proxies the receiver of proxyAuthenticationRequired() answers. What a
    /// proxy refuses is forgotten there before it asks for another.
    void setKeyring(const QSharedPointer<RVKeyring> &keyring);
    /// For the replies made from now on: XSpooledReply::setInactivityLimit().
    int inactivityLimit = XSpooledReply::defaultInactivityMs;
    /// As XSpooledReply::setBodyLimit().
    qint64 bodyLimit = XSpooledReply::defaultBodyLimit;
    /// As XSpooledReply::setStored(); never null.
    std::shared_ptr<qint64> stored = std::make_shared<qint64>(0);
    /// Whether a certificate that does not validate was accepted for a transfer of this manager;
    /// its replies say so.
    bool hasIgnoredErrors = false;

    /// Starts a listing; never null. A backend may finish inside the call, so connect to
    /// directoryFinished() before it.
    XNetworkReply *getDirectory(const NetworkDirRequest &request);
    /// "", "ftp", "file", "http" and "https", in any letter case.
    bool schemeIsSupported(const QString &scheme) const;

public Q_SLOTS:
    void relayAuthenticationRequired(QNetworkReply *reply, QAuthenticator *auth);
    void relayProxyAuthenticationRequired(const QNetworkProxy &proxy, QAuthenticator *auth);
    void relayFinished(QNetworkReply *reply);
    void relaySslErrors(QNetworkReply *reply, const QList<QSslError> &errors);

Q_SIGNALS:
    /// Once for each getDirectory(); the receiver releases the reply.
    void directoryFinished(XNetworkReply *reply);

protected:
    QNetworkReply *createRequest(Operation operation, const QNetworkRequest &request,
                                 QIODevice *outgoingData) override;

private Q_SLOTS:
    void emitDirectoryFinished(XNetworkReply *reply);

private:
    void forgetRefused(const QNetworkProxy &proxy);

    QSharedPointer<RVKeyring> m_keyring;
    /// What was offered to each proxy that has asked.
    QHash<QString, RVLogin> m_offered;
    /// Each with a backend that outlives the reply it made, so that late signals are safe.
    std::vector<std::unique_ptr<NetworkDirRequest>> m_requests;
};

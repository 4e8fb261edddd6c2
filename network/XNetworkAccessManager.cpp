// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "network/XNetworkAccessManager.h"

#include "core/RVLogger.h"
#include "network/NetworkDirRequest.h"
#include "network/XFileReply.h"
#include "network/XFtpReply.h"
#include "network/XHttpReply.h"
#include "network/XNetworkReply.h"

#include <QAuthenticator>

namespace
{

QNetworkRequest withPolicy(const QNetworkRequest &request)
{
    QNetworkRequest result = request;
    result.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                        QNetworkRequest::ManualRedirectPolicy);
    result.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
    result.setAttribute(QNetworkRequest::HttpPipeliningAllowedAttribute, false);
    // A compressed body may unpack to a thousand times what the limits see.
    result.setRawHeader("Accept-Encoding", "identity");
    return result;
}

/// The proxies that Qt takes where none is set: the application's or the environment's. Where that
/// is none, it is said in another way, which makes Qt use a socket with a buffer: on one without,
/// it takes a connection that is cut inside a chunk for the end of the body, if the end comes
/// together with the last bytes.
class UsualProxies : public QNetworkProxyFactory
{
public:
    QList<QNetworkProxy> queryProxy(const QNetworkProxyQuery &query) override
    {
        QList<QNetworkProxy> proxies = QNetworkProxyFactory::proxyForQuery(query);
        for (QNetworkProxy &proxy : proxies) {
            if (proxy.type() == QNetworkProxy::NoProxy) {
                proxy = QNetworkProxy(QNetworkProxy::DefaultProxy);
            }
        }
        return proxies;
    }
};

} // namespace

XNetworkAccessManager::XNetworkAccessManager(QObject *parent)
    : QNetworkAccessManager(parent)
{
    setRedirectPolicy(QNetworkRequest::ManualRedirectPolicy);
    // Before any other receiver, who answers from the keyring.
    connect(this, &QNetworkAccessManager::proxyAuthenticationRequired, this,
            &XNetworkAccessManager::forgetRefused);
}

XNetworkAccessManager::~XNetworkAccessManager()
{
    while (!m_requests.empty()) {
        m_requests.pop_back();
    }
}

void XNetworkAccessManager::setKeyring(const QSharedPointer<RVKeyring> &keyring)
{
    m_keyring = keyring;
}

XNetworkReply *XNetworkAccessManager::getDirectory(const NetworkDirRequest &request)
{
    if (!request.directoryCapable()) {
        RVLogger().log(3, "PROTOCOL DOES NOT SUPPORT DIRECTORY ACCESS");
        auto *reply = new XNetworkReply;
        reply->setDirectoryRequest(request.request());
        reply->setError(QNetworkReply::ProtocolInvalidOperationError,
                        QObject::tr("Protocol does not support directory reads"));
        reply->finish();
        Q_EMIT directoryFinished(reply);
        return reply;
    }

    m_requests.push_back(std::make_unique<NetworkDirRequest>(request));
    NetworkDirRequest &own = *m_requests.back();
    own.setManager(this);
    XNetworkReply *reply = own.getDirectory();
    if (reply->finished) {
        Q_EMIT directoryFinished(reply);
    } else {
        connect(reply, &XNetworkReply::finishedReply, this,
                &XNetworkAccessManager::emitDirectoryFinished);
    }
    return reply;
}

bool XNetworkAccessManager::schemeIsSupported(const QString &scheme) const
{
    static const QStringList schemes{QString(), QStringLiteral("ftp"), QStringLiteral("file"),
                                     QStringLiteral("http"), QStringLiteral("https")};
    return schemes.contains(scheme, Qt::CaseInsensitive);
}

void XNetworkAccessManager::relayAuthenticationRequired(QNetworkReply *reply, QAuthenticator *auth)
{
    Q_EMIT authenticationRequired(reply, auth);
}

void XNetworkAccessManager::relayProxyAuthenticationRequired(const QNetworkProxy &proxy,
                                                             QAuthenticator *auth)
{
    Q_EMIT proxyAuthenticationRequired(proxy, auth);
}

void XNetworkAccessManager::relayFinished(QNetworkReply *reply)
{
    Q_EMIT finished(reply);
}

void XNetworkAccessManager::relaySslErrors(QNetworkReply *reply, const QList<QSslError> &errors)
{
    Q_EMIT sslErrors(reply, errors);
}

QNetworkReply *XNetworkAccessManager::createRequest(Operation operation,
                                                    const QNetworkRequest &request,
                                                    QIODevice *outgoingData)
{
    const QString scheme = request.url().scheme();
    // The one gate to files of this system, whoever asks for them.
    if ((scheme.isEmpty() || scheme == QLatin1String("file")) && operation == GetOperation) {
        return new XFileReply(request, this);
    }
    if (scheme == QLatin1String("ftp") && operation == GetOperation) {
        auto *reply = new XFtpReply(this, request);
        reply->setInactivityLimit(inactivityLimit);
        reply->setBodyLimit(bodyLimit);
        reply->setStored(stored);
        return reply;
    }
    if (scheme != QLatin1String("http") && scheme != QLatin1String("https")) {
        return QNetworkAccessManager::createRequest(operation, request, outgoingData);
    }
    if (!proxyFactory() && proxy().type() == QNetworkProxy::DefaultProxy) {
        setProxyFactory(new UsualProxies);
    }
    const QNetworkRequest own = withPolicy(request);
    QNetworkReply *reply = QNetworkAccessManager::createRequest(operation, own, outgoingData);
    if (operation != GetOperation) {
        return reply;
    }
    auto *wrapper = new XHttpReply(own, reply, this);
    wrapper->setInactivityLimit(inactivityLimit);
    wrapper->setBodyLimit(bodyLimit);
    wrapper->setStored(stored);
    return wrapper;
}

void XNetworkAccessManager::emitDirectoryFinished(XNetworkReply *reply)
{
    Q_EMIT directoryFinished(reply);
}

// A manager has one transfer, which each proxy on its way asks once. For a tunnel Qt comes with a
// blank authenticator each time, so that the second question is all that tells of a refusal.
void XNetworkAccessManager::forgetRefused(const QNetworkProxy &proxy)
{
    if (!m_keyring) {
        return;
    }
    const QString place = RVKeyring::placeOf(proxy);
    const auto offered = m_offered.constFind(place);
    if (offered != m_offered.constEnd()) {
        m_keyring->forget(place, *offered);
    }
    m_offered.insert(place, m_keyring->login(place));
}

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "network/XHttpReply.h"

#include "core/RVUrl.h"
#include "network/XNetworkAccessManager.h"
#include "network/XNetworkError.h"

#include <QCoreApplication>

#include <algorithm>
#include <limits>

namespace
{

const char outerProperty[] = "ravelOuterReply";

/// Qt looks each of them up in a list, which a hundred thousand of them make a matter of seconds.
constexpr int maxHeaders = 1000;
constexpr qint64 pieceSize = 64 * 1024;

constexpr qint64 notANumber = -2;

/// What the header announces; -1 without one, notANumber where it cannot be told. One that was sent
/// twice with the same value comes as a list (RFC 9110 §8.6).
qint64 contentLength(const QByteArray &header)
{
    if (header.isNull()) {
        return -1;
    }
    const QList<QByteArray> values = header.split(',');
    const QByteArray value = values.first().trimmed();
    const bool same = std::all_of(values.cbegin(), values.cend(), [&](const QByteArray &other) {
        return other.trimmed() == value;
    });
    const bool digits =
        !value.isEmpty() && std::all_of(value.cbegin(), value.cend(), [](char character) {
            return character >= '0' && character <= '9';
        });
    if (!same || !digits) {
        return notANumber;
    }
    bool fits = false;
    const qint64 number = value.toLongLong(&fits);
    return fits ? number : std::numeric_limits<qint64>::max();
}

/// Qt names the whole URL in its texts, which end in logs and on terminals.
QString withoutPassword(const QString &text, const QUrl &url)
{
    return QString(text).replace(url.toString(), RVUrl::shown(url));
}

bool isIdentity(const QByteArray &coding)
{
    return coding.isEmpty() || coding == "identity";
}

} // namespace

XHttpReply::XHttpReply(const QNetworkRequest &request, QNetworkReply *inner, QObject *parent)
    : XSpooledReply(QNetworkAccessManager::GetOperation, request, parent)
    , m_inner(inner)
{
    inner->setProperty(outerProperty, QVariant::fromValue<QObject *>(this));
    connect(inner, &QNetworkReply::metaDataChanged, this, &XHttpReply::takeMetaData);
    connect(inner, &QNetworkReply::readyRead, this, &XHttpReply::takeBody);
    connect(inner, &QNetworkReply::finished, this, &XHttpReply::takeEnd);
    connect(inner, &QNetworkReply::encrypted, this, &QNetworkReply::encrypted);
    connect(inner, &QNetworkReply::sslErrors, this, &XHttpReply::ask);
    connect(inner, &QObject::destroyed, this, [this] {
        // Somebody had it by a question. Without a manager, all of them go.
        if (manager()) {
            end(QNetworkReply::OperationCanceledError, QStringLiteral("Operation canceled"));
        }
    });
    connect(inner, &QNetworkReply::preSharedKeyAuthenticationRequired, this,
            &QNetworkReply::preSharedKeyAuthenticationRequired);
}

XHttpReply::~XHttpReply()
{
    releaseInner();
}

QNetworkReply *XHttpReply::outer(QNetworkReply *reply)
{
    auto *wrapper = qobject_cast<XHttpReply *>(reply->property(outerProperty).value<QObject *>());
    return wrapper ? wrapper : reply;
}

void XHttpReply::ignoreSslErrors()
{
    ignoreSslErrorsImplementation(m_question);
}

void XHttpReply::stop()
{
    releaseInner();
}

void XHttpReply::ignoreSslErrorsImplementation(const QList<QSslError> &errors)
{
    if (m_inner && m_asking) {
        m_isAnswered = true;
        if (auto *own = qobject_cast<XNetworkAccessManager *>(manager())) {
            own->hasIgnoredErrors = true;
        }
        m_inner->ignoreSslErrors(errors);
    }
}

void XHttpReply::sslConfigurationImplementation(QSslConfiguration &configuration) const
{
    configuration = m_inner ? m_inner->sslConfiguration() : m_sslConfiguration;
}

void XHttpReply::setSslConfigurationImplementation(const QSslConfiguration &configuration)
{
    m_sslConfiguration = configuration;
    if (m_inner) {
        m_inner->setSslConfiguration(configuration);
    }
}

void XHttpReply::takeMetaData()
{
    const QList<RawHeaderPair> &headers = m_inner->rawHeaderPairs();
    if (headers.size() > maxHeaders) {
        refuse(QNetworkReply::ProtocolFailure, QStringLiteral("Too many headers"));
        return;
    }
    for (const RawHeaderPair &header : headers) {
        setRawHeader(header.first, header.second);
    }
    for (const QNetworkRequest::Attribute attribute :
         {QNetworkRequest::HttpStatusCodeAttribute, QNetworkRequest::HttpReasonPhraseAttribute,
          QNetworkRequest::RedirectionTargetAttribute,
          QNetworkRequest::ConnectionEncryptedAttribute,
          QNetworkRequest::SourceIsFromCacheAttribute,
          QNetworkRequest::HttpPipeliningWasUsedAttribute,
          QNetworkRequest::Http2WasUsedAttribute}) {
        setAttribute(attribute, m_inner->attribute(attribute));
    }
    restartInactivity();
    m_announced = contentLength(rawHeader("Content-Length"));
    const QString fault = faultOfHead();
    if (!fault.isEmpty()) {
        refuse(QNetworkReply::ProtocolFailure, fault);
        return;
    }
    // The head first: a receiver may have limits that are lower.
    const QPointer<XHttpReply> self(this);
    Q_EMIT metaDataChanged();
    if (self) {
        announce(qMax<qint64>(m_announced, -1));
    }
}

// False when there is nothing more to be done with this object.
bool XHttpReply::takeBody()
{
    const QPointer<XHttpReply> self(this);
    while (self && m_inner) {
        // An aborted one is closed.
        const QByteArray piece = m_inner->isOpen() ? m_inner->read(pieceSize) : QByteArray();
        if (piece.isEmpty()) {
            return true;
        }
        if (!append(piece, qMax<qint64>(m_announced, -1))) {
            return false;
        }
    }
    return false;
}

void XHttpReply::takeEnd()
{
    if (!takeBody()) {
        return;
    }
    const NetworkError error =
        qt4Error(m_inner->error(), attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt());
    if (error != QNetworkReply::NoError) {
        refuse(error, withoutPassword(m_inner->errorString(), url()));
        return;
    }
    const QString fault = faultOfBody();
    if (!fault.isEmpty()) {
        refuse(m_announced > received() ? QNetworkReply::RemoteHostClosedError
                                        : QNetworkReply::ProtocolFailure,
               fault);
        return;
    }
    releaseInner();
    end();
}

void XHttpReply::ask(const QList<QSslError> &errors)
{
    const QPointer<QNetworkReply> inner = m_inner;
    const QPointer<XHttpReply> self(this);
    m_asking = true;
    m_isAnswered = false;
    m_question = errors;
    suspendInactivity(true);
    Q_EMIT sslErrors(errors);
    if (self) {
        suspendInactivity(false);
        const auto *own = qobject_cast<XNetworkAccessManager *>(manager());
        if (!m_isAnswered && m_inner && (!own || own->hasIgnoredErrors)) {
            // Qt keeps what an earlier handshake of this connection was allowed, and would let the
            // next certificate of the same authority pass. Otherwise it fails by itself.
            releaseInner();
            QMetaObject::invokeMethod(
                this,
                [this] {
                    end(QNetworkReply::SslHandshakeFailedError,
                        QStringLiteral("SSL handshake failed"));
                },
                Qt::QueuedConnection);
        }
        m_asking = false;
        m_question.clear();
    }
    // The one that asks comes back to itself from here, so that it could not be released while the
    // receivers ran an event loop.
    if (inner && (!self || !m_inner)) {
        inner->deleteLater();
    }
}

// What shows in the head that the body will not be the file, for the answers that claim to have it.
QString XHttpReply::faultOfHead() const
{
    const int status = attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (status >= 300) {
        return {};
    }
    if (status < 200) {
        return QStringLiteral("The server wants to speak another protocol");
    }
    const bool isPlain = request().attribute(XNetworkAccessManager::plainAttribute).toBool();
    if (status == 206 && !isPlain) {
        return QStringLiteral("The server sends a part of the file");
    }
    if (m_announced == notANumber) {
        return QStringLiteral("The announced size is no number");
    }
    if (!(isPlain || isIdentity(coding("Content-Encoding")))
        || !(isChunked() || isIdentity(coding("Transfer-Encoding")))) {
        return QStringLiteral("The server sends an encoded file");
    }
    return {};
}

// What Qt lets pass as the end of the body.
QString XHttpReply::faultOfBody() const
{
    const int status = attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (status < 200 || status >= 300 || status == 204) {
        return {};
    }
    if (m_announced >= 0 && m_announced != received()) {
        return QStringLiteral("The file is not as long as announced");
    }
    // An unreadable chunk size counts as the last chunk's.
    if (status == 200 && received() == 0 && isChunked()) {
        return QStringLiteral("The server sends no chunk");
    }
    return {};
}

QByteArray XHttpReply::coding(const char *header) const
{
    return rawHeader(header).trimmed().toLower();
}

bool XHttpReply::isChunked() const
{
    return coding("Transfer-Encoding") == "chunked";
}

void XHttpReply::refuse(NetworkError code, const QString &text)
{
    releaseInner();
    end(code, text);
}

// However it ends: once, aborted, and not inside a slot of its own.
void XHttpReply::releaseInner()
{
    if (!m_inner) {
        return;
    }
    QNetworkReply *inner = m_inner;
    m_sslConfiguration = inner->sslConfiguration();
    m_inner.clear();
    disconnect(inner, nullptr, this, nullptr);
    inner->setProperty(outerProperty, QVariant());
    inner->abort();
    // It warns of an error that was on its way.
    QCoreApplication::removePostedEvents(inner, QEvent::MetaCall);
    if (!m_asking) {
        inner->deleteLater();
    }
}

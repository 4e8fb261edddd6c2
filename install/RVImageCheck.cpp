// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "install/RVImageCheck.h"

#include "core/RVOrigin.h"
#include "descriptor/DescriptorGeneric.h"
#include "network/XNetworkAccessManager.h"
#include "repository/RVTrust.h"

#include <QCoreApplication>
#include <QNetworkProxy>
#include <QRegularExpression>

namespace
{

constexpr int headSize = 16;
constexpr int pieceSize = 64 * 1024;
constexpr qint64 largestImage = qint64(64) << 30;
/// Of an answer that is no image.
constexpr qint64 longestRefusal = 64 * 1024;

bool isGzip(const QByteArray &head)
{
    // RFC 1952 §2.3.1: the magic, and "deflate", the one method that there is.
    return head.startsWith("\x1f\x8b\x08");
}

bool isPage(const QByteArray &head)
{
    constexpr char byteOrderMark[] = "\xef\xbb\xbf";
    return (head.startsWith(byteOrderMark) ? head.mid(3) : head).trimmed().startsWith('<');
}

} // namespace

RVImageCheck::RVImageCheck(const RVData &entry, const RVAccess &access, Reads reads, bool isFresh,
                           QObject *parent)
    : QObject(parent)
    , m_entry(entry)
    , m_access(access)
    , m_reads(reads)
    , m_isFresh(isFresh)
{
}

RVImageCheck::~RVImageCheck()
{
    if (m_reply) {
        m_reply->disconnect(this);
    }
}

void RVImageCheck::start()
{
    const QUrl &url = m_entry.archiveUrl();
    auto *manager = new XNetworkAccessManager(this);
    m_access.configure(manager, url);
    if (!m_access.hasProxy()) {
        // The device has not the environment of this process.
        manager->setProxy(QNetworkProxy::NoProxy);
    }
    // Nothing of it is kept.
    manager->bodyLimit = largestImage;
    connect(manager, &QNetworkAccessManager::sslErrors, this,
            [this, manager](QNetworkReply *reply, const QList<QSslError> &errors) {
                Q_EMIT sslErrors(reply, errors);
                m_isCertificateAccepted = manager->hasIgnoredErrors;
            });
    QNetworkRequest request = RVTrust::request(url, m_isFresh);
    request.setAttribute(XNetworkAccessManager::plainAttribute, true);
    if (m_reads == Reads::Head) {
        request.setRawHeader("Range", "bytes=0-" + QByteArray::number(headSize - 1));
    }
    m_reply = manager->get(request);
    connect(m_reply, &QIODevice::readyRead, this, &RVImageCheck::read);
    connect(m_reply, &QNetworkReply::errorOccurred, this, [this] {
        Q_EMIT networkError(m_reply);
    });
    connect(m_reply, &QNetworkReply::finished, this, &RVImageCheck::end);
}

RVSentence RVImageCheck::certificateWarning() const
{
    return m_isCertificateAccepted
        ? RVSentence(QT_TRANSLATE_NOOP("RVSentence",
                                       "The certificate of %1 is not valid, and was accepted here. "
                                       "After the restart the device may refuse it, and then it "
                                       "gets no image."),
                     {originOf(m_entry.archiveUrl())})
        : RVSentence();
}

void RVImageCheck::read()
{
    QByteArray piece(pieceSize, Qt::Uninitialized);
    qint64 length = 0;
    while ((length = m_reply->read(piece.data(), piece.size())) > 0) {
        m_head.append(piece.constData(),
                      static_cast<int>(qMin(length, qint64(headSize - m_head.size()))));
        m_received += length;
        if (m_reads == Reads::All) {
            m_sum.addData(piece.constData(), static_cast<int>(length));
        }
    }
    Q_EMIT progress(m_received);
    // The file follows where the range is ignored; a refusal is read to its end, which tells why.
    const bool isEnough = status() < 300 ? m_head.size() == headSize : m_received > longestRefusal;
    if (m_reads == Reads::Head && isEnough && !m_reply->isFinished()) {
        end();
    }
}

void RVImageCheck::end()
{
    const QNetworkReply::NetworkError error = m_reply->error();
    if (error == QNetworkReply::NoError && m_reply->isFinished()) {
        read();
    }
    m_hasFailed = error != QNetworkReply::NoError || status() >= 300;
    m_fault = m_hasFailed ? faultOfReply() : faultOfFile();
    m_reply->disconnect(this);
    m_reply->abort();
    m_reply->manager()->deleteLater();
    m_reply = nullptr;
    Q_EMIT finished();
}

RVSentence RVImageCheck::faultOfReply() const
{
    switch (m_reply->error()) {
    case QNetworkReply::ContentNotFoundError:
        return RVSentence(QT_TRANSLATE_NOOP("RVSentence", "The image is not there."));
    case QNetworkReply::AuthenticationRequiredError:
        return RVSentence(QT_TRANSLATE_NOOP("RVSentence",
                                            "The server wants a login for the image. The device "
                                            "has none but the one in the repository's location."));
    case QNetworkReply::ProxyAuthenticationRequiredError:
        return RVSentence(QT_TRANSLATE_NOOP(
            "RVSentence", "The proxy wants a login, which the device does not have."));
    case QNetworkReply::NoError:
        return RVSentence(
            QT_TRANSLATE_NOOP("RVSentence", "The server has no image there: it answers %1."),
            {QString::number(status())});
    default:
        return RVSentence(QT_TRANSLATE_NOOP("RVSentence", "The image cannot be read: %1"),
                          {m_reply->errorString()});
    }
}

RVSentence RVImageCheck::faultOfFile() const
{
    const qint64 described = m_entry.descriptor() ? m_entry.descriptor()->size() : -1;
    const qint64 found = size();
    if (m_head.isEmpty()) {
        return RVSentence(QT_TRANSLATE_NOOP("RVSentence", "The image is empty."));
    }
    if (isPage(m_head)) {
        return RVSentence(
            QT_TRANSLATE_NOOP("RVSentence", "There is a page in place of the image."));
    }
    if (!isGzip(m_head)) {
        return RVSentence(
            QT_TRANSLATE_NOOP("RVSentence", "The file is no image: it is not packed by gzip."));
    }
    if (described >= 0 && found >= 0 && described != found) {
        return RVSentence(
            QT_TRANSLATE_NOOP("RVSentence", "The image has %1 bytes. Its description says %2."),
            {QString::number(found), QString::number(described)});
    }
    return {};
}

// 0 for what is not HTTP.
int RVImageCheck::status() const
{
    return m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
}

// Of the whole; -1 where the server does not tell.
qint64 RVImageCheck::size() const
{
    if (m_reads == Reads::All) {
        return m_received;
    }
    bool isNumber = false;
    if (status() == 206) {
        static const QRegularExpression range(
            QStringLiteral("\\Abytes 0-[0-9]{1,2}/([0-9]{1,18})\\z"));
        const QString header = QString::fromLatin1(m_reply->rawHeader("Content-Range"));
        const qint64 total = range.match(header).captured(1).toLongLong(&isNumber);
        return isNumber ? total : -1;
    }
    const qint64 length =
        m_reply->header(QNetworkRequest::ContentLengthHeader).toLongLong(&isNumber);
    return isNumber ? length : -1;
}

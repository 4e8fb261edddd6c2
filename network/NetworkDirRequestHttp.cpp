// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "network/NetworkDirRequestHttp.h"

#include "core/RVLogger.h"
#include "network/HtmlLinks.h"
#include "network/XNetworkAccessManager.h"
#include "network/XNetworkReply.h"

#include <QNetworkProxyFactory>

#include <set>

namespace
{

QString withSlash(const QString &url)
{
    return url.endsWith(QLatin1Char('/')) ? url : url + QLatin1Char('/');
}

/// What the links of a page lead to.
class LinkTargets
{
public:
    explicit LinkTargets(const QUrl &page)
        : m_page(page)
        , m_base(withSlash(page.toString()))
        , m_isStable(QUrl(m_base).isValid() && QUrl(m_base).toString() == m_base)
    {
    }

    QString name(const QString &href) const
    {
        // Most links of an index need no look at the rest of the URL.
        return m_isStable && isPlain(href) ? m_base + href : target(href).toString();
    }

private:
    /// True when a URL keeps it letter for letter behind a slash: characters that need no escape
    /// (RFC 3986, 2.3), and the two escapes that package names have and QUrl never decodes.
    static bool isPlain(const QString &href)
    {
        for (int i = 0; i < href.size(); ++i) {
            const ushort c = href.at(i).unicode();
            const bool isUnreserved = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z')
                || (c >= '0' && c <= '9') || c == '-' || c == '.' || c == '_' || c == '~';
            if (isUnreserved) {
                continue;
            }
            const auto escape = c == '%' ? href.midRef(i + 1, 2) : QStringRef();
            if (escape != QLatin1String("3A") && escape != QLatin1String("2B")) {
                return false;
            }
            i += 2;
        }
        return true;
    }

    QUrl target(const QString &href) const
    {
        const bool isRooted = href.startsWith(QLatin1Char('/'));
        // A scheme has a colon, so most links need not be looked at for one.
        if (!isRooted && !href.contains(QLatin1Char(':'))) {
            return QUrl(m_base + href);
        }
        QUrl link(href);
        if (!link.isRelative()) {
            return link;
        }
        if (!isRooted) {
            return QUrl(m_base + href);
        }
        const QString path = link.path(QUrl::FullyEncoded);
        link = m_page;
        link.setPath(path, QUrl::TolerantMode);
        return link;
    }

    const QUrl m_page;
    const QString m_base;
    /// Reading the base as a URL and writing it gives it back.
    const bool m_isStable;
};

XUrlInfo makeEntry(const QString &name)
{
    static const QString placeholder = QStringLiteral("webuser");
    XUrlInfo entry;
    entry.setName(name);
    entry.setPermissions(XUrlInfo::ReadOwner | XUrlInfo::ReadGroup | XUrlInfo::ReadOther);
    entry.setOwner(placeholder);
    entry.setGroup(placeholder);
    entry.setDir(name.endsWith(QLatin1Char('/')));
    entry.setFile(!entry.isDir());
    entry.setWritable(false);
    return entry;
}

} // namespace

NetworkDirRequestHttp::NetworkDirRequestHttp(const QUrl &url)
    : NetworkDirRequestBase(url)
    , m_url(url)
{
}

NetworkDirRequestHttp::~NetworkDirRequestHttp()
{
    const auto replies = m_replies;
    m_replies.clear();
    for (const QPointer<XNetworkReply> &out : replies) {
        if (out) {
            // The manager is going: nothing can be delivered through it any more.
            out->disconnect(m_manager);
            out->setError(QNetworkReply::OperationCanceledError,
                          QNetworkReply::tr("Operation canceled"));
            finish(out);
        }
    }
}

bool NetworkDirRequestHttp::directoryCapable() const
{
    return true;
}

void NetworkDirRequestHttp::setManager(XNetworkAccessManager *manager)
{
    m_manager = manager;
    m_proxy = QNetworkProxy(QNetworkProxy::NoProxy);
    if (!m_manager) {
        return;
    }
    const QNetworkProxyQuery query(m_url);
    QList<QNetworkProxy> proxies{m_manager->proxy()};
    if (QNetworkProxyFactory *factory = m_manager->proxyFactory()) {
        proxies = factory->queryProxy(query);
    } else if (m_manager->proxy().type() == QNetworkProxy::DefaultProxy) {
        proxies = QNetworkProxyFactory::proxyForQuery(query);
    }
    for (const QNetworkProxy &proxy : qAsConst(proxies)) {
        if (proxy.type() != QNetworkProxy::FtpCachingProxy) {
            m_proxy = proxy;
            break;
        }
    }
}

XNetworkReply *NetworkDirRequestHttp::getDirectory()
{
    m_url = QUrl(withSlash(m_url.toString()));
    auto *out = new XNetworkReply;
    if (!m_manager) {
        out->setDirectoryRequest(m_request);
        out->setError(QNetworkReply::ProtocolInvalidOperationError,
                      QObject::tr("Protocol does not support directory reads"));
        out->finish();
        return out;
    }
    connect(m_manager, &QNetworkAccessManager::finished, this, &NetworkDirRequestHttp::gotFinished,
            Qt::UniqueConnection);
    QNetworkReply *transfer = m_manager->get(QNetworkRequest(m_url));
    *out = *transfer;
    m_replies.insert(transfer, out);
    connect(out, &QObject::destroyed, transfer, &QObject::deleteLater);
    connect(out, &QObject::destroyed, this, [this, transfer] {
        m_replies.remove(transfer);
    });
    connect(out, &XNetworkReply::abortOut, this, [this, transfer] {
        cancel(transfer);
    });
    watchSize(transfer);
    if (out->finished) {
        // Too soon for anybody to have seen it.
        out->finished = false;
        QMetaObject::invokeMethod(
            this,
            [this, transfer] {
                gotFinished(transfer);
            },
            Qt::QueuedConnection);
    }
    return out;
}

void NetworkDirRequestHttp::watchSize(QNetworkReply *transfer)
{
    connect(transfer, &QNetworkReply::metaDataChanged, this, [this, transfer] {
        if (transfer->header(QNetworkRequest::ContentLengthHeader).toLongLong() > maximumPage) {
            refusePage(transfer);
        }
    });
    connect(transfer, &QNetworkReply::downloadProgress, this, [this, transfer](qint64 received) {
        if (received > maximumPage) {
            refusePage(transfer);
        }
    });
}

void NetworkDirRequestHttp::gotFinished(QNetworkReply *reply)
{
    // The manager reports every transfer that it carries.
    if (!m_replies.contains(reply)) {
        return;
    }
    if (reply->bytesAvailable() > maximumPage) {
        refusePage(reply);
        return;
    }
    const QPointer<XNetworkReply> out = m_replies.take(reply);
    if (out) {
        *out = *reply;
        parseHtmlDirectory(reply, out);
        reply->disconnect(this);
        finish(out);
    }
}

void NetworkDirRequestHttp::cancel(QNetworkReply *transfer)
{
    const QPointer<XNetworkReply> out = m_replies.take(transfer);
    if (!out) {
        return;
    }
    transfer->disconnect(this);
    transfer->abort();
    if (out) {
        *out = *transfer;
        if (out->error() == QNetworkReply::NoError) {
            out->setError(QNetworkReply::OperationCanceledError,
                          QNetworkReply::tr("Operation canceled"));
        }
        finish(out);
    }
}

void NetworkDirRequestHttp::refusePage(QNetworkReply *transfer)
{
    const QPointer<XNetworkReply> out = m_replies.take(transfer);
    if (!out) {
        return;
    }
    RVLogger().log(3, "Directory listing of '%s' is larger than %d bytes",
                   RVLogger::oneLine(transfer->url()).constData(), static_cast<int>(maximumPage));
    transfer->disconnect(this);
    transfer->abort();
    if (out) {
        *out = *transfer;
        out->setError(QNetworkReply::UnknownContentError,
                      QObject::tr("Directory listing is too large"));
        finish(out);
    }
}

void NetworkDirRequestHttp::finish(XNetworkReply *out)
{
    out->setRequest(m_request);
    out->setOperation(XNetworkReply::directoryOperation);
    out->finish();
}

std::optional<QList<XUrlInfo>> NetworkDirRequestHttp::entriesOf(const QByteArray &page,
                                                                const QUrl &url)
{
    const auto links = HtmlLinks::of(page);
    if (!links) {
        return std::nullopt;
    }
    const LinkTargets targets(url);
    QList<XUrlInfo> entries;
    entries.reserve(links->size());
    // Ordered, not hashed: who names the files can make names that share one hash.
    std::set<QString> names;
    for (const QString &link : *links) {
        const auto [name, isNew] = names.insert(targets.name(link));
        if (isNew) {
            entries.append(makeEntry(*name));
        }
    }
    return entries;
}

void NetworkDirRequestHttp::parseHtmlDirectory(QNetworkReply *reply, XNetworkReply *out)
{
    out->entries.clear();
    const auto entries = entriesOf(reply->readAll(), reply->url());
    if (entries) {
        out->entries = *entries;
        return;
    }
    RVLogger().log(3, "Page '%s' has too many links, or links that are too long",
                   RVLogger::oneLine(reply->url()).constData());
    if (out->error() == QNetworkReply::NoError) {
        out->setError(QNetworkReply::UnknownContentError,
                      QObject::tr("Directory listing is too large"));
    }
}

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "network/NetworkDirRequestHttp.h"

#include "core/RVLogger.h"
#include "network/HtmlCheck.h"
#include "network/XNetworkAccessManager.h"
#include "network/XNetworkReply.h"

#include <QNetworkProxyFactory>
#include <QSet>

#include <algorithm>
#include <array>
#include <csetjmp>
#include <cstddef>
#include <cstdlib>
#include <ctime>
#include <gumbo.h>
#include <vector>

namespace
{

/// A page as a tree, on a budget: the parser has no bound of its own on memory or time, so the
/// memory that it asks for comes from here, and when there is no more of it, or no more time, it
/// never gets its answer. What it has by then goes with this object.
class PageTree
{
public:
    /// The page must outlive the tree.
    explicit PageTree(const QByteArray &page)
    {
        m_options.allocator = allocate;
        m_options.deallocator = release;
        m_options.userdata = this;
        // Each error keeps a copy of all open elements.
        m_options.max_errors = 0;
        // Grown while the parser runs, it might throw through it.
        m_chunks.reserve(maximumMemory / chunk);
        // Several times what an ordinary page takes.
        m_endOfTime = cpuTime() + 2 + static_cast<double>(page.size()) / (4 * 1024 * 1024);
        parse(page);
    }

    ~PageTree()
    {
        // The parser's own way to free a tree is recursive.
        for (void *memory : m_chunks) {
            std::free(memory);
        }
    }

    /// Null when the budget was exceeded.
    const GumboNode *document() const { return m_output ? m_output->document : nullptr; }

private:
    Q_DISABLE_COPY_MOVE(PageTree)

    /// In front of each piece of memory.
    struct alignas(std::max_align_t) Block {
        size_t sizeClass;
        Block *nextFree;
    };

    static constexpr size_t maximumMemory = size_t(384) * 1024 * 1024;
    static constexpr size_t chunk = size_t(1024) * 1024;
    static constexpr size_t smallClasses = 32;

    /// Seconds that this thread has worked: those of a busy machine do not count.
    static double cpuTime()
    {
        timespec now = {};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
        return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9;
    }

    /// Nothing here or in the parser has a destructor to be jumped over.
    void parse(const QByteArray &page)
    {
        if (setjmp(m_giveUp) == 0) {
            m_output = gumbo_parse_with_options(&m_options, page.constData(),
                                                static_cast<size_t>(page.size()));
        }
    }

    static void *allocate(void *tree, size_t size)
    {
        auto *self = static_cast<PageTree *>(tree);
        const bool isLate = ++self->m_allocations % 256 == 0 && cpuTime() > self->m_endOfTime;
        if (isLate || size > maximumMemory) {
            std::longjmp(self->m_giveUp, 1);
        }
        // Small pieces in steps of 16 bytes, the others in powers of two.
        size_t whole = (size + sizeof(Block) + 15) / 16 * 16;
        size_t sizeClass = whole / 16;
        if (sizeClass >= smallClasses) {
            sizeClass = smallClasses;
            for (whole = smallClasses * 16; whole < size + sizeof(Block); whole *= 2) {
                ++sizeClass;
            }
        }
        Block *block = self->m_free[sizeClass];
        if (block) {
            self->m_free[sizeClass] = block->nextFree;
        } else {
            block = static_cast<Block *>(self->cut(whole));
            block->sizeClass = sizeClass;
        }
        return block + 1;
    }

    static void release(void *tree, void *memory)
    {
        if (memory) {
            auto *self = static_cast<PageTree *>(tree);
            Block *block = static_cast<Block *>(memory) - 1;
            block->nextFree = self->m_free[block->sizeClass];
            self->m_free[block->sizeClass] = block;
        }
    }

    /// New memory; does not return when there is no more.
    void *cut(size_t size)
    {
        if (size > m_rest) {
            const size_t chunkSize = std::max(size, chunk);
            const bool fits = m_chunks.size() < m_chunks.capacity() && m_memory < maximumMemory
                && chunkSize <= maximumMemory - m_memory;
            m_next = fits ? static_cast<char *>(std::malloc(chunkSize)) : nullptr;
            if (!m_next) {
                std::longjmp(m_giveUp, 1);
            }
            m_chunks.push_back(m_next);
            m_memory += chunkSize;
            m_rest = chunkSize;
        }
        void *result = m_next;
        m_next += size;
        m_rest -= size;
        return result;
    }

    GumboOptions m_options = kGumboDefaultOptions;
    GumboOutput *m_output = nullptr;
    std::array<Block *, smallClasses + 32> m_free = {};
    std::vector<void *> m_chunks;
    char *m_next = nullptr;
    size_t m_rest = 0;
    size_t m_memory = 0;
    size_t m_allocations = 0;
    double m_endOfTime = 0;
    jmp_buf m_giveUp = {};
};

/// The length of the UTF-8 sequence at `at`, 0 when there is none (RFC 3629).
int utf8Length(const uchar *at, const uchar *end)
{
    const uchar first = *at;
    if (first < 0x80) {
        return 1;
    }
    const int length = first < 0xc2 ? 0
        : first < 0xe0              ? 2
        : first < 0xf0              ? 3
        : first < 0xf5              ? 4
                                    : 0;
    if (length == 0 || end - at < length) {
        return 0;
    }
    const uchar low = first == 0xe0 ? 0xa0 : first == 0xf0 ? 0x90 : 0x80;
    const uchar high = first == 0xed ? 0x9f : first == 0xf4 ? 0x8f : 0xbf;
    if (at[1] < low || at[1] > high) {
        return 0;
    }
    for (int i = 2; i < length; ++i) {
        if ((at[i] & 0xc0) != 0x80) {
            return 0;
        }
    }
    return length;
}

/// As the parser wants it, in UTF-8. A byte that is none becomes a percent escape: of the text only
/// the links count, and there it is what names the file, whatever character the server means.
QByteArray asUtf8(const QByteArray &page)
{
    const auto *at = reinterpret_cast<const uchar *>(page.constBegin());
    const auto *end = reinterpret_cast<const uchar *>(page.constEnd());
    const uchar *copied = at;
    static const char digits[] = "0123456789ABCDEF";
    QByteArray result;
    const auto copy = [&] {
        result.append(reinterpret_cast<const char *>(copied), static_cast<int>(at - copied));
    };
    while (at != end) {
        const int length = utf8Length(at, end);
        if (length == 0) {
            copy();
            result.append('%').append(digits[*at >> 4]).append(digits[*at & 15]);
            copied = at + 1;
        }
        at += qMax(length, 1);
    }
    if (result.isEmpty()) {
        return page;
    }
    copy();
    return result;
}

/// The links of a tree in document order.
QStringList hrefs(const GumboNode *document)
{
    struct Place {
        const GumboVector *children;
        unsigned int next;
    };
    QStringList result;
    std::vector<Place> path{{&document->v.document.children, 0}};
    while (!path.empty()) {
        Place &place = path.back();
        if (place.next == place.children->length) {
            path.pop_back();
            continue;
        }
        const auto *node = static_cast<const GumboNode *>(place.children->data[place.next++]);
        // The contents of a template are not part of the document.
        if (node->type != GUMBO_NODE_ELEMENT) {
            continue;
        }
        const GumboElement &element = node->v.element;
        for (unsigned int i = 0; element.tag == GUMBO_TAG_A && i < element.attributes.length; ++i) {
            const auto *attribute = static_cast<const GumboAttribute *>(element.attributes.data[i]);
            if (attribute->attr_namespace == GUMBO_ATTR_NAMESPACE_NONE
                && qstrcmp(attribute->name, "href") == 0) {
                result.append(QString::fromUtf8(attribute->value));
            }
        }
        path.push_back({&element.children, 0});
    }
    return result;
}

/// As a browser does before it looks at a link.
QString stripped(const QString &href)
{
    const auto isBlank = [](QChar c) {
        return c == QLatin1Char(' ') || c == QLatin1Char('\t') || c == QLatin1Char('\n')
            || c == QLatin1Char('\f') || c == QLatin1Char('\r');
    };
    int first = 0;
    int end = href.size();
    while (first < end && isBlank(href.at(first))) {
        ++first;
    }
    while (end > first && isBlank(href.at(end - 1))) {
        --end;
    }
    return href.mid(first, end - first);
}

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

std::optional<QList<XUrlInfo>> NetworkDirRequestHttp::entriesOf(QByteArray page, const QUrl &url)
{
    const int zero = page.indexOf('\0');
    if (zero >= 0) {
        page.truncate(zero);
    }
    page = asUtf8(page);
    if (page.size() > maximumPage || !HtmlCheck().accepts(page)) {
        return std::nullopt;
    }
    QStringList links;
    {
        const PageTree tree(page);
        if (!tree.document()) {
            return std::nullopt;
        }
        links = hrefs(tree.document());
    }

    const LinkTargets targets(url);
    QList<XUrlInfo> entries;
    QSet<QString> names;
    names.reserve(links.size());
    entries.reserve(links.size());
    for (const QString &link : qAsConst(links)) {
        const QString href = stripped(link);
        if (href.isEmpty()) {
            continue;
        }
        const QString name = targets.name(href);
        const int known = names.size();
        names.insert(name);
        if (names.size() != known) {
            entries.append(makeEntry(name));
        }
    }
    return entries;
}

void NetworkDirRequestHttp::parseHtmlDirectory(QNetworkReply *reply, XNetworkReply *out)
{
    out->entries.clear();
    const auto entries = entriesOf(reply->readAll(), reply->url());
    if (!entries) {
        RVLogger().log(4, "Page '%s' is too costly to read, its links are not listed",
                       RVLogger::oneLine(reply->url()).constData());
        return;
    }
    out->entries = *entries;
}

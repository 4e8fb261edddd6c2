// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "network/NetworkDirRequest.h"
#include "network/XNetworkAccessManager.h"
#include "network/XNetworkReply.h"
#include "repository/RVRepository.h"
#include "tests/support/DpkgRoot.h"
#include "tests/support/LogFile.h"
#include "tests/support/WarningGuard.h"
#include "tests/support/WebServers.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QtTest>

#include <memory>
#include <sys/stat.h>

/// What real web servers list is what lies in the directory, whatever it is called, and each entry
/// leads back to its file.
class tst_WebListing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void listsWhatIsThere_data();
    void listsWhatIsThere();
    void refreshesAsALocalRepository_data();
    void refreshesAsALocalRepository();
    void secondRefreshDropsTheFirst();
    void cancelEndsInOneError();
    void cleanup();

private:
    /// Starts what the row names and points m_manager at it; the directory's URL.
    QUrl startServer(const QString &kind);
    QString publishRepository(const WebServer &server);
    XNetworkReply *list(const QUrl &url);
    QByteArray fetch(const QUrl &url);

    TestAuthority m_authority;
    std::unique_ptr<WarningGuard> m_guard;
    std::unique_ptr<WebServer> m_server;
    std::unique_ptr<SquidProxy> m_proxy;
    std::unique_ptr<XNetworkAccessManager> m_manager;
    std::unique_ptr<XNetworkReply> m_reply;
};

namespace
{

/// As the file system has them.
const QList<QByteArray> &awkwardNames()
{
    static const QList<QByteArray> names{
        "plain_1.0_all.deb",
        "a b  c.deb",
        " blank in front.deb",
        "100%.deb",
        "pct%20x%2Fy%41%.deb",
        "h#x.deb",
        "q?x=y.deb",
        "a+b.deb",
        "a&b&amp;c.deb",
        "tool_1:2.0-1_all.deb",
        "foo:bar.deb",
        "http:x.deb",
        "it's \"so\" `x`.deb",
        "\xc3\xa4\xc3\xb6\xc3\x9f\xe2\x82\xac.deb",
        "a\xcc\x88 decomposed.deb",
        "\xf0\x9f\x93\xa6.deb",
        "na\xefve latin1 \xe4.deb",
        "br[1]{2}(3)<4>.deb",
        "-rf.deb",
        "--help",
        "back\\slash.deb",
        "semi;x,y=z!.deb",
        "$x@y*~^|z.deb",
        "two..dots.deb",
        "a very long package name that exceeds the fifty characters of an index page_1.0_all.deb",
    };
    return names;
}

QByteArray contentOf(const QByteArray &name)
{
    return "content of " + name.toHex();
}

bool writeRaw(const QByteArray &path, const QByteArray &content)
{
    FILE *file = std::fopen(path.constData(), "wb");
    const auto size = static_cast<size_t>(content.size());
    // The server is not who runs the test.
    const bool written = file && ::fchmod(::fileno(file), 0644) == 0
        && std::fwrite(content.constData(), 1, size, file) == size;
    return file && std::fclose(file) == 0 && written;
}

QString folder()
{
    return QStringLiteral("up dates %20/");
}

/// One line for each entry, which no listing order changes.
QStringList summary(const RVRepository &repository)
{
    QStringList result;
    for (const RVData &entry : repository.entries()) {
        const DescriptorGeneric &descriptor = *entry.descriptor();
        result.append(QStringLiteral("%1 | %2 %3 | %4 %5 %6 | %7")
                          .arg(QUrl(entry.archiveUrl()).fileName(), descriptor.name({}),
                               descriptor.version().toString())
                          .arg(descriptor.size())
                          .arg(descriptor.unpackedSize())
                          .arg(descriptor.installedSize())
                          .arg(descriptor.title({})));
    }
    return result;
}

void addServerRows()
{
    QTest::addColumn<QString>("kind");
    for (const char *kind :
         {"nginx", "nginx with TLS", "nginx through a proxy", "nginx with TLS through a proxy",
          "Apache plain", "Apache fancy", "Apache table", "Apache table through a proxy"}) {
        QTest::newRow(kind) << QString::fromLatin1(kind);
    }
}

} // namespace

void tst_WebListing::initTestCase()
{
    qRegisterMetaType<XNetworkReply *>();
}

void tst_WebListing::init()
{
    m_guard = std::make_unique<WarningGuard>();
    m_manager = std::make_unique<XNetworkAccessManager>();
    connect(m_manager.get(), &QNetworkAccessManager::sslErrors, this,
            [](QNetworkReply *reply, const QList<QSslError> &errors) {
                reply->ignoreSslErrors(errors);
            });
}

void tst_WebListing::cleanup()
{
    m_reply.reset();
    m_manager.reset();
    // Qt does not remove what it has no text for.
    for (const QByteArray &name : awkwardNames()) {
        if (m_server) {
            std::remove((QFile::encodeName(m_server->root() + QLatin1Char('/') + folder()) + name)
                            .constData());
        }
    }
    m_server.reset();
    m_proxy.reset();
    m_guard.reset();
}

QUrl tst_WebListing::startServer(const QString &kind)
{
    const bool isApache = kind.startsWith(QLatin1String("Apache"));
    const bool hasTls = kind.contains(QLatin1String("TLS"));
    if (isApache) {
        m_server = std::make_unique<ApacheServer>(
            kind.contains(QLatin1String("plain"))       ? ApacheServer::PlainIndex
                : kind.contains(QLatin1String("fancy")) ? ApacheServer::FancyIndex
                                                        : ApacheServer::TableIndex);
    } else {
        auto nginx = std::make_unique<NginxServer>();
        if (hasTls) {
            nginx->setCertificate(m_authority.issue());
        }
        m_server = std::move(nginx);
    }
    if (!m_server->start()) {
        qCritical("%s", m_server->report());
    }
    if (kind.contains(QLatin1String("proxy"))) {
        m_proxy = std::make_unique<SquidProxy>();
        if (!m_proxy->start()) {
            qCritical("%s", m_proxy->report());
        }
        m_manager->setProxy(
            QNetworkProxy(QNetworkProxy::HttpProxy, QStringLiteral("127.0.0.1"), m_proxy->port()));
    }
    ServerProcess::makeOpenFolder(m_server->root() + QLatin1Char('/') + folder());
    const QString path = QStringLiteral("/up%20dates%20%2520/");
    return hasTls ? static_cast<NginxServer &>(*m_server).tlsUrl(path) : m_server->url(path);
}

XNetworkReply *tst_WebListing::list(const QUrl &url)
{
    QSignalSpy delivered(m_manager.get(), &XNetworkAccessManager::directoryFinished);
    m_reply.reset(m_manager->getDirectory(NetworkDirRequest(url)));
    if (delivered.isEmpty()) {
        delivered.wait(20000);
    }
    return m_reply.get();
}

QByteArray tst_WebListing::fetch(const QUrl &url)
{
    const std::unique_ptr<QNetworkReply> reply(m_manager->get(QNetworkRequest(url)));
    QSignalSpy finished(reply.get(), &QNetworkReply::finished);
    const bool ended = reply->isFinished() || finished.wait(20000);
    return ended && reply->error() == QNetworkReply::NoError ? reply->readAll() : QByteArray();
}

void tst_WebListing::listsWhatIsThere_data()
{
    addServerRows();
}

void tst_WebListing::listsWhatIsThere()
{
    QFETCH(QString, kind);
    const QUrl url = startServer(kind);
    const QString directory = m_server->root() + QLatin1Char('/') + folder();
    QSet<QByteArray> written;
    for (const QByteArray &name : awkwardNames()) {
        QVERIFY(writeRaw(QFile::encodeName(directory) + name, contentOf(name)));
        written.insert(contentOf(name));
    }
    ServerProcess::makeOpenFolder(directory + QStringLiteral("/sub 1"));

    const XNetworkReply *reply = list(url);
    QCOMPARE(reply->error(), QNetworkReply::NoError);
    QSet<QByteArray> fetched;
    QStringList others;
    for (const XUrlInfo &entry : reply->entries) {
        const QUrl target(entry.name());
        QVERIFY2(target.isValid(), qPrintable(entry.name()));
        const QByteArray content = entry.isFile() ? fetch(target) : QByteArray();
        if (content.startsWith("content of ")) {
            QVERIFY2(!fetched.contains(content), qPrintable(entry.name()));
            fetched.insert(content);
        } else {
            others.append(entry.name().mid(url.toString().size()));
        }
    }
    const QSet<QByteArray> missing = written - fetched;
    for (const QByteArray &content : missing) {
        qCritical("not found: %s", QByteArray::fromHex(content.mid(11)).constData());
    }
    QCOMPARE(fetched, written);

    // What servers add: the way up, links for sorting; and the directory.
    QStringList expected{QStringLiteral("sub 1/")};
    if (kind.startsWith(QLatin1String("nginx"))) {
        expected.prepend(QStringLiteral("../"));
    } else {
        expected.prepend({});
        for (const char *sort : {"?C=D;O=A", "?C=S;O=A", "?C=M;O=A", "?C=N;O=D"}) {
            if (!kind.contains(QLatin1String("plain"))) {
                expected.prepend(QLatin1String(sort));
            }
        }
    }
    QCOMPARE(others, expected);
    // The same files as a local directory has, except for what Qt cannot read there.
    QSet<QByteArray> local;
    const QList<XUrlInfo> entries = list(QUrl::fromLocalFile(directory))->entries;
    for (const XUrlInfo &entry : entries) {
        QFile file(QUrl(entry.name()).toLocalFile());
        if (entry.isFile() && file.open(QIODevice::ReadOnly)) {
            local.insert(file.readAll());
        }
    }
    QCOMPARE(local, written - QSet<QByteArray>{contentOf("na\xefve latin1 \xe4.deb")});

    // A tunnel is logged when it is closed.
    m_reply.reset();
    m_manager.reset();
    if (m_proxy) {
        QTRY_VERIFY(!m_proxy->requests().isEmpty());
    }
}

QString tst_WebListing::publishRepository(const WebServer &server)
{
    const QString directory = server.root() + QLatin1Char('/') + folder();
    int number = 0;
    for (const QByteArray &name : awkwardNames()) {
        if (!name.endsWith(".deb") || name.contains("latin1")) {
            continue;
        }
        ++number;
        const QByteArray base = QFile::encodeName(directory) + name.left(name.size() - 4);
        const QByteArray n = QByteArray::number(number);
        if (!writeRaw(base + ".deb", "archive")
            || !writeRaw(base + ".xml",
                         "<update_data><name>name " + n.rightJustified(3, '0')
                             + "</name><version>1." + n + "</version><size>" + n
                             + "000</size><title>Title " + n + "</title></update_data>")) {
            return {};
        }
    }
    const DpkgRoot::Package package{QStringLiteral("ravel-real"), QStringLiteral("1:2.0-3"),
                                    "Installed-Size: 7\n"};
    return DpkgRoot::build(package, directory + QStringLiteral("ravel-real_1:2.0-3_all.pkg.deb"));
}

void tst_WebListing::refreshesAsALocalRepository_data()
{
    QTest::addColumn<QString>("kind");
    for (const char *kind : {"nginx", "nginx through a proxy", "Apache plain", "Apache table"}) {
        QTest::newRow(kind) << QString::fromLatin1(kind);
    }
}

void tst_WebListing::refreshesAsALocalRepository()
{
    QFETCH(QString, kind);
    const LogFile log;
    const QUrl url = startServer(kind);
    const QString failure = publishRepository(*m_server);
    QVERIFY2(failure.isEmpty(), qPrintable(failure));
    QStringList summaries[2];
    for (const bool isRemote : {false, true}) {
        const QString directory = m_server->root() + QLatin1Char('/') + folder();
        RVRepository repository(QStringLiteral("Corvane"), QStringLiteral("Ravel"), QString(),
                                isRemote ? url : QUrl::fromLocalFile(directory),
                                QStringLiteral("test"), SortByName);
        repository.addFilter(QRegExp(QStringLiteral("\\.deb$")),
                             QRegExp(QStringLiteral("\\.xml$")));
        repository.addFilter(QRegExp(QStringLiteral("\\.pkg\\.deb$")),
                             QRegExp(QStringLiteral("\\.pkg\\.deb$")));
        if (isRemote && m_proxy) {
            repository.setProxy(QStringLiteral("127.0.0.1"), m_proxy->port());
        }
        QSignalSpy done(&repository, &RVRepository::refreshDone);
        int failures = 0;
        connect(&repository, &RVRepository::networkError, this, [&failures] {
            ++failures;
        });
        repository.refresh();
        if (done.isEmpty()) {
            QVERIFY(done.wait(20000));
        }
        QCOMPARE(failures, 0);
        QCOMPARE(done.count(), 1);
        summaries[isRemote ? 1 : 0] = summary(repository);
    }
    QCOMPARE(summaries[0].size(), awkwardNames().size() - 1);
    QVERIFY(summaries[0].filter(QStringLiteral("ravel-real 1:2.0-3")).size() == 1);
    QCOMPARE(summaries[1], summaries[0]);
}

void tst_WebListing::secondRefreshDropsTheFirst()
{
    const LogFile log;
    const QUrl url = startServer(QStringLiteral("nginx"));
    QVERIFY(publishRepository(*m_server).isEmpty());
    RVRepository repository(QStringLiteral("Corvane"), QStringLiteral("Ravel"), QString(), url,
                            QStringLiteral("test"), SortByName);
    repository.addFilter(QRegExp(QStringLiteral("\\.deb$")), QRegExp(QStringLiteral("\\.xml$")));
    QSignalSpy done(&repository, &RVRepository::refreshDone);
    int failures = 0;
    connect(&repository, &RVRepository::networkError, this, [&failures] {
        ++failures;
    });
    repository.refresh();
    repository.refresh();
    QVERIFY(done.wait(20000));
    QTRY_VERIFY(m_server->count(QStringLiteral("GET /up%20dates%20%2520/ 200 -")) >= 1);
    QCOMPARE(done.count(), 1);
    QCOMPARE(failures, 0);
    QVERIFY(repository.entries().size() > 20);
}

void tst_WebListing::cancelEndsInOneError()
{
    const LogFile log;
    const QUrl url = startServer(QStringLiteral("nginx"));
    RVRepository repository(QStringLiteral("Corvane"), QStringLiteral("Ravel"), QString(), url,
                            QStringLiteral("test"), SortByName);
    QSignalSpy done(&repository, &RVRepository::refreshDone);
    QList<int> errors;
    connect(&repository, &RVRepository::networkError, this, [&](const QNetworkReply *reply) {
        errors.append(reply->error());
    });
    repository.refresh();
    repository.cancel();
    repository.cancel();
    QTRY_COMPARE(errors, QList<int>{5});
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    QCOMPARE(errors, QList<int>{5});
    QCOMPARE(done.count(), 0);
}

QTEST_GUILESS_MAIN(tst_WebListing)
#include "tst_WebListing.moc"

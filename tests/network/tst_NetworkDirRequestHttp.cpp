// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "network/HtmlLinks.h"
#include "network/NetworkDirRequest.h"
#include "network/NetworkDirRequestHttp.h"
#include "network/XNetworkAccessManager.h"
#include "network/XNetworkReply.h"
#include "tests/support/HashCollisions.h"
#include "tests/support/HttpServer.h"
#include "tests/support/LogFile.h"
#include "tests/support/WarningGuard.h"

#include <QFile>
#include <QNetworkProxyFactory>
#include <QPointer>
#include <QSignalSpy>
#include <QtTest>

#include <memory>

namespace
{

QString dir()
{
    return QStringLiteral("/dir/");
}

QByteArray link(const QByteArray &href)
{
    return "<a href=\"" + href + "\">x</a>\n";
}

class FixedFactory : public QNetworkProxyFactory
{
public:
    explicit FixedFactory(const QList<QNetworkProxy> &proxies)
        : m_proxies(proxies)
    {
    }
    QList<QNetworkProxy> queryProxy(const QNetworkProxyQuery &query) override
    {
        return query.url().isEmpty() || query.queryType() != QNetworkProxyQuery::UrlRequest
            ? QList<QNetworkProxy>()
            : m_proxies;
    }

private:
    QList<QNetworkProxy> m_proxies;
};

} // namespace

class tst_NetworkDirRequestHttp : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void isCapable();
    void asksForTheDirectory_data();
    void asksForTheDirectory();
    void describesTheReply();
    void describesEntries();
    void links_data();
    void links();
    void keepsOrderAndDropsDoubles();
    void realIndexPages_data();
    void realIndexPages();
    void errorsCarryTheirLinks_data();
    void errorsCarryTheirLinks();
    void connectionRefused();
    void otherTransfersDoNotMatter();
    void severalAtATime();
    void refusesPagesThatAreTooLarge_data();
    void refusesPagesThatAreTooLarge();
    void acceptsTheLargestPage();
    void refusesTooManyLinks_data();
    void refusesTooManyLinks();
    void asksForNothingThatAPageNames();
    void manyNamesOfOneHash();
    void plainLinksAreKeptAsQUrlKeepsThem_data();
    void plainLinksAreKeptAsQUrlKeepsThem();
    void abortEndsOnce();
    void abortAfterTheEndDoesNothing();
    void abortFromTheLastSignal();
    void replyDeletedFirst();
    void managerDeletedFirst();
    void withoutManager();
    void proxies_data();
    void proxies();
    void cleanup();

private:
    XNetworkReply *start(const QUrl &url);
    /// The reply of a finished listing.
    XNetworkReply *list(const QUrl &url);
    QStringList names(const QByteArray &body);

    std::unique_ptr<WarningGuard> m_guard;
    std::unique_ptr<HttpServer> m_server;
    std::unique_ptr<XNetworkAccessManager> m_manager;
    std::unique_ptr<XNetworkReply> m_reply;
};

void tst_NetworkDirRequestHttp::init()
{
    qRegisterMetaType<XNetworkReply *>();
    m_guard = std::make_unique<WarningGuard>();
    m_server = std::make_unique<HttpServer>();
    m_manager = std::make_unique<XNetworkAccessManager>();
}

void tst_NetworkDirRequestHttp::cleanup()
{
    m_reply.reset();
    m_manager.reset();
    m_server.reset();
    m_guard.reset();
}

XNetworkReply *tst_NetworkDirRequestHttp::start(const QUrl &url)
{
    m_reply.reset(m_manager->getDirectory(NetworkDirRequest(url)));
    return m_reply.get();
}

XNetworkReply *tst_NetworkDirRequestHttp::list(const QUrl &url)
{
    QSignalSpy delivered(m_manager.get(), &XNetworkAccessManager::directoryFinished);
    XNetworkReply *reply = start(url);
    if (!delivered.wait(30000) || delivered.count() != 1
        || delivered.first().first().value<XNetworkReply *>() != reply || !reply->finished) {
        qCritical("the listing was not delivered once");
    }
    return reply;
}

QStringList tst_NetworkDirRequestHttp::names(const QByteArray &body)
{
    m_server->serve(dir(), body);
    QStringList result;
    const QList<XUrlInfo> entries = list(m_server->url(dir()))->entries;
    for (const XUrlInfo &entry : entries) {
        result.append(entry.name());
    }
    return result;
}

void tst_NetworkDirRequestHttp::isCapable()
{
    for (const char *url : {"http://h/", "https://h/", "http://h"}) {
        const QUrl location{QLatin1String(url)};
        QVERIFY(NetworkDirRequestHttp(location).directoryCapable());
        QVERIFY(NetworkDirRequest(location).directoryCapable());
    }
}

void tst_NetworkDirRequestHttp::asksForTheDirectory_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QByteArray>("asked");
    QTest::newRow("with a slash") << QStringLiteral("/a/") << QByteArray("/a/");
    QTest::newRow("without a slash") << QStringLiteral("/a") << QByteArray("/a/");
    QTest::newRow("the host alone") << QString() << QByteArray("/");
    QTest::newRow("blank and percent") << QStringLiteral("/a b%25") << QByteArray("/a%20b%25/");
    QTest::newRow("umlaut") << QStringLiteral("/%C3%A4") << QByteArray("/%C3%A4/");
    QTest::newRow("Latin-1") << QStringLiteral("/%E4") << QByteArray("/%E4/");
    // The text of the URL is what gets the slash.
    QTest::newRow("query") << QStringLiteral("/a?b") << QByteArray("/a?b/");
}

void tst_NetworkDirRequestHttp::asksForTheDirectory()
{
    QFETCH(QString, path);
    QFETCH(QByteArray, asked);
    m_server->serve(QString::fromUtf8(asked), link("x.deb"));
    const QUrl url = m_server->url(path);
    const XNetworkReply *reply = list(url);
    QCOMPARE(m_server->requests().size(), 1);
    QVERIFY2(m_server->requests().first().startsWith("GET " + asked + " HTTP/1.1\r\n"),
             m_server->requests().first().constData());
    QCOMPARE(reply->entries.size(), 1);
    QCOMPARE(reply->request().url(), url);
    QCOMPARE(reply->url().toEncoded(), m_server->url(QString::fromUtf8(asked)).toEncoded());
}

void tst_NetworkDirRequestHttp::describesTheReply()
{
    m_server->serve(dir(), "<p>no link", 200, "X-Test: yes\r\n");
    XNetworkReply *reply = start(m_server->url(dir()));
    QVERIFY(!reply->finished);
    QVERIFY(!reply->isFinished());
    QCOMPARE(reply->parent(), nullptr);
    QCOMPARE(reply->manager, m_manager.get());
    QCOMPARE(reply->error(), QNetworkReply::NoError);
    QSignalSpy finishedReply(reply, &XNetworkReply::finishedReply);
    QSignalSpy finished(reply, &QNetworkReply::finished);
    QSignalSpy delivered(m_manager.get(), &XNetworkAccessManager::directoryFinished);
    QVERIFY(delivered.wait());
    QCOMPARE(finishedReply.count(), 1);
    QCOMPARE(finished.count(), 1);
    QVERIFY(reply->finished);
    QVERIFY(reply->isFinished());
    QCOMPARE(static_cast<int>(reply->operation()), 1000);
    QCOMPARE(reply->rawHeader("X-Test"), QByteArray("yes"));
    QCOMPARE(reply->error(), QNetworkReply::NoError);
    QVERIFY(reply->entries.isEmpty());
}

void tst_NetworkDirRequestHttp::describesEntries()
{
    m_server->serve(dir(), link("a.deb") + link("sub/"));
    const QList<XUrlInfo> entries = list(m_server->url(dir()))->entries;
    QCOMPARE(entries.size(), 2);
    for (const XUrlInfo &entry : entries) {
        QCOMPARE(entry.permissions(), 0444);
        QCOMPARE(entry.owner(), QStringLiteral("webuser"));
        QCOMPARE(entry.group(), QStringLiteral("webuser"));
        QCOMPARE(entry.size(), 0);
        QVERIFY(entry.lastModified().isNull());
        QVERIFY(entry.lastRead().isNull());
        QVERIFY(!entry.isSymLink());
        QVERIFY(!entry.isWritable());
        QVERIFY(!entry.isExecutable());
        QVERIFY(entry.isReadable());
    }
    QVERIFY(entries[0].isFile() && !entries[0].isDir());
    QVERIFY(!entries[1].isFile() && entries[1].isDir());
}

void tst_NetworkDirRequestHttp::links_data()
{
    QTest::addColumn<QByteArray>("href");
    // BASE stands for the directory, HOST for the server.
    QTest::addColumn<QString>("name");
    const auto row = [](const char *what, const char *href, const char *name) {
        QTest::newRow(what) << QByteArray(href) << QString::fromUtf8(name);
    };
    row("file", "a.deb", "BASE/a.deb");
    row("directory", "sub/", "BASE/sub/");
    row("dot segment", "./a.deb", "BASE/./a.deb");
    row("parent", "../", "BASE/../");
    row("sort link", "?C=N;O=D", "BASE/?C=N;O=D");
    row("fragment", "#top", "BASE/#top");
    row("blank", "a%20b.deb", "BASE/a b.deb");
    row("raw blank", "a b.deb", "BASE/a b.deb");
    row("percent", "100%25.deb", "BASE/100%25.deb");
    row("percent escape", "pct%2520x.deb", "BASE/pct%2520x.deb");
    row("lone percent", "100%.deb", "BASE/100%25.deb");
    row("fragment sign", "a%23b.deb", "BASE/a%23b.deb");
    row("question mark", "a%3Fb.deb", "BASE/a%3Fb.deb");
    row("encoded slash", "a%2Fb.deb", "BASE/a%2Fb.deb");
    row("plus", "a+b%2Bc.deb", "BASE/a+b%2Bc.deb");
    row("character reference", "a&amp;b&#x2e;deb", "BASE/a&b.deb");
    row("quotes", "a&quot;b%27c.deb", "BASE/a%22b%27c.deb");
    row("umlaut", "%C3%A4.deb", "BASE/\xc3\xa4.deb");
    row("raw umlaut", "\xc3\xa4.deb", "BASE/\xc3\xa4.deb");
    row("Latin-1", "%E4.deb", "BASE/%E4.deb");
    row("raw Latin-1", "\xe4.deb", "BASE/%E4.deb");
    row("raw Latin-1 beside a raw umlaut", "\xe4\xc3\xa4.deb", "BASE/%E4\xc3\xa4.deb");
    row("broken UTF-8", "\xc0\xaf\xed\xa0\x80\xf4\x90\x80\x80\xe4\xb8",
        "BASE/%C0%AF%ED%A0%80%F4%90%80%80%E4%B8");
    row("beyond the first plane", "\xf0\x9f\x93\xa6.deb", "BASE/\xf0\x9f\x93\xa6.deb");
    row("colon after a dot segment", "./tool_1:2.0-1_all.deb", "BASE/./tool_1:2.0-1_all.deb");
    row("encoded colon", "tool_1%3A2.0-1_all.deb", "BASE/tool_1%3A2.0-1_all.deb");
    row("colon in a name that is no scheme", "tool_1:2.0-1_all.deb", "BASE/tool_1:2.0-1_all.deb");
    row("colon in a name that is a scheme", "foo:bar.deb", "foo:bar.deb");
    row("leading dash", "-rf.deb", "BASE/-rf.deb");
    row("brackets", "a%5B1%5D.deb", "BASE/a%5B1%5D.deb");
    row("rooted", "/pool/a.deb", "HOST/pool/a.deb");
    row("rooted, with a query", "/pool/a.deb?x=y#z", "HOST/pool/a.deb");
    row("rooted, encoded", "/p%2Fo%25/%E4%23.deb", "HOST/p%2Fo%25/%E4%23.deb");
    row("rooted, with a colon", "/tool_1:2.deb", "HOST/tool_1:2.deb");
    row("rooted, without a path", "/", "HOST/");
    row("without a scheme", "//other/pool/a.deb", "HOST/pool/a.deb");
    row("another site", "http://other:81/a.deb", "http://other:81/a.deb");
    row("another site's directory", "https://other/d/", "https://other/d/");
    row("ftp", "ftp://other/a.deb", "ftp://other/a.deb");
    row("script", "javascript:alert(1)", "javascript:alert(1)");
    row("data", "data:text/html,x", "data:text/html,x");
    row("mail", "mailto:a@b", "mailto:a@b");
    row("blanks around it", " \t\r\n\fa.deb \n", "BASE/a.deb");
    row("no-break space", "\xc2\xa0", "BASE/\xc2\xa0");
}

void tst_NetworkDirRequestHttp::links()
{
    QFETCH(QByteArray, href);
    QFETCH(QString, name);
    const QString host = m_server->url(QString()).toString();
    name.replace(QStringLiteral("BASE"), host + QStringLiteral("/dir"));
    name.replace(QStringLiteral("HOST"), host);
    const QStringList found = names(link(href));
    QCOMPARE(found, QStringList(name));
    QCOMPARE(QUrl(found.first()).toString(), name);
}

void tst_NetworkDirRequestHttp::keepsOrderAndDropsDoubles()
{
    const QString base = m_server->url(dir()).toString();
    const QStringList found =
        names(link("b") + link("a") + link("b") + link("B") + link("./b") + link("") + link(" ")
              + "<a>x</a><a name=n>x</a><a href>x</a><a HREF=c>x</A><A href='d'>x" + link("a#x")
              + link(base.toUtf8() + "a"));
    QStringList expected;
    for (const char *name : {"b", "a", "B", "./b", "c", "d", "a#x"}) {
        expected.append(base + QLatin1String(name));
    }
    QCOMPARE(found, expected);
}

void tst_NetworkDirRequestHttp::realIndexPages_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("epoch");
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("directories");
    QTest::newRow("nginx 1.22") << QStringLiteral("nginx-1.22.html")
                                << QStringLiteral("tool_1%3A2.0-1_all.deb") << 28 << 4;
    QTest::newRow("Apache 2.4") << QStringLiteral("apache-2.4.html")
                                << QStringLiteral("./tool_1:2.0-1_all.deb") << 32 << 3;
}

void tst_NetworkDirRequestHttp::realIndexPages()
{
    QFETCH(QString, file);
    QFETCH(QString, epoch);
    QFile page(QStringLiteral(RAVEL_TEST_DATA "/network/") + file);
    QVERIFY(page.open(QIODevice::ReadOnly));
    const QStringList found = names(page.readAll());
    int directories = 0;
    for (const XUrlInfo &entry : qAsConst(m_reply->entries)) {
        directories += entry.isDir() ? 1 : 0;
    }
    const QString base = m_server->url(dir()).toString();
    for (const QString &name :
         {QStringLiteral("plain_1.0_armel.deb"), QStringLiteral("a b.deb"),
          QStringLiteral("100%25.deb"), QStringLiteral("pct%2520x.deb"),
          QStringLiteral("h%23x.deb"), QStringLiteral("q%3Fx.deb"), QStringLiteral("-dash.deb"),
          QStringLiteral("quote%22x.deb"), QString::fromUtf8("\xc3\xa4.deb"),
          QStringLiteral("subdir/"), epoch}) {
        QVERIFY2(found.contains(base + name), qPrintable(name));
    }
    const bool hasLatin1 = found.contains(base + QStringLiteral("latin1_%E4.deb"));
    QVERIFY(hasLatin1 || found.contains(base + QStringLiteral("latin1_%e4.deb")));
    QTEST(static_cast<int>(found.size()), "count");
    QTEST(directories, "directories");
}

void tst_NetworkDirRequestHttp::errorsCarryTheirLinks_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<int>("error");
    QTest::newRow("204") << 204 << 0;
    QTest::newRow("301") << 301 << 0;
    QTest::newRow("302") << 302 << 0;
    QTest::newRow("303") << 303 << 0;
    QTest::newRow("307") << 307 << 0;
    QTest::newRow("308") << 308 << 0;
    QTest::newRow("401") << 401 << 204;
    QTest::newRow("403") << 403 << 201;
    QTest::newRow("404") << 404 << 203;
    QTest::newRow("405") << 405 << 202;
}

void tst_NetworkDirRequestHttp::errorsCarryTheirLinks()
{
    QFETCH(int, status);
    const bool hasBody = status != 204;
    m_server->serve(dir(), hasBody ? link("elsewhere") : QByteArray(), status,
                    "Location: /other/\r\n");
    const XNetworkReply *reply = list(m_server->url(dir()));
    QTEST(static_cast<int>(reply->error()), "error");
    QCOMPARE(reply->entries.size(), hasBody ? 1 : 0);
    QCOMPARE(m_server->requests().size(), 1);
    QCOMPARE(static_cast<int>(reply->operation()), 1000);
}

void tst_NetworkDirRequestHttp::connectionRefused()
{
    const QUrl url = m_server->url(dir());
    m_server = std::make_unique<HttpServer>();
    const XNetworkReply *reply = list(url);
    QCOMPARE(reply->error(), QNetworkReply::ConnectionRefusedError);
    QVERIFY(!reply->errorString().isEmpty());
    QVERIFY(reply->entries.isEmpty());
}

void tst_NetworkDirRequestHttp::otherTransfersDoNotMatter()
{
    m_server->serve(dir(), link("a"));
    m_server->serve(QStringLiteral("/file"), link("b") + link("c"));
    m_server->hold();
    QSignalSpy delivered(m_manager.get(), &XNetworkAccessManager::directoryFinished);
    start(m_server->url(dir()));
    QTRY_COMPARE(m_server->waiting(), 1);
    m_server->serve(QStringLiteral("/"), {});
    HttpServer other;
    other.serve(QStringLiteral("/file"), link("b") + link("c"));
    const std::unique_ptr<QNetworkReply> file(
        m_manager->get(QNetworkRequest(other.url(QStringLiteral("/file")))));
    QSignalSpy fetched(file.get(), &QNetworkReply::finished);
    QVERIFY(fetched.wait());
    QCOMPARE(delivered.count(), 0);
    QVERIFY(!m_reply->finished);
    QCOMPARE(file->readAll(), link("b") + link("c"));
    m_server->release();
    QVERIFY(delivered.wait());
    QCOMPARE(m_reply->entries.size(), 1);
}

void tst_NetworkDirRequestHttp::severalAtATime()
{
    QSignalSpy delivered(m_manager.get(), &XNetworkAccessManager::directoryFinished);
    std::vector<std::unique_ptr<XNetworkReply>> replies;
    for (int i = 0; i < 10; ++i) {
        const QString path = QStringLiteral("/%1/").arg(i);
        m_server->serve(path, link(QByteArray::number(i)).repeated(2) + link("x").repeated(i));
        replies.emplace_back(m_manager->getDirectory(NetworkDirRequest(m_server->url(path))));
    }
    QTRY_COMPARE(delivered.count(), 10);
    for (int i = 0; i < 10; ++i) {
        QCOMPARE(replies[static_cast<size_t>(i)]->entries.first().name(),
                 m_server->url(QStringLiteral("/%1/%1").arg(i)).toString());
    }
}

void tst_NetworkDirRequestHttp::refusesPagesThatAreTooLarge_data()
{
    QTest::addColumn<QByteArray>("headers");
    QTest::addColumn<int>("bytes");
    const auto size = static_cast<int>(NetworkDirRequestHttp::maximumPage);
    QTest::newRow("announced") << QByteArray("Content-Length: 99999999999\r\n") << 100;
    QTest::newRow("announced, one byte too many")
        << QByteArray("Content-Length: ") + QByteArray::number(size + 1) + "\r\n"
        << 100;
    QTest::newRow("not announced") << QByteArray() << size + 1;
}

void tst_NetworkDirRequestHttp::refusesPagesThatAreTooLarge()
{
    QFETCH(QByteArray, headers);
    QFETCH(int, bytes);
    const LogFile log;
    m_server->serveRaw(
        dir(), "HTTP/1.1 200 OK\r\n" + headers + "\r\n" + link("a") + QByteArray(bytes, ' '));
    XNetworkReply *reply = list(m_server->url(dir()));
    QCOMPARE(static_cast<int>(reply->error()), 299);
    QCOMPARE(reply->errorString(), QStringLiteral("Directory listing is too large"));
    QVERIFY(reply->entries.isEmpty());
    QCOMPARE(log.count(QStringLiteral("Directory listing of '%1' is larger than 33554432 bytes")
                           .arg(m_server->url(dir()).toString())),
             1);
}

void tst_NetworkDirRequestHttp::acceptsTheLargestPage()
{
    const QByteArray first = link("a");
    m_server->serve(
        dir(),
        first
            + QByteArray(static_cast<int>(NetworkDirRequestHttp::maximumPage) - first.size(), ' '));
    QCOMPARE(list(m_server->url(dir()))->entries.size(), 1);
    QCOMPARE(m_reply->error(), QNetworkReply::NoError);
}

void tst_NetworkDirRequestHttp::refusesTooManyLinks_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<int>("error");
    QTest::newRow("a page") << 200 << 299;
    QTest::newRow("the page of another error") << 404 << 203;
}

void tst_NetworkDirRequestHttp::refusesTooManyLinks()
{
    QFETCH(int, status);
    const LogFile log;
    m_server->serve(dir(), link("a").repeated(HtmlLinks::maximumTags + 1), status);
    const XNetworkReply *reply = list(m_server->url(dir()));
    QTEST(static_cast<int>(reply->error()), "error");
    QCOMPARE(reply->errorString() == QStringLiteral("Directory listing is too large"),
             status == 200);
    QVERIFY(reply->entries.isEmpty());
    QCOMPARE(log.count(QStringLiteral("Page '%1' has too many links, or links that are too long")
                           .arg(m_server->url(dir()).toString())),
             1);
}

void tst_NetworkDirRequestHttp::asksForNothingThatAPageNames()
{
    const QString base = m_server->url(dir()).toString();
    QCOMPARE(names("<link rel=stylesheet href=a><script src=b></script><img src=c><iframe src=d>"
                   "</iframe><base href=e><meta http-equiv=refresh content='0; url=f'>"
                   "<script>document.write('<a href=\"g\">x</a>')</script>"
                   + link("h")),
             QStringList(base + QLatin1Char('h')));
    QCoreApplication::processEvents();
    QCOMPARE(m_server->requests().size(), 1);
}

/// In a hash table they would take minutes.
void tst_NetworkDirRequestHttp::manyNamesOfOneHash()
{
    const QString base = QStringLiteral("http://192.0.2.1/");
    const QStringList hrefs = namesOfOneHash(base, 17);
    const uint seed = 12345;
    QByteArray html;
    for (const QString &href : hrefs) {
        QCOMPARE(qHash(base + href, seed), qHash(base + hrefs.first(), seed));
        html += link(href.toLatin1());
    }
    const auto entries = NetworkDirRequestHttp::entriesOf(html, QUrl(base));
    QVERIFY(entries);
    QCOMPARE(entries->size(), 1 << 17);
    QCOMPARE(entries->last().name(), base + hrefs.last());
}

void tst_NetworkDirRequestHttp::plainLinksAreKeptAsQUrlKeepsThem_data()
{
    QTest::addColumn<QString>("page");
    for (const char *page :
         {"http://h/", "http://h", "http://h/d/", "http://H:8080/a%20b/", "https://u@h/d/",
          "http://h/d/?q", "http://h/d/#f", "http://h/%E4/", "http://h/%C3%A4/", "http://h/%25/",
          "http://[::1]/d/", "http://h/d/?q=%", "http://h/a/../b/./"}) {
        QTest::newRow(page) << QString::fromLatin1(page);
    }
}

void tst_NetworkDirRequestHttp::plainLinksAreKeptAsQUrlKeepsThem()
{
    QFETCH(QString, page);
    const QUrl url(page);
    QString base = url.toString();
    base += base.endsWith(QLatin1Char('/')) ? QString() : QStringLiteral("/");
    QByteArray html;
    QStringList expected;
    const auto add = [&](const QString &href) {
        html += link(href.toUtf8());
        expected.append(QUrl(base + href).toString());
    };
    for (char c = '!'; c <= '~'; ++c) {
        // These end the attribute, begin a reference, or make the link another kind.
        if (!QByteArray("\"&/:").contains(c)) {
            add(QLatin1Char(c) + QStringLiteral("x"));
        }
    }
    for (int c = 1; c < 256; ++c) {
        add(QStringLiteral("e%%1x").arg(c, 2, 16, QLatin1Char('0')).toUpper());
        add(QStringLiteral("f%%1x").arg(c, 2, 16, QLatin1Char('0')).toLower());
    }
    for (const char *href : {"a-b_1.0~rc1%2B2_all.deb", "t_1%3A2.0-1.deb", "%3A", "%2B", "x%3",
                             "x%", "%3A%", "..", ".", "-"}) {
        add(QLatin1String(href));
    }
    expected.removeDuplicates();
    const auto entries = NetworkDirRequestHttp::entriesOf(html, url);
    QVERIFY(entries);
    QStringList found;
    for (const XUrlInfo &entry : *entries) {
        found.append(entry.name());
    }
    QCOMPARE(found, expected);
}

void tst_NetworkDirRequestHttp::abortEndsOnce()
{
    m_server->serve(dir(), link("a"));
    m_server->hold();
    QSignalSpy delivered(m_manager.get(), &XNetworkAccessManager::directoryFinished);
    XNetworkReply *reply = start(m_server->url(dir()));
    QSignalSpy finishedReply(reply, &XNetworkReply::finishedReply);
    QSignalSpy finished(reply, &QNetworkReply::finished);
    QTRY_COMPARE(m_server->waiting(), 1);
    reply->abort();
    QTRY_COMPARE(delivered.count(), 1);
    // The transfer itself is stopped.
    QTRY_COMPARE(m_server->waiting(), 0);
    reply->abort();
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
    QCOMPARE(delivered.count(), 1);
    QCOMPARE(finishedReply.count(), 1);
    QCOMPARE(finished.count(), 1);
    QCOMPARE(static_cast<int>(reply->error()), 5);
    QVERIFY(!reply->errorString().isEmpty());
    QVERIFY(reply->finished);
    QVERIFY(reply->entries.isEmpty());
    QCOMPARE(static_cast<int>(reply->operation()), 1000);
    QCOMPARE(reply->request().url(), m_server->url(dir()));
}

void tst_NetworkDirRequestHttp::abortAfterTheEndDoesNothing()
{
    QCOMPARE(names(link("a")).size(), 1);
    QSignalSpy delivered(m_manager.get(), &XNetworkAccessManager::directoryFinished);
    QSignalSpy finished(m_reply.get(), &QNetworkReply::finished);
    m_reply->abort();
    QCoreApplication::processEvents();
    QCOMPARE(delivered.count(), 0);
    QCOMPARE(finished.count(), 0);
    QCOMPARE(m_reply->error(), QNetworkReply::NoError);
    QCOMPARE(m_reply->entries.size(), 1);
}

void tst_NetworkDirRequestHttp::abortFromTheLastSignal()
{
    m_server->serve(dir(), link("a"));
    XNetworkReply *reply = start(m_server->url(dir()));
    int ends = 0;
    connect(reply, &XNetworkReply::finishedReply, this, [&ends](XNetworkReply *ended) {
        ++ends;
        ended->abort();
    });
    QTRY_COMPARE(ends, 1);
    QCoreApplication::processEvents();
    QCOMPARE(ends, 1);
    QCOMPARE(reply->error(), QNetworkReply::NoError);
}

void tst_NetworkDirRequestHttp::replyDeletedFirst()
{
    m_server->serve(dir(), link("a"));
    m_server->hold();
    QSignalSpy delivered(m_manager.get(), &XNetworkAccessManager::directoryFinished);
    start(m_server->url(dir()));
    QTRY_COMPARE(m_server->waiting(), 1);
    m_reply.reset();
    // Nobody waits for the transfer any more.
    QTRY_COMPARE(m_server->waiting(), 0);
    m_server->release();
    QCoreApplication::processEvents();
    QCOMPARE(delivered.count(), 0);

    // While its answer is on the way.
    m_server->hold();
    start(m_server->url(dir()));
    QTRY_COMPARE(m_server->waiting(), 1);
    m_server->release();
    m_reply.reset();
    QCOMPARE(names(link("b")).size(), 1);
    QCOMPARE(delivered.count(), 1);
}

void tst_NetworkDirRequestHttp::managerDeletedFirst()
{
    m_server->hold();
    XNetworkReply *reply = start(m_server->url(dir()));
    QSignalSpy finishedReply(reply, &XNetworkReply::finishedReply);
    QSignalSpy finished(reply, &QNetworkReply::finished);
    QTRY_COMPARE(m_server->waiting(), 1);
    QSignalSpy delivered(m_manager.get(), &XNetworkAccessManager::directoryFinished);
    m_manager.reset();
    QCOMPARE(delivered.count(), 0);
    QCOMPARE(finishedReply.count(), 1);
    QCOMPARE(finished.count(), 1);
    QVERIFY(reply->finished);
    QCOMPARE(static_cast<int>(reply->error()), 5);
    QCOMPARE(static_cast<int>(reply->operation()), 1000);
    reply->abort();
    QCOMPARE(finished.count(), 1);
    QTRY_COMPARE(m_server->waiting(), 0);
}

void tst_NetworkDirRequestHttp::withoutManager()
{
    NetworkDirRequestHttp request(m_server->url(dir()));
    m_reply.reset(request.getDirectory());
    QVERIFY(m_reply->finished);
    QCOMPARE(m_reply->error(), QNetworkReply::ProtocolInvalidOperationError);
    QCOMPARE(static_cast<int>(m_reply->operation()), 1000);
}

void tst_NetworkDirRequestHttp::proxies_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("host");
    QTest::newRow("nothing set") << QString() << int(QNetworkProxy::NoProxy) << QString();
    QTest::newRow("the manager's")
        << QStringLiteral("own") << int(QNetworkProxy::HttpProxy) << QStringLiteral("own");
    QTest::newRow("the manager's factory")
        << QStringLiteral("factory") << int(QNetworkProxy::Socks5Proxy) << QStringLiteral("socks");
    QTest::newRow("the factory before the manager's")
        << QStringLiteral("own factory") << int(QNetworkProxy::NoProxy) << QString();
    QTest::newRow("the application's")
        << QStringLiteral("application") << int(QNetworkProxy::HttpProxy) << QStringLiteral("app");
    QTest::newRow("the manager's before the application's")
        << QStringLiteral("application own") << int(QNetworkProxy::HttpProxy)
        << QStringLiteral("own");
    QTest::newRow("an FTP cache is of no use")
        << QStringLiteral("ftp") << int(QNetworkProxy::NoProxy) << QString();
}

void tst_NetworkDirRequestHttp::proxies()
{
    QFETCH(QString, source);
    const QNetworkProxy ftp(QNetworkProxy::FtpCachingProxy, QStringLiteral("ftp"), 1);
    if (source.contains(QLatin1String("application"))) {
        QNetworkProxyFactory::setApplicationProxyFactory(new FixedFactory(
            {ftp, QNetworkProxy(QNetworkProxy::HttpProxy, QStringLiteral("app"), 2)}));
    }
    // Setting a proxy removes the factory, and the other way round.
    if (source.contains(QLatin1String("own"))) {
        m_manager->setProxy(QNetworkProxy(QNetworkProxy::HttpProxy, QStringLiteral("own"), 3));
    }
    if (source == QLatin1String("factory")) {
        m_manager->setProxyFactory(new FixedFactory(
            {ftp, QNetworkProxy(QNetworkProxy::Socks5Proxy, QStringLiteral("socks"), 4)}));
    } else if (source.contains(QLatin1String("factory"))) {
        m_manager->setProxyFactory(new FixedFactory({QNetworkProxy(QNetworkProxy::NoProxy)}));
    } else if (source == QLatin1String("ftp")) {
        m_manager->setProxy(ftp);
    }
    NetworkDirRequestHttp request(QUrl(QStringLiteral("http://192.0.2.1/")));
    QCOMPARE(request.proxy().type(), QNetworkProxy::NoProxy);
    request.setManager(m_manager.get());
    QNetworkProxyFactory::setApplicationProxyFactory(nullptr);
    QTEST(int(request.proxy().type()), "type");
    QTEST(request.proxy().hostName(), "host");
}

QTEST_GUILESS_MAIN(tst_NetworkDirRequestHttp)
#include "tst_NetworkDirRequestHttp.moc"

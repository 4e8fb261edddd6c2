// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "network/XHttpReply.h"
#include "network/XNetworkAccessManager.h"
#include "tests/support/HttpServer.h"
#include "tests/support/TestAuthority.h"
#include "tests/support/WarningGuard.h"
#include "tests/support/WebServers.h"

#include <QAuthenticator>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <memory>

namespace
{

constexpr int limitMs = 10000;

using After = HttpServer::After;

QByteArray ok(const QByteArray &headers, const QByteArray &body)
{
    return "HTTP/1.1 200 OK\r\nConnection: close\r\n" + headers + "\r\n" + body;
}

QByteArray chunked(const QByteArray &body)
{
    return ok("Transfer-Encoding: chunked\r\n", body);
}

int code(const QNetworkReply *reply)
{
    return static_cast<int>(reply->error());
}

} // namespace

namespace
{

/// Answers the n-th connection with the n-th certificate. All but the last are cut right after
/// their handshake, before a request is answered.
class SwappingServer : public QTcpServer
{
public:
    explicit SwappingServer(const QList<TestAuthority::Pair> &certificates)
        : m_certificates(certificates)
    {
        listen(QHostAddress::LocalHost);
    }

    QUrl url() const { return QUrl(QStringLiteral("https://127.0.0.1:%1/x").arg(serverPort())); }
    /// What came through, of all connections.
    const QByteArray &received() const { return m_received; }
    bool areAllClosed() const
    {
        const auto sockets = findChildren<QSslSocket *>();
        return m_certificates.isEmpty()
            && std::all_of(sockets.cbegin(), sockets.cend(), [](const QSslSocket *socket) {
                   return socket->state() == QAbstractSocket::UnconnectedState;
               });
    }

protected:
    void incomingConnection(qintptr descriptor) override
    {
        auto *socket = new QSslSocket(this);
        socket->setSocketDescriptor(descriptor);
        if (m_certificates.isEmpty()) {
            socket->abort();
            return;
        }
        const TestAuthority::Pair pair = m_certificates.takeFirst();
        const bool isLast = m_certificates.isEmpty();
        socket->setLocalCertificate(pair.certificate);
        socket->setPrivateKey(pair.key, QSsl::Ec);
        connect(socket, &QSslSocket::encrypted, this, [socket, isLast] {
            if (!isLast) {
                socket->abort();
            }
        });
        connect(socket, &QIODevice::readyRead, this, [this, socket] {
            m_received += socket->readAll();
            socket->write("HTTP/1.1 200 OK\r\nContent-Length: 4\r\n\r\nevil");
        });
        socket->startServerEncryption();
    }

private:
    QList<TestAuthority::Pair> m_certificates;
    QByteArray m_received;
};

} // namespace

class tst_XHttpReply : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qRegisterMetaType<QNetworkReply *>(); }
    void init();
    void cleanup();

    void status_data();
    void status();
    void completeness_data();
    void completeness();
    void partialBodyStaysReadable();
    void tooLargeStopsTheTransfer_data();
    void tooLargeStopsTheTransfer();
    void manyHeaders_data();
    void manyHeaders();
    void silence_data();
    void silence();
    void dripsAreNoSilence();
    void looksLikeQtsReply();
    void progress();
    void oneFinalSignal_data();
    void oneFinalSignal();
    void deletedInItsOwnSlot_data();
    void deletedInItsOwnSlot();
    void managerGoesFirst();
    void authentication_data();
    void authentication();
    void abortedByTheQuestion();
    void deletedByTheQuestion();
    void certificate_data();
    void certificate();
    void everyHandshakeIsJudged_data();
    void everyHandshakeIsJudged();
    void passwordsStayOutOfTexts();
    void deletedWhileAsking_data();
    void deletedWhileAsking();
    void largeBody_data();
    void largeBody();

private:
    std::unique_ptr<QNetworkReply> get(const QUrl &url)
    {
        return std::unique_ptr<QNetworkReply>(m_manager->get(QNetworkRequest(url)));
    }
    std::unique_ptr<QNetworkReply> fetched(const QUrl &url)
    {
        auto reply = get(url);
        QSignalSpy finished(reply.get(), &QNetworkReply::finished);
        if (!finished.wait(limitMs)) {
            QTest::qFail("no end in time", __FILE__, __LINE__);
        }
        return reply;
    }

    std::unique_ptr<WarningGuard> m_guard;
    std::unique_ptr<HttpServer> m_server;
    std::unique_ptr<XNetworkAccessManager> m_manager;
};

void tst_XHttpReply::init()
{
    m_guard = std::make_unique<WarningGuard>();
    m_server = std::make_unique<HttpServer>();
    m_manager = std::make_unique<XNetworkAccessManager>();
}

void tst_XHttpReply::cleanup()
{
    m_manager.reset();
    m_server.reset();
    m_guard.reset();
}

void tst_XHttpReply::status_data()
{
    QTest::addColumn<int>("expected");
    const QList<QPair<int, int>> rows{
        {200, 0},   {201, 0},   {203, 0},   {204, 0},   {301, 0},   {302, 0},   {303, 0},
        {304, 0},   {307, 0},   {308, 0},   {400, 299}, {401, 204}, {402, 299}, {403, 201},
        {404, 203}, {405, 202}, {407, 105}, {409, 299}, {410, 299}, {418, 299}, {429, 299},
        {451, 299}, {500, 299}, {501, 301}, {502, 301}, {503, 301}, {504, 301}, {599, 301},
    };
    for (const auto &row : rows) {
        QTest::addRow("%d", row.first) << row.second;
    }
}

void tst_XHttpReply::status()
{
    QFETCH(int, expected);
    const int status = QByteArray(QTest::currentDataTag()).toInt();
    const bool empty = status == 204 || status == 304;
    QByteArray headers = "Connection: close\r\n";
    if (status == 407) {
        headers += "Proxy-Authenticate: Basic realm=\"x\"\r\n";
    }
    if (status == 401) {
        headers += "WWW-Authenticate: Basic realm=\"x\"\r\n";
    }
    if (status > 300 && status < 309) {
        headers += "Location: /elsewhere\r\n";
    }
    m_server->serveRaw(QStringLiteral("/x"),
                       "HTTP/1.1 " + QByteArray::number(status) + " Word\r\n" + headers
                           + (empty ? "\r\n" : "Content-Length: 4\r\n\r\nbody"));
    const auto reply = fetched(m_server->url(QStringLiteral("/x")));
    QCOMPARE(code(reply.get()), expected);
    QCOMPARE(reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt(), status);
    QCOMPARE(reply->attribute(QNetworkRequest::HttpReasonPhraseAttribute).toString(),
             QStringLiteral("Word"));
    if (status != 407) {
        QCOMPARE(reply->readAll(), QByteArray(empty ? "" : "body"));
    }
    for (const QByteArray &request : m_server->requests()) {
        QVERIFY(!request.contains("/elsewhere"));
    }
}

void tst_XHttpReply::completeness_data()
{
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<After>("after");
    QTest::addColumn<int>("expected");
    QTest::addColumn<QByteArray>("body");
    const auto row = [](const char *name, const QByteArray &answer, int expected,
                        const QByteArray &body = "hello", After after = After::Close) {
        QTest::newRow(name) << answer << after << expected << body;
    };
    row("whole", ok("Content-Length: 5\r\n", "hello"), 0);
    row("whole, and the connection stays", ok("Content-Length: 5\r\n", "hello"), 0, "hello",
        After::Stay);
    row("empty", ok("Content-Length: 0\r\n", ""), 0, "");
    row("without a length", ok("", "hello"), 0);
    row("short", ok("Content-Length: 9\r\n", "hello"), 2);
    row("short, then a reset", ok("Content-Length: 9\r\n", "hello"), 2, "hello", After::Reset);
    row("more than announced", ok("Content-Length: 3\r\n", "hello"), 0, "hel");
    row("negative length", ok("Content-Length: -1\r\n", "hello"), 399, "");
    row("length with a sign", ok("Content-Length: +5\r\n", "hello"), 399, "");
    row("a word for a length", ok("Content-Length: five\r\n", "hello"), 399, "");
    row("empty length", ok("Content-Length: \r\n", "hello"), 399, "");
    row("length beyond all numbers", ok("Content-Length: 99999999999999999999\r\n", "hello"), 399,
        "");
    row("two lengths", ok("Content-Length: 5\r\nContent-Length: 3\r\n", "hello"), 399, "");
    row("one length twice", ok("Content-Length: 5\r\nContent-Length: 5\r\n", "hello"), 0);
    row("one length twice, short", ok("Content-Length: 9, 9\r\n", "hello"), 2);
    row("one length twice, long", ok("Content-Length: 3, 3\r\n", "hello"), 399);

    row("chunks", chunked("5\r\nhello\r\n0\r\n\r\n"), 0);
    row("chunks with extensions", chunked("5;a=b\r\nhello\r\n0\r\n\r\n"), 0);
    row("chunks with a trailer", chunked("5\r\nhello\r\n0\r\nA: b\r\n\r\n"), 0);
    row("cut in a chunk", chunked("9\r\nhello"), 2);
    row("cut between chunks", chunked("5\r\nhello\r\n"), 2);
    row("cut before the first chunk", chunked(""), 2, "");
    row("reset in a chunk", chunked("9\r\nhello"), 2, "hello", After::Reset);
    row("no chunk", chunked("0\r\n\r\n"), 399, "");
    row("first size is a word", chunked("five\r\nhello\r\n0\r\n\r\n"), 399, "");
    row("first size is negative", chunked("-5\r\nhello\r\n0\r\n\r\n"), 399, "");
    row("first size is beyond all numbers", chunked("FFFFFFFFFFFFFFFFFF\r\nhello\r\n0\r\n\r\n"),
        399, "");
    row("chunks and another length",
        ok("Transfer-Encoding: chunked\r\nContent-Length: 7\r\n", "5\r\nhello\r\n0\r\n\r\n"), 2);
    row("chunks and a shorter length",
        ok("Transfer-Encoding: chunked\r\nContent-Length: 3\r\n", "5\r\nhello\r\n0\r\n\r\n"), 399);
    row("later size is a word, length known",
        ok("Transfer-Encoding: chunked\r\nContent-Length: 10\r\n",
           "5\r\nhello\r\nfive\r\nworld\r\n0\r\n\r\n"),
        2);

    row("gzip content", ok("Content-Encoding: gzip\r\nContent-Length: 5\r\n", "hello"), 399, "");
    row("unknown content coding", ok("Content-Encoding: x\r\nContent-Length: 5\r\n", "hello"), 399,
        "");
    row("identity content", ok("Content-Encoding: Identity\r\nContent-Length: 5\r\n", "hello"), 0);
    row("gzip transfer", ok("Transfer-Encoding: gzip, chunked\r\n", "5\r\nhello\r\n0\r\n\r\n"), 399,
        "");
    row("part of the file",
        "HTTP/1.1 206 Part\r\nContent-Range: bytes 0-4/10\r\nContent-Length: 5\r\n\r\nhello", 399,
        "");
    row("another protocol", "HTTP/1.1 101 Switching\r\n\r\n", 399, "");
    row("an interim answer first",
        "HTTP/1.1 100 Continue\r\n\r\n" + ok("Content-Length: 5\r\n", "hello"), 0);

    row("nothing at all", "", 2, "");
    row("cut in the head", "HTTP/1.1 200 OK\r\nContent-Len", 2, "");
    row("not HTTP", "SSH-2.0-x\r\n\r\n", 2, "");
    row("no head", "hello", 2, "");
    row("status is a word", "HTTP/1.1 fine OK\r\n\r\nhello", 2, "");
    row("coded error page",
        "HTTP/1.1 404 No\r\nContent-Encoding: gzip\r\nContent-Length: 5\r\n\r\nhello", 203);
    row("error page without a usable length",
        "HTTP/1.1 404 No\r\nContent-Length: five\r\nConnection: close\r\n\r\nhello", 203);

    // What cannot be told from outside Qt; a reader of the file has to notice.
    row("later size is a word", chunked("5\r\nhello\r\nfive\r\nworld\r\n0\r\n\r\n"), 0);
    row("chunk longer than its size", chunked("3\r\nhello\r\n0\r\n\r\n"), 0, "hel");
    row("reset after a body without a length", ok("", "hello"), 0, "hello", After::Reset);
}

void tst_XHttpReply::completeness()
{
    QFETCH(QByteArray, answer);
    QFETCH(After, after);
    QFETCH(int, expected);
    QFETCH(QByteArray, body);
    m_server->serveRaw(QStringLiteral("/x"), answer, after);
    const auto reply = get(m_server->url(QStringLiteral("/x")));
    QSignalSpy errors(reply.get(), &QNetworkReply::errorOccurred);
    QSignalSpy finished(reply.get(), &QNetworkReply::finished);
    QSignalSpy byManager(m_manager.get(), &QNetworkAccessManager::finished);
    QVERIFY(finished.wait(limitMs));
    QCoreApplication::processEvents();
    QCOMPARE(code(reply.get()), expected);
    QCOMPARE(errors.count(), expected == 0 ? 0 : 1);
    QCOMPARE(finished.count(), 1);
    QCOMPARE(byManager.count(), 1);
    QCOMPARE(byManager.first().value(0).value<QNetworkReply *>(), reply.get());
    QCOMPARE(reply->readAll(), body);
    // Nothing of it goes on.
    QTRY_COMPARE_WITH_TIMEOUT(m_manager->findChildren<QNetworkReply *>().size(), 1, limitMs);
}

void tst_XHttpReply::partialBodyStaysReadable()
{
    const QByteArray part(3 * 1024 * 1024, 'x');
    m_server->serveRaw(QStringLiteral("/x"), ok("Content-Length: 4000000\r\n", part));
    const auto reply = fetched(m_server->url(QStringLiteral("/x")));
    QCOMPARE(code(reply.get()), 2);
    // Qt drops what it holds when it fails.
    QVERIFY(reply->bytesAvailable() > part.size() - 1024 * 1024);
    QVERIFY(part.startsWith(reply->readAll()));
}

void tst_XHttpReply::tooLargeStopsTheTransfer_data()
{
    QTest::addColumn<QByteArray>("length");
    QTest::addColumn<bool>("ends");
    QTest::newRow("2 GiB announced") << QByteArray("2147483648") << true;
    QTest::newRow("one byte less") << QByteArray("2147483647") << false;
    QTest::newRow("2 GiB announced for an error page") << QByteArray("2147483648") << true;
    QTest::newRow("4 GiB and 5 bytes announced") << QByteArray("4294967301") << true;
}

void tst_XHttpReply::tooLargeStopsTheTransfer()
{
    QFETCH(QByteArray, length);
    QFETCH(bool, ends);
    const bool errorPage = QByteArray(QTest::currentDataTag()).contains("error page");
    m_server->serveRaw(
        QStringLiteral("/x"),
        (errorPage ? "HTTP/1.1 404 No\r\nContent-Length: " : "HTTP/1.1 200 OK\r\nContent-Length: ")
            + length + "\r\n\r\nhello",
        After::Stay);
    const auto reply = get(m_server->url(QStringLiteral("/x")));
    QSignalSpy finished(reply.get(), &QNetworkReply::finished);
    if (ends) {
        QVERIFY(finished.wait(limitMs));
        QCOMPARE(code(reply.get()), 399);
        QTRY_COMPARE_WITH_TIMEOUT(m_server->connections(), 0, limitMs);
    } else {
        QTRY_COMPARE_WITH_TIMEOUT(reply->bytesAvailable(), 5, limitMs);
        QCOMPARE(finished.count(), 0);
    }
}

void tst_XHttpReply::manyHeaders_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("expected");
    QTest::newRow("as many as are taken") << 998 << 0;
    QTest::newRow("one more") << 999 << 399;
    QTest::newRow("ten thousand") << 10000 << 399;
}

void tst_XHttpReply::manyHeaders()
{
    QFETCH(int, count);
    QFETCH(int, expected);
    QByteArray headers;
    for (int i = 0; i < count; ++i) {
        headers += "X-" + QByteArray::number(i) + ": y\r\n";
    }
    m_server->serveRaw(QStringLiteral("/x"), ok(headers + "Content-Length: 5\r\n", "hello"));
    const auto reply = fetched(m_server->url(QStringLiteral("/x")));
    QCOMPARE(code(reply.get()), expected);
}

void tst_XHttpReply::silence_data()
{
    QTest::addColumn<QByteArray>("answer");
    QTest::newRow("before any byte") << QByteArray();
    QTest::newRow("in the head") << QByteArray("HTTP/1.1 200 OK\r\nContent-");
    QTest::newRow("before the body") << ok("Content-Length: 5\r\n", "");
    QTest::newRow("in the body") << ok("Content-Length: 5\r\n", "he");
    QTest::newRow("in a chunk") << chunked("5\r\nhe");
    QTest::newRow("at the end of a body without a length") << ok("", "hello");
}

void tst_XHttpReply::silence()
{
    QFETCH(QByteArray, answer);
    m_server->serveRaw(QStringLiteral("/x"), answer, After::Stay);
    m_manager->inactivityLimit = 200;
    QElapsedTimer clock;
    clock.start();
    const auto reply = fetched(m_server->url(QStringLiteral("/x")));
    QCOMPARE(code(reply.get()), 4);
    QVERIFY(clock.elapsed() >= 200);
    QTRY_COMPARE_WITH_TIMEOUT(m_server->connections(), 0, limitMs);
}

void tst_XHttpReply::dripsAreNoSilence()
{
    m_server->serveRaw(QStringLiteral("/x"), ok("Content-Length: 60\r\n", ""), After::Drip);
    m_manager->inactivityLimit = 600;
    QElapsedTimer clock;
    clock.start();
    const auto reply = fetched(m_server->url(QStringLiteral("/x")));
    QCOMPARE(code(reply.get()), 0);
    // It took longer than any silence may.
    QVERIFY(clock.elapsed() > 600);
    QCOMPARE(reply->bytesAvailable(), 60);
}

void tst_XHttpReply::looksLikeQtsReply()
{
    m_server->serve(QStringLiteral("/x"), "hello", 302,
                    "Location: /y\r\nX-Own: a\r\nContent-Type: text/plain\r\n");
    QNetworkRequest request(m_server->url(QStringLiteral("/x")));
    request.setOriginatingObject(this);
    const std::unique_ptr<QNetworkReply> reply(m_manager->get(request));
    QVERIFY(qobject_cast<XHttpReply *>(reply.get()));
    QCOMPARE(reply->manager(), m_manager.get());
    QCOMPARE(reply->parent(), m_manager.get());
    QCOMPARE(reply->url(), request.url());
    QCOMPARE(reply->operation(), QNetworkAccessManager::GetOperation);
    QVERIFY(reply->isRunning());
    QStringList order;
    connect(reply.get(), &QNetworkReply::metaDataChanged, this, [&] {
        order.append(QStringLiteral("metaData %1")
                         .arg(reply->header(QNetworkRequest::ContentLengthHeader).toInt()));
    });
    connect(reply.get(), &QNetworkReply::readyRead, this, [&] {
        order.append(QStringLiteral("readyRead"));
    });
    connect(reply.get(), &QIODevice::readChannelFinished, this, [&] {
        order.append(QStringLiteral("readChannelFinished"));
    });
    connect(reply.get(), &QNetworkReply::finished, this, [&] {
        order.append(QStringLiteral("finished"));
    });
    QTRY_VERIFY_WITH_TIMEOUT(reply->isFinished(), limitMs);
    QCOMPARE(order,
             QStringList({QStringLiteral("metaData 5"), QStringLiteral("readyRead"),
                          QStringLiteral("readChannelFinished"), QStringLiteral("finished")}));
    QCOMPARE(reply->rawHeader("x-own"), QByteArray("a"));
    QCOMPARE(reply->header(QNetworkRequest::ContentTypeHeader).toString(),
             QStringLiteral("text/plain"));
    QCOMPARE(reply->attribute(QNetworkRequest::RedirectionTargetAttribute).toUrl(),
             QUrl(QStringLiteral("/y")));
    QCOMPARE(reply->error(), QNetworkReply::NoError);
}

void tst_XHttpReply::progress()
{
    m_server->serve(QStringLiteral("/x"), QByteArray(100000, 'x'));
    const auto reply = get(m_server->url(QStringLiteral("/x")));
    QSignalSpy progress(reply.get(), &QNetworkReply::downloadProgress);
    QTRY_VERIFY_WITH_TIMEOUT(reply->isFinished(), limitMs);
    QVERIFY(progress.count() >= 2);
    qint64 before = 0;
    for (const QList<QVariant> &step : progress) {
        QVERIFY(step.value(0).toLongLong() >= before);
        before = step.value(0).toLongLong();
        QCOMPARE(step.value(1).toLongLong(), 100000);
    }
    QCOMPARE(before, 100000);
}

void tst_XHttpReply::oneFinalSignal_data()
{
    QTest::addColumn<QString>("moment");
    QTest::addColumn<QString>("action");
    for (const char *moment : {"at once", "before the head", "at the head", "in the body",
                               "with the error", "at the end", "after the end"}) {
        for (const char *action : {"end", "break", "abort", "close", "delete", "deleteLater"}) {
            QTest::addRow("%s: %s", moment, action) << moment << action;
        }
    }
}

// What the test does itself happens in a slot of the reply, where the moment has one.
void tst_XHttpReply::oneFinalSignal()
{
    QFETCH(QString, moment);
    QFETCH(QString, action);
    const bool breaks = action == QLatin1String("break");
    const bool onError = moment == QLatin1String("with the error");
    const QByteArray length = breaks || onError ? "9" : "5";
    m_server->serveRaw(QStringLiteral("/x"), ok("Content-Length: " + length + "\r\n", "hello"));
    if (moment == QLatin1String("before the head")) {
        m_server->hold();
    }
    QPointer<QNetworkReply> reply =
        m_manager->get(QNetworkRequest(m_server->url(QStringLiteral("/x"))));
    int errors = 0;
    int finals = 0;
    int finalsOfManager = 0;
    int lastError = 0;
    bool done = false;
    const auto act = [&] {
        if (done) {
            return;
        }
        done = true;
        if (action == QLatin1String("abort")) {
            reply->abort();
        } else if (action == QLatin1String("close")) {
            reply->close();
        } else if (action == QLatin1String("delete")) {
            delete reply.data();
        } else if (action == QLatin1String("deleteLater")) {
            reply->deleteLater();
        }
    };
    connect(reply.data(), &QNetworkReply::errorOccurred, this,
            [&](QNetworkReply::NetworkError error) {
                ++errors;
                lastError = error;
            });
    connect(m_manager.get(), &QNetworkAccessManager::finished, this, [&] {
        ++finalsOfManager;
    });
    connect(reply.data(), &QNetworkReply::finished, this, [&] {
        ++finals;
    });
    if (moment == QLatin1String("at once")) {
        act();
    } else if (moment == QLatin1String("before the head")) {
        QTRY_COMPARE_WITH_TIMEOUT(m_server->waiting(), 1, limitMs);
        act();
        m_server->release();
    } else if (moment == QLatin1String("at the head")) {
        connect(reply.data(), &QNetworkReply::metaDataChanged, this, act);
    } else if (moment == QLatin1String("in the body")) {
        connect(reply.data(), &QNetworkReply::readyRead, this, act);
    } else if (onError) {
        connect(reply.data(), &QNetworkReply::errorOccurred, this, act);
    } else if (moment == QLatin1String("at the end")) {
        connect(reply.data(), &QNetworkReply::finished, this, act);
    }
    if (moment == QLatin1String("after the end")) {
        QTRY_VERIFY_WITH_TIMEOUT(reply->isFinished(), limitMs);
        act();
    }
    const bool deletes = action.startsWith(QLatin1String("delete"));
    QTRY_VERIFY_WITH_TIMEOUT(done && (deletes ? reply.isNull() : reply->isFinished()), limitMs);
    // Qt's own reply is released in every case, and with it the connection.
    QTRY_COMPARE_WITH_TIMEOUT(m_manager->findChildren<QNetworkReply *>().size(), deletes ? 0 : 1,
                              limitMs);
    QTRY_COMPARE_WITH_TIMEOUT(m_server->connections(), 0, limitMs);

    const bool atEnd =
        moment == QLatin1String("at the end") || moment == QLatin1String("after the end");
    if (action == QLatin1String("delete") && !atEnd) {
        QCOMPARE(finals, 0);
        QCOMPARE(errors, onError ? 1 : 0);
    } else if (action == QLatin1String("deleteLater") && !atEnd && !onError) {
        QVERIFY(finals <= 1);
    } else {
        QCOMPARE(finals, 1);
        const bool ends = action == QLatin1String("end") || atEnd || deletes;
        const int expected = breaks || onError ? 2 : ends ? 0 : 5;
        if (action == QLatin1String("close") && lastError == 0) {
            // The end was on its way.
            QVERIFY(moment == QLatin1String("at the head") || moment == QLatin1String("in the body")
                    || atEnd);
        } else {
            QCOMPARE(lastError, expected);
        }
        QCOMPARE(errors, lastError == 0 ? 0 : 1);
    }
    QVERIFY(finalsOfManager <= 1);
    if (!deletes) {
        QCOMPARE(finalsOfManager, 1);
        delete reply.data();
    }
}

void tst_XHttpReply::deletedInItsOwnSlot_data()
{
    QTest::addColumn<QString>("signal");
    for (const char *signal : {"metaDataChanged", "readyRead", "progress", "readChannelFinished",
                               "error", "finished", "manager's finished"}) {
        QTest::newRow(signal) << signal;
    }
}

void tst_XHttpReply::deletedInItsOwnSlot()
{
    QFETCH(QString, signal);
    m_server->serveRaw(QStringLiteral("/x"),
                       ok("Content-Length: 900000\r\n", QByteArray(800000, 'x')));
    QPointer<QNetworkReply> reply =
        m_manager->get(QNetworkRequest(m_server->url(QStringLiteral("/x"))));
    const auto remove = [&] {
        delete reply.data();
    };
    if (signal == QLatin1String("metaDataChanged")) {
        connect(reply.data(), &QNetworkReply::metaDataChanged, this, remove);
    } else if (signal == QLatin1String("readyRead")) {
        connect(reply.data(), &QNetworkReply::readyRead, this, remove);
    } else if (signal == QLatin1String("progress")) {
        connect(reply.data(), &QNetworkReply::downloadProgress, this, remove);
    } else if (signal == QLatin1String("readChannelFinished")) {
        connect(reply.data(), &QIODevice::readChannelFinished, this, remove);
    } else if (signal == QLatin1String("error")) {
        connect(reply.data(), &QNetworkReply::errorOccurred, this, remove);
    } else if (signal == QLatin1String("finished")) {
        connect(reply.data(), &QNetworkReply::finished, this, remove);
    } else {
        connect(m_manager.get(), &QNetworkAccessManager::finished, this,
                [](QNetworkReply *finished) {
                    finished->deleteLater();
                });
    }
    QTRY_VERIFY_WITH_TIMEOUT(reply.isNull(), limitMs);
    QTRY_VERIFY_WITH_TIMEOUT(m_manager->findChildren<QNetworkReply *>().isEmpty(), limitMs);
    QTRY_COMPARE_WITH_TIMEOUT(m_server->connections(), 0, limitMs);
}

void tst_XHttpReply::managerGoesFirst()
{
    m_server->serveRaw(QStringLiteral("/x"), ok("Content-Length: 9\r\n", "hello"), After::Stay);
    QPointer<QNetworkReply> reply =
        m_manager->get(QNetworkRequest(m_server->url(QStringLiteral("/x"))));
    QTRY_COMPARE_WITH_TIMEOUT(reply->bytesAvailable(), 5, limitMs);
    m_manager.reset();
    QVERIFY(!reply);
    QTRY_COMPARE_WITH_TIMEOUT(m_server->connections(), 0, limitMs);
}

void tst_XHttpReply::authentication_data()
{
    QTest::addColumn<QString>("password");
    QTest::addColumn<int>("expected");
    QTest::newRow("right") << QStringLiteral("secret") << 0;
    QTest::newRow("wrong") << QStringLiteral("guess") << 204;
}

void tst_XHttpReply::authentication()
{
    QFETCH(QString, password);
    QFETCH(int, expected);
    m_server->serve(QStringLiteral("/x"), "hello");
    m_server->protect(QStringLiteral("user"), QStringLiteral("secret"));
    const auto reply = get(m_server->url(QStringLiteral("/x")));
    int questions = 0;
    connect(m_manager.get(), &QNetworkAccessManager::authenticationRequired, this,
            [&](QNetworkReply *asking, QAuthenticator *authenticator) {
                QCOMPARE(XHttpReply::outer(asking), reply.get());
                QCOMPARE(XHttpReply::outer(reply.get()), reply.get());
                QCOMPARE(asking->url(), reply->url());
                if (++questions == 1) {
                    authenticator->setUser(QStringLiteral("user"));
                    authenticator->setPassword(password);
                }
            });
    QTRY_VERIFY_WITH_TIMEOUT(reply->isFinished(), limitMs);
    QCOMPARE(code(reply.get()), expected);
    QCOMPARE(questions, expected == 0 ? 1 : 2);
    QCOMPARE(reply->readAll(), QByteArray(expected == 0 ? "hello" : "who?"));
}

void tst_XHttpReply::abortedByTheQuestion()
{
    m_server->protect(QStringLiteral("user"), QStringLiteral("secret"));
    const auto reply = get(m_server->url(QStringLiteral("/x")));
    QSignalSpy finished(reply.get(), &QNetworkReply::finished);
    connect(m_manager.get(), &QNetworkAccessManager::authenticationRequired, this,
            [](QNetworkReply *asking) {
                // Whichever of the two a receiver has.
                asking->abort();
            });
    QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, limitMs);
    QCOMPARE(code(reply.get()), 5);
}

void tst_XHttpReply::deletedByTheQuestion()
{
    m_server->serve(QStringLiteral("/x"), "hello");
    m_server->hold();
    const auto reply = get(m_server->url(QStringLiteral("/x")));
    QSignalSpy finished(reply.get(), &QNetworkReply::finished);
    QTRY_COMPARE_WITH_TIMEOUT(m_server->waiting(), 1, limitMs);
    const auto replies = m_manager->findChildren<QNetworkReply *>();
    QCOMPARE(replies.size(), 2);
    delete (replies.first() == reply.get() ? replies.last() : replies.first());
    QCOMPARE(finished.count(), 1);
    QCOMPARE(code(reply.get()), 5);
}

void tst_XHttpReply::certificate_data()
{
    QTest::addColumn<QString>("answer");
    QTest::addColumn<int>("expected");
    QTest::newRow("ignored") << "all" << 0;
    QTest::newRow("these errors ignored") << "list" << 0;
    QTest::newRow("refused") << "none" << 6;
    // Before the question nobody has seen what is wrong.
    QTest::newRow("ignored from the start") << "before" << 6;
    QTest::newRow("aborted") << "abort" << 5;
    QTest::newRow("ignored after a long dialog") << "late" << 0;
}

void tst_XHttpReply::certificate()
{
    QFETCH(QString, answer);
    QFETCH(int, expected);
    TestAuthority authority;
    NginxServer server;
    server.setCertificate(authority.issue());
    QVERIFY2(server.start(), server.report());
    m_manager->inactivityLimit = answer == QLatin1String("late") ? 500 : 10000;
    const auto reply = get(server.tlsUrl());
    QSignalSpy encrypted(m_manager.get(), &QNetworkAccessManager::encrypted);
    QSignalSpy errors(reply.get(), &QNetworkReply::errorOccurred);
    QSignalSpy finished(reply.get(), &QNetworkReply::finished);
    if (answer == QLatin1String("before")) {
        reply->ignoreSslErrors();
    }
    int questions = 0;
    connect(m_manager.get(), &QNetworkAccessManager::sslErrors, this,
            [&](QNetworkReply *asking, const QList<QSslError> &found) {
                ++questions;
                QCOMPARE(asking, reply.get());
                QVERIFY(!found.isEmpty());
                QVERIFY(!asking->sslConfiguration().peerCertificate().isNull());
                if (answer == QLatin1String("all")) {
                    asking->ignoreSslErrors();
                } else if (answer == QLatin1String("list")) {
                    asking->ignoreSslErrors(found);
                } else if (answer == QLatin1String("abort")) {
                    asking->abort();
                } else if (answer == QLatin1String("late")) {
                    QEventLoop dialog;
                    QTimer::singleShot(1200, &dialog, &QEventLoop::quit);
                    dialog.exec();
                    QVERIFY(asking->isRunning());
                    asking->ignoreSslErrors();
                }
            });
    QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, limitMs);
    QCOMPARE(questions, 1);
    QCOMPARE(code(reply.get()), expected);
    QCOMPARE(errors.count(), expected == 0 ? 0 : 1);
    if (expected == 0) {
        QCOMPARE(encrypted.count(), 1);
        QCOMPARE(encrypted.first().value(0).value<QNetworkReply *>(), reply.get());
        QVERIFY(reply->attribute(QNetworkRequest::ConnectionEncryptedAttribute).toBool());
        QVERIFY(reply->bytesAvailable() > 0);
        // Also when Qt's own reply has gone.
        QVERIFY(!reply->sslConfiguration().peerCertificate().isNull());
    }
}

void tst_XHttpReply::everyHandshakeIsJudged_data()
{
    QTest::addColumn<bool>("sameAuthority");
    QTest::addColumn<bool>("listed");
    QTest::newRow("another certificate of the same authority") << true << false;
    QTest::newRow("another certificate of the same authority, errors by list") << true << true;
    QTest::newRow("a certificate of another authority") << false << false;
    QTest::newRow("a certificate of another authority, errors by list") << false << true;
}

// The server is cut after the first handshake, and somebody else answers the second.
void tst_XHttpReply::everyHandshakeIsJudged()
{
    QFETCH(bool, sameAuthority);
    QFETCH(bool, listed);
    TestAuthority authority;
    TestAuthority other(QStringLiteral("Another authority"));
    const TestAuthority::Pair own = authority.issue();
    SwappingServer server({own, (sameAuthority ? authority : other).issue()});
    const QByteArray accepted = TestAuthority::read(own.certificate).toDer();
    const auto reply = get(server.url());
    QSignalSpy finished(reply.get(), &QNetworkReply::finished);
    int questions = 0;
    int answers = 0;
    connect(m_manager.get(), &QNetworkAccessManager::sslErrors, this,
            [&](QNetworkReply *asking, const QList<QSslError> &found) {
                ++questions;
                if (asking->sslConfiguration().peerCertificate().toDer() != accepted) {
                    return;
                }
                ++answers;
                if (listed) {
                    asking->ignoreSslErrors(found);
                } else {
                    asking->ignoreSslErrors();
                }
            });
    QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, limitMs);
    QCOMPARE(answers, 1);
    QCOMPARE(questions, 2);
    QCOMPARE(code(reply.get()), 6);
    QCOMPARE(reply->bytesAvailable(), qint64(0));
    // Not a byte of the request, which may hold a login.
    QTRY_VERIFY(server.areAllClosed());
    QCOMPARE(server.received(), QByteArray());
}

void tst_XHttpReply::deletedWhileAsking_data()
{
    QTest::addColumn<bool>("later");
    QTest::newRow("deleted") << false;
    QTest::newRow("deleteLater in the dialog's event loop") << true;
}

void tst_XHttpReply::passwordsStayOutOfTexts()
{
    m_server->serve(QStringLiteral("/x"), "gone", 404);
    QUrl url = m_server->url(QStringLiteral("/x"));
    url.setUserName(QStringLiteral("me"));
    url.setPassword(QStringLiteral("secret word"));
    const auto reply = get(url);
    QTRY_VERIFY_WITH_TIMEOUT(reply->isFinished(), limitMs);
    QCOMPARE(code(reply.get()), 203);
    QVERIFY(reply->errorString().contains(QStringLiteral("me@")));
    QVERIFY2(!reply->errorString().contains(QStringLiteral("secret")),
             qPrintable(reply->errorString()));
}

void tst_XHttpReply::deletedWhileAsking()
{
    QFETCH(bool, later);
    TestAuthority authority;
    NginxServer server;
    server.setCertificate(authority.issue());
    QVERIFY2(server.start(), server.report());
    QPointer<QNetworkReply> reply = m_manager->get(QNetworkRequest(server.tlsUrl()));
    bool asked = false;
    // Before the manager's own relay, which has the reply in its hands.
    connect(reply.data(), &QNetworkReply::sslErrors, this, [&] {
        asked = true;
        if (!later) {
            delete reply.data();
            return;
        }
        QEventLoop dialog;
        QTimer::singleShot(0, &dialog, [&] {
            reply->deleteLater();
        });
        QTimer::singleShot(200, &dialog, &QEventLoop::quit);
        dialog.exec();
        QVERIFY(!reply);
    });
    QTRY_VERIFY_WITH_TIMEOUT(asked && !reply, limitMs);
    QTRY_VERIFY_WITH_TIMEOUT(m_manager->findChildren<QNetworkReply *>().isEmpty(), limitMs);
}

void tst_XHttpReply::largeBody_data()
{
    QTest::addColumn<bool>("announced");
    QTest::addColumn<bool>("inChunks");
    QTest::newRow("with a length") << true << false;
    QTest::newRow("in chunks") << false << true;
    QTest::newRow("without a length") << false << false;
}

// Qt reads ahead no further than it is told to: nothing may get lost when the server closes first.
void tst_XHttpReply::largeBody()
{
    QFETCH(bool, announced);
    QFETCH(bool, inChunks);
    QByteArray body(20 * 1024 * 1024 + 3, Qt::Uninitialized);
    int position = 0;
    for (char &byte : body) {
        byte = static_cast<char>(position * 7 + (position >> 10));
        ++position;
    }
    QByteArray answer = "HTTP/1.1 200 OK\r\nConnection: close\r\n";
    if (announced) {
        answer += "Content-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" + body;
    } else if (inChunks) {
        answer += "Transfer-Encoding: chunked\r\n\r\n";
        for (int at = 0; at < body.size(); at += 100000) {
            const QByteArray piece = body.mid(at, 100000);
            answer += QByteArray::number(piece.size(), 16) + "\r\n" + piece + "\r\n";
        }
        answer += "0\r\n\r\n";
    } else {
        answer += "\r\n" + body;
    }
    m_server->serveRaw(QStringLiteral("/x"), answer);
    const auto reply = get(m_server->url(QStringLiteral("/x")));
    bool slow = true;
    connect(reply.get(), &QNetworkReply::readyRead, this, [&] {
        // An unpacked archive once stopped the event loop for a while.
        if (slow) {
            slow = false;
            QTest::qSleep(300);
        }
    });
    QTRY_VERIFY_WITH_TIMEOUT(reply->isFinished(), limitMs);
    QCOMPARE(code(reply.get()), 0);
    QCOMPARE(reply->bytesAvailable(), body.size());
    QVERIFY(reply->readAll() == body);
}

QTEST_GUILESS_MAIN(tst_XHttpReply)
#include "tst_XHttpReply.moc"

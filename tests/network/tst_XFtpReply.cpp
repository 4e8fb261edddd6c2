// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "network/XFtpReply.h"
#include "network/XNetworkAccessManager.h"
#include "tests/support/EventLoop.h"
#include "tests/support/FtpServers.h"
#include "tests/support/LogFile.h"
#include "tests/support/WarningGuard.h"

#include <QAuthenticator>
#include <QPointer>
#include <QTcpServer>
#include <QtTest>

namespace
{

constexpr int shortLimitMs = 1000;
constexpr int waitMs = 30000;

/// One download, with a count of everything that its reply says.
class Download : public QObject
{
public:
    explicit Download(const QUrl &url, int limitMs = waitMs)
        : reply(new XFtpReply(&manager, QNetworkRequest(url)))
    {
        reply->setInactivityLimit(limitMs);
        connect(&manager, &QNetworkAccessManager::authenticationRequired, this,
                [this](QNetworkReply *asking, QAuthenticator *auth) {
                    wasAskedByReply = asking == reply;
                    offered.append(auth->user());
                    if (onQuestion) {
                        onQuestion(auth);
                    }
                });
        connect(reply, &QNetworkReply::errorOccurred, this, [this] {
            ++errors;
        });
        connect(reply, &QNetworkReply::finished, this, [this] {
            ++ends;
        });
        connect(reply, &QNetworkReply::downloadProgress, this, [this](qint64 done, qint64 all) {
            received = done;
            total = all;
        });
    }

    /// Ended, and nothing more comes after that, not even when the server is gone.
    bool endsOnce(FtpServer *server = nullptr)
    {
        if (ends == 0 && !QSignalSpy(reply, &QNetworkReply::finished).wait(waitMs)) {
            return false;
        }
        if (server) {
            server->stop();
        }
        runUntilIdle();
        return ends == 1 && errors == (code() == 0 ? 0 : 1) && reply->isFinished();
    }

    int code() const { return static_cast<int>(reply->error()); }

    XNetworkAccessManager manager;
    QPointer<XFtpReply> reply;
    std::function<void(QAuthenticator *)> onQuestion;
    QStringList offered;
    bool wasAskedByReply = false;
    int ends = 0;
    int errors = 0;
    qint64 received = 0;
    qint64 total = 0;
};

QByteArray bytes(int size)
{
    QByteArray result(size, '\0');
    unsigned int state = 1;
    for (char &byte : result) {
        state = state * 1103515245U + 12345U;
        byte = static_cast<char>(state >> 16U);
    }
    return result;
}

void giveRightLogin(QAuthenticator *auth)
{
    auth->setUser(QStringLiteral("joe"));
    auth->setPassword(QStringLiteral("secret word"));
}

void wantLogin(FtpScriptServer *server)
{
    server->addUser(QStringLiteral("joe"), QStringLiteral("secret word"));
    server->refuseAnonymous();
    server->write("a.deb", "a");
    server->write("b.deb", "b");
}

} // namespace

class tst_XFtpReply : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fetchesBytes_data();
    void fetchesBytes();
    void comesFromTheManager();
    void tellsProgress();
    void progressWithoutASize();
    void pathIsSentAsItStands_data();
    void pathIsSentAsItStands();
    void failures_data();
    void failures();
    void silentServers();
    void nobodyListens();
    void lineBreakInANameIsNotSent();
    void shortFileIsAnError();
    void tooLargeFileIsAnError();
    void asksForALogin();
    void questionHasNoLimit();
    void loginOfTheUrlIsNotAskedFor();
    void cancelledQuestionEndsIt();
    void passwordIsNeverShown();
    void abortEndsItOnce_data();
    void abortEndsItOnce();
    void mayBeDeleted_data();
    void mayBeDeleted();
    void usesAnFtpProxy();
};

void tst_XFtpReply::fetchesBytes_data()
{
    QTest::addColumn<int>("size");
    QTest::newRow("nothing") << 0;
    QTest::newRow("one byte") << 1;
    QTest::newRow("with line ends and NULs") << 100 * 1000;
    QTest::newRow("more than is kept in memory") << 5 * 1024 * 1024 + 1;
}

void tst_XFtpReply::fetchesBytes()
{
    QFETCH(int, size);
    WarningGuard guard;
    const QByteArray content = bytes(size);
    FtpScriptServer server;
    QVERIFY(server.write("a.deb", content));
    QVERIFY2(server.start(), server.report());
    Download download(server.url(QStringLiteral("/a.deb")));
    QVERIFY(!download.reply->isFinished());
    QVERIFY(download.endsOnce());
    QCOMPARE(download.code(), 0);
    QVERIFY(download.reply->readAll() == content);
    QCOMPARE(download.reply->operation(), QNetworkAccessManager::GetOperation);
}

void tst_XFtpReply::comesFromTheManager()
{
    FtpScriptServer server;
    QVERIFY(server.write("a.deb", "abc"));
    QVERIFY2(server.start(), server.report());
    XNetworkAccessManager manager;
    QNetworkReply *finished = nullptr;
    connect(&manager, &QNetworkAccessManager::finished, this, [&](QNetworkReply *reply) {
        finished = reply;
    });
    QNetworkReply *reply = manager.get(QNetworkRequest(server.url(QStringLiteral("/a.deb"))));
    QVERIFY(qobject_cast<XFtpReply *>(reply));
    QCOMPARE(reply->manager(), &manager);
    QTRY_COMPARE_WITH_TIMEOUT(finished, reply, waitMs);
    QCOMPARE(reply->readAll(), QByteArray("abc"));
}

void tst_XFtpReply::tellsProgress()
{
    constexpr int size = 300000;
    FtpScriptServer server;
    QVERIFY(server.write("a.deb", bytes(size)));
    QVERIFY2(server.start(), server.report());
    Download download(server.url(QStringLiteral("/a.deb")));
    QVERIFY(download.endsOnce());
    QCOMPARE(download.received, qint64(size));
    QCOMPARE(download.total, qint64(size));
    QCOMPARE(download.reply->header(QNetworkRequest::ContentLengthHeader).toInt(), size);
}

void tst_XFtpReply::progressWithoutASize()
{
    FtpScriptServer server;
    server.refuse(QStringLiteral("SIZE"), QStringLiteral("502 What?"));
    QVERIFY(server.write("a.deb", "abc"));
    QVERIFY2(server.start(), server.report());
    Download download(server.url(QStringLiteral("/a.deb")));
    QVERIFY(download.endsOnce());
    QCOMPARE(download.code(), 0);
    QCOMPARE(download.received, qint64(3));
    QCOMPARE(download.reply->readAll(), QByteArray("abc"));
}

void tst_XFtpReply::pathIsSentAsItStands_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QByteArray>("command");
    QTest::newRow("plain") << QStringLiteral("/sub/a") << QByteArray("RETR /sub/a");
    QTest::newRow("doubled slash") << QStringLiteral("/sub//a") << QByteArray("RETR /sub//a");
    QTest::newRow("doubled slash in front")
        << QStringLiteral("//sub/a") << QByteArray("RETR //sub/a");
    QTest::newRow("escapes") << QStringLiteral("/a%20b%25c%23d%3Fe;type=i")
                             << QByteArray("RETR /a b%c#d?e;type=i");
    QTest::newRow("Latin-1") << QStringLiteral("/d%E4r") << QByteArray("RETR /d\xE4r");
    QTest::newRow("UTF-8") << QStringLiteral("/d%C3%A4r") << QByteArray("RETR /d\xC3\xA4r");
}

void tst_XFtpReply::pathIsSentAsItStands()
{
    QFETCH(QString, path);
    QFETCH(QByteArray, command);
    FtpScriptServer server;
    // Where the login leads must not matter.
    QVERIFY(server.makeDir("home") && server.makeDir("sub") && server.write("sub/a", "a"));
    server.setLoginDirectory(QStringLiteral("/home"));
    QVERIFY2(server.start(), server.report());
    Download download(server.url(path));
    QVERIFY(download.endsOnce());
    QCOMPARE(server.count(command), 1);
    if (path.contains(QLatin1String("sub"))) {
        QCOMPARE(download.reply->readAll(), QByteArray("a"));
    } else {
        QCOMPARE(download.code(), 203);
    }
}

void tst_XFtpReply::failures_data()
{
    QTest::addColumn<QString>("how");
    QTest::addColumn<QString>("step");
    QTest::addColumn<QString>("answer");
    QTest::addColumn<int>("code");
    const auto row = [](const char *how, const char *step, const char *answer, int code) {
        QTest::addRow("%s: %s %s", step, how, answer)
            << QString::fromLatin1(how) << QString::fromLatin1(step) << QString::fromLatin1(answer)
            << code;
    };
    row("refuse", "CONNECT", "421 Too many.", 1);
    row("refuse", "USER", "530 No.", 204);
    row("refuse", "PASS", "530 No.", 204);
    row("refuse", "TYPE", "500 No.", 399);
    row("refuse", "SIZE", "550 No.", 0);
    row("refuse", "EPSV", "500 No.", 0);
    row("refuse", "PASV", "500 No.", 0);
    row("refuse", "RETR", "550 No such file or directory.", 203);
    row("refuse", "RETR", "550 Failed to open file.", 203);
    row("refuse", "RETR", "450 Busy.", 203);
    row("refuse", "RETR", "550 a.deb: Permission denied.", 201);
    row("refuse", "RETR", "550 Not enough privileges.", 201);
    row("refuse", "RETR", "553 Not allowed.", 201);
    row("refuse", "RETR", "530 Log in first.", 201);
    row("refuse", "RETR", "425 No data connection.", 2);
    row("refuse", "RETR", "426 Aborted.", 2);
    row("refuse", "RETR", "451 Disk trouble.", 399);
    row("refuse", "RETR", "502 What?", 399);
    row("refuse", "RETR", "421 Going down.", 2);
    row("drop", "CONNECT", "", 1);
    row("drop", "USER", "", 2);
    row("drop", "PASS", "", 2);
    row("drop", "SIZE", "", 2);
    row("drop", "RETR", "", 2);
    row("drop", "DATA", "", 2);
    row("drop", "QUIT", "", 0);
}

void tst_XFtpReply::failures()
{
    QFETCH(QString, how);
    QFETCH(QString, step);
    QFETCH(QString, answer);
    QFETCH(int, code);
    WarningGuard guard;
    FtpScriptServer server;
    QVERIFY(server.write("a.deb", "abc"));
    if (how == QLatin1String("refuse")) {
        server.refuse(step, answer);
    } else {
        server.drop(step);
    }
    QVERIFY2(server.start(), server.report());
    Download download(server.url(QStringLiteral("/a.deb")));
    QVERIFY(download.endsOnce(&server));
    QCOMPARE(download.code(), code);
    if (code == 0) {
        QCOMPARE(download.reply->readAll(), QByteArray("abc"));
    } else {
        QVERIFY(!download.reply->errorString().isEmpty());
        QCOMPARE(download.reply->bytesAvailable(), qint64(0));
    }
}

// Side by side: each takes as long as the limit.
void tst_XFtpReply::silentServers()
{
    struct Silence {
        const char *step;
        int code;
        FtpScriptServer server;
        std::unique_ptr<Download> download;
    };
    WarningGuard guard;
    std::vector<std::unique_ptr<Silence>> silences;
    for (const char *step : {"CONNECT", "USER", "PASS", "SIZE", "RETR", "DATA", "QUIT"}) {
        // At QUIT the file is complete.
        silences.emplace_back(new Silence{step, qstrcmp(step, "QUIT") == 0 ? 0 : 4, {}, {}});
        FtpScriptServer &server = silences.back()->server;
        QVERIFY(server.write("a.deb", "abc"));
        server.stall(QLatin1String(step));
        QVERIFY2(server.start(), server.report());
    }
    for (const auto &silence : silences) {
        silence->download =
            std::make_unique<Download>(silence->server.url(QStringLiteral("/a.deb")), shortLimitMs);
    }
    for (const auto &silence : silences) {
        Download &download = *silence->download;
        QVERIFY2(download.endsOnce(), silence->step);
        QVERIFY2(download.code() == silence->code, silence->step);
        QVERIFY2(download.reply->readAll() == (silence->code == 0 ? "abc" : ""), silence->step);
        QVERIFY2(silence->code == 0 || !download.reply->errorString().isEmpty(), silence->step);
    }
    // A limit that began anew at an end would be over before that of one that began later.
    Download later(silences.front()->server.url(QStringLiteral("/a.deb")), shortLimitMs);
    QVERIFY(later.endsOnce(&silences.front()->server));
    for (const auto &silence : silences) {
        QVERIFY2(silence->download->endsOnce(&silence->server), silence->step);
    }
}

void tst_XFtpReply::nobodyListens()
{
    QUrl url;
    {
        QTcpServer gone;
        QVERIFY(gone.listen(QHostAddress::LocalHost));
        url = QUrl(QStringLiteral("ftp://127.0.0.1:%1/a").arg(gone.serverPort()));
    }
    Download download(url);
    QVERIFY(download.endsOnce());
    QCOMPARE(download.code(), 1);
}

void tst_XFtpReply::lineBreakInANameIsNotSent()
{
    FtpScriptServer server;
    QVERIFY2(server.start(), server.report());
    Download download(server.url(QStringLiteral("/a%0D%0ANOOP")));
    QVERIFY(download.endsOnce());
    QCOMPARE(download.code(), 203);
    QCOMPARE(server.count("NOOP"), 0);
}

void tst_XFtpReply::shortFileIsAnError()
{
    FtpScriptServer server;
    server.cutFilesAt(1000);
    QVERIFY(server.write("a.deb", bytes(5000)));
    QVERIFY2(server.start(), server.report());
    Download download(server.url(QStringLiteral("/a.deb")));
    QVERIFY(download.endsOnce());
    QCOMPARE(download.code(), 2);
}

void tst_XFtpReply::tooLargeFileIsAnError()
{
    FtpScriptServer server;
    QVERIFY(server.write("a.deb", bytes(5000)));
    QVERIFY2(server.start(), server.report());
    Download download(server.url(QStringLiteral("/a.deb")));
    download.reply->setBodyLimit(5000);
    QVERIFY(download.endsOnce());
    QCOMPARE(download.code(), 399);
}

void tst_XFtpReply::asksForALogin()
{
    FtpScriptServer server;
    wantLogin(&server);
    QVERIFY2(server.start(), server.report());
    Download download(server.url(QStringLiteral("/a.deb")));
    download.onQuestion = giveRightLogin;
    QVERIFY(download.endsOnce());
    QCOMPARE(download.code(), 0);
    QVERIFY(download.wasAskedByReply);
    QCOMPARE(download.offered, QStringList{QStringLiteral("anonymous")});
    QCOMPARE(download.reply->readAll(), QByteArray("a"));

    Download sibling(server.url(QStringLiteral("/b.deb")));
    QVERIFY(sibling.endsOnce());
    QCOMPARE(sibling.offered, QStringList());
    QCOMPARE(sibling.reply->readAll(), QByteArray("b"));

    FtpScriptServer other;
    wantLogin(&other);
    QVERIFY2(other.start(), other.report());
    Download elsewhere(other.url(QStringLiteral("/a.deb")));
    QVERIFY(elsewhere.endsOnce());
    QCOMPARE(elsewhere.code(), 204);
    QCOMPARE(other.count("USER joe"), 0);
}

void tst_XFtpReply::questionHasNoLimit()
{
    FtpScriptServer server;
    wantLogin(&server);
    QVERIFY2(server.start(), server.report());
    FtpScriptServer silent;
    silent.stall(QStringLiteral("CONNECT"));
    QVERIFY2(silent.start(), silent.report());
    Download download(server.url(QStringLiteral("/a.deb")), shortLimitMs);
    int siblingsCode = 0;
    download.onQuestion = [&](QAuthenticator *auth) {
        // One that begins now reaches the same limit before the answer is given.
        Download sibling(silent.url(QStringLiteral("/a.deb")), shortLimitMs);
        sibling.endsOnce();
        siblingsCode = sibling.code();
        giveRightLogin(auth);
    };
    QVERIFY(download.endsOnce());
    QCOMPARE(siblingsCode, 4);
    QCOMPARE(download.code(), 0);
}

void tst_XFtpReply::loginOfTheUrlIsNotAskedFor()
{
    FtpScriptServer server;
    wantLogin(&server);
    QVERIFY2(server.start(), server.report());
    QUrl url = server.url(QStringLiteral("/a.deb"));
    url.setUserName(QStringLiteral("joe"));
    url.setPassword(QStringLiteral("secret word"), QUrl::DecodedMode);
    Download right(url);
    QVERIFY(right.endsOnce());
    QCOMPARE(right.code(), 0);
    url.setPassword(QStringLiteral("wrong"));
    Download wrong(url);
    wrong.onQuestion = giveRightLogin;
    QVERIFY(wrong.endsOnce());
    QCOMPARE(wrong.code(), 204);
    QCOMPARE(wrong.offered, QStringList());
}

void tst_XFtpReply::cancelledQuestionEndsIt()
{
    FtpScriptServer server;
    wantLogin(&server);
    QVERIFY2(server.start(), server.report());
    Download download(server.url(QStringLiteral("/a.deb")));
    download.onQuestion = [](QAuthenticator *auth) {
        auth->setUser(QString());
        auth->setPassword(QString());
    };
    QVERIFY(download.endsOnce());
    QCOMPARE(download.code(), 204);
    QCOMPARE(download.offered.size(), 1);
    QCOMPARE(server.count("CONNECT"), 1);
}

void tst_XFtpReply::passwordIsNeverShown()
{
    const LogFile log;
    FtpScriptServer server;
    wantLogin(&server);
    server.refuse(QStringLiteral("RETR"), QStringLiteral("500 secret word, is it?"));
    QVERIFY2(server.start(), server.report());
    QUrl url = server.url(QStringLiteral("/a.deb"));
    url.setUserName(QStringLiteral("joe"));
    url.setPassword(QStringLiteral("secret word"), QUrl::DecodedMode);
    Download download(url);
    QVERIFY(download.endsOnce());
    QCOMPARE(download.code(), 399);
    QVERIFY2(!download.reply->errorString().contains(QLatin1String("secret")),
             qPrintable(download.reply->errorString()));
    QVERIFY(!log.raw().contains("secret"));
}

void tst_XFtpReply::abortEndsItOnce_data()
{
    QTest::addColumn<QString>("step");
    QTest::addColumn<QByteArray>("seen");
    QTest::newRow("before it began") << QStringLiteral("CONNECT") << QByteArray();
    QTest::newRow("connecting") << QStringLiteral("CONNECT") << QByteArray("CONNECT");
    QTest::newRow("logging in") << QStringLiteral("USER") << QByteArray("USER anonymous");
    QTest::newRow("asking for the size") << QStringLiteral("SIZE") << QByteArray("SIZE /a.deb");
    QTest::newRow("asking for the file") << QStringLiteral("RETR") << QByteArray("RETR /a.deb");
    QTest::newRow("receiving") << QStringLiteral("DATA") << QByteArray("RETR /a.deb");
}

void tst_XFtpReply::abortEndsItOnce()
{
    QFETCH(QString, step);
    QFETCH(QByteArray, seen);
    WarningGuard guard;
    FtpScriptServer server;
    server.stall(step);
    QVERIFY(server.write("a.deb", "abc"));
    QVERIFY2(server.start(), server.report());
    Download download(server.url(QStringLiteral("/a.deb")));
    if (!seen.isEmpty()) {
        QTRY_COMPARE_WITH_TIMEOUT(server.count(seen), 1, waitMs);
    }
    download.reply->abort();
    QCOMPARE(download.ends, 1);
    QCOMPARE(download.code(), 5);
    download.reply->abort();
    QVERIFY(download.endsOnce(&server));
}

void tst_XFtpReply::mayBeDeleted_data()
{
    QTest::addColumn<QString>("when");
    for (const char *when : {"question", "error", "end", "first bytes", "progress"}) {
        QTest::newRow(when) << QString::fromLatin1(when);
    }
}

void tst_XFtpReply::mayBeDeleted()
{
    QFETCH(QString, when);
    WarningGuard guard;
    FtpScriptServer server;
    wantLogin(&server);
    QVERIFY2(server.start(), server.report());
    Download download(server.url(QStringLiteral("/a.deb")));
    const auto drop = [&] {
        delete download.reply;
    };
    download.onQuestion = [&](QAuthenticator *auth) {
        if (when == QLatin1String("question")) {
            drop();
        } else if (when != QLatin1String("error")) {
            giveRightLogin(auth);
        }
    };
    if (when == QLatin1String("error")) {
        connect(download.reply, &QNetworkReply::errorOccurred, this, drop);
    } else if (when == QLatin1String("end")) {
        connect(download.reply, &QNetworkReply::finished, this, drop);
    } else if (when == QLatin1String("first bytes")) {
        connect(download.reply, &QIODevice::readyRead, this, drop);
    } else if (when == QLatin1String("progress")) {
        connect(download.reply, &QNetworkReply::downloadProgress, this, drop);
    }
    QTRY_VERIFY_WITH_TIMEOUT(!download.reply, waitMs);
    server.stop();
    runUntilIdle();
}

void tst_XFtpReply::usesAnFtpProxy()
{
    FtpScriptServer server;
    QVERIFY(server.write("a.deb", "abc"));
    QVERIFY2(server.start(), server.report());
    FtpProxyServer proxy;
    QVERIFY2(proxy.start(), proxy.report());
    XNetworkAccessManager manager;
    manager.setProxy(QNetworkProxy(QNetworkProxy::FtpCachingProxy, proxy.address(), proxy.port()));
    XFtpReply reply(&manager, QNetworkRequest(server.url(QStringLiteral("/a.deb"))));
    QTRY_VERIFY_WITH_TIMEOUT(reply.isFinished(), waitMs);
    QCOMPARE(reply.error(), QNetworkReply::NoError);
    QCOMPARE(reply.readAll(), QByteArray("abc"));
    QCOMPARE(server.count("USER anonymous"), 1);
}

QTEST_GUILESS_MAIN(tst_XFtpReply)
#include "tst_XFtpReply.moc"

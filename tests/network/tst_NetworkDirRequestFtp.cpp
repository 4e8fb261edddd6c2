// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "network/FtpCredentials.h"
#include "network/NetworkDirRequest.h"
#include "network/NetworkDirRequestFtp.h"
#include "network/XNetworkAccessManager.h"
#include "network/XNetworkReply.h"
#include "tests/support/EventLoop.h"
#include "tests/support/FtpServers.h"
#include "tests/support/LogFile.h"
#include "tests/support/WarningGuard.h"

#include <QAuthenticator>
#include <QHostInfo>
#include <QPointer>
#include <QTcpServer>
#include <QtTest>

namespace
{

constexpr int shortLimitMs = 1000;
constexpr int waitMs = 20000;
const char rightPassword[] = "pass word%1";

/// One listing, with a count of everything that its reply says.
class Listing : public QObject
{
public:
    explicit Listing(const QUrl &url, int limitMs = waitMs)
        : m_request(std::make_unique<NetworkDirRequestFtp>(url, limitMs))
    {
    }

    ~Listing() override
    {
        delete reply;
        m_request.reset();
        // The connection goes from the event loop.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    void start()
    {
        m_request->setManager(&manager);
        connect(&manager, &QNetworkAccessManager::authenticationRequired, this,
                [this](QNetworkReply *asking, QAuthenticator *auth) {
                    wasAskedByReply = asking == reply;
                    offered.append(auth->user() + QLatin1Char(' ') + auth->password());
                    if (onQuestion) {
                        onQuestion(auth);
                    }
                });
        reply = m_request->getDirectory();
        connect(reply, &QNetworkReply::errorOccurred, this,
                [this](QNetworkReply::NetworkError code) {
                    errors.append(code);
                });
        connect(reply, &XNetworkReply::finishedReply, this, [this](XNetworkReply *which) {
            ++ends;
            wasComplete = which->finished && which == reply;
        });
    }

    /// Ended, and nothing more comes after that, not even when the server is gone.
    bool endsOnce(FtpServer *server = nullptr)
    {
        if (ends == 0 && !QSignalSpy(reply, &XNetworkReply::finishedReply).wait(waitMs)) {
            return false;
        }
        if (server) {
            server->stop();
        }
        runUntilIdle();
        return ends == 1 && wasComplete && errors.size() == (code() == 0 ? 0 : 1);
    }

    int code() const { return static_cast<int>(reply->error()); }

    QStringList names() const
    {
        QStringList result;
        for (const XUrlInfo &entry : reply->entries) {
            result.append(entry.name());
        }
        result.sort();
        return result;
    }

    void dropBackend() { m_request.reset(); }

    XNetworkAccessManager manager;
    QPointer<XNetworkReply> reply;
    std::function<void(QAuthenticator *)> onQuestion;
    QStringList offered;
    QList<QNetworkReply::NetworkError> errors;
    int ends = 0;
    bool wasComplete = false;
    bool wasAskedByReply = false;

private:
    std::unique_ptr<NetworkDirRequestFtp> m_request;
};

void giveRightLogin(QAuthenticator *auth)
{
    auth->setUser(QStringLiteral("joe"));
    auth->setPassword(QLatin1String(rightPassword));
}

/// A server that wants joe's password.
class LoginServer : public FtpScriptServer
{
public:
    LoginServer()
    {
        addUser(QStringLiteral("joe"), QLatin1String(rightPassword));
        refuseAnonymous();
        makeDir("sub");
        write("a.deb", "a");
    }
};

} // namespace

class tst_NetworkDirRequestFtp : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listsThroughTheManager();
    void entriesAreNamedByUrls_data();
    void entriesAreNamedByUrls();
    void entriesKeepWhatTheServerSays();
    void rawNamesSurvive();
    void pathIsSentByteForByte_data();
    void pathIsSentByteForByte();
    void failures_data();
    void failures();
    void silentServers();
    void nobodyListens();
    void hostLookupTellsTheCause_data();
    void hostLookupTellsTheCause();
    void eachCommandHasItsOwnLimit();
    void errorsAreLogged();
    void asksForALogin();
    void remembersTheLogin();
    void asksAgainAfterAWrongAnswer();
    void refusedLoginIsNotSentForEver_data();
    void refusedLoginIsNotSentForEver();
    void loginOfTheUrlIsNotAskedFor();
    void cancelledQuestionEndsIt_data();
    void cancelledQuestionEndsIt();
    void passwordIsNeverShown();
    void abortEndsItOnce_data();
    void abortEndsItOnce();
    void abortInTheQuestion();
    void abortAfterTheEndIsNothing();
    void mayBeDeleted_data();
    void mayBeDeleted();
    void usesAnFtpProxy_data();
    void usesAnFtpProxy();
    void noHostIsThisHost();
};

void tst_NetworkDirRequestFtp::listsThroughTheManager()
{
    WarningGuard guard;
    FtpScriptServer server;
    QVERIFY(server.write("a.deb", "a"));
    QVERIFY2(server.start(), server.report());
    XNetworkAccessManager manager;
    int deliveries = 0;
    connect(&manager, &XNetworkAccessManager::directoryFinished, this, [&] {
        ++deliveries;
    });
    const std::unique_ptr<XNetworkReply> reply(
        manager.getDirectory(NetworkDirRequest(server.url())));
    QVERIFY(!reply->finished);
    QCOMPARE(static_cast<int>(reply->operation()), 1000);
    QCOMPARE(reply->url(), server.url());
    QCOMPARE(reply->manager, &manager);
    QTRY_COMPARE_WITH_TIMEOUT(deliveries, 1, waitMs);
    QCOMPARE(reply->error(), QNetworkReply::NoError);
    QCOMPARE(reply->entries.size(), 1);
}

void tst_NetworkDirRequestFtp::entriesAreNamedByUrls_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("name");
    QTest::newRow("without a slash at the end")
        << QStringLiteral("/sub") << QStringLiteral("/sub/x");
    QTest::newRow("the doubled slash stays")
        << QStringLiteral("/sub/") << QStringLiteral("/sub//x");
    QTest::newRow("root") << QStringLiteral("/") << QStringLiteral("//x");
    QTest::newRow("no path") << QString() << QStringLiteral("/x");
    QTest::newRow("a query is no directory")
        << QStringLiteral("/sub?q") << QStringLiteral("/sub/x");
}

void tst_NetworkDirRequestFtp::entriesAreNamedByUrls()
{
    QFETCH(QString, path);
    QFETCH(QString, name);
    FtpScriptServer server;
    QVERIFY(server.makeDir("sub") && server.write("sub/x", "x") && server.write("x", "x"));
    QVERIFY2(server.start(), server.report());
    Listing listing(server.url(path));
    listing.start();
    QVERIFY(listing.endsOnce());
    QCOMPARE(listing.code(), 0);
    QVERIFY2(listing.names().contains(server.url(QString()).toString() + name),
             qPrintable(listing.names().join(QLatin1Char(' '))));
}

void tst_NetworkDirRequestFtp::entriesKeepWhatTheServerSays()
{
    FtpScriptServer server;
    server.setListing("drwxr-xr-x   2 ann  staff   4096 Jan  2  2020 sub\r\n"
                      "-rw-r-----   1 bob  users  12345 Jan  3  2021 a.deb\r\n");
    QVERIFY2(server.start(), server.report());
    Listing listing(server.url());
    listing.start();
    QVERIFY(listing.endsOnce());
    QCOMPARE(listing.reply->entries.size(), 2);
    const XUrlInfo sub = listing.reply->entries.at(0);
    QVERIFY(sub.isDir() && !sub.isFile());
    const XUrlInfo file = listing.reply->entries.at(1);
    QVERIFY(file.isFile() && !file.isDir());
    QCOMPARE(file.size(), qint64(12345));
    QCOMPARE(file.owner(), QStringLiteral("bob"));
    QCOMPARE(file.group(), QStringLiteral("users"));
    QCOMPARE(file.permissions(), 0640);
    QCOMPARE(file.lastModified().date(), QDate(2021, 1, 3));
}

void tst_NetworkDirRequestFtp::rawNamesSurvive()
{
    const QList<QByteArray> names{"a b",  "100%",     "a%20b", "a#b",    "a?b",  "a;type=i",
                                  "a&b",  "a+b",      "a:b.c", "'a\"b'", "[a]",  "-rf",
                                  "\xE4", "\xC3\xA4", "a\\b",  "{a}^`|", "~user"};
    QByteArray lines;
    for (const QByteArray &name : names) {
        lines += "-rw-r--r--   1 ann  staff   1 Jan  2  2020 " + name + "\r\n";
    }
    FtpScriptServer server;
    server.setListing(lines);
    QVERIFY2(server.start(), server.report());
    Listing listing(server.url());
    listing.start();
    QVERIFY(listing.endsOnce());
    QCOMPARE(listing.reply->entries.size(), names.size());
    for (int i = 0; i < names.size(); ++i) {
        const QUrl url(listing.reply->entries.at(i).name());
        QVERIFY(url.isValid());
        QVERIFY(!url.hasQuery() && !url.hasFragment());
        QCOMPARE(QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1()),
                 "//" + names.at(i));
    }
}

void tst_NetworkDirRequestFtp::pathIsSentByteForByte_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QByteArray>("command");
    QTest::newRow("empty") << QString() << QByteArray("CWD /");
    QTest::newRow("root") << QStringLiteral("/") << QByteArray("CWD /");
    QTest::newRow("doubled slash") << QStringLiteral("//a//b") << QByteArray("CWD //a//b");
    QTest::newRow("escapes") << QStringLiteral("/a%20b%25c%23d%3Fe")
                             << QByteArray("CWD /a b%c#d?e");
    QTest::newRow("Latin-1") << QStringLiteral("/d%E4r") << QByteArray("CWD /d\xE4r");
    QTest::newRow("UTF-8") << QStringLiteral("/d%C3%A4r") << QByteArray("CWD /d\xC3\xA4r");
}

void tst_NetworkDirRequestFtp::pathIsSentByteForByte()
{
    QFETCH(QString, path);
    QFETCH(QByteArray, command);
    FtpScriptServer server;
    QVERIFY2(server.start(), server.report());
    Listing listing(server.url(path));
    listing.start();
    QVERIFY(listing.endsOnce());
    QCOMPARE(server.count(command), 1);
}

void tst_NetworkDirRequestFtp::failures_data()
{
    QTest::addColumn<QString>("how");
    QTest::addColumn<QString>("step");
    QTest::addColumn<QString>("answer");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("text");

    const QString noConnection = QStringLiteral("Connection to FTP host refused");
    const QString noLogin = QStringLiteral("Authentication failed");
    const QString noDirectory = QStringLiteral("URI is not a directory");
    const QString notReadable = QStringLiteral("Directory is not readable");
    const auto row = [](const char *how, const char *step, const char *answer, int code,
                        const QString &text) {
        QTest::addRow("%s: %s %s", step, how, answer)
            << QString::fromLatin1(how) << QString::fromLatin1(step) << QString::fromLatin1(answer)
            << code << text;
    };
    row("refuse", "CONNECT", "421 Too many.", 1, QStringLiteral("Too many."));
    row("refuse", "USER", "530 No.", 204, noLogin);
    row("refuse", "PASS", "530 No.", 204, noLogin);
    row("refuse", "CWD", "550 No.", 202, noDirectory);
    row("refuse", "CWD", "421 Bye.", 202, noDirectory);
    row("refuse", "TYPE", "500 No.", 201, notReadable);
    row("refuse", "PASV", "500 No.", 0, QString());
    row("refuse", "EPSV", "500 No.", 0, QString());
    row("refuse", "LIST", "550 No.", 201, notReadable);
    row("refuse", "LIST", "425 No data connection.", 201, notReadable);
    row("refuse", "QUIT", "500 Stay.", 0, QString());
    row("drop", "CONNECT", "", 1, noConnection);
    row("drop", "USER", "", 204, noLogin);
    row("drop", "PASS", "", 204, noLogin);
    row("drop", "CWD", "", 202, noDirectory);
    row("drop", "LIST", "", 201, notReadable);
    row("drop", "DATA", "", 201, notReadable);
    row("drop", "QUIT", "", 0, QString());
}

void tst_NetworkDirRequestFtp::failures()
{
    QFETCH(QString, how);
    QFETCH(QString, step);
    QFETCH(QString, answer);
    QFETCH(int, code);
    QFETCH(QString, text);
    WarningGuard guard;
    FtpScriptServer server;
    QVERIFY(server.write("a.deb", "a"));
    if (how == QLatin1String("refuse")) {
        server.refuse(step, answer);
    } else {
        server.drop(step);
    }
    QVERIFY2(server.start(), server.report());

    Listing listing(server.url());
    listing.start();
    QVERIFY(listing.endsOnce(&server));
    QCOMPARE(listing.code(), code);
    QVERIFY(listing.reply->isFinished());
    if (code == 0) {
        QCOMPARE(listing.reply->entries.size(), 1);
    } else {
        QVERIFY2(listing.reply->errorString().contains(text),
                 qPrintable(listing.reply->errorString()));
        QVERIFY(listing.reply->entries.isEmpty());
    }
}

// Side by side: each takes as long as the limit.
void tst_NetworkDirRequestFtp::silentServers()
{
    struct Silence {
        const char *step;
        int code;
        FtpScriptServer server;
        std::unique_ptr<Listing> listing;
    };
    WarningGuard guard;
    std::vector<std::unique_ptr<Silence>> silences;
    for (const char *step : {"CONNECT", "USER", "PASS", "CWD", "LIST", "DATA", "QUIT"}) {
        // At QUIT the listing is complete.
        silences.emplace_back(new Silence{step, qstrcmp(step, "QUIT") == 0 ? 0 : 4, {}, {}});
        FtpScriptServer &server = silences.back()->server;
        QVERIFY(server.write("a.deb", "a"));
        server.stall(QLatin1String(step));
        QVERIFY2(server.start(), server.report());
    }
    for (const auto &silence : silences) {
        silence->listing = std::make_unique<Listing>(silence->server.url(), shortLimitMs);
        silence->listing->start();
    }
    for (const auto &silence : silences) {
        Listing &listing = *silence->listing;
        QVERIFY2(listing.endsOnce(), silence->step);
        QVERIFY2(listing.code() == silence->code, silence->step);
        QVERIFY2(listing.reply->isFinished(), silence->step);
        QVERIFY2(listing.reply->entries.size() == (silence->code == 0 ? 1 : 0), silence->step);
        if (silence->code != 0) {
            QCOMPARE(listing.reply->errorString(), QStringLiteral("FTP transaction timed out"));
        }
    }
    // A limit that began anew at an end would be over before that of one that began later.
    Listing later(silences.front()->server.url(), shortLimitMs);
    later.start();
    QVERIFY(later.endsOnce(&silences.front()->server));
    for (const auto &silence : silences) {
        QVERIFY2(silence->listing->endsOnce(&silence->server), silence->step);
    }
}

void tst_NetworkDirRequestFtp::nobodyListens()
{
    QUrl url;
    {
        QTcpServer gone;
        QVERIFY(gone.listen(QHostAddress::LocalHost));
        url = QUrl(QStringLiteral("ftp://127.0.0.1:%1/").arg(gone.serverPort()));
    }
    Listing listing(url);
    listing.start();
    QVERIFY(listing.endsOnce());
    QCOMPARE(listing.code(), 1);
    QVERIFY(!listing.reply->errorString().isEmpty());
}

void tst_NetworkDirRequestFtp::hostLookupTellsTheCause_data()
{
    QTest::addColumn<int>("error");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("text");
    QTest::newRow("not found") << int(QHostInfo::HostNotFound) << 3
                               << QStringLiteral("FTP hostname lookup failed 'updates.example'.");
    QTest::newRow("another failure")
        << int(QHostInfo::UnknownError) << 1 << QStringLiteral("Connection to FTP host refused");
    QTest::newRow("found") << int(QHostInfo::NoError) << 1
                           << QStringLiteral("Connection to FTP host refused");
}

void tst_NetworkDirRequestFtp::hostLookupTellsTheCause()
{
    QFETCH(int, error);
    NetworkDirRequestFtp request(QUrl(QStringLiteral("ftp://updates.example/")));
    const std::unique_ptr<XNetworkReply> reply(request.getDirectory());
    QHostInfo info;
    info.setError(static_cast<QHostInfo::HostInfoError>(error));
    QVERIFY(QMetaObject::invokeMethod(&request, "hostLookupDone", Q_ARG(QHostInfo, info)));
    QVERIFY(reply->finished);
    QTEST(static_cast<int>(reply->error()), "code");
    QTEST(reply->errorString(), "text");
}

void tst_NetworkDirRequestFtp::eachCommandHasItsOwnLimit()
{
    FtpScriptServer server;
    server.delay(150);
    QVERIFY2(server.start(), server.report());
    QElapsedTimer timer;
    timer.start();
    constexpr int limitMs = 900;
    Listing listing(server.url(), limitMs);
    listing.start();
    QVERIFY(listing.endsOnce());
    QCOMPARE(listing.code(), 0);
    // The whole took longer than one command may.
    QVERIFY(timer.elapsed() > limitMs);
}

void tst_NetworkDirRequestFtp::errorsAreLogged()
{
    LogFile log;
    FtpScriptServer server;
    server.refuse(QStringLiteral("LIST"), QStringLiteral("550 No way."));
    QVERIFY2(server.start(), server.report());
    const QRegularExpression line(
        QStringLiteral("^QFtp Err, code [1-9]\\d*, err 1, str '.*No way\\.'$"));
    Listing refused(server.url());
    refused.start();
    QVERIFY(refused.endsOnce());
    QCOMPARE(log.lines().filter(line).size(), 1);

    FtpScriptServer silent;
    silent.stall(QStringLiteral("LIST"));
    QVERIFY2(silent.start(), silent.report());
    Listing stalled(silent.url(), shortLimitMs);
    stalled.start();
    QVERIFY(stalled.endsOnce());
    QCOMPARE(log.count(QStringLiteral("Ftp transaction timeout")), 1);
}

void tst_NetworkDirRequestFtp::asksForALogin()
{
    LoginServer server;
    QVERIFY2(server.start(), server.report());
    Listing listing(server.url());
    listing.onQuestion = giveRightLogin;
    listing.start();
    QVERIFY(listing.endsOnce(&server));
    QCOMPARE(listing.code(), 0);
    QCOMPARE(listing.reply->entries.size(), 2);
    QVERIFY(listing.wasAskedByReply);
    QCOMPARE(listing.offered.size(), 1);
    // An anonymous password is an address for mail.
    QVERIFY(QRegularExpression(QStringLiteral("^anonymous \\S+@\\S+\\.\\S+$"))
                .match(listing.offered.at(0))
                .hasMatch());
    QCOMPARE(server.count("CONNECT"), 2);
    QCOMPARE(server.count(QByteArray("PASS ") + rightPassword), 1);
}

void tst_NetworkDirRequestFtp::remembersTheLogin()
{
    LoginServer server;
    QVERIFY2(server.start(), server.report());
    Listing first(server.url(QStringLiteral("/sub")));
    first.onQuestion = giveRightLogin;
    first.start();
    QVERIFY(first.endsOnce());
    QCOMPARE(first.offered.size(), 1);
    for (const char *path : {"/sub", "/", "/sub/"}) {
        Listing again(server.url(QLatin1String(path)));
        again.start();
        QVERIFY(again.endsOnce());
        QCOMPARE(again.code(), 0);
        QCOMPARE(again.offered, QStringList());
    }

    // Another port of the machine is another server.
    QUrl neighbour = server.url();
    neighbour.setPort(neighbour.port() == 2121 ? 2122 : 2121);
    QCOMPARE(FtpCredentials::forUrl(neighbour).user, QStringLiteral("anonymous"));
    QCOMPARE(FtpCredentials::forUrl(server.url()).user, QStringLiteral("joe"));

    LoginServer other;
    QVERIFY2(other.start(), other.report());
    Listing elsewhere(other.url(QStringLiteral("/sub")));
    elsewhere.start();
    QVERIFY(elsewhere.endsOnce());
    QCOMPARE(elsewhere.code(), 204);
    QCOMPARE(elsewhere.offered.size(), 1);
    QCOMPARE(other.count("USER joe"), 0);
}

void tst_NetworkDirRequestFtp::asksAgainAfterAWrongAnswer()
{
    LoginServer server;
    QVERIFY2(server.start(), server.report());
    Listing listing(server.url());
    int questions = 0;
    listing.onQuestion = [&](QAuthenticator *auth) {
        auth->setUser(QStringLiteral("joe"));
        auth->setPassword(++questions < 3 ? QStringLiteral("guess %1").arg(questions)
                                          : QLatin1String(rightPassword));
    };
    listing.start();
    QVERIFY(listing.endsOnce());
    QCOMPARE(listing.code(), 0);
    QCOMPARE(listing.offered.mid(1),
             (QStringList{QStringLiteral("joe guess 1"), QStringLiteral("joe guess 2")}));
    // The host was given the first answer, this URL the last one.
    Listing again(server.url());
    again.start();
    QVERIFY(again.endsOnce());
    QCOMPARE(again.offered, QStringList());
    QCOMPARE(again.code(), 0);
    Listing elsewhere(server.url(QStringLiteral("/sub")));
    elsewhere.start();
    QVERIFY(elsewhere.endsOnce());
    QCOMPARE(elsewhere.offered, QStringList{QStringLiteral("joe guess 1")});
}

void tst_NetworkDirRequestFtp::refusedLoginIsNotSentForEver_data()
{
    QTest::addColumn<QString>("urlUser");
    QTest::addColumn<QString>("answer");
    QTest::addColumn<int>("logins");
    QTest::newRow("nobody answers") << QString() << QString() << 1;
    QTest::newRow("the same answer each time") << QString() << QStringLiteral("joe") << 2;
    QTest::newRow("the URL's user stays") << QStringLiteral("ann") << QStringLiteral("joe") << 2;
}

void tst_NetworkDirRequestFtp::refusedLoginIsNotSentForEver()
{
    QFETCH(QString, urlUser);
    QFETCH(QString, answer);
    QFETCH(int, logins);
    LoginServer server;
    QVERIFY2(server.start(), server.report());
    QUrl url = server.url();
    url.setUserName(urlUser);
    Listing listing(url);
    listing.onQuestion = [&](QAuthenticator *auth) {
        if (!answer.isEmpty()) {
            auth->setUser(answer);
            auth->setPassword(QStringLiteral("wrong"));
        }
    };
    listing.start();
    QVERIFY(listing.endsOnce(&server));
    QCOMPARE(listing.code(), 204);
    QCOMPARE(server.count("CONNECT"), logins);
}

void tst_NetworkDirRequestFtp::loginOfTheUrlIsNotAskedFor()
{
    LoginServer server;
    QVERIFY2(server.start(), server.report());
    QUrl url = server.url();
    url.setUserName(QStringLiteral("joe"));
    url.setPassword(QLatin1String(rightPassword), QUrl::DecodedMode);
    Listing right(url);
    right.start();
    QVERIFY(right.endsOnce());
    QCOMPARE(right.code(), 0);

    url.setPassword(QStringLiteral("wrong"));
    Listing wrong(url);
    wrong.onQuestion = giveRightLogin;
    wrong.start();
    QVERIFY(wrong.endsOnce(&server));
    QCOMPARE(wrong.code(), 204);
    QCOMPARE(wrong.reply->errorString(), QStringLiteral("Authentication failed"));
    QCOMPARE(wrong.offered, QStringList());
}

void tst_NetworkDirRequestFtp::cancelledQuestionEndsIt_data()
{
    QTest::addColumn<bool>("isNull");
    QTest::addColumn<QString>("quit");
    QTest::newRow("null authenticator") << true << QString();
    QTest::newRow("empty user") << false << QString();
    QTest::newRow("server refuses to go") << false << QStringLiteral("refuse");
    QTest::newRow("server does not answer") << false << QStringLiteral("stall");
    QTest::newRow("server hangs up") << false << QStringLiteral("drop");
}

void tst_NetworkDirRequestFtp::cancelledQuestionEndsIt()
{
    QFETCH(bool, isNull);
    QFETCH(QString, quit);
    LoginServer server;
    if (quit == QLatin1String("refuse")) {
        server.refuse(QStringLiteral("QUIT"), QStringLiteral("500 Stay."));
    } else if (quit == QLatin1String("stall")) {
        server.stall(QStringLiteral("QUIT"));
    } else if (quit == QLatin1String("drop")) {
        server.drop(QStringLiteral("QUIT"));
    }
    QVERIFY2(server.start(), server.report());
    Listing listing(server.url());
    listing.onQuestion = [isNull](QAuthenticator *auth) {
        if (isNull) {
            *auth = QAuthenticator();
        } else {
            auth->setUser(QString());
            auth->setPassword(QString());
        }
    };
    listing.start();
    QVERIFY(listing.endsOnce(&server));
    QCOMPARE(listing.code(), 204);
    QCOMPARE(listing.offered.size(), 1);
    QVERIFY(listing.reply->entries.isEmpty());
    QCOMPARE(server.count("CONNECT"), 1);
}

void tst_NetworkDirRequestFtp::passwordIsNeverShown()
{
    const LogFile log;
    LoginServer server;
    server.refuse(QStringLiteral("PASS"),
                  QStringLiteral("530 '%1' is wrong.").arg(QLatin1String(rightPassword)));
    server.refuse(QStringLiteral("CWD"), QStringLiteral("550 No."));
    QVERIFY2(server.start(), server.report());
    QUrl url = server.url();
    url.setUserName(QStringLiteral("joe"));
    url.setPassword(QLatin1String(rightPassword), QUrl::DecodedMode);
    Listing listing(url);
    listing.start();
    QVERIFY(listing.endsOnce());
    QCOMPARE(listing.code(), 204);
    QVERIFY(!log.lines().isEmpty());
    QVERIFY(!log.raw().contains("pass word"));
    QVERIFY(!listing.reply->errorString().contains(QLatin1String("pass word")));
}

void tst_NetworkDirRequestFtp::abortEndsItOnce_data()
{
    QTest::addColumn<QString>("step");
    QTest::addColumn<QByteArray>("seen");
    QTest::newRow("before it began") << QStringLiteral("CONNECT") << QByteArray();
    QTest::newRow("connecting") << QStringLiteral("CONNECT") << QByteArray("CONNECT");
    QTest::newRow("logging in") << QStringLiteral("USER") << QByteArray("USER anonymous");
    QTest::newRow("changing the directory") << QStringLiteral("CWD") << QByteArray("CWD /");
    QTest::newRow("listing") << QStringLiteral("LIST") << QByteArray("LIST");
    QTest::newRow("receiving") << QStringLiteral("DATA") << QByteArray("LIST");
    QTest::newRow("closing") << QStringLiteral("QUIT") << QByteArray("QUIT");
}

void tst_NetworkDirRequestFtp::abortEndsItOnce()
{
    QFETCH(QString, step);
    QFETCH(QByteArray, seen);
    WarningGuard guard;
    FtpScriptServer server;
    server.stall(step);
    QVERIFY2(server.start(), server.report());
    Listing listing(server.url());
    listing.start();
    if (!seen.isEmpty()) {
        QTRY_COMPARE_WITH_TIMEOUT(server.count(seen), 1, waitMs);
    }
    QCOMPARE(listing.ends, 0);
    listing.reply->abort();
    QCOMPARE(listing.ends, 1);
    QCOMPARE(listing.code(), 5);
    listing.reply->abort();
    QVERIFY(listing.endsOnce(&server));
    QCOMPARE(listing.offered, QStringList());
}

void tst_NetworkDirRequestFtp::abortInTheQuestion()
{
    LoginServer server;
    QVERIFY2(server.start(), server.report());
    Listing listing(server.url());
    listing.onQuestion = [&](QAuthenticator *auth) {
        giveRightLogin(auth);
        listing.reply->abort();
    };
    listing.start();
    QVERIFY(listing.endsOnce(&server));
    QCOMPARE(listing.code(), 5);
    QCOMPARE(server.count("CONNECT"), 1);
}

void tst_NetworkDirRequestFtp::abortAfterTheEndIsNothing()
{
    FtpScriptServer server;
    QVERIFY2(server.start(), server.report());
    Listing listing(server.url());
    listing.start();
    QVERIFY(listing.endsOnce());
    listing.reply->abort();
    QVERIFY(listing.endsOnce(&server));
    QCOMPARE(listing.code(), 0);
}

void tst_NetworkDirRequestFtp::mayBeDeleted_data()
{
    QTest::addColumn<QString>("what");
    QTest::addColumn<QString>("when");
    for (const char *what : {"reply", "backend"}) {
        for (const char *when : {"question", "error", "end", "transfer"}) {
            QTest::addRow("%s in %s", what, when)
                << QString::fromLatin1(what) << QString::fromLatin1(when);
        }
    }
}

void tst_NetworkDirRequestFtp::mayBeDeleted()
{
    QFETCH(QString, what);
    QFETCH(QString, when);
    WarningGuard guard;
    LoginServer server;
    if (when == QLatin1String("transfer")) {
        server.stall(QStringLiteral("DATA"));
    }
    QVERIFY2(server.start(), server.report());
    Listing listing(server.url());
    bool deleted = false;
    const auto drop = [&] {
        deleted = true;
        if (what == QLatin1String("backend")) {
            listing.dropBackend();
        } else {
            // Its own slots are still running.
            listing.reply->deleteLater();
            QCoreApplication::sendPostedEvents(listing.reply, QEvent::DeferredDelete);
            delete listing.reply;
        }
    };
    listing.onQuestion = [&](QAuthenticator *auth) {
        if (when == QLatin1String("question")) {
            drop();
        } else if (when != QLatin1String("error")) {
            giveRightLogin(auth);
        }
    };
    listing.start();
    if (when == QLatin1String("error")) {
        connect(listing.reply, &QNetworkReply::errorOccurred, this, drop);
    } else if (when == QLatin1String("end")) {
        connect(listing.reply, &XNetworkReply::finishedReply, this, drop);
    } else if (when == QLatin1String("transfer")) {
        QTRY_COMPARE_WITH_TIMEOUT(server.count("LIST"), 1, waitMs);
        drop();
    }
    QTRY_VERIFY_WITH_TIMEOUT(deleted, waitMs);
    server.stop();
    runUntilIdle();
}

void tst_NetworkDirRequestFtp::usesAnFtpProxy_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("used");
    QTest::newRow("FTP caching proxy") << int(QNetworkProxy::FtpCachingProxy) << true;
    QTest::newRow("HTTP proxy") << int(QNetworkProxy::HttpProxy) << false;
    QTest::newRow("none") << int(QNetworkProxy::NoProxy) << false;
    QTest::newRow("the application's") << int(QNetworkProxy::DefaultProxy) << false;
}

void tst_NetworkDirRequestFtp::usesAnFtpProxy()
{
    QFETCH(int, type);
    QFETCH(bool, used);
    FtpScriptServer server;
    QVERIFY2(server.start(), server.report());
    FtpScriptServer proxy;
    proxy.addUser(QStringLiteral("anonymous@%1:%2").arg(server.address()).arg(server.port()),
                  QStringLiteral("x"));
    QVERIFY2(proxy.start(), proxy.report());
    Listing listing(server.url());
    listing.manager.setProxy(
        QNetworkProxy(static_cast<QNetworkProxy::ProxyType>(type), proxy.address(), proxy.port()));
    listing.start();
    QVERIFY(listing.endsOnce());
    QCOMPARE(proxy.count("CONNECT"), used ? 1 : 0);
    QCOMPARE(server.count("CONNECT"), used ? 0 : 1);
    if (used) {
        const QByteArray user = QStringLiteral("USER anonymous@%1:%2")
                                    .arg(server.address())
                                    .arg(server.port())
                                    .toLatin1();
        QCOMPARE(proxy.count(user), 1);
    }
}

void tst_NetworkDirRequestFtp::noHostIsThisHost()
{
    // The proxy is told which server is meant, so that none is needed on port 21.
    FtpScriptServer proxy;
    QVERIFY2(proxy.start(), proxy.report());
    Listing listing(QUrl(QStringLiteral("ftp:///sub")));
    listing.manager.setProxy(
        QNetworkProxy(QNetworkProxy::FtpCachingProxy, proxy.address(), proxy.port()));
    listing.start();
    QVERIFY(listing.endsOnce());
    QCOMPARE(proxy.count("USER anonymous@127.0.0.1"), 1);
}

QTEST_GUILESS_MAIN(tst_NetworkDirRequestFtp)
#include "tst_NetworkDirRequestFtp.moc"

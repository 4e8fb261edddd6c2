// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "network/XFtp.h"
#include "tests/support/EventLoop.h"
#include "tests/support/InlineFtpServer.h"
#include "tests/support/WarningGuard.h"

#include <QDir>
#include <QFile>
#include <QPointer>
#include <QProcess>
#include <QScopeGuard>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QtTest>

namespace
{

const QString loopback = QStringLiteral("127.0.0.1");

/// Everything that a client says, in order.
class Record : public QObject
{
public:
    explicit Record(XFtp *ftp)
    {
        connect(ftp, &XFtp::commandStarted, this, [this](int id) {
            m_events.append(QStringLiteral("start %1").arg(id));
        });
        connect(ftp, &XFtp::commandFinished, this, [this](int id, bool error) {
            m_events.append(QStringLiteral("%1 %2")
                                .arg(error ? QStringLiteral("fail") : QStringLiteral("end"))
                                .arg(id));
            failures += error ? 1 : 0;
        });
        connect(ftp, &XFtp::done, this, [this](bool error) {
            m_events.append(error ? QStringLiteral("done, failed") : QStringLiteral("done"));
            ++dones;
            hasFailed = error;
        });
        connect(ftp, &XFtp::stateChanged, this, [this](int state) {
            states.append(state);
        });
        connect(ftp, &XFtp::listInfo, this,
                [this](const XUrlInfo &info, const QByteArray &rawName) {
                    entries.append(info);
                    names.append(rawName);
                });
        connect(ftp, &XFtp::readyRead, this, [this, ftp] {
            if (isReading) {
                data += ftp->readAll();
            }
        });
        connect(ftp, &XFtp::dataTransferProgress, this, [this](qint64 done, qint64 total) {
            lastDone = done;
            lastTotal = total;
        });
    }

    QString events() const { return m_events.join(QStringLiteral("; ")); }

    QList<int> states;
    QList<XUrlInfo> entries;
    QList<QByteArray> names;
    QByteArray data;
    qint64 lastDone = -2;
    qint64 lastTotal = -2;
    int dones = 0;
    int failures = 0;
    bool hasFailed = false;
    bool isReading = true;

private:
    QStringList m_events;
};

void queueListing(XFtp &ftp, quint16 port)
{
    ftp.connectToHost(loopback, port);
    ftp.login(QStringLiteral("me"), QStringLiteral("secret"));
    ftp.cd(QStringLiteral("/dir"));
    ftp.list();
    ftp.close();
}

void queueDownload(XFtp &ftp, quint16 port)
{
    ftp.connectToHost(loopback, port);
    ftp.login(QStringLiteral("me"), QStringLiteral("secret"));
    ftp.get(QStringLiteral("/file"));
    ftp.close();
}

QByteArray unixLine(const QByteArray &name)
{
    return "-rw-r--r-- 1 ftp ftp 12 Nov 21 2025 " + name + "\r\n";
}

} // namespace

class tst_XFtp : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void lists();
    void fetches();
    void fetchesWithoutSize();
    void queuesWithoutSayingAnything();
    void runsMoreCommandsLater();
    void needsAConnection_data();
    void needsAConnection();
    void hostNotFound();
    void connectionRefused();
    void logsIn_data();
    void logsIn();
    void logsInThroughAProxy_data();
    void logsInThroughAProxy();
    void refusesLineBreaks_data();
    void refusesLineBreaks();
    void sendsTheBytesOfAName();
    void everyFaultEndsOnce_data();
    void everyFaultEndsOnce();
    void multiLineReplies_data();
    void multiLineReplies();
    void errorTextIsPlain();
    void errorTextHidesThePassword();
    void passiveWithoutExtension();
    void passivePorts_data();
    void passivePorts();
    void dataConnectionRefused();
    void replyAndDataInEitherOrder_data();
    void replyAndDataInEitherOrder();
    void shortTransferFails();
    void errorAfterTheDataFails_data();
    void errorAfterTheDataFails();
    void emptyListings_data();
    void emptyListings();
    void listingLimits_data();
    void listingLimits();
    void lastLineWithoutAnEnd();
    void slowReaderStopsTheSender();
    void hangingUpWhileIdle();
    void silentQuitEnds();
    void abortEndsAtOnce_data();
    void abortEndsAtOnce();
    void abortWhileNothingRuns();
    void connectionSurvivesAnAbort();
    void silenceAfterAnAbortDropsTheConnection();
    void mayBeDeletedInAnySlot_data();
    void mayBeDeletedInAnySlot();
    void ipv6();
    void hostileServersEndOnce();
    void realServer();

private:
    std::unique_ptr<WarningGuard> m_warnings;
};

void tst_XFtp::init()
{
    m_warnings = std::make_unique<WarningGuard>();
}

void tst_XFtp::cleanup()
{
    m_warnings.reset();
}

void tst_XFtp::lists()
{
    InlineFtpServer server;
    server.setListing("total 2\r\n" + unixLine("a b.deb") + unixLine("\xe4"));
    XFtp ftp;
    const Record record(&ftp);
    queueListing(ftp, server.port());
    QTRY_COMPARE(record.dones, 1);
    QVERIFY2(!record.hasFailed, qPrintable(ftp.errorString()));
    QCOMPARE(
        record.events(),
        QStringLiteral("start 1; end 1; start 2; end 2; start 3; end 3; start 4; end 4; start 5; "
                       "end 5; done"));
    QCOMPARE(record.states,
             (QList<int>{XFtp::HostLookup, XFtp::Connecting, XFtp::Connected, XFtp::LoggedIn,
                         XFtp::Closing, XFtp::Unconnected}));
    QCOMPARE(record.names, (QList<QByteArray>{"a b.deb", "\xe4"}));
    QCOMPARE(record.entries.at(1).name(), QStringLiteral("\u00e4"));
    QCOMPARE(server.commands(),
             (QList<QByteArray>{"USER me", "PASS secret", "CWD /dir", "TYPE A", "EPSV", "LIST",
                                "QUIT"}));
    QCOMPARE(ftp.error(), XFtp::NoError);
    QCOMPARE(ftp.bytesAvailable(), 0);
}

void tst_XFtp::fetches()
{
    InlineFtpServer server;
    const QByteArray file = QByteArray(300'000, 'x') + QByteArray("\r\n\0\xff end", 8);
    server.setFile(file);
    XFtp ftp;
    const Record record(&ftp);
    queueDownload(ftp, server.port());
    QTRY_COMPARE(record.dones, 1);
    QVERIFY(!record.hasFailed);
    QVERIFY(record.data == file);
    QCOMPARE(record.lastDone, file.size());
    QCOMPARE(record.lastTotal, file.size());
    QCOMPARE(server.commands(),
             (QList<QByteArray>{"USER me", "PASS secret", "TYPE I", "SIZE /file", "EPSV",
                                "RETR /file", "QUIT"}));
}

void tst_XFtp::fetchesWithoutSize()
{
    for (const char *answer : {"550 Not in this mode\r\n", "213 much\r\n", "213 -1\r\n", "213\r\n",
                               "450 Busy\r\n", "213 99999999999999999999\r\n", "200 Ok\r\n"}) {
        InlineFtpServer server;
        server.answer("SIZE", answer);
        XFtp ftp;
        const Record record(&ftp);
        queueDownload(ftp, server.port());
        QTRY_COMPARE(record.dones, 1);
        QVERIFY2(!record.hasFailed, answer);
        QCOMPARE(record.data, QByteArray("content"));
        QCOMPARE(record.lastTotal, -1);
    }
}

void tst_XFtp::queuesWithoutSayingAnything()
{
    InlineFtpServer server;
    XFtp ftp;
    const Record record(&ftp);
    QVERIFY(!ftp.hasPendingCommands());
    queueListing(ftp, server.port());
    QVERIFY(ftp.hasPendingCommands());
    QCOMPARE(ftp.currentId(), 0);
    QCOMPARE(ftp.currentCommand(), XFtp::None);
    QCOMPARE(record.events(), QString());
    QVERIFY(record.states.isEmpty());
    ftp.clearPendingCommands();
    QVERIFY(!ftp.hasPendingCommands());
    QCoreApplication::processEvents();
    QCOMPARE(record.events(), QString());

    connect(&ftp, &XFtp::commandStarted, this, [&ftp](int id) {
        QCOMPARE(ftp.currentId(), id);
        QCOMPARE(ftp.currentCommand(), XFtp::ConnectToHost);
        ftp.clearPendingCommands();
    });
    queueListing(ftp, server.port());
    QTRY_COMPARE(record.dones, 1);
    QCOMPARE(record.events(), QStringLiteral("start 6; end 6; done"));
    QCOMPARE(ftp.state(), XFtp::Connected);
}

void tst_XFtp::runsMoreCommandsLater()
{
    InlineFtpServer server;
    server.answer("CWD", "550 No\r\n");
    XFtp ftp;
    const Record record(&ftp);
    queueListing(ftp, server.port());
    QTRY_COMPARE(record.dones, 1);
    QCOMPARE(record.events(),
             QStringLiteral("start 1; end 1; start 2; end 2; start 3; fail 3; done, failed"));
    QCOMPARE(ftp.error(), XFtp::UnknownError);
    QCOMPARE(ftp.errorString(), QStringLiteral("No"));
    QCOMPARE(ftp.lastReplyCode(), 550);
    QCOMPARE(ftp.state(), XFtp::LoggedIn);
    ftp.get(QStringLiteral("x"));
    ftp.get(QStringLiteral("y"));
    QTRY_COMPARE(record.dones, 2);
    QVERIFY(!record.hasFailed);
    QCOMPARE(ftp.error(), XFtp::NoError);
    QCOMPARE(record.data, QByteArray("contentcontent"));
    // Connecting again leaves the old connection.
    queueDownload(ftp, server.port());
    QTRY_COMPARE(record.dones, 3);
    QVERIFY(!record.hasFailed);
    QCOMPARE(server.connections(), 2);
}

void tst_XFtp::needsAConnection_data()
{
    QTest::addColumn<int>("command");
    QTest::addColumn<int>("error");
    QTest::newRow("login") << int(XFtp::Login) << int(XFtp::NotConnected);
    QTest::newRow("list") << int(XFtp::List) << int(XFtp::NotConnected);
    QTest::newRow("cd") << int(XFtp::Cd) << int(XFtp::NotConnected);
    QTest::newRow("get") << int(XFtp::Get) << int(XFtp::NotConnected);
    QTest::newRow("close has what it wants") << int(XFtp::Close) << int(XFtp::NoError);
    QTest::newRow("a proxy is only noted") << int(XFtp::SetProxy) << int(XFtp::NoError);
}

void tst_XFtp::needsAConnection()
{
    QFETCH(int, command);
    QFETCH(int, error);
    XFtp ftp;
    const Record record(&ftp);
    int id = 0;
    switch (command) {
    case XFtp::Login:
        id = ftp.login();
        break;
    case XFtp::List:
        id = ftp.list();
        break;
    case XFtp::Cd:
        id = ftp.cd(QStringLiteral("/"));
        break;
    case XFtp::Get:
        id = ftp.get(QStringLiteral("x"));
        break;
    case XFtp::Close:
        id = ftp.close();
        break;
    default:
        id = ftp.setProxy(loopback, 1);
        break;
    }
    QCOMPARE(id, 1);
    QTRY_COMPARE(record.dones, 1);
    QCOMPARE(record.events(),
             error == XFtp::NoError ? QStringLiteral("start 1; end 1; done")
                                    : QStringLiteral("start 1; fail 1; done, failed"));
    QCOMPARE(int(ftp.error()), error);
    QCOMPARE(ftp.errorString().isEmpty(), error == XFtp::NoError);
}

void tst_XFtp::hostNotFound()
{
    XFtp ftp;
    const Record record(&ftp);
    const QString host = QStringLiteral("host..invalid");
    ftp.connectToHost(host);
    ftp.login();
    QTRY_COMPARE_WITH_TIMEOUT(record.dones, 1, 30'000);
    QCOMPARE(record.events(), QStringLiteral("start 1; fail 1; done, failed"));
    QCOMPARE(ftp.error(), XFtp::HostNotFound);
    QVERIFY(ftp.errorString().contains(host));
    QCOMPARE(record.states, (QList<int>{XFtp::HostLookup, XFtp::Unconnected}));
}

void tst_XFtp::connectionRefused()
{
    quint16 port = 0;
    {
        const InlineFtpServer server;
        port = server.port();
    }
    XFtp ftp;
    const Record record(&ftp);
    queueListing(ftp, port);
    QTRY_COMPARE(record.dones, 1);
    QCOMPARE(record.events(), QStringLiteral("start 1; fail 1; done, failed"));
    QCOMPARE(ftp.error(), XFtp::ConnectionRefused);
    QCOMPARE(record.states.last(), int(XFtp::Unconnected));
}

void tst_XFtp::logsIn_data()
{
    QTest::addColumn<QByteArray>("afterUser");
    QTest::addColumn<QByteArray>("afterPass");
    QTest::addColumn<bool>("isIn");
    QTest::addColumn<int>("code");
    QTest::newRow("user and password")
        << QByteArray("331 Password") << QByteArray("230 In") << true << 230;
    QTest::newRow("user alone") << QByteArray("230 In") << QByteArray() << true << 230;
    QTest::newRow("password not needed")
        << QByteArray("331 Password") << QByteArray("202 In") << true << 202;
    QTest::newRow("user refused") << QByteArray("530 No") << QByteArray() << false << 530;
    QTest::newRow("password refused")
        << QByteArray("331 Password") << QByteArray("530 No") << false << 530;
    QTest::newRow("account at once") << QByteArray("332 Account") << QByteArray() << false << 332;
    QTest::newRow("account later")
        << QByteArray("331 Password") << QByteArray("332 Account") << false << 332;
    QTest::newRow("password twice")
        << QByteArray("331 Password") << QByteArray("331 Password") << false << 331;
    QTest::newRow("another positive reply")
        << QByteArray("220 Hello again") << QByteArray() << false << 220;
}

void tst_XFtp::logsIn()
{
    QFETCH(QByteArray, afterUser);
    QFETCH(QByteArray, afterPass);
    QFETCH(bool, isIn);
    InlineFtpServer server;
    server.answer("USER", afterUser + "\r\n");
    server.answer("PASS", afterPass + "\r\n");
    XFtp ftp;
    const Record record(&ftp);
    ftp.connectToHost(loopback, server.port());
    ftp.login();
    QTRY_COMPARE(record.dones, 1);
    QCOMPARE(record.hasFailed, !isIn);
    QCOMPARE(ftp.state(), isIn ? XFtp::LoggedIn : XFtp::Connected);
    QTEST(ftp.lastReplyCode(), "code");
    QCOMPARE(server.commands().first(), QByteArray("USER anonymous"));
    QCOMPARE(server.commands().size(), afterPass.isEmpty() ? 1 : 2);
    if (!afterPass.isEmpty()) {
        QCOMPARE(server.commands().last(), QByteArray("PASS anonymous@"));
    }
}

void tst_XFtp::logsInThroughAProxy_data()
{
    QTest::addColumn<QString>("host");
    QTest::addColumn<int>("port");
    QTest::addColumn<QByteArray>("user");
    QTest::newRow("usual port") << "ftp.invalid" << 21 << QByteArray("me@ftp.invalid");
    QTest::newRow("another port") << "ftp.invalid" << 2121 << QByteArray("me@ftp.invalid:2121");
    QTest::newRow("IPv6") << "::1" << 2121 << QByteArray("me@[::1]:2121");
}

void tst_XFtp::logsInThroughAProxy()
{
    QFETCH(QString, host);
    QFETCH(int, port);
    QFETCH(QByteArray, user);
    InlineFtpServer server;
    server.setListing(unixLine("a"));
    XFtp ftp;
    const Record record(&ftp);
    ftp.setProxy(loopback, server.port());
    ftp.connectToHost(host, static_cast<quint16>(port));
    ftp.login(QStringLiteral("me"), QStringLiteral("secret"));
    ftp.list();
    ftp.close();
    QTRY_COMPARE(record.dones, 1);
    QVERIFY(!record.hasFailed);
    QCOMPARE(server.commands().first(), "USER " + user);
    QCOMPARE(record.names, QList<QByteArray>{"a"});
    // And without it again.
    ftp.setProxy({}, 0);
    ftp.connectToHost(loopback, server.port());
    ftp.login(QStringLiteral("me"), QStringLiteral("secret"));
    QTRY_COMPARE(record.dones, 2);
    QCOMPARE(server.commands().at(server.commands().size() - 2), QByteArray("USER me"));
}

void tst_XFtp::refusesLineBreaks_data()
{
    QTest::addColumn<QString>("where");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("sent");
    const QList<QPair<QString, QString>> texts{
        {QStringLiteral("carriage return"), QStringLiteral("x\rDELE y")},
        {QStringLiteral("line feed"), QStringLiteral("x\nDELE y")},
        {QStringLiteral("both"), QStringLiteral("x\r\nDELE y")},
        {QStringLiteral("NUL"), QStringLiteral("x") + QChar(0) + QStringLiteral("y")},
    };
    const QList<QPair<QString, int>> places{
        {QStringLiteral("host"), 0}, {QStringLiteral("user"), 0}, {QStringLiteral("password"), 0},
        {QStringLiteral("cd"), 2},   {QStringLiteral("list"), 2}, {QStringLiteral("get"), 2},
        {QStringLiteral("proxy"), 0}};
    for (const auto &place : places) {
        for (const auto &text : texts) {
            QTest::newRow(qPrintable(place.first + QStringLiteral(", ") + text.first))
                << place.first << text.second << place.second;
        }
    }
}

void tst_XFtp::refusesLineBreaks()
{
    QFETCH(QString, where);
    QFETCH(QString, text);
    const auto pick = [&](const char *place, const QString &other) {
        return where == QLatin1String(place) ? text : other;
    };
    InlineFtpServer server;
    XFtp ftp;
    const Record record(&ftp);
    if (where == QLatin1String("proxy")) {
        ftp.setProxy(text, server.port());
    }
    ftp.connectToHost(pick("host", loopback), server.port());
    ftp.login(pick("user", QStringLiteral("me")), pick("password", QStringLiteral("secret")));
    if (where == QLatin1String("get")) {
        ftp.get(text);
    } else if (where == QLatin1String("list")) {
        ftp.list(text);
    } else {
        ftp.cd(pick("cd", QStringLiteral("/")));
    }
    ftp.cd(QStringLiteral("/after"));
    QTRY_COMPARE(record.dones, 1);
    QVERIFY(record.hasFailed);
    QCOMPARE(record.failures, 1);
    QCOMPARE(ftp.error(), XFtp::UnknownError);
    QVERIFY(!ftp.errorString().isEmpty());
    QVERIFY(!ftp.errorString().contains(QLatin1String("DELE")));
    QTEST(server.commands().size(), "sent");
}

void tst_XFtp::sendsTheBytesOfAName()
{
    InlineFtpServer server;
    XFtp ftp;
    const Record record(&ftp);
    ftp.connectToHost(loopback, server.port());
    ftp.login(QStringLiteral("m\u00e4"), QStringLiteral("\u00df"));
    ftp.cd(QByteArray("/\xe4"));
    ftp.cd(QStringLiteral("/\u00e4"));
    ftp.list(QByteArray("\xf6 %#?"));
    ftp.list(QStringLiteral("\u00f6"));
    ftp.get(QByteArray("\xfc"));
    ftp.get(QStringLiteral("\u00fc"));
    QTRY_COMPARE(record.dones, 1);
    QVERIFY(!record.hasFailed);
    for (const char *line :
         {"USER m\xc3\xa4", "PASS \xc3\x9f", "CWD /\xe4", "CWD /\xc3\xa4", "LIST \xf6 %#?",
          "LIST \xc3\xb6", "SIZE \xfc", "RETR \xfc", "SIZE \xc3\xbc", "RETR \xc3\xbc"}) {
        QVERIFY2(server.commands().contains(line), line);
    }
}

void tst_XFtp::everyFaultEndsOnce_data()
{
    QTest::addColumn<QByteArray>("verb");
    QTest::addColumn<bool>("isListing");
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<bool>("isDropped");
    QTest::addColumn<bool>("fails");
    QTest::addColumn<bool>("keepsConnection");
    struct Fault {
        const char *name;
        QByteArray answer;
        bool isDropped;
    };
    QByteArray manyLines;
    for (int i = 0; i < 1000; ++i) {
        manyLines += "220-x\r\n";
    }
    const QList<Fault> faults{
        {"refused", "550 No\r\n", false},
        {"refused for now", "450 Not now\r\n", false},
        {"dropped", {}, true},
        {"dropped within a line", "2", true},
        {"dropped within a reply", "220-x\r\n", true},
        {"garbage", "HTTP/1.1 400 Bad Request\r\n", false},
        {"bytes", QByteArray("\xff\xfd\0\n", 4), false},
        {"an empty line", "\r\n", false},
        {"421", "421 Going down\r\n", false},
        {"421 and dropped", "421 Going down\r\n", true},
        {"an endless line", QByteArray(9000, '2'), false},
        {"1,001 lines", manyLines + "220 x\r\n", false},
        {"an unexpected 100", "120 Later\r\n120 Later\r\n", false},
        {"an unexpected 300", "350 More\r\n", false},
    };
    const QList<QPair<QByteArray, bool>> phases{
        {"", true},      {"USER", true},  {"PASS", true},  {"CWD", true},   {"TYPE", true},
        {"EPSV", true},  {"PASV", true},  {"LIST", true},  {"TYPE", false}, {"SIZE", false},
        {"EPSV", false}, {"PASV", false}, {"RETR", false}, {"QUIT", true},  {"QUIT", false}};
    for (const auto &phase : phases) {
        for (const Fault &fault : faults) {
            const bool isRefusal = qstrncmp(fault.name, "refused", 7) == 0
                || qstrcmp(fault.name, "an unexpected 300") == 0;
            const bool isQuit = phase.first == "QUIT";
            // No SIZE, and PASV in place of EPSV, will do.
            const bool isNeeded = !isQuit && !(isRefusal && phase.first == "SIZE")
                && !(phase.first == "EPSV" && qstrcmp(fault.name, "refused") == 0);
            QTest::addRow("%s, %s, %s",
                          phase.first.isEmpty() ? "greeting" : phase.first.constData(),
                          phase.second ? "listing" : "fetching", fault.name)
                << phase.first << phase.second << fault.answer << fault.isDropped << isNeeded
                << (isNeeded && isRefusal && !phase.first.isEmpty());
        }
    }
}

void tst_XFtp::everyFaultEndsOnce()
{
    QFETCH(QByteArray, verb);
    QFETCH(QByteArray, answer);
    QFETCH(bool, isListing);
    QFETCH(bool, isDropped);
    QFETCH(bool, fails);
    QFETCH(bool, keepsConnection);
    InlineFtpServer server;
    server.setListing(unixLine("a"));
    server.onCommand = [&](const QByteArray &received) {
        if (received == "EPSV" && verb == "PASV") {
            server.send("500 What?\r\n");
            return true;
        }
        if (received != verb) {
            return false;
        }
        server.send(answer);
        if (isDropped) {
            server.drop();
        }
        return true;
    };
    XFtp ftp;
    const Record record(&ftp);
    if (isListing) {
        queueListing(ftp, server.port());
    } else {
        queueDownload(ftp, server.port());
    }
    QTRY_COMPARE(record.dones, 1);
    QCOMPARE(record.hasFailed, fails);
    QCOMPARE(record.failures, fails ? 1 : 0);
    QCOMPARE(ftp.state() != XFtp::Unconnected, keepsConnection);
    QCOMPARE(ftp.currentId(), 0);
    QVERIFY(!ftp.hasPendingCommands());
    if (fails) {
        QCOMPARE(ftp.error() == XFtp::ConnectionRefused,
                 verb.isEmpty()
                     && (answer.startsWith('4') || answer.startsWith("5") || answer.startsWith('3')
                         || answer.startsWith("120")));
        QVERIFY(!ftp.errorString().isEmpty());
        QVERIFY(ftp.errorString().size() <= 600);
    } else if (isListing) {
        QCOMPARE(record.names, QList<QByteArray>{"a"});
    } else {
        QCOMPARE(record.data, QByteArray("content"));
    }
    // Nothing comes late.
    const QString events = record.events();
    server.drop();
    QTRY_COMPARE(ftp.state(), XFtp::Unconnected);
    QCoreApplication::processEvents();
    QCOMPARE(record.events(), events);
}

void tst_XFtp::multiLineReplies_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::newRow("plain") << QByteArray("220-Hello\r\n220 Ready\r\n");
    QTest::newRow("same code between") << QByteArray("220-Hello\r\n220-you\r\n220 Ready\r\n");
    QTest::newRow("other codes between")
        << QByteArray("220-Hello\r\n421 Bye\r\n530-x\r\n220 Ready\r\n");
    QTest::newRow("digits and blanks between")
        << QByteArray("220-Hello\r\n2200 x\r\n 220 x\r\n\r\n12\r\n220 Ready\r\n");
    QTest::newRow("no text") << QByteArray("220\r\n");
    QTest::newRow("no text at the end") << QByteArray("220-Hello\r\n220\r\n");
    QTest::newRow("line feeds alone") << QByteArray("220-Hello\n220 Ready\n");
    QTest::newRow("a line of 8 KiB") << QByteArray("220 " + QByteArray(8 * 1024 - 4, 'x') + "\r\n");
    QByteArray many;
    for (int i = 0; i < 999; ++i) {
        many += "220-x\r\n";
    }
    QTest::newRow("1,000 lines") << many + "220 Ready\r\n";
}

void tst_XFtp::multiLineReplies()
{
    QFETCH(QByteArray, reply);
    for (const bool isByteWise : {false, true}) {
        InlineFtpServer server;
        int sent = 0;
        server.onCommand = [&](const QByteArray &verb) {
            if (!verb.isEmpty() || !isByteWise) {
                return false;
            }
            sent = reply.size() - 1;
            server.send(reply.left(sent));
            return true;
        };
        server.answer({}, reply);
        XFtp ftp;
        const Record record(&ftp);
        queueListing(ftp, server.port());
        if (isByteWise) {
            QTRY_VERIFY(sent > 0);
            QTRY_COMPARE(ftp.state(), XFtp::Connecting);
            QCOMPARE(record.dones, 0);
            server.send(reply.mid(sent));
        }
        QTRY_COMPARE(record.dones, 1);
        QVERIFY2(!record.hasFailed, qPrintable(ftp.errorString()));
        QCOMPARE(server.commands().size(), 7);
    }
}

void tst_XFtp::errorTextIsPlain()
{
    const QList<QPair<QByteArray, QString>> texts{
        {"550 No  such\tfile", QStringLiteral("No such file")},
        {"550-First\r\nsecond\r\n550 third", QStringLiteral("First second third")},
        {"550", QStringLiteral("The server answers 550")},
        {"550 \x1b[2Jx\x07", QStringLiteral("[2Jx")},
        {"550 \xe2\x80\xaex", QStringLiteral("x")},
        {"550 \xc3\xa4", QStringLiteral("\u00e4")},
        {"550 \xe4", QStringLiteral("\u00e4")},
        {"550 <b>x</b>", QStringLiteral("<b>x</b>")},
        {"550 " + QByteArray(4000, 'x'), QString(500, QLatin1Char('x'))},
    };
    for (const auto &text : texts) {
        InlineFtpServer server;
        server.answer("CWD", text.first + "\r\n");
        XFtp ftp;
        const Record record(&ftp);
        queueListing(ftp, server.port());
        QTRY_COMPARE(record.dones, 1);
        QCOMPARE(ftp.errorString(), text.second);
    }
}

void tst_XFtp::errorTextHidesThePassword()
{
    for (const char *verb : {"PASS", "CWD"}) {
        InlineFtpServer server;
        server.answer(verb, "530 Wrong password 'secret' for me\r\n");
        XFtp ftp;
        const Record record(&ftp);
        queueListing(ftp, server.port());
        QTRY_COMPARE(record.dones, 1);
        QCOMPARE(ftp.errorString(), QStringLiteral("Wrong password '***' for me"));
    }
}

void tst_XFtp::passiveWithoutExtension()
{
    InlineFtpServer server;
    server.answer("EPSV", "500 What?\r\n");
    XFtp ftp;
    const Record record(&ftp);
    ftp.connectToHost(loopback, server.port());
    ftp.login();
    ftp.get(QStringLiteral("x"));
    ftp.get(QStringLiteral("y"));
    QTRY_COMPARE(record.dones, 1);
    QVERIFY2(!record.hasFailed, qPrintable(ftp.errorString()));
    QCOMPARE(record.data, QByteArray("contentcontent"));
    // Asked once for each connection.
    QCOMPARE(server.commands().count("EPSV"), 1);
    QCOMPARE(server.commands().count("PASV"), 2);
    ftp.connectToHost(loopback, server.port());
    ftp.login();
    ftp.get(QStringLiteral("z"));
    QTRY_COMPARE(record.dones, 2);
    QCOMPARE(server.commands().count("EPSV"), 2);
}

void tst_XFtp::passivePorts_data()
{
    QTest::addColumn<QByteArray>("verb");
    QTest::addColumn<QByteArray>("reply"); // %1 the port, %2 and %3 its bytes
    QTest::addColumn<bool>("isUnderstood");
    const auto row = [](const char *name, const char *verb, const char *reply, bool isUnderstood) {
        QTest::newRow(name) << QByteArray(verb) << QByteArray(reply) << isUnderstood;
    };
    row("EPSV, bars", "EPSV", "229 Entering (|||%1|)", true);
    row("EPSV, another delimiter", "EPSV", "229 Entering (!!!%1!)", true);
    row("EPSV, brackets before", "EPSV", "229 (well) (|||%1|)", true);
    row("EPSV, several lines", "EPSV", "229-(|||1|)\r\n229 Entering (|||%1|)", true);
    row("EPSV, mixed delimiters", "EPSV", "229 Entering (|!|%1|)", false);
    row("EPSV, port 0", "EPSV", "229 Entering (|||0|)", false);
    row("EPSV, port 65536", "EPSV", "229 Entering (|||65536|)", false);
    row("EPSV, long port", "EPSV", "229 Entering (|||4294967297|)", false);
    row("EPSV, no brackets", "EPSV", "229 Entering |||%1|", false);
    row("EPSV, nothing", "EPSV", "229", false);
    row("EPSV, another code", "EPSV", "200 Entering (|||%1|)", false);
    row("PASV, address of someone else", "PASV", "227 Entering (192,0,2,1,%2,%3)", true);
    row("PASV, no brackets", "PASV", "227 Entering 127,0,0,1,%2,%3", true);
    row("PASV, no text", "PASV", "227 =127,0,0,1,%2,%3", true);
    row("PASV, port 0", "PASV", "227 Entering (127,0,0,1,0,0)", false);
    row("PASV, byte 256", "PASV", "227 Entering (127,0,0,1,256,1)", false);
    row("PASV, five numbers", "PASV", "227 Entering (127,0,0,%2,%3)", false);
    row("PASV, long number", "PASV", "227 Entering (127,0,0,1,%2,9999)", false);
    row("PASV, nothing", "PASV", "227", false);
    row("PASV, another code", "PASV", "200 Entering (127,0,0,1,%2,%3)", false);
}

void tst_XFtp::passivePorts()
{
    QFETCH(QByteArray, verb);
    QFETCH(QByteArray, reply);
    QTcpServer data;
    QVERIFY(data.listen(QHostAddress::LocalHost));
    const int port = data.serverPort();
    reply.replace("%1", QByteArray::number(port));
    reply.replace("%2", QByteArray::number(port / 256));
    reply.replace("%3", QByteArray::number(port % 256));
    InlineFtpServer server;
    server.answer("EPSV", "500 What?\r\n");
    server.answer(verb, reply + "\r\n");
    server.onCommand = [&](const QByteArray &received) {
        if (received != "RETR") {
            return false;
        }
        if (!data.hasPendingConnections()) {
            data.waitForNewConnection(5000);
        }
        QTcpSocket *socket = data.nextPendingConnection();
        if (socket) {
            socket->write("content");
            socket->disconnectFromHost();
        }
        server.send("150 Here\r\n226 Done\r\n");
        return true;
    };
    XFtp ftp;
    const Record record(&ftp);
    queueDownload(ftp, server.port());
    QTRY_COMPARE(record.dones, 1);
    QTEST(!record.hasFailed, "isUnderstood");
    QCOMPARE(record.failures, record.hasFailed ? 1 : 0);
    QCOMPARE(record.data, record.hasFailed ? QByteArray() : QByteArray("content"));
}

void tst_XFtp::dataConnectionRefused()
{
    quint16 port = 0;
    {
        const InlineFtpServer unused;
        port = unused.port();
    }
    InlineFtpServer server;
    server.answer("EPSV", "229 Entering (|||" + QByteArray::number(port) + "|)\r\n");
    XFtp ftp;
    const Record record(&ftp);
    queueDownload(ftp, server.port());
    QTRY_COMPARE(record.dones, 1);
    QCOMPARE(record.events(),
             QStringLiteral("start 1; end 1; start 2; end 2; start 3; fail 3; done, failed"));
    QCOMPARE(ftp.error(), XFtp::UnknownError);
    QVERIFY(!server.commands().contains("RETR /file"));
    // Nothing was asked, so the connection is as good as before.
    QCOMPARE(ftp.state(), XFtp::LoggedIn);
    ftp.cd(QStringLiteral("/"));
    QTRY_COMPARE(record.dones, 2);
    QVERIFY(!record.hasFailed);
}

void tst_XFtp::replyAndDataInEitherOrder_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::addColumn<bool>("isListing");
    for (const bool isListing : {true, false}) {
        const char *what = isListing ? "listing" : "fetching";
        QTest::addRow("%s, as usual", what)
            << QByteArray("150 x\r\n") << QByteArray("226 x\r\n") << isListing;
        QTest::addRow("%s, replies first", what)
            << QByteArray("150 x\r\n226 x\r\n") << QByteArray() << isListing;
        QTest::addRow("%s, replies last", what)
            << QByteArray() << QByteArray("150 x\r\n226 x\r\n") << isListing;
        QTest::addRow("%s, no preliminary reply", what)
            << QByteArray() << QByteArray("226 x\r\n") << isListing;
        QTest::addRow("%s, final reply alone and first", what)
            << QByteArray("226 x\r\n") << QByteArray() << isListing;
        QTest::addRow("%s, another positive code", what)
            << QByteArray("125 x\r\n") << QByteArray("250 x\r\n") << isListing;
    }
}

void tst_XFtp::replyAndDataInEitherOrder()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    QFETCH(bool, isListing);
    InlineFtpServer server;
    const QByteArray content = isListing ? unixLine("a") + unixLine("b") : QByteArray("content");
    bool isAsked = false;
    server.onCommand = [&](const QByteArray &verb) {
        if (verb != "RETR" && verb != "LIST") {
            return false;
        }
        isAsked = true;
        server.send(before);
        return true;
    };
    XFtp ftp;
    const Record record(&ftp);
    if (isListing) {
        queueListing(ftp, server.port());
    } else {
        queueDownload(ftp, server.port());
    }
    QTRY_VERIFY(isAsked && server.data());
    if (!before.isEmpty()) {
        const int code = before.trimmed().right(5).left(3).toInt();
        QTRY_COMPARE(ftp.lastReplyCode(), code);
    }
    QCOMPARE(record.dones, 0);
    server.data()->write(content);
    server.data()->disconnectFromHost();
    if (!after.isEmpty()) {
        QTRY_VERIFY(isListing ? record.names.size() == 2 : record.data == content);
        QCOMPARE(record.dones, 0);
        server.send(after);
    }
    QTRY_COMPARE(record.dones, 1);
    QVERIFY2(!record.hasFailed, qPrintable(ftp.errorString()));
    QVERIFY(isListing ? record.names.size() == 2 : record.data == content);
}

void tst_XFtp::shortTransferFails()
{
    InlineFtpServer server;
    server.answer("SIZE", "213 8\r\n");
    XFtp ftp;
    const Record record(&ftp);
    queueDownload(ftp, server.port());
    QTRY_COMPARE(record.dones, 1);
    QCOMPARE(record.failures, 1);
    QVERIFY(record.hasFailed);
    QVERIFY(ftp.errorString().contains(QLatin1String("7 of 8")));
    QCOMPARE(record.lastTotal, 8);
}

void tst_XFtp::errorAfterTheDataFails_data()
{
    QTest::addColumn<QByteArray>("final");
    QTest::newRow("426") << QByteArray("426 Connection closed\r\n");
    QTest::newRow("451") << QByteArray("451 Disk error\r\n");
    QTest::newRow("552") << QByteArray("552 Too much\r\n");
    QTest::newRow("421") << QByteArray("421 Going down\r\n");
    QTest::newRow("an intermediate reply") << QByteArray("350 More\r\n");
    QTest::newRow("a second preliminary reply") << QByteArray("150 More\r\n");
}

void tst_XFtp::errorAfterTheDataFails()
{
    QFETCH(QByteArray, final);
    for (const bool isListing : {true, false}) {
        InlineFtpServer server;
        server.onCommand = [&](const QByteArray &verb) {
            if (verb != "RETR" && verb != "LIST") {
                return false;
            }
            server.send("150 Here\r\n");
            server.transfer("content", final);
            return true;
        };
        XFtp ftp;
        const Record record(&ftp);
        if (isListing) {
            queueListing(ftp, server.port());
        } else {
            queueDownload(ftp, server.port());
        }
        QTRY_COMPARE(record.dones, 1);
        QVERIFY(record.hasFailed);
        QCOMPARE(record.failures, 1);
        QCOMPARE(ftp.error(), XFtp::UnknownError);
    }
}

void tst_XFtp::emptyListings_data()
{
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<bool>("fails");
    QTest::newRow("nothing listed") << QByteArray("150 x\r\n226 x\r\n") << false;
    QTest::newRow("no preliminary reply") << QByteArray("226 x\r\n") << false;
    QTest::newRow("550") << QByteArray("550 No files found\r\n") << true;
    QTest::newRow("450") << QByteArray("450 No files found\r\n") << true;
}

void tst_XFtp::emptyListings()
{
    QFETCH(QByteArray, answer);
    QFETCH(bool, fails);
    InlineFtpServer server;
    server.onCommand = [&](const QByteArray &verb) {
        if (verb != "LIST") {
            return false;
        }
        server.transfer({}, answer);
        return true;
    };
    XFtp ftp;
    const Record record(&ftp);
    queueListing(ftp, server.port());
    QTRY_COMPARE(record.dones, 1);
    QCOMPARE(record.hasFailed, fails);
    QVERIFY(record.names.isEmpty());
}

void tst_XFtp::listingLimits_data()
{
    QTest::addColumn<QByteArray>("listing");
    QTest::addColumn<bool>("fails");
    QByteArray lines;
    for (int i = 0; i < 100'000; ++i) {
        lines += "-rw-r--r-- 1 a b 1 Nov 21 2025 x\r\n";
    }
    QTest::newRow("100,000 lines") << lines << false;
    QTest::newRow("100,001 lines") << lines + lines.left(lines.indexOf('\n') + 1) << true;
    const int most = 16 * 1024 * 1024;
    QTest::newRow("16 MiB") << QByteArray(most - 1, 'x') + '\n' << false;
    QTest::newRow("more than 16 MiB in one line") << QByteArray(most + 1, 'x') << true;
}

void tst_XFtp::listingLimits()
{
    QFETCH(QByteArray, listing);
    QFETCH(bool, fails);
    InlineFtpServer server;
    server.setListing(listing);
    XFtp ftp;
    const Record record(&ftp);
    queueListing(ftp, server.port());
    QTRY_COMPARE_WITH_TIMEOUT(record.dones, 1, 60'000);
    QCOMPARE(record.hasFailed, fails);
    QCOMPARE(record.failures, fails ? 1 : 0);
    QVERIFY(record.names.size() <= 100'000);
    QCOMPARE(record.names.size(), listing.startsWith('-') ? 100'000 : 0);
}

void tst_XFtp::lastLineWithoutAnEnd()
{
    InlineFtpServer server;
    server.setListing(unixLine("a") + unixLine("b").trimmed());
    XFtp ftp;
    const Record record(&ftp);
    queueListing(ftp, server.port());
    QTRY_COMPARE(record.dones, 1);
    QVERIFY(!record.hasFailed);
    QCOMPARE(record.names, (QList<QByteArray>{"a", "b"}));
}

void tst_XFtp::slowReaderStopsTheSender()
{
    const QByteArray file(32 * 1024 * 1024, 'x');
    InlineFtpServer server;
    server.setFile(file);
    XFtp ftp;
    Record record(&ftp);
    record.isReading = false;
    queueDownload(ftp, server.port());
    QTRY_VERIFY(ftp.bytesAvailable() >= 1024 * 1024);
    runUntilIdle();
    QVERIFY(ftp.bytesAvailable() <= 1024 * 1024);
    QCOMPARE(record.dones, 0);
    QVERIFY(server.data()->bytesToWrite() > 0);
    qint64 size = 0;
    while (record.dones == 0) {
        size += ftp.readAll().size();
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    }
    QCOMPARE(record.dones, 1);
    QVERIFY(!record.hasFailed);
    size += ftp.readAll().size(); // the rest stays readable
    QCOMPARE(size, file.size());
    QCOMPARE(record.lastDone, file.size());
}

void tst_XFtp::hangingUpWhileIdle()
{
    for (const char *last : {"", "421 Too long idle\r\n", "500 What?\r\n"}) {
        InlineFtpServer server;
        XFtp ftp;
        const Record record(&ftp);
        ftp.connectToHost(loopback, server.port());
        ftp.login();
        QTRY_COMPARE(record.dones, 1);
        server.send(last);
        server.drop();
        QTRY_COMPARE(ftp.state(), XFtp::Unconnected);
        QCOMPARE(record.dones, 1);
        QCOMPARE(record.failures, 0);
        ftp.cd(QStringLiteral("/"));
        QTRY_COMPARE(record.dones, 2);
        QCOMPARE(ftp.error(), XFtp::NotConnected);
    }
}

void tst_XFtp::silentQuitEnds()
{
    InlineFtpServer server;
    server.answer("QUIT", {});
    XFtp ftp;
    const Record record(&ftp);
    queueListing(ftp, server.port());
    QTRY_COMPARE(record.dones, 1);
    QVERIFY(!record.hasFailed);
    QCOMPARE(ftp.state(), XFtp::Unconnected);
}

void tst_XFtp::abortEndsAtOnce_data()
{
    QTest::addColumn<QByteArray>("verb"); // stalls
    QTest::addColumn<bool>("isListing");
    QTest::addColumn<bool>("keepsConnection");
    QTest::newRow("greeting") << QByteArray("") << true << false;
    for (const char *verb : {"USER", "PASS", "CWD", "TYPE", "EPSV"}) {
        QTest::newRow(verb) << QByteArray(verb) << true << false;
    }
    QTest::newRow("SIZE") << QByteArray("SIZE") << false << false;
    QTest::newRow("LIST") << QByteArray("LIST") << true << true;
    QTest::newRow("RETR") << QByteArray("RETR") << false << true;
    QTest::newRow("QUIT") << QByteArray("QUIT") << true << false;
}

void tst_XFtp::abortEndsAtOnce()
{
    QFETCH(QByteArray, verb);
    QFETCH(bool, isListing);
    QFETCH(bool, keepsConnection);
    InlineFtpServer server;
    bool isReached = false;
    server.onCommand = [&](const QByteArray &received) {
        isReached = isReached || received == verb;
        return received == verb;
    };
    XFtp ftp;
    const Record record(&ftp);
    if (isListing) {
        queueListing(ftp, server.port());
    } else {
        queueDownload(ftp, server.port());
    }
    QTRY_VERIFY(isReached);
    QCOMPARE(record.dones, 0);
    ftp.abort();
    QCOMPARE(record.dones, 1);
    QVERIFY(record.hasFailed);
    QCOMPARE(record.failures, 1);
    QCOMPARE(ftp.error(), XFtp::UnknownError);
    QCOMPARE(ftp.currentId(), 0);
    QVERIFY(!ftp.hasPendingCommands());
    QCOMPARE(ftp.state(), keepsConnection ? XFtp::LoggedIn : XFtp::Unconnected);
    ftp.abort();
    server.drop();
    QTRY_COMPARE(ftp.state(), XFtp::Unconnected);
    QCoreApplication::processEvents();
    QCOMPARE(record.dones, 1);
    QCOMPARE(record.failures, 1);
}

void tst_XFtp::abortWhileNothingRuns()
{
    InlineFtpServer server;
    XFtp ftp;
    const Record record(&ftp);
    ftp.abort();
    QCOMPARE(record.events(), QString());
    queueListing(ftp, server.port());
    ftp.abort(); // nothing has started
    QCOMPARE(record.events(), QStringLiteral("done, failed"));
    QCoreApplication::processEvents();
    QCOMPARE(record.events(), QStringLiteral("done, failed"));

    // Between two commands.
    connect(&ftp, &XFtp::commandFinished, &ftp, [&ftp](int id) {
        if (id == 7) {
            ftp.abort();
        }
    });
    queueListing(ftp, server.port());
    QTRY_COMPARE(record.dones, 2);
    QCOMPARE(record.events(),
             QStringLiteral("done, failed; start 6; end 6; start 7; end 7; done, failed"));
    QCOMPARE(ftp.state(), XFtp::LoggedIn);
    QCOMPARE(server.connections(), 1);
}

void tst_XFtp::connectionSurvivesAnAbort()
{
    InlineFtpServer server;
    int transfers = 0;
    server.onCommand = [&](const QByteArray &verb) {
        if (verb == "RETR" && ++transfers == 1) {
            server.send("150 Here\r\n");
            return true;
        }
        if (verb == "ABOR") {
            server.send("426 Broken off\r\n226 Aborted\r\n");
            return true;
        }
        return false;
    };
    XFtp ftp;
    const Record record(&ftp);
    queueDownload(ftp, server.port());
    QTRY_COMPARE(ftp.lastReplyCode(), 150);
    ftp.abort();
    ftp.get(QStringLiteral("/again"));
    QCOMPARE(record.dones, 1);
    QTRY_COMPARE(record.dones, 2);
    QVERIFY2(!record.hasFailed, qPrintable(ftp.errorString()));
    QCOMPARE(record.data, QByteArray("content"));
    QCOMPARE(server.connections(), 1);
    QVERIFY(server.commands().contains("ABOR"));
}

void tst_XFtp::silenceAfterAnAbortDropsTheConnection()
{
    InlineFtpServer server;
    server.answer("RETR", {});
    server.answer("ABOR", {});
    XFtp ftp;
    const Record record(&ftp);
    queueDownload(ftp, server.port());
    QTRY_VERIFY(server.commands().contains("RETR /file"));
    ftp.abort();
    ftp.get(QStringLiteral("/again"));
    QTRY_COMPARE(record.dones, 2);
    QCOMPARE(ftp.state(), XFtp::Unconnected);
    QCOMPARE(ftp.error(), XFtp::NotConnected);
    // A new connection need not wait for that.
    server.answer("RETR", "550 No\r\n");
    queueDownload(ftp, server.port());
    QTRY_COMPARE(record.dones, 3);
    QCOMPARE(ftp.errorString(), QStringLiteral("No"));
}

void tst_XFtp::mayBeDeletedInAnySlot_data()
{
    QTest::addColumn<QString>("event");
    QTest::addColumn<bool>("isListing");
    for (const bool isListing : {true, false}) {
        for (int i = 1; i <= (isListing ? 5 : 4); ++i) {
            QTest::addRow("%s, start of %d", isListing ? "listing" : "fetching", i)
                << QStringLiteral("start %1").arg(i) << isListing;
            QTest::addRow("%s, end of %d", isListing ? "listing" : "fetching", i)
                << QStringLiteral("end %1").arg(i) << isListing;
        }
        for (int i = 0; i <= 5; ++i) {
            QTest::addRow("%s, state %d", isListing ? "listing" : "fetching", i)
                << QStringLiteral("state %1").arg(i) << isListing;
        }
        QTest::addRow("%s, done", isListing ? "listing" : "fetching")
            << QStringLiteral("done") << isListing;
    }
    QTest::newRow("entry") << QStringLiteral("entry a") << true;
    QTest::newRow("last entry, without a line end") << QStringLiteral("entry b") << true;
    QTest::newRow("data") << QStringLiteral("data") << false;
    QTest::newRow("progress") << QStringLiteral("progress") << false;
}

void tst_XFtp::mayBeDeletedInAnySlot()
{
    QFETCH(QString, event);
    QFETCH(bool, isListing);
    for (const bool isAborted : {false, true}) {
        InlineFtpServer server;
        server.setListing(unixLine("a") + unixLine("b").trimmed());
        QPointer<XFtp> ftp(new XFtp);
        QStringList late;
        bool isReached = false;
        const auto act = [&](const QString &now) {
            if (isReached) {
                late.append(now);
            } else if (now == event) {
                isReached = true;
                if (isAborted) {
                    ftp->abort();
                }
                delete ftp.data();
            }
        };
        XFtp *object = ftp;
        connect(object, &XFtp::commandStarted, this, [&](int id) {
            act(QStringLiteral("start %1").arg(id));
        });
        connect(object, &XFtp::commandFinished, this, [&](int id) {
            act(QStringLiteral("end %1").arg(id));
        });
        connect(object, &XFtp::stateChanged, this, [&](int state) {
            act(QStringLiteral("state %1").arg(state));
        });
        connect(object, &XFtp::listInfo, this, [&](const XUrlInfo &info) {
            act(QStringLiteral("entry ") + info.name());
        });
        connect(object, &XFtp::readyRead, this, [&] {
            act(QStringLiteral("data"));
        });
        connect(object, &XFtp::dataTransferProgress, this, [&] {
            act(QStringLiteral("progress"));
        });
        connect(object, &XFtp::done, this, [&] {
            act(QStringLiteral("done"));
        });
        if (isListing) {
            queueListing(*object, server.port());
        } else {
            queueDownload(*object, server.port());
        }
        QTRY_VERIFY(isReached);
        QVERIFY(!ftp);
        QCoreApplication::processEvents();
        // An abort itself speaks; after the deletion nobody does.
        QVERIFY(isAborted || late.isEmpty());
        QVERIFY(late.size() <= 3);
    }
}

void tst_XFtp::ipv6()
{
    QTcpServer probe;
    if (!probe.listen(QHostAddress::LocalHostIPv6)) {
        QSKIP("this machine has no IPv6 loopback");
    }
    InlineFtpServer server(QHostAddress(QHostAddress::LocalHostIPv6));
    server.setListing(unixLine("a"));
    XFtp ftp;
    const Record record(&ftp);
    ftp.connectToHost(QStringLiteral("::1"), server.port());
    ftp.login();
    ftp.list();
    ftp.get(QStringLiteral("a"));
    ftp.close();
    QTRY_COMPARE(record.dones, 1);
    QVERIFY2(!record.hasFailed, qPrintable(ftp.errorString()));
    QCOMPARE(record.names, QList<QByteArray>{"a"});
    QCOMPARE(record.data, QByteArray("content"));
}

/// Whatever comes from the other side, there is one end.
void tst_XFtp::hostileServersEndOnce()
{
    quint32 state = 7;
    const auto random = [&state](int bound) {
        state = state * 1664525 + 1013904223;
        return static_cast<int>((state >> 8) % static_cast<quint32>(bound));
    };
    const QHash<QByteArray, QByteArray> good{{"", "220-Hello\r\n220 Ready\r\n"},
                                             {"USER", "331 Password\r\n"},
                                             {"PASS", "230 In\r\n"},
                                             {"CWD", "250 There\r\n"},
                                             {"TYPE", "200 Type\r\n"},
                                             {"SIZE", "213 7\r\n"},
                                             {"EPSV", "229 Ok (|||1|)\r\n"},
                                             {"QUIT", "221 Bye\r\n"},
                                             {"LIST", "150 x\r\n226 y\r\n"},
                                             {"RETR", "150 x\r\n226 y\r\n"}};
    constexpr int rounds = 150;
    int failures = 0;
    for (int round = 0; round < rounds; ++round) {
        InlineFtpServer server;
        server.setListing(unixLine("a"));
        QTimer hangUp;
        hangUp.setSingleShot(true);
        hangUp.setInterval(8);
        connect(&hangUp, &QTimer::timeout, &server, [&server] {
            if (server.data()) {
                server.data()->abort();
            }
            server.drop();
        });
        server.onCommand = [&](const QByteArray &verb) {
            hangUp.start();
            if (random(3) != 0) {
                return false;
            }
            QByteArray bytes = good.value(verb, "500 What?\r\n");
            for (int edits = random(4); edits > 0 && !bytes.isEmpty(); --edits) {
                const int at = random(bytes.size());
                switch (random(4)) {
                case 0:
                    bytes[at] = static_cast<char>(random(256));
                    break;
                case 1:
                    bytes.remove(at, 1 + random(3));
                    break;
                case 2:
                    bytes[at] = static_cast<char>('0' + random(10));
                    break;
                default:
                    bytes.insert(at, bytes);
                    break;
                }
            }
            server.send(bytes);
            if (random(12) == 0) {
                server.drop();
            }
            return true;
        };
        XFtp ftp;
        const Record record(&ftp);
        if (random(2) == 0) {
            queueListing(ftp, server.port());
        } else {
            queueDownload(ftp, server.port());
        }
        QTRY_COMPARE(record.dones, 1);
        QCOMPARE(record.failures, record.hasFailed ? 1 : 0);
        failures += record.failures;
        server.drop();
        QTRY_COMPARE(ftp.state(), XFtp::Unconnected);
        QCOMPARE(record.dones, 1);
    }
    QVERIFY(failures > rounds / 4);
    QVERIFY(failures < rounds);
}

void tst_XFtp::realServer()
{
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    const QList<QByteArray> names{
        "a b.deb",  "tool_1:2.0-1_all.deb", "100%20.deb", "#1?.deb",   "-rf",    "\xc3\xa4.deb",
        "\xe4.deb", "[x]{y}'\"`.deb",       " leading",   "trailing ", "a -> b", "&+=;$"};
    // By the bytes: Qt would encode them.
    const auto pathOf = [&dir](const QByteArray &name) {
        return QByteArray(dir.path().toLocal8Bit() + '/' + name);
    };
    const auto removeFiles = qScopeGuard([&] {
        for (const QByteArray &name : names) {
            std::remove(pathOf(name).constData());
        }
    });
    for (const QByteArray &name : names) {
        const QByteArray path = pathOf(name);
        FILE *file = std::fopen(path.constData(), "wb");
        QVERIFY(file);
        std::fputs(name.constData(), file);
        std::fclose(file);
    }
    const QByteArray big(3 * 1024 * 1024 + 1, '\n');
    QFile bigFile(dir.filePath(QStringLiteral("big")));
    QVERIFY(bigFile.open(QIODevice::WriteOnly));
    QCOMPARE(bigFile.write(big), big.size());
    bigFile.close();

    QProcess process;
    const auto stop = qScopeGuard([&process] {
        process.kill();
        process.waitForFinished();
    });
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QStringLiteral("/usr/bin/python3"),
                  {QStringLiteral("-c"), QStringLiteral(R"(
import logging, sys
from pyftpdlib.authorizers import DummyAuthorizer
from pyftpdlib.filesystems import AbstractedFS
from pyftpdlib.handlers import FTPHandler
from pyftpdlib.servers import FTPServer
logging.basicConfig(level=logging.CRITICAL)
users = DummyAuthorizer()
users.add_user('me', 'secret', sys.argv[1], perm='elr')
FTPHandler.authorizer = users
FTPHandler.unicode_errors = 'surrogateescape'
server = FTPServer(('127.0.0.1', 0), FTPHandler)
print(server.socket.getsockname()[1], flush=True)
server.serve_forever()
)"),
                   dir.path()});
    QVERIFY(process.waitForStarted());
    QTRY_VERIFY_WITH_TIMEOUT(process.canReadLine(), 20'000);
    const int port = process.readLine().trimmed().toInt();
    QVERIFY(port > 0);

    XFtp ftp;
    Record listing(&ftp);
    listing.isReading = false;
    ftp.connectToHost(loopback, static_cast<quint16>(port));
    ftp.login(QStringLiteral("me"), QStringLiteral("secret"));
    ftp.cd(QStringLiteral("/"));
    ftp.list();
    QTRY_COMPARE_WITH_TIMEOUT(listing.dones, 1, 20'000);
    QVERIFY2(!listing.hasFailed, qPrintable(ftp.errorString()));
    QSet<QByteArray> expected(names.cbegin(), names.cend());
    expected.insert("big");
    const QSet<QByteArray> listed(listing.names.cbegin(), listing.names.cend());
    QVERIFY2(listed == expected, (listed.values().join(", ") + "\n").constData());

    for (const QByteArray &name : names) {
        const Record fetch(&ftp);
        ftp.get('/' + name);
        QTRY_COMPARE(fetch.dones, 1);
        QVERIFY2(!fetch.hasFailed, qPrintable(ftp.errorString()));
        QCOMPARE(fetch.data, name);
    }
    const Record fetch(&ftp);
    ftp.get(QStringLiteral("/big"));
    QTRY_COMPARE_WITH_TIMEOUT(fetch.dones, 1, 20'000);
    QVERIFY(fetch.data == big);
    QCOMPARE(fetch.lastTotal, big.size());

    ftp.get(QStringLiteral("/missing"));
    QTRY_COMPARE(fetch.dones, 2);
    QVERIFY(fetch.hasFailed);
    QCOMPARE(ftp.lastReplyCode(), 550);
    ftp.login(QStringLiteral("me"), QStringLiteral("wrong"));
    QTRY_COMPARE_WITH_TIMEOUT(fetch.dones, 3, 20'000);
    QVERIFY(fetch.hasFailed);
    QCOMPARE(ftp.lastReplyCode(), 530);
}

QTEST_GUILESS_MAIN(tst_XFtp)
#include "tst_XFtp.moc"

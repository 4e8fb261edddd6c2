// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/support/FtpServers.h"

#include <QFile>
#include <QTcpSocket>
#include <QtTest>

namespace
{

/// A control connection that waits for each answer; an empty one means none in time.
class Client
{
public:
    explicit Client(const FtpServer &server)
    {
        m_socket.connectToHost(QHostAddress(server.address()), server.port());
        m_socket.waitForConnected(5000);
    }

    QByteArray answer(int limit = 10000)
    {
        while (!m_socket.canReadLine()) {
            if (!m_socket.waitForReadyRead(limit)) {
                return {};
            }
        }
        return m_socket.readLine().trimmed();
    }

    QByteArray ask(const QByteArray &command, int limit = 10000)
    {
        m_socket.write(command + "\r\n");
        return answer(limit);
    }

    bool isClosed()
    {
        return m_socket.state() == QAbstractSocket::UnconnectedState
            || m_socket.waitForDisconnected(5000);
    }

private:
    QTcpSocket m_socket;
};

QByteArray logIn(Client *client, const QByteArray &user, const QByteArray &password)
{
    client->answer();
    client->ask("USER " + user);
    return client->ask("PASS " + password).left(3);
}

} // namespace

class tst_FtpServers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void vsftpdWithoutJail();
    void vsftpdWithJail();
    void vsftpdWithPassword();
    void scriptedLogins();
    void scriptedSteps();
    void scriptedGreetings();
    void proxyNamesTheHostInUser();
    void goesWithItsObject();
};

void tst_FtpServers::vsftpdWithoutJail()
{
    VsftpdServer server;
    QVERIFY(server.makeDir("sub"));
    QVERIFY2(server.start(), server.report());
    Client client(server);
    QCOMPARE(logIn(&client, "anonymous", "a@example.org"), QByteArray("230"));
    QVERIFY(client.ask("PWD").contains(server.root().toUtf8()));
    QCOMPARE(client.ask("CWD /sub").left(3), QByteArray("550"));
    QCOMPARE(client.ask("CWD " + server.rootPath().toUtf8() + "/sub").left(3), QByteArray("250"));
}

void tst_FtpServers::vsftpdWithJail()
{
    if (!VsftpdServer::canChroot()) {
        QSKIP("only root can change the root");
    }
    VsftpdServer server(VsftpdServer::Chrooted);
    QVERIFY(server.makeDir("sub"));
    QVERIFY2(server.start(), server.report());
    Client client(server);
    QCOMPARE(logIn(&client, "anonymous", "a@example.org"), QByteArray("230"));
    QVERIFY(client.ask("PWD").contains("\"/\""));
    QCOMPARE(client.ask("CWD /sub").left(3), QByteArray("250"));
}

void tst_FtpServers::vsftpdWithPassword()
{
    VsftpdServer server;
    server.requirePassword(QStringLiteral("secret"));
    QVERIFY2(server.start(), server.report());
    Client wrong(server);
    QCOMPARE(logIn(&wrong, "anonymous", "a@example.org"), QByteArray("530"));
    Client right(server);
    QCOMPARE(logIn(&right, "anonymous", "secret"), QByteArray("230"));
}

void tst_FtpServers::scriptedLogins()
{
    FtpScriptServer server;
    server.addUser(QStringLiteral("joe"), QStringLiteral("secret"));
    server.refuseAnonymous();
    server.setLoginDirectory(QStringLiteral("/sub"));
    QVERIFY(server.makeDir("sub"));
    QVERIFY2(server.start(), server.report());
    Client wrong(server);
    QCOMPARE(logIn(&wrong, "anonymous", "a@example.org"), QByteArray("530"));
    Client right(server);
    QCOMPARE(logIn(&right, "joe", "secret"), QByteArray("230"));
    QVERIFY(right.ask("PWD").contains("\"/sub\""));
    QCOMPARE(server.count("CONNECT"), 2);
    QCOMPARE(server.count("PASS secret"), 1);
}

void tst_FtpServers::scriptedSteps()
{
    FtpScriptServer server;
    server.refuse(QStringLiteral("CWD"), QStringLiteral("550 Not today."));
    server.stall(QStringLiteral("SYST"));
    server.drop(QStringLiteral("NOOP"));
    QVERIFY2(server.start(), server.report());
    Client client(server);
    QCOMPARE(logIn(&client, "anonymous", "a@example.org"), QByteArray("230"));
    QCOMPARE(client.ask("CWD /"), QByteArray("550 Not today."));
    QCOMPARE(client.ask("SYST", 300), QByteArray());
    QCOMPARE(client.ask("PWD").left(3), QByteArray("257"));
    QCOMPARE(client.ask("NOOP"), QByteArray());
    QVERIFY(client.isClosed());
}

void tst_FtpServers::scriptedGreetings()
{
    FtpScriptServer refusing;
    refusing.refuse(QStringLiteral("CONNECT"), QStringLiteral("421 Come back later."));
    QVERIFY2(refusing.start(), refusing.report());
    QCOMPARE(Client(refusing).answer(), QByteArray("421 Come back later."));

    FtpScriptServer dropping;
    dropping.drop(QStringLiteral("CONNECT"));
    QVERIFY2(dropping.start(), dropping.report());
    QVERIFY(Client(dropping).isClosed());

    FtpScriptServer silent;
    silent.stall(QStringLiteral("CONNECT"));
    QVERIFY2(silent.start(), silent.report());
    QCOMPARE(Client(silent).answer(300), QByteArray());
}

void tst_FtpServers::proxyNamesTheHostInUser()
{
    FtpScriptServer server;
    server.addUser(QStringLiteral("joe"), QStringLiteral("secret"));
    QVERIFY2(server.start(), server.report());
    FtpProxyServer proxy;
    QVERIFY2(proxy.start(), proxy.report());
    Client client(proxy);
    QCOMPARE(logIn(&client,
                   "joe@" + server.address().toLatin1() + ':' + QByteArray::number(server.port()),
                   "secret"),
             QByteArray("230"));
    QCOMPARE(server.count("USER joe"), 1);
}

void tst_FtpServers::goesWithItsObject()
{
    quint16 port = 0;
    QString address;
    QString root;
    {
        VsftpdServer server;
        QVERIFY2(server.start(), server.report());
        port = server.port();
        address = server.address();
        root = server.root();
        Client session(server);
        QCOMPARE(logIn(&session, "anonymous", "a@example.org"), QByteArray("230"));
    }
    QTcpSocket socket;
    socket.connectToHost(QHostAddress(address), port);
    QVERIFY(!socket.waitForConnected(1000));
    QVERIFY(!QFile::exists(root));
}

QTEST_GUILESS_MAIN(tst_FtpServers)
#include "tst_FtpServers.moc"

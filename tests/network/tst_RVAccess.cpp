// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/RVOrigin.h"
#include "network/RVAccess.h"
#include "network/XNetworkAccessManager.h"
#include "network/XNetworkReply.h"

#include <QAuthenticator>
#include <QTest>

namespace
{

const RVLogin repositoryLogin{QStringLiteral("me"), QStringLiteral("p@ss/word")};
const RVLogin otherLogin{QStringLiteral("you"), QStringLiteral("other")};

RVAccess accessTo(const char *server)
{
    RVAccess access;
    access.server = QUrl(QLatin1String(server));
    access.login = repositoryLogin;
    return access;
}

/// A reply for `url`, as a challenge brings it.
std::unique_ptr<XNetworkReply> replyFor(const QUrl &url)
{
    auto reply = std::make_unique<XNetworkReply>();
    reply->setUrl(url);
    return reply;
}

} // namespace

class tst_RVAccess : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void loginInUrls_data()
    {
        QTest::addColumn<QString>("server");
        QTest::addColumn<QString>("url");
        QTest::addColumn<bool>("given");
        const auto row = [](const char *title, const char *server, const char *url, bool given) {
            QTest::newRow(title) << QString::fromLatin1(server) << QString::fromLatin1(url)
                                 << given;
        };
        row("ftp, the repository's server", "ftp://h/pub/", "ftp://h/other/a.deb", true);
        row("the same port, implied", "ftp://h:21/", "ftp://h/a.deb", true);
        row("another port", "ftp://h/", "ftp://h:2121/a.deb", false);
        row("another host", "ftp://h/", "ftp://i/a.deb", false);
        row("another scheme of the same host", "http://h/", "ftp://h/a.deb", false);
        row("http is asked first", "http://h/", "http://h/a.deb", false);
        row("https is asked first", "https://h/", "https://h/a.deb", false);
        row("a file", "file:///srv/", "file:///srv/a.deb", false);
        row("any server", "", "ftp://h/a.deb", true);
        row("capitals", "FTP://H/", "ftp://h/a.deb", true);
    }
    void loginInUrls()
    {
        QFETCH(QString, server);
        QFETCH(QString, url);
        QFETCH(bool, given);
        RVAccess access = accessTo(qPrintable(server));
        QUrl expected(url);
        if (given) {
            expected.setUserName(repositoryLogin.user);
            expected.setPassword(repositoryLogin.password, QUrl::DecodedMode);
        }
        QCOMPARE(access.withLogin(QUrl(url)), expected);
        access.login.password.clear();
        QCOMPARE(access.withLogin(QUrl(url)), QUrl(url));
        access.login = {QString(), repositoryLogin.password};
        QCOMPARE(access.withLogin(QUrl(url)), QUrl(url));
    }

    void proxies_data()
    {
        QTest::addColumn<QString>("host");
        QTest::addColumn<int>("port");
        QTest::addColumn<QString>("url");
        QTest::addColumn<int>("type");
        const QString host = QStringLiteral("proxy");
        QTest::newRow("http") << host << 3128 << "http://h/" << int(QNetworkProxy::HttpProxy);
        QTest::newRow("https") << host << 3128 << "https://h/" << int(QNetworkProxy::HttpProxy);
        QTest::newRow("ftp") << host << 3128 << "ftp://h/" << int(QNetworkProxy::FtpCachingProxy);
        QTest::newRow("ftp in capitals")
            << host << 3128 << "FTP://h/" << int(QNetworkProxy::FtpCachingProxy);
        QTest::newRow("no host") << QString() << 3128 << "http://h/"
                                 << int(QNetworkProxy::DefaultProxy);
        QTest::newRow("port 0") << host << 0 << "http://h/" << int(QNetworkProxy::DefaultProxy);
        QTest::newRow("port -2") << host << -2 << "ftp://h/" << int(QNetworkProxy::DefaultProxy);
    }
    void proxies()
    {
        QFETCH(QString, host);
        QFETCH(int, port);
        QFETCH(QString, url);
        QFETCH(int, type);
        RVAccess access;
        access.proxyHost = host;
        access.proxyPort = port;
        QCOMPARE(access.hasProxy(), type != QNetworkProxy::DefaultProxy);
        XNetworkAccessManager manager;
        access.configure(&manager, QUrl(url));
        for (const QNetworkProxy &proxy : {access.proxyFor(QUrl(url)), manager.proxy()}) {
            QCOMPARE(int(proxy.type()), type);
            QCOMPARE(proxy.hostName(), access.hasProxy() ? host : QString());
        }
    }

    void limitsReachTheManager()
    {
        RVAccess access;
        access.inactivityLimit = 17;
        access.bodyLimit = 4711;
        XNetworkAccessManager manager;
        access.configure(&manager, QUrl(QStringLiteral("http://h/")));
        QCOMPARE(manager.inactivityLimit, 17);
        QCOMPARE(manager.bodyLimit, qint64(4711));
    }

    void transfersOfCopiesAreCountedTogether()
    {
        const RVAccess access;
        const RVAccess copy = access;
        XNetworkAccessManager one;
        XNetworkAccessManager other;
        access.configure(&one, QUrl(QStringLiteral("http://h/")));
        copy.configure(&other, QUrl(QStringLiteral("ftp://h/")));
        QVERIFY(one.stored);
        QCOMPARE(one.stored, other.stored);
        const RVAccess another;
        QVERIFY(another.stored != access.stored);
    }

    void copiesShareTheKeyring()
    {
        const RVAccess access;
        const RVAccess copy = access;
        copy.keyring->keep(QStringLiteral("proxy:3128"), otherLogin);
        QAuthenticator auth;
        QVERIFY(access.answer(
            QNetworkProxy(QNetworkProxy::HttpProxy, QStringLiteral("proxy"), 3128), &auth));
        QCOMPARE(auth.user(), otherLogin.user);
    }

    void whoIsAnswered_data()
    {
        QTest::addColumn<QString>("server");
        QTest::addColumn<QString>("asking");
        QTest::addColumn<QString>("user");
        const auto row = [](const char *title, const char *server, const char *asking,
                            const QString &user) {
            QTest::newRow(title) << QString::fromLatin1(server) << QString::fromLatin1(asking)
                                 << user;
        };
        row("the repository's server", "http://h/a/", "http://h/b/x.xml", repositoryLogin.user);
        row("another port", "http://h/", "http://h:8080/x.xml", QString());
        row("another scheme", "http://h/", "https://h/x.xml", QString());
        row("another host", "http://h/", "http://i/x.xml", QString());
        row("one that the keyring knows", "http://h/", "http://known/x.xml", otherLogin.user);
        row("the keyring never answers for the repository", "http://known/", "http://known/x.xml",
            repositoryLogin.user);
        row("any server", "", "http://i/x.xml", repositoryLogin.user);
    }
    void whoIsAnswered()
    {
        QFETCH(QString, server);
        QFETCH(QString, asking);
        QFETCH(QString, user);
        const RVAccess access = accessTo(qPrintable(server));
        access.keyring->keep(originOf(QUrl(QStringLiteral("http://known/"))), otherLogin);
        QAuthenticator auth;
        QCOMPARE(access.answer(replyFor(QUrl(asking)).get(), &auth), !user.isEmpty());
        QCOMPARE(auth.user(), user);
    }

    // A listing's question may outlive its reply.
    void challengeWithoutReply()
    {
        QAuthenticator auth;
        QVERIFY(accessTo("http://h/").answer(nullptr, &auth));
        QCOMPARE(auth.password(), repositoryLogin.password);
    }

    void answersServers_data()
    {
        QTest::addColumn<QStringList>("logins");
        QTest::addColumn<QStringList>("expected");
        const auto row = [](const char *title, const QStringList &logins,
                            const QStringList &expected) {
            QTest::newRow(title) << logins << expected;
        };
        const QString ask = QStringLiteral("?");
        row("none", {QString()}, {ask});
        row("one", {QStringLiteral("pw")}, {QStringLiteral("pw")});
        row("a refused one", {QStringLiteral("pw"), QStringLiteral("pw")},
            {QStringLiteral("pw"), ask});
        // The empty answer to a question is challenged again.
        row("a refused one for ever",
            {QStringLiteral("pw"), QStringLiteral("pw"), QStringLiteral("pw")},
            {QStringLiteral("pw"), ask, ask});
        row("a new one", {QStringLiteral("old"), QStringLiteral("pw")},
            {QStringLiteral("old"), QStringLiteral("pw")});
    }
    void answersServers()
    {
        QFETCH(QStringList, logins);
        XNetworkReply reply;
        QAuthenticator auth;
        QStringList answers;
        for (const QString &password : qAsConst(logins)) {
            const RVLogin login{password.isEmpty() ? QString() : QStringLiteral("me"), password};
            RVAccess access;
            access.login = login;
            if (access.answer(&reply, &auth)) {
                answers.append(auth.password());
            } else {
                answers.append(QStringLiteral("?"));
                auth.setUser(QString());
                auth.setPassword(QString());
            }
        }
        QTEST(answers, "expected");
    }
};

QTEST_GUILESS_MAIN(tst_RVAccess)
#include "tst_RVAccess.moc"

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "network/RVKeyring.h"
#include "network/XNetworkAccessManager.h"

#include <QAuthenticator>
#include <QNetworkProxy>
#include <QtTest>

namespace
{

const QString place = QStringLiteral("proxy.example:3128");
const RVLogin rightLogin{QStringLiteral("me"), QStringLiteral("right")};
const RVLogin wrongLogin{QStringLiteral("me"), QStringLiteral("wrong")};

QNetworkProxy proxy()
{
    return {QNetworkProxy::HttpProxy, QStringLiteral("Proxy.Example"), 3128};
}

} // namespace

class tst_RVKeyring : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsAndForgets()
    {
        RVKeyring keyring;
        QVERIFY(keyring.login(place).isEmpty());
        keyring.keep(place, wrongLogin);
        QVERIFY(keyring.login(place) == wrongLogin);
        keyring.forget(QStringLiteral("other:3128"), wrongLogin);
        QVERIFY(keyring.login(place) == wrongLogin);
        // Another one was typed before the refusal of the first came back.
        keyring.keep(place, rightLogin);
        keyring.forget(place, wrongLogin);
        QVERIFY(keyring.login(place) == rightLogin);
        keyring.forget(place, rightLogin);
        QVERIFY(keyring.login(place).isEmpty());
    }

    void answersProxies()
    {
        QCOMPARE(RVKeyring::placeOf(proxy()), place);
        RVKeyring keyring;
        QAuthenticator auth;
        QVERIFY(!keyring.answer(proxy(), &auth));
        QVERIFY(auth.isNull());
        keyring.keep(place, rightLogin);
        QVERIFY(keyring.answer(proxy(), &auth));
        QCOMPARE(auth.user(), rightLogin.user);
        QCOMPARE(auth.password(), rightLogin.password);
        // It is the one that was refused.
        QVERIFY(!keyring.answer(proxy(), &auth));
        QVERIFY(keyring.login(place).isEmpty());
        keyring.keep(place, rightLogin);
        // A type is no part of the place, a port is.
        QAuthenticator other;
        QVERIFY(keyring.answer(
            QNetworkProxy(QNetworkProxy::FtpCachingProxy, QStringLiteral("proxy.example"), 3128),
            &other));
        QVERIFY(!keyring.answer(
            QNetworkProxy(QNetworkProxy::HttpProxy, QStringLiteral("proxy.example"), 3129),
            &other));
    }

    // The authenticator is a blank one each time, as for a tunnel.
    void forgetsWhatAProxyRefuses()
    {
        const auto keyring = QSharedPointer<RVKeyring>::create();
        keyring->keep(place, wrongLogin);
        XNetworkAccessManager manager;
        manager.setKeyring(keyring);
        QStringList answers;
        connect(&manager, &QNetworkAccessManager::proxyAuthenticationRequired, this,
                [&](const QNetworkProxy &asking, QAuthenticator *auth) {
                    answers.append(keyring->answer(asking, auth) ? auth->password()
                                                                 : QStringLiteral("?"));
                });
        const auto challenge = [](XNetworkAccessManager *challenged) {
            QAuthenticator auth;
            challenged->relayProxyAuthenticationRequired(proxy(), &auth);
        };
        challenge(&manager);
        challenge(&manager);
        QCOMPARE(answers, QStringList({QStringLiteral("wrong"), QStringLiteral("?")}));
        // Transfers side by side are asked once each: that refuses nothing.
        keyring->keep(place, rightLogin);
        for (int i = 0; i < 3; ++i) {
            XNetworkAccessManager next;
            next.setKeyring(keyring);
            challenge(&next);
        }
        QVERIFY(keyring->login(place) == rightLogin);
        // Typed after the first one asked in vain.
        challenge(&manager);
        QCOMPARE(answers.last(), QStringLiteral("right"));
    }

    void managerWithoutKeyring()
    {
        XNetworkAccessManager manager;
        QAuthenticator auth;
        manager.relayProxyAuthenticationRequired(proxy(), &auth);
        QVERIFY(auth.isNull());
    }
};

QTEST_GUILESS_MAIN(tst_RVKeyring)
#include "tst_RVKeyring.moc"

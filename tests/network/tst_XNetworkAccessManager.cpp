// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "network/NetworkDirRequest.h"
#include "network/XHttpReply.h"
#include "network/XNetworkAccessManager.h"
#include "network/XNetworkReply.h"
#include "tests/support/HttpServer.h"
#include "tests/support/InlineFtpServer.h"
#include "tests/support/LogFile.h"

#include <QAuthenticator>
#include <QPointer>
#include <QSignalSpy>
#include <QtTest>

Q_DECLARE_METATYPE(QAuthenticator *)

class tst_XNetworkAccessManager : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void followsNoRedirect();
    void knowsTheSchemes_data();
    void knowsTheSchemes();
    void localListingIsDeliveredInsideTheCall();
    void eachListingIsDeliveredOnce();
    void localFailureIsDelivered();
    void schemeWithoutBackendFails_data();
    void schemeWithoutBackendFails();
    void schemeWithoutBackendIsAnError();
    void capitalsNeverReachTheBackendChoice();
    void replyOutlivesTheManager();
    void laterFinalSignalIsPassedOn();
    void relaysQtSignals();
    void policyOfTransfers_data();
    void policyOfTransfers();
    void limitsOfTransfers_data();
    void limitsOfTransfers();
    void otherSchemesAreQts();
    void usualProxies_data();
    void usualProxies();
};

void tst_XNetworkAccessManager::initTestCase()
{
    qRegisterMetaType<QNetworkReply *>();
    qRegisterMetaType<QAuthenticator *>();
    qRegisterMetaType<QList<QSslError>>();
    qRegisterMetaType<XNetworkReply *>();
}

void tst_XNetworkAccessManager::followsNoRedirect()
{
    QCOMPARE(XNetworkAccessManager().redirectPolicy(), QNetworkRequest::ManualRedirectPolicy);
}

void tst_XNetworkAccessManager::knowsTheSchemes_data()
{
    QTest::addColumn<bool>("supported");
    for (const char *scheme :
         {"", "ftp", "FTP", "file", "File", "http", "HTTP", "https", "httpS"}) {
        QTest::newRow(scheme) << true;
    }
    for (const char *scheme : {"gopher", "qrc", "data", "ftps", "sftp", " ", "httpx", "c"}) {
        QTest::newRow(scheme) << false;
    }
}

void tst_XNetworkAccessManager::knowsTheSchemes()
{
    const QString scheme = QLatin1String(QTest::currentDataTag());
    QTEST(XNetworkAccessManager().schemeIsSupported(scheme), "supported");
}

void tst_XNetworkAccessManager::localListingIsDeliveredInsideTheCall()
{
    XNetworkAccessManager manager;
    XNetworkReply *delivered = nullptr;
    connect(&manager, &XNetworkAccessManager::directoryFinished, this, [&](XNetworkReply *reply) {
        delivered = reply;
    });
    const std::unique_ptr<XNetworkReply> reply(
        manager.getDirectory(NetworkDirRequest(QUrl(QStringLiteral("file:///")))));
    QVERIFY(reply);
    QCOMPARE(delivered, reply.get());
    QCOMPARE(reply->error(), QNetworkReply::NoError);
    QVERIFY(!reply->entries.isEmpty());
}

void tst_XNetworkAccessManager::eachListingIsDeliveredOnce()
{
    XNetworkAccessManager manager;
    QSignalSpy delivered(&manager, &XNetworkAccessManager::directoryFinished);
    const NetworkDirRequest request(QUrl(QStringLiteral("/")));
    const std::unique_ptr<XNetworkReply> first(manager.getDirectory(request));
    const std::unique_ptr<XNetworkReply> second(manager.getDirectory(request));
    QCoreApplication::processEvents();
    QCOMPARE(delivered.count(), 2);
    QVERIFY(first != second);
}

void tst_XNetworkAccessManager::localFailureIsDelivered()
{
    XNetworkAccessManager manager;
    QSignalSpy delivered(&manager, &XNetworkAccessManager::directoryFinished);
    const std::unique_ptr<XNetworkReply> reply(
        manager.getDirectory(NetworkDirRequest(QUrl(QStringLiteral("file:///does/not/exist")))));
    QCOMPARE(delivered.count(), 1);
    QCOMPARE(reply->error(), QNetworkReply::ContentNotFoundError);
    QVERIFY(reply->entries.isEmpty());
}

void tst_XNetworkAccessManager::schemeWithoutBackendFails_data()
{
    QTest::addColumn<QString>("url");
    QTest::newRow("gopher") << QStringLiteral("gopher://host/x");
    QTest::newRow("resources") << QStringLiteral("qrc:///images");
    QTest::newRow("data") << QStringLiteral("data:,x");
}

void tst_XNetworkAccessManager::schemeWithoutBackendFails()
{
    QFETCH(QString, url);
    const LogFile log;
    XNetworkAccessManager manager;
    int deliveries = 0;
    connect(&manager, &XNetworkAccessManager::directoryFinished, this, [&](XNetworkReply *reply) {
        ++deliveries;
        QVERIFY(reply->finished);
        QVERIFY(reply->isFinished());
        QCOMPARE(static_cast<int>(reply->error()), 302);
    });
    const std::unique_ptr<XNetworkReply> reply(manager.getDirectory(NetworkDirRequest{QUrl(url)}));
    QCOMPARE(deliveries, 1);
    QCOMPARE(reply->error(), QNetworkReply::ProtocolInvalidOperationError);
    QCOMPARE(reply->errorString(), QStringLiteral("Protocol does not support directory reads"));
    QCOMPARE(reply->url(), QUrl(url));
    QCOMPARE(reply->request().url(), QUrl(url));
    QCOMPARE(static_cast<int>(reply->operation()), 1000);
    QVERIFY(reply->entries.isEmpty());
    QCOMPARE(log.count(QStringLiteral("PROTOCOL DOES NOT SUPPORT DIRECTORY ACCESS")), 1);
}

void tst_XNetworkAccessManager::schemeWithoutBackendIsAnError()
{
    LogFile log;
    XNetworkAccessManager manager;
    const int level =
        log.levelOf(QStringLiteral("PROTOCOL DOES NOT SUPPORT DIRECTORY ACCESS"), [&manager] {
            delete manager.getDirectory(NetworkDirRequest{QUrl(QStringLiteral("gopher://host/x"))});
        });
    QCOMPARE(level, 3);
}

void tst_XNetworkAccessManager::capitalsNeverReachTheBackendChoice()
{
    // schemeIsSupported() ignores case and the choice of a backend does not, but a QUrl lowers its
    // scheme.
    QCOMPARE(QUrl(QStringLiteral("FTP://host/")).scheme(), QStringLiteral("ftp"));
    QVERIFY(XNetworkAccessManager().schemeIsSupported(QStringLiteral("FTP")));
}

void tst_XNetworkAccessManager::replyOutlivesTheManager()
{
    QPointer<XNetworkReply> reply;
    {
        XNetworkAccessManager manager;
        reply = manager.getDirectory(NetworkDirRequest(QUrl(QStringLiteral("/"))));
    }
    QVERIFY(reply);
    delete reply;
}

void tst_XNetworkAccessManager::laterFinalSignalIsPassedOn()
{
    XNetworkAccessManager manager;
    QSignalSpy delivered(&manager, &XNetworkAccessManager::directoryFinished);
    XNetworkReply reply;
    QVERIFY(QMetaObject::invokeMethod(&manager, "emitDirectoryFinished",
                                      Q_ARG(XNetworkReply *, &reply)));
    QCOMPARE(delivered.count(), 1);
    QCOMPARE(delivered[0][0].value<XNetworkReply *>(), &reply);
}

void tst_XNetworkAccessManager::relaysQtSignals()
{
    XNetworkAccessManager manager;
    XNetworkReply reply;
    QAuthenticator auth;
    int calls = 0;
    connect(&manager, &QNetworkAccessManager::authenticationRequired, this,
            [&](QNetworkReply *r, QAuthenticator *a) {
                calls += r == &reply && a == &auth;
            });
    connect(&manager, &QNetworkAccessManager::proxyAuthenticationRequired, this,
            [&](const QNetworkProxy &p, QAuthenticator *a) {
                calls += p.hostName() == QLatin1String("proxy") && a == &auth;
            });
    connect(&manager, &QNetworkAccessManager::finished, this, [&](QNetworkReply *r) {
        calls += r == &reply;
    });
    connect(&manager, &QNetworkAccessManager::sslErrors, this,
            [&](QNetworkReply *r, const QList<QSslError> &e) {
                calls += r == &reply && e.value(0).error() == QSslError::HostNameMismatch;
            });
    manager.relayAuthenticationRequired(&reply, &auth);
    QCOMPARE(calls, 1);
    manager.relayProxyAuthenticationRequired(
        QNetworkProxy(QNetworkProxy::HttpProxy, QStringLiteral("proxy")), &auth);
    QCOMPARE(calls, 2);
    manager.relayFinished(&reply);
    QCOMPARE(calls, 3);
    manager.relaySslErrors(&reply, {QSslError(QSslError::HostNameMismatch)});
    QCOMPARE(calls, 4);
}

void tst_XNetworkAccessManager::policyOfTransfers_data()
{
    QTest::addColumn<bool>("get");
    QTest::newRow("get") << true;
    QTest::newRow("head") << false;
}

void tst_XNetworkAccessManager::policyOfTransfers()
{
    QFETCH(bool, get);
    HttpServer server;
    server.serve(QStringLiteral("/x"), "moved", 302, "Location: /y\r\n");
    XNetworkAccessManager manager;
    // Whatever a caller asks for.
    QNetworkRequest request(server.url(QStringLiteral("/x")));
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::NoLessSafeRedirectPolicy);
    request.setAttribute(QNetworkRequest::Http2AllowedAttribute, true);
    request.setAttribute(QNetworkRequest::HttpPipeliningAllowedAttribute, true);
    request.setRawHeader("Accept-Encoding", "gzip");
    const std::unique_ptr<QNetworkReply> reply(get ? manager.get(request) : manager.head(request));
    QCOMPARE(qobject_cast<XHttpReply *>(reply.get()) != nullptr, get);
    const QNetworkRequest sent = reply->request();
    QCOMPARE(sent.attribute(QNetworkRequest::RedirectPolicyAttribute).toInt(),
             static_cast<int>(QNetworkRequest::ManualRedirectPolicy));
    QCOMPARE(sent.attribute(QNetworkRequest::Http2AllowedAttribute), QVariant(false));
    QCOMPARE(sent.attribute(QNetworkRequest::HttpPipeliningAllowedAttribute), QVariant(false));
    QTRY_VERIFY_WITH_TIMEOUT(reply->isFinished(), 5000);
    QCOMPARE(server.requests().size(), 1);
    QVERIFY(server.requests().first().contains("\r\nAccept-Encoding: identity\r\n"));
    QVERIFY(!server.requests().first().contains("HTTP2-Settings"));
}

void tst_XNetworkAccessManager::limitsOfTransfers_data()
{
    QTest::addColumn<bool>("isFtp");
    QTest::addColumn<bool>("isSilent");
    QTest::addColumn<qint64>("bodyLimit");
    QTest::addColumn<int>("error");
    for (const bool isFtp : {false, true}) {
        const QByteArray scheme = isFtp ? "ftp" : "http";
        const auto row = [&](const char *name, bool isSilent, qint64 bodyLimit, int error) {
            QTest::newRow((scheme + ", " + name).constData())
                << isFtp << isSilent << bodyLimit << error;
        };
        row("within both", false, 8, QNetworkReply::NoError);
        row("silence", true, 8, QNetworkReply::TimeoutError);
        row("too large a body", false, 7, QNetworkReply::ProtocolFailure);
    }
}

void tst_XNetworkAccessManager::limitsOfTransfers()
{
    QFETCH(bool, isFtp);
    QFETCH(bool, isSilent);
    QFETCH(qint64, bodyLimit);
    QFETCH(int, error);
    HttpServer http;
    http.serve(QStringLiteral("/x"), "content");
    InlineFtpServer ftp;
    ftp.setFile("content");
    if (isSilent) {
        http.hold();
        ftp.answer("RETR", "150 Here it comes\r\n");
    }
    XNetworkAccessManager manager;
    QCOMPARE(manager.inactivityLimit, 120'000);
    QCOMPARE(manager.bodyLimit, qint64(1) << 31);
    manager.inactivityLimit = isSilent ? 300 : 10'000;
    manager.bodyLimit = bodyLimit;
    const QUrl url = isFtp ? QUrl(QStringLiteral("ftp://127.0.0.1:%1/x").arg(ftp.port()))
                           : http.url(QStringLiteral("/x"));
    const std::unique_ptr<QNetworkReply> reply(manager.get(QNetworkRequest(url)));
    QSignalSpy finished(reply.get(), &QNetworkReply::finished);
    QVERIFY(finished.wait(5000));
    QCOMPARE(static_cast<int>(reply->error()), error);
    QCOMPARE(finished.size(), 1);
}

void tst_XNetworkAccessManager::otherSchemesAreQts()
{
    XNetworkAccessManager manager;
    const std::unique_ptr<QNetworkReply> reply(
        manager.get(QNetworkRequest(QUrl(QStringLiteral("data:,hello")))));
    QVERIFY(!qobject_cast<XSpooledReply *>(reply.get()));
    QTRY_VERIFY_WITH_TIMEOUT(reply->isFinished(), 5000);
    QCOMPARE(reply->readAll(), QByteArray("hello"));
    const std::unique_ptr<QNetworkReply> file(
        manager.get(QNetworkRequest(QUrl(QStringLiteral("file:///does/not/exist")))));
    QVERIFY(!qobject_cast<XSpooledReply *>(file.get()));
    QCOMPARE(file->error(), QNetworkReply::ContentNotFoundError);
}

void tst_XNetworkAccessManager::usualProxies_data()
{
    QTest::addColumn<QString>("host");
    QTest::addColumn<QByteArray>("exceptions");
    QTest::addColumn<bool>("ownProxy");
    QTest::addColumn<QString>("through");
    QTest::newRow("the environment's") << QStringLiteral("repository.invalid") << QByteArray()
                                       << false << QStringLiteral("environment");
    QTest::newRow("one of its own")
        << QStringLiteral("repository.invalid") << QByteArray() << true << QStringLiteral("own");
    QTest::newRow("none for this machine")
        << QString() << QByteArray() << false << QStringLiteral("direct");
    QTest::newRow("none for an exception")
        << QStringLiteral("localhost") << QByteArray("localhost,127.0.0.1") << false
        << QStringLiteral("direct");
}

void tst_XNetworkAccessManager::usualProxies()
{
    QFETCH(QString, host);
    QFETCH(QByteArray, exceptions);
    QFETCH(bool, ownProxy);
    QFETCH(QString, through);
    HttpServer direct;
    HttpServer environment;
    HttpServer own;
    QUrl url = direct.url(QStringLiteral("/x"));
    if (!host.isEmpty()) {
        url.setHost(host);
    }
    for (HttpServer *server : {&direct, &environment, &own}) {
        server->serve(QStringLiteral("/x"), "hello");
        server->serve(url.toString(), "hello");
    }
    qputenv("http_proxy", environment.url(QString()).toEncoded());
    qputenv("no_proxy", exceptions);
    XNetworkAccessManager manager;
    if (ownProxy) {
        manager.setProxy(QNetworkProxy(QNetworkProxy::HttpProxy, QStringLiteral("127.0.0.1"),
                                       static_cast<quint16>(own.url(QString()).port())));
    }
    const std::unique_ptr<QNetworkReply> reply(manager.get(QNetworkRequest(url)));
    QTRY_VERIFY_WITH_TIMEOUT(reply->isFinished(), 5000);
    qunsetenv("http_proxy");
    qunsetenv("no_proxy");
    QCOMPARE(reply->error(), QNetworkReply::NoError);
    QCOMPARE(reply->readAll(), QByteArray("hello"));
    QCOMPARE(direct.requests().size(), through == QLatin1String("direct") ? 1 : 0);
    QCOMPARE(environment.requests().size(), through == QLatin1String("environment") ? 1 : 0);
    QCOMPARE(own.requests().size(), through == QLatin1String("own") ? 1 : 0);
}

QTEST_GUILESS_MAIN(tst_XNetworkAccessManager)
#include "tst_XNetworkAccessManager.moc"

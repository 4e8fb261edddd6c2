// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/support/OrdinaryUser.h"
#include "tests/support/WebServers.h"

#include <QAuthenticator>
#include <QDir>
#include <QFile>
#include <QNetworkAccessManager>
#include <QNetworkProxy>
#include <QNetworkReply>
#include <QSslConfiguration>
#include <QSslError>
#include <QtTest>

#include <csignal>
#include <memory>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

bool writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

QString publish(const WebServer &server, const QByteArray &content = "hello")
{
    const QString name = server.root() + QStringLiteral("/a.txt");
    return writeFile(name, content) ? QStringLiteral("/a.txt") : QString();
}

} // namespace

/// The servers that other tests stand on do what they say.
class tst_WebServers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void nginxServesFilesAndIndexes();
    void nginxAnswersByPath();
    void nginxAsksForALogin();
    void nginxIsSlowOnDemand();
    void nginxKeepsItsPorts();
    void certificates_data();
    void certificates();
    void certificateChanges();
    void apacheServesIndexes_data();
    void apacheServesIndexes();
    void apacheAsksForALogin_data();
    void apacheAsksForALogin();
    void squidPassesOn();
    void squidAsksForALogin();
    void neverRunsAsRoot();
    void goesWithItsParent();
    void tellsWhyItDoesNotStart();

private:
    QByteArray get(const QUrl &url);
    int status() const
    {
        return m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    }

    std::unique_ptr<QNetworkAccessManager> m_manager;
    std::unique_ptr<QNetworkReply> m_reply;
    QString m_user;
    QString m_password;
    QList<QSslError> m_errors;
};

void tst_WebServers::init()
{
    m_reply.reset();
    m_manager = std::make_unique<QNetworkAccessManager>();
    m_user.clear();
    m_password.clear();
    m_errors.clear();
    const auto fill = [this](QAuthenticator *auth) {
        if (auth->user() != m_user) {
            auth->setUser(m_user);
            auth->setPassword(m_password);
        }
    };
    connect(m_manager.get(), &QNetworkAccessManager::authenticationRequired, this,
            [fill](QNetworkReply *, QAuthenticator *auth) {
                fill(auth);
            });
    connect(m_manager.get(), &QNetworkAccessManager::proxyAuthenticationRequired, this,
            [fill](const QNetworkProxy &, QAuthenticator *auth) {
                fill(auth);
            });
    connect(m_manager.get(), &QNetworkAccessManager::sslErrors, this,
            [this](QNetworkReply *, const QList<QSslError> &errors) {
                m_errors = errors;
            });
}

QByteArray tst_WebServers::get(const QUrl &url)
{
    m_reply.reset(m_manager->get(QNetworkRequest(url)));
    QSignalSpy finished(m_reply.get(), &QNetworkReply::finished);
    return m_reply->isFinished() || finished.wait(20000) ? m_reply->readAll() : "no end";
}

void tst_WebServers::nginxServesFilesAndIndexes()
{
    NginxServer server;
    const QString path = publish(server);
    QVERIFY2(server.start(), server.report());
    QVERIFY(server.isRunning());
    QCOMPARE(get(server.url(path)), QByteArray("hello"));
    QVERIFY(get(server.url()).contains("<a href=\"a.txt\">"));
    get(server.url(QStringLiteral("/none?x")));
    QCOMPARE(status(), 404);
    QTRY_COMPARE(server.requests(),
                 (QStringList{QStringLiteral("GET /a.txt 200 -"), QStringLiteral("GET / 200 -"),
                              QStringLiteral("GET /none?x 404 -")}));
    server.clearRequests();
    get(server.url());
    QTRY_COMPARE(server.requests(), (QStringList{QStringLiteral("GET / 200 -")}));
    server.stop();
    QVERIFY(!server.isRunning());
    get(server.url());
    QCOMPARE(m_reply->error(), QNetworkReply::ConnectionRefusedError);
}

void tst_WebServers::nginxAnswersByPath()
{
    NginxServer server;
    for (const int code : {204, 400, 403, 429, 500, 503}) {
        server.answer(QStringLiteral("/%1").arg(code), code);
    }
    for (const int code : {301, 302, 303, 307, 308}) {
        server.redirect(QStringLiteral("/%1").arg(code), code, QStringLiteral("/elsewhere?a=b"));
    }
    server.answer(QStringLiteral("/folder/"), 410);
    QVERIFY2(server.start(), server.report());
    for (const int code : {204, 400, 403, 429, 500, 503}) {
        get(server.url(QStringLiteral("/%1").arg(code)));
        QCOMPARE(status(), code);
    }
    for (const int code : {301, 302, 303, 307, 308}) {
        get(server.url(QStringLiteral("/%1").arg(code)));
        QCOMPARE(status(), code);
        QVERIFY(m_reply->rawHeader("Location").endsWith("/elsewhere?a=b"));
    }
    get(server.url(QStringLiteral("/folder/below/it")));
    QCOMPARE(status(), 410);
}

void tst_WebServers::nginxAsksForALogin()
{
    NginxServer server;
    const QString path = publish(server);
    QVERIFY(QDir(server.root()).mkdir(QStringLiteral("closed")));
    QVERIFY(writeFile(server.root() + QStringLiteral("/closed/b.txt"), "secret"));
    server.protect(QStringLiteral("/closed/"), QStringLiteral("me"), QStringLiteral("p:w \""));
    QVERIFY2(server.start(), server.report());
    QCOMPARE(get(server.url(path)), QByteArray("hello"));
    const QUrl closed = server.url(QStringLiteral("/closed/b.txt"));
    get(closed);
    QCOMPARE(status(), 401);
    m_user = QStringLiteral("me");
    m_password = QStringLiteral("wrong");
    get(closed);
    QCOMPARE(status(), 401);
    init();
    m_user = QStringLiteral("me");
    m_password = QStringLiteral("p:w \"");
    QCOMPARE(get(closed), QByteArray("secret"));
    QTRY_COMPARE(server.count(QStringLiteral("GET /closed/b.txt 200 me")), 1);
}

void tst_WebServers::nginxIsSlowOnDemand()
{
    NginxServer server;
    const QString path = publish(server, QByteArray(8000, 'x'));
    server.limitRate(path, 4000);
    QVERIFY2(server.start(), server.report());
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(get(server.url(path)).size(), 8000);
    QVERIFY2(timer.elapsed() > 900, QByteArray::number(timer.elapsed()).constData());
}

void tst_WebServers::nginxKeepsItsPorts()
{
    NginxServer server;
    QVERIFY2(server.start(), server.report());
    const QUrl url = server.url();
    server.answer(QStringLiteral("/new"), 503);
    QVERIFY2(server.start(), server.report());
    QCOMPARE(server.url(), url);
    get(server.url(QStringLiteral("/new")));
    QCOMPARE(status(), 503);
}

void tst_WebServers::certificates_data()
{
    using Errors = QList<int>;
    QTest::addColumn<int>("kind");
    QTest::addColumn<bool>("trusted");
    QTest::addColumn<Errors>("errors");
    QTest::newRow("trusted") << 0 << true << Errors{};
    QTest::newRow("unknown authority") << 0 << false
                                       << Errors{QSslError::UnableToGetLocalIssuerCertificate,
                                                 QSslError::UnableToVerifyFirstCertificate};
    QTest::newRow("expired") << 1 << true << Errors{QSslError::CertificateExpired};
    QTest::newRow("not yet valid") << 2 << true << Errors{QSslError::CertificateNotYetValid};
    QTest::newRow("another host's") << 3 << true << Errors{QSslError::HostNameMismatch};
    QTest::newRow("self-signed") << 4 << false << Errors{QSslError::SelfSignedCertificate};
}

void tst_WebServers::certificates()
{
    QFETCH(int, kind);
    QFETCH(bool, trusted);
    QFETCH(QList<int>, errors);
    TestAuthority authority;
    const QStringList here{QStringLiteral("127.0.0.1")};
    const TestAuthority::Pair pair = kind == 4 ? authority.issueSelfSigned(here)
        : kind == 3 ? authority.issue({QStringLiteral("elsewhere.example")})
        : kind == 2 ? authority.issue(here, TestAuthority::NotYetValid)
        : kind == 1 ? authority.issue(here, TestAuthority::Expired)
                    : authority.issue(here);
    QVERIFY2(!pair.certificate.isEmpty(), authority.report().constData());
    NginxServer server;
    const QString path = publish(server);
    server.setCertificate(pair);
    QVERIFY2(server.start(), server.report());

    QNetworkRequest request(server.tlsUrl(path));
    QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    if (trusted) {
        configuration.setCaCertificates({authority.certificate()});
    }
    request.setSslConfiguration(configuration);
    m_reply.reset(m_manager->get(request));
    QSignalSpy finished(m_reply.get(), &QNetworkReply::finished);
    QVERIFY(finished.wait(20000));
    QList<int> found;
    for (const QSslError &error : qAsConst(m_errors)) {
        found.append(error.error());
    }
    QCOMPARE(found, errors);
    QCOMPARE(m_reply->readAll(), QByteArray(errors.isEmpty() ? "hello" : ""));
    QCOMPARE(m_reply->sslConfiguration().peerCertificate(), TestAuthority::read(pair.certificate));
}

void tst_WebServers::certificateChanges()
{
    TestAuthority authority;
    const TestAuthority::Pair first = authority.issue();
    const TestAuthority::Pair second = authority.issue();
    NginxServer server;
    server.setCertificate(first);
    QVERIFY2(server.start(), server.report());
    const QUrl url = server.tlsUrl();
    get(url);
    QCOMPARE(m_reply->sslConfiguration().peerCertificate(), TestAuthority::read(first.certificate));
    server.setCertificate(second);
    QVERIFY2(server.start(), server.report());
    QCOMPARE(server.tlsUrl(), url);
    init();
    get(url);
    QCOMPARE(m_reply->sslConfiguration().peerCertificate(),
             TestAuthority::read(second.certificate));
}

void tst_WebServers::apacheServesIndexes_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QByteArray>("mark");
    QTest::newRow("plain") << int(ApacheServer::PlainIndex) << QByteArray("<li><a href=\"a.txt\">");
    QTest::newRow("fancy") << int(ApacheServer::FancyIndex)
                           << QByteArray("<a href=\"?C=S;O=A\">Size</a>");
    QTest::newRow("table") << int(ApacheServer::TableIndex) << QByteArray("<td><a href=\"a.txt\">");
}

void tst_WebServers::apacheServesIndexes()
{
    QFETCH(int, index);
    QFETCH(QByteArray, mark);
    ApacheServer server(static_cast<ApacheServer::Index>(index));
    const QString path = publish(server);
    QVERIFY2(server.start(), server.report());
    QCOMPARE(get(server.url(path)), QByteArray("hello"));
    QVERIFY(get(server.url()).contains(mark));
    QTRY_COMPARE(server.requests(),
                 (QStringList{QStringLiteral("GET /a.txt 200 -"), QStringLiteral("GET / 200 -")}));
}

void tst_WebServers::apacheAsksForALogin_data()
{
    QTest::addColumn<int>("login");
    QTest::addColumn<QByteArray>("challenge");
    QTest::newRow("basic") << int(ApacheServer::Basic) << QByteArray("Basic realm=\"Ravel tests\"");
    QTest::newRow("digest") << int(ApacheServer::Digest)
                            << QByteArray("Digest realm=\"Ravel tests\"");
}

void tst_WebServers::apacheAsksForALogin()
{
    QFETCH(int, login);
    QFETCH(QByteArray, challenge);
    ApacheServer server;
    const QString path = publish(server);
    server.protect(QStringLiteral("/"), QStringLiteral("me"), QStringLiteral("password"),
                   static_cast<ApacheServer::Login>(login));
    QVERIFY2(server.start(), server.report());
    get(server.url(path));
    QCOMPARE(status(), 401);
    QVERIFY(m_reply->rawHeader("WWW-Authenticate").startsWith(challenge));
    m_user = QStringLiteral("me");
    m_password = QStringLiteral("password");
    QCOMPARE(get(server.url(path)), QByteArray("hello"));
    QTRY_COMPARE(server.count(QStringLiteral("GET /a.txt 200 me")), 1);
}

void tst_WebServers::squidPassesOn()
{
    TestAuthority authority;
    NginxServer server;
    const QString path = publish(server);
    server.setCertificate(authority.issue());
    QVERIFY2(server.start(), server.report());
    SquidProxy proxy;
    QVERIFY2(proxy.start(), proxy.report());
    m_manager->setProxy(
        QNetworkProxy(QNetworkProxy::HttpProxy, QStringLiteral("127.0.0.1"), proxy.port()));
    QCOMPARE(get(server.url(path)), QByteArray("hello"));
    QTRY_COMPARE(proxy.requests(),
                 (QStringList{QStringLiteral("GET %1 200 -").arg(server.url(path).toString())}));

    QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    configuration.setCaCertificates({authority.certificate()});
    QNetworkRequest request(server.tlsUrl(path));
    request.setSslConfiguration(configuration);
    m_reply.reset(m_manager->get(request));
    QSignalSpy finished(m_reply.get(), &QNetworkReply::finished);
    QVERIFY(finished.wait(20000));
    QCOMPARE(m_reply->readAll(), QByteArray("hello"));
    m_reply.reset();
    m_manager.reset();
    QTRY_COMPARE(proxy.count(QStringLiteral("CONNECT %1 200 -").arg(server.tlsUrl().authority())),
                 1);

    // Nothing leaves the loopback interface: documentation addresses go nowhere in any case.
    init();
    m_manager->setProxy(
        QNetworkProxy(QNetworkProxy::HttpProxy, QStringLiteral("127.0.0.1"), proxy.port()));
    get(QUrl(QStringLiteral("http://192.0.2.1/")));
    QCOMPARE(status(), 403);
}

void tst_WebServers::squidAsksForALogin()
{
    NginxServer server;
    const QString path = publish(server);
    QVERIFY2(server.start(), server.report());
    SquidProxy proxy;
    proxy.protect(QStringLiteral("me"), QStringLiteral("password"));
    QVERIFY2(proxy.start(), proxy.report());
    const QNetworkProxy use(QNetworkProxy::HttpProxy, QStringLiteral("127.0.0.1"), proxy.port());
    m_manager->setProxy(use);
    get(server.url(path));
    QCOMPARE(m_reply->error(), QNetworkReply::ProxyAuthenticationRequiredError);
    QVERIFY(server.requests().isEmpty());
    init();
    m_manager->setProxy(use);
    m_user = QStringLiteral("me");
    m_password = QStringLiteral("password");
    QCOMPARE(get(server.url(path)), QByteArray("hello"));
    QTRY_COMPARE(proxy.count(QStringLiteral("GET %1 200 me").arg(server.url(path).toString())), 1);
}

void tst_WebServers::neverRunsAsRoot()
{
    NginxServer server;
    publish(server);
    QVERIFY(QFile::setPermissions(server.root() + QStringLiteral("/a.txt"), {}));
    QVERIFY2(server.start(), server.report());
    get(server.url(QStringLiteral("/a.txt")));
    QCOMPARE(status(), 403);
}

void tst_WebServers::goesWithItsParent()
{
    // A child of ours starts a server, tells its URL and folder, and is killed.
    int answer[2];
    QCOMPARE(::pipe(answer), 0);
    const pid_t child = ::fork();
    if (child == 0) {
        ApacheServer server;
        const QByteArray told =
            server.start() ? server.url().toEncoded() + ' ' + server.root().toUtf8() : " ";
        if (::write(answer[1], told.constData(), static_cast<size_t>(told.size())) > 0) {
            ::pause();
        }
        ::_exit(1);
    }
    ::close(answer[1]);
    QByteArray told(1000, '\0');
    told.resize(static_cast<int>(qMax<ssize_t>(0, ::read(answer[0], told.data(), 1000))));
    ::close(answer[0]);
    const QUrl url = QUrl::fromEncoded(told.split(' ').value(0));
    const bool served = !url.isEmpty() && !get(url).isEmpty();
    ::kill(child, SIGKILL);
    ::waitpid(child, nullptr, 0);
    QDir folder(QString::fromUtf8(told.split(' ').value(1)));
    if (folder.cdUp() && folder.dirName().startsWith(QStringLiteral("ravel-web-"))) {
        folder.removeRecursively();
    }
    QVERIFY(served);
    QTRY_VERIFY_WITH_TIMEOUT(
        get(url).isEmpty() && m_reply->error() == QNetworkReply::ConnectionRefusedError, 10000);
}

void tst_WebServers::tellsWhyItDoesNotStart()
{
    NginxServer server;
    server.addDirectives("nonsense;");
    QVERIFY(!server.start());
    QVERIFY(QByteArray(server.report()).contains("unknown directive \"nonsense\""));
    QVERIFY(!server.isRunning());
}

QTEST_GUILESS_MAIN(tst_WebServers)
#include "tst_WebServers.moc"

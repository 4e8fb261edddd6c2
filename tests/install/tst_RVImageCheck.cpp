// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "archive/ImageQuestion.h"
#include "install/RVInstallProc.h"
#include "tests/support/FakeRoot.h"
#include "tests/support/FtpServers.h"
#include "tests/support/HttpServer.h"
#include "tests/support/LogFile.h"
#include "tests/support/WarningGuard.h"
#include "tests/support/WebServers.h"

#include <QAuthenticator>
#include <QBuffer>
#include <QDir>
#include <QSignalSpy>
#include <QtTest>

#include <memory>
#include <sys/stat.h>

namespace
{

constexpr int limitMs = 60000;
constexpr int imageSize = 3000000;
constexpr char notThere[] = "The image is not there.";
constexpr char login[] = "The server wants a login for the image. The device has none but the one "
                         "in the repository's location.";
constexpr char empty[] = "The image is empty.";
constexpr char page[] = "There is a page in place of the image.";
constexpr char notPacked[] = "The file is no image: it is not packed by gzip.";
constexpr char otherSize[] = "The image has 3000000 bytes. Its description says 2999999.";
constexpr char unreadable[] = "The image cannot be read: ";

QByteArray image(int size = imageSize)
{
    return QByteArray("\x1f\x8b\x08", 3) + QByteArray(size - 3, 'i');
}

class Yes : public ImageQuestion
{
public:
    bool confirmImageInstall() override
    {
        ++count;
        return true;
    }
    int count = 0;
};

} // namespace

Q_DECLARE_METATYPE(RVAccess)

/// A full image is asked for before anybody is asked about it: what the device could not have is
/// refused, on every kind of server.
class tst_RVImageCheck : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void refused_data();
    void refused();
    void accepted_data();
    void accepted();
    void endlessBodyIsCut();
    void acceptedCertificateIsNamed();
    void cancelEndsIt();

private:
    /// Where the servers and the folder have their files.
    QStringList roots() const { return {m_web.root(), m_ftp.root(), m_folder.path()}; }
    QUrl ftpUrl(const QString &path) const { return m_ftp.url(m_ftp.rootPath() + path); }
    /// Installs to the end; `size` is the descriptor's.
    void install(const QUrl &url, int size = -1);
    bool hasOrder() const
    {
        return QFile::exists(m_root->path() + QStringLiteral("/writable/CV/Snapstow.conf"))
            || QFile::exists(m_root->path() + QStringLiteral("/etc/auto-update/new_image"));
    }

    NginxServer m_web;
    VsftpdServer m_ftp;
    FtpScriptServer m_closedFtp;
    SquidProxy m_proxy;
    SquidProxy m_closedProxy;
    TestAuthority m_authority;
    QTemporaryDir m_folder;
    std::unique_ptr<FakeRoot> m_root;
    std::unique_ptr<LogFile> m_log;
    std::unique_ptr<WarningGuard> m_guard;
    QString m_previousDir;
    RVAccess m_access;
    bool m_isTrusting = false;
    Yes m_question;
    QStringList m_refusals;
    int m_exitCode = -1;
};

void tst_RVImageCheck::initTestCase()
{
    qRegisterMetaType<QProcess::ExitStatus>();
    for (const QString &root : roots()) {
        const auto write = [&root](const char *name, const QByteArray &content) {
            FakeRoot::write(root + QLatin1Char('/') + QLatin1String(name), content);
            QFile::setPermissions(root + QLatin1Char('/') + QLatin1String(name),
                                  QFile::Permissions(0x6644));
        };
        write("good.dd.gz", image());
        write("small.dd.gz", image(12));
        write("login.dd.gz", image());
        write("whole.dd.gz", image());
        write("encoded.dd.gz", image());
        write("empty.dd.gz", QByteArray());
        write("magic.dd.gz", QByteArray("\x1f\x8b", 2));
        write("method.dd.gz", QByteArray("\x1f\x8b\x07", 3) + QByteArray(997, 'i'));
        write("plain.dd.gz", QByteArray(1000, '\0'));
        write("page.dd.gz", "\xef\xbb\xbf\r\n<!DOCTYPE html><html><body>Log in</body></html>\n");
        QVERIFY(QDir(root).mkpath(QStringLiteral("folder.dd.gz")));
    }
    QCOMPARE(
        ::mkfifo(QFile::encodeName(m_folder.filePath(QStringLiteral("pipe.dd.gz"))).constData(),
                 0600),
        0);
    const QString anna = QStringLiteral("anna");
    const QString secret = QStringLiteral("secret");
    m_web.protect(QStringLiteral("/login.dd.gz"), anna, secret);
    m_web.answer(QStringLiteral("/forbidden.dd.gz"), 403);
    m_web.answer(QStringLiteral("/broken.dd.gz"), 500);
    m_web.redirect(QStringLiteral("/moved.dd.gz"), 302, QStringLiteral("/good.dd.gz"));
    m_web.addDirectives("location = /whole.dd.gz { max_ranges 0; }");
    m_web.addDirectives("location = /encoded.dd.gz { add_header Content-Encoding x-gzip; }");
    m_web.setCertificate(m_authority.issue());
    QVERIFY2(m_web.start(), m_web.report());
    QVERIFY2(m_ftp.start(), m_ftp.report());
    m_closedFtp.addUser(anna, secret);
    m_closedFtp.refuseAnonymous();
    QVERIFY(m_closedFtp.write(QByteArrayLiteral("good.dd.gz"), image()));
    QVERIFY2(m_closedFtp.start(), m_closedFtp.report());
    QVERIFY2(m_proxy.start(), m_proxy.report());
    m_closedProxy.protect(anna, secret);
    QVERIFY2(m_closedProxy.start(), m_closedProxy.report());
}

void tst_RVImageCheck::init()
{
    m_previousDir = QDir::currentPath();
    m_log = std::make_unique<LogFile>();
    m_guard = std::make_unique<WarningGuard>();
    m_root = std::make_unique<FakeRoot>();
    FakeRoot::write(m_root->paths().rebootTool, "#!/bin/sh\nexit 0\n");
    QVERIFY(QFile::setPermissions(m_root->paths().rebootTool, QFile::Permissions(0x7755)));
    m_access = {};
    m_isTrusting = false;
    m_question = {};
    m_refusals.clear();
    m_exitCode = -1;
}

void tst_RVImageCheck::cleanup()
{
    QCOMPARE(QDir::currentPath(), m_previousDir);
    m_guard.reset();
    m_log.reset();
}

void tst_RVImageCheck::install(const QUrl &url, int size)
{
    const RVData described(url, QUrl(QStringLiteral("http://h/x.xml")), nullptr, m_root->paths());
    QBuffer descriptor;
    descriptor.setData("<update_data><name>tc-system</name><version>2</version>"
                       + (size < 0 ? QByteArray() : "<size>" + QByteArray::number(size) + "</size>")
                       + "</update_data>");
    QVERIFY(described.descriptor()->read(&descriptor));
    RVInstallProc procedure(described, nullptr, m_root->paths());
    procedure.access = m_access;
    procedure.imageQuestion = &m_question;
    // The program could log in, everywhere and always.
    connect(&procedure, &RVInstallProc::authenticationRequired, this,
            [](QNetworkReply *, QAuthenticator *auth) {
                auth->setUser(QStringLiteral("anna"));
                auth->setPassword(QStringLiteral("secret"));
            });
    connect(&procedure, &RVInstallProc::proxyAuthenticationRequired, this,
            [](const QNetworkProxy &, QAuthenticator *auth) {
                auth->setUser(QStringLiteral("anna"));
                auth->setPassword(QStringLiteral("secret"));
            });
    connect(&procedure, &RVInstallProc::sslErrors, this, [this](QNetworkReply *reply) {
        if (m_isTrusting) {
            reply->ignoreSslErrors();
        }
    });
    connect(&procedure, &RVInstallProc::archiveRefused, this,
            [this](const QUrl &, const RVSentence &reason) {
                m_refusals.append(reason.english());
            });
    QSignalSpy finished(&procedure, qOverload<int, QProcess::ExitStatus>(&QProcess::finished));
    procedure.start();
    QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, limitMs);
    m_exitCode = finished.constFirst().constFirst().toInt();
}

void tst_RVImageCheck::refused_data()
{
    QTest::addColumn<QUrl>("url");
    QTest::addColumn<int>("size");
    QTest::addColumn<RVAccess>("access");
    QTest::addColumn<QString>("fault");
    const RVAccess none;
    const auto add = [&none](const char *name, const QUrl &url, const char *fault, int size = -1) {
        QTest::newRow(name) << url << size << none << fault;
    };
    const auto web = [this](const char *path) {
        return m_web.url(QLatin1String(path));
    };
    add("http, not there", web("/none.dd.gz"), notThere);
    add("http, wants a login", web("/login.dd.gz"), login);
    QUrl wrong = web("/login.dd.gz");
    wrong.setUserInfo(QStringLiteral("anna:wrong"));
    add("http, wrong login in the location", wrong, login);
    add("http, forbidden", web("/forbidden.dd.gz"), unreadable);
    add("http, server error", web("/broken.dd.gz"), unreadable);
    add("http, another address", web("/moved.dd.gz"),
        "The server has no image there: it answers 302.");
    add("http, empty", web("/empty.dd.gz"), empty);
    add("http, another size", web("/good.dd.gz"), otherSize, imageSize - 1);
    add("http, another size, no ranges", web("/whole.dd.gz"), otherSize, imageSize - 1);
    add("http, not packed", web("/plain.dd.gz"), notPacked);
    add("http, cut in its first bytes", web("/magic.dd.gz"), notPacked);
    add("http, an unknown method", web("/method.dd.gz"), notPacked);
    add("http, a page", web("/page.dd.gz"), page);
    add("http, a folder", web("/folder.dd.gz"), "The server has no image there: it answers 301.");
    add("http, nobody there", QUrl(QStringLiteral("http://127.0.0.1:1/good.dd.gz")), unreadable);
    add("https, nobody trusts it", m_web.tlsUrl(QStringLiteral("/good.dd.gz")), unreadable);
    add("ftp, not there", ftpUrl(QStringLiteral("/none.dd.gz")), notThere);
    add("ftp, wants a login", m_closedFtp.url(QStringLiteral("/good.dd.gz")), login);
    add("ftp, empty", ftpUrl(QStringLiteral("/empty.dd.gz")), empty);
    add("ftp, another size", ftpUrl(QStringLiteral("/good.dd.gz")), otherSize, imageSize - 1);
    add("ftp, not packed", ftpUrl(QStringLiteral("/plain.dd.gz")), notPacked);
    add("ftp, a page", ftpUrl(QStringLiteral("/page.dd.gz")), page);
    const auto local = [this](const char *name) {
        return QUrl::fromLocalFile(m_folder.filePath(QLatin1String(name)));
    };
    add("local, not there", local("none.dd.gz"), notThere);
    add("local, empty", local("empty.dd.gz"), empty);
    add("local, another size", local("good.dd.gz"), otherSize, imageSize - 1);
    add("local, not packed", local("plain.dd.gz"), notPacked);
    add("local, a pipe", local("pipe.dd.gz"), "The image cannot be read: Not a regular file");
    add("local, a folder", local("folder.dd.gz"), "The image cannot be read: Is a directory");

    RVAccess access;
    access.proxyHost = QStringLiteral("127.0.0.1");
    access.proxyPort = m_closedProxy.port();
    QTest::newRow("http, the proxy wants a login")
        << web("/good.dd.gz") << -1 << access
        << "The proxy wants a login, which the device does not have.";
    access = {};
    access.login = {QStringLiteral("anna"), QStringLiteral("secret")};
    QTest::newRow("http, a login that only the program has")
        << web("/login.dd.gz") << -1 << access << login;
    QTest::newRow("ftp, a login that only the program has")
        << m_closedFtp.url(QStringLiteral("/good.dd.gz")) << -1 << access << login;
}

void tst_RVImageCheck::refused()
{
    QFETCH(QUrl, url);
    QFETCH(int, size);
    QFETCH(RVAccess, access);
    QFETCH(QString, fault);
    m_access = access;
    install(url, size);
    QCOMPARE(m_exitCode, 1);
    QCOMPARE(m_refusals.size(), 1);
    QVERIFY2(fault.endsWith(QLatin1Char(' '))
                 ? m_refusals.constFirst().startsWith(fault) && m_refusals.constFirst() != fault
                 : m_refusals.constFirst() == fault,
             qUtf8Printable(m_refusals.constFirst()));
    QVERIFY(m_log->contains(m_refusals.constFirst()));
    QCOMPARE(m_question.count, 0);
    QVERIFY(!hasOrder());
}

void tst_RVImageCheck::accepted_data()
{
    QTest::addColumn<QUrl>("url");
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("proxyPort");
    const auto add = [](const char *name, const QUrl &url, int size = imageSize,
                        int proxyPort = -1) {
        QTest::newRow(name) << url << size << proxyPort;
    };
    const auto withLogin = [](QUrl url) {
        url.setUserInfo(QStringLiteral("anna:secret"));
        return url;
    };
    const QString good = QStringLiteral("/good.dd.gz");
    add("http", m_web.url(good));
    add("http, size not described", m_web.url(good), -1);
    add("http, shorter than what is asked for", m_web.url(QStringLiteral("/small.dd.gz")), 12);
    add("http, no ranges", m_web.url(QStringLiteral("/whole.dd.gz")));
    add("http, called encoded", m_web.url(QStringLiteral("/encoded.dd.gz")));
    add("http, login in the location", withLogin(m_web.url(QStringLiteral("/login.dd.gz"))));
    add("http, proxy", m_web.url(good), imageSize, m_proxy.port());
    add("ftp", ftpUrl(good));
    add("ftp, login in the location", withLogin(m_closedFtp.url(good)));
    add("local", QUrl::fromLocalFile(m_folder.path() + good));
}

void tst_RVImageCheck::accepted()
{
    QFETCH(QUrl, url);
    QFETCH(int, size);
    QFETCH(int, proxyPort);
    if (proxyPort > 0) {
        m_access.proxyHost = QStringLiteral("127.0.0.1");
        m_access.proxyPort = proxyPort;
        m_proxy.clearRequests();
    }
    install(url, size);
    QCOMPARE(m_refusals, QStringList());
    QCOMPARE(m_exitCode, 0);
    QCOMPARE(m_question.count, 1);
    QVERIFY(m_question.certificateWarning.isEmpty());
    QVERIFY(hasOrder());
    if (proxyPort > 0) {
        QTRY_COMPARE(m_proxy.requests().size(), 1);
    }
}

void tst_RVImageCheck::endlessBodyIsCut()
{
    HttpServer server;
    const QString path = QStringLiteral("/x.dd.gz");
    server.serveRaw(path, "HTTP/1.1 200 OK\r\n\r\n" + image(16), HttpServer::After::Drip);
    install(server.url(path));
    QCOMPARE(m_exitCode, 0);
    QTRY_COMPARE(server.connections(), 0);

    const QString refusal = QStringLiteral("/y.dd.gz");
    server.serveRaw(refusal, "HTTP/1.1 302 Found\r\n\r\n" + QByteArray(65536, 'x'),
                    HttpServer::After::Drip);
    install(server.url(refusal));
    QCOMPARE(m_refusals,
             QStringList(QStringLiteral("The server has no image there: it answers 302.")));
    QTRY_COMPARE(server.connections(), 0);
}

void tst_RVImageCheck::acceptedCertificateIsNamed()
{
    m_isTrusting = true;
    install(m_web.tlsUrl(QStringLiteral("/good.dd.gz")), imageSize);
    QCOMPARE(m_refusals, QStringList());
    QCOMPARE(m_question.count, 1);
    QVERIFY(m_question.certificateWarning.english().startsWith(
        QStringLiteral("The certificate of https://127.0.0.1:")));
}

void tst_RVImageCheck::cancelEndsIt()
{
    HttpServer server;
    server.hold();
    RVInstallProc procedure(RVData(server.url(QStringLiteral("/x.dd.gz")),
                                   QUrl(QStringLiteral("http://h/x.xml")), nullptr,
                                   m_root->paths()),
                            nullptr, m_root->paths());
    procedure.imageQuestion = &m_question;
    QSignalSpy finished(&procedure, qOverload<int, QProcess::ExitStatus>(&QProcess::finished));
    procedure.start();
    QTRY_COMPARE(server.waiting(), 1);
    procedure.cancel();
    QCOMPARE(finished.count(), 1);
    QVERIFY(m_log->contains(QStringLiteral("INSTALL FETCH CANCEL, KILLING 1 FETCHES")));
    QTRY_COMPARE(server.connections(), 0);
    QCOMPARE(finished.count(), 1);
    QCOMPARE(m_question.count, 0);

    // And once more, to the end.
    server.serve(QStringLiteral("/x.dd.gz"), image(100));
    server.release();
    procedure.start();
    QTRY_COMPARE(finished.count(), 2);
    QCOMPARE(m_question.count, 1);
}

QTEST_GUILESS_MAIN(tst_RVImageCheck)
#include "tst_RVImageCheck.moc"

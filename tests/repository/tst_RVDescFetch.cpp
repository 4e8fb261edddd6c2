// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "descriptor/XmlCheck.h"
#include "repository/RVDescFetch.h"
#include "tests/support/BrokenDownload.h"
#include "tests/support/EventLoop.h"
#include "tests/support/HttpServer.h"
#include "tests/support/InlineFtpServer.h"
#include "tests/support/LogFile.h"
#include "tests/support/WarningGuard.h"

#include <QAuthenticator>
#include <QDir>
#include <QNetworkAccessManager>
#include <QSignalSpy>
#include <QTcpServer>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <sys/stat.h>

namespace
{

constexpr int patience = 10'000;

QByteArray update(int version)
{
    return "<update_data><version>" + QByteArray::number(version) + "</version></update_data>";
}

RVData entry(const QUrl &descriptor)
{
    return RVData(QUrl(QStringLiteral("http://127.0.0.1/archive.deb")), descriptor);
}

QString versionOf(const RVData &data)
{
    return data.descriptor()->version().toString();
}

/// Counts a fetch's signals.
struct Spies {
    explicit Spies(RVDescFetch &fetch)
        : finished(&fetch, &RVDescFetch::finished)
    {
        QObject::connect(&fetch, &RVDescFetch::networkError, &fetch,
                         [this](const QNetworkReply *reply) {
                             codes.append(reply->error());
                             urls.append(reply->url());
                         });
    }

    QSignalSpy finished;
    QList<int> codes;
    QList<QUrl> urls;
};

} // namespace

class tst_RVDescFetch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void startsIdle();
    void noEntries();
    void readsLocalFiles();
    void missingLocalFileAmongOthers();
    void allFailAtOnce();
    void nullDescriptors();
    void specialFilesAreNotOpened();
    void severalDownloadsAtATime();
    void notFoundAmongOthers();
    void refusedConnection();
    void brokenDownload_data() { BrokenDownload::addRows(); }
    void brokenDownload();
    void neverMoreThanTheLimit();
    void laterEntriesFailAtOnce();
    void sharedDescriptorIsFetchedOnce();
    void asksForCredentials();
    void unansweredCredentials();
    void relaysCertificateErrors();
    void ftpCredentials_data();
    void ftpCredentials();
    void ftpCredentialsOfAnotherServer_data();
    void ftpCredentialsOfAnotherServer();
    void proxy_data();
    void proxy();
    void noProxy_data();
    void noProxy();
    void ftpProxy();
    void proxyCredentials();
    void requestsStayPlain();
    void oversizedXmlIsAborted();
    void largePackageIsNotAborted();
    void cancelWithNothingInFlight();
    void cancelInFlight();
    void cancelLocalFiles();
    void cancelDropsWhatWaits();
    void cancelAfterTheEnd();
    void cancelFromAnErrorHandler();
    void cancelWhenALaterEntryFailsAtOnce();
    void onlyOneEnd_data();
    void onlyOneEnd();
    void replyDeletedByAnotherObject();
    void deletedInFlight();
    void deletedByAnErrorHandler();
    void manyEntriesThatFailAtOnce();
    void logsByWeight();

private:
    QUrl writeFile(const QString &name, const QByteArray &contents) const;
    QList<RVData> localEntries(int count) const;
    QList<RVData> remoteEntries(int count);

    std::unique_ptr<LogFile> m_log;
    std::unique_ptr<WarningGuard> m_guard;
    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<HttpServer> m_server;
};

void tst_RVDescFetch::init()
{
    m_log = std::make_unique<LogFile>();
    m_guard = std::make_unique<WarningGuard>();
    m_dir = std::make_unique<QTemporaryDir>();
    m_server = std::make_unique<HttpServer>();
}

void tst_RVDescFetch::cleanup()
{
    m_server.reset();
    m_log.reset();
    m_guard.reset();
}

QUrl tst_RVDescFetch::writeFile(const QString &name, const QByteArray &contents) const
{
    QFile file(m_dir->filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size()) {
        qFatal("cannot write a test file");
    }
    return QUrl::fromLocalFile(file.fileName());
}

QList<RVData> tst_RVDescFetch::localEntries(int count) const
{
    QList<RVData> entries;
    for (int i = 0; i < count; ++i) {
        entries.append(entry(writeFile(QStringLiteral("%1.xml").arg(i), update(i))));
    }
    return entries;
}

QList<RVData> tst_RVDescFetch::remoteEntries(int count)
{
    QList<RVData> entries;
    for (int i = 0; i < count; ++i) {
        const QString path = QStringLiteral("/%1.xml").arg(i);
        m_server->serve(path, update(i));
        entries.append(entry(m_server->url(path)));
    }
    return entries;
}

void tst_RVDescFetch::startsIdle()
{
    QList<RVData> entries = localEntries(1);
    const RVDescFetch fetch(entries, {}, {});
    QCOMPARE(fetch.proxyHost, QString());
    QCOMPARE(fetch.proxyPort, -2);
    QVERIFY(!fetch.isActive());
}

void tst_RVDescFetch::noEntries()
{
    QList<RVData> entries;
    RVDescFetch fetch(entries, {}, {});
    const Spies spies(fetch);
    fetch.fetchAll();
    QCOMPARE(spies.finished.count(), 1);
    QVERIFY(!fetch.isActive());
    runUntilIdle();
    QCOMPARE(spies.finished.count(), 1);
    QCOMPARE(m_log->lines(), QStringList());
}

void tst_RVDescFetch::readsLocalFiles()
{
    QList<RVData> entries = localEntries(3);
    RVDescFetch fetch(entries, {}, {});
    const Spies spies(fetch);
    fetch.fetchAll();
    QCOMPARE(spies.finished.count(), 0);
    QVERIFY(fetch.isActive());
    QTRY_COMPARE_WITH_TIMEOUT(spies.finished.count(), 1, patience);
    QVERIFY(!fetch.isActive());
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(versionOf(entries.at(i)), QString::number(i));
    }
    runUntilIdle();
    QCOMPARE(spies.finished.count(), 1);
    QCOMPARE(spies.codes.size(), 0);
    QVERIFY(fetch.children().isEmpty());
}

void tst_RVDescFetch::missingLocalFileAmongOthers()
{
    QList<RVData> entries = localEntries(2);
    const QUrl missing = QUrl::fromLocalFile(m_dir->filePath(QStringLiteral("missing.xml")));
    entries.insert(1, entry(missing));
    RVDescFetch fetch(entries, {}, {});
    const Spies spies(fetch);
    fetch.fetchAll();
    QCOMPARE(spies.codes, QList<int>{QNetworkReply::ContentNotFoundError});
    QCOMPARE(spies.urls, QList<QUrl>{missing});
    QTRY_COMPARE_WITH_TIMEOUT(spies.finished.count(), 1, patience);
    QCOMPARE(versionOf(entries.at(0)), QStringLiteral("0"));
    QCOMPARE(versionOf(entries.at(1)), QString());
    QCOMPARE(versionOf(entries.at(2)), QStringLiteral("1"));
    runUntilIdle();
    QCOMPARE(spies.finished.count(), 1);
    QCOMPARE(spies.codes.size(), 1);
    QCOMPARE(m_log->lines(), QStringList());
    QVERIFY(fetch.children().isEmpty());
}

void tst_RVDescFetch::allFailAtOnce()
{
    QList<RVData> entries;
    for (int i = 0; i < 3; ++i) {
        entries.append(entry(QUrl(QStringLiteral("file:///nonexistent/%1.xml").arg(i))));
    }
    RVDescFetch fetch(entries, {}, {});
    const Spies spies(fetch);
    fetch.fetchAll();
    QCOMPARE(spies.codes.size(), 3);
    QVERIFY(!fetch.isActive());
    runUntilIdle();
    QCOMPARE(spies.codes.size(), 3);
    QCOMPARE(spies.finished.count(), 0);
    QVERIFY(fetch.children().isEmpty());
}

void tst_RVDescFetch::nullDescriptors()
{
    const QString text = QStringLiteral("Null descriptor in RVDescFetch for 'ftp://user@h/%1.xml'");
    m_guard->allow(QStringLiteral("^Null descriptor"));
    QList<RVData> entries;
    for (int i = 0; i < 2; ++i) {
        entries.append(entry(QUrl(QStringLiteral("ftp://user:secret@h/%1.xml").arg(i))));
        entries.last().clearDescriptor();
    }
    RVDescFetch none(entries, {}, {});
    const Spies noneSpies(none);
    none.fetchAll();
    runUntilIdle();
    QCOMPARE(noneSpies.finished.count(), 0);
    QCOMPARE(noneSpies.codes.size(), 0);
    const QStringList lines = {text.arg(0), text.arg(1)};
    QCOMPARE(m_guard->messages(), lines);
    QCOMPARE(m_log->lines(), lines);

    entries.insert(1, localEntries(1).first());
    RVDescFetch some(entries, {}, {});
    const Spies someSpies(some);
    some.fetchAll();
    QTRY_COMPARE_WITH_TIMEOUT(someSpies.finished.count(), 1, patience);
    QCOMPARE(versionOf(entries.at(1)), QStringLiteral("0"));
    QCOMPARE(m_log->lines(), lines + lines);

    // Not a warning.
    m_guard.reset();
    for (const QString &line : lines) {
        QTest::ignoreMessage(QtCriticalMsg, qUtf8Printable(line));
    }
    none.fetchAll();
    m_guard = std::make_unique<WarningGuard>();
}

void tst_RVDescFetch::specialFilesAreNotOpened()
{
    const QString pipe = m_dir->filePath(QStringLiteral("pipe.xml"));
    QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    QList<RVData> entries = localEntries(1);
    entries.append(entry(QUrl::fromLocalFile(pipe)));
    RVDescFetch fetch(entries, {}, {});
    const Spies spies(fetch);
    fetch.fetchAll();
    QTRY_COMPARE_WITH_TIMEOUT(spies.finished.count(), 1, patience);
    QCOMPARE(spies.codes, QList<int>{QNetworkReply::ContentOperationNotPermittedError});
}

void tst_RVDescFetch::severalDownloadsAtATime()
{
    m_server->hold();
    QList<RVData> entries = remoteEntries(3);
    RVDescFetch fetch(entries, {}, {});
    const Spies spies(fetch);
    fetch.fetchAll();
    QCOMPARE(fetch.findChildren<QNetworkAccessManager *>().size(), 3);
    QTRY_COMPARE_WITH_TIMEOUT(m_server->waiting(), 3, patience);
    QCOMPARE(spies.finished.count(), 0);
    m_server->release();
    QTRY_COMPARE_WITH_TIMEOUT(spies.finished.count(), 1, patience);
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(versionOf(entries.at(i)), QString::number(i));
    }
    runUntilIdle();
    QCOMPARE(spies.finished.count(), 1);
    QVERIFY(fetch.children().isEmpty());
}

void tst_RVDescFetch::notFoundAmongOthers()
{
    QList<RVData> entries = remoteEntries(2);
    QUrl missing = m_server->url(QStringLiteral("/missing.xml"));
    missing.setUserInfo(QStringLiteral("user:secret"));
    entries.insert(1, entry(missing));
    RVDescFetch fetch(entries, {}, {});
    const Spies spies(fetch);
    fetch.fetchAll();
    QTRY_COMPARE_WITH_TIMEOUT(spies.finished.count(), 1, patience);
    QCOMPARE(spies.codes, QList<int>{QNetworkReply::ContentNotFoundError});
    QCOMPARE(versionOf(entries.at(0)), QStringLiteral("0"));
    QCOMPARE(versionOf(entries.at(2)), QStringLiteral("1"));
    // The failed reply has been read as well.
    QCOMPARE(entries.at(1).descriptor()->architectureList().size(), 2);
    QCOMPARE(m_log->lines(),
             QStringList(QStringLiteral("Descriptor fetch error 203 from %1")
                             .arg(missing.toString(QUrl::RemovePassword))));
    runUntilIdle();
    QCOMPARE(spies.finished.count(), 1);
}

void tst_RVDescFetch::refusedConnection()
{
    QTcpServer closed;
    QVERIFY(closed.listen(QHostAddress::LocalHost));
    const QUrl url(QStringLiteral("http://127.0.0.1:%1/a.xml").arg(closed.serverPort()));
    closed.close();
    QList<RVData> entries = {entry(url)};
    RVDescFetch fetch(entries, {}, {});
    const Spies spies(fetch);
    fetch.fetchAll();
    QTRY_COMPARE_WITH_TIMEOUT(spies.finished.count(), 1, patience);
    QCOMPARE(spies.codes, QList<int>{QNetworkReply::ConnectionRefusedError});
}

void tst_RVDescFetch::brokenDownload()
{
    BrokenDownload broken;
    const QUrl bad = broken.serve(QStringLiteral("broken.xml"));
    QList<RVData> entries = remoteEntries(2) + localEntries(1);
    entries.insert(1, entry(bad));
    RVDescFetch fetch(entries, {}, {});
    fetch.access.inactivityLimit = BrokenDownload::inactivityLimit;
    const Spies spies(fetch);
    fetch.fetchAll();
    QTRY_COMPARE_WITH_TIMEOUT(spies.finished.count(), 1, patience);
    QCOMPARE(spies.codes, QList<int>{broken.error()});
    QCOMPARE(spies.urls, QList<QUrl>{bad});
    QCOMPARE(m_log->lines(),
             QStringList(QStringLiteral("Descriptor fetch error %1 from %2")
                             .arg(QString::number(broken.error()), bad.toString())));
    QCOMPARE(versionOf(entries.at(0)), QStringLiteral("0"));
    QCOMPARE(versionOf(entries.at(1)), QString());
    QCOMPARE(versionOf(entries.at(2)), QStringLiteral("1"));
    QCOMPARE(versionOf(entries.at(3)), QStringLiteral("0"));
    runUntilIdle();
    QCOMPARE(spies.finished.count(), 1);
    QCOMPARE(spies.codes.size(), 1);
    QVERIFY(fetch.children().isEmpty());
}

void tst_RVDescFetch::neverMoreThanTheLimit()
{
    constexpr int limit = RVLimits::transfersInFlight;
    constexpr int count = 250;
    m_server->hold();
    QList<RVData> entries = remoteEntries(count);
    RVDescFetch fetch(entries, {}, {});
    const Spies spies(fetch);
    fetch.fetchAll();
    QTRY_COMPARE_WITH_TIMEOUT(m_server->waiting(), limit, patience);
    runUntilIdle();
    QCOMPARE(m_server->requests().size(), limit);
    for (const QByteArray &head : m_server->requests()) {
        QVERIFY2(head.mid(5).split('.').first().toInt() < limit, head.constData());
    }

    m_server->release();
    int mostFiles = 0;
    const auto hasFinished = [&] {
        const QDir files(QStringLiteral("/proc/self/fd"));
        mostFiles = qMax(mostFiles, files.entryList(QDir::Files | QDir::System).size());
        return !spies.finished.isEmpty();
    };
    QTRY_VERIFY_WITH_TIMEOUT(hasFinished(), patience);
    QCOMPARE(spies.finished.count(), 1);
    QVERIFY(m_server->mostWaiting() <= limit);
    QVERIFY2(mostFiles < 900, qPrintable(QString::number(mostFiles)));
    for (int i = 0; i < count; ++i) {
        QCOMPARE(versionOf(entries.at(i)), QString::number(i));
    }
    runUntilIdle();
    QCOMPARE(spies.finished.count(), 1);
}

void tst_RVDescFetch::laterEntriesFailAtOnce()
{
    QList<RVData> entries = remoteEntries(RVLimits::transfersInFlight);
    for (int i = 0; i < 50; ++i) {
        entries.append(entry(QUrl(QStringLiteral("file:///nonexistent/%1.xml").arg(i))));
    }
    RVDescFetch fetch(entries, {}, {});
    const Spies spies(fetch);
    fetch.fetchAll();
    QCOMPARE(spies.codes.size(), 0);
    QTRY_COMPARE_WITH_TIMEOUT(spies.finished.count(), 1, patience);
    QCOMPARE(spies.codes.size(), 50);
    runUntilIdle();
    QCOMPARE(spies.finished.count(), 1);
}

void tst_RVDescFetch::sharedDescriptorIsFetchedOnce()
{
    QList<RVData> entries = remoteEntries(1);
    entries.append(entries.first());
    RVDescFetch fetch(entries, {}, {});
    const Spies spies(fetch);
    fetch.fetchAll();
    QTRY_COMPARE_WITH_TIMEOUT(spies.finished.count(), 1, patience);
    runUntilIdle();
    QCOMPARE(spies.finished.count(), 1);
    QCOMPARE(m_server->requests().size(), 1);
}

void tst_RVDescFetch::asksForCredentials()
{
    m_server->protect(QStringLiteral("user"), QStringLiteral("secret"));
    QList<RVData> entries = remoteEntries(2);
    RVDescFetch fetch(entries, {}, {});
    const Spies spies(fetch);
    QStringList asked;
    connect(&fetch, &RVDescFetch::authenticationRequired, this,
            [&asked](QNetworkReply *reply, QAuthenticator *auth) {
                asked.append(reply->url().path() + QLatin1Char(' ') + auth->realm());
                auth->setUser(QStringLiteral("user"));
                auth->setPassword(QStringLiteral("secret"));
            });
    fetch.fetchAll();
    QTRY_COMPARE_WITH_TIMEOUT(spies.finished.count(), 1, patience);
    asked.sort();
    QCOMPARE(asked, QStringList({QStringLiteral("/0.xml test"), QStringLiteral("/1.xml test")}));
    QCOMPARE(spies.codes.size(), 0);
    QCOMPARE(versionOf(entries.at(1)), QStringLiteral("1"));
}

void tst_RVDescFetch::unansweredCredentials()
{
    m_server->protect(QStringLiteral("user"), QStringLiteral("secret"));
    QList<RVData> entries = remoteEntries(1);
    RVDescFetch fetch(entries, {}, {});
    const Spies spies(fetch);
    fetch.fetchAll();
    QTRY_COMPARE_WITH_TIMEOUT(spies.finished.count(), 1, patience);
    QCOMPARE(spies.codes, QList<int>{QNetworkReply::AuthenticationRequiredError});
}

void tst_RVDescFetch::relaysCertificateErrors()
{
    m_server->hold();
    QList<RVData> entries = remoteEntries(1);
    RVDescFetch fetch(entries, {}, {});
    fetch.fetchAll();
    auto *manager = fetch.findChild<QNetworkAccessManager *>();
    auto *reply = manager->findChild<QNetworkReply *>();
    QVERIFY(reply);
    const QList<QSslError> errors = {QSslError(QSslError::CertificateExpired),
                                     QSslError(QSslError::HostNameMismatch)};
    int relayed = 0;
    connect(&fetch, &RVDescFetch::sslErrors, this,
            [&](QNetworkReply *sender, const QList<QSslError> &list) {
                relayed += sender == reply && list == errors ? 1 : 0;
            });
    Q_EMIT manager->sslErrors(reply, errors);
    QCOMPARE(relayed, 1);
}

void tst_RVDescFetch::ftpCredentials_data()
{
    QTest::addColumn<QString>("scheme");
    QTest::addColumn<QString>("user");
    QTest::addColumn<QString>("password");
    QTest::addColumn<QByteArray>("expectedUser");
    QTest::addColumn<QByteArray>("expectedPassword");

    const QString ftp = QStringLiteral("ftp");
    const QString user = QStringLiteral("user");
    const QString password = QStringLiteral("secret");
    QTest::newRow("both") << ftp << user << password << QByteArray("USER user")
                          << QByteArray("PASS secret");
    QTest::newRow("scheme in capital letters")
        << QStringLiteral("FTP") << user << password << QByteArray("USER user")
        << QByteArray("PASS secret");
    QTest::newRow("signs that URLs use")
        << ftp << QStringLiteral("u@h:1") << QStringLiteral("%41/secret?#")
        << QByteArray("USER u@h:1") << QByteArray("PASS %41/secret?#");
    QTest::newRow("no password") << ftp << user << QString() << QByteArray("USER anonymous")
                                 << QByteArray("PASS anonymous@example.org");
    QTest::newRow("no user") << ftp << QString() << password << QByteArray("USER anonymous")
                             << QByteArray("PASS anonymous@example.org");
}

void tst_RVDescFetch::ftpCredentialsOfAnotherServer_data()
{
    QTest::addColumn<QString>("credentialsFor");
    QTest::addColumn<bool>("ours");
    QTest::newRow("the server itself") << QStringLiteral("ftp://127.0.0.1:%1/dir/") << true;
    QTest::newRow("another port") << QStringLiteral("ftp://127.0.0.1/%1") << false;
    QTest::newRow("another host") << QStringLiteral("ftp://updates.example:%1/") << false;
    QTest::newRow("a web server") << QStringLiteral("http://127.0.0.1:%1/") << false;
}

void tst_RVDescFetch::ftpCredentialsOfAnotherServer()
{
    QFETCH(QString, credentialsFor);
    QFETCH(bool, ours);
    InlineFtpServer server;
    server.answer("PASS", "530 no\r\n");
    QList<RVData> entries = {
        entry(QUrl(QStringLiteral("ftp://127.0.0.1:%1/a.xml").arg(server.port())))};
    RVDescFetch fetch(entries, QStringLiteral("user"), QStringLiteral("secret"));
    fetch.access.server = QUrl(credentialsFor.arg(server.port()));
    const Spies spies(fetch);
    fetch.fetchAll();
    QTRY_COMPARE_WITH_TIMEOUT(spies.finished.count(), 1, patience);
    QVERIFY(!server.commands().isEmpty());
    QCOMPARE(server.commands().contains("USER user"), ours);
    QCOMPARE(server.commands().contains("PASS secret"), ours);
}

void tst_RVDescFetch::ftpCredentials()
{
    QFETCH(QString, scheme);
    QFETCH(QString, user);
    QFETCH(QString, password);
    QFETCH(QByteArray, expectedUser);
    QFETCH(QByteArray, expectedPassword);

    InlineFtpServer server;
    server.answer("PASS", "530 no\r\n");
    const QUrl url(QStringLiteral("%1://127.0.0.1:%2/a.xml").arg(scheme).arg(server.port()));
    QList<RVData> entries = {entry(url)};
    RVDescFetch fetch(entries, user, password);
    const Spies spies(fetch);
    fetch.fetchAll();
    QTRY_COMPARE_WITH_TIMEOUT(spies.finished.count(), 1, patience);
    QCOMPARE(server.commands().value(0), expectedUser);
    QCOMPARE(server.commands().value(1), expectedPassword);
    QCOMPARE(spies.codes, QList<int>{QNetworkReply::AuthenticationRequiredError});
    QCOMPARE(m_log->lines().size(), 1);
    QVERIFY(m_log->lines().first().startsWith(
        QStringLiteral("Descriptor fetch error 204 from ftp://")));
    QVERIFY(!m_log->raw().contains("secret"));
}

void tst_RVDescFetch::proxy_data()
{
    QTest::addColumn<QString>("url");
    QTest::addColumn<QByteArray>("expected");

    QTest::newRow("http") << QStringLiteral("http://repository.invalid/a.xml")
                          << QByteArray("GET http://repository.invalid/a.xml HTTP/1.1\r\n");
    QTest::newRow("https") << QStringLiteral("https://repository.invalid/a.xml")
                           << QByteArray("CONNECT repository.invalid:443 HTTP/1.1\r\n");
}

void tst_RVDescFetch::proxy()
{
    QFETCH(QString, url);
    QFETCH(QByteArray, expected);

    QList<RVData> entries = {entry(QUrl(url))};
    RVDescFetch fetch(entries, {}, {});
    fetch.proxyHost = QStringLiteral("127.0.0.1");
    fetch.proxyPort = m_server->url({}).port();
    const Spies spies(fetch);
    fetch.fetchAll();
    QTRY_COMPARE_WITH_TIMEOUT(spies.finished.count(), 1, patience);
    const QByteArray head = m_server->requests().value(0);
    QVERIFY2(head.startsWith(expected), head.constData());
}

void tst_RVDescFetch::noProxy_data()
{
    QTest::addColumn<QString>("host");
    QTest::addColumn<int>("port");

    QTest::newRow("port 0") << QStringLiteral("127.0.0.1") << 0;
    QTest::newRow("port below 0") << QStringLiteral("127.0.0.1") << -2;
    QTest::newRow("no host") << QString() << 3128;
}

void tst_RVDescFetch::noProxy()
{
    QFETCH(QString, host);
    QFETCH(int, port);

    QList<RVData> entries = remoteEntries(1);
    RVDescFetch fetch(entries, {}, {});
    fetch.proxyHost = host;
    fetch.proxyPort = port;
    const Spies spies(fetch);
    fetch.fetchAll();
    QTRY_COMPARE_WITH_TIMEOUT(spies.finished.count(), 1, patience);
    QVERIFY(m_server->requests().first().startsWith("GET /0.xml "));
}

void tst_RVDescFetch::ftpProxy()
{
    InlineFtpServer server;
    server.answer("PASS", "530 no\r\n");
    QList<RVData> entries = {entry(QUrl(QStringLiteral("ftp://repository.invalid/a.xml")))};
    RVDescFetch fetch(entries, QStringLiteral("user"), QStringLiteral("secret"));
    fetch.proxyHost = QStringLiteral("127.0.0.1");
    fetch.proxyPort = server.port();
    const Spies spies(fetch);
    fetch.fetchAll();
    const QNetworkProxy proxy = fetch.findChild<QNetworkAccessManager *>()->proxy();
    QCOMPARE(proxy.type(), QNetworkProxy::FtpCachingProxy);
    QCOMPARE(proxy.user() + proxy.password(), QString());
    QTRY_COMPARE_WITH_TIMEOUT(spies.finished.count(), 1, patience);
    QCOMPARE(server.commands().value(0), QByteArray("USER user@repository.invalid"));
}

void tst_RVDescFetch::proxyCredentials()
{
    m_server->serve(QStringLiteral("http://repository.invalid/a.xml"), {}, 407,
                    "Proxy-Authenticate: Basic realm=\"proxy\"\r\n");
    QList<RVData> entries = {entry(QUrl(QStringLiteral("http://repository.invalid/a.xml")))};
    RVDescFetch fetch(entries, {}, {});
    fetch.proxyHost = QStringLiteral("127.0.0.1");
    fetch.proxyPort = m_server->url({}).port();
    const Spies spies(fetch);
    QStringList asked;
    connect(&fetch, &RVDescFetch::proxyAuthenticationRequired, this,
            [&asked](const QNetworkProxy &proxy, QAuthenticator *auth) {
                asked.append(proxy.hostName() + QLatin1Char(' ') + auth->realm());
            });
    fetch.fetchAll();
    QTRY_COMPARE_WITH_TIMEOUT(spies.finished.count(), 1, patience);
    QCOMPARE(asked, QStringList(QStringLiteral("127.0.0.1 proxy")));
    QCOMPARE(spies.codes, QList<int>{QNetworkReply::ProxyAuthenticationRequiredError});
}

void tst_RVDescFetch::requestsStayPlain()
{
    m_server->serve(QStringLiteral("/moved.xml"), {}, 302,
                    "Location: " + m_server->url(QStringLiteral("/0.xml")).toEncoded() + "\r\n");
    m_server->serve(QStringLiteral("/0.xml"), update(0));
    QList<RVData> entries = {entry(m_server->url(QStringLiteral("/moved.xml")))};
    RVDescFetch fetch(entries, QStringLiteral("user"), QStringLiteral("secret"));
    const Spies spies(fetch);
    fetch.fetchAll();
    QTRY_COMPARE_WITH_TIMEOUT(spies.finished.count(), 1, patience);
    runUntilIdle();
    QCOMPARE(m_server->requests().size(), 1);
    QCOMPARE(versionOf(entries.first()), QString());
    const QByteArray head = m_server->requests().first();
    QVERIFY(head.startsWith("GET /moved.xml HTTP/1.1\r\n"));
    QVERIFY(head.contains("Accept-Encoding: identity\r\n"));
    QVERIFY(!head.contains("Upgrade"));
    QVERIFY(!head.contains("Authorization"));
}

void tst_RVDescFetch::oversizedXmlIsAborted()
{
    const QString path = QStringLiteral("/large.XML");
    m_server->serve(path, QByteArray(4 * XmlCheck::maxBytes, ' '));
    QList<RVData> entries = remoteEntries(1);
    entries.append(entry(m_server->url(path)));
    RVDescFetch fetch(entries, {}, {});
    const Spies spies(fetch);
    qint64 buffered = 0;
    connect(&fetch, &RVDescFetch::networkError, this, [&buffered](const QNetworkReply *reply) {
        buffered = reply->bytesAvailable();
    });
    fetch.fetchAll();
    QTRY_COMPARE_WITH_TIMEOUT(spies.finished.count(), 1, patience);
    QCOMPARE(versionOf(entries.first()), QStringLiteral("0"));
    QCOMPARE(spies.codes, QList<int>{QNetworkReply::OperationCanceledError});
    QVERIFY(buffered < XmlCheck::maxBytes + 1024 * 1024);
    const QString url = m_server->url(path).toString();
    QCOMPARE(m_log->lines(),
             QStringList({QStringLiteral("Descriptor larger than 16777216 bytes, aborting ") + url,
                          QStringLiteral("Descriptor fetch error 5 from ") + url}));
    runUntilIdle();
    QCOMPARE(spies.finished.count(), 1);
}

void tst_RVDescFetch::largePackageIsNotAborted()
{
    const QString path = QStringLiteral("/large.deb");
    m_server->serve(path, QByteArray(XmlCheck::maxBytes + 1024 * 1024, ' '));
    QList<RVData> entries = {entry(m_server->url(path))};
    RVDescFetch fetch(entries, {}, {});
    const Spies spies(fetch);
    fetch.fetchAll();
    QTRY_COMPARE_WITH_TIMEOUT(spies.finished.count(), 1, patience);
    QCOMPARE(spies.codes.size(), 0);
}

void tst_RVDescFetch::cancelWithNothingInFlight()
{
    QList<RVData> entries = localEntries(1);
    RVDescFetch fetch(entries, {}, {});
    const Spies spies(fetch);
    fetch.cancel();
    QCOMPARE(spies.finished.count(), 1);
    QCOMPARE(m_log->lines(),
             QStringList(QStringLiteral("DESCRIPTOR FETCH CANCEL, KILLING 0 FETCHES")));
}

void tst_RVDescFetch::cancelInFlight()
{
    m_server->hold();
    QList<RVData> entries = remoteEntries(2);
    RVDescFetch fetch(entries, {}, {});
    const Spies spies(fetch);
    fetch.fetchAll();
    QTRY_COMPARE_WITH_TIMEOUT(m_server->waiting(), 2, patience);
    fetch.cancel();
    QVERIFY(!fetch.isActive());
    QCOMPARE(spies.finished.count(), 1);
    QCOMPARE(
        spies.codes,
        QList<int>({QNetworkReply::OperationCanceledError, QNetworkReply::OperationCanceledError}));
    QCOMPARE(m_log->lines().size(), 3);
    QCOMPARE(m_log->lines().first(), QStringLiteral("DESCRIPTOR FETCH CANCEL, KILLING 2 FETCHES"));
    QVERIFY(m_log->lines().last().startsWith(QStringLiteral("Descriptor fetch error 5 from ")));
    QTRY_COMPARE_WITH_TIMEOUT(m_server->waiting(), 0, patience);
    runUntilIdle();
    QCOMPARE(spies.finished.count(), 1);
    QCOMPARE(spies.codes.size(), 2);
    QVERIFY(fetch.children().isEmpty());
    QVERIFY(entries.first().descriptor()->architectureList().isEmpty());
}

// A local reply tells nothing when it is aborted, and still sends a finished() that was on its way.
void tst_RVDescFetch::cancelLocalFiles()
{
    QList<RVData> entries = localEntries(2);
    RVDescFetch fetch(entries, {}, {});
    const Spies spies(fetch);
    fetch.fetchAll();
    fetch.cancel();
    QCOMPARE(spies.finished.count(), 1);
    QVERIFY(m_log->contains(QStringLiteral("DESCRIPTOR FETCH CANCEL, KILLING 2 FETCHES")));
    runUntilIdle();
    QCOMPARE(spies.finished.count(), 1);
    QVERIFY(versionOf(entries.first()).isEmpty());
    QVERIFY(fetch.children().isEmpty());
}

void tst_RVDescFetch::cancelDropsWhatWaits()
{
    m_server->hold();
    QList<RVData> entries = remoteEntries(RVLimits::transfersInFlight + 50);
    RVDescFetch fetch(entries, {}, {});
    const Spies spies(fetch);
    fetch.fetchAll();
    QTRY_COMPARE_WITH_TIMEOUT(m_server->waiting(), RVLimits::transfersInFlight, patience);
    fetch.cancel();
    QVERIFY(m_log->contains(QStringLiteral("DESCRIPTOR FETCH CANCEL, KILLING 100 FETCHES")));
    runUntilIdle();
    QCOMPARE(spies.finished.count(), 1);
    QCOMPARE(m_server->requests().size(), RVLimits::transfersInFlight);
}

void tst_RVDescFetch::cancelAfterTheEnd()
{
    QList<RVData> entries = localEntries(2);
    RVDescFetch fetch(entries, {}, {});
    const Spies spies(fetch);
    fetch.fetchAll();
    QTRY_COMPARE_WITH_TIMEOUT(spies.finished.count(), 1, patience);
    fetch.cancel();
    QCOMPARE(spies.finished.count(), 2);
    QVERIFY(m_log->contains(QStringLiteral("DESCRIPTOR FETCH CANCEL, KILLING 0 FETCHES")));
}

void tst_RVDescFetch::cancelFromAnErrorHandler()
{
    m_server->hold();
    QList<RVData> entries = remoteEntries(2);
    entries.insert(1, entry(QUrl(QStringLiteral("file:///nonexistent/a.xml"))));
    RVDescFetch fetch(entries, {}, {});
    const Spies spies(fetch);
    const auto once = std::make_shared<QMetaObject::Connection>();
    *once = connect(&fetch, &RVDescFetch::networkError, &fetch, [&fetch, once] {
        disconnect(*once);
        fetch.cancel();
    });
    fetch.fetchAll();
    QVERIFY(!fetch.isActive());
    QCOMPARE(spies.finished.count(), 1);
    QVERIFY(m_log->contains(QStringLiteral("DESCRIPTOR FETCH CANCEL, KILLING 1 FETCHES")));
    runUntilIdle();
    QCOMPARE(spies.finished.count(), 1);
    QVERIFY(fetch.children().isEmpty());
}

void tst_RVDescFetch::cancelWhenALaterEntryFailsAtOnce()
{
    m_server->hold();
    QList<RVData> entries = remoteEntries(RVLimits::transfersInFlight);
    entries.append(entry(QUrl(QStringLiteral("file:///nonexistent/a.xml"))));
    entries.append(localEntries(1));
    RVDescFetch fetch(entries, {}, {});
    const Spies spies(fetch);
    const auto once = std::make_shared<QMetaObject::Connection>();
    *once = connect(&fetch, &RVDescFetch::networkError, &fetch, [&fetch, once] {
        disconnect(*once);
        fetch.cancel();
    });
    fetch.fetchAll();
    QTRY_COMPARE_WITH_TIMEOUT(m_server->waiting(), RVLimits::transfersInFlight, patience);
    m_server->release();
    QTRY_COMPARE_WITH_TIMEOUT(spies.finished.count(), 1, patience);
    runUntilIdle();
    QCOMPARE(spies.finished.count(), 1);
    QVERIFY(fetch.children().isEmpty());
    QCOMPARE(versionOf(entries.last()), QString());
}

void tst_RVDescFetch::onlyOneEnd_data()
{
    // s: fetchAll(), c: cancel(), w: wait for the end.
    QTest::addColumn<QByteArray>("steps");
    QTest::addColumn<int>("ends");

    QTest::newRow("start") << QByteArray("sw") << 1;
    QTest::newRow("start, cancel") << QByteArray("sc") << 1;
    QTest::newRow("start, cancel, cancel") << QByteArray("scc") << 2;
    QTest::newRow("start, start") << QByteArray("ssw") << 1;
    QTest::newRow("start, cancel, start") << QByteArray("scsw") << 2;
    QTest::newRow("start, cancel, start, cancel") << QByteArray("scsc") << 2;
    QTest::newRow("start, end, start") << QByteArray("swsw") << 2;
    QTest::newRow("start, end, cancel") << QByteArray("swc") << 2;
    QTest::newRow("cancel") << QByteArray("c") << 1;
    QTest::newRow("cancel, start") << QByteArray("csw") << 2;
}

void tst_RVDescFetch::onlyOneEnd()
{
    QFETCH(QByteArray, steps);
    QFETCH(int, ends);

    const QUrl missing = m_server->url(QStringLiteral("/missing.xml"));
    const QUrl refused = QUrl(QStringLiteral("file:///nonexistent/a.xml"));
    const QList<QList<RVData>> lists = {localEntries(2),
                                        remoteEntries(2),
                                        {entry(missing)},
                                        {entry(missing), entry(refused)},
                                        remoteEntries(1) + localEntries(1)
                                            + QList<RVData>{entry(refused), entry(missing)}};
    for (QList<RVData> entries : lists) {
        RVDescFetch fetch(entries, {}, {});
        const Spies spies(fetch);
        for (const char step : steps) {
            if (step == 's') {
                fetch.fetchAll();
                QVERIFY(fetch.isActive());
            } else if (step == 'c') {
                fetch.cancel();
                QVERIFY(!fetch.isActive());
            } else {
                QTRY_VERIFY_WITH_TIMEOUT(!fetch.isActive(), patience);
            }
        }
        QCOMPARE(spies.finished.count(), ends);
        runUntilIdle();
        QCOMPARE(spies.finished.count(), ends);
    }
}

void tst_RVDescFetch::replyDeletedByAnotherObject()
{
    m_server->hold();
    QList<RVData> entries = remoteEntries(2);
    RVDescFetch fetch(entries, {}, {});
    const Spies spies(fetch);
    fetch.fetchAll();
    QTRY_COMPARE_WITH_TIMEOUT(m_server->waiting(), 2, patience);
    const auto managers = fetch.findChildren<QNetworkAccessManager *>();
    delete managers.at(0)->findChild<XSpooledReply *>();
    QCOMPARE(spies.finished.count(), 0);
    delete managers.at(1)->findChild<XSpooledReply *>();
    QCOMPARE(spies.finished.count(), 1);
    QVERIFY(!fetch.isActive());
}

void tst_RVDescFetch::deletedInFlight()
{
    m_server->hold();
    QList<RVData> entries = remoteEntries(5) + localEntries(5);
    auto fetch = std::make_unique<RVDescFetch>(entries, QString(), QString());
    fetch->fetchAll();
    QTRY_COMPARE_WITH_TIMEOUT(m_server->waiting(), 5, patience);
    fetch->fetchAll();
    fetch.reset();
    m_server->release();
    runUntilIdle();
    QCOMPARE(m_log->lines(), QStringList());
}

void tst_RVDescFetch::deletedByAnErrorHandler()
{
    QList<RVData> entries = localEntries(1);
    entries.append(entry(QUrl(QStringLiteral("file:///nonexistent/a.xml"))));
    entries.append(localEntries(1));
    auto *fetch = new RVDescFetch(entries, {}, {});
    const QPointer<RVDescFetch> alive(fetch);
    connect(fetch, &RVDescFetch::networkError, this, [fetch] {
        delete fetch;
    });
    fetch->fetchAll();
    QVERIFY(!alive);
    runUntilIdle();
}

void tst_RVDescFetch::manyEntriesThatFailAtOnce()
{
    m_guard->allow(QStringLiteral("^Null descriptor"));
    QList<RVData> entries;
    RVData lost = entry(QUrl(QStringLiteral("http://127.0.0.1/a.xml")));
    lost.clearDescriptor();
    for (int i = 0; i < 20'000; ++i) {
        entries.append(lost);
    }
    for (int i = 0; i < 5000; ++i) {
        entries.append(entry(QUrl(QStringLiteral("file:///nonexistent/a.xml"))));
    }
    entries.prepend(localEntries(1).first());
    RVDescFetch fetch(entries, {}, {});
    const Spies spies(fetch);
    fetch.fetchAll();
    QTRY_COMPARE_WITH_TIMEOUT(spies.finished.count(), 1, patience);
    QCOMPARE(spies.codes.size(), 5000);
}

void tst_RVDescFetch::logsByWeight()
{
    m_guard->allow(QStringLiteral("^Null descriptor"));
    const QUrl missing = m_server->url(QStringLiteral("/missing.xml"));
    QList<RVData> entries = {entry(missing), entry(QUrl(QStringLiteral("http://h/lost.xml")))};
    entries.last().clearDescriptor();
    const auto fetchAndCancel = [&] {
        RVDescFetch fetch(entries, {}, {});
        fetch.fetchAll();
        QTRY_VERIFY_WITH_TIMEOUT(!fetch.isActive(), patience);
        fetch.cancel();
    };
    const auto levelOf = [&](const QString &line) {
        return m_log->levelOf(line, fetchAndCancel);
    };
    QCOMPARE(levelOf(QStringLiteral("Null descriptor in RVDescFetch for 'http://h/lost.xml'")), 3);
    QCOMPARE(levelOf(QStringLiteral("Descriptor fetch error 203 from ") + missing.toString()), 4);
    QCOMPARE(levelOf(QStringLiteral("DESCRIPTOR FETCH CANCEL, KILLING 0 FETCHES")), 5);
}

QTEST_GUILESS_MAIN(tst_RVDescFetch)
#include "tst_RVDescFetch.moc"

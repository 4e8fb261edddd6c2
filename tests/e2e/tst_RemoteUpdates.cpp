// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "install/RVInstallProc.h"
#include "repository/RVRepository.h"
#include "tests/support/DpkgRoot.h"
#include "tests/support/FtpServers.h"
#include "tests/support/LogFile.h"
#include "tests/support/WarningGuard.h"
#include "tests/support/WebServers.h"
#include "tests/support/XarWriter.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QtTest>

#include <memory>

/// A repository on a real server is what the same directory is on the local disk: the same updates,
/// and the real dpkg installs them.
class tst_RemoteUpdates : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void sameAsTheLocalCopy_data();
    void sameAsTheLocalCopy();
    void loginForSomeDescriptors_data();
    void loginForSomeDescriptors();
    void cleanup();

private:
    std::unique_ptr<LogFile> m_log;
    std::unique_ptr<WarningGuard> m_guard;
    QString m_previousDir;
};

namespace
{

constexpr int patience = 30'000;
const QString user = QStringLiteral("me");
const QString password = QStringLiteral("p@ss:w/rd%");
const QString folder = QStringLiteral("up dates %20");

/// Without their suffix; each has a byte that a shell, a listing or a URL treats apart.
const QStringList &awkwardNames()
{
    static const QStringList names{
        QStringLiteral("plain_1.0_all"),
        QStringLiteral("a b  c"),
        QStringLiteral("100%"),
        QStringLiteral("pct%20x%2Fy"),
        QStringLiteral("h#x"),
        QStringLiteral("q?x=y"),
        QStringLiteral("a+b"),
        QStringLiteral("a&b&amp;c"),
        QStringLiteral("tool_1:2.0-1_all"),
        QStringLiteral("http:x"),
        QStringLiteral("it's \"so\" `x`"),
        QStringLiteral("\u00e4\u00f6\u00df\u20ac"),
        QStringLiteral("br[1]{2}(3)<4>"),
        QStringLiteral("-rf"),
        QStringLiteral("--help"),
        QStringLiteral("semi;x,y=z!"),
        QStringLiteral("$x@y*~^|z"),
    };
    return names;
}

/// The packages that are installed: one has a description beside it, the other only its own.
const DpkgRoot::Package described{QStringLiteral("ravel-described"), QStringLiteral("1:2.0-3")};
const DpkgRoot::Package own{QStringLiteral("ravel-own"), QStringLiteral("4.5~rc1+b2"),
                            "Installed-Size: 7\n"};
const QString describedFile = QStringLiteral("-a tool & co_1:2.0-3 #1%20[\u00e4].deb");
const QString ownFile = QStringLiteral("its own_4.5~rc1+b2 50% (\u00fc)?.pkg.deb");
const QString packFile = QStringLiteral("service pack #1 + 100%.xar");

bool write(const QString &file, const QByteArray &content)
{
    QFile out(file);
    return out.open(QIODevice::WriteOnly) && out.write(content) == content.size()
        && out.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup
                              | QFile::ReadOther);
}

/// Of the version "1.NUMBER" where none is given.
QByteArray description(const QString &name, int number, const QString &version = {})
{
    const QByteArray n = QByteArray::number(number);
    const QByteArray shown = version.isEmpty() ? "1." + n : version.toUtf8();
    return "<update_data><name>" + name.toHtmlEscaped().toUtf8() + "</name><version>" + shown
        + "</version><size>" + n + "000</size><unpacked_size>" + n
        + "001</unpacked_size><installed_size>" + n + "002</installed_size><title>Title " + n
        + "</title></update_data>";
}

/// Every kind of update in `directory`; what went wrong, or the empty text.
QString publish(const QString &directory)
{
    int number = 0;
    for (const QString &name : awkwardNames()) {
        ++number;
        if (!write(directory + name + QStringLiteral(".deb"), "archive")
            || !write(directory + name + QStringLiteral(".xml"), description(name, number))) {
            return QStringLiteral("cannot write ") + name;
        }
    }
    XarWriter pack;
    pack.addSubdocument("<service-pack-description><name>pack</name><version>9.1</version>"
                        "<title>Service pack</title></service-pack-description>");
    pack.addSubdocument("<sp-attrs><unpacked_size>77</unpacked_size>"
                        "<installed_size>88</installed_size></sp-attrs>");
    pack.addFile("content", QByteArray(5000, 'x'));
    QString describedXml = describedFile;
    describedXml.replace(QLatin1String(".deb"), QLatin1String(".xml"));
    if (!write(directory + packFile, pack.archive())
        || !write(directory + describedXml, description(described.name, 500, described.version))) {
        return QStringLiteral("cannot write the descriptions");
    }
    const QString problem = DpkgRoot::build(described, directory + describedFile);
    return problem.isEmpty() ? DpkgRoot::build(own, directory + ownFile) : problem;
}

/// A server with the repository in a folder, and the proxy on the way to it.
struct Place {
    std::unique_ptr<WebServer> web;
    std::unique_ptr<FtpServer> ftp;
    std::unique_ptr<SquidProxy> squid;
    std::unique_ptr<FtpProxyServer> ftpProxy;
    QUrl url;
    QString directory;
    QString user;
    QString password;
    QString proxyHost;
    int proxyPort = -2;
};

QString encodedFolder()
{
    return QLatin1Char('/') + QString::fromLatin1(QUrl::toPercentEncoding(folder))
        + QLatin1Char('/');
}

bool startWeb(Place *place, const QString &kind)
{
    const bool hasTls = kind.contains(QLatin1String("TLS"));
    if (kind.startsWith(QLatin1String("Apache"))) {
        auto apache = std::make_unique<ApacheServer>(ApacheServer::FancyIndex);
        if (kind.contains(QLatin1String("digest"))) {
            apache->protect(QStringLiteral("/"), user, password, ApacheServer::Digest);
        }
        place->web = std::move(apache);
    } else {
        auto nginx = std::make_unique<NginxServer>();
        if (hasTls) {
            // Its key and certificate are read when the server starts.
            static TestAuthority authority;
            nginx->setCertificate(authority.issue());
        }
        if (kind.contains(QLatin1String("login"))) {
            nginx->protect(QStringLiteral("/"), user, password);
        }
        place->web = std::move(nginx);
    }
    if (!place->web->start()) {
        qCritical("%s", place->web->report());
        return false;
    }
    place->directory = place->web->root();
    place->url = hasTls ? static_cast<NginxServer &>(*place->web).tlsUrl(encodedFolder())
                        : place->web->url(encodedFolder());
    if (kind.contains(QLatin1String("squid"))) {
        place->squid = std::make_unique<SquidProxy>();
        if (!place->squid->start()) {
            qCritical("%s", place->squid->report());
            return false;
        }
        place->proxyHost = QStringLiteral("127.0.0.1");
        place->proxyPort = place->squid->port();
    }
    return true;
}

bool startFtp(Place *place, const QString &kind)
{
    QString rootPath;
    if (kind.startsWith(QLatin1String("vsftpd"))) {
        auto vsftpd = std::make_unique<VsftpdServer>(kind.contains(QLatin1String("chrooted"))
                                                         ? VsftpdServer::Chrooted
                                                         : VsftpdServer::NotChrooted);
        rootPath = vsftpd->rootPath();
        place->ftp = std::move(vsftpd);
    } else {
        auto scripted = std::make_unique<FtpScriptServer>();
        if (kind.contains(QLatin1String("DOS"))) {
            scripted->setDosListing();
        }
        if (kind.contains(QLatin1String("login"))) {
            scripted->refuseAnonymous();
            scripted->addUser(user, password);
        }
        place->ftp = std::move(scripted);
    }
    if (!place->ftp->start()) {
        qCritical("%s", place->ftp->report());
        return false;
    }
    place->directory = place->ftp->root();
    place->url = place->ftp->url(QString::fromLatin1(QUrl::toPercentEncoding(rootPath, "/"))
                                 + encodedFolder());
    if (kind.contains(QLatin1String("proxy"))) {
        place->ftpProxy = std::make_unique<FtpProxyServer>();
        if (!place->ftpProxy->start()) {
            qCritical("%s", place->ftpProxy->report());
            return false;
        }
        place->proxyHost = place->ftpProxy->address();
        place->proxyPort = place->ftpProxy->port();
    }
    return true;
}

bool start(Place *place, const QString &kind)
{
    const bool isWeb =
        kind.startsWith(QLatin1String("Apache")) || kind.startsWith(QLatin1String("nginx"));
    if (!(isWeb ? startWeb(place, kind) : startFtp(place, kind))) {
        return false;
    }
    if (kind.contains(QLatin1String("login"))) {
        place->user = user;
        place->password = password;
    }
    place->directory += QLatin1Char('/') + folder + QLatin1Char('/');
    return QDir().mkpath(place->directory)
        && QFile::setPermissions(place->directory,
                                 QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner
                                     | QFile::ReadGroup | QFile::ExeGroup | QFile::ReadOther
                                     | QFile::ExeOther);
}

/// A refresh with everything that it reports.
struct Refresh {
    Refresh(const QUrl &url, const RVPaths &paths)
        : repository(QStringLiteral("Corvane"), QStringLiteral("Ravel"), QString(), url,
                     QStringLiteral("test"), SortByName, nullptr, paths)
    {
        for (const char *suffix : {"\\.pkg\\.deb$", "\\.xar$"}) {
            repository.addFilter(QRegExp(QLatin1String(suffix)), QRegExp(QLatin1String(suffix)));
        }
        repository.addFilter(QRegExp(QStringLiteral("\\.deb$")),
                             QRegExp(QStringLiteral("\\.xml$")));
        QObject::connect(
            &repository, &RVRepository::networkError, &repository,
            [this](const QNetworkReply *reply) {
                failures.append(
                    QStringLiteral("%1 %2").arg(reply->error()).arg(QUrl(reply->url()).fileName()));
            });
        QObject::connect(&repository, &RVRepository::authenticationRequired, &repository,
                         [this](const QNetworkReply *reply) {
                             questions.append(QUrl(reply->url()).fileName());
                         });
        QObject::connect(&repository, &RVRepository::sslErrors, &repository,
                         [this](QNetworkReply *reply, const QList<QSslError> &errors) {
                             ++certificates;
                             reply->ignoreSslErrors(errors);
                         });
    }

    bool run()
    {
        QSignalSpy done(&repository, &RVRepository::refreshDone);
        repository.refresh();
        const bool ended = !done.isEmpty() || done.wait(patience);
        // There is to be one.
        QCoreApplication::processEvents();
        ends = done.size();
        return ended && done.first().first().toInt() == QNetworkReply::NoError;
    }

    /// Everything that the user sees of each entry, and its file.
    QStringList entries() const
    {
        QStringList result;
        for (const RVData &entry : repository.entries()) {
            const DescriptorGeneric &update = *entry.descriptor();
            result.append((QStringList{QUrl(entry.archiveUrl()).fileName(),
                                       QUrl(entry.descriptorUrl()).fileName(), update.name({}),
                                       update.version().toString(), QString::number(update.size()),
                                       QString::number(update.unpackedSize()),
                                       QString::number(update.installedSize()), update.title({})}
                           + update.baseReleases() + update.architectureList()
                           + update.thinClientList() + update.contentFiles())
                              .join(QStringLiteral(" | ")));
        }
        return result;
    }

    QList<RVData> entriesOf(const QStringList &files) const
    {
        QList<RVData> result;
        for (const RVData &entry : repository.entries()) {
            if (files.contains(QUrl(entry.archiveUrl()).fileName())) {
                result.append(entry);
            }
        }
        return result;
    }

    RVRepository repository;
    QStringList failures;
    QStringList questions;
    int certificates = 0;
    int ends = 0;
};

} // namespace

void tst_RemoteUpdates::init()
{
    qRegisterMetaType<QProcess::ExitStatus>();
    m_previousDir = QDir::currentPath();
    m_log = std::make_unique<LogFile>();
    m_guard = std::make_unique<WarningGuard>();
}

void tst_RemoteUpdates::cleanup()
{
    m_guard.reset();
    m_log.reset();
    QDir::setCurrent(m_previousDir);
}

void tst_RemoteUpdates::sameAsTheLocalCopy_data()
{
    QTest::addColumn<bool>("isRemote");
    QTest::newRow("file") << false;
    for (const char *kind :
         {"nginx", "nginx with TLS", "nginx through squid", "nginx with TLS through squid",
          "nginx with a basic login", "Apache", "Apache with a digest login", "vsftpd",
          "vsftpd, chrooted", "pyftpdlib", "pyftpdlib, DOS listing", "pyftpdlib with a login",
          "pyftpdlib through a proxy", "pyftpdlib with a login through a proxy"}) {
        QTest::newRow(kind) << true;
    }
}

void tst_RemoteUpdates::sameAsTheLocalCopy()
{
    QFETCH(bool, isRemote);
    const QString kind =
        isRemote ? QLatin1String(QTest::currentDataTag()) : QStringLiteral("nginx");
    if (kind == QLatin1String("vsftpd, chrooted") && !VsftpdServer::canChroot()) {
        QSKIP("only root can change the root");
    }
    Place place;
    QVERIFY(start(&place, kind));
    QCOMPARE(publish(place.directory), QString());
    const DpkgRoot root;
    QVERIFY(root.isValid());

    Refresh local(QUrl::fromLocalFile(place.directory), root.paths());
    QVERIFY(local.run());
    QCOMPARE(local.repository.entries().size(), awkwardNames().size() + 3);
    QCOMPARE(local.entries().filter(QStringLiteral(" | ravel-own | 4.5~rc1+b2 | ")).size(), 1);
    QCOMPARE(local.entries()
                 .filter(QStringLiteral(" | pack | 9.1 | %1 | 77 | 88 | Service pack | ")
                             .arg(QFileInfo(place.directory + packFile).size()))
                 .size(),
             1);
    QCOMPARE(local.entries()
                 .filter(QStringLiteral(" | 100% | 1.3 | 3000 | 3001 | 3002 | Title 3 | "))
                 .size(),
             1);

    Refresh refresh(isRemote ? place.url : QUrl::fromLocalFile(place.directory), root.paths());
    refresh.repository.setAuthenticationCredentials(place.user, place.password);
    refresh.repository.setProxy(place.proxyHost, place.proxyPort);
    QVERIFY(refresh.run());
    QCOMPARE(refresh.failures, QStringList());
    QCOMPARE(refresh.questions, QStringList());
    QCOMPARE(refresh.ends, 1);
    QCOMPARE(refresh.certificates > 0, kind.contains(QLatin1String("TLS")));
    QCOMPARE(refresh.entries(), local.entries());

    const QList<RVData> batch = refresh.entriesOf({describedFile, ownFile});
    QCOMPARE(batch.size(), 2);
    RVInstallProc procedure(batch, place.user, place.password, nullptr, root.paths());
    procedure.access.server = place.url;
    procedure.proxyHost = place.proxyHost;
    procedure.proxyPort = place.proxyPort;
    QStringList failures;
    connect(&procedure, &RVInstallProc::networkError, this, [&](const QNetworkReply *reply) {
        failures.append(reply->errorString());
    });
    connect(&procedure, &RVInstallProc::authenticationRequired, this,
            [&](QNetworkReply *, QAuthenticator *auth) {
                if (auth->user() != place.user) {
                    auth->setUser(place.user);
                    auth->setPassword(place.password);
                }
            });
    connect(&procedure, &RVInstallProc::sslErrors, this,
            [](QNetworkReply *reply, const QList<QSslError> &errors) {
                reply->ignoreSslErrors(errors);
            });
    QSignalSpy finished(&procedure, qOverload<int, QProcess::ExitStatus>(&QProcess::finished));
    procedure.start();
    QVERIFY(finished.wait(patience));
    QCOMPARE(failures, QStringList());
    QVERIFY2(finished.first().first().toInt() == 0, procedure.readAllStandardError().constData());
    QCOMPARE(root.installedVersion(described.name), described.version);
    QCOMPARE(root.installedVersion(own.name), own.version);

    if (place.squid && !kind.contains(QLatin1String("TLS"))) {
        QTRY_VERIFY(!place.squid->requests().isEmpty());
    }
    if (place.web && !place.user.isEmpty()) {
        QTRY_VERIFY(!place.web->requests().filter(QStringLiteral(" 401 ")).isEmpty());
        QVERIFY(!place.web->requests().filter(QStringLiteral(" 200 me")).isEmpty());
        QCOMPARE(place.web->requests().filter(QStringLiteral(" 200 -")), QStringList());
    }
    QVERIFY(place.password.isEmpty() || !m_log->raw().contains(place.password.toUtf8()));
    QVERIFY(!m_log->raw().contains(QUrl::toPercentEncoding(password)));
}

void tst_RemoteUpdates::loginForSomeDescriptors_data()
{
    QTest::addColumn<bool>("hasLogin");
    QTest::newRow("with the login") << true;
    QTest::newRow("without a login") << false;
}

void tst_RemoteUpdates::loginForSomeDescriptors()
{
    QFETCH(bool, hasLogin);
    const QStringList closed{QStringLiteral("100%.xml"), QStringLiteral("a b  c.xml")};
    NginxServer server;
    for (const QString &name : closed) {
        server.protect(QLatin1Char('/') + name, user, password);
    }
    QVERIFY2(server.start(), server.report());
    const QString directory = server.root() + QLatin1Char('/');
    QCOMPARE(publish(directory), QString());
    Refresh local(QUrl::fromLocalFile(directory), {});
    QVERIFY(local.run());

    Refresh refresh(server.url(), {});
    if (hasLogin) {
        refresh.repository.setAuthenticationCredentials(user, password);
    }
    QVERIFY(refresh.run());
    QCOMPARE(refresh.ends, 1);
    refresh.failures.sort();
    refresh.questions.sort();
    if (hasLogin) {
        QCOMPARE(refresh.failures, QStringList());
        QCOMPARE(refresh.questions, QStringList());
        QCOMPARE(refresh.entries(), local.entries());
        // The others were not told the login.
        QTRY_COMPARE(server.requests().filter(QStringLiteral(" 200 me")).size(), 2);
        return;
    }
    QCOMPARE(refresh.questions, closed);
    QCOMPARE(refresh.failures,
             QStringList(
                 {QStringLiteral("204 ") + closed.at(0), QStringLiteral("204 ") + closed.at(1)}));
    // What was refused is still an entry, with nothing to say.
    QCOMPARE(refresh.repository.entries().size(), local.repository.entries().size());
    const QStringList open = local.entries();
    const QStringList found = refresh.entries();
    for (const QString &entry : open) {
        const bool isClosed = entry.startsWith(QLatin1String("100%.deb"))
            || entry.startsWith(QLatin1String("a b  c.deb"));
        QCOMPARE(found.contains(entry), !isClosed);
    }
}

QTEST_GUILESS_MAIN(tst_RemoteUpdates)
#include "tst_RemoteUpdates.moc"

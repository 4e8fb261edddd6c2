// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "network/NetworkDirRequest.h"
#include "network/XNetworkAccessManager.h"
#include "network/XNetworkReply.h"
#include "tests/support/FtpServers.h"
#include "tests/support/WarningGuard.h"

#include <QAuthenticator>
#include <QFile>
#include <QtTest>

/// What the servers of the distribution list and send, against the same files on disk.
class tst_RealFtpServers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sameAsOnDisk_data();
    void sameAsOnDisk();
    void sameNamesAsALocalListing_data();
    void sameNamesAsALocalListing();
    void vsftpdAsksForALogin();
};

namespace
{

constexpr int waitMs = 30000;
constexpr char directoryName[] = "d %41 \xC3\xA4#";

struct Server {
    std::unique_ptr<FtpServer> server;
    std::unique_ptr<FtpServer> proxy;
    /// URL path of the server's root(), as bytes.
    QByteArray rootPath;
};

/// Each with at least one byte of each kind that a URL, a listing or a shell treats apart.
QList<QByteArray> utf8Names()
{
    return {"plain_1.0_all.deb",
            "a b",
            "two  blanks",
            "100%",
            "a%20b",
            "pct%zz",
            "a#b",
            "a?b",
            "a+b",
            "a&b",
            "x_1:2.deb",
            "'single'",
            "\"double\"",
            "[x]",
            "-rf",
            "--help",
            "a;type=i",
            "a=b,c",
            "~user",
            "$HOME",
            "`tick`",
            "{brace}",
            "a^b|c",
            "a\\b",
            "<a>",
            "a@b!c*d",
            "(1)",
            "\xC3\xA4\xC3\xB6\xC3\xBC\xE2\x82\xAC",
            "x..",
            "a -> b"};
}

QByteArray contentFor(const QByteArray &name)
{
    return "content of <" + name + ">\r\n" + QByteArray(1, '\0') + "\n"
        + QByteArray(name.size(), 'x');
}

bool fill(const FtpServer &server, const QList<QByteArray> &names)
{
    bool written = server.makeDir(directoryName);
    for (const QByteArray &name : names) {
        written = written && server.write(QByteArray(directoryName) + '/' + name, contentFor(name));
    }
    return written;
}

void addServerRows()
{
    QTest::addColumn<QString>("kind");
    for (const char *kind : {"vsftpd", "vsftpd, chrooted", "pyftpdlib", "pyftpdlib, not chrooted",
                             "pyftpdlib, DOS listing", "pyftpdlib, PASV only", "through a proxy"}) {
        QTest::newRow(kind) << QString::fromLatin1(kind);
    }
}

Server makeServer(const QString &kind)
{
    Server result;
    if (kind.startsWith(QLatin1String("vsftpd"))) {
        auto server = std::make_unique<VsftpdServer>(kind.contains(QLatin1String("chrooted"))
                                                         ? VsftpdServer::Chrooted
                                                         : VsftpdServer::NotChrooted);
        result.rootPath = QFile::encodeName(server->rootPath());
        result.server = std::move(server);
        return result;
    }
    auto server = std::make_unique<FtpScriptServer>();
    if (kind.contains(QLatin1String("not chrooted"))) {
        server->setNotChrooted();
        result.rootPath = QFile::encodeName(server->root());
    } else if (kind.contains(QLatin1String("DOS"))) {
        server->setDosListing();
    } else if (kind.contains(QLatin1String("PASV"))) {
        server->refuse(QStringLiteral("EPSV"), QStringLiteral("500 What?"));
    } else if (kind.contains(QLatin1String("proxy"))) {
        result.proxy = std::make_unique<FtpProxyServer>();
    }
    result.server = std::move(server);
    return result;
}

void useProxy(XNetworkAccessManager *manager, const Server &server)
{
    if (server.proxy) {
        manager->setProxy(QNetworkProxy(QNetworkProxy::FtpCachingProxy, server.proxy->address(),
                                        server.proxy->port()));
    }
}

QUrl directoryUrl(const Server &server)
{
    const QByteArray path = server.rootPath + '/' + directoryName;
    return server.server->url(QString::fromLatin1(path.toPercentEncoding("/")));
}

QByteArray lastName(const QUrl &url)
{
    const QByteArray path =
        QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1());
    return path.mid(path.lastIndexOf('/') + 1);
}

bool waitForEnd(QNetworkReply *reply)
{
    // Not a QTRY_…, which looks every 10 ms only: there are some 30 round trips a file.
    return reply->isFinished() || QSignalSpy(reply, &QNetworkReply::finished).wait(waitMs);
}

} // namespace

void tst_RealFtpServers::sameAsOnDisk_data()
{
    addServerRows();
}

void tst_RealFtpServers::sameAsOnDisk()
{
    QFETCH(QString, kind);
    if (kind.contains(QLatin1String("vsftpd, chrooted")) && !VsftpdServer::canChroot()) {
        QSKIP("only root can change the root");
    }
    WarningGuard guard;
    QList<QByteArray> names = utf8Names();
    names << "\xE4\xF6\xFC.deb";
    const Server server = makeServer(kind);
    QVERIFY(fill(*server.server, names));
    QVERIFY2(server.server->start(), server.server->report());
    QVERIFY2(!server.proxy || server.proxy->start(), server.proxy ? server.proxy->report() : "");

    XNetworkAccessManager manager;
    useProxy(&manager, server);
    const std::unique_ptr<XNetworkReply> listing(
        manager.getDirectory(NetworkDirRequest(directoryUrl(server))));
    QVERIFY(waitForEnd(listing.get()));
    QVERIFY2(listing->error() == QNetworkReply::NoError, qPrintable(listing->errorString()));

    QList<QByteArray> listed;
    for (const XUrlInfo &entry : qAsConst(listing->entries)) {
        const QUrl url(entry.name());
        const QByteArray name = lastName(url);
        if (name == "." || name == "..") {
            continue;
        }
        listed.append(name);
        QVERIFY2(entry.isFile() && !entry.isDir(), name.constData());
        QCOMPARE(entry.size(), qint64(contentFor(name).size()));

        XNetworkAccessManager fetcher;
        useProxy(&fetcher, server);
        const std::unique_ptr<QNetworkReply> reply(fetcher.get(QNetworkRequest(url)));
        QVERIFY(waitForEnd(reply.get()));
        QVERIFY2(reply->error() == QNetworkReply::NoError,
                 qPrintable(entry.name() + QLatin1String(": ") + reply->errorString()));
        QCOMPARE(reply->readAll(), contentFor(name));
    }
    std::sort(listed.begin(), listed.end());
    std::sort(names.begin(), names.end());
    QCOMPARE(listed, names);
}

void tst_RealFtpServers::sameNamesAsALocalListing_data()
{
    addServerRows();
}

void tst_RealFtpServers::sameNamesAsALocalListing()
{
    QFETCH(QString, kind);
    if (kind.contains(QLatin1String("vsftpd, chrooted")) && !VsftpdServer::canChroot()) {
        QSKIP("only root can change the root");
    }
    const Server server = makeServer(kind);
    QVERIFY(fill(*server.server, utf8Names()));
    QVERIFY2(server.server->start(), server.server->report());
    QVERIFY2(!server.proxy || server.proxy->start(), server.proxy ? server.proxy->report() : "");

    const auto namesIn = [](const QUrl &url, const Server &of) {
        XNetworkAccessManager manager;
        useProxy(&manager, of);
        const std::unique_ptr<XNetworkReply> listing(manager.getDirectory(NetworkDirRequest(url)));
        waitForEnd(listing.get());
        QStringList names;
        for (const XUrlInfo &entry : qAsConst(listing->entries)) {
            const QString name = entry.name().section(QLatin1Char('/'), -1);
            if (name != QLatin1String(".") && name != QLatin1String("..")) {
                names.append(name);
            }
        }
        names.sort();
        return names;
    };
    const QStringList local = namesIn(QUrl::fromLocalFile(server.server->root() + QLatin1Char('/')
                                                          + QString::fromUtf8(directoryName)),
                                      Server());
    QCOMPARE(local.size(), utf8Names().size());
    // Patterns of a repository are matched against these texts.
    QCOMPARE(namesIn(directoryUrl(server), server), local);
}

void tst_RealFtpServers::vsftpdAsksForALogin()
{
    VsftpdServer server;
    server.requirePassword(QStringLiteral("let me in"));
    QVERIFY(server.write("a.deb", "abc"));
    QVERIFY2(server.start(), server.report());
    XNetworkAccessManager manager;
    int questions = 0;
    connect(&manager, &QNetworkAccessManager::authenticationRequired, this,
            [&](QNetworkReply *, QAuthenticator *auth) {
                ++questions;
                auth->setPassword(QStringLiteral("let me in"));
            });
    const std::unique_ptr<XNetworkReply> listing(
        manager.getDirectory(NetworkDirRequest(server.url(server.rootPath()))));
    QVERIFY(waitForEnd(listing.get()));
    QVERIFY2(listing->error() == QNetworkReply::NoError, qPrintable(listing->errorString()));
    QCOMPARE(listing->entries.size(), 1);
    // What was answered for the listing is good for the files of the same host.
    const std::unique_ptr<QNetworkReply> reply(
        manager.get(QNetworkRequest(QUrl(listing->entries.at(0).name()))));
    QVERIFY(waitForEnd(reply.get()));
    QCOMPARE(reply->readAll(), QByteArray("abc"));
    QCOMPARE(questions, 1);
}

QTEST_GUILESS_MAIN(tst_RealFtpServers)
#include "tst_RealFtpServers.moc"

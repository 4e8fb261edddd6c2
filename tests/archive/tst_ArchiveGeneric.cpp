// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "archive/ArchiveGeneric.h"
#include "archive/ImageQuestion.h"
#include "tests/support/LogFile.h"
#include "tests/support/WarningGuard.h"

#include <QBuffer>
#include <QDir>
#include <QMetaMethod>
#include <QNetworkAccessManager>
#include <QNetworkRequest>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <utility>

namespace
{

/// What the base class keeps, for the tests of what a front does and does not store there.
class OpenArchive : public ArchiveGeneric
{
public:
    using ArchiveGeneric::ArchiveGeneric;

    QString proxyHost() const { return m_proxyHost; }
    int proxyPort() const { return m_proxyPort; }
};

class Agreement : public ImageQuestion
{
public:
    bool confirmImageInstall() override { return true; }
};

RVPaths pathsForTest()
{
    RVPaths paths;
    paths.shell = paths.rebootTool = QStringLiteral("/bin/true");
    paths.etcDir = QDir::current().filePath(QStringLiteral("etc"));
    paths.writableDir = QDir::current().filePath(QStringLiteral("writable"));
    return paths;
}

/// The backend as it shows when there is something to extract.
QString backendOf(const ArchiveGeneric &archive, const LogFile &log)
{
    QBuffer source;
    source.setData("bytes");
    const int linesBefore = log.lines().size();
    try {
        archive.extract(&source);
    } catch (ArchiveBaseClass::Exception_t code) {
        return code == 2 ? QStringLiteral("image") : QStringLiteral("wrong code");
    }
    if (!archive.urlIsHandled()) {
        return QStringLiteral("none");
    }
    const QStringList lines = log.lines().mid(linesBefore);
    return lines.join(QLatin1Char(' ')).contains(QLatin1String("Copying .deb file"))
        ? QStringLiteral("deb")
        : QStringLiteral("xar");
}

} // namespace

class tst_ArchiveGeneric : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void choosesBackend_data();
    void choosesBackend();
    void namesOfTheMetaObject();
    void reportsUnknownFormat_data();
    void reportsUnknownFormat();
    void logsUnknownFormatAsWarning();
    void keepsPasswordOutOfTheLog();
    void isHarmlessWithoutBackend();
    void extractsAndSignalsOnce();
    void extractsReply();
    void refusesFailedReply();
    void throwsForImage();
    void copySharesBackend();
    void assignmentTakesBackendOnly();
    void backendOutlivesItsFirstFront();
    void relaysInstallStartedOnce();
    void proxyIsSeenThroughCopies();
    void frontsProxyStaysUnset();

private:
    QString m_previousDir;
    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<LogFile> m_log;
};

void tst_ArchiveGeneric::init()
{
    m_previousDir = QDir::currentPath();
    m_dir = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir::setCurrent(m_dir->path()));
    m_log = std::make_unique<LogFile>();
}

void tst_ArchiveGeneric::cleanup()
{
    m_log.reset();
    QVERIFY(QDir::setCurrent(m_previousDir));
    m_dir.reset();
}

void tst_ArchiveGeneric::choosesBackend_data()
{
    QTest::addColumn<QString>("url");
    QTest::addColumn<QString>("backend");
    QTest::addColumn<bool>("useExtract");

    const auto row = [](const char *name, const char *url, const char *backend, bool useExtract) {
        QTest::newRow(name) << QString::fromLatin1(url) << QString::fromLatin1(backend)
                            << useExtract;
    };
    row("xar", "http://h/update.xar", "xar", true);
    row("xar in capitals", "http://h/update.XAR", "xar", true);
    row("package", "http://h/update.deb", "deb", true);
    row("package in mixed case", "http://h/update.Deb", "deb", true);
    row("full image", "http://h/image.dd.gz", "image", false);
    row("full image in capitals", "http://h/image.DD.GZ", "image", false);
    row("compressed, but no image", "http://h/image.gz", "none", false);
    row("image that is not compressed", "http://h/image.dd", "none", false);
    row("no suffix", "http://h/deb", "none", false);
    row("suffix that only ends alike", "http://h/update.xdeb", "none", false);
    row("more after the suffix", "http://h/update.deb.asc", "none", false);
    row("directory", "http://h/update.deb/", "none", false);
    row("suffix in a directory's name", "http://h/update.deb/file", "none", false);
    row("query does not count", "http://h/name.xar?file=.deb", "xar", true);
    row("query alone", "http://h/name?file=update.deb", "none", false);
    row("fragment does not count", "http://h/name.deb#.xar", "deb", true);
    row("fragment alone", "http://h/name#update.xar", "none", false);
    row("host does not count", "http://update.deb", "none", false);
    row("two suffixes, the last counts", "http://h/a.deb.xar", "xar", true);
    row("xar that holds an image's name", "http://h/a.dd.gz.xar", "xar", true);
    row("local file", "file:///srv/update.deb", "deb", true);
    row("empty", "", "none", false);
}

void tst_ArchiveGeneric::choosesBackend()
{
    QFETCH(QString, url);
    QFETCH(QString, backend);
    QFETCH(bool, useExtract);

    WarningGuard guard;
    if (backend == QLatin1String("none")) {
        guard.allow(QStringLiteral("Found no backend"));
    }
    ArchiveGeneric archive{QUrl(url)};
    QCOMPARE(archive.url(), QUrl(url));
    QCOMPARE(archive.urlIsHandled(), backend != QLatin1String("none"));
    QCOMPARE(archive.useExtract(), useExtract);
    QCOMPARE(backendOf(archive, *m_log), backend);
}

void tst_ArchiveGeneric::namesOfTheMetaObject()
{
    const QMetaObject &meta = ArchiveGeneric::staticMetaObject;
    for (const char *name : {"extractFinished()", "installStarted()"}) {
        QVERIFY2(meta.indexOfSignal(name) >= 0, name);
    }
    const QMap<QByteArray, QByteArray> publicSlots{{"extract(QIODevice*)", "bool"},
                                                   {"install(QProcess*)", "void"},
                                                   {"extract(QNetworkReply*)", "bool"}};
    for (auto it = publicSlots.cbegin(); it != publicSlots.cend(); ++it) {
        const QMetaMethod method = meta.method(meta.indexOfSlot(it.key().constData()));
        QVERIFY2(method.isValid(), it.key().constData());
        QCOMPARE(QByteArray(method.typeName()), it.value());
        QCOMPARE(method.access(), QMetaMethod::Public);
    }
    const QMetaMethod relay = meta.method(meta.indexOfSlot("relayInstallStarted()"));
    QVERIFY(relay.isValid());
    QCOMPARE(relay.access(), QMetaMethod::Private);
}

void tst_ArchiveGeneric::reportsUnknownFormat_data()
{
    QTest::addColumn<QString>("url");

    QTest::newRow("unknown suffix") << QStringLiteral("http://h/update.zip");
    QTest::newRow("text beyond ASCII") << QString::fromUtf8("http://h/gr\xc3\xb6\xc3\x9f"
                                                            "er.zip");
    QTest::newRow("percent signs") << QStringLiteral("http://h/a%25s%25n.zip");
    QTest::newRow("empty") << QString();
}

void tst_ArchiveGeneric::reportsUnknownFormat()
{
    QFETCH(QString, url);

    WarningGuard guard;
    guard.allow(QStringLiteral("."));
    const ArchiveGeneric archive{QUrl(url)};
    QCOMPARE(guard.messages(),
             QStringList(QStringLiteral("Found no backend for archive format:\n  ") + url));
    QCOMPARE(m_log->lines(),
             QStringList({QStringLiteral("Found no backend for archive format:"),
                          QStringLiteral("  ") + url}));
}

void tst_ArchiveGeneric::logsUnknownFormatAsWarning()
{
    WarningGuard guard;
    guard.allow(QStringLiteral("Found no backend"));
    const int level = m_log->levelOf(QStringLiteral("Found no backend for archive format:"), [] {
        const ArchiveGeneric archive{QUrl(QStringLiteral("http://h/update.zip"))};
    });
    QCOMPARE(level, 4);
}

void tst_ArchiveGeneric::keepsPasswordOutOfTheLog()
{
    WarningGuard guard;
    guard.allow(QStringLiteral("Found no backend"));
    const ArchiveGeneric unknown{QUrl(QStringLiteral("ftp://user:secret@h/update.zip"))};
    QVERIFY(m_log->contains(QStringLiteral("  ftp://user@h/update.zip")));
    QVERIFY(!m_log->raw().contains("secret"));
    QVERIFY(!guard.messages().first().contains(QLatin1String("secret")));
}

void tst_ArchiveGeneric::isHarmlessWithoutBackend()
{
    WarningGuard guard;
    guard.allow(QStringLiteral("Found no backend"));
    ArchiveGeneric archive{QUrl(QStringLiteral("http://h/update.zip"))};
    const QSignalSpy extracted(&archive, &ArchiveGeneric::extractFinished);
    const QSignalSpy installed(&archive, &ArchiveGeneric::installStarted);
    QBuffer source;
    source.setData("bytes");
    QVERIFY(!archive.extract(&source));
    QCOMPARE(extracted.count(), 1);

    QProcess process;
    archive.setProxy(QStringLiteral("proxy"), 3128);
    archive.install(&process);
    QCOMPARE(process.state(), QProcess::NotRunning);
    QCOMPARE(installed.count(), 0);
    QVERIFY(QDir().isEmpty());
}

void tst_ArchiveGeneric::extractsAndSignalsOnce()
{
    const ArchiveGeneric archive{QUrl(QStringLiteral("http://h/update.deb"))};
    const QSignalSpy extracted(&archive, &ArchiveGeneric::extractFinished);
    QBuffer source;
    source.setData("bytes");
    QVERIFY(archive.extract(&source));
    QCOMPARE(extracted.count(), 1);
    QVERIFY(QFile::exists(QStringLiteral("update.deb")));

    QBuffer nothing;
    QVERIFY(!archive.extract(&nothing));
    QCOMPARE(extracted.count(), 2);
    // The result alone tells of a failure.
    const QString copying = QStringLiteral("Copying .deb file update.deb to local storage");
    QCOMPARE(m_log->lines(), (QStringList{copying, copying}));
}

void tst_ArchiveGeneric::extractsReply()
{
    QFile original(QStringLiteral("original"));
    QVERIFY(original.open(QIODevice::WriteOnly) && original.write("package") == 7);
    original.close();

    QNetworkAccessManager manager;
    ArchiveGeneric archive{QUrl(QStringLiteral("http://h/update.deb"))};
    const QSignalSpy extracted(&archive, &ArchiveGeneric::extractFinished);
    // As the install procedure may connect it: by the slot's registered name.
    QVERIFY(connect(&manager, SIGNAL(finished(QNetworkReply *)), &archive,
                    SLOT(extract(QNetworkReply *))));
    const std::unique_ptr<QNetworkReply> reply(manager.get(QNetworkRequest(
        QUrl::fromLocalFile(QDir::current().filePath(QStringLiteral("original"))))));
    QTRY_COMPARE(extracted.count(), 1);
    QFile copy(QStringLiteral("update.deb"));
    QVERIFY(copy.open(QIODevice::ReadOnly));
    QCOMPARE(copy.readAll(), QByteArray("package"));
}

void tst_ArchiveGeneric::refusesFailedReply()
{
    QNetworkAccessManager manager;
    const std::unique_ptr<QNetworkReply> reply(manager.get(
        QNetworkRequest(QUrl::fromLocalFile(QDir::current().filePath(QStringLiteral("missing"))))));
    QTRY_VERIFY(reply->isFinished());
    QCOMPARE(reply->error(), QNetworkReply::ContentNotFoundError);

    ArchiveGeneric archive{QUrl(QStringLiteral("http://h/update.deb"))};
    const QSignalSpy extracted(&archive, &ArchiveGeneric::extractFinished);
    QVERIFY(!archive.extract(reply.get()));
    QVERIFY(!archive.extract(static_cast<QIODevice *>(reply.get())));
    QCOMPARE(extracted.count(), 2);
    QVERIFY(QDir().isEmpty());
}

void tst_ArchiveGeneric::throwsForImage()
{
    const ArchiveGeneric archive{QUrl(QStringLiteral("http://h/image.dd.gz"))};
    QBuffer source;
    QVERIFY_EXCEPTION_THROWN(archive.extract(&source), ArchiveBaseClass::Exception_t);
    QCOMPARE(static_cast<int>(ArchiveBaseClass::NotExtractable), 2);
}

void tst_ArchiveGeneric::copySharesBackend()
{
    QObject parent;
    const auto *original = new ArchiveGeneric(QUrl(QStringLiteral("http://h/update.deb")), &parent);
    ArchiveGeneric copy(*original);
    QCOMPARE(copy.parent(), &parent);
    QCOMPARE(copy.url(), original->url());
    QVERIFY(copy.urlIsHandled());
    QCOMPARE(backendOf(copy, *m_log), QStringLiteral("deb"));
    copy.setParent(nullptr);
}

void tst_ArchiveGeneric::assignmentTakesBackendOnly()
{
    const ArchiveGeneric image{QUrl(QStringLiteral("http://h/image.dd.gz"))};
    OpenArchive target{QUrl(QStringLiteral("http://h/update.deb"))};
    static_cast<ArchiveGeneric &>(target) = image;
    QCOMPARE(target.url(), QUrl(QStringLiteral("http://h/update.deb")));
    QCOMPARE(backendOf(target, *m_log), QStringLiteral("image"));
}

void tst_ArchiveGeneric::backendOutlivesItsFirstFront()
{
    auto original = std::make_unique<ArchiveGeneric>(QUrl(QStringLiteral("http://h/update.deb")));
    ArchiveGeneric copy(*original);
    original.reset();
    QCOMPARE(backendOf(copy, *m_log), QStringLiteral("deb"));
}

void tst_ArchiveGeneric::relaysInstallStartedOnce()
{
    ArchiveGeneric archive{QUrl(QStringLiteral("http://h/update.deb")), nullptr, pathsForTest()};
    const QSignalSpy started(&archive, &ArchiveGeneric::installStarted);
    for (int installs = 1; installs <= 2; ++installs) {
        QProcess process;
        archive.install(&process);
        QVERIFY(process.waitForFinished());
        QCOMPARE(started.count(), installs);
    }
}

void tst_ArchiveGeneric::proxyIsSeenThroughCopies()
{
    ArchiveGeneric archive{QUrl(QStringLiteral("http://h/image.dd.gz")), nullptr, pathsForTest()};
    ArchiveGeneric copy(archive);
    archive.setProxy(QStringLiteral("proxy"), 3128);
    Agreement agreement;
    copy.setImageQuestion(&agreement);
    const QSignalSpy started(&copy, &ArchiveGeneric::installStarted);
    QProcess process;
    copy.install(&process);
    QVERIFY(process.waitForFinished());
    QCOMPARE(started.count(), 1);
    QFile configuration(QStringLiteral("writable/CV/Snapstow.conf"));
    QVERIFY(configuration.open(QIODevice::ReadOnly));
    QVERIFY(configuration.readAll().contains("remote-deploy.proxy=proxy:3128\n"));
}

void tst_ArchiveGeneric::frontsProxyStaysUnset()
{
    OpenArchive archive{QUrl(QStringLiteral("http://h/image.dd.gz"))};
    QCOMPARE(archive.proxyPort(), -1);
    archive.setProxy(QStringLiteral("proxy"), 3128);
    const OpenArchive copy(archive);
    for (const OpenArchive *front : {&std::as_const(archive), &copy}) {
        QCOMPARE(front->proxyHost(), QString());
        QCOMPARE(front->proxyPort(), -1);
    }
}

QTEST_GUILESS_MAIN(tst_ArchiveGeneric)
#include "tst_ArchiveGeneric.moc"

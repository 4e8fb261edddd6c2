// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "network/NetworkDirRequestLocal.h"
#include "network/XNetworkReply.h"
#include "tests/support/CpuCost.h"
#include "tests/support/Privileges.h"
#include "tests/support/WarningGuard.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

using Reply = std::unique_ptr<XNetworkReply>;

Reply list(const QUrl &url)
{
    NetworkDirRequestLocal request(url);
    return Reply(request.getDirectory());
}

Reply list(const QString &path)
{
    return list(QUrl::fromLocalFile(path));
}

bool writeFile(const QString &path, const QByteArray &content = "x")
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

QStringList names(const Reply &reply)
{
    QStringList result;
    for (const XUrlInfo &entry : qAsConst(reply->entries)) {
        result.append(entry.name());
    }
    return result;
}

/// The entries' last path components.
QStringList fileNames(const Reply &reply)
{
    QStringList result;
    for (const QString &name : names(reply)) {
        result.append(name.section(QLatin1Char('/'), -1));
    }
    return result;
}

} // namespace

class tst_NetworkDirRequestLocal : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void isCapable();
    void finishesInsideTheCall();
    void reportsWhatCannotBeListed_data();
    void reportsWhatCannotBeListed();
    void namesEntriesByFullUrl();
    void sortsDirectoriesFirstAndWithoutCase();
    void describesEntries();
    void leavesHiddenEntriesOut();
    void acceptsAnyFormOfTheDirectory_data();
    void acceptsAnyFormOfTheDirectory();
    void awkwardNamesLeadBackToTheFile_data();
    void awkwardNamesLeadBackToTheFile();
    void undecodableNameHurtsNoOther();
    void specialFilesDoNotBlock();
    void readsThousandsQuickly();
    void cleanup();

private:
    QString path(const QString &name) const { return m_dir->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<WarningGuard> m_guard;
};

void tst_NetworkDirRequestLocal::initTestCase()
{
    QVERIFY(obeyFilePermissions());
}

void tst_NetworkDirRequestLocal::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    m_guard = std::make_unique<WarningGuard>();
}

void tst_NetworkDirRequestLocal::cleanup()
{
    m_guard.reset();
    m_dir.reset();
}

void tst_NetworkDirRequestLocal::isCapable()
{
    QVERIFY(NetworkDirRequestLocal(QUrl()).directoryCapable());
}

void tst_NetworkDirRequestLocal::finishesInsideTheCall()
{
    const QUrl url = QUrl::fromLocalFile(m_dir->path());
    NetworkDirRequestLocal request(url);
    request.setManager(nullptr);
    const Reply reply(request.getDirectory());
    QVERIFY(reply->finished);
    QVERIFY(reply->isFinished());
    QCOMPARE(reply->parent(), nullptr);
    QCOMPARE(reply->error(), QNetworkReply::NoError);
    QCOMPARE(reply->url(), url);
    QCOMPARE(reply->request().url(), url);
    QCOMPARE(static_cast<int>(reply->operation()), 1000);
    QVERIFY(!reply->isOpen());
}

void tst_NetworkDirRequestLocal::reportsWhatCannotBeListed_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("error");
    QTest::addColumn<QString>("text");
    QTest::newRow("missing") << QStringLiteral("missing") << 203
                             << QStringLiteral("URI does not exist");
    QTest::newRow("missing below a file")
        << QStringLiteral("file/below") << 203 << QStringLiteral("URI does not exist");
    QTest::newRow("dangling link")
        << QStringLiteral("dangling") << 203 << QStringLiteral("URI does not exist");
    QTest::newRow("regular file") << QStringLiteral("file") << 202
                                  << QStringLiteral("URI is not a directory");
    QTest::newRow("file that is not readable either")
        << QStringLiteral("lockedFile") << 202 << QStringLiteral("URI is not a directory");
    QTest::newRow("pipe") << QStringLiteral("pipe") << 202
                          << QStringLiteral("URI is not a directory");
    QTest::newRow("directory that is not readable")
        << QStringLiteral("locked") << 201 << QStringLiteral("Directory is not readable");
}

void tst_NetworkDirRequestLocal::reportsWhatCannotBeListed()
{
    QFETCH(QString, name);
    QVERIFY(writeFile(path(QStringLiteral("file"))));
    QVERIFY(writeFile(path(QStringLiteral("lockedFile"))));
    QVERIFY(QFile::setPermissions(path(QStringLiteral("lockedFile")), {}));
    QVERIFY(QFile::link(path(QStringLiteral("nowhere")), path(QStringLiteral("dangling"))));
    QCOMPARE(mkfifo(QFile::encodeName(path(QStringLiteral("pipe"))).constData(), 0600), 0);
    const QString locked = path(QStringLiteral("locked"));
    QVERIFY(QDir().mkdir(locked));
    QVERIFY(QFile::setPermissions(locked, {}));

    const Reply reply = list(path(name));
    QVERIFY(QFile::setPermissions(locked, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    QTEST(static_cast<int>(reply->error()), "error");
    QTEST(reply->errorString(), "text");
    QVERIFY(reply->entries.isEmpty());
    QVERIFY(reply->finished);
}

void tst_NetworkDirRequestLocal::namesEntriesByFullUrl()
{
    QVERIFY(writeFile(path(QStringLiteral("tool_1:2.0-1_all.deb"))));
    const Reply reply = list(m_dir->path());
    const QString base = QStringLiteral("file://") + m_dir->path();
    QCOMPARE(names(reply),
             (QStringList{base + QStringLiteral("/."), base + QStringLiteral("/.."),
                          base + QStringLiteral("/tool_1:2.0-1_all.deb")}));
    QVERIFY(reply->entries[0].isDir());
    QVERIFY(reply->entries[1].isDir());
}

void tst_NetworkDirRequestLocal::sortsDirectoriesFirstAndWithoutCase()
{
    for (const char *name : {"b.deb", "A.deb", "c.deb"}) {
        QVERIFY(writeFile(path(QLatin1String(name))));
    }
    for (const char *name : {"z", "Y"}) {
        QVERIFY(QDir().mkdir(path(QLatin1String(name))));
    }
    QCOMPARE(fileNames(list(m_dir->path())).join(QLatin1Char(' ')),
             QStringLiteral(". .. Y z A.deb b.deb c.deb"));
}

void tst_NetworkDirRequestLocal::describesEntries()
{
    const QString file = path(QStringLiteral("a.deb"));
    QVERIFY(writeFile(file, "12345"));
    QVERIFY(QFile::setPermissions(
        file, QFile::ReadOwner | QFile::ExeOwner | QFile::WriteGroup | QFile::ReadOther));
    QVERIFY(QFile::link(file, path(QStringLiteral("link.deb"))));

    const Reply reply = list(m_dir->path());
    QCOMPARE(fileNames(reply).join(QLatin1Char(' ')), QStringLiteral(". .. a.deb link.deb"));
    const XUrlInfo &entry = reply->entries[2];
    const QFileInfo info(file);
    QVERIFY(entry.isFile());
    QVERIFY(!entry.isDir());
    QVERIFY(!entry.isSymLink());
    QCOMPARE(entry.size(), 5);
    QCOMPARE(entry.permissions(), 0524);
    QVERIFY(entry.isReadable());
    QVERIFY(!entry.isWritable());
    QVERIFY(entry.isExecutable());
    QCOMPARE(entry.owner(), info.owner());
    QCOMPARE(entry.group(), info.group());
    QCOMPARE(entry.lastModified(), info.lastModified());
    QCOMPARE(entry.lastRead(), info.lastRead());
    QVERIFY(reply->entries[3].isSymLink());
    QVERIFY(reply->entries[3].isFile());
    QVERIFY(reply->entries[0].isDir());
    QVERIFY(!reply->entries[0].isFile());
}

void tst_NetworkDirRequestLocal::leavesHiddenEntriesOut()
{
    QVERIFY(writeFile(path(QStringLiteral(".hidden.deb"))));
    QVERIFY(QDir().mkdir(path(QStringLiteral(".git"))));
    QCOMPARE(fileNames(list(m_dir->path())),
             (QStringList{QStringLiteral("."), QStringLiteral("..")}));
}

void tst_NetworkDirRequestLocal::acceptsAnyFormOfTheDirectory_data()
{
    QTest::addColumn<QString>("form");
    QTest::newRow("bare path") << QStringLiteral("%1");
    QTest::newRow("bare path with a slash") << QStringLiteral("%1/");
    QTest::newRow("file and three slashes") << QStringLiteral("file://%1");
    QTest::newRow("file and one slash") << QStringLiteral("file:%1");
    QTest::newRow("file and four slashes") << QStringLiteral("file:///%1");
    QTest::newRow("capital scheme") << QStringLiteral("FILE://%1");
    QTest::newRow("relative path") << QStringLiteral("here");
    QTest::newRow("relative path with a dot") << QStringLiteral("./here");
    QTest::newRow("query and fragment") << QStringLiteral("file://%1?a=b#c");
}

void tst_NetworkDirRequestLocal::acceptsAnyFormOfTheDirectory()
{
    QFETCH(QString, form);
    const QString here = path(QStringLiteral("here"));
    QVERIFY(QDir().mkdir(here));
    const QString file = here + QStringLiteral("/a.deb");
    QVERIFY(writeFile(file));
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(m_dir->path()));
    const Reply reply = list(QUrl(form.contains(QLatin1Char('%')) ? form.arg(here) : form));
    QVERIFY(QDir::setCurrent(before));
    QCOMPARE(reply->entries.size(), 3);
    // Still right after the process went elsewhere.
    const QUrl url(reply->entries[2].name());
    QVERIFY(url.host().isEmpty());
    QCOMPARE(QFileInfo(url.toLocalFile()).canonicalFilePath(), QFileInfo(file).canonicalFilePath());
}

void tst_NetworkDirRequestLocal::awkwardNamesLeadBackToTheFile_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("blanks") << QStringLiteral(" a b .deb");
    QTest::newRow("percent") << QStringLiteral("100%.deb");
    QTest::newRow("percent escape") << QStringLiteral("pct%20x%2Fy%41.deb");
    QTest::newRow("fragment") << QStringLiteral("a#b.deb");
    QTest::newRow("query") << QStringLiteral("a?b=c.deb");
    QTest::newRow("colon") << QStringLiteral("tool_1:2.0-1_all.deb");
    QTest::newRow("scheme") << QStringLiteral("http:x.deb");
    QTest::newRow("umlauts") << QString::fromUtf8("Ge\xc3\xa4nderte Gr\xc3\xb6\xc3\x9f"
                                                  "e.deb");
    QTest::newRow("beyond the first plane") << QString::fromUtf8("\xf0\x9f\x93\xa6.deb");
    QTest::newRow("quotes") << QStringLiteral("it's \"so\" `x`.deb");
    QTest::newRow("leading dash") << QStringLiteral("-rf.deb");
    QTest::newRow("backslash") << QStringLiteral("a\\b.deb");
    QTest::newRow("brackets") << QStringLiteral("a[1]{2}(3)<4>.deb");
    QTest::newRow("shell") << QStringLiteral("a;b&c|d$e*f~g^h.deb");
    QTest::newRow("at, plus, comma, equals") << QStringLiteral("a@b+c,d=e!.deb");
    QTest::newRow("line feed and tab") << QStringLiteral("a\nb\tc.deb");
    QTest::newRow("no-break space") << QString::fromUtf8("a\xc2\xa0"
                                                         "b.deb");
}

void tst_NetworkDirRequestLocal::awkwardNamesLeadBackToTheFile()
{
    QFETCH(QString, name);
    QVERIFY(writeFile(path(name)));
    const Reply reply = list(m_dir->path());
    QCOMPARE(reply->entries.size(), 3);
    const QUrl url(reply->entries[2].name());
    QVERIFY(url.isValid());
    QCOMPARE(url.scheme(), QStringLiteral("file"));
    QCOMPARE(url.toLocalFile(), path(name));
    QVERIFY(QFile::exists(url.toLocalFile()));

    // The same holds for a directory of that name.
    const QString below = path(QStringLiteral("d") + name);
    QVERIFY(QDir().mkdir(below));
    QVERIFY(writeFile(below + QStringLiteral("/x.deb")));
    const Reply inner = list(QUrl(QUrl::fromLocalFile(below).toString()));
    QCOMPARE(inner->entries.size(), 3);
    QCOMPARE(QUrl(inner->entries[2].name()).toLocalFile(), below + QStringLiteral("/x.deb"));
}

void tst_NetworkDirRequestLocal::undecodableNameHurtsNoOther()
{
    // Latin-1 where UTF-8 is expected: Qt has no text for it and may leave it out.
    const QByteArray broken = QFile::encodeName(m_dir->path()) + "/na\xefve.deb";
    FILE *file = std::fopen(broken.constData(), "w");
    QVERIFY(file);
    std::fclose(file);
    QVERIFY(writeFile(path(QStringLiteral("z.deb"))));
    const Reply reply = list(m_dir->path());
    QCOMPARE(reply->error(), QNetworkReply::NoError);
    QCOMPARE(QUrl(reply->entries.last().name()).toLocalFile(), path(QStringLiteral("z.deb")));
}

void tst_NetworkDirRequestLocal::specialFilesDoNotBlock()
{
    QCOMPARE(mkfifo(QFile::encodeName(path(QStringLiteral("pipe.xml"))).constData(), 0600), 0);
    QVERIFY(QFile::link(path(QStringLiteral("nowhere")), path(QStringLiteral("dangling.deb"))));
    QVERIFY(QFile::link(path(QStringLiteral("loop.deb")), path(QStringLiteral("loop.deb"))));
    QVERIFY(writeFile(path(QStringLiteral("z.deb"))));
    QCOMPARE(fileNames(list(m_dir->path())).join(QLatin1Char(' ')), QStringLiteral(". .. z.deb"));
}

void tst_NetworkDirRequestLocal::readsThousandsQuickly()
{
    constexpr int some = 700;
    for (const int count : {some, 4 * some}) {
        QVERIFY(QDir(m_dir->path()).mkdir(QString::number(count)));
        for (int i = 0; i < count; ++i) {
            QVERIFY(writeFile(path(QStringLiteral("%1/package-%2.deb").arg(count).arg(i)), {}));
        }
    }
    QVERIFY(CpuCost::isLinear(
        [this](int count) {
            const Reply reply = list(path(QString::number(count)));
            QCOMPARE(reply->entries.size(), count + 2);
        },
        some));
}

QTEST_GUILESS_MAIN(tst_NetworkDirRequestLocal)
#include "tst_NetworkDirRequestLocal.moc"

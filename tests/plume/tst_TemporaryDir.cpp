// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/support/OrdinaryUser.h"

#include <plume/TemporaryDir.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <climits>
#include <fcntl.h>
#include <memory>
#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

QByteArray local8(const QString &path)
{
    return QFile::encodeName(path);
}

bool write(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write("text") == 4;
}

/// Makes a chain of directories below the current one and returns to where it was.
bool makeChain(int depth)
{
    const int start = ::open(".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    bool good = start >= 0;
    for (int i = 0; good && i < depth; ++i) {
        const int file = ::open("file", O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
        good = file >= 0 && ::close(file) == 0 && ::mkdir("directory", 0700) == 0
            && ::chdir("directory") == 0;
    }
    good = ::fchdir(start) == 0 && good;
    ::close(start);
    return good;
}

} // namespace

class tst_TemporaryDir : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void isPrivate();
    void isUnique();
    void followsTmpdir();
    void relativeTmpdir();
    void cannotBeMade();
    void entersTheDirectory();
    void entersItselfAndNoOther();
    void currentDirectoryStaysValid_data();
    void currentDirectoryStaysValid();
    void currentDirectoryElsewhereStays();

    void removesItsContents();
    void leavesWhatLinksPointTo();
    void removesNamesOfAnyKind();
    void removesWhatCannotBeWaitedFor();
    void removesDeepTrees();
    void removesDeepTreesWithFewDescriptors();
    void removesWideTrees();
    void removesNamesThatItUsesItself();
    void readOnlyDirectoriesOfAnOrdinaryUser();
    void leavesWhatIsMountedInside();
    void alreadyRemoved();

private:
    QTemporaryDir m_outside;
    QString m_start;
};

void tst_TemporaryDir::init()
{
    m_start = QDir::currentPath();
    QVERIFY(write(m_outside.filePath(QStringLiteral("precious"))));
}

void tst_TemporaryDir::cleanup()
{
    QVERIFY(QDir::setCurrent(m_start));
    QVERIFY(QFile::exists(m_outside.filePath(QStringLiteral("precious"))));
}

void tst_TemporaryDir::isPrivate()
{
    const mode_t oldMask = ::umask(0);
    const TemporaryDir dir;
    ::umask(oldMask);
    QVERIFY(dir.isValid());
    QVERIFY(QDir::isAbsolutePath(dir.path()));
    struct stat info = {};
    QCOMPARE(::lstat(local8(dir.path()).constData(), &info), 0);
    QVERIFY(S_ISDIR(info.st_mode));
    QCOMPARE(static_cast<int>(info.st_mode & 07777), 0700);
    QCOMPARE(info.st_uid, ::geteuid());
}

void tst_TemporaryDir::isUnique()
{
    const TemporaryDir first;
    const TemporaryDir second;
    QVERIFY(first.path() != second.path());
}

void tst_TemporaryDir::followsTmpdir()
{
    const TemporaryDir dir;
    QCOMPARE(QFileInfo(dir.path()).path(), QDir::tempPath());
}

void tst_TemporaryDir::relativeTmpdir()
{
    const QByteArray previous = qgetenv("TMPDIR");
    QVERIFY(QDir::setCurrent(m_outside.path()));
    qputenv("TMPDIR", ".");
    {
        const TemporaryDir dir;
        qputenv("TMPDIR", previous);
        QCOMPARE(QFileInfo(dir.path()).path(), QDir::currentPath());
    }
    QCOMPARE(QDir(m_outside.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(), 1);
}

void tst_TemporaryDir::cannotBeMade()
{
    const QByteArray previous = qgetenv("TMPDIR");
    qputenv("TMPDIR", "/nowhere/at/all");
    const TemporaryDir dir;
    qputenv("TMPDIR", previous);
    QVERIFY(!dir.isValid());
    QCOMPARE(dir.path(), QString());
    QVERIFY(!dir.cdTo());
    QCOMPARE(QDir::currentPath(), m_start);
}

void tst_TemporaryDir::entersTheDirectory()
{
    const TemporaryDir dir;
    QVERIFY(dir.cdTo());
    QCOMPARE(QDir::currentPath(), QFileInfo(dir.path()).canonicalFilePath());
    QVERIFY(write(QStringLiteral("relative")));
    QVERIFY(QFile::exists(dir.path() + QStringLiteral("/relative")));
}

void tst_TemporaryDir::entersItselfAndNoOther()
{
    const TemporaryDir dir;
    QVERIFY(QDir().rename(dir.path(), dir.path() + QStringLiteral(".moved")));
    QVERIFY(QFile::link(m_outside.path(), dir.path()));
    QVERIFY(dir.cdTo());
    QCOMPARE(QDir::currentPath(),
             QFileInfo(dir.path() + QStringLiteral(".moved")).canonicalFilePath());
    QVERIFY(QFile::remove(dir.path()));
    QVERIFY(QDir().rename(dir.path() + QStringLiteral(".moved"), dir.path()));
}

void tst_TemporaryDir::currentDirectoryStaysValid_data()
{
    QTest::addColumn<QString>("where");
    QTest::newRow("in it") << QStringLiteral(".");
    QTest::newRow("in a subdirectory") << QStringLiteral("a/b");
}

void tst_TemporaryDir::currentDirectoryStaysValid()
{
    QFETCH(QString, where);
    {
        const TemporaryDir dir;
        QVERIFY(dir.cdTo());
        QVERIFY(QDir().mkpath(where));
        QVERIFY(QDir::setCurrent(where));
    }
    char current[PATH_MAX];
    QVERIFY(::getcwd(current, sizeof current));
    QCOMPARE(QByteArray(current), QByteArray("/"));
}

void tst_TemporaryDir::currentDirectoryElsewhereStays()
{
    {
        const TemporaryDir dir;
        QVERIFY(dir.cdTo());
        QVERIFY(QDir::setCurrent(m_outside.path()));
    }
    QCOMPARE(QDir::currentPath(), QFileInfo(m_outside.path()).canonicalFilePath());
}

void tst_TemporaryDir::removesItsContents()
{
    QString path;
    {
        const TemporaryDir dir;
        path = dir.path();
        QVERIFY(QDir(path).mkpath(QStringLiteral("a/b/c")));
        QVERIFY(QDir(path).mkpath(QStringLiteral("a/d")));
        for (const char *name : {"file", ".hidden", "a/file", "a/b/c/file", "a/b/c/.hidden"}) {
            QVERIFY(write(path + QLatin1Char('/') + QString::fromLatin1(name)));
        }
    }
    QVERIFY(!QFileInfo::exists(path));
}

void tst_TemporaryDir::leavesWhatLinksPointTo()
{
    QString path;
    {
        const TemporaryDir dir;
        path = dir.path();
        const QString file = m_outside.filePath(QStringLiteral("precious"));
        QVERIFY(QDir(path).mkpath(QStringLiteral("a/b")));
        QVERIFY(QFile::link(m_outside.path(), path + QStringLiteral("/link")));
        QVERIFY(QFile::link(m_outside.path(), path + QStringLiteral("/a/b/link")));
        QVERIFY(QFile::link(file, path + QStringLiteral("/a/filelink")));
        QVERIFY(QFile::link(QStringLiteral("/"), path + QStringLiteral("/a/root")));
        QVERIFY(QFile::link(QStringLiteral("../.."), path + QStringLiteral("/a/b/up")));
        QVERIFY(QFile::link(QStringLiteral("loop"), path + QStringLiteral("/loop")));
        QCOMPARE(
            ::link(local8(file).constData(), local8(path + QStringLiteral("/a/hard")).constData()),
            0);
    }
    QVERIFY(!QFileInfo::exists(path));
    QVERIFY(QFile::exists(m_outside.filePath(QStringLiteral("precious"))));
}

void tst_TemporaryDir::removesNamesOfAnyKind()
{
    QString path;
    {
        const TemporaryDir dir;
        path = dir.path();
        QVERIFY(dir.cdTo());
        const QList<QByteArray> names{"...",      "-rf", " ", "a\nb",
                                      "\xff\xfe", "*",   "~", QByteArray(255, 'n')};
        for (const QByteArray &name : names) {
            QCOMPARE(::mkdir(name.constData(), 0700), 0);
            const QByteArray inner = name + '/' + name;
            const int fd = ::open(inner.constData(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
            QVERIFY(fd >= 0);
            ::close(fd);
        }
        QVERIFY(QDir::setCurrent(m_start));
    }
    QVERIFY(!QFileInfo::exists(path));
}

void tst_TemporaryDir::removesWhatCannotBeWaitedFor()
{
    QString path;
    {
        const TemporaryDir dir;
        path = dir.path();
        QCOMPARE(::mkfifo(local8(path + QStringLiteral("/fifo")).constData(), 0600), 0);
        QCOMPARE(::mknod(local8(path + QStringLiteral("/socket")).constData(), S_IFSOCK | 0600, 0),
                 0);
    }
    QVERIFY(!QFileInfo::exists(path));
}

void tst_TemporaryDir::removesDeepTrees()
{
    // Far beyond the longest path that a system call takes.
    QString path;
    {
        const TemporaryDir dir;
        path = dir.path();
        QVERIFY(dir.cdTo());
        QVERIFY(makeChain(1000));
        QVERIFY(QDir::setCurrent(m_start));
    }
    QVERIFY(!QFileInfo::exists(path));
}

void tst_TemporaryDir::removesDeepTreesWithFewDescriptors()
{
    QString path;
    rlimit limit = {};
    QCOMPARE(::getrlimit(RLIMIT_NOFILE, &limit), 0);
    {
        const TemporaryDir dir;
        path = dir.path();
        QVERIFY(dir.cdTo());
        QVERIFY(makeChain(100));
        QVERIFY(QDir::setCurrent(m_start));
        const int next = ::dup(0);
        ::close(next);
        const rlimit few = {static_cast<rlim_t>(next + 3), limit.rlim_max};
        QCOMPARE(::setrlimit(RLIMIT_NOFILE, &few), 0);
    }
    QCOMPARE(::setrlimit(RLIMIT_NOFILE, &limit), 0);
    QVERIFY(!QFileInfo::exists(path));
}

void tst_TemporaryDir::removesWideTrees()
{
    QString path;
    {
        const TemporaryDir dir;
        path = dir.path();
        for (int i = 0; i < 500; ++i) {
            QVERIFY(QDir(path).mkpath(QStringLiteral("%1/a/b").arg(i % 100) + QString::number(i)));
        }
    }
    QVERIFY(!QFileInfo::exists(path));
}

void tst_TemporaryDir::removesNamesThatItUsesItself()
{
    QString path;
    {
        const TemporaryDir dir;
        path = dir.path();
        for (int i = 0; i < 40; ++i) {
            const QString name = path + QLatin1Char('/') + QString::number(i);
            QVERIFY(i % 4 == 0
                        ? write(name)
                        : QDir().mkpath(name + (i % 4 == 1 ? QStringLiteral("/0/1") : QString())));
        }
    }
    QVERIFY(!QFileInfo::exists(path));
}

void tst_TemporaryDir::readOnlyDirectoriesOfAnOrdinaryUser()
{
    const QString result = OrdinaryUser::run(QStringLiteral("/"), [] {
        qputenv("TMPDIR", "/tmp");
        QString path;
        {
            const TemporaryDir dir;
            path = dir.path();
            if (!dir.cdTo() || !QDir(path).mkpath(QStringLiteral("a/b/c"))
                || !QDir(path).mkpath(QStringLiteral("d"))
                || !write(path + QStringLiteral("/a/b/c/file"))
                || !write(path + QStringLiteral("/a/file"))) {
                return QStringLiteral("cannot be set up");
            }
            ::chmod("a/b/c", 0);
            ::chmod("a/b", 0555);
            ::chmod("a", 0500);
            ::chmod("d", 0);
            ::chmod(".", 0500);
        }
        return QFileInfo::exists(path) ? path : QString();
    });
    QCOMPARE(result, QString());
}

void tst_TemporaryDir::leavesWhatIsMountedInside()
{
    if (::geteuid() != 0 || ::unshare(CLONE_NEWNS) != 0
        || ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0) {
        QSKIP("needs the right to mount");
    }
    QString path;
    {
        const TemporaryDir dir;
        path = dir.path();
        const QString mountPoint = path + QStringLiteral("/a/mounted");
        QVERIFY(QDir().mkpath(mountPoint));
        QVERIFY(write(path + QStringLiteral("/a/file")));
        QCOMPARE(::mount(local8(m_outside.path()).constData(), local8(mountPoint).constData(),
                         nullptr, MS_BIND, nullptr),
                 0);
    }
    QVERIFY(QFile::exists(m_outside.filePath(QStringLiteral("precious"))));
    // All else is gone; what remains leads to the mount point.
    const QStringList left = QDir(path).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    QCOMPARE(left.size(), 1);
    const QString holder = path + QLatin1Char('/') + left.constFirst();
    QCOMPARE(QDir(holder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
             QStringList{QStringLiteral("mounted")});
    QCOMPARE(::umount2(local8(holder + QStringLiteral("/mounted")).constData(), MNT_DETACH), 0);
    QVERIFY(QDir(path).removeRecursively());
}

void tst_TemporaryDir::alreadyRemoved()
{
    const TemporaryDir dir;
    QVERIFY(QDir().rmdir(dir.path()));
}

QTEST_APPLESS_MAIN(tst_TemporaryDir)
#include "tst_TemporaryDir.moc"

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/RVLogger.h"
#include "tests/support/LogFile.h"
#include "tests/support/OrdinaryUser.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QLocale>
#include <QTest>

#include <csignal>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

const QByteArray separator(54, '-');

/// The log file's lines; each ends in a line feed.
QList<QByteArray> linesOf(const LogFile &log)
{
    QList<QByteArray> lines = log.raw().split('\n');
    if (!lines.takeLast().isEmpty()) {
        qFatal("the last line has no end");
    }
    return lines;
}

QByteArray local8(const QString &path)
{
    return QFile::encodeName(path);
}

} // namespace

class tst_RVLogger : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void oneLine_data();
    void oneLine();
    void oneLineOfAUrl();
    void headerAtTheFirstEntry();
    void headerAfterClose();
    void constructionOpens();
    void closeTwice();
    void openLeavesTheStreamToTheCaller();
    void appends();
    void entryHasATimeStamp();
    void continuationLines();
    void levels_data();
    void levels();
    void levelSixWithoutALevel_data();
    void levelSixWithoutALevel();
    void filteredEntryOpensNothing();
    void texts_data();
    void texts();
    void formats();
    void everyEntryIsFlushed();
    void modeAndDescriptorFlags();

    void refusedPlace_data();
    void refusedPlace();
    void plantedLinkIsTold_data();
    void plantedLinkIsTold();
    void administratorsLink();
    void fifoWithAReader();
    void fileOfAnother();
    void unwritableDirectory();
    void unwritableFile();
    void writableAgain();
    void fullDisk();

    void placeFollowsTheUser();
    void setPathsMovesTheLog();
    void setPathsToTheSamePlace();

private:
    std::unique_ptr<LogFile> m_log;
};

void tst_RVLogger::init()
{
    m_log = std::make_unique<LogFile>();
    QCOMPARE(RVLogger::m_level, 7);
    QVERIFY(!RVLogger::m_stream);
}

void tst_RVLogger::cleanup()
{
    RVLogger::m_level = 7;
    m_log.reset();
}

void tst_RVLogger::oneLine_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("expected");

    QTest::newRow("plain") << QStringLiteral("tool 1.0") << QByteArray("tool 1.0");
    QTest::newRow("beyond ASCII") << QString::fromUtf8("gr\xc3\xbcn \xf0\x9f\x98\x80")
                                  << QByteArray("gr\xc3\xbcn \xf0\x9f\x98\x80");
    QTest::newRow("line feed") << QStringLiteral("a\nb\r") << QByteArray("a?b?");
    QTest::newRow("escape sequence") << QStringLiteral("\x1b[2J") << QByteArray("?[2J");
    QTest::newRow("C1 control") << QString(QChar(0x9b)) << QByteArray("?");
    QTest::newRow("line separator") << QString(QChar(0x2028)) << QByteArray("?");
    QTest::newRow("NUL") << QString(QChar(0)) << QByteArray("?");
    QTest::newRow("right-to-left override") << QString(QChar(0x202e)) << QByteArray("?");
    const uint tag = 0xe0041;
    QTest::newRow("format character beyond the base plane")
        << QString::fromUcs4(&tag, 1) << QByteArray("?");
    QTest::newRow("half a character") << QString(QChar(0xd800)) << QByteArray("\xef\xbf\xbd");
    const QString longest(RVLogger::longestText, QLatin1Char('a'));
    QTest::newRow("as long as can be") << longest << longest.toUtf8();
    QTest::newRow("longer") << longest + QLatin1Char('b')
                            << longest.toUtf8().chopped(1) + "\xe2\x80\xa6";
}

void tst_RVLogger::oneLine()
{
    QFETCH(QString, text);
    QFETCH(QByteArray, expected);
    QCOMPARE(RVLogger::oneLine(text), expected);
}

void tst_RVLogger::oneLineOfAUrl()
{
    const QUrl url(QStringLiteral("http://me:secret@h/a%20b/%E2%80%AE%C2%9B%E2%80%A8#.deb"));
    QCOMPARE(RVLogger::oneLine(url), QByteArray("http://me@h/a b/???#.deb"));
}

void tst_RVLogger::headerAtTheFirstEntry()
{
    RVLogger().log(3, "first");
    RVLogger().log(3, "second");
    const QList<QByteArray> lines = linesOf(*m_log);
    QCOMPARE(lines.size(), 4);
    QCOMPARE(lines.at(0), separator);
    // "%c": the locale's full date and time; in C it is 24 characters and ends in the year.
    const QDateTime date = QLocale::c().toDateTime(QString::fromLatin1(lines.at(1)).simplified(),
                                                   QStringLiteral("ddd MMM d HH:mm:ss yyyy"));
    QVERIFY2(date.isValid(), lines.at(1).constData());
    QVERIFY(qAbs(date.secsTo(QDateTime::currentDateTime())) < 30);
    QVERIFY(lines.at(2).endsWith(": first"));
    QVERIFY(lines.at(3).endsWith(": second"));
}

void tst_RVLogger::headerAfterClose()
{
    RVLogger logger;
    logger.log(3, "first");
    RVLogger::close();
    QVERIFY(!RVLogger::m_stream);
    logger.log(3, "second");
    const QList<QByteArray> lines = linesOf(*m_log);
    QCOMPARE(lines.size(), 6);
    QCOMPARE(lines.at(3), separator);
    QVERIFY(lines.at(5).endsWith(": second"));
}

void tst_RVLogger::constructionOpens()
{
    QVERIFY(!QFile::exists(m_log->path()));
    {
        const RVLogger logger;
        QVERIFY(RVLogger::m_stream);
    }
    QVERIFY(RVLogger::m_stream);
    const RVLogger another;
    RVLogger::close();
    QCOMPARE(linesOf(*m_log).size(), 2);
}

void tst_RVLogger::closeTwice()
{
    RVLogger::close();
    RVLogger::close();
    QVERIFY(!QFile::exists(m_log->path()));
}

void tst_RVLogger::openLeavesTheStreamToTheCaller()
{
    std::FILE *stream = RVLogger::open();
    QVERIFY(stream);
    QVERIFY(!RVLogger::m_stream);
    RVLogger::m_stream = stream;
    RVLogger().log(3, "text");
    QCOMPARE(m_log->raw().count(separator), 1);
}

void tst_RVLogger::appends()
{
    QFile file(m_log->path());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("from an earlier run\n");
    file.close();
    RVLogger().log(3, "text");
    const QList<QByteArray> lines = linesOf(*m_log);
    QCOMPARE(lines.size(), 4);
    QCOMPARE(lines.at(0), QByteArray("from an earlier run"));
    QCOMPARE(lines.at(1), separator);
}

void tst_RVLogger::entryHasATimeStamp()
{
    const QDateTime before = QDateTime::currentDateTime().addSecs(-1);
    RVLogger().log(3, "text");
    const QString line = QString::fromLatin1(linesOf(*m_log).constLast());
    QCOMPARE(line.mid(13), QStringLiteral(": text"));
    const QDateTime time = QDateTime::fromString(QStringLiteral("20") + line.left(13),
                                                 QStringLiteral("yyyyMMdd:HHmmss"));
    QVERIFY2(time >= before && time <= QDateTime::currentDateTime(), qPrintable(line));
}

void tst_RVLogger::continuationLines()
{
    RVLogger().log(0, "Abort: Cannot find repository definition directory\n%s", "/nowhere");
    const QList<QByteArray> lines = linesOf(*m_log);
    QCOMPARE(lines.size(), 4);
    QCOMPARE(lines.at(2).mid(13),
             QByteArray(": Abort: Cannot find repository definition directory"));
    QCOMPARE(lines.at(3), QByteArray("/nowhere"));
}

void tst_RVLogger::levels_data()
{
    QTest::addColumn<int>("threshold");
    QTest::addColumn<int>("level");
    QTest::addColumn<bool>("written");
    QTest::newRow("fatal at the start") << 7 << 0 << true;
    QTest::newRow("7 at the start") << 7 << 7 << true;
    QTest::newRow("8 at the start") << 7 << 8 << false;
    QTest::newRow("5 in normal operation") << 6 << 5 << true;
    QTest::newRow("6 in normal operation") << 6 << 6 << true;
    QTest::newRow("7 in normal operation") << 6 << 7 << false;
    QTest::newRow("8 in normal operation") << 6 << 8 << false;
    QTest::newRow("negative level") << 6 << -1 << true;
    QTest::newRow("fatal below the threshold") << -1 << 0 << false;
}

void tst_RVLogger::levels()
{
    QFETCH(int, threshold);
    QFETCH(int, level);
    QFETCH(bool, written);
    RVLogger::m_level = threshold;
    RVLogger().log(level, "text");
    QCOMPARE(m_log->contains(QStringLiteral("text")), written);
}

void tst_RVLogger::levelSixWithoutALevel_data()
{
    QTest::addColumn<int>("threshold");
    QTest::addColumn<bool>("written");
    QTest::newRow("at the start") << 7 << true;
    QTest::newRow("in normal operation") << 6 << true;
    QTest::newRow("at 5") << 5 << false;
}

void tst_RVLogger::levelSixWithoutALevel()
{
    QFETCH(int, threshold);
    QFETCH(bool, written);
    RVLogger::m_level = threshold;
    RVLogger().log("%s has no level", "text");
    QCOMPARE(m_log->contains(QStringLiteral("text has no level")), written);
}

void tst_RVLogger::filteredEntryOpensNothing()
{
    RVLogger logger;
    RVLogger::close();
    logger.log(8, "text");
    QVERIFY(!RVLogger::m_stream);
}

void tst_RVLogger::texts_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("accents") << QByteArray("gr\xc3\xb6\xc3\x9f"
                                           "er");
    QTest::newRow("beyond the basic plane") << QByteArray("\xf0\x9f\x90\xa7");
    QTest::newRow("not UTF-8") << QByteArray("\xff\xfe\xc3");
    QTest::newRow("per cent signs") << QByteArray("100% %s %n %d");
    QTest::newRow("longer than any buffer") << QByteArray(1 << 20, 'x');
}

void tst_RVLogger::texts()
{
    QFETCH(QByteArray, text);
    RVLogger().log(3, "[%s]", text.constData());
    QCOMPARE(linesOf(*m_log).constLast().mid(13), ": [" + text + ']');
}

void tst_RVLogger::formats()
{
    RVLogger().log(3, "  %s, line %d, col %d", "file.xml", 3, -1);
    RVLogger().log(3,
                   "gr\xc3\xb6\xc3\x9f"
                   "er %.3s|%5d|%x|%%",
                   "\xc3\xb6\xc3\x9f", 42, 255U);
    const QList<QByteArray> lines = linesOf(*m_log);
    QCOMPARE(lines.at(2).mid(13), QByteArray(":   file.xml, line 3, col -1"));
    QCOMPARE(lines.at(3).mid(13),
             QByteArray(": gr\xc3\xb6\xc3\x9f"
                        "er \xc3\xb6\xc3|   42|ff|%"));
}

void tst_RVLogger::everyEntryIsFlushed()
{
    // A process that dies without any clean-up leaves a complete file.
    const pid_t child = ::fork();
    if (child == 0) {
        RVLogger().log(3, "last words");
        ::kill(::getpid(), SIGKILL);
    }
    QCOMPARE(::waitpid(child, nullptr, 0), child);
    QCOMPARE(m_log->lines(), QStringList{QStringLiteral("last words")});
}

void tst_RVLogger::modeAndDescriptorFlags()
{
    const mode_t oldMask = ::umask(0);
    RVLogger().log(3, "text");
    ::umask(oldMask);
    struct stat info = {};
    QCOMPARE(::fstat(::fileno(RVLogger::m_stream), &info), 0);
    QCOMPARE(static_cast<int>(info.st_mode & 07777), 0600);
    QVERIFY(::fcntl(::fileno(RVLogger::m_stream), F_GETFD) & FD_CLOEXEC);
    QVERIFY(::fcntl(::fileno(RVLogger::m_stream), F_GETFL) & O_APPEND);
}

void tst_RVLogger::refusedPlace_data()
{
    QTest::addColumn<QString>("what");
    for (const char *what :
         {"symbolic link", "dangling symbolic link", "hard link", "fifo", "directory", "socket"}) {
        QTest::newRow(what) << QString::fromLatin1(what);
    }
}

void tst_RVLogger::refusedPlace()
{
    QFETCH(QString, what);
    const QByteArray place = local8(m_log->path());
    const QString victim = m_log->path() + QStringLiteral(".victim");
    // As /tmp is: anyone may have planted it.
    const QByteArray folder = local8(QFileInfo(victim).path());
    QCOMPARE(::chmod(folder.constData(), 01777), 0);
    QFile file(victim);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("precious");
    file.close();
    if (what == QLatin1String("symbolic link")) {
        QCOMPARE(::symlink(local8(victim).constData(), place.constData()), 0);
    } else if (what == QLatin1String("dangling symbolic link")) {
        QFile::remove(victim);
        QCOMPARE(::symlink(local8(victim).constData(), place.constData()), 0);
    } else if (what == QLatin1String("hard link")) {
        QCOMPARE(::link(local8(victim).constData(), place.constData()), 0);
    } else if (what == QLatin1String("fifo")) {
        QCOMPARE(::mkfifo(place.constData(), 0600), 0);
    } else if (what == QLatin1String("socket")) {
        QCOMPARE(::mknod(place.constData(), S_IFSOCK | 0600, 0), 0);
    } else {
        QVERIFY(QDir().mkdir(m_log->path()));
    }

    RVLogger logger;
    QVERIFY(!RVLogger::m_stream);
    logger.log(3, "text");
    logger.log("text");
    RVLogger::close();
    if (what == QLatin1String("dangling symbolic link")) {
        QVERIFY(!QFile::exists(victim));
    } else {
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), QByteArray("precious"));
    }
}

void tst_RVLogger::plantedLinkIsTold_data()
{
    QTest::addColumn<bool>("symbolic");
    QTest::newRow("symbolic link") << true;
    QTest::newRow("hard link") << false;
}

void tst_RVLogger::plantedLinkIsTold()
{
    QFETCH(bool, symbolic);
    const QString victim = m_log->path() + QStringLiteral(".victim");
    QFile file(victim);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(::chmod(local8(QFileInfo(victim).path()).constData(), 01777), 0);
    const QByteArray place = local8(m_log->path());
    QCOMPARE((symbolic ? ::symlink : ::link)(local8(victim).constData(), place.constData()), 0);

    const int standardError = ::dup(STDERR_FILENO);
    FILE *told = ::tmpfile();
    QVERIFY(told);
    ::dup2(::fileno(told), STDERR_FILENO);
    for (int i = 0; i < 3; ++i) {
        RVLogger().log(3, "text");
    }
    ::fflush(stderr);
    ::dup2(standardError, STDERR_FILENO);
    ::close(standardError);
    ::rewind(told);
    char text[4096] = {};
    ::fread(text, 1, sizeof text - 1, told);
    ::fclose(told);
    QCOMPARE(QByteArray(text), "Nothing is logged: " + place + " is a link.\n");
}

void tst_RVLogger::administratorsLink()
{
    if (::geteuid() != 0) {
        QSKIP("only root's links are followed");
    }
    const QString elsewhere = m_log->path() + QStringLiteral(".elsewhere");
    QVERIFY(QDir().mkdir(elsewhere));
    for (QDir folder(elsewhere);; folder.setPath(QFileInfo(folder.path()).path())) {
        struct stat info = {};
        QCOMPARE(::lstat(local8(folder.path()).constData(), &info), 0);
        if (info.st_uid != 0 || (info.st_mode & 022) != 0) {
            QSKIP("others may write somewhere above the folder of the tests");
        }
        if (folder.isRoot()) {
            break;
        }
    }
    const QString target = elsewhere + QStringLiteral("/Ravel.log");
    QCOMPARE(::symlink(local8(target).constData(), local8(m_log->path()).constData()), 0);
    RVLogger().log(3, "first");
    RVLogger::close();
    QFile file(target);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll().endsWith(": first\n"));

    // From here on somebody else may put another file there.
    QCOMPARE(::chmod(local8(elsewhere).constData(), 0777), 0);
    RVLogger().log(3, "second");
    QVERIFY(!RVLogger::m_stream);
}

void tst_RVLogger::fifoWithAReader()
{
    const QByteArray place = local8(m_log->path());
    QCOMPARE(::mkfifo(place.constData(), 0600), 0);
    const int reader = ::open(place.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    QVERIFY(reader >= 0);
    RVLogger().log(3, "text");
    QVERIFY(!RVLogger::m_stream);
    char byte = 0;
    QCOMPARE(::read(reader, &byte, 1), ssize_t(0));
    ::close(reader);
}

void tst_RVLogger::fileOfAnother()
{
    if (::geteuid() != 0) {
        QSKIP("only root can give a file away");
    }
    QFile file(m_log->path());
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(::fchown(file.handle(), OrdinaryUser::id, OrdinaryUser::id), 0);
    RVLogger().log(3, "text");
    QVERIFY(!RVLogger::m_stream);
    QCOMPARE(file.size(), qint64(0));
}

void tst_RVLogger::unwritableDirectory()
{
    const QString dir = QFileInfo(m_log->path()).path();
    QCOMPARE(::chmod(local8(dir).constData(), 0555), 0);
    const QString result = OrdinaryUser::run(dir, [] {
        RVPaths paths;
        paths.userLog = QStringLiteral("Ravel.log");
        RVLogger::setPaths(paths);
        RVLogger().log(3, "text");
        return RVLogger::m_stream ? QStringLiteral("open") : QString();
    });
    QCOMPARE(::chmod(local8(dir).constData(), 0755), 0);
    QCOMPARE(result, QString());
    QVERIFY(!QFile::exists(m_log->path()));
}

void tst_RVLogger::unwritableFile()
{
    QFile file(m_log->path());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.setPermissions(QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther);
    const QString dir = QFileInfo(m_log->path()).path();
    QCOMPARE(::chmod(local8(dir).constData(), 0777), 0);
    const QString result = OrdinaryUser::run(dir, [] {
        RVPaths paths;
        paths.userLog = QStringLiteral("Ravel.log");
        RVLogger::setPaths(paths);
        RVLogger().log(3, "text");
        return RVLogger::m_stream ? QStringLiteral("open") : QString();
    });
    QCOMPARE(result, QString());
    QCOMPARE(file.size(), qint64(0));
}

void tst_RVLogger::writableAgain()
{
    // Each later entry tries again.
    QVERIFY(QDir().mkdir(m_log->path()));
    RVLogger logger;
    logger.log(3, "lost");
    QVERIFY(QDir().rmdir(m_log->path()));
    logger.log(3, "written");
    QCOMPARE(m_log->lines(), QStringList{QStringLiteral("written")});
}

void tst_RVLogger::fullDisk()
{
    const QString dir = QFileInfo(m_log->path()).path();
    QCOMPARE(::chmod(local8(dir).constData(), 0777), 0);
    const QString result = OrdinaryUser::run(dir, [] {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit = {100, 100};
        if (::setrlimit(RLIMIT_FSIZE, &limit) != 0) {
            return QStringLiteral("no limit");
        }
        RVPaths paths;
        paths.userLog = QStringLiteral("Ravel.log");
        RVLogger::setPaths(paths);
        for (int i = 0; i < 10000; ++i) {
            RVLogger().log(3, "entry %d of a log that cannot grow", i);
        }
        RVLogger::close();
        return QString();
    });
    QCOMPARE(result, QString());
    QCOMPARE(QFileInfo(m_log->path()).size(), qint64(100));
}

void tst_RVLogger::placeFollowsTheUser()
{
    QCOMPARE(RVPaths().rootLog, QStringLiteral("/var/log/Ravel.log"));
    QCOMPARE(RVPaths().userLog, QStringLiteral("/tmp/Ravel.log"));

    const QString dir = QFileInfo(m_log->path()).path();
    QCOMPARE(::chmod(local8(dir).constData(), 0777), 0);
    const auto logInDir = [] {
        RVPaths paths;
        paths.rootLog = QStringLiteral("root.log");
        paths.userLog = QStringLiteral("user.log");
        RVLogger::setPaths(paths);
        RVLogger().log(3, "text");
        RVLogger::close();
        return QString();
    };
    QCOMPARE(OrdinaryUser::run(dir, logInDir), QString());
    QVERIFY(QFile::exists(dir + QStringLiteral("/user.log")));
    QVERIFY(!QFile::exists(dir + QStringLiteral("/root.log")));
    if (::getuid() != 0) {
        QSKIP("only root writes to the log of root");
    }
    const QString previous = QDir::currentPath();
    QVERIFY(QDir::setCurrent(dir));
    logInDir();
    QVERIFY(QDir::setCurrent(previous));
    QVERIFY(QFile::exists(dir + QStringLiteral("/root.log")));
}

void tst_RVLogger::setPathsMovesTheLog()
{
    RVLogger().log(3, "here");
    RVPaths paths;
    paths.rootLog = paths.userLog = m_log->path() + QStringLiteral(".other");
    RVLogger::setPaths(paths);
    QVERIFY(!RVLogger::m_stream);
    RVLogger().log(3, "there");
    QFile other(paths.rootLog);
    QVERIFY(other.open(QIODevice::ReadOnly));
    const QByteArray contents = other.readAll();
    QVERIFY(contents.startsWith(separator));
    QVERIFY(contents.endsWith(": there\n"));
    QCOMPARE(m_log->lines(), QStringList{QStringLiteral("here")});
}

void tst_RVLogger::setPathsToTheSamePlace()
{
    RVLogger().log(3, "first");
    RVPaths paths;
    paths.rootLog = paths.userLog = m_log->path();
    RVLogger::setPaths(paths);
    RVLogger().log(3, "second");
    QCOMPARE(m_log->raw().count(separator), 1);
}

QTEST_APPLESS_MAIN(tst_RVLogger)
#include "tst_RVLogger.moc"

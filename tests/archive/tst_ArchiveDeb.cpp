// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "archive/ArchiveDeb.h"
#include "tests/support/LogFile.h"
#include "tests/support/OrdinaryUser.h"
#include "tests/support/WarningGuard.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <memory>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

const QString scriptFile = QStringLiteral("RVinstall.sh");

const char wholeScript[] = R"(#!/bin/bash
fsunlock >/dev/null 2>&1
lockstate=$?
dpkg --install --no-force-downgrade --no-debsig --force-confdef --force-confnew --force-confmiss ./*.deb
retval=$?
cd /tmp
[ $lockstate -eq 0 ] && fslock >/dev/null 2>&1
exit $retval
)";

ArchiveDeb package(const char *url)
{
    return ArchiveDeb(QUrl(QString::fromLatin1(url)));
}

QByteArray content(const QString &file)
{
    QFile in(file);
    return in.open(QIODevice::ReadOnly) ? in.readAll() : QByteArray("unreadable");
}

bool write(const QString &file, const QByteArray &bytes)
{
    QFile out(file);
    return out.open(QIODevice::WriteOnly) && out.write(bytes) == bytes.size();
}

bool writeProgram(const QString &file, const QByteArray &lines)
{
    return write(file, "#!/bin/bash\n" + lines)
        && ::chmod(QFile::encodeName(file).constData(), 0755) == 0;
}

bool extractBytes(const ArchiveDeb &archive, const QByteArray &bytes)
{
    QBuffer source;
    source.setData(bytes);
    return archive.extract(&source);
}

/// As many bytes as asked for, made up as they are read; then the end, or an error.
class EndlessSource : public QIODevice
{
    Q_OBJECT

public:
    EndlessSource(qint64 size, bool fails, bool sequential)
        : m_size(size)
        , m_fails(fails)
        , m_sequential(sequential)
    {
        open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }

    bool isSequential() const override { return m_sequential; }
    qint64 size() const override { return m_size; }
    qint64 largestRead() const { return m_largestRead; }

protected:
    qint64 readData(char *data, qint64 maxSize) override
    {
        m_largestRead = qMax(m_largestRead, maxSize);
        const qint64 length = qMin(maxSize, m_size - m_given);
        if (length == 0) {
            return m_fails || m_sequential ? -1 : 0;
        }
        std::memset(data, 'x', static_cast<size_t>(length));
        m_given += length;
        return length;
    }
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    const qint64 m_size;
    const bool m_fails;
    const bool m_sequential;
    qint64 m_given = 0;
    qint64 m_largestRead = 0;
};

/// Files of this process end at `size` bytes for as long as it lives, as on a disk that is full.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t size)
        : m_handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        ::getrlimit(RLIMIT_FSIZE, &m_previous);
        const rlimit limit{size, m_previous.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit()
    {
        ::setrlimit(RLIMIT_FSIZE, &m_previous);
        std::signal(SIGXFSZ, m_handler);
    }

private:
    Q_DISABLE_COPY_MOVE(FileSizeLimit)

    rlimit m_previous = {};
    void (*m_handler)(int);
};

} // namespace

class tst_ArchiveDeb : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void handlesUrl_data();
    void handlesUrl();
    void copiesUnderItsName_data();
    void copiesUnderItsName();
    void logsAnyNameOnOneLine();
    void logsTheCopyAsProgress();
    void copiesTwoPackages();
    void copiesBytes_data();
    void copiesBytes();
    void readsInPieces();
    void replacesAnEarlierCopy();
    void takesASourceThatIsOpen();
    void closesTheSource();
    void refusesSourceThatCannotBeRead();
    void refusesEmptySource();
    void refusesSourceThatFails();
    void refusesName_data();
    void refusesName();
    void neverFollowsALink_data();
    void neverFollowsALink();
    void refusesWhatIsNoFile();
    void leavesNothingOnAFullDisk();
    void failsInAClosedDirectory();

    void writesTheScript();
    void announcesBeforeItStarts();
    void replacesWhatIsPlantedForTheScript_data();
    void replacesWhatIsPlantedForTheScript();
    void failsVisiblyWithoutScript_data();
    void failsVisiblyWithoutScript();
    void scriptRunsDpkgOnce_data();
    void scriptRunsDpkgOnce();
    void missingShellIsAnError();
    void ignoresProxy();

private:
    QString m_previousDir;
    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<LogFile> m_log;
    std::unique_ptr<WarningGuard> m_guard;
};

void tst_ArchiveDeb::init()
{
    m_previousDir = QDir::currentPath();
    m_dir = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir::setCurrent(m_dir->path()));
    m_log = std::make_unique<LogFile>();
    m_guard = std::make_unique<WarningGuard>();
}

void tst_ArchiveDeb::cleanup()
{
    m_guard.reset();
    m_log.reset();
    QVERIFY(QDir::setCurrent(m_previousDir));
    m_dir.reset();
}

void tst_ArchiveDeb::handlesUrl_data()
{
    QTest::addColumn<QUrl>("url");
    QTest::addColumn<bool>("handled");

    QTest::newRow("package") << QUrl(QStringLiteral("http://h/pkg.deb")) << true;
    QTest::newRow("capitals") << QUrl(QStringLiteral("http://h/pkg.DEB")) << true;
    QTest::newRow("version with a colon")
        << QUrl(QStringLiteral("http://h/tool_1:2.0-1_all.deb")) << true;
    QTest::newRow("nothing but the suffix") << QUrl(QStringLiteral("http://h/.deb")) << true;
    QTest::newRow("other suffix") << QUrl(QStringLiteral("http://h/pkg.udeb")) << false;
    QTest::newRow("suffix in the query") << QUrl(QStringLiteral("http://h/pkg?a.deb")) << false;
    QTest::newRow("query behind it") << QUrl(QStringLiteral("http://h/pkg.deb?a.xar")) << true;
    QTest::newRow("no path") << QUrl(QStringLiteral("http://h.deb")) << false;
    QTest::newRow("empty") << QUrl() << false;
}

void tst_ArchiveDeb::handlesUrl()
{
    QFETCH(QUrl, url);
    QFETCH(bool, handled);
    const ArchiveDeb archive(url);
    QCOMPARE(archive.urlIsHandled(), handled);
    QVERIFY(archive.useExtract());
}

void tst_ArchiveDeb::copiesUnderItsName_data()
{
    QTest::addColumn<QString>("url");
    QTest::addColumn<QString>("name");

    QTest::newRow("plain") << QStringLiteral("http://h/dir/pkg_1.0_all.deb")
                           << QStringLiteral("pkg_1.0_all.deb");
    QTest::newRow("suffix in capitals")
        << QStringLiteral("http://h/pkg.DEB") << QStringLiteral("pkg.DEB");
    QTest::newRow("blank") << QStringLiteral("http://h/my%20pkg.deb")
                           << QStringLiteral("my pkg.deb");
    QTest::newRow("text beyond ASCII")
        << QStringLiteral("http://h/gr%C3%BCn.deb") << QString::fromUtf8("gr\xc3\xbcn.deb");
    QTest::newRow("colon and plus")
        << QStringLiteral("http://h/a_1:2+b.deb") << QStringLiteral("a_1:2+b.deb");
    QTest::newRow("looks like an option")
        << QStringLiteral("http://h/--purge.deb") << QStringLiteral("--purge.deb");
    QTest::newRow("looks like a resource")
        << QStringLiteral("http://h/:a.deb") << QStringLiteral(":a.deb");
    QTest::newRow("hidden slash") << QStringLiteral("http://h/..%2F..%2Fetc%2Fa.deb")
                                  << QStringLiteral("a.deb");
    QTest::newRow("shell text") << QStringLiteral("http://h/$(reboot);%60id%60.deb")
                                << QStringLiteral("$(reboot);`id`.deb");
    QTest::newRow("query") << QStringLiteral("http://h/pkg.deb?session=1/2")
                           << QStringLiteral("pkg.deb");
}

void tst_ArchiveDeb::copiesUnderItsName()
{
    QFETCH(QString, url);
    QFETCH(QString, name);
    const ArchiveDeb archive{QUrl(url)};
    QVERIFY(extractBytes(archive, "package"));
    QCOMPARE(QDir().entryList(QDir::Files | QDir::Hidden), QStringList(name));
    QCOMPARE(content(QLatin1String("./") + name), QByteArray("package"));
    QCOMPARE(m_log->lines(),
             QStringList(QStringLiteral("Copying .deb file %1 to local storage").arg(name)));
}

void tst_ArchiveDeb::logsAnyNameOnOneLine()
{
    QVERIFY(extractBytes(package("http://h/a%0A010101:000000:%20b.deb"), "package"));
    QCOMPARE(m_log->lines(),
             QStringList(QStringLiteral("Copying .deb file a?010101:000000: b.deb "
                                        "to local storage")));
}

void tst_ArchiveDeb::logsTheCopyAsProgress()
{
    const int level =
        m_log->levelOf(QStringLiteral("Copying .deb file pkg.deb to local storage"), [] {
            QVERIFY(extractBytes(package("http://h/pkg.deb"), "package"));
        });
    QCOMPARE(level, 5);
}

void tst_ArchiveDeb::copiesTwoPackages()
{
    QVERIFY(extractBytes(package("http://h/one.deb"), "1"));
    QVERIFY(extractBytes(package("http://h/two.deb"), "2"));
    QCOMPARE(content(QStringLiteral("one.deb")), QByteArray("1"));
    QCOMPARE(content(QStringLiteral("two.deb")), QByteArray("2"));
}

void tst_ArchiveDeb::copiesBytes_data()
{
    QTest::addColumn<int>("size");

    for (const int size : {1, 65535, 65536, 65537, 1000000}) {
        QTest::addRow("%d bytes", size) << size;
    }
}

void tst_ArchiveDeb::copiesBytes()
{
    QFETCH(int, size);
    QByteArray bytes(size, '\0');
    for (int i = 0; i < size; ++i) {
        bytes[i] = static_cast<char>(i * 31 + i / 256);
    }
    QVERIFY(extractBytes(package("http://h/pkg.deb"), bytes));
    QVERIFY(content(QStringLiteral("pkg.deb")) == bytes);
    QCOMPARE(QFileInfo(QStringLiteral("pkg.deb")).permissions() & QFile::WriteOther,
             QFile::Permissions());
}

void tst_ArchiveDeb::readsInPieces()
{
    constexpr qint64 size = 20 * 1000 * 1000;
    EndlessSource source(size, false, true);
    QVERIFY(package("http://h/pkg.deb").extract(&source));
    QCOMPARE(QFileInfo(QStringLiteral("pkg.deb")).size(), size);
    QVERIFY(source.largestRead() <= 1024 * 1024);
}

void tst_ArchiveDeb::replacesAnEarlierCopy()
{
    QVERIFY(write(QStringLiteral("pkg.deb"), "an earlier and longer copy"));
    QVERIFY(extractBytes(package("http://h/pkg.deb"), "new"));
    QCOMPARE(content(QStringLiteral("pkg.deb")), QByteArray("new"));
}

void tst_ArchiveDeb::takesASourceThatIsOpen()
{
    QBuffer source;
    source.setData("package");
    QVERIFY(source.open(QIODevice::ReadOnly));
    QVERIFY(package("http://h/pkg.deb").extract(&source));
    QCOMPARE(content(QStringLiteral("pkg.deb")), QByteArray("package"));
}

void tst_ArchiveDeb::closesTheSource()
{
    QBuffer source;
    source.setData("package");
    QVERIFY(package("http://h/pkg.deb").extract(&source));
    QVERIFY(!source.isOpen());
    // Without a file to write to, the source is left as it was opened.
    QVERIFY(QDir().mkdir(QStringLiteral("taken.deb")));
    QVERIFY(!package("http://h/taken.deb").extract(&source));
    QVERIFY(source.isOpen());
}

void tst_ArchiveDeb::refusesSourceThatCannotBeRead()
{
    QFile missing(QStringLiteral("missing"));
    QVERIFY(!package("http://h/pkg.deb").extract(&missing));
    QBuffer writeOnly;
    QVERIFY(writeOnly.open(QIODevice::WriteOnly));
    QVERIFY(!package("http://h/pkg.deb").extract(&writeOnly));
    QVERIFY(QDir().isEmpty());
    QCOMPARE(m_log->count(QStringLiteral("Copying .deb file pkg.deb to local storage")), 2);
}

void tst_ArchiveDeb::refusesEmptySource()
{
    QVERIFY(!extractBytes(package("http://h/pkg.deb"), QByteArray()));
    QVERIFY(QDir().isEmpty());
}

void tst_ArchiveDeb::refusesSourceThatFails()
{
    EndlessSource source(200 * 1000, true, false);
    QVERIFY(!package("http://h/pkg.deb").extract(&source));
    QVERIFY(QDir().isEmpty());
}

void tst_ArchiveDeb::refusesName_data()
{
    QTest::addColumn<QString>("url");

    QTest::newRow("none") << QStringLiteral("http://h/dir/");
    QTest::newRow("no path") << QStringLiteral("http://h");
    QTest::newRow("directory itself") << QStringLiteral("file:.");
    QTest::newRow("directory above") << QStringLiteral("file:..");
    QTest::newRow("hidden directory above") << QStringLiteral("http://h/a%2F..");
    QTest::newRow("zero byte") << QStringLiteral("http://h/pkg.deb%00.deb");
    QTest::newRow("longer than a name can be")
        << QStringLiteral("http://h/%1.deb").arg(QString(300, QLatin1Char('a')));
}

void tst_ArchiveDeb::refusesName()
{
    QFETCH(QString, url);
    QVERIFY(!extractBytes(ArchiveDeb{QUrl(url)}, "package"));
    QVERIFY(QDir().isEmpty());
}

void tst_ArchiveDeb::neverFollowsALink_data()
{
    QTest::addColumn<bool>("targetExists");

    QTest::newRow("to a file") << true;
    QTest::newRow("to a file to be made") << false;
}

void tst_ArchiveDeb::neverFollowsALink()
{
    QFETCH(bool, targetExists);
    const QTemporaryDir other;
    const QString target = other.filePath(QStringLiteral("target"));
    QVERIFY(!targetExists || write(target, "precious"));
    QVERIFY(QFile::link(target, QStringLiteral("pkg.deb")));
    QVERIFY(!extractBytes(package("http://h/pkg.deb"), "package"));
    QCOMPARE(QFile::exists(target), targetExists);
    QVERIFY(!targetExists || content(target) == "precious");
}

void tst_ArchiveDeb::refusesWhatIsNoFile()
{
    QVERIFY(QDir().mkdir(QStringLiteral("dir.deb")));
    QVERIFY(!extractBytes(package("http://h/dir.deb"), "package"));
    QCOMPARE(::mkfifo("pipe.deb", 0600), 0);
    QVERIFY(!extractBytes(package("http://h/pipe.deb"), "package"));
    // A reader makes the pipe writable.
    const int reader = ::open("pipe.deb", O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    QVERIFY(reader >= 0);
    QVERIFY(!extractBytes(package("http://h/pipe.deb"), "package"));
    ::close(reader);
}

void tst_ArchiveDeb::leavesNothingOnAFullDisk()
{
    const QByteArray bytes(1000 * 1000, 'x');
    bool extracted = true;
    {
        const FileSizeLimit limit(300 * 1000);
        extracted = extractBytes(package("http://h/pkg.deb"), bytes);
    }
    QVERIFY(!extracted);
    QVERIFY(QDir().isEmpty());
}

void tst_ArchiveDeb::failsInAClosedDirectory()
{
    QCOMPARE(::chmod(".", 0555), 0);
    const QString problem = OrdinaryUser::run(m_dir->path(), [] {
        return extractBytes(package("http://h/pkg.deb"), "package")
            ? QStringLiteral("copied into a directory without the right to write")
            : QString();
    });
    QCOMPARE(::chmod(".", 0755), 0);
    QCOMPARE(problem, QString());
    QVERIFY(QDir().isEmpty());
}

void tst_ArchiveDeb::writesTheScript()
{
    RVPaths paths;
    paths.shell = QStringLiteral("/bin/echo");
    ArchiveDeb archive(QUrl(QStringLiteral("http://h/pkg.deb")), nullptr, paths);
    QProcess process;
    archive.install(&process);
    QCOMPARE(process.program(), QStringLiteral("/bin/echo"));
    QCOMPARE(process.arguments(), QStringList(QStringLiteral("./RVinstall.sh")));
    QCOMPARE(process.openMode() & QIODevice::ReadWrite, QIODevice::ReadWrite);
    QVERIFY(process.waitForFinished());
    QCOMPARE(content(scriptFile), QByteArray(wholeScript));
    QCOMPARE(QFileInfo(scriptFile).permissions()
                 & (QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadGroup
                    | QFile::WriteGroup | QFile::ExeGroup | QFile::ReadOther | QFile::WriteOther
                    | QFile::ExeOther),
             QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

void tst_ArchiveDeb::announcesBeforeItStarts()
{
    RVPaths paths;
    paths.shell = QStringLiteral("/bin/true");
    ArchiveDeb archive(QUrl(QStringLiteral("http://h/pkg.deb")), nullptr, paths);
    QProcess process;
    int announced = 0;
    connect(&archive, &ArchiveBaseClass::installStarted, this, [&] {
        ++announced;
        QCOMPARE(process.state(), QProcess::NotRunning);
        QVERIFY(!QFile::exists(scriptFile));
    });
    archive.install(&process);
    QCOMPARE(announced, 1);
    QVERIFY(process.waitForFinished());
}

void tst_ArchiveDeb::replacesWhatIsPlantedForTheScript_data()
{
    QTest::addColumn<bool>("isLink");

    QTest::newRow("link to a file elsewhere") << true;
    QTest::newRow("file that all may write") << false;
}

void tst_ArchiveDeb::replacesWhatIsPlantedForTheScript()
{
    QFETCH(bool, isLink);
    const QTemporaryDir other;
    const QString target = other.filePath(QStringLiteral("target"));
    QVERIFY(write(target, "precious"));
    if (isLink) {
        QVERIFY(QFile::link(target, scriptFile));
    } else {
        QVERIFY(write(scriptFile, "planted"));
        QCOMPARE(::chmod("RVinstall.sh", 0777), 0);
    }
    RVPaths paths;
    paths.shell = QStringLiteral("/bin/true");
    ArchiveDeb archive(QUrl(QStringLiteral("http://h/pkg.deb")), nullptr, paths);
    QProcess process;
    archive.install(&process);
    QVERIFY(process.waitForFinished());
    QVERIFY(!QFileInfo(scriptFile).isSymLink());
    QCOMPARE(content(scriptFile), QByteArray(wholeScript));
    QVERIFY(!(QFileInfo(scriptFile).permissions() & QFile::WriteOther));
    QCOMPARE(content(target), QByteArray("precious"));
}

void tst_ArchiveDeb::failsVisiblyWithoutScript_data()
{
    QTest::addColumn<bool>("diskFull");

    QTest::newRow("its name is taken by a directory") << false;
    QTest::newRow("the disk is full") << true;
}

void tst_ArchiveDeb::failsVisiblyWithoutScript()
{
    QFETCH(bool, diskFull);
    QVERIFY(diskFull || QDir().mkdir(scriptFile));
    ArchiveDeb archive(QUrl(QStringLiteral("http://h/pkg.deb")));
    const QSignalSpy started(&archive, &ArchiveBaseClass::installStarted);
    QProcess process;
    std::unique_ptr<FileSizeLimit> limit;
    if (diskFull) {
        m_log->clear();
        limit = std::make_unique<FileSizeLimit>(100);
    }
    archive.install(&process);
    limit.reset();
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 1);
    const QString message = QString::fromUtf8(process.readAllStandardError());
    QVERIFY2(message.startsWith(QLatin1String("Could not write ./RVinstall.sh: ")),
             qPrintable(message));
    QCOMPARE(started.count(), 1);
    QVERIFY(diskFull || m_log->contains(message.trimmed()));
    QVERIFY(!QFileInfo(scriptFile).isFile());
}

void tst_ArchiveDeb::scriptRunsDpkgOnce_data()
{
    QTest::addColumn<int>("unlockStatus");
    QTest::addColumn<int>("dpkgStatus");
    QTest::addColumn<bool>("locks");

    QTest::newRow("unlocked and installed") << 0 << 0 << true;
    QTest::newRow("unlocked, installer fails") << 0 << 2 << true;
    QTest::newRow("was not locked") << 1 << 0 << false;
    QTest::newRow("was not locked, installer fails") << 1 << 1 << false;
}

void tst_ArchiveDeb::scriptRunsDpkgOnce()
{
    QFETCH(int, unlockStatus);
    QFETCH(int, dpkgStatus);
    QFETCH(bool, locks);

    const QTemporaryDir bin;
    const QString calls = bin.filePath(QStringLiteral("calls"));
    const QByteArray note = "{ echo \"${0##*/}\"; printf '%s\\n' \"$@\"; } >>"
        + QFile::encodeName(calls) + "\necho noise; echo noise >&2\nexit ";
    QVERIFY(writeProgram(bin.filePath(QStringLiteral("fsunlock")),
                         note + QByteArray::number(unlockStatus)));
    QVERIFY(writeProgram(bin.filePath(QStringLiteral("fslock")), note + '0'));
    QVERIFY(
        writeProgram(bin.filePath(QStringLiteral("dpkg")), note + QByteArray::number(dpkgStatus)));
    QVERIFY(extractBytes(package("http://h/one.deb"), "1"));
    QVERIFY(extractBytes(package("http://h/two%20words.deb"), "2"));
    QVERIFY(extractBytes(package("http://h/kept.DEB"), "3"));

    ArchiveDeb archive(QUrl(QStringLiteral("http://h/one.deb")));
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("PATH"), bin.path());
    process.setProcessEnvironment(environment);
    archive.install(&process);
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), dpkgStatus);
    // The lock programs are silent, dpkg is heard on both channels.
    QCOMPARE(process.readAllStandardOutput(), QByteArray("noise\n"));
    QCOMPARE(process.readAllStandardError(), QByteArray("noise\n"));
    QByteArray expected = "fsunlock\n\ndpkg\n--install\n--no-force-downgrade\n--no-debsig\n"
                          "--force-confdef\n--force-confnew\n--force-confmiss\n"
                          "./one.deb\n./two words.deb\n";
    if (locks) {
        expected += "fslock\n\n";
    }
    QCOMPARE(content(calls), expected);
    QVERIFY(QFile::exists(QStringLiteral("kept.DEB")));
}

void tst_ArchiveDeb::missingShellIsAnError()
{
    RVPaths paths;
    paths.shell = m_dir->filePath(QStringLiteral("missing"));
    ArchiveDeb archive(QUrl(QStringLiteral("http://h/pkg.deb")), nullptr, paths);
    QProcess process;
    QList<QProcess::ProcessError> errors;
    connect(&process, &QProcess::errorOccurred, this, [&](QProcess::ProcessError error) {
        errors.append(error);
    });
    archive.install(&process);
    QTRY_COMPARE(errors, QList<QProcess::ProcessError>{QProcess::FailedToStart});
}

void tst_ArchiveDeb::ignoresProxy()
{
    RVPaths paths;
    paths.shell = QStringLiteral("/bin/true");
    ArchiveDeb archive(QUrl(QStringLiteral("http://h/pkg.deb")), nullptr, paths);
    archive.setProxy(QStringLiteral("proxy"), 3128);
    QProcess process;
    archive.install(&process);
    QVERIFY(process.waitForFinished());
    QCOMPARE(content(scriptFile), QByteArray(wholeScript));
}

QTEST_GUILESS_MAIN(tst_ArchiveDeb)
#include "tst_ArchiveDeb.moc"

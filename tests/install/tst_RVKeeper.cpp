// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/RVOwnFolder.h"
#include "install/RVKeeper.h"
#include "install/RVKeptRun.h"
#include "tests/support/InChild.h"
#include "tests/support/LogFile.h"
#include "tests/support/WarningGuard.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <fcntl.h>
#include <memory>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

constexpr int limitMs = 20000;

/// A process with a keeper, as an installation has it.
class Kept : public QProcess
{
    Q_OBJECT

public:
    explicit Kept(const RVPaths &paths, const QVector<int> &held = {})
        : keeper(paths)
    {
        connect(this, &QProcess::stateChanged, this, [this, held](QProcess::ProcessState state) {
            if (state == QProcess::Starting) {
                keeper.prepare(processChannelMode() == MergedChannels, held);
            } else if (state == QProcess::Running) {
                keeper.release();
            } else {
                keeper.forget();
            }
        });
    }
    ~Kept() override { waitForFinished(limitMs); }

    void runShell(const QByteArray &script)
    {
        start(QStringLiteral("/bin/bash"), {QStringLiteral("-c"), QString::fromLocal8Bit(script)},
              QIODevice::ReadOnly);
    }

    RVKeeper keeper;

protected:
    void setupChildProcess() override { keeper.keep(); }
};

QByteArray content(const QString &file)
{
    QFile in(file);
    return in.open(QIODevice::ReadOnly) ? in.readAll() : QByteArray("unreadable");
}

bool letGo(const QString &gate)
{
    const int end = ::open(QFile::encodeName(gate).constData(), O_WRONLY | O_CLOEXEC);
    const bool isWritten = end >= 0 && ::write(end, "\n", 1) == 1;
    ::close(end);
    return isWritten;
}

} // namespace

class tst_RVKeeper : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void passesEverythingOn();
    void keepsTheOrderOfMergedChannels();
    void endsAsTheInstallerEnded_data();
    void endsAsTheInstallerEnded();
    void failsToStart();
    void hasSessionsOfItsOwn();
    void ignoresSignals_data();
    void ignoresSignals();
    void outlivesItsReader_data();
    void outlivesItsReader();
    void doesNotWaitForItsReader();
    void doesNotWaitForADaemon();
    void closesWhatItDoesNotNeed();
    void holdsLocksToTheEnd();
    void storesBeginningAndEnd_data();
    void storesBeginningAndEnd();
    void fullDisk();
    void noPlaceToWrite();
    void filesArePrivate();
    void keepsFiveOutputs();
    void tellsWhichRunsGoOn();
    void killedKeeper();
    void forgetsWhatWasShown();
    void hostileRecords();

private:
    /// Runs `script` in a program that is killed while the script waits at the gate, which then
    /// opens.
    bool orphan(const QByteArray &script, int signal = SIGKILL, bool isMerged = false);
    QStringList names(const QString &folder) const { return QDir(folder).entryList(QDir::Files); }
    bool waitForEnd() const;

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<LogFile> m_log;
    std::unique_ptr<WarningGuard> m_guard;
    RVPaths m_paths;
    QString m_gate;
};

void tst_RVKeeper::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    m_log = std::make_unique<LogFile>();
    m_guard = std::make_unique<WarningGuard>();
    m_paths = RVPaths::under(m_dir->path());
    m_gate = m_dir->filePath(QStringLiteral("gate"));
    QCOMPARE(::mkfifo(QFile::encodeName(m_gate).constData(), 0600), 0);
}

void tst_RVKeeper::cleanup()
{
    m_guard.reset();
    m_log.reset();
    m_dir.reset();
}

bool tst_RVKeeper::orphan(const QByteArray &script, int signal, bool isMerged)
{
    const pid_t program = ::fork();
    if (program == 0) {
        // The test's own handler would report a failure.
        ::signal(signal, SIG_DFL);
        Kept process(m_paths);
        if (isMerged) {
            process.setProcessChannelMode(QProcess::MergedChannels);
        }
        process.runShell(script);
        process.waitForStarted(limitMs);
        // Until it is killed; it reads what comes.
        process.waitForFinished(-1);
        ::_exit(0);
    }
    // Opens when the script does, which then waits for what is written.
    const int gate = ::open(QFile::encodeName(m_gate).constData(), O_WRONLY | O_CLOEXEC);
    int status = 0;
    const bool isGone = ::kill(program, signal) == 0 && ::waitpid(program, &status, 0) == program
        && WIFSIGNALED(status) && WTERMSIG(status) == signal;
    const bool isOpened = gate >= 0 && ::write(gate, "\n", 1) == 1;
    ::close(gate);
    return isGone && isOpened;
}

bool tst_RVKeeper::waitForEnd() const
{
    return QTest::qWaitFor(
        [this] {
            const std::optional<RVKeptRun> run = RVKeptRun::last(m_paths);
            return run && run->state != RVKeptRun::State::Running;
        },
        limitMs);
}

void tst_RVKeeper::passesEverythingOn()
{
    Kept process(m_paths);
    process.runShell("echo out; echo err >&2; printf 'x%.0s' {1..300000}; exit 0");
    QVERIFY(process.waitForFinished(limitMs));
    QCOMPARE(process.readAllStandardOutput(), "out\n" + QByteArray(300000, 'x'));
    QCOMPARE(process.readAllStandardError(), QByteArray("err\n"));
    QCOMPARE(content(process.keeper.outputFile()).size(), 300008);
    // Its end was heard.
    QVERIFY(!RVKeptRun::last(m_paths));
    QCOMPARE(names(RVKeeper::recordFolder(m_paths)), QStringList());
}

void tst_RVKeeper::keepsTheOrderOfMergedChannels()
{
    Kept process(m_paths);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.runShell("for ((i = 0; i < 500; i++)); do echo o$i; echo e$i >&2; done");
    QVERIFY(process.waitForFinished(limitMs));
    QByteArray expected;
    for (int i = 0; i < 500; ++i) {
        expected += 'o' + QByteArray::number(i) + "\ne" + QByteArray::number(i) + '\n';
    }
    QCOMPARE(process.readAllStandardOutput(), expected);
    QCOMPARE(content(process.keeper.outputFile()), expected);
}

void tst_RVKeeper::endsAsTheInstallerEnded_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QProcess::ExitStatus>("status");
    QTest::addColumn<int>("code");

    QTest::newRow("without an error") << QByteArray("exit 0") << QProcess::NormalExit << 0;
    QTest::newRow("with a code") << QByteArray("exit 7") << QProcess::NormalExit << 7;
    QTest::newRow("with the highest code") << QByteArray("exit 255") << QProcess::NormalExit << 255;
    QTest::newRow("killed") << QByteArray("kill -9 $$") << QProcess::CrashExit << SIGKILL;
    QTest::newRow("by a signal that the keeper ignores")
        << QByteArray("kill -TERM $$") << QProcess::CrashExit << SIGTERM;
    QTest::newRow("by one that leaves a core file")
        << QByteArray("ulimit -c unlimited; kill -SEGV $$") << QProcess::CrashExit << SIGSEGV;
    QTest::newRow("that closes its outputs first")
        << QByteArray("exec >&- 2>&-; /bin/true; exit 3") << QProcess::NormalExit << 3;
}

void tst_RVKeeper::endsAsTheInstallerEnded()
{
    QFETCH(QByteArray, script);
    QFETCH(QProcess::ExitStatus, status);
    QFETCH(int, code);
    Kept process(m_paths);
    process.setWorkingDirectory(m_dir->path());
    process.runShell(script);
    QVERIFY(process.waitForFinished(limitMs));
    QCOMPARE(process.exitStatus(), status);
    QCOMPARE(process.exitCode(), code);
}

void tst_RVKeeper::failsToStart()
{
    Kept process(m_paths);
    process.start(m_dir->filePath(QStringLiteral("missing")), QStringList());
    QVERIFY(!process.waitForStarted(limitMs));
    QCOMPARE(process.error(), QProcess::FailedToStart);
    QVERIFY(!RVKeptRun::last(m_paths));
}

void tst_RVKeeper::hasSessionsOfItsOwn()
{
    Kept process(m_paths);
    // A maintainer script may well say "kill 0".
    process.runShell("ps -o sid= -p $$; ps -o sid= -p $PPID; echo $PPID; kill -9 0");
    QVERIFY(process.waitForFinished(limitMs));
    QCOMPARE(process.exitCode(), SIGKILL);
    const QList<QByteArray> lines = process.readAllStandardOutput().split('\n');
    QCOMPARE(lines.size(), 4);
    QCOMPARE(lines.at(1).trimmed(), lines.at(2).trimmed());
    QVERIFY(lines.at(0).trimmed() != lines.at(1).trimmed());
}

void tst_RVKeeper::ignoresSignals_data()
{
    QTest::addColumn<int>("signal");

    for (const int signal : {SIGHUP, SIGINT, SIGTERM, SIGQUIT, SIGTSTP, SIGPIPE}) {
        QTest::newRow(::strsignal(signal)) << signal;
    }
}

void tst_RVKeeper::ignoresSignals()
{
    QFETCH(int, signal);
    Kept process(m_paths);
    process.runShell("read <" + QFile::encodeName(m_gate) + "; echo done; exit 4");
    QVERIFY(process.waitForStarted(limitMs));
    // The keeper says its name when it is ready.
    const QString name = QStringLiteral("/proc/%1/comm").arg(process.processId());
    QTRY_COMPARE(content(name), QByteArray("ravel-keeper\n"));
    QCOMPARE(::kill(pid_t(process.processId()), signal), 0);
    QVERIFY(letGo(m_gate));
    QVERIFY(process.waitForFinished(limitMs));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 4);
    QCOMPARE(process.readAllStandardOutput(), QByteArray("done\n"));
}

void tst_RVKeeper::outlivesItsReader_data()
{
    QTest::addColumn<int>("signal");
    QTest::addColumn<bool>("isMerged");

    QTest::newRow("killed") << SIGKILL << false;
    QTest::newRow("killed, one channel") << SIGKILL << true;
    QTest::newRow("ended") << SIGTERM << false;
    QTest::newRow("terminal closed") << SIGHUP << true;
}

void tst_RVKeeper::outlivesItsReader()
{
    QFETCH(int, signal);
    QFETCH(bool, isMerged);
    // More than all pipes together hold, before and after.
    QVERIFY(orphan("head -c 300000 /dev/zero; read <" + QFile::encodeName(m_gate)
                       + "; head -c 4000000 /dev/zero | tr '\\0' y; echo error >&2; exit 5",
                   signal, isMerged));
    QVERIFY(waitForEnd());
    const std::optional<RVKeptRun> run = RVKeptRun::last(m_paths);
    QCOMPARE(run->state, RVKeptRun::State::Exited);
    QCOMPARE(run->value, 5);
    QVERIFY(run->sentence().english().contains(QLatin1String("failed with exit code 5")));
    QCOMPARE(content(run->outputFile).size(), 4300006);
    // Which of two channels was first is not known.
    QVERIFY(content(run->outputFile).contains("error\n"));
    QVERIFY(!isMerged || run->output(7) == "yerror\n");
}

// A program that is stopped, or hangs, does not stop its installer.
void tst_RVKeeper::doesNotWaitForItsReader()
{
    Kept process(m_paths);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.runShell("head -c 40000000 /dev/zero | tr '\\0' x; echo; echo end");
    QVERIFY(process.waitForStarted(limitMs));
    // Nothing is read meanwhile.
    const std::int64_t keeper = process.processId();
    const QString record = RVKeeper::recordFolder(m_paths) + QLatin1Char('/')
        + names(RVKeeper::recordFolder(m_paths)).value(0);
    QElapsedTimer timer;
    timer.start();
    while (!content(record).startsWith("state x") && timer.elapsed() < limitMs) {
        ::usleep(1000);
    }
    QVERIFY(content(record).startsWith("state x\nvalue 000\noutput 00000000000040000005\n"));
    QCOMPARE(::kill(pid_t(keeper), 0), 0);
    // And then it gets the end of it.
    QVERIFY(process.waitForFinished(limitMs));
    const QByteArray output = process.readAllStandardOutput();
    QVERIFY(output.endsWith("xxx\nend\n"));
    QVERIFY(output.size() > 16 * 1024 * 1024);
    QVERIFY(output.size() < 40000000);
    const int from = output.indexOf("\n[") + 2;
    QVERIFY(from > 1);
    const int to = output.indexOf(" bytes of the output are left out here]\n", from);
    const int markSize = to - from + 2 + int(strlen(" bytes of the output are left out here]\n"));
    QCOMPARE(output.size() - markSize + output.mid(from, to - from).toInt(), 40000005);
}

void tst_RVKeeper::doesNotWaitForADaemon()
{
    Kept process(m_paths);
    process.runShell("echo before; (read <" + QFile::encodeName(m_gate) + "; echo after) & exit 6");
    QVERIFY(process.waitForFinished(limitMs));
    QCOMPARE(process.exitCode(), 6);
    QCOMPARE(process.readAllStandardOutput(), QByteArray("before\n"));
    QVERIFY(letGo(m_gate));
}

void tst_RVKeeper::closesWhatItDoesNotNeed()
{
    const QString lock = m_dir->filePath(QStringLiteral("lock"));
    // As a library leaves it: inherited by every program. One far above the others.
    const int inherited = ::open(QFile::encodeName(lock).constData(), O_RDWR | O_CREAT, 0600);
    const int far = ::fcntl(inherited, F_DUPFD, 900);
    QVERIFY(far >= 900);
    const int held = ::fcntl(inherited, F_DUPFD_CLOEXEC, 500);
    Kept process(m_paths, {held});
    process.runShell("echo; read <" + QFile::encodeName(m_gate));
    QVERIFY(process.waitForReadyRead(limitMs));
    const QString folder = QStringLiteral("/proc/%1/fd").arg(process.processId());
    QStringList descriptors =
        QDir(folder).entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System);
    // Standard input and outputs, two pipes, two files.
    QCOMPARE(descriptors.size(), 8);
    QVERIFY(descriptors.contains(QString::number(held)));
    QVERIFY(!descriptors.contains(QString::number(far)));
    QCOMPARE(QFile::symLinkTarget(QStringLiteral("/proc/%1/cwd").arg(process.processId())),
             QStringLiteral("/"));
    QVERIFY(letGo(m_gate));
    QVERIFY(process.waitForFinished(limitMs));
    for (const int descriptor : {inherited, far, held}) {
        ::close(descriptor);
    }
}

void tst_RVKeeper::holdsLocksToTheEnd()
{
    const QString lock = m_dir->filePath(QStringLiteral("lock"));
    const auto isFree = [&lock] {
        const int other = ::open(QFile::encodeName(lock).constData(), O_RDWR | O_CREAT, 0600);
        const bool result = ::flock(other, LOCK_EX | LOCK_NB) == 0;
        ::close(other);
        return result;
    };
    const int held =
        ::open(QFile::encodeName(lock).constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    QCOMPARE(::flock(held, LOCK_EX), 0);
    Kept process(m_paths, {held});
    // What the installer leaves running has no part in it.
    const QString end = m_dir->filePath(QStringLiteral("end"));
    QCOMPARE(::mkfifo(QFile::encodeName(end).constData(), 0600), 0);
    process.runShell("read <" + QFile::encodeName(m_gate) + "; (read <" + QFile::encodeName(end)
                     + ") & exit 0");
    QVERIFY(process.waitForStarted(limitMs));
    ::close(held);
    QVERIFY(!isFree());
    QVERIFY(letGo(m_gate));
    QVERIFY(process.waitForFinished(limitMs));
    QVERIFY(isFree());
    QVERIFY(letGo(end));
}

void tst_RVKeeper::storesBeginningAndEnd_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<bool>("isWhole");

    QTest::newRow("one byte less than there is room for") << 17 * 1024 * 1024 - 1 << true;
    QTest::newRow("as much as there is room for") << 17 * 1024 * 1024 << true;
    QTest::newRow("one byte more") << 17 * 1024 * 1024 + 1 << false;
    QTest::newRow("twice round") << 40 * 1000 * 1000 << false;
}

void tst_RVKeeper::storesBeginningAndEnd()
{
    QFETCH(int, size);
    QFETCH(bool, isWhole);
    constexpr int lineSize = 64;
    QByteArray text;
    text.reserve(size + lineSize);
    while (text.size() < size) {
        text += QByteArray::number(text.size()).rightJustified(lineSize - 1) + '\n';
    }
    text.truncate(size);
    const QString file = m_dir->filePath(QStringLiteral("text"));
    QFile out(file);
    QVERIFY(out.open(QIODevice::WriteOnly) && out.write(text) == size && out.flush());
    Kept process(m_paths);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.runShell("exec cat " + QFile::encodeName(file));
    QVERIFY(process.waitForFinished(limitMs));
    const QByteArray stored = content(process.keeper.outputFile());
    if (isWhole) {
        QVERIFY(stored == text);
        return;
    }
    constexpr int first = 1024 * 1024;
    constexpr int last = 16 * 1024 * 1024;
    QVERIFY(stored.left(first) == text.left(first));
    QVERIFY(stored.right(last) == text.right(last));
    QCOMPARE(stored.mid(first, stored.size() - first - last),
             "\n[" + QByteArray::number(size - first - last)
                 + " bytes of the output are left out here]\n");
}

void tst_RVKeeper::fullDisk()
{
    QVERIFY(QDir().mkpath(m_dir->filePath(QStringLiteral("var"))));
    QVERIFY(QDir().mkpath(m_dir->filePath(QStringLiteral("small"))));
    QString result;
    const bool isPossible = withSmallDisk(
        m_dir->filePath(QStringLiteral("small")), "1M",
        [this] {
            RVPaths paths = m_paths;
            paths.stateDir = paths.userStateDir = paths.writableStateDir = paths.runDir =
                m_dir->filePath(QStringLiteral("small/state"));
            Kept process(paths);
            process.runShell("head -c 3000000 /dev/zero; echo end; exit 3");
            const bool isEnded = process.waitForFinished(limitMs);
            return isEnded && process.exitCode() == 3
                    && process.readAllStandardOutput().size() == 3000004
                ? QString()
                : QStringLiteral("ended %1, code %2").arg(isEnded).arg(process.exitCode());
        },
        &result);
    if (!isPossible) {
        QSKIP("This system has no private mounts");
    }
    QCOMPARE(result, QString());
}

void tst_RVKeeper::noPlaceToWrite()
{
    // A file in the place of each folder.
    for (const QString &folder :
         {QFileInfo(RVKeeper::outputFolder(m_paths)).path(), RVKeeper::recordFolder(m_paths)}) {
        QVERIFY(QDir().mkpath(QFileInfo(folder).path()));
        QFile file(folder);
        QVERIFY(file.exists() || file.open(QIODevice::WriteOnly));
    }
    Kept process(m_paths);
    process.runShell("echo out; exit 2");
    QVERIFY(process.waitForFinished(limitMs));
    QCOMPARE(process.exitCode(), 2);
    QCOMPARE(process.readAllStandardOutput(), QByteArray("out\n"));
    QCOMPARE(process.keeper.outputFile(), QString());
    QVERIFY(m_log->raw().contains("cannot be kept in"));
}

void tst_RVKeeper::filesArePrivate()
{
    QVERIFY(orphan("read <" + QFile::encodeName(m_gate) + "; echo"));
    QVERIFY(waitForEnd());
    for (const QString &folder :
         {RVKeeper::outputFolder(m_paths), RVKeeper::recordFolder(m_paths)}) {
        struct stat status = {};
        QCOMPARE(::stat(QFile::encodeName(folder).constData(), &status), 0);
        QCOMPARE(status.st_mode & 0777, mode_t(0700));
        QCOMPARE(names(folder).size(), 1);
        const QString file = folder + QLatin1Char('/') + names(folder).constFirst();
        QCOMPARE(::stat(QFile::encodeName(file).constData(), &status), 0);
        QCOMPARE(status.st_mode & 0777, mode_t(0600));
    }
}

void tst_RVKeeper::keepsFiveOutputs()
{
    const QString folder = RVKeeper::outputFolder(m_paths);
    QString last;
    for (int i = 0; i < 8; ++i) {
        Kept process(m_paths);
        process.runShell("echo " + QByteArray::number(i));
        QVERIFY(process.waitForFinished(limitMs));
        last = process.keeper.outputFile();
    }
    QCOMPARE(names(folder).size(), 5);
    QCOMPARE(content(folder + QLatin1Char('/') + names(folder).constFirst()), QByteArray("3\n"));
    QCOMPARE(content(last), QByteArray("7\n"));
}

void tst_RVKeeper::tellsWhichRunsGoOn()
{
    QVERIFY(!RVKeptRun::last(m_paths));
    QVERIFY(!QFile::exists(RVKeeper::recordFolder(m_paths)));
    const QString end = m_dir->filePath(QStringLiteral("end"));
    QCOMPARE(::mkfifo(QFile::encodeName(end).constData(), 0600), 0);
    QVERIFY(orphan("echo first; read <" + QFile::encodeName(m_gate) + "; read <"
                   + QFile::encodeName(end) + "; exit 0"));
    const std::optional<RVKeptRun> running = RVKeptRun::last(m_paths);
    QVERIFY(running);
    QCOMPARE(running->state, RVKeptRun::State::Running);
    QVERIFY(running->sentence().english().endsWith(QLatin1String("still runs.")));
    QTRY_COMPARE(running->output(100), QByteArray("first\n"));
    // It is shown again and again.
    running->forget(m_paths);
    QVERIFY(RVKeptRun::last(m_paths));
    QVERIFY(letGo(end));
    QVERIFY(waitForEnd());
    const std::optional<RVKeptRun> ended = RVKeptRun::last(m_paths);
    QCOMPARE(ended->state, RVKeptRun::State::Exited);
    QCOMPARE(ended->value, 0);
    QVERIFY(qAbs(ended->started.secsTo(QDateTime::currentDateTimeUtc())) < 60);
}

void tst_RVKeeper::killedKeeper()
{
    // The keeper is the shell's parent.
    QVERIFY(orphan("echo some; read <" + QFile::encodeName(m_gate) + "; kill -9 $PPID"));
    QVERIFY(waitForEnd());
    const std::optional<RVKeptRun> run = RVKeptRun::last(m_paths);
    QCOMPARE(run->state, RVKeptRun::State::Unknown);
    QVERIFY(run->sentence().english().contains(QLatin1String("is not known")));
    QCOMPARE(run->output(100), QByteArray("some\n"));
}

void tst_RVKeeper::forgetsWhatWasShown()
{
    for (const char *code : {"1", "2"}) {
        QVERIFY(orphan("read <" + QFile::encodeName(m_gate) + "; exit " + code));
        QVERIFY(waitForEnd());
    }
    QTRY_COMPARE(RVKeptRun::last(m_paths)->value, 2);
    QTRY_VERIFY(RVKeptRun::last(m_paths)->state == RVKeptRun::State::Exited);
    const RVKeptRun run = *RVKeptRun::last(m_paths);
    run.forget(m_paths);
    QVERIFY(!RVKeptRun::last(m_paths));
    QVERIFY(QFile::exists(run.outputFile));
}

void tst_RVKeeper::hostileRecords()
{
    const QString folder = RVKeeper::recordFolder(m_paths);
    QVERIFY(RVOwnFolder(folder).isOpen());
    const auto put = [&](const char *name, const QByteArray &text) {
        QFile file(folder + QLatin1Char('/') + QLatin1String(name));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
    };
    put("a.run", "");
    put("b.run", QByteArray(100000, 'x'));
    put("c.run", "state x\nvalue 9999\n");
    QVERIFY(QFile::link(QStringLiteral("/etc/passwd"), folder + QStringLiteral("/d.run")));
    QCOMPARE(::mkfifo(QFile::encodeName(folder + QStringLiteral("/e.run")).constData(), 0600), 0);
    QVERIFY(!RVKeptRun::last(m_paths));
}

QTEST_GUILESS_MAIN(tst_RVKeeper)
#include "tst_RVKeeper.moc"

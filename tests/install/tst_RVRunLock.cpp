// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "install/RVRunLock.h"
#include "tests/support/FakeRoot.h"
#include "tests/support/InChild.h"
#include "tests/support/OrdinaryUser.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QTest>

#include <csignal>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

QString lockFile(const FakeRoot &root)
{
    return root.paths().runFolder() + QStringLiteral("/lock");
}

void makeFolder(const FakeRoot &root)
{
    QDir().mkpath(root.paths().runFolder());
    ::chmod(QFile::encodeName(root.paths().runFolder()).constData(), 0700);
}

} // namespace

/// Between real processes.
class tst_RVRunLock : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void oneAtATime();
    void fileOfOurOwn();
    void whoIsFirst();
    void childGoesOnHolding();
    void killedHolderLetsGo();
    void startedProgramDoesNotHold();
    void lookMakesNothing();
    void plantedPlaces_data();
    void plantedPlaces();
    void ordinaryUser();
};

void tst_RVRunLock::oneAtATime()
{
    const FakeRoot root;
    RVRunLock first(root.paths());
    RVRunLock second(root.paths());
    QCOMPARE(first.take(), RVRunLock::State::Held);
    QCOMPARE(first.take(), RVRunLock::State::Held);
    QVERIFY(first.handle() >= 0);
    QCOMPARE(second.look(), RVRunLock::State::Busy);
    QCOMPARE(second.take(), RVRunLock::State::Busy);
    QCOMPARE(second.handle(), -1);
    QCOMPARE(second.holder().process, qint64(::getpid()));
    QVERIFY(!second.holder().program.isEmpty());
    first.release();
    QCOMPARE(second.look(), RVRunLock::State::Free);
    QCOMPARE(second.take(), RVRunLock::State::Held);
    QVERIFY(!second.holder().isSet);
    const FakeRoot other;
    RVRunLock elsewhere(other.paths());
    QCOMPARE(elsewhere.take(), RVRunLock::State::Held);
}

void tst_RVRunLock::fileOfOurOwn()
{
    const FakeRoot root;
    RVRunLock lock(root.paths());
    QCOMPARE(lock.take(), RVRunLock::State::Held);
    struct stat status = {};
    QCOMPARE(::stat(QFile::encodeName(lockFile(root)).constData(), &status), 0);
    QCOMPARE(status.st_mode & 07777U, 0600U);
    QCOMPARE(::stat(QFile::encodeName(root.paths().runFolder()).constData(), &status), 0);
    QCOMPARE(status.st_mode & 07777U, 0700U);
}

void tst_RVRunLock::whoIsFirst()
{
    const FakeRoot root;
    RVRunLock lock(root.paths());
    QCOMPARE(lock.take(), RVRunLock::State::Held);
    const QString own = QStringLiteral("%1").arg(::getpid());
    QCOMPARE(inChild([&] {
                 RVRunLock second(root.paths());
                 second.take();
                 return QString::number(second.holder().process);
             }),
             own);
}

void tst_RVRunLock::childGoesOnHolding()
{
    const FakeRoot root;
    int gate[2];
    QCOMPARE(::pipe(gate), 0);
    // The one that takes the lock ends at once, its child when the gate closes.
    const pid_t front = ::fork();
    if (front == 0) {
        RVRunLock lock(root.paths());
        const bool isHeld = lock.take() == RVRunLock::State::Held;
        if (isHeld && ::fork() == 0) {
            ::close(gate[1]);
            char byte = 0;
            ::_exit(::read(gate[0], &byte, 1) == 0 ? 0 : 1);
        }
        ::_exit(isHeld ? 0 : 1);
    }
    int status = 1;
    QCOMPARE(::waitpid(front, &status, 0), front);
    QCOMPARE(status, 0);
    RVRunLock lock(root.paths());
    QCOMPARE(lock.look(), RVRunLock::State::Busy);
    QCOMPARE(lock.take(), RVRunLock::State::Busy);
    QVERIFY(lock.holder().isSet);
    // Who took it is gone; its number may be anybody's.
    QCOMPARE(lock.holder().process, qint64(0));
    ::close(gate[1]);
    QTRY_COMPARE(lock.take(), RVRunLock::State::Held);
    ::close(gate[0]);
}

void tst_RVRunLock::killedHolderLetsGo()
{
    const FakeRoot root;
    int ready[2];
    QCOMPARE(::pipe(ready), 0);
    const pid_t holder = ::fork();
    if (holder == 0) {
        RVRunLock lock(root.paths());
        const char byte = lock.take() == RVRunLock::State::Held ? 'y' : 'n';
        if (::write(ready[1], &byte, 1) == 1) {
            ::pause();
        }
        ::_exit(1);
    }
    char byte = 0;
    QCOMPARE(::read(ready[0], &byte, 1), ssize_t(1));
    QCOMPARE(byte, 'y');
    RVRunLock lock(root.paths());
    QCOMPARE(lock.take(), RVRunLock::State::Busy);
    QCOMPARE(lock.holder().process, qint64(holder));
    ::kill(holder, SIGKILL);
    QCOMPARE(::waitpid(holder, nullptr, 0), holder);
    QCOMPARE(lock.take(), RVRunLock::State::Held);
    ::close(ready[0]);
    ::close(ready[1]);
}

void tst_RVRunLock::startedProgramDoesNotHold()
{
    const FakeRoot root;
    RVRunLock first(root.paths());
    QCOMPARE(first.take(), RVRunLock::State::Held);
    QProcess program;
    program.start(QStringLiteral("cat"), QStringList());
    QVERIFY(program.waitForStarted());
    first.release();
    RVRunLock second(root.paths());
    QCOMPARE(second.take(), RVRunLock::State::Held);
    program.closeWriteChannel();
    QVERIFY(program.waitForFinished());
}

void tst_RVRunLock::lookMakesNothing()
{
    const FakeRoot root;
    const RVPaths &paths = root.paths();
    RVRunLock lock(paths);
    QCOMPARE(lock.look(), RVRunLock::State::Free);
    QVERIFY(!QFileInfo::exists(paths.runFolder()));
}

void tst_RVRunLock::plantedPlaces_data()
{
    QTest::addColumn<QByteArray>("planted");

    for (const char *planted : {"a link", "a second name", "a pipe", "a directory",
                                "a folder of links", "a folder open to all"}) {
        QTest::newRow(planted) << QByteArray(planted);
    }
}

void tst_RVRunLock::plantedPlaces()
{
    QFETCH(QByteArray, planted);

    const FakeRoot root;
    makeFolder(root);
    const QString victim = root.path() + QStringLiteral("/victim");
    FakeRoot::write(victim, "untouched");
    const QByteArray file = QFile::encodeName(lockFile(root));
    const QByteArray folder = QFile::encodeName(root.paths().runFolder());
    if (planted == "a link") {
        QVERIFY(QFile::link(victim, lockFile(root)));
    } else if (planted == "a second name") {
        QCOMPARE(::link(QFile::encodeName(victim).constData(), file.constData()), 0);
    } else if (planted == "a pipe") {
        QCOMPARE(::mkfifo(file.constData(), 0600), 0);
    } else if (planted == "a directory") {
        QCOMPARE(::mkdir(file.constData(), 0700), 0);
    } else if (planted == "a folder of links") {
        QCOMPARE(::rmdir(folder.constData()), 0);
        QVERIFY(QDir().mkpath(root.path() + QStringLiteral("/elsewhere")));
        QVERIFY(QFile::link(root.path() + QStringLiteral("/elsewhere"), root.paths().runFolder()));
    } else {
        QCOMPARE(::chmod(folder.constData(), 0777), 0);
    }
    RVRunLock lock(root.paths());
    QCOMPARE(lock.take(), RVRunLock::State::Unavailable);
    QVERIFY(!lock.reason().isEmpty());
    QCOMPARE(lock.handle(), -1);
    QFile left(victim);
    QVERIFY(left.open(QIODevice::ReadOnly));
    QCOMPARE(left.readAll(), QByteArray("untouched"));
}

void tst_RVRunLock::ordinaryUser()
{
    const FakeRoot root;
    QCOMPARE(::chmod(QFile::encodeName(root.path()).constData(), 0777), 0);
    QCOMPARE(OrdinaryUser::run(root.path(),
                               [&] {
                                   RVRunLock lock(root.paths());
                                   return lock.take() == RVRunLock::State::Held ? QString()
                                                                                : lock.reason();
                               }),
             QString());
    if (::geteuid() == 0) {
        // What is that user's is not root's.
        RVPaths paths = root.paths();
        paths.runDir = paths.userStateDir + QStringLiteral("/run");
        RVRunLock lock(paths);
        QCOMPARE(lock.take(), RVRunLock::State::Unavailable);
    }
}

QTEST_GUILESS_MAIN(tst_RVRunLock)
#include "tst_RVRunLock.moc"

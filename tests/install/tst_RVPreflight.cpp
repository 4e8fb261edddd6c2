// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "install/RVLockWait.h"
#include "install/RVPackageDatabase.h"
#include "install/RVPreflight.h"
#include "tests/support/FakeRoot.h"
#include "tests/support/InChild.h"
#include "tests/support/Locker.h"
#include "tests/support/OrdinaryUser.h"

#include <QBuffer>
#include <QDir>
#include <QSignalSpy>
#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

namespace
{

using Kind = RVObstacle::Kind;

RVData described(const RVPaths &paths, const char *archive, const QByteArray &fields = {})
{
    RVData data(QUrl(QLatin1String("file:///updates/") + QLatin1String(archive)),
                QUrl(QStringLiteral("file:///updates/x.xml")), nullptr, paths);
    QByteArray xml =
        "<update_data><name>tc-x</name><version>1</version>" + fields + "</update_data>";
    QBuffer buffer(&xml);
    data.descriptor()->read(&buffer);
    return data;
}

RVBatch batchOf(const RVPaths &paths, const char *archive, const QByteArray &fields = {})
{
    return RVBatch::of({described(paths, archive, fields)}, nullptr);
}

QVector<Kind> kindsOf(const QVector<RVObstacle> &obstacles)
{
    QVector<Kind> kinds;
    for (const RVObstacle &obstacle : obstacles) {
        kinds.append(obstacle.kind);
    }
    return kinds;
}

} // namespace

/// With real locks of real processes.
class tst_RVPreflight : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void nothingInTheWay();
    void packageLocks_data();
    void packageLocks();
    void waitingForALock();
    void waitingInVain();
    void waitingIsStopped();
    void runsOfOurOwn();
    void unfinishedPackages_data();
    void unfinishedPackages();
    void manyUnfinishedPackages();
    void journal();
    void missingInstaller();
    void noRights();
    void readOnlySystem();
    void noSpace();

private:
    QString database(const char *name) const
    {
        return m_root->paths().packageDatabase + QLatin1Char('/') + QLatin1String(name);
    }
    QVector<RVObstacle> obstacles(const char *archive = "a.deb", const QByteArray &fields = {})
    {
        return RVPreflight(m_root->paths()).obstacles(batchOf(m_root->paths(), archive, fields));
    }

    std::unique_ptr<FakeRoot> m_root;
};

void tst_RVPreflight::initTestCase()
{
    qRegisterMetaType<RVSentence>();
}

void tst_RVPreflight::init()
{
    m_root = std::make_unique<FakeRoot>();
    FakeRoot::write(m_root->paths().xarInstaller, "#!/bin/sh\n");
    QCOMPARE(::chmod(QFile::encodeName(m_root->paths().xarInstaller).constData(), 0755), 0);
}

void tst_RVPreflight::nothingInTheWay()
{
    for (const char *archive : {"a.deb", "a.xar", "a.dd.gz"}) {
        const QVector<RVObstacle> found = obstacles(archive);
        QVERIFY2(found.isEmpty(),
                 found.isEmpty() ? "" : qUtf8Printable(found.constFirst().sentence.english()));
    }
    // Looking makes nothing.
    QVERIFY(!QFile::exists(m_root->paths().runFolder()));
    QVERIFY(!QFile::exists(database("lock")));
}

void tst_RVPreflight::packageLocks_data()
{
    QTest::addColumn<QByteArray>("lock");
    QTest::newRow("dpkg's") << QByteArray("lock");
    QTest::newRow("a front end's") << QByteArray("lock-frontend");
}

void tst_RVPreflight::packageLocks()
{
    QFETCH(QByteArray, lock);

    const Locker other(database(lock.constData()));
    QVERIFY(other.isHeld());
    const QVector<RVObstacle> found = obstacles();
    QCOMPARE(kindsOf(found), QVector<Kind>{Kind::DatabaseLocked});
    QVERIFY(found.constFirst().isPassing());
    QCOMPARE(found.constFirst().sentence.english(),
             QStringLiteral("The package database is locked by tst_RVPreflight (process %1).")
                 .arg(other.process()));
    // A service pack needs no package database.
    QCOMPARE(kindsOf(obstacles("a.xar")), QVector<Kind>());
}

void tst_RVPreflight::waitingForALock()
{
    Locker other(database("lock"));
    QVERIFY(other.isHeld());
    RVPreflight preflight(m_root->paths());
    RVLockWait wait(&preflight, RVBatch::Kind::Packages);
    const QSignalSpy waiting(&wait, &RVLockWait::waiting);
    const QSignalSpy ended(&wait, &RVLockWait::ended);
    wait.start(3600);
    QTRY_COMPARE(waiting.size(), 1);
    QCOMPARE(waiting.at(0).at(1).toInt(), 3600);
    QCOMPARE(wait.obstacle().kind, Kind::DatabaseLocked);
    QVERIFY(ended.isEmpty());
    other.release();
    QTRY_COMPARE(ended.size(), 1);
    QCOMPARE(ended.at(0).at(0).toBool(), true);
    QVERIFY(wait.obstacle().sentence.isEmpty());
    QCOMPARE(preflight.runLock().state(), RVRunLock::State::Held);
}

void tst_RVPreflight::waitingInVain()
{
    const Locker other(database("lock-frontend"));
    RVPreflight preflight(m_root->paths());
    RVLockWait wait(&preflight, RVBatch::Kind::Packages);
    const QSignalSpy ended(&wait, &RVLockWait::ended);
    wait.start(0);
    QVERIFY(ended.isEmpty());
    QTRY_COMPARE(ended.size(), 1);
    QCOMPARE(ended.at(0).at(0).toBool(), false);
    QVERIFY(wait.obstacle().sentence.english().contains(other.process()));
}

void tst_RVPreflight::waitingIsStopped()
{
    Locker other(database("lock"));
    RVPreflight preflight(m_root->paths());
    RVLockWait wait(&preflight, RVBatch::Kind::Packages);
    const QSignalSpy waiting(&wait, &RVLockWait::waiting);
    const QSignalSpy ended(&wait, &RVLockWait::ended);
    wait.start(3600);
    QTRY_COMPARE(waiting.size(), 1);
    wait.stop();
    other.release();
    RVLockWait control(&preflight, RVBatch::Kind::Packages);
    const QSignalSpy controlEnded(&control, &RVLockWait::ended);
    control.start(3600);
    QTRY_COMPARE(controlEnded.size(), 1);
    QVERIFY(ended.isEmpty());
}

void tst_RVPreflight::runsOfOurOwn()
{
    RVPreflight first(m_root->paths());
    QVERIFY(!first.takeLocks(RVBatch::Kind::Image));
    // Its own lock is not in its own way.
    QCOMPARE(kindsOf(first.obstacles(batchOf(m_root->paths(), "a.xar"))), QVector<Kind>());
    RVPreflight second(m_root->paths());
    const auto obstacle = second.takeLocks(RVBatch::Kind::ServicePacks);
    QVERIFY(obstacle);
    QCOMPARE(obstacle->kind, Kind::OtherRun);
    QCOMPARE(obstacle->sentence.english(),
             QStringLiteral("Another installation is under way: tst_RVPreflight (process %1).")
                 .arg(::getpid()));
    QCOMPARE(kindsOf(obstacles("a.xar")), QVector<Kind>{Kind::OtherRun});
}

void tst_RVPreflight::unfinishedPackages_data()
{
    QTest::addColumn<QByteArray>("status");
    QTest::addColumn<QString>("said");

    const auto row = [](const char *status, const char *said) {
        QTest::newRow(status) << QByteArray(status) << QString::fromLatin1(said);
    };
    row("install ok installed", "");
    row("deinstall ok config-files", "");
    row("install ok not-installed", "");
    row("install ok unpacked", "tc-y is unpacked");
    row("install ok half-configured", "tc-y is half-configured");
    row("install reinstreq half-installed", "tc-y is half-installed");
    row("install ok triggers-awaited", "tc-y is triggers-awaited");
    row("install ok triggers-pending", "tc-y is triggers-pending");
}

void tst_RVPreflight::unfinishedPackages()
{
    QFETCH(QByteArray, status);
    QFETCH(QString, said);

    m_root->addPackage("tc-y", "1", status);
    m_root->addPackage("tc-z", "1");
    const QVector<RVObstacle> found = obstacles();
    QCOMPARE(found.isEmpty(), said.isEmpty());
    if (!said.isEmpty()) {
        QCOMPARE(kindsOf(found), QVector<Kind>{Kind::Interrupted});
        QVERIFY2(found.constFirst().sentence.english().contains(said),
                 qUtf8Printable(found.constFirst().sentence.english()));
        QCOMPARE(found.constFirst().packages, QStringList(QStringLiteral("tc-y")));
    }
    // To install it again is its repair.
    RVPreflight preflight(m_root->paths());
    QVERIFY(!preflight.interruption({QStringLiteral("tc-y")}));
    QCOMPARE(kindsOf(obstacles("a.xar")), QVector<Kind>());
    // Whoever is at work leaves nothing behind yet.
    const Locker other(database("lock"));
    QCOMPARE(kindsOf(obstacles()), QVector<Kind>{Kind::DatabaseLocked});
}

void tst_RVPreflight::manyUnfinishedPackages()
{
    for (int i = 0; i < 7; ++i) {
        m_root->addPackage("tc-" + QByteArray::number(i), "1", "install ok unpacked");
    }
    const QVector<RVObstacle> found = obstacles();
    QCOMPARE(found.size(), 1);
    QCOMPARE(found.constFirst().packages.size(), 7);
    QVERIFY(found.constFirst().sentence.english().contains(QStringLiteral("tc-4 is unpacked, …")));
}

void tst_RVPreflight::journal()
{
    FakeRoot::write(database("updates/tmp.i"), "");
    QCOMPARE(kindsOf(obstacles()), QVector<Kind>());
    FakeRoot::write(database("updates/0001"), "");
    const QVector<RVObstacle> found = obstacles();
    QCOMPARE(kindsOf(found), QVector<Kind>{Kind::Interrupted});
    QCOMPARE(found.constFirst().packages, QStringList());
}

void tst_RVPreflight::missingInstaller()
{
    QVERIFY(QFile::remove(m_root->paths().xarInstaller));
    const QVector<RVObstacle> found = obstacles("a.xar");
    QCOMPARE(kindsOf(found), QVector<Kind>{Kind::MissingProgram});
    QVERIFY(found.constFirst().sentence.english().contains(m_root->paths().xarInstaller));
    QCOMPARE(kindsOf(obstacles("a.deb")), QVector<Kind>());
    // One that nobody may run is none.
    FakeRoot::write(m_root->paths().xarInstaller, "#!/bin/sh\n");
    QCOMPARE(kindsOf(obstacles("a.xar")), QVector<Kind>{Kind::MissingProgram});

    RVPaths paths = m_root->paths();
    paths.shell = m_root->path() + QStringLiteral("/no-shell");
    QCOMPARE(kindsOf(RVPreflight(paths).obstacles(batchOf(paths, "a.deb"))),
             QVector<Kind>{Kind::MissingProgram});
}

void tst_RVPreflight::noRights()
{
    QCOMPARE(::chmod(QFile::encodeName(m_root->path()).constData(), 0755), 0);
    for (const QString &folder : {m_root->paths().packageDatabase, m_root->paths().etcDir}) {
        QVERIFY(QDir().mkpath(folder));
        QCOMPARE(::chmod(QFile::encodeName(folder).constData(), 0555), 0);
    }
    const QString said = OrdinaryUser::run(m_root->path(), [this] {
        QStringList sentences;
        for (const char *archive : {"a.deb", "a.xar", "a.dd.gz"}) {
            const QVector<RVObstacle> found = obstacles(archive);
            sentences.append(found.isEmpty() || found.constFirst().kind != Kind::Rights
                                 ? QStringLiteral("allowed")
                                 : QStringLiteral("refused"));
        }
        return sentences.join(QLatin1Char(' '));
    });
    QCOMPARE(said, QStringLiteral("refused refused refused"));
    ::chmod(QFile::encodeName(m_root->paths().packageDatabase).constData(), 0755);
    ::chmod(QFile::encodeName(m_root->paths().etcDir).constData(), 0755);
}

void tst_RVPreflight::readOnlySystem()
{
    const QString tools = m_root->path() + QStringLiteral("/tools");
    FakeRoot::write(tools + QStringLiteral("/fsunlock"), "#!/bin/sh\n");
    QCOMPARE(::chmod(QFile::encodeName(tools + QStringLiteral("/fsunlock")).constData(), 0755), 0);
    QString result;
    const bool isMounted = withReadOnly(
        m_root->path(),
        [&] {
            const QVector<Kind> locked = kindsOf(obstacles());
            qputenv("PATH", QFile::encodeName(tools) + ':' + qgetenv("PATH"));
            const QVector<Kind> unlockable = kindsOf(obstacles());
            return locked == QVector<Kind>{Kind::ReadOnly} && unlockable.isEmpty()
                ? QString()
                : QStringLiteral("%1 and %2 obstacles").arg(locked.size()).arg(unlockable.size());
        },
        &result);
    if (!isMounted) {
        QSKIP("no private mounts here");
    }
    QCOMPARE(result, QString());
}

void tst_RVPreflight::noSpace()
{
    const QVector<RVObstacle> found =
        obstacles("a.deb", "<installed_size>4000000000000000</installed_size>");
    QCOMPARE(kindsOf(found), QVector<Kind>{Kind::NoSpace});
    QVERIFY(found.constFirst().sentence.english().contains(QStringLiteral("GiB needed")));
    QCOMPARE(kindsOf(obstacles("a.deb")), QVector<Kind>());
}

QTEST_GUILESS_MAIN(tst_RVPreflight)
#include "tst_RVPreflight.moc"

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "install/RVPackageDatabase.h"
#include "install/RVPreflight.h"
#include "install/RVRepair.h"
#include "tests/support/DpkgRoot.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTest>

#include <functional>
#include <sys/stat.h>

namespace
{

constexpr int limitMs = 30000;

QStringList statesOf(const DpkgRoot &root)
{
    QStringList result;
    const auto packages = RVPackageDatabase(root.paths()).unfinished();
    for (const RVPackageDatabase::Package &package : packages) {
        result.append(package.name + QLatin1Char(' ') + package.state);
    }
    return result;
}

/// dpkg's exit code; -1 when it did not come to an end.
int run(const DpkgRoot &root, const std::function<void(RVRepair *)> &step,
        QByteArray *output = nullptr)
{
    RVRepair repair(root.paths());
    const QSignalSpy finished(&repair, qOverload<int, QProcess::ExitStatus>(&QProcess::finished));
    step(&repair);
    if (finished.isEmpty() && !repair.waitForFinished(limitMs)) {
        return -1;
    }
    if (output) {
        *output = repair.readAll();
    }
    return finished.size() == 1 ? repair.exitCode() : -1;
}

int configure(const DpkgRoot &root)
{
    return run(root, [](RVRepair *repair) {
        repair->configure();
    });
}

int remove(const DpkgRoot &root, const QStringList &packages)
{
    return run(root, [&](RVRepair *repair) {
        repair->remove(packages);
    });
}

} // namespace

/// What real interruptions of the real dpkg leave, and what gets a private root out of them.
class tst_RVRepair : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void nothingToDo();
    void missingDependency();
    void failingScript();
    void killedAtItsEnd();
    void killedInTheMiddle();
    void pendingTriggers();
    void unlocksAndLocks_data();
    void unlocksAndLocks();
    void namesAreNoOptions();
    void missingShell();

private:
    std::unique_ptr<DpkgRoot> m_root;
};

void tst_RVRepair::initTestCase()
{
    qRegisterMetaType<QProcess::ExitStatus>();
    qRegisterMetaType<QProcess::ProcessError>();
}

void tst_RVRepair::init()
{
    m_root = std::make_unique<DpkgRoot>();
    QVERIFY(m_root->isValid());
}

void tst_RVRepair::nothingToDo()
{
    QCOMPARE(m_root->preinstall({QStringLiteral("tc-a"), QStringLiteral("1")}), QString());
    QCOMPARE(configure(*m_root), 0);
    QCOMPARE(m_root->installedVersion(QStringLiteral("tc-a")), QStringLiteral("1"));
}

// One missing dependency refused every later installation.
void tst_RVRepair::missingDependency()
{
    QVERIFY(!m_root
                 ->preinstall(
                     {QStringLiteral("tc-needy"), QStringLiteral("1"), "Depends: tc-missing\n"})
                 .isEmpty());
    QCOMPARE(statesOf(*m_root), QStringList(QStringLiteral("tc-needy unpacked")));
    QVERIFY(configure(*m_root) > 0);
    QCOMPARE(statesOf(*m_root), QStringList(QStringLiteral("tc-needy unpacked")));
    QCOMPARE(remove(*m_root, {QStringLiteral("tc-needy")}), 0);
    QCOMPARE(statesOf(*m_root), QStringList());
    QVERIFY(!RVPreflight(m_root->paths()).interruption({}));

    // Or what it needs comes, and then the same step is enough.
    QVERIFY(!m_root
                 ->preinstall(
                     {QStringLiteral("tc-needy"), QStringLiteral("1"), "Depends: tc-missing\n"})
                 .isEmpty());
    QCOMPARE(m_root->preinstall({QStringLiteral("tc-missing"), QStringLiteral("1")}), QString());
    QCOMPARE(configure(*m_root), 0);
    QCOMPARE(m_root->installedVersion(QStringLiteral("tc-needy")), QStringLiteral("1"));
}

void tst_RVRepair::failingScript()
{
    const QString mark = m_root->path() + QStringLiteral("/mark");
    const QByteArray script = "#!/bin/sh\n[ -e " + QFile::encodeName(mark) + " ]\n";
    QVERIFY(!m_root
                 ->preinstall({QStringLiteral("tc-a"),
                               QStringLiteral("1"),
                               {},
                               {{QStringLiteral("postinst"), script}}})
                 .isEmpty());
    QCOMPARE(statesOf(*m_root), QStringList(QStringLiteral("tc-a half-configured")));
    QVERIFY(configure(*m_root) > 0);
    QVERIFY(QFile(mark).open(QIODevice::WriteOnly));
    QCOMPARE(configure(*m_root), 0);
    QCOMPARE(m_root->installedVersion(QStringLiteral("tc-a")), QStringLiteral("1"));
}

void tst_RVRepair::killedAtItsEnd()
{
    const QString mark = m_root->path() + QStringLiteral("/mark");
    const QByteArray script = "#!/bin/sh\n[ -e " + QFile::encodeName(mark) + " ] && exit 0\n: > "
        + QFile::encodeName(mark) + "\nkill -KILL $PPID\n";
    QVERIFY(!m_root
                 ->preinstall({QStringLiteral("tc-a"),
                               QStringLiteral("1"),
                               {},
                               {{QStringLiteral("postinst"), script}}})
                 .isEmpty());
    const RVPackageDatabase database(m_root->paths());
    QVERIFY(database.hasJournal() || !database.unfinished().isEmpty());
    QVERIFY(RVPreflight(m_root->paths()).interruption({}));
    QCOMPARE(configure(*m_root), 0);
    QVERIFY(!RVPreflight(m_root->paths()).interruption({}));
    QCOMPARE(m_root->installedVersion(QStringLiteral("tc-a")), QStringLiteral("1"));
}

void tst_RVRepair::killedInTheMiddle()
{
    QVERIFY(!m_root
                 ->preinstall({QStringLiteral("tc-a"),
                               QStringLiteral("1"),
                               {},
                               {{QStringLiteral("preinst"), "#!/bin/sh\nkill -KILL $PPID\n"}}})
                 .isEmpty());
    QVERIFY(RVPreflight(m_root->paths()).interruption({}));
    configure(*m_root);
    QCOMPARE(statesOf(*m_root), QStringList(QStringLiteral("tc-a half-installed")));
    QCOMPARE(remove(*m_root, {QStringLiteral("tc-a")}), 0);
    QVERIFY(!RVPreflight(m_root->paths()).interruption({}));
}

void tst_RVRepair::pendingTriggers()
{
    const QString mark = m_root->path() + QStringLiteral("/mark");
    const QByteArray script =
        "#!/bin/sh\n[ \"$1\" != triggered ] || [ -e " + QFile::encodeName(mark) + " ]\n";
    // A trigger that fails leaves its package half-configured and the other one waiting.
    QCOMPARE(m_root->preinstall({QStringLiteral("tc-trigger"),
                                 QStringLiteral("1"),
                                 {},
                                 {{QStringLiteral("postinst"), script},
                                  {QStringLiteral("triggers"), "interest tc-event\n"}}}),
             QString());
    m_root->preinstall({QStringLiteral("tc-source"),
                        QStringLiteral("1"),
                        {},
                        {{QStringLiteral("triggers"), "activate tc-event\n"}}});
    QVERIFY2(!statesOf(*m_root).isEmpty(), "no trigger was left");
    QVERIFY(RVPreflight(m_root->paths()).interruption({}));
    QVERIFY(QFile(mark).open(QIODevice::WriteOnly));
    QCOMPARE(configure(*m_root), 0);
    QCOMPARE(statesOf(*m_root), QStringList());
}

void tst_RVRepair::unlocksAndLocks_data()
{
    QTest::addColumn<QByteArray>("unlock");
    QTest::addColumn<QByteArray>("order");
    QTest::newRow("a system that is locked") << QByteArray("exit 0") << QByteArray("unlock lock ");
    QTest::newRow("one that is not") << QByteArray("exit 1") << QByteArray("unlock ");
}

void tst_RVRepair::unlocksAndLocks()
{
    QFETCH(QByteArray, unlock);
    QFETCH(QByteArray, order);

    const QDir tools(m_root->path() + QStringLiteral("/tools"));
    QVERIFY(QDir().mkpath(tools.path()));
    const QByteArray log = QFile::encodeName(tools.filePath(QStringLiteral("log")));
    const auto tool = [&](const char *name, const QByteArray &lines) {
        QFile file(tools.filePath(QLatin1String(name)));
        return file.open(QIODevice::WriteOnly) && file.write("#!/bin/sh\n" + lines + '\n') > 0
            && file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    };
    QVERIFY(tool("fsunlock", "printf 'unlock ' >> " + log + '\n' + unlock));
    QVERIFY(tool("fslock", "printf 'lock ' >> " + log));
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", QFile::encodeName(tools.path()) + ':' + path);
    const int exitCode = configure(*m_root);
    qputenv("PATH", path);
    QCOMPARE(exitCode, 0);
    QFile file(QFile::decodeName(log));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), order);
}

void tst_RVRepair::namesAreNoOptions()
{
    QCOMPARE(m_root->preinstall({QStringLiteral("tc-a"), QStringLiteral("1")}), QString());
    QByteArray output;
    const int exitCode = run(
        *m_root,
        [](RVRepair *repair) {
            repair->remove({QStringLiteral("--version"), QStringLiteral("$(touch mark)")});
        },
        &output);
    QVERIFY2(exitCode > 0, output.constData());
    QCOMPARE(m_root->installedVersion(QStringLiteral("tc-a")), QStringLiteral("1"));
}

void tst_RVRepair::missingShell()
{
    RVPaths paths = m_root->paths();
    paths.shell = m_root->path() + QStringLiteral("/no-shell");
    RVRepair repair(paths);
    const QSignalSpy errors(&repair, &QProcess::errorOccurred);
    repair.configure();
    QTRY_COMPARE(errors.size(), 1);
    QCOMPARE(repair.error(), QProcess::FailedToStart);
}

QTEST_GUILESS_MAIN(tst_RVRepair)
#include "tst_RVRepair.moc"

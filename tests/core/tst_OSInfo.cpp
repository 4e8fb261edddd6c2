// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/OSInfo.h"
#include "tests/support/CpuCost.h"
#include "tests/support/FakeRoot.h"
#include "tests/support/LogFile.h"
#include "tests/support/OrdinaryUser.h"
#include "tests/support/WarningGuard.h"

#include <QDir>
#include <QElapsedTimer>
#include <QTest>

#include <apt-pkg/error.h>

#include <csignal>
#include <dirent.h>
#include <sys/stat.h>
#include <unistd.h>

class tst_OSInfo : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void imageId_data();
    void imageId();
    void missingImageIdThrows();
    void unreadableImageIdThrows();
    void vanishedImageIdKeepsItsValue();
    void imageIdThatIsNoFile();
    void imageIdBeyondTheBound();

    void servicePacks_data();
    void servicePacks();
    void servicePacksInOrderOfTheDirectory();
    void servicePackDirIsMissing();
    void servicePackDirIsAFile();
    void servicePackEntriesThatAreNoFiles();
    void servicePackFileBeyondTheBound();
    void unreadableServicePackFile();
    void manyServicePacks();

    void packages_data();
    void packages();
    void packageStates_data();
    void packageStates();
    void packagesOfAnotherArchitecture_data();
    void packagesOfAnotherArchitecture();
    void packageNamesFromAnyone();
    void brokenDatabase_data();
    void brokenDatabase();
    void databaseOfTheRunningSystem();
    void severalRootsInOneProcess();
    void errorsOfOthersAreLeftAlone();

    void thinClient_data();
    void thinClient();
    void missingTool();
    void toolThatIsNotExecutable();
    void toolThatCannotStart();
    void slowTool();
    void toolThatClosesItsOutput();
    void endlessTool();
    void toolLeavesNoZombie();

    void architecture();
    void refreshReadsEverythingAgain();
    void logLines();
    void logsProgress();

private:
    std::unique_ptr<LogFile> m_log;
    std::unique_ptr<FakeRoot> m_root;
    std::unique_ptr<WarningGuard> m_warnings;
};

namespace
{

QStringList textsOf(const QList<VersionString> &versions)
{
    QStringList texts;
    for (const VersionString &version : versions) {
        texts.append(version.toString());
    }
    return texts;
}

/// 0 when nothing was thrown.
int thrownBy(const RVPaths &paths)
{
    try {
        const OSInfo info(nullptr, paths);
    } catch (OSInfoBaseClass::ExceptionType type) {
        return type;
    }
    return 0;
}

} // namespace

void tst_OSInfo::init()
{
    m_log = std::make_unique<LogFile>();
    m_root = std::make_unique<FakeRoot>();
    m_warnings = std::make_unique<WarningGuard>();
}

void tst_OSInfo::cleanup()
{
    m_warnings.reset();
    m_root.reset();
    m_log.reset();
}

void tst_OSInfo::imageId_data()
{
    QTest::addColumn<QByteArray>("contents");
    QTest::addColumn<QString>("expected");
    QTest::newRow("no line end") << QByteArray("6.1.0") << QStringLiteral("6.1.0");
    QTest::newRow("line feed") << QByteArray("6.1.0\n") << QStringLiteral("6.1.0");
    QTest::newRow("carriage return and line feed")
        << QByteArray("6.1.0\r\n") << QStringLiteral("6.1.0");
    QTest::newRow("several line ends") << QByteArray("6.1.0\n\r\n\n") << QStringLiteral("6.1.0");
    QTest::newRow("blanks stay") << QByteArray(" 6.1.0 \n") << QStringLiteral(" 6.1.0 ");
    QTest::newRow("inner lines stay") << QByteArray("6.1\n0\n") << QStringLiteral("6.1\n0");
    QTest::newRow("UTF-8") << QByteArray("6.1 \xc3\xa9\n") << QString::fromUtf8("6.1 \u00e9");
    QTest::newRow("empty") << QByteArray() << QString();
    QTest::newRow("only line ends") << QByteArray("\r\n\r\n") << QString();
}

void tst_OSInfo::imageId()
{
    QFETCH(QByteArray, contents);
    QFETCH(QString, expected);
    m_root->setImageId(contents);
    const OSInfo info(nullptr, m_root->paths());
    QCOMPARE(info.baseOSName().toString(), expected);
}

void tst_OSInfo::missingImageIdThrows()
{
    QVERIFY(QFile::remove(m_root->paths().imageId));
    QCOMPARE(thrownBy(m_root->paths()), 1);
    QCOMPARE(m_log->lines(), QStringList());
    // The object that was not made is no child either.
    QObject parent;
    try {
        new OSInfo(&parent, m_root->paths());
        QFAIL("nothing was thrown");
    } catch (OSInfoBaseClass::ExceptionType type) {
        QCOMPARE(type, OSInfoBaseClass::ImageIdUnreadable);
    }
    QVERIFY(parent.children().isEmpty());
}

void tst_OSInfo::unreadableImageIdThrows()
{
    QVERIFY(QFile::setPermissions(m_root->paths().imageId, {}));
    ::chmod(QFile::encodeName(m_root->path()).constData(), 0755);
    const QString result = OrdinaryUser::run(m_root->path(), [] {
        RVPaths paths;
        paths.imageId = QStringLiteral("etc/imageid");
        return QString::number(thrownBy(paths));
    });
    QCOMPARE(result, QStringLiteral("1"));
}

void tst_OSInfo::vanishedImageIdKeepsItsValue()
{
    OSInfo info(nullptr, m_root->paths());
    QVERIFY(QFile::remove(m_root->paths().imageId));
    m_log->clear();
    info.refresh();
    QCOMPARE(info.baseOSName().toString(), QStringLiteral("6.1.0"));
    QVERIFY(m_log->contains(QStringLiteral("Base OS: 6.1.0")));
}

void tst_OSInfo::imageIdThatIsNoFile()
{
    const QString path = m_root->paths().imageId;
    OSInfo info(nullptr, m_root->paths());
    QVERIFY(QFile::remove(path));
    QCOMPARE(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    info.refresh();
    QCOMPARE(info.baseOSName().toString(), QStringLiteral("6.1.0"));

    QVERIFY(QFile::remove(path));
    QVERIFY(QDir().mkdir(path));
    info.refresh();
    QCOMPARE(info.baseOSName().toString(), QStringLiteral("6.1.0"));
    QCOMPARE(OSInfo(nullptr, m_root->paths()).baseOSName().toString(), QString());
}

void tst_OSInfo::imageIdBeyondTheBound()
{
    OSInfo info(nullptr, m_root->paths());
    m_root->setImageId(QByteArray(1024 * 1024, '1'));
    info.refresh();
    QCOMPARE(info.baseOSName().toString().size(), 1024 * 1024);
    m_root->setImageId(QByteArray(1024 * 1024 + 1, '2'));
    info.refresh();
    QCOMPARE(info.baseOSName().toString().at(0), QLatin1Char('1'));
}

void tst_OSInfo::servicePacks_data()
{
    QTest::addColumn<QByteArray>("contents");
    QTest::addColumn<QStringList>("expected");
    const QString one = QStringLiteral("SP1");
    const QString two = QStringLiteral("SP2");
    QTest::newRow("empty file") << QByteArray() << QStringList{};
    QTest::newRow("one line") << QByteArray("SP1\n") << QStringList{one};
    QTest::newRow("no line feed at the end") << QByteArray("SP1\nSP2") << QStringList{one, two};
    QTest::newRow("carriage returns") << QByteArray("SP1\r\nSP2\r\r\n") << QStringList{one, two};
    QTest::newRow("twice in one file") << QByteArray("SP2\nSP1\nSP2\n") << QStringList{two, one};
    QTest::newRow("equal but for the line end") << QByteArray("SP1\r\nSP1\n") << QStringList{one};
    QTest::newRow("blank lines give one empty entry")
        << QByteArray("SP1\n\n\r\nSP2\n") << QStringList{one, QString(), two};
    QTest::newRow("only a blank line") << QByteArray("\n") << QStringList{QString()};
    QTest::newRow("blanks stay") << QByteArray(" SP1 \n") << QStringList{QStringLiteral(" SP1 ")};
    QTest::newRow("case counts") << QByteArray("SP1\nsp1\n")
                                 << QStringList{one, QStringLiteral("sp1")};
    QTest::newRow("UTF-8") << QByteArray("\xc3\xa9\n") << QStringList{QString::fromUtf8("\u00e9")};
}

void tst_OSInfo::servicePacks()
{
    QFETCH(QByteArray, contents);
    QFETCH(QStringList, expected);
    m_root->addServicePackFile(QStringLiteral("list"), contents);
    const OSInfo info(nullptr, m_root->paths());
    QCOMPARE(textsOf(info.servicePackList()), expected);
}

void tst_OSInfo::servicePacksInOrderOfTheDirectory()
{
    for (const char name : {'c', 'a', 'd', 'b'}) {
        m_root->addServicePackFile(QString(QLatin1Char(name)),
                                   QByteArray("common\nonly in ") + name + '\n');
    }
    m_root->addServicePackFile(QStringLiteral(".hidden"), "only in hidden\n");

    QStringList expected;
    DIR *dir = ::opendir(QFile::encodeName(m_root->paths().servicePackDir).constData());
    QVERIFY(dir);
    while (const dirent *entry = ::readdir(dir)) {
        const QString name = QString::fromLatin1(entry->d_name);
        if (name == QLatin1String(".hidden")) {
            expected << QStringLiteral("only in hidden");
        } else if (name.at(0) != QLatin1Char('.')) {
            expected << QStringLiteral("common") << QStringLiteral("only in ") + name;
        }
    }
    ::closedir(dir);
    expected.removeDuplicates();
    QCOMPARE(expected.size(), 6);

    const OSInfo info(nullptr, m_root->paths());
    QCOMPARE(textsOf(info.servicePackList()), expected);
}

void tst_OSInfo::servicePackDirIsMissing()
{
    const OSInfo info(nullptr, m_root->paths());
    QVERIFY(info.servicePackList().isEmpty());
    QVERIFY(m_log->contains(QStringLiteral("Service Pack List:")));
}

void tst_OSInfo::servicePackDirIsAFile()
{
    FakeRoot::write(m_root->paths().servicePackDir, "SP1\n");
    const OSInfo info(nullptr, m_root->paths());
    QVERIFY(info.servicePackList().isEmpty());
}

void tst_OSInfo::servicePackEntriesThatAreNoFiles()
{
    const QString dir = m_root->paths().servicePackDir;
    m_root->addServicePackFile(QStringLiteral("list"), "SP1\n");
    m_root->addServicePackFile(QStringLiteral("subdirectory/list"), "SP2\n");
    QCOMPARE(::mkfifo(QFile::encodeName(dir + QStringLiteral("/fifo")).constData(), 0600), 0);
    QVERIFY(QFile::link(QStringLiteral("/dev/zero"), dir + QStringLiteral("/device")));
    QVERIFY(QFile::link(QStringLiteral("nowhere"), dir + QStringLiteral("/dangling")));
    const OSInfo info(nullptr, m_root->paths());
    QCOMPARE(textsOf(info.servicePackList()), QStringList{QStringLiteral("SP1")});
}

void tst_OSInfo::servicePackFileBeyondTheBound()
{
    m_root->addServicePackFile(QStringLiteral("huge"), QByteArray(1024 * 1024, 'x') + '\n');
    m_root->addServicePackFile(QStringLiteral("list"), "SP1\n");
    const OSInfo info(nullptr, m_root->paths());
    QCOMPARE(textsOf(info.servicePackList()), QStringList{QStringLiteral("SP1")});
}

void tst_OSInfo::unreadableServicePackFile()
{
    m_root->addServicePackFile(QStringLiteral("closed"), "SP2\n");
    m_root->addServicePackFile(QStringLiteral("list"), "SP1\n");
    QVERIFY(QFile::setPermissions(m_root->paths().servicePackDir + QStringLiteral("/closed"), {}));
    ::chmod(QFile::encodeName(m_root->path()).constData(), 0755);
    const QString result = OrdinaryUser::run(m_root->path(), [] {
        RVPaths paths;
        paths.imageId = QStringLiteral("etc/imageid");
        paths.servicePackDir = QStringLiteral("etc/service-packs");
        return textsOf(OSInfo(nullptr, paths).servicePackList()).join(QLatin1Char(','));
    });
    QCOMPARE(result, QStringLiteral("SP1"));
}

void tst_OSInfo::manyServicePacks()
{
    constexpr int some = 12'500;
    QHash<int, QByteArray> contents;
    for (const int count : {some, 4 * some}) {
        for (int i = 0; i < count; ++i) {
            contents[count] += QByteArray::number(i) + '\n';
        }
    }
    QVERIFY(CpuCost::isLinear(
        [&](int count) {
            m_root->addServicePackFile(QStringLiteral("list"), contents.value(count));
            const OSInfo info(nullptr, m_root->paths());
            QCOMPARE(info.servicePackList().size(), count);
        },
        some));
}

void tst_OSInfo::packages_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("version");
    QTest::newRow("installed") << QStringLiteral("editor") << QStringLiteral("2.0-1");
    QTest::newRow("with an epoch") << QStringLiteral("viewer") << QStringLiteral("1:3.4~rc1-5");
    QTest::newRow("unpacked only") << QStringLiteral("half") << QString();
    QTest::newRow("known but not installed") << QStringLiteral("removed") << QString();
    QTest::newRow("known by a dependency only") << QStringLiteral("needed") << QString();
    QTest::newRow("unknown") << QStringLiteral("nothing") << QString();
    QTest::newRow("empty name") << QString() << QString();
    QTest::newRow("case counts") << QStringLiteral("Editor") << QString();
}

void tst_OSInfo::packageStates_data()
{
    QTest::addColumn<QByteArray>("status");
    QTest::addColumn<QString>("version");
    QTest::addColumn<bool>("isNotConfigured");
    const auto row = [](const char *status, const char *version, bool isNotConfigured) {
        QTest::newRow(status) << QByteArray(status) << QString::fromLatin1(version)
                              << isNotConfigured;
    };
    row("install ok installed", "1.1", false);
    row("hold ok installed", "1.1", false);
    row("install ok unpacked", "", true);
    row("install ok half-configured", "", true);
    row("install reinstreq half-installed", "", true);
    row("install ok triggers-awaited", "", true);
    row("install ok triggers-pending", "", true);
    row("deinstall ok config-files", "", false);
    row("purge ok not-installed", "", false);
}

void tst_OSInfo::packageStates()
{
    QFETCH(QByteArray, status);
    m_root->addPackage("tool", "1.1", status);
    const OSInfo info(nullptr, m_root->paths());
    QTEST(info.versionInstalled(QStringLiteral("tool")), "version");
    QTEST(info.isNotConfigured(QStringLiteral("tool")), "isNotConfigured");
}

void tst_OSInfo::packages()
{
    QFETCH(QString, name);
    QFETCH(QString, version);
    m_root->addPackage("editor", "2.0-1");
    m_root->addPackage("viewer", "1:3.4~rc1-5\nDepends: needed");
    m_root->addPackage("half", "1.1", "install ok half-configured");
    m_root->addPackage("removed", "0.9", "deinstall ok config-files");
    const OSInfo info(nullptr, m_root->paths());
    QCOMPARE(info.versionInstalled(name), version);
}

void tst_OSInfo::packagesOfAnotherArchitecture_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("version");
    QTest::newRow("of the device") << QStringLiteral("editor") << QStringLiteral("1");
    QTest::newRow("of all") << QStringLiteral("viewer") << QStringLiteral("2");
    QTest::newRow("of both") << QStringLiteral("player") << QStringLiteral("4");
    QTest::newRow("removed of the device") << QStringLiteral("clock") << QStringLiteral("5");
    QTest::newRow("of no system here") << QStringLiteral("kernel") << QString();
    QTest::newRow("only needed there") << QStringLiteral("needed") << QString();
    QTest::newRow("a name with another architecture")
        << QStringLiteral("editor:sparc64") << QString();
}

// A device's image that is mounted on a workstation.
void tst_OSInfo::packagesOfAnotherArchitecture()
{
    QFETCH(QString, name);
    QFETCH(QString, version);
    const QByteArray installed = "install ok installed";
    m_root->addPackage("editor", "1\nDepends: needed", installed, "armel");
    m_root->addPackage("viewer", "2", installed, "all");
    m_root->addPackage("player", "3", installed, "all");
    m_root->addPackage("player", "4", installed, "armel");
    m_root->addPackage("clock", "5", installed, "all");
    m_root->addPackage("clock", "6", "deinstall ok config-files", "armel");
    m_root->addPackage("kernel", "7", installed, "sparc64");
    const OSInfo info(nullptr, m_root->paths());
    QCOMPARE(info.versionInstalled(name), version);
}

void tst_OSInfo::packageNamesFromAnyone()
{
    m_root->addPackage("editor", "2.0-1");
    const OSInfo info(nullptr, m_root->paths());
    const QStringList names{
        QString(1 << 20, QLatin1Char('a')),
        QString::fromUtf8("editor\u00e9"),
        QString::fromUtf8("\u0663\u4e2d"),
        QStringLiteral("editor\n"),
        QStringLiteral("../editor"),
        QStringLiteral("%s%n"),
        QString(QChar(0)),
        QStringLiteral(":"),
        QStringLiteral("editor:nowhere"),
    };
    for (const QString &name : names) {
        QCOMPARE(info.versionInstalled(name), QString());
    }
    QCOMPARE(info.versionInstalled(QStringLiteral("editor")), QStringLiteral("2.0-1"));
}

void tst_OSInfo::brokenDatabase_data()
{
    QTest::addColumn<QByteArray>("contents");
    QTest::newRow("no database at all") << QByteArray("garbage\n");
    QTest::newRow("no package name") << QByteArray("Version: 1\nStatus: install ok installed\n\n");
    QTest::newRow("cut off") << QByteArray("Package: editor\nStatus: install ok inst");
}

void tst_OSInfo::brokenDatabase()
{
    QFETCH(QByteArray, contents);
    m_root->addPackage("editor", "2.0-1");
    OSInfo info(nullptr, m_root->paths());
    QCOMPARE(info.versionInstalled(QStringLiteral("editor")), QStringLiteral("2.0-1"));

    FakeRoot::write(m_root->paths().packageStatus, contents);
    info.refresh();
    QCOMPARE(info.versionInstalled(QStringLiteral("editor")), QString());
    QVERIFY(_error->empty(GlobalError::DEBUG));

    // A failure does not stay: the next refresh finds a database that is whole again.
    FakeRoot::write(m_root->paths().packageStatus, {});
    m_root->addPackage("editor", "2.1-1");
    info.refresh();
    QCOMPARE(info.versionInstalled(QStringLiteral("editor")), QStringLiteral("2.1-1"));
}

void tst_OSInfo::databaseOfTheRunningSystem()
{
    RVPaths paths = m_root->paths();
    m_root->addPackage("editor", "2.0-1");
    const OSInfo below(nullptr, paths);
    QVERIFY(below.versionInstalled(QStringLiteral("dpkg")).isEmpty());
    // No status file named: the library's own database, whatever was used before.
    paths.packageStatus.clear();
    const OSInfo info(nullptr, paths);
    QVERIFY(!info.versionInstalled(QStringLiteral("dpkg")).isEmpty());
    QVERIFY(info.versionInstalled(QStringLiteral("editor")).isEmpty());
}

void tst_OSInfo::severalRootsInOneProcess()
{
    const FakeRoot other;
    const QString editor = QStringLiteral("editor");
    m_root->addPackage("editor", "1.0");
    other.addPackage("editor", "2.0");
    OSInfo first(nullptr, m_root->paths());
    OSInfo second(nullptr, other.paths());
    QCOMPARE(first.versionInstalled(editor), QStringLiteral("1.0"));
    QCOMPARE(second.versionInstalled(editor), QStringLiteral("2.0"));

    other.addPackage("viewer", "4");
    first.refresh();
    second.refresh();
    QCOMPARE(first.versionInstalled(editor), QStringLiteral("1.0"));
    QCOMPARE(second.versionInstalled(editor), QStringLiteral("2.0"));
    QCOMPARE(second.versionInstalled(QStringLiteral("viewer")), QStringLiteral("4"));
}

void tst_OSInfo::errorsOfOthersAreLeftAlone()
{
    m_root->addPackage("editor", "1.0");
    _error->Error("left by another");
    const OSInfo info(nullptr, m_root->paths());
    QCOMPARE(info.versionInstalled(QStringLiteral("editor")), QStringLiteral("1.0"));
    QVERIFY(!m_log->contains(QStringLiteral("left by another")));
    QVERIFY(_error->PendingError());
    _error->Discard();
}

void tst_OSInfo::thinClient_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QString>("expected");
    QTest::newRow("plain") << QByteArray("echo T430") << QStringLiteral("T430");
    QTest::newRow("the argument") << QByteArray("echo \"$#:$1\"") << QStringLiteral("1:--hw");
    QTest::newRow("line ends") << QByteArray("printf 'T430\\r\\n\\n'") << QStringLiteral("T430");
    QTest::newRow("inner lines stay")
        << QByteArray("printf 'T430\\nrev 2\\n'") << QStringLiteral("T430\nrev 2");
    QTest::newRow("up to the first NUL")
        << QByteArray("printf 'T430\\n\\0rest'") << QStringLiteral("T430");
    QTest::newRow("NUL first") << QByteArray("printf '\\0rest'") << QString();
    QTest::newRow("nothing") << QByteArray("true") << QString();
    QTest::newRow("errors are not output")
        << QByteArray("echo T430; echo oops >&2") << QStringLiteral("T430");
    QTest::newRow("exit status does not matter")
        << QByteArray("echo T430; exit 3") << QStringLiteral("T430");
    QTest::newRow("killed by a signal")
        << QByteArray("echo T430; kill -9 $$") << QStringLiteral("T430");
}

void tst_OSInfo::thinClient()
{
    QFETCH(QByteArray, script);
    QFETCH(QString, expected);
    m_root->setHardwareTool(script);
    const OSInfo info(nullptr, m_root->paths());
    QCOMPARE(info.thinClient(), expected);
}

void tst_OSInfo::missingTool()
{
    const OSInfo info(nullptr, m_root->paths());
    QCOMPARE(info.thinClient(), QString());
}

void tst_OSInfo::toolThatIsNotExecutable()
{
    m_root->setHardwareTool("echo T430");
    QVERIFY(QFile::setPermissions(m_root->paths().hardwareTool, QFile::ReadOwner));
    const OSInfo info(nullptr, m_root->paths());
    QCOMPARE(info.thinClient(), QString());
}

void tst_OSInfo::toolThatCannotStart()
{
    FakeRoot::write(m_root->paths().hardwareTool, "#!/nowhere/interpreter\n");
    QVERIFY(
        QFile::setPermissions(m_root->paths().hardwareTool, QFile::ReadOwner | QFile::ExeOwner));
    const OSInfo info(nullptr, m_root->paths());
    QCOMPARE(info.thinClient(), QString());
}

void tst_OSInfo::slowTool()
{
    // Nor does it listen to a polite request to end.
    m_root->setHardwareTool("trap '' TERM; echo $$; while :; do sleep 1; done");
    QElapsedTimer timer;
    timer.start();
    const OSInfo info(nullptr, m_root->paths());
    const pid_t pid = info.thinClient().toInt();
    QVERIFY(pid > 0);
    QVERIFY2(timer.elapsed() >= 950, qPrintable(QString::number(timer.elapsed())));
    QTRY_VERIFY_WITH_TIMEOUT(::kill(pid, 0) == -1, 5000);
}

void tst_OSInfo::toolThatClosesItsOutput()
{
    m_root->setHardwareTool("echo T430; exec >&- 2>&-; exec sleep 1000");
    const OSInfo info(nullptr, m_root->paths());
    QCOMPARE(info.thinClient(), QStringLiteral("T430"));
}

void tst_OSInfo::endlessTool()
{
    m_root->setHardwareTool("exec yes T430");
    const OSInfo info(nullptr, m_root->paths());
    QVERIFY(info.thinClient().startsWith(QLatin1String("T430\nT430\n")));
    QVERIFY(info.thinClient().size() <= 64 * 1024);
}

void tst_OSInfo::toolLeavesNoZombie()
{
    m_root->setHardwareTool("echo $$");
    const OSInfo info(nullptr, m_root->paths());
    const pid_t pid = info.thinClient().toInt();
    QVERIFY(pid > 0);
    QTRY_VERIFY_WITH_TIMEOUT(::kill(pid, 0) == -1, 5000);
}

void tst_OSInfo::architecture()
{
    QCOMPARE(OSInfo(nullptr, m_root->paths()).architecture(), QStringLiteral("armel"));
}

void tst_OSInfo::refreshReadsEverythingAgain()
{
    m_root->setHardwareTool("echo T430");
    m_root->addServicePackFile(QStringLiteral("list"), "SP1\n");
    m_root->addPackage("editor", "1.0");
    OSInfo info(nullptr, m_root->paths());

    m_root->setImageId("6.2.0\n");
    m_root->addServicePackFile(QStringLiteral("list"), "SP2\n");
    FakeRoot::write(m_root->paths().packageStatus, {});
    m_root->addPackage("editor", "1.1");
    m_root->setHardwareTool("echo T630");
    info.refresh();
    QCOMPARE(info.baseOSName().toString(), QStringLiteral("6.2.0"));
    QCOMPARE(textsOf(info.servicePackList()), QStringList{QStringLiteral("SP2")});
    QCOMPARE(info.versionInstalled(QStringLiteral("editor")), QStringLiteral("1.1"));
    // The hardware does not change while the program runs.
    QCOMPARE(info.thinClient(), QStringLiteral("T430"));
}

void tst_OSInfo::logLines()
{
    m_root->setImageId("6.1 \xc3\xa9 %s\r\n");
    m_root->addServicePackFile(QStringLiteral("list"), "SP1\nSP \xc3\xa9 %n\n");
    FakeRoot::write(m_root->paths().packageStatus, "garbage\n");
    OSInfo info(nullptr, m_root->paths());
    QStringList expected{
        QString::fromUtf8("Base OS: 6.1 \u00e9 %s"),
        QStringLiteral("Service Pack List:"),
        QStringLiteral("    -> SP1"),
        QString::fromUtf8("    -> SP \u00e9 %n"),
    };
    QStringList lines = m_log->lines();
    QCOMPARE(lines.mid(0, 4), expected);
    QCOMPARE(lines.size(), 5);
    QVERIFY(lines.at(4).contains(m_root->paths().packageStatus));
}

void tst_OSInfo::logsProgress()
{
    m_root->addServicePackFile(QStringLiteral("list"), "SP1\n");
    OSInfo info(nullptr, m_root->paths());
    for (const char *line : {"Base OS: 6.1.0", "Service Pack List:", "    -> SP1"}) {
        QCOMPARE(m_log->levelOf(QLatin1String(line),
                                [&info] {
                                    info.refresh();
                                }),
                 5);
    }
}

QTEST_GUILESS_MAIN(tst_OSInfo)
#include "tst_OSInfo.moc"

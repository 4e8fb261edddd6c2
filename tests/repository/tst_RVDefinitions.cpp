// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "repository/RVDefinitions.h"
#include "repository/RVRepDesc.h"
#include "tests/support/LogFile.h"
#include "tests/support/Privileges.h"
#include "tests/support/WarningGuard.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>
#include <sys/stat.h>

namespace
{

/// A definition file with one repository for each key.
QByteArray definition(const QStringList &keys)
{
    QString xml = QStringLiteral("<repository_list>");
    for (const QString &key : keys) {
        xml += QStringLiteral("<repository><settings_key>%1</settings_key></repository>").arg(key);
    }
    return (xml + QStringLiteral("</repository_list>")).toUtf8();
}

QString keysOf(const RVDefinitions::List &list)
{
    QStringList keys;
    for (const auto &desc : list) {
        keys.append(desc->settingsKey);
    }
    return keys.join(QLatin1Char(' '));
}

} // namespace

class tst_RVDefinitions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void readsTheFilesInNameOrder();
    void missingDirectory_data();
    void missingDirectory();
    void noRepositories_data();
    void noRepositories();
    void skipsWhatIsNoReadableFile();
    void readsThroughLinks();
    void badFileEndsTheScan();
    void badFiles_data();
    void badFiles();
    void readsDirectChildrenOnly();
    void logsEachFile();
    void logsWhereTheXmlIsBad();
    void logsByWeight_data();
    void logsByWeight();
    void fileThatIsMissingContributesNothing();
    void keepsNamespacePrefixes();
    void appendsToTheList();

private:
    void write(const QString &name, const QByteArray &content);
    QString path(const QString &name) const
    {
        return m_paths.definitionDir + QLatin1Char('/') + name;
    }

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<LogFile> m_log;
    std::unique_ptr<WarningGuard> m_guard;
    RVPaths m_paths;
    RVDefinitions::List m_list;
};

void tst_RVDefinitions::initTestCase()
{
    QVERIFY(obeyFilePermissions());
}

void tst_RVDefinitions::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    m_log = std::make_unique<LogFile>();
    m_guard = std::make_unique<WarningGuard>();
    m_paths.definitionDir = m_dir->filePath(QStringLiteral("repositories"));
    m_list.clear();
    QVERIFY(QDir().mkdir(m_paths.definitionDir));
}

void tst_RVDefinitions::cleanup()
{
    m_guard.reset();
    m_log.reset();
}

void tst_RVDefinitions::write(const QString &name, const QByteArray &content)
{
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), content.size());
}

void tst_RVDefinitions::readsTheFilesInNameOrder()
{
    write(QStringLiteral("c.XML"), definition({QStringLiteral("c1"), QStringLiteral("c2")}));
    write(QStringLiteral("b.xml"), definition({QStringLiteral("b")}));
    write(QStringLiteral("d.txt"), definition({QStringLiteral("d")}));
    write(QStringLiteral("A.xml"), definition({QStringLiteral("a2"), QStringLiteral("a1")}));
    write(QStringLiteral("e.xml.bak"), definition({QStringLiteral("e")}));
    write(QStringLiteral("fxml"), definition({QStringLiteral("f")}));
    write(QStringLiteral(".g.xml"), definition({QStringLiteral("g")}));
    QCOMPARE(RVDefinitions::readDirectory(m_paths, &m_list), RVDefinitions::NoError);
    QCOMPARE(keysOf(m_list), QStringLiteral("a2 a1 b c1 c2"));
}

void tst_RVDefinitions::missingDirectory_data()
{
    QTest::addColumn<bool>("isFile");
    QTest::newRow("nothing there") << false;
    QTest::newRow("a file") << true;
}

void tst_RVDefinitions::missingDirectory()
{
    QFETCH(bool, isFile);
    QVERIFY(QDir().rmdir(m_paths.definitionDir));
    if (isFile) {
        QFile file(m_paths.definitionDir);
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    m_guard->allow(QString());
    QCOMPARE(RVDefinitions::readDirectory(m_paths, &m_list), RVDefinitions::NoDefinitionDirectory);
    QCOMPARE(static_cast<int>(RVDefinitions::NoDefinitionDirectory), 1);
    const QString rule(52, QLatin1Char('*'));
    QCOMPARE(
        m_guard->messages(),
        (QStringList{rule, QStringLiteral("CRITICAL:  CANNOT FIND REPOSITORY DEFINITION DIRECTORY"),
                     QStringLiteral("  ") + m_paths.definitionDir, rule}));
    QCOMPARE(m_log->lines(),
             (QStringList{QStringLiteral("Abort: Cannot find repository definition directory"),
                          m_paths.definitionDir}));
    QVERIFY(m_list.empty());

    // Not a warning.
    m_guard.reset();
    for (const QString &message :
         {rule, QStringLiteral("CRITICAL:  CANNOT FIND REPOSITORY DEFINITION DIRECTORY"),
          QStringLiteral("  ") + m_paths.definitionDir, rule}) {
        QTest::ignoreMessage(QtCriticalMsg, qUtf8Printable(message));
    }
    RVDefinitions::readDirectory(m_paths, &m_list);
    m_guard = std::make_unique<WarningGuard>();
}

void tst_RVDefinitions::noRepositories_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("no file") << QByteArray();
    QTest::newRow("empty list") << QByteArray("<repository_list/>");
    QTest::newRow("other children") << QByteArray("<repository_list><x/>text</repository_list>");
}

void tst_RVDefinitions::noRepositories()
{
    QFETCH(QByteArray, content);
    if (!content.isEmpty()) {
        write(QStringLiteral("a.xml"), content);
    }
    QCOMPARE(RVDefinitions::readDirectory(m_paths, &m_list), RVDefinitions::NoRepositories);
    QCOMPARE(static_cast<int>(RVDefinitions::NoRepositories), 3);
    QCOMPARE(m_log->lines().last(), QStringLiteral("NO REPOSITORIES DEFINED!"));
}

void tst_RVDefinitions::skipsWhatIsNoReadableFile()
{
    write(QStringLiteral("a.xml"), "this is not XML, and nobody reads it");
    QVERIFY(QFile::setPermissions(path(QStringLiteral("a.xml")), {}));
    QVERIFY(QDir().mkdir(path(QStringLiteral("b.xml"))));
    QCOMPARE(mkfifo(QFile::encodeName(path(QStringLiteral("c.xml"))).constData(), 0600), 0);
    QVERIFY(QFile::link(path(QStringLiteral("nowhere")), path(QStringLiteral("d.xml"))));
    write(QStringLiteral("e.xml"), definition({QStringLiteral("e")}));
    QCOMPARE(RVDefinitions::readDirectory(m_paths, &m_list), RVDefinitions::NoError);
    QCOMPARE(keysOf(m_list), QStringLiteral("e"));
    QCOMPARE(m_log->lines().size(), 1);
    // The same for each on its own.
    for (const char *name : {"a.xml", "b.xml", "c.xml", "d.xml"}) {
        QCOMPARE(RVDefinitions::readFile(path(QLatin1String(name)), &m_list),
                 RVDefinitions::NoError);
    }
    QCOMPARE(m_list.size(), 1U);
    QCOMPARE(m_log->lines().size(), 1);
}

void tst_RVDefinitions::readsThroughLinks()
{
    write(QStringLiteral("kept.txt"), definition({QStringLiteral("linked")}));
    QVERIFY(QFile::link(path(QStringLiteral("kept.txt")), path(QStringLiteral("a.xml"))));
    QCOMPARE(RVDefinitions::readDirectory(m_paths, &m_list), RVDefinitions::NoError);
    QCOMPARE(keysOf(m_list), QStringLiteral("linked"));
}

void tst_RVDefinitions::badFileEndsTheScan()
{
    write(QStringLiteral("1.xml"), definition({QStringLiteral("one")}));
    write(QStringLiteral("2.xml"), "<repository_list>");
    write(QStringLiteral("3.xml"), definition({QStringLiteral("three")}));
    QCOMPARE(RVDefinitions::readDirectory(m_paths, &m_list), RVDefinitions::BadDefinitionFile);
    QCOMPARE(static_cast<int>(RVDefinitions::BadDefinitionFile), 2);
    QCOMPARE(keysOf(m_list), QStringLiteral("one"));
    QVERIFY(!m_log->raw().contains("3.xml"));
}

void tst_RVDefinitions::badFiles_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("log");
    const QString bad = QStringLiteral("BAD XML CONTENT!");
    const QString root = QStringLiteral("TOP ELEMENT NOT repository_list!");
    QTest::newRow("empty file") << QByteArray() << bad;
    QTest::newRow("no XML") << QByteArray("hello") << bad;
    QTest::newRow("cut off") << QByteArray("<repository_list><repository>") << bad;
    QTest::newRow("two roots") << QByteArray("<repository_list/><repository_list/>") << bad;
    QTest::newRow("zero bytes") << QByteArray(100, '\0') << bad;
    QTest::newRow("nested too deeply") << "<repository_list>" + QByteArray("<a>").repeated(30000)
            + QByteArray("</a>").repeated(30000)
            + "</repository_list>" << bad;
    QTest::newRow("larger than is read")
        << "<repository_list><!--" + QByteArray(17 * 1024 * 1024, ' ') + "--></repository_list>"
        << bad;
    QTest::newRow("other root") << QByteArray("<repositories/>") << root;
    QTest::newRow("root in capitals") << QByteArray("<Repository_List/>") << root;
    QTest::newRow("repository as root") << QByteArray("<repository/>") << root;
}

void tst_RVDefinitions::badFiles()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, log);
    write(QStringLiteral("a.xml"), content);
    QCOMPARE(RVDefinitions::readDirectory(m_paths, &m_list), RVDefinitions::BadDefinitionFile);
    QCOMPARE(m_log->lines().value(1), log);
    QVERIFY(m_list.empty());
}

void tst_RVDefinitions::readsDirectChildrenOnly()
{
    write(
        QStringLiteral("a.xml"),
        "<repository_list><group><repository><settings_key>deep</settings_key></repository></group>"
        "<Repository><settings_key>capital</settings_key></Repository>"
        "<repository><settings_key>one</settings_key></repository>"
        "<!-- <repository/> --><repositoryx/>"
        "<repository><settings_key>two</settings_key></repository></repository_list>");
    QCOMPARE(RVDefinitions::readDirectory(m_paths, &m_list), RVDefinitions::NoError);
    QCOMPARE(keysOf(m_list), QStringLiteral("one two"));
}

void tst_RVDefinitions::logsEachFile()
{
    write(QStringLiteral("a.xml"), definition({QStringLiteral("a")}));
    write(QStringLiteral("b%s.xml"), definition({QStringLiteral("b")}));
    QCOMPARE(RVDefinitions::readDirectory(m_paths, &m_list), RVDefinitions::NoError);
    QCOMPARE(m_log->lines(),
             (QStringList{QStringLiteral("  XML using '") + path(QStringLiteral("a.xml'")),
                          QStringLiteral("  XML using '") + path(QStringLiteral("b%s.xml'"))}));
}

void tst_RVDefinitions::logsWhereTheXmlIsBad()
{
    write(QStringLiteral("a.xml"), "<repository_list>\n  <repository>\n</repository_list>\n");
    QCOMPARE(RVDefinitions::readDirectory(m_paths, &m_list), RVDefinitions::BadDefinitionFile);
    const QStringList lines = m_log->lines();
    QCOMPARE(lines.size(), 3);
    QCOMPARE(lines[1], QStringLiteral("BAD XML CONTENT!"));
    QVERIFY2(
        QRegularExpression(QStringLiteral("^  .+, line 3, col \\d+$")).match(lines[2]).hasMatch(),
        qUtf8Printable(lines[2]));
}

void tst_RVDefinitions::logsByWeight_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("line");
    QTest::addColumn<int>("level");
    const QByteArray cut = "<repository_list>";
    QTest::newRow("no directory") << QByteArray()
                                  << QStringLiteral(
                                         "Abort: Cannot find repository definition directory")
                                  << 0;
    QTest::newRow("nothing defined")
        << QByteArray("<repository_list/>") << QStringLiteral("NO REPOSITORIES DEFINED!") << 2;
    QTest::newRow("bad XML") << cut << QStringLiteral("BAD XML CONTENT!") << 3;
    QTest::newRow("where it is bad")
        << cut << QStringLiteral("  unexpected end of file, line 1, col 18") << 3;
    QTest::newRow("other root") << QByteArray("<list/>")
                                << QStringLiteral("TOP ELEMENT NOT repository_list!") << 3;
    QTest::newRow("each file") << QByteArray("<repository_list/>")
                               << QStringLiteral("  XML using '%1'") << 5;
}

void tst_RVDefinitions::logsByWeight()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, line);
    QFETCH(int, level);
    m_guard->allow(QString());
    if (content.isEmpty()) {
        QVERIFY(QDir().rmdir(m_paths.definitionDir));
    } else {
        write(QStringLiteral("a.xml"), content);
    }
    line.replace(QLatin1String("%1"), path(QStringLiteral("a.xml")));
    QCOMPARE(m_log->levelOf(line,
                            [this] {
                                RVDefinitions::readDirectory(m_paths, &m_list);
                            }),
             level);
}

void tst_RVDefinitions::fileThatIsMissingContributesNothing()
{
    QCOMPARE(RVDefinitions::readFile(path(QStringLiteral("none.xml")), &m_list),
             RVDefinitions::NoError);
    QVERIFY(m_list.empty());
    QVERIFY(m_log->lines().isEmpty());
}

void tst_RVDefinitions::keepsNamespacePrefixes()
{
    write(QStringLiteral("a.xml"),
          "<repository_list xmlns:x=\"urn:x\"><x:repository/>"
          "<repository "
          "xmlns=\"urn:y\"><settings_key>k</settings_key></repository></repository_list>");
    QCOMPARE(RVDefinitions::readDirectory(m_paths, &m_list), RVDefinitions::NoError);
    QCOMPARE(keysOf(m_list), QStringLiteral("k"));
}

void tst_RVDefinitions::appendsToTheList()
{
    write(QStringLiteral("a.xml"), definition({QStringLiteral("a")}));
    QCOMPARE(RVDefinitions::readFile(path(QStringLiteral("a.xml")), &m_list),
             RVDefinitions::NoError);
    QCOMPARE(RVDefinitions::readFile(path(QStringLiteral("a.xml")), &m_list),
             RVDefinitions::NoError);
    QCOMPARE(keysOf(m_list), QStringLiteral("a a"));
}

QTEST_GUILESS_MAIN(tst_RVDefinitions)
#include "tst_RVDefinitions.moc"

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "repository/RVSelection.h"
#include "tests/support/LogFile.h"

#include <QBuffer>
#include <QHash>
#include <QtTest>

namespace
{

class TestSystem : public OSInfoBaseClass
{
public:
    QHash<QString, QString> installed;
    QStringList notConfigured;

    QString imageId;

    VersionString baseOSName() const override { return VersionString(imageId); }
    QList<VersionString> servicePackList() const override { return {}; }
    QString versionInstalled(const QString &name) const override { return installed.value(name); }
    QString architecture() const override { return {}; }
    QString thinClient() const override { return {}; }
    void refresh() override { }
    bool isNotConfigured(const QString &name) const override
    {
        return notConfigured.contains(name);
    }
};

RVData entryOf(const QString &name, const QString &version,
               const QString &suffix = QStringLiteral("deb"))
{
    const RVData entry(QUrl(QStringLiteral("http://h/%1.%2").arg(name, suffix)),
                       QUrl(QStringLiteral("http://h/%1.xml").arg(name)));
    QBuffer document;
    document.setData(QStringLiteral("<update_data><name>%1</name><version>%2</version>"
                                    "</update_data>")
                         .arg(name, version)
                         .toUtf8());
    entry.descriptor()->read(&document);
    return entry;
}

} // namespace

class tst_RVSelection : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void versions_data();
    void versions();
    void onePickIsTheFirstOrNone_data();
    void onePickIsTheFirstOrNone();
    void unknownSystem();
    void entryWithoutDescriptor();
    void runningImage_data();
    void runningImage();

private:
    const LogFile m_log;
};

void tst_RVSelection::versions_data()
{
    QTest::addColumn<QString>("installed");
    QTest::addColumn<QString>("offered");
    QTest::addColumn<int>("current");
    QTest::addColumn<bool>("preselected");
    const auto row = [](const char *title, const char *installed, const char *offered,
                        RVProposal::Installed current, bool preselected) {
        QTest::newRow(title) << QString::fromLatin1(installed) << QString::fromLatin1(offered)
                             << static_cast<int>(current) << preselected;
    };
    row("older", "1.0", "1.1", RVProposal::Known, true);
    row("the same", "1.1", "1.1", RVProposal::Known, false);
    row("newer", "1.2", "1.1", RVProposal::Known, false);
    row("not installed", "", "1.1", RVProposal::NotInstalled, true);
    row("neither has a version", "", "", RVProposal::NotInstalled, false);
    row("an offer without a version", "1.0", "", RVProposal::Known, false);
    row("not configured", "~", "1.1", RVProposal::NotConfigured, true);
    row("not configured, an offer without a version", "~", "", RVProposal::NotConfigured, true);
}

void tst_RVSelection::versions()
{
    QFETCH(QString, installed);
    QFETCH(QString, offered);
    QFETCH(int, current);
    QFETCH(bool, preselected);
    TestSystem system;
    if (installed == QLatin1String("~")) {
        installed.clear();
        system.notConfigured.append(QStringLiteral("tool"));
    }
    system.installed.insert(QStringLiteral("tool"), installed);
    const QVector<RVProposal> result =
        proposals({entryOf(QStringLiteral("tool"), offered)}, &system, false);
    QCOMPARE(result.size(), 1);
    QCOMPARE(result.first().installed, installed);
    QCOMPARE(static_cast<int>(result.first().current), current);
    QCOMPARE(result.first().upToDate, !preselected);
    QCOMPARE(result.first().preselected, preselected);
}

void tst_RVSelection::onePickIsTheFirstOrNone_data()
{
    QTest::addColumn<QString>("installedFirst");
    QTest::addColumn<bool>("first");
    QTest::newRow("the first is newer") << QStringLiteral("1") << true;
    QTest::newRow("the first is installed") << QStringLiteral("3") << false;
}

void tst_RVSelection::onePickIsTheFirstOrNone()
{
    QFETCH(QString, installedFirst);
    QFETCH(bool, first);
    TestSystem system;
    system.installed.insert(QStringLiteral("a"), installedFirst);
    const QList<RVData> entries{entryOf(QStringLiteral("a"), QStringLiteral("3")),
                                entryOf(QStringLiteral("b"), QStringLiteral("2"))};
    const QVector<RVProposal> one = proposals(entries, &system, true);
    QCOMPARE(one.at(0).preselected, first);
    QVERIFY(!one.at(1).preselected);
    QVERIFY(!one.at(1).upToDate);
    const QVector<RVProposal> many = proposals(entries, &system, false);
    QCOMPARE(many.at(0).preselected, first);
    QVERIFY(many.at(1).preselected);
}

void tst_RVSelection::unknownSystem()
{
    const QVector<RVProposal> result =
        proposals({entryOf(QStringLiteral("tool"), QStringLiteral("1"))}, nullptr, false);
    QCOMPARE(result.first().current, RVProposal::Unknown);
    QVERIFY(result.first().preselected);
}

void tst_RVSelection::entryWithoutDescriptor()
{
    RVData entry = entryOf(QStringLiteral("tool"), QStringLiteral("1"));
    entry.clearDescriptor();
    const TestSystem system;
    const QVector<RVProposal> result = proposals({entry}, &system, false);
    QCOMPARE(result.first().current, RVProposal::Unknown);
    QVERIFY(!result.first().preselected);
    QVERIFY(!result.first().upToDate);
}

void tst_RVSelection::runningImage_data()
{
    QTest::addColumn<QString>("imageId");
    QTest::addColumn<QString>("version");
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<bool>("isRunning");
    const QString image = QStringLiteral("dd.gz");
    const QString id = QStringLiteral("6.2.0");
    QTest::newRow("the same") << id << id << image << true;
    QTest::newRow("older") << id << QStringLiteral("6.1.9") << image << false;
    QTest::newRow("another name for the same") << id << QStringLiteral("6.2.00") << image << false;
    QTest::newRow("longer") << id << QStringLiteral("6.2.0-1") << image << false;
    QTest::newRow("other letters")
        << QStringLiteral("6.2a") << QStringLiteral("6.2A") << image << false;
    QTest::newRow("escaped in the descriptor")
        << QStringLiteral("6<7") << QStringLiteral("6&lt;7") << image << true;
    QTest::newRow("neither has one") << QString() << QString() << image << false;
    QTest::newRow("a package of that version") << id << id << QStringLiteral("deb") << false;
}

void tst_RVSelection::runningImage()
{
    QFETCH(QString, version);
    QFETCH(QString, suffix);
    TestSystem system;
    QFETCH(QString, imageId);
    system.imageId = imageId;
    RVData entry = entryOf(QStringLiteral("tool"), version, suffix);
    QTEST(isRunningImage(entry, system), "isRunning");
    entry.clearDescriptor();
    QVERIFY(!isRunningImage(entry, system));
}

QTEST_GUILESS_MAIN(tst_RVSelection)
#include "tst_RVSelection.moc"

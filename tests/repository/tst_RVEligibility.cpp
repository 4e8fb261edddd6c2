// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "repository/RVEligibility.h"
#include "tests/support/LogFile.h"

#include <QBuffer>
#include <QtTest>

#include <ctime>

Q_DECLARE_METATYPE(RVEligibility)

namespace
{

/// An installed system that a test describes.
class TestSystem : public OSInfoBaseClass
{
public:
    VersionString base{QStringLiteral("6.1.3-thin")};
    QStringList packs;
    QString arch = QStringLiteral("armel");
    QString model = QStringLiteral("t5565");

    VersionString baseOSName() const override { return base; }
    QList<VersionString> servicePackList() const override
    {
        QList<VersionString> list;
        for (const QString &pack : packs) {
            list.append(VersionString(pack));
        }
        return list;
    }
    QString versionInstalled(const QString & /*packageName*/) const override { return {}; }
    QString architecture() const override { return arch; }
    QString thinClient() const override { return model; }
    void refresh() override { }
};

RVData entryOfXml(const QString &elements)
{
    const RVData entry(QUrl(QStringLiteral("http://h/a.deb")),
                       QUrl(QStringLiteral("http://h/a.xml")));
    QBuffer document;
    document.setData("<update_data>" + elements.toUtf8() + "</update_data>");
    document.open(QIODevice::ReadOnly);
    entry.descriptor()->read(&document);
    return entry;
}

/// An entry whose descriptor holds these elements, each text as it stands in XML.
RVData entryOf(const QStringList &bases, const QStringList &architectures,
               const QStringList &models, const QString &name = QStringLiteral("SP1"))
{
    QString xml = QStringLiteral("<name>%1</name>").arg(name);
    const auto add = [&](const QString &tag, const QStringList &texts) {
        for (const QString &text : texts) {
            xml += QStringLiteral("<%1>%2</%1>").arg(tag, text);
        }
    };
    add(QStringLiteral("base_releases"), bases);
    add(QStringLiteral("architecture"), architectures);
    add(QStringLiteral("thin_client"), models);
    return entryOfXml(xml);
}

/// An entry whose descriptor was never read: every list is empty.
RVData unreadEntry()
{
    return RVData(QUrl(QStringLiteral("http://h/a.deb")), QUrl(QStringLiteral("http://h/a.xml")));
}

const QStringList anything{QStringLiteral("all")};

} // namespace

class tst_RVEligibility : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void baseReleases_data();
    void baseReleases();
    void patternBeyondTheBoundsIsLoggedOnce();
    void manyBaseReleases_data();
    void manyBaseReleases();
    void patternsOfOneEntryAreCheap();
    void architectures_data();
    void architectures();
    void thinClients_data();
    void thinClients();
    void servicePacks_data();
    void servicePacks();
    void servicePackNames_data();
    void servicePackNames();
    void firstFailureCounts();
    void entryWithoutDescriptorIsNeverOffered();
    void unreadEntryIsNeverOffered();
    void descriptorWithoutBackendFitsEverywhere();
    void keepsTheOrderOfWhatFits();
};

void tst_RVEligibility::baseReleases_data()
{
    QTest::addColumn<QStringList>("bases");
    QTest::addColumn<bool>("fits");
    const auto row = [](const char *title, const QStringList &bases, bool fits) {
        QTest::newRow(title) << bases << fits;
    };
    row("empty list", {}, true);
    row("all", {QStringLiteral("all")}, true);
    row("all among others", {QStringLiteral("5.0"), QStringLiteral("all")}, true);
    row("ALL in capitals", {QStringLiteral("ALL")}, false);
    row("exact name", {QStringLiteral("6.1.3-thin")}, true);
    row("last of several", {QStringLiteral("5"), QStringLiteral("6.1.3-thin")}, true);
    row("other name", {QStringLiteral("6.2")}, false);
    row("prefix alone is no match", {QStringLiteral("6.1")}, false);
    row("suffix alone is no match", {QStringLiteral("thin")}, false);
    row("pattern", {QStringLiteral("6\\.1.*")}, true);
    row("pattern with alternatives", {QStringLiteral("(5|6)\\.[0-9.]+-thin")}, true);
    row("pattern of another release", {QStringLiteral("7\\.1.*")}, false);
    row("full stop matches any character",
        {QStringLiteral("6x1x3-thin"), QStringLiteral("6.1.3.thin")}, true);
    row("case counts", {QStringLiteral("6.1.3-THIN")}, false);
    row("empty element", {QString()}, false);
    row("invalid pattern", {QStringLiteral("*")}, false);
    row("invalid pattern before a good one", {QStringLiteral("("), QStringLiteral("6.*")}, true);
    row("pattern of endless length", {QStringLiteral("6.*").rightJustified(4000, QLatin1Char('('))},
        false);
}

void tst_RVEligibility::baseReleases()
{
    QFETCH(QStringList, bases);
    QFETCH(bool, fits);
    const LogFile log;
    QCOMPARE(eligibility(entryOf(bases, anything, anything), TestSystem(), false),
             fits ? RVEligibility::Offered : RVEligibility::OtherBaseRelease);
}

void tst_RVEligibility::patternBeyondTheBoundsIsLoggedOnce()
{
    const LogFile log;
    QCOMPARE(eligibility(entryOf({QString(600, QLatin1Char('6'))}, anything, anything),
                         TestSystem(), false),
             RVEligibility::OtherBaseRelease);
    QCOMPARE(log.lines().size(), 1);
}

void tst_RVEligibility::manyBaseReleases_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("last");
    QTest::addColumn<bool>("fits");
    const QString match = QStringLiteral("6\\.1.*");
    QTest::newRow("a thousand, and the last fits") << 1000 << match << true;
    QTest::newRow("a thousand, and none fits") << 1000 << QStringLiteral("7") << false;
    QTest::newRow("the one that fits comes too late") << 10000 << match << false;
    QTest::newRow("all counts anywhere") << 10000 << QStringLiteral("all") << true;
}

void tst_RVEligibility::manyBaseReleases()
{
    QFETCH(int, count);
    QFETCH(QString, last);
    QFETCH(bool, fits);
    QStringList bases;
    for (int i = 0; i < count; ++i) {
        bases.append(QStringLiteral("5.%1").arg(i));
    }
    bases.append(last);
    const RVData entry = entryOf(bases, anything, anything);
    LogFile log;
    RVEligibility result = RVEligibility::NoDescriptor;
    const int level = log.levelOf(QStringLiteral("Too many base releases: http://h/a.xml"), [&] {
        result = eligibility(entry, TestSystem(), false);
    });
    QCOMPARE(result, fits ? RVEligibility::Offered : RVEligibility::OtherBaseRelease);
    QCOMPARE(level, count > 1000 && !fits ? 4 : -1);
}

void tst_RVEligibility::patternsOfOneEntryAreCheap()
{
    // As costly as a pattern within the bounds can be, and no two alike.
    const QString costly = QStringLiteral("(6|.)*").repeated(60);
    QStringList bases;
    for (int i = 0; i < 20000; ++i) {
        bases.append(costly + QString::number(i));
    }
    const RVData entry = entryOf(bases, anything, anything);
    const LogFile log;
    const std::clock_t start = std::clock();
    QCOMPARE(eligibility(entry, TestSystem(), false), RVEligibility::OtherBaseRelease);
    const double seconds = double(std::clock() - start) / CLOCKS_PER_SEC;
    QVERIFY2(seconds < 2, qPrintable(QString::number(seconds)));
}

void tst_RVEligibility::architectures_data()
{
    QTest::addColumn<QStringList>("architectures");
    QTest::addColumn<bool>("fits");
    const auto row = [](const char *title, const QStringList &list, bool fits) {
        QTest::newRow(title) << list << fits;
    };
    row("all", {QStringLiteral("all")}, true);
    row("installed one", {QStringLiteral("armel")}, true);
    row("among others", {QStringLiteral("i386"), QStringLiteral("armel")}, true);
    row("other one", {QStringLiteral("i386")}, false);
    row("ALL in capitals", {QStringLiteral("ALL")}, false);
    row("case counts", {QStringLiteral("Armel")}, false);
    row("no patterns here", {QStringLiteral("arm.*")}, false);
    row("empty text", {QString()}, false);
}

void tst_RVEligibility::architectures()
{
    QFETCH(QStringList, architectures);
    QFETCH(bool, fits);
    QCOMPARE(eligibility(entryOf({}, architectures, anything), TestSystem(), false),
             fits ? RVEligibility::Offered : RVEligibility::OtherArchitecture);
}

void tst_RVEligibility::thinClients_data()
{
    QTest::addColumn<QStringList>("models");
    QTest::addColumn<bool>("fits");
    const auto row = [](const char *title, const QStringList &list, bool fits) {
        QTest::newRow(title) << list << fits;
    };
    row("all", {QStringLiteral("all")}, true);
    row("installed one", {QStringLiteral("t5565")}, true);
    row("among others", {QStringLiteral("t1"), QStringLiteral("t5565")}, true);
    row("other one", {QStringLiteral("t1")}, false);
    row("ALL in capitals", {QStringLiteral("ALL")}, false);
    row("case counts", {QStringLiteral("T5565")}, false);
    row("no patterns here", {QStringLiteral("t.*")}, false);
    row("empty list", {}, false);
}

void tst_RVEligibility::thinClients()
{
    QFETCH(QStringList, models);
    QFETCH(bool, fits);
    QCOMPARE(eligibility(entryOf({}, anything, models), TestSystem(), false),
             fits ? RVEligibility::Offered : RVEligibility::OtherThinClient);
}

void tst_RVEligibility::servicePacks_data()
{
    QTest::addColumn<QStringList>("packs");
    QTest::addColumn<bool>("filterSps");
    QTest::addColumn<bool>("fits");
    const auto row = [](const char *title, const QStringList &packs, bool filterSps, bool fits) {
        QTest::newRow(title) << packs << filterSps << fits;
    };
    const QString sp1 = QStringLiteral("SP1");
    row("none installed", {}, true, true);
    row("installed", {sp1}, true, false);
    row("first of several", {sp1, QStringLiteral("SP2")}, true, false);
    row("last of several", {QStringLiteral("SP0"), sp1}, true, false);
    row("installed twice", {sp1, sp1}, true, false);
    row("other one installed", {QStringLiteral("SP2")}, true, true);
    row("case counts", {QStringLiteral("sp1")}, true, true);
    row("longer name", {QStringLiteral("SP10")}, true, true);
    row("blank behind", {QStringLiteral("SP1 ")}, true, true);
    row("installed, section does not filter", {sp1}, false, true);
}

void tst_RVEligibility::servicePacks()
{
    QFETCH(QStringList, packs);
    QFETCH(bool, filterSps);
    QFETCH(bool, fits);
    TestSystem system;
    system.packs = packs;
    QCOMPARE(eligibility(entryOf({}, anything, anything), system, filterSps),
             fits ? RVEligibility::Offered : RVEligibility::ServicePackInstalled);
}

void tst_RVEligibility::servicePackNames_data()
{
    QTest::addColumn<QString>("names");
    QTest::addColumn<QString>("pack");
    QTest::addColumn<bool>("fits");
    const auto row = [](const char *title, const char *names, const char *pack, bool fits) {
        QTest::newRow(title) << QString::fromLatin1(names) << QString::fromLatin1(pack) << fits;
    };
    const char both[] = "<name>SP1</name><name xml:lang='de'>Paket 1</name>";
    row("English one installed", both, "SP1", false);
    row("German one installed", both, "Paket 1", true);
    row("German one first", "<name xml:lang='de'>Paket 1</name><name>SP1</name>", "SP1", false);
    row("another language", "<name>SP1</name><name xml:lang='fr'>Paquet 1</name>", "SP1", false);
    row("no English one", "<name xml:lang='de'>Paket 1</name>", "Paket 1", false);
    row("no name", "", "SP1", true);
}

// The system's files know one name, whatever the window's language.
void tst_RVEligibility::servicePackNames()
{
    QFETCH(QString, names);
    QFETCH(QString, pack);
    QFETCH(bool, fits);
    TestSystem system;
    system.packs = QStringList(pack);
    const RVData entry = entryOfXml(
        names + QStringLiteral("<architecture>all</architecture><thin_client>all</thin_client>"));
    const QLocale before;
    for (const QLocale &running : {QLocale(QLocale::German), QLocale(QLocale::English)}) {
        QLocale::setDefault(running);
        const RVEligibility reason = eligibility(entry, system, true);
        QLocale::setDefault(before);
        QCOMPARE(reason, fits ? RVEligibility::Offered : RVEligibility::ServicePackInstalled);
    }
}

void tst_RVEligibility::firstFailureCounts()
{
    TestSystem system;
    system.packs = QStringList(QStringLiteral("SP1"));
    const QStringList other(QStringLiteral("other"));
    QCOMPARE(eligibility(entryOf(other, other, other), system, true),
             RVEligibility::OtherBaseRelease);
    QCOMPARE(eligibility(entryOf({}, other, other), system, true),
             RVEligibility::OtherArchitecture);
    QCOMPARE(eligibility(entryOf({}, anything, other), system, true),
             RVEligibility::OtherThinClient);
    QCOMPARE(eligibility(entryOf({}, anything, anything), system, true),
             RVEligibility::ServicePackInstalled);
    QCOMPARE(eligibility(entryOf({}, anything, anything), system, false), RVEligibility::Offered);
    RVData lost = entryOf(other, other, other);
    lost.clearDescriptor();
    QCOMPARE(eligibility(lost, system, true), RVEligibility::NoDescriptor);
}

void tst_RVEligibility::entryWithoutDescriptorIsNeverOffered()
{
    RVData lost = entryOf({}, anything, anything);
    lost.clearDescriptor();
    QCOMPARE(eligibility(lost, TestSystem(), false), RVEligibility::NoDescriptor);
    QVERIFY(offeredEntries({lost}, TestSystem(), false).isEmpty());
}

void tst_RVEligibility::unreadEntryIsNeverOffered()
{
    TestSystem system;
    QCOMPARE(eligibility(unreadEntry(), system, false), RVEligibility::UnreadableDescriptor);
    // Not even where the system does not know its own architecture.
    system.arch.clear();
    QCOMPARE(eligibility(unreadEntry(), system, false), RVEligibility::UnreadableDescriptor);
}

void tst_RVEligibility::descriptorWithoutBackendFitsEverywhere()
{
    const LogFile log;
    QTest::ignoreMessage(QtWarningMsg, "Repositories filters have selected descriptor URI");
    QTest::ignoreMessage(QtWarningMsg, "  'http://h/a.txt',");
    QTest::ignoreMessage(QtWarningMsg, "  but that type is not actually handled by the libraries.");
    const RVData entry(QUrl(QStringLiteral("http://h/a.deb")),
                       QUrl(QStringLiteral("http://h/a.txt")));
    QCOMPARE(eligibility(entry, TestSystem(), false), RVEligibility::Offered);
}

void tst_RVEligibility::keepsTheOrderOfWhatFits()
{
    const QStringList other(QStringLiteral("other"));
    TestSystem system;
    system.packs = QStringList(QStringLiteral("SP3"));
    const QList<RVData> entries{
        entryOf({}, anything, anything, QStringLiteral("SP2")),
        entryOf(other, anything, anything, QStringLiteral("SP9")),
        entryOf({}, anything, anything, QStringLiteral("SP3")),
        entryOf({}, other, anything, QStringLiteral("SP8")),
        entryOf({}, anything, anything, QStringLiteral("SP1")),
    };
    const auto names = [&](bool filterSps) {
        QStringList result;
        for (const RVData &entry : offeredEntries(entries, system, filterSps)) {
            result.append(entry.descriptor()->name(QString()));
        }
        return result.join(QLatin1Char(' '));
    };
    QCOMPARE(names(true), QStringLiteral("SP2 SP1"));
    QCOMPARE(names(false), QStringLiteral("SP2 SP3 SP1"));
    QVERIFY(offeredEntries({}, system, true).isEmpty());
}

QTEST_GUILESS_MAIN(tst_RVEligibility)
#include "tst_RVEligibility.moc"

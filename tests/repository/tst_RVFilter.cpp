// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "repository/RVFilter.h"
#include "tests/support/CpuCost.h"
#include "tests/support/LogFile.h"
#include "tests/support/WarningGuard.h"

#include <QRandomGenerator>
#include <QtTest>

#include <memory>

namespace
{

QRegExp pattern(const QString &text)
{
    return QRegExp(text, Qt::CaseSensitive, QRegExp::RegExp);
}

/// A listing from names; a name that ends in "/" is a directory's.
QList<XUrlInfo> listingOf(const QStringList &names)
{
    QList<XUrlInfo> listing;
    for (const QString &name : names) {
        XUrlInfo item;
        const bool isDir = name.endsWith(QLatin1Char('/'));
        item.setName(isDir ? name.chopped(1) : name);
        item.setDir(isDir);
        item.setFile(!isDir);
        listing.append(item);
    }
    return listing;
}

using Pairs = QList<QPair<QUrl, QUrl>>;

Pairs urlsOf(const QList<RVData> &entries)
{
    Pairs pairs;
    for (const RVData &entry : entries) {
        pairs.append({entry.archiveUrl(), entry.descriptorUrl()});
    }
    return pairs;
}

Pairs filtered(const RVFilter &filter, const QList<XUrlInfo> &listing)
{
    QList<RVData> entries;
    filter.filterList(listing, entries);
    return urlsOf(entries);
}

/// "archive descriptor" for each entry, by last path components.
QStringList namesOf(const Pairs &pairs)
{
    QStringList names;
    for (const auto &pair : pairs) {
        names.append(pair.first.fileName() + QLatin1Char(' ') + pair.second.fileName());
    }
    return names;
}

/// The definition of the result: for each archive a scan of the whole listing.
Pairs nestedScan(const RVFilter &filter, const QRegExp &archive, const QRegExp &descriptor,
                 const QList<XUrlInfo> &listing)
{
    Pairs pairs;
    const auto add = [&](const QString &a, const QString &d) {
        pairs.append({QUrl(a), d.isEmpty() ? QUrl(a) : QUrl(d)});
    };
    QStringList archives;
    QStringList cores;
    for (const XUrlInfo &item : listing) {
        if (item.isDir()) {
            continue;
        }
        if (archive.isEmpty() || archive.indexIn(item.name(), 0) != -1) {
            archives.append(item.name());
            cores.append(filter.corename(item.name(), archive.isEmpty() ? QRegExp() : archive));
        }
    }
    if (descriptor.isEmpty()) {
        for (int i = 0; i < archives.size(); ++i) {
            add(listing[i].name(), {});
        }
        return pairs;
    }
    for (int i = 0; i < archives.size(); ++i) {
        bool describesItself = false;
        bool paired = false;
        for (const XUrlInfo &item : listing) {
            if (item.isDir() || descriptor.indexIn(item.name(), 0) == -1) {
                continue;
            }
            if (filter.corename(item.name(), descriptor) != cores[i]) {
                continue;
            }
            if (item.name() == archives[i]) {
                describesItself = true;
                continue;
            }
            add(archives[i], item.name());
            paired = true;
            break;
        }
        if (!paired && describesItself) {
            add(archives[i], {});
        }
    }
    return pairs;
}

} // namespace

class tst_RVFilter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        // Most rows are warned of; tst_RVData looks at what is said.
        m_quiet = std::make_unique<WarningGuard>();
        m_quiet->allow(QStringLiteral("."));
    }
    void cleanup() { m_quiet.reset(); }
    void corename_data();
    void corename();
    void comparesPatterns();
    void pairs_data();
    void pairs();
    void keepsAwkwardNames_data();
    void keepsAwkwardNames();
    void veryLongNamesMatchNothing();
    void replacesFormerEntries();
    void equalsTheNestedScan_data();
    void equalsTheNestedScan();
    void isLinear();

private:
    // Many names here are of no known kind, and entries say so.
    const LogFile m_log;
    std::unique_ptr<WarningGuard> m_quiet;
};

void tst_RVFilter::corename_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("core");
    const auto row = [](const char *title, const char *name, const char *pattern,
                        const char *core) {
        QTest::newRow(title) << QString::fromUtf8(name) << QString::fromUtf8(pattern)
                             << QString::fromUtf8(core);
    };
    row("package", "tool_1.2.deb", "\\.deb$", "tool_1.2");
    row("descriptor", "tool_1.2.xml", "\\.xml$", "tool_1.2");
    row("full URL", "http://h/r/tool_1.2.deb", "\\.deb$", "tool_1.2");
    row("path", "dir/sub/a.deb", "\\.deb$", "a");
    row("backslashes", "dir\\sub\\a.deb", "\\.deb$", "a");
    row("backslash after a slash", "x/dir\\a.deb", "\\.deb$", "a");
    row("slash after a backslash", "dir\\x/a.deb", "\\.deb$", "a");
    row("no pattern", "dir/a.deb", "", "a.deb");
    row("pattern not found", "a.deb", "\\.xml$", "a.deb");
    row("last match counts", "a.x.b.x.c", "\\.x\\.", "a.x.b");
    row("match at the start", "a.deb", "a\\.deb", "");
    row("pattern found in the path only", "deb/a", "deb", "a");
    row("trailing slash", "dir/", "\\.deb$", "");
    row("invalid pattern", "a.deb", "*", "a.deb");
    row("empty name", "", "\\.deb$", "");
    row("case counts", "a.DEB", "\\.deb$", "a.DEB");
}

void tst_RVFilter::corename()
{
    QFETCH(QString, name);
    QFETCH(QString, pattern);
    const RVFilter filter{QString(), QString()};
    QTEST(filter.corename(name, ::pattern(pattern)), "core");
}

void tst_RVFilter::comparesPatterns()
{
    const QString deb = QStringLiteral("\\.deb$");
    const QString xml = QStringLiteral("\\.xml$");
    const RVFilter filter(deb, xml);
    QVERIFY(filter == RVFilter(pattern(deb), pattern(xml)));
    QVERIFY(filter == RVFilter(filter));
    QVERIFY(filter != RVFilter(deb, deb));
    QVERIFY(filter != RVFilter(xml, xml));
    QVERIFY(filter != RVFilter(QRegExp(deb, Qt::CaseInsensitive), pattern(xml)));
    QVERIFY(filter != RVFilter(QRegExp(deb, Qt::CaseSensitive, QRegExp::RegExp2), pattern(xml)));
    RVFilter other{QString(), QString()};
    other.setFilters(pattern(deb), pattern(xml));
    QVERIFY(filter == other);
    QObject parent;
    QCOMPARE((new RVFilter(deb, xml, &parent))->parent(), &parent);
}

void tst_RVFilter::pairs_data()
{
    QTest::addColumn<QString>("archive");
    QTest::addColumn<QString>("descriptor");
    QTest::addColumn<QString>("listing");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *title, const char *archive, const char *descriptor,
                        const char *listing, const char *expected) {
        QTest::newRow(title) << QString::fromUtf8(archive) << QString::fromUtf8(descriptor)
                             << QString::fromUtf8(listing) << QString::fromUtf8(expected);
    };
    const char *deb = "\\.deb$";
    const char *xml = "\\.xml$";
    row("empty listing", deb, xml, "", "");
    row("archive without a descriptor is dropped", deb, xml, "a.deb a.xml b.deb", "a.deb a.xml");
    row("descriptor without an archive is no entry", deb, xml, "a.xml", "");
    row("descriptor before its archive", deb, xml, "a.xml a.deb", "a.deb a.xml");
    row("package that describes itself", deb, deb, "a.deb b.deb", "a.deb a.deb|b.deb b.deb");
    row("first candidate of the listing wins", deb, "\\.(xml|txt)$", "a.deb a.xml a.txt",
        "a.deb a.xml");
    row("first candidate of the listing wins, other order", deb, "\\.(xml|txt)$",
        "a.txt a.deb a.xml", "a.deb a.txt");
    row("another file goes before the archive itself", deb, "\\.(deb|xml)$", "a.deb a.xml",
        "a.deb a.xml");
    row("the same when it comes first", deb, "\\.(deb|xml)$", "a.xml a.deb", "a.deb a.xml");
    row("archive alone describes itself", deb, "\\.(deb|xml)$", "a.deb b.xml", "a.deb a.deb");
    row("directories are never archives", deb, xml, "a.deb/ a.xml", "");
    row("directories are never descriptors", deb, xml, "a.deb a.xml/", "");
    row("last path components are compared", deb, xml, "dir/a.deb other/a.xml", "a.deb a.xml");
    row("order of the listing", deb, xml, "c.deb a.deb b.xml a.xml b.deb c.xml",
        "c.deb c.xml|a.deb a.xml|b.deb b.xml");
    row("search and not a match of the whole name", "tool", xml, "mytool.deb mytool.deb.xml my.xml",
        "mytool.deb my.xml|mytool.deb.xml my.xml");
    row("one descriptor for two archives", "\\.(deb|xar)$", xml, "a.deb a.xar a.xml",
        "a.deb a.xml|a.xar a.xml");
    row("case counts", deb, xml, "a.DEB a.xml", "");
    row("duplicate archives stay", deb, xml, "a.deb a.xml a.deb", "a.deb a.xml|a.deb a.xml");
    row("duplicates that describe themselves", deb, deb, "a.deb a.deb", "a.deb a.deb|a.deb a.deb");
    row("same name in two folders", deb, deb, "x/a.deb y/a.deb", "a.deb a.deb|a.deb a.deb");
    row("no archive pattern takes every file", "", xml, "a a.xml b/ c", "a a.xml");
    row("no descriptor pattern", deb, "", "a.deb b.deb", "a.deb a.deb|b.deb b.deb");
    row("no descriptor pattern counts over the listing", deb, "", "./ ../ a.txt x.deb y.deb z.deb",
        ". .|.. ..|a.txt a.txt");
    row("no pattern at all", "", "", "a b/ c", "a a|b b");
    row("invalid archive pattern finds nothing", "*", "", "a.deb", "");
    row("invalid descriptor pattern finds nothing", deb, "*", "a.deb a.xml", "");
}

void tst_RVFilter::pairs()
{
    QFETCH(QString, archive);
    QFETCH(QString, descriptor);
    QFETCH(QString, listing);
    QFETCH(QString, expected);
    QStringList names = listing.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (QString &name : names) {
        name.prepend(QLatin1String("http://h/r/"));
    }
    const RVFilter filter(archive, descriptor);
    QCOMPARE(namesOf(filtered(filter, listingOf(names))).join(QLatin1Char('|')), expected);
}

void tst_RVFilter::keepsAwkwardNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QUrl>("url");
    QTest::addColumn<QUrl>("resolved");
    const auto full = [](const char *title, const char *name) {
        QTest::newRow(title) << QString::fromUtf8(name) << QUrl(QString::fromUtf8(name))
                             << QUrl(QString::fromUtf8(name));
    };
    full("URL", "http://h/r/a.deb");
    full("URL with a colon in the name", "http://h/r/tool_1:2.0-1_all.deb");
    full("URL with escapes", "http://h/r/100%25%20%23.deb");
    full("URL of a file", "file:///r/a b.deb");
    full("URL with a port and a query", "https://h:8443/get?file=a.deb");
    full("FTP URL with a user", "ftp://me@h/r/a.deb");

    const QUrl base(QStringLiteral("http://h/r/"));
    const auto bare = [&](const char *title, const char *name, const char *url,
                          const char *resolved) {
        QTest::newRow(title) << QString::fromUtf8(name) << QUrl::fromEncoded(url)
                             << QUrl::fromEncoded(resolved);
    };
    bare("bare name", "a.deb", "a.deb", "http://h/r/a.deb");
    bare("bare name with an epoch", "tool_1:2.0-1_all.deb", "./tool_1:2.0-1_all.deb",
         "http://h/r/tool_1:2.0-1_all.deb");
    bare("bare name like a scheme", "foo:bar.deb", "./foo:bar.deb", "http://h/r/foo:bar.deb");
    bare("bare name in a folder", "dir/a:1.deb", "dir/a:1.deb", "http://h/r/dir/a:1.deb");
    bare("bare name with specials", "100%20 #?.deb", "100%2520%20%23%3F.deb",
         "http://h/r/100%2520%20%23%3F.deb");
}

void tst_RVFilter::keepsAwkwardNames()
{
    QFETCH(QString, name);
    QFETCH(QUrl, url);
    const RVFilter filter(QStringLiteral("\\.deb$"), QStringLiteral("\\.deb$"));
    const Pairs pairs = filtered(filter, listingOf({name}));
    QCOMPARE(pairs.size(), 1);
    QVERIFY(pairs[0].first.isValid());
    QCOMPARE(pairs[0].first, url);
    QCOMPARE(pairs[0].second, url);
    QTEST(QUrl(QStringLiteral("http://h/r/")).resolved(pairs[0].first), "resolved");
}

void tst_RVFilter::veryLongNamesMatchNothing()
{
    const auto item = [](int length) {
        XUrlInfo result;
        result.setName(QString(length - 4, QLatin1Char('a')) + QStringLiteral(".deb"));
        return result;
    };
    // Of this pattern each character of a name may be the first: the time is quadratic.
    const RVFilter filter(QStringLiteral(".*\\.deb$"), QStringLiteral(".*\\.deb$"));
    QList<RVData> entries;
    filter.filterList({item(RVFilter::longestName), item(RVFilter::longestName + 1), item(200000)},
                      entries);
    QCOMPARE(entries.size(), 1);
    QVERIFY(filter.selects(item(RVFilter::longestName)));
    QVERIFY(!filter.selects(item(RVFilter::longestName + 1)));
}

void tst_RVFilter::replacesFormerEntries()
{
    const RVFilter filter(QStringLiteral("\\.deb$"), QStringLiteral("\\.deb$"));
    QList<RVData> entries{RVData(QUrl(QStringLiteral("old.deb")), QUrl())};
    filter.filterList(listingOf({QStringLiteral("http://h/a.deb")}), entries);
    QCOMPARE(namesOf(urlsOf(entries)), QStringList(QStringLiteral("a.deb a.deb")));
    filter.filterList({}, entries);
    QVERIFY(entries.isEmpty());
}

void tst_RVFilter::equalsTheNestedScan_data()
{
    QTest::addColumn<QString>("archive");
    QTest::addColumn<QString>("descriptor");
    const QStringList patterns{QString(),
                               QStringLiteral("\\.deb$"),
                               QStringLiteral("\\.xml$"),
                               QStringLiteral("\\.(deb|xml)$"),
                               QStringLiteral("a"),
                               QStringLiteral("b.*"),
                               QStringLiteral("^x"),
                               QStringLiteral("."),
                               QStringLiteral("*")};
    for (const QString &archive : patterns) {
        for (const QString &descriptor : patterns) {
            QTest::newRow(qUtf8Printable(archive + QStringLiteral(" and ") + descriptor))
                << archive << descriptor;
        }
    }
}

void tst_RVFilter::equalsTheNestedScan()
{
    QFETCH(QString, archive);
    QFETCH(QString, descriptor);
    const RVFilter filter(archive, descriptor);
    QRandomGenerator random(20240229);
    const QStringList folders{QString(), QStringLiteral("x/"), QStringLiteral("y\\")};
    const QStringList stems{QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("ab"),
                            QStringLiteral("b.a")};
    const QStringList suffixes{QStringLiteral(".deb"), QStringLiteral(".xml"), QString(),
                               QStringLiteral(".deb.xml")};
    const auto pick = [&](const QStringList &list) {
        return list[random.bounded(list.size())];
    };
    for (int round = 0; round < 12; ++round) {
        QStringList names;
        for (int i = random.bounded(14); i > 0; --i) {
            names.append(pick(folders) + pick(stems) + pick(suffixes)
                         + (random.bounded(8) == 0 ? QStringLiteral("/") : QString()));
        }
        const QList<XUrlInfo> listing = listingOf(names);
        const Pairs expected = nestedScan(filter, pattern(archive), pattern(descriptor), listing);
        QVERIFY2(filtered(filter, listing) == expected,
                 qUtf8Printable(names.join(QLatin1Char(' '))));
    }
}

void tst_RVFilter::isLinear()
{
    const auto listingOfPairs = [](int count) {
        QStringList names;
        for (int i = 0; i < count; ++i) {
            names.append(QStringLiteral("file:///r/tool-%1.deb").arg(i));
            names.append(QStringLiteral("file:///r/tool-%1.xml").arg(count - 1 - i));
        }
        return listingOf(names);
    };
    constexpr int some = 2500;
    const QHash<int, QList<XUrlInfo>> listings{{some, listingOfPairs(some)},
                                               {4 * some, listingOfPairs(4 * some)}};
    const RVFilter filter(QStringLiteral("\\.deb$"), QStringLiteral("\\.xml$"));
    QVERIFY(CpuCost::isLinear(
        [&](int count) {
            QCOMPARE(filtered(filter, listings.value(count)).size(), count);
        },
        some));
}

QTEST_GUILESS_MAIN(tst_RVFilter)
#include "tst_RVFilter.moc"

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "repository/RVSort.h"
#include "tests/support/CpuCost.h"

#include <QBuffer>
#include <QtTest>

namespace
{

/// An entry "name version"; the archive's name is unique and tells entries apart.
RVData entryOf(const QString &text, int number)
{
    const QString base = QStringLiteral("http://h/%1").arg(number);
    RVData entry(QUrl(base + QStringLiteral(".deb")), QUrl(base + QStringLiteral(".xml")));
    if (text == QLatin1String("-")) {
        entry.clearDescriptor();
        return entry;
    }
    QBuffer document;
    document.setData(
        QStringLiteral("<update_data><name>%1</name><version>%2</version></update_data>")
            .arg(text.section(QLatin1Char(' '), 0, 0), text.section(QLatin1Char(' '), 1))
            .toUtf8());
    document.open(QIODevice::ReadOnly);
    entry.descriptor()->read(&document);
    return entry;
}

QList<RVData> entriesOf(const QString &texts)
{
    QList<RVData> entries;
    for (const QString &text : texts.split(QStringLiteral(", "), Qt::SkipEmptyParts)) {
        entries.append(entryOf(text, entries.size()));
    }
    return entries;
}

/// The entries' original positions in their order now.
QString orderOf(const QList<RVData> &entries)
{
    QStringList numbers;
    for (const RVData &entry : entries) {
        numbers.append(entry.archiveUrl().fileName().section(QLatin1Char('.'), 0, 0));
    }
    return numbers.join(QLatin1Char(' '));
}

} // namespace

class tst_RVSort : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sorts_data();
    void sorts();
    void otherKeysChangeNothing();
    void keepsTheSharedObjects();
    void sortsThousandsQuickly();
};

void tst_RVSort::sorts_data()
{
    QTest::addColumn<QString>("entries");
    QTest::addColumn<QString>("byVersion");
    QTest::addColumn<QString>("byName");
    const auto row = [](const char *title, const char *entries, const char *byVersion,
                        const char *byName) {
        QTest::newRow(title) << QString::fromUtf8(entries) << QString::fromUtf8(byVersion)
                             << QString::fromUtf8(byName);
    };
    row("nothing", "", "", "");
    row("one", "a 1", "0", "0");
    row("newest first", "a 1.2, a 1.10, a 1.9", "1 2 0", "1 2 0");
    row("numbers as numbers", "a 9, a 10, a 100", "2 1 0", "2 1 0");
    row("names", "b 1, a 2, c 3", "2 1 0", "1 0 2");
    row("names, then newest first", "b 1, a 1, b 2, a 2", "2 3 0 1", "3 1 2 0");
    row("equal entries keep their order", "a 1, a 1, a 1", "0 1 2", "0 1 2");
    row("equal versions keep their order", "c 1, a 1, b 1", "0 1 2", "1 2 0");
    row("capitals first", "b 1, B 1, a 1, A 1", "0 1 2 3", "3 1 2 0");
    row("empty name first", "b 1,  2", "1 0", "1 0");
    row("without a descriptor last", "-, a 1, -, b 2", "3 1 0 2", "1 3 0 2");
    row("none has a descriptor", "-, -, -", "0 1 2", "0 1 2");
}

void tst_RVSort::sorts()
{
    QFETCH(QString, entries);
    QList<RVData> byVersion = entriesOf(entries);
    sortEntries(byVersion, SortByVersion);
    QTEST(orderOf(byVersion), "byVersion");
    QList<RVData> byName = entriesOf(entries);
    sortEntries(byName, SortByName);
    QTEST(orderOf(byName), "byName");
}

void tst_RVSort::otherKeysChangeNothing()
{
    QList<RVData> entries = entriesOf(QStringLiteral("c 1, a 2, b 3"));
    sortEntries(entries, static_cast<SortKey>(2));
    QCOMPARE(orderOf(entries), QStringLiteral("0 1 2"));
    sortEntries(entries, static_cast<SortKey>(-1));
    QCOMPARE(orderOf(entries), QStringLiteral("0 1 2"));
}

void tst_RVSort::keepsTheSharedObjects()
{
    QList<RVData> entries = entriesOf(QStringLiteral("b 1, a 2"));
    const RVData first = entries[0];
    sortEntries(entries, SortByName);
    QCOMPARE(entries[1].descriptor(), first.descriptor());
    QCOMPARE(entries[1].archive(), first.archive());
}

void tst_RVSort::sortsThousandsQuickly()
{
    QList<RVData> entries;
    for (int i = 0; i < 5000; ++i) {
        entries.append(
            entryOf(QStringLiteral("tool%1 1.%2").arg(i % 50).arg((i * 7919) % 5000), i));
    }
    const QList<RVData> unsorted = entries;
    QVERIFY(CpuCost::isLinear(
        [&](int count) {
            entries = unsorted.mid(0, count);
            sortEntries(entries, SortByName);
        },
        1250));
    QCOMPARE(entries.size(), unsorted.size());
    for (int i = 1; i < entries.size(); ++i) {
        QVERIFY(entries[i - 1].descriptor()->name(QString())
                <= entries[i].descriptor()->name(QString()));
    }
}

QTEST_GUILESS_MAIN(tst_RVSort)
#include "tst_RVSort.moc"

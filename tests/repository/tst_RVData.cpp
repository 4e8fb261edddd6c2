// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "repository/RVData.h"
#include "tests/support/LogFile.h"
#include "tests/support/WarningGuard.h"

#include <QtTest>

namespace
{

QUrl url(const char *text)
{
    return QUrl(QLatin1String(text));
}

} // namespace

class tst_RVData : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsBothUrls();
    void archiveMayDescribeItself();
    void warnsOfUnhandledUrls_data();
    void warnsOfUnhandledUrls();
    void warningsShowNoPassword();
    void copiesShareTheObjects();
    void copiesHaveNoParent();
    void equalityLooksAtBothUrls();
    void losesItsDescriptor();
};

void tst_RVData::keepsBothUrls()
{
    WarningGuard guard;
    const RVData entry(url("http://h/r/a.deb"), url("http://h/r/a.xml"));
    QCOMPARE(entry.archiveUrl(), url("http://h/r/a.deb"));
    QCOMPARE(entry.descriptorUrl(), url("http://h/r/a.xml"));
    QCOMPARE(entry.archive()->url(), entry.archiveUrl());
    QCOMPARE(entry.descriptor()->url(), entry.descriptorUrl());
    QVERIFY(entry.archive()->urlIsHandled());
    QVERIFY(entry.descriptor()->urlIsHandled());
    QCOMPARE(entry.descriptor()->parent(), nullptr);
}

void tst_RVData::archiveMayDescribeItself()
{
    const RVData entry(url("http://h/r/a.deb"), QUrl());
    QCOMPARE(entry.descriptorUrl(), url("http://h/r/a.deb"));
    QCOMPARE(entry.descriptor()->url(), url("http://h/r/a.deb"));
}

void tst_RVData::warnsOfUnhandledUrls_data()
{
    const QString descriptor = QStringLiteral("Repositories filters have selected descriptor URI");
    const QString archive = QStringLiteral("Repositories filters have selected archive URI");
    const QString backend = QStringLiteral("Found no backend for archive format:\n  %1");
    const QString place = QStringLiteral("  '%1',");
    const QString reason =
        QStringLiteral("  but that type is not actually handled by the libraries.");
    const QString txt = QStringLiteral("http://h/a.txt");
    const QString zip = QStringLiteral("http://h/a.zip");

    QTest::addColumn<QUrl>("archive");
    QTest::addColumn<QUrl>("descriptor");
    QTest::addColumn<QStringList>("messages");
    QTest::newRow("both handled") << url("http://h/a.deb") << url("http://h/a.xml")
                                  << QStringList();
    QTest::newRow("descriptor not")
        << url("http://h/a.deb") << QUrl(txt) << QStringList{descriptor, place.arg(txt), reason};
    QTest::newRow("archive not") << QUrl(zip) << url("http://h/a.xml")
                                 << QStringList{backend.arg(zip), archive, place.arg(zip), reason};
    QTest::newRow("neither") << QUrl(zip) << QUrl(txt)
                             << QStringList{descriptor, place.arg(txt), reason, backend.arg(zip),
                                            archive,    place.arg(zip), reason};
    QTest::newRow("neither, one URL")
        << QUrl(zip) << QUrl() << QStringList{descriptor, place.arg(zip), reason, backend.arg(zip),
                                              archive,    place.arg(zip), reason};
}

void tst_RVData::warnsOfUnhandledUrls()
{
    QFETCH(QUrl, archive);
    QFETCH(QUrl, descriptor);
    const LogFile log;
    WarningGuard guard;
    guard.allow(QStringLiteral("."));
    const RVData entry(archive, descriptor);
    QTEST(guard.messages(), "messages");
    QVERIFY(entry.archive());
    QVERIFY(entry.descriptor());
}

void tst_RVData::warningsShowNoPassword()
{
    const LogFile log;
    WarningGuard guard;
    guard.allow(QStringLiteral("."));
    const RVData entry(url("ftp://me:secret@h/a.zip"), url("ftp://me:secret@h/a.txt"));
    const QString all = guard.messages().join(QLatin1Char('\n'));
    QVERIFY(all.contains(QLatin1String("  'ftp://me@h/a.txt',")));
    QVERIFY(!all.contains(QLatin1String("secret")));
    QVERIFY(!log.raw().contains("secret"));
}

void tst_RVData::copiesShareTheObjects()
{
    const RVData first(url("http://h/a.deb"), url("http://h/a.xml"));
    const RVData copy(first);
    RVData assigned(url("http://h/b.deb"), QUrl());
    assigned = first;
    const QList<RVData> list{first};
    for (const RVData *other : {&copy, const_cast<const RVData *>(&assigned), &list.first()}) {
        QCOMPARE(other->archiveUrl(), first.archiveUrl());
        QCOMPARE(other->descriptorUrl(), first.descriptorUrl());
        QCOMPARE(other->archive(), first.archive());
        QCOMPARE(other->descriptor(), first.descriptor());
        QVERIFY(*other == first);
    }
}

void tst_RVData::copiesHaveNoParent()
{
    QObject parent;
    auto *entry = new RVData(url("http://h/a.deb"), QUrl(), &parent);
    QCOMPARE(entry->parent(), &parent);
    const RVData copy(*entry);
    QCOMPARE(copy.parent(), nullptr);
}

void tst_RVData::equalityLooksAtBothUrls()
{
    const RVData entry(url("http://h/a.deb"), url("http://h/a.xml"));
    QVERIFY(entry == RVData(url("http://h/a.deb"), url("http://h/a.xml")));
    QVERIFY(entry != RVData(url("http://h/a.deb"), url("http://h/b.xml")));
    QVERIFY(entry != RVData(url("http://h/b.deb"), url("http://h/a.xml")));
    QVERIFY(RVData(url("http://h/a.deb"), QUrl())
            == RVData(url("http://h/a.deb"), url("http://h/a.deb")));
    RVData lost(entry);
    lost.clearDescriptor();
    QVERIFY(lost == entry);
}

void tst_RVData::losesItsDescriptor()
{
    const RVData entry(url("http://h/a.deb"), QUrl());
    RVData copy(entry);
    copy.clearDescriptor();
    QVERIFY(!copy.descriptor());
    QVERIFY(entry.descriptor());
}

QTEST_GUILESS_MAIN(tst_RVData)
#include "tst_RVData.moc"

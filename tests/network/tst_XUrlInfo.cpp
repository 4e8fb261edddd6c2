// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "network/XUrlInfo.h"

#include <QtTest>

#include <functional>

class tst_XUrlInfo : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isInvalidWithoutName();
    void tellsExecutablesByAnyBit_data();
    void tellsExecutablesByAnyBit();
    void comparesEveryField();
};

void tst_XUrlInfo::isInvalidWithoutName()
{
    XUrlInfo entry;
    QVERIFY(!entry.isValid());
    QCOMPARE(entry.size(), 0);
    QVERIFY(entry.isFile());
    QVERIFY(!entry.isDir());
    QVERIFY(!entry.isSymLink());
    QVERIFY(entry.isReadable());
    QVERIFY(entry.isWritable());
    entry.setName(QStringLiteral("file:///a.deb"));
    QVERIFY(entry.isValid());
    QCOMPARE(entry.name(), QStringLiteral("file:///a.deb"));
}

void tst_XUrlInfo::tellsExecutablesByAnyBit_data()
{
    QTest::addColumn<int>("permissions");
    QTest::addColumn<bool>("executable");
    QTest::newRow("nothing") << 0 << false;
    QTest::newRow("rw-rw-rw-") << 0666 << false;
    QTest::newRow("owner only") << 0100 << true;
    QTest::newRow("group only") << 0010 << true;
    QTest::newRow("others only") << 0001 << true;
}

void tst_XUrlInfo::tellsExecutablesByAnyBit()
{
    QFETCH(int, permissions);
    XUrlInfo entry;
    entry.setPermissions(permissions);
    QTEST(entry.isExecutable(), "executable");
}

void tst_XUrlInfo::comparesEveryField()
{
    const QDateTime time(QDate(2024, 2, 29), QTime(12, 0), Qt::UTC);
    const QList<std::function<void(XUrlInfo &)>> changes{
        [](XUrlInfo &e) {
            e.setName(QStringLiteral("x"));
        },
        [](XUrlInfo &e) {
            e.setPermissions(0644);
        },
        [](XUrlInfo &e) {
            e.setOwner(QStringLiteral("root"));
        },
        [](XUrlInfo &e) {
            e.setGroup(QStringLiteral("root"));
        },
        [](XUrlInfo &e) {
            e.setSize(1);
        },
        [&](XUrlInfo &e) {
            e.setLastModified(time);
        },
        [&](XUrlInfo &e) {
            e.setLastRead(time);
        },
        [](XUrlInfo &e) {
            e.setDir(true);
        },
        [](XUrlInfo &e) {
            e.setFile(false);
        },
        [](XUrlInfo &e) {
            e.setSymLink(true);
        },
        [](XUrlInfo &e) {
            e.setWritable(false);
        },
        [](XUrlInfo &e) {
            e.setReadable(false);
        },
    };
    for (const auto &change : changes) {
        XUrlInfo changed;
        change(changed);
        QVERIFY(changed != XUrlInfo());
        XUrlInfo same;
        change(same);
        QVERIFY(changed == same);
    }
}

QTEST_GUILESS_MAIN(tst_XUrlInfo)
#include "tst_XUrlInfo.moc"

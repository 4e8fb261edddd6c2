// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/RVSum.h"

#include <QtTest>

class tst_RVSum : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void saturates_data()
    {
        QTest::addColumn<qint64>("a");
        QTest::addColumn<qint64>("b");
        QTest::addColumn<qint64>("expected");
        constexpr qint64 most = std::numeric_limits<qint64>::max();
        constexpr qint64 least = std::numeric_limits<qint64>::min();
        const auto row = [](const char *title, qint64 a, qint64 b, qint64 expected) {
            QTest::newRow(title) << a << b << expected;
        };
        row("small numbers", 2, 3, 5);
        row("of both signs", -2, 3, 1);
        row("the largest and nothing", most, 0, most);
        row("just the largest", most - 1, 1, most);
        row("one more", most, 1, most);
        row("twice the largest", most, most, most);
        row("just the smallest", least + 1, -1, least);
        row("one less", least, -1, least);
        row("twice the smallest", least, least, least);
        row("the largest and the smallest", most, least, -1);
    }
    void saturates()
    {
        QFETCH(qint64, a);
        QFETCH(qint64, b);
        QTEST(saturatingSum(a, b), "expected");
        QTEST(saturatingSum(b, a), "expected");
    }
};

QTEST_APPLESS_MAIN(tst_RVSum)
#include "tst_RVSum.moc"

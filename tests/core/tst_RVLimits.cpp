// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/RVLimits.h"

#include <QTest>

#include <sys/resource.h>

class tst_RVLimits : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void transfersNow_data()
    {
        QTest::addColumn<int>("files");
        QTest::addColumn<int>("transfers");
        QTest::newRow("nearly none") << 32 << 1;
        QTest::newRow("256") << 256 << 20;
        QTest::newRow("1,024") << 1024 << RVLimits::transfersInFlight;
    }
    void transfersNow()
    {
        QFETCH(int, files);
        QFETCH(int, transfers);
        rlimit before = {};
        QCOMPARE(::getrlimit(RLIMIT_NOFILE, &before), 0);
        rlimit limit = before;
        limit.rlim_cur = static_cast<rlim_t>(files);
        QCOMPARE(::setrlimit(RLIMIT_NOFILE, &limit), 0);
        const int now = RVLimits::transfersNow();
        QCOMPARE(::setrlimit(RLIMIT_NOFILE, &before), 0);
        QCOMPARE(now, transfers);
    }
};

QTEST_APPLESS_MAIN(tst_RVLimits)
#include "tst_RVLimits.moc"

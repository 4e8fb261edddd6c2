// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "network/XNetworkError.h"

#include <QTest>

class tst_XNetworkError : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void codes_data()
    {
        QTest::addColumn<int>("code");
        QTest::addColumn<int>("expected");
        QTest::newRow("409 conflict") << 206 << 299;
        QTest::newRow("410 gone") << 207 << 299;
        QTest::newRow("500 internal error") << 401 << 299;
        QTest::newRow("501 unknown method") << 402 << 301;
        QTest::newRow("503 unavailable") << 403 << 301;
        QTest::newRow("any other server error") << 499 << 301;
        for (const int code :
             {0,   1,   2,   3,   4,   5,   6,   7,   8,   9,   10,  11,  99,  101,
              102, 103, 104, 105, 199, 201, 202, 203, 204, 205, 299, 301, 302, 399}) {
            QTest::newRow(qPrintable(QStringLiteral("%1 stays").arg(code))) << code << code;
        }
    }
    void codes()
    {
        QFETCH(int, code);
        QTEST(static_cast<int>(qt4Error(static_cast<QNetworkReply::NetworkError>(code))),
              "expected");
    }
    void codesWithStatus_data()
    {
        QTest::addColumn<int>("code");
        QTest::addColumn<int>("status");
        QTest::addColumn<int>("expected");
        QTest::newRow("bad request") << 302 << 400 << 299;
        QTest::newRow("teapot") << 302 << 418 << 299;
        QTest::newRow("no answer") << 302 << 0 << 302;
        QTest::newRow("not an error of the request") << 302 << 500 << 302;
        QTest::newRow("not found") << 203 << 404 << 203;
        QTest::newRow("unavailable") << 403 << 503 << 301;
    }
    void codesWithStatus()
    {
        QFETCH(int, code);
        QFETCH(int, status);
        QTEST(static_cast<int>(qt4Error(static_cast<QNetworkReply::NetworkError>(code), status)),
              "expected");
    }
};

QTEST_APPLESS_MAIN(tst_XNetworkError)
#include "tst_XNetworkError.moc"

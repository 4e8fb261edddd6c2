// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "network/NetworkDirRequest.h"
#include "network/XNetworkReply.h"

#include <QtTest>

class tst_NetworkDirRequest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void choosesTheBackendByScheme_data();
    void choosesTheBackendByScheme();
    void setUrlReplacesTheBackend();
    void throwsWithoutBackend();
    void copyHasItsOwnBackend();
    void setManagerNeedsNoBackend();
};

void tst_NetworkDirRequest::choosesTheBackendByScheme_data()
{
    QTest::addColumn<QString>("url");
    QTest::addColumn<bool>("capable");
    QTest::newRow("file") << QStringLiteral("file:///tmp") << true;
    QTest::newRow("no scheme") << QStringLiteral("/tmp") << true;
    QTest::newRow("nothing at all") << QString() << true;
    // QUrl itself lowers a scheme, so the comparison never meets a capital.
    QTest::newRow("capitals") << QStringLiteral("FILE:///tmp") << true;
    QTest::newRow("http") << QStringLiteral("http://host/") << true;
    QTest::newRow("https") << QStringLiteral("https://host/") << true;
    QTest::newRow("http in capitals") << QStringLiteral("HTTP://host/") << true;
    QTest::newRow("gopher") << QStringLiteral("gopher://host/") << false;
    QTest::newRow("qrc") << QStringLiteral("qrc:///images") << false;
    QTest::newRow("data") << QStringLiteral("data:,x") << false;
    QTest::newRow("a drive letter") << QStringLiteral("C:\\updates") << false;
}

void tst_NetworkDirRequest::choosesTheBackendByScheme()
{
    QFETCH(QString, url);
    QFETCH(bool, capable);
    const NetworkDirRequest request{QUrl(url)};
    QCOMPARE(request.directoryCapable(), capable);
    QCOMPARE(request.request().url(), QUrl(url));
}

void tst_NetworkDirRequest::setUrlReplacesTheBackend()
{
    NetworkDirRequest request(QUrl(QStringLiteral("gopher://host/")));
    QVERIFY(!request.directoryCapable());
    const QUrl local = QUrl::fromLocalFile(QStringLiteral("/"));
    request.setUrl(local);
    QVERIFY(request.directoryCapable());
    QCOMPARE(request.request().url(), local);
    const std::unique_ptr<XNetworkReply> reply(request.getDirectory());
    QCOMPARE(reply->url(), local);
    QCOMPARE(reply->error(), QNetworkReply::NoError);
    request.setUrl(QUrl(QStringLiteral("gopher://host/")));
    QVERIFY(!request.directoryCapable());
}

void tst_NetworkDirRequest::throwsWithoutBackend()
{
    NetworkDirRequest request(QUrl(QStringLiteral("gopher://host/")));
    try {
        request.getDirectory();
        QFAIL("no exception");
    } catch (NetworkDirRequestBase::exceptionType e) {
        QCOMPARE(static_cast<int>(e), 1);
    }
}

void tst_NetworkDirRequest::copyHasItsOwnBackend()
{
    const QUrl local = QUrl::fromLocalFile(QStringLiteral("/"));
    auto original = std::make_unique<NetworkDirRequest>(local);
    NetworkDirRequest copy(*original);
    original->setUrl(QUrl(QStringLiteral("gopher://host/")));
    original.reset();
    QVERIFY(copy.directoryCapable());
    const std::unique_ptr<XNetworkReply> reply(copy.getDirectory());
    QCOMPARE(reply->url(), local);
}

void tst_NetworkDirRequest::setManagerNeedsNoBackend()
{
    NetworkDirRequest request(QUrl(QStringLiteral("gopher://host/")));
    request.setManager(nullptr);
    NetworkDirRequest local(QUrl(QStringLiteral("/")));
    local.setManager(nullptr);
    QVERIFY(local.directoryCapable());
}

QTEST_GUILESS_MAIN(tst_NetworkDirRequest)
#include "tst_NetworkDirRequest.moc"

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "repository/RVProxySettings.h"

#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QtTest>

namespace
{

QString settingsFile()
{
    return QSettings(QStringLiteral("Corvane"), QStringLiteral("Ravel")).fileName();
}

void store(const QString &key, const QVariant &value)
{
    QSettings(QStringLiteral("Corvane"), QStringLiteral("Ravel"))
        .setValue(QStringLiteral("ProxySettings/") + key, value);
}

QVariant stored(const QString &key)
{
    return QSettings(QStringLiteral("Corvane"), QStringLiteral("Ravel"))
        .value(QStringLiteral("ProxySettings/") + key);
}

} // namespace

class tst_RVProxySettings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void nothingStored();
    void styles_data();
    void styles();
    void oneForAll();
    void schemes_data();
    void schemes();
    void portThatIsNoNumber();
    void roundTrip();
    void unsetProxiesLeaveNoKeys();
    void fileIsItsOwnersAlone();
};

void tst_RVProxySettings::init()
{
    QFile::remove(settingsFile());
}

void tst_RVProxySettings::nothingStored()
{
    const RVProxySettings settings = RVProxySettings::read();
    QCOMPARE(settings.style, int(RVProxySettings::None));
    QVERIFY(!settings.useForAll);
    for (const auto type : {RVProxySettings::Http, RVProxySettings::Https, RVProxySettings::Ftp}) {
        QVERIFY(!settings.effective(type).isSet());
        QCOMPARE(settings.effective(type).port, -1);
    }
    QVERIFY(!QFile::exists(settingsFile()));
}

void tst_RVProxySettings::styles_data()
{
    QTest::addColumn<int>("style");
    QTest::addColumn<bool>("used");
    QTest::newRow("none") << 0 << false;
    QTest::newRow("reserved 1") << 1 << false;
    QTest::newRow("manual") << 2 << true;
    QTest::newRow("reserved 3") << 3 << false;
}

void tst_RVProxySettings::styles()
{
    QFETCH(int, style);
    QFETCH(bool, used);
    store(QStringLiteral("style"), style);
    store(QStringLiteral("server_FTP"), QStringLiteral("px"));
    store(QStringLiteral("port_FTP"), 3128);
    const RVProxySettings::Proxy proxy = RVProxySettings::read().effective(RVProxySettings::Ftp);
    QCOMPARE(proxy.host, used ? QStringLiteral("px") : QString());
    QCOMPARE(proxy.port, used ? 3128 : -1);
    QCOMPARE(proxy.isSet(), used);
}

void tst_RVProxySettings::oneForAll()
{
    store(QStringLiteral("style"), 2);
    store(QStringLiteral("useForAll"), true);
    store(QStringLiteral("server_HTTP"), QStringLiteral("first"));
    store(QStringLiteral("port_HTTP"), 1);
    store(QStringLiteral("server_FTP"), QStringLiteral("third"));
    store(QStringLiteral("port_FTP"), 3);
    const RVProxySettings settings = RVProxySettings::read();
    QCOMPARE(settings.effective(RVProxySettings::Ftp).host, QStringLiteral("first"));
    QCOMPARE(settings.effective(RVProxySettings::Https).port, 1);
}

void tst_RVProxySettings::schemes_data()
{
    QTest::addColumn<QString>("scheme");
    QTest::addColumn<QString>("host");
    QTest::newRow("http") << QStringLiteral("http") << QStringLiteral("a");
    QTest::newRow("https in capitals") << QStringLiteral("HTTPS") << QStringLiteral("b");
    QTest::newRow("ftp") << QStringLiteral("ftp") << QStringLiteral("c");
    QTest::newRow("file") << QStringLiteral("file") << QString();
    QTest::newRow("none") << QString() << QString();
}

void tst_RVProxySettings::schemes()
{
    QFETCH(QString, scheme);
    QFETCH(QString, host);
    RVProxySettings settings;
    settings.style = RVProxySettings::Manual;
    settings.proxies = {
        {{QStringLiteral("a"), 1}, {QStringLiteral("b"), 2}, {QStringLiteral("c"), 3}}};
    QCOMPARE(settings.forScheme(scheme).host, host);
}

void tst_RVProxySettings::portThatIsNoNumber()
{
    store(QStringLiteral("style"), 2);
    store(QStringLiteral("server_HTTP"), QStringLiteral("px"));
    store(QStringLiteral("port_HTTP"), QStringLiteral("squid"));
    const RVProxySettings::Proxy proxy = RVProxySettings::read().effective(RVProxySettings::Http);
    QCOMPARE(proxy.port, -1);
    QVERIFY(!proxy.isSet());
}

void tst_RVProxySettings::roundTrip()
{
    RVProxySettings settings;
    settings.style = RVProxySettings::Manual;
    settings.useForAll = true;
    settings.proxies = {
        {{QStringLiteral("a.example"), 1}, {QStringLiteral("::1"), 65535}, {QString(), 0}}};
    QVERIFY(settings.write());
    const RVProxySettings read = RVProxySettings::read();
    QCOMPARE(read.style, settings.style);
    QCOMPARE(read.useForAll, settings.useForAll);
    QVERIFY(read.proxies == settings.proxies);
    QCOMPARE(stored(QStringLiteral("server_HTTPS")).toString(), QStringLiteral("::1"));
    QCOMPARE(stored(QStringLiteral("port_HTTPS")).toInt(), 65535);
}

void tst_RVProxySettings::unsetProxiesLeaveNoKeys()
{
    store(QStringLiteral("server_FTP"), QStringLiteral("px"));
    store(QStringLiteral("port_FTP"), 1);
    QVERIFY(RVProxySettings().write());
    QVERIFY(!stored(QStringLiteral("server_FTP")).isValid());
    QVERIFY(!stored(QStringLiteral("port_FTP")).isValid());
    QCOMPARE(stored(QStringLiteral("style")).toInt(), 0);
}

void tst_RVProxySettings::fileIsItsOwnersAlone()
{
    QVERIFY(RVProxySettings().write());
    const auto others = QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
    QVERIFY(!(QFileInfo(settingsFile()).permissions() & others));
}

QTEST_GUILESS_MAIN(tst_RVProxySettings)
#include "tst_RVProxySettings.moc"

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/RVUrl.h"

#include <QTest>

class tst_RVUrl : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fileName_data();
    void fileName();
    void shown_data();
    void shown();
};

void tst_RVUrl::fileName_data()
{
    QTest::addColumn<QString>("url");
    QTest::addColumn<QString>("name");
    const auto row = [](const char *title, const char *url, const char *name) {
        QTest::newRow(title) << QString::fromUtf8(url) << QString::fromUtf8(name);
    };
    row("last component", "http://h/a/b.deb", "b.deb");
    row("without query and fragment", "http://h/a/b.deb?x=/y#/z", "b.deb");
    row("decoded blank", "http://h/a%20b.deb", "a b.deb");
    row("decoded percent sign", "http://h/100%25.deb", "100%.deb");
    row("decoded number sign", "http://h/a%23b.deb", "a#b.deb");
    row("encoded slash separates too", "http://h/a%2Fb.deb", "b.deb");
    row("UTF-8", "http://h/gr%C3%BCn.deb", "grün.deb");
    row("directory", "http://h/a/", "");
    row("no path", "http://h", "");
    row("local file", "file:///tmp/x.xar", "x.xar");
    row("no scheme", "/tmp/x.xar", "x.xar");
}

void tst_RVUrl::fileName()
{
    QFETCH(QString, url);
    QFETCH(QString, name);
    QCOMPARE(RVUrl::fileName(QUrl(url)), name);
}

void tst_RVUrl::shown_data()
{
    QTest::addColumn<QString>("url");
    QTest::addColumn<QString>("text");

    QTest::newRow("plain") << QStringLiteral("http://h/a%20b") << QStringLiteral("http://h/a b");
    QTest::newRow("user") << QStringLiteral("ftp://me@h/") << QStringLiteral("ftp://me@h/");
    QTest::newRow("password") << QStringLiteral("ftp://me:secret@h:2121/x")
                              << QStringLiteral("ftp://me@h:2121/x");
    QTest::newRow("empty") << QString() << QString();
}

void tst_RVUrl::shown()
{
    QFETCH(QString, url);
    QFETCH(QString, text);
    QCOMPARE(RVUrl::shown(QUrl(url)), text);
}

QTEST_GUILESS_MAIN(tst_RVUrl)
#include "tst_RVUrl.moc"

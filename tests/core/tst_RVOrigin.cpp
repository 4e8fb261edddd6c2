// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/RVOrigin.h"

#include <QtTest>

class tst_RVOrigin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void leads_data();
    void leads();
    void origin_data()
    {
        QTest::addColumn<QString>("url");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *title, const char *url, const char *expected) {
            QTest::newRow(title) << QString::fromUtf8(url) << QString::fromUtf8(expected);
        };
        row("http", "http://h.example/a/b", "http://h.example:80");
        row("http with its port", "http://h.example:80", "http://h.example:80");
        row("another port", "http://h.example:8080/a", "http://h.example:8080");
        row("https", "https://h.example/", "https://h.example:443");
        row("ftp", "ftp://h.example/a", "ftp://h.example:21");
        row("capitals", "HTTP://H.Example/A", "http://h.example:80");
        row("no user, no password", "http://me:pw@h.example/", "http://h.example:80");
        row("a user that looks like a host", "http://h.example@other/", "http://other:80");
        row("no query, no fragment", "http://h.example/?a=b#c", "http://h.example:80");
        row("an IPv6 address", "http://[::1]:81/", "http://[::1]:81");
        row("a scheme without a port of its own", "gopher://h/a", "gopher://h");
        row("a file", "file:///a/b", "");
        row("a bare path", "/a/b", "");
        row("nothing", "", "");
    }
    void origin()
    {
        QFETCH(QString, url);
        QTEST(originOf(QUrl(url)), "expected");
    }

    void same_data()
    {
        QTest::addColumn<QString>("a");
        QTest::addColumn<QString>("b");
        QTest::addColumn<bool>("expected");
        const auto row = [](const char *title, const char *a, const char *b, bool expected) {
            QTest::newRow(title) << QString::fromUtf8(a) << QString::fromUtf8(b) << expected;
        };
        row("another path", "http://h/a/", "http://h/b", true);
        row("the port said and implied", "http://h:80/", "http://h/", true);
        row("letter case", "HTTPS://H/", "https://h:443/", true);
        row("another user", "ftp://me:pw@h/", "ftp://h/", true);
        row("another scheme", "https://h/", "http://h/", false);
        row("another scheme on one port", "https://h:80/", "http://h/", false);
        row("another port", "http://h/", "http://h:8080/", false);
        row("another host", "http://h/", "http://i/", false);
        row("a longer host", "http://h.example/", "http://h.example.evil/", false);
        row("the host as a user", "http://h/", "http://h@evil/", false);
        row("an address and its name", "http://127.0.0.1/", "http://localhost/", false);
        row("two files", "file:///a", "file:///a", false);
        row("two empty ones", "", "", false);
    }
    void same()
    {
        QFETCH(QString, a);
        QFETCH(QString, b);
        QTEST(isSameOrigin(QUrl(a), QUrl(b)), "expected");
        QTEST(isSameOrigin(QUrl(b), QUrl(a)), "expected");
    }
};

void tst_RVOrigin::leads_data()
{
    QTest::addColumn<QString>("location");
    QTest::addColumn<QString>("link");
    QTest::addColumn<bool>("may");
    const auto rows = [](const char *location, const std::initializer_list<const char *> &links,
                         bool may) {
        for (const char *link : links) {
            QTest::addRow("%s to %s", location, link)
                << QString::fromLatin1(location) << QString::fromLatin1(link) << may;
        }
    };
    rows("http://h/", {"http://h/a.deb", "http://i/a.deb", "https://i/a.deb", "ftp://i/a.deb"},
         true);
    rows("ftp://h/", {"ftp://h/a.deb", "http://i/a.deb", "https://i/a.deb"}, true);
    rows("https://h/", {"https://h/a.deb", "https://i:8443/a.deb", "HTTPS://i/a.deb"}, true);
    rows("https://h/", {"http://h/a.deb", "ftp://h/a.deb"}, false);
    for (const char *location : {"http://h/", "https://h/", "ftp://h/"}) {
        rows(location,
             {"file:///proc/kmsg%00.xml", "file://h/a.deb", "FILE:///etc/a.deb", "/etc/a.deb",
              "data:application/x,a.deb", "qrc:/a.deb", "gopher://h/a.deb", "javascript:a.deb", ""},
             false);
    }
    rows("file:///srv/", {"file:///srv/a.deb", "/srv/a.deb"}, true);
    rows("file:///srv/", {"http://h/a.deb", "https://h/a.deb", "qrc:/a.deb"}, false);
    rows("/srv/", {"file:///srv/a.deb"}, true);
}

void tst_RVOrigin::leads()
{
    QFETCH(QString, location);
    QFETCH(QString, link);
    QFETCH(bool, may);
    QCOMPARE(mayLeadTo(QUrl(location), QUrl(link)), may);
}

QTEST_GUILESS_MAIN(tst_RVOrigin)
#include "tst_RVOrigin.moc"

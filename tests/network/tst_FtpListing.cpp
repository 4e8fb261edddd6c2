// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "network/FtpListing.h"

#include <QtTest>

namespace
{

QDateTime moment(int year, int month, int day, int hour = 0, int minute = 0)
{
    return {QDate(year, month, day), QTime(hour, minute), Qt::UTC};
}

const QDateTime &today()
{
    static const QDateTime time = moment(2026, 11, 21, 12, 0);
    return time;
}

std::optional<FtpListing::Entry> parsed(const QByteArray &line, const QString &user = {})
{
    return FtpListing::parse(line, user, today());
}

} // namespace

class tst_FtpListing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void names_data();
    void names();
    void noEntries_data();
    void noEntries();
    void types_data();
    void types();
    void owners_data();
    void owners();
    void sizes_data();
    void sizes();
    void times_data();
    void times();
    void permissions_data();
    void permissions();
    void latin1IsALinesFallback();
    void hostileLinesAreHarmless();
};

void tst_FtpListing::names_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QByteArray>("name");
    const QByteArray head("-rw-r--r--   1 ftp  ftp   12 Nov 21  2025 ");
    QTest::newRow("plain") << head + "tool_1:2.0-1_all.deb" << QByteArray("tool_1:2.0-1_all.deb");
    QTest::newRow("line feed") << head + "a\n" << QByteArray("a");
    QTest::newRow("carriage return, line feed") << head + "a\r\n" << QByteArray("a");
    QTest::newRow("blanks inside") << head + "a  b c" << QByteArray("a  b c");
    QTest::newRow("leading blanks") << head + "  a" << QByteArray("  a");
    QTest::newRow("trailing blanks") << head + "a  \r\n" << QByteArray("a  ");
    QTest::newRow("leading dash") << head + "-rf" << QByteArray("-rf");
    QTest::newRow("percent, hash, question mark") << head + "a%20#?" << QByteArray("a%20#?");
    QTest::newRow("brackets and quotes") << head + "[a]{b}\"'`\\" << QByteArray("[a]{b}\"'`\\");
    QTest::newRow("UTF-8") << head + "\xc3\xa4" << QByteArray("\xc3\xa4");
    QTest::newRow("Latin-1") << head + "\xe4" << QByteArray("\xe4");
    QTest::newRow("looks like a date") << head + "1 Nov 21 2024 b" << QByteArray("1 Nov 21 2024 b");
    QTest::newRow("arrow in the name of a file") << head + "a -> b" << QByteArray("a -> b");
    QTest::newRow("dot") << QByteArray("drwxr-xr-x 2 ftp ftp 4096 Nov 21 2025 .")
                         << QByteArray(".");
    QTest::newRow("two dots") << QByteArray("drwxr-xr-x 2 ftp ftp 4096 Nov 21 2025 ..")
                              << QByteArray("..");
    const QByteArray link("lrwxrwxrwx 1 ftp ftp ");
    QTest::newRow("link") << link + "3 Nov 21 2025 a -> ../" << QByteArray("a");
    QTest::newRow("link with an arrow in its name")
        << link + "1 Nov 21 2025 a -> b -> c" << QByteArray("a -> b");
    QTest::newRow("link to a name with an arrow")
        << link + "6 Nov 21 2025 a -> b -> c" << QByteArray("a");
    QTest::newRow("link of unknown size with two arrows")
        << link + "99 Nov 21 2025 a -> b -> c" << QByteArray("a");
    QTest::newRow("link without a target") << link + "3 Nov 21 2025 a" << QByteArray("a");
    QTest::newRow("list of permissions")
        << QByteArray("-rw-r--r--+ 1 a b 1 Nov 21 2025 x") << QByteArray("x");
    QTest::newRow("security context")
        << QByteArray("-rw-r--r--. 1 a b 1 Nov 21 2025 x") << QByteArray("x");
    QTest::newRow("extended attributes")
        << QByteArray("-rw-r--r--@ 1 a b 1 Nov 21 2025 x") << QByteArray("x");
    QTest::newRow("tabs between") << QByteArray("-rw-r--r--\t1\ta\tb\t1\tNov\t21\t2025 x")
                                  << QByteArray("x");
    QTest::newRow("DOS file") << QByteArray("11-21-26  09:41AM              1234 a b.deb")
                              << QByteArray("a b.deb");
    QTest::newRow("DOS file, leading blank")
        << QByteArray("11-21-26  09:41AM              1234  a") << QByteArray(" a");
    QTest::newRow("DOS directory")
        << QByteArray("11-21-26  09:41AM       <DIR>          sub dir\r\n")
        << QByteArray("sub dir");
    QTest::newRow("DOS directory, leading blank")
        << QByteArray("11-21-26  09:41AM       <DIR>           sub") << QByteArray(" sub");
    QTest::newRow("DOS directory, packed")
        << QByteArray("11-21-2026 09:41 <DIR> sub") << QByteArray("sub");
}

void tst_FtpListing::names()
{
    QFETCH(QByteArray, line);
    QFETCH(QByteArray, name);
    const auto entry = parsed(line);
    QVERIFY(entry);
    QCOMPARE(entry->rawName, name);
    QVERIFY(entry->info.isValid());
}

void tst_FtpListing::noEntries_data()
{
    QTest::addColumn<QByteArray>("line");
    const QByteArray head("-rw-r--r-- 1 ftp ftp 12 Nov 21 2025 ");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("blank") << QByteArray("   \r\n");
    QTest::newRow("total") << QByteArray("total 12\r\n");
    QTest::newRow("text") << QByteArray("ls: cannot access 'x': No such file or directory");
    QTest::newRow("no name") << QByteArray("-rw-r--r-- 1 ftp ftp 12 Nov 21 2025");
    QTest::newRow("no name, but a blank") << head;
    QTest::newRow("slash in the name") << head + "a/b";
    QTest::newRow("absolute name") << head + "/etc/passwd";
    QTest::newRow("NUL in the name") << head + QByteArray("a\0b", 3);
    QTest::newRow("carriage return in the name") << head + "a\rb";
    QTest::newRow("escape in the name") << head + "a\x1b[2J";
    QTest::newRow("delete in the name") << head + "a\x7f";
    QTest::newRow("tab in the name") << head + "a\tb";
    QTest::newRow("no date") << QByteArray("-rw-r--r-- 1 ftp ftp 12 name");
    QTest::newRow("no size") << QByteArray("-rw-r--r-- ftp Nov 21 2025 name");
    QTest::newRow("negative size") << QByteArray("-rw-r--r-- 1 ftp ftp -1 Nov 21 2025 name");
    QTest::newRow("size beyond 64 bits")
        << QByteArray("-rw-r--r-- 1 ftp ftp 9223372036854775808 Nov 21 2025 name");
    QTest::newRow("unknown month") << QByteArray("-rw-r--r-- 1 ftp ftp 12 Foo 21 2025 name");
    QTest::newRow("parts of two months") << QByteArray("-rw-r--r-- 1 ftp ftp 12 anf 21 2025 name");
    QTest::newRow("day 32") << QByteArray("-rw-r--r-- 1 ftp ftp 12 Nov 32 2025 name");
    QTest::newRow("hour 24") << QByteArray("-rw-r--r-- 1 ftp ftp 12 Nov 21 24:00 name");
    QTest::newRow("minute 60") << QByteArray("-rw-r--r-- 1 ftp ftp 12 Nov 21 23:60 name");
    QTest::newRow("short mode") << QByteArray("-rw-r--r- 1 ftp ftp 12 Nov 21 2025 name");
    QTest::newRow("unknown type") << QByteArray("xrw-r--r-- 1 ftp ftp 12 Nov 21 2025 name");
    QTest::newRow("unknown permission") << QByteArray("-rw-r--q-- 1 ftp ftp 12 Nov 21 2025 name");
    QTest::newRow("unknown mark") << QByteArray("-rw-r--r--* 1 ftp ftp 12 Nov 21 2025 name");
    QTest::newRow("link with a slash in its name")
        << QByteArray("lrwxrwxrwx 1 ftp ftp 1 Nov 21 2025 a/b -> c");
    QTest::newRow("DOS, no name") << QByteArray("11-21-26  09:41AM  1234");
    QTest::newRow("DOS, month 13") << QByteArray("13-21-26  09:41AM  1234 a");
    QTest::newRow("DOS, hour 13 in the afternoon") << QByteArray("11-21-26  13:41PM  1234 a");
    QTest::newRow("DOS, hour 0 in the morning") << QByteArray("11-21-26  00:41AM  1234 a");
    QTest::newRow("DOS, three digits of a year") << QByteArray("11-21-026  09:41AM  1234 a");
    QTest::newRow("DOS, other kind") << QByteArray("11-21-26  09:41AM  <JUNCTION> a [b]");
    QTest::newRow("DOS, backslashes are a name, slashes are not")
        << QByteArray("11-21-26  09:41AM  1 ../a");
    QTest::newRow("EPLF") << QByteArray("+i8388621.48594,m825718503,r,s280,\tname");
    QTest::newRow("MLSD") << QByteArray("type=file;size=1; name");
    QTest::newRow("beyond 8 KiB") << head + QByteArray(8 * 1024, 'a');
}

void tst_FtpListing::noEntries()
{
    QFETCH(QByteArray, line);
    QVERIFY(!parsed(line));
}

void tst_FtpListing::types_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<bool>("isDir");
    QTest::addColumn<bool>("isFile");
    QTest::addColumn<bool>("isLink");
    const QByteArray tail("rw-r--r-- 1 a b 1 Nov 21 2025 x");
    QTest::newRow("file") << '-' + tail << false << true << false;
    QTest::newRow("directory") << 'd' + tail << true << false << false;
    QTest::newRow("link") << 'l' + tail << false << false << true;
    QTest::newRow("pipe") << 'p' + tail << false << false << false;
    QTest::newRow("socket") << 's' + tail << false << false << false;
    QTest::newRow("block device") << QByteArray("brw-rw---- 1 root disk 8, 0 Nov 21 2025 sda")
                                  << false << false << false;
    QTest::newRow("DOS file") << QByteArray("11-21-26  09:41AM  1 a") << false << true << false;
    QTest::newRow("DOS directory")
        << QByteArray("11-21-26  09:41AM  <dir> a") << true << false << false;
}

void tst_FtpListing::types()
{
    QFETCH(QByteArray, line);
    const auto entry = parsed(line);
    QVERIFY(entry);
    QTEST(entry->info.isDir(), "isDir");
    QTEST(entry->info.isFile(), "isFile");
    QTEST(entry->info.isSymLink(), "isLink");
}

void tst_FtpListing::owners_data()
{
    QTest::addColumn<QByteArray>("between");
    QTest::addColumn<QString>("owner");
    QTest::addColumn<QString>("group");
    QTest::newRow("both") << QByteArray("1 me us") << "me"
                          << "us";
    QTest::newRow("numbers") << QByteArray("1 1000 100") << "1000"
                             << "100";
    QTest::newRow("no group") << QByteArray("1 me") << "me"
                              << "";
    QTest::newRow("neither") << QByteArray("1") << ""
                             << "";
    QTest::newRow("not even a count of links") << QByteArray("") << ""
                                               << "";
    QTest::newRow("no count of links") << QByteArray("me us") << "me"
                                       << "us";
    QTest::newRow("group of two words") << QByteArray("1 me domain users") << "me"
                                        << "domain users";
    QTest::newRow("group of three words") << QByteArray("1 D\\me all domain users") << "D\\me"
                                          << "all domain users";
    QTest::newRow("named like a month") << QByteArray("1 jan may") << "jan"
                                        << "may";
    QTest::newRow("UTF-8") << QByteArray("1 m\xc3\xa4 us") << QStringLiteral("m\u00e4") << "us";
}

void tst_FtpListing::owners()
{
    QFETCH(QByteArray, between);
    const auto entry = parsed("-rw-r--r-- " + between + " 12 Nov 21 2025 x");
    QVERIFY(entry);
    QTEST(entry->info.owner(), "owner");
    QTEST(entry->info.group(), "group");
    QCOMPARE(entry->info.size(), 12);
}

void tst_FtpListing::sizes_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<qint64>("size");
    QTest::newRow("nothing") << QByteArray("-rw-r--r-- 1 a b 0 Nov 21 2025 x") << qint64(0);
    QTest::newRow("beyond 32 bits")
        << QByteArray("-rw-r--r-- 1 a b 5000000000 Nov 21 2025 x") << qint64(5'000'000'000);
    QTest::newRow("63 bits") << QByteArray("-rw-r--r-- 1 a b 9223372036854775807 Nov 21 2025 x")
                             << std::numeric_limits<qint64>::max();
    QTest::newRow("device numbers")
        << QByteArray("crw-rw-rw- 1 root tty 5, 12 Nov 21 2025 x") << qint64(0);
    QTest::newRow("device numbers, packed")
        << QByteArray("crw-rw-rw- 1 root tty 5,12 Nov 21 2025 x") << qint64(0);
    QTest::newRow("DOS") << QByteArray("11-21-26  09:41AM  5000000000 a") << qint64(5'000'000'000);
    QTest::newRow("DOS directory") << QByteArray("11-21-26  09:41AM  <DIR>  a") << qint64(0);
}

void tst_FtpListing::sizes()
{
    QFETCH(QByteArray, line);
    const auto entry = parsed(line);
    QVERIFY(entry);
    QTEST(entry->info.size(), "size");
    QCOMPARE(entry->info.owner(),
             line.contains("root") ? QStringLiteral("root")
                                   : QString::fromLatin1(line.contains(" a b ") ? "a" : ""));
}

void tst_FtpListing::times_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QDateTime>("time");
    const auto unixRow = [](const char *name, const char *date, const QDateTime &time) {
        QTest::newRow(name) << QByteArray("-rw-r--r-- 1 a b 1 ") + date + " x" << time;
    };
    unixRow("year", "Feb  3  2019", moment(2019, 2, 3));
    unixRow("capitals", "FEB 3 2019", moment(2019, 2, 3));
    unixRow("this year", "Nov 20 23:59", moment(2026, 11, 20, 23, 59));
    unixRow("one digit of an hour", "Nov 20 9:05", moment(2026, 11, 20, 9, 5));
    unixRow("a server's clock or zone ahead", "Nov 22 11:59", moment(2026, 11, 22, 11, 59));
    unixRow("in the future, so last year", "Nov 23 12:00", moment(2025, 11, 23, 12, 0));
    unixRow("last December", "Dec 31 23:59", moment(2025, 12, 31, 23, 59));
    unixRow("leap day without a year", "Feb 29 12:00", moment(2024, 2, 29, 12, 0));
    unixRow("a day that is none", "Feb 30 12:00", {});
    unixRow("a day that is none, with a year", "Feb 29 2025", {});
    const auto dosRow = [](const char *name, const char *date, const QDateTime &time) {
        QTest::newRow(name) << QByteArray(date) + "  1 x" << time;
    };
    dosRow("DOS, morning", "02-03-19  09:41AM", moment(2019, 2, 3, 9, 41));
    dosRow("DOS, afternoon", "02-03-19  09:41PM", moment(2019, 2, 3, 21, 41));
    dosRow("DOS, small letters", "02-03-19  09:41pm", moment(2019, 2, 3, 21, 41));
    dosRow("DOS, midnight", "02-03-19  12:00AM", moment(2019, 2, 3, 0, 0));
    dosRow("DOS, noon", "02-03-19  12:00PM", moment(2019, 2, 3, 12, 0));
    dosRow("DOS, 24 hours", "02-03-2019  21:41", moment(2019, 2, 3, 21, 41));
    dosRow("DOS, last century", "02-03-99  09:41AM", moment(1999, 2, 3, 9, 41));
    dosRow("DOS, four digits", "02-03-1999  09:41AM", moment(1999, 2, 3, 9, 41));
}

void tst_FtpListing::times()
{
    QFETCH(QByteArray, line);
    QFETCH(QDateTime, time);
    const auto entry = parsed(line);
    QVERIFY(entry);
    QCOMPARE(entry->info.lastModified().isValid(), time.isValid());
    if (time.isValid()) {
        QCOMPARE(entry->info.lastModified(), time);
    }
}

void tst_FtpListing::permissions_data()
{
    QTest::addColumn<QByteArray>("mode");
    QTest::addColumn<QString>("user");
    QTest::addColumn<int>("bits");
    QTest::addColumn<bool>("isReadable");
    QTest::addColumn<bool>("isWritable");
    QTest::newRow("for all") << QByteArray("-rwxrwxrwx") << "" << 0777 << true << true;
    QTest::newRow("for nobody") << QByteArray("----------") << "me" << 0 << false << false;
    QTest::newRow("usual") << QByteArray("-rw-r--r--") << "" << 0644 << true << false;
    QTest::newRow("usual, as its owner")
        << QByteArray("-rw-r--r--") << "me" << 0644 << true << true;
    QTest::newRow("private") << QByteArray("-rw-------") << "you" << 0600 << false << false;
    QTest::newRow("private, as its owner")
        << QByteArray("-rw-------") << "me" << 0600 << true << true;
    QTest::newRow("set-id and sticky programs")
        << QByteArray("-rwsr-sr-t") << "" << 0755 << true << false;
    QTest::newRow("set-id and sticky, no programs")
        << QByteArray("-rwSr-Sr-T") << "" << 0644 << true << false;
}

void tst_FtpListing::permissions()
{
    QFETCH(QByteArray, mode);
    QFETCH(QString, user);
    const auto entry = parsed(mode + " 1 me us 12 Nov 21 2025 x", user);
    QVERIFY(entry);
    QTEST(entry->info.permissions(), "bits");
    QTEST(entry->info.isReadable(), "isReadable");
    QTEST(entry->info.isWritable(), "isWritable");
}

void tst_FtpListing::latin1IsALinesFallback()
{
    const QByteArray line("-rw-r--r-- 1 m\xe4 us 12 Nov 21 2025 \xc3\xa4");
    const auto entry = parsed(line);
    QVERIFY(entry);
    QCOMPARE(entry->info.owner(), QStringLiteral("m\u00e4"));
    QCOMPARE(entry->info.name(), QStringLiteral("\u00c3\u00a4"));
    QCOMPARE(entry->rawName, QByteArray("\xc3\xa4"));
}

void tst_FtpListing::hostileLinesAreHarmless()
{
    const QList<QByteArray> seeds{"-rw-r--r--+ 1 me domain users 12 Nov 21 09:41 name -> x",
                                  "crw-rw-rw- 1 root tty 5, 12 Feb 29 2024 tty",
                                  "11-21-26  09:41AM       <DIR>          sub dir"};
    quint32 state = 1;
    const auto random = [&state](int bound) {
        state = state * 1664525 + 1013904223;
        return static_cast<int>((state >> 8) % static_cast<quint32>(bound));
    };
    int entries = 0;
    for (int round = 0; round < 30'000; ++round) {
        QByteArray line = seeds.at(random(seeds.size()));
        for (int edits = random(6); edits >= 0; --edits) {
            const int at = random(line.size());
            if (random(2) == 0) {
                line[at] = static_cast<char>(random(256));
            } else {
                line.remove(at, 1 + random(4));
            }
            if (line.isEmpty()) {
                line = " ";
            }
        }
        const auto entry = parsed(line);
        if (entry) {
            ++entries;
            QVERIFY(!entry->rawName.isEmpty());
            QVERIFY(!entry->rawName.contains('/'));
            QVERIFY(!entry->rawName.contains('\0'));
            QVERIFY(line.contains(entry->rawName));
            QVERIFY(entry->info.size() >= 0);
        }
    }
    QVERIFY(entries > 1000);
}

QTEST_APPLESS_MAIN(tst_FtpListing)
#include "tst_FtpListing.moc"

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "repository/RVChecksums.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

namespace
{

const QByteArray sumA = QByteArray(64, 'a');
const QByteArray sumB = QByteArray(64, 'B');
const QByteArray header = QByteArrayLiteral("# Ravel-Repository: org.example.packages\n"
                                            "# Ravel-Serial: 12\n"
                                            "# Ravel-Valid-Until: 2026-12-24T18:00:00Z\n");

} // namespace

class tst_RVChecksums : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void reads();
    void good_data();
    void good();
    void refused_data();
    void refused();
    void times_data();
    void times();
    void names_data();
    void names();
    void writesWhatItReads();
    void fitsSha256sum();
    void longListIsFast();
};

void tst_RVChecksums::reads()
{
    QString reason;
    const auto list =
        RVChecksums::parse(header + "# Ravel-Head: " + sumA + " 4096 b.deb\n" + sumA + "  a.xml\n"
                               + sumB + " *b.deb\n\\" + sumA + "  c\\n\\\\\\r.xml\n",
                           &reason);
    QVERIFY2(list, qUtf8Printable(reason));
    QCOMPARE(list->repositoryId, QStringLiteral("org.example.packages"));
    QCOMPARE(*list->serial, qint64(12));
    QCOMPARE(list->validUntil, QDateTime({2026, 12, 24}, {18, 0}, Qt::UTC));
    QCOMPARE(list->sums.keys(), (QList<QByteArray>{"a.xml", "b.deb", "c\n\\\r.xml"}));
    QCOMPARE(list->sumOf(QUrl(QStringLiteral("http://h/p/b.deb"))), QByteArray(32, '\xbb'));
    QCOMPARE(list->sumOf(QUrl(QStringLiteral("http://h/p/d.deb"))), QByteArray());
    QCOMPARE(list->heads.value("b.deb").length, qint64(4096));
    QCOMPARE(list->heads.value("b.deb").sum, QByteArray(32, '\xaa'));
}

void tst_RVChecksums::good_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("no field") << sumA + "  a\n";
    QTest::newRow("a comment") << "# hello\n#\n#x: y\n" + sumA + "  a\n# end\n";
    QTest::newRow("an unknown field, twice") << QByteArray("# Ravel-Colour: red\n").repeated(2);
    QTest::newRow("no file") << header;
    QTest::newRow("a name with blanks") << sumA + "   a  b \n";
    QTest::newRow("bytes that are no UTF-8") << sumA + "  \xe4\n";
    QTest::newRow("a backslash that is none") << sumA + "  a\\b\n";
    QTest::newRow("serial 0") << QByteArray("# Ravel-Serial: 0\n");
    QTest::newRow("the largest serial") << QByteArray("# Ravel-Serial: 9223372036854775807\n");
}

void tst_RVChecksums::good()
{
    QFETCH(QByteArray, text);
    QString reason;
    QVERIFY2(RVChecksums::parse(text, &reason), qUtf8Printable(reason));
}

void tst_RVChecksums::refused_data()
{
    QTest::addColumn<QByteArray>("text");
    const QByteArray line = sumA + "  a\n";
    QTest::newRow("an empty line") << "\n" + line;
    QTest::newRow("a page") << QByteArray("<html>\n");
    QTest::newRow("cut off in a name") << line + sumB + "  b";
    QTest::newRow("cut off in a sum") << line + sumB.left(20) + '\n';
    QTest::newRow("no hexadecimal digit") << QByteArray(sumA).replace(63, 1, "g") + "  a\n";
    QTest::newRow("a sum that is too long") << 'a' + line;
    QTest::newRow("one blank") << sumA + " a\n";
    QTest::newRow("a tab") << sumA + "\ta\n";
    QTest::newRow("no name") << sumA + "  \n";
    QTest::newRow("a path") << sumA + "  x/a\n";
    QTest::newRow("a path here") << sumA + "  ./a\n";
    QTest::newRow("the folder") << sumA + "  .\n";
    QTest::newRow("the folder above") << sumA + "  ..\n";
    QTest::newRow("a NUL") << sumA + QByteArray("  a\0b\n", 6);
    QTest::newRow("a name that is too long") << sumA + "  " + QByteArray(256, 'x') + '\n';
    QTest::newRow("an unknown escape") << '\\' + sumA + "  a\\tb\n";
    QTest::newRow("half an escape") << '\\' + sumA + "  a\\\n";
    QTest::newRow("a name twice") << line + line;
    QTest::newRow("a name twice with other sums") << line + sumB + " *a\n";
    for (const QByteArray &field : header.trimmed().split('\n')) {
        const QByteArray name = field.mid(8, field.indexOf(':') - 8);
        QTest::newRow((QByteArray(name) + " twice").constData()) << field + '\n' + field + '\n';
        QTest::newRow((QByteArray(name) + " twice, others between").constData())
            << header + field + '\n';
        QTest::newRow((QByteArray(name) + " empty").constData())
            << field.left(field.indexOf(": ") + 2) + '\n';
        QTest::newRow((QByteArray(name) + " with a blank behind").constData()) << field + " \n";
        QTest::newRow((QByteArray(name) + " with a carriage return").constData()) << field + "\r\n";
        QTest::newRow((QByteArray(name) + " below a sum").constData()) << line + field + '\n';
    }
    for (const char *serial : {"-1", "+1", "01", "1.0", "9223372036854775808", "0x1", "1,000"}) {
        QTest::newRow(serial) << QByteArray("# Ravel-Serial: ") + serial + '\n';
    }
    for (const char *id : {"a/b", "-a", ".", "a b", "\xc3\xa4"}) {
        QTest::newRow(id) << QByteArray("# Ravel-Repository: ") + id + '\n';
    }
    const QByteArray head = "# Ravel-Head: " + sumA;
    QTest::newRow("head: nothing") << QByteArray("# Ravel-Head: \n");
    QTest::newRow("head: no length") << head + " a\n" + line;
    QTest::newRow("head: no name") << head + " 1\n" + line;
    QTest::newRow("head: an empty name") << head + " 1 \n" + line;
    QTest::newRow("head: length 0") << head + " 0 a\n" + line;
    QTest::newRow("head: too long") << head + " 33554433 a\n" + line;
    QTest::newRow("head: negative") << head + " -1 a\n" + line;
    QTest::newRow("head: twice") << head + " 1 a\n" + head + " 1 a\n" + line;
    QTest::newRow("head: of no file") << head + " 1 b\n" + line;
    QTest::newRow("head: a path") << head + " 1 x/a\n" + line;
    QTest::newRow("too long") << QByteArray(RVChecksums::maxBytes, '#') + '\n';
}

void tst_RVChecksums::refused()
{
    QFETCH(QByteArray, text);
    QString reason;
    QVERIFY(!RVChecksums::parse(text, &reason));
    QVERIFY(!reason.isEmpty());
}

void tst_RVChecksums::times_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<qint64>("seconds");
    const auto row = [](const char *text, qint64 seconds) {
        QTest::newRow(text) << QString::fromLatin1(text) << seconds;
    };
    row("2026-12-24T18:00:00Z", 1798135200);
    row("2026-12-24T18:00:00.5Z", 1798135200);
    row("2026-12-24T20:00:00+02:00", 1798135200);
    row("2026-12-24T16:30:00-01:30", 1798135200);
    for (const char *wrong :
         {"2026-12-24", "2026-12-24T18:00:00", "2026-12-24 18:00:00Z", "20261224T180000Z",
          "2026-13-24T18:00:00Z", "2026-02-30T18:00:00Z", "2026-12-24T25:00:00Z",
          "2026-12-24T18:00Z", "2026-12-24T18:00:00z", "2026-12-24T18:00:00+2", "tomorrow",
          "1798135200", " 2026-12-24T18:00:00Z", "2026-12-24T18:00:00+99:99"}) {
        row(wrong, -1);
    }
}

void tst_RVChecksums::times()
{
    QFETCH(QString, text);
    QFETCH(qint64, seconds);
    QString reason;
    const auto list = RVChecksums::parse("# Ravel-Valid-Until: " + text.toLatin1() + '\n', &reason);
    QCOMPARE(list.has_value(), seconds >= 0);
    if (list) {
        QCOMPARE(list->validUntil.toSecsSinceEpoch(), seconds);
    }
}

void tst_RVChecksums::names_data()
{
    QTest::addColumn<QString>("url");
    QTest::addColumn<QByteArray>("name");
    const auto row = [](const char *url, const QByteArray &name) {
        QTest::newRow(url) << QString::fromLatin1(url) << name;
    };
    row("http://h/p/a.deb", "a.deb");
    row("file:///p/a.deb", "a.deb");
    row("http://h/p/a%20b.deb", "a b.deb");
    row("http://h/p/a%2520b.deb", "a%20b.deb");
    row("http://h/p/%C3%A4.deb", "\xc3\xa4.deb");
    row("ftp://h/p/%E4.deb", "\xe4.deb");
    row("http://h/p/x%2Fa.deb", "");
    row("http://h/p/a%00.deb", "");
    row("http://h/p/", "");
    row("http://h/p/..", "");
    row("http://h/p/%2E%2E", "");
    row("http://h", "");
    row("http://h/p/a.deb?b", "");
    row("http://h/p/a.deb?", "");
    row("http://h/p/a.deb#b", "");
    row("http://h/p/a.deb#", "");
    row("", "");
}

void tst_RVChecksums::names()
{
    QFETCH(QString, url);
    QFETCH(QByteArray, name);
    QCOMPARE(RVChecksums::nameOf(QUrl(url)), name);
}

void tst_RVChecksums::writesWhatItReads()
{
    RVChecksums list;
    list.repositoryId = QStringLiteral("org.example.packages");
    list.serial = 7;
    list.validUntil = QDateTime({2026, 12, 24}, {18, 0}, Qt::UTC);
    list.sums = {{"a b.deb", QByteArray(32, 1)}, {"c\nd\\e\rf", QByteArray(32, 2)}};
    list.heads = {{"c\nd\\e\rf", {QByteArray(32, 3), 17}}};
    QString reason;
    const auto read = RVChecksums::parse(list.toText(), &reason);
    QVERIFY2(read, qUtf8Printable(reason));
    QCOMPARE(read->toText(), list.toText());
    QCOMPARE(read->sums, list.sums);
    QCOMPARE(read->validUntil, list.validUntil);
    QCOMPARE(read->heads.value("c\nd\\e\rf").sum, QByteArray(32, 3));
}

void tst_RVChecksums::fitsSha256sum()
{
    const QTemporaryDir directory;
    RVChecksums list;
    list.serial = 1;
    QProcess process;
    process.setWorkingDirectory(directory.path());
    for (const char *name :
         {"plain", "a b", " blank", "back\\slash", "line\nfeed", "\xc3\xa4", "*"}) {
        QFile file(directory.path() + QLatin1Char('/') + QFile::decodeName(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(file.write(name) > 0);
        list.sums.insert(name, QCryptographicHash::hash(name, QCryptographicHash::Sha256));
    }
    QFile file(directory.filePath(QStringLiteral("list")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.write(list.toText()) > 0);
    file.close();
    process.start(QStringLiteral("sha256sum"),
                  {QStringLiteral("--strict"), QStringLiteral("-c"), QStringLiteral("list")});
    QVERIFY(process.waitForFinished(30000));
    QVERIFY2(process.exitCode() == 0, process.readAllStandardError().constData());

    QVERIFY(file.remove());
    for (const char *option : {"-b", "-t"}) {
        process.start(
            QStringLiteral("sh"),
            {QStringLiteral("-c"), QStringLiteral("sha256sum %1 -- *").arg(QLatin1String(option))});
        QVERIFY(process.waitForFinished(30000));
        QString reason;
        const auto read = RVChecksums::parse(process.readAllStandardOutput(), &reason);
        QVERIFY2(read, qUtf8Printable(reason));
        QCOMPARE(read->sums, list.sums);
    }
}

void tst_RVChecksums::longListIsFast()
{
    QByteArray text;
    for (int i = 0; text.size() < RVChecksums::maxBytes - 100; ++i) {
        text += sumA + "  " + QByteArray::number(i) + '\n';
    }
    QString reason;
    QVERIFY2(RVChecksums::parse(text, &reason), qUtf8Printable(reason));
}

QTEST_APPLESS_MAIN(tst_RVChecksums)
#include "tst_RVChecksums.moc"

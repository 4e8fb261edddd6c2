// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/RVCtlText.h"

#include <QJsonDocument>
#include <QtTest>

#include <clocale>

class tst_RVCtlText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void documentsStayWhatTheyAre();
    void tablesAreAligned();
    void fieldsWithoutValuesAreLeftOut();
    void notes_data();
    void notes();
    void sizes_data();
    void sizes();
};

void tst_RVCtlText::initTestCase()
{
    // As QCoreApplication does in the program.
    std::setlocale(LC_ALL, "");
}

void tst_RVCtlText::documentsStayWhatTheyAre()
{
    const uint tag = 0xe0041;
    const QJsonObject document{
        {QStringLiteral("k\x1b"),
         QStringLiteral("\x1b[1m\n\"\\") + QChar(0x202e) + QChar(0x9b) + QString::fromUcs4(&tag, 1)
             + QStringLiteral("é")},
        {QStringLiteral("size"), qint64(99999999999)},
        {QStringLiteral("lone"), QString(QChar(0xd800))},
    };
    const QByteArray text = RVCtlText::json(document);
    for (const char c : text) {
        QVERIFY(c == '\n' || static_cast<unsigned char>(c) >= 0x20);
    }
    QVERIFY(!text.contains("\xe2\x80\xae"));
    QVERIFY(!text.contains("\xc2\x9b"));
    QVERIFY(text.contains("99999999999"));
    const QJsonObject read = QJsonDocument::fromJson(text).object();
    QCOMPARE(read.value(QStringLiteral("k\x1b")), document.value(QStringLiteral("k\x1b")));
    QCOMPARE(read.size(), document.size());
}

void tst_RVCtlText::tablesAreAligned()
{
    const QString table = RVCtlText::table({QStringLiteral("NAME"), QStringLiteral("VALUE")},
                                           {{QStringLiteral("音声"), QStringLiteral("1")},
                                            {QStringLiteral("x\n"), QStringLiteral("2")},
                                            {QStringLiteral("only")}});
    QCOMPARE(table,
             QString::fromUtf8("NAME     VALUE\n"
                               "音声     1\n"
                               "x\\u000a  2\n"
                               "only\n"));
}

void tst_RVCtlText::fieldsWithoutValuesAreLeftOut()
{
    const QString text = RVCtlText::fields({{QStringLiteral("Name"), QStringLiteral("a\x07")},
                                            {QStringLiteral("A very long label"), QString()},
                                            {QStringLiteral("Size"), QStringLiteral("1")}});
    QCOMPARE(text, QStringLiteral("Name:  a\\u0007\nSize:  1\n"));
}

void tst_RVCtlText::notes_data()
{
    QTest::addColumn<QString>("html");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *title, const char *html, const char *text) {
        QTest::newRow(title) << QString::fromUtf8(html) << QString::fromUtf8(text);
    };
    row("plain", "A note.", "A note.");
    row("paragraphs", "<p>One</p><p>Two</p>", "One\n\nTwo");
    row("list", "<ul><li>a</li><li>b <b>c</b></li></ul>", "- a\n- b c");
    row("line break", "a<br/>b<BR>c", "a\nb\nc");
    row("references", "a &amp; b &lt;c&gt;", "a & b <c>");
    row("quoted markup", "<![CDATA[<p>x</p>]]>", "x");
    row("what nobody is to read", "<style>p {}</style>a<script>b</script><!-- c -->", "a");
    row("a tag that never ends", "a <b", "a <b");
    row("no tag", "1 < 2", "1 < 2");
    row("blanks", "  a \n\n\n\n b  ", "a\n\nb");
}

void tst_RVCtlText::notes()
{
    QFETCH(QString, html);
    QFETCH(QString, text);
    QCOMPARE(RVCtlText::notes(html), text);
}

void tst_RVCtlText::sizes_data()
{
    QTest::addColumn<qint64>("bytes");
    QTest::addColumn<QString>("text");
    QTest::newRow("unknown") << qint64(-1) << QString();
    QTest::newRow("nothing") << qint64(0) << QStringLiteral("0 B");
    QTest::newRow("below one unit") << qint64(1023) << QStringLiteral("1023 B");
    QTest::newRow("one decimal") << qint64(1536) << QStringLiteral("1.5 KiB");
    QTest::newRow("no decimal") << qint64(10240) << QStringLiteral("10 KiB");
    QTest::newRow("mebibytes") << qint64(1048576) << QStringLiteral("1.0 MiB");
    QTest::newRow("gibibytes") << qint64(10737418240) << QStringLiteral("10 GiB");
}

void tst_RVCtlText::sizes()
{
    QFETCH(qint64, bytes);
    QFETCH(QString, text);
    QCOMPARE(RVCtlText::size(bytes), text);
}

QTEST_APPLESS_MAIN(tst_RVCtlText)
#include "tst_RVCtlText.moc"

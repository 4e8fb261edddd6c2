// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/support/CpuCost.h"
#include "tests/support/WarningGuard.h"
#include "ui/NotesDocument.h"

#include <QAbstractTextDocumentLayout>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>
#include <QUrl>
#include <QtTest>

#include <sys/stat.h>

namespace
{

constexpr int longest = 64 * 1024;

QString laidOut(const QString &html)
{
    NotesDocument document;
    document.setTextWidth(400);
    document.setNotes(html);
    document.documentLayout()->documentSize();
    QImage image(400, 300, QImage::Format_RGB32);
    QPainter painter(&image);
    document.drawContents(&painter, QRectF(0, 0, 400, 300));
    return document.toPlainText();
}

} // namespace

class tst_NotesDocument : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sanitised_data()
    {
        QTest::addColumn<QString>("html");
        QTest::addColumn<QString>("expected");

        QTest::newRow("nothing") << ""
                                 << "";
        QTest::newRow("text") << "plain text"
                              << "plain text";
        QTest::newRow("entities stay") << "a &lt;b&gt; &amp; &#65;"
                                       << "a &lt;b&gt; &amp; &#65;";
        QTest::newRow("formatting") << "<b>a</b><i>b</i>"
                                    << "<b>a</b><i>b</i>";
        QTest::newRow("capital letters") << "<B>a</B><BR>"
                                         << "<b>a</b><br>";
        QTest::newRow("empty elements") << "a<br/>b<hr />c"
                                        << "a<br>b<hr>c";
        QTest::newRow("list") << "<ul><li>a</li><li>b</li></ul>"
                              << "<ul><li>a</li><li>b</li></ul>";
        QTest::newRow("list with ends left out") << "<ul><li>a<li>b</ul>c"
                                                 << "<ul><li>a</li><li>b</li></ul>c";
        QTest::newRow("lists in lists")
            << "<ul><li>a<ol><li>b<li>c</ol><li>d</ul>"
            << "<ul><li>a<ol><li>b</li><li>c</li></ol></li><li>d</li></ul>";
        QTest::newRow("terms with ends left out") << "<dl><dt>a<dd>b<dt>c</dl>"
                                                  << "<dl><dt>a</dt><dd>b</dd><dt>c</dt></dl>";
        QTest::newRow("paragraphs with ends left out") << "<p>a<p>b"
                                                       << "<p>a</p><p>b</p>";
        QTest::newRow("paragraph before a list") << "<p>a<ul><li>b</ul>"
                                                 << "<p>a</p><ul><li>b</li></ul>";
        QTest::newRow("table") << "<table><tr><td>a</td><td>b</td></tr></table>"
                               << "<table><tr><td>a</td><td>b</td></tr></table>";
        QTest::newRow("table with ends left out")
            << "<table><tr><td>a<td>b<tr><th>c</table>d"
            << "<table><tr><td>a</td><td>b</td></tr><tr><th>c</th></tr></table>d";
        QTest::newRow("cell without a row") << "<table><td>a</table>"
                                            << "<table><tr><td>a</td></tr></table>";
        QTest::newRow("row and cell without a table") << "<tr><td>a</td></tr>"
                                                      << "a";
        QTest::newRow("cell in a list in a table")
            << "<table><tr><td><ul><td>a"
            << "<table><tr><td><ul></ul></td><td>a</td></tr></table>";
        QTest::newRow("not closed") << "<b><i>a"
                                    << "<b><i>a</i></b>";
        QTest::newRow("closed in the wrong order") << "<b><i>a</b>b</i>"
                                                   << "<b><i>a</i></b>b";
        QTest::newRow("closed without being open") << "a</b></table>b"
                                                   << "ab";
        QTest::newRow("closed outside of the table")
            << "<b><table><tr><td>a</b>b"
            << "<b><table><tr><td>ab</td></tr></table></b>";
        QTest::newRow("colour and alignment")
            << "<font color=\"#aa0000\">a</font><p align='center'>b</p><font color=red>c</font>"
            << "<font color=\"#aa0000\">a</font><p align=\"center\">b</p><font "
               "color=\"red\">c</font>";
        QTest::newRow("colour with something behind it") << "<font color='red;x'>a</font>"
                                                         << "<font>a</font>";
        QTest::newRow("other attributes")
            << "<p style='font-size:9000pt' onclick=x>a</p><table border=9 cellpadding=9><tr><td "
               "colspan=99999 rowspan=9>b"
            << "<p>a</p><table><tr><td>b</td></tr></table>";
        QTest::newRow("images and links") << "a<img src='/etc/passwd'><a href='http://h/'>b</a>"
                                          << "ab";
        QTest::newRow("unknown tags") << "<blink>a</blink><x:y>b</x:y><object>c</object>"
                                      << "abc";
        QTest::newRow("whole document") << "<!DOCTYPE html><html><head><title>t</title><style>p "
                                           "{}</style></head><body>a</body></html>"
                                        << "a";
        QTest::newRow("script") << "a<script>if (a < b) {}</script>b"
                                << "ab";
        QTest::newRow("style without an end") << "a<style>b"
                                              << "a";
        QTest::newRow("comment") << "a<!-- <b> > -->b"
                                 << "ab";
        QTest::newRow("comment without an end") << "a<!-- b"
                                                << "a";
        QTest::newRow("quoted for XML") << "<![CDATA[<b>a</b>]]>"
                                        << "<b>a</b>";
        QTest::newRow("processing instruction") << "<?xml version='1.0'?>a"
                                                << "a";
        QTest::newRow("less than a number") << "1 < 2 > 0 <3"
                                            << "1 &lt; 2 &gt; 0 ";
        QTest::newRow("tag without an end") << "a<b"
                                            << "a";
        QTest::newRow("quoted end of a tag") << "<p title='>'>a</p>"
                                             << "<p>a</p>";
        QTest::newRow("NUL") << QStringLiteral("a%1b").arg(QChar(0)) << "ab";
    }
    void sanitised()
    {
        QFETCH(QString, html);
        QTEST(NotesDocument::sanitised(html), "expected");
    }

    void nestingIsBounded_data()
    {
        QTest::addColumn<QString>("piece");
        QTest::addColumn<QString>("tag");
        QTest::addColumn<int>("count");
        QTest::newRow("tables") << "<table><tr><td>"
                                << "<table>" << 4;
        QTest::newRow("lists") << "<ul><li>"
                               << "<ul>" << 8;
        QTest::newRow("quotations") << "<blockquote>"
                                    << "<blockquote>" << 16;
        QTest::newRow("divisions") << "<div>"
                                   << "<div>" << 16;
        QTest::newRow("formatting") << "<b>"
                                    << "<b>" << 16;
    }
    void nestingIsBounded()
    {
        QFETCH(QString, piece);
        QFETCH(QString, tag);
        const QString text = NotesDocument::sanitised(piece.repeated(1000) + QLatin1Char('x'));
        QTEST(text.count(tag), "count");
        QCOMPARE(text.count(QLatin1Char('x')), 1);
    }

    // Siblings are not deep, however many there are and whether or not they are closed.
    void siblingsAreNotDeep_data()
    {
        QTest::addColumn<QString>("piece");
        QTest::addColumn<QString>("tag");
        QTest::addColumn<int>("count");
        QTest::newRow("paragraphs") << "<p>a"
                                    << "<p>" << 2000;
        QTest::newRow("list items") << "<li>a"
                                    << "<li>" << 1000;
        QTest::newRow("table rows") << "<tr><td>a"
                                    << "<tr>" << 500;
        QTest::newRow("table cells") << "<td>a"
                                     << "<td>" << 16;
    }
    void siblingsAreNotDeep()
    {
        QFETCH(QString, piece);
        QFETCH(QString, tag);
        const QString around = tag == QLatin1String("<li>") ? QStringLiteral("<ul>")
            : tag == QLatin1String("<p>")                   ? QString()
                                                            : QStringLiteral("<table>");
        const QString text = NotesDocument::sanitised(around + piece.repeated(2000));
        QTEST(text.count(tag), "count");
        QCOMPARE(text.count(QStringLiteral("a")) - text.count(QStringLiteral("table")), 2000);
    }

    void lengthIsBounded()
    {
        QCOMPARE(NotesDocument::sanitised(QString(longest, QLatin1Char('x'))).size(), longest);
        const QString text = NotesDocument::sanitised(QString(longest + 1, QLatin1Char('x')));
        QCOMPARE(text.size(), longest + 1);
        QVERIFY(text.endsWith(QChar(0x2026)));
    }

    void lengthIsCutBetweenCharacters()
    {
        const QString smile = QString::fromUtf8("\xf0\x9f\x98\x80");
        const QString text = NotesDocument::sanitised(QLatin1Char('x') + smile.repeated(longest));
        QCOMPARE(text.left(longest - 1), QLatin1Char('x') + smile.repeated(longest / 2 - 1));
        QCOMPARE(text.mid(longest - 1), QString(QChar(0x2026)));
    }

    // Whatever the notes say, they are on the screen soon.
    void isLaidOutSoon_data()
    {
        QTest::addColumn<QString>("piece");
        for (const char *piece : {"<table><tr><td>a",
                                  "<table><tr><td>a</table>",
                                  "<table><td>a<td>b<td>c<tr>",
                                  "<ul><li>",
                                  "<li>x",
                                  "<ol><li>x",
                                  "<div>",
                                  "<blockquote>x",
                                  "<p>",
                                  "<br>",
                                  "<hr>",
                                  "<",
                                  "&#x41;",
                                  "x",
                                  "<big>x",
                                  "<sub>a<sup>b",
                                  "<font color=red>x</font>",
                                  "\t",
                                  "\xcc\x81",
                                  "\xd8\xa7",
                                  "<!--",
                                  "<style>",
                                  "<p x='",
                                  "</table></b>",
                                  "<img src=x width=99999 height=99999>"}) {
            QTest::newRow(piece) << QString::fromUtf8(piece);
        }
    }
    void isLaidOutSoon()
    {
        QFETCH(QString, piece);
        const double cost = CpuCost::of([&piece] {
            laidOut(piece.repeated(256 * 1024 / piece.size()));
        });
        QVERIFY2(cost < 3000, qPrintable(QString::number(cost)));
    }

    void imagesAreNotOpened_data()
    {
        QTest::addColumn<bool>("sanitise");
        QTest::newRow("notes") << true;
        QTest::newRow("markup as it is") << false;
    }
    // Opening a FIFO without a writer would wait for ever.
    void imagesAreNotOpened()
    {
        QFETCH(bool, sanitise);
        WarningGuard guard;
        QTemporaryDir dir;
        const QString fifo = dir.filePath(QStringLiteral("fifo.png"));
        QCOMPARE(mkfifo(QFile::encodeName(fifo).constData(), 0600), 0);
        const QString html = QStringLiteral("a<img src=\"%1\">b<img src=\"file://%1\">").arg(fifo);
        if (sanitise) {
            QCOMPARE(laidOut(html), QStringLiteral("ab"));
        } else {
            NotesDocument document;
            document.setHtml(html);
            document.documentLayout()->documentSize();
            QImage image(100, 100, QImage::Format_RGB32);
            QPainter painter(&image);
            document.drawContents(&painter);
        }
    }

    void styleSheetsAreNotOpened()
    {
        QTemporaryDir dir;
        const QString fifo = dir.filePath(QStringLiteral("fifo.css"));
        QCOMPARE(mkfifo(QFile::encodeName(fifo).constData(), 0600), 0);
        NotesDocument document;
        document.setHtml(
            QStringLiteral(
                "<html><head><link rel=\"stylesheet\" type=\"text/css\""
                " href=\"%1\"><style>@import url(%1);</style></head><body>a</body></html>")
                .arg(fifo));
        QCOMPARE(document.toPlainText(), QStringLiteral("a"));
        QVERIFY(document.resource(QTextDocument::StyleSheetResource, QUrl::fromLocalFile(fifo))
                    .isNull());
        QVERIFY(document.resource(QTextDocument::HtmlResource, QUrl::fromLocalFile(fifo)).isNull());
    }
};

QTEST_MAIN(tst_NotesDocument)
#include "tst_NotesDocument.moc"

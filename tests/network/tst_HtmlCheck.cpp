// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "network/HtmlCheck.h"

#include <QElapsedTimer>
#include <QtTest>

class tst_HtmlCheck : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void acceptsOrdinaryPages_data();
    void acceptsOrdinaryPages();
    void refusesCostlyPages_data();
    void refusesCostlyPages();
    void countsOpenElements_data();
    void countsOpenElements();
    void isLinear_data();
    void isLinear();
};

namespace
{

constexpr int many = 100000;

QByteArray page(const QByteArray &before, const QByteArray &each, const QByteArray &after = {})
{
    return before + each.repeated(many) + after;
}

} // namespace

void tst_HtmlCheck::acceptsOrdinaryPages_data()
{
    QTest::addColumn<QByteArray>("html");
    const QByteArray link = "<a href=\"x.deb\">x.deb</a>";
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("text") << QByteArray("a < b > c </ d <");
    QTest::newRow("links") << page("<html><body><pre>", link + "   1\n", "</pre></body></html>");
    QTest::newRow("list") << page("<ul>", "<li>" + link + "</li>\n", "</ul>");
    QTest::newRow("list without end tags") << page("<ul>", "<li>" + link + "\n", "</ul>");
    QTest::newRow("list, links without end tags") << page("<ul>", "<li><a href=x>x\n");
    QTest::newRow("list, paragraphs without end tags") << page("<ul>", "<li><p>" + link);
    QTest::newRow("links without end tags") << page({}, "<a href=x>x\n");
    QTest::newRow("links without end tags in bold") << page({}, "<b><a href=x>x</b>\n");
    QTest::newRow("paragraphs") << page({}, "<p>" + link);
    QTest::newRow("paragraphs around blocks") << page({}, "<p><div>" + link + "</div>");
    QTest::newRow("definitions") << page("<dl>", "<dt>" + link + "<dd>text");
    QTest::newRow("images, breaks, rules")
        << page({}, "<img src=\"i.png\" alt=\"[ ]\">" + link + "<br><hr/><wbr>");
    QTest::newRow("table") << page("<table><tbody>",
                                   "<tr><td valign=\"top\">&nbsp;</td><td>" + link + "</td></tr>",
                                   "</tbody></table>");
    QTest::newRow("table without end tags") << page("<table>", "<tr><td>1<td>" + link);
    QTest::newRow("table with fonts left open")
        << page("<table>", "<tr><td><font size=2><b>" + link + "</td></tr>");
    QTest::newRow("table sections without end tags")
        << page("<table>", "<tbody><tr><th>1<td>" + link);
    QTest::newRow("rows without a table") << page({}, "<tr><td>1<td>" + link + "</tr>");
    QTest::newRow("options") << page("<form><select>", "<option>x", "</select></form>");
    QTest::newRow("one table each") << page({}, "<table><tr><td>" + link + "</table>");
    QTest::newRow("inner lists") << page("<ul>", "<li>" + link + "<ul><li>x</ul>", "</ul>");
    QTest::newRow("bold around a block") << page({}, "<b><div></b>" + link + "</div>");
    QTest::newRow("drawings") << page(
        {}, "<svg><use xlink:href=\"#i\"/><path d=\"M0\"></path></svg>" + link);
    QTest::newRow("capitals") << page("<UL>", "<LI><A HREF=\"x\">x</A><BR>", "</UL>");
    QTest::newRow("comments") << page({}, "<!-- <div> -->" + link + "<!--><!---><!-- x --!>");
    QTest::newRow("tags in attributes") << page({}, "<a href=\"<div>\" title='<div>' x=<b>x</a>");
    QTest::newRow("a script full of tags")
        << page("<script>", "document.write('<div><b></p>');", "</script>");
    QTest::newRow("a title full of tags") << page("<title>", "<div>", "</title>");
    QTest::newRow("a style without an end") << page("<style>", "<div>");
    QTest::newRow("text to the end") << page("<plaintext>", "<div>");
    QTest::newRow("stray end tags") << page({}, "</div></li></b></x></td>");
}

void tst_HtmlCheck::acceptsOrdinaryPages()
{
    QFETCH(QByteArray, html);
    QVERIFY(HtmlCheck().accepts(html));
}

void tst_HtmlCheck::refusesCostlyPages_data()
{
    QTest::addColumn<QByteArray>("html");
    for (const char *name : {"div", "b", "font", "span", "table", "svg", "template", "frameset",
                             "ul", "object", "ruby", "rt", "optgroup", "noscript", "unknown"}) {
        QTest::newRow(qPrintable(QStringLiteral("nested ") + QLatin1String(name)))
            << page({}, '<' + QByteArray(name) + '>');
    }
    QTest::newRow("cells of nested tables") << page({}, "<table><tr><td>");
    QTest::newRow("items and definitions in turn") << page({}, "<li><dd>");
    QTest::newRow("links around blocks") << page({}, "<a href=x><div>");
    QTest::newRow("end tags of others") << page({}, "<span></x>");
    QTest::newRow("end tags that reach over a block") << page({}, "<span><div></span>");
    QTest::newRow("end tags that reach out of a table") << page({}, "<div><table></div>");
    QTest::newRow("closed by a slash, which closes nothing") << page({}, "<div/>");
    QTest::newRow("many tags inside many")
        << QByteArray("<div>").repeated(16000) + QByteArray("<hr>").repeated(many);
    QTest::newRow("many end tags inside many")
        << QByteArray("<div>").repeated(16000) + QByteArray("</li>").repeated(many);
    QByteArray attributes;
    QByteArray roots;
    for (int i = 0; i < many; ++i) {
        attributes += " a" + QByteArray::number(i);
        roots += "<html a" + QByteArray::number(i) + ">";
    }
    QTest::newRow("millions of tags") << QByteArray("<p>").repeated(4000000);
    QTest::newRow("many attributes") << "<a" + attributes + ">";
    QTest::newRow("many attributes without an end") << "<a" + attributes;
    QTest::newRow("attributes of the root") << roots;
}

void tst_HtmlCheck::refusesCostlyPages()
{
    QFETCH(QByteArray, html);
    QVERIFY(!HtmlCheck().accepts(html));
}

void tst_HtmlCheck::countsOpenElements_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("the most") << HtmlCheck::maximumOpen << true;
    QTest::newRow("one more") << HtmlCheck::maximumOpen + 1 << false;
}

void tst_HtmlCheck::countsOpenElements()
{
    QFETCH(int, count);
    QFETCH(bool, accepted);
    QCOMPARE(HtmlCheck().accepts(QByteArray("<div>").repeated(count)), accepted);
}

void tst_HtmlCheck::isLinear_data()
{
    QTest::addColumn<QByteArray>("piece");
    for (const char *piece :
         {"<",     "</",   "<!",     "<!-",     "<!--",     "<!-- -->",   "<?",
          "<a ",   "<a =", "<a x='", "<a x=\"", "<script>", "<script></", "<title></t",
          "<svg>", "<br>", "<x",     "<a/",     "&",        "-->"}) {
        QTest::newRow(piece) << QByteArray(piece);
    }
}

void tst_HtmlCheck::isLinear()
{
    QFETCH(QByteArray, piece);
    // Quadratic work would take many minutes.
    const QByteArray html = piece.repeated(2 * 1024 * 1024 / piece.size());
    QElapsedTimer timer;
    timer.start();
    HtmlCheck().accepts(html);
    QVERIFY2(timer.elapsed() < 5000, QByteArray::number(timer.elapsed()).constData());
}

QTEST_GUILESS_MAIN(tst_HtmlCheck)
#include "tst_HtmlCheck.moc"

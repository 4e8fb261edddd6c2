// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "network/HtmlLinks.h"

#include <QtTest>

namespace
{

QByteArray link(const QByteArray &href)
{
    return "<a href=\"" + href + "\">x</a>\n";
}

/// A tag of so many attributes and bytes, with the link "a".
QByteArray tagOf(int attributes, int bytes)
{
    QByteArray tag = "<a href=a";
    for (int i = 1; i < attributes; ++i) {
        tag += " x" + QByteArray::number(i);
    }
    return tag.leftJustified(bytes - 1) + '>';
}

} // namespace

class tst_HtmlLinks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void links_data();
    void links();
    void tags_data();
    void tags();
    void anyText_data();
    void anyText();
    void keepsOrderAndDoubles();
    void stopsAtAZeroByte();
    void ordinaryPages_data();
    void ordinaryPages();
    void limits_data();
    void limits();
    void costlyPages_data();
    void costlyPages();
};

void tst_HtmlLinks::links_data()
{
    QTest::addColumn<QByteArray>("html");
    QTest::addColumn<QString>("found");
    const auto row = [](const char *what, const QByteArray &html, const char *found) {
        QTest::newRow(what) << html << QString::fromLatin1(found);
    };
    row("empty", {}, "");
    row("no page at all", "just text", "");
    row("noscript in the body", "<body><noscript>" + link("a") + "</noscript>", "a");
    row("noscript in the head", "<head><noscript>" + link("a") + "</noscript></head>", "a");
    row("script", "<script>'" + link("a") + "'</script>" + link("b"), "b");
    row("script that writes a link",
        "<script>document.write('<a href=\"a\">x</a>')</script>" + link("b"), "b");
    row("style", "<style>" + link("a") + "</style>" + link("b"), "b");
    row("title", "<title>" + link("a") + "</title>" + link("b"), "b");
    row("text area", "<textarea>" + link("a") + "</textarea>" + link("b"), "b");
    row("frame", "<iframe>" + link("a") + "</iframe>" + link("b"), "b");
    row("raw text ends with its own tag",
        "<title></titles></style></TITLE x>" + link("b") + "</title>", "b");
    row("raw text without an end", link("a") + "<script>" + link("b"), "a");
    row("plain text", link("a") + "<plaintext>" + link("b") + "</plaintext>" + link("c"), "a");
    row("comment", "<!--" + link("a") + "-->" + link("b"), "b");
    row("comment without an end", link("b") + "<!--" + link("a"), "b");
    row("empty comments", "<!-->" + link("a") + "<!--->" + link("b") + "<!---->" + link("c"),
        "a b c");
    row("comment with dashes", "<!-- - -- ->" + link("a") + "--->" + link("b"), "b");
    row("comment, closed in another way", "<!--" + link("a") + "--!>" + link("b"), "b");
    row("declarations", "<!doctype html><?xml?></ ><![CDATA[x]]>" + link("a"), "a");
    row("template", "<template>" + link("a") + "</template>" + link("b"), "b");
    row("template in a template",
        "<template><template></template>" + link("a") + "</template></template>" + link("b"), "b");
    row("hidden", "<div hidden style='display:none'>" + link("a") + "</div>", "a");
    row("drawing", "<svg><a href='a' xlink:href='b'>x</a><a xlink:href='c'>x</a></svg>", "a");
    row("drawing, the other order", "<svg><a xlink:href='b' href='a'>x</a></svg>", "a");
    row("drawing without contents", "<svg><title/><style/></svg>" + link("a"), "a");
    row("other elements", "<link href=a><area href=b><base href='http://other/'>" + link("c"), "c");
    row("elements that begin alike", "<abbr href=a>x<address href=b>", "");
    row("link in a link", "<a href=a>x<a href=b>y</a></a>", "a b");
    row("misnested", "<b><a href=a><div>x</b>y</a>z</div>" + link("b"), "a b");
    row("link in a table", "<table><tr><td><a href=a>x</a></td></tr><a href=b>x</a></table>",
        "a b");
    row("frames", "<frameset><frame src=a></frameset>" + link("b"), "b");
    row("selection", "<select><option>" + link("a") + "</select>" + link("b"), "a b");
    row("after the end", "<html><body></body></html>" + link("a"), "a");
    row("tag without an end", link("a") + "<a href=b", "a");
    row("value without an end", link("a") + "<a href='b>" + link("c"), "a");
    row("byte order mark", "\xef\xbb\xbf" + link("a"), "a");
    row("deep", QByteArray("<div>").repeated(100000) + link("a"), "a");
}

void tst_HtmlLinks::links()
{
    QFETCH(QByteArray, html);
    QFETCH(QString, found);
    const auto links = HtmlLinks::of(html);
    QVERIFY(links);
    QCOMPARE(*links, found.split(QLatin1Char(' '), Qt::SkipEmptyParts));
}

void tst_HtmlLinks::tags_data()
{
    QTest::addColumn<QByteArray>("tag");
    QTest::addColumn<QString>("found");
    const auto row = [](const char *tag, const char *found) {
        QTest::newRow(tag) << QByteArray(tag) << QString::fromLatin1(found);
    };
    row("<a href=b>", "b");
    row("<A HREF=B>", "B");
    row("<a href='b'>", "b");
    row("<a\thref\n=\f\"b\"\r>", "b");
    row("<a/href=b>", "b");
    row("<a/href=b/>", "b/");
    row("<a href='b'x>", "b");
    row("<a href=b'\"<=>", "b'\"<=");
    row("<a href='>'>", ">");
    row("<a title='>' href=b>", "b");
    row("<a title=\"<a href=c>\" href=b>", "b");
    row("<a =href=c href=b>", "b");
    row("<a href=b href=c>", "b");
    row("<a x=y/ href=b>", "b");
    row("<a href>", "");
    row("<a href=>", "");
    row("<a href= >", "");
    row("<a>", "");
    row("<a name=b>", "");
    row("< a href=b>", "");
    row("</a href=b>", "");
    row("<x<a href=b>", "");
}

void tst_HtmlLinks::tags()
{
    QFETCH(QByteArray, tag);
    QFETCH(QString, found);
    // Whatever the tag is, it ends where the parser takes it to end.
    const auto links = HtmlLinks::of(tag + link("z"));
    QVERIFY(links);
    QStringList expected{QStringLiteral("z")};
    if (!found.isEmpty()) {
        expected.prepend(found);
    }
    QCOMPARE(*links, expected);
}

void tst_HtmlLinks::anyText_data()
{
    QTest::addColumn<QByteArray>("href");
    QTest::addColumn<QString>("found");
    const auto row = [](const char *what, const char *href, const char *found) {
        QTest::newRow(what) << QByteArray(href) << QString::fromUtf8(found);
    };
    row("as it is", "a%20b c#d?e", "a%20b c#d?e");
    row("character references", "a&amp;b&#x2e;&auml;&copy=1", "a&b.\xc3\xa4&copy=1");
    row("umlaut", "\xc3\xa4", "\xc3\xa4");
    row("Latin-1", "\xe4", "%E4");
    row("Latin-1 beside an umlaut", "\xe4\xc3\xa4", "%E4\xc3\xa4");
    row("broken UTF-8", "\xc0\xaf\xed\xa0\x80\xf4\x90\x80\x80\xe4\xb8",
        "%C0%AF%ED%A0%80%F4%90%80%80%E4%B8");
    row("UTF-8 that ends too soon", "\xf0\x9f\x93", "%F0%9F%93");
    row("beyond the first plane", "\xf0\x9f\x93\xa6", "\xf0\x9f\x93\xa6");
    row("white space around it", " \t\r\n\fa b\n \n", "a b");
    row("no-break space", "\xc2\xa0", "\xc2\xa0");
    row("nothing but white space", " \n", "");
    row("nothing", "", "");
}

void tst_HtmlLinks::anyText()
{
    QFETCH(QByteArray, href);
    QFETCH(QString, found);
    const auto links = HtmlLinks::of(link(href));
    QVERIFY(links);
    QCOMPARE(*links, found.isEmpty() ? QStringList() : QStringList(found));
}

void tst_HtmlLinks::keepsOrderAndDoubles()
{
    const auto links = HtmlLinks::of(link("b") + link("a") + link("b") + link("B"));
    QVERIFY(links);
    QCOMPARE(*links,
             (QStringList{QStringLiteral("b"), QStringLiteral("a"), QStringLiteral("b"),
                          QStringLiteral("B")}));
}

void tst_HtmlLinks::stopsAtAZeroByte()
{
    const QByteArray zero(1, '\0');
    QCOMPARE(HtmlLinks::of(link("a") + zero + link("b"))->size(), 1);
    QCOMPARE(HtmlLinks::of(zero + link("a"))->size(), 0);
    QCOMPARE(HtmlLinks::of(link("a") + "<a href=\"b" + zero + "\">x</a>")->size(), 1);
}

void tst_HtmlLinks::ordinaryPages_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("each"); // "%" is the link
    QTest::addColumn<int>("count");
    const auto row = [](const char *what, const char *before, const char *each, int count = 1000) {
        QTest::newRow(what) << QByteArray(before) << QByteArray(each) << count;
    };
    row("nginx", "<html><head><title>Index of /</title></head><body><h1>Index of /</h1><hr><pre>",
        "<a href=\"%\">%</a>   20-Nov-2026 20:51    1000\n");
    row("Apache, a table", "<html><body><table><tr><th><a href=\"?C=N;O=D\">Name</a></th></tr>",
        "<tr><td valign=\"top\"><img src=\"/icons/i.gif\" alt=\"[   ]\"></td><td><a href=\"%\">%"
        "</a></td><td align=\"right\">2026-11-20 20:51  </td><td align=\"right\">  1 </td>"
        "<td>&nbsp;</td></tr>\n",
        100000);
    row("Apache, a list", "<ul><li><a href=\"/\"> Parent Directory</a></li>",
        "<li><a href=\"%\"> %</a></li>\n");
    row("lighttpd",
        "<div class=\"list\"><table summary=\"Directory Listing\" cellpadding=\"0\"><tbody>",
        "<tr><td class=\"n\"><a href=\"%\">%</a></td><td class=\"m\">2026-Nov-20 20:51:00</td>"
        "<td class=\"s\">1.0K</td><td class=\"t\">application/octet-stream</td></tr>\n");
    row("IIS", "<body><H1>h - /</H1><hr><pre>",
        "11/20/2026  8:51 PM         1000 <A HREF=\"%\">%</A><br>");
    row("list without end tags", "<ul>", "<li><p><a href=%>%\n");
    row("table without end tags", "<table>", "<tr><td>1<td><font size=2><b><a href=%>%");
    row("one table each", "", "<table><tr><td><a href='%'>%</a></table>");
    row("drawings", "",
        "<svg viewBox='0 0 1 1'><title>x</title><path d='M0'/></svg><a href=%>%</a>");
}

void tst_HtmlLinks::ordinaryPages()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, each);
    QFETCH(int, count);
    QByteArray html = before;
    QStringList expected = *HtmlLinks::of(before);
    for (int i = 0; i < count; ++i) {
        const QByteArray name = "tool-" + QByteArray::number(i) + "_1%3A2.0-1_all.deb";
        html += QByteArray(each).replace('%', name);
        expected.append(QString::fromLatin1(name));
    }
    const auto links = HtmlLinks::of(html);
    QVERIFY(links);
    QCOMPARE(*links, expected);
}

void tst_HtmlLinks::limits_data()
{
    QTest::addColumn<QByteArray>("most");
    QTest::addColumn<QByteArray>("more");
    QTest::newRow("links") << link("a").repeated(HtmlLinks::maximumTags)
                           << link("a").repeated(HtmlLinks::maximumTags + 1);
    QTest::newRow("tags that are no links")
        << QByteArray("<a>").repeated(HtmlLinks::maximumTags)
        << QByteArray("<a>").repeated(HtmlLinks::maximumTags + 1);
    QTest::newRow("attributes") << tagOf(HtmlLinks::maximumAttributes, 1000)
                                << tagOf(HtmlLinks::maximumAttributes + 1, 1000);
    constexpr int tag = HtmlLinks::maximumTag;
    QTest::newRow("bytes of one tag") << tagOf(1, tag) << tagOf(1, tag + 1);
    const QByteArray tags = tagOf(1, tag).repeated(HtmlLinks::maximumBytes / tag);
    QTest::newRow("bytes of all tags") << tags << tags + tagOf(1, 20);
    const QByteArray latin1 = "<a x=" + QByteArray(tag - 6, '\xe4') + '>';
    QTest::newRow("bytes that become escapes")
        << latin1.repeated(HtmlLinks::maximumBytes / tag / 3)
        << latin1.repeated(HtmlLinks::maximumBytes / tag / 3 + 1);
}

void tst_HtmlLinks::limits()
{
    QFETCH(QByteArray, most);
    QFETCH(QByteArray, more);
    QVERIFY(HtmlLinks::of(most));
    QVERIFY(!HtmlLinks::of(more));
}

void tst_HtmlLinks::costlyPages_data()
{
    QTest::addColumn<QByteArray>("piece");
    for (const char *piece : {"<",
                              "</",
                              "<!",
                              "<!-",
                              "<!--",
                              "<!-- -->",
                              "<?",
                              "<x ",
                              "<x =",
                              "<x y='",
                              "<x y=\"",
                              "<x",
                              "<x/",
                              "<script>",
                              "<script></",
                              "<title></t",
                              "<svg>",
                              "<br>",
                              "&",
                              "-->",
                              "<div>",
                              "<b>",
                              "<form><div></form>",
                              "<table><tr><td>",
                              "<p><font size=2>x",
                              "\xe4",
                              "<![CDATA[",
                              "<template>",
                              "</template>",
                              "</x>",
                              "<a "}) {
        QTest::newRow(piece) << QByteArray(piece);
    }
}

/// They are gone through once, so that they need not be refused. If it were once for each tag,
/// these would take hours.
void tst_HtmlLinks::costlyPages()
{
    QFETCH(QByteArray, piece);
    const auto links = HtmlLinks::of(link("first") + piece.repeated(1024 * 1024 / piece.size()));
    QVERIFY(links);
    QCOMPARE(*links, QStringList(QStringLiteral("first")));
}

QTEST_GUILESS_MAIN(tst_HtmlLinks)
#include "tst_HtmlLinks.moc"

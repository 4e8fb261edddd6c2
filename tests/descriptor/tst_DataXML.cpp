// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "descriptor/DataXML.h"
#include "descriptor/XmlCheck.h"
#include "tests/support/CpuCost.h"
#include "tests/support/WarningGuard.h"

#include <plume/LocaleString.h>

#include <QBuffer>
#include <QTest>

namespace
{

DataXML parsed(const QByteArray &inner)
{
    DataXML xml;
    if (!xml.load("<r>" + inner + "</r>")) {
        qFatal("the test's own document is wrong");
    }
    return xml;
}

/// A device that counts what is read from it and never ends.
class EndlessDevice : public QIODevice
{
public:
    qint64 served = 0;

    bool isSequential() const override { return true; }

protected:
    qint64 readData(char *data, qint64 length) override
    {
        std::fill_n(data, length, ' ');
        served += length;
        return length;
    }
    qint64 writeData(const char * /*data*/, qint64 /*length*/) override { return -1; }
};

} // namespace

class tst_DataXML : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void loads();
    void loadFailureLeavesItEmpty();
    void loadsFromADevice();
    void readsADeviceNoFurtherThanItMust();
    void loadsNothingFromADeviceThatCannotBeRead();
    void content_data();
    void content();
    void contentIsWhatTheDomWrites();
    void contentTakesLinearTime_data();
    void contentTakesLinearTime();
    void stringLastOneWins();
    void stringList();
    void localeString();
    void language_data();
    void language();
    void plainText_data();
    void plainText();
    void integer_data();
    void integer();
    void truth_data();
    void truth();
    void missingElements();
    void namesAreExact();
    void searchesBelowTheElementOnly();
    void manyElementsTakeLinearTime();
    void repeatedContentIsBounded();
};

void tst_DataXML::loads()
{
    DataXML xml;
    QString error = QStringLiteral("untouched");
    int line = 7;
    int column = 8;
    QVERIFY(xml.load(QByteArray("<a:root a:b='1'/>"), &error, &line, &column));
    QCOMPARE(xml.documentElement().tagName(), QStringLiteral("a:root"));
}

void tst_DataXML::loadFailureLeavesItEmpty()
{
    DataXML xml;
    QVERIFY(xml.load(QByteArray("<old/>")));
    QString error;
    int line = 0;
    int column = 0;
    QVERIFY(!xml.load(QByteArray("<r>\n<a></r>"), &error, &line, &column));
    QVERIFY(xml.documentElement().isNull());
    QCOMPARE(error, QStringLiteral("tag mismatch"));
    QCOMPARE(line, 2);
    QVERIFY(column > 0);
    QVERIFY(!xml.load(QByteArray("<r>")));

    QVERIFY(!xml.load(QByteArray(XmlCheck::maxBytes + 1, ' '), &error, &line, &column));
    QCOMPARE(error, QStringLiteral("larger than 16777216 bytes"));
    QCOMPARE(line, 0);
    QCOMPARE(column, 0);
}

void tst_DataXML::loadsFromADevice()
{
    QByteArray text = "skipped<r/>";
    QBuffer buffer(&text);
    DataXML xml;
    QVERIFY(!xml.load(&buffer));
    QVERIFY(!buffer.isOpen());

    QVERIFY(buffer.open(QIODevice::ReadOnly));
    buffer.seek(7);
    QVERIFY(xml.load(&buffer));
    QVERIFY(buffer.isOpen());
    QCOMPARE(xml.documentElement().tagName(), QStringLiteral("r"));
}

void tst_DataXML::readsADeviceNoFurtherThanItMust()
{
    EndlessDevice device;
    QVERIFY(device.open(QIODevice::ReadOnly | QIODevice::Unbuffered));
    DataXML xml;
    QString error;
    QVERIFY(!xml.load(&device, &error));
    QCOMPARE(error, QStringLiteral("larger than 16777216 bytes"));
    QCOMPARE(device.served, qint64(XmlCheck::maxBytes) + 1);
}

void tst_DataXML::loadsNothingFromADeviceThatCannotBeRead()
{
    WarningGuard guard;
    QBuffer writeOnly;
    QVERIFY(writeOnly.open(QIODevice::WriteOnly));
    DataXML xml;
    QVERIFY(!xml.load(&writeOnly));
    QFile missing(QStringLiteral("/nonexistent/file.xml"));
    QVERIFY(!xml.load(&missing));
}

void tst_DataXML::content_data()
{
    QTest::addColumn<QByteArray>("inner");
    QTest::addColumn<QString>("expected");

    QTest::newRow("text") << QByteArray("plain text") << QStringLiteral("plain text");
    QTest::newRow("blanks are kept") << QByteArray("  a\n b ") << QStringLiteral("  a\n b ");
    QTest::newRow("blanks alone are dropped") << QByteArray(" \n ") << QString();
    QTest::newRow("nothing") << QByteArray() << QString();
    QTest::newRow("escapes stay escaped")
        << QByteArray("a &lt; b &amp; c") << QStringLiteral("a &lt; b &amp; c");
    QTest::newRow("character reference") << QByteArray("gr&#252;n") << QStringLiteral("gr\u00fcn");
    QTest::newRow("markup between text")
        << QByteArray("a <b>bold</b> word") << QStringLiteral("a <b>bold</b> word");
    QTest::newRow("an element alone ends in a line feed")
        << QByteArray("<p>one</p><p>two</p>") << QStringLiteral("<p>one</p>\n<p>two</p>\n");
    QTest::newRow("attributes") << QByteArray("see <a href='x'>it</a> now")
                                << QStringLiteral("see <a href=\"x\">it</a> now");
    QTest::newRow("comment") << QByteArray("a<!-- b -->c") << QStringLiteral("a<!-- b -->c");
    QTest::newRow("section of plain text")
        << QByteArray("<![CDATA[a < b]]>") << QStringLiteral("<![CDATA[a < b]]>");
    QTest::newRow("beyond the basic plane")
        << QByteArray("\xF0\x9F\x98\x80") << QString::fromUtf8("\xF0\x9F\x98\x80");
}

void tst_DataXML::content()
{
    QFETCH(QByteArray, inner);
    QFETCH(QString, expected);

    const DataXML xml = parsed("<x>" + inner + "</x>");
    QString text = QStringLiteral("before");
    QVERIFY(xml.elementsToQString(xml.documentElement(), QStringLiteral("x"), &text));
    QCOMPARE(text, expected);
}

void tst_DataXML::contentIsWhatTheDomWrites()
{
    const DataXML xml = parsed(
        "<x>a &lt; b &amp; c &gt; d ]]&gt; \"e\" 'f' &#13; g\n\th<b/><b></b><c><d>1</d><d/></c> i "
        "<e f='&lt;&gt;&amp;&quot;&apos;&#10;&#9;&#13;]]&gt;'/>j<![CDATA[k < l]]><m/><![CDATA[n]]>"
        "<!-- o --><p/><!-- q -->r<?s t?><u>v<w/></u><w/>y<z xml:lang='de'>&unknown;</z></x>");
    QString expected;
    QTextStream stream(&expected);
    const QDomElement x = xml.documentElement().firstChildElement();
    for (QDomNode child = x.firstChild(); !child.isNull(); child = child.nextSibling()) {
        child.save(stream, 0);
    }
    QString text;
    QVERIFY(xml.elementsToQString(xml.documentElement(), QStringLiteral("x"), &text));
    QCOMPARE(text, expected);
}

void tst_DataXML::contentTakesLinearTime_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("piece");
    QTest::addColumn<QByteArray>("after");
    QTest::addColumn<int>("count");

    constexpr int size = 2 * 1024 * 1024;
    const auto row = [](const char *name, const char *piece, int count) {
        QTest::newRow(name) << QByteArray() << QByteArray(piece) << QByteArray() << count;
    };
    row("less-than signs", "&lt;", size / 4);
    row("ends of sections", "]]&gt;", size / 6);
    QTest::newRow("quotes in an attribute")
        << QByteArray("<a b='") << QByteArray("\"") << QByteArray("'/>") << size;
    row("elements", "<a/>b", XmlCheck::maxNodes / 2 - 10);
    row("comments", "<!---->", XmlCheck::maxNodes - 10);
}

void tst_DataXML::contentTakesLinearTime()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, piece);
    QFETCH(QByteArray, after);
    QFETCH(int, count);

    const int some = count / 4;
    const auto documentOf = [&](int pieces) {
        return parsed("<x>" + before + piece.repeated(pieces) + after + "</x>");
    };
    const DataXML small = documentOf(some);
    const DataXML large = documentOf(4 * some);
    QVERIFY(CpuCost::isLinear(
        [&](int pieces) {
            const DataXML &xml = pieces == some ? small : large;
            QString text;
            QVERIFY(xml.elementsToQString(xml.documentElement(), QStringLiteral("x"), &text));
            QVERIFY(text.size() >= pieces * piece.size());
        },
        some));
}

void tst_DataXML::stringLastOneWins()
{
    const DataXML xml = parsed("<x>1</x><y><x>2</x></y><x>3<x>4</x></x><z/>");
    QString text;
    QVERIFY(xml.elementsToQString(xml.documentElement(), QStringLiteral("x"), &text));
    QCOMPARE(text, QStringLiteral("4"));
}

void tst_DataXML::stringList()
{
    const DataXML xml = parsed("<x>b</x><y><z><x>a</x></z></y><x>b</x><x/>");
    QStringList list = {QStringLiteral("kept")};
    QVERIFY(xml.elementsToStringList(xml.documentElement(), QStringLiteral("x"), &list));
    const QStringList expected = {QStringLiteral("kept"), QStringLiteral("b"), QStringLiteral("a"),
                                  QStringLiteral("b"), QString()};
    QCOMPARE(list, expected);
}

void tst_DataXML::localeString()
{
    const DataXML xml = parsed("<x>first</x><x xml:lang='de'>Wort</x><y><x>second</x></y>"
                               "<x xml:lang='fr'>a <b>mot</b> b</x>");
    LocaleString text;
    text.setValue(QStringLiteral("kept"), QStringLiteral("es"));
    text.setValue(QStringLiteral("replaced"), QStringLiteral("de"));
    QVERIFY(xml.elementsToLocaleString(xml.documentElement(), QStringLiteral("x"), &text));
    QCOMPARE(text.value(QStringLiteral("en")), QStringLiteral("second"));
    QCOMPARE(text.value(QStringLiteral("de")), QStringLiteral("Wort"));
    QCOMPARE(text.value(QStringLiteral("fr")), QStringLiteral("a <b>mot</b> b"));
    QCOMPARE(text.value(QStringLiteral("es")), QStringLiteral("kept"));
}

void tst_DataXML::language_data()
{
    QTest::addColumn<QByteArray>("element");
    QTest::addColumn<QString>("expected");

    QTest::newRow("given") << QByteArray("<x xml:lang='pt_BR'/>") << QStringLiteral("pt_BR");
    QTest::newRow("missing") << QByteArray("<x/>") << QStringLiteral("en");
    QTest::newRow("empty") << QByteArray("<x xml:lang=''/>") << QStringLiteral("en");
    QTest::newRow("without the prefix") << QByteArray("<x lang='de'/>") << QStringLiteral("en");
}

void tst_DataXML::language()
{
    QFETCH(QByteArray, element);
    QFETCH(QString, expected);

    const DataXML xml = parsed(element);
    QCOMPARE(xml.getLangAttr(xml.documentElement().firstChild()), expected);
    QCOMPARE(xml.getLangAttr(QDomNode()), QStringLiteral("en"));
}

void tst_DataXML::plainText_data()
{
    QTest::addColumn<QString>("content");
    QTest::addColumn<QString>("expected");

    QTest::newRow("plain") << QStringLiteral("1.0-2") << QStringLiteral("1.0-2");
    QTest::newRow("references") << QStringLiteral("a &lt;b&gt; &amp; &quot;c&quot; &apos;d&apos;")
                                << QStringLiteral("a <b> & \"c\" 'd'");
    QTest::newRow("quoted twice") << QStringLiteral("&amp;lt;") << QStringLiteral("&lt;");
    QTest::newRow("character data")
        << QStringLiteral("<![CDATA[A & <B>]]>") << QStringLiteral("A & <B>");
}

void tst_DataXML::plainText()
{
    QFETCH(QString, content);
    QFETCH(QString, expected);

    QCOMPARE(DataXML::plainText(content), expected);
}

void tst_DataXML::integer_data()
{
    QTest::addColumn<QByteArray>("inner");
    QTest::addColumn<bool>("found");
    QTest::addColumn<qint64>("expected");

    const auto row = [](const char *name, const QByteArray &inner, qint64 expected) {
        QTest::newRow(name) << inner << true << expected;
    };
    const auto noRow = [](const char *name, const QByteArray &inner) {
        QTest::newRow(name) << inner << false << qint64(-77);
    };
    row("digits", "<x>1234</x>", 1234);
    row("zero", "<x>0</x>", 0);
    row("leading zeros", "<x>007</x>", 7);
    row("minus", "<x>-5</x>", -5);
    row("plus", "<x>+5</x>", 5);
    row("the largest", "<x>9223372036854775807</x>", std::numeric_limits<qint64>::max());
    row("the smallest", "<x>-9223372036854775808</x>", std::numeric_limits<qint64>::min());
    row("the last of two", "<x>1</x><x>2</x>", 2);
    row("the last that holds one", "<x>1</x><x>2</x><x>many</x><x/>", 2);
    row("nested", "<y><x>3</x></y>", 3);
    row("the first child only", "<x>4<b/>5</x>", 4);
    row("section of plain text", "<x><![CDATA[6]]></x>", 6);
    noRow("none", "<y>1</y>");
    noRow("empty", "<x/>");
    noRow("sign only", "<x>-</x>");
    noRow("two signs", "<x>+-1</x>");
    noRow("too large", "<x>9223372036854775808</x>");
    noRow("blank before", "<x> 1</x>");
    noRow("blank after", "<x>1\n</x>");
    noRow("blank between", "<x>- 1</x>");
    noRow("unit", "<x>1k</x>");
    noRow("hexadecimal", "<x>0x10</x>");
    noRow("fraction", "<x>1.5</x>");
    noRow("thousands", "<x>1,000</x>");
    noRow("digits of another script", "<x>&#x0661;&#x0662;</x>");
    noRow("first child is an element", "<x><b/>1</x>");
    noRow("first child is a comment", "<x><!-- a -->1</x>");
}

void tst_DataXML::integer()
{
    QFETCH(QByteArray, inner);
    QFETCH(bool, found);
    QFETCH(qint64, expected);

    const DataXML xml = parsed(inner);
    qint64 value = -77;
    QCOMPARE(xml.elementsToQint64(xml.documentElement(), QStringLiteral("x"), &value), found);
    QCOMPARE(value, expected);
}

void tst_DataXML::truth_data()
{
    QTest::addColumn<QByteArray>("inner");
    QTest::addColumn<bool>("understood");
    QTest::addColumn<bool>("expected");

    for (const char *text : {"t", "true", "TRUE", "y", "Yes", "tomato", "1"}) {
        QTest::newRow(text) << QByteArray("<x>") + text + "</x>" << true << true;
    }
    for (const char *text : {"f", "false", "N", "no", "nothing", "0"}) {
        QTest::newRow(text) << QByteArray("<x>") + text + "</x>" << true << false;
    }
    for (const char *text : {"", "2", "10", "01", " true", "on", "&amp;"}) {
        QTest::newRow(*text ? text : "empty")
            << QByteArray("<x>") + text + "</x>" << false << false;
    }
    QTest::newRow("none") << QByteArray("<y>true</y>") << false << false;
    QTest::newRow("the last wins") << QByteArray("<x>yes</x><x>no</x>") << true << false;
}

void tst_DataXML::truth()
{
    QFETCH(QByteArray, inner);
    QFETCH(bool, understood);
    QFETCH(bool, expected);

    const DataXML xml = parsed(inner);
    for (bool value : {true, false}) {
        QCOMPARE(xml.elementsToBool(xml.documentElement(), QStringLiteral("x"), &value),
                 understood);
        QCOMPARE(value, expected);
    }
}

void tst_DataXML::missingElements()
{
    const DataXML xml = parsed("<y>1</y>");
    const QDomElement root = xml.documentElement();
    const QString tag = QStringLiteral("x");
    QString text = QStringLiteral("kept");
    QVERIFY(!xml.elementsToQString(root, tag, &text));
    QCOMPARE(text, QStringLiteral("kept"));
    QStringList list = {text};
    QVERIFY(!xml.elementsToStringList(root, tag, &list));
    QCOMPARE(list, QStringList(text));
    LocaleString localized;
    QVERIFY(!xml.elementsToLocaleString(root, tag, &localized));
    QVERIFY(localized.isEmpty());
    QVERIFY(!xml.elementsToQString(QDomElement(), tag, &text));
}

void tst_DataXML::namesAreExact()
{
    const DataXML xml = parsed("<X>1</X><xx>2</xx><a:x>3</a:x>");
    QString text;
    QVERIFY(!xml.elementsToQString(xml.documentElement(), QStringLiteral("x"), &text));
    QVERIFY(!xml.elementsToQString(xml.documentElement(), QStringLiteral("*"), &text));
    QVERIFY(!xml.elementsToQString(xml.documentElement(), QStringLiteral("r"), &text));
}

void tst_DataXML::searchesBelowTheElementOnly()
{
    const DataXML xml = parsed("<x>0</x><a><b/><x>1</x></a><x>2</x>");
    const QDomElement a = xml.documentElement().firstChildElement(QStringLiteral("a"));
    QStringList list;
    QVERIFY(xml.elementsToStringList(a, QStringLiteral("x"), &list));
    QCOMPARE(list, QStringList(QStringLiteral("1")));
    QVERIFY(!xml.elementsToStringList(a.firstChildElement(), QStringLiteral("x"), &list));
}

void tst_DataXML::manyElementsTakeLinearTime()
{
    constexpr int some = 25'000;
    const DataXML small = parsed(QByteArray("<x>1</x>").repeated(some));
    const DataXML large = parsed(QByteArray("<x>1</x>").repeated(4 * some));
    QVERIFY(CpuCost::isLinear(
        [&](int count) {
            const DataXML &xml = count == some ? small : large;
            const QDomElement root = xml.documentElement();
            const QString tag = QStringLiteral("x");
            QStringList list;
            QVERIFY(xml.elementsToStringList(root, tag, &list));
            QCOMPARE(list.size(), count);
            QString text;
            QVERIFY(xml.elementsToQString(root, tag, &text));
            LocaleString localized;
            QVERIFY(xml.elementsToLocaleString(root, tag, &localized));
            qint64 number = 0;
            QVERIFY(!xml.elementsToQint64(root, QStringLiteral("y"), &number));
        },
        some));
}

void tst_DataXML::repeatedContentIsBounded()
{
    constexpr int levels = 200;
    constexpr int length = DataXML::maxContent / 3;
    const DataXML xml = parsed(QByteArray("<x>").repeated(levels) + QByteArray(length, 'a')
                               + QByteArray("</x>").repeated(levels));
    QStringList list;
    QVERIFY(xml.elementsToStringList(xml.documentElement(), QStringLiteral("x"), &list));
    QCOMPARE(list.size(), 2);

    QString text;
    QVERIFY(xml.elementsToQString(xml.documentElement(), QStringLiteral("x"), &text));
    QCOMPARE(text.size(), length);
}

QTEST_APPLESS_MAIN(tst_DataXML)
#include "tst_DataXML.moc"

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "descriptor/DataXML.h"
#include "descriptor/XmlCheck.h"
#include "tests/support/CpuCost.h"

#include <QTest>

namespace
{

QByteArray nested(int depth)
{
    return QByteArray("<a>").repeated(depth) + QByteArray("</a>").repeated(depth);
}

/// `count` references to an entity of `length` characters, as content or within an attribute.
QByteArray expanding(int length, int count, bool inAttribute)
{
    const QByteArray references = QByteArray("&e;").repeated(count);
    return "<!DOCTYPE r [<!ENTITY e '" + QByteArray(length, 'x') + "'>]>"
        + (inAttribute ? "<r a='" + references + "'/>" : "<r>" + references + "</r>");
}

QByteArray declaring(int entities)
{
    QByteArray document = "<!DOCTYPE r [";
    for (int i = 0; i < entities; ++i) {
        document += "<!ENTITY e" + QByteArray::number(i) + " 'x'>";
    }
    return document + "]><r/>";
}

QByteArray padded(int bytes)
{
    const QByteArray frame = "<r></r>";
    return QByteArray(frame).insert(3, QByteArray(bytes - frame.size(), 'x'));
}

} // namespace

class tst_XmlCheck : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void bounds_data();
    void bounds();
    void agreesWithTheDom_data();
    void agreesWithTheDom();
    void tellsWhere();
    void forgetsTheLastRefusal();
    void neverReadsAnExternalEntity();
    void refusesHostileDocumentsQuickly_data();
    void refusesHostileDocumentsQuickly();
};

void tst_XmlCheck::bounds_data()
{
    constexpr int growth = XmlCheck::maxEntityGrowth;
    constexpr int nodes = XmlCheck::maxNodes;

    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QString>("error");

    const QString none;
    const QString size = QStringLiteral("larger than 16777216 bytes");
    QTest::newRow("the largest size") << padded(XmlCheck::maxBytes) << none;
    QTest::newRow("one byte more") << padded(XmlCheck::maxBytes + 1) << size;

    const QString depth = QStringLiteral("more than 256 elements inside one another");
    QTest::newRow("the deepest nesting") << nested(XmlCheck::maxDepth) << none;
    QTest::newRow("one level more") << nested(XmlCheck::maxDepth + 1) << depth;
    QTest::newRow("many elements side by side")
        << "<r>" + QByteArray("<a></a>").repeated(1000) + "</r>" << none;

    const QString entities =
        QStringLiteral("entities grow the document by more than 1048576 characters");
    QTest::newRow("the largest growth") << expanding(growth / 16, 16, false) << none;
    QTest::newRow("growth beyond it") << expanding(growth / 16, 17, false) << entities;
    QTest::newRow("the largest growth in an attribute") << expanding(growth / 16, 16, true) << none;
    QTest::newRow("growth beyond it in an attribute")
        << expanding(growth / 16, 17, true) << entities;
    QTest::newRow("growth through a second entity")
        << "<!DOCTYPE r [<!ENTITY a '" + QByteArray(2000, 'x') + "'><!ENTITY b '&a;&a;'>]><r>"
            + QByteArray("&b;").repeated(300) + "</r>"
        << entities;
    QTest::newRow("growth through a parameter entity") << "<!DOCTYPE r [<!ENTITY % p '"
            + QByteArray("<!---->").repeated(1000) + "'>" + QByteArray("%p;").repeated(200)
            + "]><r/>" << entities;
    QTest::newRow("growth through an entity that a parameter entity declares")
        << "<!DOCTYPE r [<!ENTITY % p '<!ENTITY a \"" + QByteArray(3000, 'x') + "\">'>%p;]><r>"
            + QByteArray("&a;").repeated(400) + "</r>"
        << entities;
    QTest::newRow("elements from an entity")
        << QByteArray("<!DOCTYPE r [<!ENTITY a '<b><b/></b>'>]><r>&a;</r>") << none;
    QTest::newRow("the most entities") << declaring(XmlCheck::maxEntities) << none;
    QTest::newRow("one entity more")
        << declaring(XmlCheck::maxEntities + 1) << QStringLiteral("more than 1000 entities");

    const QString many = QStringLiteral("more than 250000 nodes");
    QTest::newRow("the most elements")
        << "<r>" + QByteArray("<a/>").repeated(nodes - 1) + "</r>" << none;
    QTest::newRow("one element more")
        << "<r>" + QByteArray("<a/>").repeated(nodes) + "</r>" << many;
    QTest::newRow("attributes count too")
        << "<r>" + QByteArray("<a b='1'/>").repeated(nodes / 2) + "</r>" << many;
    QTest::newRow("texts count too")
        << "<r>" + QByteArray("<a/>x").repeated(nodes / 2) + "</r>" << many;
    QTest::newRow("comments count too")
        << "<r>" + QByteArray("<!---->").repeated(nodes) + "</r>" << many;
    QTest::newRow("sections of plain text count too")
        << "<r>" + QByteArray("<![CDATA[x]]>").repeated(nodes) + "</r>" << many;
    QTest::newRow("processing instructions count too")
        << "<r>" + QByteArray("<?x y?>").repeated(nodes) + "</r>" << many;
    QTest::newRow("unknown references count too")
        << "<r>" + QByteArray("&x;").repeated(nodes) + "</r>" << many;
    QTest::newRow("a text cut by references is one")
        << "<r>" + QByteArray("a&lt;").repeated(nodes) + "</r>" << none;
    const auto attributes = [](int count) {
        QByteArray document = "<r";
        for (int i = 0; i < count; ++i) {
            document += " a" + QByteArray::number(i) + "=''";
        }
        return document + "/>";
    };
    QTest::newRow("the most attributes") << attributes(XmlCheck::maxAttributes) << none;
    QTest::newRow("one attribute more")
        << attributes(XmlCheck::maxAttributes + 1)
        << QStringLiteral("more than 256 attributes on one element");
    QTest::newRow("more attributes than nodes")
        << attributes(nodes + 1) << QStringLiteral("more than 250000 attributes");
}

void tst_XmlCheck::bounds()
{
    QFETCH(QByteArray, document);
    QFETCH(QString, error);

    XmlCheck check;
    QCOMPARE(check.accepts(document), error.isEmpty());
    QCOMPARE(check.error(), error);
}

// Whatever the DOM takes within the bounds is taken, well-formed by the letter of XML 1.0 or not.
void tst_XmlCheck::agreesWithTheDom_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<bool>("accepted");

    QTest::newRow("root only") << QByteArray("<r/>") << true;
    QTest::newRow("nothing") << QByteArray() << false;
    QTest::newRow("blanks only") << QByteArray(" \n") << false;
    QTest::newRow("declaration") << QByteArray("<?xml version='1.0' encoding='UTF-8'?><r/>")
                                 << true;
    QTest::newRow("a newer version") << QByteArray("<?xml version='1.1'?><r/>") << true;
    QTest::newRow("blanks before the root") << QByteArray("  \n<r/>") << true;
    QTest::newRow("blanks before the declaration")
        << QByteArray("\n<?xml version='1.0'?><r/>") << false;
    QTest::newRow("blanks after the root") << QByteArray("<r/>\n\n") << true;
    QTest::newRow("comments around the root") << QByteArray("<!-- a --><r/><!-- b -->") << true;
    QTest::newRow("text after the root") << QByteArray("<r/>x") << false;
    QTest::newRow("two roots") << QByteArray("<r/><r/>") << false;
    QTest::newRow("not closed") << QByteArray("<r>") << false;
    QTest::newRow("closed in the wrong order") << QByteArray("<r><a></r></a>") << false;
    QTest::newRow("bare ampersand") << QByteArray("<r>a & b</r>") << false;
    QTest::newRow("attribute without quotes") << QByteArray("<r a=1/>") << false;
    QTest::newRow("the same attribute twice") << QByteArray("<r a='1' a='2'/>") << true;
    QTest::newRow("undeclared prefix of an element") << QByteArray("<a:r/>") << true;
    QTest::newRow("undeclared prefix of an attribute") << QByteArray("<r a:b='1'/>") << true;
    QTest::newRow("two colons in a name") << QByteArray("<a:b:c/>") << true;
    QTest::newRow("undeclared entity") << QByteArray("<r>a&nbsp;b</r>") << true;
    QTest::newRow("byte order mark") << QByteArray("\xef\xbb\xbf<r/>") << true;
    QTest::newRow("latin-1, declared")
        << QByteArray("<?xml version='1.0' encoding='ISO-8859-1'?><r>\xe4</r>") << true;
    QTest::newRow("latin-1, not declared") << QByteArray("<r>\xe4</r>") << true;
    QTest::newRow("unknown encoding")
        << QByteArray("<?xml version='1.0' encoding='x'?><r/>") << true;
    QTest::newRow("two bytes a character") << QByteArray("\xff\xfe<\0r\0/\0>\0", 10) << true;
    QTest::newRow("a NUL") << QByteArray("<r>\0</r>", 8) << true;
    QTest::newRow("document type with an external part")
        << QByteArray("<!DOCTYPE r PUBLIC '-//A//B' 'http://127.0.0.1:1/r.dtd'><r/>") << true;
    QTest::newRow("document type with declarations")
        << QByteArray("<!DOCTYPE r [<!ELEMENT r ANY><!ATTLIST r a CDATA 'x'>"
                      "<!NOTATION n SYSTEM 'x'><!ENTITY u SYSTEM 'x' NDATA n>]><r/>")
        << true;
    QTest::newRow("entity that contains itself")
        << QByteArray("<!DOCTYPE r [<!ENTITY a '&b;'><!ENTITY b '&a;'>]><r>&a;</r>") << false;
}

void tst_XmlCheck::agreesWithTheDom()
{
    QFETCH(QByteArray, document);
    QFETCH(bool, accepted);

    QDomDocument dom;
    QString error;
    int line = 0;
    int column = 0;
    QCOMPARE(dom.setContent(document, false, &error, &line, &column), accepted);
    XmlCheck check;
    QCOMPARE(check.accepts(document), accepted);
    QCOMPARE(check.error(), error);
    QCOMPARE(check.line(), line);
    QCOMPARE(check.column(), column);
}

void tst_XmlCheck::tellsWhere()
{
    XmlCheck check;
    QVERIFY(!check.accepts("<r>\n  <a>\n  </b>\n</r>"));
    QCOMPARE(check.error(), QStringLiteral("tag mismatch"));
    QCOMPARE(check.line(), 3);
    QVERIFY(check.column() > 0);

    QVERIFY(!check.accepts("<r>\n" + nested(XmlCheck::maxDepth)));
    QCOMPARE(check.line(), 2);
    QCOMPARE(check.column(), 3 * XmlCheck::maxDepth);
}

void tst_XmlCheck::forgetsTheLastRefusal()
{
    XmlCheck check;
    QVERIFY(!check.accepts("<r>"));
    QVERIFY(!check.error().isEmpty());
    QVERIFY(check.accepts("<r/>"));
    QCOMPARE(check.error(), QString());
    QCOMPARE(check.line(), 0);
    QCOMPARE(check.column(), 0);
}

void tst_XmlCheck::neverReadsAnExternalEntity()
{
    const QByteArray document = "<!DOCTYPE r [<!ENTITY a SYSTEM 'file:///etc/passwd'>"
                                "<!ENTITY % p SYSTEM 'file:///etc/passwd'>%p;]><r>&a;</r>";
    XmlCheck check;
    QVERIFY(check.accepts(document));
    DataXML xml;
    QVERIFY(xml.load(document));
    QVERIFY(!xml.toString().contains(QLatin1String("root:")));
}

void tst_XmlCheck::refusesHostileDocumentsQuickly_data()
{
    QTest::addColumn<QByteArray>("document");

    constexpr int size = XmlCheck::maxBytes - 1000;
    QTest::newRow("five million elements inside one another")
        << QByteArray("<a>").repeated(size / 3);
    QTest::newRow("four million elements side by side")
        << "<r>" + QByteArray("<a/>").repeated(size / 4) + "</r>";
    QTest::newRow("three million attributes")
        << "<r" + QByteArray(" a=''").repeated(size / 5) + "/>";
    QTest::newRow("one long entity used 12,000 times") << expanding(36'000, 12'000, false);
    QTest::newRow("one long entity used in an attribute") << expanding(36'000, 5'000'000, true);
    QTest::newRow("500,000 entities") << declaring(500'000);
    QTest::newRow("entities that double")
        << QByteArray("<!DOCTYPE r [<!ENTITY a 'xxxxxxxxxx'><!ENTITY b '&a;&a;&a;&a;&a;&a;&a;&a;'>"
                      "<!ENTITY c '&b;&b;&b;&b;&b;&b;&b;&b;'><!ENTITY d '&c;&c;&c;&c;&c;&c;&c;&c;'>"
                      "<!ENTITY e '&d;&d;&d;&d;&d;&d;&d;&d;'><!ENTITY f '&e;&e;&e;&e;&e;&e;&e;&e;'>"
                      "<!ENTITY g '&f;&f;&f;&f;&f;&f;&f;&f;'>]><r>&g;</r>");
}

void tst_XmlCheck::refusesHostileDocumentsQuickly()
{
    QFETCH(QByteArray, document);

    // Without the bounds these take from ten seconds to for ever, or all memory.
    const double cost = CpuCost::of([&document] {
        DataXML xml;
        QVERIFY(!xml.load(document));
        QVERIFY(xml.documentElement().isNull());
    });
    QVERIFY2(cost < 500, qPrintable(QString::number(cost)));
}

QTEST_APPLESS_MAIN(tst_XmlCheck)
#include "tst_XmlCheck.moc"

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "repository/RVRepDesc.h"

#include <QDomDocument>
#include <QtTest>

namespace
{

/// Reads a definition from what stands inside its element.
void parse(RVRepDesc &desc, const QString &inner)
{
    QDomDocument document;
    QString error;
    QVERIFY2(document.setContent(QStringLiteral("<repository>%1</repository>").arg(inner), &error),
             qUtf8Printable(error));
    QDomElement element = document.documentElement();
    desc.parse(element);
}

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

} // namespace

class tst_RVRepDesc : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsEmpty();
    void missingElementsLeaveItEmpty();
    void readsEveryElement();
    void readsTextsByLanguage();
    void lastOfRepeatedElementsCounts();
    void nestingDoesNotMatter();
    void contentIsXmlText();
    void defaultUri_data();
    void defaultUri();
    void filterSps_data();
    void filterSps();
    void filterPatterns_data();
    void filterPatterns();
    void picksOne_data();
    void picksOne();
};

void tst_RVRepDesc::startsEmpty()
{
    QObject parent;
    auto *desc = new RVRepDesc(&parent);
    QCOMPARE(desc->parent(), &parent);
    QVERIFY(desc->title.isEmpty());
    QVERIFY(desc->defaultUri.isEmpty());
    QVERIFY(desc->archivePatterns.isEmpty());
    QVERIFY(!desc->filterSps);
    QVERIFY(!desc->picksOne());
}

void tst_RVRepDesc::missingElementsLeaveItEmpty()
{
    RVRepDesc desc;
    parse(desc, QString());
    QVERIFY(desc.title.isEmpty());
    QVERIFY(desc.description.isEmpty());
    QVERIFY(desc.uriDescription.isEmpty());
    QVERIFY(desc.settingsKey.isEmpty());
    QVERIFY(desc.defaultUri.isEmpty());
    QVERIFY(desc.archivePatterns.isEmpty());
    QVERIFY(desc.descriptorPatterns.isEmpty());
    QVERIFY(desc.selectorType.isEmpty());
    QVERIFY(desc.icon.isEmpty());
    QVERIFY(!desc.filterSps);
}

void tst_RVRepDesc::readsEveryElement()
{
    RVRepDesc desc;
    parse(desc,
          text("<title>Packages</title><description>Single packages</description>"
               "<uri_description>Package site</uri_description>"
               "<settings_key>PackageUri</settings_key>"
               "<default_uri>http://h/packages/</default_uri>"
               "<selector_type>PickOne</selector_type><icon>PackageRepository</icon>"
               "<filter_sps>yes</filter_sps>"
               "<filter_pattern><archive_pattern>a</archive_pattern>"
               "<descriptor_pattern>d</descriptor_pattern></filter_pattern>"));
    QCOMPARE(desc.title.value(QString()), text("Packages"));
    QCOMPARE(desc.description.value(QString()), text("Single packages"));
    QCOMPARE(desc.uriDescription.value(QString()), text("Package site"));
    QCOMPARE(desc.settingsKey, text("PackageUri"));
    QCOMPARE(desc.defaultUri, QUrl(text("http://h/packages/")));
    QCOMPARE(desc.selectorType, text("PickOne"));
    QVERIFY(desc.picksOne());
    QCOMPARE(desc.icon, text("PackageRepository"));
    QVERIFY(desc.filterSps);
    QCOMPARE(desc.archivePatterns, QStringList(text("a")));
    QCOMPARE(desc.descriptorPatterns, QStringList(text("d")));
}

void tst_RVRepDesc::readsTextsByLanguage()
{
    RVRepDesc desc;
    parse(desc,
          text("<title>Packages</title><title xml:lang=\"de\">Pakete</title>"
               "<description xml:lang=\"fr\">Paquets</description>"
               "<uri_description xml:lang=\"\">Site</uri_description>"));
    QCOMPARE(desc.title.value(text("en")), text("Packages"));
    QCOMPARE(desc.title.value(text("de")), text("Pakete"));
    QCOMPARE(desc.description.value(text("fr")), text("Paquets"));
    QCOMPARE(desc.description.value(text("en")), QString());
    QCOMPARE(desc.uriDescription.value(text("en")), text("Site"));
}

void tst_RVRepDesc::lastOfRepeatedElementsCounts()
{
    RVRepDesc desc;
    parse(desc,
          text("<settings_key>a</settings_key><settings_key>b</settings_key>"
               "<default_uri>http://a/</default_uri><default_uri>http://b/</default_uri>"
               "<selector_type>PickOne</selector_type><selector_type>Any</selector_type>"
               "<icon>a</icon><icon>b</icon>"
               "<filter_sps>yes</filter_sps><filter_sps>no</filter_sps>"
               "<title>a</title><title>b</title>"));
    QCOMPARE(desc.settingsKey, text("b"));
    QCOMPARE(desc.defaultUri, QUrl(text("http://b/")));
    QVERIFY(!desc.picksOne());
    QCOMPARE(desc.icon, text("b"));
    QVERIFY(!desc.filterSps);
    QCOMPARE(desc.title.value(text("en")), text("b"));
}

void tst_RVRepDesc::nestingDoesNotMatter()
{
    RVRepDesc desc;
    parse(desc,
          text("<x><y><icon>i</icon></y></x><z><filter_pattern><p>"
               "<archive_pattern>a</archive_pattern></p></filter_pattern></z>"));
    QCOMPARE(desc.icon, text("i"));
    QCOMPARE(desc.archivePatterns, QStringList(text("a")));
}

void tst_RVRepDesc::contentIsXmlText()
{
    RVRepDesc desc;
    parse(desc,
          text("<title>a &amp; b</title><description>one <b>two</b></description>"
               "<settings_key> blanks stay </settings_key>"
               "<default_uri>http://h/?a=1&amp;b=2</default_uri>"));
    QCOMPARE(desc.title.value(QString()), text("a &amp; b"));
    QVERIFY(desc.description.value(QString()).contains(text("<b>two</b>")));
    QCOMPARE(desc.settingsKey, text(" blanks stay "));
    QCOMPARE(desc.defaultUri.query(), text("a=1&amp;b=2"));
}

void tst_RVRepDesc::defaultUri_data()
{
    QTest::addColumn<QString>("inner");
    QTest::addColumn<QByteArray>("encoded");
    QTest::newRow("empty") << QString() << QByteArray();
    QTest::newRow("escapes are kept")
        << text("http://h/a%20b%23c/") << QByteArray("http://h/a%20b%23c/");
    QTest::newRow("blanks are encoded") << text("http://h/a b/") << QByteArray("http://h/a%20b/");
    QTest::newRow("umlauts as UTF-8")
        << text("http://h/gr\xc3\xbcn/") << QByteArray("http://h/gr%C3%BCn/");
    QTest::newRow("lone percent is repaired")
        << text("http://h/100%/") << QByteArray("http://h/100%25/");
    QTest::newRow("bare path") << text("/srv/repository") << QByteArray("/srv/repository");
    QTest::newRow("file") << text("file:///srv/repository") << QByteArray("file:///srv/repository");
    QTest::newRow("user and password") << text("ftp://me:pw@h/") << QByteArray("ftp://me:pw@h/");
}

void tst_RVRepDesc::defaultUri()
{
    QFETCH(QString, inner);
    RVRepDesc desc;
    parse(desc, QStringLiteral("<default_uri>%1</default_uri>").arg(inner));
    QTEST(desc.defaultUri.toEncoded(), "encoded");
}

void tst_RVRepDesc::filterSps_data()
{
    QTest::addColumn<bool>("expected");
    for (const char *word : {"Yes", "TRUE", "1", "true", "t", "y", "yonder", "Tomorrow"}) {
        QTest::newRow(word) << true;
    }
    for (const char *word : {"no", "0", "false", "maybe", "", "f", "N", "2", "11", "on", " yes"}) {
        QTest::newRow(word) << false;
    }
}

void tst_RVRepDesc::filterSps()
{
    RVRepDesc desc;
    parse(
        desc,
        QStringLiteral("<filter_sps>%1</filter_sps>").arg(QLatin1String(QTest::currentDataTag())));
    QTEST(desc.filterSps, "expected");
}

void tst_RVRepDesc::filterPatterns_data()
{
    QTest::addColumn<QString>("inner");
    QTest::addColumn<QStringList>("archives");
    QTest::addColumn<QStringList>("descriptors");
    const QString both = text("<filter_pattern><archive_pattern>%1</archive_pattern>"
                              "<descriptor_pattern>%2</descriptor_pattern></filter_pattern>");
    const QString a = text("\\.deb$");
    const QString b = text("\\.xml$");
    QTest::newRow("both") << both.arg(a, b) << QStringList{a} << QStringList{b};
    QTest::newRow("archive pattern alone")
        << text("<filter_pattern><archive_pattern>%1</archive_pattern></filter_pattern>").arg(a)
        << QStringList{a} << QStringList{a};
    QTest::newRow("empty descriptor pattern")
        << both.arg(a, QString()) << QStringList{a} << QStringList{a};
    QTest::newRow("descriptor pattern alone")
        << text("<filter_pattern><descriptor_pattern>%1</descriptor_pattern></filter_pattern>")
               .arg(b)
        << QStringList() << QStringList();
    QTest::newRow("empty archive pattern")
        << both.arg(QString(), b) << QStringList() << QStringList();
    QTest::newRow("empty filter") << text("<filter_pattern/>") << QStringList() << QStringList();
    QTest::newRow("patterns outside of a filter")
        << text("<archive_pattern>a</archive_pattern><descriptor_pattern>b</descriptor_pattern>")
        << QStringList() << QStringList();
    QTest::newRow("several in document order")
        << both.arg(a, b) + text("<filter_pattern/>") + both.arg(b, a) + both.arg(a, b)
        << QStringList{a, b, a} << QStringList{b, a, b};
    QTest::newRow("last of repeated patterns")
        << text("<filter_pattern><archive_pattern>x</archive_pattern>"
                "<archive_pattern>y</archive_pattern></filter_pattern>")
        << QStringList{text("y")} << QStringList{text("y")};
}

void tst_RVRepDesc::filterPatterns()
{
    QFETCH(QString, inner);
    RVRepDesc desc;
    parse(desc, inner);
    QTEST(desc.archivePatterns, "archives");
    QTEST(desc.descriptorPatterns, "descriptors");
}

void tst_RVRepDesc::picksOne_data()
{
    QTest::addColumn<bool>("expected");
    for (const char *word : {"PickOne", "pickone", "PICKONE"}) {
        QTest::newRow(word) << true;
    }
    for (const char *word : {"", "PickMany", "PickOne ", "Pick One", "1"}) {
        QTest::newRow(word) << false;
    }
}

void tst_RVRepDesc::picksOne()
{
    RVRepDesc desc;
    parse(desc,
          QStringLiteral("<selector_type>%1</selector_type>")
              .arg(QLatin1String(QTest::currentDataTag())));
    QTEST(desc.picksOne(), "expected");
}

QTEST_GUILESS_MAIN(tst_RVRepDesc)
#include "tst_RVRepDesc.moc"

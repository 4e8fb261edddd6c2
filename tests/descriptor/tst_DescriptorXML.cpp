// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "descriptor/DescriptorXML.h"
#include "tests/support/LogFile.h"
#include "tests/support/WarningGuard.h"

#include <QBuffer>
#include <QTemporaryFile>
#include <QTest>

namespace
{

const QString en = QStringLiteral("en");
const QString de = QStringLiteral("de");

bool readInto(DescriptorXML &descriptor, QByteArray document)
{
    QBuffer buffer(&document);
    return descriptor.read(&buffer);
}

QByteArray update(const QByteArray &inner)
{
    return "<update_data>" + inner + "</update_data>";
}

QByteArray description(const QByteArray &inner)
{
    return "<xar><subdoc><service-pack-description>" + inner
        + "</service-pack-description></subdoc></xar>";
}

QStringList strings(std::initializer_list<const char *> texts)
{
    QStringList list;
    for (const char *text : texts) {
        list.append(QString::fromUtf8(text));
    }
    return list;
}

} // namespace

class tst_DescriptorXML : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void handlesUrl_data();
    void handlesUrl();
    void startsEmpty();
    void readsEachUpdateElement_data();
    void readsEachUpdateElement();
    void readsEachDescriptionElement_data();
    void readsEachDescriptionElement();
    void readsWholeUpdate();
    void readsWholeXar();
    void lists_data();
    void lists();
    void result_data();
    void result();
    void nestedElementsCount();
    void lastValueWins();
    void notesKeepMarkup();
    void languages();
    void sizesThatAreNoNumbers();
    void contentsAreSorted();
    void xarReadsDirectChildrenOnly();
    void xarPartsFeedTheSameFields();
    void secondReadAppends();
    void readsFromAFile();
    void logsNothing();

private:
    DescriptorXML m_descriptor{QUrl(QStringLiteral("file:///x.xml"))};
};

void tst_DescriptorXML::handlesUrl_data()
{
    QTest::addColumn<QString>("url");
    QTest::addColumn<bool>("handled");

    QTest::newRow("plain") << QStringLiteral("http://h/dir/a.xml") << true;
    QTest::newRow("capital letters") << QStringLiteral("http://h/A.XML") << true;
    QTest::newRow("relative") << QStringLiteral("a.xml") << true;
    QTest::newRow("query and fragment") << QStringLiteral("http://h/a.xml?b=c.deb#d.xar") << true;
    QTest::newRow("suffix in the query only") << QStringLiteral("http://h/a?b.xml") << false;
    QTest::newRow("suffix in the fragment only") << QStringLiteral("http://h/a#b.xml") << false;
    QTest::newRow("suffix of the directory only") << QStringLiteral("http://h/a.xml/b") << false;
    QTest::newRow("second suffix") << QStringLiteral("http://h/a.xml.gz") << false;
    QTest::newRow("longer suffix") << QStringLiteral("http://h/a.xmlx") << false;
    QTest::newRow("name without a full stop") << QStringLiteral("http://h/xml") << false;
    QTest::newRow("another suffix") << QStringLiteral("http://h/a.deb") << false;
    QTest::newRow("escaped full stop") << QStringLiteral("http://h/a%2Exml") << true;
    QTest::newRow("empty") << QString() << false;
}

void tst_DescriptorXML::handlesUrl()
{
    QFETCH(QString, url);
    QFETCH(bool, handled);

    const DescriptorXML descriptor((QUrl(url)));
    QCOMPARE(descriptor.urlIsHandled(), handled);
    QCOMPARE(descriptor.url(), QUrl(url));
}

void tst_DescriptorXML::startsEmpty()
{
    const DescriptorXML d((QUrl(QStringLiteral("a.xml"))));
    QCOMPARE(d.name(QString()), QString());
    QCOMPARE(d.title(en), QString());
    QCOMPARE(d.contentNotes(en), QString());
    QVERIFY(d.version().isEmpty());
    QVERIFY(d.contentFiles().isEmpty());
    QVERIFY(d.baseReleases().isEmpty());
    QCOMPARE(d.size(), qint64(-1));
    QCOMPARE(d.unpackedSize(), qint64(-1));
    QCOMPARE(d.installedSize(), qint64(-1));
    QVERIFY(d.architectureList().isEmpty());
    QVERIFY(d.thinClientList().isEmpty());
}

namespace
{

/// Every field as one text, so that a table can say that one element fills one field and no other.
QString fields(const DescriptorBaseClass &d)
{
    const QLatin1Char comma(',');
    return QStringLiteral("%1|%2|%3|%4|%5|%6|")
               .arg(d.name(en), d.title(en), d.contentNotes(en), d.version().toString(),
                    d.contentFiles().join(comma), d.baseReleases().join(comma))
        + QStringLiteral("%1|%2|%3|%4|%5")
              .arg(QString::number(d.size()), QString::number(d.unpackedSize()),
                   QString::number(d.installedSize()), d.architectureList().join(comma),
                   d.thinClientList().join(comma));
}

} // namespace

void tst_DescriptorXML::readsEachUpdateElement_data()
{
    QTest::addColumn<QByteArray>("element");
    QTest::addColumn<QString>("expected");

    const auto row = [](const char *tag, const char *expected) {
        const QByteArray name(tag);
        QTest::newRow(tag) << "<" + name + ">5</" + name + ">" << QString::fromUtf8(expected);
    };
    row("name", "5||||||-1|-1|-1|all,all|");
    row("title", "|5|||||-1|-1|-1|all,all|");
    row("notes", "||5||||-1|-1|-1|all,all|");
    row("version", "|||5|||-1|-1|-1|all,all|");
    row("package", "||||5||-1|-1|-1|all,all|");
    row("base_releases", "|||||5|-1|-1|-1|all,all|");
    row("size", "||||||5|-1|-1|all,all|");
    row("unpacked_size", "||||||-1|5|-1|all,all|");
    row("installed_size", "||||||-1|-1|5|all,all|");
    row("architecture", "||||||-1|-1|-1|5,all|");
    row("thin_client", "||||||-1|-1|-1|all|5");
    row("Name", "||||||-1|-1|-1|all,all|");
    row("sp-attrs", "||||||-1|-1|-1|all,all|");
}

void tst_DescriptorXML::readsEachUpdateElement()
{
    QFETCH(QByteArray, element);
    QFETCH(QString, expected);

    DescriptorXML descriptor(m_descriptor.url());
    QVERIFY(readInto(descriptor, update(element)));
    QCOMPARE(fields(descriptor), expected);
}

void tst_DescriptorXML::readsEachDescriptionElement_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QString>("expected");

    const auto element = [](const char *tag) {
        return QByteArray("<") + tag + ">5</" + tag + ">";
    };
    const auto row = [&](const char *tag, const char *expected) {
        QTest::newRow(tag) << description(element(tag)) << QString::fromUtf8(expected);
    };
    row("name", "5||||||-1|-1|-1|all,all|");
    row("title", "|5|||||-1|-1|-1|all,all|");
    row("notes", "||5||||-1|-1|-1|all,all|");
    row("version", "|||5|||-1|-1|-1|all,all|");
    row("package", "||||5||-1|-1|-1|all,all|");
    row("base_releases", "|||||5|-1|-1|-1|all,all|");
    row("size", "||||||-1|-1|-1|all,all|");
    row("unpacked_size", "||||||-1|-1|-1|all,all|");
    row("installed_size", "||||||-1|-1|-1|all,all|");
    row("architecture", "||||||-1|-1|-1|5,all|");
    row("thin_client", "||||||-1|-1|-1|all|5");

    const auto attribute = [&](const char *tag, const char *expected) {
        QTest::newRow(qPrintable(QStringLiteral("attribute %1").arg(QLatin1String(tag))))
            << "<xar><subdoc><sp-attrs>" + element(tag) + "</sp-attrs></subdoc></xar>"
            << QString::fromUtf8(expected);
    };
    attribute("unpacked_size", "||||||-1|5|-1|all,all|");
    attribute("installed_size", "||||||-1|-1|5|all,all|");
    attribute("size", "||||||-1|-1|-1|all,all|");
    attribute("version", "||||||-1|-1|-1|all,all|");
}

void tst_DescriptorXML::readsEachDescriptionElement()
{
    QFETCH(QByteArray, document);
    QFETCH(QString, expected);

    DescriptorXML descriptor(m_descriptor.url());
    QVERIFY(readInto(descriptor, document));
    QCOMPARE(fields(descriptor), expected);
}

void tst_DescriptorXML::readsWholeUpdate()
{
    DescriptorXML d(m_descriptor.url());
    QVERIFY(readInto(d, R"(<?xml version="1.0" encoding="UTF-8"?>
<update_data>
  <name>firmware</name>
  <name xml:lang="de">Systemabbild</name>
  <title>Firmware 2</title>
  <title xml:lang="de">Systemabbild 2</title>
  <notes>Read <b>this</b> first.</notes>
  <version>2.0-1</version>
  <base_releases>1.0</base_releases>
  <base_releases>1.1.*</base_releases>
  <package>zlib 1.2</package>
  <package>bash 5.0</package>
  <size>1000</size>
  <unpacked_size>3000000000</unpacked_size>
  <installed_size>4000000000</installed_size>
  <architecture>armel</architecture>
  <thin_client>t1</thin_client>
  <thin_client>t2</thin_client>
</update_data>)"));
    QCOMPARE(d.name(en), QStringLiteral("firmware"));
    QCOMPARE(d.name(de), QStringLiteral("Systemabbild"));
    QCOMPARE(d.title(en), QStringLiteral("Firmware 2"));
    QCOMPARE(d.title(de), QStringLiteral("Systemabbild 2"));
    QCOMPARE(d.contentNotes(en), QStringLiteral("Read <b>this</b> first."));
    QCOMPARE(d.contentNotes(de), QString());
    QCOMPARE(d.version().toString(), QStringLiteral("2.0-1"));
    QCOMPARE(d.baseReleases(), strings({"1.0", "1.1.*"}));
    QCOMPARE(d.contentFiles(), strings({"bash 5.0", "zlib 1.2"}));
    QCOMPARE(d.size(), qint64(1000));
    QCOMPARE(d.unpackedSize(), Q_INT64_C(3000000000));
    QCOMPARE(d.installedSize(), Q_INT64_C(4000000000));
    QCOMPARE(d.architectureList(), strings({"armel"}));
    QCOMPARE(d.thinClientList(), strings({"t1", "t2"}));
}

void tst_DescriptorXML::readsWholeXar()
{
    DescriptorXML d(m_descriptor.url());
    QVERIFY(readInto(d, R"(<xar>
  <toc><file><name>not this</name><size>7</size></file></toc>
  <subdoc subdoc_name="attributes">
    <sp-attrs><unpacked_size>20</unpacked_size><installed_size>30</installed_size></sp-attrs>
  </subdoc>
  <subdoc subdoc_name="description">
    <service-pack-description>
      <name>pack</name><title xml:lang="de">Paket</title>
      <base_releases>all</base_releases><package>b</package><package>a</package>
      <version>7</version><notes>n</notes>
      <architecture>armel</architecture><thin_client>t1</thin_client>
    </service-pack-description>
  </subdoc>
</xar>)"));
    QCOMPARE(fields(d), QStringLiteral("pack||n|7|a,b|all|-1|20|30|armel|t1"));
    QCOMPARE(d.title(de), QStringLiteral("Paket"));
}

void tst_DescriptorXML::lists_data()
{
    QTest::addColumn<QByteArray>("inner");
    QTest::addColumn<QStringList>("architectures");
    QTest::addColumn<QStringList>("thinClients");

    const QByteArray armel = "<architecture>armel</architecture>";
    const QByteArray model = "<thin_client>t1</thin_client>";
    QTest::newRow("both missing") << QByteArray() << strings({"all", "all"}) << QStringList();
    QTest::newRow("no model") << armel << strings({"armel", "all"}) << QStringList();
    QTest::newRow("no architecture") << model << strings({"all"}) << strings({"t1"});
    QTest::newRow("both") << armel + model << strings({"armel"}) << strings({"t1"});
}

void tst_DescriptorXML::lists()
{
    QFETCH(QByteArray, inner);
    QFETCH(QStringList, architectures);
    QFETCH(QStringList, thinClients);

    for (const QByteArray &document : {update(inner), description(inner)}) {
        DescriptorXML d(m_descriptor.url());
        QVERIFY(readInto(d, document));
        QCOMPARE(d.architectureList(), architectures);
        QCOMPARE(d.thinClientList(), thinClients);
    }
}

void tst_DescriptorXML::result_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<bool>("understood");

    QTest::newRow("update without children") << QByteArray("<update_data/>") << true;
    QTest::newRow("xar without children") << QByteArray("<xar/>") << false;
    QTest::newRow("xar with other children") << QByteArray("<xar><toc/></xar>") << false;
    QTest::newRow("xar with an empty part") << QByteArray("<xar><subdoc/></xar>") << true;
    QTest::newRow("another root") << QByteArray("<updates><name>a</name></updates>") << false;
    QTest::newRow("root in capital letters") << QByteArray("<XAR><subdoc/></XAR>") << false;
    QTest::newRow("not well-formed") << QByteArray("<update_data><name>a</update_data>") << false;
    QTest::newRow("nothing") << QByteArray() << false;
    QTest::newRow("too deep") << update(QByteArray("<a>").repeated(300)
                                        + QByteArray("</a>").repeated(300))
                              << false;
}

void tst_DescriptorXML::result()
{
    QFETCH(QByteArray, document);
    QFETCH(bool, understood);

    DescriptorXML descriptor(m_descriptor.url());
    QCOMPARE(readInto(descriptor, document), understood);
    QCOMPARE(fields(descriptor), QStringLiteral("||||||-1|-1|-1|all,all|"));
}

void tst_DescriptorXML::nestedElementsCount()
{
    DescriptorXML d(m_descriptor.url());
    QVERIFY(readInto(
        d, update("<contents><group><package>b</package></group></contents><package>a</package>")));
    QCOMPARE(d.contentFiles(), strings({"a", "b"}));
}

void tst_DescriptorXML::lastValueWins()
{
    DescriptorXML d(m_descriptor.url());
    QVERIFY(readInto(d,
                     update("<version>1</version><version>2</version>"
                            "<size>10</size><size>20</size><size>unknown</size>")));
    QCOMPARE(d.version().toString(), QStringLiteral("2"));
    QCOMPARE(d.size(), qint64(20));
}

void tst_DescriptorXML::notesKeepMarkup()
{
    DescriptorXML d(m_descriptor.url());
    QVERIFY(readInto(d, update("<notes>a <i>b</i> &lt;c&gt; &amp; d</notes>")));
    QCOMPARE(d.contentNotes(en), QStringLiteral("a <i>b</i> &lt;c> &amp; d"));
}

void tst_DescriptorXML::languages()
{
    DescriptorXML d(m_descriptor.url());
    QVERIFY(readInto(d,
                     update("<name>plain</name><name xml:lang='de'>deutsch</name>"
                            "<name xml:lang='fr'>1</name><name xml:lang='fr'>2</name>")));
    QCOMPARE(d.name(en), QStringLiteral("plain"));
    QCOMPARE(d.name(de), QStringLiteral("deutsch"));
    QCOMPARE(d.name(QStringLiteral("fr")), QStringLiteral("2"));
    QCOMPARE(d.name(QStringLiteral("es")), QString());
}

void tst_DescriptorXML::sizesThatAreNoNumbers()
{
    DescriptorXML d(m_descriptor.url());
    QVERIFY(readInto(d,
                     update("<size>12 MB</size><unpacked_size> 5</unpacked_size>"
                            "<installed_size>1e6</installed_size>")));
    QCOMPARE(d.size(), qint64(-1));
    QCOMPARE(d.unpackedSize(), qint64(-1));
    QCOMPARE(d.installedSize(), qint64(-1));
}

void tst_DescriptorXML::contentsAreSorted()
{
    DescriptorXML d(m_descriptor.url());
    QVERIFY(readInto(d,
                     update("<package>b</package><package>a</package><package>B</package>"
                            "<package>a</package><package>10</package><package>9</package>")));
    QCOMPARE(d.contentFiles(), strings({"10", "9", "B", "a", "a", "b"}));
}

void tst_DescriptorXML::xarReadsDirectChildrenOnly()
{
    DescriptorXML d(m_descriptor.url());
    QVERIFY(!readInto(d,
                      "<xar><toc><subdoc><service-pack-description><version>1</version>"
                      "</service-pack-description></subdoc></toc></xar>"));
    QVERIFY(d.version().isEmpty());

    QVERIFY(readInto(d,
                     "<xar><subdoc><more><service-pack-description><version>1</version>"
                     "</service-pack-description></more><version>2</version></subdoc></xar>"));
    QVERIFY(d.version().isEmpty());
}

void tst_DescriptorXML::xarPartsFeedTheSameFields()
{
    DescriptorXML d(m_descriptor.url());
    QVERIFY(readInto(d, R"(<xar>
<subdoc>
<service-pack-description><version>1</version><package>c</package></service-pack-description>
<service-pack-description><version>2</version><package>a</package></service-pack-description>
<sp-attrs><unpacked_size>1</unpacked_size></sp-attrs>
</subdoc>
<subdoc>
<service-pack-description><package>b</package></service-pack-description>
<sp-attrs><unpacked_size>2</unpacked_size></sp-attrs>
</subdoc></xar>)"));
    QCOMPARE(d.version().toString(), QStringLiteral("2"));
    QCOMPARE(d.contentFiles(), strings({"a", "b", "c"}));
    QCOMPARE(d.unpackedSize(), qint64(2));
}

void tst_DescriptorXML::secondReadAppends()
{
    DescriptorXML d(m_descriptor.url());
    const QByteArray document = update("<version>1</version><name>n</name><package>p</package>"
                                       "<architecture>armel</architecture>");
    QVERIFY(readInto(d, document));
    QVERIFY(readInto(d, document));
    QCOMPARE(d.contentFiles(), strings({"p", "p"}));
    QCOMPARE(d.architectureList(), strings({"armel", "all", "armel", "all"}));
    QVERIFY(!readInto(d, "nothing"));
    QCOMPARE(d.version().toString(), QStringLiteral("1"));
    QCOMPARE(d.name(en), QStringLiteral("n"));
    QCOMPARE(d.architectureList(), strings({"armel", "all", "armel", "all", "all"}));
}

void tst_DescriptorXML::readsFromAFile()
{
    QTemporaryFile file;
    QVERIFY(file.open());
    file.write(update("<version>3</version>"));
    file.close();
    QFile again(file.fileName());
    DescriptorXML d(m_descriptor.url());
    QVERIFY(d.read(&again));
    QCOMPARE(d.version().toString(), QStringLiteral("3"));
}

void tst_DescriptorXML::logsNothing()
{
    const LogFile log;
    WarningGuard guard;
    DescriptorXML d(m_descriptor.url());
    QVERIFY(!readInto(d, "<update_data>"));
    QVERIFY(!readInto(d, "<other/>"));
    QCOMPARE(log.lines(), QStringList());
}

QTEST_GUILESS_MAIN(tst_DescriptorXML)
#include "tst_DescriptorXML.moc"

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/XarToc.h"
#include "tests/support/CpuCost.h"
#include "tests/support/WarningGuard.h"
#include "tests/support/XarWriter.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <QTest>

namespace
{

bool read(XarToc *table, const QByteArray &archive)
{
    QBuffer buffer;
    buffer.setData(archive);
    return buffer.open(QIODevice::ReadOnly) && table->read(&buffer);
}

QByteArray sample(const QString &name)
{
    QFile file(QStringLiteral(RAVEL_TEST_DATA "/xar/") + name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray nested(int depth)
{
    return QByteArray("<a>").repeated(depth) + QByteArray("</a>").repeated(depth);
}

} // namespace

class tst_XarToc : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_warnings = std::make_unique<WarningGuard>(); }
    void cleanup();
    void readsSamples_data();
    void readsSamples();
    void subdocumentText();
    void secondReadStartsAnew();
    void checksums_data();
    void checksums();
    void refuses_data();
    void refuses();
    void mutations_data();
    void mutations();

private:
    std::unique_ptr<WarningGuard> m_warnings;
};

void tst_XarToc::cleanup()
{
    m_warnings.reset();
}

void tst_XarToc::readsSamples_data()
{
    QTest::addColumn<int>("subdocuments");
    QTest::addColumn<int>("members");
    QTest::newRow("attrs-only.xar") << 1 << 6;
    QTest::newRow("duplicates.xar") << 2 << 6;
    QTest::newRow("no-directory.xar") << 1 << 1;
    QTest::newRow("no-subdocuments.xar") << 0 << 6;
    QTest::newRow("service-pack.xar") << 2 << 6;
    QTest::newRow("stored.xar") << 1 << 6;
    QTest::newRow("two-directories.xar") << 1 << 4;
}

void tst_XarToc::readsSamples()
{
    XarToc table;
    QVERIFY(read(&table, sample(QString::fromLatin1(QTest::currentDataTag()))));
    QTEST(table.subdocuments().size(), "subdocuments");
    QTEST(table.memberCount(), "members");
}

void tst_XarToc::subdocumentText()
{
    XarWriter writer;
    writer.addSubdocument("<a x=\"&lt;1\" xml:lang=\"de\">t&amp;u<b/><!--c--><![CDATA[<d>]]></a>");
    writer.addSubdocument("text");
    writer.addRaw("<subdoc><deeper/></subdoc><file><name>n</name></file>");
    XarToc table;
    QVERIFY(read(&table, writer.archive()));
    QCOMPARE(table.subdocuments(),
             (QList<QByteArray>{"<a x=\"&lt;1\" xml:lang=\"de\">t&amp;u<b/><!--c-->"
                                "<![CDATA[<d>]]></a>",
                                "text"}));
    QCOMPARE(table.memberCount(), 1);
}

void tst_XarToc::secondReadStartsAnew()
{
    XarToc table;
    QVERIFY(read(&table, sample(QStringLiteral("service-pack.xar"))));
    QVERIFY(!read(&table, "no archive"));
    QVERIFY(table.subdocuments().isEmpty());
    QCOMPARE(table.memberCount(), 0);
}

void tst_XarToc::checksums_data()
{
    QTest::addColumn<int>("checksum");
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<bool>("isWrong");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("none") << int(XarWriter::None) << QByteArray() << false << true;
    QTest::newRow("none, by name") << int(XarWriter::None) << QByteArray("none") << false << true;
    const struct {
        XarWriter::Checksum checksum;
        const char *name;
    } kinds[] = {{XarWriter::Sha1, "sha1"},
                 {XarWriter::Md5, "md5"},
                 {XarWriter::Sha256, "sha256"},
                 {XarWriter::Sha512, "sha512"}};
    for (const auto &kind : kinds) {
        for (const bool isWrong : {false, true}) {
            const QByteArray suffix = isWrong ? ", wrong" : "";
            QTest::newRow((kind.name + suffix).constData())
                << int(kind.checksum) << QByteArray() << isWrong << !isWrong;
            QTest::newRow((kind.name + (", by name" + suffix)).constData())
                << int(kind.checksum) << QByteArray(kind.name) << isWrong << !isWrong;
        }
    }
    QTest::newRow("name of another")
        << int(XarWriter::Sha1) << QByteArray("sha256") << false << false;
    QTest::newRow("unknown name") << int(XarWriter::Sha1) << QByteArray("crc32") << false << false;
}

void tst_XarToc::checksums()
{
    QFETCH(int, checksum);
    QFETCH(QByteArray, name);
    QFETCH(bool, isWrong);
    XarWriter writer;
    writer.checksum = static_cast<XarWriter::Checksum>(checksum);
    writer.checksumName = name;
    writer.isChecksumWrong = isWrong;
    writer.addSubdocument("<a/>");
    XarToc table;
    QTEST(read(&table, writer.archive()), "accepted");
}

void tst_XarToc::refuses_data()
{
    QTest::addColumn<QByteArray>("archive");
    const QByteArray good = sample(QStringLiteral("service-pack.xar"));
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("another file") << QByteArray(1000, 'x');
    QTest::newRow("magic alone") << QByteArray("xar!");
    QTest::newRow("header alone") << good.left(28);
    for (int i = 1; i <= 10; ++i) {
        // Up to the last byte of the table's checksum.
        const int length = 28 + (1153 + 19) * i / 10;
        QTest::newRow(qPrintable(QStringLiteral("cut after %1 bytes").arg(length)))
            << good.left(length);
    }
    QTest::newRow("header shorter than itself") << QByteArray(good).replace(4, 2, QByteArray(2, 0));
    QTest::newRow("header longer than the file")
        << QByteArray(good).replace(4, 2, QByteArray(2, '\xff'));
    QTest::newRow("packed length beyond any file")
        << QByteArray(good).replace(8, 8, QByteArray(8, '\xff'));
    QTest::newRow("packed length of 16 MiB")
        << QByteArray(good).replace(8, 8, QByteArray::fromHex("0000000001000000"));
    QTest::newRow("length beyond any memory")
        << QByteArray(good).replace(16, 8, QByteArray(8, '\xff'));
    QTest::newRow("length zero") << QByteArray(good).replace(16, 8, QByteArray(8, '\0'));
    QTest::newRow("unknown checksum") << QByteArray(good).replace(24, 4, QByteArray(4, '\x7f'));

    XarWriter tooLong;
    tooLong.tableLength = 10000;
    QTest::newRow("longer than the table") << tooLong.archive();
    XarWriter tooShort;
    tooShort.tableLength = 20;
    QTest::newRow("shorter than the table") << tooShort.archive();
    XarWriter bomb;
    bomb.addSubdocument(QByteArray(32 * 1024 * 1024, ' '));
    QTest::newRow("table of 32 MiB") << bomb.archive();
    XarWriter lyingBomb;
    lyingBomb.tableLength = 1000;
    lyingBomb.addSubdocument(QByteArray(32 * 1024 * 1024, ' '));
    QTest::newRow("table of 32 MiB that says otherwise") << lyingBomb.archive();

    const auto withTable = [](const QByteArray &xml) {
        XarWriter writer;
        writer.addRaw(xml);
        return writer.archive();
    };
    QTest::newRow("not well-formed") << withTable("<open>");
    QTest::newRow("too deep") << withTable(nested(XarToc::maxDepth));
    XarWriter deepSubdocument;
    deepSubdocument.addSubdocument(nested(XarToc::maxDepth));
    QTest::newRow("too deep in a subdocument") << deepSubdocument.archive();
    QTest::newRow("deepest of all") << withTable(nested(200000));
    XarWriter documentType;
    documentType.prologue = "<!DOCTYPE xar [<!ENTITY a 'b'>]>";
    QTest::newRow("document type") << documentType.archive();
    XarWriter root;
    root.root = "rax";
    QTest::newRow("another root") << root.archive();
    const QByteArray tooMany = [] {
        QByteArray element = "<a";
        for (int i = 0; i <= XarToc::maxAttributes; ++i) {
            element += " n" + QByteArray::number(i) + "='\"'";
        }
        return element + "/>";
    }();
    QTest::newRow("too many attributes") << withTable(tooMany);
    // What would hide them from a pass that does not know where tags begin.
    QTest::newRow("behind a comment with a quote") << withTable("<!-- ' -->" + tooMany);
    QTest::newRow("behind a section with a quote") << withTable("<![CDATA[ \" ]]>" + tooMany);
    QTest::newRow("behind an instruction with a quote") << withTable("<?x ' ?>" + tooMany);
    QTest::newRow("behind a sign in a value") << withTable("<b c='>'/>" + tooMany);
    QByteArray attributes = "<a";
    for (int i = 0; i < 200000; ++i) {
        attributes += " n" + QByteArray::number(i) + "=''";
    }
    QTest::newRow("200,000 attributes") << withTable(attributes + "/>");
    XarWriter attributesInside;
    attributesInside.addSubdocument(tooMany);
    QTest::newRow("too many attributes in a subdocument") << attributesInside.archive();
    for (const int count : {XarToc::maxSubdocuments + 1, 300000}) {
        XarWriter writer;
        for (int i = 0; i < count; ++i) {
            writer.addSubdocument({});
        }
        QTest::addRow("%d subdocuments", count) << writer.archive();
    }
    QTest::newRow("member without a name") << withTable("<file></file>");
    QTest::newRow("member with two names")
        << withTable("<file><name>a</name><name>b</name></file>");
    QTest::newRow("inner member without a name") << withTable("<file><file/><name>a</name></file>");
    QTest::newRow("elements in a name") << withTable("<file><name>a<b/></name></file>");
    QTest::newRow("path longer than any")
        << withTable("<file><name>" + QByteArray(4096, 'n') + "</name></file>");
    QTest::newRow("path grown too long")
        << withTable(("<file><name>" + QByteArray(250, 'n') + "</name>").repeated(17)
                     + QByteArray("</file>").repeated(17));
}

void tst_XarToc::refuses()
{
    QFETCH(QByteArray, archive);
    const double cost = CpuCost::of([&archive] {
        XarToc table;
        QVERIFY(!read(&table, archive));
    });
    QVERIFY2(cost < 200, qPrintable(QString::number(cost)));
}

void tst_XarToc::mutations_data()
{
    readsSamples_data();
}

void tst_XarToc::mutations()
{
    const QByteArray good = sample(QString::fromLatin1(QTest::currentDataTag()));
    QRandomGenerator random(20260102);
    // With the checksum off, the damage reaches the parts behind it.
    const QByteArray unchecked = QByteArray(good).replace(24, 4, QByteArray(4, '\0'));
    for (int i = 0; i < 1000; ++i) {
        QByteArray mutant = i % 2 == 0 ? good : unchecked;
        for (int change = random.bounded(1, 4); change > 0; --change) {
            const int at = random.bounded(i % 4 < 2 ? 28 : mutant.size());
            if (random.bounded(4) == 0) {
                mutant.remove(at, random.bounded(16));
            } else {
                mutant[at] = static_cast<char>(random.bounded(256));
            }
        }
        XarToc table;
        read(&table, mutant);
    }
}

QTEST_GUILESS_MAIN(tst_XarToc)
#include "tst_XarToc.moc"

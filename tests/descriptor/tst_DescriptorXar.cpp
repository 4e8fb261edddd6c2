// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "descriptor/DescriptorXar.h"
#include "tests/support/CpuCost.h"
#include "tests/support/LogFile.h"
#include "tests/support/WarningGuard.h"
#include "tests/support/XarWriter.h"

#include <QBuffer>
#include <QFile>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QProcess>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

namespace
{

const QString en = QStringLiteral("en");
const QString de = QStringLiteral("de");
const QStringList all{QStringLiteral("all")};

QUrl archiveUrl()
{
    return QUrl(QStringLiteral("http://host/sp.xar"));
}

QString samplePath(const QString &name)
{
    return QStringLiteral(RAVEL_TEST_DATA "/xar/") + name;
}

bool read(DescriptorXar *descriptor, const QByteArray &archive)
{
    QBuffer buffer;
    buffer.setData(archive);
    return descriptor->read(&buffer);
}

bool readSample(DescriptorXar *descriptor, const char *name)
{
    QFile file(samplePath(QLatin1String(name)));
    return descriptor->read(&file);
}

QByteArray description(const QByteArray &elements)
{
    return "<service-pack-description>" + elements + "</service-pack-description>";
}

QByteArray archive(const QList<QByteArray> &subdocuments)
{
    XarWriter writer;
    for (const QByteArray &subdocument : subdocuments) {
        writer.addSubdocument(subdocument);
    }
    return writer.archive();
}

} // namespace

class tst_DescriptorXar : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void handlesUrlsBySuffix_data();
    void handlesUrlsBySuffix();
    void isEmptyBeforeReading();
    void servicePack_data();
    void servicePack();
    void sizesAlone();
    void lastOfTheOriginalOrderCounts();
    void laterSubdocumentIsTheFirstOne();
    void mixedTextStaysInOrder();
    void noKnownSubdocument_data();
    void noKnownSubdocument();
    void brokenSubdocument();
    void integersAreStrict();
    void defaultsGoToTheirOwnLists();
    void secondReadAppends();
    void archiveOfAnotherArchiver();
    void readsReply();
    void fails_data();
    void fails();
    void mutations_data();
    void mutations();

private:
    std::unique_ptr<LogFile> m_log;
    std::unique_ptr<WarningGuard> m_warnings;
};

void tst_DescriptorXar::init()
{
    m_log = std::make_unique<LogFile>();
    m_warnings = std::make_unique<WarningGuard>();
}

void tst_DescriptorXar::cleanup()
{
    m_warnings.reset();
    const QStringList lines = m_log->lines();
    m_log.reset();
    QVERIFY2(lines.isEmpty(), qPrintable(lines.join(QLatin1Char('\n'))));
}

void tst_DescriptorXar::handlesUrlsBySuffix_data()
{
    QTest::addColumn<QString>("url");
    QTest::addColumn<bool>("handled");
    QTest::newRow("archive") << "http://h/a.xar" << true;
    QTest::newRow("capital letters") << "http://h/a.XAR" << true;
    QTest::newRow("query does not count") << "http://h/a.xar?x=.deb" << true;
    QTest::newRow("suffix in the query only") << "http://h/a?x=.xar" << false;
    QTest::newRow("another suffix behind") << "http://h/a.xar.gz" << false;
    QTest::newRow("no suffix") << "http://h/xar" << false;
    QTest::newRow("empty") << "" << false;
}

void tst_DescriptorXar::handlesUrlsBySuffix()
{
    QFETCH(QString, url);
    QTEST(DescriptorXar(QUrl(url)).urlIsHandled(), "handled");
}

void tst_DescriptorXar::isEmptyBeforeReading()
{
    const DescriptorXar descriptor(archiveUrl());
    QCOMPARE(descriptor.url(), archiveUrl());
    QVERIFY(descriptor.name(QString()).isEmpty());
    QVERIFY(descriptor.version().isEmpty());
    QVERIFY(descriptor.architectureList().isEmpty());
    QVERIFY(descriptor.thinClientList().isEmpty());
    QCOMPARE(descriptor.size(), -1);
    QCOMPARE(descriptor.unpackedSize(), -1);
    QCOMPARE(descriptor.installedSize(), -1);
}

void tst_DescriptorXar::servicePack_data()
{
    QTest::addColumn<qint64>("unpackedSize");
    QTest::addColumn<qint64>("installedSize");
    QTest::newRow("service-pack.xar") << qint64(1048576) << qint64(2097152);
    QTest::newRow("stored.xar") << qint64(-1) << qint64(-1);
}

void tst_DescriptorXar::servicePack()
{
    DescriptorXar descriptor(archiveUrl());
    QVERIFY(readSample(&descriptor, QTest::currentDataTag()));
    QCOMPARE(descriptor.name(en), QStringLiteral("Security Pack"));
    QCOMPARE(descriptor.name(QString()), QStringLiteral("Security Pack"));
    QCOMPARE(descriptor.title(en), QStringLiteral("January security fixes"));
    QCOMPARE(descriptor.title(de), QStringLiteral("Sicherheitskorrekturen Januar"));
    QCOMPARE(descriptor.contentNotes(en), QStringLiteral("Fixes two defects."));
    QCOMPARE(descriptor.version().toString(), QStringLiteral("1.0-2"));
    QCOMPARE(descriptor.contentFiles(),
             (QStringList{QStringLiteral("bash 5.2-3"), QStringLiteral("openssl 3.0.20-1")}));
    QCOMPARE(descriptor.baseReleases(),
             (QStringList{QStringLiteral("6\\.1.*"), QStringLiteral("T6X45")}));
    QCOMPARE(descriptor.architectureList(), QStringList(QStringLiteral("armel")));
    QCOMPARE(descriptor.thinClientList(), all);
    QCOMPARE(descriptor.size(),
             QFileInfo(samplePath(QLatin1String(QTest::currentDataTag()))).size());
    QTEST(descriptor.unpackedSize(), "unpackedSize");
    QTEST(descriptor.installedSize(), "installedSize");
}

void tst_DescriptorXar::sizesAlone()
{
    DescriptorXar descriptor(archiveUrl());
    QVERIFY(readSample(&descriptor, "attrs-only.xar"));
    QCOMPARE(descriptor.unpackedSize(), 1048576);
    QCOMPARE(descriptor.installedSize(), 2097152);
    QVERIFY(descriptor.version().isEmpty());
    QVERIFY(descriptor.name(en).isEmpty());
    QVERIFY(descriptor.baseReleases().isEmpty());
    QVERIFY(descriptor.contentFiles().isEmpty());
    QCOMPARE(descriptor.architectureList(), all);
    QCOMPARE(descriptor.thinClientList(), all);
}

void tst_DescriptorXar::lastOfTheOriginalOrderCounts()
{
    DescriptorXar descriptor(archiveUrl());
    QVERIFY(readSample(&descriptor, "duplicates.xar"));
    QCOMPARE(descriptor.name(en), QStringLiteral("Second"));
    QCOMPARE(descriptor.version().toString(), QStringLiteral("2.0"));
    QCOMPARE(descriptor.title(de), QStringLiteral("Zwei"));
    QCOMPARE(descriptor.contentFiles(),
             (QStringList{QStringLiteral("a 1"), QStringLiteral("b 1"), QStringLiteral("c 1")}));
    QCOMPARE(descriptor.thinClientList(),
             (QStringList{QStringLiteral("t510"), QStringLiteral("t610")}));
}

void tst_DescriptorXar::laterSubdocumentIsTheFirstOne()
{
    DescriptorXar descriptor(archiveUrl());
    QVERIFY(read(&descriptor,
                 archive({description("<version>2</version><thin_client>b</thin_client>"),
                          description("<version>1</version><thin_client>a</thin_client>")})));
    QCOMPARE(descriptor.version().toString(), QStringLiteral("2"));
    QCOMPARE(descriptor.thinClientList(), (QStringList{QStringLiteral("a"), QStringLiteral("b")}));
}

void tst_DescriptorXar::mixedTextStaysInOrder()
{
    DescriptorXar descriptor(archiveUrl());
    QVERIFY(read(&descriptor,
                 archive({description("<notes>one <b>two</b> three</notes>"
                                      "<version>2</version><version>1</version>")})));
    QCOMPARE(descriptor.contentNotes(en).simplified(), QStringLiteral("one <b>two</b> three"));
    QCOMPARE(descriptor.version().toString(), QStringLiteral("2"));
}

void tst_DescriptorXar::noKnownSubdocument_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QFile file(samplePath(QStringLiteral("no-subdocuments.xar")));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QTest::newRow("none at all") << file.readAll();
    QTest::newRow("another root") << archive({"<other><version>1</version></other>"});
    QTest::newRow("known root inside") << archive({"<x>" + description("") + "</x>"});
    QTest::newRow("other case") << archive(
        {"<SP-ATTRS><unpacked_size>1</unpacked_size></SP-ATTRS>"});
    QTest::newRow("empty") << archive({""});
    QTest::newRow("text") << archive({"text"});
    QTest::newRow("two roots") << archive(
        {"<sp-attrs><unpacked_size>1</unpacked_size></sp-attrs><sp-attrs/>"});
}

void tst_DescriptorXar::noKnownSubdocument()
{
    QFETCH(QByteArray, bytes);
    DescriptorXar descriptor(archiveUrl());
    QVERIFY(read(&descriptor, bytes));
    QCOMPARE(descriptor.size(), bytes.size());
    QCOMPARE(descriptor.unpackedSize(), -1);
    QVERIFY(descriptor.version().isEmpty());
    QVERIFY(descriptor.baseReleases().isEmpty());
    QCOMPARE(descriptor.architectureList(), all);
    QCOMPARE(descriptor.thinClientList(), all);
}

void tst_DescriptorXar::brokenSubdocument()
{
    // Elements of more nodes than a document may have: no values, and the other subdocument counts.
    DescriptorXar descriptor(archiveUrl());
    QVERIFY(
        read(&descriptor,
             archive({description("<version>1</version>" + QByteArray("<a/>").repeated(2000000)),
                      "<sp-attrs><installed_size>7</installed_size></sp-attrs>"})));
    QVERIFY(descriptor.version().isEmpty());
    QCOMPARE(descriptor.installedSize(), 7);
}

void tst_DescriptorXar::integersAreStrict()
{
    DescriptorXar descriptor(archiveUrl());
    QVERIFY(read(&descriptor,
                 archive({"<sp-attrs><unpacked_size>1,000</unpacked_size>"
                          "<installed_size> 5</installed_size></sp-attrs>"})));
    QCOMPARE(descriptor.unpackedSize(), -1);
    QCOMPARE(descriptor.installedSize(), -1);
}

void tst_DescriptorXar::defaultsGoToTheirOwnLists()
{
    DescriptorXar architectures(archiveUrl());
    QVERIFY(read(&architectures, archive({description("<architecture>armel</architecture>")})));
    QCOMPARE(architectures.architectureList(), QStringList(QStringLiteral("armel")));
    QCOMPARE(architectures.thinClientList(), all);
    DescriptorXar models(archiveUrl());
    QVERIFY(read(&models, archive({description("<thin_client>t510</thin_client>")})));
    QCOMPARE(models.architectureList(), all);
    QCOMPARE(models.thinClientList(), QStringList(QStringLiteral("t510")));
}

void tst_DescriptorXar::secondReadAppends()
{
    DescriptorXar descriptor(archiveUrl());
    QVERIFY(readSample(&descriptor, "duplicates.xar"));
    QVERIFY(readSample(&descriptor, "duplicates.xar"));
    QCOMPARE(descriptor.contentFiles(),
             (QStringList{QStringLiteral("a 1"), QStringLiteral("a 1"), QStringLiteral("b 1"),
                          QStringLiteral("b 1"), QStringLiteral("c 1"), QStringLiteral("c 1")}));
    QCOMPARE(descriptor.name(en), QStringLiteral("Second"));
}

void tst_DescriptorXar::archiveOfAnotherArchiver()
{
    QTemporaryDir dir;
    QFile file(dir.filePath(QStringLiteral("readme")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("text");
    file.close();
    const QString name = dir.filePath(QStringLiteral("a.xar"));
    QCOMPARE(QProcess::execute(QStringLiteral("bsdtar"),
                               {QStringLiteral("--format=xar"), QStringLiteral("-cf"), name,
                                QStringLiteral("-C"), dir.path(), QStringLiteral("readme")}),
             0);
    DescriptorXar descriptor(archiveUrl());
    QFile archive(name);
    QVERIFY(descriptor.read(&archive));
    QCOMPARE(descriptor.size(), archive.size());
    QCOMPARE(descriptor.architectureList(), all);
}

void tst_DescriptorXar::readsReply()
{
    QNetworkAccessManager manager;
    QNetworkReply *reply = manager.get(
        QNetworkRequest(QUrl::fromLocalFile(samplePath(QStringLiteral("service-pack.xar")))));
    QSignalSpy finished(reply, &QNetworkReply::finished);
    QVERIFY(finished.count() == 1 || finished.wait(5000));
    DescriptorXar descriptor(archiveUrl());
    QVERIFY(descriptor.read(reply));
    QCOMPARE(descriptor.name(en), QStringLiteral("Security Pack"));
}

void tst_DescriptorXar::fails_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("no archive") << QByteArray("this is not an archive");
    QTest::newRow("table cut off") << archive({description("")}).left(100);
    XarWriter wrong;
    wrong.isChecksumWrong = true;
    wrong.addSubdocument(description("<version>1</version>"));
    QTest::newRow("wrong checksum") << wrong.archive();
    XarWriter bomb;
    bomb.addSubdocument(description(QByteArray(32 * 1024 * 1024, ' ')));
    QTest::newRow("table of 32 MiB") << bomb.archive();
}

void tst_DescriptorXar::fails()
{
    QFETCH(QByteArray, bytes);
    DescriptorXar descriptor(archiveUrl());
    const double cost = CpuCost::of([&] {
        QVERIFY(!read(&descriptor, bytes));
    });
    QVERIFY2(cost < 200, qPrintable(QString::number(cost)));
    QCOMPARE(descriptor.size(), bytes.size());
    QVERIFY(descriptor.version().isEmpty());
    QVERIFY(descriptor.architectureList().isEmpty());
    QVERIFY(descriptor.thinClientList().isEmpty());

    QFile missing(QStringLiteral("/nonexistent/a.xar"));
    DescriptorXar unread(archiveUrl());
    QVERIFY(!unread.read(&missing));
    QCOMPARE(unread.size(), -1);
}

void tst_DescriptorXar::mutations_data()
{
    QTest::addColumn<QString>("sample");
    for (const char *name :
         {"attrs-only.xar", "duplicates.xar", "no-subdocuments.xar", "service-pack.xar"}) {
        QTest::newRow(name) << QString::fromLatin1(name);
    }
}

void tst_DescriptorXar::mutations()
{
    QFETCH(QString, sample);
    QFile file(samplePath(sample));
    QVERIFY(file.open(QIODevice::ReadOnly));
    // With the checksum off, the damage reaches the document.
    const QByteArray good = file.readAll().replace(24, 4, QByteArray(4, '\0'));
    QRandomGenerator random(20260103);
    for (int i = 0; i < 1000; ++i) {
        QByteArray mutant = good;
        for (int change = random.bounded(1, 4); change > 0; --change) {
            mutant[random.bounded(mutant.size())] = static_cast<char>(random.bounded(256));
        }
        DescriptorXar descriptor(archiveUrl());
        read(&descriptor, mutant);
        QCOMPARE(descriptor.size(), mutant.size());
    }
}

QTEST_GUILESS_MAIN(tst_DescriptorXar)
#include "tst_DescriptorXar.moc"

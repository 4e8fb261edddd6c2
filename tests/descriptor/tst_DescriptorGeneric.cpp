// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "descriptor/DescriptorGeneric.h"
#include "tests/support/LogFile.h"

#include <QBuffer>
#include <QMetaMethod>
#include <QNetworkAccessManager>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

namespace
{

const QString en = QStringLiteral("en");
const QStringList all{QStringLiteral("all")};

bool readInto(DescriptorGeneric &descriptor, QByteArray document)
{
    QBuffer buffer(&document);
    return descriptor.read(&buffer);
}

} // namespace

class tst_DescriptorGeneric : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void choosesBackend_data();
    void choosesBackend();
    void logsAWarningWithoutBackend();
    void withoutBackend();
    void forwards();
    void signalsOncePerRead_data();
    void signalsOncePerRead();
    void readSlotsAreInvokable();
    void readsAReply();
    void copiesShareTheBackend();
    void keepsPasswordsOutOfTheLog();
};

void tst_DescriptorGeneric::choosesBackend_data()
{
    QTest::addColumn<QString>("url");
    QTest::addColumn<bool>("handled");

    QTest::newRow("XML") << QStringLiteral("http://h/a.xml") << true;
    QTest::newRow("XML in capital letters") << QStringLiteral("http://h/a.XML") << true;
    QTest::newRow("xar") << QStringLiteral("http://h/a.xar") << true;
    QTest::newRow("xar in mixed letters") << QStringLiteral("http://h/a.Xar") << true;
    QTest::newRow("Debian package") << QStringLiteral("http://h/a_1:2_all.deb") << true;
    QTest::newRow("Debian package in mixed letters") << QStringLiteral("ftp://h/a.Deb") << true;
    QTest::newRow("query") << QStringLiteral("http://h/a.deb?x=y.txt#z") << true;
    QTest::newRow("compressed XML") << QStringLiteral("http://h/a.xml.gz") << false;
    QTest::newRow("text") << QStringLiteral("http://h/a.txt") << false;
    QTest::newRow("no suffix") << QStringLiteral("http://h/xml") << false;
    QTest::newRow("suffix in the query only") << QStringLiteral("http://h/a?b.xml") << false;
    QTest::newRow("directory") << QStringLiteral("http://h/a.xml/") << false;
    QTest::newRow("empty") << QString() << false;
}

void tst_DescriptorGeneric::choosesBackend()
{
    QFETCH(QString, url);
    QFETCH(bool, handled);

    const LogFile log;
    QObject parent;
    const auto *descriptor = new DescriptorGeneric(QUrl(url), &parent);
    QCOMPARE(descriptor->urlIsHandled(), handled);
    QCOMPARE(descriptor->url(), QUrl(url));
    const QStringList expected = handled
        ? QStringList()
        : QStringList{QStringLiteral("Found no backend for archive descriptor:"),
                      QStringLiteral("  ") + url};
    QCOMPARE(log.lines(), expected);
}

void tst_DescriptorGeneric::logsAWarningWithoutBackend()
{
    LogFile log;
    const int level = log.levelOf(QStringLiteral("Found no backend for archive descriptor:"), [] {
        const DescriptorGeneric descriptor(QUrl(QStringLiteral("http://h/a.txt")));
    });
    QCOMPARE(level, 4);
}

void tst_DescriptorGeneric::withoutBackend()
{
    const LogFile log;
    DescriptorGeneric d(QUrl(QStringLiteral("http://h/a.xml.gz")));
    for (int i = 0; i < 2; ++i) {
        for (const QString &language : {QString(), en}) {
            QCOMPARE(d.name(language), QString());
            QCOMPARE(d.title(language), QString());
            QCOMPARE(d.contentNotes(language), QString());
        }
        QVERIFY(d.version().isEmpty());
        QCOMPARE(d.contentFiles(), QStringList());
        QCOMPARE(d.baseReleases(), QStringList());
        QCOMPARE(d.size(), qint64(-1));
        QCOMPARE(d.unpackedSize(), qint64(-1));
        QCOMPARE(d.installedSize(), qint64(-1));
        QCOMPARE(d.architectureList(), all);
        QCOMPARE(d.thinClientList(), all);
        QVERIFY(!readInto(d, "<update_data><version>1</version></update_data>"));
    }
    QCOMPARE(log.lines().size(), 2);
}

void tst_DescriptorGeneric::forwards()
{
    DescriptorGeneric d(QUrl(QStringLiteral("a.xml")));
    QVERIFY(d.architectureList().isEmpty());
    QVERIFY(d.thinClientList().isEmpty());
    QVERIFY(readInto(d, R"(<update_data>
        <name>a</name><title>b</title><notes>c</notes><version>d</version>
        <package>e</package><base_releases>f</base_releases>
        <size>1</size><unpacked_size>2</unpacked_size><installed_size>3</installed_size>
        <architecture>g</architecture><thin_client>h</thin_client></update_data>)"));
    QCOMPARE(d.name(en), QStringLiteral("a"));
    QCOMPARE(d.title(en), QStringLiteral("b"));
    QCOMPARE(d.contentNotes(en), QStringLiteral("c"));
    QCOMPARE(d.name(QStringLiteral("de")), QString());
    QCOMPARE(d.version().toString(), QStringLiteral("d"));
    QCOMPARE(d.contentFiles(), QStringList(QStringLiteral("e")));
    QCOMPARE(d.baseReleases(), QStringList(QStringLiteral("f")));
    QCOMPARE(d.size(), qint64(1));
    QCOMPARE(d.unpackedSize(), qint64(2));
    QCOMPARE(d.installedSize(), qint64(3));
    QCOMPARE(d.architectureList(), QStringList(QStringLiteral("g")));
    QCOMPARE(d.thinClientList(), QStringList(QStringLiteral("h")));
}

void tst_DescriptorGeneric::signalsOncePerRead_data()
{
    QTest::addColumn<QString>("url");
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<bool>("understood");

    const QByteArray good = "<update_data/>";
    QTest::newRow("understood") << QStringLiteral("a.xml") << good << true;
    QTest::newRow("not understood") << QStringLiteral("a.xml") << QByteArray("?") << false;
    QTest::newRow("not a package") << QStringLiteral("a.deb") << good << false;
    QTest::newRow("not a xar archive") << QStringLiteral("a.xar") << good << false;
    QTest::newRow("no backend") << QStringLiteral("a.txt") << good << false;
}

void tst_DescriptorGeneric::signalsOncePerRead()
{
    QFETCH(QString, url);
    QFETCH(QByteArray, document);
    QFETCH(bool, understood);

    const LogFile log;
    DescriptorGeneric d((QUrl(url)));
    const QSignalSpy spy(&d, &DescriptorGeneric::readFinished);
    QCOMPARE(readInto(d, document), understood);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(readInto(d, document), understood);
    QCOMPARE(spy.count(), 2);
}

void tst_DescriptorGeneric::readSlotsAreInvokable()
{
    DescriptorGeneric d(QUrl(QStringLiteral("a.xml")));
    const QSignalSpy spy(&d, &DescriptorGeneric::readFinished);
    QByteArray text = "<update_data/>";
    QBuffer buffer(&text);
    bool understood = false;
    QVERIFY(QMetaObject::invokeMethod(&d, "read", Q_RETURN_ARG(bool, understood),
                                      Q_ARG(QIODevice *, &buffer)));
    QVERIFY(understood);
    QCOMPARE(spy.count(), 1);
    QVERIFY(DescriptorGeneric::staticMetaObject.indexOfSlot("read(QIODevice*)") >= 0);
    QVERIFY(DescriptorGeneric::staticMetaObject.indexOfSlot("read(QNetworkReply*)") >= 0);
    const QMetaObject &base = DescriptorBaseClass::staticMetaObject;
    const QMetaMethod slot = base.method(base.indexOfSlot("read(QIODevice*)"));
    QCOMPARE(slot.parameterNames().value(0), QByteArray("source"));
}

void tst_DescriptorGeneric::readsAReply()
{
    QTemporaryDir dir;
    QFile file(dir.filePath(QStringLiteral("a.xml")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("<update_data><version>4</version></update_data>");
    file.close();

    DescriptorGeneric d(QUrl::fromLocalFile(file.fileName()));
    const QSignalSpy spy(&d, &DescriptorGeneric::readFinished);
    QNetworkAccessManager manager;
    connect(&manager, &QNetworkAccessManager::finished, &d,
            qOverload<QNetworkReply *>(&DescriptorGeneric::read));
    manager.get(QNetworkRequest(d.url()));
    QTRY_COMPARE_WITH_TIMEOUT(spy.count(), 1, 5000);
    QCOMPARE(d.version().toString(), QStringLiteral("4"));
}

void tst_DescriptorGeneric::copiesShareTheBackend()
{
    const LogFile log;
    DescriptorGeneric a(QUrl(QStringLiteral("http://h/a.xml")));
    DescriptorGeneric b(a);
    DescriptorGeneric c(QUrl(QStringLiteral("http://h/c.txt")));
    c = a;
    QCOMPARE(b.url(), a.url());
    QCOMPARE(c.url(), a.url());
    QVERIFY(c.urlIsHandled());

    const QSignalSpy spyA(&a, &DescriptorGeneric::readFinished);
    const QSignalSpy spyB(&b, &DescriptorGeneric::readFinished);
    QVERIFY(readInto(b, "<update_data><version>5</version></update_data>"));
    QCOMPARE(a.version().toString(), QStringLiteral("5"));
    QCOMPARE(c.version().toString(), QStringLiteral("5"));
    QCOMPARE(spyA.count(), 0);
    QCOMPARE(spyB.count(), 1);
}

void tst_DescriptorGeneric::keepsPasswordsOutOfTheLog()
{
    const LogFile log;
    const DescriptorGeneric d(QUrl(QStringLiteral("ftp://user:secret@h/gr%C3%BCn 100%25.txt")));
    QCOMPARE(log.lines().value(1), QStringLiteral("  ftp://user@h/gr\u00fcn 100%25.txt"));
}

QTEST_GUILESS_MAIN(tst_DescriptorGeneric)
#include "tst_DescriptorGeneric.moc"

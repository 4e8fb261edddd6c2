// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "descriptor/ArchiveHead.h"
#include "descriptor/DescriptorXar.h"
#include "tests/support/DpkgRoot.h"
#include "tests/support/XarWriter.h"

#include <QBuffer>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

class tst_ArchiveHead : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void package();
    void servicePack();
    void none_data();
    void none();
};

void tst_ArchiveHead::package()
{
    const QTemporaryDir directory;
    const QString path = directory.filePath(QStringLiteral("a.deb"));
    QCOMPARE(DpkgRoot::build({QStringLiteral("a"), QStringLiteral("1")}, path), QString());
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    const qint64 length = ArchiveHead::lengthOfDeb(&file);
    QCOMPARE(length, qint64(bytes.indexOf("data.tar")) + 60);
    QBuffer cut;
    cut.setData(bytes.left(static_cast<int>(length) - 1));
    QVERIFY(cut.open(QIODevice::ReadOnly));
    QCOMPARE(ArchiveHead::lengthOfDeb(&cut), qint64(-1));
}

void tst_ArchiveHead::servicePack()
{
    XarWriter writer;
    writer.addSubdocument("<service-pack-description><name>SP</name></service-pack-description>");
    writer.addFile("a", QByteArray(10000, 'x'));
    QBuffer whole;
    whole.setData(writer.archive());
    QVERIFY(whole.open(QIODevice::ReadOnly));
    const qint64 length = ArchiveHead::lengthOfXar(&whole);
    QVERIFY(length > 0);
    QVERIFY(length < whole.size());
    // So much is enough, and a byte less is not.
    QBuffer head;
    head.setData(whole.data().left(static_cast<int>(length)));
    QVERIFY(head.open(QIODevice::ReadOnly));
    QCOMPARE(ArchiveHead::lengthOfXar(&head), length);
    DescriptorXar descriptor(QUrl(QStringLiteral("http://h/a.xar")));
    QVERIFY(head.seek(0));
    QVERIFY(descriptor.read(&head));
    QCOMPARE(descriptor.name(QString()), QStringLiteral("SP"));
    QBuffer cut;
    cut.setData(whole.data().left(static_cast<int>(length) - 1));
    QVERIFY(cut.open(QIODevice::ReadOnly));
    QCOMPARE(ArchiveHead::lengthOfXar(&cut), qint64(-1));
}

void tst_ArchiveHead::none_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const auto member = [](const QByteArray &name, const QByteArray &size) {
        return name.leftJustified(48) + size.leftJustified(10) + "`\n";
    };
    const QByteArray magic = "!<arch>\n";
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("text") << QByteArray("hello");
    QTest::newRow("no member") << magic;
    QTest::newRow("no control") << magic + member("data.tar.xz", "0");
    QTest::newRow("no data") << magic + member("control.tar.xz", "0");
    QTest::newRow("no number") << magic + member("control.tar.xz", "x");
    QTest::newRow("negative") << magic + member("control.tar.xz", "-1");
    QTest::newRow("longer than the file") << magic + member("control.tar.xz", "9999999999");
    QTest::newRow("a xar header alone") << QByteArray("xar!").leftJustified(28, '\0');
}

void tst_ArchiveHead::none()
{
    QFETCH(QByteArray, bytes);
    QBuffer buffer;
    buffer.setData(bytes);
    QVERIFY(buffer.open(QIODevice::ReadOnly));
    QCOMPARE(ArchiveHead::lengthOfDeb(&buffer), qint64(-1));
    QCOMPARE(ArchiveHead::lengthOfXar(&buffer), qint64(-1));
}

QTEST_GUILESS_MAIN(tst_ArchiveHead)
#include "tst_ArchiveHead.moc"

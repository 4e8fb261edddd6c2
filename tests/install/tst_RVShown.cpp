// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "descriptor/DescriptorGeneric.h"
#include "install/RVShown.h"
#include "tests/support/DpkgRoot.h"
#include "tests/support/LogFile.h"
#include "tests/support/XarWriter.h"

#include <QBuffer>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

class tst_RVShown : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void packageWithADescriptor_data();
    void packageWithADescriptor();
    void packageOfItsOwnWords_data();
    void packageOfItsOwnWords();
    void servicePackWithADescriptor_data();
    void servicePackWithADescriptor();
    void servicePackOfItsOwnWords_data();
    void servicePackOfItsOwnWords();
    void unreadable();
    void nothingWasShown();

private:
    static bool write(const QString &path, const QByteArray &content)
    {
        QFile file(path);
        return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
    }
    QString path(const char *name) const { return m_dir.filePath(QLatin1String(name)); }
    QUrl url(const char *name) const { return QUrl::fromLocalFile(path(name)); }
    /// An entry whose archive describes itself, as `file` does now.
    RVData selfDescribed(const QString &file) const
    {
        const QUrl archive = QUrl::fromLocalFile(file);
        RVData entry(archive, QUrl());
        QFile source(file);
        entry.descriptor()->read(&source);
        return entry;
    }
    RVData described(const char *archive, const QByteArray &fields) const
    {
        RVData entry(url(archive), url("x.xml"));
        QByteArray xml = "<update_data>" + fields + "</update_data>";
        QBuffer buffer(&xml);
        entry.descriptor()->read(&buffer);
        return entry;
    }
    static QString differenceOf(const RVData &entry)
    {
        QFile file(entry.archiveUrl().toLocalFile());
        return RVShown::difference(entry, &file);
    }

    const LogFile m_log;
    const QTemporaryDir m_dir;
};

void tst_RVShown::packageWithADescriptor_data()
{
    QTest::addColumn<QByteArray>("descriptor");
    QTest::addColumn<QString>("version");
    QTest::addColumn<QString>("part");
    const auto row = [](const char *title, const char *descriptor, const char *version,
                        const char *part) {
        QTest::newRow(title) << QByteArray(descriptor) << QString::fromLatin1(version)
                             << QString::fromLatin1(part);
    };
    row("both fit", "<name>tool</name><version>1.0-1</version>", "1.0-1", "");
    row("another name", "<name>other</name><version>1.0-1</version>", "1.0-1",
        "name is 'tool', not 'other'");
    row("another version", "<name>tool</name><version>1.0-2</version>", "1.0-1",
        "version is '1.0-1', not '1.0-2'");
    row("neither is given", "<title>x</title>", "1.0-1", "");
    row("name alone", "<name>tool</name>", "1.0-1", "");
    row("epoch of the package alone", "<version>1.0</version>", "2:1.0", "");
    row("epoch of the descriptor alone", "<version>2:1.0</version>", "1.0", "");
    row("two epochs", "<version>2:1.0</version>", "1:1.0", "version is '1:1.0', not '2:1.0'");
    row("epoch, and another version", "<version>1.1</version>", "2:1.0", "version is");
    row("the name in another language", "<name>tool</name><name xml:lang='de'>anders</name>",
        "1.0-1", "");
    row("blanks around", "<name> tool </name>", "1.0-1", "");
}

void tst_RVShown::packageWithADescriptor()
{
    QFETCH(QByteArray, descriptor);
    QFETCH(QString, version);
    QFETCH(QString, part);
    QCOMPARE(DpkgRoot::build({QStringLiteral("tool"), version}, path("a.deb")), QString());
    const QString difference = differenceOf(described("a.deb", descriptor));
    QVERIFY2(part.isEmpty() ? difference.isEmpty() : difference.contains(part),
             qPrintable(difference));
}

void tst_RVShown::packageOfItsOwnWords_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("version");
    QTest::addColumn<QByteArray>("fields");
    QTest::addColumn<QString>("part");
    const QString tool = QStringLiteral("tool");
    const QString one = QStringLiteral("1.0");
    QTest::newRow("the same") << tool << one << QByteArray("Section: net\n") << QString();
    QTest::newRow("another name") << QStringLiteral("evil") << one << QByteArray("Section: net\n")
                                  << QStringLiteral("name is 'evil', not 'tool'");
    QTest::newRow("another version")
        << tool << QStringLiteral("0.9") << QByteArray("Section: net\n")
        << QStringLiteral("version is '0.9', not '1.0'");
    QTest::newRow("an epoch more")
        << tool << QStringLiteral("1:1.0") << QByteArray("Section: net\n")
        << QStringLiteral("version is '1:1.0'");
}

void tst_RVShown::packageOfItsOwnWords()
{
    QFETCH(QString, name);
    QFETCH(QString, version);
    QFETCH(QByteArray, fields);
    QFETCH(QString, part);
    QCOMPARE(DpkgRoot::build({QStringLiteral("tool"), QStringLiteral("1.0"), "Section: net\n"},
                             path("a.deb")),
             QString());
    const RVData entry = selfDescribed(path("a.deb"));
    QVERIFY(entry.descriptor()->isUnderstood());
    QVERIFY(QFile::remove(path("a.deb")));
    QCOMPARE(DpkgRoot::build({name, version, fields}, path("a.deb")), QString());
    const QString difference = differenceOf(entry);
    QVERIFY2(part.isEmpty() ? difference.isEmpty() : difference.contains(part),
             qPrintable(difference));
}

void tst_RVShown::servicePackWithADescriptor_data()
{
    QTest::addColumn<QByteArray>("descriptor");
    QTest::addColumn<bool>("fits");
    QTest::newRow("its size") << QByteArray("<name>p</name><size>7</size>") << true;
    QTest::newRow("another size") << QByteArray("<name>p</name><size>8</size>") << false;
    QTest::newRow("size unknown") << QByteArray("<name>p</name>") << true;
}

void tst_RVShown::servicePackWithADescriptor()
{
    QFETCH(QByteArray, descriptor);
    QFETCH(bool, fits);
    QVERIFY(write(path("a.xar"), "archive"));
    const QString difference = differenceOf(described("a.xar", descriptor));
    QCOMPARE(difference.isEmpty(), fits);
    QCOMPARE(difference.contains(QStringLiteral("size is '7', not '8'")), !fits);
}

void tst_RVShown::servicePackOfItsOwnWords_data()
{
    QTest::addColumn<QByteArray>("field");
    QTest::addColumn<QString>("part");
    QTest::newRow("the same") << QByteArray("<title>Pack</title>") << QString();
    QTest::newRow("another title")
        << QByteArray("<title>Evil</title>") << QStringLiteral("title is 'Evil', not 'Pack'");
    QTest::newRow("another size") << QByteArray("<title>Pack</title><filler>1234567890</filler>")
                                  << QStringLiteral("size is");
}

void tst_RVShown::servicePackOfItsOwnWords()
{
    QFETCH(QByteArray, field);
    QFETCH(QString, part);
    const auto pack = [](const QByteArray &field) {
        XarWriter writer;
        writer.addSubdocument("<service-pack-description><name>p</name><version>1</version>" + field
                              + "</service-pack-description>");
        writer.addFile("a", "content");
        return writer.archive();
    };
    QVERIFY(write(path("a.xar"), pack("<title>Pack</title>")));
    const RVData entry = selfDescribed(path("a.xar"));
    QVERIFY(entry.descriptor()->isUnderstood());
    QVERIFY(write(path("a.xar"), pack(field)));
    const QString difference = differenceOf(entry);
    QVERIFY2(part.isEmpty() ? difference.isEmpty() : difference.contains(part),
             qPrintable(difference));
}

void tst_RVShown::unreadable()
{
    QCOMPARE(DpkgRoot::build({QStringLiteral("tool"), QStringLiteral("1.0")}, path("a.deb")),
             QString());
    const RVData own = selfDescribed(path("a.deb"));
    QVERIFY(write(path("a.deb"), "no package"));
    QVERIFY(differenceOf(own).contains(QStringLiteral("does not describe itself any more")));
    // dpkg says what is wrong with it.
    QCOMPARE(differenceOf(described("a.deb", "<name>tool</name>")), QString());
}

void tst_RVShown::nothingWasShown()
{
    QVERIFY(write(path("a.deb"), "no package"));
    QFile file(path("a.deb"));
    QCOMPARE(RVShown::difference(RVData(url("a.deb"), QUrl()), &file), QString());
}

QTEST_GUILESS_MAIN(tst_RVShown)
#include "tst_RVShown.moc"

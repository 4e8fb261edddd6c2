// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "descriptor/DescriptorDeb.h"
#include "tests/support/CpuCost.h"
#include "tests/support/LogFile.h"
#include "tests/support/WarningGuard.h"

#include <QBuffer>
#include <QDir>
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

QUrl packageUrl()
{
    return QUrl(QStringLiteral("http://host/dir/tool_1.0-1_all.deb"));
}

QString failureLine()
{
    return QStringLiteral(".deb file control read failed, url http://host/dir/tool_1.0-1_all.deb");
}

QByteArray run(const QString &program, const QStringList &arguments, const QByteArray &input = {})
{
    QProcess process;
    process.start(program, arguments);
    process.write(input);
    process.closeWriteChannel();
    if (!process.waitForFinished(20000) || process.exitCode() != 0) {
        qFatal("%s: %s", qPrintable(program), process.readAllStandardError().constData());
    }
    return process.readAllStandardOutput();
}

QByteArray packed(const QString &program, const QByteArray &bytes)
{
    return run(program, {QStringLiteral("-c")}, bytes);
}

/// A tar entry; `size` replaces the true size in the header.
QByteArray tarEntry(const QByteArray &name, const QByteArray &data, QByteArray size = {},
                    char type = '0')
{
    if (size.isEmpty()) {
        size = QByteArray::number(data.size(), 8).rightJustified(11, '0') + '\0';
    }
    QByteArray header(512, '\0');
    const auto put = [&header](int at, const QByteArray &text) {
        header.replace(at, text.size(), text);
    };
    put(0, name);
    put(100, "0000644");
    put(108, "0000000");
    put(116, "0000000");
    put(124, size);
    put(136, "00000000000");
    put(148, "        ");
    put(156, QByteArray(1, type));
    put(257, QByteArray("ustar\00000", 8));
    int sum = 0;
    for (const char c : qAsConst(header)) {
        sum += static_cast<unsigned char>(c);
    }
    put(148, QByteArray::number(sum, 8).rightJustified(6, '0') + '\0');
    return header + data + QByteArray((512 - data.size() % 512) % 512, '\0');
}

const QByteArray tarEnd(1024, '\0');

QByteArray arMember(const QByteArray &name, const QByteArray &data, QByteArray size = {})
{
    if (size.isEmpty()) {
        size = QByteArray::number(data.size());
    }
    return name.leftJustified(16) + QByteArray("0").leftJustified(12)
        + QByteArray("0").leftJustified(6) + QByteArray("0").leftJustified(6)
        + QByteArray("100644").leftJustified(8) + size.leftJustified(10) + "`\n" + data
        + QByteArray(data.size() % 2, '\n');
}

QByteArray debFile(const QByteArray &controlName, const QByteArray &control)
{
    return "!<arch>\n" + arMember("debian-binary", "2.0\n") + arMember(controlName, control)
        + arMember("data.tar", tarEnd);
}

const QByteArray plainControl("Package: foo\nVersion: 1.0-1\nArchitecture: all\n"
                              "Description: a tool\n");

QByteArray sample()
{
    return debFile("control.tar", tarEntry("./control", plainControl) + tarEnd);
}

/// A QFile that counts what is read through it.
class CountingFile : public QFile
{
public:
    using QFile::QFile;
    int reads = 0;

protected:
    qint64 readData(char *data, qint64 maxSize) override
    {
        ++reads;
        return QFile::readData(data, maxSize);
    }
};

} // namespace

class tst_DescriptorDeb : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void handlesUrlsBySuffix_data();
    void handlesUrlsBySuffix();
    void isEmptyBeforeReading();
    void fieldsAreTheControlFields_data();
    void fieldsAreTheControlFields();
    void installedSize_data();
    void installedSize();
    void description_data();
    void description();
    void contentsAreNameAndVersion_data();
    void contentsAreNameAndVersion();
    void fixedValues();
    void missingArchitectureIsAll();
    void textsAreLatin1();
    void secondReadAppends();
    void fileIsReadInPlace();
    void openDeviceIsReadAndClosed();
    void readsReply();
    void failsWithoutLog_data();
    void failsWithoutLog();
    void failsWithoutTemporaryDirectory();
    void failsWithLog_data();
    void failsWithLog();
    void failureLeavesOtherFields();
    void mutations_data();
    void mutations();

private:
    bool read(DescriptorDeb *descriptor, const QByteArray &package);
    QString build(const QByteArray &control, const QString &compression, bool scripts);

    std::unique_ptr<LogFile> m_log;
    std::unique_ptr<WarningGuard> m_warnings;
    std::unique_ptr<QTemporaryDir> m_dir;
};

void tst_DescriptorDeb::init()
{
    m_log = std::make_unique<LogFile>();
    m_warnings = std::make_unique<WarningGuard>();
    m_dir = std::make_unique<QTemporaryDir>();
}

void tst_DescriptorDeb::cleanup()
{
    m_warnings.reset();
    m_log.reset();
    const QStringList left = QDir::temp().entryList(
        {QStringLiteral("*.control.tar*"), QStringLiteral("tst_*")}, QDir::Files);
    QVERIFY2(left.isEmpty(), qPrintable(left.join(QLatin1Char(' '))));
}

bool tst_DescriptorDeb::read(DescriptorDeb *descriptor, const QByteArray &package)
{
    QBuffer buffer;
    buffer.setData(package);
    return descriptor->read(&buffer);
}

QString tst_DescriptorDeb::build(const QByteArray &control, const QString &compression,
                                 bool scripts)
{
    static int count = 0;
    const QString root = m_dir->filePath(QString::number(++count));
    QDir().mkpath(root + QLatin1String("/DEBIAN"));
    QDir().mkpath(root + QLatin1String("/usr/share/doc"));
    const auto write = [&root](const char *name, const QByteArray &text) {
        QFile file(root + QLatin1String(name));
        return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
    };
    bool written = write("/DEBIAN/control", control) && write("/usr/share/doc/readme", "text\n");
    if (scripts) {
        written = written && write("/DEBIAN/postinst", "#!/bin/sh\nexit 0\n")
            && write("/DEBIAN/md5sums", QByteArray(200000, 'x'));
        QFile::setPermissions(root + QLatin1String("/DEBIAN/postinst"), QFile::Permissions(0x7755));
    }
    const QString package = root + QLatin1String(".deb");
    if (written) {
        run(QStringLiteral("dpkg-deb"),
            {QStringLiteral("--root-owner-group"), QStringLiteral("--nocheck"),
             QStringLiteral("--uniform-compression"), QStringLiteral("-Z") + compression,
             QStringLiteral("--build"), root, package});
    }
    return package;
}

void tst_DescriptorDeb::handlesUrlsBySuffix_data()
{
    QTest::addColumn<QString>("url");
    QTest::addColumn<bool>("handled");
    QTest::newRow("package") << "http://h/a.deb" << true;
    QTest::newRow("capital letters") << "http://h/a.Deb" << true;
    QTest::newRow("local") << "file:///a/b.deb" << true;
    QTest::newRow("query does not count") << "http://h/a.deb?x=.xml" << true;
    QTest::newRow("suffix in the query only") << "http://h/a.xml?x=.deb" << false;
    QTest::newRow("suffix in the fragment only") << "http://h/a#b.deb" << false;
    QTest::newRow("another suffix behind") << "http://h/a.deb.gz" << false;
    QTest::newRow("longer suffix") << "http://h/a.udeb" << false;
    QTest::newRow("no suffix") << "http://h/deb" << false;
    QTest::newRow("empty") << "" << false;
}

void tst_DescriptorDeb::handlesUrlsBySuffix()
{
    QFETCH(QString, url);
    QTEST(DescriptorDeb(QUrl(url)).urlIsHandled(), "handled");
}

void tst_DescriptorDeb::isEmptyBeforeReading()
{
    const DescriptorDeb descriptor(packageUrl());
    QCOMPARE(descriptor.url(), packageUrl());
    QVERIFY(descriptor.name(QString()).isEmpty());
    QVERIFY(descriptor.title(QString()).isEmpty());
    QVERIFY(descriptor.contentNotes(QString()).isEmpty());
    QVERIFY(descriptor.version().isEmpty());
    QVERIFY(descriptor.contentFiles().isEmpty());
    QVERIFY(descriptor.baseReleases().isEmpty());
    QVERIFY(descriptor.architectureList().isEmpty());
    QVERIFY(descriptor.thinClientList().isEmpty());
    QCOMPARE(descriptor.size(), -1);
    QCOMPARE(descriptor.unpackedSize(), -1);
    QCOMPARE(descriptor.installedSize(), -1);
}

void tst_DescriptorDeb::fieldsAreTheControlFields_data()
{
    QTest::addColumn<QByteArray>("control");
    QTest::addColumn<QString>("compression");
    QTest::addColumn<bool>("scripts");
    const struct {
        const char *name;
        QByteArray control;
        bool scripts;
    } shapes[] = {
        {"short", plainControl, false},
        {"description first",
         "Description: a tool\n long text\n .\n more\nPackage: foo\nArchitecture: armel\n"
         "Installed-Size: 4\nVersion: 1:2.0-1~rc1\n",
         false},
        {"description last, three lines",
         "Package: foo-bar+baz\nVersion: 2:1.0~beta+dfsg-1.1\nArchitecture: armel\n"
         "Maintainer: A <a@b>\nInstalled-Size: 123\nDepends: a, b (>= 1)\n"
         "Description: a tool\n  indented\n .\n the rest\n",
         true},
        {"lower-case fields", "package: foo\nversion: 1\narchitecture: all\ndescription: x\n",
         false},
        {"blanks around values",
         "Package:   foo  \nVersion:\t1.0-1 \nArchitecture:  all\nDescription:  x \n", false},
        {"UTF-8 text",
         "Package: foo\nVersion: 1\nArchitecture: all\n"
         "Description: Gr\xc3\xb6\xc3\x9f"
         "e\n \xe6\x97\xa5\xe6\x9c\xac\n",
         false},
        {"many other fields",
         "Package: foo\n" + QByteArray("X-Field-") + QByteArray(200, 'a') + ": 1\nVersion: 3\n"
             + "Architecture: amd64\nSection: misc\nPriority: optional\nHomepage: http://h/\n"
             + "Description: x\n",
         true},
        {"no description", "Package: foo\nVersion: 1\nArchitecture: all\n", true},
    };
    for (const auto &shape : shapes) {
        for (const char *compression : {"gzip", "xz", "zstd", "none"}) {
            QTest::newRow(qPrintable(QStringLiteral("%1, %2").arg(QLatin1String(shape.name),
                                                                  QLatin1String(compression))))
                << shape.control << QString::fromLatin1(compression) << shape.scripts;
        }
    }
}

void tst_DescriptorDeb::fieldsAreTheControlFields()
{
    QFETCH(QByteArray, control);
    QFETCH(QString, compression);
    QFETCH(bool, scripts);
    const QString package = build(control, compression, scripts);
    const auto field = [&package](const char *name) {
        QByteArray value =
            run(QStringLiteral("dpkg-deb"), {QStringLiteral("-f"), package, QLatin1String(name)});
        value.chop(value.endsWith('\n') ? 1 : 0);
        return QString::fromLatin1(value);
    };

    QFile file(package);
    DescriptorDeb descriptor(packageUrl());
    QVERIFY(descriptor.read(&file));
    QCOMPARE(descriptor.name(QStringLiteral("en")), field("Package"));
    QCOMPARE(descriptor.version().toString(), field("Version"));
    QCOMPARE(descriptor.architectureList(), QStringList(field("Architecture")));
    const QString text = field("Description");
    QCOMPARE(descriptor.title(QStringLiteral("en")), text.section(QLatin1Char('\n'), 0, 0));
    QCOMPARE(descriptor.contentNotes(QStringLiteral("en")), text.section(QLatin1Char('\n'), 1));
    const QString kibibytes = field("Installed-Size");
    QCOMPARE(descriptor.installedSize(),
             kibibytes.isEmpty() ? qint64(-1) : kibibytes.toLongLong() * 1024);
    QCOMPARE(descriptor.size(), QFileInfo(package).size());
    QCOMPARE(descriptor.unpackedSize(), QFileInfo(package).size());
    QCOMPARE(m_log->lines(), QStringList());
}

void tst_DescriptorDeb::installedSize_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<qint64>("bytes");
    QTest::newRow("four") << QByteArray("4") << qint64(4096);
    QTest::newRow("zero") << QByteArray("0") << qint64(0);
    QTest::newRow("leading zeros") << QByteArray("0010") << qint64(10240);
    QTest::newRow("sign") << QByteArray("+4") << qint64(4096);
    QTest::newRow("negative") << QByteArray("-4") << qint64(-4096);
    QTest::newRow("largest that does not wrap") << QByteArray("2097151") << qint64(2147482624);
    QTest::newRow("wraps into the negative") << QByteArray("2097152") << qint64(-2147483648LL);
    QTest::newRow("wraps to zero") << QByteArray("4194304") << qint64(0);
    QTest::newRow("wraps and goes on") << QByteArray("4194305") << qint64(1024);
    QTest::newRow("largest number") << QByteArray("2147483647") << qint64(-1024);
    QTest::newRow("beyond a number") << QByteArray("2147483648") << qint64(-1);
    QTest::newRow("no number") << QByteArray("abc") << qint64(-1);
    QTest::newRow("number and unit") << QByteArray("4 kB") << qint64(-1);
    QTest::newRow("group separator") << QByteArray("1,000") << qint64(-1);
    QTest::newRow("hexadecimal") << QByteArray("0x10") << qint64(-1);
    QTest::newRow("fraction") << QByteArray("4.0") << qint64(-1);
    QTest::newRow("empty") << QByteArray("") << qint64(-1);
}

void tst_DescriptorDeb::installedSize()
{
    QFETCH(QByteArray, text);
    DescriptorDeb descriptor(packageUrl());
    QVERIFY(
        read(&descriptor,
             debFile("control.tar",
                     tarEntry("./control", "Package: a\nVersion: 1\nInstalled-Size: " + text + "\n")
                         + tarEnd)));
    QTEST(descriptor.installedSize(), "bytes");
}

void tst_DescriptorDeb::description_data()
{
    QTest::addColumn<QByteArray>("field");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("notes");
    QTest::newRow("one line") << QByteArray("Description: short\n") << "short"
                              << "";
    QTest::newRow("two lines") << QByteArray("Description: short\n long\n") << "short"
                               << " long";
    QTest::newRow("leading blanks stay")
        << QByteArray("Description: short\n   list\n .\n end\n") << "short"
        << "   list\n .\n end";
    QTest::newRow("starts with a line feed")
        << QByteArray("Description:\n long\n more\n") << "\n long\n more"
        << "";
    QTest::newRow("none") << QByteArray() << ""
                          << "";
}

void tst_DescriptorDeb::description()
{
    QFETCH(QByteArray, field);
    DescriptorDeb descriptor(packageUrl());
    QVERIFY(read(
        &descriptor,
        debFile("control.tar", tarEntry("control", "Package: a\nVersion: 1\n" + field) + tarEnd)));
    QTEST(descriptor.title(QStringLiteral("en")), "title");
    QTEST(descriptor.contentNotes(QStringLiteral("en")), "notes");
    QTEST(descriptor.title(QString()), "title");
}

void tst_DescriptorDeb::contentsAreNameAndVersion_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("version");
    QTest::addColumn<QString>("contents");
    QTest::newRow("plain") << QByteArray("foo") << QByteArray("1.0-1") << "foo 1.0-1";
    QTest::newRow("percent signs") << QByteArray("a%2") << QByteArray("%1") << "a%2 %1";
    QTest::newRow("epoch") << QByteArray("foo") << QByteArray("1:2~3") << "foo 1:2~3";
    QTest::newRow("no version") << QByteArray("foo") << QByteArray() << "foo ";
}

void tst_DescriptorDeb::contentsAreNameAndVersion()
{
    QFETCH(QByteArray, name);
    QFETCH(QByteArray, version);
    DescriptorDeb descriptor(packageUrl());
    QVERIFY(read(&descriptor,
                 debFile("control.tar",
                         tarEntry("control", "Package: " + name + "\nVersion: " + version + "\n")
                             + tarEnd)));
    QFETCH(QString, contents);
    QCOMPARE(descriptor.contentFiles(), QStringList(contents));
}

void tst_DescriptorDeb::fixedValues()
{
    DescriptorDeb descriptor(packageUrl());
    QVERIFY(read(&descriptor, sample()));
    QCOMPARE(descriptor.baseReleases(), QStringList(QStringLiteral("all")));
    QCOMPARE(descriptor.thinClientList(), QStringList(QStringLiteral("all")));
    QCOMPARE(descriptor.name(QStringLiteral("de")), QString());
    QCOMPARE(descriptor.name(QString()), QStringLiteral("foo"));
}

void tst_DescriptorDeb::missingArchitectureIsAll()
{
    for (const QByteArray &line : {QByteArray(), QByteArray("Architecture:\n")}) {
        DescriptorDeb descriptor(packageUrl());
        QVERIFY(
            read(&descriptor,
                 debFile("control.tar",
                         tarEntry("control", "Package: a\n" + line + "Version: 1\n") + tarEnd)));
        QCOMPARE(descriptor.architectureList(), QStringList(QStringLiteral("all")));
    }
}

void tst_DescriptorDeb::textsAreLatin1()
{
    DescriptorDeb descriptor(packageUrl());
    QVERIFY(read(&descriptor,
                 debFile("control.tar",
                         tarEntry("control", "Package: a\nDescription: \xe4\xc3\xa4\n") + tarEnd)));
    QCOMPARE(descriptor.title(QString()), QString::fromLatin1("\xe4\xc3\xa4"));
}

void tst_DescriptorDeb::secondReadAppends()
{
    DescriptorDeb descriptor(packageUrl());
    QVERIFY(read(&descriptor, sample()));
    QVERIFY(read(&descriptor, sample()));
    const QStringList two{QStringLiteral("all"), QStringLiteral("all")};
    QCOMPARE(descriptor.architectureList(), two);
    QCOMPARE(descriptor.baseReleases(), two);
    QCOMPARE(descriptor.thinClientList(), two);
    QCOMPARE(descriptor.contentFiles().size(), 2);
    QCOMPARE(descriptor.name(QString()), QStringLiteral("foo"));
}

void tst_DescriptorDeb::fileIsReadInPlace()
{
    CountingFile file(m_dir->filePath(QStringLiteral("a.deb")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(sample());
    file.close();
    DescriptorDeb descriptor(packageUrl());
    QVERIFY(descriptor.read(&file));
    QVERIFY(!file.isOpen());
    QCOMPARE(file.reads, 0);
    QCOMPARE(descriptor.name(QString()), QStringLiteral("foo"));
}

void tst_DescriptorDeb::openDeviceIsReadAndClosed()
{
    QBuffer buffer;
    buffer.setData(sample());
    QVERIFY(buffer.open(QIODevice::ReadOnly));
    DescriptorDeb descriptor(packageUrl());
    QVERIFY(descriptor.read(&buffer));
    QVERIFY(!buffer.isOpen());
    QCOMPARE(descriptor.size(), sample().size());
}

void tst_DescriptorDeb::readsReply()
{
    QFile file(m_dir->filePath(QStringLiteral("a.deb")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(sample());
    file.close();
    QNetworkAccessManager manager;
    QNetworkReply *reply = manager.get(QNetworkRequest(QUrl::fromLocalFile(file.fileName())));
    QSignalSpy finished(reply, &QNetworkReply::finished);
    QVERIFY(finished.count() == 1 || finished.wait(5000));
    DescriptorDeb descriptor(packageUrl());
    QVERIFY(descriptor.read(reply));
    QCOMPARE(descriptor.size(), sample().size());
    QCOMPARE(descriptor.name(QString()), QStringLiteral("foo"));
}

void tst_DescriptorDeb::failsWithoutLog_data()
{
    QTest::addColumn<bool>("isThere");
    QTest::addColumn<qint64>("size");
    QTest::newRow("device cannot be opened") << false << qint64(-1);
    QTest::newRow("empty package") << true << qint64(0);
}

void tst_DescriptorDeb::failsWithoutLog()
{
    QFETCH(bool, isThere);
    QFile file(m_dir->filePath(QStringLiteral("a.deb")));
    if (isThere) {
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.close();
    }
    DescriptorDeb descriptor(packageUrl());
    QVERIFY(!descriptor.read(&file));
    QTEST(descriptor.size(), "size");
    QCOMPARE(descriptor.unpackedSize(), -1);
    QVERIFY(descriptor.architectureList().isEmpty());
    QCOMPARE(m_log->lines(), QStringList());
}

void tst_DescriptorDeb::failsWithoutTemporaryDirectory()
{
    const QByteArray before = qgetenv("TMPDIR");
    qputenv("TMPDIR", "/proc"); // not even root makes a file there
    DescriptorDeb descriptor(packageUrl());
    const bool result = read(&descriptor, sample());
    qputenv("TMPDIR", before);
    QVERIFY(!result);
    QCOMPARE(descriptor.size(), -1);
    QCOMPARE(m_log->lines(), QStringList());
}

void tst_DescriptorDeb::failsWithLog_data()
{
    QTest::addColumn<QByteArray>("package");
    const QByteArray control = tarEntry("./control", plainControl);
    const auto tar = [](const QByteArray &bytes) {
        return debFile("control.tar", bytes);
    };

    QTest::newRow("no archive") << QByteArray("hello, world");
    QTest::newRow("magic alone") << QByteArray("!<arch>\n");
    QTest::newRow("no control archive") << QByteArray(
        "!<arch>\n" + arMember("debian-binary", "2.0\n") + arMember("data.tar", tarEnd));
    QTest::newRow("no control file") << tar(tarEntry("./md5sums", "x") + tarEnd);
    QTest::newRow("empty control archive") << tar(QByteArray());
    QTest::newRow("control file without a field") << tar(tarEntry("control", "no colon") + tarEnd);
    QTest::newRow("unknown packing") << debFile("control.tar.rar", control + tarEnd);
    QTest::newRow("path instead of a packing") << debFile("control.tar/../x", control + tarEnd);
    QTest::newRow("packing that its name does not say")
        << debFile("control.tar.xz", control + tarEnd);
    QTest::newRow("cut in a member header") << sample().left(100);
    QTest::newRow("cut in the control archive") << sample().left(700);
    QTest::newRow("no end mark") << tar(control);
    QTest::newRow("member size is no number") << QByteArray(
        "!<arch>\n" + arMember("debian-binary", "2.0\n")
        + arMember("control.tar", control + tarEnd, "-1") + arMember("data.tar", tarEnd));
    QTest::newRow("member name within the member") << QByteArray(
        "!<arch>\n" + arMember("debian-binary", "2.0\n")
        + arMember("#1/11", "control.tar" + control + tarEnd) + arMember("data.tar", tarEnd));
    QByteArray many("!<arch>\n");
    for (int i = 0; i < 2000; ++i) {
        many += arMember("debian-binary", "2.0\n");
    }
    QTest::newRow("2,000 members") << many;
    QTest::newRow("size -1") << tar(tarEntry("./control", plainControl, "-1") + tarEnd);
    QTest::newRow("size -2 and room for it")
        << tar(tarEntry("./control", QByteArray(4096, 'x'), "-2") + tarEnd);
    QTest::newRow("size of 8 GiB")
        << tar(tarEntry("./control", plainControl, "77777777777") + tarEnd);
    QTest::newRow("binary size") << tar(tarEntry("./control", plainControl, QByteArray(12, '\xff'))
                                        + tarEnd);
    QTest::newRow("size beyond the end")
        << tar(tarEntry("./control", plainControl, "00000002000") + tarEnd);
    QTest::newRow("huge size in a second entry")
        << tar(control + tarEntry("./control", plainControl, "-3") + tarEnd);
    QTest::newRow("huge size under a long name")
        << tar(tarEntry("././@LongLink", "./control", {}, 'L')
               + tarEntry("other", plainControl, "77777777777") + tarEnd);
    QTest::newRow("jump over the end mark")
        << QByteArray("!<arch>\n" + arMember("debian-binary", "2.0\n")
                      + arMember("control.tar", tarEntry("x", {}, "00000002000") + tarEnd)
                      + arMember("data.tar", tarEntry("./control", plainControl, "-1")));
    QTest::newRow("damaged gzip") << debFile(
        "control.tar.gz",
        packed(QStringLiteral("gzip"), control + tarEnd).replace(30, 8, "damaged!"));
    QTest::newRow("damaged xz") << debFile(
        "control.tar.xz",
        packed(QStringLiteral("xz"), control + tarEnd).replace(40, 8, "damaged!"));

    // 1 GiB in 1 MB: as many packed megabytes one after the other.
    const QByteArray megabyte(1024 * 1024, '\0');
    const QByteArray bombHead = tarEntry("./control", {}, "10000000000");
    QTest::newRow("gzip bomb") << debFile(
        "control.tar.gz",
        packed(QStringLiteral("gzip"), bombHead)
            + packed(QStringLiteral("gzip"), megabyte).repeated(1024));
    QTest::newRow("gzip bomb in front of the control file")
        << debFile("control.tar.gz",
                   packed(QStringLiteral("gzip"), tarEntry("./md5sums", {}, "10000000000"))
                       + packed(QStringLiteral("gzip"), megabyte).repeated(1024)
                       + packed(QStringLiteral("gzip"), control + tarEnd));
    QTest::newRow("xz bomb") << debFile(
        "control.tar.xz", packed(QStringLiteral("xz"), bombHead + megabyte.repeated(64)));
    QTest::newRow("zstd bomb") << debFile(
        "control.tar.zst",
        packed(QStringLiteral("zstd"), bombHead)
            + packed(QStringLiteral("zstd"), megabyte).repeated(1024));
}

void tst_DescriptorDeb::failsWithLog()
{
    QFETCH(QByteArray, package);
    DescriptorDeb descriptor(packageUrl());
    const double cost = CpuCost::of([&] {
        QVERIFY(!read(&descriptor, package));
    });
    QVERIFY2(cost < 200, qPrintable(QString::number(cost)));
    QCOMPARE(m_log->count(failureLine()), 1);
    QCOMPARE(descriptor.size(), package.size());

    // The library's messages must not stay behind.
    DescriptorDeb next(packageUrl());
    QVERIFY(read(&next, sample()));
    QCOMPARE(next.name(QString()), QStringLiteral("foo"));
}

void tst_DescriptorDeb::failureLeavesOtherFields()
{
    DescriptorDeb descriptor(packageUrl());
    QVERIFY(!read(&descriptor, "hello, world"));
    QCOMPARE(descriptor.size(), 12);
    QCOMPARE(descriptor.unpackedSize(), -1);
    QVERIFY(descriptor.name(QString()).isEmpty());
    QVERIFY(descriptor.contentFiles().isEmpty());
    QVERIFY(descriptor.baseReleases().isEmpty());
    QVERIFY(descriptor.architectureList().isEmpty());
    QVERIFY(descriptor.thinClientList().isEmpty());
}

void tst_DescriptorDeb::mutations_data()
{
    QTest::addColumn<QByteArray>("package");
    const QByteArray tar =
        tarEntry("./md5sums", "x") + tarEntry("./control", plainControl) + tarEnd;
    QTest::newRow("stored") << debFile("control.tar", tar);
    QTest::newRow("gzip") << debFile("control.tar.gz", packed(QStringLiteral("gzip"), tar));
    QTest::newRow("xz") << debFile("control.tar.xz", packed(QStringLiteral("xz"), tar));
    QTest::newRow("zstd") << debFile("control.tar.zst", packed(QStringLiteral("zstd"), tar));
}

void tst_DescriptorDeb::mutations()
{
    QFETCH(QByteArray, package);
    QRandomGenerator random(20260101);
    const QByteArray interesting("\0\xff\x7f\x80-+ 0179\n:", 13);
    for (int i = 0; i < 1000; ++i) {
        QByteArray mutant = package;
        const int changes = random.bounded(1, 5);
        for (int change = 0; change < changes; ++change) {
            const int at = random.bounded(mutant.size());
            switch (random.bounded(4)) {
            case 0:
                mutant[at] = static_cast<char>(random.bounded(256));
                break;
            case 1:
                mutant[at] = interesting.at(random.bounded(interesting.size()));
                break;
            case 2:
                mutant.remove(at, random.bounded(64));
                break;
            default:
                mutant.insert(at, mutant.mid(random.bounded(mutant.size()), random.bounded(64)));
            }
            if (mutant.isEmpty()) {
                break;
            }
        }
        DescriptorDeb descriptor(packageUrl());
        read(&descriptor, mutant);
        QCOMPARE(descriptor.size(), mutant.size());
    }
    DescriptorDeb next(packageUrl());
    QVERIFY(read(&next, package));
}

QTEST_GUILESS_MAIN(tst_DescriptorDeb)
#include "tst_DescriptorDeb.moc"

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/SpecialFile.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

#include <sys/stat.h>

class tst_SpecialFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void tellsThemApart_data();
    void tellsThemApart();

private:
    QString path(const char *name) const { return m_dir.filePath(QLatin1String(name)); }

    const QTemporaryDir m_dir;
};

void tst_SpecialFile::initTestCase()
{
    QFile file(path("file"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(QDir().mkdir(path("directory")));
    QCOMPARE(::mkfifo(QFile::encodeName(path("pipe")).constData(), 0600), 0);
    QVERIFY(QFile::link(path("pipe"), path("link to the pipe")));
    QVERIFY(QFile::link(path("file"), path("link to the file")));
    QVERIFY(QFile::link(path("nowhere"), path("dangling link")));
    QVERIFY(QFile::link(QStringLiteral("/dev/zero"), path("link to a device")));
}

void tst_SpecialFile::tellsThemApart_data()
{
    QTest::addColumn<bool>("special");
    for (const char *name : {"pipe", "link to the pipe", "link to a device"}) {
        QTest::newRow(name) << true;
    }
    for (const char *name :
         {"file", "directory", "link to the file", "dangling link", "missing", ""}) {
        QTest::newRow(name) << false;
    }
}

void tst_SpecialFile::tellsThemApart()
{
    QFETCH(bool, special);
    const QString file = path(QTest::currentDataTag());
    QCOMPARE(isSpecialFile(QUrl::fromLocalFile(file)), special);
    // The path alone says nothing: it may be a server's.
    QVERIFY(!isSpecialFile(QUrl(QStringLiteral("http://h") + file)));
}

QTEST_APPLESS_MAIN(tst_SpecialFile)
#include "tst_SpecialFile.moc"

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/RVRegularFile.h"
#include "tests/support/Privileges.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

using Fault = RVRegularFile::Fault;

class tst_RVRegularFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void tellsThemApart_data();
    void tellsThemApart();
    void readsWhatIsThere();
    void nameWithNul();
    void closedFile();

private:
    QString path(const char *name) const { return m_dir.filePath(QLatin1String(name)); }

    const QTemporaryDir m_dir;
};

void tst_RVRegularFile::initTestCase()
{
    QFile file(path("file"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write("content"), qint64(7));
    file.close();
    QVERIFY(QDir().mkdir(path("directory")));
    QCOMPARE(::mkfifo(QFile::encodeName(path("pipe")).constData(), 0600), 0);
    QVERIFY(QFile::link(path("pipe"), path("link to the pipe")));
    QVERIFY(QFile::link(path("file"), path("link to the file")));
    QVERIFY(QFile::link(path("directory"), path("link to the directory")));
    QVERIFY(QFile::link(path("nowhere"), path("dangling link")));
    QVERIFY(QFile::link(path("link in a circle"), path("link in a circle")));
    QVERIFY(QFile::link(QStringLiteral("/dev/zero"), path("link to a device")));
    QVERIFY(QFile::link(QStringLiteral("/proc/self/status"), path("link to proc")));
    QVERIFY(QFile::link(QStringLiteral("/sys/kernel/mm"), path("link to a directory of sys")));
    QVERIFY(QFile::link(QStringLiteral("/proc/kmsg"), path("link to the endless file of proc")));
    // A name that is too long for a socket's address below a deep folder is no use here.
    const int listener = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    const QByteArray name = QFile::encodeName(path("socket"));
    QVERIFY(size_t(name.size()) < sizeof address.sun_path);
    memcpy(address.sun_path, name.constData(), size_t(name.size()));
    QCOMPARE(::bind(listener, reinterpret_cast<sockaddr *>(&address), sizeof address), 0);
    ::close(listener);
}

void tst_RVRegularFile::tellsThemApart_data()
{
    QTest::addColumn<int>("fault");
    const auto rows = [](Fault fault, const std::initializer_list<const char *> &names) {
        for (const char *name : names) {
            QTest::newRow(name) << int(fault);
        }
    };
    rows(Fault::None, {"file", "link to the file"});
    rows(Fault::Special,
         {"pipe", "link to the pipe", "link to a device", "socket", "link to proc",
          "link to the endless file of proc"});
    rows(Fault::Directory,
         {"directory", "link to the directory", "link to a directory of sys", "directory/"});
    rows(Fault::NotFound, {"missing", "dangling link", "link in a circle", "file/", "file/below"});
}

void tst_RVRegularFile::tellsThemApart()
{
    QFETCH(int, fault);
    RVRegularFile file(path(QTest::currentDataTag()));
    QCOMPARE(int(file.fault()), fault);
    QCOMPARE(file.text().isEmpty(), file.fault() == Fault::None);
    QCOMPARE(bool(file.take()), file.fault() == Fault::None);
}

void tst_RVRegularFile::readsWhatIsThere()
{
    RVRegularFile file(path("file"));
    const std::unique_ptr<QFile> content = file.take();
    QVERIFY(content);
    QCOMPARE(content->size(), qint64(7));
    QCOMPARE(content->readAll(), QByteArray("content"));
}

// The system's calls take the name up to the NUL.
void tst_RVRegularFile::nameWithNul()
{
    RVRegularFile file(path("file") + QChar(0) + QStringLiteral(".xml"));
    QCOMPARE(int(file.fault()), int(Fault::NotFound));
}

// Last: it is for good.
void tst_RVRegularFile::closedFile()
{
    QVERIFY(obeyFilePermissions());
    const QString closed = path("closed");
    QVERIFY(QFile::copy(path("file"), closed));
    QVERIFY(QFile::setPermissions(closed, {}));
    RVRegularFile file(closed);
    QCOMPARE(int(file.fault()), int(Fault::Denied));
    QVERIFY(!file.take());
}

QTEST_GUILESS_MAIN(tst_RVRegularFile)
#include "tst_RVRegularFile.moc"

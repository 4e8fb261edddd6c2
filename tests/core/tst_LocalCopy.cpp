// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/LocalCopy.h"
#include "tests/support/WarningGuard.h"

#include <QBuffer>
#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <sys/resource.h>

namespace
{

/// A download that has come in whole: open, sequential, its end answered with -1.
class Download : public QIODevice
{
public:
    explicit Download(qint64 size)
        : m_left(size)
    {
        open(QIODevice::ReadOnly);
    }
    bool isSequential() const override { return true; }
    qint64 bytesAvailable() const override { return m_left + QIODevice::bytesAvailable(); }

protected:
    qint64 readData(char *data, qint64 maxSize) override
    {
        if (m_left == 0) {
            return -1;
        }
        const qint64 length = qMin(m_left, maxSize);
        std::fill_n(data, length, 'x');
        m_left -= length;
        return length;
    }
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    qint64 m_left;
};

int peakKilobytes()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly)) {
        return -1;
    }
    const QList<QByteArray> lines = status.readAll().split('\n');
    for (const QByteArray &line : lines) {
        if (line.startsWith("VmHWM:")) {
            return line.simplified().split(' ').at(1).toInt();
        }
    }
    return -1;
}

} // namespace

class tst_LocalCopy : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_warnings = std::make_unique<WarningGuard>(); }
    void cleanup();
    void copiesBuffer();
    void copiesRestOfFile();
    void usesFileInPlace();
    void copyGoesWithTheObject();
    void copiesInPieces();
    void emptyDevice();
    void refuses_data();
    void refuses();
    void diskFull();

private:
    std::unique_ptr<WarningGuard> m_warnings;
    QTemporaryDir m_dir;
};

void tst_LocalCopy::cleanup()
{
    m_warnings.reset();
}

void tst_LocalCopy::copiesBuffer()
{
    QBuffer buffer;
    buffer.setData("hello");
    LocalCopy copy;
    QVERIFY(!copy.file());
    QVERIFY(copy.take(&buffer));
    QVERIFY(!buffer.isOpen());
    QCOMPARE(copy.file()->size(), 5);
    QCOMPARE(copy.file()->readAll(), QByteArray("hello"));
    QFile again(copy.file()->fileName());
    QVERIFY(again.open(QIODevice::ReadOnly));
    QCOMPARE(again.readAll(), QByteArray("hello"));
}

void tst_LocalCopy::copiesRestOfFile()
{
    QFile file(m_dir.filePath(QStringLiteral("rest")));
    QVERIFY(file.open(QIODevice::ReadWrite));
    file.write("hello");
    QVERIFY(file.seek(2));
    LocalCopy copy;
    QVERIFY(copy.take(&file));
    QCOMPARE(copy.file()->readAll(), QByteArray("llo"));
}

void tst_LocalCopy::usesFileInPlace()
{
    QFile file(m_dir.filePath(QStringLiteral("place")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("hello");
    file.close();
    {
        LocalCopy copy;
        QVERIFY(copy.take(&file));
        QVERIFY(!file.isOpen());
        QCOMPARE(copy.file()->fileName(), file.fileName());
        QCOMPARE(copy.file()->readAll(), QByteArray("hello"));
    }
    QVERIFY(file.exists());
}

void tst_LocalCopy::copyGoesWithTheObject()
{
    QString name;
    {
        QBuffer buffer;
        buffer.setData("hello");
        LocalCopy copy;
        QVERIFY(copy.take(&buffer));
        name = copy.file()->fileName();
        QVERIFY(QFile::exists(name));
    }
    QVERIFY(!QFile::exists(name));
}

void tst_LocalCopy::copiesInPieces()
{
    constexpr qint64 size = 200 * 1024 * 1024;
    const int before = peakKilobytes();
    Download download(size);
    LocalCopy copy;
    QVERIFY(copy.take(&download));
    QCOMPARE(copy.file()->size(), size);
    QVERIFY(peakKilobytes() - before < 20 * 1024);
}

void tst_LocalCopy::emptyDevice()
{
    Download download(0);
    LocalCopy copy;
    QVERIFY(copy.take(&download));
    QCOMPARE(copy.file()->size(), 0);
}

void tst_LocalCopy::refuses_data()
{
    QTest::addColumn<QString>("kind");
    QTest::newRow("missing file") << "missing";
    QTest::newRow("open for writing alone") << "write-only";
    QTest::newRow("no place for the copy") << "no-place";
}

void tst_LocalCopy::refuses()
{
    QFETCH(QString, kind);
    LocalCopy copy;
    if (kind == QLatin1String("missing")) {
        QFile file(m_dir.filePath(QStringLiteral("missing")));
        QVERIFY(!copy.take(&file));
    } else if (kind == QLatin1String("write-only")) {
        QBuffer buffer;
        QVERIFY(buffer.open(QIODevice::WriteOnly));
        QVERIFY(!copy.take(&buffer));
    } else {
        const QByteArray before = qgetenv("TMPDIR");
        qputenv("TMPDIR", "/proc"); // not even root makes a file there
        QBuffer buffer;
        buffer.setData("hello");
        const bool taken = copy.take(&buffer);
        qputenv("TMPDIR", before);
        QVERIFY(!taken);
    }
    QVERIFY(!copy.file());
}

void tst_LocalCopy::diskFull()
{
    // A limit on the size of files stands for the full disk: a write falls short all the same.
    struct rlimit before = {};
    getrlimit(RLIMIT_FSIZE, &before);
    const struct rlimit small = {100 * 1024, before.rlim_max};
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &small);
    Download download(1024 * 1024);
    LocalCopy copy;
    const bool taken = copy.take(&download);
    setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handler);
    QVERIFY(!taken);
    QVERIFY(!copy.file());
}

QTEST_GUILESS_MAIN(tst_LocalCopy)
#include "tst_LocalCopy.moc"

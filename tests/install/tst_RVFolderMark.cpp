// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "install/RVFolderMark.h"
#include "tests/support/LogFile.h"
#include "tests/support/WarningGuard.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <sys/stat.h>
#include <unistd.h>

class tst_RVFolderMark : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void removesWhatWasLeft();
    void leavesWhatIsInUse();
    void leavesAlone_data();
    void leavesAlone();
    void followsNoLink();
    void deepAndClosedFolders();

private:
    QString file(const QString &name) const { return m_dir->filePath(name); }
    /// A folder of a run that was killed.
    void leave(const QString &name) const;
    void write(const QString &name) const;

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<LogFile> m_log;
    std::unique_ptr<WarningGuard> m_guard;
};

void tst_RVFolderMark::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    m_log = std::make_unique<LogFile>();
    m_guard = std::make_unique<WarningGuard>();
}

void tst_RVFolderMark::cleanup()
{
    m_guard.reset();
    m_log.reset();
    m_dir.reset();
}

void tst_RVFolderMark::leave(const QString &name) const
{
    QVERIFY(QDir().mkpath(file(name)));
    const RVFolderMark mark(file(name));
    QVERIFY(mark.lock() >= 0);
}

void tst_RVFolderMark::write(const QString &name) const
{
    QFile out(file(name));
    QVERIFY(out.open(QIODevice::WriteOnly) && out.write("x") == 1);
}

void tst_RVFolderMark::removesWhatWasLeft()
{
    leave(QStringLiteral("plume-1"));
    leave(QStringLiteral("another name"));
    write(QStringLiteral("plume-1/a.deb"));
    QVERIFY(QDir().mkpath(file(QStringLiteral("plume-1/pack/etc"))));
    write(QStringLiteral("plume-1/pack/etc/file"));
    write(QStringLiteral("other"));
    QCOMPARE(RVFolderMark::removeLeft(m_dir->path()), 2);
    QCOMPARE(QDir(m_dir->path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden),
             QStringList{QStringLiteral("other")});
    QVERIFY(m_log->contains(QStringLiteral("Removed 2 temporary directories of earlier runs")));
    QCOMPARE(RVFolderMark::removeLeft(m_dir->path()), 0);
    QCOMPARE(RVFolderMark::removeLeft(file(QStringLiteral("missing"))), 0);
}

void tst_RVFolderMark::leavesWhatIsInUse()
{
    QVERIFY(QDir().mkpath(file(QStringLiteral("plume-1"))));
    auto mark = std::make_unique<RVFolderMark>(file(QStringLiteral("plume-1")));
    write(QStringLiteral("plume-1/a.deb"));
    // As a keeper has it, whose program is gone.
    const int inherited = ::dup(mark->lock());
    mark.reset();
    QCOMPARE(RVFolderMark::removeLeft(m_dir->path()), 0);
    // The mark can be replaced by what an archive holds, the lock cannot.
    QVERIFY(QFile::remove(file(QStringLiteral("plume-1/.ravel-run"))));
    write(QStringLiteral("plume-1/.ravel-run"));
    QCOMPARE(RVFolderMark::removeLeft(m_dir->path()), 0);
    QVERIFY(QFile::exists(file(QStringLiteral("plume-1/a.deb"))));
    ::close(inherited);
    QCOMPARE(RVFolderMark::removeLeft(m_dir->path()), 1);
}

void tst_RVFolderMark::leavesAlone_data()
{
    QTest::addColumn<QString>("what");

    for (const char *what : {"no mark", "a link as mark", "a folder as mark", "another owner",
                             "the mark's owner is another", "a link to a folder"}) {
        QTest::newRow(what) << QString::fromLatin1(what);
    }
}

void tst_RVFolderMark::leavesAlone()
{
    QFETCH(QString, what);
    const QString mark = QStringLiteral("below/plume-1/.ravel-run");
    const QString outside = QStringLiteral("outside");
    leave(QStringLiteral("below/plume-1"));
    leave(outside);
    write(outside + QStringLiteral("/file"));
    write(QStringLiteral("below/plume-1/file"));
    QByteArray path = QFile::encodeName(file(mark));
    if (what.contains(QLatin1String("owner"))) {
        if (::geteuid() != 0) {
            QSKIP("only root can give a file away");
        }
        if (what == QLatin1String("another owner")) {
            path = QFile::encodeName(file(QStringLiteral("below/plume-1")));
        }
        QCOMPARE(::chown(path.constData(), 65534, 65534), 0);
    } else if (what == QLatin1String("a link to a folder")) {
        QVERIFY(QDir(file(QStringLiteral("below/plume-1"))).removeRecursively());
        QVERIFY(QFile::link(file(outside), file(QStringLiteral("below/plume-1"))));
    } else {
        QVERIFY(QFile::remove(file(mark)));
        if (what == QLatin1String("a link as mark")) {
            QVERIFY(QFile::link(file(outside + QStringLiteral("/.ravel-run")), file(mark)));
        } else if (what == QLatin1String("a folder as mark")) {
            QVERIFY(QDir().mkpath(file(mark)));
        }
    }
    QCOMPARE(RVFolderMark::removeLeft(file(QStringLiteral("below"))), 0);
    QVERIFY(QFile::exists(file(QStringLiteral("below/plume-1/file"))));
    QVERIFY(QFile::exists(file(outside + QStringLiteral("/file"))));
}

void tst_RVFolderMark::followsNoLink()
{
    leave(QStringLiteral("below/plume-1"));
    QVERIFY(QDir().mkpath(file(QStringLiteral("outside"))));
    write(QStringLiteral("outside/file"));
    QVERIFY(
        QFile::link(file(QStringLiteral("outside")), file(QStringLiteral("below/plume-1/link"))));
    QVERIFY(QFile::link(file(QStringLiteral("outside/file")),
                        file(QStringLiteral("below/plume-1/file"))));
    QCOMPARE(RVFolderMark::removeLeft(file(QStringLiteral("below"))), 1);
    QVERIFY(QFile::exists(file(QStringLiteral("outside/file"))));
    QVERIFY(!QFile::exists(file(QStringLiteral("below/plume-1"))));
}

void tst_RVFolderMark::deepAndClosedFolders()
{
    leave(QStringLiteral("plume-1"));
    QString deep = QStringLiteral("plume-1");
    for (int i = 0; i < 90; ++i) {
        deep += QStringLiteral("/d");
    }
    QVERIFY(QDir().mkpath(file(deep)));
    write(deep + QStringLiteral("/file"));
    QVERIFY(QDir().mkpath(file(QStringLiteral("plume-1/closed/inner"))));
    QCOMPARE(::chmod(QFile::encodeName(file(QStringLiteral("plume-1/closed"))).constData(), 0), 0);
    QCOMPARE(RVFolderMark::removeLeft(m_dir->path()), 1);
    QVERIFY(!QFile::exists(file(QStringLiteral("plume-1"))));
}

QTEST_GUILESS_MAIN(tst_RVFolderMark)
#include "tst_RVFolderMark.moc"

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/RVOwnFolder.h"
#include "install/RVKeeper.h"
#include "tests/support/WarningGuard.h"
#include "ui/RVLastRun.h"

#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <sys/file.h>
#include <unistd.h>

class tst_RVLastRun : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_guard.reset(); }
    void hiddenWithoutARun();
    void shownOnce();
    void followsARunThatGoesOn();
    void showsTheOutput();

private:
    /// The record of a run, locked until it is closed.
    int record(RVRunHead::State state, int value);
    QByteArray text(RVRunHead::State state, int value) const;

    std::unique_ptr<WarningGuard> m_guard;
    std::unique_ptr<QTemporaryDir> m_dir;
    RVPaths m_paths;
};

void tst_RVLastRun::init()
{
    m_guard = std::make_unique<WarningGuard>();
    m_dir = std::make_unique<QTemporaryDir>();
    m_paths = RVPaths::under(m_dir->path());
}

QByteArray tst_RVLastRun::text(RVRunHead::State state, int value) const
{
    RVRunRecord record;
    record.head.state = state;
    record.head.value = value;
    record.started = QDateTime::currentDateTimeUtc();
    record.outputFile = m_dir->filePath(QStringLiteral("output"));
    return record.toText();
}

int tst_RVLastRun::record(RVRunHead::State state, int value)
{
    const RVOwnFolder folder(RVKeeper::recordFolder(m_paths));
    const int file = folder.openFile("a.run");
    const QByteArray bytes = text(state, value);
    return ::flock(file, LOCK_EX) == 0
            && ::pwrite(file, bytes.constData(), size_t(bytes.size()), 0) == bytes.size()
        ? file
        : -1;
}

void tst_RVLastRun::hiddenWithoutARun()
{
    QWidget page;
    RVLastRun message(m_paths, &page);
    page.show();
    QVERIFY(message.isHidden());
    QVERIFY(!QFile::exists(RVKeeper::recordFolder(m_paths)));
}

void tst_RVLastRun::shownOnce()
{
    ::close(record(RVRunHead::State::Exited, 3));
    {
        // Nobody has seen it while the page is not open.
        QWidget page;
        const RVLastRun message(m_paths, &page);
    }
    {
        QWidget page;
        RVLastRun message(m_paths, &page);
        page.show();
        QVERIFY(message.isVisible());
        QVERIFY(message.findChild<QLabel *>()->text().contains(QStringLiteral("exit code 3")));
        message.findChild<QPushButton *>()->click();
        QVERIFY(!message.isVisible());
    }
    QWidget page;
    const RVLastRun message(m_paths, &page);
    QVERIFY(message.isHidden());
}

void tst_RVLastRun::followsARunThatGoesOn()
{
    const int lock = record(RVRunHead::State::Running, 0);
    QWidget page;
    RVLastRun message(m_paths, &page);
    QSignalSpy ended(&message, &RVLastRun::ended);
    page.show();
    const auto *label = message.findChild<QLabel *>();
    QVERIFY(label->text().endsWith(QStringLiteral("still runs.")));
    const QByteArray bytes = text(RVRunHead::State::Exited, 0);
    QVERIFY(::pwrite(lock, bytes.constData(), size_t(bytes.size()), 0) == bytes.size());
    ::close(lock);
    QTRY_VERIFY(label->text().endsWith(QStringLiteral("without an error.")));
    QCOMPARE(ended.size(), 1);
    QVERIFY(!RVKeptRun::last(m_paths));
    QVERIFY(message.isVisible());
}

void tst_RVLastRun::showsTheOutput()
{
    QFile output(m_dir->filePath(QStringLiteral("output")));
    QVERIFY(output.open(QIODevice::WriteOnly) && output.write("one\n<b>two\033\n") > 0);
    output.close();
    ::close(record(RVRunHead::State::Killed, 9));
    QWidget page;
    RVLastRun message(m_paths, &page);
    page.show();
    const auto *view = message.findChild<QPlainTextEdit *>();
    QVERIFY(!view->isVisible());
    Q_EMIT message.findChild<QGroupBox *>()->clicked(true);
    QVERIFY(view->isVisible());
    QCOMPARE(view->toPlainText(), QStringLiteral("one\n<b>two\\u001b\n"));
}

QTEST_MAIN(tst_RVLastRun)
#include "tst_RVLastRun.moc"

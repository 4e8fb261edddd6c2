// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "install/RVBatch.h"
#include "install/RVHistory.h"
#include "tests/support/FakeRoot.h"
#include "tests/support/WarningGuard.h"
#include "ui/RVHistoryDialog.h"
#include "ui/RVHistoryLink.h"

#include <plume/TitlePage.h>

#include <QAccessible>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>

#include <memory>

namespace
{

RVHistory::Run runOf(const QString &name, const QString &state)
{
    RVHistory::Run run = RVHistory::runOf({}, RVHistory::Face::Window, {});
    run.items.append({name, QStringLiteral("1"), QStringLiteral("2"), {}, {}, state, {}});
    return run;
}

RVHistory::Run endedRun(const QString &name, const QString &state)
{
    RVHistory::Run run = runOf(name, state);
    run.begun = QDateTime::currentDateTimeUtc();
    run.ended = run.begun;
    return run;
}

} // namespace

class tst_RVHistoryDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void noHistoryNoLink();
    void linkAppears();
    void opensByKeyboard();
    void newestFirst();
    void foreignTexts();
    void manyEntries();
    void damagedEntries();

private:
    std::unique_ptr<FakeRoot> m_root;
};

void tst_RVHistoryDialog::init()
{
    m_root = std::make_unique<FakeRoot>();
}

void tst_RVHistoryDialog::noHistoryNoLink()
{
    TitlePage page(QStringLiteral("Updates"), QString(), QString());
    const RVHistoryLink link(&page, m_root->paths());
    page.show();
    QVERIFY(!link.isVisible());
}

void tst_RVHistoryDialog::linkAppears()
{
    TitlePage page(QStringLiteral("Updates"), QString(), QString());
    auto *link = new RVHistoryLink(&page, m_root->paths());
    page.show();
    QVERIFY(!link->isVisible());
    RVHistory::Run run = runOf(QStringLiteral("tool"), QStringLiteral("installed"));
    QVERIFY(RVHistory(m_root->paths()).end(&run));
    page.hide();
    page.show();
    QVERIFY(link->isVisible());
}

void tst_RVHistoryDialog::opensByKeyboard()
{
    RVHistory::Run run = runOf(QStringLiteral("tool"), QStringLiteral("installed"));
    QVERIFY(RVHistory(m_root->paths()).end(&run));
    TitlePage page(QStringLiteral("Updates"), QString(), QString());
    auto *link = new RVHistoryLink(&page, m_root->paths());
    page.show();
    QVERIFY(link->focusPolicy() & Qt::TabFocus);
    QAccessibleInterface *spoken = QAccessible::queryAccessibleInterface(link);
    QCOMPARE(spoken->role(), QAccessible::Button);
    QCOMPARE(spoken->text(QAccessible::Name), QStringLiteral("Installation history"));

    QTest::keyClick(link, Qt::Key_Space);
    QPointer<RVHistoryDialog> dialog = page.findChild<RVHistoryDialog *>();
    QVERIFY(dialog && dialog->isVisible());
    auto *table = dialog->findChild<QTableWidget *>();
    QVERIFY(!table->accessibleName().isEmpty());
    QCOMPARE(table->rowCount(), 1);
    QCOMPARE(table->item(0, 1)->text(), QStringLiteral("tool"));
    QCOMPARE(table->item(0, 4)->text(), QStringLiteral("installed"));
    QTest::keyClick(dialog, Qt::Key_Escape);
    QTRY_VERIFY(!dialog);
}

void tst_RVHistoryDialog::newestFirst()
{
    RVHistory::Reading reading;
    reading.runs.append(endedRun(QStringLiteral("old"), QStringLiteral("failed")));
    reading.runs.append(endedRun(QStringLiteral("new"), QStringLiteral("left-out")));
    reading.runs.append(runOf(QStringLiteral("open"), QString()));
    auto *dialog = new RVHistoryDialog(reading);
    auto *table = dialog->findChild<QTableWidget *>();
    QCOMPARE(table->item(0, 4)->text(), QStringLiteral("not ended"));
    QCOMPARE(table->item(1, 1)->text(), QStringLiteral("new"));
    QCOMPARE(table->item(1, 4)->text(), QStringLiteral("left out"));
    QCOMPARE(table->item(2, 4)->text(), QStringLiteral("failed"));
    QVERIFY(dialog->findChild<QLabel *>(QStringLiteral("note"))->isHidden());
    delete dialog;
}

void tst_RVHistoryDialog::foreignTexts()
{
    RVHistory::Reading reading;
    reading.runs.append(endedRun(QStringLiteral("<b>a</b>\u202e") + QString(5000, QLatin1Char('x')),
                                 QStringLiteral("nonsense")));
    const RVHistoryDialog dialog(reading);
    auto *table = dialog.findChild<QTableWidget *>();
    const QString shown = table->item(0, 1)->text();
    QVERIFY(shown.size() <= 300 && shown.startsWith(QLatin1String("<b>a</b>xxx")));
    QCOMPARE(table->item(0, 4)->text(), QStringLiteral("unknown"));
}

void tst_RVHistoryDialog::manyEntries()
{
    RVHistory::Reading reading;
    for (int i = 0; i <= RVHistoryDialog::mostRows; ++i) {
        reading.runs.append(endedRun(QString::number(i), QStringLiteral("installed")));
    }
    const RVHistoryDialog dialog(reading);
    QCOMPARE(dialog.findChild<QTableWidget *>()->rowCount(), RVHistoryDialog::mostRows);
    QVERIFY(!dialog.findChild<QLabel *>(QStringLiteral("note"))->isHidden());
}

void tst_RVHistoryDialog::damagedEntries()
{
    RVHistory::Reading reading;
    reading.damaged = 2;
    const RVHistoryDialog dialog(reading);
    QCOMPARE(dialog.findChild<QTableWidget *>()->rowCount(), 0);
    QVERIFY(!dialog.findChild<QLabel *>(QStringLiteral("note"))->isHidden());
}

QTEST_MAIN(tst_RVHistoryDialog)
#include "tst_RVHistoryDialog.moc"

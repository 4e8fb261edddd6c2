// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "install/RVPackageDatabase.h"
#include "tests/support/DpkgRoot.h"
#include "tests/support/Locker.h"
#include "ui/BusyDialog.h"
#include "ui/RVInstallGate.h"
#include "ui/RVObstacleBox.h"

#include <QBuffer>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTextEdit>

namespace
{

QPushButton *button(const QWidget *dialog, const char *text)
{
    const QList<QPushButton *> buttons = dialog->findChildren<QPushButton *>();
    for (QPushButton *candidate : buttons) {
        if (candidate->text() == QLatin1String(text) && candidate->isVisible()) {
            return candidate;
        }
    }
    return nullptr;
}

} // namespace

/// Through the real dialogs, with locks of real processes and the real dpkg in a private root.
class tst_RVInstallGate : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void nothingInTheWay();
    void countsDownWhileItWaits();
    void cancelWhileItWaits();
    void asksAfterItsPatience();
    void oneRunAtATime();
    void noSpace();
    void repairs();
    void removesWhatCannotBeRepaired();
    void removesNothingWithoutAYes();
    void installsBrokenPackagesAgain();
    void languageChange();

private:
    RVBatch batch(const QByteArray &fields = {}) const
    {
        RVData data(QUrl(QStringLiteral("file:///updates/a.deb")),
                    QUrl(QStringLiteral("file:///updates/a.xml")), nullptr, m_root->paths());
        QByteArray xml =
            "<update_data><name>tc-a</name><version>1</version>" + fields + "</update_data>";
        QBuffer buffer(&xml);
        data.descriptor()->read(&buffer);
        return RVBatch::of({data}, nullptr);
    }
    void open(const QByteArray &fields = {}, int patience = 3600)
    {
        m_dialog = new BusyDialog(QStringLiteral("Retrieving"), QStringLiteral("Cancel"), 0, 100);
        m_dialog->setAutoClose(false);
        m_dialog->setAutoReset(false);
        m_dialog->show();
        m_gate = std::make_unique<RVInstallGate>(batch(fields), m_root->paths(), m_dialog);
        m_gate->patience = patience;
        m_passed = std::make_unique<QSignalSpy>(m_gate.get(), &RVInstallGate::passed);
        m_canceled = std::make_unique<QSignalSpy>(m_dialog.data(), &BusyDialog::canceled);
        m_gate->start();
    }
    QString label() const { return m_dialog->findChild<QLabel *>(QStringLiteral("label"))->text(); }
    RVObstacleBox *box() const
    {
        const QList<RVObstacleBox *> boxes = m_dialog->findChildren<RVObstacleBox *>();
        return boxes.size() == 1 && boxes.first()->isVisible() ? boxes.first() : nullptr;
    }
    QString database(const char *name) const
    {
        return m_root->paths().packageDatabase + QLatin1Char('/') + QLatin1String(name);
    }
    void leaveUnpacked() const
    {
        QVERIFY(!m_root
                     ->preinstall(
                         {QStringLiteral("tc-needy"), QStringLiteral("1"), "Depends: tc-missing\n"})
                     .isEmpty());
        QCOMPARE(m_root->status(QStringLiteral("tc-needy")), QStringLiteral("iU"));
    }

    std::unique_ptr<DpkgRoot> m_root;
    QPointer<BusyDialog> m_dialog;
    std::unique_ptr<RVInstallGate> m_gate;
    std::unique_ptr<QSignalSpy> m_passed;
    std::unique_ptr<QSignalSpy> m_canceled;
};

void tst_RVInstallGate::init()
{
    m_root = std::make_unique<DpkgRoot>();
    QVERIFY(m_root->isValid());
}

void tst_RVInstallGate::cleanup()
{
    m_passed.reset();
    m_canceled.reset();
    m_gate.reset();
    delete m_dialog;
}

void tst_RVInstallGate::nothingInTheWay()
{
    open();
    QCOMPARE(m_passed->size(), 1);
    QCOMPARE(m_gate->heldLocks().size(), 1);
    QCOMPARE(label(), QStringLiteral("Retrieving"));
}

void tst_RVInstallGate::countsDownWhileItWaits()
{
    Locker other(database("lock-frontend"));
    QVERIFY(other.isHeld());
    open();
    QTRY_VERIFY(label().contains(QLatin1String("Waiting for 3600 more second")));
    QVERIFY2(label().startsWith(
                 QStringLiteral("The package database is locked by tst_RVInstallGate (process %1).")
                     .arg(other.process()))
                 || label().contains(other.process()),
             qUtf8Printable(label()));
    QVERIFY(m_passed->isEmpty());
    QVERIFY(button(m_dialog, "Cancel"));
    other.release();
    QTRY_COMPARE(m_passed->size(), 1);
    QVERIFY(!box());
}

void tst_RVInstallGate::cancelWhileItWaits()
{
    Locker other(database("lock"));
    open();
    QTRY_VERIFY(label().contains(QLatin1String("Waiting")));
    button(m_dialog, "Cancel")->click();
    QCOMPARE(m_canceled->size(), 1);
    other.release();
    RVPreflight preflight(m_root->paths());
    RVLockWait control(&preflight, RVBatch::Kind::Image);
    const QSignalSpy ended(&control, &RVLockWait::ended);
    control.start(0);
    QTRY_COMPARE(ended.size(), 1);
    QVERIFY(m_passed->isEmpty());
}

void tst_RVInstallGate::asksAfterItsPatience()
{
    Locker other(database("lock"));
    open({}, 0);
    QTRY_VERIFY(box());
    QVERIFY(box()->text().contains(other.process()));
    button(box(), "Retry")->click();
    QTRY_VERIFY(box());
    other.release();
    button(box(), "Retry")->click();
    QTRY_COMPARE(m_passed->size(), 1);
    QVERIFY(m_canceled->isEmpty());
}

void tst_RVInstallGate::oneRunAtATime()
{
    RVRunLock other(m_root->paths());
    QCOMPARE(other.take(), RVRunLock::State::Held);
    open({}, 0);
    QTRY_VERIFY(box());
    QVERIFY(box()->text().startsWith(QLatin1String("Another installation is under way")));
    button(box(), "Cancel")->click();
    QTRY_COMPARE(m_canceled->size(), 1);
    other.release();
    QVERIFY(m_passed->isEmpty());
}

void tst_RVInstallGate::noSpace()
{
    open("<installed_size>4000000000000000</installed_size>");
    QVERIFY(box());
    QVERIFY(box()->text().startsWith(QLatin1String("Not enough space in")));
    button(box(), "Retry")->click();
    QTRY_VERIFY(box());
    QTest::keyClick(box(), Qt::Key_Escape);
    QTRY_COMPARE(m_canceled->size(), 1);
    QVERIFY(m_passed->isEmpty());
}

void tst_RVInstallGate::repairs()
{
    leaveUnpacked();
    QCOMPARE(m_root->preinstall({QStringLiteral("tc-missing"), QStringLiteral("1")}), QString());
    open();
    QVERIFY(box());
    QVERIFY(box()->text().contains(QLatin1String("tc-needy is unpacked")));
    button(box(), "Repair")->click();
    QTRY_COMPARE(m_passed->size(), 1);
    QCOMPARE(m_root->installedVersion(QStringLiteral("tc-needy")), QStringLiteral("1"));
    const auto *details = m_dialog->findChild<QTextEdit *>(QStringLiteral("detailsView"));
    QTRY_VERIFY(details->toPlainText().contains(QLatin1String("Setting up tc-needy")));
    QVERIFY(button(m_dialog, "Cancel"));
}

void tst_RVInstallGate::removesWhatCannotBeRepaired()
{
    leaveUnpacked();
    open();
    button(box(), "Repair")->click();
    QTRY_VERIFY(box() && button(box(), "Remove"));
    QVERIFY(button(box(), "Cancel")->isDefault());
    button(box(), "Remove")->click();
    QTRY_COMPARE(m_passed->size(), 1);
    QVERIFY(RVPackageDatabase(m_root->paths()).unfinished().isEmpty());
}

void tst_RVInstallGate::removesNothingWithoutAYes()
{
    leaveUnpacked();
    open();
    button(box(), "Repair")->click();
    QTRY_VERIFY(box() && button(box(), "Remove"));
    QTest::keyClick(box(), Qt::Key_Return);
    QTRY_COMPARE(m_canceled->size(), 1);
    QCOMPARE(m_root->status(QStringLiteral("tc-needy")), QStringLiteral("iU"));
    QVERIFY(m_passed->isEmpty());
}

void tst_RVInstallGate::installsBrokenPackagesAgain()
{
    QVERIFY(
        !m_root
             ->preinstall({QStringLiteral("tc-a"), QStringLiteral("0.9"), "Depends: tc-missing\n"})
             .isEmpty());
    open();
    QCOMPARE(m_passed->size(), 1);
}

void tst_RVInstallGate::languageChange()
{
    const Locker other(database("lock"));
    open({}, 0);
    QTRY_VERIFY(box());
    QPushButton *retry = button(box(), "Retry");
    QVERIFY(retry);
    retry->setText(QStringLiteral("another language"));
    QEvent change(QEvent::LanguageChange);
    QCoreApplication::sendEvent(box(), &change);
    QCOMPARE(retry->text(), QStringLiteral("Retry"));
}

QTEST_MAIN(tst_RVInstallGate)
#include "tst_RVInstallGate.moc"

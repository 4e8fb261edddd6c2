// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/support/LogFile.h"
#include "tests/support/WarningGuard.h"
#include "ui/ImageInstallBox.h"
#include "ui/RVStyle.h"

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <QtTest>

#include <functional>

namespace
{

/// Asks, and does `act` with the box as soon as it is open.
bool ask(ImageInstallBox &question, const std::function<void(QMessageBox *)> &act)
{
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (box) {
            timer.stop();
            act(box);
        }
    });
    timer.start(0);
    return question.confirmImageInstall();
}

bool ask(const std::function<void(QMessageBox *)> &act, bool isChecked = false)
{
    ImageInstallBox question;
    question.isChecked = isChecked;
    return ask(question, act);
}

QImage picture(const QIcon &icon)
{
    return icon.pixmap(16, 16).toImage();
}

} // namespace

class tst_ImageInstallBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void saysWhatWillHappen();
    void saysWhatACheckFinds();
    void saysWhichImage();
    void answers_data();
    void answers();
};

void tst_ImageInstallBox::saysWhatWillHappen()
{
    const LogFile log;
    WarningGuard warnings;
    ask([](QMessageBox *box) {
        const RVStyle style;
        QCOMPARE(box->parentWidget(), nullptr);
        QVERIFY(box->isModal());
        QCOMPARE(box->icon(), QMessageBox::Warning);
        QCOMPARE(box->text(), QStringLiteral("Full-Image install pending."));
        QCOMPARE(box->informativeText(),
                 QStringLiteral("Installation of a new image will force a reboot and completely "
                                "wipe out the existing disk image on the thin client, including "
                                "all settings.  Do you want to continue?"));
        QCOMPARE(box->standardButtons(), QMessageBox::Abort | QMessageBox::Apply);
        QCOMPARE(picture(box->button(QMessageBox::Abort)->icon()),
                 picture(style.StdIcon(RVStyle::Abort)));
        QCOMPARE(picture(box->button(QMessageBox::Apply)->icon()),
                 picture(style.StdIcon(RVStyle::Apply)));
        QVERIFY(!box->button(QMessageBox::Abort)->icon().isNull());
        QVERIFY(!box->button(QMessageBox::Apply)->icon().isNull());
        box->reject();
    });
}

void tst_ImageInstallBox::saysWhatACheckFinds()
{
    const LogFile log;
    WarningGuard warnings;
    for (const bool isChecked : {false, true}) {
        ask(
            [isChecked](QMessageBox *box) {
                QCOMPARE(box->informativeText().contains(QStringLiteral("hostile server")),
                         isChecked);
                QVERIFY(box->informativeText().contains(QStringLiteral("wipe out")));
                box->button(QMessageBox::Abort)->click();
            },
            isChecked);
    }
}

void tst_ImageInstallBox::saysWhichImage()
{
    const LogFile log;
    WarningGuard warnings;
    ImageInstallBox question;
    question.name = QStringLiteral("<b>tc-system</b>\u202e\n");
    question.version = QStringLiteral("6.2.0");
    question.certificateWarning = RVSentence("Do not trust %1.", {QStringLiteral("<i>h</i>")});
    ask(question, [](QMessageBox *box) {
        // The turning of the text is gone, and no markup is left to work.
        QVERIFY(box->informativeText().startsWith(QStringLiteral(
            "<b>tc-system</b>  6.2.0\n\nDo not trust <i>h</i>.\n\nInstallation of")));
        for (const QLabel *label : box->findChildren<QLabel *>()) {
            if (label->text() == box->informativeText()) {
                QCOMPARE(label->textFormat(), Qt::PlainText);
                box->reject();
                return;
            }
        }
        box->reject();
        QFAIL("no label");
    });
}

void tst_ImageInstallBox::answers_data()
{
    QTest::addColumn<QString>("act");
    QTest::addColumn<bool>("confirmed");
    QTest::newRow("Apply") << "apply" << true;
    QTest::newRow("Abort") << "abort" << false;
    QTest::newRow("Escape") << "escape" << false;
    QTest::newRow("Return") << "return" << false;
    QTest::newRow("closed") << "close" << false;
    QTest::newRow("program quits") << "quit" << false;
}

void tst_ImageInstallBox::answers()
{
    QFETCH(QString, act);
    WarningGuard warnings;
    const bool confirmed = ask([&act](QMessageBox *box) {
        if (act == QLatin1String("apply")) {
            QTest::mouseClick(box->button(QMessageBox::Apply), Qt::LeftButton);
        } else if (act == QLatin1String("abort")) {
            QTest::mouseClick(box->button(QMessageBox::Abort), Qt::LeftButton);
        } else if (act == QLatin1String("escape")) {
            QTest::keyClick(box, Qt::Key_Escape);
        } else if (act == QLatin1String("return")) {
            QTest::keyClick(box, Qt::Key_Return);
        } else if (act == QLatin1String("close")) {
            box->close();
        } else {
            QCoreApplication::quit();
        }
    });
    QTEST(confirmed, "confirmed");
}

QTEST_MAIN(tst_ImageInstallBox)
#include "tst_ImageInstallBox.moc"

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/RVLogger.h"
#include "install/RVInstallProc.h"
#include "tests/support/CpuCost.h"
#include "tests/support/LogFile.h"
#include "tests/support/PrivateState.h"
#include "tests/support/WarningGuard.h"
#include "tests/ui/Spoken.h"
#include "ui/BusyDialog.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTextEdit>
#include <QTranslator>
#include <QtTest>

#include <limits>
#include <memory>

namespace
{

constexpr qint64 KiB = 1024;
constexpr qint64 GiB = KiB * KiB * KiB;

// The parts of a dialog that a user sees.
struct Parts {
    explicit Parts(const BusyDialog &dialog)
        : label(dialog.findChild<QLabel *>(QStringLiteral("label")))
        , bar(dialog.findChild<QProgressBar *>())
        , cancel(dialog.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Cancel))
        , close(dialog.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Close))
        , box(dialog.findChild<QGroupBox *>())
        , view(dialog.findChild<QTextEdit *>())
    {
    }

    QLabel *label;
    QProgressBar *bar;
    QPushButton *cancel;
    QPushButton *close;
    QGroupBox *box;
    QTextEdit *view;
};

// Runs a shell script to its end while the dialog follows it. A script that says "read x" goes on
// when what it wrote has arrived.
bool run(BusyDialog &dialog, QProcess &process, const QString &script)
{
    dialog.processOutputToDetails(&process);
    if (script.contains(QLatin1String("read x"))) {
        const auto goOn = [&process] {
            process.write("\n");
        };
        QObject::connect(&process, &QProcess::readyReadStandardOutput, &process, goOn);
        QObject::connect(&process, &QProcess::readyReadStandardError, &process, goOn);
    }
    process.start(QStringLiteral("/bin/sh"), {QStringLiteral("-c"), script});
    return QTest::qWaitFor(
        [&process] {
            return process.state() == QProcess::NotRunning;
        },
        20000);
}

QString visibleText(const Parts &parts)
{
    return parts.view->toPlainText();
}

// The colour of the piece of text, invalid when it has none of its own.
QColor colourOf(const QTextEdit *view, const QString &text)
{
    const QTextCursor found = view->document()->find(text);
    const QTextCharFormat format = found.charFormat();
    return found.isNull() || !format.hasProperty(QTextFormat::ForegroundBrush)
        ? QColor()
        : format.foreground().color();
}

class Marking : public QTranslator
{
public:
    using QTranslator::QTranslator;

    QString translate(const char *context, const char *source, const char *, int) const override
    {
        return qstrcmp(context, "BusyDialog") == 0
            ? QStringLiteral("xx ") + QString::fromLatin1(source)
            : QString();
    }
    bool isEmpty() const override { return false; }
};

} // namespace

Q_DECLARE_METATYPE(RVItemResult::State)

class tst_BusyDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_guard.reset();
        m_guard = std::make_unique<WarningGuard>();
        // The offscreen platform says so of every window that has a minimum size.
    }
    void cleanup() { m_guard.reset(); }

    void defaults()
    {
        BusyDialog dialog;
        const Parts parts(dialog);
        QCOMPARE(parts.label->text(), QStringLiteral("In progress..."));
        QCOMPARE(parts.cancel->text(), QStringLiteral("Cancel"));
        QCOMPARE(parts.bar->minimum(), 0);
        QCOMPARE(parts.bar->maximum(), 0);
        QCOMPARE(parts.box->title(), QStringLiteral("Show Details"));
        QVERIFY(parts.box->isCheckable());
        QVERIFY(!parts.box->isChecked());
        QVERIFY(parts.view->isHidden());
        QVERIFY(parts.view->isReadOnly());
        QVERIFY(!parts.cancel->isHidden());
        QVERIFY(parts.close->isHidden());
        QVERIFY(!parts.cancel->icon().isNull());
        QVERIFY(!parts.close->icon().isNull());
        QVERIFY(dialog.minimumWidth() >= 500);
        QVERIFY(!dialog.wasCanceled());
    }

    void ownTexts()
    {
        BusyDialog dialog(QStringLiteral("Retrieving <b>updates</b>..."), QStringLiteral("Stop"), 3,
                          9);
        const Parts parts(dialog);
        QCOMPARE(parts.label->text(), QStringLiteral("Retrieving <b>updates</b>..."));
        QCOMPARE(parts.label->textFormat(), Qt::PlainText);
        QCOMPARE(parts.cancel->text(), QStringLiteral("Stop"));
        QCOMPARE(parts.bar->minimum(), 3);
        QCOMPARE(parts.bar->maximum(), 9);
        QCOMPARE(parts.bar->value(), 3);
    }

    void emptyCancelTextHidesTheButton()
    {
        BusyDialog dialog(QStringLiteral("a"), QString(), 0, 1);
        const Parts parts(dialog);
        QVERIFY(parts.cancel->isHidden());
        dialog.setCancelButtonText(QStringLiteral("b"));
        QVERIFY(!parts.cancel->isHidden());
        QCOMPARE(parts.cancel->text(), QStringLiteral("b"));
        dialog.disableCancel();
        QVERIFY(parts.cancel->isHidden());
        dialog.show();
        QVERIFY(!parts.cancel->isVisible());
        QVERIFY(!parts.close->isVisible());
    }

    void rangeAndValueReachTheBar()
    {
        BusyDialog dialog(QStringLiteral("a"), QStringLiteral("b"), 0, 100);
        const Parts parts(dialog);
        dialog.setAutoReset(false);
        dialog.setRange(10, 20);
        dialog.setMinimum(5);
        dialog.setMaximum(30);
        dialog.setValue(30);
        QCOMPARE(parts.bar->minimum(), 5);
        QCOMPARE(parts.bar->maximum(), 30);
        QCOMPARE(parts.bar->value(), 30);
    }

    void progress_data()
    {
        QTest::addColumn<qint64>("received");
        QTest::addColumn<qint64>("total");
        QTest::addColumn<int>("value");
        QTest::addColumn<int>("maximum");
        QTest::addColumn<QString>("text");

        const auto row =
            [](const char *name, qint64 received, qint64 total, int value, int maximum) {
                QTest::newRow(name)
                    << received << total << value << maximum
                    << (maximum == 0 ? QString()
                                     : QStringLiteral("%1 of %2 KiB").arg(value).arg(maximum));
            };
        row("halves are rounded up", 1536, 10240, 2, 10);
        row("below a half is rounded down", 511, 1023, 0, 1);
        row("half a KiB", 512, 1535, 1, 1);
        row("nothing yet", 0, 10240, 0, 10);
        row("all", 10240, 10240, 10, 10);
        row("more than all", 20480, 10240, 10, 10);
        row("unknown total is a busy bar", 4096, -1, 0, 0);
        row("nothing to download is a busy bar", 0, 0, 0, 0);
        row("negative both", -1, -1, 0, 0);
        row("three GiB", 3 * GiB, 4 * GiB, 3145728, 4194304);
        row("one TiB of two", KiB * GiB, 2 * KiB * GiB - KiB, 1 << 30,
            std::numeric_limits<int>::max());
        row("beyond what the bar can count", 3 * KiB * GiB, 4 * KiB * GiB,
            std::numeric_limits<int>::max(), std::numeric_limits<int>::max());
        row("the largest number", std::numeric_limits<qint64>::max(),
            std::numeric_limits<qint64>::max(), std::numeric_limits<int>::max(),
            std::numeric_limits<int>::max());
    }
    void progress()
    {
        QFETCH(qint64, received);
        QFETCH(qint64, total);
        BusyDialog dialog(QStringLiteral("a"), QStringLiteral("b"), 0, 100);
        const Parts parts(dialog);
        dialog.setAutoReset(false);
        dialog.progress(received, total);
        QTEST(parts.bar->value(), "value");
        QTEST(parts.bar->maximum(), "maximum");
        QCOMPARE(parts.bar->minimum(), 0);
        QTEST(parts.bar->text(), "text");
    }

    // A total that is corrected downwards must not leave the bar without a value.
    void progressWithAShrinkingTotal()
    {
        BusyDialog dialog(QStringLiteral("a"), QStringLiteral("b"), 0, 100);
        const Parts parts(dialog);
        dialog.setAutoReset(false);
        dialog.progress(900 * KiB, 1000 * KiB);
        dialog.progress(901 * KiB, 500 * KiB);
        QCOMPARE(parts.bar->value(), 500);
        QCOMPARE(parts.bar->text(), QStringLiteral("500 of 500 KiB"));
        dialog.progress(100 * KiB, 500 * KiB);
        QCOMPARE(parts.bar->text(), QStringLiteral("100 of 500 KiB"));
    }

    void autoReset_data()
    {
        QTest::addColumn<bool>("autoReset");
        QTest::addColumn<bool>("autoClose");
        QTest::newRow("reset and close") << true << true;
        QTest::newRow("reset only") << true << false;
        QTest::newRow("close needs reset") << false << true;
        QTest::newRow("neither") << false << false;
    }
    void autoReset()
    {
        QFETCH(bool, autoReset);
        QFETCH(bool, autoClose);
        BusyDialog dialog(QStringLiteral("a"), QStringLiteral("b"), 0, 100);
        const Parts parts(dialog);
        dialog.setAutoReset(autoReset);
        dialog.setAutoClose(autoClose);
        dialog.show();
        dialog.progress(5 * KiB, 10 * KiB);
        QVERIFY(dialog.isVisible());
        QCOMPARE(parts.bar->value(), 5);
        dialog.progress(10 * KiB, 10 * KiB);
        QCOMPARE(parts.bar->value(), autoReset ? 0 : 10);
        QCOMPARE(dialog.isVisible(), !(autoReset && autoClose));
        QVERIFY(!dialog.wasCanceled());
    }

    void autoResetIsConnectedOnce()
    {
        BusyDialog dialog(QStringLiteral("a"), QStringLiteral("b"), 0, 100);
        const Parts parts(dialog);
        dialog.setAutoReset(true);
        dialog.setAutoReset(true);
        dialog.setAutoReset(false);
        dialog.setValue(100);
        QCOMPARE(parts.bar->value(), 100);
        dialog.setAutoReset(true);
        dialog.setValue(50);
        dialog.setValue(100);
        QCOMPARE(parts.bar->value(), 0);
    }

    void busyRangeIsNeverReset()
    {
        BusyDialog dialog;
        dialog.show();
        dialog.setValue(7);
        dialog.incValueChanged(0);
        QVERIFY(dialog.isVisible());
    }

    void installPhase()
    {
        BusyDialog dialog(QStringLiteral("Retrieving updates..."), QStringLiteral("Cancel"), 0,
                          100);
        const Parts parts(dialog);
        dialog.setAutoReset(false);
        dialog.setAutoClose(false);
        dialog.progress(10 * KiB, 10 * KiB);
        dialog.enterInstallPhase();
        QCOMPARE(parts.label->text(), QStringLiteral("Installing updates..."));
        QCOMPARE(parts.bar->minimum(), 0);
        QCOMPARE(parts.bar->maximum(), 0);
        QCOMPARE(parts.bar->value(), 0);
    }

    void theEnd()
    {
        BusyDialog dialog(QStringLiteral("a"), QStringLiteral("b"), 0, 100);
        const Parts parts(dialog);
        dialog.show();
        dialog.progress(600 * KiB, 1000 * KiB);
        dialog.finished();
        QVERIFY(dialog.isVisible());
        QCOMPARE(parts.bar->minimum(), 0);
        QCOMPARE(parts.bar->maximum(), 100);
        QCOMPARE(parts.bar->value(), 100);
        QCOMPARE(parts.bar->text(), QStringLiteral("100%:  Done"));
        QVERIFY(!parts.cancel->isVisible());
        QVERIFY(parts.close->isVisible());
        QVERIFY(parts.close->isDefault());
        QCOMPARE(dialog.focusWidget(), parts.close);
        dialog.finished();
        QCOMPARE(parts.bar->text(), QStringLiteral("100%:  Done"));
    }

    void theEndOfABusyBar()
    {
        BusyDialog dialog;
        const Parts parts(dialog);
        dialog.enterInstallPhase();
        dialog.finished();
        QCOMPARE(parts.bar->text(), QStringLiteral("100%:  Done"));
    }

    void cancelButton()
    {
        BusyDialog dialog;
        const Parts parts(dialog);
        QSignalSpy canceled(&dialog, &BusyDialog::canceled);
        dialog.show();
        QCOMPARE(dialog.focusWidget(), parts.cancel);
        parts.cancel->click();
        QCOMPARE(canceled.count(), 1);
        QVERIFY(dialog.wasCanceled());
        QVERIFY(!dialog.isVisible());
        dialog.cancel();
        QCOMPARE(canceled.count(), 1);
    }

    // What closing by the window's button and by Escape means in each phase.
    void closing_data()
    {
        QTest::addColumn<QString>("phase");
        QTest::addColumn<bool>("byEscape");
        QTest::addColumn<int>("canceled");
        QTest::addColumn<bool>("visible");
        QTest::addColumn<bool>("destroyed");
        for (const bool byEscape : {false, true}) {
            const QByteArray how = byEscape ? ", Escape" : ", close button";
            QTest::newRow(("download" + how).constData())
                << "download" << byEscape << 1 << false << false;
            QTest::newRow(("extracted" + how).constData())
                << "extracted" << byEscape << 0 << true << false;
            QTest::newRow(("install" + how).constData())
                << "install" << byEscape << 0 << true << false;
            QTest::newRow(("finished" + how).constData())
                << "finished" << byEscape << 0 << false << true;
            QTest::newRow(("failed" + how).constData())
                << "failed" << byEscape << 0 << false << true;
        }
    }
    void closing()
    {
        QFETCH(QString, phase);
        QFETCH(bool, byEscape);
        QFETCH(bool, visible);
        LogFile log;
        QPointer<BusyDialog> dialog =
            new BusyDialog(QStringLiteral("a"), QStringLiteral("b"), 0, 100);
        int canceled = 0;
        connect(dialog.data(), &BusyDialog::canceled, this, [&canceled] {
            ++canceled;
        });
        dialog->setAutoReset(false);
        dialog->show();
        if (phase != QLatin1String("download")) {
            dialog->disableCancel();
        }
        if (phase == QLatin1String("install")) {
            dialog->enterInstallPhase();
        } else if (phase == QLatin1String("finished")) {
            dialog->finished();
        } else if (phase == QLatin1String("failed")) {
            dialog->processError(QProcess::FailedToStart);
        }
        for (int i = 0; i < 2 && dialog; ++i) {
            if (byEscape) {
                QTest::keyClick(dialog.data(), Qt::Key_Escape);
            } else {
                dialog->close();
            }
        }
        QTEST(canceled, "canceled");
        QCOMPARE(dialog->isVisible(), visible);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QTEST(dialog.isNull(), "destroyed");
        delete dialog;
    }

    void closeButtonDestroys()
    {
        QPointer<BusyDialog> dialog = new BusyDialog;
        dialog->show();
        dialog->finished();
        Parts(*dialog).close->click();
        QVERIFY(!dialog->isVisible());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(dialog.isNull());
    }

    void details()
    {
        BusyDialog dialog;
        const Parts parts(dialog);
        dialog.show();
        const int closedHeight = dialog.height();
        dialog.showDetails();
        QVERIFY(parts.box->isChecked());
        QVERIFY(parts.view->isVisible());
        QVERIFY(parts.view->isEnabled());
        QVERIFY(dialog.height() > closedHeight);
        dialog.hideDetails();
        QVERIFY(!parts.box->isChecked());
        QVERIFY(!parts.view->isVisible());
        QCOMPARE(dialog.height(), closedHeight);
    }

    void speaks()
    {
        BusyDialog dialog;
        dialog.show();
        dialog.showDetails();
        QCOMPARE(unspoken(dialog), QString());
        LogFile log;
        dialog.processError(QProcess::Crashed);
        QCOMPARE(unspoken(dialog), QString());
    }

    void detailsByKeyboard()
    {
        BusyDialog dialog;
        const Parts parts(dialog);
        dialog.show();
        parts.box->setFocus();
        QTest::keyClick(parts.box, Qt::Key_Space);
        QVERIFY(parts.view->isVisible());
        QTest::keyClick(parts.box, Qt::Key_Space);
        QVERIFY(!parts.view->isVisible());
    }

    void output_data()
    {
        QTest::addColumn<QString>("script");
        QTest::addColumn<QString>("text");
        QTest::newRow("plain") << "printf 'one\\ntwo\\n'"
                               << "one\ntwo\n";
        QTest::newRow("markup is text") << "printf '<b>bold</b> &amp;'"
                                        << "<b>bold</b> &amp;";
        QTest::newRow("markup on the error channel is text") << "printf '<i>x</i>' >&2"
                                                             << "<i>x</i>";
        QTest::newRow("blanks are kept") << "printf '  a   b\\n'"
                                         << "  a   b\n";
        QTest::newRow("UTF-8") << "printf 'Gr\\303\\274\\303\\237e'"
                               << QStringLiteral("Gr\u00fc\u00dfe");
        QTest::newRow("a character in two pieces")
            << "printf 'Gr\\303'; read x; printf '\\274n'" << QStringLiteral("Gr\u00fcn");
        QTest::newRow("four bytes in four pieces")
            << "for b in 360 237 230 200; do printf \"\\\\$b\"; read x; done"
            << QString::fromUtf8("\xf0\x9f\x98\x80");
        QTest::newRow("pieces of one channel while the other talks")
            << "printf '\\303'; read x; printf 'x\\n' >&2; read x; printf '\\244'"
            << QStringLiteral("x\n\u00e4");
        QTest::newRow("carriage returns") << "printf 'a\\r\\nb\\rc\\n'"
                                          << "a\nb\nc\n";
        QTest::newRow("carriage return and line feed in two pieces")
            << "printf 'a\\r'; read x; printf '\\nb'"
            << "a\nb";
        QTest::newRow("NUL and controls are left out") << "printf 'a\\000b\\033c\\007d\\177e\\tf'"
                                                       << "abcde\tf";
        QTest::newRow("not UTF-8") << "printf 'a\\377b'" << QStringLiteral("a\ufffdb");
        QTest::newRow("Qt's own marks are left out")
            << "printf 'a\\357\\267\\220b\\357\\267\\221c\\357\\277\\274d'"
            << "abcd";
        QTest::newRow("line separators end lines") << "printf 'a\\342\\200\\250b\\342\\200\\251c'"
                                                   << "a\nb\nc";
        QTest::newRow("nothing") << "true"
                                 << "";
    }
    void output()
    {
        QFETCH(QString, script);
        BusyDialog dialog;
        const Parts parts(dialog);
        QProcess process;
        QVERIFY(run(dialog, process, script));
        dialog.finished();
        QTEST(visibleText(parts), "text");
    }

    void bothChannelsInOrder()
    {
        BusyDialog dialog;
        const Parts parts(dialog);
        dialog.show();
        dialog.showDetails();
        QProcess process;
        QVERIFY(run(dialog, process,
                    QStringLiteral("echo first; read x; echo second >&2; read x; echo third")));
        dialog.finished();
        QCOMPARE(visibleText(parts), QStringLiteral("first\nsecond\nthird\n"));
        QVERIFY(!colourOf(parts.view, QStringLiteral("first")).isValid());
        QCOMPARE(colourOf(parts.view, QStringLiteral("second")), QColor(0x99, 0, 0));
        QVERIFY(!colourOf(parts.view, QStringLiteral("third")).isValid());
    }

    void readableOnDark()
    {
        BusyDialog dialog;
        const Parts parts(dialog);
        QPalette palette = dialog.palette();
        palette.setColor(QPalette::Base, QColor(0x20, 0x20, 0x20));
        palette.setColor(QPalette::Text, Qt::white);
        dialog.setPalette(palette);
        QProcess process;
        QVERIFY(run(dialog, process, QStringLiteral("echo bad >&2")));
        dialog.finished();
        QVERIFY(colourOf(parts.view, QStringLiteral("bad")).lightness() > 150);
    }

    // Output appears while the process runs, without anybody asking for it.
    void outputAppearsAtOnce()
    {
        BusyDialog dialog;
        const Parts parts(dialog);
        QProcess process;
        dialog.processOutputToDetails(&process);
        process.start(QStringLiteral("/bin/cat"), QStringList());
        process.write("hello\n");
        QTRY_COMPARE_WITH_TIMEOUT(visibleText(parts), QStringLiteral("hello\n"), 5000);
        process.closeWriteChannel();
        QVERIFY(process.waitForFinished());
    }

    void readChannelIsLeftAlone()
    {
        BusyDialog dialog;
        QProcess process;
        process.setReadChannel(QProcess::StandardError);
        QVERIFY(run(dialog, process, QStringLiteral("echo out; echo err >&2")));
        QCOMPARE(process.readChannel(), QProcess::StandardError);
    }

    void viewFollowsTheOutput()
    {
        BusyDialog dialog;
        const Parts parts(dialog);
        dialog.show();
        dialog.showDetails();
        QProcess process;
        QVERIFY(run(dialog, process, QStringLiteral("seq 1 500")));
        dialog.finished();
        const QScrollBar *bar = parts.view->verticalScrollBar();
        QVERIFY(bar->maximum() > 0);
        QCOMPARE(bar->value(), bar->maximum());
    }

    void viewOpensAtTheEnd()
    {
        BusyDialog dialog;
        const Parts parts(dialog);
        dialog.show();
        QProcess process;
        QVERIFY(run(dialog, process, QStringLiteral("seq 1 500")));
        dialog.finished();
        dialog.showDetails();
        const QScrollBar *bar = parts.view->verticalScrollBar();
        QTRY_VERIFY_WITH_TIMEOUT(bar->maximum() > 0 && bar->value() == bar->maximum(), 5000);
    }

    void followsAnInstallation()
    {
        BusyDialog dialog;
        dialog.setAutoReset(false);
        const Parts parts(dialog);
        const QTemporaryDir kept;
        RVInstallProc procedure({}, {}, {}, nullptr, rememberingBelow(kept.path()));
        dialog.follow(&procedure);
        Q_EMIT procedure.downloadProgress(KiB, 4 * KiB);
        QCOMPARE(parts.bar->text(), QStringLiteral("1 of 4 KiB"));
        Q_EMIT procedure.extractFinished();
        QVERIFY(parts.cancel->isHidden());
        Q_EMIT procedure.installStarted();
        QCOMPARE(parts.label->text(), QStringLiteral("Installing updates..."));
        procedure.setProgram(QStringLiteral("/nonexistent"));
        procedure.QProcess::start();
        QTRY_COMPARE(visibleText(parts), QStringLiteral("The process failed to start."));
        QVERIFY(!parts.close->isHidden());
    }

    void showsTheResults_data()
    {
        using State = RVItemResult::State;
        QTest::addColumn<QVector<State>>("states");
        QTest::addColumn<QString>("label");
        QTest::addColumn<bool>("hasBar");

        QTest::newRow("all") << QVector<State>{State::Installed, State::Installed}
                             << QStringLiteral("2 updates installed") << true;
        QTest::newRow("some") << QVector<State>{State::Installed, State::Failed, State::LeftOut}
                              << QStringLiteral("1 of 3 updates installed") << false;
        QTest::newRow("none") << QVector<State>{State::LeftOut}
                              << QStringLiteral("Installation failed") << false;
    }

    void showsTheResults()
    {
        QFETCH(QVector<RVItemResult::State>, states);
        QFETCH(QString, label);
        QFETCH(bool, hasBar);
        RVResult result;
        for (const RVItemResult::State state : states) {
            result.items.append(
                {RVData(QUrl(QStringLiteral("http://h/a.deb")), QUrl()), QStringLiteral("<b>a</b>"),
                 QString(), QStringLiteral("1.0"), state,
                 state == RVItemResult::State::Installed ? RVSentence() : RVSentence("No room."),
                 RVItemResult::Fault::None, 0});
        }
        BusyDialog dialog;
        const Parts parts(dialog);
        const auto *list = dialog.findChild<QListWidget *>(QStringLiteral("results"));
        dialog.show();
        QVERIFY(!list->isVisible());
        dialog.setResult(result);
        dialog.finished();
        QCOMPARE(parts.label->text(), label);
        QCOMPARE(parts.bar->isVisible(), hasBar);
        QVERIFY(list->isVisible());
        QVERIFY(list->geometry().bottom() < parts.box->geometry().top());
        QCOMPARE(list->count(), states.size());
        QVERIFY(list->item(0)->text().startsWith(QLatin1String("<b>a</b> 1.0: ")));
        QCOMPARE(list->item(list->count() - 1)->text().contains(QLatin1String("No room.")),
                 !hasBar);
    }

    void cancelEndsTheInstallation()
    {
        const QPointer<BusyDialog> dialog = new BusyDialog;
        RVInstallProc procedure({}, {}, {});
        int ends = 0;
        connect(&procedure, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), this,
                [&ends] {
                    ++ends;
                });
        dialog->follow(&procedure);
        dialog->show();
        dialog->cancel();
        QCOMPARE(ends, 1);
        QTRY_VERIFY(!dialog);
    }

    void anotherProcess()
    {
        BusyDialog dialog;
        const Parts parts(dialog);
        QProcess first;
        QProcess second;
        dialog.processOutputToDetails(&first);
        QVERIFY(run(dialog, second, QStringLiteral("echo two")));
        first.start(QStringLiteral("/bin/echo"), {QStringLiteral("one")});
        QVERIFY(first.waitForFinished());
        QCoreApplication::processEvents();
        dialog.finished();
        QCOMPARE(visibleText(parts), QStringLiteral("two\n"));
        dialog.processOutputToDetails(nullptr);
        dialog.appendProcessStdout();
        dialog.appendProcessStderr();
        QCOMPARE(visibleText(parts), QStringLiteral("two\n"));
    }

    // Half a character of an earlier process does not become part of the next one's output.
    void anotherProcessStartsAfresh()
    {
        BusyDialog dialog;
        const Parts parts(dialog);
        QProcess first;
        QProcess second;
        QVERIFY(run(dialog, first, QStringLiteral("printf 'a\\303'")));
        QVERIFY(run(dialog, second, QStringLiteral("printf 'b'")));
        dialog.finished();
        QCOMPARE(visibleText(parts), QStringLiteral("ab"));
    }

    void processDestroyed()
    {
        BusyDialog dialog;
        auto process = std::make_unique<QProcess>();
        dialog.processOutputToDetails(process.get());
        process.reset();
        dialog.appendProcessStdout();
        dialog.appendProcessStderr();
        QObject stranger;
        dialog.processDestroyed(&stranger);
    }

    void processNotStarted()
    {
        BusyDialog dialog;
        QProcess process;
        dialog.processOutputToDetails(&process);
        dialog.appendProcessStdout();
        dialog.appendProcessStderr();
        QVERIFY(visibleText(Parts(dialog)).isEmpty());
    }

    void processError_data()
    {
        QTest::addColumn<int>("error");
        QTest::addColumn<QString>("message");
        QTest::newRow("failed to start")
            << int(QProcess::FailedToStart) << "The process failed to start.";
        QTest::newRow("crashed") << int(QProcess::Crashed) << "The process crashed.";
        QTest::newRow("timed out") << int(QProcess::Timedout) << "The process timed out.";
        QTest::newRow("read error")
            << int(QProcess::ReadError) << "Error reading from the process.";
        QTest::newRow("write error")
            << int(QProcess::WriteError) << "Error writing to the process.";
        QTest::newRow("unknown error") << int(QProcess::UnknownError) << "Unknown process error.";
        QTest::newRow("any other") << 99 << "Unknown process error.";
    }
    void processError()
    {
        QFETCH(int, error);
        QFETCH(QString, message);
        LogFile log;
        const int level = RVLogger::m_level;
        RVLogger::m_level = 4;
        BusyDialog dialog;
        const Parts parts(dialog);
        dialog.show();
        dialog.processError(static_cast<QProcess::ProcessError>(error));
        RVLogger::m_level = 3;
        dialog.processError(static_cast<QProcess::ProcessError>(error));
        RVLogger::m_level = level;
        QCOMPARE(log.lines(), QStringList(message));
        QVERIFY(parts.view->isVisible());
        QVERIFY(parts.box->isChecked());
        QVERIFY(parts.close->isVisible());
        QVERIFY(!parts.cancel->isVisible());
        QCOMPARE(parts.bar->text(), QStringLiteral("100%:  Done"));
        QCOMPARE(visibleText(parts), message + QLatin1Char('\n') + message);
        QCOMPARE(colourOf(parts.view, message), QColor(0x99, 0, 0));
    }

    void processErrorAfterOutput()
    {
        LogFile log;
        BusyDialog dialog;
        QProcess process;
        QVERIFY(run(dialog, process, QStringLiteral("printf 'half a line'")));
        dialog.processError(QProcess::Crashed);
        QCOMPARE(visibleText(Parts(dialog)), QStringLiteral("half a line\nThe process crashed."));
    }

    void logContents_data()
    {
        QTest::addColumn<QString>("script");
        QTest::addColumn<QStringList>("lines");
        QTest::newRow("two lines")
            << "printf 'one\\ntwo'" << QStringList{QStringLiteral("one"), QStringLiteral("two")};
        QTest::newRow("per cent signs")
            << "printf '%%s%%n%%d 100%%'" << QStringList{QStringLiteral("%s%n%d 100%")};
        QTest::newRow("both channels") << "echo out; read x; printf err >&2"
                                       << QStringList{QStringLiteral("out"), QStringLiteral("err")};
        QTest::newRow("behind a NUL") << "printf 'a\\000b'" << QStringList{QStringLiteral("ab")};
        QTest::newRow("none") << "true" << QStringList{QString()};
    }
    void logContents()
    {
        QFETCH(QString, script);
        QFETCH(QStringList, lines);
        LogFile log;
        const int level = RVLogger::m_level;
        BusyDialog dialog;
        QProcess process;
        QVERIFY(run(dialog, process, script));
        RVLogger::m_level = 2;
        dialog.logContents();
        QVERIFY(log.lines().isEmpty());
        RVLogger::m_level = 3;
        dialog.logContents();
        RVLogger::m_level = level;
        QCOMPARE(log.lines(),
                 QStringList(QStringLiteral("Failed installation details:")) + lines
                     + QStringList(QString()));
    }

    // Five megabytes, as a large installation writes them, with the details open.
    void muchOutput()
    {
        BusyDialog dialog;
        const Parts parts(dialog);
        dialog.show();
        dialog.showDetails();
        QProcess process;
        const double cost = CpuCost::of([&] {
            QVERIFY(
                run(dialog, process,
                    QStringLiteral(
                        "awk 'BEGIN { for (i = 1; i <= 65536; i++) printf \"%-79d\\n\", i }'")));
            dialog.finished();
        });
        QVERIFY2(cost < 6000, qPrintable(QString::number(cost)));
        const QTextDocument *document = parts.view->document();
        QVERIFY(document->blockCount() <= 20001);
        QCOMPARE(document->firstBlock().text(),
                 QStringLiteral("(The beginning of the output is left out.)"));
        QVERIFY(document->lastBlock().previous().text().startsWith(QLatin1String("65536 ")));
        const QString second = document->firstBlock().next().text();
        QCOMPARE(second.size(), 79);
        QCOMPARE(second.trimmed().toInt(), 65536 - (document->blockCount() - 2) + 1);
    }

    // What comes while nobody looks at the view goes there at once, and only what stays.
    void floodOfOutput_data()
    {
        QTest::addColumn<QString>("script");
        QTest::addColumn<QString>("last");
        QTest::newRow("lines") << "seq 2000000"
                               << "2000000";
        QTest::newRow("both channels")
            << "seq 100000; for i in 1 2 3; do seq 30000 >&2; seq 30000; done; echo end"
            << "end";
        QTest::newRow("carriage returns") << "seq 200000 | tr '\\n' '\\r'"
                                          << "200000";
        QTest::newRow("three bytes a character")
            << "seq 100000 | sed 's/$/\342\202\254\342\202\254\342\202\254/'"
            << QStringLiteral("100000\u20ac\u20ac\u20ac");
    }
    void floodOfOutput()
    {
        QFETCH(QString, script);
        QFETCH(QString, last);
        BusyDialog dialog;
        const Parts parts(dialog);
        dialog.show();
        dialog.showDetails();
        const QTextDocument *document = parts.view->document();
        qint64 added = 0;
        int most = 0;
        connect(document, &QTextDocument::contentsChange, this, [&](int, int, int characters) {
            added += characters;
            most = qMax(most, document->blockCount());
        });
        QProcess process;
        dialog.processOutputToDetails(&process);
        process.start(QStringLiteral("/bin/sh"), {QStringLiteral("-c"), script});
        // Without an event loop, in which the view would be filled again and again.
        QVERIFY(process.waitForFinished(20000));
        dialog.finished();
        QCOMPARE(document->firstBlock().text(),
                 QStringLiteral("(The beginning of the output is left out.)"));
        QCOMPARE(document->lastBlock().previous().text(), last);
        QVERIFY(most > 19990);
        QVERIFY2(most <= 20002, qPrintable(QString::number(most)));
        QVERIFY2(added < 20002 * 20, qPrintable(QString::number(added)));
    }

    void oneEndlessLine()
    {
        BusyDialog dialog;
        const Parts parts(dialog);
        dialog.show();
        dialog.showDetails();
        QProcess process;
        QVERIFY(run(dialog, process, QStringLiteral("head -c 5000000 /dev/zero | tr '\\0' x")));
        dialog.finished();
        QVERIFY(parts.view->document()->characterCount() <= 2 * 1024 * 1024 + 1100);
        QVERIFY(parts.view->document()->characterCount() > 1900 * 1024);
        QCOMPARE(parts.view->document()->firstBlock().next().text(),
                 QString(1000, QLatin1Char('x')));
    }

    void languageChange()
    {
        BusyDialog byDefault;
        BusyDialog own(QStringLiteral("label"), QStringLiteral("cancel"), 0, 1);
        BusyDialog changed;
        changed.setLabelText(QStringLiteral("new label"));
        changed.setCancelButtonText(QStringLiteral("new cancel"));
        Marking translator;
        QCoreApplication::installTranslator(&translator);
        for (BusyDialog *dialog : {&byDefault, &own, &changed}) {
            QEvent event(QEvent::LanguageChange);
            QCoreApplication::sendEvent(dialog, &event);
            QCOMPARE(Parts(*dialog).box->title(), QStringLiteral("xx Show Details"));
        }
        QCoreApplication::removeTranslator(&translator);
        QCOMPARE(Parts(byDefault).label->text(), QStringLiteral("xx In progress..."));
        QCOMPARE(Parts(byDefault).cancel->text(), QStringLiteral("xx Cancel"));
        QCOMPARE(Parts(own).label->text(), QStringLiteral("label"));
        QCOMPARE(Parts(own).cancel->text(), QStringLiteral("cancel"));
        QCOMPARE(Parts(changed).label->text(), QStringLiteral("new label"));
        QCOMPARE(Parts(changed).cancel->text(), QStringLiteral("new cancel"));
    }

    void accessibleNames()
    {
        BusyDialog dialog(QStringLiteral("Retrieving updates..."), QStringLiteral("Cancel"), 0,
                          100);
        const Parts parts(dialog);
        QCOMPARE(parts.bar->accessibleName(), QStringLiteral("Retrieving updates..."));
        dialog.enterInstallPhase();
        QCOMPARE(parts.bar->accessibleName(), QStringLiteral("Installing updates..."));
        QVERIFY(!parts.view->accessibleName().isEmpty());
        QVERIFY(!parts.box->accessibleDescription().isEmpty());
    }

private:
    std::unique_ptr<WarningGuard> m_guard;
};

QTEST_MAIN(tst_BusyDialog)
#include "tst_BusyDialog.moc"

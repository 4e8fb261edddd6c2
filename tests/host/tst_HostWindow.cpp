// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/HostWindow.h"
#include "tests/support/WarningGuard.h"
#include "tests/ui/Spoken.h"

#include <plume/Accordion.h>
#include <plume/AccordionItem.h>
#include <plume/ControlFrame.h>
#include <plume/TitlePage.h>

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QFontInfo>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QProcess>
#include <QSettings>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBrowser>
#include <QToolButton>

#include <sys/stat.h>

namespace
{

class PlainPage : public WizardPage
{
    Q_OBJECT

public:
    QString title() const override { return tr("&File"); }
    QString description() const override { return QStringLiteral("<i>no markup</i>"); }
    QString helpText() const override { return QStringLiteral("<p>Plain <b>help</b></p>"); }
};

class DescribedPage : public PlainPage
{
    Q_OBJECT

public:
    QString description() const override { return QStringLiteral("What it is for"); }
};

class Section : public ControlFrame
{
    Q_OBJECT

public:
    QString title() const override { return QStringLiteral("Section"); }
    QString helpText() const override { return {}; }
    QIcon icon() const override { return {}; }
};

class HelpfulPage : public PlainPage
{
    Q_OBJECT

public:
    QString title() const override { return m_title; }

    QString m_title = QStringLiteral("Helpful");

Q_SIGNALS:
    void helpChanged(const QString &text);
};

} // namespace

class tst_HostWindow : public QObject
{
    Q_OBJECT

private:
    template<typename T>
    static T *child(const HostWindow &window, const char *name)
    {
        return window.findChild<T *>(QString::fromLatin1(name));
    }

    static void write(const QString &path, const QByteArray &content)
    {
        QVERIFY(QDir().mkpath(QFileInfo(path).path()));
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

private Q_SLOTS:
    void initTestCase() { HostWindow::nameApplication(); }

    void init() { QSettings().clear(); }
    void cleanup() { QLocale::setDefault(QLocale::c()); }

    void loadErrorsAreSentences_data()
    {
        QTest::addColumn<QByteArray>("imageId");
        QTest::addColumn<QByteArray>("definitions");
        QTest::addColumn<QString>("message");
        const QByteArray id("6.1.2\n");
        QTest::newRow("no image identification")
            << QByteArray() << QByteArray("<repository_list/>")
            << QStringLiteral("The file that identifies the installed image, \"%1/etc/imageid\", "
                              "cannot be read.");
        QTest::newRow("no definition directory")
            << id << QByteArray()
            << QStringLiteral("The directory with the repository definitions, "
                              "\"%1/etc/cvtc-ravel/repositories\", does not exist.");
        const QString bad = QStringLiteral(
            "A repository definition file in \"%1/etc/cvtc-ravel/repositories\" is not a valid "
            "repository list. The log file says which one.");
        QTest::newRow("definition not well-formed")
            << id << QByteArray("<repository_list><repository>") << bad;
        QTest::newRow("another document element") << id << QByteArray("<repositories/>") << bad;
        QTest::newRow("no repository defined")
            << id << QByteArray("<repository_list/>")
            << QStringLiteral("The definition files in \"%1/etc/cvtc-ravel/repositories\" define "
                              "no repository.");
    }

    void loadErrorsAreSentences()
    {
        QFETCH(QByteArray, imageId);
        QFETCH(QByteArray, definitions);
        QFETCH(QString, message);
        QTemporaryDir root;
        QVERIFY(QDir(root.path()).mkpath(QStringLiteral("tmp")));
        QVERIFY(QDir(root.path()).mkpath(QStringLiteral("var/log")));
        if (!imageId.isEmpty()) {
            write(root.filePath(QStringLiteral("etc/imageid")), imageId);
        }
        if (!definitions.isEmpty()) {
            write(root.filePath(QStringLiteral("etc/cvtc-ravel/repositories/a.xml")), definitions);
        }
        WarningGuard guard;
        guard.allow(QStringLiteral("OSInfo exception caught"));
        guard.allow(QStringLiteral("CRITICAL|^\\*+$|^  /"));
        {
            HostWindow window;
            QString error;
            QVERIFY(!window.load(RVPaths::under(root.path()), &error));
            QCOMPARE(error, message.arg(root.path()));
        }
    }

    void rootMovesSettingsAndToolLog()
    {
        QTemporaryDir root;
        const QString own = QSettings().fileName();
        const RVPaths paths = HostWindow::enterRoot(root.path());
        QCOMPARE(paths.imageId, root.path() + QLatin1String("/etc/imageid"));
        QVERIFY(paths.installerEnvironment.contains(QLatin1String("HOME=") + root.path()));
        QCOMPARE(QSettings().fileName(),
                 root.path() + QLatin1String("/.config/Corvane/ravel-host.conf"));
        QVERIFY(own != QSettings().fileName());
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope,
                           QFileInfo(own).dir().filePath(QStringLiteral("..")));
    }

    void pagesAreListedUnderTheirTitles()
    {
        HostWindow window;
        window.addTitlePage(
            new TitlePage(QStringLiteral("Welcome"), QStringLiteral("d"), QString()));
        auto *page = new HelpfulPage;
        window.addNormalPage(page);
        auto *list = child<QListWidget>(window, "pageList");
        QCOMPARE(list->count(), 2);
        QCOMPARE(list->item(0)->text(), QStringLiteral("Welcome"));
        QCOMPARE(list->item(1)->text(), QStringLiteral("Helpful"));
        QVERIFY(!list->item(0)->icon().isNull());
        QVERIFY(!list->item(1)->icon().isNull());
        QVERIFY(!list->accessibleName().isEmpty());
        window.show();

        // The title page says everything itself.
        QCOMPARE(list->currentRow(), 0);
        QVERIFY(!child<QLabel>(window, "pageTitle")->isVisible());
        QVERIFY(!child<QTextBrowser>(window, "helpPane")->isVisible());

        list->setFocus();
        QTest::keyClick(list, Qt::Key_Down);
        QVERIFY(page->isVisible());
        QVERIFY(child<QLabel>(window, "pageTitle")->isVisible());
        QCOMPARE(child<QLabel>(window, "pageTitle")->text(), QStringLiteral("Helpful"));
        QCOMPARE(child<QLabel>(window, "pageDescription")->text(),
                 QStringLiteral("<i>no markup</i>"));
        QCOMPARE(child<QLabel>(window, "pageDescription")->textFormat(), Qt::PlainText);
        QCOMPARE(child<QTextBrowser>(window, "helpPane")->toPlainText(),
                 QStringLiteral("Plain help"));
    }

    void helpFollowsTheCurrentPage()
    {
        HostWindow window;
        auto *first = new HelpfulPage;
        auto *second = new HelpfulPage;
        window.addNormalPage(first);
        window.addNormalPage(second);
        window.addNormalPage(new PlainPage);
        auto *help = child<QTextBrowser>(window, "helpPane");
        Q_EMIT first->helpChanged(QStringLiteral("<b>one</b>"));
        QCOMPARE(help->toPlainText(), QStringLiteral("one"));
        Q_EMIT second->helpChanged(QStringLiteral("two"));
        QCOMPARE(help->toPlainText(), QStringLiteral("one"));
        auto *list = child<QListWidget>(window, "pageList");
        list->setCurrentRow(1);
        QCOMPARE(help->toPlainText(), QStringLiteral("two"));
        list->setCurrentRow(2);
        QCOMPARE(help->toPlainText(), QStringLiteral("Plain help"));
        // What the page has open still is.
        list->setCurrentRow(0);
        QCOMPARE(help->toPlainText(), QStringLiteral("one"));
    }

    void speaks()
    {
        HostWindow window;
        window.addTitlePage(
            new TitlePage(QStringLiteral("Welcome"), QStringLiteral("d"), QStringLiteral("h")));
        auto *page = new DescribedPage;
        window.addNormalPage(page);
        window.show();
        QCOMPARE(unspoken(window), QString());
        child<QListWidget>(window, "pageList")->setCurrentRow(1);
        Q_EMIT page->modified();
        QCOMPARE(unspoken(window), QString());
    }

    // An image that never ends, such as a FIFO, would stop the window for good.
    void helpFetchesNothing()
    {
        QTemporaryDir directory;
        const QString fifo = directory.filePath(QStringLiteral("fifo"));
        QCOMPARE(mkfifo(QFile::encodeName(fifo).constData(), 0600), 0);
        HostWindow window;
        auto *page = new HelpfulPage;
        window.addNormalPage(page);
        window.show();
        Q_EMIT page->helpChanged(QStringLiteral("<p>before <img src='%1'> after</p>").arg(fifo));
        window.grab();
        QVERIFY(child<QTextBrowser>(window, "helpPane")
                    ->toPlainText()
                    .startsWith(QLatin1String("before")));
    }

    void modifiedMarkAppears()
    {
        HostWindow window;
        auto *page = new PlainPage;
        window.addNormalPage(page);
        window.show();
        QVERIFY(!child<QWidget>(window, "modifiedMark")->isVisible());
        QVERIFY(!window.isSystemModified());
        Q_EMIT page->modified();
        QVERIFY(child<QWidget>(window, "modifiedMark")->isVisible());
        QVERIFY(window.isSystemModified());
        QCOMPARE(child<QLabel>(window, "modifiedText")->text(), QStringLiteral("System modified"));
    }

    void languageSwitchesAtRunTime_data()
    {
        QTest::addColumn<QString>("code");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("file");
        QTest::newRow("German") << "de" << QStringLiteral("Deutsch") << "&Datei";
        QTest::newRow("French") << "fr" << QStringLiteral("Français") << "&Fichier";
    }

    void languageSwitchesAtRunTime()
    {
        QFETCH(QString, code);
        QFETCH(QString, name);
        QFETCH(QString, file);
        HostWindow window;
        auto *page = new HelpfulPage;
        window.addNormalPage(page);
        window.show();
        const auto trigger = [&window](const QString &language) {
            auto *action = window.findChild<QAction *>(QLatin1String("language_") + language);
            QVERIFY(action);
            action->trigger();
            QVERIFY(action->isChecked());
        };
        const QAction *first = window.menuBar()->actions().constFirst();
        QCOMPARE(first->text(), QStringLiteral("&File"));
        QCOMPARE(window.findChild<QAction *>(QLatin1String("language_") + code)->text(), name);

        page->m_title = QStringLiteral("Other");
        trigger(code);
        QTRY_COMPARE(first->text(), file);
        QCOMPARE(QLocale(), QLocale(code));
        QTRY_COMPARE(child<QListWidget>(window, "pageList")->item(0)->text(),
                     QStringLiteral("Other"));
        QCOMPARE(child<QLabel>(window, "pageTitle")->text(), QStringLiteral("Other"));

        trigger(QStringLiteral("en"));
        QTRY_COMPARE(first->text(), QStringLiteral("&File"));
        trigger(QString());
        QCOMPARE(QLocale(), QLocale::system());
    }

    void languageAndSizeAreRemembered()
    {
        {
            HostWindow window;
            window.show();
            window.setLanguage(QStringLiteral("de"));
            window.resize(window.minimumWidth() + 40, window.minimumHeight() + 30);
            QVERIFY(window.close());
        }
        HostWindow window;
        QCOMPARE(window.menuBar()->actions().constFirst()->text(), QStringLiteral("&Datei"));
        QCOMPARE(window.size(), QSize(window.minimumWidth() + 40, window.minimumHeight() + 30));
    }

    void closeWaitsForAProcess()
    {
        HostWindow window;
        auto *page = new PlainPage;
        window.addNormalPage(page);
        window.show();
        QProcess process(page);
        process.start(QStringLiteral("cat"), QStringList());
        QVERIFY(process.waitForStarted());
        QVERIFY(!window.close());
        QVERIFY(window.isVisible());
        QVERIFY(!window.statusBar()->currentMessage().isEmpty());
        process.closeWriteChannel();
        QVERIFY(process.waitForFinished());
        QVERIFY(window.close());
    }

    void closeWaitsForADialog()
    {
        HostWindow window;
        window.show();
        QDialog dialog(&window);
        dialog.setWindowModality(Qt::WindowModal);
        dialog.show();
        QVERIFY(!window.close());
        dialog.hide();
        QVERIFY(window.close());
    }

    void fontsInPixelsGrow()
    {
        const QFont usual = QApplication::font();
        QFont font = usual;
        font.setPixelSize(20);
        QApplication::setFont(font);
        WarningGuard guard;
        {
            HostWindow window;
            auto *title = new TitlePage(QStringLiteral("t"), QStringLiteral("d"), QString());
            window.addTitlePage(title);
            const auto *label = title->findChild<QLabel *>(QStringLiteral("titlePageTitle"));
            QVERIFY(QFontInfo(label->font()).pixelSize() > 30);
            QVERIFY(QFontInfo(child<QLabel>(window, "pageTitle")->font()).pixelSize() > 25);
            Accordion accordion;
            auto *item = new AccordionItem(new Section);
            accordion.addItem(item);
            QVERIFY(item->findChild<QToolButton *>()->sizeHint().height() > 20);
            accordion.grab();
        }
        QApplication::setFont(usual);
    }

    void helpPaneCanBeHidden()
    {
        HostWindow window;
        window.addNormalPage(new PlainPage);
        window.show();
        auto *help = child<QTextBrowser>(window, "helpPane");
        QVERIFY(help->isVisible());
        auto *action = child<QAction>(window, "showHelpAction");
        action->trigger();
        QVERIFY(!help->isVisible());
        action->trigger();
        QVERIFY(help->isVisible());
    }
};

QTEST_MAIN(tst_HostWindow)
#include "tst_HostWindow.moc"

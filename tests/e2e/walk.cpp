// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
//
// ravel-walk ROOT SCREENSHOTS [normal|large|dark|contrast]: goes through the main job in the demo
// world as a person would, with mouse and keyboard, and looks at what is on the screen and in the
// package database. It knows the library's widgets by their class and object names alone.
#include "host/HostWindow.h"
#include "tests/e2e/Legibility.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCursor>
#include <QDeadlineTimer>
#include <QDialog>
#include <QDir>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QProcess>
#include <QProgressBar>
#include <QScreen>
#include <QTableWidget>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>
#include <QTextDocumentFragment>
#include <QTextEdit>
#include <QTextStream>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <unistd.h>

namespace
{

constexpr int stepTimeout = 15000;
constexpr int stillTimeout = 2000;

struct Failure {
    QString reason;
};

void require(bool condition, const QString &reason)
{
    if (!condition) {
        throw Failure{reason};
    }
}

void waitFor(const std::function<bool()> &condition, const QString &what)
{
    require(QTest::qWaitFor(condition, stepTimeout), QStringLiteral("no %1").arg(what));
}

void requireEqual(const QStringList &actual, const QStringList &expected)
{
    require(actual == expected,
            QStringLiteral("expected [%1], found [%2]")
                .arg(expected.join(QLatin1String("; ")), actual.join(QLatin1String("; "))));
}

QString plain(QString text)
{
    if (Qt::mightBeRichText(text)) {
        text = QTextDocumentFragment::fromHtml(text).toPlainText();
    }
    // Mnemonics, and the places where a long word may be broken.
    return text.remove(QLatin1Char('&')).remove(QChar(0x200b));
}

bool isOfClass(const QObject *object, const char *className)
{
    return object->inherits(className);
}

QWidget *findByClass(const QWidget *parent, const char *className)
{
    const QList<QWidget *> widgets = parent->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        if (isOfClass(widget, className) && widget->isVisible()) {
            return widget;
        }
    }
    return nullptr;
}

QDialog *dialog(const char *className)
{
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (QWidget *widget : widgets) {
        if (isOfClass(widget, className) && widget->isVisible()) {
            return qobject_cast<QDialog *>(widget);
        }
    }
    return nullptr;
}

QAbstractButton *button(const QWidget *parent, const QString &text)
{
    const QList<QAbstractButton *> buttons = parent->findChildren<QAbstractButton *>();
    for (QAbstractButton *candidate : buttons) {
        if (candidate->isVisible() && plain(candidate->text()) == text) {
            return candidate;
        }
    }
    throw Failure{QStringLiteral("no button \"%1\"").arg(text)};
}

void click(QWidget *widget)
{
    require(widget->isEnabled(), QStringLiteral("a control is not enabled"));
    QTest::mouseClick(widget, Qt::LeftButton);
}

/// Each key to what has the focus by then.
void type(const QString &text)
{
    for (const QChar key : text) {
        QTest::keyClick(QApplication::focusWidget(), key.toLatin1());
    }
}

/// Notes whether something was laid out or painted, or is to be.
class Movement : public QObject
{
public:
    bool seen = false;

    bool eventFilter(QObject *, QEvent *event) override
    {
        switch (event->type()) {
        case QEvent::LayoutRequest:
        case QEvent::LanguageChange:
        case QEvent::Move:
        case QEvent::Resize:
        case QEvent::Show:
        case QEvent::Expose:
        case QEvent::UpdateRequest:
        case QEvent::Paint:
            seen = true;
            break;
        default:
            break;
        }
        return false;
    }
};

/// Waits until nothing moves any more in a round of events and one of the display's.
void settle(QScreen *screen)
{
    Movement movement;
    qApp->installEventFilter(&movement);
    // What never stands still, such as a bar that runs to and fro, is taken as it is.
    QDeadlineTimer deadline(stillTimeout);
    do {
        movement.seen = false;
        // Answered once the display has done all that it was asked for.
        screen->grabWindow(0, 0, 0, 1, 1);
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    } while (movement.seen && !deadline.hasExpired());
}

class Walk
{
public:
    Walk(const QString &root, const QString &screenshots)
        : m_root(root)
        , m_screenshots(screenshots)
    {
    }

    bool run();

private:
    void step(const char *what, const std::function<void()> &body);
    void openWindow();
    void changePages();
    void checkSections();
    void refreshPackages();
    void checkOffer();
    void readDetails();
    void switchLanguage();
    void install();
    void finishPackages();
    void checkDatabase();
    void checkInstalledTable();
    void checkServicePacks();
    void installServicePack();
    void finishServicePack();
    void checkServicePackRoot();
    void checkApplications();
    void installApplications();
    void checkInstalledApplications();
    void checkImages();
    void refuseCertificate();
    void acceptCertificate();
    void logInWrongly();
    void logIn();
    void installDriver();
    void declineImage();
    void installImage();
    void openOptions();
    void setProxy();
    void changeLocation();
    void restoreLocations();
    void removeProxy();
    void checkLog();
    void closeWindow();

    QList<QWidget *> sections() const;
    QWidget *section(const QString &title) const;
    void openSection(const QString &title);
    QTableWidget *table() const;
    QStringList rows() const;
    void clickCell(int row, int column);
    void startInstallation();
    void finishInstallation(const QStringList &lines, const QString &name);
    void refresh(const QString &buttonText);
    void awaitMessage();
    void closeMessage();
    void whenAsked(const char *className, const std::function<void(QDialog *)> &act);
    QList<QLineEdit *> loginFields() const;
    void answerLogin(const QString &user, const QString &password);
    void installOnly(const QString &row, const QString &line, const QString &package,
                     const QString &picture);
    QByteArray contents(const QString &path) const;
    QStringList installedPackages() const;
    void chooseLanguage(const QString &code);
    void showPage(const char *className, Qt::Key key);
    void answer(const QString &buttonText, const QString &screenshotName);
    QWidget *options() const { return findByClass(m_window.get(), "RVAdvPage"); }
    QByteArray settings() const;
    void picture(const QString &name);
    void screenshot(const QString &name);

    QString m_root;
    QString m_screenshots;
    std::unique_ptr<HostWindow> m_window;
    QWidget *m_section = nullptr;
    QTcpServer m_proxy;
    QByteArray m_proxyRequest;
    /// Why an answer of whenAsked() failed.
    QString m_aside;
};

void Walk::step(const char *what, const std::function<void()> &body)
{
    try {
        body();
        require(m_aside.isEmpty(), m_aside);
    } catch (const Failure &failure) {
        picture(QStringLiteral("failure"));
        std::printf("FAIL %s: %s\n", what, qUtf8Printable(failure.reason));
        throw;
    }
    std::printf("ok   %s\n", what);
    std::fflush(stdout);
}

bool Walk::run()
{
    try {
        step("the window opens", [this] {
            openWindow();
        });
        step("the keyboard goes from page to page", [this] {
            changePages();
        });
        step("the sections are there", [this] {
            checkSections();
        });
        step("the packages are refreshed", [this] {
            refreshPackages();
        });
        step("what fits is offered, what is newer is chosen", [this] {
            checkOffer();
        });
        step("the details are shown and closed", [this] {
            readDetails();
        });
        step("the language changes and changes back", [this] {
            switchLanguage();
        });
        step("the installation starts and shows progress", [this] {
            install();
        });
        step("the installation ends and shows dpkg's output", [this] {
            finishPackages();
        });
        step("the package database has the offered versions", [this] {
            checkDatabase();
        });
        step("the table shows them as installed", [this] {
            checkInstalledTable();
        });
        step("the service packs leave out the installed one", [this] {
            checkServicePacks();
        });
        step("a service pack that describes itself is installed", [this] {
            installServicePack();
        });
        step("the installation ends and shows xarinstall's output", [this] {
            finishServicePack();
        });
        step("its files are there, and it is no longer offered", [this] {
            checkServicePackRoot();
        });
        step("packages that describe themselves are offered", [this] {
            checkApplications();
        });
        step("dpkg installs them", [this] {
            installApplications();
        });
        step("the table and the database have their versions", [this] {
            checkInstalledApplications();
        });
        step("an unknown certificate is refused, and nothing is listed", [this] {
            refuseCertificate();
        });
        step("it is accepted, and a package comes over HTTPS", [this] {
            acceptCertificate();
        });
        step("a wrong login is asked for again", [this] {
            logInWrongly();
        });
        step("with the right one a package comes over HTTP", [this] {
            logIn();
        });
        step("a package comes over FTP", [this] {
            installDriver();
        });
        step("one of the images can be chosen", [this] {
            checkImages();
        });
        step("the question before an image is answered with no", [this] {
            declineImage();
        });
        step("it is answered with yes, and the device would restart", [this] {
            installImage();
        });
        step("the options page opens", [this] {
            openOptions();
        });
        step("a proxy is entered, its port corrected", [this] {
            setProxy();
        });
        step("a location is changed, and its section follows through the proxy", [this] {
            changeLocation();
        });
        step("the defaults are restored, and the section follows", [this] {
            restoreLocations();
        });
        step("the proxy is switched off again", [this] {
            removeProxy();
        });
        step("the log tells the story", [this] {
            checkLog();
        });
        step("the window closes and keeps its settings", [this] {
            closeWindow();
        });
    } catch (const Failure &) {
        return false;
    }
    return true;
}

/// The window with whatever lies over it.
void Walk::picture(const QString &name)
{
    if (!m_window) {
        return;
    }
    QScreen *screen = m_window->screen();
    QWidgetList shown = QApplication::topLevelWidgets();
    shown.erase(std::remove_if(shown.begin(), shown.end(),
                               [](QWidget *widget) {
                                   return !widget->isVisible()
                                       || !QTest::qWaitForWindowExposed(widget);
                               }),
                shown.end());
    settle(screen);
    QRect area = m_window->frameGeometry();
    for (const QWidget *widget : qAsConst(shown)) {
        area |= widget->frameGeometry();
    }
    screen->grabWindow(0, area.x(), area.y(), area.width(), area.height())
        .save(QDir(m_screenshots).filePath(name + QLatin1String(".png")));
}

/// What is worth a picture has to be legible.
void Walk::screenshot(const QString &name)
{
    picture(name);
    QStringList unread;
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (QWidget *widget : widgets) {
        if (widget->isVisible()) {
            unread.append(illegible(widget));
        }
    }
    unread.removeAll(QString());
    require(unread.isEmpty(), unread.join(QLatin1Char('\n')));
}

QList<QWidget *> Walk::sections() const
{
    QList<QWidget *> result;
    const QList<QWidget *> widgets = m_window->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        if (isOfClass(widget, "AccordionItem") && widget->isVisible()) {
            result.append(widget);
        }
    }
    return result;
}

QWidget *Walk::section(const QString &title) const
{
    const QList<QWidget *> all = sections();
    for (QWidget *item : all) {
        const auto *heading =
            item->findChild<QAbstractButton *>(QStringLiteral("accordionHeading"));
        if (heading->accessibleName() == title) {
            return item;
        }
    }
    throw Failure{QStringLiteral("no section \"%1\"").arg(title)};
}

void Walk::openSection(const QString &title)
{
    m_section = section(title);
    auto *heading = m_section->findChild<QAbstractButton *>(QStringLiteral("accordionHeading"));
    if (!heading->isChecked()) {
        click(heading);
    }
    waitFor(
        [this] {
            return table() && table()->isVisible();
        },
        QStringLiteral("table"));
}

QTableWidget *Walk::table() const
{
    return qobject_cast<QTableWidget *>(findByClass(m_section, "SelectionTable"));
}

QStringList Walk::rows() const
{
    QStringList result;
    const QTableWidget *shown = table();
    require(shown, QStringLiteral("no table"));
    for (int row = 0; row < shown->rowCount(); ++row) {
        const QString name = plain(shown->item(row, 1)->text()).section(QLatin1Char('\n'), 0, 0);
        const bool checked = shown->item(row, 0)->checkState() == Qt::Checked;
        QStringList cells{checked ? QStringLiteral("x") : QStringLiteral("-"), name};
        for (int column = 2; column < 4; ++column) {
            if (!shown->isColumnHidden(column)) {
                cells.append(shown->item(row, column)->text());
            }
        }
        result.append(cells.join(QLatin1Char(' ')));
    }
    return result;
}

void Walk::clickCell(int row, int column)
{
    QTableWidget *shown = table();
    require(shown && shown->item(row, column), QStringLiteral("no such cell"));
    shown->scrollToItem(shown->item(row, column));
    QTest::mouseClick(shown->viewport(), Qt::LeftButton, {},
                      shown->visualItemRect(shown->item(row, column)).center());
}

void Walk::openWindow()
{
    // Out of the way of what is looked at.
    QCursor::setPos(0, 0);
    m_window = std::make_unique<HostWindow>();
    QString error;
    require(m_window->load(HostWindow::enterRoot(m_root), &error), error);
    m_window->show();
    require(QTest::qWaitForWindowActive(m_window.get(), stepTimeout),
            QStringLiteral("the window is not active"));
}

void Walk::changePages()
{
    auto *list = m_window->findChild<QListWidget *>(QStringLiteral("pageList"));
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Home);
    waitFor(
        [this] {
            return findByClass(m_window.get(), "TitlePage");
        },
        QStringLiteral("title page"));
    screenshot(QStringLiteral("welcome"));
    QTest::keyClick(list, Qt::Key_Down);
    waitFor(
        [this] {
            return findByClass(m_window.get(), "RVMainPage");
        },
        QStringLiteral("updates page"));
}

void Walk::checkSections()
{
    QStringList titles;
    const QList<QWidget *> all = sections();
    for (const QWidget *item : all) {
        titles.append(item->findChild<QAbstractButton *>(QStringLiteral("accordionHeading"))
                          ->accessibleName());
    }
    requireEqual(titles,
                 {QStringLiteral("Software images"), QStringLiteral("Service packs"),
                  QStringLiteral("Packages"), QStringLiteral("Applications"),
                  QStringLiteral("Security"), QStringLiteral("Site software"),
                  QStringLiteral("Drivers")});
}

void Walk::refreshPackages()
{
    openSection(QStringLiteral("Packages"));
    const QPointer<QTableWidget> before = table();
    click(button(m_section, QStringLiteral("Refresh")));
    waitFor(
        [this, &before] {
            return before.isNull() && table();
        },
        QStringLiteral("new table"));
    const auto *help = m_window->findChild<QTextEdit *>(QStringLiteral("helpPane"));
    require(help->toPlainText().startsWith(QLatin1String("Packages update single programs")),
            QStringLiteral("the help pane does not follow the section"));
}

void Walk::checkOffer()
{
    requireEqual(
        rows(),
        {QStringLiteral("x tc-audio 0.9-1 1.0-1"), QStringLiteral("x tc-browser 4.2-1 4.3-1"),
         QStringLiteral("x tc-network none 1.1-1"), QStringLiteral("- tc-printing 1.6-2 1.6-2"),
         QStringLiteral("x tc-terminal 2.0-3 2.1-1")});
    screenshot(QStringLiteral("packages"));
}

void Walk::readDetails()
{
    clickCell(1, 1);
    click(button(m_section, QStringLiteral("Details")));
    waitFor(
        [] {
            return dialog("ItemDetailsDialog");
        },
        QStringLiteral("details dialog"));
    QPointer<QDialog> details = dialog("ItemDetailsDialog");
    require(QTest::qWaitForWindowActive(details, stepTimeout),
            QStringLiteral("the dialog is not active"));
    require(details->windowTitle() == QLatin1String("tc-browser"), details->windowTitle());
    QString text;
    const QList<QLabel *> labels = details->findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        text += plain(label->text()) + QLatin1Char('\n');
    }
    for (const QString &expected :
         {QStringLiteral("Web browser with kiosk mode"), QStringLiteral("4.3-1"),
          QStringLiteral("/repos/packages/tc-browser_4.3-1_all.xml"), QStringLiteral("2.8 MiB")}) {
        require(text.contains(expected), QStringLiteral("no \"%1\" in \"%2\"").arg(expected, text));
    }
    const auto *notes = details->findChild<QTextEdit *>();
    require(notes && notes->toPlainText().contains(QLatin1String("Kiosk mode keeps its home page")),
            QStringLiteral("the notes are not there"));
    screenshot(QStringLiteral("details"));
    click(button(details, QStringLiteral("OK")));
    waitFor(
        [&details] {
            return details.isNull();
        },
        QStringLiteral("end of the dialog"));
    waitFor(
        [this] {
            return table() && table()->hasFocus();
        },
        QStringLiteral("focus in the table"));
}

void Walk::chooseLanguage(const QString &code)
{
    auto *menu = m_window->findChild<QMenu *>(QStringLiteral("languageMenu"));
    auto *action = m_window->findChild<QAction *>(QLatin1String("language_") + code);
    require(menu && action, QStringLiteral("no such language"));
    QMenuBar *bar = m_window->menuBar();
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(menu->menuAction()).center());
    waitFor(
        [menu] {
            return menu->isVisible();
        },
        QStringLiteral("language menu"));
    QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
}

void Walk::switchLanguage()
{
    const auto shows = [this](const QString &heading, const QString &title, const QString &menu) {
        const auto *button =
            m_section->findChild<QAbstractButton *>(QStringLiteral("accordionHeading"));
        return button->accessibleName() == heading && table()
            && plain(table()->item(1, 1)->text()).endsWith(title)
            && plain(m_window->menuBar()->actions().constFirst()->text()) == menu;
    };
    const QStringList before = rows();
    chooseLanguage(QStringLiteral("de"));
    waitFor(
        [&shows] {
            return shows(QStringLiteral("Pakete"), QStringLiteral("Webbrowser mit Kioskmodus"),
                         QStringLiteral("Datei"));
        },
        QStringLiteral("German texts"));
    const auto *help = m_window->findChild<QTextEdit *>(QStringLiteral("helpPane"));
    require(help->toPlainText().startsWith(QLatin1String("Pakete aktualisieren")),
            QStringLiteral("the help pane does not follow the language"));
    screenshot(QStringLiteral("german"));
    chooseLanguage(QStringLiteral("en"));
    waitFor(
        [&shows] {
            return shows(QStringLiteral("Packages"), QStringLiteral("Web browser with kiosk mode"),
                         QStringLiteral("File"));
        },
        QStringLiteral("English texts"));
    requireEqual(rows(), before);
}

void Walk::install()
{
    const auto *mark = m_window->findChild<QWidget *>(QStringLiteral("modifiedMark"));
    require(!mark->isVisible(), QStringLiteral("the system counts as modified too early"));
    startInstallation();
    screenshot(QStringLiteral("progress"));
}

void Walk::startInstallation()
{
    QAbstractButton *start = button(m_section, QStringLiteral("Install"));
    start->setFocus();
    QTest::keyClick(m_window->focusWidget(), Qt::Key_Space);
    waitFor(
        [] {
            return dialog("BusyDialog");
        },
        QStringLiteral("progress dialog"));
    require(dialog("BusyDialog")->isModal(), QStringLiteral("the dialog is not modal"));
}

void Walk::finishPackages()
{
    finishInstallation({QStringLiteral("Setting up tc-audio (1.0-1)"),
                        QStringLiteral("Setting up tc-browser (4.3-1)"),
                        QStringLiteral("Setting up tc-network (1.1-1)"),
                        QStringLiteral("Setting up tc-terminal (2.1-1)")},
                       QStringLiteral("installed"));
}

/// Waits for the installer and closes the dialog; `lines` are in what it said.
void Walk::finishInstallation(const QStringList &lines, const QString &name)
{
    QPointer<QDialog> busy = dialog("BusyDialog");
    require(busy, QStringLiteral("the dialog has gone"));
    waitFor(
        [&busy] {
            return !busy
                || busy->findChild<QProgressBar *>()->text().contains(QLatin1String("Done"));
        },
        QStringLiteral("end of the installation"));
    require(busy, QStringLiteral("the dialog has gone"));
    auto *details = busy->findChild<QGroupBox *>();
    require(!details->isChecked(), QStringLiteral("details open: the installation failed"));
    details->setFocus();
    QTest::keyClick(details, Qt::Key_Space);
    const auto *output = busy->findChild<QTextEdit *>();
    waitFor(
        [output] {
            return output->isVisible();
        },
        QStringLiteral("output"));
    for (const QString &line : lines) {
        require(output->toPlainText().contains(line),
                QStringLiteral("no \"%1\" in \"%2\"").arg(line, output->toPlainText()));
    }
    require(!output->toPlainText().contains(QLatin1String("warning")), output->toPlainText());
    screenshot(name);
    click(button(busy, QStringLiteral("Close")));
    waitFor(
        [&busy] {
            return busy.isNull();
        },
        QStringLiteral("end of the dialog"));
    waitFor(
        [this] {
            return table() && table()->hasFocus();
        },
        QStringLiteral("focus in the table"));
}

QStringList Walk::installedPackages() const
{
    QProcess query;
    query.start(QStringLiteral("dpkg-query"),
                {QStringLiteral("--admindir=") + m_root + QLatin1String("/var/lib/dpkg"),
                 QStringLiteral("--show"), QStringLiteral("--showformat"),
                 QStringLiteral("${Package} ${Version} ${db:Status-Status}\\n")});
    require(query.waitForFinished(stepTimeout) && query.exitCode() == 0,
            QStringLiteral("dpkg-query failed"));
    return QString::fromUtf8(query.readAllStandardOutput())
        .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

void Walk::checkDatabase()
{
    requireEqual(
        installedPackages(),
        {QStringLiteral("tc-audio 1.0-1 installed"), QStringLiteral("tc-browser 4.3-1 installed"),
         QStringLiteral("tc-calculator 2.0-1 installed"),
         QStringLiteral("tc-display 1.2-1 installed"), QStringLiteral("tc-network 1.1-1 installed"),
         QStringLiteral("tc-printing 1.6-2 installed"),
         QStringLiteral("tc-session 3.0-1 installed"),
         QStringLiteral("tc-terminal 2.1-1 installed")});
}

void Walk::checkInstalledTable()
{
    requireEqual(
        rows(),
        {QStringLiteral("- tc-audio 1.0-1 1.0-1"), QStringLiteral("- tc-browser 4.3-1 4.3-1"),
         QStringLiteral("- tc-network 1.1-1 1.1-1"), QStringLiteral("- tc-printing 1.6-2 1.6-2"),
         QStringLiteral("- tc-terminal 2.1-1 2.1-1")});
    const auto *mark = m_window->findChild<QWidget *>(QStringLiteral("modifiedMark"));
    require(mark->isVisible(), QStringLiteral("the system does not count as modified"));
    screenshot(QStringLiteral("after"));
}

void Walk::checkServicePacks()
{
    openSection(QStringLiteral("Service packs"));
    requireEqual(rows(),
                 {QStringLiteral("x SP-6.1.2-2 none 2"), QStringLiteral("x SP-6.1.2-3 none 3"),
                  QStringLiteral("x SP-6.1.2-4 none 4")});
    screenshot(QStringLiteral("service-packs"));
}

void Walk::installServicePack()
{
    click(button(m_section, QStringLiteral("None")));
    clickCell(2, 0);
    requireEqual(rows(),
                 {QStringLiteral("- SP-6.1.2-2 none 2"), QStringLiteral("- SP-6.1.2-3 none 3"),
                  QStringLiteral("x SP-6.1.2-4 none 4")});
    startInstallation();
}

void Walk::finishServicePack()
{
    finishInstallation({QStringLiteral("Installing service pack SP-6.1.2-4")},
                       QStringLiteral("service-pack-installed"));
}

void Walk::checkServicePackRoot()
{
    require(contents(QStringLiteral("/usr/share/service-packs/SP-6.1.2-4"))
                == "tc-terminal 2.1-1\ntc-browser 4.3-1\ntc-audio 1.0-1\n",
            QStringLiteral("the service pack holds something else"));
    require(contents(QStringLiteral("/usr/share/service-packs/SP-6.1.2-4.data"))
                == QByteArray(200000, '\0'),
            QStringLiteral("the service pack's data are damaged"));
    require(contents(QStringLiteral("/etc/service-packs/installed")) == "SP-6.1.2-4\n",
            QStringLiteral("the service pack is not recorded"));
    requireEqual(rows(),
                 {QStringLiteral("- SP-6.1.2-2 none 2"), QStringLiteral("- SP-6.1.2-3 none 3")});
    screenshot(QStringLiteral("service-packs-after"));
}

void Walk::checkApplications()
{
    openSection(QStringLiteral("Applications"));
    requireEqual(
        rows(),
        {QStringLiteral("x tc-calculator 2.0-1 2.1-1"), QStringLiteral("x tc-clock none 1:1.0-2")});
    screenshot(QStringLiteral("applications"));
}

void Walk::installApplications()
{
    startInstallation();
    finishInstallation({QStringLiteral("Setting up tc-calculator (2.1-1)"),
                        QStringLiteral("Setting up tc-clock (1:1.0-2)")},
                       QStringLiteral("applications-installed"));
}

void Walk::checkInstalledApplications()
{
    requireEqual(rows(),
                 {QStringLiteral("- tc-calculator 2.1-1 2.1-1"),
                  QStringLiteral("- tc-clock 1:1.0-2 1:1.0-2")});
    const QStringList packages = installedPackages();
    for (const QString &package : {QStringLiteral("tc-calculator 2.1-1 installed"),
                                   QStringLiteral("tc-clock 1:1.0-2 installed")}) {
        require(packages.contains(package), QStringLiteral("no \"%1\"").arg(package));
    }
}

void Walk::checkImages()
{
    openSection(QStringLiteral("Software images"));
    requireEqual(rows(),
                 {QStringLiteral("x tc-system 6.2.0"), QStringLiteral("- tc-system 6.1.10"),
                  QStringLiteral("- tc-system 6.1.2")});
    clickCell(1, 1);
    requireEqual(rows(),
                 {QStringLiteral("- tc-system 6.2.0"), QStringLiteral("x tc-system 6.1.10"),
                  QStringLiteral("- tc-system 6.1.2")});
    QTest::keyClick(table(), Qt::Key_Down);
    QTest::keyClick(table(), Qt::Key_Space);
    requireEqual(rows(),
                 {QStringLiteral("- tc-system 6.2.0"), QStringLiteral("- tc-system 6.1.10"),
                  QStringLiteral("x tc-system 6.1.2")});
    clickCell(0, 0);
    screenshot(QStringLiteral("images"));
}

void Walk::refresh(const QString &buttonText)
{
    click(button(m_section, buttonText));
}

/// Acts once the dialog is there: whoever shows it waits in an event loop of its own, inside of
/// which nothing may be thrown.
void Walk::whenAsked(const char *className, const std::function<void(QDialog *)> &act)
{
    auto *timer = new QTimer(m_window.get());
    QObject::connect(timer, &QTimer::timeout, timer, [this, timer, className, act] {
        const QPointer<QDialog> asking = dialog(className);
        if (!asking) {
            return;
        }
        timer->stop();
        timer->deleteLater();
        try {
            act(asking);
        } catch (const Failure &failure) {
            m_aside = failure.reason;
            if (asking) {
                asking->reject();
            }
        }
    });
    timer->start(10);
}

void Walk::awaitMessage()
{
    waitFor(
        [] {
            return dialog("RVErrorDialog");
        },
        QStringLiteral("message"));
}

void Walk::closeMessage()
{
    QTest::keyClick(dialog("RVErrorDialog"), Qt::Key_Escape);
    waitFor(
        [] {
            return !dialog("RVErrorDialog");
        },
        QStringLiteral("end of the message"));
}

void Walk::refuseCertificate()
{
    openSection(QStringLiteral("Security"));
    whenAsked("CertDialog", [this](QDialog *certificate) {
        auto *details = certificate->findChild<QGroupBox *>();
        details->setFocus();
        QTest::keyClick(details, Qt::Key_Space);
        const auto *view = certificate->findChild<QTextEdit *>();
        waitFor(
            [view] {
                return view->isVisible();
            },
            QStringLiteral("details of the certificate"));
        require(view->toPlainText().contains(
                    QLatin1String("The certificate is self-signed, and untrusted.")),
                view->toPlainText());
        screenshot(QStringLiteral("certificate"));
        click(button(certificate, QStringLiteral("Reject Certificate")));
    });
    refresh(QStringLiteral("Refresh"));
    awaitMessage();
    screenshot(QStringLiteral("refused"));
    closeMessage();
    button(m_section, QStringLiteral("Retry"));
}

void Walk::acceptCertificate()
{
    whenAsked("CertDialog", [](const QDialog *certificate) {
        click(button(certificate, QStringLiteral("Accept Certificate")));
    });
    refresh(QStringLiteral("Retry"));
    installOnly(QStringLiteral("tc-vault none 1.4-1"),
                QStringLiteral("Setting up tc-vault (1.4-1)"),
                QStringLiteral("tc-vault 1.4-1 installed"), QStringLiteral("https"));
}

QList<QLineEdit *> Walk::loginFields() const
{
    QList<QLineEdit *> shown;
    const QList<QLineEdit *> fields = m_section->findChildren<QLineEdit *>();
    for (QLineEdit *field : fields) {
        if (field->isVisible()) {
            shown.append(field);
        }
    }
    return shown;
}

void Walk::answerLogin(const QString &user, const QString &password)
{
    waitFor(
        [this] {
            return loginFields().size() == 2;
        },
        QStringLiteral("login"));
    // That a login is required is said, too.
    awaitMessage();
    closeMessage();
    const QList<QLineEdit *> fields = loginFields();
    for (QLineEdit *field : fields) {
        field->clear();
        QTest::keyClicks(field, field->echoMode() == QLineEdit::Password ? password : user);
    }
    click(button(m_section, QStringLiteral("OK")));
}

void Walk::logInWrongly()
{
    openSection(QStringLiteral("Site software"));
    refresh(QStringLiteral("Refresh"));
    answerLogin(QStringLiteral("demo"), QStringLiteral("wrong"));
    waitFor(
        [this] {
            return loginFields().size() == 2;
        },
        QStringLiteral("second question"));
    screenshot(QStringLiteral("login"));
}

void Walk::logIn()
{
    answerLogin(QStringLiteral("demo"), QStringLiteral("demo"));
    installOnly(QStringLiteral("tc-planner none 3.2-1"),
                QStringLiteral("Setting up tc-planner (3.2-1)"),
                QStringLiteral("tc-planner 3.2-1 installed"), QStringLiteral("http"));
}

void Walk::installDriver()
{
    openSection(QStringLiteral("Drivers"));
    refresh(QStringLiteral("Refresh"));
    installOnly(QStringLiteral("tc-label-printer none 5.0-2"),
                QStringLiteral("Setting up tc-label-printer (5.0-2)"),
                QStringLiteral("tc-label-printer 5.0-2 installed"), QStringLiteral("ftp"));
}

/// Waits for the one update of the section and installs it.
void Walk::installOnly(const QString &row, const QString &line, const QString &package,
                       const QString &picture)
{
    waitFor(
        [this] {
            return table() && table()->isVisible() && table()->rowCount() > 0;
        },
        QStringLiteral("list"));
    requireEqual(rows(), {QLatin1String("x ") + row});
    startInstallation();
    finishInstallation({line}, picture);
    require(installedPackages().contains(package), QStringLiteral("no \"%1\"").arg(package));
}

QByteArray Walk::contents(const QString &path) const
{
    QFile file(m_root + path);
    require(file.open(QIODevice::ReadOnly), QStringLiteral("no %1").arg(file.fileName()));
    return file.readAll();
}

/// The question before an image.
void Walk::answer(const QString &buttonText, const QString &screenshotName)
{
    whenAsked("QMessageBox", [this, buttonText, screenshotName](const QDialog *box) {
        screenshot(screenshotName);
        click(button(box, buttonText));
    });
}

void Walk::declineImage()
{
    answer(QStringLiteral("Abort"), QStringLiteral("image-question"));
    startInstallation();
    waitFor(
        [this] {
            return !dialog("BusyDialog") && table() && table()->hasFocus();
        },
        QStringLiteral("the table after a no"));
    screenshot(QStringLiteral("image-declined"));
    require(!QFileInfo::exists(m_root + QLatin1String("/writable/CV/Snapstow.conf")),
            QStringLiteral("the image is deployed all the same"));
}

void Walk::installImage()
{
    answer(QStringLiteral("Apply"), QStringLiteral("image-question-again"));
    startInstallation();
    finishInstallation({QStringLiteral("Restarting")}, QStringLiteral("image-installed"));
    require(contents(QStringLiteral("/var/log/restarts")) == "Restarting\n",
            QStringLiteral("not exactly one restart"));
    const QByteArray configuration = contents(QStringLiteral("/writable/CV/Snapstow.conf"));
    require(configuration.contains("\nremote-deploy.proto=file\n")
                && configuration.contains("/repos/images/tc-system-6.2.0.dd.gz\n"),
            QString::fromUtf8(configuration));
}

void Walk::showPage(const char *className, Qt::Key key)
{
    auto *list = m_window->findChild<QListWidget *>(QStringLiteral("pageList"));
    list->setFocus();
    QTest::keyClick(list, key);
    waitFor(
        [this, className] {
            return findByClass(m_window.get(), className);
        },
        QLatin1String(className));
}

QByteArray Walk::settings() const
{
    return contents(QStringLiteral("/.config/Corvane/Ravel.conf"));
}

void Walk::openOptions()
{
    showPage("RVAdvPage", Qt::Key_End);
    const auto *help = m_window->findChild<QTextEdit *>(QStringLiteral("helpPane"));
    require(help->toPlainText().startsWith(QLatin1String("Advanced options for Ravel")),
            QStringLiteral("the help pane does not follow the page"));
    screenshot(QStringLiteral("options"));
    const QWidget *field = options()->findChild<QWidget *>(QStringLiteral("location"));
    const auto isCalled = [field](const QString &name) {
        return [field, name] {
            return field->accessibleName() == name;
        };
    };
    chooseLanguage(QStringLiteral("de"));
    waitFor(isCalled(QStringLiteral("Ort der Abbilder")), QStringLiteral("German label"));
    screenshot(QStringLiteral("options-german"));
    chooseLanguage(QStringLiteral("en"));
    waitFor(isCalled(QStringLiteral("Image location")), QStringLiteral("English label"));
}

void Walk::setProxy()
{
    // It answers that there is nothing in the directory.
    QObject::connect(&m_proxy, &QTcpServer::newConnection, &m_proxy, [this] {
        QTcpSocket *socket = m_proxy.nextPendingConnection();
        QObject::connect(socket, &QTcpSocket::readyRead, socket, [this, socket] {
            m_proxyRequest += socket->readAll();
            socket->write("HTTP/1.1 200 OK\r\nContent-Type: text/html\r\nContent-Length: 13\r\n"
                          "Connection: close\r\n\r\n<html></html>");
            socket->disconnectFromHost();
        });
    });
    require(m_proxy.listen(QHostAddress::LocalHost), QStringLiteral("no proxy"));

    click(section(QStringLiteral("Networking Proxies"))
              ->findChild<QAbstractButton *>(QStringLiteral("accordionHeading")));
    // Nobody types before the section is open.
    settle(m_window->screen());
    const auto *help = m_window->findChild<QTextEdit *>(QStringLiteral("helpPane"));
    require(help->toPlainText() == QLatin1String("Proxy servers for internet access"),
            QStringLiteral("the help pane does not follow the frame"));
    auto *manual = options()->findChild<QAbstractButton *>(QStringLiteral("manualProxies"));
    manual->setFocus();
    QTest::keyClick(manual, Qt::Key_Space);
    QTest::keyClick(manual, Qt::Key_Tab);
    type(QStringLiteral("127.0.0.1"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    type(QStringLiteral("3128a"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    const auto *warning = options()->findChild<QLabel *>(QStringLiteral("portWarning"));
    waitFor(
        [warning] {
            return warning->isVisible();
        },
        QStringLiteral("warning about the port"));
    screenshot(QStringLiteral("options-bad-port"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F2);
    type(QString::number(m_proxy.serverPort()));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    waitFor(
        [warning] {
            return !warning->isVisible();
        },
        QStringLiteral("end of the warning"));
    auto *useSame = options()->findChild<QAbstractButton *>(QStringLiteral("useSameForAll"));
    useSame->setFocus();
    QTest::keyClick(useSame, Qt::Key_Space);
    screenshot(QStringLiteral("options-proxies"));
    // Return is OK.
    QTest::keyClick(useSame, Qt::Key_Return);
    waitFor(
        [this] {
            return settings().contains("server_HTTP=127.0.0.1\n")
                && settings().contains("useForAll=true\n");
        },
        QStringLiteral("stored proxy"));
}

void Walk::changeLocation()
{
    click(section(QStringLiteral("Repository Locations"))
              ->findChild<QAbstractButton *>(QStringLiteral("accordionHeading")));
    QWidget *field = nullptr;
    const QList<QWidget *> fields = options()->findChildren<QWidget *>(QStringLiteral("location"));
    for (QWidget *candidate : fields) {
        if (candidate->accessibleName() == QLatin1String("Application location")) {
            field = candidate;
        }
    }
    require(fields.size() == 7 && field, QStringLiteral("no such field"));
    field->setFocus();
    QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
    type(QStringLiteral("http://updates.example/applications/"));
    QTest::keyClick(field, Qt::Key_Return);
    showPage("RVMainPage", Qt::Key_Up);
    m_section = section(QStringLiteral("Applications"));
    auto *heading = m_section->findChild<QAbstractButton *>(QStringLiteral("accordionHeading"));
    if (!heading->isChecked()) {
        click(heading);
    }
    waitFor(
        [this] {
            return m_proxyRequest.contains("GET http://updates.example/applications/ HTTP/1.1");
        },
        QStringLiteral("request to the proxy"));
    waitFor(
        [this] {
            const QList<QLabel *> labels = m_section->findChildren<QLabel *>();
            return std::any_of(labels.begin(), labels.end(), [](const QLabel *label) {
                return label->isVisible()
                    && plain(label->text())
                    == QLatin1String("No updates of this type are available.");
            });
        },
        QStringLiteral("end of the retrieval"));
    require(settings().contains("application_uri=http://updates.example/applications/\n"),
            QStringLiteral("the location is not stored"));
}

void Walk::restoreLocations()
{
    // The section behind HTTPS was not reached through that proxy.
    awaitMessage();
    closeMessage();
    showPage("RVAdvPage", Qt::Key_Down);
    click(button(options(), QStringLiteral("Restore Defaults")));
    screenshot(QStringLiteral("options-defaults"));
    click(button(options(), QStringLiteral("OK")));
    showPage("RVMainPage", Qt::Key_Up);
    waitFor(
        [this] {
            return table() && table()->isVisible() && table()->rowCount() == 2;
        },
        QStringLiteral("table of the default location"));
    requireEqual(rows(),
                 {QStringLiteral("- tc-calculator 2.1-1 2.1-1"),
                  QStringLiteral("- tc-clock 1:1.0-2 1:1.0-2")});
    waitFor(
        [this] {
            return !settings().contains("application_uri");
        },
        QStringLiteral("end of the stored location"));
}

void Walk::removeProxy()
{
    showPage("RVAdvPage", Qt::Key_Down);
    click(section(QStringLiteral("Networking Proxies"))
              ->findChild<QAbstractButton *>(QStringLiteral("accordionHeading")));
    auto *none = options()->findChild<QAbstractButton *>(QStringLiteral("noProxies"));
    none->setFocus();
    QTest::keyClick(none, Qt::Key_Space);
    click(button(options(), QStringLiteral("OK")));
    waitFor(
        [this] {
            return settings().contains("style=0\n");
        },
        QStringLiteral("stored choice"));
    showPage("RVMainPage", Qt::Key_Up);
}

void Walk::checkLog()
{
    const QString log = QString::fromUtf8(contents(
        getuid() == 0 ? QStringLiteral("/var/log/Ravel.log") : QStringLiteral("/tmp/Ravel.log")));
    int from = 0;
    for (const char *line : {": Base OS: 6.1.2\n",
                             ": Service Pack List:\n",
                             ":     -> SP-6.1.2-1\n",
                             ": Setting up repository('Image location')\n",
                             ": Setting up repository('Service pack location')\n",
                             ": Setting up repository('Package location')\n",
                             ": Setting up repository('Application location')\n",
                             "/repos/packages'), Err=0\n",
                             ": Copying .deb file tc-audio_1.0-1_all.deb to local storage\n",
                             ":   Starting installation.\n",
                             ": INSTALL FINISHED\n",
                             ":   Starting installation.\n",
                             "/repos/service-packs/SP-6.1.2-4.sp.xar\n",
                             ": INSTALL FINISHED\n",
                             ":     -> SP-6.1.2-4\n",
                             ": Copying .deb file tc-clock_1.0-2_all.deb to local storage\n",
                             ": INSTALL FINISHED\n",
                             ": Image installation aborted by user.\n",
                             ": Proxy for HTTP is 127.0.0.1:",
                             ": New repository URI (3) 'http://updates.example/applications/'\n",
                             ":   Using proxy 127.0.0.1:",
                             ": New repository URI (3) 'file://",
                             ": Proxy for FTP is :-1\n"}) {
        const int at = log.indexOf(QLatin1String(line), from);
        require(
            at >= 0,
            QStringLiteral("\"%1\" is missing or too early").arg(QLatin1String(line).trimmed()));
        from = at;
    }
    require(contents(QStringLiteral("/var/log/dpkg.log"))
                .contains("upgrade tc-browser:all 4.2-1 4.3-1"),
            QStringLiteral("dpkg's own log went elsewhere"));
}

void Walk::closeWindow()
{
    QTest::keyClick(m_window.get(), Qt::Key_Q, Qt::ControlModifier);
    waitFor(
        [this] {
            return !m_window->isVisible();
        },
        QStringLiteral("end of the window"));
    m_window.reset();
    require(QFileInfo::exists(m_root + QLatin1String("/.config/Corvane/ravel-host.conf")),
            QStringLiteral("the settings went elsewhere"));
}

} // namespace

int main(int argc, char *argv[])
{
    HostWindow::nameApplication();
    QApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.size() < 3 || arguments.size() > 4
        || !setAppearance(arguments.value(3, QStringLiteral("normal")))) {
        std::fprintf(stderr, "usage: ravel-walk ROOT SCREENSHOTS [normal|large|dark|contrast]\n");
        return 2;
    }
    QApplication::setQuitOnLastWindowClosed(false);
    return Walk(arguments.at(1), arguments.at(2)).run() ? 0 : 1;
}

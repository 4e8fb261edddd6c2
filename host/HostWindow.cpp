// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/HostWindow.h"

#include "ui/RVMainPage.h"
#include "ui/RVSection.h"

#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QFontInfo>
#include <QHBoxLayout>
#include <QImage>
#include <QLabel>
#include <QLibraryInfo>
#include <QListWidget>
#include <QMenuBar>
#include <QMessageBox>
#include <QProcess>
#include <QRegularExpression>
#include <QScreen>
#include <QScrollArea>
#include <QSettings>
#include <QSplitter>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTextBrowser>
#include <QTextDocument>
#include <QTranslator>
#include <QVBoxLayout>

#include <algorithm>
#include <exception>

namespace
{

/// Help comes from pages and definition files; whatever it refers to is not fetched. An image has
/// to be there all the same: where a document has none, its layout opens the file of that name
/// itself.
class HelpDocument : public QTextDocument
{
public:
    using QTextDocument::QTextDocument;

protected:
    QVariant loadResource(int type, const QUrl &) override
    {
        if (type != ImageResource) {
            return {};
        }
        QImage nothing(1, 1, QImage::Format_ARGB32_Premultiplied);
        nothing.fill(Qt::transparent);
        return nothing;
    }
};

/// The name of a language in that language. Catalogues say it themselves, as what stands for
/// "English"; Qt's names have the country in them.
QString languageName(const QString &code)
{
    if (code == QLatin1String("en")) {
        return QStringLiteral("English");
    }
    // In variables: the text is none of this window's.
    constexpr char context[] = "MainWindow";
    constexpr char english[] = "English";
    QTranslator catalogue;
    QString name;
    if (catalogue.load(QLatin1String("ravel_") + code, QStringLiteral(":/translations"))) {
        name = catalogue.translate(context, english);
    }
    return name.isEmpty() ? QLocale(code).nativeLanguageName() : name;
}

/// The languages of the catalogues that are compiled in; the source texts are English.
QStringList catalogueLanguages()
{
    QStringList codes{QStringLiteral("en")};
    static const QRegularExpression catalogue(QStringLiteral("^ravel(?:-host)?_(\\w+)\\.qm$"));
    const QStringList files = QDir(QStringLiteral(":/translations")).entryList();
    for (const QString &file : files) {
        const QRegularExpressionMatch match = catalogue.match(file);
        if (match.hasMatch() && !codes.contains(match.captured(1))) {
            codes.append(match.captured(1));
        }
    }
    return codes;
}

// Property of a page: the help that it told last.
constexpr char pageHelp[] = "hostPageHelp";

QString helpOf(const WizardPage *page)
{
    const QVariant told = page->property(pageHelp);
    return told.isValid() ? told.toString() : page->helpText();
}

QString sentence(RVMainPage::ExceptionType type, const RVPaths &paths)
{
    switch (type) {
    case RVMainPage::NoDefinitionDirectory:
        return HostWindow::tr(
                   "The directory with the repository definitions, \"%1\", does not exist.")
            .arg(paths.definitionDir);
    case RVMainPage::BadDefinitionFile:
        return HostWindow::tr(
                   "A repository definition file in \"%1\" is not a valid repository list. "
                   "The log file says which one.")
            .arg(paths.definitionDir);
    case RVMainPage::NoRepositories:
        return HostWindow::tr("The definition files in \"%1\" define no repository.")
            .arg(paths.definitionDir);
    case RVMainPage::SystemInfoUnavailable:
        return HostWindow::tr(
                   "The file that identifies the installed image, \"%1\", cannot be read.")
            .arg(paths.imageId);
    case RVMainPage::SystemInfoFailed:
        break;
    }
    return HostWindow::tr("Information about the installed system cannot be read.");
}

} // namespace

HostWindow::HostWindow(QWidget *parent)
    : PlumeMainWindow(parent)
{
    // A static library's resources are linked in only when they are named.
    Q_INIT_RESOURCE(host);
    Q_INIT_RESOURCE(ravel_host_translations);
    setObjectName(QStringLiteral("hostWindow"));
    setWindowIcon(QIcon(QStringLiteral(":/host/ravel.svg")));
    buildMenus();
    buildCentre();
    buildStatusBar();
    connect(this, &PlumeMainWindow::pageAdded, this, &HostWindow::takePage);
    restoreState();
}

HostWindow::~HostWindow()
{
    for (const auto &translator : m_translators) {
        QCoreApplication::removeTranslator(translator.get());
    }
}

bool HostWindow::load(const RVPaths &paths, QString *error)
{
    try {
        new RVSection(this, this, paths);
        m_pageList->setCurrentRow(pages().size() > 1 ? 1 : 0);
        return true;
    } catch (RVMainPage::ExceptionType type) {
        *error = sentence(type, paths);
    } catch (const std::exception &exception) {
        *error = tr("The update pages could not be opened: %1")
                     .arg(QString::fromLocal8Bit(exception.what()));
    } catch (...) {
        *error = tr("The update pages could not be opened.");
    }
    return false;
}

void HostWindow::nameApplication()
{
    QCoreApplication::setOrganizationName(QStringLiteral("Corvane"));
    QCoreApplication::setApplicationName(QStringLiteral("ravel-host"));
    QCoreApplication::setApplicationVersion(QStringLiteral(RAVEL_VERSION));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Ravel"));
}

RVPaths HostWindow::enterRoot(const QString &root)
{
    return RVPaths::enterRoot(root);
}

void HostWindow::buildMenus()
{
    m_fileMenu = menuBar()->addMenu(QString());
    m_quitAction = m_fileMenu->addAction(QIcon::fromTheme(QStringLiteral("application-exit")),
                                         QString(), this, &QWidget::close);
    m_quitAction->setShortcuts(QKeySequence::Quit);

    m_viewMenu = menuBar()->addMenu(QString());
    m_showHelpAction = m_viewMenu->addAction(QString());
    m_showHelpAction->setObjectName(QStringLiteral("showHelpAction"));
    m_showHelpAction->setCheckable(true);
    m_showHelpAction->setChecked(true);
    m_showHelpAction->setShortcut(Qt::Key_F1);

    m_languageMenu = menuBar()->addMenu(QString());
    m_languageMenu->setObjectName(QStringLiteral("languageMenu"));
    m_languages = new QActionGroup(this);
    fillLanguageMenu();

    m_helpMenu = menuBar()->addMenu(QString());
    m_aboutAction = m_helpMenu->addAction(windowIcon(), QString(), this, &HostWindow::about);
    m_aboutAction->setObjectName(QStringLiteral("aboutAction"));
    m_aboutQtAction = m_helpMenu->addAction(QString(), qApp, &QApplication::aboutQt);
}

void HostWindow::buildCentre()
{
    m_pageList = new QListWidget;
    m_pageList->setObjectName(QStringLiteral("pageList"));
    m_pageList->setFrameShape(QFrame::NoFrame);
    m_pageList->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_pageList->setIconSize({32, 32});
    m_pageList->setSpacing(2);
    m_pageList->setMinimumWidth(fontMetrics().averageCharWidth() * 16);

    m_title = new QLabel;
    m_title->setObjectName(QStringLiteral("pageTitle"));
    m_title->setTextFormat(Qt::PlainText);
    QFont large = m_title->font();
    // Also of a font that is set in pixels, which says -1 itself.
    large.setPointSizeF(QFontInfo(large).pointSizeF() * 1.6);
    m_title->setFont(large);
    m_description = new QLabel;
    m_description->setObjectName(QStringLiteral("pageDescription"));
    m_description->setTextFormat(Qt::PlainText);
    m_description->setWordWrap(true);
    m_header = new QWidget;
    auto *header = new QVBoxLayout(m_header);
    header->setContentsMargins(16, 12, 16, 8);
    header->addWidget(m_title);
    header->addWidget(m_description);

    m_stack = new QStackedWidget;
    m_stack->setObjectName(QStringLiteral("pageStack"));
    auto *centre = new QWidget;
    auto *column = new QVBoxLayout(centre);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_header);
    column->addWidget(m_stack, 1);

    m_help = new QTextBrowser;
    m_help->setDocument(new HelpDocument(m_help));
    m_help->setObjectName(QStringLiteral("helpPane"));
    m_help->setOpenLinks(false);
    m_help->setFrameShape(QFrame::NoFrame);
    m_help->document()->setDocumentMargin(12);
    m_help->setMinimumWidth(fontMetrics().averageCharWidth() * 20);
    connect(m_showHelpAction, &QAction::toggled, m_help, &QWidget::setVisible);

    m_splitter = new QSplitter;
    m_splitter->setObjectName(QStringLiteral("splitter"));
    m_splitter->addWidget(m_pageList);
    m_splitter->addWidget(centre);
    m_splitter->addWidget(m_help);
    m_splitter->setChildrenCollapsible(false);
    m_splitter->setStretchFactor(0, 0);
    m_splitter->setStretchFactor(1, 1);
    m_splitter->setStretchFactor(2, 0);
    setCentralWidget(m_splitter);
    connect(m_pageList, &QListWidget::currentRowChanged, this, &HostWindow::showPage);
}

void HostWindow::buildStatusBar()
{
    m_modifiedMark = new QWidget;
    m_modifiedMark->setObjectName(QStringLiteral("modifiedMark"));
    auto *row = new QHBoxLayout(m_modifiedMark);
    row->setContentsMargins(0, 0, 8, 0);
    m_modifiedIcon = new QLabel;
    m_modifiedText = new QLabel;
    m_modifiedText->setObjectName(QStringLiteral("modifiedText"));
    row->addWidget(m_modifiedIcon);
    row->addWidget(m_modifiedText);
    const int extent = fontMetrics().height();
    m_modifiedIcon->setPixmap(QIcon(QStringLiteral(":/host/modified.svg")).pixmap(extent, extent));
    m_modifiedMark->hide();
    statusBar()->addPermanentWidget(m_modifiedMark);
}

void HostWindow::fillLanguageMenu()
{
    const auto add = [this](const QString &code, const QString &name) {
        QAction *action = m_languageMenu->addAction(name);
        action->setObjectName(QLatin1String("language_") + code);
        action->setCheckable(true);
        action->setData(code);
        m_languages->addAction(action);
    };
    add(QString(), QString());
    m_languageMenu->addSeparator();
    const QStringList codes = catalogueLanguages();
    for (const QString &code : codes) {
        add(code, languageName(code));
    }
    m_languages->actions().constFirst()->setChecked(true);
    connect(m_languages, &QActionGroup::triggered, this, [this](const QAction *action) {
        setLanguage(action->data().toString());
    });
}

void HostWindow::setLanguage(const QString &code)
{
    m_language = code;
    const QLocale locale = code.isEmpty() ? QLocale::system() : QLocale(code);
    QLocale::setDefault(locale);
    installTranslators(locale);
    const QList<QAction *> actions = m_languages->actions();
    for (QAction *action : actions) {
        if (action->data().toString() == code) {
            action->setChecked(true);
        }
    }
    // Texts that come from data change without any catalogue.
    QEvent change(QEvent::LanguageChange);
    QCoreApplication::sendEvent(qApp, &change);
}

void HostWindow::installTranslators(const QLocale &locale)
{
    for (const auto &translator : m_translators) {
        QCoreApplication::removeTranslator(translator.get());
    }
    m_translators.clear();
    // The source texts are the catalogue of English, also where other languages come after it.
    if (QLocale(locale.uiLanguages().value(0)).language() == QLocale::English) {
        return;
    }
    // The library sees to its own texts.
    const struct {
        QString name;
        QString directory;
    } catalogues[] = {
        {QStringLiteral("qtbase"), QLibraryInfo::location(QLibraryInfo::TranslationsPath)},
        {QStringLiteral("ravel-host"), QStringLiteral(":/translations")},
    };
    for (const auto &catalogue : catalogues) {
        auto translator = std::make_unique<QTranslator>();
        if (translator->load(locale, catalogue.name, QStringLiteral("_"), catalogue.directory)) {
            QCoreApplication::installTranslator(translator.get());
            m_translators.push_back(std::move(translator));
        }
    }
}

void HostWindow::takePage(WizardPage *page, bool isTitlePage)
{
    auto *area = new QScrollArea;
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setWidget(page);
    m_stack->addWidget(area);
    // Without an icon of its own a page has its window's.
    if (!page->testAttribute(Qt::WA_SetWindowIcon)) {
        page->setWindowIcon(QIcon(isTitlePage ? QStringLiteral(":/host/welcome.svg")
                                              : QStringLiteral(":/host/updates.svg")));
    }
    page->setProperty("hostTitlePage", isTitlePage);
    m_pageList->addItem(new QListWidgetItem(page->windowIcon(), page->title()));

    connect(page, &WizardPage::modified, this, &HostWindow::markModified);
    if (page->metaObject()->indexOfSignal("helpChanged(QString)") >= 0) {
        connect(page, SIGNAL(helpChanged(QString)), this, SLOT(showHelp(QString)));
    }
    if (m_stack->count() == 1) {
        m_pageList->setCurrentRow(0);
    }
}

WizardPage *HostWindow::currentPage() const
{
    return pages().value(m_stack->currentIndex());
}

void HostWindow::showPage(int index)
{
    m_stack->setCurrentIndex(index);
    const WizardPage *page = currentPage();
    if (!page) {
        return;
    }
    const bool isTitlePage = page->property("hostTitlePage").toBool();
    // A title page says title, description and help itself.
    m_header->setVisible(!isTitlePage);
    m_help->setVisible(!isTitlePage && m_showHelpAction->isChecked());
    m_showHelpAction->setEnabled(!isTitlePage);
    m_help->setHtml(helpOf(page));
    updatePageTexts();
}

void HostWindow::updatePageTexts()
{
    for (int i = 0; i < pages().size(); ++i) {
        m_pageList->item(i)->setText(pages().at(i)->title());
        // The scroll area round the page, which takes the keyboard's focus.
        m_stack->widget(i)->setAccessibleName(pages().at(i)->title());
    }
    if (const WizardPage *page = currentPage()) {
        m_title->setText(page->title());
        m_description->setText(page->description());
    }
}

void HostWindow::showHelp(const QString &helpText)
{
    // Also for the time when the user comes back to the page.
    sender()->setProperty(pageHelp, helpText);
    if (sender() == currentPage()) {
        m_help->setHtml(helpText);
    }
}

void HostWindow::markModified()
{
    m_systemModified = true;
    m_modifiedMark->show();
}

void HostWindow::about()
{
    QMessageBox box(QMessageBox::NoIcon, tr("About Ravel"), QString(), QMessageBox::Close, this);
    box.setIconPixmap(windowIcon().pixmap(64, 64));
    box.setTextFormat(Qt::RichText);
    box.setText(QStringLiteral("<h3>Ravel %1</h3>").arg(QCoreApplication::applicationVersion())
                + QStringLiteral("<p>%1</p>").arg(tr("Software updates for thin clients.")));
    box.setInformativeText(
        tr("Copyright 2026 the Ravel developers. This program is free software: you may "
           "redistribute and change it under the terms of the GNU General Public License, "
           "version 2 or, at your option, any later version. It comes without any warranty."));
    box.exec();
}

bool HostWindow::isBusy() const
{
    const QWidget *modal = QApplication::activeModalWidget();
    if (modal && modal != this) {
        return true;
    }
    const QList<QProcess *> processes = findChildren<QProcess *>();
    return std::any_of(processes.cbegin(), processes.cend(), [](const QProcess *process) {
        return process->state() != QProcess::NotRunning;
    });
}

void HostWindow::closeEvent(QCloseEvent *event)
{
    if (isBusy()) {
        statusBar()->showMessage(
            tr("An operation is still running. Please wait until it has finished."), 10000);
        event->ignore();
        return;
    }
    QSettings settings;
    settings.setValue(QStringLiteral("geometry"), saveGeometry());
    settings.setValue(QStringLiteral("splitter"), m_splitter->saveState());
    settings.setValue(QStringLiteral("showHelp"), m_showHelpAction->isChecked());
    settings.setValue(QStringLiteral("language"), m_language);
    PlumeMainWindow::closeEvent(event);
}

void HostWindow::changeEvent(QEvent *event)
{
    PlumeMainWindow::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslateUi();
        // The pages hear of it after their window, and may have other titles only then.
        QMetaObject::invokeMethod(this, &HostWindow::updatePageTexts, Qt::QueuedConnection);
    }
}

void HostWindow::restoreState()
{
    const int width = fontMetrics().averageCharWidth();
    const int height = fontMetrics().height();
    setMinimumSize(qMax(640, width * 80), qMax(480, height * 26));
    // Room for the open section's list among half a dozen closed ones, where the screen has it.
    resize(QSize(qMax(1024, width * 130), qMax(860, height * 50))
               .boundedTo(screen()->availableSize()));
    m_splitter->setSizes({width * 22, width * 78, width * 30});

    const QSettings settings;
    restoreGeometry(settings.value(QStringLiteral("geometry")).toByteArray());
    m_splitter->restoreState(settings.value(QStringLiteral("splitter")).toByteArray());
    m_showHelpAction->setChecked(settings.value(QStringLiteral("showHelp"), true).toBool());
    setLanguage(settings.value(QStringLiteral("language")).toString());
    retranslateUi();
}

void HostWindow::retranslateUi()
{
    setWindowTitle(tr("Thin Client Configuration"));
    m_fileMenu->setTitle(tr("&File"));
    m_quitAction->setText(tr("&Quit"));
    m_viewMenu->setTitle(tr("&View"));
    m_showHelpAction->setText(tr("Show &Help"));
    m_languageMenu->setTitle(tr("&Language"));
    m_languages->actions().constFirst()->setText(tr("&System Language"));
    m_helpMenu->setTitle(tr("&Help"));
    m_aboutAction->setText(tr("&About Ravel"));
    m_aboutQtAction->setText(tr("About &Qt"));
    m_pageList->setAccessibleName(tr("Pages"));
    m_help->setAccessibleName(tr("Help"));
    m_modifiedText->setText(tr("System modified"));
    m_modifiedMark->setToolTip(
        tr("Updates were installed or options set since this window was opened."));
    m_modifiedText->setAccessibleDescription(m_modifiedMark->toolTip());
    // A page that has told another help than its own tells it anew.
    for (WizardPage *page : pages()) {
        page->setProperty(pageHelp, QVariant());
    }
    if (const WizardPage *page = currentPage()) {
        m_help->setHtml(helpOf(page));
    }
}

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/RVPaths.h"

#include <plume/PlumeMainWindow.h>

#include <QLocale>

#include <memory>
#include <vector>

class QAction;
class QActionGroup;
class QLabel;
class QListWidget;
class QMenu;
class QSplitter;
class QStackedWidget;
class QTextBrowser;
class QTranslator;

/// The program's one window: the list of pages, the current page under its title, and its help.
class HostWindow : public PlumeMainWindow
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(HostWindow)

public:
    explicit HostWindow(QWidget *parent = nullptr);
    ~HostWindow() override;

    /// Has the update library add its pages. False when they cannot work; `error` is then a
    /// sentence for the user.
    bool load(const RVPaths &paths, QString *error);

    /// The names under which settings are kept and windows are shown; before the application is
    /// made.
    static void nameApplication();
    /// The system below `root` (absolute): its files, and from now on its settings instead of the
    /// user's.
    static RVPaths enterRoot(const QString &root);

    /// Languages by code ("de"); the empty one is the system's.
    void setLanguage(const QString &code);
    bool isSystemModified() const { return m_systemModified; }

protected:
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private Q_SLOTS:
    void takePage(WizardPage *page, bool isTitlePage);
    void showPage(int index);
    void showHelp(const QString &helpText);
    void markModified();
    void about();

private:
    void buildMenus();
    void buildCentre();
    void buildStatusBar();
    void fillLanguageMenu();
    void installTranslators(const QLocale &locale);
    void retranslateUi();
    void updatePageTexts();
    void restoreState();
    WizardPage *currentPage() const;
    bool isBusy() const;

    QListWidget *m_pageList = nullptr;
    QLabel *m_title = nullptr;
    QLabel *m_description = nullptr;
    QWidget *m_header = nullptr;
    QStackedWidget *m_stack = nullptr;
    QTextBrowser *m_help = nullptr;
    QSplitter *m_splitter = nullptr;
    QWidget *m_modifiedMark = nullptr;
    QLabel *m_modifiedIcon = nullptr;
    QLabel *m_modifiedText = nullptr;
    QMenu *m_fileMenu = nullptr;
    QMenu *m_viewMenu = nullptr;
    QMenu *m_languageMenu = nullptr;
    QMenu *m_helpMenu = nullptr;
    QAction *m_quitAction = nullptr;
    QAction *m_showHelpAction = nullptr;
    QAction *m_aboutAction = nullptr;
    QAction *m_aboutQtAction = nullptr;
    QActionGroup *m_languages = nullptr;
    std::vector<std::unique_ptr<QTranslator>> m_translators;
    QString m_language;
    bool m_systemModified = false;
};

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

    QListWidget *m_pageList;
    QLabel *m_title;
    QLabel *m_description;
    QWidget *m_header;
    QStackedWidget *m_stack;
    QTextBrowser *m_help;
    QSplitter *m_splitter;
    QWidget *m_modifiedMark;
    QLabel *m_modifiedIcon;
    QLabel *m_modifiedText;
    QMenu *m_fileMenu;
    QMenu *m_viewMenu;
    QMenu *m_languageMenu;
    QMenu *m_helpMenu;
    QAction *m_quitAction;
    QAction *m_showHelpAction;
    QAction *m_aboutAction;
    QAction *m_aboutQtAction;
    QActionGroup *m_languages;
    std::vector<std::unique_ptr<QTranslator>> m_translators;
    QString m_language;
    bool m_systemModified = false;
};

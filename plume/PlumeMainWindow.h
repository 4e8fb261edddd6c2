// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <plume/PlumeExport.h>

#include <QList>
#include <QMainWindow>

class TitlePage;
class WizardPage;

/// The host's window as a section sees it. How the pages are shown is the host's own business: it
/// derives from this class and follows pageAdded().
class PLUME_EXPORT PlumeMainWindow : public QMainWindow
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(PlumeMainWindow)

public:
    explicit PlumeMainWindow(QWidget *parent = nullptr, Qt::WindowFlags flags = {});
    ~PlumeMainWindow() override;

    /// Begin a section with its title page, then add its other pages; the window owns them.
    void addTitlePage(TitlePage *page);
    void addNormalPage(WizardPage *page);
    const QList<WizardPage *> &pages() const { return m_pages; }

Q_SIGNALS:
    void pageAdded(WizardPage *page, bool isTitlePage);

private:
    void addPage(WizardPage *page, bool isTitlePage);

    QList<WizardPage *> m_pages;
};

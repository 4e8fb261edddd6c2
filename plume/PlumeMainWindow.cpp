// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include <plume/PlumeMainWindow.h>
#include <plume/TitlePage.h>

PlumeMainWindow::PlumeMainWindow(QWidget *parent, Qt::WindowFlags flags)
    : QMainWindow(parent, flags)
{
}

PlumeMainWindow::~PlumeMainWindow()
{
    // The pages die with the QWidget below us, when the list of them is gone already.
    for (WizardPage *page : qAsConst(m_pages)) {
        disconnect(page, nullptr, this, nullptr);
    }
}

void PlumeMainWindow::addTitlePage(TitlePage *page)
{
    addPage(page, true);
}

void PlumeMainWindow::addNormalPage(WizardPage *page)
{
    addPage(page, false);
}

void PlumeMainWindow::addPage(WizardPage *page, bool isTitlePage)
{
    if (!page || m_pages.contains(page)) {
        return;
    }
    if (!isAncestorOf(page)) {
        page->setParent(this);
    }
    m_pages.append(page);
    connect(page, &QObject::destroyed, this, [this, page] {
        m_pages.removeOne(page);
    });
    Q_EMIT pageAdded(page, isTitlePage);
}

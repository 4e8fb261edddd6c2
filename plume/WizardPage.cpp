// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include <plume/WizardPage.h>

WizardPage::WizardPage(QWidget *parent, Qt::WindowFlags flags)
    : QWidget(parent, flags)
{
}

WizardPage::~WizardPage() = default;

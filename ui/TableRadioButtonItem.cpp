// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "ui/TableRadioButtonItem.h"

TableRadioButtonItem::TableRadioButtonItem(QObject *parent)
    : RVChoiceItem(QStyle::PE_IndicatorRadioButton, parent)
{
}

TableRadioButtonItem::~TableRadioButtonItem() = default;

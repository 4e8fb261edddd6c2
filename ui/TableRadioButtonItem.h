// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "ui/RVChoiceItem.h"

/// Paints a checkable cell as a radio button that is on while the item is checked.
class TableRadioButtonItem : public RVChoiceItem
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(TableRadioButtonItem)

public:
    explicit TableRadioButtonItem(QObject *parent = nullptr);
    ~TableRadioButtonItem() override;
};

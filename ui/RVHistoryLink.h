// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/RVPaths.h"

#include <QPushButton>

/// Opens the history of installations from a page of the host's. Seen only where there is one;
/// looks again whenever the page is shown.
class RVHistoryLink : public QPushButton
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(RVHistoryLink)

public:
    /// Puts itself at the end of the page's layout, and belongs to the page.
    RVHistoryLink(QWidget *page, const RVPaths &paths);
    ~RVHistoryLink() override;

public Q_SLOTS:
    void look();
    void retranslateUi();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void open();

    const RVPaths m_paths;
};

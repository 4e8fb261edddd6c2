// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "ui/RVHistoryLink.h"

#include "install/RVHistory.h"
#include "ui/RVHistoryDialog.h"

#include <QEvent>
#include <QLayout>
#include <QPalette>

RVHistoryLink::RVHistoryLink(QWidget *page, const RVPaths &paths)
    : QPushButton(page)
    , m_paths(paths)
{
    setObjectName(QStringLiteral("history"));
    // A button, so that a keyboard and a screen reader can press it, with the looks of a link.
    setFlat(true);
    setCursor(Qt::PointingHandCursor);
    QFont underlined = font();
    underlined.setUnderline(true);
    setFont(underlined);
    QPalette colours = palette();
    colours.setColor(QPalette::ButtonText, colours.color(QPalette::Link));
    setPalette(colours);
    connect(this, &QPushButton::clicked, this, &RVHistoryLink::open);
    if (page->layout()) {
        page->layout()->addWidget(this);
        page->layout()->setAlignment(this, Qt::AlignLeading);
    }
    page->installEventFilter(this);
    retranslateUi();
    look();
}

RVHistoryLink::~RVHistoryLink() = default;

void RVHistoryLink::look()
{
    setVisible(!RVHistory(m_paths).isEmpty());
}

void RVHistoryLink::retranslateUi()
{
    setText(tr("Installation &history"));
}

bool RVHistoryLink::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Show) {
        look();
    }
    return QPushButton::eventFilter(watched, event);
}

void RVHistoryLink::open()
{
    auto *dialog = new RVHistoryDialog(RVHistory(m_paths).read(), window());
    dialog->show();
}

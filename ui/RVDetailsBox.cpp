// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "ui/RVDetailsBox.h"

#include <QStyle>
#include <QStyleOptionGroupBox>
#include <QStylePainter>

RVDetailsBox::RVDetailsBox(QWidget *parent)
    : QGroupBox(parent)
{
    setCheckable(true);
    setChecked(false);
    fitHeight();
    connect(this, &QGroupBox::toggled, this, &RVDetailsBox::fitHeight);
}

RVDetailsBox::~RVDetailsBox() = default;

void RVDetailsBox::fitHeight()
{
    const int line = qMax(fontMetrics().height(), style()->pixelMetric(QStyle::PM_IndicatorHeight));
    setMaximumHeight(isChecked() ? QWIDGETSIZE_MAX : line);
}

void RVDetailsBox::paintEvent(QPaintEvent *)
{
    QStyleOptionGroupBox option;
    initStyleOption(&option);
    if (!isChecked()) {
        option.subControls &= ~QStyle::SC_GroupBoxFrame;
    }
    QStylePainter(this).drawComplexControl(QStyle::CC_GroupBox, option);
}

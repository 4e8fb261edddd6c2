// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "ui/RVChoiceItem.h"

#include "ui/RVStyle.h"

#include <QApplication>
#include <QPainter>
#include <QStyleOptionButton>

namespace
{

constexpr int margin = 8;

const QStyle *styleOf(const QStyleOptionViewItem &option)
{
    return option.widget ? option.widget->style() : QApplication::style();
}

// Styles outline an indicator in a darker shade of the window, which a dark one does not have.
QPalette outlined(QPalette palette)
{
    if (RVStyle::isDark(palette.color(QPalette::Base))) {
        palette.setColor(QPalette::Window, palette.color(QPalette::Text));
    }
    return palette;
}

} // namespace

RVChoiceItem::RVChoiceItem(QStyle::PrimitiveElement indicator, QObject *parent)
    : QStyledItemDelegate(parent)
    , m_indicator(indicator)
{
}

RVChoiceItem::~RVChoiceItem() = default;

void RVChoiceItem::paint(QPainter *painter, const QStyleOptionViewItem &option,
                         const QModelIndex &index) const
{
    QStyleOptionViewItem cell(option);
    initStyleOption(&cell, index);
    cell.features &= ~QStyleOptionViewItem::HasCheckIndicator;
    const QStyle *style = styleOf(cell);
    style->drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);

    QStyleOptionButton button;
    button.state = cell.state & (QStyle::State_Enabled | QStyle::State_Active);
    button.state |= cell.checkState == Qt::Checked ? QStyle::State_On : QStyle::State_Off;
    button.direction = cell.direction;
    button.palette = outlined(cell.palette);
    button.rect =
        QStyle::alignedRect(cell.direction, Qt::AlignCenter, indicatorSize(cell), cell.rect);
    style->drawPrimitive(m_indicator, &button, painter, cell.widget);
}

QSize RVChoiceItem::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QStyleOptionViewItem cell(option);
    initStyleOption(&cell, index);
    return indicatorSize(cell) + QSize(2 * margin, 2 * margin);
}

bool RVChoiceItem::editorEvent(QEvent *, QAbstractItemModel *, const QStyleOptionViewItem &,
                               const QModelIndex &)
{
    return false;
}

QSize RVChoiceItem::indicatorSize(const QStyleOptionViewItem &option) const
{
    const bool radio = m_indicator == QStyle::PE_IndicatorRadioButton;
    const QStyle *style = styleOf(option);
    const auto metric = [&](QStyle::PixelMetric forRadio, QStyle::PixelMetric forCheck) {
        // Styles size it for the screen alone; beside large text it grows with the text.
        return qMax(option.fontMetrics.ascent(),
                    style->pixelMetric(radio ? forRadio : forCheck, &option, option.widget));
    };
    return {metric(QStyle::PM_ExclusiveIndicatorWidth, QStyle::PM_IndicatorWidth),
            metric(QStyle::PM_ExclusiveIndicatorHeight, QStyle::PM_IndicatorHeight)};
}

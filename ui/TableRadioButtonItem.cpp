// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "ui/TableRadioButtonItem.h"

#include <QApplication>
#include <QPainter>
#include <QStyleOptionButton>

namespace
{

constexpr int margin = 6;

const QStyle *styleOf(const QStyleOptionViewItem &option)
{
    return option.widget ? option.widget->style() : QApplication::style();
}

// Styles size the indicator for the screen alone; beside large text it grows with the text.
QSize indicatorSize(const QStyleOptionViewItem &option)
{
    const QStyle *style = styleOf(option);
    const int text = option.fontMetrics.ascent();
    return {
        qMax(text, style->pixelMetric(QStyle::PM_ExclusiveIndicatorWidth, &option, option.widget)),
        qMax(text,
             style->pixelMetric(QStyle::PM_ExclusiveIndicatorHeight, &option, option.widget))};
}

} // namespace

TableRadioButtonItem::TableRadioButtonItem(QObject *parent)
    : QStyledItemDelegate(parent)
{
}

TableRadioButtonItem::~TableRadioButtonItem() = default;

void TableRadioButtonItem::paint(QPainter *painter, const QStyleOptionViewItem &option,
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
    button.palette = cell.palette;
    button.rect =
        QStyle::alignedRect(cell.direction, Qt::AlignCenter, indicatorSize(cell), cell.rect);
    style->drawPrimitive(QStyle::PE_IndicatorRadioButton, &button, painter, cell.widget);
}

QSize TableRadioButtonItem::sizeHint(const QStyleOptionViewItem &option,
                                     const QModelIndex &index) const
{
    QStyleOptionViewItem cell(option);
    initStyleOption(&cell, index);
    return indicatorSize(cell) + QSize(2 * margin, 2 * margin);
}

bool TableRadioButtonItem::editorEvent(QEvent *, QAbstractItemModel *, const QStyleOptionViewItem &,
                                       const QModelIndex &)
{
    return false;
}

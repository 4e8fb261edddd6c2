// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QFont>
#include <QHash>
#include <QSize>
#include <QStyledItemDelegate>

/// Paints a cell's display text as rich text in the item's own colours, wrapped to the column. Laid
/// out sizes are remembered, so that a table of thousands of rows resizes without laying them out
/// again.
class TableLabelItem : public QStyledItemDelegate
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(TableLabelItem)

public:
    /// Without `richText` the cell is painted as any other.
    explicit TableLabelItem(bool richText, QObject *parent = nullptr);
    ~TableLabelItem() override;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    /// The size of the text in the width of `option.rect`, or of its unbroken lines when that is
    /// empty.
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

private:
    QSize testSize(const QString &html, const QFont &font, int width) const;

    const bool m_richText;
    // Both hold for m_font alone, m_wrapped for m_width too.
    mutable QHash<QString, QSize> m_unbroken;
    mutable QHash<QString, QSize> m_wrapped;
    mutable QFont m_font;
    mutable int m_width = 0;
};

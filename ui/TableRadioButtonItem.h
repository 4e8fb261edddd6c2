// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QStyledItemDelegate>

/// Paints a checkable cell as a radio button that is on while the item is checked. It only paints:
/// the table turns a row on, so that a second click never turns it off.
class TableRadioButtonItem : public QStyledItemDelegate
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(TableRadioButtonItem)

public:
    explicit TableRadioButtonItem(QObject *parent = nullptr);
    ~TableRadioButtonItem() override;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

protected:
    bool editorEvent(QEvent *event, QAbstractItemModel *model, const QStyleOptionViewItem &option,
                     const QModelIndex &index) override;
};

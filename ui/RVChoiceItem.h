// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QStyle>
#include <QStyledItemDelegate>

/// Paints a checkable cell as an indicator in its middle, as large as the text beside it. It only
/// paints: what a click or a key does is the table's business.
class RVChoiceItem : public QStyledItemDelegate
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(RVChoiceItem)

public:
    /// PE_IndicatorCheckBox or PE_IndicatorRadioButton.
    explicit RVChoiceItem(QStyle::PrimitiveElement indicator, QObject *parent = nullptr);
    ~RVChoiceItem() override;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

protected:
    bool editorEvent(QEvent *event, QAbstractItemModel *model, const QStyleOptionViewItem &option,
                     const QModelIndex &index) override;

private:
    QSize indicatorSize(const QStyleOptionViewItem &option) const;

    const QStyle::PrimitiveElement m_indicator;
};

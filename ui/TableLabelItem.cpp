// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "ui/TableLabelItem.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QPainter>
#include <QTextDocument>
#include <QTextOption>
#include <QtMath>

namespace
{

constexpr int horizontalMargin = 6;
constexpr int verticalMargin = 4;

// Never fetches anything: an image that names a FIFO would stop the layout for ever.
class LabelDocument : public QTextDocument
{
public:
    LabelDocument(const QString &html, const QFont &font, Qt::LayoutDirection direction, int width)
    {
        QTextOption textOption;
        textOption.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        textOption.setTextDirection(direction);
        setDefaultTextOption(textOption);
        setUndoRedoEnabled(false);
        setDocumentMargin(0);
        setDefaultFont(font);
        setHtml(html);
        setTextWidth(width > 0 ? width : -1);
    }

protected:
    QVariant loadResource(int, const QUrl &) override { return {}; }
};

} // namespace

TableLabelItem::TableLabelItem(bool richText, QObject *parent)
    : QStyledItemDelegate(parent)
    , m_richText(richText)
{
}

TableLabelItem::~TableLabelItem() = default;

void TableLabelItem::paint(QPainter *painter, const QStyleOptionViewItem &option,
                           const QModelIndex &index) const
{
    if (!m_richText) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }
    QStyleOptionViewItem cell(option);
    initStyleOption(&cell, index);
    const QString html = cell.text;
    cell.text.clear();
    const QStyle *style = cell.widget ? cell.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);

    const QRect rect =
        cell.rect.adjusted(horizontalMargin, verticalMargin, -horizontalMargin, -verticalMargin);
    LabelDocument document(html, cell.font, cell.direction, rect.width());
    const qreal slack = qMax(0.0, rect.height() - document.size().height());

    QPalette::ColorGroup group = QPalette::Disabled;
    if (cell.state.testFlag(QStyle::State_Enabled)) {
        group = cell.state.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
    }
    QAbstractTextDocumentLayout::PaintContext context;
    context.palette = cell.palette;
    context.palette.setColor(QPalette::Text,
                             cell.palette.color(group,
                                                cell.state.testFlag(QStyle::State_Selected)
                                                    ? QPalette::HighlightedText
                                                    : QPalette::Text));
    painter->save();
    painter->setClipRect(rect, Qt::IntersectClip);
    painter->translate(rect.left(), rect.top() + qFloor(slack / 2));
    document.documentLayout()->draw(painter, context);
    painter->restore();
}

QSize TableLabelItem::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    if (!m_richText) {
        return QStyledItemDelegate::sizeHint(option, index);
    }
    QStyleOptionViewItem cell(option);
    initStyleOption(&cell, index);
    const QSize text = testSize(cell.text, cell.font, cell.rect.width() - 2 * horizontalMargin);
    return text + QSize(2 * horizontalMargin, 2 * verticalMargin);
}

QSize TableLabelItem::testSize(const QString &html, const QFont &font, int width) const
{
    const auto laidOut = [&html, &font](int available) {
        const LabelDocument document(html, font, Qt::LayoutDirectionAuto, available);
        return QSize(qCeil(document.idealWidth()), qCeil(document.size().height()));
    };
    if (font != m_font) {
        m_font = font;
        m_unbroken.clear();
        m_wrapped.clear();
    }
    if (width != m_width) {
        m_width = width;
        m_wrapped.clear();
    }
    if (!m_unbroken.contains(html)) {
        m_unbroken.insert(html, laidOut(0));
    }
    const QSize unbroken = m_unbroken.value(html);
    if (width <= 0 || unbroken.width() <= width) {
        return unbroken;
    }
    if (!m_wrapped.contains(html)) {
        m_wrapped.insert(html, laidOut(width));
    }
    return m_wrapped.value(html);
}

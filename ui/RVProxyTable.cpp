// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "ui/RVProxyTable.h"

#include <QEvent>
#include <QHeaderView>
#include <QLineEdit>
#include <QStyle>
#include <QStyledItemDelegate>

#include <algorithm>

namespace
{

constexpr int highestPort = 65535;
constexpr int longestSpoken = 300;
constexpr int cellMargin = 6;

/// A cell that says which one it is, which its text alone does not.
class Cell : public QTableWidgetItem
{
public:
    enum { ProblemRole = Qt::UserRole };

    QVariant data(int role) const override
    {
        const QTableWidget *table = tableWidget();
        if (role != Qt::AccessibleTextRole || !table || column() == RVProxyTable::SchemeColumn) {
            return QTableWidgetItem::data(role);
        }
        return QStringLiteral("%1, %2: %3")
            .arg(table->item(row(), RVProxyTable::SchemeColumn)->text(),
                 table->horizontalHeaderItem(column())->text(),
                 QTableWidgetItem::data(Qt::DisplayRole).toString().left(longestSpoken));
    }
};

/// Servers and ports read from left to right, whatever the language around them.
class Delegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override
    {
        QWidget *editor = QStyledItemDelegate::createEditor(parent, option, index);
        editor->setLayoutDirection(Qt::LeftToRight);
        editor->setAccessibleName(index.data(Qt::AccessibleTextRole).toString());
        editor->setAccessibleDescription(index.data(Qt::AccessibleDescriptionRole).toString());
        return editor;
    }

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        // Room for the editor's frame.
        return QStyledItemDelegate::sizeHint(option, index) + QSize(2 * cellMargin, cellMargin);
    }

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        if (index.column() != RVProxyTable::SchemeColumn) {
            option->direction = Qt::LeftToRight;
        }
    }
};

} // namespace

RVProxyTable::RVProxyTable(int rows, QWidget *parent)
    : QTableWidget(rows, PortColumn + 1, parent)
{
    for (int row = 0; row < rows; ++row) {
        for (int column = SchemeColumn; column <= PortColumn; ++column) {
            setItem(row, column, new Cell);
        }
    }
    for (int column = SchemeColumn; column <= PortColumn; ++column) {
        setHorizontalHeaderItem(column, new QTableWidgetItem);
    }
    setItemDelegate(new Delegate(this));
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionsClickable(false);
    horizontalHeader()->setSectionResizeMode(SchemeColumn, QHeaderView::ResizeToContents);
    horizontalHeader()->setSectionResizeMode(ServerColumn, QHeaderView::Stretch);
    // Not to its contents, which may be anything.
    horizontalHeader()->setSectionResizeMode(PortColumn, QHeaderView::Fixed);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setTabKeyNavigation(false);
    setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed
                    | QAbstractItemView::AnyKeyPressed);
    connect(this, &QTableWidget::itemClicked, this, [this](QTableWidgetItem *item) {
        if (item->flags().testFlag(Qt::ItemIsEditable)) {
            editItem(item);
        }
    });
    connect(verticalHeader(), &QHeaderView::sectionResized, this, &QWidget::updateGeometry);
    // Where the keyboard begins.
    selectionModel()->setCurrentIndex(model()->index(0, ServerColumn),
                                      QItemSelectionModel::NoUpdate);
    fitColumns();
}

RVProxyTable::~RVProxyTable() = default;

QString RVProxyTable::text(int row, int column) const
{
    return item(row, column)->text().trimmed();
}

int RVProxyTable::port(int row) const
{
    const QString digits = text(row, PortColumn);
    // Numbers may have a sign or group separators, ports have neither.
    bool isNumber = std::all_of(digits.begin(), digits.end(), [](QChar c) {
        return c >= QLatin1Char('0') && c <= QLatin1Char('9');
    });
    const int port = isNumber ? digits.toInt(&isNumber, 10) : -1;
    return isNumber && port > 0 && port <= highestPort ? port : -1;
}

void RVProxyTable::setProblem(int row, const QString &problem)
{
    QTableWidgetItem *cell = item(row, PortColumn);
    if (cell->toolTip() == problem) {
        return;
    }
    cell->setToolTip(problem);
    cell->setData(Qt::AccessibleDescriptionRole, problem);
    cell->setIcon(problem.isEmpty() ? QIcon()
                                    : style()->standardIcon(QStyle::SP_MessageBoxWarning));
}

void RVProxyTable::commitEditor()
{
    if (state() != QAbstractItemView::EditingState) {
        return;
    }
    if (QWidget *editor = indexWidget(currentIndex())) {
        commitData(editor);
        QTableWidget::closeEditor(editor, QAbstractItemDelegate::NoHint);
    }
}

QSize RVProxyTable::sizeHint() const
{
    return {QTableWidget::sizeHint().width(), minimumSizeHint().height()};
}

QSize RVProxyTable::minimumSizeHint() const
{
    const int width = horizontalHeader()->sectionSize(SchemeColumn) + columnWidth(PortColumn)
        + 12 * fontMetrics().averageCharWidth();
    const int height = horizontalHeader()->sizeHint().height() + verticalHeader()->length();
    return QSize(width, height) + QSize(2 * frameWidth(), 2 * frameWidth());
}

void RVProxyTable::changeEvent(QEvent *event)
{
    QTableWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        fitColumns();
    }
}

void RVProxyTable::closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint)
{
    const int step = hint == QAbstractItemDelegate::EditNextItem ? 1
        : hint == QAbstractItemDelegate::EditPreviousItem        ? -1
                                                                 : 0;
    if (step == 0) {
        QTableWidget::closeEditor(editor, hint);
        return;
    }
    QTableWidget::closeEditor(editor, QAbstractItemDelegate::NoHint);
    // The table's own way goes round in it for ever.
    const Qt::ItemFlags wanted = Qt::ItemIsEditable | Qt::ItemIsEnabled;
    const int cells = rowCount() * columnCount();
    int cell = currentRow() * columnCount() + currentColumn() + step;
    for (; cell >= 0 && cell < cells; cell += step) {
        QTableWidgetItem *next = item(cell / columnCount(), cell % columnCount());
        if ((next->flags() & wanted) == wanted) {
            setCurrentItem(next);
            editItem(next);
            return;
        }
    }
    focusNextPrevChild(step > 0);
}

void RVProxyTable::fitColumns()
{
    const QFontMetrics metrics(font());
    const int icon = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    const int text = metrics.horizontalAdvance(QStringLiteral("000000"));
    resizeColumnToContents(SchemeColumn);
    setColumnWidth(PortColumn,
                   qMax(text + icon + 4 * cellMargin,
                        horizontalHeader()->sectionSizeHint(PortColumn) + 2 * cellMargin));
    updateGeometry();
}

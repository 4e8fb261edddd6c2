// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/e2e/Legibility.h"

#include <QAbstractButton>
#include <QAbstractItemDelegate>
#include <QAbstractScrollArea>
#include <QApplication>
#include <QGroupBox>
#include <QHash>
#include <QHeaderView>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QStringList>
#include <QStyleFactory>
#include <QStyleOptionViewItem>
#include <QTableView>
#include <QWidget>

#include <cmath>

namespace
{

// WCAG 2.1, success criterion 1.4.3.
constexpr double leastContrast = 4.5;

double luminance(QRgb colour)
{
    const auto channel = [](int value) {
        const double c = value / 255.0;
        return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * channel(qRed(colour)) + 0.7152 * channel(qGreen(colour))
        + 0.0722 * channel(qBlue(colour));
}

double contrast(QRgb a, QRgb b)
{
    const double la = luminance(a);
    const double lb = luminance(b);
    return (qMax(la, lb) + 0.05) / (qMin(la, lb) + 0.05);
}

/// Between the commonest colour, which is the background, and the one that differs most from it.
double bestContrast(const QImage &image)
{
    QHash<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            ++counts[image.pixel(x, y)];
        }
    }
    QRgb background = 0;
    int most = 0;
    for (auto it = counts.cbegin(); it != counts.cend(); ++it) {
        if (it.value() > most) {
            most = it.value();
            background = it.key();
        }
    }
    double best = 1;
    for (auto it = counts.cbegin(); it != counts.cend(); ++it) {
        best = qMax(best, contrast(background, it.key()));
    }
    return best;
}

QString nameOf(const QWidget *widget, const QString &text)
{
    return QStringLiteral("%1 \"%2\"")
        .arg(QLatin1String(widget->metaObject()->className()), text.simplified().left(60));
}

class Reader
{
public:
    explicit Reader(QWidget *window)
        : m_window(window)
        , m_image(window->grab().toImage())
    {
    }

    QStringList read()
    {
        const QList<QWidget *> widgets = m_window->findChildren<QWidget *>();
        for (QWidget *widget : widgets) {
            if (widget->isVisible() && widget->window() == m_window) {
                read(widget);
            }
        }
        return m_defects;
    }

private:
    void read(QWidget *widget)
    {
        if (auto *label = qobject_cast<QLabel *>(widget)) {
            readLabel(label);
        } else if (auto *button = qobject_cast<QAbstractButton *>(widget)) {
            if (!button->text().isEmpty()) {
                needs(widget, button->text(), button->sizeHint());
                contrasts(widget, button->text(), widget->rect());
            }
        } else if (auto *box = qobject_cast<QGroupBox *>(widget)) {
            needs(widget, box->title(), {box->minimumSizeHint().width(), 0});
        } else if (auto *header = qobject_cast<QHeaderView *>(widget)) {
            readHeader(header);
        } else if (auto *table = qobject_cast<QTableView *>(widget)) {
            readTable(table);
        } else if (auto *bar = qobject_cast<QProgressBar *>(widget)) {
            if (bar->isTextVisible() && !bar->text().isEmpty()) {
                needs(widget, bar->text(),
                      {bar->fontMetrics().horizontalAdvance(bar->text()),
                       bar->fontMetrics().height()});
            }
        } else if (qobject_cast<QLineEdit *>(widget)) {
            needs(widget, QStringLiteral("a line"), {0, widget->fontMetrics().height()});
        }
    }

    void readLabel(QLabel *label)
    {
        if (label->text().isEmpty()) {
            return;
        }
        if (label->wordWrap()) {
            // The longest word, and the height that the lines take at this width.
            needs(label, label->text(),
                  {label->minimumSizeHint().width(), label->heightForWidth(label->width())});
        } else {
            needs(label, label->text(), label->sizeHint());
        }
        contrasts(label, label->text(), label->rect());
    }

    void readHeader(QHeaderView *header)
    {
        for (int i = 0; i < header->count(); ++i) {
            const QString text = header->model()->headerData(i, header->orientation()).toString();
            if (header->isSectionHidden(i) || text.isEmpty()
                || header->orientation() != Qt::Horizontal) {
                continue;
            }
            if (header->sectionSizeHint(i) > header->sectionSize(i)) {
                m_defects.append(QStringLiteral("cut: %1").arg(nameOf(header, text)));
            }
            contrasts(header->viewport(), text,
                      {header->sectionViewportPosition(i), 0, header->sectionSize(i),
                       header->viewport()->height()});
        }
    }

    void readTable(QTableView *table)
    {
        for (int row = 0; row < table->model()->rowCount(); ++row) {
            for (int column = 0; column < table->model()->columnCount(); ++column) {
                const QModelIndex index = table->model()->index(row, column);
                const QString text = index.data().toString();
                if (table->isColumnHidden(column) || text.isEmpty()) {
                    continue;
                }
                const QRect cell = table->visualRect(index);
                QStyleOptionViewItem option;
                option.initFrom(table);
                option.font = table->font();
                option.widget = table;
                // Where it is: a delegate may break lines there.
                option.rect = cell;
                const QSize need = table->indexWidget(index)
                    ? table->indexWidget(index)->minimumSizeHint()
                    : table->itemDelegate(index)->sizeHint(option, index);
                if (need.width() > cell.width() || need.height() > cell.height()) {
                    m_defects.append(QStringLiteral("cut: cell %1").arg(nameOf(table, text)));
                }
                // What is selected has the theme's own pair of colours.
                if (table->viewport()->rect().contains(cell)
                    && index.flags().testFlag(Qt::ItemIsEnabled)
                    && !table->selectionModel()->isSelected(index)) {
                    contrasts(table->viewport(), text, cell);
                }
            }
        }
    }

    void needs(const QWidget *widget, const QString &text, const QSize &size)
    {
        if (size.width() > widget->width() || size.height() > widget->height()) {
            m_defects.append(QStringLiteral("cut: %1 has %2x%3, needs %4x%5")
                                 .arg(nameOf(widget, text))
                                 .arg(widget->width())
                                 .arg(widget->height())
                                 .arg(size.width())
                                 .arg(size.height()));
        }
        if (!isReachable(widget)) {
            m_defects.append(QStringLiteral("outside: %1").arg(nameOf(widget, text)));
        }
    }

    /// Inside each parent, or in one that scrolls.
    bool isReachable(const QWidget *widget) const
    {
        QRect rect(widget->mapToParent(widget->rect().topLeft()), widget->size());
        for (const QWidget *parent = widget->parentWidget(); parent && !widget->isWindow();
             parent = parent->parentWidget()) {
            if (qobject_cast<const QAbstractScrollArea *>(parent->parentWidget())) {
                return true;
            }
            if (!parent->rect().contains(rect)) {
                return false;
            }
            if (parent->isWindow()) {
                break;
            }
            rect.moveTopLeft(parent->mapToParent(rect.topLeft()));
        }
        return true;
    }

    void contrasts(const QWidget *widget, const QString &text, const QRect &area)
    {
        const QRect shown = area & widget->visibleRegion().boundingRect();
        if (!widget->isEnabled() || shown.isEmpty()) {
            return;
        }
        const qreal ratio = m_image.devicePixelRatio();
        const QRect inWindow(widget->mapTo(m_window, shown.topLeft()) * ratio,
                             shown.size() * ratio);
        const double found = bestContrast(m_image.copy(inWindow));
        if (found < leastContrast) {
            m_defects.append(QStringLiteral("faint: %1 has %2:1")
                                 .arg(nameOf(widget, text))
                                 .arg(found, 0, 'f', 1));
        }
    }

    QWidget *m_window;
    const QImage m_image;
    QStringList m_defects;
};

QPalette darkPalette()
{
    QPalette palette(QColor(0x31, 0x36, 0x3b));
    palette.setColor(QPalette::Base, QColor(0x23, 0x26, 0x29));
    palette.setColor(QPalette::AlternateBase, QColor(0x2a, 0x2e, 0x32));
    palette.setColor(QPalette::Link, QColor(0x3d, 0xae, 0xe9));
    return palette;
}

QPalette contrastPalette()
{
    QPalette palette(Qt::black);
    for (const QPalette::ColorRole role :
         {QPalette::Window, QPalette::Base, QPalette::AlternateBase, QPalette::Button,
          QPalette::ToolTipBase}) {
        palette.setColor(role, Qt::black);
    }
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
        palette.setColor(role, Qt::white);
    }
    palette.setColor(QPalette::Link, Qt::yellow);
    palette.setColor(QPalette::Highlight, Qt::yellow);
    palette.setColor(QPalette::HighlightedText, Qt::black);
    return palette;
}

} // namespace

QString illegible(QWidget *window)
{
    return Reader(window).read().join(QLatin1Char('\n'));
}

bool setAppearance(const QString &name)
{
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    if (name == QLatin1String("dark")) {
        QApplication::setPalette(darkPalette());
    } else if (name == QLatin1String("contrast")) {
        QApplication::setPalette(contrastPalette());
    } else if (name == QLatin1String("large")) {
        QFont font = QApplication::font();
        font.setPointSizeF(2 * font.pointSizeF());
        QApplication::setFont(font);
    } else {
        return name == QLatin1String("normal");
    }
    return true;
}

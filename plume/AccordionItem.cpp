// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include <plume/AccordionItem.h>
#include <plume/ControlFrame.h>

#include <QEvent>
#include <QFontInfo>
#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <QStyle>
#include <QStyleOptionFocusRect>
#include <QTextDocumentFragment>
#include <QToolButton>
#include <QVBoxLayout>

namespace
{

constexpr int padding = 10;
constexpr int gap = 12;

/// A flat row: icon, title, and at its end a chevron that tells open from closed.
class Heading : public QToolButton
{
public:
    explicit Heading(QWidget *parent)
        : QToolButton(parent)
    {
        setCheckable(true);
        setFocusPolicy(Qt::StrongFocus);
        setAttribute(Qt::WA_Hover);
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    }

    QSize sizeHint() const override
    {
        const QFontMetrics metrics(titleFont());
        const int height = qMax(iconExtent(), metrics.height()) + 2 * padding;
        const int width = metrics.horizontalAdvance(text()) + iconExtent() + chevronExtent()
            + 2 * gap + 2 * padding;
        return {width, height};
    }

    QSize minimumSizeHint() const override
    {
        return {iconExtent() + chevronExtent() + 2 * gap + 2 * padding, sizeHint().height()};
    }

protected:
    void keyPressEvent(QKeyEvent *event) override
    {
        if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
            click();
        } else {
            QToolButton::keyPressEvent(event);
        }
    }

    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const QColor ink = palette().color(QPalette::WindowText);
        if (underMouse() || isDown()) {
            painter.fillRect(rect(), shade(ink, isDown() ? 36 : 18));
        }
        painter.fillRect(QRect(0, height() - 1, width(), 1), shade(ink, 48));

        const QRect icon =
            mirrored({padding, (height() - iconExtent()) / 2, iconExtent(), iconExtent()});
        this->icon().paint(&painter, icon, Qt::AlignCenter,
                           isEnabled() ? QIcon::Normal : QIcon::Disabled);

        painter.setFont(titleFont());
        painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled,
                                       QPalette::WindowText));
        const int left = padding + iconExtent() + gap;
        const QRect title =
            mirrored({left, 0, width() - left - gap - chevronExtent() - padding, height()});
        painter.drawText(title, Qt::AlignVCenter | Qt::AlignLeading | Qt::TextShowMnemonic,
                         painter.fontMetrics().elidedText(text(), Qt::ElideRight, title.width(),
                                                          Qt::TextShowMnemonic));
        paintChevron(&painter, ink);
        if (hasFocus()) {
            QStyleOptionFocusRect option;
            option.initFrom(this);
            option.rect = rect().adjusted(1, 1, -1, -2);
            option.backgroundColor = palette().color(QPalette::Window);
            style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
        }
    }

private:
    static QColor shade(QColor color, int alpha)
    {
        color.setAlpha(alpha);
        return color;
    }

    int iconExtent() const { return qMax(32, fontMetrics().height() * 3 / 2); }
    int chevronExtent() const { return fontMetrics().height() / 2; }
    QRect mirrored(const QRect &box) const
    {
        return QStyle::visualRect(layoutDirection(), rect(), box);
    }

    QFont titleFont() const
    {
        QFont result = font();
        // Also of a font that is set in pixels, which says -1 itself.
        result.setPointSizeF(QFontInfo(result).pointSizeF() * 1.15);
        result.setBold(isChecked());
        return result;
    }

    void paintChevron(QPainter *painter, const QColor &ink) const
    {
        const int extent = chevronExtent();
        const QRect box =
            mirrored({width() - padding - extent, (height() - extent) / 2, extent, extent});
        QPainterPath path;
        path.moveTo(-extent / 2.0, -extent / 4.0);
        path.lineTo(0, extent / 4.0);
        path.lineTo(extent / 2.0, -extent / 4.0);
        painter->save();
        painter->translate(QRectF(box).center());
        if (!isChecked()) {
            painter->rotate(layoutDirection() == Qt::RightToLeft ? 90 : -90);
        }
        painter->setPen(QPen(shade(ink, 200), qMax(1.5, extent / 6.0), Qt::SolidLine, Qt::RoundCap,
                             Qt::RoundJoin));
        painter->drawPath(path);
        painter->restore();
    }
};

} // namespace

AccordionItem::AccordionItem(ControlFrame *frame, QWidget *parent)
    : QWidget(parent)
    , m_heading(new Heading(this))
    , m_frame(frame)
{
    m_heading->setObjectName(QStringLiteral("accordionHeading"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_heading);
    auto *body = new QVBoxLayout;
    body->addWidget(m_frame);
    layout->addLayout(body);
    const auto showFrame = [this, body](bool on) {
        m_frame->setVisible(on);
        // A layout keeps its margins when all that is in it is hidden.
        const int margin = on ? padding : 0;
        body->setContentsMargins(margin, margin, margin, margin);
    };
    showFrame(false);

    connect(m_frame, &ControlFrame::headingChanged, this, &AccordionItem::updateHeading);
    connect(m_heading, &QToolButton::toggled, this, [this, showFrame](bool on) {
        showFrame(on);
        Q_EMIT expandedChanged(on);
    });
    connect(m_heading, &QToolButton::clicked, this, [this](bool on) {
        if (on) {
            Q_EMIT selected(this);
        }
    });
    updateHeading();
}

AccordionItem::~AccordionItem() = default;

bool AccordionItem::isExpanded() const
{
    return m_heading->isChecked();
}

void AccordionItem::setExpanded(bool on)
{
    m_heading->setChecked(on);
}

void AccordionItem::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        updateHeading();
    }
}

void AccordionItem::updateHeading()
{
    const QString title = m_frame->title();
    m_heading->setText(QString(title).replace(QLatin1Char('&'), QLatin1String("&&")));
    m_heading->setIcon(m_frame->icon());
    m_heading->setAccessibleName(title);
    m_heading->setAccessibleDescription(
        QTextDocumentFragment::fromHtml(m_frame->helpText()).toPlainText());
    m_heading->updateGeometry();
}

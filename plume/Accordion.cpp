// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include <plume/Accordion.h>
#include <plume/AccordionItem.h>

#include <QEvent>
#include <QVBoxLayout>

#include <algorithm>

namespace
{

/// Whether the item was hidden on purpose; that a parent is not shown yet does not count.
bool isTakenOut(const AccordionItem *item)
{
    return item->isHidden() && item->testAttribute(Qt::WA_WState_ExplicitShowHide);
}

} // namespace

Accordion::Accordion(QWidget *parent)
    : QWidget(parent)
    , m_layout(new QVBoxLayout(this))
{
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(0);
}

Accordion::~Accordion()
{
    // The items die with the QWidget below us, when the list of them is gone already.
    for (AccordionItem *item : qAsConst(m_items)) {
        item->removeEventFilter(this);
        disconnect(item, nullptr, this, nullptr);
    }
}

void Accordion::addItem(AccordionItem *item)
{
    if (!item || m_items.contains(item)) {
        return;
    }
    m_items.append(item);
    m_layout->addWidget(item);
    item->installEventFilter(this);
    connect(item, &AccordionItem::expandedChanged, this, [this, item](bool on) {
        if (on) {
            closeOthers(item);
        }
    });
    connect(item, &QObject::destroyed, this, [this, item] {
        const int index = m_items.indexOf(item);
        m_items.removeAt(index);
        openFrom(index);
    });
    if (item->isExpanded()) {
        closeOthers(item);
    }
    openFrom(0);
}

bool Accordion::eventFilter(QObject *watched, QEvent *event)
{
    auto *item = qobject_cast<AccordionItem *>(watched);
    const int index = m_items.indexOf(item);
    if (index >= 0 && event->type() == QEvent::HideToParent && item->isExpanded()) {
        item->setExpanded(false);
        openFrom(index);
    } else if (index >= 0 && event->type() == QEvent::ShowToParent) {
        // A user who closed every section keeps it that way; only the first one to appear opens.
        const auto visible = std::count_if(m_items.cbegin(), m_items.cend(), [](const auto *other) {
            return !isTakenOut(other);
        });
        if (visible == 1) {
            openFrom(index);
        }
    }
    return QWidget::eventFilter(watched, event);
}

void Accordion::closeOthers(const AccordionItem *item)
{
    for (AccordionItem *other : qAsConst(m_items)) {
        if (other != item) {
            other->setExpanded(false);
        }
    }
}

void Accordion::openFrom(int index)
{
    const auto isOpen = [](const AccordionItem *item) {
        return item->isExpanded();
    };
    if (std::any_of(m_items.cbegin(), m_items.cend(), isOpen)) {
        return;
    }
    for (int i = 0; i < m_items.size(); ++i) {
        AccordionItem *item = m_items.at((index + i) % m_items.size());
        if (!isTakenOut(item)) {
            item->setExpanded(true);
            return;
        }
    }
}

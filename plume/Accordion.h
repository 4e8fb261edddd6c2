// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <plume/PlumeExport.h>

#include <QList>
#include <QWidget>

class AccordionItem;
class QVBoxLayout;

/// A column of collapsible sections of which at most one is open.
class PLUME_EXPORT Accordion : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(Accordion)

public:
    explicit Accordion(QWidget *parent = nullptr);
    ~Accordion() override;

    /// Takes ownership. The first visible item opens by itself.
    void addItem(AccordionItem *item);
    const QList<AccordionItem *> &items() const { return m_items; }

private:
    QVBoxLayout *m_layout;
    QList<AccordionItem *> m_items;
};

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <plume/PlumeExport.h>

#include <QList>
#include <QWidget>

class AccordionItem;
class QVBoxLayout;

/// A column of collapsible sections of which at most one is open. A section that is hidden while it
/// is open hands over to the next visible one.
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

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void closeOthers(const AccordionItem *item);
    /// Unless one is open: opens the first visible item from `index` on, going round.
    void openFrom(int index);

    QVBoxLayout *m_layout;
    QList<AccordionItem *> m_items;
};

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <plume/PlumeExport.h>

#include <QWidget>

class ControlFrame;
class QToolButton;

/// One collapsible section: a heading button and a control frame below it, which the item owns.
class PLUME_EXPORT AccordionItem : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(AccordionItem)

public:
    explicit AccordionItem(ControlFrame *frame, QWidget *parent = nullptr);
    ~AccordionItem() override;

    ControlFrame *frame() const { return m_frame; }
    bool isExpanded() const;

public Q_SLOTS:
    void setExpanded(bool on);

Q_SIGNALS:
    /// The user opened the section.
    void selected(AccordionItem *item);
    /// The section was opened or closed, by whomever.
    void expandedChanged(bool on);

protected:
    void changeEvent(QEvent *event) override;

private:
    void updateHeading();

    QToolButton *m_heading;
    ControlFrame *m_frame;
};

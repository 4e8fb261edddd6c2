// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "ui/RVObstacleBox.h"

#include "ui/RVStyle.h"

#include <QEvent>
#include <QPushButton>

RVObstacleBox::RVObstacleBox(const RVObstacle &obstacle, Offer offer, QWidget *parent)
    : QMessageBox(parent)
    , m_obstacle(obstacle)
    , m_offer(offer)
    , m_accept(addButton(QString(), AcceptRole))
    , m_cancel(addButton(QString(), RejectRole))
{
    setTextFormat(Qt::PlainText);
    setIcon(Warning);
    setWindowModality(Qt::WindowModal);
    m_cancel->setIcon(RVStyle().StdIcon(RVStyle::Cancel));
    setEscapeButton(m_cancel);
    // What takes something away is not done by a key that was pressed for another window.
    setDefaultButton(qobject_cast<QPushButton *>(offer == Offer::Remove ? m_cancel : m_accept));
    retranslateUi();
}

RVObstacleBox::~RVObstacleBox() = default;

void RVObstacleBox::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslateUi();
    }
    QMessageBox::changeEvent(event);
}

void RVObstacleBox::retranslateUi()
{
    setText(m_obstacle.sentence.translated());
    m_cancel->setText(tr("Cancel"));
    switch (m_offer) {
    case Offer::Retry:
        m_accept->setText(tr("Retry"));
        break;
    case Offer::Repair:
        m_accept->setText(tr("Repair"));
        break;
    case Offer::Remove:
        m_accept->setText(tr("Remove"));
        setInformativeText(tr("The repair did not succeed. These packages can be removed. To "
                              "install them again instead, cancel and select them."));
        break;
    }
}

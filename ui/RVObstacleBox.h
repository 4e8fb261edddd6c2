// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "install/RVPreflight.h"

#include <QMessageBox>

/// Says what stands in the way of an installation, and offers one thing to do about it.
class RVObstacleBox : public QMessageBox
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(RVObstacleBox)

public:
    enum class Offer {
        Retry,
        Repair, ///< of an interrupted package database
        Remove, ///< the packages that could not be repaired
    };

    RVObstacleBox(const RVObstacle &obstacle, Offer offer, QWidget *parent = nullptr);
    ~RVObstacleBox() override;

    /// Once the box is closed: whether the offer was taken.
    bool isAccepted() const { return clickedButton() == m_accept; }

protected:
    void changeEvent(QEvent *event) override;

private:
    void retranslateUi();

    const RVObstacle m_obstacle;
    const Offer m_offer;
    QAbstractButton *m_accept;
    QAbstractButton *m_cancel;
};

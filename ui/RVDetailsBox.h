// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QGroupBox>

/// The checkable group box round a dialog's details. Unchecked it is a line to click on, without
/// the frame that would have nothing in it.
class RVDetailsBox : public QGroupBox
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(RVDetailsBox)

public:
    explicit RVDetailsBox(QWidget *parent = nullptr);
    ~RVDetailsBox() override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void fitHeight();
};

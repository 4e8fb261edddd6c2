// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QErrorMessage>
#include <QNetworkReply>

/// Says in one sentence what went wrong on the network, and logs it. One for the whole page.
class RVErrorDialog : public QErrorMessage
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(RVErrorDialog)

public:
    explicit RVErrorDialog(QWidget *parent = nullptr);
    ~RVErrorDialog() override;

public Q_SLOTS:
    void showNetworkError(const QNetworkReply *reply);
    void changeEvent(QEvent *event) override;
    void retranslateUi();
};

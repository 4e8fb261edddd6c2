// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QErrorMessage>
#include <QNetworkReply>

/// Says in one sentence what went wrong on the network, and logs it. One for the whole page. When a
/// repository's every file fails, the messages beyond the first twenty are only logged.
class RVErrorDialog : public QErrorMessage
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(RVErrorDialog)

public:
    explicit RVErrorDialog(QWidget *parent = nullptr);
    ~RVErrorDialog() override;

    /// The sentence for one of Qt 4's codes, empty for no error. `url` is shown as it is.
    static QString messageFor(int code, const QString &url);
    /// Gives such a dialog and its text the names that a screen reader says; Qt gives them none.
    static void nameParts(QErrorMessage *dialog);

public Q_SLOTS:
    void showNetworkError(const QNetworkReply *reply);
    void changeEvent(QEvent *event) override;
    /// Only what is not shown: the text of a message is made when it is.
    void retranslateUi();

private:
    int m_waiting = 0;
};

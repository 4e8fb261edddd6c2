// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QDialog>
#include <QList>
#include <QSslError>

class QUrl;

/// Shows a server certificate that could not be validated, and asks whether to accept it: exec() gives
/// Accepted or Rejected. What acceptance means is the caller's business.
class CertDialog : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(CertDialog)

public:
    CertDialog(const QUrl &url, const QList<QSslError> &errors, QWidget *parent = nullptr,
               Qt::WindowFlags flags = {});
    ~CertDialog() override;

public Q_SLOTS:
    void setDetailsChecked(bool checked);
    void changeEvent(QEvent *event) override;
    void retranslateUi();

private:
    QList<QSslError> m_errors;
};

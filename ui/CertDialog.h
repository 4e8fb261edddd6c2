// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QDialog>
#include <QList>
#include <QSslCertificate>
#include <QSslError>

class QDialogButtonBox;
class QGroupBox;
class QLabel;
class QTextEdit;
class QUrl;

/// Shows a server certificate that could not be validated, and asks whether to accept it: exec()
/// gives Accepted or Rejected. What acceptance means is the caller's business.
class CertDialog : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(CertDialog)

public:
    /// Without `certificate` the first one that the errors carry is shown.
    CertDialog(const QUrl &url, const QList<QSslError> &errors, QWidget *parent = nullptr,
               Qt::WindowFlags flags = {}, const QSslCertificate &certificate = QSslCertificate());
    ~CertDialog() override;

    /// "0a1b2c" as "0a:1b:2c".
    QString colonSepString(const QString &hex) const;
    /// A serial number as it is shown: nothing for "-1", which stands for one that is not known.
    static QString shownSerialNumber(const QByteArray &serialNumber);
    /// The sentence for a QSslError::SslError, without a full stop; empty for no error.
    static QString messageFor(int error);

public Q_SLOTS:
    void setDetailsChecked(bool checked);
    void changeEvent(QEvent *event) override;
    void retranslateUi();

protected:
    bool event(QEvent *event) override;

private:
    void insertTransHtml(const QString &text);
    void addHeading(const QString &text);
    void addDetail(const QString &label, const QString &value);
    void labelButtons();

    QList<QSslError> m_errors;
    QLabel *m_label = nullptr;
    QLabel *m_urlLabel = nullptr;
    QDialogButtonBox *m_buttonBox = nullptr;
    QGroupBox *m_detailsBox = nullptr;
    QTextEdit *m_detailsView = nullptr;
    /// Null when there is none to show.
    QSslCertificate m_certificate;
};

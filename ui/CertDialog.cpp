// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "ui/CertDialog.h"

#include "core/RVText.h"
#include "ui/RVDetailsBox.h"
#include "ui/RVItalics.h"
#include "ui/RVStyle.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDateTime>
#include <QDialogButtonBox>
#include <QEvent>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextEdit>
#include <QUrl>
#include <QVBoxLayout>

namespace
{

constexpr QChar firstStrongIsolate(0x2068);
constexpr QChar popDirectionalIsolate(0x2069);

/// Of the place, in average characters: a longer one is shortened in the middle.
constexpr int widestUrl = 80;

/// Of a value of the certificate, in characters.
constexpr int longestValue = 128;

struct ErrorText {
    QSslError::SslError error;
    const char *text;
};

// In Qt's own context, whose catalogue has the translations.
constexpr ErrorText errorTexts[] = {
    {QSslError::UnableToGetIssuerCertificate,
     QT_TRANSLATE_NOOP("QSslSocket", "The issuer certificate could not be found")},
    {QSslError::UnableToDecryptCertificateSignature,
     QT_TRANSLATE_NOOP("QSslSocket", "The certificate signature could not be decrypted")},
    {QSslError::UnableToDecodeIssuerPublicKey,
     QT_TRANSLATE_NOOP("QSslSocket", "The public key in the certificate could not be read")},
    {QSslError::CertificateSignatureFailed,
     QT_TRANSLATE_NOOP("QSslSocket", "The signature of the certificate is invalid")},
    {QSslError::CertificateNotYetValid,
     QT_TRANSLATE_NOOP("QSslSocket", "The certificate is not yet valid")},
    {QSslError::CertificateExpired, QT_TRANSLATE_NOOP("QSslSocket", "The certificate has expired")},
    {QSslError::InvalidNotBeforeField,
     QT_TRANSLATE_NOOP("QSslSocket", "The certificate's notBefore field contains an invalid time")},
    {QSslError::InvalidNotAfterField,
     QT_TRANSLATE_NOOP("QSslSocket", "The certificate's notAfter field contains an invalid time")},
    {QSslError::SelfSignedCertificate,
     QT_TRANSLATE_NOOP("QSslSocket", "The certificate is self-signed, and untrusted")},
    {QSslError::SelfSignedCertificateInChain,
     QT_TRANSLATE_NOOP(
         "QSslSocket",
         "The root certificate of the certificate chain is self-signed, and untrusted")},
    {QSslError::UnableToGetLocalIssuerCertificate,
     QT_TRANSLATE_NOOP(
         "QSslSocket",
         "The issuer certificate of a locally looked up certificate could not be found")},
    {QSslError::UnableToVerifyFirstCertificate,
     QT_TRANSLATE_NOOP("QSslSocket", "No certificates could be verified")},
    {QSslError::CertificateRevoked,
     QT_TRANSLATE_NOOP("QSslSocket", "The server's certificate has been revoked")},
    {QSslError::InvalidCaCertificate,
     QT_TRANSLATE_NOOP("QSslSocket", "One of the CA certificates is invalid")},
    {QSslError::PathLengthExceeded,
     QT_TRANSLATE_NOOP("QSslSocket",
                       "The basicConstraints path length parameter has been exceeded")},
    {QSslError::InvalidPurpose,
     QT_TRANSLATE_NOOP("QSslSocket", "The supplied certificate is unsuitable for this purpose")},
    {QSslError::CertificateUntrusted,
     QT_TRANSLATE_NOOP("QSslSocket", "The root CA certificate is not trusted for this purpose")},
    {QSslError::CertificateRejected,
     QT_TRANSLATE_NOOP("QSslSocket",
                       "The root CA certificate is marked to reject the specified purpose")},
    {QSslError::SubjectIssuerMismatch,
     QT_TRANSLATE_NOOP("QSslSocket",
                       "The current candidate issuer certificate was rejected because its subject "
                       "name did not match the issuer name of the current certificate")},
    {QSslError::AuthorityIssuerSerialNumberMismatch,
     QT_TRANSLATE_NOOP("QSslSocket",
                       "The current candidate issuer certificate was rejected because its issuer "
                       "name and serial number was present and did not match the authority key "
                       "identifier of the current certificate")},
    {QSslError::NoPeerCertificate,
     QT_TRANSLATE_NOOP("QSslSocket", "The peer did not present any certificate")},
    {QSslError::HostNameMismatch,
     QT_TRANSLATE_NOOP("QSslSocket",
                       "The host name did not match any of the valid hosts for this certificate")},
};

QString translateSsl(const char *text)
{
    return QCoreApplication::translate("QSslSocket", text);
}

// A part of the name may be there several times; the last one in the certificate, which Qt lists
// first, is the most specific.
QString lastOf(const QStringList &values)
{
    return values.isEmpty() ? QString() : values.constFirst();
}

QString fingerprint(const QSslCertificate &certificate, QCryptographicHash::Algorithm algorithm)
{
    return certificate.isNull() ? QString()
                                : QString::fromLatin1(certificate.digest(algorithm).toHex());
}

// The layout of Qt::TextDate, which names days and months in the system's language and not in the
// one that the program speaks.
QString shownDate(const QDateTime &date)
{
    return date.isValid()
        ? QLocale().toString(date.toUTC(), QStringLiteral("ddd MMM d HH:mm:ss yyyy 'GMT'"))
        : QString();
}

} // namespace

CertDialog::CertDialog(const QUrl &url, const QList<QSslError> &errors, QWidget *parent,
                       Qt::WindowFlags flags, const QSslCertificate &certificate)
    : QDialog(parent, flags)
    , m_errors(errors)
    , m_certificate(certificate)
{
    for (const QSslError &error : errors) {
        if (m_certificate.isNull()) {
            m_certificate = error.certificate();
        }
    }
    setModal(true);

    m_label = new QLabel;
    m_label->setObjectName(QStringLiteral("label"));
    m_label->setTextFormat(Qt::PlainText);

    // A name before the host may look like a host; it is not needed to judge a certificate.
    const QString urlText = url.toString(QUrl::RemoveUserInfo);
    m_urlLabel = new QLabel;
    m_urlLabel->setObjectName(QStringLiteral("url"));
    m_urlLabel->setTextFormat(Qt::PlainText);
    m_urlLabel->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_urlLabel->setText(fontMetrics().elidedText(urlText, Qt::ElideMiddle,
                                                 widestUrl * fontMetrics().averageCharWidth()));
    m_urlLabel->setAccessibleDescription(urlText);

    m_detailsBox = new RVDetailsBox;
    m_detailsBox->setObjectName(QStringLiteral("detailsBox"));
    connect(m_detailsBox, &QGroupBox::toggled, this, &CertDialog::setDetailsChecked);
    m_detailsView = new QTextEdit;
    m_detailsView->setObjectName(QStringLiteral("detailsView"));
    m_detailsView->setReadOnly(true);
    m_detailsView->setAcceptRichText(true);
    m_detailsView->setTabChangesFocus(true);
    m_detailsView->setDocument(new QTextDocument(m_detailsView));
    m_detailsView->setMinimumSize(80 * fontMetrics().averageCharWidth(),
                                  16 * fontMetrics().lineSpacing());
    auto *detailsLayout = new QVBoxLayout(m_detailsBox);
    detailsLayout->setContentsMargins({});
    detailsLayout->addWidget(m_detailsView);

    m_buttonBox = new QDialogButtonBox(QDialogButtonBox::Yes | QDialogButtonBox::No);
    m_buttonBox->setObjectName(QStringLiteral("buttonBox"));
    QPushButton *acceptButton = m_buttonBox->button(QDialogButtonBox::Yes);
    QPushButton *rejectButton = m_buttonBox->button(QDialogButtonBox::No);
    const RVStyle style;
    acceptButton->setIcon(style.StdIcon(RVStyle::Yes));
    rejectButton->setIcon(style.StdIcon(RVStyle::No));
    connect(acceptButton, &QPushButton::clicked, this, &CertDialog::accept);
    connect(rejectButton, &QPushButton::clicked, this, &CertDialog::reject);
    // The Return key must not accept what nobody looked at.
    acceptButton->setAutoDefault(false);
    rejectButton->setDefault(true);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_label);
    layout->addWidget(m_urlLabel);
    layout->addWidget(m_detailsBox, 1);
    layout->addStretch();
    layout->addWidget(m_buttonBox);
    rejectButton->setFocus();

    setDetailsChecked(false);
    retranslateUi();
}

CertDialog::~CertDialog() = default;

void CertDialog::setDetailsChecked(bool checked)
{
    m_detailsBox->setChecked(checked);
    m_detailsView->setVisible(checked);
    m_detailsBox->layout()->activate();
    layout()->activate();
    if (isVisible()) {
        // Room for the details when they open; none that stays empty when they close.
        resize(checked ? size().expandedTo(sizeHint()) : QSize(width(), sizeHint().height()));
    }
}

bool CertDialog::event(QEvent *event)
{
    const bool result = QDialog::event(event);
    if (event->type() == QEvent::LanguageChange) {
        // The button box, which hears of it after changeEvent(), writes its own texts.
        labelButtons();
    }
    return result;
}

void CertDialog::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslateUi();
    }
    QDialog::changeEvent(event);
}

void CertDialog::labelButtons()
{
    m_buttonBox->button(QDialogButtonBox::Yes)->setText(tr("Accept Certificate"));
    m_buttonBox->button(QDialogButtonBox::No)->setText(tr("Reject Certificate"));
}

void CertDialog::retranslateUi()
{
    setWindowTitle(tr("Certificate", "SSL authentication certificate"));
    m_label->setText(tr("Certificate could not be validated:  "));
    m_urlLabel->setAccessibleName(m_label->text() + m_urlLabel->text());
    m_detailsBox->setTitle(tr("Show Details"));
    m_detailsView->setAccessibleName(windowTitle());
    labelButtons();

    m_detailsView->clear();
    for (const QSslError &error : qAsConst(m_errors)) {
        const QString message = messageFor(error.error());
        if (!message.isEmpty()) {
            const QString sentence = takesItalics(message) ? QStringLiteral("<i>%1.</i><br />")
                                                           : QStringLiteral("%1.<br />");
            insertTransHtml(sentence.arg(message.toHtmlEscaped()));
        }
    }
    insertTransHtml(QStringLiteral("<br />"));

    insertTransHtml(QStringLiteral("<b>%1</b><br />").arg(tr("Issued To")));
    const QString commonName = tr("Common Name:  ", "(CN), an LDAP term.");
    const QString organization = tr("Organization:  ", "(O), an LDAP term.");
    const QString unit = tr("Organizational Unit:  ", "(OU), an LDAP term.");
    addDetail(commonName, lastOf(m_certificate.subjectInfo(QSslCertificate::CommonName)));
    addDetail(organization, lastOf(m_certificate.subjectInfo(QSslCertificate::Organization)));
    addDetail(unit, lastOf(m_certificate.subjectInfo(QSslCertificate::OrganizationalUnitName)));
    addDetail(tr("Serial Number:  "), shownSerialNumber(m_certificate.serialNumber()));

    addHeading(tr("Issued By"));
    addDetail(commonName, lastOf(m_certificate.issuerInfo(QSslCertificate::CommonName)));
    addDetail(organization, lastOf(m_certificate.issuerInfo(QSslCertificate::Organization)));
    addDetail(unit, lastOf(m_certificate.issuerInfo(QSslCertificate::OrganizationalUnitName)));

    addHeading(tr("Dates"));
    addDetail(tr("Issue Date:  "), shownDate(m_certificate.effectiveDate()));
    addDetail(tr("Expires Date:  "), shownDate(m_certificate.expiryDate()));

    addHeading(tr("Fingerprints", "identification string for certificates"));
    // First, since it is the one that no other certificate can have.
    addDetail(tr("SHA256 Fingerprint:  "),
              colonSepString(fingerprint(m_certificate, QCryptographicHash::Sha256)));
    addDetail(tr("SHA1 Fingerprint:  "),
              colonSepString(fingerprint(m_certificate, QCryptographicHash::Sha1)));
    addDetail(tr("MD5 Fingerprint:  "),
              colonSepString(fingerprint(m_certificate, QCryptographicHash::Md5)));

    m_detailsView->moveCursor(QTextCursor::Start);
}

// The blanks of the texts are part of them.
void CertDialog::insertTransHtml(const QString &text)
{
    m_detailsView->textCursor().insertHtml(
        QStringLiteral("<span style=\"white-space:pre-wrap\">%1</span>").arg(text));
}

void CertDialog::addHeading(const QString &text)
{
    insertTransHtml(QStringLiteral("<br /><b>%1</b><br />").arg(text));
}

void CertDialog::addDetail(const QString &label, const QString &value)
{
    if (!value.isEmpty()) {
        // In a line from right to left, "18:e7" would else be shown as "e7:18".
        // Whoever made the certificate chose the text: it stays on its line, and draws no others.
        const QString text = RVText::safe(RVText::shortened(value, longestValue)).toHtmlEscaped();
        const QString shown =
            label.isRightToLeft() ? firstStrongIsolate + text + popDirectionalIsolate : text;
        insertTransHtml(QStringLiteral("  %1%2<br />").arg(label, shown));
    }
}

QString CertDialog::colonSepString(const QString &hex) const
{
    QStringList pairs;
    for (int i = 0; i < hex.size(); i += 2) {
        pairs.append(hex.mid(i, 2));
    }
    return pairs.join(QLatin1Char(':'));
}

QString CertDialog::shownSerialNumber(const QByteArray &serialNumber)
{
    return serialNumber == "-1" ? QString() : QString::fromLatin1(serialNumber);
}

QString CertDialog::messageFor(int error)
{
    if (error == QSslError::NoError) {
        return {};
    }
    for (const ErrorText &row : errorTexts) {
        if (row.error == error) {
            return translateSsl(row.text);
        }
    }
    const QString unknown = translateSsl(QT_TRANSLATE_NOOP("QSslSocket", "Unknown error"));
    return error == QSslError::NoSslSupport
        ? translateSsl(QT_TRANSLATE_NOOP("QSslSocket", "Error creating SSL session: %1"))
              .arg(unknown)
        : unknown;
}

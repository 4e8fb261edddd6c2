// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "ui/RVErrorDialog.h"

#include "core/RVLogger.h"
#include "core/RVText.h"
#include "core/RVUrl.h"
#include "network/XNetworkError.h"

#include <QApplication>
#include <QEvent>
#include <QTextEdit>
#include <QUrl>

namespace
{

constexpr int longestShown = 500;
constexpr int maximumWaiting = 20;

} // namespace

RVErrorDialog::RVErrorDialog(QWidget *parent)
    : QErrorMessage(parent)
{
    // Room for a sentence with a long place in it.
    resize(60 * fontMetrics().averageCharWidth(), 12 * fontMetrics().lineSpacing());
    retranslateUi();
}

RVErrorDialog::~RVErrorDialog() = default;

void RVErrorDialog::showNetworkError(const QNetworkReply *reply)
{
    // A page may link a name of any length, which a label takes minutes to lay out.
    const QString text = messageFor(qt4Error(reply->error()),
                                    RVText::shown(RVUrl::shown(reply->url()), longestShown));
    if (text.isEmpty()) {
        return;
    }
    RVLogger().log(3, "%s", qUtf8Printable(text));
    if (isVisible()) {
        ++m_waiting;
    } else {
        m_waiting = 0;
        // A modal dialog, such as an installation's, would keep it from being answered.
        setModal(QApplication::activeModalWidget() != nullptr);
    }
    if (m_waiting < maximumWaiting) {
        // Its view takes markup, and would run the blanks of the sentences together.
        showMessage(
            QStringLiteral("<p style=\"white-space:pre-wrap\">%1</p>").arg(text.toHtmlEscaped()));
    }
}

// The double blanks and the spelling are the keys of the translations.
QString RVErrorDialog::messageFor(int code, const QString &url)
{
    switch (code) {
    case QNetworkReply::NoError:
        return {};
    case QNetworkReply::ConnectionRefusedError:
        return tr("Network connection refused for URI '%1'.  The remote server is not accepting "
                  "requests.")
            .arg(url);
    case QNetworkReply::RemoteHostClosedError:
        return tr("The remote server for URI '%1' closed the connection before the transaction was "
                  "complete.")
            .arg(url);
    case QNetworkReply::HostNotFoundError:
        return tr("The host was not found for URI '%1'.  Check the URI, networking, firewalls, and "
                  "DNS.")
            .arg(url);
    case QNetworkReply::TimeoutError:
        return tr("Timed out trying to communicate with server for URI '%1'.  Check the URI, "
                  "networking, firewalls, and DNS.")
            .arg(url);
    case QNetworkReply::OperationCanceledError:
        return tr("Network fetch aborted for  URI '%1'.").arg(url);
    case QNetworkReply::SslHandshakeFailedError:
        return tr("A secure channel via SSL/TLS handshaking could not be established for URI '%1'.")
            .arg(url);
    case QNetworkReply::UnknownNetworkError:
        return tr("A network error was detected in contacting the URI '%1'.  Are all parts of the "
                  "URI valid?  Is networking okay?")
            .arg(url);
    case QNetworkReply::ProxyConnectionRefusedError:
        return tr("A connection could not be established to the proxyserver for URI '%1'.")
            .arg(url);
    case QNetworkReply::ProxyConnectionClosedError:
        return tr("The proxy server closed the connection prematurely for URI '%1'.").arg(url);
    case QNetworkReply::ProxyNotFoundError:
        return tr("The proxy server could not be contacted for URI '%1'.  Check the proxy "
                  "settings, URI, networking, firewalls, and DNS.")
            .arg(url);
    case QNetworkReply::ProxyTimeoutError:
        return tr("Timed out communicating with the proxy server for URI '%1'.").arg(url);
    case QNetworkReply::ProxyAuthenticationRequiredError:
        return tr("Authentication against the proxy server failed for URI '%1'.  Check the "
                  "credentials to be supplied to the proxy server.")
            .arg(url);
    case QNetworkReply::UnknownProxyError:
        return tr("A network error was detected in contacting the proxy server for the URI '%1'.")
            .arg(url);
    case QNetworkReply::ContentAccessDenied:
        return tr("Access was denied for URI '%1'.  Is the URI valid?  Is the content readable?")
            .arg(url);
    case QNetworkReply::ContentOperationNotPermittedError:
        return tr("Could not retreive the contents of URI '%1'.  Is the URI valid?  Is the content "
                  "readable?")
            .arg(url);
    case QNetworkReply::ContentNotFoundError:
        return tr("Could not find URI '%1'.  Is the URI valid?  Is the content readable?").arg(url);
    case QNetworkReply::AuthenticationRequiredError:
        return tr("Authentication is required to access URI '%1'.  Check the URI and any user "
                  "names or passwords supplied.")
            .arg(url);
    case QNetworkReply::ContentReSendError:
        return tr("Content requires a re-send for URI '%1', but that content is no longer "
                  "available.")
            .arg(url);
    case QNetworkReply::UnknownContentError:
        return tr("An error was detected in handling the content retreived for the URI '%1'")
            .arg(url);
    case QNetworkReply::ProtocolUnknownError:
        return tr("The protocol used by URI '%1' is not valid for this program.").arg(url);
    case QNetworkReply::ProtocolInvalidOperationError:
        return tr("The protocol used by URI '%1' could not be used to retrieve URI contents.")
            .arg(url);
    case QNetworkReply::ProtocolFailure:
        return tr("The handshaking between client and server for the protocol used by URI '%1' "
                  "could not be completed.")
            .arg(url);
    default:
        return tr("Unanticipated network error '%1' for the URI '%2'.")
            .arg(QString::number(code), url);
    }
}

void RVErrorDialog::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslateUi();
    }
    QErrorMessage::changeEvent(event);
}

void RVErrorDialog::retranslateUi()
{
    nameParts(this);
}

void RVErrorDialog::nameParts(QErrorMessage *dialog)
{
    const QString name = tr("Message", "For screen readers: the dialog and the text in it.");
    dialog->setAccessibleName(name);
    if (auto *view = dialog->findChild<QTextEdit *>()) {
        view->setAccessibleName(name);
    }
}

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/RVPaths.h"
#include "ui/SelectionTable.h"

#include <plume/ControlFrame.h>

#include <QIcon>
#include <QNetworkProxy>
#include <QNetworkReply>
#include <QSslError>
#include <QString>

class OSInfoBaseClass;
class QAuthenticator;
class QDialogButtonBox;
class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;
class QStackedLayout;
class QVBoxLayout;
class RVRepository;
class RVStyle;

/// One section of the main page: the retrieval of a repository's listing, the question for
/// credentials, the report of a failure, and the table of the updates that fit the installed
/// system. Owned by its accordion item; repository and system information belong to the page and
/// outlive it.
class RVControlFrame : public ControlFrame
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(RVControlFrame)

public:
    enum Page {
        SelectionPage,
        RetrievalPage,
        AuthenticationPage,
        ErrorPage,
    };

    /// `filterSps`: installed service packs are not offered again.
    RVControlFrame(RVRepository *repository, const OSInfoBaseClass *osInfo,
                   SelectionTable::SelectionTableType type, const QString &title,
                   const QString &helpText, const QIcon &icon, bool filterSps,
                   QWidget *parent = nullptr, const RVPaths &paths = {});
    ~RVControlFrame() override;

    QString title() const override { return m_title; }
    QString helpText() const override { return m_helpText; }
    QIcon icon() const override { return m_icon; }
    /// For a change of language.
    void setHeading(const QString &title, const QString &helpText);

    RVRepository *repository() const { return m_repository; }
    Page currentPage() const;
    /// Whether the authentication page waits for a login for this place, which is not the
    /// repository itself; see RVKeyring.
    bool isAskingFor(const QString &place) const;
    /// The repository's, as the authentication page shows them; emitAuthentication() applies them.
    void setCredentials(const QString &user, const QString &password);
    /// The current table's; tables made later take the repository's.
    void setProxy(const QString &host, int port);
    /// Back to an empty table, as before the first retrieval.
    void resetTable();

public Q_SLOTS:
    void enterRetrievalState();
    void cancelRetrieval();
    void enterAuthenticationState(QNetworkReply *reply, QAuthenticator *auth);
    void emitAuthentication();
    void enterErrorState();
    /// The repository has finished a refresh: a new table, whatever the error.
    void refreshTableData(QNetworkReply::NetworkError error);
    /// The installed system has changed: the same entries anew, with what the user chose of them.
    void refreshTableData();
    void changeEvent(QEvent *event) override;
    void retranslateUi();

Q_SIGNALS:
    void authenticationCredentials(const QString &user, const QString &password);
    /// The user typed a login for another server or a proxy; the keyring has it.
    void loginKept(const QString &place);
    /// The user wants something from the network.
    void transfersStarted();
    void installFinished();
    void networkError(const QNetworkReply *reply);
    void proxyAuthenticationRequired(const QNetworkProxy &proxy, QAuthenticator *auth);
    void sslErrors(QNetworkReply *reply, const QList<QSslError> &errors);

private Q_SLOTS:
    void answerQuestion();
    void incInstallFinished();
    void cancelFromRetrieval();
    void leaveRetrievalState();
    void refreshFailed(const QNetworkReply *reply);
    void refuseRepository();
    void relayNetworkError(const QNetworkReply *reply);
    void relayProxyAuthenticationRequired(const QNetworkProxy &proxy, QAuthenticator *auth);
    void relaySslErrors(QNetworkReply *reply, const QList<QSslError> &errors);

private:
    QWidget *makeSelectionPage(const RVStyle &style);
    QWidget *makeRetrievalPage(const RVStyle &style);
    QWidget *makeAuthenticationPage(const RVStyle &style);
    QWidget *makeErrorPage(const RVStyle &style);
    void connectRepository();
    void connectTableSignals();
    void retireTable(SelectionTable *table);
    SelectionTable *makeTable(const QList<RVData> &entries);
    void replaceTable(const QList<RVData> &entries);
    void showEntries();
    QList<RVData> offered() const;
    void showPage(Page page);
    bool hasFocusInside() const;
    void focusPage();
    void showLocation();
    void showTrust();

    enum class Asking { Repository, Server, Proxy };
    void ask(Asking who, const QString &place, QAuthenticator *auth);

    const RVPaths m_paths;
    RVRepository *m_repository;
    const OSInfoBaseClass *m_osInfo;
    SelectionTable::SelectionTableType m_type;
    QString m_title;
    QString m_helpText;
    QIcon m_icon;
    bool m_filterSps;
    /// The user ended the retrieval: what it still reports changes no page.
    bool m_canceled = false;
    /// Only after a retrieval an empty list means that there are no updates.
    bool m_retrieved = false;

    QStackedLayout *m_pages;
    QVBoxLayout *m_selectionLayout = nullptr;
    SelectionTable *m_table = nullptr;
    QLabel *m_noUpdates = nullptr;
    /// Who has signed what is offered.
    QLabel *m_trustLabel = nullptr;
    QPushButton *m_installButton = nullptr;
    QPushButton *m_detailsButton = nullptr;
    QPushButton *m_refreshButton = nullptr;
    QPushButton *m_allButton = nullptr;
    QPushButton *m_noneButton = nullptr;
    QLabel *m_retrievalLabel = nullptr;
    QProgressBar *m_retrievalBar = nullptr;
    QDialogButtonBox *m_retrievalButtons = nullptr;
    QLabel *m_authenticationLabel = nullptr;
    /// Whom the fields below are for, and its place in the keyring: none for the repository.
    Asking m_asking = Asking::Repository;
    QString m_askingPlace;
    QLabel *m_userLabel = nullptr;
    QLabel *m_passwordLabel = nullptr;
    QLineEdit *m_user = nullptr;
    QLineEdit *m_password = nullptr;
    QLabel *m_errorLabel = nullptr;
    QPushButton *m_retryButton = nullptr;
};

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "ui/RVControlFrame.h"

#include "core/OSInfoBaseClass.h"
#include "core/RVOrigin.h"
#include "core/RVText.h"
#include "core/RVUrl.h"
#include "repository/RVEligibility.h"
#include "repository/RVRepository.h"
#include "ui/RVStyle.h"
#include "ui/RVTrustTexts.h"

#include <QAuthenticator>
#include <QDialogButtonBox>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QStackedLayout>
#include <QVBoxLayout>

namespace
{

constexpr int longestLocation = 300;
constexpr int longestFault = 600;

QPushButton *actionButton(const QIcon &icon = {})
{
    auto *button = new QPushButton;
    button->setObjectName(QStringLiteral("RVActionButton"));
    button->setIcon(icon);
    return button;
}

QString inMarkup(const QString &place)
{
    return RVText::shown(place, longestLocation).toHtmlEscaped();
}

QLabel *richLabel()
{
    auto *label = new QLabel;
    label->setTextFormat(Qt::RichText);
    label->setWordWrap(true);
    return label;
}

} // namespace

RVControlFrame::RVControlFrame(RVRepository *repository, const OSInfoBaseClass *osInfo,
                               SelectionTable::SelectionTableType type, const QString &title,
                               const QString &helpText, const QIcon &icon, bool filterSps,
                               QWidget *parent, const RVPaths &paths)
    : ControlFrame(parent)
    , m_paths(paths)
    , m_repository(repository)
    , m_osInfo(osInfo)
    , m_type(type)
    , m_title(title)
    , m_helpText(helpText)
    , m_icon(icon)
    , m_filterSps(filterSps)
    , m_pages(new QStackedLayout)
{
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(m_pages);
    const RVStyle style(paths);
    m_pages->addWidget(makeSelectionPage(style));
    m_pages->addWidget(makeRetrievalPage(style));
    m_pages->addWidget(makeAuthenticationPage(style));
    m_pages->setCurrentIndex(SelectionPage);
    m_pages->addWidget(makeErrorPage(style));
    connectRepository();
    connectTableSignals();
    showEntries();
    retranslateUi();
}

RVControlFrame::~RVControlFrame() = default;

void RVControlFrame::setHeading(const QString &title, const QString &helpText)
{
    m_title = title;
    m_helpText = helpText;
    Q_EMIT headingChanged();
}

RVControlFrame::Page RVControlFrame::currentPage() const
{
    return static_cast<Page>(m_pages->currentIndex());
}

bool RVControlFrame::isAskingFor(const QString &place) const
{
    return currentPage() == AuthenticationPage && m_asking != Asking::Repository
        && m_askingPlace == place;
}

void RVControlFrame::setCredentials(const QString &user, const QString &password)
{
    m_asking = Asking::Repository;
    m_askingPlace.clear();
    showLocation();
    m_user->setText(user);
    m_password->setText(password);
}

void RVControlFrame::setProxy(const QString &host, int port)
{
    m_table->setProxy(host, port);
}

void RVControlFrame::resetTable()
{
    m_retrieved = false;
    replaceTable({});
}

void RVControlFrame::enterRetrievalState()
{
    m_canceled = false;
    Q_EMIT transfersStarted();
    showPage(RetrievalPage);
    m_repository->refresh();
}

void RVControlFrame::cancelRetrieval()
{
    m_canceled = true;
    m_repository->cancel();
    showPage(SelectionPage);
}

void RVControlFrame::enterAuthenticationState(QNetworkReply *reply, QAuthenticator *auth)
{
    if (!reply || isSameOrigin(reply->url(), m_repository->url())) {
        ask(Asking::Repository, QString(), auth);
    } else {
        ask(Asking::Server, originOf(reply->url()), auth);
    }
}

void RVControlFrame::ask(Asking who, const QString &place, QAuthenticator *auth)
{
    // The request that asked ends here; the retry has what the user types.
    auth->setUser(QString());
    auth->setPassword(QString());
    if (who != m_asking || place != m_askingPlace) {
        if (currentPage() == AuthenticationPage) {
            return; // one question at a time: the retry comes to this one
        }
        const RVLogin known = who == Asking::Repository
            ? RVLogin{m_repository->user(), m_repository->password()}
            : m_repository->keyring()->login(place);
        setCredentials(known.user, known.password);
        m_asking = who;
        m_askingPlace = place;
    }
    showPage(AuthenticationPage);
}

void RVControlFrame::answerQuestion()
{
    if (m_asking == Asking::Repository) {
        emitAuthentication();
        return;
    }
    m_repository->keyring()->keep(m_askingPlace, {m_user->text(), m_password->text()});
    Q_EMIT loginKept(m_askingPlace);
}

void RVControlFrame::emitAuthentication()
{
    Q_EMIT authenticationCredentials(m_user->text(), m_password->text());
}

void RVControlFrame::enterErrorState()
{
    showPage(ErrorPage);
}

void RVControlFrame::refreshTableData(QNetworkReply::NetworkError error)
{
    m_retrieved = true;
    replaceTable(offered());
    // An open question stays open, or the user could never answer it: a refresh that needs
    // credentials for some of its downloads ends all the same. A listing that failed has nothing to
    // select from.
    const bool asked = currentPage() == AuthenticationPage;
    const bool failed = currentPage() == ErrorPage && error != QNetworkReply::NoError;
    if (!m_canceled && !asked && !failed) {
        showPage(SelectionPage);
    }
}

void RVControlFrame::leaveRetrievalState()
{
    // Where nothing has told what was found, nothing was. One refresh may end because the next one
    // has begun.
    if (currentPage() == RetrievalPage && !m_repository->isRefreshing()) {
        refreshTableData(QNetworkReply::NoError);
    }
}

void RVControlFrame::refreshTableData()
{
    const QHash<QUrl, Qt::CheckState> choices = m_table->userChoices();
    replaceTable(offered());
    m_table->restoreUserChoices(choices);
}

void RVControlFrame::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslateUi();
    }
    ControlFrame::changeEvent(event);
}

void RVControlFrame::retranslateUi()
{
    m_noUpdates->setText(tr("<i>No updates of this type are available.</i>"));
    m_installButton->setText(tr("&Install"));
    m_detailsButton->setText(tr("&Details"));
    m_refreshButton->setText(tr("&Refresh"));
    m_allButton->setText(tr("&All", "as in 'Select All Choices'"));
    m_noneButton->setText(tr("&None", "as in 'Select No Choices'"));
    m_retrievalBar->setAccessibleName(tr("Retrieval"));
    m_userLabel->setText(tr("User Name: "));
    m_passwordLabel->setText(tr("Password: "));
    m_retryButton->setText(tr("&Retry"));
    showLocation();
    showTrust();
}

void RVControlFrame::incInstallFinished()
{
    Q_EMIT installFinished();
    // Where the user goes on when the progress dialog is closed.
    if (hasFocusInside()) {
        focusPage();
    }
}

void RVControlFrame::cancelFromRetrieval()
{
    m_canceled = true;
    m_repository->cancel();
    enterErrorState();
}

void RVControlFrame::refreshFailed(const QNetworkReply *reply)
{
    const QNetworkReply::NetworkError error =
        reply ? reply->error() : QNetworkReply::UnknownNetworkError;
    // What follows from the empty answer must not hide the question, nor the end of a cancelled
    // request the page that the cancelling chose.
    if (currentPage() == AuthenticationPage
        || (m_canceled && error == QNetworkReply::OperationCanceledError)) {
        return;
    }
    enterErrorState();
}

void RVControlFrame::refuseRepository()
{
    // Nothing that an earlier retrieval has shown can be installed from here on.
    m_retrieved = false;
    replaceTable({});
    if (currentPage() != AuthenticationPage && !m_canceled) {
        enterErrorState();
    }
}

void RVControlFrame::relayNetworkError(const QNetworkReply *reply)
{
    Q_EMIT networkError(reply);
}

void RVControlFrame::relayProxyAuthenticationRequired(const QNetworkProxy &proxy,
                                                      QAuthenticator *auth)
{
    ask(Asking::Proxy, RVKeyring::placeOf(proxy), auth);
    Q_EMIT proxyAuthenticationRequired(proxy, auth);
}

void RVControlFrame::relaySslErrors(QNetworkReply *reply, const QList<QSslError> &errors)
{
    Q_EMIT sslErrors(reply, errors);
}

QWidget *RVControlFrame::makeSelectionPage(const RVStyle &style)
{
    auto *page = new QWidget;
    m_selectionLayout = new QVBoxLayout(page);
    m_selectionLayout->setContentsMargins(0, 0, 0, 0);
    m_table = makeTable({});
    m_selectionLayout->addWidget(m_table, 1);
    m_noUpdates = richLabel();
    m_noUpdates->setAlignment(Qt::AlignCenter);
    m_selectionLayout->addWidget(m_noUpdates, 1);

    m_trustLabel = new QLabel;
    m_trustLabel->setObjectName(QStringLiteral("trust"));
    m_trustLabel->setTextFormat(Qt::PlainText);
    m_trustLabel->setWordWrap(true);
    m_selectionLayout->addWidget(m_trustLabel);

    m_installButton = actionButton(style.StdIcon(RVStyle::Install));
    m_detailsButton = actionButton(style.StdIcon(RVStyle::Info));
    m_refreshButton = actionButton(style.StdIcon(RVStyle::Refresh));
    m_allButton = actionButton(style.StdIcon(RVStyle::SelectAll));
    m_noneButton = actionButton(style.StdIcon(RVStyle::SelectNone));
    connect(m_refreshButton, &QPushButton::clicked, this, &RVControlFrame::enterRetrievalState);
    // Before the table's own slot.
    connect(m_installButton, &QPushButton::clicked, this, &RVControlFrame::transfersStarted);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(m_installButton);
    buttons->addWidget(m_detailsButton);
    buttons->addWidget(m_refreshButton);
    buttons->addStretch();
    buttons->addWidget(m_allButton);
    buttons->addWidget(m_noneButton);
    m_selectionLayout->addLayout(buttons);
    return page;
}

QWidget *RVControlFrame::makeRetrievalPage(const RVStyle &style)
{
    auto *page = new QWidget;
    m_retrievalLabel = richLabel();
    m_retrievalBar = new QProgressBar;
    m_retrievalBar->setRange(0, 0);
    m_retrievalButtons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    m_retrievalButtons->button(QDialogButtonBox::Cancel)->setIcon(style.StdIcon(RVStyle::Cancel));
    connect(m_retrievalButtons, &QDialogButtonBox::rejected, this,
            &RVControlFrame::cancelFromRetrieval);
    auto *layout = new QVBoxLayout(page);
    layout->addStretch();
    layout->addWidget(m_retrievalLabel);
    layout->addWidget(m_retrievalBar);
    layout->addWidget(m_retrievalButtons);
    layout->addStretch();
    return page;
}

QWidget *RVControlFrame::makeAuthenticationPage(const RVStyle &style)
{
    auto *page = new QWidget;
    m_authenticationLabel = richLabel();
    m_userLabel = new QLabel;
    m_user = new QLineEdit;
    m_userLabel->setBuddy(m_user);
    m_passwordLabel = new QLabel;
    m_password = new QLineEdit;
    m_password->setEchoMode(QLineEdit::Password);
    m_passwordLabel->setBuddy(m_password);
    auto *fields = new QGridLayout;
    fields->addWidget(m_userLabel, 0, 0);
    fields->addWidget(m_user, 0, 1);
    fields->addWidget(m_passwordLabel, 1, 0);
    fields->addWidget(m_password, 1, 1);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    buttons->button(QDialogButtonBox::Ok)->setIcon(style.StdIcon(RVStyle::Ok));
    buttons->button(QDialogButtonBox::Cancel)->setIcon(style.StdIcon(RVStyle::Cancel));
    connect(buttons, &QDialogButtonBox::accepted, this, &RVControlFrame::answerQuestion);
    connect(buttons, &QDialogButtonBox::accepted, this, &RVControlFrame::enterRetrievalState);
    connect(buttons, &QDialogButtonBox::rejected, this, &RVControlFrame::cancelRetrieval);
    connect(m_user, &QLineEdit::returnPressed, m_password, QOverload<>::of(&QWidget::setFocus));
    connect(m_password, &QLineEdit::returnPressed, buttons->button(QDialogButtonBox::Ok),
            &QAbstractButton::click);

    auto *layout = new QVBoxLayout(page);
    layout->addStretch();
    layout->addWidget(m_authenticationLabel);
    layout->addLayout(fields);
    layout->addWidget(buttons);
    layout->addStretch();
    return page;
}

QWidget *RVControlFrame::makeErrorPage(const RVStyle &style)
{
    auto *page = new QWidget;
    m_errorLabel = richLabel();
    m_retryButton = actionButton(style.StdIcon(RVStyle::Refresh));
    connect(m_retryButton, &QPushButton::clicked, this, &RVControlFrame::enterRetrievalState);
    auto *layout = new QVBoxLayout(page);
    layout->addStretch();
    layout->addWidget(m_errorLabel);
    layout->addWidget(m_retryButton, 0, Qt::AlignLeading);
    layout->addStretch();
    return page;
}

void RVControlFrame::connectRepository()
{
    connect(m_repository, &RVRepository::refreshDone, this,
            QOverload<QNetworkReply::NetworkError>::of(&RVControlFrame::refreshTableData));
    connect(this, &RVControlFrame::authenticationCredentials, m_repository,
            &RVRepository::setAuthenticationCredentials);
    connect(m_repository, &RVRepository::authenticationRequired, this,
            &RVControlFrame::enterAuthenticationState);
    connect(m_repository, &RVRepository::proxyAuthenticationRequired, this,
            &RVControlFrame::relayProxyAuthenticationRequired);
    connect(m_repository, &RVRepository::networkError, this, &RVControlFrame::refreshFailed);
    connect(m_repository, &RVRepository::trustFailed, this, &RVControlFrame::refuseRepository);
    connect(m_repository, &RVRepository::refreshEnded, this, &RVControlFrame::leaveRetrievalState);
}

void RVControlFrame::connectTableSignals()
{
    connect(m_installButton, &QPushButton::clicked, m_table, &SelectionTable::install);
    connect(m_table, &SelectionTable::installFinished, this, &RVControlFrame::incInstallFinished);
    connect(m_detailsButton, &QPushButton::clicked, m_table, &SelectionTable::showDetails);
    connect(this, &RVControlFrame::authenticationCredentials, m_table,
            &SelectionTable::setAuthenticationCredentials);
    connect(m_table, &SelectionTable::authenticationRequired, this,
            &RVControlFrame::enterAuthenticationState);
    connect(m_table, &SelectionTable::networkError, this, &RVControlFrame::relayNetworkError);
    connect(m_table, &SelectionTable::proxyAuthenticationRequired, this,
            &RVControlFrame::relayProxyAuthenticationRequired);
    connect(m_table, &SelectionTable::sslErrors, this, &RVControlFrame::relaySslErrors);
    connect(m_allButton, &QPushButton::clicked, m_table, &SelectionTable::selectAll);
    connect(m_noneButton, &QPushButton::clicked, m_table, &SelectionTable::selectNone);
}

void RVControlFrame::retireTable(SelectionTable *table)
{
    for (QPushButton *button : {m_installButton, m_detailsButton, m_allButton, m_noneButton}) {
        button->disconnect(table);
    }
    disconnect(table);
    table->disconnect(this);
    m_selectionLayout->removeWidget(table);
    table->hide();
    if (!table->isInstalling()) {
        table->deleteLater();
        return;
    }
    // The installer dies with its table, and dpkg with half its packages done: both stay until the
    // end, which the rest of the page has to hear of; so do the errors of downloads that still run.
    connect(table, &SelectionTable::installFinished, this, &RVControlFrame::incInstallFinished);
    connect(table, &SelectionTable::installFinished, table, &QObject::deleteLater);
    connect(table, &SelectionTable::networkError, this, &RVControlFrame::relayNetworkError);
    connect(table, &SelectionTable::sslErrors, this, &RVControlFrame::relaySslErrors);
}

SelectionTable *RVControlFrame::makeTable(const QList<RVData> &entries)
{
    auto *table = new SelectionTable(entries, m_type, m_osInfo, this, m_paths);
    table->setAccess(m_repository->access());
    return table;
}

void RVControlFrame::replaceTable(const QList<RVData> &entries)
{
    SelectionTable *old = m_table;
    // Also while a dialog is in front, which gives the focus back when it closes.
    const bool focused = window()->focusWidget() == old;
    m_table = makeTable(entries);
    m_selectionLayout->insertWidget(0, m_table, 1);
    setTabOrder(old, m_table);
    showEntries();
    if (focused) {
        focusPage();
    }
    retireTable(old);
    connectTableSignals();
}

void RVControlFrame::showEntries()
{
    const bool any = m_table->rowCount() > 0;
    m_noUpdates->setVisible(m_retrieved && !any);
    m_table->setVisible(any || !m_retrieved);
    for (QPushButton *button : {m_installButton, m_detailsButton, m_allButton, m_noneButton}) {
        button->setEnabled(any);
    }
    showTrust();
    m_allButton->setVisible(m_type != SelectionTable::RadioButtons);
    m_noneButton->setVisible(m_type != SelectionTable::RadioButtons);
}

QList<RVData> RVControlFrame::offered() const
{
    return offeredEntries(m_repository->entries(), *m_osInfo, m_filterSps);
}

void RVControlFrame::showPage(Page page)
{
    const bool focused = hasFocusInside();
    showLocation();
    m_pages->setCurrentIndex(page);
    if (focused) {
        focusPage();
    }
}

bool RVControlFrame::hasFocusInside() const
{
    // Focus in another section or page is never taken away.
    const QWidget *focus = window()->focusWidget();
    return isVisible() && (focus == nullptr || isAncestorOf(focus));
}

void RVControlFrame::focusPage()
{
    switch (currentPage()) {
    case SelectionPage:
        if (m_table->rowCount() > 0) {
            m_table->setFocus();
        } else {
            m_refreshButton->setFocus();
        }
        break;
    case RetrievalPage:
        m_retrievalButtons->button(QDialogButtonBox::Cancel)->setFocus();
        break;
    case AuthenticationPage: {
        QLineEdit *field = m_user->text().isEmpty() ? m_user : m_password;
        field->setFocus();
        field->selectAll();
        break;
    }
    case ErrorPage:
        m_retryButton->setFocus();
        break;
    }
}

void RVControlFrame::showLocation()
{
    const QString location = inMarkup(RVUrl::shown(m_repository->url()));
    m_retrievalLabel->setText(
        tr("Retrieving data from repository<br /> <i>%1</i>", "The argument is a repository URI.")
            .arg(location));
    const QString asking = m_asking == Asking::Repository ? location : inMarkup(m_askingPlace);
    m_authenticationLabel->setText(
        m_asking == Asking::Proxy
            ? tr("Authentication is required to use the proxy <br /><i>%1</i>").arg(asking)
            : tr("Authentication is required to access <br /><i>%1</i>").arg(asking));
    const QString failed =
        tr("Could not retrieve data from repository<br /> <i>%1</i>").arg(location);
    const RVTrustFault &fault = m_repository->trustFault();
    m_errorLabel->setText(
        fault.isSet() && !m_canceled ? failed
                + QStringLiteral("<p>%1<br /><small>%2</small></p>")
                      .arg(
                          RVTrustTexts::sentence(fault).toHtmlEscaped(),
                          RVText::safe(RVText::shortened(fault.text, longestFault)).toHtmlEscaped())
                                     : failed);
}

void RVControlFrame::showTrust()
{
    const QString line = m_retrieved ? RVTrustTexts::line(*m_repository) : QString();
    m_trustLabel->setText(line);
    m_trustLabel->setToolTip(line.isEmpty() ? QString() : RVTrustTexts::explanation(*m_repository));
    m_trustLabel->setVisible(!line.isEmpty());
}

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "ui/RVMainPage.h"

#include "core/OSInfo.h"
#include "core/RVLogger.h"
#include "core/RVOrigin.h"
#include "core/RVProxy.h"
#include "descriptor/DataXML.h"
#include "install/RVFolderMark.h"
#include "install/RVHistory.h"
#include "network/RVKeyring.h"
#include "network/XNetworkError.h"
#include "repository/RVRepDesc.h"
#include "repository/RVRepository.h"
#include "ui/CertDialog.h"
#include "ui/RVControlFrame.h"
#include "ui/RVErrorDialog.h"
#include "ui/RVLastRun.h"
#include "ui/RVStyle.h"

#include <plume/Accordion.h>
#include <plume/AccordionItem.h>

#include <QDir>
#include <QEvent>
#include <QEventLoop>
#include <QPointer>
#include <QVBoxLayout>

namespace
{

constexpr int logThreshold = 6;
constexpr int errorDialogWidth = 600;

} // namespace

const char *const RVMainPage::TITLE_PAGE_TITLE = QT_TRANSLATE_NOOP("RVMainPage", "Ravel");
const char *const RVMainPage::PAGE_TITLE = QT_TRANSLATE_NOOP("RVMainPage", "Updates");
const char *const RVMainPage::PAGE_DESC = QT_TRANSLATE_NOOP(
    "RVMainPage", "Ravel allows you to install the latest updates to your Thin Client software");
const char *const RVMainPage::PAGE_HELP = QT_TRANSLATE_NOOP(
    "RVMainPage",
    "<p><b>Ravel</b> enables the installation of:<ol>  <li>Full software images</li>  "
    "<li>Bundled software service packs</li>  <li>Individual package updates</li></ol></p><p>To "
    "customize Ravel, repository locations can be set to look for data in CV's standard update "
    "sites, company or site-specific repositories, or even local storage.</p>");

RVMainPage::RVMainPage(QMainWindow *, QWidget *parent, Qt::WindowFlags flags, const RVPaths &paths)
    : WizardPage(parent, flags)
    , m_keyring(QSharedPointer<RVKeyring>::create())
{
    RVLogger::setPaths(paths);
    m_logger = std::make_unique<RVLogger>();
    RVLogger::m_level = logThreshold;
    RVFolderMark::removeLeft(QDir::tempPath());
    try {
        m_osInfo = new OSInfo(this, paths);
    } catch (OSInfoBaseClass::ExceptionType error) {
        qCritical("OSInfo exception caught");
        throw error == OSInfoBaseClass::ImageIdUnreadable ? SystemInfoUnavailable
                                                          : SystemInfoFailed;
    }
    RVHistory(paths).closeOpen(RVHistory::judgeBy(m_osInfo));
    m_errorDialog = new RVErrorDialog(this);
    m_errorDialog->hide();
    m_errorDialog->setMinimumWidth(errorDialogWidth);
    connect(m_errorDialog, &QDialog::accepted, m_errorDialog, &QWidget::hide);
    parseRepositoryDir(paths);
    makeRepositories(paths);
    makeSections(paths);
    retranslateUi();
    for (RVControlFrame *frame : qAsConst(m_frames)) {
        const QUrl &url = frame->repository()->url();
        // The scheme of a QUrl is lower case.
        if (url.isRelative() || url.isLocalFile()) {
            frame->enterRetrievalState();
        }
    }
}

RVMainPage::~RVMainPage()
{
    // Sections hold repositories, both the system information, and all of them write to the log.
    delete m_accordion;
    for (RVRepository *repository : qAsConst(m_repositories)) {
        repository->disconnect(this);
        delete repository;
    }
    delete m_osInfo;
    RVLogger::close();
}

QString RVMainPage::title() const
{
    return tr(PAGE_TITLE);
}

QString RVMainPage::description() const
{
    return tr(PAGE_DESC);
}

QString RVMainPage::helpText() const
{
    return tr(PAGE_HELP);
}

QList<RVMainPage::repositoryStatsType *> RVMainPage::repositoryStats() const
{
    m_stats.resize(m_definitions.size());
    QList<repositoryStatsType *> stats;
    for (std::size_t i = 0; i < m_definitions.size(); ++i) {
        if (!m_stats[i]) {
            m_stats[i] = std::make_unique<repositoryStatsType>();
        }
        const RVRepository *repository = m_repositories.at(static_cast<int>(i));
        *m_stats[i] = {m_definitions[i]->uriDescription, repository->url(),
                       repository->defaultUrl()};
        stats.append(m_stats[i].get());
    }
    return stats;
}

void RVMainPage::changeEvent(QEvent *event)
{
    WizardPage::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslateUi();
    }
}

void RVMainPage::retranslateUi()
{
    for (int i = 0; i < m_frames.size(); ++i) {
        const RVRepDesc &definition = *m_definitions[static_cast<std::size_t>(i)];
        m_frames.at(i)->setHeading(DataXML::plainText(definition.title.value({})),
                                   definition.description.value({}));
    }
    if (m_currentIndex >= 0) {
        setAccordionItemHelp(m_items.at(m_currentIndex));
    }
    Q_EMIT retranslateDone();
}

void RVMainPage::repositoryURIChanged(int index, const QUrl &newUrl)
{
    if (index < 0 || index >= m_repositories.size()) {
        return;
    }
    RVRepository *repository = m_repositories.at(index);
    RVControlFrame *frame = m_frames.at(index);
    const QString oldScheme = repository->url().scheme();
    repository->setUrl(newUrl);
    const QString scheme = newUrl.scheme();
    if (scheme != oldScheme) {
        const QString host = m_proxyHosts.value(scheme);
        const int port = m_proxyPorts.value(scheme);
        repository->setProxy(host, port);
        frame->setProxy(host, port);
    }
    // What the user typed for one server is not for another.
    repository->setAuthenticationCredentials({}, {});
    frame->setCredentials({}, {});
    frame->resetTable();
    if (newUrl.isEmpty()) {
        m_items.at(index)->hide();
        frame->cancelRetrieval();
    } else {
        m_items.at(index)->show();
        frame->enterRetrievalState();
    }
}

void RVMainPage::setAccordionItemHelp(AccordionItem *item)
{
    const int index = m_items.indexOf(item);
    if (index >= 0) {
        m_currentIndex = index;
        Q_EMIT helpChanged(m_definitions[static_cast<std::size_t>(index)]->description.value({}));
    }
}

void RVMainPage::proxyChanged(const QString &scheme, const QString &server, int port)
{
    m_logger->log(5, "Proxy for %s is %s:%d", qUtf8Printable(scheme), qUtf8Printable(server), port);
    m_proxyHosts.insert(scheme.toLower(), server);
    m_proxyPorts.insert(scheme.toLower(), port);
    for (RVControlFrame *frame : qAsConst(m_frames)) {
        RVRepository *repository = frame->repository();
        if (repository->url().isEmpty()
            || repository->url().scheme().compare(scheme, Qt::CaseInsensitive) != 0) {
            continue;
        }
        const bool differs = repository->proxyHost() != server || repository->proxyPort() != port;
        // Going from one way to say "no proxy" to another must not restart a retrieval.
        if (differs
            && (isProxy(server, port)
                || isProxy(repository->proxyHost(), repository->proxyPort()))) {
            repository->setProxy(server, port);
            frame->setProxy(server, port);
            frame->enterRetrievalState();
        }
    }
}

void RVMainPage::sslErrors(QNetworkReply *reply, const QList<QSslError> &errors)
{
    const RVCertificateFault fault(reply, errors);
    // The question runs an event loop, in which page and reply may go away.
    const QPointer<RVMainPage> page(this);
    const QPointer<QNetworkReply> waiting(reply);
    const auto isAnswered = [this, &fault] {
        return fault.isFinal() || m_certificates.accepts(fault)
            || m_rejectedCertificates.contains(fault.key());
    };
    while (page && waiting && m_certificateDialog && !isAnswered()) {
        // Downloads run side by side. One dialog at a time: this question may be the open one, or
        // has its turn after it.
        QEventLoop loop;
        connect(m_certificateDialog, &QObject::destroyed, &loop, &QEventLoop::quit);
        connect(m_certificateDialog, &QDialog::finished, &loop, &QEventLoop::quit);
        loop.exec();
    }
    if (!page || !waiting) {
        return;
    }
    bool accepted = m_certificates.accepts(fault);
    if (!isAnswered()) {
        accepted = askAbout(fault, reply->url(), errors);
    }
    if (accepted && waiting) {
        waiting->ignoreSslErrors();
    }
}

bool RVMainPage::askAbout(const RVCertificateFault &fault, const QUrl &url,
                          const QList<QSslError> &errors)
{
    const QPointer<CertDialog> dialog(new CertDialog(url, errors, this, {}, fault.certificate));
    m_certificateDialog = dialog;
    // At once, and not when exec() returns: another question may be open on top by then.
    connect(dialog, &QDialog::finished, this, [this, fault](int result) {
        m_certificateDialog.clear();
        if (result == QDialog::Accepted) {
            m_certificates.accept(fault);
        } else if (!fault.certificate.isNull()) {
            m_rejectedCertificates.insert(fault.key());
        }
    });
    const bool accepted = dialog->exec() == QDialog::Accepted;
    if (dialog) {
        dialog->deleteLater();
    }
    return accepted;
}

void RVMainPage::relayModified()
{
    Q_EMIT modified();
}

void RVMainPage::networkError(const QNetworkReply *reply)
{
    // Repositories tell of a failed listing when it fails and again when it ends: one message is
    // enough.
    if (!reply || reply->error() == QNetworkReply::OperationCanceledError
        || m_reportedReply == reply) {
        return;
    }
    m_reportedReply = reply;
    m_logger->log(3, "Network Error '%d' for '%s'", static_cast<int>(qt4Error(reply->error())),
                  RVLogger::oneLine(reply->url()).constData());
    m_errorDialog->showNetworkError(reply);
}

void RVMainPage::shareCredentials(const QString &userName, const QString &password)
{
    const auto *sharing = qobject_cast<RVControlFrame *>(sender());
    if (!sharing) {
        return;
    }
    for (RVControlFrame *frame : qAsConst(m_frames)) {
        const RVRepository *repository = frame->repository();
        // A password that was typed for https must not travel in clear, nor to a neighbour's port.
        if (frame == sharing || !isSameOrigin(repository->url(), sharing->repository()->url())
            || !repository->user().isEmpty() || !repository->password().isEmpty()) {
            continue;
        }
        // No echo.
        disconnect(frame, &RVControlFrame::authenticationCredentials, this,
                   &RVMainPage::shareCredentials);
        frame->setCredentials(userName, password);
        frame->emitAuthentication();
        connect(frame, &RVControlFrame::authenticationCredentials, this,
                &RVMainPage::shareCredentials);
        frame->enterRetrievalState();
    }
}

void RVMainPage::askAgain(const QString &place)
{
    for (RVControlFrame *frame : qAsConst(m_frames)) {
        if (frame != sender() && frame->isAskingFor(place)) {
            frame->enterRetrievalState();
        }
    }
}

void RVMainPage::parseRepositoryDir(const RVPaths &paths)
{
    static_assert(int(NoDefinitionDirectory) == int(RVDefinitions::NoDefinitionDirectory)
                  && int(BadDefinitionFile) == int(RVDefinitions::BadDefinitionFile)
                  && int(NoRepositories) == int(RVDefinitions::NoRepositories));
    const RVDefinitions::Error error = RVDefinitions::readDirectory(paths, &m_definitions);
    if (error != RVDefinitions::NoError) {
        throw static_cast<ExceptionType>(error);
    }
}

void RVMainPage::makeRepositories(const RVPaths &paths)
{
    for (const auto &definition : m_definitions) {
        RVRepository *repository = RVRepository::fromDefinition(*definition, this, paths);
        repository->setKeyring(m_keyring);
        connect(repository, &RVRepository::networkError, this, &RVMainPage::networkError);
        connect(repository, &RVRepository::sslErrors, this, &RVMainPage::sslErrors);
        m_repositories.append(repository);
    }
}

void RVMainPage::makeSections(const RVPaths &paths)
{
    m_accordion = new Accordion;
    const RVStyle style(paths);
    for (int i = 0; i < m_repositories.size(); ++i) {
        const RVRepDesc &definition = *m_definitions[static_cast<std::size_t>(i)];
        RVRepository *repository = m_repositories.at(i);
        auto *frame = new RVControlFrame(
            repository, m_osInfo,
            definition.picksOne() ? SelectionTable::RadioButtons : SelectionTable::CheckBoxes,
            DataXML::plainText(definition.title.value({})), definition.description.value({}),
            style.StdIcon(definition.icon), definition.filterSps, nullptr, paths);
        auto *item = new AccordionItem(frame);
        // The accordion opens the first item that is not hidden.
        if (repository->url().isEmpty()) {
            item->hide();
        }
        m_accordion->addItem(item);
        connect(frame, &RVControlFrame::networkError, this, &RVMainPage::networkError);
        connect(frame, &RVControlFrame::authenticationCredentials, this,
                &RVMainPage::shareCredentials);
        connect(frame, &RVControlFrame::loginKept, this, &RVMainPage::askAgain);
        connect(frame, &RVControlFrame::transfersStarted, this, [this] {
            m_rejectedCertificates.clear();
        });
        connect(item, &AccordionItem::selected, this, &RVMainPage::setAccordionItemHelp);
        connect(frame, &RVControlFrame::installFinished, m_osInfo, &OSInfo::refresh);
        connect(frame, &RVControlFrame::installFinished, this, &RVMainPage::relayModified);
        connect(frame, &RVControlFrame::sslErrors, this, &RVMainPage::sslErrors);
        m_frames.append(frame);
        m_items.append(item);
    }
    // After the connections above: tables compare with what the system has become.
    for (const RVControlFrame *installing : qAsConst(m_frames)) {
        for (RVControlFrame *frame : qAsConst(m_frames)) {
            connect(installing, &RVControlFrame::installFinished, frame,
                    QOverload<>::of(&RVControlFrame::refreshTableData));
        }
    }
    auto *layout = new QVBoxLayout(this);
    auto *lastRun = new RVLastRun(paths);
    connect(lastRun, &RVLastRun::ended, m_osInfo, &OSInfo::refresh);
    for (RVControlFrame *frame : qAsConst(m_frames)) {
        connect(lastRun, &RVLastRun::ended, frame,
                QOverload<>::of(&RVControlFrame::refreshTableData));
    }
    layout->addWidget(lastRun);
    layout->addWidget(m_accordion, 0, Qt::AlignVCenter);
}

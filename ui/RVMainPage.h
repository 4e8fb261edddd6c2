// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/RVPaths.h"
#include "network/RVCertificates.h"
#include "repository/RVDefinitions.h"

#include <plume/LocaleString.h>
#include <plume/WizardPage.h>

#include <QList>
#include <QMap>
#include <QNetworkReply>
#include <QPointer>
#include <QSet>
#include <QSharedPointer>
#include <QSslError>
#include <QUrl>

#include <memory>
#include <vector>

class Accordion;
class AccordionItem;
class CertDialog;
class OSInfo;
class QMainWindow;
class QSslCertificate;
class RVControlFrame;
class RVErrorDialog;
class RVKeyring;
class RVLogger;
class RVRepository;

/// The updates page: one section for each repository definition. Owned by the host's window.
class RVMainPage : public WizardPage
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(RVMainPage)

public:
    /// Thrown by value from the constructor.
    enum ExceptionType {
        NoDefinitionDirectory = 1,
        BadDefinitionFile = 2,
        NoRepositories = 3,
        SystemInfoUnavailable = 4,
        SystemInfoFailed = 5,
    };

    /// What the options page needs to know of a repository.
    struct repositoryStatsType {
        LocaleString label;
        QUrl url;
        QUrl defaultUrl;
    };

    static const char *const TITLE_PAGE_TITLE;
    static const char *const PAGE_TITLE;
    static const char *const PAGE_DESC;
    static const char *const PAGE_HELP;

    explicit RVMainPage(QMainWindow *window, QWidget *parent = nullptr, Qt::WindowFlags flags = {},
                        const RVPaths &paths = {});
    ~RVMainPage() override;

    QString title() const override;
    QString description() const override;
    QString helpText() const override;
    /// One record for each repository, in order. The page keeps them; each call brings them up to
    /// date.
    QList<repositoryStatsType *> repositoryStats() const;

public Q_SLOTS:
    void changeEvent(QEvent *event) override;
    void retranslateUi();
    void repositoryURIChanged(int index, const QUrl &newUrl);
    void setAccordionItemHelp(AccordionItem *item);
    void proxyChanged(const QString &scheme, const QString &server, int port);
    void sslErrors(QNetworkReply *reply, const QList<QSslError> &errors);
    void relayModified();
    void networkError(const QNetworkReply *reply);
    void shareCredentials(const QString &userName, const QString &password);

Q_SIGNALS:
    void refreshDone();
    void helpChanged(const QString &newHelp);
    void retranslateDone();

private:
    void parseRepositoryDir(const RVPaths &paths);
    void makeRepositories(const RVPaths &paths);
    void makeSections(const RVPaths &paths);
    void askAgain(const QString &place);
    bool askAbout(const RVCertificateFault &fault, const QUrl &url, const QList<QSslError> &errors);

    std::unique_ptr<RVLogger> m_logger;
    OSInfo *m_osInfo = nullptr;
    QList<RVRepository *> m_repositories;
    Accordion *m_accordion = nullptr;
    QList<RVControlFrame *> m_frames;
    QList<AccordionItem *> m_items;
    RVDefinitions::List m_definitions;
    RVErrorDialog *m_errorDialog = nullptr;
    /// The section whose help is shown; -1 before one was opened.
    int m_currentIndex = -1;
    /// By lower-case URL scheme.
    QMap<QString, QString> m_proxyHosts;
    QMap<QString, int> m_proxyPorts;
    /// Logins for other servers and for proxies, of all sections.
    QSharedPointer<RVKeyring> m_keyring;
    /// What the user accepted in this run.
    RVCertificates m_certificates;
    /// What the user rejected since transfers were last started, by RVCertificateFault::key().
    QSet<QString> m_rejectedCertificates;
    /// The one question that is open now.
    QPointer<CertDialog> m_certificateDialog;
    QPointer<const QNetworkReply> m_reportedReply;
    mutable std::vector<std::unique_ptr<repositoryStatsType>> m_stats;
};

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/RVPaths.h"
#include "network/RVAccess.h"
#include "network/XUrlInfo.h"
#include "repository/RVData.h"
#include "repository/RVSort.h"
#include "repository/RVTrustPolicy.h"

#include <QAuthenticator>
#include <QList>
#include <QNetworkReply>
#include <QObject>
#include <QPointer>
#include <QRegExp>
#include <QSslError>
#include <QUrl>

class QSettings;
class RVDescFetch;
class RVFilter;
class RVRepDesc;
class RVTrust;
class XNetworkAccessManager;
class XNetworkReply;

/// One update repository at run time: where it is, what it lists, and its current entries.
/// What a refresh() finds it tells by refreshDone(): twice when the location lists no entry, after
/// networkError() when the listing could not start, and not at all, but for networkError(), when
/// the listing failed later, no descriptor could be asked for, or the repository is not trusted,
/// which trustFailed() tells. Its final signal is
/// refreshEnded(), once for each refresh(), whatever became of it; a deleted repository gives none.
/// In slots of its own signals use deleteLater().
class RVRepository : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(RVRepository)

public:
    /// The location is what the settings hold under `settingsKey`, else `defaultUrl`.
    RVRepository(const QString &organisation, const QString &application,
                 const QString &settingsKey, const QUrl &defaultUrl, const QString &description,
                 SortKey sortKey, QObject *parent = nullptr, const RVPaths &paths = {});
    /// The repository of a definition, with the definition's filters, on the program's settings.
    static RVRepository *fromDefinition(const RVRepDesc &definition, QObject *parent = nullptr,
                                        const RVPaths &paths = {});
    ~RVRepository() override;

    /// What the definition asks for; nothing unless set.
    void setTrustPolicy(const RVTrustPolicy &policy) { m_trustPolicy = policy; }
    const RVTrustPolicy &trustPolicy() const { return m_trustPolicy; }
    /// Whether refreshes write down which list they have seen; so unless told otherwise.
    void setRememberingTrust(bool isRemembering) { m_isRememberingTrust = isRemembering; }
    /// The list of the last refresh; null where the definition asks for none, or nothing came.
    const QSharedPointer<RVTrust> &trust() const { return m_trust; }
    /// Why nothing of the last refresh is used.
    const RVTrustFault &trustFault() const { return m_trustFault; }

    void addFilter(const QRegExp &archive, const QRegExp &descriptor);

    const QUrl &url() const { return m_url; }
    const QUrl &defaultUrl() const { return m_defaultUrl; }
    const QString &settingsKey() const { return m_settingsKey; }
    const QString &description() const { return m_description; }
    const QList<RVData> &entries() const { return m_entries; }
    /// What the last successful refresh found at the location.
    const QList<XUrlInfo> &listing() const { return m_listing; }
    /// Whether a filter picks this file as an archive.
    bool selects(const XUrlInfo &item) const;
    /// Between refresh() and refreshEnded().
    bool isRefreshing() const { return m_isRefreshing; }
    /// What its transfers are given.
    const RVAccess &access() const { return m_access; }
    const QString &user() const { return m_access.login.user; }
    const QString &password() const { return m_access.login.password; }
    const QString &proxyHost() const { return m_access.proxyHost; }
    int proxyPort() const { return m_access.proxyPort; }
    /// Used from the next refresh on; an empty host or a port of 0 or less means no proxy.
    void setProxy(const QString &host, int port);
    /// Logins for other servers and for proxies; one of its own unless set, never null.
    const QSharedPointer<RVKeyring> &keyring() const { return m_access.keyring; }
    void setKeyring(const QSharedPointer<RVKeyring> &keyring);

public Q_SLOTS:
    /// Stores a location that differs from the default, and forgets the stored one if it does not.
    void setUrl(const QUrl &url);
    void setUrl(const QString &urlStr);
    /// A second refresh drops what the first has still under way, whose refreshEnded() comes
    /// inside this call.
    void refresh();
    void cancel();
    void setAuthenticationCredentials(const QString &user, const QString &password);

Q_SIGNALS:
    void refreshDone(QNetworkReply::NetworkError error);
    /// The repository is not what the definition asks for, trustFault() says why. No refreshDone()
    /// then.
    void trustFailed();
    /// The refresh has given every other signal that it gives.
    void refreshEnded();
    /// Each descriptor's download that has ended, failed ones too, before it is read: receivers
    /// may peek into it, no more.
    void descriptorArrived(QNetworkReply *reply);
    void networkError(const QNetworkReply *reply);
    void authenticationRequired(QNetworkReply *reply, QAuthenticator *auth);
    void proxyAuthenticationRequired(const QNetworkProxy &proxy, QAuthenticator *auth);
    void sslErrors(QNetworkReply *reply, const QList<QSslError> &errors);
    void cancelRefresh();

private Q_SLOTS:
    void attemptAuthentication(QNetworkReply *reply, QAuthenticator *auth);
    void directoryFinished(XNetworkReply *reply);
    void descFetchFinished();
    void relayNetworkError(const QNetworkReply *reply);
    void relayNetworkError(QNetworkReply::NetworkError error);
    void relayProxyAuthenticationRequired(const QNetworkProxy &proxy, QAuthenticator *auth);
    void relaySslErrors(QNetworkReply *reply, const QList<QSslError> &errors);
    void deleteSenderLater(XNetworkReply *reply);

private:
    friend struct RVRepositoryTestAccess;

    void dropRefresh();
    bool beginRefresh();
    void endRefresh();
    void dropDescFetch();
    void takeListing(XNetworkReply *reply);
    void reportDone();
    void follow(XNetworkAccessManager *manager, XNetworkReply *reply);
    void filter();
    void fetchDescriptors();
    void loadTrust();
    void trustLoaded();
    void failTrust(const RVTrustFault &fault);

    const RVPaths m_paths;
    QSettings *m_settings;
    QString m_settingsKey;
    QUrl m_defaultUrl;
    QString m_description;
    QList<XUrlInfo> m_listing;
    QUrl m_url;
    QList<RVData> m_entries;
    QList<RVFilter *> m_filters;
    // Of the refresh that runs; a later one drops them and counts m_generation up.
    QPointer<XNetworkAccessManager> m_manager;
    QPointer<XNetworkReply> m_reply;
    RVDescFetch *m_descFetch = nullptr;
    int m_generation = 0;
    /// Questions about certificates that are open; their receiver may run an event loop.
    int m_questions = 0;
    QNetworkReply::NetworkError m_error = QNetworkReply::NoError;
    SortKey m_sortKey;
    RVAccess m_access;
    bool m_isRefreshing = false;
    RVTrustPolicy m_trustPolicy;
    bool m_isRememberingTrust = true;
    /// Shared with the entries.
    QSharedPointer<RVTrust> m_trust;
    RVTrustFault m_trustFault;
    bool m_isLoadingTrust = false;
    /// Past every cache, because something did not fit its sum.
    bool m_isFresh = false;
};

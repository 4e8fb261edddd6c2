// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "repository/RVRepository.h"

#include "core/RVLogger.h"
#include "core/RVSettings.h"
#include "network/NetworkDirRequest.h"
#include "network/XNetworkAccessManager.h"
#include "network/XNetworkReply.h"
#include "repository/RVDescFetch.h"
#include "repository/RVFilter.h"
#include "repository/RVRepDesc.h"
#include "repository/RVTrust.h"

#include <QSettings>

#include <algorithm>
#include <utility>

namespace
{

} // namespace

RVRepository::RVRepository(const QString &organisation, const QString &application,
                           const QString &settingsKey, const QUrl &defaultUrl,
                           const QString &description, SortKey sortKey, QObject *parent,
                           const RVPaths &paths)
    : QObject(parent)
    , m_paths(paths)
    , m_settings(new QSettings(organisation, application, this))
    , m_settingsKey(settingsKey)
    , m_defaultUrl(defaultUrl)
    , m_description(description)
    , m_url(defaultUrl)
    , m_sortKey(sortKey)
{
    RVLogger().log(5, "Setting up repository('%s')", qUtf8Printable(m_description));
    if (!m_settingsKey.isEmpty()) {
        m_url = QUrl(m_settings->value(m_settingsKey, m_defaultUrl.toString()).toString());
    }
    m_access.server = m_url;
    m_access.proxyPort = 0;
}

RVRepository *RVRepository::fromDefinition(const RVRepDesc &definition, QObject *parent,
                                           const RVPaths &paths)
{
    auto *repository = new RVRepository(
        QLatin1String(RVSettings::organisation), QLatin1String(RVSettings::application),
        definition.settingsKey, definition.defaultUri, definition.uriDescription.value({}),
        definition.picksOne() ? SortByVersion : SortByName, parent, paths);
    for (int i = 0; i < definition.archivePatterns.size(); ++i) {
        repository->addFilter(
            QRegExp(definition.archivePatterns.at(i), Qt::CaseSensitive, QRegExp::RegExp),
            QRegExp(definition.descriptorPatterns.at(i), Qt::CaseSensitive, QRegExp::RegExp));
    }
    repository->setTrustPolicy(definition.trust);
    return repository;
}

RVRepository::~RVRepository()
{
    const QPointer<XNetworkReply> reply = m_reply;
    if (m_questions > 0) {
        // Qt goes on with the transfer that asks when the question returns: what it belongs to
        // stays until then.
        for (QObject *owner : std::initializer_list<QObject *>{m_manager, m_descFetch}) {
            if (owner) {
                owner->setParent(nullptr);
            }
        }
    }
    dropRefresh();
    delete reply;
}

void RVRepository::addFilter(const QRegExp &archive, const QRegExp &descriptor)
{
    m_filters.append(new RVFilter(archive, descriptor, this));
}

bool RVRepository::selects(const XUrlInfo &item) const
{
    return std::any_of(m_filters.cbegin(), m_filters.cend(), [&item](const RVFilter *filter) {
        return filter->selects(item);
    });
}

void RVRepository::setProxy(const QString &host, int port)
{
    m_access.proxyHost = host;
    m_access.proxyPort = port;
}

void RVRepository::setKeyring(const QSharedPointer<RVKeyring> &keyring)
{
    m_access.keyring = keyring;
}

void RVRepository::setUrl(const QUrl &url)
{
    m_url = url;
    m_access.server = url;
    if (m_settingsKey.isEmpty()) {
        return;
    }
    if (m_url != m_defaultUrl) {
        RVSettings::makePrivate(m_settings->fileName());
        m_settings->setValue(m_settingsKey, m_url.toString());
    } else {
        m_settings->remove(m_settingsKey);
    }
}

void RVRepository::setUrl(const QString &urlStr)
{
    setUrl(QUrl(urlStr));
}

void RVRepository::setAuthenticationCredentials(const QString &user, const QString &password)
{
    m_access.login = {user, password};
}

void RVRepository::cancel()
{
    Q_EMIT cancelRefresh();
}

void RVRepository::dropRefresh()
{
    ++m_generation;
    // The manager first: it delivers an aborted listing inside abort().
    if (m_manager) {
        m_manager->disconnect(this);
        m_manager->deleteLater();
        m_manager.clear();
    }
    if (const QPointer<XNetworkReply> reply = m_reply) {
        m_reply.clear();
        reply->disconnect(this);
        disconnect(reply);
        reply->abort();
        if (reply) {
            reply->deleteLater();
        }
    }
    if (RVDescFetch *descFetch = m_descFetch) {
        dropDescFetch();
        descFetch->cancel();
    }
    if (m_trust) {
        m_trust->disconnect(this);
        // Otherwise an installation may be at it.
        if (std::exchange(m_isLoadingTrust, false)) {
            m_trust->cancel();
        }
        m_trust.clear();
    }
    m_trustFault = {};
    m_isFresh = false;
}

void RVRepository::dropDescFetch()
{
    m_descFetch->disconnect(this);
    disconnect(m_descFetch);
    m_descFetch->deleteLater();
    m_descFetch = nullptr;
}

// False when a receiver of the dropped one's end has begun another.
bool RVRepository::beginRefresh()
{
    dropRefresh();
    const int generation = m_generation;
    if (std::exchange(m_isRefreshing, true)) {
        Q_EMIT refreshEnded();
    }
    return generation == m_generation;
}

void RVRepository::endRefresh()
{
    m_isRefreshing = false;
    Q_EMIT refreshEnded();
}

void RVRepository::refresh()
{
    if (!beginRefresh()) {
        return;
    }
    const int generation = m_generation;
    RVLogger log;
    log.log(5, "Refreshing repository('%s')", RVLogger::oneLine(m_url).constData());
    if (m_url.isEmpty()) {
        m_listing.clear();
        m_entries.clear();
        Q_EMIT refreshDone(QNetworkReply::NoError);
        if (generation == m_generation) {
            endRefresh();
        }
        return;
    }

    const RVTrustFault fault = RVTrust(m_trustPolicy, m_url, m_paths).judgePolicy();
    if (fault.isSet()) {
        m_listing.clear();
        failTrust(fault);
        return;
    }

    m_manager = new XNetworkAccessManager(this);
    m_access.configure(m_manager, m_url);
    if (m_access.hasProxy()) {
        log.log(5, "  Using proxy %s:%d", qUtf8Printable(m_access.proxyHost), m_access.proxyPort);
    }
    connect(m_manager, &QNetworkAccessManager::authenticationRequired, this,
            &RVRepository::attemptAuthentication);
    connect(m_manager, &QNetworkAccessManager::proxyAuthenticationRequired, this,
            &RVRepository::relayProxyAuthenticationRequired);
    connect(m_manager, &QNetworkAccessManager::sslErrors, this, &RVRepository::relaySslErrors);

    NetworkDirRequest request(m_url);
    request.setManager(m_manager);
    const QPointer<XNetworkReply> reply = m_manager->getDirectory(request);
    const QNetworkReply::NetworkError error = reply->error();
    if (!reply->finished && error == QNetworkReply::NoError) {
        follow(m_manager, reply);
        return;
    }

    m_manager->deleteLater();
    m_manager.clear();
    if (reply->finished) {
        m_reply = reply;
        takeListing(reply);
    }
    if (error == QNetworkReply::NoError || generation != m_generation) {
        return;
    }
    // A listing that failed inside the call has been reported above. It is told once more, together
    // with refreshDone(), as every listing that could not start: the page that waits for it goes
    // on.
    Q_EMIT networkError(reply);
    if (reply) {
        reply->abort();
        reply->deleteLater();
    }
    if (generation == m_generation) {
        Q_EMIT refreshDone(error);
    }
    if (generation == m_generation) {
        endRefresh();
    }
}

void RVRepository::follow(XNetworkAccessManager *manager, XNetworkReply *reply)
{
    m_manager = manager;
    m_reply = reply;
    connect(manager, &XNetworkAccessManager::directoryFinished, this,
            &RVRepository::directoryFinished);
    connect(manager, &XNetworkAccessManager::directoryFinished, this,
            &RVRepository::deleteSenderLater);
    connect(this, &RVRepository::cancelRefresh, reply, &XNetworkReply::abort);
    connect(reply, &QNetworkReply::errorOccurred, this,
            qOverload<QNetworkReply::NetworkError>(&RVRepository::relayNetworkError));
    connect(reply, &QNetworkReply::finished, reply, &QObject::deleteLater);
}

void RVRepository::directoryFinished(XNetworkReply *reply)
{
    if (reply != m_reply) {
        return; // its result is in already
    }
    const int generation = m_generation;
    takeListing(reply);
    if (generation == m_generation && m_error != QNetworkReply::NoError) {
        endRefresh();
    }
}

void RVRepository::takeListing(XNetworkReply *reply)
{
    m_reply.clear();
    disconnect(this, nullptr, reply, nullptr);
    m_error = reply->error();
    m_entries.clear();
    RVLogger().log(5, "Finished directory fetch('%s'), Err=%d",
                   RVLogger::oneLine(m_url).constData(), static_cast<int>(m_error));
    m_listing.clear();
    reply->deleteLater();
    if (m_error != QNetworkReply::NoError) {
        Q_EMIT networkError(reply);
        return;
    }
    m_listing = reply->entries;
    if (m_trustPolicy.kind != RVTrustPolicy::None) {
        loadTrust();
        return;
    }
    filter();
    fetchDescriptors();
}

void RVRepository::loadTrust()
{
    m_trust = QSharedPointer<RVTrust>::create(m_trustPolicy, m_url, m_paths);
    m_trust->access = m_access;
    m_trust->isRemembering = m_isRememberingTrust;
    connect(m_trust.data(), &RVTrust::finished, this, &RVRepository::trustLoaded);
    connect(m_trust.data(), &RVTrust::authenticationRequired, this,
            &RVRepository::authenticationRequired);
    connect(m_trust.data(), &RVTrust::proxyAuthenticationRequired, this,
            &RVRepository::proxyAuthenticationRequired);
    connect(m_trust.data(), &RVTrust::sslErrors, this, &RVRepository::relaySslErrors);
    connect(this, &RVRepository::cancelRefresh, m_trust.data(), [this] {
        if (m_isLoadingTrust) {
            m_trust->cancel();
        }
    });
    m_isLoadingTrust = true;
    m_trust->load();
}

void RVRepository::trustLoaded()
{
    if (!std::exchange(m_isLoadingTrust, false)) {
        return; // an installation has loaded it anew
    }
    if (m_trust->fault().isSet()) {
        const RVTrustFault fault = m_trust->fault();
        m_trust.clear();
        failTrust(fault);
        return;
    }
    filter();
    fetchDescriptors();
}

void RVRepository::failTrust(const RVTrustFault &fault)
{
    const int generation = m_generation;
    m_entries.clear();
    m_trustFault = fault;
    Q_EMIT trustFailed();
    if (generation == m_generation) {
        endRefresh();
    }
}

void RVRepository::filter()
{
    const QList<XUrlInfo> listing = m_trust ? m_trust->listed(m_listing) : m_listing;
    const auto append = [&](const RVFilter &filter) {
        QList<RVData> found;
        filter.filterList(listing, found, m_paths, m_url);
        for (RVData &entry : found) {
            entry.trust = m_trust;
        }
        m_entries.append(found);
    };
    m_entries.clear();
    for (const RVFilter *filter : qAsConst(m_filters)) {
        append(*filter);
    }
    if (m_filters.isEmpty()) {
        append(RVFilter(QStringLiteral("*"), QString()));
    }
}

void RVRepository::fetchDescriptors()
{
    const int generation = m_generation;
    if (m_entries.isEmpty()) {
        // The empty fetch below reports once more.
        reportDone();
        if (generation != m_generation) {
            return;
        }
    }
    RVLogger().log(5, "Beginning descriptor fetch for '%s'", RVLogger::oneLine(m_url).constData());
    m_descFetch = new RVDescFetch(m_entries, user(), password(), this);
    m_descFetch->access = m_access;
    m_descFetch->isFresh = m_isFresh;
    connect(m_descFetch, &RVDescFetch::finished, this, &RVRepository::descFetchFinished);
    connect(m_descFetch, &RVDescFetch::descriptorArrived, this, &RVRepository::descriptorArrived);
    connect(m_descFetch, &RVDescFetch::authenticationRequired, this,
            &RVRepository::attemptAuthentication);
    connect(m_descFetch, &RVDescFetch::networkError, this,
            qOverload<const QNetworkReply *>(&RVRepository::relayNetworkError));
    connect(m_descFetch, &RVDescFetch::proxyAuthenticationRequired, this,
            &RVRepository::relayProxyAuthenticationRequired);
    connect(m_descFetch, &RVDescFetch::sslErrors, this, &RVRepository::relaySslErrors);
    connect(this, &RVRepository::cancelRefresh, m_descFetch, &RVDescFetch::cancel);
    m_descFetch->fetchAll();
    if (generation == m_generation && m_descFetch && !m_descFetch->isActive()) {
        // Nothing could be asked for, which has been told one by one.
        dropDescFetch();
        endRefresh();
    }
}

void RVRepository::descFetchFinished()
{
    const int generation = m_generation;
    const QList<QUrl> unfit = m_descFetch->unfit();
    dropDescFetch();
    if (!unfit.isEmpty() && !std::exchange(m_isFresh, true)) {
        // The publisher may have been at work, or a cache holds something back: everything once
        // more, since what was read belongs to the list of then.
        m_isLoadingTrust = true;
        m_trust->load(true);
        return;
    }
    for (const QUrl &url : unfit) {
        m_trust->refuse(url);
    }
    reportDone();
    if (generation == m_generation) {
        endRefresh();
    }
}

void RVRepository::reportDone()
{
    RVLogger().log(5, "Descriptor fetch finished for '%s'", RVLogger::oneLine(m_url).constData());
    sortEntries(m_entries, m_sortKey);
    Q_EMIT refreshDone(m_error);
}

void RVRepository::attemptAuthentication(QNetworkReply *reply, QAuthenticator *auth)
{
    if (!m_access.answer(reply, auth)) {
        Q_EMIT authenticationRequired(reply, auth);
    }
}

void RVRepository::relayNetworkError(const QNetworkReply *reply)
{
    Q_EMIT networkError(reply);
}

void RVRepository::relayNetworkError(QNetworkReply::NetworkError /*error*/)
{
    Q_EMIT networkError(qobject_cast<const QNetworkReply *>(sender()));
}

void RVRepository::relayProxyAuthenticationRequired(const QNetworkProxy &proxy,
                                                    QAuthenticator *auth)
{
    if (!m_access.answer(proxy, auth)) {
        Q_EMIT proxyAuthenticationRequired(proxy, auth);
    }
}

void RVRepository::relaySslErrors(QNetworkReply *reply, const QList<QSslError> &errors)
{
    const QPointer<RVRepository> self(this);
    ++m_questions;
    Q_EMIT sslErrors(reply, errors);
    if (self) {
        --m_questions;
    }
}

void RVRepository::deleteSenderLater(XNetworkReply * /*reply*/)
{
    sender()->deleteLater();
}

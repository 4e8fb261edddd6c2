// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "repository/RVDescFetch.h"

#include "core/LocalCopy.h"
#include "core/RVLogger.h"
#include "descriptor/DescriptorXML.h"
#include "descriptor/XmlCheck.h"
#include "network/XHttpReply.h"
#include "network/XNetworkAccessManager.h"
#include "repository/RVTrust.h"

#include <QAuthenticator>
#include <QBuffer>

#include <algorithm>
#include <utility>

namespace
{

void boundXmlBody(QNetworkReply *reply)
{
    QObject::connect(reply, &QNetworkReply::readyRead, reply, [reply] {
        if (reply->bytesAvailable() > XmlCheck::maxBytes) {
            RVLogger().log(4, "Descriptor larger than %d bytes, aborting %s", XmlCheck::maxBytes,
                           RVLogger::oneLine(reply->url()).constData());
            reply->abort();
        }
    });
}

} // namespace

RVDescFetch::RVDescFetch(QList<RVData> &entries, const QString &ftpUser, const QString &ftpPassword,
                         QObject *parent)
    : QObject(parent)
    , m_entries(entries)
{
    access.login = {ftpUser, ftpPassword};
}

RVDescFetch::~RVDescFetch() = default;

void RVDescFetch::fetchAll()
{
    const Replies forgotten = takeFetches();
    for (QNetworkReply *reply : forgotten) {
        disconnect(reply, nullptr, this, nullptr);
        reply->manager()->deleteLater();
    }
    if (m_entries.isEmpty()) {
        Q_EMIT finished();
        return;
    }
    m_next = 0;
    m_active = true;
    if (startWaiting()) {
        // Nothing in flight here: all of them failed at once, which has been told one by one.
        m_active = m_active && !m_fetches.isEmpty();
    }
}

void RVDescFetch::cancel()
{
    RVLogger().log(5, "DESCRIPTOR FETCH CANCEL, KILLING %d FETCHES",
                   static_cast<int>(m_fetches.size()));
    m_next = m_entries.size();
    m_active = false;
    // A receiver of networkError() may run an event loop, in which other replies end and go.
    const QPointer<RVDescFetch> self(this);
    const Replies replies = takeFetches();
    for (const QPointer<QNetworkReply> &reply : replies) {
        if (reply) {
            reply->abort();
        }
        if (!self) {
            return;
        }
        if (reply) {
            reply->deleteLater();
            reply->manager()->deleteLater();
        }
    }
    Q_EMIT finished();
}

// False when this object is gone: the receivers of networkError() may delete it, or cancel().
bool RVDescFetch::startWaiting()
{
    const QPointer<RVDescFetch> self(this);
    while (self && m_next < m_entries.size() && m_fetches.size() < RVLimits::transfersNow()) {
        start(m_entries.at(m_next++));
    }
    return !self.isNull();
}

void RVDescFetch::start(const RVData &entry)
{
    const QUrl &url = entry.descriptorUrl();
    DescriptorGeneric *descriptor = entry.descriptor().data();
    if (!descriptor) {
        qCritical("Null descriptor in RVDescFetch for '%s'", RVLogger::oneLine(url).constData());
        RVLogger().log(3, "Null descriptor in RVDescFetch for '%s'",
                       RVLogger::oneLine(url).constData());
        return;
    }
    // Copies of one entry share the descriptor; the download in flight fills it for all of them.
    if (m_fetches.contains(descriptor)) {
        return;
    }
    auto *manager = new XNetworkAccessManager(this);
    access.configure(manager, url);
    connect(manager, &QNetworkAccessManager::finished, this, &RVDescFetch::descriptorArrived);
    if (entry.trust) {
        connect(manager, &QNetworkAccessManager::finished, descriptor,
                [this, entry](QNetworkReply *reply) {
                    readListed(entry, reply);
                });
    } else {
        connect(manager, &QNetworkAccessManager::finished, descriptor,
                qOverload<QNetworkReply *>(&DescriptorGeneric::read));
    }
    connect(descriptor, &DescriptorGeneric::readFinished, this, &RVDescFetch::readFinished);
    connect(manager, &QNetworkAccessManager::finished, this, &RVDescFetch::deleteSenderLater);
    connect(manager, &QNetworkAccessManager::authenticationRequired, this,
            &RVDescFetch::relayAuthenticationRequired);
    connect(manager, &QNetworkAccessManager::proxyAuthenticationRequired, this,
            &RVDescFetch::relayProxyAuthenticationRequired);
    connect(manager, &QNetworkAccessManager::sslErrors, this, &RVDescFetch::relaySslErrors);

    QNetworkReply *reply = manager->get(RVTrust::request(access.withLogin(url), isFresh));
    if (reply->error() == QNetworkReply::NoError) {
        m_fetches.insert(descriptor, reply);
        connect(reply, &QNetworkReply::errorOccurred, this, &RVDescFetch::relayNetworkError);
        connect(reply, &QNetworkReply::finished, reply, &QObject::deleteLater);
        connect(reply, &QObject::destroyed, this, &RVDescFetch::replyDestroyed);
        if (DescriptorXML(url).urlIsHandled()) {
            boundXmlBody(reply);
        }
        return;
    }

    disconnect(descriptor, &DescriptorGeneric::readFinished, this, &RVDescFetch::readFinished);
    disconnect(manager, &QNetworkAccessManager::finished, this, &RVDescFetch::deleteSenderLater);
    const QPointer<RVDescFetch> self(this);
    Q_EMIT networkError(reply);
    if (self) {
        reply->close();
        manager->deleteLater();
        reply->deleteLater();
    }
}

// The file that is hashed is the one that is read.
void RVDescFetch::readListed(const RVData &entry, QNetworkReply *reply)
{
    LocalCopy copy;
    if (reply->error() == QNetworkReply::NoError && copy.take(reply)) {
        const RVTrustFault fault = entry.trust->judge(entry.descriptorUrl(), copy.file());
        if (!fault.isSet()) {
            entry.descriptor()->read(copy.file());
            return;
        }
        RVLogger().log(3, "%s", RVLogger::oneLine(fault.text).constData());
        m_unfit.append(entry.descriptorUrl());
    }
    QBuffer nothing;
    entry.descriptor()->read(&nothing);
}

void RVDescFetch::endFetch(DescriptorGeneric *descriptor)
{
    disconnect(descriptor, &DescriptorGeneric::readFinished, this, &RVDescFetch::readFinished);
    m_fetches.remove(descriptor);
    if (startWaiting() && m_active && m_fetches.isEmpty()) {
        m_active = false;
        Q_EMIT finished();
    }
}

// Nothing that the taken replies or their descriptors still do is counted.
RVDescFetch::Replies RVDescFetch::takeFetches()
{
    Replies replies;
    const QMap<DescriptorGeneric *, QNetworkReply *> fetches = std::exchange(m_fetches, {});
    for (auto it = fetches.cbegin(); it != fetches.cend(); ++it) {
        disconnect(it.key(), &DescriptorGeneric::readFinished, this, &RVDescFetch::readFinished);
        disconnect(it.value()->manager(), nullptr, it.key(), nullptr);
        replies.append(it.value());
    }
    return replies;
}

void RVDescFetch::readFinished()
{
    endFetch(qobject_cast<DescriptorGeneric *>(sender()));
}

void RVDescFetch::deleteSenderLater(QNetworkReply * /*reply*/)
{
    sender()->deleteLater();
}

void RVDescFetch::relayNetworkError(QNetworkReply::NetworkError /*err*/)
{
    const auto *reply = qobject_cast<QNetworkReply *>(sender());
    RVLogger().log(4, "Descriptor fetch error %d from %s", static_cast<int>(reply->error()),
                   RVLogger::oneLine(reply->url()).constData());
    Q_EMIT networkError(reply);
}

void RVDescFetch::relayAuthenticationRequired(QNetworkReply *reply, QAuthenticator *auth)
{
    Q_EMIT authenticationRequired(XHttpReply::outer(reply), auth);
}

void RVDescFetch::relayProxyAuthenticationRequired(const QNetworkProxy &proxy, QAuthenticator *auth)
{
    Q_EMIT proxyAuthenticationRequired(proxy, auth);
}

void RVDescFetch::relaySslErrors(QNetworkReply *reply, const QList<QSslError> &errors)
{
    Q_EMIT sslErrors(reply, errors);
}

void RVDescFetch::replyDestroyed(QObject *obj)
{
    // Of the reply only the address is left, so it is not cast down.
    const auto it = std::find_if(m_fetches.cbegin(), m_fetches.cend(), [obj](const QObject *reply) {
        return reply == obj;
    });
    if (it != m_fetches.cend()) {
        endFetch(it.key());
    }
}

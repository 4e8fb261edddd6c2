// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/RVLimits.h"
#include "network/RVAccess.h"
#include "repository/RVData.h"

#include <QList>
#include <QMap>
#include <QNetworkProxy>
#include <QNetworkReply>
#include <QPointer>
#include <QSslError>

/// Downloads and reads the descriptors of one repository's entries. Owned by its repository.
/// Its final signal is finished(), once for each fetchAll() that leaves something to wait for and
/// once for each cancel(); networkError() tells of single failures and ends nothing.
class RVDescFetch : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(RVDescFetch)

public:
    /// The login of `access`.
    RVDescFetch(QList<RVData> &entries, const QString &ftpUser, const QString &ftpPassword,
                QObject *parent = nullptr);
    ~RVDescFetch() override;

    /// Written before fetchAll().
    RVAccess access;
    QString &proxyHost = access.proxyHost;
    int &proxyPort = access.proxyPort;
    /// Whether caches on the way are passed over.
    bool isFresh = false;

    /// True between fetchAll() and finished(). False right after fetchAll() means that finished()
    /// has been emitted, or, where every entry failed at once, that it will not be.
    bool isActive() const { return m_active; }
    /// Descriptors that came and were not read, since they are not the ones that their list has.
    const QList<QUrl> &unfit() const { return m_unfit; }

public Q_SLOTS:
    /// Starts the downloads in order, each through a manager of its own,
    /// RVLimits::transfersInFlight at a time; those that an earlier call started are forgotten. An
    /// XML descriptor longer than XmlCheck takes is aborted as soon as that shows.
    void fetchAll();
    /// Aborts what is in flight (remote ones say so by a last networkError()), drops what waits,
    /// and emits finished().
    void cancel();

Q_SIGNALS:
    void finished();
    /// Each download that has ended, failed ones too, before its descriptor reads it: receivers may
    /// peek into it, no more.
    void descriptorArrived(QNetworkReply *reply);
    void networkError(const QNetworkReply *reply);
    void authenticationRequired(QNetworkReply *reply, QAuthenticator *auth);
    void proxyAuthenticationRequired(const QNetworkProxy &proxy, QAuthenticator *auth);
    void sslErrors(QNetworkReply *reply, const QList<QSslError> &errors);

private Q_SLOTS:
    void readFinished();
    void deleteSenderLater(QNetworkReply *reply);
    void relayNetworkError(QNetworkReply::NetworkError err);
    void relayAuthenticationRequired(QNetworkReply *reply, QAuthenticator *auth);
    void relayProxyAuthenticationRequired(const QNetworkProxy &proxy, QAuthenticator *auth);
    void relaySslErrors(QNetworkReply *reply, const QList<QSslError> &errors);
    void replyDestroyed(QObject *obj);

private:
    using Replies = QList<QPointer<QNetworkReply>>;

    bool startWaiting();
    void start(const RVData &entry);
    void readListed(const RVData &entry, QNetworkReply *reply);
    void endFetch(DescriptorGeneric *descriptor);
    Replies takeFetches();

    QList<RVData> m_entries;
    /// What is in flight. Entries from m_next on wait.
    QMap<DescriptorGeneric *, QNetworkReply *> m_fetches;
    QList<QUrl> m_unfit;
    int m_next = 0;
    bool m_active = false;
};

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/RVLimits.h"
#include "repository/RVData.h"

#include <QList>
#include <QMap>
#include <QNetworkProxy>
#include <QNetworkReply>
#include <QSslError>

/// Downloads and reads the descriptors of one repository's entries. Owned by its repository.
/// Its final signal is finished(); networkError() tells of single failures and ends nothing.
class RVDescFetch : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(RVDescFetch)

public:
    /// The credentials go into ftp URLs, and only when both are set.
    RVDescFetch(QList<RVData> &entries, const QString &ftpUser, const QString &ftpPassword,
                QObject *parent = nullptr);
    ~RVDescFetch() override;

    /// Written before fetchAll(); a port of 0 or less means no proxy.
    QString proxyHost;
    int proxyPort = -2;

public Q_SLOTS:
    /// Starts the downloads, each through a manager of its own, RVLimits::transfersInFlight at a time.
    void fetchAll();
    void cancel();

Q_SIGNALS:
    void finished();
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
    QList<RVData> m_entries;
    QMap<DescriptorGeneric *, QNetworkReply *> m_fetches;
    QString m_ftpUser;
    QString m_ftpPassword;
};

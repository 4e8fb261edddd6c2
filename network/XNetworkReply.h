// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "network/XUrlInfo.h"

#include <QList>
#include <QNetworkReply>
#include <QSslConfiguration>

class XNetworkAccessManager;

/// The reply of a directory read: it carries entries, not bytes. Made by a backend without a
/// parent; whoever receives XNetworkAccessManager::directoryFinished() releases it with
/// deleteLater(). Its final signal is finishedReply().
class XNetworkReply : public QNetworkReply
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(XNetworkReply)

public:
    /// Outside Qt's own operations: marks a directory listing.
    static constexpr auto directoryOperation = static_cast<QNetworkAccessManager::Operation>(1000);

    explicit XNetworkReply(QObject *parent = nullptr);
    ~XNetworkReply() override;

    /// Takes over the other reply's error, raw headers, operation, request, URL, TLS configuration,
    /// buffer size, manager and finished state.
    XNetworkReply &operator=(const QNetworkReply &other);

    // For backends.
    using QNetworkReply::setError;
    using QNetworkReply::setOperation;
    using QNetworkReply::setRequest;
    using QNetworkReply::setUrl;
    /// Takes over the request and its URL and marks the reply as a directory listing.
    void setDirectoryRequest(const QNetworkRequest &request);
    /// Sets code and text and emits errorOccurred(code), which the base class repeats as
    /// error(code).
    void fail(QNetworkReply::NetworkError code, const QString &text);
    /// The result is complete: sets `finished` and emits finishedReply(), then
    /// QNetworkReply::finished().
    void finish();

    QList<XUrlInfo> entries;
    /// True once the reply carries its final result; never reset. Hides the signal of the same
    /// name: connect to &QNetworkReply::finished.
    bool finished = false;
    /// The manager that made it; may stay null.
    XNetworkAccessManager *manager = nullptr;

public Q_SLOTS:
    /// Emits abortOut(): the backend stops its work.
    void abort() override;

Q_SIGNALS:
    void finishedReply(XNetworkReply *reply);
    void abortOut();

protected:
    /// There is no byte stream: always -1.
    qint64 readData(char *data, qint64 maxSize) override;
    void sslConfigurationImplementation(QSslConfiguration &configuration) const override;
    void setSslConfigurationImplementation(const QSslConfiguration &configuration) override;

private:
    QSslConfiguration m_sslConfiguration;
};

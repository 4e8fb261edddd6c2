// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "network/XUrlInfo.h"

#include <QList>
#include <QNetworkReply>

class XNetworkAccessManager;

/// The reply of a directory read: it carries entries, not bytes. Made by a backend without a parent;
/// whoever receives XNetworkAccessManager::directoryFinished() releases it with deleteLater().
/// Its final signal is finishedReply().
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

    /// For backends: the protected setters of QNetworkReply.
    void setRequest(const QNetworkRequest &request);
    void setUrl(const QUrl &url);
    void setOperation(QNetworkAccessManager::Operation operation);
    /// Sets code and text and emits error(code) and errorOccurred(code).
    void fail(QNetworkReply::NetworkError code, const QString &text);
    /// Sets code and text without a signal.
    void setError(QNetworkReply::NetworkError code, const QString &text);

    QList<XUrlInfo> entries;
    /// True once the reply carries its final result; never reset.
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
    qint64 readData(char *data, qint64 maxSize) override;
};

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QNetworkRequest>

class XNetworkAccessManager;
class XNetworkReply;

/// A request for the entries of one directory.
class NetworkDirRequestBase
{
public:
    /// Thrown by value from getDirectory().
    enum exceptionType {
        NoBackend = 1,
    };

    explicit NetworkDirRequestBase(const QUrl &url);
    virtual ~NetworkDirRequestBase();
    NetworkDirRequestBase &operator=(const NetworkDirRequestBase &) = delete;

    virtual bool directoryCapable() const = 0;
    /// Starts the listing; the reply has no parent and may be finished already.
    virtual XNetworkReply *getDirectory() = 0;
    virtual void setManager(XNetworkAccessManager *manager) = 0;

    const QNetworkRequest &request() const { return m_request; }

protected:
    NetworkDirRequestBase(const NetworkDirRequestBase &) = default;

    QNetworkRequest m_request;
};

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "network/NetworkDirRequestBase.h"

#include <memory>

/// The request that callers build: it chooses the backend by the URL's scheme and forwards to it.
class NetworkDirRequest : public NetworkDirRequestBase
{
public:
    explicit NetworkDirRequest(const QUrl &url);
    /// The copy gets a backend of its own.
    NetworkDirRequest(const NetworkDirRequest &other);
    NetworkDirRequest &operator=(const NetworkDirRequest &) = delete;
    ~NetworkDirRequest() override;

    /// The scheme is compared case-sensitively, unlike XNetworkAccessManager::schemeIsSupported().
    void setUrl(const QUrl &url);

    bool directoryCapable() const override;
    /// Throws exceptionType NoBackend when no backend speaks the scheme.
    XNetworkReply *getDirectory() override;
    void setManager(XNetworkAccessManager *manager) override;

private:
    std::unique_ptr<NetworkDirRequestBase> m_backend;
};

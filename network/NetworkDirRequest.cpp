// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "network/NetworkDirRequest.h"

#include "network/NetworkDirRequestFtp.h"
#include "network/NetworkDirRequestHttp.h"
#include "network/NetworkDirRequestLocal.h"

namespace
{

/// Null when no backend speaks the scheme.
std::unique_ptr<NetworkDirRequestBase> makeBackend(const QUrl &url)
{
    const QString scheme = url.scheme();
    if (scheme.isEmpty() || scheme == QLatin1String("file")) {
        return std::make_unique<NetworkDirRequestLocal>(url);
    }
    if (scheme == QLatin1String("http") || scheme == QLatin1String("https")) {
        return std::make_unique<NetworkDirRequestHttp>(url);
    }
    if (scheme == QLatin1String("ftp")) {
        return std::make_unique<NetworkDirRequestFtp>(url);
    }
    return nullptr;
}

} // namespace

NetworkDirRequest::NetworkDirRequest(const QUrl &url)
    : NetworkDirRequestBase(url)
{
    setUrl(url);
}

NetworkDirRequest::NetworkDirRequest(const NetworkDirRequest &other)
    : NetworkDirRequest(other.m_request.url())
{
}

NetworkDirRequest::~NetworkDirRequest() = default;

void NetworkDirRequest::setUrl(const QUrl &url)
{
    m_request.setUrl(url);
    m_backend = makeBackend(url);
}

bool NetworkDirRequest::directoryCapable() const
{
    return m_backend != nullptr;
}

XNetworkReply *NetworkDirRequest::getDirectory()
{
    if (!m_backend) {
        throw exceptionType(NoBackend);
    }
    return m_backend->getDirectory();
}

void NetworkDirRequest::setManager(XNetworkAccessManager *manager)
{
    if (m_backend) {
        m_backend->setManager(manager);
    }
}

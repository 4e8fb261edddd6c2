// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "network/NetworkDirRequestBase.h"

NetworkDirRequestBase::NetworkDirRequestBase(const QUrl &url)
    : m_request(url)
{
}

NetworkDirRequestBase::~NetworkDirRequestBase() = default;

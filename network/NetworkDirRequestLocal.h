// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "network/NetworkDirRequestBase.h"

/// Lists a local directory before getDirectory() returns.
class NetworkDirRequestLocal : public NetworkDirRequestBase
{
public:
    explicit NetworkDirRequestLocal(const QUrl &url);

    bool directoryCapable() const override;
    XNetworkReply *getDirectory() override;
    void setManager(XNetworkAccessManager *manager) override;
};

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "cli/RVCtlCommand.h"

/// `status`: the system that updates are for.
class RVCtlStatus : public RVCtlCommand
{
public:
    QString name() const override { return QStringLiteral("status"); }
    QString syntax() const override { return {}; }
    QString summary() const override
    {
        return QStringLiteral("Show the base system, service packs, architecture and model.");
    }
    int mostArguments() const override { return 0; }
    RVCtlResult run(const RVCtlCall &call) override;
};

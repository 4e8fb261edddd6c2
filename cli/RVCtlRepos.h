// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "cli/RVCtlCommand.h"

/// `repos`: the sections as their definition files describe them.
class RVCtlRepos : public RVCtlCommand
{
public:
    QString name() const override { return QStringLiteral("repos"); }
    QString syntax() const override { return {}; }
    QString summary() const override
    {
        return QStringLiteral("Show the sections in the order of the window.");
    }
    int mostArguments() const override { return 0; }
    RVCtlResult run(const RVCtlCall &call) override;
};

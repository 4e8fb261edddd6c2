// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "cli/RVCtlCommand.h"

/// `plan`: what an installation would download and run, without doing any of it.
class RVCtlPlan : public RVCtlCommand
{
public:
    QString name() const override { return QStringLiteral("plan"); }
    QString syntax() const override { return QStringLiteral("SECTION [NAME...]"); }
    QString summary() const override
    {
        return QStringLiteral(
            "Refresh, and show what an installation would download and run, changing nothing.");
    }
    QList<QCommandLineOption> options() const override;
    int fewestArguments() const override { return 1; }
    RVCtlResult run(const RVCtlCall &call) override;
};

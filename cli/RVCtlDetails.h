// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "cli/RVCtlCommand.h"

/// `details`: what the details dialog shows of one update.
class RVCtlDetails : public RVCtlCommand
{
public:
    QString name() const override { return QStringLiteral("details"); }
    QString syntax() const override { return QStringLiteral("SECTION NAME"); }
    QString summary() const override
    {
        return QStringLiteral("Refresh, and show everything that is known of one update.");
    }
    QList<QCommandLineOption> options() const override;
    int fewestArguments() const override { return 2; }
    int mostArguments() const override { return 2; }
    RVCtlResult run(const RVCtlCall &call) override;
};

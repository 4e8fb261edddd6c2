// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "cli/RVCtlCommand.h"

/// `explain`: for every archive of a listing, why it is offered or not.
class RVCtlExplain : public RVCtlCommand
{
public:
    QString name() const override { return QStringLiteral("explain"); }
    QString syntax() const override { return QStringLiteral("[SECTION...]"); }
    QString summary() const override
    {
        return QStringLiteral("Refresh, and say of every archive why it is offered or not.");
    }
    QList<QCommandLineOption> options() const override;
    RVCtlResult run(const RVCtlCall &call) override;
};

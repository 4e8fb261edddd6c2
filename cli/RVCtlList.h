// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "cli/RVCtlCommand.h"

/// `list`: what the window would show after a refresh.
class RVCtlList : public RVCtlCommand
{
public:
    QString name() const override { return QStringLiteral("list"); }
    QString syntax() const override { return QStringLiteral("[SECTION...]"); }
    QString summary() const override
    {
        return QStringLiteral("Refresh, and show what the window would offer.");
    }
    QList<QCommandLineOption> options() const override;
    RVCtlResult run(const RVCtlCall &call) override;
};

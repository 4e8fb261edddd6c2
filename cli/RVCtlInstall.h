// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "cli/RVCtlCommand.h"

/// install: what the window's button does, after a look whether it can be done.
class RVCtlInstall : public RVCtlCommand
{
public:
    QString name() const override { return QStringLiteral("install"); }
    QString syntax() const override { return QStringLiteral("SECTION [NAME...]"); }
    QString summary() const override
    {
        return QStringLiteral("Download and install updates, or what the window would preselect.");
    }
    QList<QCommandLineOption> options() const override;
    int fewestArguments() const override { return 1; }
    bool isLogged(const QStringList & /*arguments*/) const override { return true; }
    RVCtlResult run(const RVCtlCall &call) override;
};

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "cli/RVCtlCommand.h"

/// download: updates and their descriptors into a folder that is itself a repository.
class RVCtlDownload : public RVCtlCommand
{
public:
    QString name() const override { return QStringLiteral("download"); }
    QString syntax() const override { return QStringLiteral("SECTION [NAME...] --to DIR"); }
    QString summary() const override
    {
        return QStringLiteral("Download updates into a folder that is itself a repository.");
    }
    QList<QCommandLineOption> options() const override;
    int fewestArguments() const override { return 1; }
    RVCtlResult run(const RVCtlCall &call) override;
};

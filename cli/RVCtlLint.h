// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "cli/RVCtlCommand.h"

/// `lint`: what is wrong with definition files, descriptors and repositories.
class RVCtlLint : public RVCtlCommand
{
public:
    QString name() const override { return QStringLiteral("lint"); }
    QString syntax() const override { return QStringLiteral("[FILE or SECTION...]"); }
    QString summary() const override
    {
        return QStringLiteral("Check definition files, repositories and descriptors for defects.");
    }
    QList<QCommandLineOption> options() const override;
    RVCtlResult run(const RVCtlCall &call) override;
};

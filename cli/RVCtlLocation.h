// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "cli/RVCtlCommand.h"

/// `location`: where a section looks for updates, as the options page stores it.
class RVCtlLocation : public RVCtlCommand
{
public:
    QString name() const override { return QStringLiteral("location"); }
    QString syntax() const override { return QStringLiteral("SECTION [URL | - | default]"); }
    QString summary() const override
    {
        return QStringLiteral("Show or store the location of a section.");
    }
    int fewestArguments() const override { return 1; }
    int mostArguments() const override { return 2; }
    bool isLogged(const QStringList &arguments) const override { return arguments.size() > 1; }
    RVCtlResult run(const RVCtlCall &call) override;
};

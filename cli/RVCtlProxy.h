// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "cli/RVCtlCommand.h"

/// `proxy`: the proxies of the options page.
class RVCtlProxy : public RVCtlCommand
{
public:
    QString name() const override { return QStringLiteral("proxy"); }
    QString syntax() const override
    {
        return QStringLiteral("[none | TYPE HOST:PORT | TYPE none]");
    }
    QString summary() const override
    {
        return QStringLiteral("Show or store the proxies; TYPE is http, https, ftp or all.");
    }
    int mostArguments() const override { return 2; }
    bool isLogged(const QStringList &arguments) const override { return !arguments.isEmpty(); }
    RVCtlResult run(const RVCtlCall &call) override;
};

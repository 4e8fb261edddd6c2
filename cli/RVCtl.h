// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QStringList>

/// The program: reads the arguments, runs one command, prints its result and gives the exit code.
class RVCtl
{
public:
    int run(const QStringList &arguments);
};

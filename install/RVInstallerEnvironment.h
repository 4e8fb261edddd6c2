// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QProcessEnvironment>
#include <QString>

struct RVPaths;

/// What an installer is given of the program's environment (ADR 48).
namespace RVInstallerEnvironment
{

/// What an installer needs, and nothing else: settings of the shell, the loader and the package
/// tool would make it run or find something else.
QProcessEnvironment of(const RVPaths &paths);
/// Whether the program, a path or a name that is looked for as the installer does it, can be run.
bool hasProgram(const QString &program, const RVPaths &paths);

} // namespace RVInstallerEnvironment

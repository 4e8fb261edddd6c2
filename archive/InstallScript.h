// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>

/// Puts `lines` into "./RVinstall.sh", the script that an installer process runs. It replaces
/// whatever has that name: a planted link is never followed. Mode 0700, since a script can hold a
/// password. False, and no script, when it could not be written whole.
bool writeInstallScript(const QByteArray &lines);

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

#include <functional>

/// Runs `check` in a child process that has no rights beyond an ordinary user's, with `directory`
/// as its current directory: relative names work even where the path to it is closed to that user.
/// Returns what `check` returns (empty for success), or why it could not be run. No QTest macro
/// works inside.
namespace OrdinaryUser
{

constexpr unsigned int id = 65534;

QString run(const QString &directory, const std::function<QString()> &check);

} // namespace OrdinaryUser

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

#include <functional>

/// Runs `check` in a child process: what it does to itself ends with it. Returns what `check`
/// returns (empty for success), or why it could not be run. No QTest macro works inside.
QString inChild(const std::function<QString()> &check);

/// The same where the file system `what` of that size is mounted at `directory`, seen by the child
/// alone. False, and nothing is run, where the system has no private mounts for this user.
bool withSmallDisk(const QString &directory, const char *size,
                   const std::function<QString()> &check, QString *result);
/// The same with `directory` read-only.
bool withReadOnly(const QString &directory, const std::function<QString()> &check, QString *result);

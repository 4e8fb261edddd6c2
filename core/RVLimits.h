// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

/// Bounds that more than one folder shares.
namespace RVLimits
{

/// Downloads that one request keeps in flight at most. Each has a network access manager, and so a
/// thread and several descriptors, of its own: with 1,024 open files allowed, 1,000 of them end the
/// process.
constexpr int transfersInFlight = 100;
/// Descriptors that one of them may need, and those that the rest of the program does.
constexpr int filesOfATransfer = 8;
constexpr int otherFiles = 96;

/// The downloads that the process's limit on open files has room for, transfersInFlight at most
/// and always one.
int transfersNow();

} // namespace RVLimits

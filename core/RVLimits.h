// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

/// Bounds that more than one folder shares.
namespace RVLimits
{

/// Downloads that one request keeps in flight. Each has a network access manager, and so a thread
/// and several descriptors, of its own: with 1,024 open files allowed, 1,000 of them end the
/// process.
constexpr int transfersInFlight = 100;

} // namespace RVLimits

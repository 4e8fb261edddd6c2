// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <functional>

/// Work of this thread in a unit that neither a slow nor a busy machine changes much: what it takes
/// to hash a mebibyte (SHA-256).
namespace CpuCost
{

double of(const std::function<void()> &work);

/// Whether `work(4 * size)` costs at most ten times as much as `work(size)`: linear work costs four
/// times as much, quadratic work sixteen times. `size` is large enough that quadratic work would
/// be worth more than a mebibyte.
bool isLinear(const std::function<void(int size)> &work, int size);

} // namespace CpuCost

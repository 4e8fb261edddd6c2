// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QtGlobal>

#include <limits>

/// The sum of two byte counts from outside, which may be any number: the largest or the smallest
/// there is where the exact sum lies beyond it.
constexpr qint64 saturatingSum(qint64 a, qint64 b)
{
    using Limits = std::numeric_limits<qint64>;
    qint64 sum = 0;
    if (__builtin_add_overflow(a, b, &sum)) {
        return b > 0 ? Limits::max() : Limits::min();
    }
    return sum;
}

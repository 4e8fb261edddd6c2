// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

/// Regular expressions that came from a server: QRegExp's syntax, within bounds that keep compiling
/// them cheap (length 512, nesting 32, product of nested counts 1,000).
class RVPattern
{
public:
    static constexpr int maxLength = 512;
    static constexpr int maxDepth = 32;
    static constexpr int maxCountProduct = 1000;

    static bool isBounded(const QString &pattern);
    /// True when `pattern` matches the whole of `text`, case-sensitively. A pattern beyond the bounds
    /// matches nothing and costs one level-4 log line; an invalid one matches nothing.
    static bool exactMatch(const QString &pattern, const QString &text);
};

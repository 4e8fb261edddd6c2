// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

/// Regular expressions that came from a server: QRegExp's syntax, within bounds that keep compiling
/// and matching them cheap. QRegExp writes counts out: ((a{1,30}){1,30}){1,30} becomes 27,000
/// states. So, beside the bounds below, the automaton's size is estimated beforehand and limited.
class RVPattern
{
public:
    static constexpr int maxLength = 512;
    /// Of parentheses.
    static constexpr int maxDepth = 32;
    /// Of the counts in braces that stand within one another.
    static constexpr int maxCountProduct = 1000;

    enum Verdict { Bounded, TooComplex, Invalid };

    /// Whether `pattern` is valid, and cheap to compile and to match.
    static Verdict judge(const QString &pattern);
    static bool isBounded(const QString &pattern) { return judge(pattern) == Bounded; }
    /// True when `pattern` matches the whole of `text`, case-sensitively. A pattern beyond the
    /// bounds matches nothing and costs one level-4 log line; an invalid one matches nothing.
    static bool exactMatch(const QString &pattern, const QString &text);
};

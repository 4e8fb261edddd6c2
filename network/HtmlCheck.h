// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>

/// Runs over a page before the HTML parser, in linear time, and refuses one that would keep the
/// parser busy for long: for each tag the parser looks through the elements that are still open,
/// and through the tag's other attributes. It follows the rules by which the parser closes
/// elements (HTML standard, 13.2.6) just closely enough that ordinary pages with their missing end
/// tags stay far below the limits.
class HtmlCheck
{
public:
    /// Elements open at a time.
    static constexpr int maximumOpen = 16384;
    /// Elements and attributes to look at, summed up over all tags: about half a second.
    static constexpr qint64 maximumLooks = 200'000'000;
    /// What a tag costs besides, in looks.
    static constexpr qint64 looksPerTag = 64;

    bool accepts(const QByteArray &page);
};

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QStringList>

#include <optional>

/// The links of an HTML page (ADR 24). A page can come from anybody. What it costs is bounded by
/// counts, never by a clock: the slowest device reads what the fastest one does.
class HtmlLinks
{
public:
    /// Start tags of links, in one page.
    static constexpr int maximumTags = 150'000;
    /// Attributes of one: each is compared with all others.
    static constexpr int maximumAttributes = 16;
    /// Bytes of one.
    static constexpr int maximumTag = 64 * 1024;
    /// Bytes of all, in UTF-8.
    static constexpr int maximumBytes = 10 * 1024 * 1024;

    /// Those of the page up to its first zero byte, in document order, without white space around
    /// them; none is empty. Nothing when the page has more of anything than that.
    static std::optional<QStringList> of(const QByteArray &page);
};

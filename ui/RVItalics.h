// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

#include <algorithm>

/// Whether a text may be set in italics. Arabic and Hebrew have none: fonts show boxes instead.
inline bool takesItalics(const QString &text)
{
    return std::none_of(text.cbegin(), text.cend(), [](QChar c) {
        return c.script() == QChar::Script_Arabic || c.script() == QChar::Script_Hebrew;
    });
}

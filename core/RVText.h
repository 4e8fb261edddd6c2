// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

/// Texts that come from outside: names, titles, notes and addresses of servers. Wherever one is
/// shown it must not move the cursor, start a line of its own or be read in another order.
namespace RVText
{

/// Not a control, format or separator character, nor one that has no meaning.
bool isVisible(uint character);
/// On one line: every character that is not visible becomes its code, "\u001b".
QString safe(const QString &text);
/// The same for each line of a text of several lines.
QString safeLines(const QString &text);
/// For a window: without the characters that turn the order of what follows around, hide it, or
/// have no width, so that two names that look the same are the same. What joins letters stays, and
/// a control character but a tabulator is a blank.
QString shown(const QString &text);
/// At most `longest` characters of it.
QString shown(const QString &text, int longest);
/// At most `length` characters, the last of them an ellipsis when something is left out.
QString shortened(const QString &text, int length);

} // namespace RVText

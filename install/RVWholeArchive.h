// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

/// Whether a file can be what its name says, as far as that shows without unpacking it.
namespace RVWholeArchive
{

/// A package is whole when its members fill the file to its end: one that was cut off anywhere is
/// not. What is inside the members is the package tool's to judge.
bool isWholePackage(const QString &fileName);
/// A service pack needs an intact table of contents.
bool isServicePack(const QString &fileName);

} // namespace RVWholeArchive

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "repository/RVData.h"

class QFile;

/// Compares what is installed with what the user was shown: a server may give another file for the
/// installation than for the description.
namespace RVShown
{

/// Why the archive in `file`, a copy of `entry`'s that is about to be installed, is not the one
/// that was described, with both values; empty when it is. Reads the file where it lies.
///
/// An archive that describes itself has to say in every field what it said before. A package with a
/// descriptor beside it has to have its name and version, where the descriptor gives them; an epoch
/// that only one of them has is no difference. A service pack with a descriptor beside it has to
/// have its size. What cannot be read is the installer's to refuse, unless it could be read before.
QString difference(const RVData &entry, QFile *file);

} // namespace RVShown

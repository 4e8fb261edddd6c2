// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QtGlobal>

class QIODevice;

/// The beginning of an archive that describes itself, so much of it as its description needs.
namespace ArchiveHead
{

/// Of a package: up to the end of the header of its data member (deb(5)). -1 where it is none, or
/// where something stands between the control member and the data.
qint64 lengthOfDeb(QIODevice *package);
/// Of a xar archive: header, packed table of contents and the table's checksum. -1 where it is
/// none.
qint64 lengthOfXar(QIODevice *archive);

} // namespace ArchiveHead

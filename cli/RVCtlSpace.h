// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

struct RVCtlBatch;
struct RVPaths;

/// Room on the file systems that an installation or a download fills.
namespace RVCtlSpace
{

/// Bytes that this process may still write below `directory`; -1 when that cannot be told.
qint64 freeBytes(const QString &directory);
/// Whether the sizes that the descriptors announce fit: what is downloaded and unpacked into the
/// temporary directory, and what is installed into the root. Sizes that are not known count for
/// nothing, so that only what cannot succeed is refused. False, and why, when they do not fit.
bool fits(const RVCtlBatch &batch, const RVPaths &paths, QString *error);
/// The same for `bytes` more below one directory.
bool fits(qint64 bytes, const QString &directory, QString *error);

} // namespace RVCtlSpace

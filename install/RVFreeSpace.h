// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/RVSentence.h"
#include "repository/RVData.h"

#include <QString>
#include <QVector>

#include <optional>

struct RVPaths;

/// Room on the file systems that an installation or a download fills.
namespace RVFreeSpace
{

/// What does not fit.
struct Shortage {
    QString directory;
    qint64 needed = 0;
    qint64 available = 0;

    /// With the numbers.
    RVSentence sentence() const;
};

/// One update of a batch.
struct Update {
    RVData data;
    /// Whether an older version makes room for it.
    bool isReplacing = false;
};

/// Bytes that this process may still write below `directory`; -1 when that cannot be told.
qint64 freeBytes(const QString &directory);
/// Whether the sizes that the descriptors announce fit: what is downloaded and unpacked into the
/// temporary directory, and what is installed into the root. Sizes that are not known count for
/// nothing, so that only what cannot succeed is refused. A full image needs nothing here.
std::optional<Shortage> shortage(const QVector<Update> &batch, const RVPaths &paths);
/// The same for `bytes` more below one directory.
std::optional<Shortage> shortage(qint64 bytes, const QString &directory);

} // namespace RVFreeSpace

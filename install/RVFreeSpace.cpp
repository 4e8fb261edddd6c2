// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "install/RVFreeSpace.h"

#include "core/ByteSize.h"
#include "core/RVPaths.h"
#include "core/RVSum.h"
#include "install/RVBatch.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <limits>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

namespace
{

constexpr qint64 most = std::numeric_limits<qint64>::max();
/// What unpacking a service pack leaves free.
constexpr qint64 spareBytes = 64LL * 1024 * 1024;

/// What is not known is nothing.
qint64 known(qint64 size)
{
    return qMax<qint64>(size, 0);
}

bool isPackage(const RVData &data)
{
    return data.archiveUrl().path().endsWith(QLatin1String(".deb"), Qt::CaseInsensitive);
}

bool isImage(const RVData &data)
{
    return data.archive()->urlIsHandled() && !data.archive()->useExtract();
}

/// A package is written twice, once as it arrives and once beside the others of its batch; the
/// first copy goes with its download, so that of all of them one is left for certain.
qint64 temporaryBytes(const QVector<RVFreeSpace::Update> &batch)
{
    QList<RVData> entries;
    for (const RVFreeSpace::Update &update : batch) {
        entries.append(update.data);
    }
    const bool isPackages = isPackage(entries.constFirst());
    const QList<RVData> downloads = RVBatch::of(entries, nullptr).downloads;
    qint64 total = 0;
    qint64 smallest = most;
    for (const RVData &data : downloads) {
        const qint64 size = data.descriptor()->size();
        const qint64 unpacked = data.descriptor()->unpackedSize();
        total = saturatingSum(total, known(isPackages || unpacked < 0 ? size : unpacked));
        smallest = qMin(smallest, known(size));
    }
    if (total == 0) {
        return 0;
    }
    return saturatingSum(saturatingSum(total, smallest), isPackages ? 0 : spareBytes);
}

/// What is new comes on top; what replaces an older version needs its own size until that is gone.
qint64 installedBytes(const QVector<RVFreeSpace::Update> &batch)
{
    qint64 added = 0;
    qint64 replacing = 0;
    for (const RVFreeSpace::Update &update : batch) {
        const qint64 size = update.data.descriptor()->installedSize();
        if (update.isReplacing) {
            replacing = qMax(replacing, size);
        } else {
            added = saturatingSum(added, known(size));
        }
    }
    return saturatingSum(added, replacing);
}

bool isSameFileSystem(const QString &a, const QString &b)
{
    struct stat first = {};
    struct stat second = {};
    return ::stat(QFile::encodeName(a).constData(), &first) == 0
        && ::stat(QFile::encodeName(b).constData(), &second) == 0 && first.st_dev == second.st_dev;
}

} // namespace

RVSentence RVFreeSpace::Shortage::sentence() const
{
    return RVSentence(
        QT_TRANSLATE_NOOP("RVSentence", "Not enough space in '%1': %2 needed, %3 free."),
        {directory, ByteSize(needed).toEnglish(), ByteSize(available).toEnglish()});
}

qint64 RVFreeSpace::freeBytes(const QString &directory)
{
    struct statvfs status = {};
    if (::statvfs(QFile::encodeName(directory).constData(), &status) != 0) {
        return -1;
    }
    // A part is kept for root alone.
    const quint64 blocks = ::geteuid() == 0 ? status.f_bfree : status.f_bavail;
    const quint64 size = status.f_frsize;
    return static_cast<qint64>(
        size != 0 && blocks > static_cast<quint64>(most) / size ? most : blocks * size);
}

std::optional<RVFreeSpace::Shortage> RVFreeSpace::shortage(qint64 bytes, const QString &directory)
{
    const qint64 available = freeBytes(directory);
    if (available < 0 || bytes <= available) {
        return std::nullopt;
    }
    return Shortage{directory, bytes, available};
}

std::optional<RVFreeSpace::Shortage> RVFreeSpace::shortage(const QVector<Update> &batch,
                                                           const RVPaths &paths)
{
    if (batch.isEmpty() || isImage(batch.constFirst().data)) {
        return std::nullopt;
    }
    const QString temporary = QDir::tempPath();
    const QString root = QFileInfo(paths.etcDir).path();
    const qint64 forDownloads = temporaryBytes(batch);
    const qint64 forInstallation = installedBytes(batch);
    if (isSameFileSystem(temporary, root)) {
        return shortage(saturatingSum(forDownloads, forInstallation), temporary);
    }
    const std::optional<Shortage> download = shortage(forDownloads, temporary);
    return download ? download : shortage(forInstallation, root);
}

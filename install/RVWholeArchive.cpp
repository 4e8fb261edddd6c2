// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "install/RVWholeArchive.h"

#include "core/XarToc.h"

#include <QFile>

namespace
{

constexpr int headerBytes = 60;
constexpr int sizeOffset = 48;
constexpr int sizeBytes = 10;
constexpr char magic[] = "!<arch>\n";
constexpr int magicBytes = 8;

} // namespace

bool RVWholeArchive::isWholePackage(const QString &fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly) || file.read(magicBytes) != magic) {
        return false;
    }
    int members = 0;
    qint64 position = magicBytes;
    while (position < file.size()) {
        const QByteArray header = file.seek(position) ? file.read(headerBytes) : QByteArray();
        bool isNumber = false;
        const qint64 size = header.mid(sizeOffset, sizeBytes).trimmed().toLongLong(&isNumber);
        if (header.size() != headerBytes || !header.endsWith("`\n") || !isNumber || size < 0
            || size > file.size() - position - headerBytes) {
            return false;
        }
        // The padding behind the last member may be left out.
        position += headerBytes + size + size % 2;
        ++members;
    }
    // The format's version, the control part, the data part.
    return members >= 3;
}

bool RVWholeArchive::isServicePack(const QString &fileName)
{
    QFile file(fileName);
    XarToc table;
    return file.open(QIODevice::ReadOnly) && table.read(&file);
}

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "descriptor/ArchiveHead.h"

#include "core/XarToc.h"

#include <QIODevice>

namespace
{

constexpr char magic[] = "!<arch>\n";
constexpr int magicBytes = 8;
constexpr int headerBytes = 60;
constexpr int nameBytes = 16;
constexpr int sizeOffset = 48;
constexpr int sizeBytes = 10;

struct Member {
    QByteArray name;
    qint64 size = -1;
};

/// The member whose header stands at `position`; without a size where there is none.
Member memberAt(QIODevice *package, qint64 position)
{
    Member member;
    const QByteArray header = package->seek(position) ? package->read(headerBytes) : QByteArray();
    bool isNumber = false;
    const qint64 size = header.mid(sizeOffset, sizeBytes).trimmed().toLongLong(&isNumber);
    if (header.size() == headerBytes && header.endsWith("`\n") && isNumber && size >= 0
        && size <= package->size() - position - headerBytes) {
        member.name = header.left(nameBytes).trimmed();
        member.size = size;
    }
    return member;
}

} // namespace

qint64 ArchiveHead::lengthOfDeb(QIODevice *package)
{
    if (!package->seek(0) || package->read(magicBytes) != magic) {
        return -1;
    }
    qint64 position = magicBytes;
    bool hasControl = false;
    // Members of no meaning may stand in front, their names beginning with "_".
    while (position < package->size()) {
        const Member member = memberAt(package, position);
        if (member.size < 0) {
            return -1;
        }
        position += headerBytes;
        if (member.name.startsWith("data.tar")) {
            return hasControl ? position : -1;
        }
        hasControl = hasControl || member.name.startsWith("control.tar");
        position += member.size + member.size % 2;
    }
    return -1;
}

qint64 ArchiveHead::lengthOfXar(QIODevice *archive)
{
    XarToc table;
    return archive->seek(0) && table.read(archive) ? archive->pos() : -1;
}

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/LocalCopy.h"

#include <QTemporaryFile>

namespace
{

bool copyAll(QIODevice *source, QFile *target)
{
    QByteArray piece(64 * 1024, Qt::Uninitialized);
    qint64 length = 0;
    while ((length = source->read(piece.data(), piece.size())) > 0) {
        if (target->write(piece.constData(), length) != length) {
            return false;
        }
    }
    return target->flush() && target->seek(0);
}

} // namespace

bool LocalCopy::take(QIODevice *source)
{
    // A finished download is open already, and opening it again would drop what it holds.
    if (!source->isOpen() && !source->open(QIODevice::ReadOnly)) {
        return false;
    }
    if (!source->isReadable()) {
        return false;
    }
    auto *plainFile = qobject_cast<QFile *>(source);
    if (plainFile && plainFile->handle() != -1 && !plainFile->isSequential()
        && plainFile->pos() == 0) {
        auto file = std::make_unique<QFile>(plainFile->fileName());
        plainFile->close();
        if (file->open(QIODevice::ReadOnly)) {
            m_file = std::move(file);
        }
        return bool(m_file);
    }
    auto copy = std::make_unique<QTemporaryFile>();
    if (!copy->open()) {
        return false;
    }
    const bool copied = copyAll(source, copy.get());
    source->close();
    if (copied) {
        m_file = std::move(copy);
    }
    return copied;
}

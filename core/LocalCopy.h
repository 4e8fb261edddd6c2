// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QFile>

#include <memory>

/// The bytes of a device as a file, for the libraries that read nothing else. Only copies when it
/// has to. The copy is removed with the object.
class LocalCopy
{
public:
    LocalCopy() = default;

    /// Takes what `source` holds, and closes it. A plain file is used in place, anything else goes
    /// to a temporary file, in pieces: updates are larger than the memory of the devices. False
    /// when `source` cannot be opened for reading or the copy cannot be written whole.
    bool take(QIODevice *source);

    /// Open for reading, at its start, and random-access; null before a successful take().
    QFile *file() const { return m_file.get(); }

private:
    Q_DISABLE_COPY_MOVE(LocalCopy)

    std::unique_ptr<QFile> m_file;
};

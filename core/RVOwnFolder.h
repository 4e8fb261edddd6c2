// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

/// An open folder into which nobody but the running user can put files. What is done in it is done
/// there, wherever the folder's name leads by then, and through no link. Whatever fails leaves its
/// reason in errno.
class RVOwnFolder
{
public:
    /// Makes the folder, mode 0700, and those above it where they are missing.
    explicit RVOwnFolder(const QString &path);
    ~RVOwnFolder();

    /// False also for a folder that others own or may write to.
    bool isOpen() const { return m_handle >= 0; }
    /// Lets the members of a group read what is in it, where openFile() lets them.
    bool shareWith(unsigned int group) const;
    /// A file to read and write, made where it is missing: a regular file of our own that has no
    /// other name. Mode 0600, or 0640 for a group. -1 when there is none. To be closed by the
    /// caller.
    int openFile(const QByteArray &name, std::optional<unsigned int> readers = {}) const;
    /// Replaces what has the new name.
    bool renameFile(const QByteArray &name, const QByteArray &newName) const;
    /// Puts the names of the files on the disk.
    bool sync() const;
    /// Puts `text` on the disk under that name, whole or not at all.
    bool replaceFile(const QByteArray &name, const QByteArray &text) const;
    /// True also when there was none.
    bool removeFile(const QByteArray &name) const;

private:
    Q_DISABLE_COPY_MOVE(RVOwnFolder)

    int m_handle = -1;
};

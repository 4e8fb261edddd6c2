// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

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
    /// A file to read and write, mode 0600, made where it is missing: a regular file of our own
    /// that has no other name. -1 when there is none. To be closed by the caller.
    int openFile(const QByteArray &name) const;
    /// Puts `text` on the disk under that name, whole or not at all.
    bool replaceFile(const QByteArray &name, const QByteArray &text) const;
    /// True also when there was none.
    bool removeFile(const QByteArray &name) const;

private:
    Q_DISABLE_COPY_MOVE(RVOwnFolder)

    int m_handle = -1;
};

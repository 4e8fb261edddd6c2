// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QFile>

#include <memory>

/// A file of this system that a listing names. Only a regular file on a file system that stores
/// files is opened: to open a pipe or a device may block or act, and what a file of proc or sys
/// gives may never end.
class RVRegularFile
{
public:
    enum class Fault {
        None,
        NotFound,
        Denied,
        Directory,
        /// A pipe, socket, device, or a file that the kernel makes up.
        Special,
    };

    /// Never blocks. Without a file, `text` says why in the system's words.
    explicit RVRegularFile(const QString &path);

    Fault fault() const { return m_fault; }
    const QString &text() const { return m_text; }
    /// Open for reading and not buffered; null with a fault.
    std::unique_ptr<QFile> take() { return std::move(m_file); }

private:
    Q_DISABLE_COPY_MOVE(RVRegularFile)

    void fail(Fault fault, const QString &text);

    std::unique_ptr<QFile> m_file;
    Fault m_fault = Fault::None;
    QString m_text;
};

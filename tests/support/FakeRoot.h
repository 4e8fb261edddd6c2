// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/RVPaths.h"

#include <QTemporaryDir>

/// An installed system below a private directory, as RVPaths::under() describes one: an image
/// identification and an empty package database to begin with.
class FakeRoot
{
public:
    FakeRoot();

    QString path() const { return m_dir.path(); }
    const RVPaths &paths() const { return m_paths; }

    /// Writes a file, with the directories above it; `path` is one of paths() or below one.
    static void write(const QString &path, const QByteArray &contents);
    void setImageId(const QByteArray &contents) const { write(m_paths.imageId, contents); }
    void addServicePackFile(const QString &name, const QByteArray &contents) const;
    /// Replaces the hardware tool by a shell script with these lines.
    void setHardwareTool(const QByteArray &script) const;
    /// Adds a package to the database. `status` is dpkg's: "install ok installed" and the like.
    void addPackage(const QByteArray &name, const QByteArray &version,
                    const QByteArray &status = "install ok installed",
                    const QByteArray &architecture = "all") const;

private:
    Q_DISABLE_COPY_MOVE(FakeRoot)

    QTemporaryDir m_dir;
    const RVPaths m_paths;
};

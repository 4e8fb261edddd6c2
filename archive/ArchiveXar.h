// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "archive/ArchiveBaseClass.h"
#include "core/RVPaths.h"

/// A service pack in a xar archive: unpacked into the current directory, then handed to the
/// device's own installer of service packs.
class ArchiveXar : public ArchiveBaseClass
{
    Q_OBJECT

public:
    explicit ArchiveXar(const QUrl &url, QObject *parent = nullptr, const RVPaths &paths = {});
    ~ArchiveXar() override;

    bool urlIsHandled() const override { return m_urlHandled; }
    bool useExtract() const override { return true; }
    /// False when a single member was refused or damaged; the walk goes on to the end even so, and
    /// then everything that was unpacked is removed.
    bool extract(QIODevice *source) const override;
    /// Points the installer at the first directory listed in the current one.
    void install(QProcess *proc) override;
    /// Ignored: the archive is downloaded by the program itself.
    void setProxy(const QString &host, int port) override;
    InstallCommand installCommand() const override;
    /// Installs several: the current directory has a folder for each, named by packFolder(), and
    /// their installer runs in one after the other until it fails. `proc` runs the script that sees
    /// to it, and ends as the last of them ended.
    void installAll(QProcess *proc);
    InstallCommand installAllCommand() const;
    static QString packFolder(int index);
    /// Of a script that has run in the current directory, the exit code for that folder; -1 where
    /// its installer did not come to its end, or was not run.
    static int packExitCode(int index);

private:
    Q_DISABLE_COPY_MOVE(ArchiveXar)

    const RVPaths m_paths;
    bool m_urlHandled;
};

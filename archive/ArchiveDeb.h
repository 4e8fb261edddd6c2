// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "archive/ArchiveBaseClass.h"
#include "core/RVPaths.h"

/// A Debian package. extract() copies it into the current directory, install() runs one script
/// there that installs every package of the directory with a single dpkg.
class ArchiveDeb : public ArchiveBaseClass
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ArchiveDeb)

public:
    explicit ArchiveDeb(const QUrl &url, QObject *parent = nullptr, const RVPaths &paths = {});
    ~ArchiveDeb() override;

    bool urlIsHandled() const override { return m_handled; }
    bool useExtract() const override { return true; }
    /// The copy has the name that the URL's path ends in; one that exists is replaced. False, and
    /// no file, when `source` gives no bytes or not everything could be stored.
    bool extract(QIODevice *source) const override;
    /// When the script cannot be written, `proc` fails with the reason on its standard error.
    void install(QProcess *proc) override;
    /// Ignored: the package is downloaded by the program itself.
    void setProxy(const QString &host, int port) override;
    InstallCommand installCommand() const override;

private:
    const RVPaths m_paths;
    const bool m_handled;
    const QString m_fileName;
};

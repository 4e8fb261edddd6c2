// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/OSInfoBaseClass.h"
#include "core/RVPaths.h"
#include "repository/RVData.h"

#include <QFile>
#include <QHash>
#include <QTemporaryDir>

/// A system of which a test says what is installed.
class FakeSystem : public OSInfoBaseClass
{
    Q_OBJECT

public:
    VersionString baseOSName() const override { return VersionString(QStringLiteral("6.1.0")); }
    QList<VersionString> servicePackList() const override { return servicePacks; }
    QString versionInstalled(const QString &packageName) const override
    {
        return installed.value(packageName);
    }
    QString architecture() const override { return QStringLiteral("armel"); }
    QString thinClient() const override { return QStringLiteral("X90"); }
    void refresh() override { ++refreshes; }
    bool isNotConfigured(const QString &packageName) const override
    {
        return notConfigured.contains(packageName);
    }

    QHash<QString, QString> installed;
    QStringList notConfigured;
    QList<VersionString> servicePacks;
    int refreshes = 0;
};

/// A directory of archives with their XML descriptors, and a program of the test's own in place of
/// the shell that runs the installer.
class UpdateWorld
{
public:
    UpdateWorld();

    QString repository() const { return m_dir.filePath(QStringLiteral("repository")); }
    QUrl url() const { return QUrl::fromLocalFile(repository()); }
    QString file(const QString &name) const { return m_dir.filePath(name); }
    const RVPaths &paths() const { return m_paths; }

    /// Writes <file>.deb and <file>.xml. `more` is further XML; without a <thin_client> of its own
    /// the descriptor is for every model.
    void add(const QString &file, const QString &name, const QString &version,
             const QString &title = {}, const QString &more = {}) const;
    /// The same as an entry whose descriptor has been read.
    RVData entry(const QString &file, const QString &name, const QString &version,
                 const QString &title = {}, const QString &more = {}) const;
    /// An entry with a local descriptor, whose archive is somewhere else.
    RVData remoteEntry(const QUrl &archive) const;
    /// The installer becomes this shell script; it runs in the directory of the unpacked archives.
    void setInstaller(const QByteArray &script);
    /// A line for that script: it waits there until go().
    QByteArray untilGo();
    void go();
    /// There is no installer any more.
    void removeInstaller() const;

private:
    RVData read(const QUrl &archive, const QString &descriptor) const;

    QTemporaryDir m_dir;
    RVPaths m_paths;
    QFile m_go;
};

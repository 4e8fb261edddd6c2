// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/OSInfoBaseClass.h"
#include "core/RVPaths.h"

#include <memory>

class RVInstalledPackages;

/// The running system: its image, service packs, hardware model and package database.
/// Construction waits at most a second, for the hardware tool.
class OSInfo : public OSInfoBaseClass
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(OSInfo)

public:
    /// Throws OSInfoBaseClass::ImageIdUnreadable when the image identification is not readable.
    explicit OSInfo(QObject *parent = nullptr, const RVPaths &paths = {});
    ~OSInfo() override;

    VersionString baseOSName() const override;
    QList<VersionString> servicePackList() const override;
    QString versionInstalled(const QString &packageName) const override;
    bool isNotConfigured(const QString &packageName) const override;
    QString architecture() const override;
    QString thinClient() const override;
    /// The same on every device.
    static QString deviceArchitecture() { return QStringLiteral("armel"); }
    /// What the service-pack files say, each pack once.
    static QList<VersionString> servicePacks(const RVPaths &paths);
    /// How many packages are installed, configured or not; -1 when the package database cannot be
    /// read.
    int installedPackageCount() const;

public Q_SLOTS:
    void refresh() override;

private:
    void readThinClientModel();
    void readImageId();

    const RVPaths m_paths;
    VersionString m_baseOS;
    QList<VersionString> m_servicePacks;
    std::unique_ptr<RVInstalledPackages> m_packages;
    QString m_arch;
    QString m_thinClientModel;
};

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/RVPaths.h"
#include "install/RVResult.h"

#include <QByteArray>
#include <QMap>
#include <QStringList>

#include <memory>

class RVInstalledPackages;

/// The system before an installer and after it: says of each update whether it is installed. An
/// exit code says little: dpkg has one for a whole batch, and 0 for what it skipped.
class RVVerify
{
public:
    /// How one run of an installer ended.
    struct End {
        int exitCode = 0;
        bool isCrashed = false;

        bool isGood() const { return exitCode == 0 && !isCrashed; }
        /// Empty for a good one.
        RVSentence sentence() const;
    };

    /// Looks at the system as it is before the installer, above all at these packages.
    RVVerify(const RVPaths &paths, const QStringList &packages);
    ~RVVerify();

    /// Looks at it again.
    void lookAgain();
    /// Empty where none is installed.
    QString versionBefore(const QString &package) const;

    /// Gives `item` its state and reason: whether the package database has the package `name`,
    /// configured, in the version `version`, and whether it was this run that brought it.
    void judgePackage(const QString &name, const QString &version, const End &end,
                      RVItemResult *item) const;
    /// The same for a service pack, of the list of service packs, which has no versions.
    void judgeServicePack(const QString &name, const End &end, RVItemResult *item) const;

private:
    Q_DISABLE_COPY_MOVE(RVVerify)

    QByteArray stampOf(const QString &package) const;

    const RVPaths m_paths;
    std::unique_ptr<RVInstalledPackages> m_before;
    std::unique_ptr<RVInstalledPackages> m_after;
    /// By package; changes whenever dpkg unpacks it.
    QMap<QString, QByteArray> m_stamps;
    QStringList m_packsBefore;
    QStringList m_packsAfter;
};

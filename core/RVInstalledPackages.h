// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/RVPaths.h"

#include <QString>

#include <memory>

/// The package database as it was when this was made. Made of the status file alone (ADR 4).
class RVInstalledPackages
{
public:
    enum class State {
        Absent, ///< never installed, or removed
        NotConfigured, ///< unpacked, half installed or half configured, or waiting for a trigger
        Installed,
    };
    struct Package {
        State state = State::Absent;
        /// Epoch and revision included; empty for an absent one.
        QString version;
    };

    /// Looks names up among the packages of `architecture` first.
    RVInstalledPackages(const RVPaths &paths, const QString &architecture);
    ~RVInstalledPackages();

    /// False when there is no database: every package is absent then.
    bool isReadable() const { return m_cache != nullptr; }
    Package package(const QString &name) const;
    /// How many packages have a version here, configured or not; -1 without a database.
    int count() const;

private:
    Q_DISABLE_COPY_MOVE(RVInstalledPackages)

    struct Cache;

    const QString m_architecture;
    std::unique_ptr<Cache> m_cache;
};

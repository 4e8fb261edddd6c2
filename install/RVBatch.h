// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "archive/InstallScript.h"
#include "repository/RVData.h"

#include <QList>
#include <QString>
#include <QVector>

class OSInfoBaseClass;

/// What was chosen, and what installing it takes. A value: nothing is fetched or started for it.
struct RVBatch {
    enum class Kind {
        Nothing, ///< nothing was chosen
        Packages, ///< any number, in one run of dpkg
        ServicePacks, ///< any number, one run of their installer for each
        Image, ///< one, which the device fetches itself after a yes
        Unknown, ///< nothing installs such an archive
    };
    struct Item {
        RVData entry;
        /// English where there is an English one; plain text.
        QString name;
        /// The offered one.
        QString version;
        /// Empty where none is, or where the system cannot be asked.
        QString installed;
        /// Whether the installer of the batch takes it: only what is of the first one's kind.
        bool isReached = true;
    };

    /// `entries` in the repository's order; `system` may be null.
    static RVBatch of(const QList<RVData> &entries, const OSInfoBaseClass *system);

    Kind kind = Kind::Nothing;
    QVector<Item> items;
    /// Each archive once, in that order; nothing for an image.
    QList<RVData> downloads;
    /// Of what is downloaded; -1 when a size is not known.
    qint64 downloadSize = 0;
    /// What is run over all of them.
    InstallCommand installer;

    bool isImage() const { return kind == Kind::Image; }
    bool isPackages() const { return kind == Kind::Packages; }
    bool isServicePacks() const { return kind == Kind::ServicePacks; }
    QList<RVData> entries() const;
    /// Which download brings the archive of `entry`; -1 where none does.
    int downloadOf(const RVData &entry) const;

private:
    void addDownloads();
};

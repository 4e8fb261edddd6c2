// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "archive/InstallScript.h"
#include "cli/RVCtlOffers.h"

#include <QJsonObject>
#include <QStringList>

/// The chosen updates of a section, and what installing them takes: the plan of an installation.
struct RVCtlBatch {
    static RVCtlBatch of(const RVCtlOffers &section, const QVector<RVCtlOffers::Entry> &chosen);

    QVector<RVCtlOffers::Entry> updates;
    /// The same, for the installer.
    QList<RVData> entries;
    /// What is downloaded, in that order: nothing for an image.
    QList<RVData> downloads;
    /// Of what is downloaded; -1 when a size is not known.
    qint64 downloadSize = 0;
    /// The first archive's, which runs over all of them.
    InstallCommand installer;
    /// What is known of the section's list of sums.
    QJsonObject trust;

    /// A full image, which the device fetches itself after a yes.
    bool isImage() const;
    /// Packages, which dpkg installs.
    bool isPackages() const;
    /// Whether the installer reaches that update beside the first one: it takes any number of
    /// packages, but one service pack or image, and nothing of another kind.
    bool isReached(int index) const;

    /// The arguments of the installer, with a name for what is not known yet.
    QStringList installerArguments() const;
    /// "trust", "updates", "downloads", "downloadSize".
    QJsonObject toJson() const;
};

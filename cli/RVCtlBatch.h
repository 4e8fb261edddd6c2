// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "cli/RVCtlOffers.h"
#include "install/RVBatch.h"

#include <QJsonObject>
#include <QStringList>

/// The chosen updates of a section as documents show them: the plan of an installation.
struct RVCtlBatch : RVBatch {
    static RVCtlBatch of(const RVCtlOffers &section, const QVector<RVCtlOffers::Entry> &chosen,
                         const OSInfoBaseClass &system);

    QVector<RVCtlOffers::Entry> updates;
    /// What is known of the section's list of sums.
    QJsonObject trust;

    /// The arguments of the installer, with a name for what is not known yet.
    QStringList installerArguments() const;
    /// "trust", "updates", "downloads", "downloadSize".
    QJsonObject toJson() const;
};

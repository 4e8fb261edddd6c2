// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/OSInfoBaseClass.h"
#include "repository/RVData.h"

#include <QList>
#include <QVector>

/// What is installed of an offered update, and whether a section proposes to install it.
struct RVProposal {
    enum Installed {
        Unknown = 0, ///< the system cannot be asked
        NotInstalled = 1,
        Known = 2,
        NotConfigured = 3, ///< an installation began and did not come to its end
    };

    Installed current = Unknown;
    /// The installed version where it is known.
    QString installed;
    /// What is installed is as new as the offer, or newer.
    bool upToDate = false;
    bool preselected = false;
};

/// For the offered entries of a section, in their order. Proposed is everything that is newer than
/// what is installed; where one entry is picked, only the first can be. `system` may be null.
QVector<RVProposal> proposals(const QList<RVData> &offered, const OSInfoBaseClass *system,
                              bool picksOne);

/// Whether the system is the image of that version: its identification says exactly that. An image
/// has no other mark on the system; one that was arranged has been written when this holds.
bool runsImage(const OSInfoBaseClass &system, const QString &version);
/// Whether an update is the image that the system runs.
bool isRunningImage(const RVData &entry, const OSInfoBaseClass &system);

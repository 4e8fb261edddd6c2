// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/OSInfoBaseClass.h"
#include "repository/RVData.h"

#include <QList>

/// Why an archive is offered on a system, or the first reason why it is not.
enum class RVEligibility {
    Offered,
    // The next four only for archives of which no entry was made.
    NoFilter,
    NoDescriptor,
    /// The listing leads where it must not; see mayLeadTo().
    ForeignLink,
    /// Not in the repository's list of sums, or not in its own folder.
    NotListed,
    /// The descriptor is not the file that the list has.
    OtherDescriptor,
    /// What could not be read says nothing that fits.
    UnreadableDescriptor,
    OtherBaseRelease,
    OtherArchitecture,
    OtherThinClient,
    ServicePackInstalled,
};

/// The tests in their order; `filterSps` adds the last one. Of a hostile number of base releases
/// only the first are tried, and one level-4 log line says so.
RVEligibility eligibility(const RVData &entry, const OSInfoBaseClass &system, bool filterSps);
/// The entries that fit, in their order.
QList<RVData> offeredEntries(const QList<RVData> &entries, const OSInfoBaseClass &system,
                             bool filterSps);

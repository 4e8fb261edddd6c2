// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "repository/RVEligibility.h"

#include <QList>
#include <QUrl>

class RVRepository;

/// Why one archive of a listing is offered or not.
struct RVVerdict {
    QUrl archive;
    RVEligibility reason = RVEligibility::NoFilter;
    /// Its place among the repository's entries, or -1 when none was made of it.
    int entry = -1;
};

/// One verdict for every archive of the repository's listing, in listing order. An archive is what
/// a filter picks or an installer could handle. Of an archive with several entries, one that is
/// offered decides, else the first.
QList<RVVerdict> explain(const RVRepository &repository, const OSInfoBaseClass &system,
                         bool filterSps);

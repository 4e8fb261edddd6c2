// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "repository/RVData.h"

#include <QList>

/// How a section orders its entries.
enum SortKey : int {
    SortByVersion = 0, ///< newest first: sections in which one entry is picked
    SortByName = 1, ///< by name, on equal names newest first: all others
};

/// Stable; any other key leaves the order as it is. An entry without a descriptor is never less.
void sortEntries(QList<RVData> &entries, SortKey key);

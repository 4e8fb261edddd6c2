// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/RVLimits.h"

#include <algorithm>
#include <sys/resource.h>

int RVLimits::transfersNow()
{
    rlimit limit = {};
    if (::getrlimit(RLIMIT_NOFILE, &limit) != 0) {
        return transfersInFlight;
    }
    const rlim_t most = otherFiles + rlim_t(transfersInFlight) * filesOfATransfer;
    const auto files = static_cast<int>(std::min(limit.rlim_cur, most));
    return std::max((files - otherFiles) / filesOfATransfer, 1);
}

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/RVPaths.h"

/// The real system, but what its programs remember lies below `folder` (absolute).
inline RVPaths rememberingBelow(const QString &folder)
{
    RVPaths paths;
    const RVPaths below = RVPaths::under(folder);
    paths.stateDir = below.stateDir;
    paths.writableStateDir = below.writableStateDir;
    paths.userStateDir = below.userStateDir;
    paths.runDir = below.runDir;
    return paths;
}

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <array>
#include <cstddef>

/// What a keeper writes and holds; -1 for what there is not.
struct RVKeeperFiles {
    static constexpr std::size_t mostHeld = 4;

    int record = -1;
    int output = -1;
    /// Open until the installer has ended, for the locks on them.
    std::array<int, mostHeld> held = {-1, -1, -1, -1};
};

/// The part of RVKeeper that runs in the child of a process with threads, of which the child has
/// only the one that forked: no memory is allocated, no lock taken, nothing of Qt called.
namespace RVKeeperLoop
{

/// Parts the calling process in two, each in a session of its own. Returns in the child, whose
/// standard outputs lead to the parent; the parent reads them until the child has ended, and ends
/// as the child did. Where that cannot be, returns in the calling process.
void fork(bool isMerged, const RVKeeperFiles &files);

} // namespace RVKeeperLoop

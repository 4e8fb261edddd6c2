// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QElapsedTimer>

#include <algorithm>
#include <cstdio>

/// The quickest of `rounds` runs, in milliseconds.
template<typename Function>
double bestOf(int rounds, Function &&function)
{
    double best = 0;
    for (int i = 0; i < rounds; ++i) {
        QElapsedTimer timer;
        timer.start();
        function();
        const double took = static_cast<double>(timer.nsecsElapsed()) / 1e6;
        best = i == 0 ? took : std::min(best, took);
    }
    return best;
}

/// One line on standard output; false when ours is not at least `factor` times as quick as the
/// peer.
inline bool report(const char *what, double ours, const char *peerName, double peer, double factor)
{
    const bool good = ours * factor <= peer;
    std::printf("%-4s %s: %.1f ms; %s: %.1f ms (%.1f times)\n", good ? "ok" : "SLOW", what, ours,
                peerName, peer, peer / ours);
    return good;
}

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
// Reading what is installed: the status file alone against the cache over all package sources.
#include "core/OSInfo.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include <apt-pkg/cachefile.h>
#include <apt-pkg/error.h>
#include <apt-pkg/mmap.h>
#include <apt-pkg/pkgcachegen.h>
#include <apt-pkg/progress.h>
#include <apt-pkg/sourcelist.h>

#include "bench/Bench.h"

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QTemporaryDir dir;
    RVPaths paths;
    paths.imageId = dir.filePath(QStringLiteral("imageid"));
    paths.rootLog = paths.userLog = dir.filePath(QStringLiteral("log"));
    QFile id(paths.imageId);
    if (!id.open(QIODevice::WriteOnly) || id.write("1.0\n") < 0) {
        return 1;
    }
    id.close();

    OSInfo system(nullptr, paths);
    if (system.versionInstalled(QStringLiteral("dpkg")).isEmpty()) {
        std::printf("FAIL package_versions: dpkg is not installed?\n");
        return 1;
    }
    const double ours = bestOf(3, [&] {
        system.refresh();
    });
    const double peer = bestOf(2, [&] {
        pkgSourceList sources;
        sources.ReadMainList();
        OpProgress silent;
        MMap *map = nullptr;
        pkgCacheGenerator::MakeStatusCache(sources, &silent, &map, true);
        delete map;
        _error->Discard();
    });
    // Without downloaded indexes there is little more than the status file to read.
    return report("status file", ours, "status and sources", peer, 0.5) ? 0 : 1;
}

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/RVPaths.h"

RVPaths RVPaths::under(const QString &root)
{
    RVPaths paths;
    for (QString *path : {&paths.imageId, &paths.servicePackDir, &paths.hardwareTool,
                          &paths.definitionDir, &paths.rootLog, &paths.userLog, &paths.xarInstaller,
                          &paths.rebootTool, &paths.etcDir, &paths.writableDir}) {
        path->prepend(root);
    }
    paths.packageStatus = root + QStringLiteral("/var/lib/dpkg/status");
    paths.installerEnvironment = QStringList{
        QStringLiteral("DPKG_ROOT=") + root,
        QStringLiteral("DPKG_FORCE=not-root,script-chrootless,bad-path"),
    };
    return paths;
}

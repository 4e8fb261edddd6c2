// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/RVPaths.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>

#include <unistd.h>

RVPaths RVPaths::under(const QString &root)
{
    RVPaths paths;
    for (QString *path :
         {&paths.imageId, &paths.servicePackDir, &paths.hardwareTool, &paths.definitionDir,
          &paths.packageDatabase, &paths.rootLog, &paths.userLog, &paths.xarInstaller,
          &paths.rebootTool, &paths.etcDir, &paths.writableDir, &paths.keyringDir, &paths.stateDir,
          &paths.writableStateDir, &paths.runDir}) {
        path->prepend(root);
    }
    paths.userStateDir = root + QStringLiteral("/.local/state/ravel");
    paths.packageStatus = paths.packageDatabase + QStringLiteral("/status");
    paths.installerEnvironment = QStringList{
        QStringLiteral("DPKG_ROOT=") + root,
        QStringLiteral("DPKG_FORCE=not-root,script-chrootless,bad-path"),
    };
    return paths;
}

RVPaths RVPaths::enterRoot(const QString &root)
{
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope,
                       root + QLatin1String("/.config"));
    QSettings::setPath(QSettings::NativeFormat, QSettings::SystemScope,
                       root + QLatin1String("/etc/xdg"));
    RVPaths paths = under(root);
    // dpkg's log has a fixed place outside its root, unless root's own .dpkg.cfg moves it.
    paths.installerEnvironment.append(QLatin1String("HOME=") + root);
    return paths;
}

bool RVPaths::isEtcReadOnly() const
{
    return QFileInfo(etcDir).isSymLink() && QFileInfo(writableDir).isDir();
}

QString RVPaths::stateFolder() const
{
    if (::geteuid() == 0) {
        return isEtcReadOnly() ? writableStateDir : stateDir;
    }
    if (!userStateDir.isEmpty()) {
        return userStateDir;
    }
    const QString home = qEnvironmentVariable("XDG_STATE_HOME");
    return (QDir::isAbsolutePath(home) ? home : QDir::homePath() + QStringLiteral("/.local/state"))
        + QStringLiteral("/ravel");
}

QString RVPaths::runFolder() const
{
    if (::geteuid() == 0) {
        return runDir;
    }
    const QString run = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return userStateDir.isEmpty() && QDir::isAbsolutePath(run)
        ? run + QStringLiteral("/ravel")
        : stateFolder() + QStringLiteral("/run");
}

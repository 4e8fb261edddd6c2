// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "install/RVInstallerEnvironment.h"

#include "core/RVPaths.h"

#include <QFileInfo>
#include <QStandardPaths>
#include <QStringList>

#include <algorithm>

namespace
{

/// The search path with the folders of the system's own tools, which an ordinary user's login
/// leaves out. Relative folders would find what lies among the archives.
QString searchPath()
{
    QStringList folders = qEnvironmentVariable("PATH").split(QLatin1Char(':'));
    folders.erase(std::remove_if(folders.begin(), folders.end(),
                                 [](const QString &folder) {
                                     return !folder.startsWith(QLatin1Char('/'));
                                 }),
                  folders.end());
    folders.removeDuplicates();
    for (const char *folder :
         {"/usr/local/sbin", "/usr/local/bin", "/usr/sbin", "/usr/bin", "/sbin", "/bin"}) {
        if (!folders.contains(QLatin1String(folder))) {
            folders.append(QLatin1String(folder));
        }
    }
    return folders.join(QLatin1Char(':'));
}

} // namespace

QProcessEnvironment RVInstallerEnvironment::of(const RVPaths &paths)
{
    const QProcessEnvironment own = QProcessEnvironment::systemEnvironment();
    QProcessEnvironment environment;
    for (const QString &name : own.keys()) {
        static const QStringList kept{
            QStringLiteral("HOME"),   QStringLiteral("LANG"), QStringLiteral("LOGNAME"),
            QStringLiteral("TMPDIR"), QStringLiteral("TZ"),   QStringLiteral("USER"),
        };
        if (kept.contains(name)
            || (name.startsWith(QLatin1String("LC_")) && name != QLatin1String("LC_ALL"))) {
            environment.insert(name, own.value(name));
        }
    }
    environment.insert(QStringLiteral("PATH"), searchPath());
    environment.insert(QStringLiteral("DEBIAN_FRONTEND"), QStringLiteral("noninteractive"));
    // Its messages are searched for their causes.
    environment.insert(QStringLiteral("LC_MESSAGES"), QStringLiteral("C.UTF-8"));
    for (const QString &assignment : paths.installerEnvironment) {
        environment.insert(assignment.section(QLatin1Char('='), 0, 0),
                           assignment.section(QLatin1Char('='), 1));
    }
    return environment;
}

bool RVInstallerEnvironment::hasProgram(const QString &program, const RVPaths &paths)
{
    if (program.contains(QLatin1Char('/'))) {
        const QFileInfo file(program);
        return file.isFile() && file.isExecutable();
    }
    const QStringList folders = of(paths).value(QStringLiteral("PATH")).split(QLatin1Char(':'));
    return !QStandardPaths::findExecutable(program, folders).isEmpty();
}

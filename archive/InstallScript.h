// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QStringList>

class QProcess;
struct RVPaths;

/// What an archive's install() runs in the directory of the unpacked archives.
struct InstallCommand {
    QString program;
    /// "%1" is a name that is known only once the archive is unpacked.
    QStringList arguments;
    /// The text of "./RVinstall.sh"; empty when no script is written.
    QByteArray script;
};

/// The text of a script that runs `command` on a system whose root file system is unlocked for it,
/// and locked again only if it was this script that unlocked it. Its exit status is the command's.
QByteArray unlockedScript(const QByteArray &command);

/// Puts `lines` into "./RVinstall.sh", the script that an installer process runs. It replaces
/// whatever has that name: a planted link is never followed. Mode 0700, since a script can hold a
/// password. False, and no script, when it could not be written whole; errno says why.
bool writeInstallScript(const QByteArray &lines);

/// Makes `proc` an installation that fails: it says `reason` on standard error and exits with 1, so
/// that whoever watches learns of it the way it learns of every failed installation. Logged at
/// level 3.
void failInstallation(QProcess *proc, const QString &reason, const RVPaths &paths);

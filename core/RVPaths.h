// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>
#include <QStringList>

/// Every file that the system reads and every program that it starts, in one place. The defaults
/// are the device's; a struct made with under() describes a system that lives below another
/// directory. A value: it is handed down as the last, defaulted argument of whatever needs one of
/// the paths.
struct RVPaths {
    QString imageId = QStringLiteral("/etc/imageid");
    QString servicePackDir = QStringLiteral("/etc/service-packs");
    QString hardwareTool = QStringLiteral("/usr/bin/cvtc-hwsw-id");
    QString definitionDir = QStringLiteral("/etc/cvtc-ravel/repositories");
    /// The package database: its locks, its journal and its state.
    QString packageDatabase = QStringLiteral("/var/lib/dpkg");
    /// The database's status file; empty means the one that the package library is set up
    /// for.
    QString packageStatus;
    /// The log of a process whose real user is root, and of any other process.
    QString rootLog = QStringLiteral("/var/log/Ravel.log");
    QString userLog = QStringLiteral("/tmp/Ravel.log");
    QString xarInstaller = QStringLiteral("/usr/sbin/xarinstall");
    QString rebootTool = QStringLiteral("/usr/sbin/cvtc-ts-reboot");
    /// Where the full-image installer leaves its configuration, and how it tells a read-only /etc.
    QString etcDir = QStringLiteral("/etc");
    QString writableDir = QStringLiteral("/writable");
    /// The keyrings that definitions name.
    QString keyringDir = QStringLiteral("/etc/cvtc-ravel/keys");
    /// What a program of root's remembers; the second where /etc is read-only.
    QString stateDir = QStringLiteral("/var/lib/ravel");
    QString writableStateDir = QStringLiteral("/writable/ravel");
    /// The same of any other user's program; empty means the one of the running user.
    QString userStateDir;
    /// What concerns a running installation of root's.
    QString runDir = QStringLiteral("/run/ravel");
    /// Belong to the running program and not to the system that it updates: under() leaves them.
    QString shell = QStringLiteral("/bin/bash");
    QString trueTool = QStringLiteral("/bin/true");
    QString signatureTool = QStringLiteral("/usr/bin/gpgv");
    QString iconDir = QStringLiteral("/usr/share/icons/Rodent/scalable/stock");

    /// "NAME=value" entries added to the installer's environment; none on the device itself.
    QStringList installerEnvironment;

    /// The same system below the directory `root` (absolute, without a trailing slash): the files
    /// and programs move, packageStatus is root's own database, and the installer's environment
    /// makes an unmodified dpkg work on that root, as an ordinary user too.
    static RVPaths under(const QString &root);
    /// Whether the system keeps what changes in writableDir, because /etc is read-only.
    bool isEtcReadOnly() const;
    /// Where a program of the running user keeps what it remembers, and what concerns its running
    /// installation.
    QString stateFolder() const;
    QString runFolder() const;
    /// under() for a program that works on `root` alone: its settings are read and stored there
    /// too, and the package tool finds its own configuration there.
    static RVPaths enterRoot(const QString &root);
};

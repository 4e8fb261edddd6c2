// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/RVPaths.h"

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QTemporaryDir>

/// An empty Debian system of its own: a package database that the real dpkg installs into through
/// paths(), as any user. Packages are made with the real dpkg-deb.
class DpkgRoot
{
public:
    struct Package {
        QString name;
        QString version;
        /// Further control fields, each line with its line feed.
        QByteArray fields = {};
        /// Maintainer scripts by name ("preinst", "postinst").
        QMap<QString, QByteArray> scripts = {};
        /// By their paths in the package, "etc/x.conf".
        QMap<QString, QByteArray> files = {};
        QString architecture = QStringLiteral("all");
        /// dpkg-deb's name of it.
        QString compression = QStringLiteral("none");
    };

    DpkgRoot();

    bool isValid() const { return m_valid; }
    QString path() const { return m_dir.path(); }
    /// The system as the product is told of it.
    RVPaths paths() const;

    /// Makes the package as `file` (absolute) and returns why that failed, or the empty text.
    static QString build(const Package &package, const QString &file);
    /// Installs without the product, for what a test needs beforehand; the empty text, or why not.
    QString preinstall(const Package &package) const;

    /// dpkg-query's abbreviated status, "ii" for an installed package; empty when it is unknown.
    QString status(const QString &name) const;
    /// The version of a package that is properly installed, else the empty text.
    QString installedVersion(const QString &name) const;

private:
    Q_DISABLE_COPY_MOVE(DpkgRoot)

    QString query(const QString &name, const QString &format) const;

    QTemporaryDir m_dir;
    bool m_valid = false;
};

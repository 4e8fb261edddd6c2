// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/support/FakeRoot.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

FakeRoot::FakeRoot()
    : m_paths(RVPaths::under(m_dir.path()))
{
    setImageId("6.1.0\n");
    write(m_paths.packageStatus, QByteArray());
}

void FakeRoot::write(const QString &path, const QByteArray &contents)
{
    QFile file(path);
    if (!QDir().mkpath(QFileInfo(path).path()) || !file.open(QIODevice::WriteOnly)
        || file.write(contents) != contents.size()) {
        qFatal("Cannot write %s", qUtf8Printable(path));
    }
}

void FakeRoot::addServicePackFile(const QString &name, const QByteArray &contents) const
{
    write(m_paths.servicePackDir + QLatin1Char('/') + name, contents);
}

void FakeRoot::setHardwareTool(const QByteArray &script) const
{
    write(m_paths.hardwareTool, "#!/bin/sh\n" + script + '\n');
    QFile::setPermissions(m_paths.hardwareTool,
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

void FakeRoot::addPackage(const QByteArray &name, const QByteArray &version,
                          const QByteArray &status, const QByteArray &architecture) const
{
    QFile database(m_paths.packageStatus);
    const QByteArray entry = "Package: " + name + "\nStatus: " + status
        + "\nArchitecture: " + architecture + "\nVersion: " + version
        + "\nMaintainer: Nobody <nobody@example.org>\nDescription: " + name + "\n\n";
    if (!database.open(QIODevice::Append) || database.write(entry) != entry.size()) {
        qFatal("Cannot write %s", qUtf8Printable(m_paths.packageStatus));
    }
}

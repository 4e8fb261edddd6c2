// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/support/FakeRoot.h"

#include <QFile>
#include <QFileInfo>

#include <sys/stat.h>

namespace
{

/// As a system's own folders are, whatever the mask of who runs the test.
bool makeFolder(const QString &path)
{
    const QFileInfo folder(path);
    return folder.isDir()
        || (makeFolder(folder.path()) && ::mkdir(QFile::encodeName(path).constData(), 0755) == 0
            && ::chmod(QFile::encodeName(path).constData(), 0755) == 0);
}

} // namespace

FakeRoot::FakeRoot()
    : m_paths(RVPaths::under(m_dir.path()))
{
    setImageId("6.1.0\n");
    write(m_paths.packageStatus, QByteArray());
}

void FakeRoot::write(const QString &path, const QByteArray &contents)
{
    QFile file(path);
    const bool isNew = !file.exists();
    if (!makeFolder(QFileInfo(path).path()) || !file.open(QIODevice::WriteOnly)
        || file.write(contents) != contents.size()) {
        qFatal("Cannot write %s", qUtf8Printable(path));
    }
    if (isNew) {
        ::chmod(QFile::encodeName(path).constData(), 0644);
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

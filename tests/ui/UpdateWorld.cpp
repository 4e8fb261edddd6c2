// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/ui/UpdateWorld.h"

#include "tests/support/PackageOutline.h"
#include "tests/support/PrivateState.h"

#include <QDir>
#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>

namespace
{

void write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        qFatal("%s cannot be written", qUtf8Printable(path));
    }
}

} // namespace

UpdateWorld::UpdateWorld()
    : m_paths(rememberingBelow(m_dir.path()))
{
    QDir(m_dir.path()).mkdir(QStringLiteral("repository"));
    m_paths.shell = file(QStringLiteral("installer"));
    m_paths.packageDatabase = file(QStringLiteral("dpkg"));
    // Nothing tells whether an installer did what it says.
    m_paths.packageStatus = file(QStringLiteral("no-database"));
    setInstaller("exit 0");
}

void UpdateWorld::add(const QString &file, const QString &name, const QString &version,
                      const QString &title, const QString &more) const
{
    QString xml = QStringLiteral("<update_data><name>%1</name><title>%2</title>"
                                 "<version>%3</version><size>7</size>")
                      .arg(name.toHtmlEscaped(), title.toHtmlEscaped(), version.toHtmlEscaped());
    xml += more;
    if (!more.contains(QLatin1String("<thin_client>"))) {
        xml += QStringLiteral("<thin_client>all</thin_client>");
    }
    xml += QStringLiteral("</update_data>");
    write(repository() + QLatin1Char('/') + file + QStringLiteral(".xml"), xml.toUtf8());
    write(repository() + QLatin1Char('/') + file + QStringLiteral(".deb"),
          packageOutline("archive"));
}

RVData UpdateWorld::entry(const QString &file, const QString &name, const QString &version,
                          const QString &title, const QString &more) const
{
    add(file, name, version, title, more);
    return read(
        QUrl::fromLocalFile(repository() + QLatin1Char('/') + file + QStringLiteral(".deb")), file);
}

RVData UpdateWorld::remoteEntry(const QUrl &archive) const
{
    add(QStringLiteral("remote"), QStringLiteral("remote"), QStringLiteral("1"));
    return read(archive, QStringLiteral("remote"));
}

RVData UpdateWorld::read(const QUrl &archive, const QString &descriptor) const
{
    const QString path = repository() + QLatin1Char('/') + descriptor + QStringLiteral(".xml");
    const RVData data(archive, QUrl::fromLocalFile(path), nullptr, m_paths);
    QFile file(path);
    data.descriptor()->read(&file);
    return data;
}

void UpdateWorld::setInstaller(const QByteArray &script)
{
    QFile::remove(m_paths.shell);
    write(m_paths.shell, "#!/bin/sh\n" + script + '\n');
    QFile::setPermissions(m_paths.shell, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

QByteArray UpdateWorld::untilGo()
{
    const QByteArray pipe = QFile::encodeName(file(QStringLiteral("go")));
    // Open at both ends, so that neither side waits for the other to open it.
    const int end = ::mkfifo(pipe.constData(), 0600) == 0 ? ::open(pipe.constData(), O_RDWR) : -1;
    if (!m_go.open(end, QIODevice::WriteOnly | QIODevice::Unbuffered, QFile::AutoCloseHandle)) {
        qFatal("no pipe");
    }
    return "read -r line <'" + pipe + "'\n";
}

void UpdateWorld::go()
{
    m_go.write("\n");
}

void UpdateWorld::removeInstaller() const
{
    QFile::remove(m_paths.shell);
}

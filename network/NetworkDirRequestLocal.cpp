// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "network/NetworkDirRequestLocal.h"

#include "network/XNetworkReply.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>

namespace
{

/// Absolute, with one slash in front: a relative entry would be lost when the process changes its
/// directory, and from two slashes QUrl::fromLocalFile() would take a host name.
QString listedPath(const QUrl &url)
{
    QString path = url.path();
    if (!path.isEmpty() && QDir::isRelativePath(path)) {
        path = QDir::current().filePath(path);
    }
    while (path.startsWith(QLatin1String("//"))) {
        path.remove(0, 1);
    }
    return path;
}

int unixPermissions(QFile::Permissions permissions)
{
    int result = 0;
    const auto add = [&](QFile::Permission permission, XUrlInfo::PermissionSpec bit) {
        if (permissions.testFlag(permission)) {
            result |= bit;
        }
    };
    add(QFile::ReadOwner, XUrlInfo::ReadOwner);
    add(QFile::WriteOwner, XUrlInfo::WriteOwner);
    add(QFile::ExeOwner, XUrlInfo::ExeOwner);
    add(QFile::ReadGroup, XUrlInfo::ReadGroup);
    add(QFile::WriteGroup, XUrlInfo::WriteGroup);
    add(QFile::ExeGroup, XUrlInfo::ExeGroup);
    add(QFile::ReadOther, XUrlInfo::ReadOther);
    add(QFile::WriteOther, XUrlInfo::WriteOther);
    add(QFile::ExeOther, XUrlInfo::ExeOther);
    return result;
}

/// Makes the entries, and looks each user and group name up once: a look-up may go over the
/// network.
class EntryMaker
{
public:
    XUrlInfo operator()(const QFileInfo &file)
    {
        XUrlInfo entry;
        entry.setName(QUrl::fromLocalFile(file.filePath()).toString());
        entry.setDir(file.isDir());
        entry.setFile(file.isFile());
        entry.setGroup(groupName(file));
        entry.setOwner(ownerName(file));
        entry.setLastModified(file.lastModified());
        entry.setLastRead(file.lastRead());
        entry.setPermissions(unixPermissions(file.permissions()));
        entry.setReadable(file.isReadable());
        entry.setSize(file.size());
        entry.setSymLink(file.isSymLink());
        entry.setWritable(file.isWritable());
        return entry;
    }

private:
    QString ownerName(const QFileInfo &file)
    {
        auto name = m_owners.find(file.ownerId());
        return name != m_owners.end() ? *name : *m_owners.insert(file.ownerId(), file.owner());
    }

    QString groupName(const QFileInfo &file)
    {
        auto name = m_groups.find(file.groupId());
        return name != m_groups.end() ? *name : *m_groups.insert(file.groupId(), file.group());
    }

    QHash<uint, QString> m_owners;
    QHash<uint, QString> m_groups;
};

} // namespace

NetworkDirRequestLocal::NetworkDirRequestLocal(const QUrl &url)
    : NetworkDirRequestBase(url)
{
}

bool NetworkDirRequestLocal::directoryCapable() const
{
    return true;
}

XNetworkReply *NetworkDirRequestLocal::getDirectory()
{
    auto *reply = new XNetworkReply;
    reply->setDirectoryRequest(m_request);

    const QString path = listedPath(m_request.url());
    const QFileInfo directory(path);
    if (!directory.exists()) {
        reply->fail(QNetworkReply::ContentNotFoundError, QObject::tr("URI does not exist"));
    } else if (!directory.isDir()) {
        reply->fail(QNetworkReply::ContentOperationNotPermittedError,
                    QObject::tr("URI is not a directory"));
    } else if (!directory.isReadable()) {
        reply->fail(QNetworkReply::ContentAccessDenied, QObject::tr("Directory is not readable"));
    } else {
        const QFileInfoList files = QDir(path).entryInfoList(
            QDir::NoFilter, QDir::Name | QDir::DirsFirst | QDir::IgnoreCase | QDir::LocaleAware);
        EntryMaker makeEntry;
        for (const QFileInfo &file : files) {
            reply->entries.append(makeEntry(file));
        }
    }
    reply->finish();
    return reply;
}

void NetworkDirRequestLocal::setManager(XNetworkAccessManager * /*manager*/)
{
}

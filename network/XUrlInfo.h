// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QDateTime>
#include <QString>

/// One entry of a directory listing; a value of the shape of Qt 4's QUrlInfo.
class XUrlInfo
{
public:
    /// Unix permission bits, as in a listing's "rwxr-xr-x".
    enum PermissionSpec {
        ReadOwner = 0400,
        WriteOwner = 0200,
        ExeOwner = 0100,
        ReadGroup = 0040,
        WriteGroup = 0020,
        ExeGroup = 0010,
        ReadOther = 0004,
        WriteOther = 0002,
        ExeOther = 0001,
    };

    /// An invalid entry: its name is empty.
    XUrlInfo() = default;

    bool isValid() const { return !m_name.isEmpty(); }

    /// In a finished listing, the entry's full URL as text.
    QString name() const { return m_name; }
    void setName(const QString &name) { m_name = name; }
    int permissions() const { return m_permissions; }
    void setPermissions(int permissions) { m_permissions = permissions; }
    QString owner() const { return m_owner; }
    void setOwner(const QString &owner) { m_owner = owner; }
    QString group() const { return m_group; }
    void setGroup(const QString &group) { m_group = group; }
    /// Bytes.
    qint64 size() const { return m_size; }
    void setSize(qint64 size) { m_size = size; }
    QDateTime lastModified() const { return m_lastModified; }
    void setLastModified(const QDateTime &time) { m_lastModified = time; }
    QDateTime lastRead() const { return m_lastRead; }
    void setLastRead(const QDateTime &time) { m_lastRead = time; }
    bool isDir() const { return m_isDir; }
    void setDir(bool on) { m_isDir = on; }
    bool isFile() const { return m_isFile; }
    void setFile(bool on) { m_isFile = on; }
    bool isSymLink() const { return m_isSymLink; }
    void setSymLink(bool on) { m_isSymLink = on; }
    bool isWritable() const { return m_isWritable; }
    void setWritable(bool on) { m_isWritable = on; }
    bool isReadable() const { return m_isReadable; }
    void setReadable(bool on) { m_isReadable = on; }
    bool isExecutable() const;

    bool operator==(const XUrlInfo &other) const;
    bool operator!=(const XUrlInfo &other) const { return !(*this == other); }

private:
    QString m_name;
    QString m_owner;
    QString m_group;
    QDateTime m_lastModified;
    QDateTime m_lastRead;
    qint64 m_size = 0;
    int m_permissions = 0;
    bool m_isDir = false;
    bool m_isFile = true;
    bool m_isSymLink = false;
    bool m_isWritable = true;
    bool m_isReadable = true;
};

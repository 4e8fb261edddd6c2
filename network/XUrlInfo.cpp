// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "network/XUrlInfo.h"

bool XUrlInfo::isExecutable() const
{
    return (m_permissions & (ExeOwner | ExeGroup | ExeOther)) != 0;
}

bool XUrlInfo::operator==(const XUrlInfo &other) const
{
    return m_name == other.m_name && m_owner == other.m_owner && m_group == other.m_group
        && m_lastModified == other.m_lastModified && m_lastRead == other.m_lastRead
        && m_size == other.m_size && m_permissions == other.m_permissions
        && m_isDir == other.m_isDir && m_isFile == other.m_isFile
        && m_isSymLink == other.m_isSymLink && m_isWritable == other.m_isWritable
        && m_isReadable == other.m_isReadable;
}

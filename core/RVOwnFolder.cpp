// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/RVOwnFolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

RVOwnFolder::RVOwnFolder(const QString &path)
{
    QDir().mkpath(QFileInfo(path).path());
    const QByteArray name = QFile::encodeName(path);
    if (::mkdir(name.constData(), 0700) != 0 && errno != EEXIST) {
        return;
    }
    m_handle = ::open(name.constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    struct stat status = {};
    if (m_handle >= 0
        && (::fstat(m_handle, &status) != 0 || status.st_uid != ::geteuid()
            || (status.st_mode & (S_IWGRP | S_IWOTH)) != 0)) {
        ::close(m_handle);
        m_handle = -1;
        errno = EPERM;
    }
}

RVOwnFolder::~RVOwnFolder()
{
    if (m_handle >= 0) {
        ::close(m_handle);
    }
}

bool RVOwnFolder::shareWith(unsigned int group) const
{
    struct stat status = {};
    return ::fstat(m_handle, &status) == 0
        && ((status.st_gid == group && (status.st_mode & 0777U) == 0750)
            || (::fchown(m_handle, static_cast<uid_t>(-1), group) == 0
                && ::fchmod(m_handle, 0750) == 0));
}

int RVOwnFolder::openFile(const QByteArray &name, std::optional<unsigned int> readers) const
{
    // A pipe that lies there would be waited for.
    const int file =
        ::openat(m_handle, name.constData(),
                 O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC, 0600);
    struct stat status = {};
    if (file < 0) {
        return -1;
    }
    if (::fstat(file, &status) != 0 || !S_ISREG(status.st_mode) || status.st_uid != ::geteuid()
        || status.st_nlink != 1
        || (readers && ::fchown(file, static_cast<uid_t>(-1), *readers) != 0)
        || ::fchmod(file, readers ? 0640 : 0600) != 0) {
        ::close(file);
        errno = EPERM;
        return -1;
    }
    return file;
}

bool RVOwnFolder::replaceFile(const QByteArray &name, const QByteArray &text) const
{
    const QByteArray part = '.' + name + ".part";
    if (!removeFile(part)) {
        return false;
    }
    const int file = ::openat(m_handle, part.constData(),
                              O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600);
    if (file < 0) {
        return false;
    }
    const bool isStored =
        ::write(file, text.constData(), static_cast<size_t>(text.size())) == text.size()
        && ::fsync(file) == 0;
    ::close(file);
    // The name last: after a loss of power it stands for what is on the disk.
    if (isStored && ::renameat(m_handle, part.constData(), m_handle, name.constData()) == 0
        && ::fsync(m_handle) == 0) {
        return true;
    }
    const int error = errno;
    removeFile(part);
    errno = error;
    return false;
}

bool RVOwnFolder::renameFile(const QByteArray &name, const QByteArray &newName) const
{
    return ::renameat(m_handle, name.constData(), m_handle, newName.constData()) == 0;
}

bool RVOwnFolder::sync() const
{
    return ::fsync(m_handle) == 0;
}

bool RVOwnFolder::removeFile(const QByteArray &name) const
{
    return ::unlinkat(m_handle, name.constData(), 0) == 0 || errno == ENOENT;
}

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "install/RVFolderMark.h"

#include "core/RVLogger.h"

#include <QByteArrayList>
#include <QFile>

#include <dirent.h>
#include <fcntl.h>
#include <limits>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

/// Not among the archives: installers take what their pattern finds, and no pattern finds this.
constexpr char markName[] = ".ravel-run";
/// Other programs' folders are many, too.
constexpr int mostFolders = 10000;
/// Each level holds a descriptor; whatever lies deeper stays.
constexpr int mostLevels = 100;

class Handle
{
public:
    explicit Handle(int descriptor)
        : m_descriptor(descriptor)
    {
    }
    ~Handle()
    {
        if (m_descriptor >= 0) {
            ::close(m_descriptor);
        }
    }

    bool isOpen() const { return m_descriptor >= 0; }
    int get() const { return m_descriptor; }

private:
    Q_DISABLE_COPY_MOVE(Handle)

    int m_descriptor;
};

int openFolder(int parent, const char *name)
{
    return ::openat(parent, name, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
}

QByteArrayList namesIn(int folder, int most)
{
    QByteArrayList names;
    const int handle = openFolder(folder, ".");
    DIR *stream = handle < 0 ? nullptr : ::fdopendir(handle);
    if (!stream) {
        if (handle >= 0) {
            ::close(handle);
        }
        return names;
    }
    while (const dirent *entry = names.size() < most ? ::readdir(stream) : nullptr) {
        const QByteArray name(entry->d_name);
        if (name != "." && name != "..") {
            names.append(name);
        }
    }
    ::closedir(stream);
    return names;
}

bool isOwn(const struct stat &status)
{
    return status.st_uid == ::geteuid();
}

/// A regular file of our own, without being opened.
bool hasMark(int folder)
{
    struct stat status = {};
    return ::fstatat(folder, markName, &status, AT_SYMLINK_NOFOLLOW) == 0 && S_ISREG(status.st_mode)
        && isOwn(status);
}

/// NOLINTNEXTLINE(misc-no-recursion): `levels` bounds it.
void empty(int folder, dev_t device, int levels)
{
    // An archive may hold a folder that its owner cannot list.
    ::fchmod(folder, S_IRWXU);
    // The mark last: what cannot be removed now is found again by the next start.
    for (const QByteArray &name : namesIn(folder, std::numeric_limits<int>::max())) {
        if (name == markName || ::unlinkat(folder, name.constData(), 0) == 0 || levels == 0) {
            continue;
        }
        struct stat status = {};
        if (::fstatat(folder, name.constData(), &status, AT_SYMLINK_NOFOLLOW) != 0
            || !S_ISDIR(status.st_mode) || status.st_dev != device) {
            continue;
        }
        ::fchmodat(folder, name.constData(), S_IRWXU, AT_SYMLINK_NOFOLLOW);
        const Handle inner(openFolder(folder, name.constData()));
        if (inner.isOpen() && ::fstat(inner.get(), &status) == 0 && status.st_dev == device) {
            empty(inner.get(), device, levels - 1);
            ::unlinkat(inner.get(), markName, 0);
            ::unlinkat(folder, name.constData(), AT_REMOVEDIR);
        }
    }
}

bool removeIfLeft(int parent, const QByteArray &name)
{
    const Handle folder(openFolder(parent, name.constData()));
    struct stat status = {};
    if (!folder.isOpen() || ::fstat(folder.get(), &status) != 0 || !isOwn(status)
        || !hasMark(folder.get()) || ::flock(folder.get(), LOCK_EX | LOCK_NB) != 0) {
        return false;
    }
    empty(folder.get(), status.st_dev, mostLevels);
    const QByteArrayList left = namesIn(folder.get(), 2);
    return left == QByteArrayList{markName} && ::unlinkat(folder.get(), markName, 0) == 0
        && ::unlinkat(parent, name.constData(), AT_REMOVEDIR) == 0;
}

} // namespace

RVFolderMark::RVFolderMark(const QString &folder)
    : m_lock(openFolder(AT_FDCWD, QFile::encodeName(folder).constData()))
{
    // The lock is the folder's own: no archive can put another file in its place.
    if (m_lock >= 0 && ::flock(m_lock, LOCK_EX | LOCK_NB) == 0) {
        const Handle mark(
            ::openat(m_lock, markName, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600));
    }
}

RVFolderMark::~RVFolderMark()
{
    if (m_lock >= 0) {
        ::close(m_lock);
    }
}

int RVFolderMark::removeLeft(const QString &parent)
{
    const Handle folder(
        ::open(QFile::encodeName(parent).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    int removed = 0;
    if (folder.isOpen()) {
        for (const QByteArray &name : namesIn(folder.get(), mostFolders)) {
            removed += removeIfLeft(folder.get(), name) ? 1 : 0;
        }
    }
    if (removed > 0) {
        RVLogger().log(5, "Removed %d temporary directories of earlier runs", removed);
    }
    return removed;
}

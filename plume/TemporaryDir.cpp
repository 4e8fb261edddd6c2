// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include <plume/TemporaryDir.h>

#include <QDir>
#include <QFile>
#include <QList>

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

QList<QByteArray> entriesOf(int dirFd)
{
    QList<QByteArray> names;
    const int fd = ::openat(dirFd, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    DIR *dir = fd < 0 ? nullptr : ::fdopendir(fd);
    if (!dir) {
        if (fd >= 0) {
            ::close(fd);
        }
        return names;
    }
    while (const dirent *entry = ::readdir(dir)) {
        const QByteArray name(entry->d_name);
        if (name != "." && name != "..") {
            names.append(name);
        }
    }
    ::closedir(dir);
    return names;
}

bool removeEntry(int dirFd, const QByteArray &name)
{
    return ::unlinkat(dirFd, name.constData(), 0) == 0
        || ::unlinkat(dirFd, name.constData(), AT_REMOVEDIR) == 0;
}

/// Empties a tree of any depth with two open descriptors and no recursion: a directory's
/// subdirectories are moved up to the top one, until nothing is left below it.
class Remover
{
public:
    explicit Remover(int topFd)
        : m_topFd(topFd)
    {
    }

    void run()
    {
        ::fchmod(m_topFd, S_IRWXU);
        bool progress = true;
        while (progress) {
            progress = false;
            const QList<QByteArray> names = entriesOf(m_topFd);
            for (const QByteArray &name : names) {
                progress = removeEntry(m_topFd, name) || emptyDirectory(name) || progress;
            }
        }
    }

private:
    /// True when anything inside `name` was removed or moved up.
    bool emptyDirectory(const QByteArray &name)
    {
        QByteArray claimed;
        if (!moveUp(m_topFd, name, &claimed)) {
            return false;
        }
        // An ordinary user cannot list or change a directory without these rights.
        ::fchmodat(m_topFd, claimed.constData(), S_IRWXU, AT_SYMLINK_NOFOLLOW);
        const int fd =
            ::openat(m_topFd, claimed.constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
        if (fd < 0) {
            return false;
        }
        bool progress = false;
        const QList<QByteArray> names = entriesOf(fd);
        for (const QByteArray &inner : names) {
            progress = removeEntry(fd, inner) || moveUp(fd, inner) || progress;
        }
        ::close(fd);
        return removeEntry(m_topFd, claimed) || progress;
    }

    /// Gives an entry a new name in the top directory. The kernel refuses that for a mount point,
    /// whose contents are not ours to remove.
    bool moveUp(int dirFd, const QByteArray &name, QByteArray *newName = nullptr)
    {
        bool madeWritable = false;
        for (;;) {
            const QByteArray fresh = QByteArray::number(m_serial++);
            if (::renameat(dirFd, name.constData(), m_topFd, fresh.constData()) == 0) {
                if (newName) {
                    *newName = fresh;
                }
                return true;
            }
            const int error = errno;
            if (error == EACCES && !madeWritable) {
                madeWritable =
                    ::fchmodat(dirFd, name.constData(), S_IRWXU, AT_SYMLINK_NOFOLLOW) == 0;
                if (!madeWritable) {
                    return false;
                }
            } else if (error != EEXIST && error != ENOTEMPTY && error != ENOTDIR
                       && error != EISDIR) {
                return false;
            }
        }
    }

    const int m_topFd;
    quint64 m_serial = 0;
};

} // namespace

TemporaryDir::TemporaryDir()
{
    // Empty when there is no such directory.
    const QString base = QDir::tempPath();
    QByteArray name = QFile::encodeName(base + QStringLiteral("/plume-XXXXXX"));
    if (base.isEmpty() || !::mkdtemp(name.data())) {
        return;
    }
    m_fd = ::open(name.constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    if (m_fd < 0) {
        ::rmdir(name.constData());
        return;
    }
    m_path = QFile::decodeName(name);
}

TemporaryDir::~TemporaryDir()
{
    if (!isValid()) {
        return;
    }
    Remover(m_fd).run();
    ::close(m_fd);
    ::rmdir(QFile::encodeName(m_path).constData());

    char current[PATH_MAX];
    if (!::getcwd(current, sizeof current) && errno == ENOENT && ::chdir("/") != 0) {
        qWarning("Cannot leave the removed directory");
    }
}

bool TemporaryDir::cdTo() const
{
    return isValid() && ::fchdir(m_fd) == 0;
}

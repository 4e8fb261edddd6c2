// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/RVCtlFolder.h"

#include <QDir>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

constexpr char suffix[] = ".part";
/// The longest name of a file, less the suffix.
constexpr int longestName = 250;

QByteArray partName(const QByteArray &name)
{
    return name + suffix;
}

} // namespace

RVCtlFolder::~RVCtlFolder()
{
    if (m_handle >= 0) {
        ::close(m_handle);
    }
}

QByteArray RVCtlFolder::nameOf(const QUrl &url)
{
    // Encoded: what is a slash only after decoding is no end of a segment.
    const QByteArray path = url.path(QUrl::FullyEncoded).toLatin1();
    const QByteArray name = QByteArray::fromPercentEncoding(path.mid(path.lastIndexOf('/') + 1));
    const bool isName = !name.isEmpty() && name != "." && name != ".." && !name.contains('/')
        && !name.contains('\0') && name.size() <= longestName && !name.endsWith(suffix);
    return isName ? name : QByteArray();
}

bool RVCtlFolder::open(const QString &path, QString *error)
{
    const auto fail = [&](const QString &reason) {
        *error = QStringLiteral("The folder '%1' cannot be used: %2").arg(path, reason);
        return false;
    };
    m_path = QDir(path).absolutePath();
    if (!QDir().mkpath(m_path)) {
        return fail(qt_error_string(errno));
    }
    m_handle = ::open(QFile::encodeName(m_path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (m_handle < 0) {
        return fail(qt_error_string(errno));
    }
    if (::flock(m_handle, LOCK_EX | LOCK_NB) != 0) {
        return fail(QStringLiteral("another program downloads into it."));
    }
    if (::faccessat(m_handle, ".", W_OK | X_OK, AT_EACCESS) != 0) {
        return fail(qt_error_string(errno));
    }
    return true;
}

RVCtlFolder::State RVCtlFolder::state(const QByteArray &name) const
{
    struct stat status = {};
    if (::fstatat(m_handle, name.constData(), &status, AT_SYMLINK_NOFOLLOW) != 0) {
        return Missing;
    }
    return S_ISREG(status.st_mode) ? Present : Foreign;
}

qint64 RVCtlFolder::sizeOf(const QByteArray &name) const
{
    struct stat status = {};
    return ::fstatat(m_handle, name.constData(), &status, AT_SYMLINK_NOFOLLOW) == 0 ? status.st_size
                                                                                    : -1;
}

bool RVCtlFolder::begin(const QByteArray &name, QFile *part) const
{
    drop(name);
    const int handle =
        ::openat(m_handle, partName(name).constData(),
                 O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC | O_NOCTTY, 0644);
    return handle >= 0
        && part->open(handle, QIODevice::ReadWrite | QIODevice::Unbuffered,
                      QFileDevice::AutoCloseHandle);
}

QString RVCtlFolder::partPath(const QByteArray &name) const
{
    return m_path + QLatin1Char('/') + QFile::decodeName(partName(name));
}

bool RVCtlFolder::complete(const QByteArray &name, QFile *part) const
{
    // The name last: after a loss of power it stands for what is on the disk.
    return ::fsync(part->handle()) == 0
        && ::renameat(m_handle, partName(name).constData(), m_handle, name.constData()) == 0
        && ::fsync(m_handle) == 0;
}

void RVCtlFolder::drop(const QByteArray &name) const
{
    ::unlinkat(m_handle, partName(name).constData(), 0);
}

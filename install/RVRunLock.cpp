// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "install/RVRunLock.h"

#include "core/RVOwnFolder.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace
{

const char fileName[] = "lock";
constexpr int maxText = 64;

/// The whole file. Of an open file and not of a process, so that a child can go on holding it, and
/// so that who looks does not take it for a moment.
struct flock wholeFile()
{
    struct flock lock = {};
    lock.l_type = F_WRLCK;
    lock.l_whence = SEEK_SET;
    return lock;
}

QByteArray ownText()
{
    const qint64 process = ::getpid();
    return QByteArray::number(process) + ' ' + RVLockHolder::beginOf(process) + '\n';
}

RVLockHolder holderIn(int handle)
{
    QByteArray text(maxText, 0);
    const ssize_t length = ::pread(handle, text.data(), maxText, 0);
    const QList<QByteArray> words =
        text.left(static_cast<int>(qMax<ssize_t>(length, 0))).trimmed().split(' ');
    const qint64 process = words.value(0).toLongLong();
    const bool isAlive =
        process > 0 && !words.value(1).isEmpty() && RVLockHolder::beginOf(process) == words.at(1);
    return RVLockHolder::ofProcess(isAlive ? process : 0);
}

} // namespace

RVRunLock::RVRunLock(const RVPaths &paths)
    : m_folder(paths.runFolder())
{
}

RVRunLock::~RVRunLock()
{
    release();
}

RVRunLock::State RVRunLock::take()
{
    if (m_state == State::Held) {
        return m_state;
    }
    m_holder = {};
    m_reason.clear();
    const RVOwnFolder folder(m_folder);
    m_handle = folder.isOpen() ? folder.openFile(fileName) : -1;
    if (m_handle < 0) {
        m_reason = QStringLiteral("'%1': %2").arg(m_folder, qt_error_string(errno));
        m_state = State::Unavailable;
        return m_state;
    }
    struct flock lock = wholeFile();
    if (::fcntl(m_handle, F_OFD_SETLK, &lock) == 0) {
        m_state = State::Held;
        const QByteArray text = ownText();
        // Without it the others learn only that somebody is first.
        if (::ftruncate(m_handle, 0) != 0
            || ::pwrite(m_handle, text.constData(), static_cast<size_t>(text.size()), 0) < 0) {
            m_reason = qt_error_string(errno);
        }
        return m_state;
    }
    const bool isBusy = errno == EAGAIN || errno == EACCES;
    m_reason = isBusy ? QString() : qt_error_string(errno);
    m_holder = isBusy ? holderIn(m_handle) : RVLockHolder();
    m_state = isBusy ? State::Busy : State::Unavailable;
    ::close(m_handle);
    m_handle = -1;
    return m_state;
}

RVRunLock::State RVRunLock::look()
{
    if (m_state == State::Held) {
        return m_state;
    }
    m_holder = {};
    m_state = State::Free;
    const int file =
        ::open(QFile::encodeName(m_folder + QLatin1Char('/') + QLatin1String(fileName)).constData(),
               O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (file < 0) {
        // A lock that nobody ever took, or that is not for this user.
        return m_state;
    }
    struct flock lock = wholeFile();
    if (::fcntl(file, F_OFD_GETLK, &lock) == 0 && lock.l_type != F_UNLCK) {
        m_holder = holderIn(file);
        m_state = State::Busy;
    }
    ::close(file);
    return m_state;
}

void RVRunLock::release()
{
    if (m_handle >= 0) {
        ::close(m_handle);
        m_handle = -1;
    }
    m_state = State::Free;
}

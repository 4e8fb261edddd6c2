// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "network/XSpooledReply.h"

#include "core/RVLogger.h"
#include "network/XNetworkError.h"

#include <QDir>
#include <QFile>
#include <QPointer>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <sys/statvfs.h>
#include <unistd.h>
#include <utility>

namespace
{

constexpr qint64 memoryLimit = 1024 * 1024;
constexpr qint64 progressIntervalMs = 100;

template<typename Call>
ssize_t uninterrupted(Call call)
{
    ssize_t result = 0;
    do {
        result = call();
    } while (result < 0 && errno == EINTR);
    return result;
}

bool writeAt(int file, const char *data, qint64 size, qint64 position)
{
    while (size > 0) {
        const ssize_t written = uninterrupted([&] {
            return ::pwrite(file, data, static_cast<size_t>(size), position);
        });
        if (written <= 0) {
            return false;
        }
        data += written;
        size -= written;
        position += written;
    }
    return true;
}

/// Whether the file system keeps a reserve: bodies that never end fill it otherwise, and with it
/// whatever else lives there.
bool leavesRoom(int file, qint64 size)
{
    constexpr qint64 largestReserve = qint64(64) << 20;
    constexpr int shareOfReserve = 20;
    struct statvfs info = {};
    if (::fstatvfs(file, &info) != 0 || info.f_blocks == 0) {
        return true; // it does not tell
    }
    const auto block = static_cast<qint64>(info.f_frsize);
    const qint64 reserve =
        qMin(largestReserve, static_cast<qint64>(info.f_blocks) / shareOfReserve * block);
    return static_cast<qint64>(info.f_bavail) * block - size >= reserve;
}

} // namespace

XSpooledReply::XSpooledReply(QNetworkAccessManager::Operation operation,
                             const QNetworkRequest &request, QObject *parent)
    : QNetworkReply(parent)
{
    setOperation(operation);
    setRequest(request);
    setUrl(request.url());
    open(QIODevice::ReadOnly);
    m_inactivity.setSingleShot(true);
    // A coarse timer may be 5 % early.
    m_inactivity.setTimerType(Qt::PreciseTimer);
    m_inactivity.setInterval(defaultInactivityMs);
    connect(&m_inactivity, &QTimer::timeout, this, [this] {
        failAndStop(
            QNetworkReply::TimeoutError,
            QStringLiteral("The server sent nothing for %1 s").arg(m_inactivity.interval() / 1000));
    });
    m_inactivity.start();
}

XSpooledReply::~XSpooledReply()
{
    dropBody();
}

void XSpooledReply::setInactivityLimit(int milliseconds)
{
    m_inactivity.setInterval(milliseconds);
}

qint64 XSpooledReply::bytesAvailable() const
{
    return QNetworkReply::bytesAvailable() + m_writePosition - m_readPosition;
}

void XSpooledReply::close()
{
    QNetworkReply::close();
    dropBody();
    if (!m_ended) {
        QMetaObject::invokeMethod(this, &XSpooledReply::abort, Qt::QueuedConnection);
    }
}

void XSpooledReply::abort()
{
    failAndStop(QNetworkReply::OperationCanceledError, QStringLiteral("Operation canceled"));
}

bool XSpooledReply::append(const QByteArray &data, qint64 total)
{
    if (!announce(total)) {
        return false;
    }
    if (data.isEmpty()) {
        return true;
    }
    restartInactivity();
    m_received += data.size();
    if (m_received >= m_bodyLimit) {
        failAndStop(QNetworkReply::ProtocolFailure, QStringLiteral("The file is too large"));
        return false;
    }
    if (!isOpen()) {
        // Nobody can read it any more.
        return true;
    }
    if (!store(data)) {
        const QString reason = qt_error_string(errno);
        RVLogger().log(3, "Could not store a download in %s: %s", qUtf8Printable(QDir::tempPath()),
                       qUtf8Printable(reason));
        failAndStop(QNetworkReply::UnknownNetworkError,
                    QStringLiteral("The download could not be stored: %1").arg(reason));
        return false;
    }
    const QPointer<XSpooledReply> self(this);
    Q_EMIT readyRead();
    return self && !m_ended && tellProgress(false);
}

bool XSpooledReply::announce(qint64 total)
{
    if (m_ended) {
        return false;
    }
    m_total = total;
    if (total >= m_bodyLimit) {
        failAndStop(QNetworkReply::ProtocolFailure, QStringLiteral("The file is too large"));
        return false;
    }
    return true;
}

void XSpooledReply::restartInactivity()
{
    if (m_suspensions == 0 && !m_ended) {
        m_inactivity.start();
    }
}

void XSpooledReply::suspendInactivity(bool suspended)
{
    m_suspensions += suspended ? 1 : -1;
    if (m_suspensions > 0) {
        m_inactivity.stop();
    } else {
        restartInactivity();
    }
}

void XSpooledReply::end()
{
    if (m_ended) {
        return;
    }
    m_ended = true;
    m_inactivity.stop();
    if (!tellProgress(true)) {
        return;
    }
    setFinished(true);
    const QPointer<XSpooledReply> self(this);
    Q_EMIT readChannelFinished();
    if (self) {
        Q_EMIT finished();
    }
}

void XSpooledReply::end(NetworkError code, const QString &text)
{
    if (m_ended) {
        return;
    }
    m_ended = true;
    m_inactivity.stop();
    const NetworkError shown = qt4Error(code);
    setError(shown, text);
    setFinished(true);
    const QPointer<XSpooledReply> self(this);
    // The base class passes this on as the deprecated error(code).
    Q_EMIT errorOccurred(shown);
    if (self) {
        Q_EMIT readChannelFinished();
    }
    if (self) {
        Q_EMIT finished();
    }
}

qint64 XSpooledReply::readData(char *data, qint64 maxSize)
{
    const qint64 size = qMin(maxSize, m_writePosition - m_readPosition);
    if (size <= 0) {
        return m_ended ? -1 : 0;
    }
    qint64 length = size;
    if (m_file < 0) {
        std::memcpy(data, m_memory.constData() + m_readPosition, static_cast<size_t>(size));
    } else {
        length = uninterrupted([&] {
            return ::pread(m_file, data, static_cast<size_t>(size), m_readPosition);
        });
        if (length <= 0) {
            setErrorString(qt_error_string(errno));
            return -1;
        }
    }
    m_readPosition += length;
    if (m_readPosition == m_writePosition) {
        dropBody();
    }
    return length;
}

void XSpooledReply::failAndStop(NetworkError code, const QString &text)
{
    if (m_ended) {
        return;
    }
    // What the subclass tells while it stops comes too late to be another end.
    m_ended = true;
    stop();
    m_ended = false;
    end(code, text);
}

// False with errno.
bool XSpooledReply::store(const QByteArray &data)
{
    if (m_file < 0 && m_writePosition + data.size() > memoryLimit && !openFile()) {
        return false;
    }
    if (m_file < 0) {
        m_memory.append(data);
    } else if (!storeInFile(data, m_writePosition)) {
        return false;
    }
    m_writePosition += data.size();
    return true;
}

// False with errno.
bool XSpooledReply::storeInFile(const QByteArray &data, qint64 position)
{
    if (data.size() > storedLimit - *m_stored) {
        errno = EDQUOT;
        return false;
    }
    if (!leavesRoom(m_file, data.size())) {
        errno = ENOSPC;
        return false;
    }
    if (!writeAt(m_file, data.constData(), data.size(), position)) {
        return false;
    }
    *m_stored += data.size();
    m_ownStored += data.size();
    return true;
}

bool XSpooledReply::openFile()
{
    const QByteArray directory = QFile::encodeName(QDir::tempPath());
    if (directory.isEmpty()) {
        // What Qt gives for a directory that does not exist.
        errno = ENOENT;
        return false;
    }
    m_file = ::open(directory.constData(), O_TMPFILE | O_RDWR | O_CLOEXEC, 0600);
    if (m_file < 0) {
        // Not every file system has files without a name.
        QByteArray name = directory + "/ravel-XXXXXX";
        m_file = ::mkostemp(name.data(), O_CLOEXEC);
        if (m_file < 0) {
            return false;
        }
        ::unlink(name.constData());
    }
    if (!storeInFile(m_memory, 0)) {
        return false;
    }
    m_memory = QByteArray();
    return true;
}

// What comes next is kept in memory again.
void XSpooledReply::dropBody()
{
    m_readPosition = 0;
    m_writePosition = 0;
    m_memory.clear();
    if (m_file >= 0) {
        ::close(m_file);
        m_file = -1;
    }
    *m_stored -= std::exchange(m_ownStored, 0);
}

// False when a receiver has deleted this, or ended it.
bool XSpooledReply::tellProgress(bool last)
{
    if (!last && m_lastProgress.isValid() && m_lastProgress.elapsed() < progressIntervalMs) {
        return true;
    }
    m_lastProgress.start();
    const QPointer<XSpooledReply> self(this);
    Q_EMIT downloadProgress(m_received, last && m_total < 0 ? m_received : m_total);
    return self && (last || !m_ended);
}

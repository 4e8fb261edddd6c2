// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "install/RVPackageDatabase.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>

#include <algorithm>
#include <fcntl.h>
#include <unistd.h>

namespace
{

/// The holder of a lock of the kind that dpkg takes: a write lock on the whole file.
RVLockHolder holderOf(const QString &file)
{
    // A pipe that somebody put there would be waited for.
    const int handle =
        ::open(QFile::encodeName(file).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
    if (handle < 0) {
        return {};
    }
    struct flock lock = {};
    lock.l_type = F_WRLCK;
    lock.l_whence = SEEK_SET;
    const bool isAnswered = ::fcntl(handle, F_GETLK, &lock) == 0;
    ::close(handle);
    if (!isAnswered || lock.l_type == F_UNLCK) {
        return {};
    }
    return RVLockHolder::ofProcess(lock.l_pid);
}

} // namespace

RVPackageDatabase::RVPackageDatabase(const RVPaths &paths)
    : m_adminDir(paths.packageDatabase)
{
}

RVLockHolder RVPackageDatabase::lockHolder() const
{
    RVLockHolder holder;
    // Who runs us as a front end says so, and holds that lock for us.
    if (qEnvironmentVariableIsEmpty("DPKG_FRONTEND_LOCKED")) {
        holder = holderOf(m_adminDir + QLatin1String("/lock-frontend"));
    }
    return !holder.isSet ? holderOf(m_adminDir + QLatin1String("/lock")) : holder;
}

RVSentence RVPackageDatabase::lockedBy(const RVLockHolder &holder)
{
    const QString process = QString::number(holder.process);
    if (holder.process <= 0) {
        return RVSentence(
            QT_TRANSLATE_NOOP("RVSentence", "The package database is locked by another process."));
    }
    return holder.program.isEmpty()
        ? RVSentence(
            QT_TRANSLATE_NOOP("RVSentence", "The package database is locked by process %1."),
            {process})
        : RVSentence(
            QT_TRANSLATE_NOOP("RVSentence", "The package database is locked by %1 (process %2)."),
            {holder.program, process});
}

bool RVPackageDatabase::hasJournal() const
{
    // Its parts are numbers; "tmp.i" is one that dpkg had only begun and passes over.
    static const QRegularExpression number(QStringLiteral("\\A[0-9]+\\z"));
    const QStringList names =
        QDir(m_adminDir + QLatin1String("/updates")).entryList(QDir::Files | QDir::System);
    return std::any_of(names.cbegin(), names.cend(), [](const QString &name) {
        return number.match(name).hasMatch();
    });
}

QVector<RVPackageDatabase::Package> RVPackageDatabase::unfinished() const
{
    static const QStringList finished{
        QStringLiteral("installed"),
        QStringLiteral("config-files"),
        QStringLiteral("not-installed"),
    };
    QVector<Package> result;
    QFile file(m_adminDir + QLatin1String("/status"));
    if (!file.open(QIODevice::ReadOnly)) {
        return result;
    }
    QString package;
    while (!file.atEnd()) {
        const QByteArray line = file.readLine();
        if (line.startsWith("Package:")) {
            package = QString::fromUtf8(line.mid(8)).trimmed();
        } else if (line.startsWith("Status:")) {
            // "want flag state"
            const QStringList words =
                QString::fromUtf8(line.mid(7)).simplified().split(QLatin1Char(' '));
            if (words.size() == 3 && !finished.contains(words.at(2))) {
                result.append({package, words.at(2)});
            }
        }
    }
    return result;
}

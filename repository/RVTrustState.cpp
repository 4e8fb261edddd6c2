// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "repository/RVTrustState.h"

#include "core/RVOwnFolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <cerrno>
#include <sys/stat.h>

namespace
{

constexpr qint64 day = 24 * 60 * 60;
constexpr int maxFile = 1024;
/// Of repositories; more are not looked at for the newest signature.
constexpr int maxFiles = 1000;
const QString suffix = QStringLiteral(".seen");

/// Neither holds a slash, and an id no "@".
QString fileName(const QString &repositoryId, const QString &keyring)
{
    return repositoryId + QLatin1Char('@') + keyring + suffix;
}

QByteArray toText(const RVTrustState::Seen &seen)
{
    return "serial " + QByteArray::number(seen.serial) + "\nsigned "
        + QByteArray::number(seen.signedAt) + "\nlist " + seen.list.toHex() + '\n';
}

std::optional<RVTrustState::Seen> fromText(const QByteArray &text)
{
    static const QRegularExpression form(
        QStringLiteral("\\Aserial ([0-9]+)\nsigned ([0-9]+)\nlist ([0-9a-f]{64})\n\\z"));
    const QRegularExpressionMatch match = form.match(QString::fromLatin1(text));
    RVTrustState::Seen seen;
    bool isSerial = false;
    bool isTime = false;
    seen.serial = match.captured(1).toLongLong(&isSerial);
    seen.signedAt = match.captured(2).toLongLong(&isTime);
    seen.list = QByteArray::fromHex(match.captured(3).toLatin1());
    return isSerial && isTime ? std::optional(seen) : std::nullopt;
}

QString shown(qint64 seconds)
{
    return QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC).toString(Qt::ISODate);
}

} // namespace

RVClock RVClock::now()
{
    return {QDateTime::currentSecsSinceEpoch(), RAVEL_BUILD_TIME};
}

RVTrustState::RVTrustState(const RVPaths &paths, const RVClock &clock)
    : m_folder(paths.stateFolder())
    , m_clock(clock)
{
}

bool RVTrustState::read(const QString &repositoryId, const QString &keyring,
                        std::optional<Seen> *seen) const
{
    seen->reset();
    const QString path = m_folder + QLatin1Char('/') + fileName(repositoryId, keyring);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        // A folder that was never made, or never could be, holds nothing.
        struct stat status = {};
        return ::lstat(QFile::encodeName(path).constData(), &status) != 0
            && (errno == ENOENT || errno == ENOTDIR);
    }
    *seen = fromText(file.read(maxFile));
    return seen->has_value();
}

qint64 RVTrustState::newestSignature() const
{
    qint64 newest = 0;
    const QStringList names =
        QDir(m_folder).entryList({QLatin1Char('*') + suffix}, QDir::Files).mid(0, maxFiles);
    for (const QString &name : names) {
        QFile file(m_folder + QLatin1Char('/') + name);
        if (file.open(QIODevice::ReadOnly)) {
            const std::optional<Seen> seen = fromText(file.read(maxFile));
            newest = qMax(newest, seen ? seen->signedAt : 0);
        }
    }
    return newest;
}

RVTrustFault RVTrustState::judge(const QString &repositoryId, const QString &keyring,
                                 const Seen &list, const QDateTime &validUntil) const
{
    std::optional<Seen> seen;
    if (!read(repositoryId, keyring, &seen)) {
        return {
            RVTrustFault::State,
            QStringLiteral("What is remembered of the repository '%1' cannot be read: '%2'. "
                           "`ravelctl trust reset` forgets it.")
                .arg(repositoryId, m_folder + QLatin1Char('/') + fileName(repositoryId, keyring))};
    }
    if (m_clock.isSet() && list.signedAt > m_clock.system + day) {
        return {RVTrustFault::FutureTime,
                QStringLiteral("The list was signed on %1, but the clock of this device says %2: "
                               "it is probably wrong.")
                    .arg(shown(list.signedAt), shown(m_clock.system))};
    }
    if (seen && list.serial < seen->serial) {
        return {RVTrustFault::OlderList,
                QStringLiteral("The list has the serial %1, but %2 was seen already: the server "
                               "shows an old state.")
                    .arg(list.serial)
                    .arg(seen->serial)};
    }
    if (seen && list.serial == seen->serial && list.list != seen->list) {
        constexpr int digits = 16;
        return {RVTrustFault::OtherList,
                QStringLiteral("Two lists have the serial %1: %2 and, seen before, %3.")
                    .arg(list.serial)
                    .arg(QLatin1String(list.list.toHex().left(digits)),
                         QLatin1String(seen->list.toHex().left(digits)))};
    }
    const qint64 now = qMax(qMax(m_clock.system, m_clock.built), newestSignature());
    if (validUntil.toSecsSinceEpoch() < now) {
        return {RVTrustFault::Expired,
                QStringLiteral("The list was valid until %1, and it is %2 at least; the clock of "
                               "this device says %3. If the list is new, the clock is probably "
                               "wrong.")
                    .arg(shown(validUntil.toSecsSinceEpoch()), shown(now), shown(m_clock.system))};
    }
    return {};
}

bool RVTrustState::remember(const QString &repositoryId, const QString &keyring, const Seen &list,
                            QString *reason)
{
    std::optional<Seen> seen;
    if (!read(repositoryId, keyring, &seen)) {
        *reason = QStringLiteral("what is there cannot be read");
        return false;
    }
    Seen next = list;
    if (seen) {
        next.signedAt = qMax(next.signedAt, seen->signedAt);
        // Another run may have seen a newer one since this one was judged.
        if (seen->serial > next.serial) {
            next.serial = seen->serial;
            next.list = seen->list;
        }
        if (next == *seen) {
            return true;
        }
    }
    const RVOwnFolder folder(m_folder);
    if (folder.isOpen()
        && folder.replaceFile(QFile::encodeName(fileName(repositoryId, keyring)), toText(next))) {
        return true;
    }
    *reason = QStringLiteral("'%1': %2").arg(m_folder, qt_error_string(errno));
    return false;
}

bool RVTrustState::forget(const QString &repositoryId, const QString &keyring, QString *reason)
{
    if (!QFileInfo::exists(m_folder)) {
        return true;
    }
    const RVOwnFolder folder(m_folder);
    if (folder.isOpen() && folder.removeFile(QFile::encodeName(fileName(repositoryId, keyring)))) {
        return true;
    }
    *reason = QStringLiteral("'%1': %2").arg(m_folder, qt_error_string(errno));
    return false;
}

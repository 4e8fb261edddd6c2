// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "install/RVPreflight.h"

#include "install/RVFreeSpace.h"
#include "install/RVInstallerEnvironment.h"
#include "install/RVPackageDatabase.h"

#include <QFile>

#include <cerrno>
#include <sys/statvfs.h>
#include <unistd.h>

namespace
{

/// So many packages are named.
constexpr int mostNamed = 5;
const QString unlockTool = QStringLiteral("fsunlock");

/// Where an installation of that kind writes for certain.
QString changedFolder(RVBatch::Kind kind, const RVPaths &paths)
{
    if (kind == RVBatch::Kind::Packages) {
        return paths.packageDatabase;
    }
    return kind == RVBatch::Kind::Image && paths.isEtcReadOnly() ? paths.writableDir : paths.etcDir;
}

bool isForbidden(const QString &folder)
{
    return ::access(QFile::encodeName(folder).constData(), W_OK) != 0
        && (errno == EACCES || errno == EPERM);
}

bool isReadOnly(const QString &folder)
{
    struct statvfs status = {};
    return ::statvfs(QFile::encodeName(folder).constData(), &status) == 0
        && (status.f_flag & ST_RDONLY) != 0;
}

/// What an installer of that kind runs.
QStringList programs(RVBatch::Kind kind, const QString &installer)
{
    QStringList result{installer};
    if (kind == RVBatch::Kind::Packages) {
        // What dpkg itself cannot do without stands in its own search path.
        result += {QStringLiteral("dpkg"), QStringLiteral("dpkg-deb"), QStringLiteral("tar"),
                   QStringLiteral("rm"), QStringLiteral("sh")};
    }
    return result;
}

QVector<RVFreeSpace::Update> updatesOf(const RVBatch &batch)
{
    QVector<RVFreeSpace::Update> result;
    for (const RVBatch::Item &item : batch.items) {
        result.append({item.entry, !item.installed.isEmpty()});
    }
    return result;
}

} // namespace

RVPreflight::RVPreflight(const RVPaths &paths)
    : m_paths(paths)
    , m_runLock(paths)
{
}

std::optional<RVObstacle> RVPreflight::takeLocks(RVBatch::Kind kind)
{
    const std::optional<RVObstacle> other = otherRun(m_runLock.take());
    return other ? other : lockedDatabase(kind);
}

QVector<RVObstacle> RVPreflight::obstacles(const RVBatch &batch)
{
    QVector<RVObstacle> result = obstacles(batch.kind, batch.installer.program);
    if (batch.isPackages()) {
        QStringList names;
        for (const RVBatch::Item &item : batch.items) {
            names.append(item.name);
        }
        // Whoever holds the lock is at work on what would be called interrupted.
        const bool isLocked = lockedDatabase(batch.kind).has_value();
        if (const auto interrupted = isLocked ? std::nullopt : interruption(names)) {
            result.append(*interrupted);
        }
    }
    if (const auto shortage = RVFreeSpace::shortage(updatesOf(batch), m_paths)) {
        result.append({RVObstacle::Kind::NoSpace, shortage->sentence()});
    }
    return result;
}

QVector<RVObstacle> RVPreflight::obstacles(RVBatch::Kind kind, const QString &installer)
{
    QVector<RVObstacle> result;
    const QString folder = changedFolder(kind, m_paths);
    if (isForbidden(folder)) {
        result.append({RVObstacle::Kind::Rights,
                       RVSentence(QT_TRANSLATE_NOOP("RVSentence",
                                                    "This user may not install updates: '%1' "
                                                    "cannot be changed."),
                                  {folder})});
    }
    const QStringList needed = programs(kind, installer);
    for (const QString &program : needed) {
        if (!program.isEmpty() && !RVInstallerEnvironment::hasProgram(program, m_paths)) {
            result.append({RVObstacle::Kind::MissingProgram,
                           RVSentence(QT_TRANSLATE_NOOP("RVSentence",
                                                        "The program '%1', which installs the "
                                                        "updates, is missing."),
                                      {program})});
        }
    }
    // A system that is locked is unlocked by the installer itself.
    if (kind == RVBatch::Kind::Packages && isReadOnly(folder)
        && !RVInstallerEnvironment::hasProgram(unlockTool, m_paths)) {
        result.append({RVObstacle::Kind::ReadOnly,
                       RVSentence(QT_TRANSLATE_NOOP("RVSentence",
                                                    "'%1' is read-only, and the program '%2', "
                                                    "which unlocks the system, is missing."),
                                  {folder, unlockTool})});
    }
    if (const auto other = otherRun(m_runLock.look())) {
        result.append(*other);
    }
    if (const auto locked = lockedDatabase(kind)) {
        result.append(*locked);
    }
    return result;
}

std::optional<RVObstacle> RVPreflight::interruption(const QStringList &repaired) const
{
    const RVPackageDatabase database(m_paths);
    RVObstacle obstacle{RVObstacle::Kind::Interrupted, {}};
    QStringList states;
    const QVector<RVPackageDatabase::Package> unfinished = database.unfinished();
    for (const RVPackageDatabase::Package &package : unfinished) {
        if (!repaired.contains(package.name)) {
            obstacle.packages.append(package.name);
            states.append(QStringLiteral("%1 is %2").arg(package.name, package.state));
        }
    }
    if (!states.isEmpty()) {
        if (states.size() > mostNamed) {
            states = states.mid(0, mostNamed) + QStringList(QStringLiteral("…"));
        }
        obstacle.sentence =
            RVSentence(QT_TRANSLATE_NOOP("RVSentence",
                                         "An earlier installation of packages was interrupted and "
                                         "has to be repaired first (%1)."),
                       {states.join(QLatin1String(", "))});
    } else if (database.hasJournal()) {
        obstacle.sentence =
            RVSentence(QT_TRANSLATE_NOOP("RVSentence",
                                         "An earlier installation of packages was interrupted and "
                                         "has to be repaired first."));
    } else {
        return std::nullopt;
    }
    return obstacle;
}

std::optional<RVObstacle> RVPreflight::otherRun(RVRunLock::State state) const
{
    if (state != RVRunLock::State::Busy) {
        return std::nullopt;
    }
    const RVLockHolder &holder = m_runLock.holder();
    return RVObstacle{
        RVObstacle::Kind::OtherRun,
        holder.process <= 0
            ? RVSentence(
                QT_TRANSLATE_NOOP("RVSentence", "An earlier installation is still under way."))
            : RVSentence(QT_TRANSLATE_NOOP("RVSentence",
                                           "Another installation is under way: %1 (process %2)."),
                         {holder.program, QString::number(holder.process)})};
}

std::optional<RVObstacle> RVPreflight::lockedDatabase(RVBatch::Kind kind) const
{
    const RVLockHolder holder =
        kind == RVBatch::Kind::Packages ? RVPackageDatabase(m_paths).lockHolder() : RVLockHolder();
    if (!holder.isSet) {
        return std::nullopt;
    }
    return RVObstacle{RVObstacle::Kind::DatabaseLocked, RVPackageDatabase::lockedBy(holder)};
}

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "install/RVKeptRun.h"

#include "core/RVOwnFolder.h"
#include "install/RVKeeper.h"
#include "install/RVRunRecord.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

/// A path is the longest part of it.
constexpr qint64 longestRecord = 16 * 1024;

QStringList recordNames(const QString &folder)
{
    return QDir(folder).entryList({QLatin1Char('*') + RVKeeper::recordSuffix}, QDir::Files,
                                  QDir::Name | QDir::Reversed);
}

/// Without a folder or file being made: whoever only looks leaves no trace.
bool openRecord(const QString &path, QFile *file)
{
    const int handle = ::open(QFile::encodeName(path).constData(),
                              O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    struct stat status = {};
    if (handle < 0) {
        return false;
    }
    if (::fstat(handle, &status) != 0 || !S_ISREG(status.st_mode) || status.st_uid != ::geteuid()) {
        ::close(handle);
        return false;
    }
    return file->open(handle, QIODevice::ReadOnly, QFile::AutoCloseHandle);
}

std::optional<RVKeptRun> readRun(const QString &folder, const QString &name)
{
    QFile file;
    RVRunRecord record;
    if (!openRecord(folder + QLatin1Char('/') + name, &file)) {
        return std::nullopt;
    }
    // Asked first: what is read after the keeper's end is its last word.
    const bool isHeld = ::flock(file.handle(), LOCK_SH | LOCK_NB) != 0;
    if (!RVRunRecord::fromText(file.read(longestRecord), &record)) {
        return std::nullopt;
    }
    RVKeptRun run;
    run.id = name;
    run.started = record.started;
    run.outputFile = record.outputFile;
    run.value = record.head.value;
    switch (record.head.state) {
    case RVRunHead::State::Running:
        run.state = isHeld ? RVKeptRun::State::Running : RVKeptRun::State::Unknown;
        break;
    case RVRunHead::State::Exited:
        run.state = RVKeptRun::State::Exited;
        break;
    case RVRunHead::State::Killed:
        run.state = RVKeptRun::State::Killed;
        break;
    }
    if (!record.head.isStraight) {
        run.seam = qint64((record.head.outputSize - RVRunHead::firstBytes) % RVRunHead::lastBytes);
    }
    return run;
}

} // namespace

std::optional<RVKeptRun> RVKeptRun::last(const RVPaths &paths)
{
    const QString folder = RVKeeper::recordFolder(paths);
    for (const QString &name : recordNames(folder)) {
        std::optional<RVKeptRun> run = readRun(folder, name);
        if (run) {
            return run;
        }
    }
    return std::nullopt;
}

void RVKeptRun::forget(const RVPaths &paths) const
{
    const QString path = RVKeeper::recordFolder(paths);
    const RVOwnFolder folder(path);
    for (const QString &name : recordNames(path)) {
        const std::optional<RVKeptRun> run = readRun(path, name);
        if (run && run->state != State::Running && name <= id) {
            folder.removeFile(QFile::encodeName(name));
        }
    }
}

RVSentence RVKeptRun::sentence() const
{
    const QString start = started.toLocalTime().toString(QStringLiteral("yyyy-MM-dd hh:mm"));
    switch (state) {
    case State::Running:
        return RVSentence(
            QT_TRANSLATE_NOOP("RVSentence", "The installation that was started on %1 still runs."),
            {start});
    case State::Exited:
        return value == 0
            ? RVSentence(QT_TRANSLATE_NOOP("RVSentence",
                                           "The installation that was started on %1 went on "
                                           "without its program, and ended without an error."),
                         {start})
            : RVSentence(QT_TRANSLATE_NOOP("RVSentence",
                                           "The installation that was started on %1 went on "
                                           "without its program, and failed with exit code %2."),
                         {start, QString::number(value)});
    case State::Killed:
        return RVSentence(QT_TRANSLATE_NOOP("RVSentence",
                                            "The installation that was started on %1 went on "
                                            "without its program, and was ended by signal %2."),
                          {start, QString::number(value)});
    case State::Unknown:
        break;
    }
    return RVSentence(QT_TRANSLATE_NOOP("RVSentence",
                                        "The installation that was started on %1 was interrupted. "
                                        "How it ended is not known."),
                      {start});
}

QByteArray RVKeptRun::output(qint64 most) const
{
    QFile file;
    if (!openRecord(outputFile, &file)) {
        return {};
    }
    if (seam < 0) {
        file.seek(qMax<qint64>(0, file.size() - most));
        return file.read(most);
    }
    // Its end goes round behind its beginning.
    file.seek(RVRunHead::firstBytes);
    const QByteArray ring = file.read(RVRunHead::lastBytes);
    return (ring.mid(int(seam)) + ring.left(int(seam))).right(int(most));
}

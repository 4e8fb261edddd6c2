// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/support/LogFile.h"

#include "core/RVLogger.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>

namespace
{

void sendTo(const QString &path)
{
    RVPaths paths;
    paths.rootLog = paths.userLog = path;
    RVLogger::close();
    RVLogger::setPaths(paths);
}

} // namespace

LogFile::LogFile()
{
    sendTo(path());
}

LogFile::~LogFile()
{
    sendToTestFolder();
}

void LogFile::sendToTestFolder()
{
    sendTo(QDir::temp().filePath(QStringLiteral("log-of-the-test")));
}

QString LogFile::path() const
{
    return m_dir.filePath(QStringLiteral("Ravel.log"));
}

QByteArray LogFile::raw() const
{
    QFile file(path());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList LogFile::lines() const
{
    static const QRegularExpression stamp(QStringLiteral("^\\d{6}:\\d{6}: "));
    static const QString separator(54, QLatin1Char('-'));
    QStringList result;
    bool dateFollows = false;
    const QStringList all = QString::fromUtf8(raw()).split(QLatin1Char('\n'));
    for (QString line : all.mid(0, all.size() - 1)) {
        if (line == separator) {
            dateFollows = true;
        } else if (dateFollows) {
            dateFollows = false;
        } else {
            result.append(line.remove(stamp));
        }
    }
    return result;
}

void LogFile::clear()
{
    RVLogger::close();
    QFile::remove(path());
}

int LogFile::levelOf(const QString &line, const std::function<void()> &action)
{
    const int before = RVLogger::m_level;
    int found = -1;
    for (int level = 0; level <= 7 && found < 0; ++level) {
        RVLogger::m_level = level;
        clear();
        action();
        found = contains(line) ? level : -1;
    }
    RVLogger::m_level = before;
    return found;
}

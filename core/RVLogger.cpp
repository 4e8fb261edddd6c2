// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/RVLogger.h"

#include "core/RVText.h"
#include "core/RVUrl.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QVector>

#include <cstdarg>
#include <ctime>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

QString placeIn(const RVPaths &paths)
{
    return ::getuid() == 0 ? paths.rootLog : paths.userLog;
}

QString &logPlace()
{
    static QString place = placeIn({});
    return place;
}

/// Whether only root decides what is in this folder, by its name or through any above it.
bool isRootsAlone(QByteArray folder)
{
    while (true) {
        struct stat info = {};
        if (::lstat(folder.constData(), &info) != 0 || !S_ISDIR(info.st_mode) || info.st_uid != 0
            || (info.st_mode & (S_IWGRP | S_IWOTH)) != 0) {
            return false;
        }
        if (folder == "/") {
            return true;
        }
        folder.truncate(qMax(folder.lastIndexOf('/'), 1));
    }
}

/// The file that the log is in: the place itself, or what an administrator's link leads to, such
/// as a log on another file system. Empty for a link that somebody else may have planted.
QByteArray targetOf(const QString &place)
{
    struct stat info = {};
    if (::lstat(QFile::encodeName(place).constData(), &info) != 0 || !S_ISLNK(info.st_mode)) {
        return QFile::encodeName(place);
    }
    const QFileInfo link(place);
    const QString folder = QFileInfo(link.symLinkTarget()).dir().canonicalPath();
    if (info.st_uid != 0 || folder.isEmpty() || !isRootsAlone(QFile::encodeName(folder))) {
        return {};
    }
    return QFile::encodeName(folder + QLatin1Char('/')
                             + QFileInfo(link.symLinkTarget()).fileName());
}

std::FILE *openAt(const QString &place)
{
    // Anyone may write to /tmp: what was planted there must neither be written through nor be
    // waited for.
    const QByteArray target = targetOf(place);
    if (target.isEmpty()) {
        return nullptr;
    }
    const int fd = ::open(
        target.constData(),
        O_WRONLY | O_APPEND | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC | O_NOCTTY, 0600);
    if (fd < 0) {
        return nullptr;
    }
    struct stat info = {};
    const bool ours = ::fstat(fd, &info) == 0 && S_ISREG(info.st_mode) && info.st_uid == ::geteuid()
        && info.st_nlink == 1;
    std::FILE *stream = ours ? ::fdopen(fd, "a") : nullptr;
    if (!stream) {
        ::close(fd);
    }
    return stream;
}

/// A link at the log's place switches logging off, and nobody would notice.
void tellOfPlanted(const QString &place)
{
    static QString told;
    struct stat info = {};
    const QByteArray name = QFile::encodeName(place);
    if (told == place || ::lstat(name.constData(), &info) != 0) {
        return;
    }
    if (S_ISLNK(info.st_mode) || (S_ISREG(info.st_mode) && info.st_nlink > 1)) {
        told = place;
        std::fprintf(stderr, "Nothing is logged: %s is a link.\n",
                     RVLogger::oneLine(place).constData());
    }
}

void writeTime(std::FILE *stream, const char *format)
{
    const std::time_t now = std::time(nullptr);
    std::tm local = {};
    ::localtime_r(&now, &local);
    char text[256];
    text[std::strftime(text, sizeof text, format, &local)] = '\0';
    std::fputs(text, stream);
}

void writeEntry(const char *format, std::va_list arguments)
{
    if (!RVLogger::m_stream) {
        RVLogger::m_stream = RVLogger::open();
    }
    std::FILE *stream = RVLogger::m_stream;
    if (!stream) {
        return;
    }
    writeTime(stream, "%y%m%d:%H%M%S");
    std::fputs(": ", stream);
    std::vfprintf(stream, format, arguments);
    std::fputc('\n', stream);
    std::fflush(stream);
}

} // namespace

std::FILE *RVLogger::m_stream = nullptr;
int RVLogger::m_level = 7;

RVLogger::RVLogger(QObject *parent)
    : QObject(parent)
{
    if (!m_stream) {
        m_stream = open();
    }
}

void RVLogger::log(int level, const char *format, ...)
{
    if (level > m_level) {
        return;
    }
    std::va_list arguments;
    va_start(arguments, format);
    writeEntry(format, arguments);
    va_end(arguments);
}

void RVLogger::log(const char *format, ...)
{
    if (m_level <= 5) {
        return;
    }
    std::va_list arguments;
    va_start(arguments, format);
    writeEntry(format, arguments);
    va_end(arguments);
}

std::FILE *RVLogger::open()
{
    std::FILE *stream = openAt(logPlace());
    if (stream) {
        std::fprintf(stream, "%s\n", std::string(54, '-').c_str());
        writeTime(stream, "%c\n");
    } else {
        tellOfPlanted(logPlace());
    }
    return stream;
}

void RVLogger::close()
{
    if (m_stream) {
        std::fclose(m_stream);
        m_stream = nullptr;
    }
}

void RVLogger::setPaths(const RVPaths &paths)
{
    const QString place = placeIn(paths);
    if (place != logPlace()) {
        close();
        logPlace() = place;
    }
}

QByteArray RVLogger::oneLine(const QString &text)
{
    QVector<uint> characters = RVText::shortened(text, longestText).toUcs4();
    for (uint &character : characters) {
        character = RVText::isVisible(character) ? character : '?';
    }
    return QString::fromUcs4(characters.constData(), characters.size()).toUtf8();
}

QByteArray RVLogger::oneLine(const QUrl &url)
{
    return oneLine(RVUrl::shown(url));
}

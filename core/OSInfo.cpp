// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/OSInfo.h"

#include "core/RVInstalledPackages.h"
#include "core/RVLogger.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QProcess>

#include <fcntl.h>
#include <set>
#include <sys/stat.h>

namespace
{

constexpr int toolTimeoutMs = 1000;
/// How long a killed tool may take to be gone before it is left to the event loop.
constexpr int killTimeoutMs = 100;
constexpr int maxToolOutput = 64 * 1024;
constexpr int maxFileSize = 1024 * 1024;

void removeTrailingLineEnds(QString &text)
{
    while (text.endsWith(QLatin1Char('\n')) || text.endsWith(QLatin1Char('\r'))) {
        text.chop(1);
    }
}

/// Reads a regular file of at most maxFileSize; anything else cannot be opened, and is never waited
/// for.
bool readFile(const QString &path, QByteArray *contents)
{
    const int fd =
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
    QFile file;
    if (fd < 0 || !file.open(fd, QIODevice::ReadOnly, QFile::AutoCloseHandle)) {
        return false;
    }
    struct stat info = {};
    if (::fstat(fd, &info) != 0 || !S_ISREG(info.st_mode)) {
        return false;
    }
    *contents = file.read(maxFileSize + 1);
    return contents->size() <= maxFileSize && file.error() == QFileDevice::NoError;
}

QString decoded(const QByteArray &bytes)
{
    QString text = QString::fromUtf8(bytes);
    removeTrailingLineEnds(text);
    return text;
}

QString runHardwareTool(const QString &path)
{
    auto tool = std::make_unique<QProcess>();
    QElapsedTimer timer;
    timer.start();
    tool->start(path, QStringList{QStringLiteral("--hw")}, QIODevice::ReadWrite);
    const auto timeLeft = [&timer] {
        return static_cast<int>(toolTimeoutMs - timer.elapsed());
    };
    while (timeLeft() > 0 && tool->bytesAvailable() < maxToolOutput
           && tool->waitForReadyRead(qMax(1, timeLeft()))) { }
    QByteArray output = tool->read(maxToolOutput);
    tool->kill();
    if (tool->state() != QProcess::NotRunning && !tool->waitForFinished(killTimeoutMs)) {
        // Destroying a process waits for it; one that not even a kill ends would hold up the user.
        QProcess *stuck = tool.release();
        QObject::connect(stuck, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished),
                         stuck, &QObject::deleteLater);
    }
    const int end = output.indexOf('\0');
    if (end >= 0) {
        output.truncate(end);
    }
    QString text = QString::fromLatin1(output);
    removeTrailingLineEnds(text);
    return text;
}

} // namespace

OSInfo::OSInfo(QObject *parent, const RVPaths &paths)
    : OSInfoBaseClass(parent)
    , m_paths(paths)
    , m_arch(deviceArchitecture())
{
    if (!QFileInfo(m_paths.imageId).isReadable()) {
        throw ImageIdUnreadable;
    }
    readThinClientModel();
    OSInfo::refresh();
}

OSInfo::~OSInfo() = default;

VersionString OSInfo::baseOSName() const
{
    return m_baseOS;
}

QList<VersionString> OSInfo::servicePackList() const
{
    return m_servicePacks;
}

QString OSInfo::versionInstalled(const QString &packageName) const
{
    const RVInstalledPackages::Package package = m_packages->package(packageName);
    return package.state == RVInstalledPackages::State::Installed ? package.version : QString();
}

bool OSInfo::isNotConfigured(const QString &packageName) const
{
    return m_packages->package(packageName).state == RVInstalledPackages::State::NotConfigured;
}

int OSInfo::installedPackageCount() const
{
    return m_packages->count();
}

QString OSInfo::architecture() const
{
    return m_arch;
}

QString OSInfo::thinClient() const
{
    return m_thinClientModel;
}

void OSInfo::refresh()
{
    readImageId();
    m_servicePacks = servicePacks(m_paths);
    RVLogger logger;
    logger.log(5, "Service Pack List:");
    for (const VersionString &servicePack : qAsConst(m_servicePacks)) {
        logger.log(5, "    -> %s", qUtf8Printable(servicePack.toString()));
    }
    // Two of them at a time take twice the memory.
    m_packages.reset();
    m_packages = std::make_unique<RVInstalledPackages>(m_paths, m_arch);
}

void OSInfo::readThinClientModel()
{
    if (QFileInfo(m_paths.hardwareTool).isExecutable()) {
        m_thinClientModel = runHardwareTool(m_paths.hardwareTool);
    }
}

void OSInfo::readImageId()
{
    QByteArray contents;
    if (readFile(m_paths.imageId, &contents)) {
        m_baseOS = VersionString(decoded(contents));
    }
    RVLogger().log(5, "Base OS: %s", qUtf8Printable(m_baseOS.toString()));
}

QList<VersionString> OSInfo::servicePacks(const RVPaths &paths)
{
    QList<VersionString> result;
    std::set<QString> known;
    const QDir dir(paths.servicePackDir);
    const QStringList names = dir.entryList(
        QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Unsorted);
    for (const QString &name : names) {
        QByteArray contents;
        if (!readFile(paths.servicePackDir + QLatin1Char('/') + name, &contents)) {
            continue;
        }
        QList<QByteArray> lines = contents.split('\n');
        // What follows the last line feed is a line only when there is something.
        if (lines.constLast().isEmpty()) {
            lines.removeLast();
        }
        for (const QByteArray &line : qAsConst(lines)) {
            const QString text = decoded(line);
            if (known.insert(text).second) {
                result.append(VersionString(text));
            }
        }
    }
    return result;
}

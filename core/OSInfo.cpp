// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/OSInfo.h"

#include "core/AptErrors.h"
#include "core/RVLogger.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QSet>

#include <apt-pkg/cmndline.h>
#include <apt-pkg/configuration.h>
#include <apt-pkg/init.h>
#include <apt-pkg/mmap.h>
#include <apt-pkg/pkgcache.h>
#include <apt-pkg/pkgcachegen.h>
#include <apt-pkg/pkgsystem.h>
#include <apt-pkg/progress.h>

#include <fcntl.h>
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

/// Sets the package library up, and points it at `status` or, when that is empty, at its own
/// database.
bool usePackageDatabase(const QString &status)
{
    static bool configured = false;
    static std::string ownStatus;
    if (!configured) {
        CommandLine commandLine(nullptr, _config);
        const char *arguments[] = {"OSInfo", nullptr};
        if (!pkgInitConfig(*_config) || !commandLine.Parse(1, arguments)
            || !pkgInitSystem(*_config, _system)) {
            return false;
        }
        ownStatus = _config->FindFile("Dir::State::status");
        configured = true;
    }
    // The library keeps the database that it was set up for until it is set up again.
    _config->Set("Dir::State::status",
                 status.isEmpty() ? ownStatus : QFile::encodeName(status).toStdString());
    return pkgInitSystem(*_config, _system);
}

} // namespace

struct OSInfo::PackageCache {
    explicit PackageCache(std::unique_ptr<MMap> cacheMap)
        : map(std::move(cacheMap))
        , cache(map.get())
    {
    }

    std::unique_ptr<MMap> map;
    pkgCache cache;
};

OSInfo::OSInfo(QObject *parent, const RVPaths &paths)
    : OSInfoBaseClass(parent)
    , m_paths(paths)
    , m_arch(QStringLiteral("armel"))
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
    if (!m_packages) {
        return QString();
    }
    const AptErrors errors;
    const std::string name = packageName.toLatin1().toStdString();
    // Below another root the device's packages are foreign to the library, which looks among the
    // native ones; packages for all architectures count as native.
    pkgCache &cache = m_packages->cache;
    for (const pkgCache::PkgIterator &package :
         {cache.FindPkg(name, m_arch.toStdString()), cache.FindPkg(name)}) {
        if (!package.end() && !package.CurrentVer().end()) {
            return QString::fromUtf8(package.CurrentVer().VerStr());
        }
    }
    return QString();
}

int OSInfo::installedPackageCount() const
{
    if (!m_packages) {
        return -1;
    }
    const AptErrors errors;
    int count = 0;
    for (pkgCache::PkgIterator package = m_packages->cache.PkgBegin(); !package.end(); ++package) {
        count += package.CurrentVer().end() ? 0 : 1;
    }
    return count;
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
    readServicePacks();
    readPackageCache();
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

void OSInfo::readServicePacks()
{
    m_servicePacks.clear();
    QSet<QString> known;
    const QDir dir(m_paths.servicePackDir);
    const QStringList names = dir.entryList(
        QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Unsorted);
    for (const QString &name : names) {
        QByteArray contents;
        if (!readFile(m_paths.servicePackDir + QLatin1Char('/') + name, &contents)) {
            continue;
        }
        QList<QByteArray> lines = contents.split('\n');
        // What follows the last line feed is a line only when there is something.
        if (lines.constLast().isEmpty()) {
            lines.removeLast();
        }
        for (const QByteArray &line : qAsConst(lines)) {
            const QString text = decoded(line);
            if (!known.contains(text)) {
                known.insert(text);
                m_servicePacks.append(VersionString(text));
            }
        }
    }
    RVLogger logger;
    logger.log(5, "Service Pack List:");
    for (const VersionString &servicePack : qAsConst(m_servicePacks)) {
        logger.log(5, "    -> %s", qUtf8Printable(servicePack.toString()));
    }
}

void OSInfo::readPackageCache()
{
    m_packages.reset();
    const AptErrors errors;
    if (!usePackageDatabase(m_paths.packageStatus)) {
        return;
    }
    // Only what is installed is asked for: the cache of the package sources would take a hundred
    // times as long and answer the same.
    OpProgress silentProgress;
    DynamicMMap *made = nullptr;
    const bool good = pkgCacheGenerator::MakeOnlyStatusCache(&silentProgress, &made);
    std::unique_ptr<MMap> map(made);
    if (!good || !map) {
        return;
    }
    m_packages = std::make_unique<PackageCache>(std::move(map));
    if (errors.any()) {
        m_packages.reset();
    }
}

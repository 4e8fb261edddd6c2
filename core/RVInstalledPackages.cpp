// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/RVInstalledPackages.h"

#include "core/AptErrors.h"

#include <QFile>
#include <QFileInfo>

#include <apt-pkg/cmndline.h>
#include <apt-pkg/configuration.h>
#include <apt-pkg/init.h>
#include <apt-pkg/mmap.h>
#include <apt-pkg/pkgcache.h>
#include <apt-pkg/pkgcachegen.h>
#include <apt-pkg/pkgsystem.h>
#include <apt-pkg/progress.h>

namespace
{

RVInstalledPackages::State stateOf(unsigned char current)
{
    switch (current) {
    case pkgCache::State::NotInstalled:
    case pkgCache::State::ConfigFiles:
        return RVInstalledPackages::State::Absent;
    case pkgCache::State::Installed:
        return RVInstalledPackages::State::Installed;
    default:
        return RVInstalledPackages::State::NotConfigured;
    }
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

struct RVInstalledPackages::Cache {
    explicit Cache(std::unique_ptr<MMap> cacheMap)
        : map(std::move(cacheMap))
        , cache(map.get())
    {
    }

    std::unique_ptr<MMap> map;
    pkgCache cache;
};

RVInstalledPackages::RVInstalledPackages(const RVPaths &paths, const QString &architecture)
    : m_architecture(architecture)
{
    const AptErrors errors;
    if (!usePackageDatabase(paths.packageStatus)) {
        return;
    }
    // To the library, a database that is not there is an empty one.
    if (!QFileInfo(QFile::decodeName(_config->FindFile("Dir::State::status").c_str()))
             .isReadable()) {
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
    m_cache = std::make_unique<Cache>(std::move(map));
    if (errors.any()) {
        m_cache.reset();
    }
}

RVInstalledPackages::~RVInstalledPackages() = default;

RVInstalledPackages::Package RVInstalledPackages::package(const QString &name) const
{
    Package result;
    if (!m_cache) {
        return result;
    }
    const AptErrors errors;
    const std::string key = name.toLatin1().toStdString();
    // Below another root the device's packages are foreign to the library, which looks among the
    // native ones; packages for all architectures count as native.
    pkgCache &cache = m_cache->cache;
    for (const pkgCache::PkgIterator &package :
         {cache.FindPkg(key, m_architecture.toStdString()), cache.FindPkg(key)}) {
        if (!package.end() && !package.CurrentVer().end()) {
            result.state = stateOf(package->CurrentState);
            result.version = QString::fromUtf8(package.CurrentVer().VerStr());
            break;
        }
    }
    return result;
}

int RVInstalledPackages::count() const
{
    if (!m_cache) {
        return -1;
    }
    const AptErrors errors;
    int count = 0;
    for (pkgCache::PkgIterator package = m_cache->cache.PkgBegin(); !package.end(); ++package) {
        count += package.CurrentVer().end() ? 0 : 1;
    }
    return count;
}

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "repository/RVEligibility.h"

#include "core/RVPattern.h"

#include <algorithm>

namespace
{

const QString &all()
{
    static const QString word = QStringLiteral("all");
    return word;
}

// Only this list may be empty and hold patterns; the two exact ones below say "all" for any system.
bool fitsBaseRelease(const QStringList &releases, const QString &installed)
{
    return releases.isEmpty() || releases.contains(all())
        || std::any_of(releases.begin(), releases.end(), [&](const QString &release) {
               return RVPattern::exactMatch(release, installed);
           });
}

bool holds(const QStringList &list, const QString &installed)
{
    return list.contains(all()) || list.contains(installed);
}

bool isInstalled(const QString &name, const QList<VersionString> &servicePacks)
{
    return std::any_of(servicePacks.rbegin(), servicePacks.rend(), [&](const VersionString &pack) {
        return pack.toString() == name;
    });
}

} // namespace

RVEligibility eligibility(const RVData &entry, const OSInfoBaseClass &system, bool filterSps)
{
    const auto &descriptor = entry.descriptor();
    if (!descriptor) {
        return RVEligibility::NoDescriptor;
    }
    if (!fitsBaseRelease(descriptor->baseReleases(), system.baseOSName().toString())) {
        return RVEligibility::OtherBaseRelease;
    }
    if (!holds(descriptor->architectureList(), system.architecture())) {
        return RVEligibility::OtherArchitecture;
    }
    if (!holds(descriptor->thinClientList(), system.thinClient())) {
        return RVEligibility::OtherThinClient;
    }
    if (filterSps && isInstalled(descriptor->name(QString()), system.servicePackList())) {
        return RVEligibility::ServicePackInstalled;
    }
    return RVEligibility::Offered;
}

QList<RVData> offeredEntries(const QList<RVData> &entries, const OSInfoBaseClass &system,
                             bool filterSps)
{
    QList<RVData> offered;
    for (const RVData &entry : entries) {
        if (eligibility(entry, system, filterSps) == RVEligibility::Offered) {
            offered.append(entry);
        }
    }
    return offered;
}

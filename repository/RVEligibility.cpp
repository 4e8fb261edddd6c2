// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "repository/RVEligibility.h"

#include "core/RVLogger.h"
#include "core/RVPattern.h"
#include "repository/RVTrust.h"

#include <algorithm>

namespace
{

/// Characters of all patterns that are tried for one entry. One pattern takes up to a millisecond
/// or so, and a descriptor has room for 40,000 of them.
constexpr int maxPatternText = 16 * 1024;

const QString &all()
{
    static const QString word = QStringLiteral("all");
    return word;
}

// Only this list may be empty and hold patterns; the two exact ones below say "all" for any system.
bool fitsBaseRelease(const QStringList &releases, const QString &installed, const QUrl &url)
{
    if (releases.isEmpty() || releases.contains(all())) {
        return true;
    }
    int length = 0;
    for (const QString &release : releases) {
        // Beyond its own bound a pattern is not even looked at.
        length += 1 + qMin(release.size(), RVPattern::maxLength);
        if (length > maxPatternText) {
            RVLogger().log(4, "Too many base releases: %s", RVLogger::oneLine(url).constData());
            return false;
        }
        if (RVPattern::exactMatch(release, installed)) {
            return true;
        }
    }
    return false;
}

bool holds(const QStringList &list, const QString &installed)
{
    return list.contains(all()) || list.contains(installed);
}

/// What a pack is called in the files of the system: its English name, whatever language is running
/// (ADR 46), and any other only where there is none.
bool isInstalled(const DescriptorGeneric &descriptor, const QList<VersionString> &servicePacks)
{
    const QString english = descriptor.name(QStringLiteral("en"));
    const QString name = english.isEmpty() ? descriptor.name(QString()) : english;
    return std::any_of(servicePacks.rbegin(), servicePacks.rend(), [&](const VersionString &pack) {
        return pack.toString() == name;
    });
}

RVEligibility eligibilityByFields(const RVData &entry, const OSInfoBaseClass &system,
                                  bool filterSps)
{
    const auto &descriptor = entry.descriptor();
    if (!fitsBaseRelease(descriptor->baseReleases(), system.baseOSName().toString(),
                         entry.descriptorUrl())) {
        return RVEligibility::OtherBaseRelease;
    }
    if (!holds(descriptor->architectureList(), system.architecture())) {
        return RVEligibility::OtherArchitecture;
    }
    if (!holds(descriptor->thinClientList(), system.thinClient())) {
        return RVEligibility::OtherThinClient;
    }
    if (filterSps && isInstalled(*descriptor, system.servicePackList())) {
        return RVEligibility::ServicePackInstalled;
    }
    return RVEligibility::Offered;
}

} // namespace

RVEligibility eligibility(const RVData &entry, const OSInfoBaseClass &system, bool filterSps)
{
    const auto &descriptor = entry.descriptor();
    if (!descriptor) {
        return RVEligibility::NoDescriptor;
    }
    if (entry.trust && entry.trust->isRefused(entry.descriptorUrl())) {
        return RVEligibility::OtherDescriptor;
    }
    const RVEligibility reason = eligibilityByFields(entry, system, filterSps);
    // Fields that were never filled fail one of the tests; that is not what is wrong.
    return reason == RVEligibility::Offered || descriptor->isUnderstood()
        ? reason
        : RVEligibility::UnreadableDescriptor;
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

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "repository/RVExplain.h"

#include "archive/ArchiveGeneric.h"
#include "core/RVOrigin.h"
#include "repository/RVFilter.h"
#include "repository/RVRepository.h"
#include "repository/RVTrust.h"

#include <QMap>

namespace
{

/// Of an archive that a filter picks.
RVEligibility reasonWithoutEntry(const RVRepository &repository, const QUrl &archive)
{
    if (!mayLeadTo(repository.url(), archive)) {
        return RVEligibility::ForeignLink;
    }
    const bool isListed = !repository.trust() || repository.trust()->isListed(archive);
    return isListed ? RVEligibility::NoDescriptor : RVEligibility::NotListed;
}

} // namespace

QList<RVVerdict> explain(const RVRepository &repository, const OSInfoBaseClass &system,
                         bool filterSps)
{
    // Ordered: addresses that share one hash would make it quadratic.
    QMap<QUrl, RVVerdict> byArchive;
    const QList<RVData> &entries = repository.entries();
    for (int i = 0; i < entries.size(); ++i) {
        const RVVerdict verdict{entries.at(i).archiveUrl(),
                                eligibility(entries.at(i), system, filterSps), i};
        const auto known = byArchive.find(verdict.archive);
        if (known == byArchive.end()) {
            byArchive.insert(verdict.archive, verdict);
        } else if (known->reason != RVEligibility::Offered
                   && verdict.reason == RVEligibility::Offered) {
            *known = verdict;
        }
    }

    QList<RVVerdict> verdicts;
    for (const XUrlInfo &item : repository.listing()) {
        const QUrl url = RVFilter::urlOf(item);
        const auto known = byArchive.find(url);
        if (known != byArchive.end()) {
            verdicts.append(*known);
            // A page may link the same file twice.
            byArchive.erase(known);
        } else if (repository.selects(item)) {
            verdicts.append({url, reasonWithoutEntry(repository, url), -1});
        } else if (!item.isDir() && ArchiveGeneric::isHandled(url)) {
            verdicts.append({url, RVEligibility::NoFilter, -1});
        }
    }
    return verdicts;
}

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
// Pairing archives with descriptors: one walk against the nested scan that defines the result.
#include "repository/RVFilter.h"

#include "bench/Bench.h"

namespace
{

QList<XUrlInfo> listing(int pairs)
{
    QList<XUrlInfo> entries;
    for (const char *suffix : {"deb", "xml"}) {
        for (int i = 0; i < pairs; ++i) {
            XUrlInfo info;
            info.setName(
                QStringLiteral("file:///r/package_%1.%2").arg(i).arg(QLatin1String(suffix)));
            entries.append(info);
        }
    }
    return entries;
}

int nestedScan(const RVFilter &filter, const QList<XUrlInfo> &entries, const QRegExp &archive,
               const QRegExp &descriptor)
{
    int pairs = 0;
    for (const XUrlInfo &candidate : entries) {
        if (archive.indexIn(candidate.name()) < 0) {
            continue;
        }
        const QString core = filter.corename(candidate.name(), archive);
        for (const XUrlInfo &other : entries) {
            if (descriptor.indexIn(other.name()) >= 0
                && filter.corename(other.name(), descriptor) == core) {
                ++pairs;
                break;
            }
        }
    }
    return pairs;
}

} // namespace

int main()
{
    const QRegExp archive(QStringLiteral("\\.deb$"));
    const QRegExp descriptor(QStringLiteral("\\.xml$"));
    const RVFilter filter(archive, descriptor);
    const QList<XUrlInfo> entries = listing(1500);
    QList<RVData> found;
    const double ours = bestOf(3, [&] {
        filter.filterList(entries, found);
    });
    int pairs = 0;
    const double peer = bestOf(1, [&] {
        pairs = nestedScan(filter, entries, archive, descriptor);
    });
    if (found.size() != 1500 || pairs != 1500) {
        std::printf("FAIL filter: %d and %d pairs\n", static_cast<int>(found.size()), pairs);
        return 1;
    }
    const QList<XUrlInfo> twice = listing(3000);
    const double doubled = bestOf(3, [&] {
        filter.filterList(twice, found);
    });
    const bool linear = report("pairing 3,000 archives, twice as many", doubled,
                               "three times the half", ours * 3, 1.0);
    return report("pairing 1,500 archives", ours, "nested scan", peer, 5.0) && linear ? 0 : 1;
}

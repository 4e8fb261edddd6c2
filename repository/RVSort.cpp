// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "repository/RVSort.h"

#include <algorithm>
#include <vector>

namespace
{

/// What an entry is ordered by, asked of its descriptor once.
struct Key {
    int index;
    bool hasDescriptor;
    VersionString version;
    QString name;
};

// Entries without a descriptor go last.
bool isNewer(const Key &a, const Key &b)
{
    if (!a.hasDescriptor || !b.hasDescriptor) {
        return a.hasDescriptor && !b.hasDescriptor;
    }
    return a.version.compare(b.version, Qt::CaseSensitive) > 0;
}

bool isBeforeByName(const Key &a, const Key &b)
{
    if (a.hasDescriptor && b.hasDescriptor && a.name != b.name) {
        return a.name < b.name;
    }
    return isNewer(a, b);
}

} // namespace

void sortEntries(QList<RVData> &entries, SortKey key)
{
    if (key != SortByVersion && key != SortByName) {
        return;
    }
    std::vector<Key> keys;
    keys.reserve(static_cast<size_t>(entries.size()));
    for (int i = 0; i < entries.size(); ++i) {
        const auto &descriptor = qAsConst(entries)[i].descriptor();
        keys.push_back(descriptor ? Key{i, true, descriptor->version(), descriptor->name(QString())}
                                  : Key{i, false, {}, {}});
    }
    std::stable_sort(keys.begin(), keys.end(), key == SortByVersion ? isNewer : isBeforeByName);

    QList<RVData> sorted;
    sorted.reserve(entries.size());
    for (const Key &next : keys) {
        sorted.append(qAsConst(entries)[next.index]);
    }
    entries = sorted;
}

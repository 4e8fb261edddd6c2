// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "install/RVBatch.h"

#include "core/OSInfoBaseClass.h"
#include "core/RVSum.h"
#include "descriptor/DataXML.h"
#include "descriptor/DescriptorGeneric.h"

#include <QFileInfo>

#include <algorithm>

namespace
{

RVBatch::Kind kindOf(const RVData &entry)
{
    const auto &archive = entry.archive();
    if (!archive || !archive->urlIsHandled()) {
        return RVBatch::Kind::Unknown;
    }
    if (!archive->useExtract()) {
        return RVBatch::Kind::Image;
    }
    const QString suffix = QFileInfo(entry.archiveUrl().path()).suffix();
    return suffix.compare(QLatin1String("deb"), Qt::CaseInsensitive) == 0
        ? RVBatch::Kind::Packages
        : RVBatch::Kind::ServicePacks;
}

RVBatch::Item itemOf(const RVData &entry, const OSInfoBaseClass *system)
{
    RVBatch::Item item{entry, {}, {}, {}, true};
    if (const auto &descriptor = entry.descriptor()) {
        const QString english = descriptor->name(QStringLiteral("en"));
        item.name = DataXML::plainText(english.isEmpty() ? descriptor->name({}) : english);
        item.version = DataXML::plainText(descriptor->version().toString());
        item.installed = system ? system->versionInstalled(english) : QString();
    }
    return item;
}

} // namespace

RVBatch RVBatch::of(const QList<RVData> &entries, const OSInfoBaseClass *system)
{
    RVBatch batch;
    for (const RVData &entry : entries) {
        Item item = itemOf(entry, system);
        const Kind kind = kindOf(entry);
        if (batch.items.isEmpty()) {
            batch.kind = kind;
            if (entry.archive()) {
                batch.installer = entry.archive()->installCommand();
            }
        } else {
            item.isReached = kind == batch.kind && kind == Kind::Packages;
        }
        batch.items.append(item);
    }
    if (batch.kind != Kind::Packages && batch.kind != Kind::ServicePacks) {
        return batch;
    }
    for (const Item &item : qAsConst(batch.items)) {
        const bool isKnown = std::any_of(batch.downloads.cbegin(), batch.downloads.cend(),
                                         [&item](const RVData &other) {
                                             return other.archiveUrl() == item.entry.archiveUrl();
                                         });
        if (!item.isReached || isKnown) {
            continue;
        }
        batch.downloads.append(item.entry);
        const qint64 size = item.entry.descriptor() ? item.entry.descriptor()->size() : -1;
        batch.downloadSize =
            size < 0 || batch.downloadSize < 0 ? -1 : saturatingSum(batch.downloadSize, size);
    }
    return batch;
}

QList<RVData> RVBatch::entries() const
{
    QList<RVData> result;
    for (const Item &item : items) {
        result.append(item.entry);
    }
    return result;
}

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
        const Kind kind = kindOf(entry);
        Item item = itemOf(entry, system);
        if (batch.items.isEmpty()) {
            batch.kind = kind;
        } else {
            item.isReached =
                kind == batch.kind && (kind == Kind::Packages || kind == Kind::ServicePacks);
        }
        batch.items.append(item);
    }
    if (batch.items.isEmpty()) {
        return batch;
    }
    if (batch.isPackages() || batch.isServicePacks()) {
        batch.addDownloads();
    }
    if (const auto &first = batch.items.first().entry.archive()) {
        batch.installer = batch.isServicePacks() && batch.downloads.size() > 1
            ? first->installAllCommand()
            : first->installCommand();
    }
    return batch;
}

void RVBatch::addDownloads()
{
    for (const Item &item : qAsConst(items)) {
        if (!item.isReached || downloadOf(item.entry) >= 0) {
            continue;
        }
        downloads.append(item.entry);
        const qint64 size = item.entry.descriptor() ? item.entry.descriptor()->size() : -1;
        downloadSize = size < 0 || downloadSize < 0 ? -1 : saturatingSum(downloadSize, size);
    }
}

int RVBatch::downloadOf(const RVData &entry) const
{
    const auto found =
        std::find_if(downloads.cbegin(), downloads.cend(), [&entry](const RVData &other) {
            return other.archiveUrl() == entry.archiveUrl();
        });
    return found == downloads.cend() ? -1 : static_cast<int>(found - downloads.cbegin());
}

QList<RVData> RVBatch::entries() const
{
    QList<RVData> result;
    for (const Item &item : items) {
        result.append(item.entry);
    }
    return result;
}

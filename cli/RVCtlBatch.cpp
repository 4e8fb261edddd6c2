// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/RVCtlBatch.h"

#include "cli/RVCtlTrust.h"
#include "core/RVSum.h"
#include "core/RVUrl.h"
#include "install/RVInstallProc.h"
#include "repository/RVRepository.h"

#include <QJsonArray>

namespace
{

bool isPackage(const RVData &data)
{
    return data.archiveUrl().path().endsWith(QLatin1String(".deb"), Qt::CaseInsensitive);
}

} // namespace

RVCtlBatch RVCtlBatch::of(const RVCtlOffers &section, const QVector<RVCtlOffers::Entry> &chosen)
{
    RVCtlBatch batch;
    batch.updates = chosen;
    batch.trust = RVCtlTrust::toJson(*section.section().repository);
    for (const RVCtlOffers::Entry &entry : chosen) {
        batch.entries.append(section.data(entry));
    }
    if (batch.entries.isEmpty()) {
        return batch;
    }
    batch.downloads = RVInstallProc::downloads(batch.entries);
    for (const RVData &data : qAsConst(batch.downloads)) {
        const qint64 size = data.descriptor()->size();
        batch.downloadSize =
            size < 0 || batch.downloadSize < 0 ? -1 : saturatingSum(batch.downloadSize, size);
    }
    ArchiveGeneric &first = *batch.entries.first().archive();
    const RVAccess &access = section.section().repository->access();
    if (access.hasProxy()) {
        first.setProxy(access.proxyHost, access.proxyPort);
    }
    batch.installer = first.installCommand();
    return batch;
}

bool RVCtlBatch::isImage() const
{
    return !entries.isEmpty() && entries.first().archive()->urlIsHandled()
        && !entries.first().archive()->useExtract();
}

bool RVCtlBatch::isPackages() const
{
    return !entries.isEmpty() && isPackage(entries.first());
}

bool RVCtlBatch::isReached(int index) const
{
    return index == 0 || (isPackages() && isPackage(entries.at(index)));
}

QStringList RVCtlBatch::installerArguments() const
{
    QStringList result;
    for (QString argument : installer.arguments) {
        result.append(
            argument.replace(QLatin1String("%1"), QLatin1String("<directory of the archive>")));
    }
    return result;
}

QJsonObject RVCtlBatch::toJson() const
{
    QJsonArray updateObjects;
    for (const RVCtlOffers::Entry &entry : updates) {
        updateObjects.append(entry.toJson());
    }
    QJsonArray downloadObjects;
    for (const RVData &data : downloads) {
        const qint64 size = data.descriptor()->size();
        downloadObjects.append(QJsonObject{
            {QStringLiteral("url"), RVUrl::shown(data.archiveUrl())},
            {QStringLiteral("size"), size < 0 ? QJsonValue() : QJsonValue(size)},
        });
    }
    return {
        {QStringLiteral("trust"), trust},
        {QStringLiteral("updates"), updateObjects},
        {QStringLiteral("downloads"), downloadObjects},
        {QStringLiteral("downloadSize"),
         downloadSize < 0 ? QJsonValue() : QJsonValue(downloadSize)},
    };
}

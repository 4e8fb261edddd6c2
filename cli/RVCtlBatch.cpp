// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/RVCtlBatch.h"

#include "cli/RVCtlTrust.h"
#include "core/RVUrl.h"
#include "repository/RVRepository.h"

#include <QJsonArray>

RVCtlBatch RVCtlBatch::of(const RVCtlOffers &section, const QVector<RVCtlOffers::Entry> &chosen,
                          const OSInfoBaseClass &system)
{
    QList<RVData> entries;
    for (const RVCtlOffers::Entry &entry : chosen) {
        entries.append(section.data(entry));
    }
    const RVRepository &repository = *section.section().repository;
    const RVAccess &access = repository.access();
    if (!entries.isEmpty() && access.hasProxy()) {
        entries.first().archive()->setProxy(access.proxyHost, access.proxyPort);
    }
    RVCtlBatch batch;
    static_cast<RVBatch &>(batch) = RVBatch::of(entries, &system);
    batch.updates = chosen;
    batch.trust = RVCtlTrust::toJson(repository);
    return batch;
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

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "repository/RVRepDesc.h"

#include "descriptor/DataXML.h"

RVRepDesc::RVRepDesc(QObject *parent)
    : QObject(parent)
{
}

RVRepDesc::~RVRepDesc() = default;

void RVRepDesc::parse(QDomElement &repository)
{
    const DataXML xml;
    xml.elementsToLocaleString(repository, QStringLiteral("title"), &title);
    xml.elementsToLocaleString(repository, QStringLiteral("description"), &description);
    xml.elementsToLocaleString(repository, QStringLiteral("uri_description"), &uriDescription);
    xml.elementsToQString(repository, QStringLiteral("settings_key"), &settingsKey);
    xml.elementsToQString(repository, QStringLiteral("selector_type"), &selectorType);
    xml.elementsToQString(repository, QStringLiteral("icon"), &icon);
    xml.elementsToBool(repository, QStringLiteral("filter_sps"), &filterSps);

    trust = RVTrustPolicy::parse(repository);

    QString uri;
    if (xml.elementsToQString(repository, QStringLiteral("default_uri"), &uri)) {
        defaultUri = QUrl::fromEncoded(uri.toUtf8());
    }

    const QDomNodeList filters = repository.elementsByTagName(QStringLiteral("filter_pattern"));
    for (int i = 0; i < filters.size(); ++i) {
        const QDomElement filter = filters.at(i).toElement();
        QString archive;
        QString descriptor;
        xml.elementsToQString(filter, QStringLiteral("archive_pattern"), &archive);
        xml.elementsToQString(filter, QStringLiteral("descriptor_pattern"), &descriptor);
        if (!archive.isEmpty()) {
            archivePatterns.append(archive);
            // An archive may describe itself, as a package does.
            descriptorPatterns.append(descriptor.isEmpty() ? archive : descriptor);
        }
    }
}

bool RVRepDesc::picksOne() const
{
    return selectorType.compare(QLatin1String("PickOne"), Qt::CaseInsensitive) == 0;
}

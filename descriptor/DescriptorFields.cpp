// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "descriptor/DescriptorFields.h"

#include "descriptor/DataXML.h"

#include <QFileInfo>

DescriptorFields::DescriptorFields(const QUrl &url, const QString &suffix, QObject *parent)
    : DescriptorBaseClass(url, parent)
    , m_urlHandled(QFileInfo(url.path()).suffix().compare(suffix, Qt::CaseInsensitive) == 0)
{
}

DescriptorFields::~DescriptorFields() = default;

bool DescriptorFields::read(QNetworkReply *reply)
{
    return read(static_cast<QIODevice *>(reply));
}

void DescriptorFields::readSubdocument(const DataXML &doc, const QDomElement &elem)
{
    if (elem.tagName() == QLatin1String("sp-attrs")) {
        doc.elementsToQint64(elem, QStringLiteral("unpacked_size"), &m_unpackedSize);
        doc.elementsToQint64(elem, QStringLiteral("installed_size"), &m_installedSize);
    } else if (elem.tagName() == QLatin1String("service-pack-description")) {
        doc.elementsToLocaleString(elem, QStringLiteral("name"), &m_name);
        doc.elementsToLocaleString(elem, QStringLiteral("title"), &m_title);
        doc.elementsToStringList(elem, QStringLiteral("base_releases"), &m_baseReleases);
        doc.elementsToStringList(elem, QStringLiteral("package"), &m_contentFiles);
        readVersion(doc, elem);
        doc.elementsToLocaleString(elem, QStringLiteral("notes"), &m_notes);
        doc.elementsToStringList(elem, QStringLiteral("architecture"), &m_architectureList);
        doc.elementsToStringList(elem, QStringLiteral("thin_client"), &m_thinClientList);
    }
}

void DescriptorFields::readVersion(const DataXML &doc, const QDomElement &elem)
{
    QString version;
    if (doc.elementsToQString(elem, QStringLiteral("version"), &version)) {
        m_version = VersionString(version);
    }
}

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "descriptor/DescriptorXML.h"

#include "descriptor/DataXML.h"

DescriptorXML::DescriptorXML(const QUrl &url, QObject *parent)
    : DescriptorFields(url, QStringLiteral("xml"), parent)
{
}

DescriptorXML::~DescriptorXML() = default;

bool DescriptorXML::read(QIODevice *source)
{
    DataXML doc;
    doc.load(source);
    const QString root = doc.documentElement().tagName();
    bool understood = false;
    if (root == QLatin1String("xar")) {
        understood = readXarStyleXML(doc);
    } else if (root == QLatin1String("update_data")) {
        understood = readUpdateStyleXML(doc);
    }

    if (m_architectureList.isEmpty()) {
        m_architectureList.append(QStringLiteral("all"));
    }
    // Into the architectures, not into the models: whoever shows updates relies on the models
    // staying empty where the descriptor names none.
    if (m_thinClientList.isEmpty()) {
        m_architectureList.append(QStringLiteral("all"));
    }
    m_contentFiles.sort();
    return understood;
}

bool DescriptorXML::readUpdateStyleXML(DataXML &doc)
{
    const QDomElement root = doc.documentElement();
    doc.elementsToLocaleString(root, QStringLiteral("name"), &m_name);
    doc.elementsToLocaleString(root, QStringLiteral("title"), &m_title);
    doc.elementsToLocaleString(root, QStringLiteral("notes"), &m_notes);
    readVersion(doc, root);
    doc.elementsToStringList(root, QStringLiteral("base_releases"), &m_baseReleases);
    doc.elementsToStringList(root, QStringLiteral("package"), &m_contentFiles);
    doc.elementsToQint64(root, QStringLiteral("size"), &m_size);
    doc.elementsToQint64(root, QStringLiteral("unpacked_size"), &m_unpackedSize);
    doc.elementsToQint64(root, QStringLiteral("installed_size"), &m_installedSize);
    doc.elementsToStringList(root, QStringLiteral("architecture"), &m_architectureList);
    doc.elementsToStringList(root, QStringLiteral("thin_client"), &m_thinClientList);
    return true;
}

bool DescriptorXML::readXarStyleXML(DataXML &doc)
{
    const QString subdoc = QStringLiteral("subdoc");
    bool found = false;
    for (QDomElement part = doc.documentElement().firstChildElement(subdoc); !part.isNull();
         part = part.nextSiblingElement(subdoc)) {
        found = true;
        for (QDomElement elem = part.firstChildElement(); !elem.isNull();
             elem = elem.nextSiblingElement()) {
            readSubdocument(doc, elem);
        }
    }
    return found;
}

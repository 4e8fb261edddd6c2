// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "descriptor/DescriptorXar.h"

#include "core/LocalCopy.h"
#include "core/XarToc.h"
#include "descriptor/DataXML.h"

#include <QFileInfo>

namespace
{

/// Archivers store the elements of a subdocument back to front, at every level; where several say
/// the same, the last one that was handed to the archiver counts. Elements between which there is
/// text cannot have been stored by one, and stay.
void restoreOrder(QDomNode &parent)
{
    for (QDomNode child = parent.firstChild(); !child.isNull(); child = child.nextSibling()) {
        if (child.isText() || child.isEntityReference()) {
            return;
        }
    }
    const QDomNode last = parent.lastChild();
    while (parent.firstChild() != last) {
        parent.insertAfter(parent.firstChild(), last);
    }
    for (QDomNode child = parent.firstChild(); !child.isNull(); child = child.nextSibling()) {
        restoreOrder(child);
    }
}

} // namespace

DescriptorXar::DescriptorXar(const QUrl &url, QObject *parent)
    : DescriptorBaseClass(url, parent)
    , m_urlHandled(
          !url.isEmpty()
          && QFileInfo(url.path()).suffix().compare(QLatin1String("xar"), Qt::CaseInsensitive) == 0)
{
}

DescriptorXar::~DescriptorXar() = default;

bool DescriptorXar::read(QIODevice *source)
{
    LocalCopy archive;
    if (!archive.take(source)) {
        return false;
    }
    m_size = archive.file()->size();
    XarToc table;
    if (m_size == 0 || !table.read(archive.file())) {
        return false;
    }
    // The table's elements are in reverse, and its subdocuments are elements, too.
    const QList<QByteArray> texts = table.subdocuments();
    for (auto text = texts.crbegin(); text != texts.crend(); ++text) {
        readSubdocument(*text);
    }
    if (m_architectureList.isEmpty()) {
        m_architectureList.append(QStringLiteral("all"));
    }
    if (m_thinClientList.isEmpty()) {
        m_thinClientList.append(QStringLiteral("all"));
    }
    m_contentFiles.sort();
    return true;
}

bool DescriptorXar::read(QNetworkReply *reply)
{
    return read(static_cast<QIODevice *>(reply));
}

void DescriptorXar::readSubdocument(const QByteArray &text)
{
    DataXML document;
    document.load(text);
    QDomElement root = document.documentElement();
    restoreOrder(root);
    if (root.tagName() == QLatin1String("sp-attrs")) {
        document.elementsToQint64(root, QStringLiteral("unpacked_size"), &m_unpackedSize);
        document.elementsToQint64(root, QStringLiteral("installed_size"), &m_installedSize);
    } else if (root.tagName() == QLatin1String("service-pack-description")) {
        document.elementsToLocaleString(root, QStringLiteral("name"), &m_name);
        document.elementsToLocaleString(root, QStringLiteral("title"), &m_title);
        document.elementsToStringList(root, QStringLiteral("base_releases"), &m_baseReleases);
        document.elementsToStringList(root, QStringLiteral("package"), &m_contentFiles);
        QString version;
        if (document.elementsToQString(root, QStringLiteral("version"), &version)) {
            m_version = VersionString(version);
        }
        document.elementsToLocaleString(root, QStringLiteral("notes"), &m_notes);
        document.elementsToStringList(root, QStringLiteral("architecture"), &m_architectureList);
        document.elementsToStringList(root, QStringLiteral("thin_client"), &m_thinClientList);
    }
}

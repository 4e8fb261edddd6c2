// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "descriptor/DescriptorXar.h"

#include "core/LocalCopy.h"
#include "core/XarToc.h"
#include "descriptor/DataXML.h"

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
    : DescriptorFields(url, QStringLiteral("xar"), parent)
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
        DataXML document;
        document.load(*text);
        QDomElement root = document.documentElement();
        restoreOrder(root);
        readSubdocument(document, root);
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

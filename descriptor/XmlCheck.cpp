// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "descriptor/XmlCheck.h"

#include <QMap>
#include <QXmlDefaultHandler>

// QXmlStreamReader, the successor, differs from this parser in what it takes and how it reads
// document types, and a check that reads another document than the DOM does is none.
QT_WARNING_DISABLE_DEPRECATED

namespace
{

class Bounds : public QXmlDefaultHandler
{
public:
    QString error;
    int line = 0;
    int column = 0;

    QString errorString() const override { return m_reason; }

    bool fatalError(const QXmlParseException &exception) override
    {
        error = exception.message();
        line = exception.lineNumber();
        column = exception.columnNumber();
        return false;
    }

    bool startElement(const QString & /*namespaceUri*/, const QString & /*localName*/,
                      const QString & /*name*/, const QXmlAttributes &attributes) override
    {
        if (++m_depth > XmlCheck::maxDepth) {
            return refuse(
                QStringLiteral("more than %1 elements inside one another").arg(XmlCheck::maxDepth));
        }
        if (attributes.count() > XmlCheck::maxAttributes) {
            return refuse(QStringLiteral("more than %1 attributes on one element")
                              .arg(XmlCheck::maxAttributes));
        }
        return addNodes(1 + attributes.count());
    }

    bool endElement(const QString & /*namespaceUri*/, const QString & /*localName*/,
                    const QString & /*name*/) override
    {
        --m_depth;
        m_inText = false;
        return true;
    }

    bool characters(const QString & /*text*/) override
    {
        // One text comes in several pieces, cut at each reference.
        if (m_inText) {
            return true;
        }
        const bool ok = addNodes(1);
        m_inText = true;
        return ok;
    }

    bool startCDATA() override { return addNodes(1); }
    bool endCDATA() override
    {
        m_inText = false;
        return true;
    }
    bool comment(const QString & /*text*/) override { return addNodes(1); }
    bool processingInstruction(const QString & /*target*/, const QString & /*data*/) override
    {
        return addNodes(1);
    }
    bool skippedEntity(const QString & /*name*/) override { return addNodes(1); }
    bool notationDecl(const QString & /*name*/, const QString & /*publicId*/,
                      const QString & /*systemId*/) override
    {
        return addNodes(1);
    }
    bool unparsedEntityDecl(const QString & /*name*/, const QString & /*publicId*/,
                            const QString & /*systemId*/, const QString & /*notation*/) override
    {
        return addEntity();
    }
    bool externalEntityDecl(const QString & /*name*/, const QString & /*publicId*/,
                            const QString & /*systemId*/) override
    {
        return addEntity();
    }
    bool internalEntityDecl(const QString &name, const QString &value) override
    {
        // Here "%name" is a parameter entity; where it is referenced it is plain "name".
        const QString key = name.startsWith(QLatin1Char('%')) ? name.mid(1) : name;
        m_entityLength[key] = qMax(m_entityLength.value(key), value.size());
        return addEntity();
    }

    // Called before each expansion, in attribute values and in other entities too.
    bool startEntity(const QString &name) override
    {
        m_growth += m_entityLength.value(name);
        if (m_growth > XmlCheck::maxEntityGrowth) {
            return refuse(QStringLiteral("entities grow the document by more than %1 characters")
                              .arg(XmlCheck::maxEntityGrowth));
        }
        return true;
    }

private:
    bool refuse(const QString &reason)
    {
        m_reason = reason;
        return false;
    }

    bool addNodes(int count)
    {
        m_inText = false;
        m_nodes += count;
        return m_nodes <= XmlCheck::maxNodes
            || refuse(QStringLiteral("more than %1 nodes").arg(XmlCheck::maxNodes));
    }

    bool addEntity()
    {
        return ++m_entities <= XmlCheck::maxEntities
            || refuse(QStringLiteral("more than %1 entities").arg(XmlCheck::maxEntities));
    }

    QMap<QString, int> m_entityLength;
    QString m_reason;
    qint64 m_growth = 0;
    int m_depth = 0;
    int m_nodes = 0;
    int m_entities = 0;
    bool m_inText = false;
};

} // namespace

bool XmlCheck::accepts(const QByteArray &document)
{
    m_error.clear();
    m_line = m_column = 0;
    m_beyondBounds = true;
    if (document.size() > maxBytes) {
        m_error = QStringLiteral("larger than %1 bytes").arg(maxBytes);
        return false;
    }
    // The parser gathers all attributes of an element before it calls startElement().
    if (document.count('=') > maxNodes) {
        m_error = QStringLiteral("more than %1 attributes").arg(maxNodes);
        return false;
    }

    Bounds bounds;
    QXmlSimpleReader reader;
    // As the DOM sets it when it does not process namespaces.
    reader.setFeature(QStringLiteral("http://xml.org/sax/features/namespaces"), false);
    reader.setFeature(QStringLiteral("http://xml.org/sax/features/namespace-prefixes"), true);
    reader.setFeature(
        QStringLiteral("http://trolltech.com/xml/features/report-whitespace-only-CharData"), false);
    reader.setFeature(QStringLiteral("http://trolltech.com/xml/features/report-start-end-entity"),
                      true);
    reader.setContentHandler(&bounds);
    reader.setErrorHandler(&bounds);
    reader.setLexicalHandler(&bounds);
    reader.setDeclHandler(&bounds);
    reader.setDTDHandler(&bounds);
    QXmlInputSource source;
    source.setData(document);
    const bool accepted = reader.parse(source);
    m_beyondBounds = !bounds.errorString().isEmpty();
    m_error = bounds.error;
    m_line = bounds.line;
    m_column = bounds.column;
    return accepted;
}

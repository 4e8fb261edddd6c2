// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "descriptor/DataXML.h"

#include "descriptor/XmlCheck.h"

#include <plume/LocaleString.h>

#include <QIODevice>
#include <QTextStream>

#include <algorithm>

namespace
{

// QDomNodeList walks the whole tree again whenever the tree has changed; this walks it once.
QList<QDomElement> elementsNamed(const QDomElement &root, const QString &tag)
{
    QList<QDomElement> result;
    QDomNode node = root.firstChild();
    while (!node.isNull()) {
        if (node.isElement() && node.nodeName() == tag) {
            result.append(node.toElement());
        }
        QDomNode next = node.firstChild();
        while (next.isNull() && node != root) {
            next = node.nextSibling();
            if (next.isNull()) {
                node = node.parentNode();
            }
        }
        node = next;
    }
    return result;
}

QLatin1String escapeAt(const QString &text, int i, bool inAttribute)
{
    switch (text.at(i).unicode()) {
    case '&':
        return QLatin1String("&amp;");
    case '<':
        return QLatin1String("&lt;");
    case '>':
        return QLatin1String(text.midRef(0, i).endsWith(QLatin1String("]]")) ? "&gt;" : "");
    case '\r':
        return QLatin1String("&#xd;");
    case '"':
        return QLatin1String(inAttribute ? "&quot;" : "");
    case '\n':
        return QLatin1String(inAttribute ? "&#xa;" : "");
    case '\t':
        return QLatin1String(inAttribute ? "&#x9;" : "");
    default:
        return {};
    }
}

void appendEscaped(const QString &text, bool inAttribute, QString *out)
{
    int written = 0;
    for (int i = 0; i < text.size(); ++i) {
        const QLatin1String escape = escapeAt(text, i, inAttribute);
        if (!escape.isEmpty()) {
            out->append(text.midRef(written, i - written));
            out->append(escape);
            written = i + 1;
        }
    }
    out->append(text.midRef(written));
}

void appendChildren(const QDomNode &parent, QString *out);

// What QDomNode::save() writes without indentation, which takes quadratic time for a long text with
// many signs to escape.
void appendNode(const QDomNode &node, QString *out)
{
    if (node.isText() && !node.isCDATASection()) {
        appendEscaped(node.nodeValue(), false, out);
        return;
    }
    if (!node.isElement()) {
        QTextStream stream(out);
        node.save(stream, 0);
        return;
    }
    const QLatin1Char lineFeed('\n');
    const QDomNamedNodeMap attributes = node.attributes();
    out->append(QLatin1Char('<') + node.nodeName());
    for (int i = 0; i < attributes.count(); ++i) {
        const QDomNode attribute = attributes.item(i);
        out->append(QLatin1Char(' ') + attribute.nodeName() + QLatin1String("=\""));
        appendEscaped(attribute.nodeValue(), true, out);
        out->append(QLatin1Char('"'));
    }
    if (node.hasChildNodes()) {
        out->append(QLatin1Char('>'));
        if (!node.firstChild().isText()) {
            out->append(lineFeed);
        }
        appendChildren(node, out);
        out->append(QLatin1String("</") + node.nodeName() + QLatin1Char('>'));
    } else {
        out->append(QLatin1String("/>"));
    }
    if (!node.nextSibling().isText()) {
        out->append(lineFeed);
    }
}

void appendChildren(const QDomNode &parent, QString *out)
{
    for (QDomNode child = parent.firstChild(); !child.isNull(); child = child.nextSibling()) {
        appendNode(child, out);
    }
}

QString content(const QDomElement &element)
{
    QString text;
    appendChildren(element, &text);
    return text;
}

template<typename Use>
bool forEachContent(const QDomElement &root, const QString &tag, Use use)
{
    const QList<QDomElement> matches = elementsNamed(root, tag);
    int length = 0;
    for (const QDomElement &match : matches) {
        const QString text = content(match);
        length += text.size();
        if (length > DataXML::maxContent) {
            break;
        }
        use(match, text);
    }
    return !matches.isEmpty();
}

// QString::toLongLong alone also takes blanks around the number and separators within it.
bool toInteger(const QString &text, qint64 *out)
{
    const bool hasSign = text.startsWith(QLatin1Char('+')) || text.startsWith(QLatin1Char('-'));
    const auto isDigit = [](QChar c) {
        return c >= QLatin1Char('0') && c <= QLatin1Char('9');
    };
    if (!std::all_of(text.cbegin() + (hasSign ? 1 : 0), text.cend(), isDigit)) {
        return false;
    }
    bool ok = false;
    const qint64 value = text.toLongLong(&ok, 10);
    if (ok) {
        *out = value;
    }
    return ok;
}

QByteArray readAtMost(QIODevice *device, int limit)
{
    constexpr int pieceSize = 64 * 1024;
    QByteArray data;
    while (data.size() < limit) {
        const QByteArray piece = device->read(qMin(pieceSize, limit - data.size()));
        if (piece.isEmpty()) {
            break;
        }
        data.append(piece);
    }
    return data;
}

template<typename T>
void assign(T *out, const T &value)
{
    if (out) {
        *out = value;
    }
}

} // namespace

bool DataXML::load(const QByteArray &document, QString *error, int *line, int *column)
{
    XmlCheck check;
    if (!check.accepts(document)) {
        clear();
        assign(error, check.error());
        assign(line, check.line());
        assign(column, check.column());
        return false;
    }
    return setContent(document, false, error, line, column);
}

bool DataXML::load(QIODevice *device, QString *error, int *line, int *column)
{
    const bool opened = !device->isOpen() && device->open(QIODevice::ReadOnly);
    QByteArray document;
    if (device->isReadable()) {
        document = readAtMost(device, XmlCheck::maxBytes + 1);
    }
    if (opened) {
        device->close();
    }
    return load(document, error, line, column);
}

bool DataXML::elementsToQString(const QDomElement &elem, const QString &tag, QString *out) const
{
    const QList<QDomElement> matches = elementsNamed(elem, tag);
    if (matches.isEmpty()) {
        return false;
    }
    *out = content(matches.last());
    return true;
}

bool DataXML::elementsToStringList(const QDomElement &elem, const QString &tag,
                                   QStringList *out) const
{
    return forEachContent(elem, tag, [out](const QDomElement & /*match*/, const QString &text) {
        out->append(text);
    });
}

bool DataXML::elementsToLocaleString(const QDomElement &elem, const QString &tag,
                                     LocaleString *out) const
{
    return forEachContent(elem, tag, [this, out](const QDomElement &match, const QString &text) {
        out->setValue(text, getLangAttr(match));
    });
}

bool DataXML::elementsToQint64(const QDomElement &elem, const QString &tag, qint64 *out) const
{
    const QList<QDomElement> matches = elementsNamed(elem, tag);
    return std::any_of(matches.crbegin(), matches.crend(), [out](const QDomElement &match) {
        const QDomNode first = match.firstChild();
        return first.isText() && toInteger(first.nodeValue(), out);
    });
}

bool DataXML::elementsToBool(const QDomElement &elem, const QString &tag, bool *out) const
{
    QString text;
    *out = false;
    if (!elementsToQString(elem, tag, &text)) {
        return false;
    }
    text = text.toLower();
    *out = text.startsWith(QLatin1Char('t')) || text.startsWith(QLatin1Char('y'))
        || text == QLatin1String("1");
    return *out || text.startsWith(QLatin1Char('f')) || text.startsWith(QLatin1Char('n'))
        || text == QLatin1String("0");
}

QString DataXML::getLangAttr(const QDomNode &node) const
{
    const QString language = node.toElement().attribute(QStringLiteral("xml:lang"));
    return language.isEmpty() ? QStringLiteral("en") : language;
}

QString DataXML::plainText(const QString &content)
{
    QString text = content;
    text.remove(QLatin1String("<![CDATA["));
    text.remove(QLatin1String("]]>"));
    text.replace(QLatin1String("&lt;"), QLatin1String("<"));
    text.replace(QLatin1String("&gt;"), QLatin1String(">"));
    text.replace(QLatin1String("&quot;"), QLatin1String("\""));
    text.replace(QLatin1String("&apos;"), QLatin1String("'"));
    // Last, or "&amp;lt;" would be taken apart twice.
    text.replace(QLatin1String("&amp;"), QLatin1String("&"));
    return text;
}

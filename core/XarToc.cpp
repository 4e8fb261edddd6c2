// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/XarToc.h"

#include <QCryptographicHash>
#include <QIODevice>
#include <QVector>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>
#include <QtEndian>

#include <algorithm>
#include <zlib.h>

namespace
{

constexpr int shortHeader = 28;

struct Header {
    quint16 size = 0;
    quint64 packedLength = 0;
    quint64 length = 0;
    quint32 checksumKind = 0;
    /// From a header longer than the usual one; empty otherwise.
    QByteArray checksumName;
};

bool readHeader(QIODevice *source, Header *header)
{
    const QByteArray bytes = source->read(shortHeader);
    if (bytes.size() < shortHeader || !bytes.startsWith("xar!")) {
        return false;
    }
    const char *data = bytes.constData();
    header->size = qFromBigEndian<quint16>(data + 4);
    header->packedLength = qFromBigEndian<quint64>(data + 8);
    header->length = qFromBigEndian<quint64>(data + 16);
    header->checksumKind = qFromBigEndian<quint32>(data + 24);
    if (header->size < shortHeader) {
        return false;
    }
    const QByteArray name = source->read(header->size - shortHeader);
    header->checksumName = QByteArray(name.constData()); // up to the NUL that ends it
    return name.size() == header->size - shortHeader;
}

/// Compares the table with the checksum that follows it, at the start of the members' data.
bool isIntact(const Header &header, const QByteArray &packed, QIODevice *source)
{
    static const struct {
        quint32 kind;
        const char *name;
        QCryptographicHash::Algorithm algorithm;
    } kinds[] = {
        {1, "sha1", QCryptographicHash::Sha1},
        {2, "md5", QCryptographicHash::Md5},
        {3, "sha256", QCryptographicHash::Sha256},
        {4, "sha512", QCryptographicHash::Sha512},
    };
    const bool isNamed = !header.checksumName.isEmpty();
    if (isNamed ? header.checksumName == "none" : header.checksumKind == 0) {
        return true;
    }
    for (const auto &kind : kinds) {
        if (isNamed ? header.checksumName == kind.name : header.checksumKind == kind.kind) {
            const QByteArray checksum = QCryptographicHash::hash(packed, kind.algorithm);
            return source->read(checksum.size()) == checksum;
        }
    }
    return false;
}

/// Empty when the bytes do not unpack to exactly `length`.
QByteArray unpacked(const QByteArray &packed, int length)
{
    QByteArray bytes(length, Qt::Uninitialized);
    auto unpackedLength = static_cast<uLongf>(length);
    const int result = uncompress(reinterpret_cast<Bytef *>(bytes.data()), &unpackedLength,
                                  reinterpret_cast<const Bytef *>(packed.constData()),
                                  static_cast<uLong>(packed.size()));
    return result == Z_OK && unpackedLength == static_cast<uLongf>(length) ? bytes : QByteArray();
}

/// The XML text inside the element at which `reader` stands; stops at its end.
QByteArray innerText(QXmlStreamReader *reader, int depthLeft)
{
    QByteArray text;
    QXmlStreamWriter writer(&text);
    int depth = 0;
    while (!reader->atEnd()) {
        reader->readNext();
        depth += reader->isStartElement() ? 1 : reader->isEndElement() ? -1 : 0;
        if (depth < 0) {
            break;
        }
        if (depth > depthLeft) {
            reader->raiseError(QStringLiteral("too many elements inside one another"));
        } else if (!reader->hasError()) {
            writer.writeCurrentToken(*reader);
        }
    }
    return text;
}

/// Whether no tag has more attributes than any archiver writes: the reader compares each with all
/// before it. False too for what the reader refuses anyway.
bool isCheapToRead(const QByteArray &table)
{
    struct Section {
        QByteArray begin;
        QByteArray end;
    };
    static const QVector<Section> skipped{
        {"<!--", "-->"}, {"<![CDATA[", "]]>"}, {"<?", "?>"}, {"<!", {}}};
    int at = 0;
    while ((at = table.indexOf('<', at)) >= 0) {
        const auto section =
            std::find_if(skipped.cbegin(), skipped.cend(), [&](const Section &one) {
                return qstrncmp(table.constData() + at, one.begin.constData(),
                                static_cast<uint>(one.begin.size()))
                    == 0;
            });
        if (section != skipped.cend()) {
            at = section->end.isEmpty() ? -1
                                        : table.indexOf(section->end, at + section->begin.size());
            if (at < 0) {
                return false;
            }
            continue;
        }
        int attributes = 0;
        for (++at; at < table.size() && table.at(at) != '>'; ++at) {
            const char quote = table.at(at);
            if (quote != '"' && quote != '\'') {
                continue;
            }
            at = table.indexOf(quote, at + 1);
            if (at < 0 || ++attributes > XarToc::maxAttributes) {
                return false;
            }
        }
    }
    return true;
}

} // namespace

bool XarToc::read(QIODevice *source)
{
    m_subdocuments.clear();
    m_memberCount = 0;
    Header header;
    if (!readHeader(source, &header) || header.length == 0 || header.length > maxBytes
        || header.packedLength > maxBytes) {
        return false;
    }
    const auto packedLength = static_cast<int>(header.packedLength);
    const QByteArray packed = source->read(packedLength);
    return packed.size() == packedLength && isIntact(header, packed, source)
        && parse(unpacked(packed, static_cast<int>(header.length)));
}

bool XarToc::parse(const QByteArray &table)
{
    if (!isCheapToRead(table)) {
        return false;
    }
    QXmlStreamReader reader(table);
    reader.setNamespaceProcessing(false);
    struct Member {
        int depth;
        int pathLength;
        int names;
    };
    QVector<Member> open{{0, 0, 0}}; // outermost first, below the archive itself
    int depth = 0;
    while (!reader.atEnd()) {
        switch (reader.readNext()) {
        case QXmlStreamReader::DTD:
            return false; // no archiver writes one, and entities are a way to hide things
        case QXmlStreamReader::StartElement:
            if (++depth > maxDepth || (depth == 1 && reader.name() != QLatin1String("xar"))) {
                return false;
            }
            if (depth == 2 && reader.name() == QLatin1String("subdoc")) {
                if (m_subdocuments.size() >= maxSubdocuments) {
                    return false;
                }
                m_subdocuments.append(innerText(&reader, maxDepth - depth));
                --depth;
            } else if (reader.name() == QLatin1String("file")) {
                ++m_memberCount;
                open.append({depth, open.constLast().pathLength + 1, 0});
            } else if (reader.name() == QLatin1String("name")
                       && depth == open.constLast().depth + 1) {
                open.last().pathLength += reader.readElementText().size();
                ++open.last().names;
                --depth;
                if (open.constLast().pathLength > maxPath) {
                    return false;
                }
            }
            break;
        case QXmlStreamReader::EndElement:
            --depth;
            if (reader.name() == QLatin1String("file") && open.takeLast().names != 1) {
                return false;
            }
            break;
        default:
            break;
        }
    }
    return !reader.hasError();
}

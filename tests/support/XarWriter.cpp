// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/support/XarWriter.h"

#include <QCryptographicHash>
#include <QtEndian>

namespace
{

// Room at the start of the members' data for the longest checksum.
constexpr int checksumRoom = 64;

template<typename T>
QByteArray bigEndian(T value)
{
    QByteArray bytes(sizeof(T), '\0');
    qToBigEndian(value, bytes.data());
    return bytes;
}

QByteArray hex(const QByteArray &bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha1).toHex();
}

} // namespace

void XarWriter::addSubdocument(const QByteArray &xml)
{
    m_subdocuments += "<subdoc subdoc_name=\"s\">" + xml + "</subdoc>";
}

void XarWriter::addFile(const QByteArray &name, const QByteArray &content)
{
    Member member;
    member.names = {name};
    member.content = content;
    add(member);
}

void XarWriter::addLink(const QByteArray &name, const QByteArray &target)
{
    Member member;
    member.names = {name};
    member.type = "symlink";
    member.extra = "<link type=\"file\">" + target + "</link>";
    add(member);
}

void XarWriter::add(const Member &member)
{
    m_members += "<file id=\"" + QByteArray::number(m_nextId++) + "\">";
    if (member.type == "file") {
        const QByteArray stored = member.packed.isEmpty() ? member.content : member.packed;
        const qint64 size = member.size < 0 ? member.content.size() : member.size;
        m_members += "<data><length>" + QByteArray::number(stored.size()) + "</length><offset>"
            + QByteArray::number(checksumRoom + m_heap.size()) + "</offset><size>"
            + QByteArray::number(size) + "</size><encoding style=\"" + member.encoding
            + "\"/><extracted-checksum style=\"sha1\">"
            + hex(member.isDamaged ? member.content + "x" : member.content)
            + "</extracted-checksum><archived-checksum style=\"sha1\">" + hex(stored)
            + "</archived-checksum></data>";
        m_heap += stored;
    }
    m_members += "<mode>" + member.mode + "</mode><type>" + member.type + "</type>" + member.extra;
    for (const QByteArray &name : member.names) {
        m_members += "<name>" + name + "</name>";
    }
    m_members += "</file>";
}

void XarWriter::openDirectory(const QByteArray &name, const QByteArray &mode)
{
    m_members += "<file id=\"" + QByteArray::number(m_nextId++) + "\"><mode>" + mode
        + "</mode><type>directory</type><name>" + name + "</name>";
}

void XarWriter::closeDirectory()
{
    m_members += "</file>";
}

QByteArray XarWriter::archive() const
{
    static const struct {
        const char *name;
        int size;
        QCryptographicHash::Algorithm algorithm;
    } kinds[] = {
        {"none", 0, QCryptographicHash::Sha1},      {"sha1", 20, QCryptographicHash::Sha1},
        {"md5", 16, QCryptographicHash::Md5},       {"sha256", 32, QCryptographicHash::Sha256},
        {"sha512", 64, QCryptographicHash::Sha512},
    };
    const auto &kind = kinds[checksum];
    const QByteArray table = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>" + prologue + "<" + root
        + ">" + m_subdocuments + "<toc><checksum style=\"" + kind.name
        + "\"><offset>0</offset><size>" + QByteArray::number(kind.size) + "</size></checksum>"
        + m_members + "</toc></" + root + ">";
    const QByteArray packed = qCompress(table).mid(4);
    QByteArray sum = QCryptographicHash::hash(packed, kind.algorithm).left(kind.size);
    if (isChecksumWrong) {
        sum[0] = static_cast<char>(sum.at(0) ^ 1);
    }

    QByteArray nameField;
    if (!checksumName.isEmpty()) {
        nameField = checksumName + '\0';
        nameField += QByteArray((4 - nameField.size() % 4) % 4, '\0');
    }
    const auto length = static_cast<quint64>(tableLength < 0 ? table.size() : tableLength);
    return "xar!" + bigEndian(static_cast<quint16>(28 + nameField.size())) + bigEndian(quint16(1))
        + bigEndian(static_cast<quint64>(packed.size())) + bigEndian(length)
        + bigEndian(static_cast<quint32>(checksum)) + nameField + packed
        + sum.leftJustified(checksumRoom, '\0') + m_heap;
}

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QList>

/// Writes xar archives, the well-formed ones and those that no archiver would write. Members nest:
/// what is added between openDirectory() and closeDirectory() lies in that directory.
class XarWriter
{
public:
    enum Checksum {
        None = 0,
        Sha1 = 1,
        Md5 = 2,
        Sha256 = 3,
        Sha512 = 4,
    };

    struct Member {
        /// One element a name; usually there is exactly one.
        QList<QByteArray> names;
        QByteArray content;
        QByteArray type = "file";
        QByteArray mode = "0644";
        /// What the table says about the content, when that is not the truth.
        qint64 size = -1;
        bool isDamaged = false;
        /// A content that is packed already, and its encoding.
        QByteArray encoding = "application/octet-stream";
        QByteArray packed = {};
        /// More elements, as they stand.
        QByteArray extra = {};
    };

    Checksum checksum = Sha1;
    /// Not empty: the header is a longer one that names the checksum.
    QByteArray checksumName;
    bool isChecksumWrong = false;
    /// What the header says about the table's length, when that is not the truth.
    qint64 tableLength = -1;
    QByteArray root = "xar";
    /// Put in front of the table's root.
    QByteArray prologue;

    /// `xml` is what stands inside the "subdoc" element.
    void addSubdocument(const QByteArray &xml);
    void addFile(const QByteArray &name, const QByteArray &content);
    void addLink(const QByteArray &name, const QByteArray &target);
    void add(const Member &member);
    void openDirectory(const QByteArray &name, const QByteArray &mode = "0755");
    void closeDirectory();
    /// Elements of the table itself, as they stand.
    void addRaw(const QByteArray &xml) { m_members += xml; }

    QByteArray archive() const;

private:
    QByteArray m_subdocuments;
    QByteArray m_members;
    QByteArray m_heap;
    int m_nextId = 1;
};

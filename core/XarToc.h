// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QList>

class QIODevice;

/// The table of contents of a xar archive: a header, then a packed XML document with the root
/// "xar". Everything in it is foreign, so it is unpacked within a bound, checked against the
/// archive's own checksum, and walked without being built up in memory.
class XarToc
{
public:
    /// A larger table, or one whose elements nest deeper, is refused; the readers of XML
    /// descriptors take no larger document either.
    static constexpr int maxBytes = 16 * 1024 * 1024;
    static constexpr int maxDepth = 256;
    /// Of one element; and of the subdocuments, one of which describes an update.
    static constexpr int maxAttributes = 256;
    static constexpr int maxSubdocuments = 1000;
    /// The longest path that the system takes.
    static constexpr int maxPath = 4096;

    /// False when `source`, which is open and random-access, does not start with an archive header
    /// and an intact table, or when a member has no name or two.
    bool read(QIODevice *source);

    /// The texts of the subdocuments, as they are stored.
    const QList<QByteArray> &subdocuments() const { return m_subdocuments; }
    int memberCount() const { return m_memberCount; }

private:
    bool parse(const QByteArray &table);

    QList<QByteArray> m_subdocuments;
    int m_memberCount = 0;
};

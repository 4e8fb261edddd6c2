// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>

class QIODevice;

/// The table of contents of a xar archive, an XML document with the root "xar": unpacked within a
/// bound and checked against the archive's own checksum, but not parsed.
class XarToc
{
public:
    /// A larger table is refused; the XML readers take no larger document either.
    static constexpr int maxBytes = 16 * 1024 * 1024;

    /// False when `source`, which is open and random-access, does not start with an archive header
    /// and an intact table.
    bool read(QIODevice *source);
    const QByteArray &xml() const { return m_xml; }

private:
    QByteArray m_xml;
};

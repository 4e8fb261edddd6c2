// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "network/XUrlInfo.h"

#include <QByteArray>

#include <optional>

/// Reads what FTP servers answer to LIST. No standard says how that looks (RFC 959 §4.1.3, RFC 1123
/// §4.1.2.7); read are the two forms that servers use:
/// @code
/// -rw-r--r--+  1 owner group   1234 Nov 21 09:41 name        ls -l, or a year in place of the time
/// 11-21-26  09:41AM       <DIR>          name                the DOS form, or a size in place of
/// <DIR>
/// @endcode
class FtpListing
{
public:
    struct Entry {
        XUrlInfo info;
        /// The very bytes that the server wrote; info.name() is their text.
        QByteArray rawName;
    };

    /// One line, with or without its end; nothing for a line that is no entry, such as "total 12".
    /// "." and ".." are entries; a name with a slash or a control character is none, as no file has
    /// such a name and nobody who lists a directory can fetch it.
    ///
    /// The text is UTF-8, or else the whole line is Latin-1. Times are taken as UTC, since a server
    /// does not tell its zone; a time without a year is the latest such time that is at most one
    /// day after now. A link is neither a file nor a directory; what it leads to is not part of its
    /// name. An entry counts as readable (writable) if others may read (write) it, or its owner may
    /// and is user. Words between the count of links and the size are the owner and then the group,
    /// either may be missing; of more than two words the first is the owner.
    static std::optional<Entry> parse(QByteArray line, const QString &user = {},
                                      const QDateTime &now = QDateTime::currentDateTimeUtc());
};

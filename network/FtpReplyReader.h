// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

class QIODevice;

/// Reads the replies of an FTP server (RFC 959 §4.2) from its control connection, in whatever
/// pieces they arrive. A server that sends more than the limits is not listened to any longer.
class FtpReplyReader
{
public:
    /// Bytes of a line, without its end.
    static constexpr int maximumLine = 8 * 1024;
    /// Lines of a reply.
    static constexpr int maximumLines = 1000;

    enum Progress {
        Incomplete, // all that came is read
        Whole, // reply() is a new one, and there may be more to read
        NotFtp,
        TooLong,
    };
    struct Reply {
        /// 100 to 599; 0 before the first reply.
        int code = 0;
        /// All lines without their codes, as text (UTF-8, else Latin-1); about 2,000 characters are
        /// kept, and a line that has begun by then.
        QString text;
        /// Behind its code.
        QByteArray lastLine;
    };

    /// Up to the end of a reply. After NotFtp and TooLong the connection is of no more use.
    Progress read(QIODevice *source);
    /// The last whole one.
    const Reply &reply() const { return m_reply; }

private:
    Progress takeLine(const QByteArray &line);

    QByteArray m_line;
    QString m_text;
    int m_lines = 0;
    int m_begun = 0;
    Reply m_reply;
};

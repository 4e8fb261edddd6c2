// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "network/FtpReplyReader.h"

#include <QIODevice>

#include <utility>

namespace
{

constexpr int maximumText = 2000;

QString decoded(const QByteArray &raw)
{
    const QString text = QString::fromUtf8(raw);
    return text.toUtf8() == raw ? text : QString::fromLatin1(raw);
}

/// The code at the begin of a reply's line; -1 if there is none.
int codeOf(const QByteArray &line)
{
    if (line.size() < 3 || line.at(0) < '1' || line.at(0) > '5'
        || (line.size() > 3 && line.at(3) != ' ' && line.at(3) != '-')) {
        return -1;
    }
    for (int i = 1; i < 3; ++i) {
        if (line.at(i) < '0' || line.at(i) > '9') {
            return -1;
        }
    }
    return line.left(3).toInt();
}

} // namespace

FtpReplyReader::Progress FtpReplyReader::read(QIODevice *source)
{
    Progress progress = Incomplete;
    while (progress == Incomplete && source->bytesAvailable() > 0) {
        m_line += source->readLine();
        if (m_line.size() > maximumLine + 2) {
            return TooLong;
        }
        if (m_line.endsWith('\n')) {
            QByteArray line = std::exchange(m_line, {});
            line.chop(line.endsWith("\r\n") ? 2 : 1);
            progress = takeLine(line);
        }
    }
    return progress;
}

FtpReplyReader::Progress FtpReplyReader::takeLine(const QByteArray &line)
{
    const int code = codeOf(line);
    if (m_lines == 0) {
        if (code < 0) {
            return NotFtp;
        }
        m_begun = code;
        m_text.clear();
    }
    if (++m_lines > maximumLines) {
        return TooLong;
    }
    if (m_text.size() < maximumText) {
        m_text += decoded(code == m_begun ? line.mid(4) : line) + QLatin1Char(' ');
    }
    // Lines between may begin with anything, other codes included.
    if (code != m_begun || line.mid(3, 1) == "-") {
        return Incomplete;
    }
    m_lines = 0;
    m_reply = {code, m_text, line.mid(4)};
    return Whole;
}

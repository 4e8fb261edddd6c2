// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/RVCtlOutput.h"

#include "cli/RVCtlMessages.h"
#include "core/RVText.h"

#include <algorithm>

namespace
{

/// A program that never ends its line must not fill the memory.
constexpr int longestLine = 4096;
/// A character has at most so many bytes for each of its UTF-16 units.
constexpr int keptBytes = 3 * RVCtlOutput::keptSize;

/// Without a character that means anything to a terminal but the end of a line.
bool isPlain(const char *begin, const char *end)
{
    unsigned odd = 0;
    // To the end in any case: compilers make wide steps of such a loop.
    for (const char *at = begin; at != end; ++at) {
        odd |= unsigned(*at != '\n') & unsigned(*at < ' ' || *at > '~');
    }
    return odd == 0;
}

/// Where `bytes`, which are longer than `length`, can be cut so that no character is.
int cutAt(const QByteArray &bytes, int length)
{
    constexpr int longestCharacter = 4;
    const auto isInside = [&bytes](int at) {
        return (static_cast<unsigned char>(bytes.at(at)) & 0xc0) == 0x80;
    };
    int at = length;
    while (at > length - longestCharacter && isInside(at)) {
        --at;
    }
    return isInside(at) ? length : at;
}

} // namespace

RVCtlOutput::RVCtlOutput(std::FILE *stream, RVCtlMessages *messages)
    : m_stream(stream)
    , m_messages(messages)
{
}

void RVCtlOutput::add(const QByteArray &bytes)
{
    if (bytes.isEmpty()) {
        return;
    }
    if (m_stream) {
        m_messages->setStatus(QString());
    }
    const char *const begin = bytes.constData();
    const char *const end = begin + bytes.size();
    const char *const firstEnd = std::find(begin, end, '\n');
    const char *const lastEnd = begin + bytes.lastIndexOf('\n') + 1;
    // What follows the line that is under way, up to the line that stays so.
    if (m_line.isEmpty() && !m_afterReturn && isPlain(begin, lastEnd)) {
        addPlain(begin, lastEnd);
        addOdd(lastEnd, end);
    } else if (firstEnd < lastEnd && isPlain(firstEnd + 1, lastEnd)) {
        addOdd(begin, firstEnd + 1);
        addPlain(firstEnd + 1, lastEnd);
        addOdd(lastEnd, end);
    } else {
        addOdd(begin, end);
    }
    if (m_stream) {
        std::fflush(m_stream);
    }
}

void RVCtlOutput::addPlain(const char *begin, const char *end)
{
    if (m_stream) {
        std::fwrite(begin, 1, static_cast<std::size_t>(end - begin), m_stream);
    }
    keep(begin, static_cast<int>(end - begin));
}

void RVCtlOutput::addOdd(const char *begin, const char *end)
{
    for (const char *at = begin; at != end; ++at) {
        const bool isReturn = *at == '\r';
        if (*at == '\n' || isReturn) {
            // "\r\n" is one line end, in two pieces perhaps.
            if (isReturn || !m_afterReturn) {
                addLine();
            }
        } else {
            m_line += *at == '\t' ? ' ' : *at;
            if (m_line.size() > longestLine) {
                const int cut = cutAt(m_line, longestLine);
                const QByteArray rest = m_line.mid(cut);
                m_line.truncate(cut);
                addLine();
                m_line = rest;
            }
        }
        m_afterReturn = isReturn;
    }
}

void RVCtlOutput::end()
{
    if (!m_line.isEmpty()) {
        addLine();
    }
    if (m_stream) {
        std::fflush(m_stream);
    }
}

void RVCtlOutput::addLine()
{
    if (m_stream) {
        const QString line = RVText::safe(QString::fromUtf8(m_line)) + QLatin1Char('\n');
        std::fputs(line.toLocal8Bit().constData(), m_stream);
    }
    m_line += '\n';
    keep(m_line.constData(), m_line.size());
    m_line.clear();
}

void RVCtlOutput::keep(const char *bytes, int size)
{
    const int excess = qMax(0, size - keptBytes);
    m_kept.append(bytes + excess, size - excess);
    m_isCut = m_isCut || excess > 0;
    // Seldom, for it moves everything.
    if (m_kept.size() > 2 * keptBytes) {
        m_kept = m_kept.right(keptBytes);
        m_isCut = true;
    }
}

QString RVCtlOutput::kept() const
{
    QString text = QString::fromUtf8(m_kept);
    if (!isCut()) {
        return text;
    }
    const int from = qMax(0, text.size() - keptSize);
    return text.mid(text.indexOf(QLatin1Char('\n'), from) + 1);
}

bool RVCtlOutput::isCut() const
{
    return m_isCut || QString::fromUtf8(m_kept).size() > keptSize;
}

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/RVCtlOutput.h"

#include "cli/RVCtlMessages.h"
#include "core/RVText.h"

#include <QTextCodec>

namespace
{

/// A program that never ends its line must not fill the memory.
constexpr int longestLine = 4096;

} // namespace

RVCtlOutput::RVCtlOutput(std::FILE *stream, RVCtlMessages *messages)
    : m_stream(stream)
    , m_messages(messages)
    , m_decoder(QTextCodec::codecForName("UTF-8")->makeDecoder(QTextCodec::IgnoreHeader))
{
}

RVCtlOutput::~RVCtlOutput() = default;

void RVCtlOutput::add(const QByteArray &bytes)
{
    const QString text = m_decoder->toUnicode(bytes);
    for (const QChar character : text) {
        const bool isReturn = character == QLatin1Char('\r');
        if (character == QLatin1Char('\n') || isReturn) {
            // "\r\n" is one line end, in two pieces perhaps.
            if (isReturn || !m_afterReturn) {
                addLine();
            }
        } else {
            m_line += character == QLatin1Char('\t') ? QLatin1Char(' ') : character;
            if (m_line.size() >= longestLine && !character.isHighSurrogate()) {
                addLine();
            }
        }
        m_afterReturn = isReturn;
    }
    if (m_stream) {
        std::fflush(m_stream);
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
    const QString line = RVText::safe(m_line) + QLatin1Char('\n');
    if (m_stream) {
        m_messages->setStatus(QString());
        std::fputs(line.toLocal8Bit().constData(), m_stream);
    }
    m_kept += m_line + QLatin1Char('\n');
    m_line.clear();
    if (m_kept.size() > keptSize) {
        m_isCut = true;
        // Whole lines.
        m_kept.remove(0, m_kept.indexOf(QLatin1Char('\n'), m_kept.size() - keptSize) + 1);
    }
}

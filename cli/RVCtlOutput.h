// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

#include <cstdio>
#include <memory>

class QTextDecoder;
class RVCtlMessages;

/// What an installer writes: passed on line by line as it comes, safe for a terminal, and its end
/// kept for the document.
class RVCtlOutput
{
public:
    /// So many characters are kept.
    static constexpr int keptSize = 64 * 1024;

    /// `stream` may be null: nothing is passed on then.
    RVCtlOutput(std::FILE *stream, RVCtlMessages *messages);
    ~RVCtlOutput();

    void add(const QByteArray &bytes);
    /// The last line may have no line feed.
    void end();

    const QString &kept() const { return m_kept; }
    /// Whether there was more than is kept.
    bool isCut() const { return m_isCut; }

private:
    Q_DISABLE_COPY_MOVE(RVCtlOutput)

    void addLine();

    std::FILE *m_stream;
    RVCtlMessages *m_messages;
    std::unique_ptr<QTextDecoder> m_decoder;
    QString m_line;
    QString m_kept;
    bool m_isCut = false;
    bool m_afterReturn = false;
};

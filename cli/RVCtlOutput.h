// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <cstdio>

class RVCtlMessages;

/// What an installer writes: passed on line by line as it comes, safe for a terminal, and its end
/// kept for the document. Lines of plain text, however many, cost little more than their bytes.
class RVCtlOutput
{
public:
    /// So many characters are kept.
    static constexpr int keptSize = 64 * 1024;

    /// `stream` may be null: nothing is passed on then.
    RVCtlOutput(std::FILE *stream, RVCtlMessages *messages);

    void add(const QByteArray &bytes);
    /// The last line may have no line feed.
    void end();

    /// Whole lines.
    QString kept() const;
    /// Whether there was more than is kept.
    bool isCut() const;

private:
    Q_DISABLE_COPY_MOVE(RVCtlOutput)

    void addPlain(const char *begin, const char *end);
    void addOdd(const char *begin, const char *end);
    void addLine();
    void keep(const char *bytes, int size);

    std::FILE *m_stream;
    RVCtlMessages *m_messages;
    /// The beginning of a line whose end has not come.
    QByteArray m_line;
    QByteArray m_kept;
    bool m_isCut = false;
    bool m_afterReturn = false;
};

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/RVCtlProgress.h"

#include "cli/RVCtlMessages.h"
#include "cli/RVCtlText.h"

#include <sys/ioctl.h>
#include <unistd.h>

namespace
{

constexpr int barIntervalMs = 100;
constexpr int lineIntervalMs = 5000;
constexpr int usualColumns = 80;
constexpr int shortestBar = 8;

/// Asked each time: the window may be resized.
int terminalColumns()
{
    winsize size = {};
    return ::ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0 ? size.ws_col
                                                                             : usualColumns;
}

int percent(qint64 received, qint64 total)
{
    return total > 0
        ? static_cast<int>(static_cast<double>(received) / static_cast<double>(total) * 100)
        : 0;
}

QString amount(qint64 received, qint64 total)
{
    return QStringLiteral("%1%  %2 of %3")
        .arg(percent(received, total), 3)
        .arg(RVCtlText::size(received), RVCtlText::size(total));
}

} // namespace

RVCtlProgress::RVCtlProgress(RVCtlMessages *messages, const QString &what)
    : m_messages(messages)
    , m_what(what)
    , m_isTerminal(::isatty(STDERR_FILENO) == 1)
{
    m_messages->note(what + QStringLiteral("..."));
}

RVCtlProgress::~RVCtlProgress()
{
    end();
}

QString RVCtlProgress::bar(const QString &what, qint64 received, qint64 total, int columns)
{
    const int room = columns - 1;
    const QString numbers = amount(received, total);
    const int length = room - what.size() - numbers.size() - 6;
    if (length >= shortestBar) {
        const int done = length * percent(received, total) / 100;
        return QStringLiteral("%1  [%2%3]  %4")
            .arg(what, QString(done, QLatin1Char('#')), QString(length - done, QLatin1Char('.')),
                 numbers);
    }
    const QString few = QStringLiteral("%1%").arg(percent(received, total));
    return numbers.size() <= room ? numbers : few.left(qMax(0, room));
}

void RVCtlProgress::show(qint64 received, qint64 total)
{
    const bool isComplete = received >= total;
    const int interval = m_isTerminal ? barIntervalMs : lineIntervalMs;
    if (m_messages->isQuiet() || (isComplete && m_isComplete)
        || (!isComplete && m_last.isValid() && m_last.elapsed() < interval)) {
        return;
    }
    m_last.start();
    m_isComplete = isComplete;
    if (m_isTerminal) {
        m_messages->setStatus(bar(m_what, received, total, terminalColumns()));
    } else {
        m_messages->note(amount(received, total).trimmed());
    }
}

void RVCtlProgress::end()
{
    m_messages->setStatus(QString());
}

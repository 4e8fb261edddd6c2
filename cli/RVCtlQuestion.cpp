// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/RVCtlQuestion.h"

#include "cli/RVCtlDeadline.h"

#include <QEventLoop>
#include <QSocketNotifier>

#include <cstdio>
#include <unistd.h>

namespace
{

constexpr int longestAnswer = 80;

/// The next line of standard input, or nothing when the deadline comes first.
QByteArray readAnswer(RVCtlDeadline *deadline)
{
    QByteArray answer;
    QEventLoop loop;
    QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, &loop, [&] {
        char byte = 0;
        if (::read(STDIN_FILENO, &byte, 1) != 1 || byte == '\n' || answer.size() >= longestAnswer) {
            loop.quit();
        } else {
            answer += byte;
        }
    });
    QObject::connect(deadline, &RVCtlDeadline::over, &loop, [&] {
        answer.clear();
        loop.quit();
    });
    if (!deadline->isOver()) {
        loop.exec();
    }
    return answer.trimmed().toLower();
}

} // namespace

bool RVCtlQuestion::canAsk()
{
    return ::isatty(STDIN_FILENO) == 1 && ::isatty(STDERR_FILENO) == 1;
}

bool RVCtlQuestion::isYes(const QString &question, RVCtlDeadline *deadline)
{
    std::fputs(qUtf8Printable(question + QLatin1String(" [y/N] ")), stderr);
    std::fflush(stderr);
    const QByteArray answer = readAnswer(deadline);
    return answer == "y" || answer == "yes";
}

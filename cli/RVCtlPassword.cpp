// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/RVCtlPassword.h"

#include "cli/RVCtlDeadline.h"
#include "core/RVText.h"

#include <QElapsedTimer>
#include <QFile>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <termios.h>
#include <unistd.h>

namespace
{

constexpr int longestPassword = 4096;
constexpr int signalCheckMs = 200;

class Descriptor
{
public:
    explicit Descriptor(int number)
        : number(number)
    {
    }
    ~Descriptor()
    {
        if (number >= 0) {
            ::close(number);
        }
    }
    const int number;

private:
    Q_DISABLE_COPY_MOVE(Descriptor)
};

/// No echo, and no signal that would end the process and leave the terminal like that.
class SilentTerminal
{
public:
    explicit SilentTerminal(int terminal)
        : m_terminal(terminal)
    {
        ::sigemptyset(&m_signals);
        for (const int number : {SIGINT, SIGTERM, SIGHUP, SIGQUIT, SIGTSTP}) {
            ::sigaddset(&m_signals, number);
        }
        ::pthread_sigmask(SIG_BLOCK, &m_signals, &m_previousSignals);
        ::tcgetattr(terminal, &m_previous);
        termios silent = m_previous;
        silent.c_lflag &= ~static_cast<tcflag_t>(ECHO | ECHONL);
        ::tcsetattr(terminal, TCSAFLUSH, &silent);
    }
    ~SilentTerminal()
    {
        ::tcsetattr(m_terminal, TCSAFLUSH, &m_previous);
        ::pthread_sigmask(SIG_SETMASK, &m_previousSignals, nullptr);
    }
    bool isSignalled() const
    {
        sigset_t pending;
        ::sigpending(&pending);
        for (const int number : {SIGINT, SIGTERM, SIGHUP, SIGQUIT, SIGTSTP}) {
            if (::sigismember(&pending, number) == 1) {
                return true;
            }
        }
        return false;
    }

private:
    Q_DISABLE_COPY_MOVE(SilentTerminal)

    const int m_terminal;
    termios m_previous = {};
    sigset_t m_signals = {};
    sigset_t m_previousSignals = {};
};

/// Reads to the first line feed or the end. False when nothing came in time, or `isCancelled`.
template<typename IsCancelled>
bool readLine(int descriptor, int milliseconds, const IsCancelled &isCancelled, QByteArray *line)
{
    QElapsedTimer timer;
    timer.start();
    while (line->size() < longestPassword) {
        const int left =
            milliseconds < 0 ? signalCheckMs : milliseconds - static_cast<int>(timer.elapsed());
        if (left <= 0 || isCancelled()) {
            return false;
        }
        pollfd wanted = {descriptor, POLLIN, 0};
        const int ready = ::poll(&wanted, 1, qMin(left, signalCheckMs));
        if (ready < 0 && errno != EINTR) {
            return false;
        }
        if (ready <= 0) {
            continue;
        }
        char byte = 0;
        const ssize_t length = ::read(descriptor, &byte, 1);
        if (length < 0 && (errno == EINTR || errno == EAGAIN)) {
            continue;
        }
        if (length <= 0 || byte == '\n') {
            return length >= 0;
        }
        line->append(byte);
    }
    return false;
}

} // namespace

bool RVCtlPassword::fromFile(const QString &name, const RVCtlDeadline &deadline, QString *password,
                             QString *error)
{
    const Descriptor file(
        ::open(QFile::encodeName(name).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY));
    if (file.number < 0) {
        *error = QStringLiteral("The password file '%1' cannot be read: %2")
                     .arg(name, QString::fromLocal8Bit(std::strerror(errno)));
        return false;
    }
    QByteArray line;
    const auto never = [] {
        return false;
    };
    const bool read = readLine(file.number, deadline.remaining(), never, &line);
    if (line.endsWith('\r')) {
        line.chop(1);
    }
    if (!read || line.isEmpty()) {
        *error = QStringLiteral("There is no password in '%1'.").arg(name);
        return false;
    }
    *password = QString::fromUtf8(line);
    return true;
}

bool RVCtlPassword::fromTerminal(const QString &user, const RVCtlDeadline &deadline,
                                 QString *password, QString *error)
{
    const Descriptor terminal(::open("/dev/tty", O_RDWR | O_CLOEXEC | O_NOCTTY));
    if (terminal.number < 0) {
        *error = QStringLiteral("There is no terminal to ask for the password on; use "
                                "--password-file.");
        return false;
    }
    const auto print = [&terminal](const QByteArray &text) {
        [[maybe_unused]] const ssize_t written =
            ::write(terminal.number, text.constData(), static_cast<size_t>(text.size()));
    };
    QByteArray line;
    bool read = false;
    {
        const SilentTerminal silent(terminal.number);
        print(QStringLiteral("Password of %1: ").arg(RVText::safe(user)).toLocal8Bit());
        read = readLine(
            terminal.number, deadline.remaining(),
            [&silent] {
                return silent.isSignalled();
            },
            &line);
        print("\n");
    }
    if (!read || line.isEmpty()) {
        *error = QStringLiteral("No password was given.");
        return false;
    }
    *password = QString::fromLocal8Bit(line);
    return true;
}

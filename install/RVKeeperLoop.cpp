// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "install/RVKeeperLoop.h"

#include "install/RVRunRecord.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <ctime>
#include <fcntl.h>
#include <poll.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

constexpr std::size_t ringSize = RVRunHead::lastBytes;
constexpr std::size_t readAtOnce = 64 * 1024;
constexpr int pipeSize = 1024 * 1024;
/// A program that the installer leaves running may hold its output open for ever.
constexpr std::int64_t drainMs = 300;

std::int64_t nowMs()
{
    timespec now = {};
    ::clock_gettime(CLOCK_MONOTONIC, &now);
    return std::int64_t(now.tv_sec) * 1000 + now.tv_nsec / 1000000;
}

void closeOne(int *descriptor)
{
    if (*descriptor >= 0) {
        ::close(*descriptor);
        *descriptor = -1;
    }
}

void closeRange(unsigned first, unsigned last)
{
    if (first > last) {
        return;
    }
#ifdef SYS_close_range
    if (::syscall(SYS_close_range, first, last, 0U) == 0) {
        return;
    }
#endif
    // Before Linux 5.9.
    rlimit limit = {};
    ::getrlimit(RLIMIT_NOFILE, &limit);
    const auto end = static_cast<unsigned>(std::min<rlim_t>(limit.rlim_cur, rlim_t(last) + 1));
    for (unsigned descriptor = first; descriptor < end; ++descriptor) {
        ::close(static_cast<int>(descriptor));
    }
}

void setNonBlocking(int descriptor)
{
    ::fcntl(descriptor, F_SETFL, ::fcntl(descriptor, F_GETFL) | O_NONBLOCK);
}

/// "[1234 bytes of the output are left out here]" on a line of its own.
class Mark
{
public:
    explicit Mark(std::uint64_t bytes)
    {
        put("\n[");
        char digits[20];
        std::size_t count = 0;
        do {
            digits[count++] = static_cast<char>('0' + bytes % 10);
            bytes /= 10;
        } while (bytes != 0);
        while (count > 0) {
            m_text[m_size++] = digits[--count];
        }
        put(" bytes of the output are left out here]\n");
    }

    const char *text() const { return m_text; }
    std::size_t size() const { return m_size; }

private:
    void put(const char *text)
    {
        const std::size_t length = std::strlen(text);
        std::memcpy(m_text + m_size, text, length);
        m_size += length;
    }

    char m_text[80] = {};
    std::size_t m_size = 0;
};

/// The beginning and the end of the output, in a file. A write that fails ends the storing: the
/// installer must not wait for a disk.
class Store
{
public:
    Store(int file, RVRunHead *head)
        : m_file(file)
        , m_head(head)
    {
    }

    void add(const char *bytes, std::size_t size)
    {
        while (size > 0 && m_file >= 0) {
            const std::uint64_t total = m_head->outputSize;
            const bool isFirst = total < RVRunHead::firstBytes;
            const std::uint64_t inRing =
                isFirst ? 0 : (total - RVRunHead::firstBytes) % RVRunHead::lastBytes;
            const std::uint64_t at = isFirst ? total : RVRunHead::firstBytes + inRing;
            const std::uint64_t room =
                isFirst ? RVRunHead::firstBytes - total : RVRunHead::lastBytes - inRing;
            const ssize_t written =
                ::pwrite(m_file, bytes, std::min<std::uint64_t>(size, room), off_t(at));
            if (written <= 0) {
                m_file = written < 0 && errno == EINTR ? m_file : -1;
                continue;
            }
            bytes += written;
            size -= static_cast<std::size_t>(written);
            m_head->outputSize += static_cast<std::uint64_t>(written);
            m_head->isStraight = m_head->outputSize <= RVRunHead::firstBytes + RVRunHead::lastBytes;
        }
    }

    /// Puts the end in order behind the beginning, by way of `room` for all of it.
    void straighten(char *room)
    {
        constexpr auto first = off_t(RVRunHead::firstBytes);
        if (m_file < 0 || m_head->isStraight
            || ::pread(m_file, room, RVRunHead::lastBytes, first)
                != ssize_t(RVRunHead::lastBytes)) {
            return;
        }
        const std::uint64_t begin =
            (m_head->outputSize - RVRunHead::firstBytes) % RVRunHead::lastBytes;
        std::rotate(room, room + begin, room + RVRunHead::lastBytes);
        const Mark mark(m_head->outputSize - RVRunHead::firstBytes - RVRunHead::lastBytes);
        const auto markSize = off_t(mark.size());
        if (::pwrite(m_file, room, RVRunHead::lastBytes, first + markSize)
                == ssize_t(RVRunHead::lastBytes)
            && ::pwrite(m_file, mark.text(), mark.size(), first) == markSize) {
            m_head->isStraight = true;
        }
    }

private:
    int m_file;
    RVRunHead *m_head;
};

/// One of the installer's two outputs, on its way to the program. What the program does not take in
/// time waits here; when there is no room left, the oldest is left out.
class Channel
{
public:
    /// The pipe, and the room; false without them.
    bool open()
    {
        int ends[2];
        if (::pipe2(ends, O_CLOEXEC) != 0) {
            return false;
        }
        m_in = ends[0];
        m_installerEnd = ends[1];
        ::fcntl(m_in, F_SETPIPE_SZ, pipeSize);
        void *room = ::mmap(nullptr, ringSize, PROT_READ | PROT_WRITE,
                            MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
        m_room = room == MAP_FAILED ? nullptr : static_cast<char *>(room);
        return m_room != nullptr;
    }
    void close()
    {
        closeOne(&m_in);
        closeOne(&m_installerEnd);
    }

    /// `out` is where the program reads.
    void begin(int out)
    {
        closeOne(&m_installerEnd);
        m_out = out;
        setNonBlocking(m_in);
        setNonBlocking(m_out);
        ::fcntl(m_out, F_SETPIPE_SZ, pipeSize);
    }

    int in() const { return m_in; }
    int installerEnd() const { return m_installerEnd; }
    int out() const { return m_out; }
    bool isWaiting() const { return m_out >= 0 && (m_size > 0 || m_leftOut > 0); }
    /// As large as `ringSize`; free once nothing waits.
    char *room() { return m_room; }

    /// So many bytes were read; 0 for none now, or never more.
    std::size_t take(Store *store)
    {
        if (m_in < 0) {
            return 0;
        }
        if (ringSize - m_size < readAtOnce) {
            const std::size_t excess = readAtOnce - (ringSize - m_size);
            m_start = (m_start + excess) % ringSize;
            m_size -= excess;
            m_leftOut += excess;
        }
        const std::size_t at = (m_start + m_size) % ringSize;
        const std::size_t length = std::min(readAtOnce, ringSize - at);
        const ssize_t got = ::read(m_in, m_room + at, length);
        if (got <= 0) {
            if (got == 0 || (errno != EAGAIN && errno != EINTR)) {
                closeOne(&m_in);
            }
            return 0;
        }
        const auto size = static_cast<std::size_t>(got);
        store->add(m_room + at, size);
        m_size += size;
        give();
        return size;
    }

    void give()
    {
        while (isWaiting()) {
            const Mark mark(m_leftOut);
            // Not longer than what a pipe takes at once or not at all.
            const ssize_t written = m_leftOut > 0
                ? ::write(m_out, mark.text(), mark.size())
                : ::write(m_out, m_room + m_start, std::min(m_size, ringSize - m_start));
            if (written < 0 && errno == EINTR) {
                continue;
            }
            if (written < 0 && errno == EAGAIN) {
                return;
            }
            if (written < 0) {
                // Nobody reads any more.
                closeOne(&m_out);
                break;
            }
            if (m_leftOut > 0) {
                m_leftOut = 0;
                continue;
            }
            m_start = (m_start + static_cast<std::size_t>(written)) % ringSize;
            m_size -= static_cast<std::size_t>(written);
        }
        if (m_out < 0 || m_size == 0) {
            // From the start again: most runs touch little of the room.
            m_start = 0;
            m_size = 0;
        }
    }

private:
    int m_in = -1;
    int m_installerEnd = -1;
    int m_out = -1;
    char *m_room = nullptr;
    std::size_t m_start = 0;
    std::size_t m_size = 0;
    std::uint64_t m_leftOut = 0;
};

/// What the keeper does once there is an installer.
class Keeping
{
public:
    Keeping(std::array<Channel, 2> *channels, pid_t installer, const RVKeeperFiles &files)
        : m_channels(*channels)
        , m_installer(installer)
        , m_files(files)
        , m_store(files.output, &m_head)
    {
    }

    [[noreturn]] void run()
    {
        detach();
        readToTheEnd();
        m_head.state = WIFEXITED(m_status) ? RVRunHead::State::Exited : RVRunHead::State::Killed;
        m_head.value = WIFEXITED(m_status) ? WEXITSTATUS(m_status) : WTERMSIG(m_status);
        writeHead();
        if (m_files.record >= 0) {
            ::fdatasync(m_files.record);
        }
        for (int &held : m_files.held) {
            closeOne(&held);
        }
        handOver();
        if (!m_head.isStraight) {
            m_store.straighten(m_channels[0].room());
            writeHead();
        }
        endAlike();
    }

private:
    void detach()
    {
        ::prctl(PR_SET_NAME, "ravel-keeper");
        struct sigaction action = {};
        action.sa_handler = SIG_IGN;
        for (const int number : {SIGPIPE, SIGHUP, SIGINT, SIGTERM, SIGQUIT, SIGTSTP}) {
            ::sigaction(number, &action, nullptr);
        }
        // Not ignored, or there would be nothing to wait for.
        action.sa_handler = [](int) {};
        ::sigaction(SIGCHLD, &action, nullptr);
        sigset_t mask;
        ::sigemptyset(&m_waitMask);
        ::sigemptyset(&mask);
        ::sigaddset(&mask, SIGCHLD);
        ::sigprocmask(SIG_SETMASK, &mask, nullptr);

        // What it stands in may be unmounted or removed.
        [[maybe_unused]] const int result = ::chdir("/");
        m_channels[0].begin(STDOUT_FILENO);
        if (m_channels[1].in() >= 0) {
            m_channels[1].begin(STDERR_FILENO);
        } else {
            ::close(STDERR_FILENO);
        }
        closeOthers();
        // For root; dpkg must not die of a program that takes all memory either.
        const int score = ::open("/proc/self/oom_score_adj", O_WRONLY | O_CLOEXEC);
        if (score >= 0) {
            [[maybe_unused]] const ssize_t written = ::write(score, "-900", 4);
            ::close(score);
        }
    }

    /// A descriptor of the program's that stays open would hold its locks and connections, and the
    /// one by which Qt learns that a program was started.
    void closeOthers()
    {
        std::array<int, RVKeeperFiles::mostHeld + 4> kept = {};
        const auto end = std::copy(m_files.held.begin(), m_files.held.end(), kept.begin());
        *end = m_files.record;
        *(end + 1) = m_files.output;
        *(end + 2) = m_channels[0].in();
        *(end + 3) = m_channels[1].in();
        std::sort(kept.begin(), kept.end());
        unsigned first = STDERR_FILENO + 1;
        for (const int descriptor : kept) {
            if (descriptor >= int(first)) {
                closeRange(first, unsigned(descriptor) - 1);
                first = unsigned(descriptor) + 1;
            }
        }
        closeRange(first, ~0U);
    }

    void readToTheEnd()
    {
        bool hasEnded = false;
        std::int64_t deadline = 0;
        std::size_t drained = 0;
        for (;;) {
            if (!hasEnded && ::waitpid(m_installer, &m_status, WNOHANG) == m_installer) {
                hasEnded = true;
                deadline = nowMs() + drainMs;
            }
            std::size_t got = 0;
            for (Channel &channel : m_channels) {
                got += channel.take(&m_store);
                channel.give();
            }
            if (got > 0) {
                writeHead();
                drained += hasEnded ? got : 0;
            }
            const bool isClosed = m_channels[0].in() < 0 && m_channels[1].in() < 0;
            // What the installer itself wrote is in the pipes and is read however late it is.
            const bool isDrained = got == 0 || drained > std::size_t(2) * pipeSize;
            if (hasEnded && (isClosed || (isDrained && nowMs() >= deadline))) {
                return;
            }
            if (got == 0) {
                wait(hasEnded ? std::max<std::int64_t>(deadline - nowMs(), 0) : -1);
            }
        }
    }

    /// Until one of the pipes is ready, or the installer ends.
    void wait(std::int64_t timeoutMs)
    {
        std::array<pollfd, 4> polled = {};
        nfds_t count = 0;
        for (const Channel &channel : m_channels) {
            if (channel.in() >= 0) {
                polled[count++] = {channel.in(), POLLIN, 0};
            }
            if (channel.isWaiting()) {
                polled[count++] = {channel.out(), POLLOUT, 0};
            }
        }
        const timespec timeout = {static_cast<time_t>(timeoutMs / 1000),
                                  static_cast<long>(timeoutMs % 1000 * 1000000)};
        ::ppoll(polled.data(), count, timeoutMs < 0 ? nullptr : &timeout, &m_waitMask);
    }

    /// The program may take its time for the rest.
    void handOver()
    {
        while (m_channels[0].isWaiting() || m_channels[1].isWaiting()) {
            for (Channel &channel : m_channels) {
                channel.close();
                channel.give();
            }
            if (m_channels[0].isWaiting() || m_channels[1].isWaiting()) {
                wait(-1);
            }
        }
    }

    void writeHead()
    {
        if (m_files.record >= 0) {
            char text[RVRunHead::size];
            m_head.write(text);
            [[maybe_unused]] const ssize_t written = ::pwrite(m_files.record, text, sizeof text, 0);
        }
    }

    [[noreturn]] void endAlike()
    {
        if (m_head.state == RVRunHead::State::Killed) {
            // The installer has left its core file already.
            ::prctl(PR_SET_DUMPABLE, 0);
            struct sigaction action = {};
            action.sa_handler = SIG_DFL;
            ::sigaction(m_head.value, &action, nullptr);
            sigset_t none;
            ::sigemptyset(&none);
            ::sigprocmask(SIG_SETMASK, &none, nullptr);
            ::kill(::getpid(), m_head.value);
            ::_exit(128 + m_head.value);
        }
        ::_exit(m_head.value);
    }

    std::array<Channel, 2> &m_channels;
    const pid_t m_installer;
    RVKeeperFiles m_files;
    RVRunHead m_head;
    Store m_store;
    int m_status = 0;
    sigset_t m_waitMask = {};
};

} // namespace

void RVKeeperLoop::fork(bool isMerged, const RVKeeperFiles &files)
{
    // The interrupt key and the end of a terminal reach everything that belongs to it, and a
    // script that reads the terminal waits for it: neither keeper nor installer has one.
    ::setsid();
    std::array<Channel, 2> channels;
    if (!channels[0].open() || (!isMerged && !channels[1].open())) {
        channels[0].close();
        channels[1].close();
        return;
    }
    sigset_t all;
    sigset_t before;
    ::sigfillset(&all);
    ::sigprocmask(SIG_SETMASK, &all, &before);
    // Not fork(), which takes the locks of memory and streams: another thread may have held one.
    const pid_t installer = ::_Fork();
    if (installer > 0) {
        Keeping(&channels, installer, files).run();
    }
    if (installer == 0) {
        // A signal to the installer's group is not for its keeper.
        ::setsid();
        ::dup2(channels[0].installerEnd(), STDOUT_FILENO);
        ::dup2(channels[isMerged ? 0 : 1].installerEnd(), STDERR_FILENO);
    } else {
        channels[0].close();
        channels[1].close();
    }
    ::sigprocmask(SIG_SETMASK, &before, nullptr);
}

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/support/Locker.h"

#include <QFile>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

Locker::Locker(const QString &file)
{
    int ready[2];
    int gate[2];
    if (::pipe2(ready, O_CLOEXEC) != 0 || ::pipe2(gate, O_CLOEXEC) != 0) {
        return;
    }
    const QByteArray name = QFile::encodeName(file);
    m_process = ::fork();
    if (m_process == 0) {
        ::close(gate[1]);
        const int handle = ::open(name.constData(), O_RDWR | O_CREAT, 0640);
        struct flock lock = {};
        lock.l_type = F_WRLCK;
        lock.l_whence = SEEK_SET;
        char byte = ::fcntl(handle, F_SETLK, &lock) == 0 ? 'y' : 'n';
        const bool isTold = ::write(ready[1], &byte, 1) == 1;
        ::_exit(isTold && ::read(gate[0], &byte, 1) == 0 ? 0 : 1);
    }
    char byte = 0;
    m_isHeld = ::read(ready[0], &byte, 1) == 1 && byte == 'y';
    ::close(ready[0]);
    ::close(ready[1]);
    ::close(gate[0]);
    m_gate = gate[1];
}

void Locker::release()
{
    if (m_gate >= 0) {
        ::close(m_gate);
        m_gate = -1;
        ::waitpid(m_process, nullptr, 0);
    }
}

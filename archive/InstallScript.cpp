// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "archive/InstallScript.h"

#include <QFile>

#include <fcntl.h>
#include <unistd.h>

bool writeInstallScript(const QByteArray &lines)
{
    constexpr char fileName[] = "./RVinstall.sh";
    ::unlink(fileName);
    const int handle = ::open(fileName, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0700);
    if (handle < 0) {
        return false;
    }
    QFile script;
    const bool written = script.open(handle, QIODevice::WriteOnly, QFileDevice::AutoCloseHandle)
        && script.write(lines) == lines.size() && script.flush();
    script.close();
    if (!written) {
        ::unlink(fileName);
    }
    return written;
}

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "archive/InstallScript.h"

#include "core/RVLogger.h"
#include "core/RVPaths.h"

#include <QFile>
#include <QProcess>

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

QByteArray unlockedScript(const QByteArray &command)
{
    return "#!/bin/bash\n"
           "fsunlock >/dev/null 2>&1\n"
           "lockstate=$?\n"
        + command
        + "\n"
          "retval=$?\n"
          "cd /tmp\n"
          "[ $lockstate -eq 0 ] && fslock >/dev/null 2>&1\n"
          "exit $retval\n";
}

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
    const int reason = errno;
    script.close();
    if (!written) {
        ::unlink(fileName);
        errno = reason;
    }
    return written;
}

void failInstallation(QProcess *proc, const QString &reason, const RVPaths &paths)
{
    RVLogger().log(3, "%s", qUtf8Printable(reason));
    proc->start(paths.shell,
                {QStringLiteral("-c"), QStringLiteral("printf '%s\\n' \"$1\" >&2; exit 1"),
                 QStringLiteral("RVinstall.sh"), reason});
}

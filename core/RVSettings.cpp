// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/RVSettings.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

void RVSettings::makePrivate(const QString &fileName)
{
    QDir().mkpath(QFileInfo(fileName).path());
    const QByteArray path = QFile::encodeName(fileName);
    // Made with its mode: a file that is closed to others only later may be open by then.
    const int fd =
        ::open(path.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOCTTY, 0600);
    if (fd >= 0) {
        ::close(fd);
    } else if (errno == EEXIST) {
        QFile::setPermissions(fileName, QFile::ReadOwner | QFile::WriteOwner);
    }
}

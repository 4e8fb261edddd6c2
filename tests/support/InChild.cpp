// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/support/InChild.h"

#include <QFile>

#include <cstdio>
#include <sched.h>
#include <sys/mount.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

const QString noMounts = QStringLiteral("no private mounts");

bool write(const char *path, const QByteArray &text)
{
    QFile file(QString::fromLatin1(path));
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
}

bool enterPrivateMounts()
{
    const QByteArray user = QByteArray::number(::geteuid());
    const QByteArray group = QByteArray::number(::getegid());
    if (::geteuid() == 0) {
        if (::unshare(CLONE_NEWNS) != 0) {
            return false;
        }
    } else if (::unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0
               || !write("/proc/self/uid_map", user + ' ' + user + " 1")
               || !write("/proc/self/setgroups", "deny")
               || !write("/proc/self/gid_map", group + ' ' + group + " 1")) {
        return false;
    }
    return ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
}

bool withMounts(const std::function<bool()> &mount, const std::function<QString()> &check,
                QString *result)
{
    *result = inChild([&] {
        return enterPrivateMounts() && mount() ? check() : noMounts;
    });
    return *result != noMounts;
}

} // namespace

QString inChild(const std::function<QString()> &check)
{
    int answer[2];
    if (::pipe(answer) != 0) {
        return QStringLiteral("no pipe");
    }
    std::fflush(nullptr);
    const pid_t child = ::fork();
    if (child == 0) {
        const QByteArray bytes = check().toUtf8();
        const bool sent = ::write(answer[1], bytes.constData(), static_cast<size_t>(bytes.size()))
            == bytes.size();
        ::_exit(sent ? 0 : 1);
    }
    ::close(answer[1]);
    QFile reader;
    QString result = QStringLiteral("no answer");
    if (child > 0 && reader.open(answer[0], QIODevice::ReadOnly, QFile::AutoCloseHandle)) {
        result = QString::fromUtf8(reader.readAll());
    }
    int status = 0;
    if (child < 0 || ::waitpid(child, &status, 0) != child || status != 0) {
        return QStringLiteral("the child failed: ") + result;
    }
    return result;
}

bool withSmallDisk(const QString &directory, const char *size,
                   const std::function<QString()> &check, QString *result)
{
    const QByteArray place = QFile::encodeName(directory);
    const QByteArray options = QByteArray("size=") + size;
    return withMounts(
        [&] {
            return ::mount("none", place.constData(), "tmpfs", 0, options.constData()) == 0;
        },
        check, result);
}

bool withReadOnly(const QString &directory, const std::function<QString()> &check, QString *result)
{
    const QByteArray place = QFile::encodeName(directory);
    return withMounts(
        [&] {
            return ::mount(place.constData(), place.constData(), nullptr, MS_BIND, nullptr) == 0
                && ::mount("none", place.constData(), nullptr, MS_BIND | MS_REMOUNT | MS_RDONLY,
                           nullptr)
                == 0;
        },
        check, result);
}

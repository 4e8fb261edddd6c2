// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "repository/RVKeyringFile.h"

#include <QFile>
#include <QRegularExpression>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

/// A descriptor of its own.
class Handle
{
public:
    explicit Handle(int number)
        : m_number(number)
    {
    }
    ~Handle()
    {
        if (m_number >= 0) {
            ::close(m_number);
        }
    }
    int number() const { return m_number; }

private:
    Q_DISABLE_COPY_MOVE(Handle)

    const int m_number;
};

bool isOursAlone(const struct stat &status)
{
    return (status.st_uid == 0 || status.st_uid == ::geteuid())
        && (status.st_mode & (S_IWGRP | S_IWOTH)) == 0;
}

} // namespace

bool RVKeyringFile::isName(const QString &name)
{
    static const QRegularExpression form(
        QStringLiteral("\\A[A-Za-z0-9_][A-Za-z0-9._-]{0,99}\\.gpg\\z"));
    return form.match(name).hasMatch();
}

std::optional<QByteArray> RVKeyringFile::read(const RVPaths &paths, const QString &name,
                                              QString *reason)
{
    const QString path = paths.keyringDir + QLatin1Char('/') + name;
    const auto fail = [&](const QString &text) {
        *reason = QStringLiteral("The keyring '%1' cannot be used: %2").arg(path, text);
        return std::nullopt;
    };
    if (!isName(name)) {
        return fail(QStringLiteral("that is no plain file name"));
    }
    const Handle folder(::open(QFile::encodeName(paths.keyringDir).constData(),
                               O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    struct stat status = {};
    if (folder.number() < 0 || ::fstat(folder.number(), &status) != 0) {
        return fail(qt_error_string(errno));
    }
    if (!isOursAlone(status)) {
        return fail(QStringLiteral("others can write to its folder"));
    }
    // A pipe is not waited for.
    const Handle file(::openat(folder.number(), name.toLatin1().constData(),
                               O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    if (file.number() < 0 || ::fstat(file.number(), &status) != 0) {
        return fail(errno == ELOOP ? QStringLiteral("it is a symbolic link")
                                   : qt_error_string(errno));
    }
    if (!S_ISREG(status.st_mode)) {
        return fail(QStringLiteral("it is no regular file"));
    }
    if (!isOursAlone(status)) {
        return fail(QStringLiteral("others can write to it"));
    }
    if (status.st_size == 0 || status.st_size > maxBytes) {
        return fail(QStringLiteral("it is empty or longer than %1 bytes").arg(maxBytes));
    }
    QFile keys;
    if (!keys.open(file.number(), QIODevice::ReadOnly)) {
        return fail(keys.errorString());
    }
    const QByteArray bytes = keys.read(maxBytes + 1);
    if (bytes.isEmpty() || bytes.size() > maxBytes) {
        return fail(QStringLiteral("it cannot be read"));
    }
    return bytes;
}

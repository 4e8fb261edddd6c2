// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/support/OrdinaryUser.h"

#include <QFile>

#include <cstdio>
#include <grp.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

bool dropRights()
{
    return ::geteuid() != 0
        || (::setgroups(0, nullptr) == 0
            && ::setresgid(OrdinaryUser::id, OrdinaryUser::id, OrdinaryUser::id) == 0
            && ::setresuid(OrdinaryUser::id, OrdinaryUser::id, OrdinaryUser::id) == 0);
}

} // namespace

QString OrdinaryUser::run(const QString &directory, const std::function<QString()> &check)
{
    int answer[2];
    if (::pipe(answer) != 0) {
        return QStringLiteral("no pipe");
    }
    std::fflush(nullptr);
    const pid_t child = ::fork();
    if (child == 0) {
        QString result = QStringLiteral("cannot become an ordinary user");
        if (::chdir(QFile::encodeName(directory).constData()) == 0 && dropRights()) {
            result = check();
        }
        const QByteArray bytes = result.toUtf8();
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

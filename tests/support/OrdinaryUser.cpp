// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/support/OrdinaryUser.h"

#include "tests/support/InChild.h"

#include <QFile>

#include <grp.h>
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
    return inChild([&] {
        return ::chdir(QFile::encodeName(directory).constData()) == 0 && dropRights()
            ? check()
            : QStringLiteral("cannot become an ordinary user");
    });
}

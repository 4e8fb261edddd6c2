// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/RVCtl.h"

#include <QCoreApplication>

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("ravelctl"));
    QCoreApplication::setApplicationVersion(QStringLiteral(RAVEL_VERSION));
    return RVCtl().run(QCoreApplication::arguments());
}

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "install/RVLockHolder.h"

#include <QFile>

RVLockHolder RVLockHolder::ofProcess(qint64 process)
{
    RVLockHolder holder;
    holder.isSet = true;
    if (process > 0) {
        holder.process = process;
        QFile file(QStringLiteral("/proc/%1/comm").arg(process));
        if (file.open(QIODevice::ReadOnly)) {
            holder.program = QString::fromLocal8Bit(file.readAll()).trimmed();
        }
    }
    return holder;
}

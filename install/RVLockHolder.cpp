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

QByteArray RVLockHolder::beginOf(qint64 process)
{
    constexpr int field = 19; // 22 of proc(5), counted from behind the name
    QFile file(QStringLiteral("/proc/%1/stat").arg(process));
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    const QByteArray text = file.readAll();
    return text.mid(text.lastIndexOf(')') + 2).split(' ').value(field);
}

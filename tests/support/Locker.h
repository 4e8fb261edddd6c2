// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

#include <sys/types.h>

/// Another process that holds a lock of the package tool's kind until it is told to let go.
class Locker
{
public:
    explicit Locker(const QString &file);
    ~Locker() { release(); }

    bool isHeld() const { return m_isHeld; }
    QString process() const { return QString::number(m_process); }
    void release();

private:
    Q_DISABLE_COPY_MOVE(Locker)

    pid_t m_process = -1;
    int m_gate = -1;
    bool m_isHeld = false;
};

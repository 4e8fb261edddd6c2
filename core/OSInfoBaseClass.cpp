// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/OSInfoBaseClass.h"

OSInfoBaseClass::OSInfoBaseClass(QObject *parent)
    : QObject(parent)
{
}

OSInfoBaseClass::~OSInfoBaseClass() = default;

bool OSInfoBaseClass::isNotConfigured(const QString &packageName) const
{
    Q_UNUSED(packageName)
    return false;
}

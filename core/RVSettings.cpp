// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/RVSettings.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

void RVSettings::makePrivate(const QString &fileName)
{
    QDir().mkpath(QFileInfo(fileName).path());
    QFile file(fileName);
    if (!file.exists() && !file.open(QIODevice::WriteOnly | QIODevice::NewOnly)) {
        return;
    }
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
}

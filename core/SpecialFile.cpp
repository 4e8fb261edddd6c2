// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/SpecialFile.h"

#include <QFileInfo>
#include <QUrl>

bool isSpecialFile(const QUrl &url)
{
    const QFileInfo file(url.toLocalFile());
    return url.isLocalFile() && file.exists() && !file.isFile() && !file.isDir();
}

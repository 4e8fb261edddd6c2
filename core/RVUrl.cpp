// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/RVUrl.h"

#include <QFileInfo>

QString RVUrl::fileName(const QUrl &url)
{
    return QFileInfo(url.path(QUrl::FullyDecoded)).fileName();
}

QString RVUrl::shown(const QUrl &url)
{
    return url.toString(QUrl::RemovePassword);
}

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>

/// A package as far as that shows from outside, for installers that look no further.
inline QByteArray packageOutline(const QByteArray &content = "package")
{
    QByteArray result("!<arch>\n");
    for (const char *member : {"debian-binary", "control.tar", "data.tar"}) {
        result += QByteArray(member).leftJustified(16, ' ') + QByteArray("0").leftJustified(12, ' ')
            + QByteArray("0     0     100644  ")
            + QByteArray::number(content.size()).leftJustified(10, ' ') + "`\n" + content
            + QByteArray(content.size() % 2, '\n');
    }
    return result;
}

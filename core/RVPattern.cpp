// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/RVPattern.h"

#include "core/RVLogger.h"

#include <QRegExp>
#include <QVector>

bool RVPattern::isBounded(const QString &pattern)
{
    return pattern.size() <= maxLength;
}

bool RVPattern::exactMatch(const QString &pattern, const QString &text)
{
    if (!isBounded(pattern)) {
        RVLogger().log(4, "Regular expression beyond the bounds");
        return false;
    }
    return QRegExp(pattern, Qt::CaseSensitive, QRegExp::RegExp).exactMatch(text);
}

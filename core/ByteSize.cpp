// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/ByteSize.h"

#include <QStringList>

ByteSize::ByteSize(qint64 bytes)
{
    constexpr qint64 kibibyte = 1024;
    constexpr qint64 mebibyte = 1024 * kibibyte;
    constexpr qint64 gibibyte = 1024 * mebibyte;
    if (bytes < kibibyte) {
        number = QString::number(bytes);
        return;
    }
    qint64 size = kibibyte;
    unit = KiB;
    if (bytes >= gibibyte) {
        size = gibibyte;
        unit = GiB;
    } else if (bytes >= mebibyte) {
        size = mebibyte;
        unit = MiB;
    }
    const float value = static_cast<float>(bytes) * (1.0F / static_cast<float>(size));
    number = QString::number(static_cast<double>(value), 'f', bytes < 10 * size ? 1 : 0);
}

QString ByteSize::toEnglish() const
{
    static const QStringList units{QStringLiteral("B"), QStringLiteral("KiB"),
                                   QStringLiteral("MiB"), QStringLiteral("GiB")};
    return number + QLatin1Char(' ') + units.at(unit);
}

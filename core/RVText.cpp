// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/RVText.h"

#include <QVector>

namespace
{

QString escaped(uint character)
{
    const auto unit = [](uint value) {
        return QStringLiteral("\\u%1").arg(value, 4, 16, QLatin1Char('0'));
    };
    return QChar::requiresSurrogates(character)
        ? unit(QChar::highSurrogate(character)) + unit(QChar::lowSurrogate(character))
        : unit(character);
}

QString visible(const QString &text, bool lines)
{
    QString result;
    for (const uint character : text.toUcs4()) {
        if (RVText::isVisible(character) || (lines && character == '\n')) {
            result += QString::fromUcs4(&character, 1);
        } else {
            result += escaped(character);
        }
    }
    return result;
}

} // namespace

bool RVText::isVisible(uint character)
{
    switch (QChar::category(character)) {
    case QChar::Other_Control:
    case QChar::Other_Format: // turns the order of what follows around, or hides it
    case QChar::Other_Surrogate:
    case QChar::Other_PrivateUse:
    case QChar::Other_NotAssigned:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return false;
    default:
        return true;
    }
}

QString RVText::safe(const QString &text)
{
    return visible(text, false);
}

QString RVText::safeLines(const QString &text)
{
    return visible(text, true);
}

QString RVText::shown(const QString &text)
{
    constexpr uint zeroWidthNonJoiner = 0x200c;
    constexpr uint zeroWidthJoiner = 0x200d;
    QVector<uint> result;
    for (const uint character : text.toUcs4()) {
        if (isVisible(character) || character == '\t' || character == zeroWidthNonJoiner
            || character == zeroWidthJoiner) {
            result.append(character);
        } else if (QChar::category(character) != QChar::Other_Format) {
            result.append(' ');
        }
    }
    return QString::fromUcs4(result.constData(), result.size());
}

QString RVText::shown(const QString &text, int longest)
{
    // First, so that a long text costs no more than a short one.
    return shown(shortened(text, longest));
}

QString RVText::shortened(const QString &text, int length)
{
    if (text.size() <= length) {
        return text;
    }
    QString result = text.left(length - 1);
    if (result.at(result.size() - 1).isHighSurrogate()) {
        result.chop(1);
    }
    return result + QChar(0x2026);
}

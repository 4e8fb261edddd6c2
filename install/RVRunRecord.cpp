// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "install/RVRunRecord.h"

#include <QFile>
#include <QRegularExpression>
#include <QUrl>

#include <cstring>

namespace
{

constexpr char form[] = "state ?\nvalue ???\noutput ????????????????????\nstraight ?\n      ";
static_assert(sizeof form == RVRunHead::size);
constexpr int stateAt = 6;
constexpr int valueAt = 14;
constexpr int valueDigits = 3;
constexpr int outputAt = 25;
constexpr int outputDigits = 20;
constexpr int straightAt = 55;

void putNumber(char *field, int digits, std::uint64_t number)
{
    for (int i = digits - 1; i >= 0; --i) {
        field[i] = static_cast<char>('0' + number % 10);
        number /= 10;
    }
}

} // namespace

void RVRunHead::write(char (&text)[size]) const
{
    std::memcpy(text, form, size - 1);
    text[size - 1] = '\n';
    text[stateAt] = static_cast<char>(state);
    putNumber(text + valueAt, valueDigits, static_cast<std::uint64_t>(value));
    putNumber(text + outputAt, outputDigits, outputSize);
    text[straightAt] = isStraight ? 'y' : 'n';
}

QByteArray RVRunRecord::toText() const
{
    char text[RVRunHead::size];
    head.write(text);
    // A path may hold a line feed.
    return QByteArray(text, RVRunHead::size) + "started "
        + started.toString(Qt::ISODateWithMs).toLatin1() + "\nfile "
        + QFile::encodeName(outputFile).toPercentEncoding("/") + '\n';
}

bool RVRunRecord::fromText(const QByteArray &text, RVRunRecord *record)
{
    static const QRegularExpression expression(
        QStringLiteral("\\Astate ([rxk])\nvalue ([0-9]{3})\noutput ([0-9]{20})\nstraight ([yn])\n *"
                       "\nstarted ([-0-9T:.Z]+)\nfile (\\S*)\n\\z"));
    const QRegularExpressionMatch match = expression.match(QString::fromLatin1(text));
    if (!match.hasMatch()) {
        return false;
    }
    record->head.state = static_cast<RVRunHead::State>(match.captured(1).at(0).toLatin1());
    record->head.value = match.captured(2).toInt();
    record->head.outputSize = match.captured(3).toULongLong();
    record->head.isStraight = match.captured(4) == QLatin1String("y");
    record->started = QDateTime::fromString(match.captured(5), Qt::ISODateWithMs);
    record->outputFile =
        QFile::decodeName(QByteArray::fromPercentEncoding(match.captured(6).toLatin1()));
    return true;
}

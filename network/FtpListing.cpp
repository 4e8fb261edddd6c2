// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "network/FtpListing.h"

#include <QVector>

#include <algorithm>

namespace
{

constexpr int maxLine = 8 * 1024;
// Before a name: mode, links, a wordy owner and group, a device's two numbers, three of the date.
constexpr int maxWords = 16;
// IIS puts a directory's name into the column in which that of a file begins.
constexpr int blanksAfterDir = 10;

struct Word {
    QByteArray text;
    int end = 0;
};

QVector<Word> words(const QByteArray &line)
{
    const auto isBlank = [](char c) {
        return c == ' ' || c == '\t';
    };
    QVector<Word> result;
    int begin = 0;
    while (result.size() < maxWords) {
        while (begin < line.size() && isBlank(line.at(begin))) {
            ++begin;
        }
        if (begin == line.size()) {
            break;
        }
        int end = begin;
        while (end < line.size() && !isBlank(line.at(end))) {
            ++end;
        }
        result.append({line.mid(begin, end - begin), end});
        begin = end;
    }
    return result;
}

/// An unsigned decimal number and nothing else; -1 for any other text.
qint64 number(const QByteArray &text)
{
    const bool isDecimal = std::all_of(text.cbegin(), text.cend(), [](char c) {
        return c >= '0' && c <= '9';
    });
    bool ok = false;
    const qint64 value = isDecimal ? text.toLongLong(&ok) : 0;
    return ok ? value : -1;
}

int number(const QByteArray &text, int minimum, int maximum)
{
    const qint64 value = number(text);
    return value >= minimum && value <= maximum ? static_cast<int>(value) : -1;
}

QString decoded(const QByteArray &raw, bool isUtf8)
{
    return isUtf8 ? QString::fromUtf8(raw) : QString::fromLatin1(raw);
}

bool isName(const QByteArray &name)
{
    return !name.isEmpty() && std::none_of(name.cbegin(), name.cend(), [](char c) {
        return c == '/' || c == '\x7f' || static_cast<uchar>(c) < 0x20;
    });
}

/// "9:41" or "09:41"; with a half of the day also "09:41AM".
QTime timeOfDay(QByteArray text, bool mayHaveHalf)
{
    int offset = 0;
    bool isHalf = false;
    if (mayHaveHalf && text.size() > 2) {
        const QByteArray half = text.right(2).toUpper();
        isHalf = half == "AM" || half == "PM";
        if (isHalf) {
            offset = half == "PM" ? 12 : 0;
            text.chop(2);
        }
    }
    const int colon = text.indexOf(':');
    const QByteArray minute = text.mid(colon + 1);
    int hour = colon > 0 ? number(text.left(colon), isHalf ? 1 : 0, isHalf ? 12 : 23) : -1;
    if (hour < 0 || minute.size() != 2) {
        return {};
    }
    if (isHalf) {
        hour = hour % 12 + offset;
    }
    return {hour, number(minute, 0, 59)};
}

/// The latest such moment that is at most a day after now; leap days are at most eight years apart.
QDateTime latest(int month, int day, const QTime &time, const QDateTime &now)
{
    const QDateTime limit = now.toUTC().addDays(1);
    for (int year = limit.date().year(); year > limit.date().year() - 10; --year) {
        QDateTime moment(QDate(year, month, day), time, Qt::UTC);
        if (moment.isValid() && moment <= limit) {
            return moment;
        }
    }
    return {};
}

/// "Nov 21 09:41" or "Nov 21 2026" at this word; nothing for anything else. A day that the month
/// does not have is a date still, but an invalid moment.
std::optional<QDateTime> dateAt(const QVector<Word> &line, int first, const QDateTime &now)
{
    static const QByteArray months = QByteArrayLiteral("janfebmaraprmayjunjulaugsepoctnovdec");
    const QByteArray name = line.at(first).text.toLower();
    const int month = name.size() == 3 ? months.indexOf(name) : -1;
    const int day = number(line.at(first + 1).text, 1, 31);
    if (month < 0 || month % 3 != 0 || day < 0) {
        return {};
    }
    const QByteArray &last = line.at(first + 2).text;
    const int year = last.size() == 4 ? number(last, 1, 9999) : -1;
    if (year > 0) {
        return QDateTime(QDate(year, month / 3 + 1, day), QTime(0, 0), Qt::UTC);
    }
    const QTime time = timeOfDay(last, false);
    if (!time.isValid()) {
        return {};
    }
    return latest(month / 3 + 1, day, time, now);
}

/// "drwxr-xr-x", with at most one mark behind it.
bool isMode(const QByteArray &text)
{
    if (text.size() < 10 || text.size() > 11 || !QByteArrayLiteral("-dlbcpsD").contains(text.at(0))
        || (text.size() == 11 && !QByteArrayLiteral("+.@").contains(text.at(10)))) {
        return false;
    }
    return std::all_of(text.cbegin() + 1, text.cbegin() + 10, [](char c) {
        return QByteArrayLiteral("rwxsStTlL-").contains(c);
    });
}

int permissions(const QByteArray &mode)
{
    int result = 0;
    for (int i = 1; i < 10; ++i) {
        // In the place of an "x", capitals say that the file is set-id or sticky, but no program.
        const char c = mode.at(i);
        result = result * 2 + (c != '-' && c != 'S' && c != 'T' && c != 'L' ? 1 : 0);
    }
    return result;
}

QByteArray withoutTarget(const QByteArray &name, qint64 sizeOfTarget)
{
    static const QByteArray arrow = QByteArrayLiteral(" -> ");
    // Both names may contain an arrow; where the size is that of the target, it tells which one it
    // is.
    for (int at = name.indexOf(arrow); at >= 0; at = name.indexOf(arrow, at + 1)) {
        if (name.size() - at - arrow.size() == sizeOfTarget) {
            return name.left(at);
        }
    }
    const int first = name.indexOf(arrow);
    return first < 0 ? name : name.left(first);
}

struct Unix {
    int month = 0; // the word at which the date begins
    int ownersEnd = 0;
    qint64 size = 0;
    QDateTime time;
};

/// Owner and group are free text, so the date, behind a size, is what the line hangs on.
std::optional<Unix> findUnixDate(const QVector<Word> &line, bool isDevice, const QDateTime &now)
{
    for (int month = 2; month + 2 < line.size(); ++month) {
        const auto time = dateAt(line, month, now);
        if (!time) {
            continue;
        }
        const QByteArray &size = line.at(month - 1).text;
        if (isDevice) {
            const bool isSplit = month > 2 && line.at(month - 2).text.endsWith(',');
            if (isSplit || size.contains(',')) {
                return Unix{month, isSplit ? month - 2 : month - 1, 0, *time};
            }
        }
        if (number(size) >= 0) {
            return Unix{month, month - 1, number(size), *time};
        }
    }
    return {};
}

std::optional<FtpListing::Entry> parseUnix(const QByteArray &line, const QVector<Word> &parts,
                                           bool isUtf8, const QString &user, const QDateTime &now)
{
    if (parts.isEmpty() || !isMode(parts.first().text)) {
        return {};
    }
    const QByteArray &mode = parts.first().text;
    const char type = mode.at(0);
    const auto found = findUnixDate(parts, type == 'b' || type == 'c', now);
    if (!found) {
        return {};
    }

    FtpListing::Entry entry;
    entry.rawName = line.mid(parts.at(found->month + 2).end + 1);
    if (type == 'l') {
        entry.rawName = withoutTarget(entry.rawName, found->size);
    }
    XUrlInfo &info = entry.info;
    info.setDir(type == 'd');
    info.setFile(type == '-');
    info.setSymLink(type == 'l');
    info.setSize(found->size);
    info.setLastModified(found->time);

    QStringList owners;
    for (int i = number(parts.at(1).text) >= 0 ? 2 : 1; i < found->ownersEnd; ++i) {
        owners.append(decoded(parts.at(i).text, isUtf8));
    }
    if (!owners.isEmpty()) {
        info.setOwner(owners.takeFirst());
    }
    info.setGroup(owners.join(QLatin1Char(' ')));

    const int bits = permissions(mode);
    const bool isOwner = !user.isEmpty() && info.owner() == user;
    info.setPermissions(bits);
    info.setReadable((bits & XUrlInfo::ReadOther) != 0
                     || (isOwner && (bits & XUrlInfo::ReadOwner) != 0));
    info.setWritable((bits & XUrlInfo::WriteOther) != 0
                     || (isOwner && (bits & XUrlInfo::WriteOwner) != 0));
    return entry;
}

std::optional<FtpListing::Entry> parseDos(const QByteArray &line, const QVector<Word> &parts)
{
    if (parts.size() < 3) {
        return {};
    }
    const QList<QByteArray> date = parts.at(0).text.split('-');
    const QTime time = timeOfDay(parts.at(1).text, true);
    if (date.size() != 3 || !time.isValid()) {
        return {};
    }
    const int month = number(date.at(0), 1, 12);
    const int day = number(date.at(1), 1, 31);
    int year = number(date.at(2), 0, 9999);
    if (month < 0 || day < 0 || year < 0 || (date.at(2).size() != 2 && date.at(2).size() != 4)) {
        return {};
    }
    if (date.at(2).size() == 2) {
        year += year < 70 ? 2000 : 1900;
    }

    FtpListing::Entry entry;
    const Word &kind = parts.at(2);
    const bool isDir = kind.text.toUpper() == "<DIR>";
    const qint64 size = isDir ? 0 : number(kind.text);
    if (size < 0) {
        return {};
    }
    int begin = kind.end;
    const int blanks = isDir ? blanksAfterDir : 1;
    while (begin < line.size() && begin < kind.end + blanks && line.at(begin) == ' ') {
        ++begin;
    }
    entry.rawName = line.mid(begin);
    entry.info.setDir(isDir);
    entry.info.setFile(!isDir);
    entry.info.setSize(size);
    entry.info.setLastModified(QDateTime(QDate(year, month, day), time, Qt::UTC));
    return entry;
}

} // namespace

std::optional<FtpListing::Entry> FtpListing::parse(QByteArray line, const QString &user,
                                                   const QDateTime &now)
{
    if (line.endsWith('\n')) {
        line.chop(1);
    }
    if (line.endsWith('\r')) {
        line.chop(1);
    }
    if (line.size() > maxLine) {
        return {};
    }
    const bool isUtf8 = QString::fromUtf8(line).toUtf8() == line;
    const QVector<Word> parts = words(line);
    std::optional<Entry> entry = parseUnix(line, parts, isUtf8, user, now);
    if (!entry) {
        entry = parseDos(line, parts);
    }
    if (!entry || !isName(entry->rawName)) {
        return {};
    }
    entry->info.setName(decoded(entry->rawName, isUtf8));
    return entry;
}

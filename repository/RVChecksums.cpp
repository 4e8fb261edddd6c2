// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "repository/RVChecksums.h"

#include <QRegularExpression>

#include <limits>

const QString RVChecksums::fileName = QStringLiteral("SHA256SUMS");
const QString RVChecksums::signatureName = QStringLiteral("SHA256SUMS.gpg");

namespace
{

constexpr int sumBytes = 32;
constexpr int hexDigits = 2 * sumBytes;
constexpr int longestName = 255;

const QByteArray idField = QByteArrayLiteral("Repository");
const QByteArray serialField = QByteArrayLiteral("Serial");
const QByteArray validField = QByteArrayLiteral("Valid-Until");
const QByteArray headField = QByteArrayLiteral("Head");
const QByteArray fieldPrefix = QByteArrayLiteral("# Ravel-");

bool isName(const QByteArray &name)
{
    return !name.isEmpty() && name.size() <= longestName && name != "." && name != ".."
        && !name.contains('/') && !name.contains('\0');
}

/// Empty unless it is exactly the digits of a sum.
QByteArray sumFromHex(const QByteArray &digits)
{
    const QByteArray sum = QByteArray::fromHex(digits);
    return digits.size() == hexDigits && sum.toHex() == digits.toLower() ? sum : QByteArray();
}

/// Nothing but digits, without leading zeros.
std::optional<qint64> number(const QByteArray &text)
{
    bool isNumber = false;
    const qint64 value = text.toLongLong(&isNumber);
    if (!isNumber || value < 0 || QByteArray::number(value) != text) {
        return {};
    }
    return value;
}

QByteArray escaped(QByteArray name)
{
    return name.replace('\\', "\\\\").replace('\n', "\\n").replace('\r', "\\r");
}

/// Empty where a backslash stands before anything that is never escaped.
QByteArray unescaped(const QByteArray &text)
{
    QByteArray name;
    for (int i = 0; i < text.size(); ++i) {
        if (text.at(i) != '\\') {
            name += text.at(i);
            continue;
        }
        const char next = ++i < text.size() ? text.at(i) : '\0';
        if (next != '\\' && next != 'n' && next != 'r') {
            return {};
        }
        name += next == 'n' ? '\n' : next == 'r' ? '\r' : '\\';
    }
    return name;
}

/// RFC 3339 with capital letters; invalid for anything else.
QDateTime dateTime(const QByteArray &text)
{
    static const QRegularExpression form(
        QStringLiteral("\\A[0-9]{4}-[0-9]{2}-[0-9]{2}T[0-9]{2}:[0-9]{2}:[0-9]{2}(\\.[0-9]{1,3})?"
                       "(Z|[+-][0-9]{2}:[0-9]{2})\\z"));
    const QString string = QString::fromLatin1(text);
    return form.match(string).hasMatch() ? QDateTime::fromString(string, Qt::ISODateWithMs).toUTC()
                                         : QDateTime();
}

class Parser
{
public:
    explicit Parser(RVChecksums *list)
        : m_list(list)
    {
    }

    bool parse(const QByteArray &text);
    QString reason;

private:
    bool parseLine(const QByteArray &line);
    bool parseSum(const QByteArray &line);
    bool parseField(const QByteArray &name, const QByteArray &value);
    bool parseHead(const QByteArray &value);
    bool fail(const QString &text);

    RVChecksums *m_list;
    int m_line = 0;
};

bool Parser::fail(const QString &text)
{
    reason = m_line > 0 ? QStringLiteral("line %1: %2").arg(m_line).arg(text) : text;
    return false;
}

bool Parser::parse(const QByteArray &text)
{
    if (text.size() > RVChecksums::maxBytes) {
        return fail(QStringLiteral("longer than %1 bytes").arg(RVChecksums::maxBytes));
    }
    if (!text.isEmpty() && !text.endsWith('\n')) {
        return fail(QStringLiteral("the last line is cut off"));
    }
    for (int start = 0; start < text.size();) {
        const int end = text.indexOf('\n', start);
        ++m_line;
        if (!parseLine(text.mid(start, end - start))) {
            return false;
        }
        start = end + 1;
    }
    m_line = 0;
    for (auto head = m_list->heads.cbegin(); head != m_list->heads.cend(); ++head) {
        if (!m_list->sums.contains(head.key())) {
            return fail(QStringLiteral("the head of a file that is not in the list"));
        }
    }
    return true;
}

bool Parser::parseLine(const QByteArray &line)
{
    if (!line.startsWith('#')) {
        return parseSum(line);
    }
    const int colon = line.indexOf(": ");
    if (!line.startsWith(fieldPrefix) || colon < 0) {
        return true;
    }
    return parseField(line.mid(fieldPrefix.size(), colon - fieldPrefix.size()),
                      line.mid(colon + 2));
}

bool Parser::parseSum(const QByteArray &line)
{
    const bool isEscaped = line.startsWith('\\');
    const QByteArray rest = isEscaped ? line.mid(1) : line;
    const QByteArray sum = sumFromHex(rest.left(hexDigits));
    const QByteArray mark = rest.mid(hexDigits, 2);
    if (sum.isEmpty() || (mark != "  " && mark != " *")) {
        return fail(QStringLiteral("not a SHA-256 sum and a name"));
    }
    const QByteArray text = rest.mid(hexDigits + 2);
    const QByteArray name = isEscaped ? unescaped(text) : text;
    if (!isName(name)) {
        return fail(QStringLiteral("not the name of a file in this folder"));
    }
    if (m_list->sums.contains(name)) {
        return fail(QStringLiteral("the name stands there twice"));
    }
    m_list->sums.insert(name, sum);
    return true;
}

bool Parser::parseField(const QByteArray &name, const QByteArray &value)
{
    if (name == headField) {
        return parseHead(value);
    }
    const auto twice = [&] {
        return fail(QStringLiteral("Ravel-%1 stands there twice").arg(QLatin1String(name)));
    };
    const auto invalid = [&] {
        return fail(QStringLiteral("Ravel-%1 has no valid value").arg(QLatin1String(name)));
    };
    if ((name == idField || name == serialField || name == validField) && !m_list->sums.isEmpty()) {
        return fail(QStringLiteral("Ravel-%1 stands below the sums").arg(QLatin1String(name)));
    }
    if (name == idField) {
        if (!m_list->repositoryId.isEmpty()) {
            return twice();
        }
        m_list->repositoryId = QString::fromLatin1(value);
        return RVChecksums::isRepositoryId(m_list->repositoryId) || invalid();
    }
    if (name == serialField) {
        if (m_list->serial) {
            return twice();
        }
        m_list->serial = number(value);
        return m_list->serial || invalid();
    }
    if (name == validField) {
        if (m_list->validUntil.isValid()) {
            return twice();
        }
        m_list->validUntil = dateTime(value);
        return m_list->validUntil.isValid() || invalid();
    }
    // What a later version adds is no reason to refuse a list.
    return true;
}

bool Parser::parseHead(const QByteArray &value)
{
    const int second = value.indexOf(' ');
    const int third = second < 0 ? -1 : value.indexOf(' ', second + 1);
    RVChecksums::Head head;
    head.sum = sumFromHex(value.left(second));
    const std::optional<qint64> length =
        third < 0 ? std::optional<qint64>() : number(value.mid(second + 1, third - second - 1));
    const QByteArray name = third < 0 ? QByteArray() : unescaped(value.mid(third + 1));
    if (head.sum.isEmpty() || !length || *length < 1 || *length > RVChecksums::maxHead
        || !isName(name)) {
        return fail(QStringLiteral("Ravel-Head has no valid value"));
    }
    if (m_list->heads.contains(name)) {
        return fail(QStringLiteral("the head of a file stands there twice"));
    }
    head.length = *length;
    m_list->heads.insert(name, head);
    return true;
}

void addField(QByteArray *text, const QByteArray &name, const QByteArray &value)
{
    *text += fieldPrefix + name + ": " + value + '\n';
}

} // namespace

std::optional<RVChecksums> RVChecksums::parse(const QByteArray &text, QString *reason)
{
    RVChecksums list;
    Parser parser(&list);
    if (!parser.parse(text)) {
        *reason = parser.reason;
        return {};
    }
    return list;
}

QByteArray RVChecksums::toText() const
{
    QByteArray text;
    if (!repositoryId.isEmpty()) {
        addField(&text, idField, repositoryId.toLatin1());
    }
    if (serial) {
        addField(&text, serialField, QByteArray::number(*serial));
    }
    if (validUntil.isValid()) {
        addField(&text, validField, validUntil.toUTC().toString(Qt::ISODate).toLatin1());
    }
    for (auto head = heads.cbegin(); head != heads.cend(); ++head) {
        addField(&text, headField,
                 head->sum.toHex() + ' ' + QByteArray::number(head->length) + ' '
                     + escaped(head.key()));
    }
    for (auto sum = sums.cbegin(); sum != sums.cend(); ++sum) {
        const QByteArray name = escaped(sum.key());
        text += (name == sum.key() ? "" : "\\") + sum->toHex() + "  " + name + '\n';
    }
    return text;
}

QByteArray RVChecksums::nameOf(const QUrl &url)
{
    if (url.hasQuery() || url.hasFragment()) {
        return {};
    }
    // Encoded: what is a slash only after decoding is no end of a segment.
    const QByteArray path = url.path(QUrl::FullyEncoded).toLatin1();
    const QByteArray name = QByteArray::fromPercentEncoding(path.mid(path.lastIndexOf('/') + 1));
    return isName(name) ? name : QByteArray();
}

bool RVChecksums::isRepositoryId(const QString &text)
{
    static const QRegularExpression form(QStringLiteral("\\A[A-Za-z0-9][A-Za-z0-9._-]{0,99}\\z"));
    return form.match(text).hasMatch();
}

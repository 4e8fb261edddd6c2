// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/VersionString.h"

#include <QStringRef>

namespace
{

bool isLetter(QChar c)
{
    return (c >= QLatin1Char('a') && c <= QLatin1Char('z'))
        || (c >= QLatin1Char('A') && c <= QLatin1Char('Z'));
}

/// What is left of a text while it is compared. Characters are passed, not removed, and the next
/// digit is remembered, so that a version of any length is compared in one walk.
class Rest
{
public:
    explicit Rest(const QString &text)
        : m_text(text)
    {
    }

    bool isEmpty() const { return m_pos == m_text.size(); }
    bool startsWithTilde() const { return !isEmpty() && front() == QLatin1Char('~'); }
    bool startsWithLetter() const { return !isEmpty() && isLetter(front()); }
    bool startsWithDigit() const { return !isEmpty() && front().isDigit(); }

    bool hasDigitBehindFront()
    {
        m_nextDigit = qMax(m_nextDigit, m_pos);
        while (m_nextDigit < m_text.size() && !m_text.at(m_nextDigit).isDigit()) {
            ++m_nextDigit;
        }
        return m_nextDigit > m_pos && m_nextDigit < m_text.size();
    }

    QChar takeFront() { return m_text.at(m_pos++); }

    /// Takes the leading digits; a run that does not fit counts as 0.
    int takeNumber()
    {
        const int start = m_pos;
        while (startsWithDigit()) {
            ++m_pos;
        }
        return m_text.midRef(start, m_pos - start).toInt();
    }

private:
    QChar front() const { return m_text.at(m_pos); }

    const QString &m_text;
    int m_pos = 0;
    int m_nextDigit = 0;
};

template<typename T>
int sign(T a, T b)
{
    return a < b ? -1 : (a > b ? 1 : 0);
}

} // namespace

int VersionString::compare(const VersionString &other, Qt::CaseSensitivity cs) const
{
    if (m_text == other.m_text) {
        return 0;
    }
    const auto upstream = [](const QString &text) {
        return text.left(text.lastIndexOf(QLatin1Char('-')));
    };
    const auto revision = [](const QString &text) {
        const int dash = text.lastIndexOf(QLatin1Char('-'));
        return dash < 0 ? QString() : text.mid(dash + 1);
    };
    const int result = versionCompare(upstream(m_text), upstream(other.m_text), cs);
    return result != 0 ? result : versionCompare(revision(m_text), revision(other.m_text), cs);
}

int VersionString::versionCompare(const QString &a, const QString &b, Qt::CaseSensitivity cs) const
{
    if (a == b) {
        return 0;
    }
    Rest left(a);
    Rest right(b);
    while (!left.isEmpty()) {
        if (left.startsWithTilde() && !right.startsWithTilde()) {
            return -1;
        }
        if (!left.startsWithTilde() && (right.isEmpty() || right.startsWithTilde())) {
            return 1;
        }
        if (left.startsWithLetter() != right.startsWithLetter()) {
            return left.startsWithLetter() ? -1 : 1;
        }
        int result = 0;
        if (left.startsWithDigit()) {
            if (right.hasDigitBehindFront()) {
                return 1;
            }
            const int number = left.takeNumber();
            result = sign(number, right.takeNumber());
        } else {
            if (right.startsWithDigit()) {
                return -1;
            }
            const QChar ours = left.takeFront();
            const QChar theirs = right.takeFront();
            result = ours == theirs ? 0 : sign(QString(ours).compare(QString(theirs), cs), 0);
        }
        if (result != 0) {
            return result;
        }
        // A suffix that only the left side has makes it newer, a tilde suffix too.
        if (!left.isEmpty() && right.isEmpty()) {
            return 1;
        }
    }
    if (right.isEmpty()) {
        return 0;
    }
    return right.startsWithTilde() ? 1 : -1;
}

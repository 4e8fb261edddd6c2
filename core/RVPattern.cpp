// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/RVPattern.h"

#include "core/RVLogger.h"

#include <QRegExp>
#include <QVector>

namespace
{

/// What the automaton may come to. Every atom and every group is a part, as often as it is written
/// out.
struct Limits {
    int parts;
    int transitions;
};
constexpr Limits plainLimits = {5000, 10000};
/// Anchors and back-references are tested at every transition that they lie on, each alternative of
/// them.
constexpr Limits anchoredLimits = {2000, 2000};
/// A look-ahead is a match of its own at every transition.
constexpr Limits lookAheadLimits = {500, 500};
/// The engine multiplies the alternatives of anchors that follow one another: (^|$){20} gives a
/// million.
constexpr int maxAnchors = 16;
/// QRegExp's own limit.
constexpr int maxBackReference = 14;
constexpr int unlimited = -1;
constexpr int loggedLength = 60;

/// What a piece of the pattern adds to the automaton.
struct Piece {
    /// States that a match of the piece can begin and end with.
    int firsts = 0;
    int lasts = 0;
    bool mayBeEmpty = true;
    int parts = 0;
    int transitions = 0;
    int anchors = 0;
    /// The largest product of nested counts inside.
    int countProduct = 1;
};

/// Reads a pattern as QRegExp does, and adds up what compiling it would make.
class Estimate
{
public:
    using Result = RVPattern::Verdict;

    explicit Estimate(const QString &pattern)
        : m_pattern(pattern)
    {
    }

    Result run()
    {
        if (m_pattern.size() > RVPattern::maxLength) {
            return RVPattern::TooComplex;
        }
        const Piece whole = alternatives(0);
        if (!atEnd()) {
            fail(RVPattern::Invalid);
        }
        const Limits &limits = m_hasLookAhead ? lookAheadLimits
            : whole.anchors > 0               ? anchoredLimits
                                              : plainLimits;
        check(whole, limits);
        return m_result;
    }

    /// The same pattern without captures, which only back-references need: keeping them costs the
    /// engine more than the match itself.
    QString withoutCaptures() const
    {
        QString pattern = m_pattern;
        if (!m_hasBackReference) {
            for (int i = m_captures.size() - 1; i >= 0; --i) {
                pattern.insert(m_captures.at(i), QLatin1String("?:"));
            }
        }
        return pattern;
    }

private:
    bool atEnd() const { return m_pos == m_pattern.size(); }
    bool nextIs(char c) const { return !atEnd() && m_pattern.at(m_pos) == QLatin1Char(c); }
    bool nextIsBetween(char first, char last) const
    {
        return !atEnd() && m_pattern.at(m_pos) >= QLatin1Char(first)
            && m_pattern.at(m_pos) <= QLatin1Char(last);
    }
    bool nextIsHexDigit() const
    {
        return nextIsBetween('0', '9') || nextIsBetween('a', 'f') || nextIsBetween('A', 'F');
    }
    bool take(char c)
    {
        const bool found = nextIs(c);
        m_pos += found ? 1 : 0;
        return found;
    }
    QChar takeAny() { return atEnd() ? QChar() : m_pattern.at(m_pos++); }

    bool failed() const { return m_result != RVPattern::Bounded; }
    Piece fail(Result result)
    {
        if (!failed()) {
            m_result = result;
        }
        return {};
    }
    void check(const Piece &piece, const Limits &limits)
    {
        if (piece.parts > limits.parts || piece.transitions > limits.transitions
            || piece.anchors > maxAnchors || piece.countProduct > RVPattern::maxCountProduct) {
            fail(RVPattern::TooComplex);
        }
    }
    Piece checked(const Piece &piece)
    {
        check(piece, plainLimits);
        return piece;
    }

    static Piece character()
    {
        Piece piece;
        piece.firsts = piece.lasts = piece.parts = 1;
        piece.mayBeEmpty = false;
        return piece;
    }
    static Piece anchor()
    {
        Piece piece;
        piece.parts = piece.anchors = 1;
        return piece;
    }
    static Piece backReference()
    {
        Piece piece = character();
        piece.mayBeEmpty = true;
        piece.anchors = 1;
        return piece;
    }
    static Piece both(const Piece &a, const Piece &b)
    {
        Piece result;
        result.parts = a.parts + b.parts;
        result.transitions = a.transitions + b.transitions;
        result.anchors = a.anchors + b.anchors;
        result.countProduct = qMax(a.countProduct, b.countProduct);
        return result;
    }
    Piece oneAfterTheOther(const Piece &a, const Piece &b)
    {
        Piece result = both(a, b);
        result.transitions += a.lasts * b.firsts;
        result.firsts = a.firsts + (a.mayBeEmpty ? b.firsts : 0);
        result.lasts = b.lasts + (b.mayBeEmpty ? a.lasts : 0);
        result.mayBeEmpty = a.mayBeEmpty && b.mayBeEmpty;
        return checked(result);
    }
    Piece oneOrTheOther(const Piece &a, const Piece &b)
    {
        Piece result = both(a, b);
        result.firsts = a.firsts + b.firsts;
        result.lasts = a.lasts + b.lasts;
        result.mayBeEmpty = a.mayBeEmpty || b.mayBeEmpty;
        return checked(result);
    }
    /// The engine writes x{2,4} out as x(x(x)?)?x and x{2,} as xx+.
    Piece repeated(const Piece &piece, int least, int most)
    {
        const int required = qMax(0, least - 1);
        const int optional = most == unlimited ? 0 : qMax(0, most - required - 1);
        Piece copies;
        for (int i = 0; i < optional && !failed(); ++i) {
            copies = oneAfterTheOther(piece, copies);
            copies.mayBeEmpty = true;
        }
        for (int i = 0; i < required && !failed(); ++i) {
            copies = oneAfterTheOther(piece, copies);
        }
        Piece last = piece;
        if (most == unlimited) {
            last.transitions += piece.lasts * piece.firsts;
        }
        last.mayBeEmpty = piece.mayBeEmpty || least == 0;
        last.countProduct = piece.countProduct * (required + optional + 1);
        return oneAfterTheOther(copies, last);
    }

    Piece alternatives(int depth)
    {
        Piece result = sequence(depth);
        while (!failed() && take('|')) {
            result = oneOrTheOther(result, sequence(depth));
        }
        return result;
    }

    Piece sequence(int depth)
    {
        Piece result;
        while (!failed() && !atEnd() && !nextIs('|') && !nextIs(')')) {
            result = oneAfterTheOther(result, quantified(depth));
        }
        return result;
    }

    Piece quantified(int depth)
    {
        const Piece piece = atom(depth);
        if (take('*')) {
            return repeated(piece, 0, unlimited);
        }
        if (take('+')) {
            return repeated(piece, 1, unlimited);
        }
        if (take('?')) {
            return repeated(piece, 0, 1);
        }
        if (!take('{')) {
            return piece;
        }
        const int least = count(0);
        const int most = take(',') ? count(unlimited) : least;
        if (!take('}') || (most != unlimited && most < least)) {
            return fail(RVPattern::Invalid);
        }
        return repeated(piece, least, most);
    }

    int count(int absent)
    {
        if (!nextIsBetween('0', '9')) {
            return absent;
        }
        int value = 0;
        while (nextIsBetween('0', '9') && !failed()) {
            value = 10 * value + takeAny().digitValue();
            if (value > RVPattern::maxCountProduct) {
                fail(RVPattern::TooComplex);
            }
        }
        return value;
    }

    Piece atom(int depth)
    {
        const QChar c = takeAny();
        switch (c.unicode()) {
        case '(':
            return group(depth);
        case '[':
            return characterClass();
        case '\\':
            return escape();
        case '^':
        case '$':
            return anchor();
        case '*':
        case '+':
        case '?':
        case '{':
        case '}':
        case ']':
            return fail(RVPattern::Invalid);
        default:
            return character();
        }
    }

    Piece group(int depth)
    {
        bool lookAhead = false;
        if (!take('?')) {
            m_captures.append(m_pos);
        } else if (!take(':')) {
            lookAhead = take('=') || take('!');
            if (!lookAhead) {
                return fail(RVPattern::Invalid);
            }
        }
        // A look-ahead within another would be tried at each place of each try of the outer one.
        if (depth == RVPattern::maxDepth || (lookAhead && m_inLookAhead)) {
            return fail(RVPattern::TooComplex);
        }
        m_inLookAhead = m_inLookAhead || lookAhead;
        m_hasLookAhead = m_hasLookAhead || lookAhead;
        Piece content = alternatives(depth + 1);
        if (!take(')')) {
            return fail(RVPattern::Invalid);
        }
        ++content.parts;
        if (lookAhead) {
            m_inLookAhead = false;
            content.firsts = content.lasts = 0;
            content.mayBeEmpty = true;
            // Twice: the engine takes 14 look-aheads at most.
            content.anchors += 2;
        }
        return checked(content);
    }

    Piece characterClass()
    {
        take('^');
        do {
            // The first character is one of the class even if it is a bracket.
            if (atEnd()) {
                return fail(RVPattern::Invalid);
            }
            // An anchor or a back-reference means nothing here.
            if (!take('\\')) {
                takeAny();
            } else if (escape().anchors > 0) {
                return fail(RVPattern::Invalid);
            }
        } while (!atEnd() && !nextIs(']'));
        return take(']') ? character() : fail(RVPattern::Invalid);
    }

    Piece escape()
    {
        if (atEnd()) {
            return fail(RVPattern::Invalid);
        }
        if (nextIsBetween('1', '9')) {
            int number = 0;
            while (nextIsBetween('0', '9') && number <= maxBackReference) {
                number = 10 * number + takeAny().digitValue();
            }
            m_hasBackReference = true;
            return number <= maxBackReference ? backReference() : fail(RVPattern::Invalid);
        }
        const QChar c = takeAny();
        if (c == QLatin1Char('0')) {
            int value = 0;
            for (int i = 0; i < 3 && nextIsBetween('0', '7'); ++i) {
                value = 8 * value + takeAny().digitValue();
            }
            return value <= 0377 ? character() : fail(RVPattern::Invalid);
        }
        if (c == QLatin1Char('x')) {
            for (int i = 0; i < 4 && nextIsHexDigit(); ++i) {
                takeAny();
            }
        }
        return c == QLatin1Char('b') || c == QLatin1Char('B') ? anchor() : character();
    }

    const QString &m_pattern;
    int m_pos = 0;
    Result m_result = RVPattern::Bounded;
    bool m_inLookAhead = false;
    bool m_hasLookAhead = false;
    bool m_hasBackReference = false;
    /// Where the contents of capturing groups begin.
    QVector<int> m_captures;
};

QString shortened(const QString &pattern)
{
    return pattern.size() > loggedLength ? pattern.left(loggedLength) + QStringLiteral("...")
                                         : pattern;
}

} // namespace

RVPattern::Verdict RVPattern::judge(const QString &pattern)
{
    return Estimate(pattern).run();
}

bool RVPattern::exactMatch(const QString &pattern, const QString &text)
{
    Estimate estimate(pattern);
    switch (estimate.run()) {
    case Bounded:
        return QRegExp(estimate.withoutCaptures(), Qt::CaseSensitive, QRegExp::RegExp)
            .exactMatch(text);
    case TooComplex:
        RVLogger().log(4, "Regular expression is too complex: '%s'",
                       RVLogger::oneLine(shortened(pattern)).constData());
        return false;
    case Invalid:
        return false;
    }
    return false;
}

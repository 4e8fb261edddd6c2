// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/RVLogger.h"
#include "core/RVPattern.h"
#include "tests/support/LogFile.h"

#include <QRandomGenerator>
#include <QRegExp>
#include <QTest>

#include <ctime>

namespace
{

QString operator"" _s(const char *text, size_t size)
{
    return QString::fromUtf8(text, static_cast<int>(size));
}

QString nested(int depth, const QString &inner)
{
    return QStringLiteral("(").repeated(depth) + inner + QStringLiteral(")").repeated(depth);
}

/// Processor time: a busy machine does not count.
double secondsUsed()
{
    return double(std::clock()) / CLOCKS_PER_SEC;
}

QString refusal(const QString &shown)
{
    return QStringLiteral("Regular expression is too complex: '%1'").arg(shown);
}

/// Makes patterns of every kind of atom, group and count, most of them valid.
class PatternMaker
{
public:
    QString make(int depth)
    {
        QString pattern;
        for (int n = 1 + m_random.bounded(4); n > 0; --n) {
            pattern +=
                (depth == 0 || m_random.bounded(2) == 0 ? atom() : group(depth)) + quantifier();
        }
        return pattern;
    }

    QString text()
    {
        static const QString characters = QStringLiteral("aab1.");
        QString result;
        for (int n = m_random.bounded(9); n > 0; --n) {
            result += characters.at(m_random.bounded(characters.size()));
        }
        return result;
    }

private:
    QString oneOf(const QStringList &list) { return list.at(m_random.bounded(list.size())); }

    QString atom()
    {
        static const QStringList common =
            QStringLiteral("a a a b 1 . [ab] [^a] \\w \\d \\. []a] [a-]").split(QLatin1Char(' '));
        static const QStringList rare =
            QStringLiteral("^ $ \\b \\B \\1 \\2 (?=a) (?!b) (?=.*b) \\x61 \\0141 [\\d.] [\\b] \\15 "
                           "[ \\ ] } { (? ( ) *")
                .split(QLatin1Char(' '));
        return oneOf(m_random.bounded(8) == 0 ? rare : common);
    }

    QString group(int depth)
    {
        QString inner = make(depth - 1);
        while (m_random.bounded(3) == 0) {
            inner += QLatin1Char('|') + make(depth - 1);
        }
        return oneOf({QStringLiteral("("), QStringLiteral("("), QStringLiteral("(?:"),
                      QStringLiteral("(?=")})
            + inner + QLatin1Char(')');
    }

    QString quantifier()
    {
        static const QStringList counts =
            QStringLiteral("* + ? {2} {,3} {2,} {0} {0,10} {1,30} {5,50} {0,100} {1,333} {1000} "
                           "{0,1000} {1001} {2,1}")
                .split(QLatin1Char(' '));
        return m_random.bounded(2) == 0 ? QString() : oneOf(counts);
    }

    QRandomGenerator m_random{20260101};
};

} // namespace

class tst_RVPattern : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void matches_data();
    void matches();
    void invalid_data();
    void invalid();
    void bounds_data();
    void bounds();
    void refusedAtOnce_data();
    void refusedAtOnce();
    void cheapWhenAccepted_data();
    void cheapWhenAccepted();
    void anyAcceptedPatternIsCheapAndTheEngines();
    void logLine_data();
    void logLine();
    void logLevel();
};

void tst_RVPattern::matches_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("result");
    QTest::newRow("begins with 6.1") << "6\\.1.*"_s
                                     << "6.1.2-build3"_s << true;
    QTest::newRow("an escaped dot is a dot") << "6\\.1.*"_s
                                             << "6x1"_s << false;
    QTest::newRow("the whole text") << "6\\.1"_s
                                    << "6.1.2"_s << false;
    QTest::newRow("not only its end") << "1.2"_s
                                      << "6.1.2"_s << false;
    QTest::newRow("case counts") << "release"_s
                                 << "Release"_s << false;
    QTest::newRow("plain text") << "6.1.2"_s
                                << "6.1.2"_s << true;
    QTest::newRow("alternatives") << "6\\.(1|2)\\..*"_s
                                  << "6.2.9"_s << true;
    QTest::newRow("alternatives at the top") << "5.*|6.*"_s
                                             << "6.2"_s << true;
    QTest::newRow("anchors") << "^6\\.1$|^6\\.2$"_s
                             << "6.2"_s << true;
    QTest::newRow("counts") << "\\d{1,2}(\\.\\d{1,3}){2}"_s
                            << "12.345.6"_s << true;
    QTest::newRow("counts: too many") << "\\d{1,2}(\\.\\d{1,3}){2}"_s
                                      << "12.345.6.7"_s << false;
    QTest::newRow("class") << "[a-c]+[^x]"_s
                           << "abcy"_s << true;
    QTest::newRow("bracket first in a class") << "[]a]+"_s
                                              << "]a]"_s << true;
    QTest::newRow("parenthesis in a class") << "[(]\\(a[)]"_s
                                            << "((a)"_s << true;
    QTest::newRow("back-reference") << "(a|b)x\\1"_s
                                    << "bxb"_s << true;
    QTest::newRow("back-reference to something else") << "(a|b)x\\1"_s
                                                      << "axb"_s << false;
    QTest::newRow("look-ahead") << "(?=.*z)[a-z]*"_s
                                << "azb"_s << true;
    QTest::newRow("negative look-ahead") << "(?!.*z)[a-z]*"_s
                                         << "azb"_s << false;
    QTest::newRow("beyond ASCII") << "\u00e9.\\x4e2d"_s
                                  << "\u00e9x\u4e2d"_s << true;
    QTest::newRow("empty pattern, empty text") << QString() << QString() << true;
    QTest::newRow("empty pattern") << QString() << "6.1"_s << false;
    QTest::newRow("NUL in the pattern") << QString(QChar(0)) << QString(QChar(0)) << true;
}

void tst_RVPattern::matches()
{
    QFETCH(QString, pattern);
    QFETCH(QString, text);
    QFETCH(bool, result);
    const LogFile log;
    QCOMPARE(RVPattern::exactMatch(pattern, text), result);
    QCOMPARE(log.raw(), QByteArray());
}

void tst_RVPattern::invalid_data()
{
    QTest::addColumn<QString>("pattern");
    const QStringList patterns =
        "* ( ) a) [ [] [a [^ [\\ a{ a{1 a{1, a{2,1} a{x} { } ] \\ a** a{2}{2} | (?<a) (?a) (? "
        "(?=a (?=*) [\\1] [\\B] [\\b] \\400 (\\15) ((a) (a|*) |+"_s.split(QLatin1Char(' '));
    for (const QString &pattern : patterns) {
        if (pattern != QLatin1String("|")) {
            QTest::newRow(qPrintable(pattern)) << pattern;
        }
    }
}

void tst_RVPattern::invalid()
{
    QFETCH(QString, pattern);
    const LogFile log;
    QVERIFY(!QRegExp(pattern).isValid());
    for (const QString &text : {QString(), pattern, QStringLiteral("a"), QStringLiteral("aa")}) {
        QVERIFY(!RVPattern::exactMatch(pattern, text));
    }
    QVERIFY(!RVPattern::isBounded(pattern));
    QCOMPARE(log.raw(), QByteArray());
}

void tst_RVPattern::bounds_data()
{
    QTest::addColumn<QString>("within");
    QTest::addColumn<QString>("beyond");
    const QLatin1Char a('a');
    QTest::newRow("length") << QString(512, a) << QString(513, a);
    QTest::newRow("depth") << nested(32, "a"_s) << nested(33, "a"_s);
    QTest::newRow("depth of unnamed groups")
        << QStringLiteral("(?:").repeated(32) + a + QStringLiteral(")").repeated(32)
        << QStringLiteral("(?:").repeated(33) + a + QStringLiteral(")").repeated(33);
    QTest::newRow("depth, not number") << "(a)"_s.repeated(100) << nested(33, QString());
    QTest::newRow("escaped parentheses are none") << "\\("_s.repeated(200) << nested(33, "\\("_s);
    QTest::newRow("parentheses in a class are none")
        << "[()]"_s.repeated(100) << nested(33, "[(]"_s);
    QTest::newRow("one count") << "a{1000}"_s
                               << "a{1001}"_s;
    QTest::newRow("largest count") << "a{1,1000}"_s
                                   << "a{1,1024}"_s;
    QTest::newRow("no count the engine knows") << "a{0,1000}"_s
                                               << "a{1,99999999999}"_s;
    QTest::newRow("without a maximum") << "a{1000,}"_s
                                       << "a{1001,}"_s;
    QTest::newRow("without a minimum") << "a{,1000}"_s
                                       << "a{,1001}"_s;
    QTest::newRow("nested twice") << "(a{1,10}){1,100}"_s
                                  << "(a{1,11}){1,100}"_s;
    QTest::newRow("nested three times") << "((a{1,10}){1,10}){1,10}"_s
                                        << "((a{1,10}){1,10}){1,11}"_s;
    QTest::newRow("nested without a maximum") << "(a{10,}){100,}"_s
                                              << "(a{10,}){101,}"_s;
    QTest::newRow("nested in an alternative") << "(b|a{10}){100}"_s
                                              << "(b|a{10}){101}"_s;
    QTest::newRow("star and plus are no counts") << "(((a*)+)*)+"_s
                                                 << "((a{101})*){10}"_s;
    QTest::newRow("side by side they add up") << "a{1000}b{1000}c{1000}"_s
                                              << "a{1000}"_s.repeated(6);
    QTest::newRow("a count on a class") << "[0-9]{1,1000}"_s
                                        << "[0-9]{1,1001}"_s;
    QTest::newRow("escaped braces are none") << "a\\{9999\\}"_s
                                             << "\\{{9999}"_s;
    QTest::newRow("braces in a class are none") << "[{9999}]"_s
                                                << "[{]{9999}"_s;
    QTest::newRow("a bracket first in a class") << "[]{9999}]"_s
                                                << "[]]{9999}"_s;
    QTest::newRow("an escaped bracket in a class") << "[\\]{9999}]"_s
                                                   << "[\\]]{9999}"_s;
    QTest::newRow("optional parts within a count") << "(a?){0,100}"_s
                                                   << "(a?){0,500}"_s;
    QTest::newRow("alternatives within a count") << "(a|b|c|d){1,200}"_s
                                                 << "(a|b|c|d){1,900}"_s;
    QTest::newRow("anchors") << "(^a$|^b$|^c$|^d$)"_s
                             << "(^|$)"_s.repeated(9);
    QTest::newRow("anchors within a count") << "(^a){1,16}"_s
                                            << "(^a){1,17}"_s;
    QTest::newRow("anchors around many parts") << "^(a?){0,50}$"_s
                                               << "^(a?){0,100}$"_s;
    QTest::newRow("look-aheads") << "(?=a).*"_s
                                 << "(?=a(?=b)).*"_s;
    QTest::newRow("look-aheads in a row") << "(?=.*a)(?!.*b).*"_s
                                          << "(?=a)"_s.repeated(9);
    QTest::newRow("empty groups") << "()"_s.repeated(100)
                                  << QLatin1Char('(') + "()"_s.repeated(200) + "){0,1000}"_s;
}

void tst_RVPattern::bounds()
{
    QFETCH(QString, within);
    QFETCH(QString, beyond);
    const LogFile log;
    QVERIFY(RVPattern::isBounded(within));
    RVPattern::exactMatch(within, QStringLiteral("a"));
    QCOMPARE(log.raw(), QByteArray());
    QVERIFY(!RVPattern::isBounded(beyond));
    QVERIFY(!RVPattern::exactMatch(beyond, QStringLiteral("a")));
    QCOMPARE(log.lines().size(), 1);
}

void tst_RVPattern::refusedAtOnce_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::newRow("three nested counts") << "((a{1,30}){1,30}){1,30}"_s;
    QTest::newRow("four nested counts") << "(((a{1,30}){1,30}){1,30}){1,30}"_s;
    QTest::newRow("nine nested counts of two")
        << QStringLiteral("(").repeated(9) + "a{2}"_s + "){2}"_s.repeated(9);
    QTest::newRow("nested in a look-ahead") << "(?=((a{1,30}){1,30}){1,30})a"_s;
    QTest::newRow("nested empty groups") << "((((){1,1000}){1,1000}){1,1000})"_s;
    QTest::newRow("12,000 parentheses") << nested(12000, "a"_s);
    QTest::newRow("12,000 opening parentheses") << QString(12000, QLatin1Char('('));
    QTest::newRow("512 opening parentheses") << QString(512, QLatin1Char('('));
    QTest::newRow("50 counts in a row") << "a{0,1000}"_s.repeated(50);
    QTest::newRow("many alternatives") << QLatin1Char('(') + "a|"_s.repeated(240) + "b){1,1000}"_s;
    QTest::newRow("many options") << QLatin1Char('(') + "a?"_s.repeated(50) + "){0,100}"_s;
    QTest::newRow("anchors multiplied") << "(^|$|\\b|\\B)"_s.repeated(30);
    QTest::newRow("anchors between options") << "((^|$|\\b|\\B)a?)"_s.repeated(25);
    QTest::newRow("anchors within a count") << "((^|$|\\b|\\B)a?){1,100}"_s;
    QTest::newRow("nested look-aheads") << "(?=.*"_s.repeated(31) + "z"_s + ")"_s.repeated(31);
    QTest::newRow("nested look-aheads that are wrong") << "(?=a"_s.repeated(31) + "["_s;
    QTest::newRow("a megabyte") << QString(1 << 20, QLatin1Char('a'));
}

void tst_RVPattern::refusedAtOnce()
{
    QFETCH(QString, pattern);
    const LogFile log;
    const double start = secondsUsed();
    QVERIFY(!RVPattern::exactMatch(pattern, QString(64, QLatin1Char('a'))));
    QVERIFY(secondsUsed() - start < 0.2);
    QCOMPARE(log.lines().size(), 1);
}

void tst_RVPattern::cheapWhenAccepted_data()
{
    QTest::addColumn<QString>("pattern");
    QString manyCharacters;
    for (ushort code = 0x100; code < 0x100 + 450; ++code) {
        manyCharacters += QChar(code);
    }
    QTest::newRow("one count") << "a{0,1000}"_s;
    QTest::newRow("two counts") << "(a{1,1000})(a{1,1000})"_s;
    QTest::newRow("four counts") << "a{1000}"_s.repeated(4);
    QTest::newRow("nested counts") << "((a{1,10}){1,10}){1,10}"_s;
    QTest::newRow("options") << "(a?){0,135}"_s;
    QTest::newRow("many options in a loop") << QLatin1Char('(') + "a?"_s.repeated(80) + ")*"_s;
    QTest::newRow("captures in a loop") << QLatin1Char('(') + "(a?)*"_s.repeated(60) + ")*"_s;
    QTest::newRow("back-references") << "(a?)*"_s.repeated(20) + "\\1\\2\\3\\4\\5"_s;
    QTest::newRow("captures and a back-reference in a loop") << "(((a?){0,15}|b{900}|\\1)*)*"_s;
    QTest::newRow("alternatives") << QLatin1Char('(') + "a|"_s.repeated(98) + "a)*"_s;
    QTest::newRow("large class, often") << QStringLiteral("([^%1]?){0,135}").arg(manyCharacters);
    QTest::newRow("large class, 1,000 times")
        << QStringLiteral("([^%1]){1,1000}").arg(manyCharacters);
    QTest::newRow("anchors in a loop")
        << QLatin1Char('(') + "(^|$|\\b|\\B)"_s.repeated(4) + "a?"_s.repeated(25) + ")*"_s;
    QTest::newRow("anchors between options")
        << QLatin1Char('(') + "(^|$)a?a?a?"_s.repeated(8) + ")*"_s;
    QTest::newRow("look-ahead in a loop") << "((?=(.?){0,14})(a?){0,14})*"_s;
    QTest::newRow("look-aheads in a loop")
        << QLatin1Char('(') + "(a?(?!.*.*.*.*b))"_s.repeated(8) + ")*"_s;
    QTest::newRow("empty groups") << QLatin1Char('(') + "()"_s.repeated(200) + "){0,24}"_s;
}

void tst_RVPattern::cheapWhenAccepted()
{
    QFETCH(QString, pattern);
    const LogFile log;
    const double start = secondsUsed();
    RVPattern::exactMatch(pattern, QString(64, QLatin1Char('a')));
    QVERIFY(secondsUsed() - start < 2);
    QCOMPARE(log.raw(), QByteArray());
}

void tst_RVPattern::anyAcceptedPatternIsCheapAndTheEngines()
{
    PatternMaker maker;
    const LogFile log;
    const QString longText(64, QLatin1Char('a'));
    int accepted = 0;
    int matched = 0;
    const double begin = secondsUsed();
    for (int i = 0; i < 3000; ++i) {
        const QString pattern = maker.make(i % 4);
        if (!RVPattern::isBounded(pattern)) {
            continue;
        }
        ++accepted;
        const double start = secondsUsed();
        RVPattern::exactMatch(pattern, longText);
        QVERIFY2(secondsUsed() - start < 2, qPrintable(pattern));
        const QRegExp engine(pattern);
        for (int j = 0; j < 5; ++j) {
            const QString text = maker.text();
            const bool expected = engine.exactMatch(text);
            matched += expected ? 1 : 0;
            QVERIFY2(RVPattern::exactMatch(pattern, text) == expected,
                     qPrintable(pattern + QLatin1Char(' ') + text));
        }
    }
    QVERIFY(accepted > 1000);
    QVERIFY(matched > 100);
    QVERIFY(secondsUsed() - begin < 60);
}

void tst_RVPattern::logLine_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("shown");
    QTest::newRow("short") << "a{1,1001}"_s
                           << "a{1,1001}"_s;
    QTest::newRow("long") << QString(513, QLatin1Char('a'))
                          << QString(60, QLatin1Char('a')) + "..."_s;
    QTest::newRow("of the full length") << "a{1001}"_s + QString(53, QLatin1Char('b'))
                                        << "a{1001}"_s + QString(53, QLatin1Char('b'));
    QTest::newRow("control characters") << "a{1001}\n\r\t\x1b[2J\x7f"_s
                                        << "a{1001}????[2J?"_s;
    QTest::newRow("NUL") << "a{1001}"_s + QChar(0) + QLatin1Char('b') << "a{1001}?b"_s;
    QTest::newRow("direction override")
        << "a{1001}"_s + QChar(0x202e) + QLatin1Char('b') << "a{1001}?b"_s;
    QTest::newRow("letters of any language") << "a{1001}\u00e9\u4e2d"_s
                                             << "a{1001}\u00e9\u4e2d"_s;
    QTest::newRow("per cent signs") << "a{1001}%s%n"_s
                                    << "a{1001}%s%n"_s;
}

void tst_RVPattern::logLine()
{
    QFETCH(QString, pattern);
    QFETCH(QString, shown);
    const LogFile log;
    QVERIFY(!RVPattern::exactMatch(pattern, QStringLiteral("a")));
    QCOMPARE(log.lines(), QStringList{refusal(shown)});
}

void tst_RVPattern::logLevel()
{
    const LogFile log;
    for (int level : {3, 4}) {
        RVLogger::m_level = level;
        RVPattern::exactMatch(QStringLiteral("a{1001}"), QString());
        QCOMPARE(log.count(refusal(QStringLiteral("a{1001}"))), level == 4 ? 1 : 0);
    }
    RVLogger::m_level = 7;
}

QTEST_APPLESS_MAIN(tst_RVPattern)
#include "tst_RVPattern.moc"

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/VersionString.h"

#include <QRandomGenerator>
#include <QRegExp>
#include <QTest>

#include <ctime>

namespace
{

/// The order as its description has it: characters are cut off the front of two copies, and the
/// classes of characters are the expression engine's. Slow, and the measure for the real one.
int plainCompare(QString a, QString b, Qt::CaseSensitivity cs)
{
    static const QRegExp letter(QStringLiteral("[a-zA-Z]"));
    static const QRegExp digit(QStringLiteral("\\d"));
    const auto startsWith = [](const QString &text, const QRegExp &what) {
        return what.indexIn(text) == 0;
    };
    const auto takeNumber = [&](QString &text) {
        QString run;
        while (startsWith(text, digit)) {
            run += text.at(0);
            text.remove(0, 1);
        }
        return run.toInt();
    };
    const QLatin1Char tilde('~');
    if (a == b) {
        return 0;
    }
    while (!a.isEmpty()) {
        if (a.startsWith(tilde)) {
            if (b.isEmpty() || !b.startsWith(tilde)) {
                return -1;
            }
        } else if (b.isEmpty() || b.startsWith(tilde)) {
            return 1;
        }
        if (startsWith(a, letter) && !startsWith(b, letter)) {
            return -1;
        }
        if (!startsWith(a, letter) && startsWith(b, letter)) {
            return 1;
        }
        if (!startsWith(a, digit)) {
            if (startsWith(b, digit)) {
                return -1;
            }
            const int order = QString::compare(a.left(1), b.left(1), cs);
            a.remove(0, 1);
            b.remove(0, 1);
            if (order != 0) {
                return order < 0 ? -1 : 1;
            }
        } else {
            if (digit.indexIn(b) > 0) {
                return 1;
            }
            const int numberA = takeNumber(a);
            const int numberB = takeNumber(b);
            if (numberA != numberB) {
                return numberA < numberB ? -1 : 1;
            }
        }
        if (a.isEmpty()) {
            break;
        }
        if (b.isEmpty()) {
            return 1;
        }
    }
    if (b.isEmpty()) {
        return 0;
    }
    return b.startsWith(tilde) ? 1 : -1;
}

} // namespace

class tst_VersionString : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void order_data();
    void order();
    void caseInsensitive_data();
    void caseInsensitive();
    void fragmentIgnoresOwnText();
    void identicalTextsAreEqual();
    void followsTheDescription();
    void characterClassesAreTheEngines();
    void hostileLength_data();
    void hostileLength();
    void keepsTheText();
};

void tst_VersionString::order_data()
{
    QTest::addColumn<QString>("left");
    QTest::addColumn<QString>("right");
    QTest::addColumn<int>("result");

    const auto row = [](const char *name, const char *left, const char *right, int result) {
        QTest::newRow(name) << QString::fromUtf8(left) << QString::fromUtf8(right) << result;
    };
    row("identical", "1.0", "1.0", 0);
    row("both empty", "", "", 0);
    row("empty against a digit", "", "1", -1);
    row("empty against a letter", "", "a", -1);
    row("empty against punctuation", "", ".", -1);
    row("empty against a tilde", "", "~1", 1);
    row("bare tilde text against empty", "~1", "", -1);
    row("numbers, not texts: older", "1.2", "1.10", -1);
    row("numbers, not texts: newer", "1.10", "1.2", 1);
    row("a run of zeros", "1.0", "1.00", 0);
    row("leading zero", "1.01", "1.1", 0);
    row("trailing dot", "1.", "1.0", -1);
    row("trailing letter only on the right", "1.0", "1.0a", -1);
    row("trailing letter only on the left", "1.0a", "1.0", 1);
    row("letters by code", "1.0a", "1.0b", -1);
    row("capital below small", "1.0A", "1.0a", -1);
    row("small above capital", "1.0a", "1.0A", 1);
    row("letter against punctuation", "1.0a", "1.0.1", -1);
    row("punctuation against letter", "1.0.1", "1.0a", 1);
    row("digit against letter", "1.0", "1.x", 1);
    row("letter against digit", "1.x", "1.0", -1);
    row("digit against a letter that a digit follows", "1.0", "1.x1", 1);
    row("punctuation by code", "1.0+1", "1.0.1", -1);
    row("punctuation against digit", "1..", "1.0", -1);
    row("tilde suffix on the right", "1.0", "1.0~rc1", 1);
    row("tilde suffix on the left", "1.0~rc1", "1.0", 1);
    row("two tilde suffixes", "1.0~rc1", "1.0~rc2", -1);
    row("tilde against digit", "1.~", "1.0", -1);
    row("tilde against letter", "1.~", "1.a", -1);
    row("letter against tilde", "1.a", "1.~", 1);
    row("two tildes against one", "1~~", "1~a", -1);
    row("tilde ends first", "~", "~~", 1);
    row("revision decides", "1.0-1", "1.0-2", -1);
    row("revision only on the right", "1.0", "1.0-1", -1);
    row("revision only on the left", "1.0-1", "1.0", 1);
    row("upstream decides", "2.0-5", "10.0-1", -1);
    row("split at the last dash", "1-9-1", "1-10-0", -1);
    row("empty revision against none", "1-", "1", 0);
    row("none against empty revision", "1", "1-", 0);
    row("empty upstream against 0", "-1", "0-1", -1);
    row("dash alone against empty", "-", "", 0);
    row("largest number", "1.2147483647", "1.9", 1);
    row("overlong run counts as 0", "1.2147483648", "1.9", -1);
    row("overlong run against 0", "1.2147483648", "1.0", 0);
    row("overlong run of zeros still converts", "1.00000000000000009", "1.8", 1);
    row("two overlong runs are equal", "1.99999999999", "1.88888888888", 0);
    row("number against no digit at all", "5", ".", 1);
    row("0 against no digit at all", "0", ".", -1);
    row("0 and more against no digit at all", "0.", ".", 0);
    row("number against a digit further on", "0", ".1", 1);
    row("colon is no epoch", "1:0", "0:9", 1);
    row("colon is no epoch: a longer number", "1:0.5", "10.0", -1);
    row("colon above dot", "1:0", "1.0", 1);
    row("accented letter is no letter", "1.0\u00e9", "1.0a", 1);
    row("letter against accented letter", "1.0a", "1.0\u00e9", -1);
    row("accented letters by code unit", "1.0\u00e9", "1.0\u00ea", -1);
    row("accented letter against punctuation", "1.0\u00e9", "1.0.", 1);
    row("foreign digits are digits without a value", "1.\u0663", "1.1", -1);
    row("foreign digits count as 0", "1.\u0663", "1.0", 0);
    row("foreign digit at a later place", "0", ".\u0663", 1);
}

void tst_VersionString::order()
{
    QFETCH(QString, left);
    QFETCH(QString, right);
    QFETCH(int, result);
    QCOMPARE(VersionString(left).compare(VersionString(right), Qt::CaseSensitive), result);
}

void tst_VersionString::caseInsensitive_data()
{
    QTest::addColumn<QString>("left");
    QTest::addColumn<QString>("right");
    QTest::addColumn<int>("result");
    QTest::newRow("same letter") << QStringLiteral("1.0A") << QStringLiteral("1.0a") << 0;
    QTest::newRow("letters in order") << QStringLiteral("1.0a") << QStringLiteral("1.0B") << -1;
    QTest::newRow("in the revision") << QStringLiteral("1-RC2") << QStringLiteral("1-rc1") << 1;
    QTest::newRow("accented") << QString::fromUtf8("1\u00c9") << QString::fromUtf8("1\u00e9") << 0;
}

void tst_VersionString::caseInsensitive()
{
    QFETCH(QString, left);
    QFETCH(QString, right);
    QFETCH(int, result);
    QCOMPARE(VersionString(left).compare(VersionString(right), Qt::CaseInsensitive), result);
}

void tst_VersionString::fragmentIgnoresOwnText()
{
    const VersionString version(QStringLiteral("99"));
    QCOMPARE(version.versionCompare(QStringLiteral("1"), QStringLiteral("2"), Qt::CaseSensitive),
             -1);
    // A fragment is not split: its dash is punctuation.
    QCOMPARE(version.versionCompare(QStringLiteral("1-"), QStringLiteral("1"), Qt::CaseSensitive),
             1);
    QCOMPARE(
        version.versionCompare(QStringLiteral("1-1"), QStringLiteral("1.0"), Qt::CaseSensitive),
        -1);
}

void tst_VersionString::identicalTextsAreEqual()
{
    const QString text = QString::fromUtf8("~\u00df\u0130-~-");
    QCOMPARE(VersionString(text).compare(VersionString(text), Qt::CaseInsensitive), 0);
    QCOMPARE(VersionString().versionCompare(text, text, Qt::CaseInsensitive), 0);
}

void tst_VersionString::followsTheDescription()
{
    const QString alphabet = QString::fromUtf8("0019aAzZ~~..+:-\u00e9\u0663");
    QRandomGenerator random(20260101);
    const auto text = [&] {
        QString result;
        for (int length = random.bounded(9); length > 0; --length) {
            result += alphabet.at(random.bounded(alphabet.size()));
        }
        return result;
    };
    for (int i = 0; i < 50000; ++i) {
        const QString a = text();
        const QString b = text();
        const auto cs = i % 2 == 0 ? Qt::CaseSensitive : Qt::CaseInsensitive;
        const int expected = plainCompare(a, b, cs);
        const int result = VersionString().versionCompare(a, b, cs);
        QVERIFY2(result == expected,
                 qPrintable(QStringLiteral("'%1' '%2' %3").arg(a, b).arg(result)));
    }
}

void tst_VersionString::characterClassesAreTheEngines()
{
    const QRegExp digit(QStringLiteral("\\d"));
    const QRegExp letter(QStringLiteral("[a-zA-Z]"));
    for (uint code = 1; code <= 0xffff; ++code) {
        const QString text{QChar(static_cast<ushort>(code))};
        if (text == QLatin1String("~")) {
            continue;
        }
        const VersionString version;
        const bool isDigit =
            version.versionCompare(text, QStringLiteral("0"), Qt::CaseSensitive) >= 0;
        const bool isLetter = !isDigit
            && version.versionCompare(text, QStringLiteral("\u0001"), Qt::CaseSensitive) < 0;
        QVERIFY2(isDigit == digit.exactMatch(text), qPrintable(QString::number(code, 16)));
        QVERIFY2(isLetter == letter.exactMatch(text), qPrintable(QString::number(code, 16)));
    }
}

void tst_VersionString::hostileLength_data()
{
    QTest::addColumn<QString>("left");
    QTest::addColumn<QString>("right");
    constexpr int size = 1 << 20;
    QTest::newRow("no digit on the right")
        << QStringLiteral("0.").repeated(size / 2) << QString(size, QLatin1Char('.'));
    QTest::newRow("a digit at the far end") << QStringLiteral(".0.0").repeated(size / 4)
                                            << QString(size, QLatin1Char('.')) + QLatin1Char('1');
    QTest::newRow("equal up to the end") << QString(size, QLatin1Char('.')) + QLatin1Char('1')
                                         << QString(size, QLatin1Char('.')) + QLatin1Char('2');
    QTest::newRow("one long number")
        << QString(size, QLatin1Char('1')) << QString(size, QLatin1Char('0'));
    QTest::newRow("short numbers")
        << QStringLiteral("01.").repeated(size / 3) << QStringLiteral("1.").repeated(size / 2);
    QTest::newRow("dashes") << QString(size, QLatin1Char('-'))
                            << QString(size + 1, QLatin1Char('-'));
}

void tst_VersionString::hostileLength()
{
    QFETCH(QString, left);
    QFETCH(QString, right);
    const std::clock_t start = std::clock();
    VersionString(left).compare(VersionString(right), Qt::CaseSensitive);
    VersionString(right).compare(VersionString(left), Qt::CaseInsensitive);
    const double seconds = double(std::clock() - start) / CLOCKS_PER_SEC;
    QVERIFY2(seconds < 3, qPrintable(QString::number(seconds)));
}

void tst_VersionString::keepsTheText()
{
    QVERIFY(VersionString().isEmpty());
    QCOMPARE(VersionString(QStringLiteral(" 1.0 ")).toString(), QStringLiteral(" 1.0 "));
}

QTEST_APPLESS_MAIN(tst_VersionString)
#include "tst_VersionString.moc"

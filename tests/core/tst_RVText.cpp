// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/RVText.h"

#include <QTest>

class tst_RVText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void safe_data();
    void safe();
    void linesStayLines();
    void shortened();
};

void tst_RVText::safe_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *title, const QString &text, const char *expected) {
        QTest::newRow(title) << text << QString::fromUtf8(expected);
    };
    row("plain", QStringLiteral("tc-audio 1.0"), "tc-audio 1.0");
    row("letters of other scripts", QString::fromUtf8("größe 音 שלום"), "größe 音 שלום");
    row("a character beyond the base plane", QString::fromUtf8("😀"), "😀");
    row("escape sequence", QStringLiteral("\x1b[31mred"), "\\u001b[31mred");
    row("line feed", QStringLiteral("a\nb"), "a\\u000ab");
    row("carriage return", QStringLiteral("a\rb"), "a\\u000db");
    row("tabulator", QStringLiteral("a\tb"), "a\\u0009b");
    row("NUL", QString(QChar(0)) + QLatin1Char('a'), "\\u0000a");
    row("delete", QString(QChar(0x7f)), "\\u007f");
    row("eight-bit control", QString(QChar(0x9b)), "\\u009b");
    row("right-to-left override", QString(QChar(0x202e)), "\\u202e");
    row("isolate", QString(QChar(0x2066)), "\\u2066");
    row("mark of direction", QString(QChar(0x200f)), "\\u200f");
    row("nothing of no width", QString(QChar(0x200b)), "\\u200b");
    row("line separator", QString(QChar(0x2028)), "\\u2028");
    row("paragraph separator", QString(QChar(0x2029)), "\\u2029");
    row("soft hyphen", QString(QChar(0xad)), "\\u00ad");
    row("private use", QString(QChar(0xe000)), "\\ue000");
    const uint tag = 0xe0041;
    row("tag character", QString::fromUcs4(&tag, 1), "\\udb40\\udc41");
}

void tst_RVText::safe()
{
    QFETCH(QString, text);
    QFETCH(QString, expected);
    QCOMPARE(RVText::safe(text), expected);
}

void tst_RVText::linesStayLines()
{
    QCOMPARE(RVText::safeLines(QStringLiteral("a\nb\rc")), QStringLiteral("a\nb\\u000dc"));
}

void tst_RVText::shortened()
{
    QCOMPARE(RVText::shortened(QStringLiteral("abc"), 3), QStringLiteral("abc"));
    QCOMPARE(RVText::shortened(QStringLiteral("abcd"), 3), QString::fromUtf8("ab…"));
    // Not in the middle of a character.
    QCOMPARE(RVText::shortened(QString::fromUtf8("a😀b"), 3), QString::fromUtf8("a…"));
}

QTEST_GUILESS_MAIN(tst_RVText)
#include "tst_RVText.moc"

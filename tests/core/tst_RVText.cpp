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
    void shown_data();
    void shown();
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

void tst_RVText::shown_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *title, const char *text, const char *expected) {
        QTest::newRow(title) << QString::fromUtf8(text) << QString::fromUtf8(expected);
    };
    row("plain", "tc-browser 1.0", "tc-browser 1.0");
    row("its twin by an override", "tc-\xe2\x80\xaeresworb", "tc-resworb");
    row("isolates and marks",
        "a\xe2\x81\xa6"
        "b\xe2\x81\xa9"
        "c\xe2\x80\x8f"
        "d\xd8\x9c",
        "abcd");
    row("no width",
        "a\xe2\x80\x8b"
        "b\xc2\xad"
        "c\xef\xbb\xbf",
        "abc");
    row("tag character",
        "a\xf3\xa0\x81\x81"
        "b",
        "ab");
    row("what joins letters", "\xd9\x85\xe2\x80\x8c\xd9\x86\xe2\x80\x8d",
        "\xd9\x85\xe2\x80\x8c\xd9\x86\xe2\x80\x8d");
    row("right to left", "\xd7\xa9\xd7\x9c\xd7\x95\xd7\x9d", "\xd7\xa9\xd7\x9c\xd7\x95\xd7\x9d");
    row("controls and separators",
        "a\nb\tc\xe2\x80\xa8"
        "d",
        "a b\tc d");
}

void tst_RVText::shown()
{
    QFETCH(QString, text);
    QFETCH(QString, expected);
    QCOMPARE(RVText::shown(text), expected);
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

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "network/FtpReplyReader.h"

#include <QBuffer>
#include <QtTest>

namespace
{

struct Result {
    QStringList replies; // "code|text|last line"
    FtpReplyReader::Progress end = FtpReplyReader::Incomplete;
};

/// What is read of bytes that come in pieces of that size.
Result read(const QByteArray &bytes, int pieceSize)
{
    Result result;
    FtpReplyReader reader;
    for (int at = 0; at < bytes.size() && result.end == FtpReplyReader::Incomplete;
         at += pieceSize) {
        QByteArray piece = bytes.mid(at, pieceSize);
        QBuffer source(&piece);
        source.open(QIODevice::ReadOnly);
        while ((result.end = reader.read(&source)) == FtpReplyReader::Whole) {
            const FtpReplyReader::Reply &reply = reader.reply();
            result.replies.append(QStringLiteral("%1|%2|%3")
                                      .arg(reply.code)
                                      .arg(reply.text, QString::fromLatin1(reply.lastLine)));
        }
    }
    return result;
}

} // namespace

class tst_FtpReplyReader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void replies_data();
    void replies();
    void limits_data();
    void limits();
    void keepsTheLastReply();
    void stopsBehindAReply();
};

void tst_FtpReplyReader::replies_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QStringList>("expected");
    QTest::addColumn<int>("end");
    const auto row = [](const char *what, const QByteArray &bytes, const QStringList &expected,
                        FtpReplyReader::Progress end = FtpReplyReader::Incomplete) {
        QTest::newRow(what) << bytes << expected << static_cast<int>(end);
    };
    const auto one = [](const char *text) {
        return QStringList(QString::fromUtf8(text));
    };
    row("nothing", {}, {});
    row("one line", "220 Ready\r\n", one("220|Ready |Ready"));
    row("one after the other", "220 Ready\r\n331 Password\r\n",
        {QStringLiteral("220|Ready |Ready"), QStringLiteral("331|Password |Password")});
    row("no text", "220\r\n", one("220| |"));
    row("no text behind a blank", "220 \r\n", one("220| |"));
    row("lowest and highest code", "100 x\r\n599 x\r\n",
        {QStringLiteral("100|x |x"), QStringLiteral("599|x |x")});
    row("several lines", "220-Hello\r\n220 Ready\r\n", one("220|Hello Ready |Ready"));
    row("same code between", "220-a\r\n220-b\r\n220 c\r\n", one("220|a b c |c"));
    row("other codes between", "220-a\r\n421 b\r\n530-c\r\n220 d\r\n",
        one("220|a 421 b 530-c d |d"));
    row("no codes between", "220-a\r\n2200 b\r\n 220 c\r\n\r\n12\r\n220 d\r\n",
        one("220|a 2200 b  220 c  12 d |d"));
    row("no text at the end", "220-a\r\n220\r\n", one("220|a  |"));
    row("line feeds alone", "220-a\n220 b\n", one("220|a b |b"));
    row("carriage returns inside", "220 a\rb\r\r\n", one("220|a\rb\r |a\rb\r"));
    row("a carriage return ends nothing", "220 a\r221 b\r", {});
    row("UTF-8", "220 \xc3\xa4\r\n", one("220|\xc3\xa4 |\xc3\x83\xc2\xa4"));
    row("Latin-1", "220 \xe4\r\n", one("220|\xc3\xa4 |\xc3\xa4"));
    row("text behind a NUL", QByteArray("220 a\0b\r\n", 9), one("220|a |a"));
    row("cut line", "220 Rea", {});
    row("cut reply", "220-a\r\n220-b\r\n", {});

    const auto bad = FtpReplyReader::NotFtp;
    row("an empty line", "\r\n", {}, bad);
    row("a line feed", "\n", {}, bad);
    row("too short", "22\r\n", {}, bad);
    row("four digits", "2200 x\r\n", {}, bad);
    row("letters", "HTTP/1.1 400 Bad Request\r\n", {}, bad);
    row("no digits", "2x0 x\r\n", {}, bad);
    row("code 099", "099 x\r\n", {}, bad);
    row("code 600", "600 x\r\n", {}, bad);
    row("a sign", "+20 x\r\n", {}, bad);
    row("a blank first", " 220 x\r\n", {}, bad);
    row("telnet commands", "\xff\xfb\x01 220 x\r\n", {}, bad);
    row("NUL first", QByteArray("\0220 x\r\n", 8), {}, bad);
    row("garbage behind a reply", "220 x\r\ngarbage\r\n", one("220|x |x"), bad);
}

void tst_FtpReplyReader::replies()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QStringList, expected);
    for (const int pieceSize : {1, 2, 3, 5, 1000}) {
        const Result result = read(bytes, pieceSize);
        QCOMPARE(result.replies, expected);
        QTEST(static_cast<int>(result.end), "end");
    }
}

void tst_FtpReplyReader::limits_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("isRead");
    const QByteArray line(FtpReplyReader::maximumLine - 4, 'x');
    QTest::newRow("longest line") << "220 " + line + "\r\n" << true;
    QTest::newRow("a line that is too long") << "220 " + line + "x\r\n" << false;
    QTest::newRow("a line without an end") << "220 " + line + "xxx" << false;
    QTest::newRow("no line at all") << QByteArray(FtpReplyReader::maximumLine + 3, 'x') << false;
    const QByteArray lines = QByteArray("220-x\r\n").repeated(FtpReplyReader::maximumLines - 1);
    QTest::newRow("most lines") << lines + "220 x\r\n" << true;
    QTest::newRow("too many lines") << lines + "220-x\r\n220 x\r\n" << false;
    QTest::newRow("too many lines without an end")
        << QByteArray("220-x\r\n").repeated(FtpReplyReader::maximumLines + 1) << false;
    QTest::newRow("too many empty lines")
        << "220-\r\n" + QByteArray("\n").repeated(FtpReplyReader::maximumLines) << false;
}

void tst_FtpReplyReader::limits()
{
    QFETCH(QByteArray, bytes);
    QFETCH(bool, isRead);
    for (const int pieceSize : {1, 1000, 100'000}) {
        const Result result = read(bytes, pieceSize);
        QCOMPARE(static_cast<int>(result.replies.size()), isRead ? 1 : 0);
        QCOMPARE(result.end, isRead ? FtpReplyReader::Incomplete : FtpReplyReader::TooLong);
    }
}

void tst_FtpReplyReader::keepsTheLastReply()
{
    QByteArray bytes;
    QBuffer source(&bytes);
    source.open(QIODevice::ReadOnly);
    FtpReplyReader reader;
    QCOMPARE(reader.reply().code, 0);
    bytes += "220-a\r\n220 b\r\n331-c\r\n";
    QCOMPARE(reader.read(&source), FtpReplyReader::Whole);
    QCOMPARE(reader.read(&source), FtpReplyReader::Incomplete);
    QCOMPARE(reader.reply().code, 220);
    QCOMPARE(reader.reply().text, QStringLiteral("a b "));
    bytes += "331 d\r\n";
    QCOMPARE(reader.read(&source), FtpReplyReader::Whole);
    QCOMPARE(reader.reply().text, QStringLiteral("c d "));

    // Of a long one the begin is enough.
    bytes += "550-" + QByteArray(3000, 'x') + "\r\n550-y\r\n550 z\r\n";
    QCOMPARE(reader.read(&source), FtpReplyReader::Whole);
    QCOMPARE(reader.reply().text, QString(3000, QLatin1Char('x')) + QLatin1Char(' '));
    QCOMPARE(reader.reply().lastLine, QByteArray("z"));
}

/// What comes behind it may be for somebody else.
void tst_FtpReplyReader::stopsBehindAReply()
{
    QByteArray bytes("220 a\r\n331 b\r\n");
    QBuffer source(&bytes);
    source.open(QIODevice::ReadOnly);
    FtpReplyReader reader;
    QCOMPARE(reader.read(&source), FtpReplyReader::Whole);
    QCOMPARE(source.readAll(), QByteArray("331 b\r\n"));
}

QTEST_GUILESS_MAIN(tst_FtpReplyReader)
#include "tst_FtpReplyReader.moc"

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/RVCtlMessages.h"
#include "cli/RVCtlOutput.h"

#include <QTest>

#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <memory>

namespace
{

/// What reaches the stream.
QByteArray passed(const QByteArrayList &pieces, QString *kept = nullptr, bool *isCut = nullptr)
{
    char *text = nullptr;
    std::size_t size = 0;
    std::FILE *stream = ::open_memstream(&text, &size);
    RVCtlMessages messages;
    RVCtlOutput output(stream, &messages);
    for (const QByteArray &piece : pieces) {
        output.add(piece);
    }
    output.end();
    std::fclose(stream);
    const QByteArray result(text, static_cast<int>(size));
    std::free(text);
    if (kept) {
        *kept = output.kept();
        *isCut = output.isCut();
    }
    return result;
}

} // namespace

class tst_RVCtlOutput : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(std::setlocale(LC_ALL, "C.UTF-8")); }
    void lines_data();
    void lines();
    void anyPieces();
    void endlessLine();
    void keepsTheEnd();
};

void tst_RVCtlOutput::lines_data()
{
    QTest::addColumn<QByteArrayList>("pieces");
    QTest::addColumn<QByteArray>("expected");

    QTest::newRow("nothing") << QByteArrayList() << QByteArray();
    QTest::newRow("lines") << QByteArrayList{"one\ntwo\n"} << QByteArray("one\ntwo\n");
    QTest::newRow("no line feed at the end")
        << QByteArrayList{"one\ntwo"} << QByteArray("one\ntwo\n");
    QTest::newRow("a line in pieces")
        << QByteArrayList{"o", "n", "e\ntwo\nth", "ree\n"} << QByteArray("one\ntwo\nthree\n");
    QTest::newRow("empty lines") << QByteArrayList{"\n\n", "\n"} << QByteArray("\n\n\n");
    QTest::newRow("carriage returns") << QByteArrayList{"a\r\nb\rc\n"} << QByteArray("a\nb\nc\n");
    QTest::newRow("both in two pieces") << QByteArrayList{"a\r", "\nb\n"} << QByteArray("a\nb\n");
    QTest::newRow("a return before plain lines")
        << QByteArrayList{"a\r", "b\nc\n"} << QByteArray("a\nb\nc\n");
    QTest::newRow("tabulator") << QByteArrayList{"a\tb\n"} << QByteArray("a b\n");
    QTest::newRow("control characters among plain lines")
        << QByteArrayList{"plain\n\033[2Jred\nplain\n"}
        << QByteArray("plain\n\\u001b[2Jred\nplain\n");
    QTest::newRow("DEL") << QByteArrayList{"a\177b\n"} << QByteArray("a\\u007fb\n");
    QTest::newRow("UTF-8 in two pieces")
        << QByteArrayList{"Gr\303", "\274n\n"} << QByteArray("Gr\303\274n\n");
    QTest::newRow("not UTF-8") << QByteArrayList{"a\377b\n"} << QByteArray("a\357\277\275b\n");
    QTest::newRow("turned around")
        << QByteArrayList{"a\342\200\256b\n"} << QByteArray("a\\u202eb\n");
}

void tst_RVCtlOutput::lines()
{
    QFETCH(QByteArrayList, pieces);
    QFETCH(QByteArray, expected);
    QCOMPARE(passed(pieces), expected);
}

void tst_RVCtlOutput::anyPieces()
{
    const QByteArray text = "plain\nGr\303\274n\r\nplain\n\nlast\rx\t\342\202\254";
    const QByteArray whole = passed({text});
    QCOMPARE(whole, QByteArray("plain\nGr\303\274n\nplain\n\nlast\nx \342\202\254\n"));
    for (int first = 0; first <= text.size(); ++first) {
        for (int second = first; second <= text.size(); ++second) {
            QCOMPARE(passed({text.left(first), text.mid(first, second - first), text.mid(second)}),
                     whole);
        }
    }
}

void tst_RVCtlOutput::endlessLine()
{
    // In lines, none of which ends in half a character.
    const QByteArray shown = passed({QByteArray("\342\202\254").repeated(100000)});
    QVERIFY(!shown.contains("\357\277\275"));
    QCOMPARE(shown.count('\342'), 100000);
    QCOMPARE(shown.count('\n'), 300000 / 4095 + 1);
}

void tst_RVCtlOutput::keepsTheEnd()
{
    QString kept;
    bool isCut = true;
    passed({"one\n", "t\tw\33o"}, &kept, &isCut);
    QCOMPARE(kept, QStringLiteral("one\nt w\33o\n"));
    QVERIFY(!isCut);

    QByteArrayList pieces;
    QByteArray piece;
    for (int i = 0; i < 300000; ++i) {
        piece += QByteArray::number(i) + '\n';
        if (i % 1000 == 999) {
            pieces.append(piece);
            piece.clear();
        }
    }
    QCOMPARE(passed(pieces, &kept, &isCut), pieces.join());
    QVERIFY(isCut);
    QVERIFY(kept.size() <= RVCtlOutput::keptSize);
    QVERIFY(kept.size() > RVCtlOutput::keptSize - 8);
    QVERIFY(kept.endsWith(QLatin1String("\n299998\n299999\n")));
    QCOMPARE(kept.indexOf(QLatin1Char('\n')), 6);
}

QTEST_GUILESS_MAIN(tst_RVCtlOutput)
#include "tst_RVCtlOutput.moc"

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/RVSentence.h"

#include <QCoreApplication>
#include <QTest>
#include <QTranslator>

namespace
{

class German : public QTranslator
{
public:
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        return qstrcmp(context, "RVSentence") == 0 && qstrcmp(source, "%1 needs %2.") == 0
            ? QStringLiteral("Ohne %2 geht %1 nicht.")
            : QString();
    }
    bool isEmpty() const override { return false; }
};

RVSentence needs(const QString &first, const QString &second)
{
    return RVSentence("%1 needs %2.", {first, second});
}

} // namespace

class tst_RVSentence : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void empty();
    void english();
    void translated();
    void counted();
    void argumentsStayArguments();
    void foreignTextIsHarmlessWhenShown();
};

void tst_RVSentence::empty()
{
    QVERIFY(RVSentence().isEmpty());
    QCOMPARE(RVSentence().english(), QString());
    QCOMPARE(RVSentence().translated(), QString());
    QVERIFY(RVSentence() == RVSentence());
    QVERIFY(RVSentence() != RVSentence("100% of it."));
    QVERIFY(!RVSentence("100% of it.").isEmpty());
    QCOMPARE(RVSentence("100% of it.").english(), QStringLiteral("100% of it."));
}

void tst_RVSentence::english()
{
    const RVSentence sentence = needs(QStringLiteral("a"), QStringLiteral("b"));
    QCOMPARE(sentence.english(), QStringLiteral("a needs b."));
    QCOMPARE(sentence.translated(), sentence.english());
}

void tst_RVSentence::translated()
{
    German german;
    QCoreApplication::installTranslator(&german);
    const RVSentence sentence = needs(QStringLiteral("a"), QStringLiteral("b"));
    QCOMPARE(sentence.translated(), QStringLiteral("Ohne b geht a nicht."));
    QCOMPARE(sentence.english(), QStringLiteral("a needs b."));
    QCOMPARE(RVSentence().translated(), QString());
    QCoreApplication::removeTranslator(&german);
    QCOMPARE(sentence.translated(), sentence.english());
}

void tst_RVSentence::counted()
{
    const RVSentence sentence = RVSentence::counted("%1 of %n files", 5, {QStringLiteral("%n")});
    QCOMPARE(sentence.english(), QStringLiteral("%n of 5 files"));
    QCOMPARE(sentence.translated(), sentence.english());
    QVERIFY(sentence != RVSentence("%1 of %n files", {QStringLiteral("%n")}));
}

void tst_RVSentence::argumentsStayArguments()
{
    QCOMPARE(needs(QStringLiteral("%2"), QStringLiteral("%1 %%")).english(),
             QStringLiteral("%2 needs %1 %%."));
    QCOMPARE(RVSentence("%1 and %2", {QStringLiteral("a")}).english(), QStringLiteral("a and %2"));
}

void tst_RVSentence::foreignTextIsHarmlessWhenShown()
{
    const QString turned = QStringLiteral("evil") + QChar(0x202e) + QStringLiteral("bed");
    QCOMPARE(needs(turned, QStringLiteral("a\nb")).translated(),
             QStringLiteral("evilbed needs a b."));
    QCOMPARE(needs(turned, QStringLiteral("b")).english(), turned + QStringLiteral(" needs b."));
    const QString longName(100000, QLatin1Char('x'));
    QVERIFY(needs(longName, longName).translated().size() < 2 * RVSentence::longestArgument + 20);
}

QTEST_GUILESS_MAIN(tst_RVSentence)
#include "tst_RVSentence.moc"

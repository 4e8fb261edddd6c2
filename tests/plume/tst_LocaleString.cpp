// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include <plume/LocaleString.h>

#include <QLocale>
#include <QTest>

class tst_LocaleString : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QLocale::setDefault(QLocale::c()); }
    void runningLanguage_data();
    void runningLanguage();
    void followsTheRunningLanguage();
    void givenLanguage();
    void equality();
};

void tst_LocaleString::runningLanguage_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QStringList>("stored");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const char *locale, const char *stored,
                        const char *expected) {
        QTest::newRow(name) << QString::fromLatin1(
            locale) << QString::fromLatin1(stored).split(QLatin1Char(' '), Qt::SkipEmptyParts)
                            << QString::fromLatin1(expected);
    };
    row("nothing stored", "de_DE", "", "");
    row("full name", "pt_BR", "en pt pt-BR pt_BR", "in pt_BR");
    row("full name with a dash", "pt_BR", "en pt pt-BR", "in pt-BR");
    row("language alone", "pt_BR", "en pt pt_PT", "in pt");
    row("English when the language is not there", "pt_BR", "de en pt_PT", "in en");
    row("whatever is there", "pt_BR", "sv de", "in de");
    row("no language set", "C", "de en", "in en");
}

void tst_LocaleString::runningLanguage()
{
    QFETCH(QString, locale);
    QFETCH(QStringList, stored);
    QFETCH(QString, expected);
    QLocale::setDefault(QLocale(locale));
    LocaleString text;
    QVERIFY(text.isEmpty());
    for (const QString &language : stored) {
        text.setValue(QStringLiteral("in ") + language, language);
    }
    QCOMPARE(text.value(QString()), expected);
    QCOMPARE(text.isEmpty(), stored.isEmpty());
}

void tst_LocaleString::followsTheRunningLanguage()
{
    LocaleString text;
    text.setValue(QStringLiteral("Uhr"), QStringLiteral("de"));
    text.setValue(QStringLiteral("clock"), QStringLiteral("en"));
    QLocale::setDefault(QLocale(QStringLiteral("de_AT")));
    QCOMPARE(text.value(QString()), QStringLiteral("Uhr"));
    QLocale::setDefault(QLocale(QStringLiteral("sv_SE")));
    QCOMPARE(text.value(QString()), QStringLiteral("clock"));
}

void tst_LocaleString::givenLanguage()
{
    LocaleString text;
    text.setValue(QStringLiteral("clock"), QStringLiteral("en"));
    text.setValue(QStringLiteral("Wecker"), QStringLiteral("de"));
    text.setValue(QStringLiteral("Uhr"), QStringLiteral("de"));
    QCOMPARE(text.value(QStringLiteral("de")), QStringLiteral("Uhr"));
    QCOMPARE(text.value(QStringLiteral("en")), QStringLiteral("clock"));
    QCOMPARE(text.value(QStringLiteral("fr")), QString());
    QCOMPARE(text.value(QStringLiteral("de_DE")), QString());
}

void tst_LocaleString::equality()
{
    LocaleString a;
    LocaleString b;
    QVERIFY(a == b);
    a.setValue(QStringLiteral("clock"), QStringLiteral("en"));
    QVERIFY(a != b);
    b.setValue(QStringLiteral("clock"), QStringLiteral("en"));
    QVERIFY(a == b);
    b.setValue(QStringLiteral("clock"), QStringLiteral("de"));
    QVERIFY(a != b);
}

QTEST_APPLESS_MAIN(tst_LocaleString)
#include "tst_LocaleString.moc"

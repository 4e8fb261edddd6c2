// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/support/WarningGuard.h"
#include "ui/RVTranslator.h"

#include <QApplication>
#include <QLocale>
#include <QTest>
#include <QTranslator>

namespace
{

QString install()
{
    return QCoreApplication::translate("RVControlFrame", "&Install");
}

QString expired()
{
    return QCoreApplication::translate("QSslSocket", "The certificate has expired");
}

void send(QEvent::Type type)
{
    QEvent event(type);
    QCoreApplication::sendEvent(QCoreApplication::instance(), &event);
}

// Counts what the application is told, after the translator.
class Listener : public QObject
{
public:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (watched == QCoreApplication::instance() && event->type() == QEvent::LanguageChange) {
            ++changes;
        }
        return QObject::eventFilter(watched, event);
    }

    int changes = 0;
};

// A host's own catalogue for Qt's texts.
class HostTexts : public QTranslator
{
public:
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        return QLatin1String(context) == QLatin1String("QSslSocket")
            ? QStringLiteral("host: %1").arg(QLatin1String(source))
            : QString();
    }
    bool isEmpty() const override { return false; }
};

} // namespace

class tst_RVTranslator : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QLocale::setDefault(QLocale(QLocale::C)); }
    void cleanup() { QLocale::setDefault(QLocale(QLocale::C)); }

    void choosesACatalogue_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("catalogue");
        const auto row = [](const char *what, const char *locale, const char *catalogue) {
            QTest::newRow(what) << QString::fromLatin1(locale) << QString::fromLatin1(catalogue);
        };
        row("German", "de", "de");
        row("German of Austria", "de_AT", "de");
        row("Brazilian Portuguese", "pt_BR", "pt_BR");
        row("European Portuguese", "pt_PT", "pt_BR");
        row("Chinese", "zh", "zh_CN");
        row("Chinese of China", "zh_CN", "zh_CN");
        row("Chinese of Singapore", "zh_SG", "zh_CN");
        row("Chinese of Taiwan", "zh_TW", "zh_TW");
        row("Chinese of Hong Kong", "zh_HK", "zh_TW");
        row("Hebrew by its old code", "iw", "he");
        row("Arabic of Morocco", "ar_MA", "ar");
        row("English", "en_GB", "");
        row("no language", "C", "");
        row("no such language", "xx", "");
        row("a language without catalogue", "fi", "");
    }
    void choosesACatalogue()
    {
        QFETCH(QString, locale);
        const RVTranslator translator;
        QTEST(RVTranslator::catalogueFor(QLocale(locale).uiLanguages()), "catalogue");
    }

    // The user's list of languages, best first.
    void takesTheFirstLanguageItKnows_data()
    {
        QTest::addColumn<QString>("languages");
        QTest::addColumn<QString>("catalogue");
        QTest::newRow("known") << "de:fr"
                               << "de";
        QTest::newRow("unknown first") << "fi-FI:fr:de"
                                       << "fr";
        QTest::newRow("English first") << "en-US:en:de"
                                       << "";
        QTest::newRow("English before the known one") << "fi:en:de"
                                                      << "";
        QTest::newRow("none") << ""
                              << "";
    }
    void takesTheFirstLanguageItKnows()
    {
        QFETCH(QString, languages);
        const RVTranslator translator;
        QTEST(RVTranslator::catalogueFor(languages.split(QLatin1Char(':'))), "catalogue");
    }

    void bringsTheTexts()
    {
        QLocale::setDefault(QLocale(QStringLiteral("de")));
        {
            const RVTranslator translator;
            QCOMPARE(translator.language(), QStringLiteral("de"));
            QCOMPARE(install(), QStringLiteral("&Installieren"));
        }
        QCOMPARE(install(), QStringLiteral("&Install"));
    }

    void follows_data()
    {
        QTest::addColumn<int>("event");
        QTest::newRow("change of language") << int(QEvent::LanguageChange);
        QTest::newRow("change of locale") << int(QEvent::LocaleChange);
    }
    void follows()
    {
        QFETCH(int, event);
        const RVTranslator translator;
        QCOMPARE(install(), QStringLiteral("&Install"));
        QLocale::setDefault(QLocale(QStringLiteral("it")));
        QCOMPARE(install(), QStringLiteral("&Install"));
        send(static_cast<QEvent::Type>(event));
        QCOMPARE(install(), QStringLiteral("&Installa"));
        QLocale::setDefault(QLocale(QStringLiteral("en")));
        send(static_cast<QEvent::Type>(event));
        QCOMPARE(install(), QStringLiteral("&Install"));
        QCOMPARE(translator.language(), QString());
    }

    // Two catalogues in, two out: the windows are told once.
    void announcesAChangeOnce()
    {
        Listener listener;
        QCoreApplication::instance()->installEventFilter(&listener);
        // Installed last, asked first.
        const RVTranslator translator;
        for (const char *language : {"nl", "pl", "en", "en"}) {
            QLocale::setDefault(QLocale(QLatin1String(language)));
            listener.changes = 0;
            send(QEvent::LanguageChange);
            QCOMPARE(listener.changes, 1);
        }
        QLocale::setDefault(QLocale(QStringLiteral("nl")));
        listener.changes = 0;
        send(QEvent::LocaleChange);
        QVERIFY(listener.changes >= 1);
    }

    void bringsQtsTextsToo()
    {
        QLocale::setDefault(QLocale(QStringLiteral("fr")));
        {
            const RVTranslator translator;
            QCOMPARE(expired(), QStringLiteral("Le certificat a expiré"));
        }
        QCOMPARE(expired(), QStringLiteral("The certificate has expired"));
    }

    void leavesTheHostsOwnTextsAlone()
    {
        QLocale::setDefault(QLocale(QStringLiteral("fr")));
        HostTexts host;
        QCoreApplication::installTranslator(&host);
        {
            const RVTranslator translator;
            QCOMPARE(expired(), QStringLiteral("host: The certificate has expired"));
            QCOMPARE(install(), QStringLiteral("&Installer"));
        }
        QCoreApplication::removeTranslator(&host);
    }

    // Of the certificate's errors Qt's catalogues lack one.
    void hasWhatQtLacks_data()
    {
        QTest::addColumn<QString>("code");
        for (const QString &code : QStringLiteral(RAVEL_LANGUAGES).split(QLatin1Char(' '))) {
            QTest::newRow(qPrintable(code)) << code;
        }
    }
    void hasWhatQtLacks()
    {
        QFETCH(QString, code);
        QLocale::setDefault(QLocale(code));
        const RVTranslator translator;
        QCOMPARE(translator.language(), code);
        const char revoked[] = "The server's certificate has been revoked";
        QVERIFY(QCoreApplication::translate("QSslSocket", revoked) != QLatin1String(revoked));
        QVERIFY(expired() != QLatin1String("The certificate has expired"));
        QVERIFY(install() != QLatin1String("&Install"));
    }

private:
    WarningGuard m_guard;
};

QTEST_MAIN(tst_RVTranslator)
#include "tst_RVTranslator.moc"

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/RVLogger.h"
#include "tests/support/LogFile.h"
#include "tests/support/WarningGuard.h"
#include "ui/RVErrorDialog.h"

#include <QCheckBox>
#include <QNetworkReply>
#include <QPushButton>
#include <QTextEdit>
#include <QTranslator>
#include <QWindow>
#include <QtTest>

#include <memory>

namespace
{

// A reply that failed: the dialog looks at its code and place only.
class FailedReply : public QNetworkReply
{
    Q_OBJECT

public:
    FailedReply(int code, const QString &url)
    {
        setError(static_cast<NetworkError>(code), QStringLiteral("the reply's own text"));
        setUrl(QUrl(url));
    }
    void abort() override { }

protected:
    qint64 readData(char *, qint64) override { return -1; }
};

class Marking : public QTranslator
{
public:
    using QTranslator::QTranslator;

    QString translate(const char *context, const char *source, const char *, int) const override
    {
        return qstrcmp(context, "RVErrorDialog") == 0
            ? QStringLiteral("xx ") + QString::fromLatin1(source)
            : QString();
    }
    bool isEmpty() const override { return false; }
};

QString shown(const RVErrorDialog &dialog)
{
    return dialog.isVisible() ? dialog.findChild<QTextEdit *>()->toPlainText() : QString();
}

} // namespace

class tst_RVErrorDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_guard.reset();
        m_guard = std::make_unique<WarningGuard>();
        // The offscreen platform says so of every window that has a minimum size.
    }
    void cleanup() { m_guard.reset(); }

    void saysWhatItIs()
    {
        RVErrorDialog dialog(nullptr);
        QCOMPARE(dialog.accessibleName(), QStringLiteral("Message"));
        QCOMPARE(dialog.findChild<QTextEdit *>()->accessibleName(), QStringLiteral("Message"));
    }

    void messages_data()
    {
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("text");

        const auto row = [](int code, const char *text) {
            QTest::newRow(qPrintable(QString::number(code))) << code << QString::fromLatin1(text);
        };
        row(1,
            "Network connection refused for URI '%1'.  The remote server is not accepting "
            "requests.");
        row(2,
            "The remote server for URI '%1' closed the connection before the transaction was "
            "complete.");
        row(3,
            "The host was not found for URI '%1'.  Check the URI, networking, firewalls, and DNS.");
        row(4,
            "Timed out trying to communicate with server for URI '%1'.  Check the URI, networking, "
            "firewalls, and DNS.");
        row(5, "Network fetch aborted for  URI '%1'.");
        row(6, "A secure channel via SSL/TLS handshaking could not be established for URI '%1'.");
        row(99,
            "A network error was detected in contacting the URI '%1'.  Are all parts of the URI "
            "valid?  Is networking okay?");
        row(101, "A connection could not be established to the proxyserver for URI '%1'.");
        row(102, "The proxy server closed the connection prematurely for URI '%1'.");
        row(103,
            "The proxy server could not be contacted for URI '%1'.  Check the proxy settings, URI, "
            "networking, firewalls, and DNS.");
        row(104, "Timed out communicating with the proxy server for URI '%1'.");
        row(105,
            "Authentication against the proxy server failed for URI '%1'.  Check the credentials "
            "to be supplied to the proxy server.");
        row(199, "A network error was detected in contacting the proxy server for the URI '%1'.");
        row(201, "Access was denied for URI '%1'.  Is the URI valid?  Is the content readable?");
        row(202,
            "Could not retreive the contents of URI '%1'.  Is the URI valid?  Is the content "
            "readable?");
        row(203, "Could not find URI '%1'.  Is the URI valid?  Is the content readable?");
        row(204,
            "Authentication is required to access URI '%1'.  Check the URI and any user names or "
            "passwords supplied.");
        row(205,
            "Content requires a re-send for URI '%1', but that content is no longer available.");
        row(299, "An error was detected in handling the content retreived for the URI '%1'");
        row(301, "The protocol used by URI '%1' is not valid for this program.");
        row(302, "The protocol used by URI '%1' could not be used to retrieve URI contents.");
        row(399,
            "The handshaking between client and server for the protocol used by URI '%1' could not "
            "be completed.");
        row(206, "An error was detected in handling the content retreived for the URI '%1'");
        row(207, "An error was detected in handling the content retreived for the URI '%1'");
        row(401, "An error was detected in handling the content retreived for the URI '%1'");
        row(402, "The protocol used by URI '%1' is not valid for this program.");
        row(403, "The protocol used by URI '%1' is not valid for this program.");
        row(499, "The protocol used by URI '%1' is not valid for this program.");
        row(7, "Unanticipated network error '7' for the URI '%1'.");
        row(8, "Unanticipated network error '8' for the URI '%1'.");
        row(9, "Unanticipated network error '9' for the URI '%1'.");
        row(10, "Unanticipated network error '10' for the URI '%1'.");
        row(11, "Unanticipated network error '11' for the URI '%1'.");
        row(12, "Unanticipated network error '12' for the URI '%1'.");
        row(100, "Unanticipated network error '100' for the URI '%1'.");
        row(106, "Unanticipated network error '106' for the URI '%1'.");
        row(200, "Unanticipated network error '200' for the URI '%1'.");
        row(300, "Unanticipated network error '300' for the URI '%1'.");
        row(400, "Unanticipated network error '400' for the URI '%1'.");
        row(1234, "Unanticipated network error '1234' for the URI '%1'.");
        row(-1, "Unanticipated network error '-1' for the URI '%1'.");
    }
    void messages()
    {
        QFETCH(int, code);
        QFETCH(QString, text);
        const QString url = QStringLiteral("http://host/dir/a%20b.xml?x=%25&y=%1");
        text.replace(QLatin1String("%1"), QUrl(url).toString());
        LogFile log;
        RVErrorDialog dialog;
        const FailedReply reply(code, url);
        dialog.showNetworkError(&reply);
        QVERIFY(dialog.isVisible());
        QCOMPARE(shown(dialog), text);
        QCOMPARE(log.lines(), QStringList(text));
    }

    void noError()
    {
        LogFile log;
        RVErrorDialog dialog;
        const FailedReply reply(0, QStringLiteral("http://host/"));
        dialog.showNetworkError(&reply);
        QVERIFY(!dialog.isVisible());
        QVERIFY(log.lines().isEmpty());
        QVERIFY(RVErrorDialog::messageFor(0, QStringLiteral("x")).isEmpty());
    }

    void logLevel()
    {
        LogFile log;
        const int level = RVLogger::m_level;
        RVErrorDialog dialog;
        const FailedReply reply(203, QStringLiteral("http://host/"));
        RVLogger::m_level = 2;
        dialog.showNetworkError(&reply);
        QVERIFY(log.lines().isEmpty());
        RVLogger::m_level = 3;
        dialog.showNetworkError(&reply);
        RVLogger::m_level = level;
        QCOMPARE(log.lines().size(), 1);
    }

    void places_data()
    {
        QTest::addColumn<QString>("url");
        QTest::addColumn<QString>("text");
        QTest::newRow("per cent signs") << "http://h/%25s%25n"
                                        << "http://h/%25s%25n";
        QTest::newRow("place holders of the sentence") << "http://h/%1%2"
                                                       << "http://h/%251%252";
        QTest::newRow("markup") << "http://h/<b>&amp;'\""
                                << "http://h/%3Cb%3E&amp;'%22";
        QTest::newRow("password") << "ftp://user:secret@h/a"
                                  << "ftp://user@h/a";
        QTest::newRow("none") << ""
                              << "";
    }
    void places()
    {
        QFETCH(QString, url);
        QFETCH(QString, text);
        LogFile log;
        RVErrorDialog dialog;
        const FailedReply reply(301, url);
        dialog.showNetworkError(&reply);
        const QString expected = QStringLiteral("The protocol used by URI '") + text
            + QStringLiteral("' is not valid for this program.");
        QCOMPARE(shown(dialog), expected);
        QCOMPARE(log.lines(), QStringList(expected));
    }

    void placesInTheUnanticipatedText()
    {
        QCOMPARE(RVErrorDialog::messageFor(7, QStringLiteral("%1%2")),
                 QStringLiteral("Unanticipated network error '7' for the URI '%1%2'."));
    }

    // The check box of the dialog silences one text; the log still has it.
    void suppression()
    {
        LogFile log;
        RVErrorDialog dialog;
        const FailedReply first(203, QStringLiteral("http://h/a"));
        const FailedReply second(203, QStringLiteral("http://h/b"));
        dialog.showNetworkError(&first);
        dialog.findChild<QCheckBox *>()->setChecked(false);
        dialog.findChild<QPushButton *>()->click();
        QVERIFY(!dialog.isVisible());
        dialog.showNetworkError(&first);
        QVERIFY(!dialog.isVisible());
        dialog.showNetworkError(&second);
        QVERIFY(dialog.isVisible());
        QCOMPARE(log.lines().size(), 3);
    }

    // One after the other, and not two thousand of them.
    void manyMessages()
    {
        LogFile log;
        RVErrorDialog dialog;
        for (int i = 0; i < 2000; ++i) {
            const FailedReply reply(203, QStringLiteral("http://h/%1").arg(i));
            dialog.showNetworkError(&reply);
        }
        QCOMPARE(log.lines().size(), 2000);
        int count = 0;
        while (dialog.isVisible() && count < 2000) {
            QVERIFY(shown(dialog).contains(QStringLiteral("http://h/%1'").arg(count)));
            ++count;
            dialog.findChild<QPushButton *>()->click();
        }
        QCOMPARE(count, 20);
        const FailedReply reply(203, QStringLiteral("http://h/later"));
        dialog.showNetworkError(&reply);
        QVERIFY(dialog.isVisible());
    }

    // A download that fails during an installation, whose progress dialog blocks the window.
    void answersBesideAModalDialog()
    {
        LogFile log;
        QWidget window;
        RVErrorDialog dialog(&window);
        QDialog progress(&window);
        progress.setWindowModality(Qt::WindowModal);
        window.show();
        const FailedReply reply(203, QStringLiteral("http://h/a"));
        dialog.showNetworkError(&reply);
        QVERIFY(!dialog.isModal());
        const auto answer = [&dialog] {
            QVERIFY(QTest::qWaitForWindowExposed(&dialog));
            auto *ok = dialog.findChild<QPushButton *>();
            // By the window, where a modal dialog gets in the way.
            QTest::mouseClick(dialog.windowHandle(), Qt::LeftButton, {},
                              ok->mapTo(&dialog, ok->rect().center()));
        };
        answer();
        QTRY_VERIFY(!dialog.isVisible());
        progress.show();
        QVERIFY(QTest::qWaitForWindowExposed(&progress));
        dialog.showNetworkError(&reply);
        answer();
        QTRY_VERIFY(!dialog.isVisible());
        QVERIFY(progress.isVisible());
        progress.hide();
        dialog.showNetworkError(&reply);
        QVERIFY(!dialog.isModal());
    }

    void languageChange()
    {
        LogFile log;
        RVErrorDialog dialog;
        Marking translator;
        QCoreApplication::installTranslator(&translator);
        QEvent event(QEvent::LanguageChange);
        QCoreApplication::sendEvent(&dialog, &event);
        const QString text = RVErrorDialog::messageFor(5, QStringLiteral("u"));
        QCoreApplication::removeTranslator(&translator);
        QCOMPARE(text, QStringLiteral("xx Network fetch aborted for  URI 'u'."));
    }

private:
    std::unique_ptr<WarningGuard> m_guard;
};

QTEST_MAIN(tst_RVErrorDialog)
#include "tst_RVErrorDialog.moc"

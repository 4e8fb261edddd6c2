// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/support/WarningGuard.h"
#include "tests/ui/Spoken.h"
#include "ui/CertDialog.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDialogButtonBox>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QProcess>
#include <QPushButton>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTextDocument>
#include <QTextEdit>
#include <QTimer>
#include <QTranslator>
#include <QUrl>
#include <QtTest>

#include <memory>

namespace
{

const QString place = QStringLiteral("https://host/updates/");

// What openssl makes of these arguments, signed by itself.
QSslCertificate selfSigned(const QStringList &arguments)
{
    const QTemporaryDir dir;
    const QString file = dir.filePath(QStringLiteral("cert.pem"));
    QProcess openssl;
    openssl.start(
        QStringLiteral("openssl"),
        QStringList{QStringLiteral("req"), QStringLiteral("-x509"), QStringLiteral("-newkey"),
                    QStringLiteral("ec"), QStringLiteral("-pkeyopt"),
                    QStringLiteral("ec_paramgen_curve:prime256v1"), QStringLiteral("-nodes"),
                    QStringLiteral("-keyout"), dir.filePath(QStringLiteral("key.pem")),
                    QStringLiteral("-utf8"), QStringLiteral("-out"), file}
            + arguments);
    openssl.waitForFinished();
    QFile certificate(file);
    return certificate.open(QIODevice::ReadOnly) ? QSslCertificate(&certificate)
                                                 : QSslCertificate();
}

QSslCertificate selfSigned(const QString &subject)
{
    return selfSigned({QStringLiteral("-subj"), subject, QStringLiteral("-set_serial"),
                       QStringLiteral("0x0a1b2c"), QStringLiteral("-days"), QStringLiteral("30")});
}

// openssl itself holds a field to 64 characters, which a server need not do.
QSslCertificate withOrganization(const QString &organization)
{
    const QTemporaryDir dir;
    QFile config(dir.filePath(QStringLiteral("config")));
    if (!config.open(QIODevice::WriteOnly)
        || config.write("openssl_conf = init\n[init]\nstbl_section = table\n"
                        "[table]\norganizationName = min:1,max:4096\n"
                        "[req]\ndistinguished_name = name\n[name]\n")
            < 0
        || !config.flush()) {
        return QSslCertificate();
    }
    return selfSigned({QStringLiteral("-config"), config.fileName(), QStringLiteral("-subj"),
                       QStringLiteral("/O=") + organization, QStringLiteral("-days"),
                       QStringLiteral("30")});
}

// One whose issuer is another, and whose time is over.
QSslCertificate expired()
{
    const QTemporaryDir dir;
    const auto run = [&dir](const QString &command) {
        QProcess shell;
        shell.setWorkingDirectory(dir.path());
        shell.start(QStringLiteral("/bin/sh"), {QStringLiteral("-ec"), command});
        return shell.waitForFinished() && shell.exitCode() == 0;
    };
    if (!run(QStringLiteral(
            "touch index; echo 01 > serial; printf '%s\\n' '[ca]' 'default_ca=d' '[d]' "
            "'database=index'"
            " 'new_certs_dir=.' 'serial=serial' 'default_md=sha256' 'policy=p' '[p]' "
            "'commonName=supplied'"
            " > ca.cnf\n"
            "openssl req -x509 -newkey ec -pkeyopt ec_paramgen_curve:prime256v1 -nodes -keyout "
            "ca.key"
            " -out ca.pem -subj '/O=Makers/OU=Signers/CN=The Authority' -days 30\n"
            "openssl req -newkey ec -pkeyopt ec_paramgen_curve:prime256v1 -nodes -keyout host.key"
            " -out host.csr -subj /CN=old.host\n"
            "openssl ca -batch -config ca.cnf -cert ca.pem -keyfile ca.key -in host.csr -out "
            "host.pem"
            " -notext -startdate 20010203040506Z -enddate 20020304050607Z"))) {
        return QSslCertificate();
    }
    QFile certificate(dir.filePath(QStringLiteral("host.pem")));
    return certificate.open(QIODevice::ReadOnly) ? QSslCertificate(&certificate)
                                                 : QSslCertificate();
}

QStringList details(const CertDialog &dialog)
{
    return dialog.findChild<QTextEdit *>()->toPlainText().split(QLatin1Char('\n'));
}

QList<QSslError> errorsOf(const QSslCertificate &certificate,
                          const QList<int> &codes = {QSslError::SelfSignedCertificate})
{
    QList<QSslError> errors;
    for (const int code : codes) {
        errors.append(QSslError(static_cast<QSslError::SslError>(code), certificate));
    }
    return errors;
}

QPushButton *button(const CertDialog &dialog, QDialogButtonBox::StandardButton which)
{
    return dialog.findChild<QDialogButtonBox *>()->button(which);
}

class Marking : public QTranslator
{
public:
    using QTranslator::QTranslator;

    QString translate(const char *context, const char *source, const char *, int) const override
    {
        return qstrcmp(context, "CertDialog") == 0 || qstrcmp(context, "QSslSocket") == 0
            ? QStringLiteral("xx ") + QString::fromLatin1(source)
            : QString();
    }
    bool isEmpty() const override { return false; }
};

} // namespace

class tst_CertDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_full = selfSigned(
            QString::fromUtf8("/O=Makers & Sons/OU=First/OU=Updates <b>/CN=h\303\266st"));
        m_plain = selfSigned(QStringLiteral("/CN=plain"));
        QVERIFY(!m_full.isNull());
        QVERIFY(!m_plain.isNull());
    }
    void init()
    {
        m_guard.reset();
        m_guard = std::make_unique<WarningGuard>();
        // The offscreen platform says so of every window that has a minimum size.
    }
    void cleanup() { m_guard.reset(); }

    void texts()
    {
        const CertDialog dialog(QUrl(place), errorsOf(m_full));
        QCOMPARE(dialog.windowTitle(), QStringLiteral("Certificate"));
        QCOMPARE(dialog.findChild<QLabel *>(QStringLiteral("label"))->text(),
                 QStringLiteral("Certificate could not be validated:  "));
        QCOMPARE(dialog.findChild<QLabel *>(QStringLiteral("url"))->text(), place);
        QCOMPARE(dialog.findChild<QGroupBox *>()->title(), QStringLiteral("Show Details"));
        QVERIFY(!dialog.findChild<QGroupBox *>()->isChecked());
        QVERIFY(dialog.findChild<QTextEdit *>()->isHidden());
        QVERIFY(dialog.findChild<QTextEdit *>()->isReadOnly());
        QCOMPARE(button(dialog, QDialogButtonBox::Yes)->text(),
                 QStringLiteral("Accept Certificate"));
        QCOMPARE(button(dialog, QDialogButtonBox::No)->text(),
                 QStringLiteral("Reject Certificate"));
        QVERIFY(!button(dialog, QDialogButtonBox::Yes)->icon().isNull());
        QVERIFY(!button(dialog, QDialogButtonBox::No)->icon().isNull());
        QVERIFY(dialog.isModal());
    }

    // Whoever makes a certificate chooses its names.
    void namesDrawNoLines()
    {
        const QSslCertificate certificate =
            selfSigned(QString::fromUtf8("/O=Good\nFingerprints\nSHA256 Fingerprint:  aa"
                                         "/OU=back\342\200\256wards\302\233\342\200\250line"
                                         "/CN=plain"));
        QVERIFY(!certificate.isNull());
        const CertDialog dialog(QUrl(place), errorsOf(certificate));
        const QString text = dialog.findChild<QTextEdit *>()->toPlainText();
        QCOMPARE(text.count(QStringLiteral("\nFingerprints\n")), 1);
        QVERIFY2(text.contains(QStringLiteral("Good\\u000aFingerprints\\u000aSHA256")),
                 qPrintable(text));
        QVERIFY2(text.contains(QStringLiteral("back\\u202ewards\\u009b\\u2028line")),
                 qPrintable(text));
    }

    void everyDetail()
    {
        const CertDialog dialog(QUrl(place), errorsOf(m_full, {9, 22}));
        const auto hex = [this](QCryptographicHash::Algorithm algorithm) {
            return QString::fromLatin1(m_full.digest(algorithm).toHex(':'));
        };
        const QStringList expected{
            QStringLiteral("The certificate is self-signed, and untrusted."),
            QStringLiteral(
                "The host name did not match any of the valid hosts for this certificate."),
            QString(),
            QStringLiteral("Issued To"),
            QString::fromUtf8("  Common Name:  h\303\266st"),
            QStringLiteral("  Organization:  Makers & Sons"),
            QStringLiteral("  Organizational Unit:  Updates <b>"),
            QStringLiteral("  Serial Number:  0a:1b:2c"),
            QString(),
            QStringLiteral("Issued By"),
            QString::fromUtf8("  Common Name:  h\303\266st"),
            QStringLiteral("  Organization:  Makers & Sons"),
            QStringLiteral("  Organizational Unit:  Updates <b>"),
            QString(),
            QStringLiteral("Dates"),
            QStringLiteral("  Issue Date:  ") + m_full.effectiveDate().toString(Qt::TextDate),
            QStringLiteral("  Expires Date:  ") + m_full.expiryDate().toString(Qt::TextDate),
            QString(),
            QStringLiteral("Fingerprints"),
            QStringLiteral("  SHA256 Fingerprint:  ") + hex(QCryptographicHash::Sha256),
            QStringLiteral("  SHA1 Fingerprint:  ") + hex(QCryptographicHash::Sha1),
            QStringLiteral("  MD5 Fingerprint:  ") + hex(QCryptographicHash::Md5),
            QString(),
        };
        QCOMPARE(details(dialog), expected);
        QVERIFY(hex(QCryptographicHash::Sha256).size() == 95);
        QVERIFY(hex(QCryptographicHash::Sha1).size() == 59);
        QVERIFY(hex(QCryptographicHash::Md5).size() == 47);
    }

    void typefaces()
    {
        const CertDialog dialog(QUrl(place), errorsOf(m_full));
        const QTextDocument *document = dialog.findChild<QTextEdit *>()->document();
        const auto format = [document](const char *text) {
            return document->find(QString::fromLatin1(text)).charFormat();
        };
        QVERIFY(format("self-signed").fontItalic());
        QCOMPARE(format("Issued By").fontWeight(), int(QFont::Bold));
        QVERIFY(!format("Issued By").fontItalic());
        QVERIFY(!format("Organization").fontItalic());
        QVERIFY(format("Organization").fontWeight() != int(QFont::Bold));
    }

    void missingDetails()
    {
        const CertDialog dialog(QUrl(place), errorsOf(m_plain));
        const QString text = details(dialog).join(QLatin1Char('\n'));
        QVERIFY(text.contains(QLatin1String("  Common Name:  plain\n")));
        QVERIFY(!text.contains(QLatin1String("Organization")));
    }

    void issuerAndDates()
    {
        const QSslCertificate certificate = expired();
        QVERIFY(!certificate.isNull());
        const CertDialog dialog(QUrl(place),
                                errorsOf(certificate, {QSslError::CertificateExpired}));
        const QStringList text = details(dialog);
        const int issuer = text.indexOf(QStringLiteral("Issued By"));
        QCOMPARE(text.mid(0, issuer).count(QStringLiteral("  Common Name:  old.host")), 1);
        QCOMPARE(text.mid(issuer, 4),
                 QStringList({QStringLiteral("Issued By"),
                              QStringLiteral("  Common Name:  The Authority"),
                              QStringLiteral("  Organization:  Makers"),
                              QStringLiteral("  Organizational Unit:  Signers")}));
        QVERIFY(text.contains(QStringLiteral("  Issue Date:  Sat Feb 3 04:05:06 2001 GMT")));
        QVERIFY(text.contains(QStringLiteral("  Expires Date:  Mon Mar 4 05:06:07 2002 GMT")));
        QCOMPARE(text.constFirst(), QStringLiteral("The certificate has expired."));
    }

    void longValues_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("expected");
        const QString longest(128, QLatin1Char('x'));
        const QString cut = QString(127, QLatin1Char('x')) + QChar(0x2026);
        QTest::newRow("as long as may be") << longest << longest;
        QTest::newRow("one more") << longest + QLatin1Char('y') << cut;
        QTest::newRow("thousands") << longest.repeated(30) << cut;
    }
    void longValues()
    {
        QFETCH(QString, value);
        QFETCH(QString, expected);
        const QSslCertificate certificate = withOrganization(value);
        QCOMPARE(certificate.subjectInfo(QSslCertificate::Organization), QStringList{value});
        const QStringList text = details(CertDialog(QUrl(place), errorsOf(certificate)));
        // Issued to, and issued by.
        QCOMPARE(text.count(QStringLiteral("  Organization:  ") + expected), 2);
        QCOMPARE(text.filter(QStringLiteral("Organization")).size(), 2);
    }

    void showsTheServersOwnCertificate()
    {
        // The first error is about the authority.
        const CertDialog dialog(QUrl(place), errorsOf(m_plain), nullptr, {}, m_full);
        const QStringList text = details(dialog);
        QVERIFY(text.contains(QString::fromUtf8("  Common Name:  h\303\266st")));
        QVERIFY(!text.contains(QStringLiteral("  Common Name:  plain")));
        QVERIFY(text.contains(
            QStringLiteral("  SHA256 Fingerprint:  ")
            + QString::fromLatin1(m_full.digest(QCryptographicHash::Sha256).toHex(':'))));
    }

    void datesInTheProgramsLanguage_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("expected");
        QTest::newRow("English") << QStringLiteral("en")
                                 << QStringLiteral("Sat Feb 3 04:05:06 2001 GMT");
        QTest::newRow("German") << QStringLiteral("de")
                                << QString::fromUtf8("Sa. Feb. 3 04:05:06 2001 GMT");
        QTest::newRow("French") << QStringLiteral("fr")
                                << QString::fromUtf8("sam. f\303\251vr. 3 04:05:06 2001 GMT");
    }
    void datesInTheProgramsLanguage()
    {
        QFETCH(QString, language);
        QFETCH(QString, expected);
        const QLocale before;
        QLocale::setDefault(QLocale(language));
        const CertDialog dialog(QUrl(place), errorsOf(expired(), {QSslError::CertificateExpired}));
        const QStringList text = details(dialog);
        QLocale::setDefault(before);
        QVERIFY2(text.contains(QStringLiteral("  Issue Date:  ") + expected),
                 qPrintable(text.join(QLatin1Char('\n'))));
    }

    void noErrors_data()
    {
        QTest::addColumn<int>("count");
        QTest::newRow("one") << 1;
        QTest::newRow("three") << 3;
    }
    void noErrors()
    {
        QFETCH(int, count);
        QList<QSslError> errors;
        for (int i = 0; i < count; ++i) {
            errors += errorsOf(m_plain, {QSslError::NoError});
        }
        const CertDialog dialog(QUrl(place), errors);
        QCOMPARE(details(dialog).mid(0, 3),
                 QStringList({QString(), QStringLiteral("Issued To"),
                              QStringLiteral("  Common Name:  plain")}));
    }

    void firstCertificateCounts()
    {
        const QList<QSslError> errors = {
            QSslError(QSslError::NoPeerCertificate),
            QSslError(QSslError::SelfSignedCertificate, m_plain),
            QSslError(QSslError::HostNameMismatch, m_full),
        };
        const QStringList text = details(CertDialog(QUrl(place), errors));
        QVERIFY(text.contains(QStringLiteral("  Common Name:  plain")));
        QVERIFY(!text.contains(QStringLiteral("  Organization:  Makers & Sons")));
        QCOMPARE(text.constFirst(), QStringLiteral("The peer did not present any certificate."));
    }

    void noCertificate_data()
    {
        QTest::addColumn<bool>("withError");
        QTest::newRow("an error without one") << true;
        QTest::newRow("no errors at all") << false;
    }
    void noCertificate()
    {
        QFETCH(bool, withError);
        const QList<QSslError> errors = withError
            ? QList<QSslError>{QSslError(QSslError::NoPeerCertificate)}
            : QList<QSslError>();
        QStringList text = details(CertDialog(QUrl(place), errors));
        text.removeAll(QString());
        if (withError) {
            QCOMPARE(text.takeFirst(), QStringLiteral("The peer did not present any certificate."));
        }
        QCOMPARE(text,
                 QStringList({QStringLiteral("Issued To"), QStringLiteral("Issued By"),
                              QStringLiteral("Dates"), QStringLiteral("Fingerprints")}));
    }

    void messages_data()
    {
        QTest::addColumn<int>("error");
        QTest::addColumn<QString>("text");
        const auto row = [](int error, const char *text) {
            QTest::newRow(qPrintable(QString::number(error))) << error << QString::fromLatin1(text);
        };
        row(0, "");
        row(1, "The issuer certificate could not be found");
        row(2, "The certificate signature could not be decrypted");
        row(3, "The public key in the certificate could not be read");
        row(4, "The signature of the certificate is invalid");
        row(5, "The certificate is not yet valid");
        row(6, "The certificate has expired");
        row(7, "The certificate's notBefore field contains an invalid time");
        row(8, "The certificate's notAfter field contains an invalid time");
        row(9, "The certificate is self-signed, and untrusted");
        row(10, "The root certificate of the certificate chain is self-signed, and untrusted");
        row(11, "The issuer certificate of a locally looked up certificate could not be found");
        row(12, "No certificates could be verified");
        row(13, "The server's certificate has been revoked");
        row(14, "One of the CA certificates is invalid");
        row(15, "The basicConstraints path length parameter has been exceeded");
        row(16, "The supplied certificate is unsuitable for this purpose");
        row(17, "The root CA certificate is not trusted for this purpose");
        row(18, "The root CA certificate is marked to reject the specified purpose");
        row(19,
            "The current candidate issuer certificate was rejected because its subject name did "
            "not match the issuer name of the current certificate");
        row(20,
            "The current candidate issuer certificate was rejected because its issuer name and "
            "serial number was present and did not match the authority key identifier of the "
            "current certificate");
        row(21, "The peer did not present any certificate");
        row(22, "The host name did not match any of the valid hosts for this certificate");
        row(23, "Error creating SSL session: Unknown error");
        row(-1, "Unknown error");
        for (int error = 24; error <= 37; ++error) {
            row(error, "Unknown error");
        }
    }
    void messages()
    {
        QFETCH(int, error);
        QFETCH(QString, text);
        QCOMPARE(CertDialog::messageFor(error), text);
        const CertDialog dialog(QUrl(place), errorsOf(m_plain, {error}));
        QCOMPARE(details(dialog).constFirst(),
                 text.isEmpty() ? QString() : text + QLatin1Char('.'));
    }

    void serialNumbers_data()
    {
        QTest::addColumn<QByteArray>("serial");
        QTest::addColumn<QString>("text");
        QTest::newRow("unknown") << QByteArray("-1") << "";
        QTest::newRow("one byte") << QByteArray("01") << "01";
        QTest::newRow("several bytes") << QByteArray("0a:1b") << "0a:1b";
        QTest::newRow("none") << QByteArray() << "";
    }
    void serialNumbers()
    {
        QFETCH(QByteArray, serial);
        QTEST(CertDialog::shownSerialNumber(serial), "text");
    }

    void colons_data()
    {
        QTest::addColumn<QString>("hex");
        QTest::addColumn<QString>("text");
        QTest::newRow("three pairs") << "0a1b2c"
                                     << "0a:1b:2c";
        QTest::newRow("one pair") << "0a"
                                  << "0a";
        QTest::newRow("odd") << "0a1"
                             << "0a:1";
        QTest::newRow("nothing") << ""
                                 << "";
        QTest::newRow("letters stay") << "AbcD"
                                      << "Ab:cD";
    }
    void colons()
    {
        QFETCH(QString, hex);
        QTEST(CertDialog(QUrl(place), {}).colonSepString(hex), "text");
    }

    void showsDetails()
    {
        CertDialog dialog(QUrl(place), errorsOf(m_full));
        const auto *box = dialog.findChild<QGroupBox *>();
        const auto *view = dialog.findChild<QTextEdit *>();
        dialog.show();
        const int height = dialog.height();
        dialog.findChild<QGroupBox *>()->setChecked(true);
        QVERIFY(view->isVisible());
        QVERIFY(dialog.height() > height);
        QCOMPARE(view->verticalScrollBar()->value(), 0);
        QVERIFY(view->textCursor().atStart());
        dialog.setDetailsChecked(false);
        QVERIFY(!box->isChecked());
        QVERIFY(!view->isVisible());
        QCOMPARE(dialog.height(), height);
        dialog.setDetailsChecked(true);
        QVERIFY(box->isChecked());
        QVERIFY(view->isVisible());
    }

    void answers_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("clicked");
        QTest::addColumn<int>("result");
        QTest::newRow("accept") << 0 << int(QDialogButtonBox::Yes) << int(QDialog::Accepted);
        QTest::newRow("reject") << 0 << int(QDialogButtonBox::No) << int(QDialog::Rejected);
        QTest::newRow("Escape") << int(Qt::Key_Escape) << 0 << int(QDialog::Rejected);
        QTest::newRow("Return") << int(Qt::Key_Return) << 0 << int(QDialog::Rejected);
        QTest::newRow("closed") << 0 << 0 << int(QDialog::Rejected);
    }
    void answers()
    {
        QFETCH(int, key);
        QFETCH(int, clicked);
        CertDialog dialog(QUrl(place), errorsOf(m_full));
        QTimer::singleShot(0, &dialog, [&dialog, key, clicked] {
            if (clicked != 0) {
                button(dialog, static_cast<QDialogButtonBox::StandardButton>(clicked))->click();
            } else if (key != 0) {
                QTest::keyClick(&dialog, static_cast<Qt::Key>(key));
            } else {
                dialog.close();
            }
        });
        QTEST(dialog.exec(), "result");
    }

    // The safe answer has the focus; the other one is a deliberate step away.
    void focus()
    {
        CertDialog dialog(QUrl(place), errorsOf(m_full));
        dialog.show();
        QCOMPARE(dialog.focusWidget(), button(dialog, QDialogButtonBox::No));
        QVERIFY(button(dialog, QDialogButtonBox::No)->isDefault());
        QVERIFY(!button(dialog, QDialogButtonBox::Yes)->autoDefault());
    }

    void places_data()
    {
        QTest::addColumn<QString>("url");
        QTest::addColumn<QString>("text");
        QTest::newRow("markup") << "https://h/<b>x"
                                << "https://h/%3Cb%3Ex";
        QTest::newRow("password") << "https://user:secret@h/"
                                  << "https://h/";
        QTest::newRow("name that looks like a host") << "https://good.host@bad.host/"
                                                     << "https://bad.host/";
    }
    void places()
    {
        QFETCH(QString, url);
        const CertDialog dialog(QUrl(url), errorsOf(m_full));
        const auto *label = dialog.findChild<QLabel *>(QStringLiteral("url"));
        QTEST(label->text(), "text");
        QCOMPARE(label->textFormat(), Qt::PlainText);
    }

    void longPlace()
    {
        const QString url =
            QStringLiteral("https://host.example/") + QString(5000, QLatin1Char('x'));
        CertDialog dialog(QUrl(url), errorsOf(m_full));
        dialog.show();
        QVERIFY2(dialog.width() < 1000, qPrintable(QString::number(dialog.width())));
        const auto *label = dialog.findChild<QLabel *>(QStringLiteral("url"));
        QVERIFY(label->text().startsWith(QLatin1String("https://host.example/")));
        QCOMPARE(label->accessibleDescription(), url);
    }

    void languageChange()
    {
        CertDialog dialog(QUrl(place), errorsOf(m_full));
        const QStringList before = details(dialog);
        Marking translator;
        QCoreApplication::installTranslator(&translator);
        QEvent event(QEvent::LanguageChange);
        QCoreApplication::sendEvent(&dialog, &event);
        QCoreApplication::removeTranslator(&translator);
        const QStringList changed = details(dialog);
        QCOMPARE(dialog.windowTitle(), QStringLiteral("xx Certificate"));
        QCOMPARE(button(dialog, QDialogButtonBox::Yes)->text(),
                 QStringLiteral("xx Accept Certificate"));
        QCOMPARE(button(dialog, QDialogButtonBox::No)->text(),
                 QStringLiteral("xx Reject Certificate"));
        QCOMPARE(changed.constFirst(),
                 QStringLiteral("xx The certificate is self-signed, and untrusted."));
        QCOMPARE(changed.size(), before.size());
        QVERIFY(changed.contains(QStringLiteral("  xx Organization:  Makers & Sons")));
        QCoreApplication::sendEvent(&dialog, &event);
        QCOMPARE(details(dialog), before);
    }

    void accessibleNames()
    {
        CertDialog dialog(QUrl(place), errorsOf(m_full));
        dialog.setDetailsChecked(true);
        QCOMPARE(unspoken(dialog), QString());
        QVERIFY(
            dialog.findChild<QLabel *>(QStringLiteral("url"))->accessibleName().contains(place));
    }

private:
    QSslCertificate m_full;
    QSslCertificate m_plain;
    std::unique_ptr<WarningGuard> m_guard;
};

QTEST_MAIN(tst_CertDialog)
#include "tst_CertDialog.moc"

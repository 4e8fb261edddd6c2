// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "network/RVCertificates.h"
#include "network/XNetworkReply.h"
#include "tests/support/TestAuthority.h"

#include <QCryptographicHash>
#include <QSslConfiguration>
#include <QSslError>
#include <QTest>

using Codes = QList<int>;

namespace
{

constexpr int unknownIssuer = QSslError::UnableToGetLocalIssuerCertificate;
constexpr int selfSigned = QSslError::SelfSignedCertificate;
constexpr int expired = QSslError::CertificateExpired;
constexpr int early = QSslError::CertificateNotYetValid;
constexpr int host = QSslError::HostNameMismatch;
constexpr int revoked = QSslError::CertificateRevoked;
constexpr int badSignature = QSslError::CertificateSignatureFailed;

const QString here = QStringLiteral("https://h:443");

} // namespace

class tst_RVCertificates : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_one = TestAuthority::read(m_authority.issue().certificate);
        m_other = TestAuthority::read(m_authority.issue().certificate);
        QVERIFY2(!m_one.isNull() && !m_other.isNull(), m_authority.report().constData());
        QVERIFY(m_one != m_other);
    }

    void takesTheServersOwnCertificate()
    {
        XNetworkReply reply;
        reply.setUrl(QUrl(QStringLiteral("https://Name.Example/x")));
        const QList<QSslError> errors{
            QSslError(QSslError::SelfSignedCertificateInChain, m_authority.certificate()),
            QSslError(QSslError::HostNameMismatch, m_one)};
        // Where the connection tells none, the first that the errors carry.
        const RVCertificateFault unknown(&reply, errors);
        QCOMPARE(unknown.certificate, m_authority.certificate());
        QCOMPARE(unknown.server, QStringLiteral("https://name.example:443"));
        QCOMPARE(unknown.codes, (QSet<int>{QSslError::SelfSignedCertificateInChain, host}));
        const RVCertificateFault none(&reply, {});
        QVERIFY(none.certificate.isNull());
        QVERIFY(none.key().isEmpty());
        QVERIFY(none.sha256().isEmpty());
    }

    // One thing differs at a time from what the user has seen and accepted.
    void whatTheUserAccepted_data()
    {
        QTest::addColumn<QString>("server");
        QTest::addColumn<bool>("isOther");
        QTest::addColumn<Codes>("codes");
        QTest::addColumn<bool>("accepted");
        QTest::newRow("the same") << here << false << Codes{unknownIssuer, host} << true;
        QTest::newRow("a fault less") << here << false << Codes{unknownIssuer} << false;
        QTest::newRow("a fault more")
            << here << false << Codes{unknownIssuer, host, expired} << false;
        QTest::newRow("another fault") << here << false << Codes{expired} << false;
        QTest::newRow("another certificate") << here << true << Codes{unknownIssuer, host} << false;
        for (const char *server : {"https://i:443", "https://h:8443", "ftps://h:443", ""}) {
            QTest::newRow(server) << QString::fromLatin1(server) << false
                                  << Codes{unknownIssuer, host} << false;
        }
    }
    void whatTheUserAccepted()
    {
        QFETCH(QString, server);
        QFETCH(bool, isOther);
        QFETCH(Codes, codes);
        QFETCH(bool, accepted);
        RVCertificates certificates;
        const RVCertificateFault seen = fault(here, m_one, {unknownIssuer, host});
        QVERIFY(!certificates.accepts(seen));
        certificates.accept(seen);
        const RVCertificateFault next = fault(server, isOther ? m_other : m_one, codes);
        QCOMPARE(certificates.accepts(next), accepted);
        QCOMPARE(next.key() == seen.key(), QByteArray(QTest::currentDataTag()) == "the same");
    }

    void withoutCertificate()
    {
        RVCertificates certificates;
        const RVCertificateFault none = fault(here, QSslCertificate(), {unknownIssuer});
        certificates.accept(none);
        QVERIFY(!certificates.accepts(none));
        QVERIFY(RVCertificates::optionFor(none).isEmpty());
    }

    void revokedIsFinal()
    {
        RVCertificates certificates;
        const RVCertificateFault withdrawn = fault(here, m_one, {revoked});
        QVERIFY(withdrawn.isFinal());
        certificates.accept(withdrawn);
        QVERIFY(!certificates.accepts(withdrawn));
        QVERIFY(RVCertificates::optionFor(withdrawn).isEmpty());
    }

    void fingerprints_data()
    {
        QTest::addColumn<QString>("names");
        QTest::addColumn<Codes>("codes");
        QTest::addColumn<bool>("accepted");
        const auto row = [](const char *title, const char *names, const Codes &codes,
                            bool accepted) {
            QTest::newRow(title) << QString::fromLatin1(names) << codes << accepted;
        };
        row("unknown authority", "", {unknownIssuer}, true);
        row("unknown authority, as openssl tells it", "",
            {unknownIssuer, QSslError::UnableToVerifyFirstCertificate}, true);
        row("self-signed", "", {selfSigned}, true);
        row("private root", "", {QSslError::SelfSignedCertificateInChain}, true);
        row("expired", "", {selfSigned, expired}, false);
        row("expired, named", ":expired", {selfSigned, expired}, true);
        row("not yet valid", "", {early}, false);
        row("not yet valid, named", ":not-yet-valid", {early}, true);
        row("wrong host", "", {unknownIssuer, host}, false);
        row("wrong host, named", ":host", {unknownIssuer, host}, true);
        row("another fault is named", ":expired", {unknownIssuer, host}, false);
        row("two, both named", ":expired,host", {expired, host}, true);
        row("two, one named", ":host", {expired, host}, false);
        row("revoked", ":expired,host,not-yet-valid", {revoked}, false);
        row("bad signature", ":expired,host,not-yet-valid", {badSignature}, false);
    }
    void fingerprints()
    {
        QFETCH(QString, names);
        QFETCH(Codes, codes);
        QFETCH(bool, accepted);
        const RVCertificateFault found = fault(here, m_one, codes);
        for (const QString &digits :
             {found.sha256(), found.sha256().toUpper(), withColons(found.sha256()).toUpper()}) {
            RVCertificates certificates;
            QVERIFY(certificates.acceptFingerprint(digits + names));
            QVERIFY(!certificates.accepts(found));
            certificates.setServers({QStringLiteral("https://other:443"), here});
            QCOMPARE(certificates.accepts(found), accepted);
            QVERIFY(!certificates.accepts(fault(here, m_other, codes)));
            // A server that a listing leads to.
            QVERIFY(!certificates.accepts(fault(QStringLiteral("https://i:443"), m_one, codes)));
        }
    }

    // What a refusal prints is what accepts it.
    void theOptionAccepts_data()
    {
        QTest::addColumn<Codes>("codes");
        QTest::addColumn<QString>("names");
        QTest::newRow("authority") << Codes{unknownIssuer} << QString();
        QTest::newRow("expired") << Codes{selfSigned, expired} << QStringLiteral(":expired");
        QTest::newRow("all") << Codes{selfSigned, host, early, expired}
                             << QStringLiteral(":expired,not-yet-valid,host");
        QTest::newRow("none does") << Codes{selfSigned, badSignature} << QStringLiteral("-");
    }
    void theOptionAccepts()
    {
        QFETCH(Codes, codes);
        QFETCH(QString, names);
        const RVCertificateFault found = fault(here, m_one, codes);
        const QString option = RVCertificates::optionFor(found);
        QCOMPARE(option, names == QLatin1String("-") ? QString() : found.sha256() + names);
        RVCertificates certificates;
        certificates.setServers({here});
        QCOMPARE(certificates.acceptFingerprint(option), !option.isEmpty());
        QCOMPARE(certificates.accepts(found), !option.isEmpty());
    }

    void noFingerprints_data()
    {
        QTest::addColumn<QString>("text");
        const QString digits(64, QLatin1Char('a'));
        QTest::newRow("empty") << QString();
        QTest::newRow("too short") << digits.chopped(1);
        QTest::newRow("too long") << digits + QLatin1Char('a');
        QTest::newRow("SHA-1") << digits.left(40);
        QTest::newRow("no digit") << digits.chopped(1) + QLatin1Char('g');
        QTest::newRow("colons in odd places") << QStringLiteral("a:") + digits.mid(1);
        QTest::newRow("a line feed behind") << digits + QLatin1Char('\n');
        QTest::newRow("no fault") << digits + QLatin1Char(':');
        QTest::newRow("unknown fault") << digits + QStringLiteral(":any");
        QTest::newRow("revoked") << digits + QStringLiteral(":revoked");
        QTest::newRow("empty among faults") << digits + QStringLiteral(":host,,expired");
    }
    void noFingerprints()
    {
        QFETCH(QString, text);
        QVERIFY(!RVCertificates().acceptFingerprint(text));
    }

private:
    static RVCertificateFault fault(const QString &server, const QSslCertificate &certificate,
                                    const Codes &codes)
    {
        RVCertificateFault result;
        result.server = server;
        result.certificate = certificate;
        result.codes = QSet<int>(codes.cbegin(), codes.cend());
        return result;
    }

    static QString withColons(QString digits)
    {
        for (int i = digits.size() - 2; i > 0; i -= 2) {
            digits.insert(i, QLatin1Char(':'));
        }
        return digits;
    }

    TestAuthority m_authority;
    QSslCertificate m_one;
    QSslCertificate m_other;
};

QTEST_GUILESS_MAIN(tst_RVCertificates)
#include "tst_RVCertificates.moc"

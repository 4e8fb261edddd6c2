// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "repository/RVSignature.h"
#include "tests/support/LogFile.h"
#include "tests/support/SigningKeys.h"
#include "tests/support/WarningGuard.h"

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

const QByteArray list = QByteArrayLiteral("# Ravel-Repository: test\n");
const QString publisher = QStringLiteral("Publisher <publisher@example.org>");
const QString other = QStringLiteral("Other <other@example.org>");
const QString expired = QStringLiteral("Expired <expired@example.org>");
const QString old = QStringLiteral("Old <old@example.org>");
const QString revoked = QStringLiteral("Revoked <revoked@example.org>");
const QString rsa = QStringLiteral("Rsa <rsa@example.org>");

const QByteArray goodLines =
    QByteArrayLiteral("[GNUPG:] NEWSIG\n"
                      "[GNUPG:] GOODSIG 7B84D0C56F2D20BC Pub%25lisher <p@example.org>\n"
                      "[GNUPG:] VALIDSIG 51090B99 2026-11-22 1795308696 0 4 0 22 8 00 51090B99\n");

} // namespace

class tst_RVSignature : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void goodSignature();
    void twoKeysInTheKeyring();
    void refused_data();
    void refused();
    void statusLines_data();
    void statusLines();
    void programs_data();
    void programs();
    void missingProgram();
    void hangingProgram();
    void destroyedWhileItRuns();
    void givesNothingAway();

private:
    void verify(const QByteArray &data, const QByteArray &signature, const QByteArray &keys);
    /// A gpgv of our own making, which nobody can run too.
    void setTool(const QByteArray &script);

    std::unique_ptr<SigningKeys> m_keys;
    std::unique_ptr<LogFile> m_log;
    std::unique_ptr<WarningGuard> m_guard;
    QTemporaryDir m_tools{QStringLiteral("/tmp/ravel-gpgv-XXXXXX")};
    RVPaths m_paths;
    RVSignature::Result m_result;
};

void tst_RVSignature::initTestCase()
{
    m_keys = std::make_unique<SigningKeys>();
    QVERIFY(m_keys->make(publisher));
    QVERIFY(m_keys->make(other));
    QVERIFY(m_keys->make(rsa, SigningKeys::Rsa));
    QVERIFY(m_keys->makeOld(expired, QStringLiteral("1d")));
    QVERIFY(m_keys->makeOld(old, QStringLiteral("20y")));
    QVERIFY(m_keys->make(revoked));
    QVERIFY(::chmod(QFile::encodeName(m_tools.path()).constData(), 0755) == 0);
}

void tst_RVSignature::init()
{
    m_log = std::make_unique<LogFile>();
    m_guard = std::make_unique<WarningGuard>();
    m_paths = RVPaths();
}

void tst_RVSignature::cleanup()
{
    m_guard.reset();
    m_log.reset();
}

void tst_RVSignature::verify(const QByteArray &data, const QByteArray &signature,
                             const QByteArray &keys)
{
    RVSignature run(nullptr, m_paths);
    QSignalSpy ends(&run, &RVSignature::finished);
    run.start(data, signature, keys);
    QCOMPARE(ends.count(), 0);
    QTRY_COMPARE_WITH_TIMEOUT(ends.count(), 1, 30000);
    m_result = run.result();
    // What is still under way of the process tells nothing more.
    QCoreApplication::processEvents();
    QCOMPARE(ends.count(), 1);
}

void tst_RVSignature::setTool(const QByteArray &script)
{
    m_paths.signatureTool = m_tools.filePath(QStringLiteral("gpgv"));
    QFile file(m_paths.signatureTool);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.write("#!/bin/sh\n" + script + '\n') > 0);
    QVERIFY(::fchmod(file.handle(), 0755) == 0);
}

void tst_RVSignature::goodSignature()
{
    const qint64 before = QDateTime::currentSecsSinceEpoch();
    verify(list, m_keys->sign(list, {publisher}), m_keys->keyring({publisher}));
    QCOMPARE(m_result.fault.text, QString());
    QVERIFY(m_result.isGood());
    QCOMPARE(m_result.signer, publisher);
    QVERIFY(m_result.signedAt >= before);
    QVERIFY(m_result.signedAt <= QDateTime::currentSecsSinceEpoch());
}

void tst_RVSignature::twoKeysInTheKeyring()
{
    const QByteArray keys = m_keys->keyring({publisher, other});
    verify(list, m_keys->sign(list, {publisher}), keys);
    QVERIFY(m_result.isGood());
    verify(list, m_keys->sign(list, {other}), keys);
    QVERIFY(m_result.isGood());
    QCOMPARE(m_result.signer, other);
}

void tst_RVSignature::refused_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<QByteArray>("signature");
    QTest::addColumn<QByteArray>("keys");
    QTest::addColumn<QString>("reason");

    const QByteArray good = m_keys->sign(list, {publisher});
    const QByteArray keys = m_keys->keyring({publisher});
    const QStringList weak{QStringLiteral("--digest-algo"), QStringLiteral("SHA1"),
                           QStringLiteral("--allow-weak-digest-algos")};
    const QByteArray byRevoked = m_keys->sign(list, {revoked});
    QVERIFY(m_keys->revoke(revoked));

    QTest::newRow("another list") << list + "# more\n"
                                  << good << keys << QStringLiteral("does not belong");
    QTest::newRow("one byte cut off")
        << list.chopped(1) << good << keys << QStringLiteral("does not belong");
    QTest::newRow("a key that is not in the keyring")
        << list << m_keys->sign(list, {other}) << keys << QStringLiteral("not in the keyring");
    QTest::newRow("an expired key")
        << list << m_keys->signAt(QStringLiteral("20250101T120000"), list, expired)
        << m_keys->keyring({expired}) << QStringLiteral("has expired");
    QTest::newRow("a revoked key")
        << list << byRevoked << m_keys->keyring({revoked}) << QStringLiteral("was revoked");
    QTest::newRow("SHA-1") << list << m_keys->sign(list, {rsa}, weak) << m_keys->keyring({rsa})
                           << QStringLiteral("too weak");
    QTest::newRow("two signatures")
        << list << m_keys->sign(list, {publisher, other}) << m_keys->keyring({publisher, other})
        << QStringLiteral("not exactly one");
    QTest::newRow("two signatures, one by a stranger")
        << list << m_keys->sign(list, {publisher, other}) << keys
        << QStringLiteral("not in the keyring");
    QTest::newRow("the same signature twice")
        << list << good + good << keys << QStringLiteral("not exactly one");
    QTest::newRow("a signature of a text")
        << list << m_keys->sign(list, {publisher}, {QStringLiteral("--textmode")}) << keys
        << QStringLiteral("as it stands");
    QTest::newRow("an expired signature")
        << list
        << m_keys->signAt(QStringLiteral("20250101T120000"), list, old,
                          {QStringLiteral("--default-sig-expire"), QStringLiteral("1d")})
        << m_keys->keyring({old}) << QStringLiteral("signature has expired");
    QTest::newRow("garbage") << list << QByteArray("no signature at all") << keys << QString();
    QTest::newRow("nothing") << list << QByteArray() << keys << QString();
    QTest::newRow("cut off") << list << good.left(good.size() / 2) << keys << QString();
    QTest::newRow("a keyring of garbage") << list << good << QByteArray("no keys") << QString();
    QTest::newRow("the list itself, signed inline")
        << list << QByteArray("-----BEGIN PGP SIGNED MESSAGE-----\n\n") << keys << QString();
}

void tst_RVSignature::refused()
{
    QFETCH(QByteArray, data);
    QFETCH(QByteArray, signature);
    QFETCH(QByteArray, keys);
    QFETCH(QString, reason);
    verify(data, signature, keys);
    QVERIFY(!m_result.isGood());
    QVERIFY2(m_result.fault.text.contains(reason), qUtf8Printable(m_result.fault.text));
    QCOMPARE(m_result.fault.kind, RVTrustFault::BadSignature);
    QCOMPARE(m_result.signer, QString());
    QCOMPARE(m_log->lines().size(), 1);
}

void tst_RVSignature::statusLines_data()
{
    QTest::addColumn<QByteArray>("status");
    QTest::addColumn<bool>("isGood");
    const auto without = [](const char *line) {
        QByteArray lines;
        for (const QByteArray &other : goodLines.trimmed().split('\n')) {
            lines += other.contains(line) ? QByteArray() : other + '\n';
        }
        return lines;
    };
    QTest::newRow("good") << goodLines << true;
    QTest::newRow("with others") << goodLines + "[GNUPG:] KEY_CONSIDERED 5109 0\n" << true;
    QTest::newRow("SHA-512") << QByteArray(goodLines).replace(" 22 8 00", " 22 10 00") << true;
    QTest::newRow("MD5") << QByteArray(goodLines).replace(" 22 8 00", " 22 1 00") << false;
    QTest::newRow("SHA-224") << QByteArray(goodLines).replace(" 22 8 00", " 22 11 00") << false;
    QTest::newRow("no hash") << QByteArray(goodLines).replace(" 22 8 00 51090B99", "") << false;
    QTest::newRow("no time") << QByteArray(goodLines).replace("1795308696", "0") << false;
    QTest::newRow("another time") << QByteArray(goodLines).replace("1795308696", "20261122T")
                                  << false;
    QTest::newRow("without NEWSIG") << without("NEWSIG") << false;
    QTest::newRow("without GOODSIG") << without("GOODSIG") << false;
    QTest::newRow("without VALIDSIG") << without("VALIDSIG") << false;
    QTest::newRow("all twice") << goodLines + goodLines << false;
    QTest::newRow("GOODSIG twice") << goodLines + "[GNUPG:] GOODSIG 1 A\n" << false;
    for (const char *bad : {"EXPSIG", "EXPKEYSIG", "REVKEYSIG", "BADSIG", "ERRSIG"}) {
        QTest::newRow(bad) << goodLines + "[GNUPG:] " + bad + " 7B84 A\n" << false;
    }
    QTest::newRow("a line of another program") << "GOODSIG\n" + goodLines << false;
    QTest::newRow("an empty line") << goodLines + "\n" << false;
    QTest::newRow("not to its end") << goodLines.chopped(1) << false;
    QTest::newRow("without prefix") << QByteArray(goodLines).replace("[GNUPG:] ", "") << false;
    QTest::newRow("prefix later") << QByteArray(goodLines).replace("[GNUPG:] ", " [GNUPG:] ")
                                  << false;
    QTest::newRow("nothing") << QByteArray() << false;
}

void tst_RVSignature::statusLines()
{
    QFETCH(QByteArray, status);
    QFETCH(bool, isGood);
    const RVSignature::Result result = RVSignature::judge(status);
    QVERIFY2(result.isGood() == isGood, qUtf8Printable(result.fault.text));
    QCOMPARE(result.fault.isSet(), !isGood);
    if (isGood) {
        QCOMPARE(result.signer, QStringLiteral("Pub%lisher <p@example.org>"));
        QCOMPARE(result.signedAt, qint64(1795308696));
    }
}

void tst_RVSignature::programs_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<bool>("isGood");
    const QByteArray lines = "cat <<'EOF'\n" + goodLines + "EOF\n";
    QTest::newRow("says it is good") << lines << true;
    QTest::newRow("ends with 1") << lines + "exit 1" << false;
    QTest::newRow("ends with 2") << lines + "exit 2" << false;
    QTest::newRow("is ended by a signal") << lines + "kill -9 $$" << false;
    QTest::newRow("says it on standard error") << "{ " + lines + "} >&2" << false;
    QTest::newRow("says nothing") << QByteArray("exit 0") << false;
    QTest::newRow("says more than there is room for")
        << lines + "yes '[GNUPG:] KEY_CONSIDERED 5109 0'" << false;
    QTest::newRow("talks on standard error without end")
        << "yes 'gpgv: hm' | head -c 3000000 >&2\n" + lines << true;
}

void tst_RVSignature::programs()
{
    QFETCH(QByteArray, script);
    QFETCH(bool, isGood);
    setTool(script);
    verify(list, "signature", "keys");
    QVERIFY2(m_result.isGood() == isGood, qUtf8Printable(m_result.fault.text));
}

void tst_RVSignature::missingProgram()
{
    m_paths.signatureTool = m_tools.filePath(QStringLiteral("missing"));
    verify(list, m_keys->sign(list, {publisher}), m_keys->keyring({publisher}));
    QCOMPARE(m_result.fault.kind, RVTrustFault::NoVerifier);
    QVERIFY(m_result.fault.text.contains(m_paths.signatureTool));
}

void tst_RVSignature::hangingProgram()
{
    setTool("cat <<'EOF'\n" + goodLines + "EOF\nexec sleep 1000");
    RVSignature run(nullptr, m_paths);
    run.inactivityLimit = 300;
    QSignalSpy ends(&run, &RVSignature::finished);
    run.start(list, "signature", "keys");
    QTRY_COMPARE_WITH_TIMEOUT(ends.count(), 1, 30000);
    QCOMPARE(run.result().fault.kind, RVTrustFault::NoVerifier);
    QVERIFY(!run.result().isGood());
}

void tst_RVSignature::destroyedWhileItRuns()
{
    setTool("exec sleep 1000");
    auto run = std::make_unique<RVSignature>(nullptr, m_paths);
    QSignalSpy ends(run.get(), &RVSignature::finished);
    run->start(list, "signature", "keys");
    run.reset();
    QCOMPARE(ends.count(), 0);
}

void tst_RVSignature::givesNothingAway()
{
    qputenv("RAVEL_SECRET", "secret");
    // Open for every program that is started.
    const int leak = ::dup(0);
    // What a shell adds by itself is not the program's.
    setTool("env >&2; id -u >&2; pwd >&2; cat \"$7\" \"${10}\" >&2; ls -l /proc/self/fd >&2\n"
            "exit 3");
    RVSignature run(nullptr, m_paths);
    QSignalSpy ends(&run, &RVSignature::finished);
    run.start(list, "signature", "keys");
    auto *process = run.findChild<QProcess *>();
    QVERIFY(process);
    QCOMPARE(process->processEnvironment().toStringList(), QStringList{QStringLiteral("LC_ALL=C")});
    QCOMPARE(process->workingDirectory(), QStringLiteral("/"));
    QTRY_COMPARE_WITH_TIMEOUT(ends.count(), 1, 30000);
    ::close(leak);
    qunsetenv("RAVEL_SECRET");
    QVERIFY(!run.result().isGood());
    const QByteArray said = run.messages();
    QVERIFY2(!said.contains("RAVEL_SECRET"), said.constData());
    QVERIFY2(!said.contains("HOME="), said.constData());
    QVERIFY2(said.contains("keys" + list), said.constData());
    if (::geteuid() == 0) {
        QVERIFY2(said.contains("\n65534\n"), said.constData());
    }
    // Standard input, output and error, the three that it is to read, and the folder that ls reads.
    QVERIFY2(said.count(" -> ") == 7, said.constData());
}

QTEST_GUILESS_MAIN(tst_RVSignature)
#include "tst_RVSignature.moc"

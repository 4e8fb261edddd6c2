// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "repository/RVTrustState.h"
#include "tests/support/FakeRoot.h"
#include "tests/support/OrdinaryUser.h"
#include "tests/support/Privileges.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QtTest>

#include <memory>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

constexpr qint64 day = 24 * 60 * 60;
constexpr qint64 built = 1790000000;
constexpr qint64 today = built + 100 * day;
const QString id = QStringLiteral("org.example.packages");
const QString keyring = QStringLiteral("vendor.gpg");

RVTrustState::Seen seen(qint64 serial, qint64 signedAt = today - day, char list = 'a')
{
    return {serial, signedAt, QByteArray(32, list)};
}

QDateTime at(qint64 seconds)
{
    return QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC);
}

} // namespace

class tst_RVTrustState : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void judge_data();
    void judge();
    void remembersTheHighest();
    void keepsRepositoriesApart();
    void newestSignatureIsTheLeastOfTheTime();
    void files();
    void writesNothingTwice();
    void damaged_data();
    void damaged();
    void forgets();
    void foreignFolder_data();
    void foreignFolder();
    void readOnly();
    void readingMakesNothing();

private:
    RVTrustState state(qint64 clock = today) const
    {
        return RVTrustState(m_root->paths(), {clock, built});
    }
    QString file() const
    {
        return m_root->paths().stateFolder() + QStringLiteral("/%1@%2.seen").arg(id, keyring);
    }
    void remember(const RVTrustState::Seen &list)
    {
        QString reason;
        QVERIFY2(state().remember(id, keyring, list, &reason), qUtf8Printable(reason));
    }

    std::unique_ptr<FakeRoot> m_root;
};

Q_DECLARE_METATYPE(RVTrustState::Seen)
Q_DECLARE_METATYPE(RVTrustFault::Kind)

void tst_RVTrustState::initTestCase()
{
    QVERIFY(obeyFilePermissions());
}

void tst_RVTrustState::init()
{
    m_root = std::make_unique<FakeRoot>();
}

void tst_RVTrustState::judge_data()
{
    using F = RVTrustFault;
    QTest::addColumn<RVTrustState::Seen>("list");
    QTest::addColumn<qint64>("validUntil");
    QTest::addColumn<qint64>("clock");
    QTest::addColumn<RVTrustFault::Kind>("kind");
    QTest::addColumn<QStringList>("named");
    const auto row = [](const char *name, const RVTrustState::Seen &list, qint64 validUntil,
                        qint64 clock, F::Kind kind, const QStringList &named = {}) {
        QTest::newRow(name) << list << validUntil << clock << kind << named;
    };
    // Seen is serial 5, signed yesterday.
    row("the same", seen(5), today + day, today, F::None);
    row("a newer one", seen(6, today, 'b'), today + day, today, F::None);
    row("a newer one, signed earlier", seen(6, today - 9 * day, 'b'), today + day, today, F::None);
    row("an older one", seen(4), today + day, today, F::OlderList,
        {QStringLiteral("serial 4"), QStringLiteral("but 5")});
    row("another one", seen(5, today, 'b'), today + day, today, F::OtherList,
        {QStringLiteral("6262626262626262"), QStringLiteral("6161616161616161")});
    row("until now", seen(5), today, today, F::None);
    row("expired", seen(5), today - 1, today, F::Expired,
        {at(today - 1).toString(Qt::ISODate), at(today).toString(Qt::ISODate),
         QStringLiteral("clock")});
    row("signed within a day from now", seen(6, today + day, 'b'), today + 9 * day, today, F::None);
    row("signed tomorrow", seen(6, today + day + 1, 'b'), today + 9 * day, today, F::FutureTime,
        {at(today + day + 1).toString(Qt::ISODate), at(today).toString(Qt::ISODate),
         QStringLiteral("clock")});
    row("without a clock", seen(6, today, 'b'), today + day, 0, F::None);
    row("without a clock, signed before the program was built", seen(6, built - day, 'b'),
        today + day, 0, F::None);
    row("without a clock, no longer valid when the newest was signed", seen(5), today - 2 * day, 0,
        F::Expired, {QStringLiteral("1970-01-01T00:00:00Z"), QStringLiteral("clock")});
    row("the clock at the build", seen(6, built, 'b'), today, built, F::None);
}

void tst_RVTrustState::judge()
{
    QFETCH(RVTrustState::Seen, list);
    QFETCH(qint64, validUntil);
    QFETCH(qint64, clock);
    QFETCH(RVTrustFault::Kind, kind);
    QFETCH(QStringList, named);
    remember(seen(5));
    const RVTrustFault fault = state(clock).judge(id, keyring, list, at(validUntil));
    QVERIFY2(fault.kind == kind, qUtf8Printable(fault.text));
    for (const QString &value : named) {
        QVERIFY2(fault.text.contains(value), qUtf8Printable(fault.text));
    }
}

void tst_RVTrustState::remembersTheHighest()
{
    remember(seen(5, today));
    remember(seen(6, today - day, 'b'));
    std::optional<RVTrustState::Seen> known;
    QVERIFY(state().read(id, keyring, &known));
    QVERIFY(known);
    QVERIFY(*known == seen(6, today, 'b'));
    // Another run has judged this one before.
    remember(seen(4, today + 1, 'c'));
    QVERIFY(state().read(id, keyring, &known));
    QVERIFY(*known == seen(6, today + 1, 'b'));
}

void tst_RVTrustState::keepsRepositoriesApart()
{
    remember(seen(5));
    QString reason;
    const QString other = QStringLiteral("other");
    QVERIFY(state().remember(other, keyring, seen(1), &reason));
    QVERIFY(state().remember(id, QStringLiteral("other.gpg"), seen(2), &reason));
    QVERIFY(!state().judge(other, keyring, seen(1), at(today)).isSet());
    QVERIFY(!state().judge(id, QStringLiteral("other.gpg"), seen(2), at(today)).isSet());
    QVERIFY(!state().judge(id, keyring, seen(5), at(today)).isSet());
    QVERIFY(state().judge(id, keyring, seen(4), at(today)).isSet());
}

void tst_RVTrustState::newestSignatureIsTheLeastOfTheTime()
{
    QString reason;
    QVERIFY(state().remember(QStringLiteral("other"), keyring, seen(1, today), &reason));
    QCOMPARE(state(0).judge(id, keyring, seen(5), at(today - 1)).kind, RVTrustFault::Expired);
    QCOMPARE(state(0).judge(id, keyring, seen(5), at(today)).kind, RVTrustFault::None);
}

void tst_RVTrustState::files()
{
    remember(seen(5));
    struct stat status = {};
    QVERIFY(::stat(QFile::encodeName(file()).constData(), &status) == 0);
    QCOMPARE(int(status.st_mode & 07777), 0600);
    const QString folder = QFileInfo(file()).path();
    QVERIFY(::stat(QFile::encodeName(folder).constData(), &status) == 0);
    QCOMPARE(int(status.st_mode & 07777), 0700);
    QCOMPARE(QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList{QFileInfo(file()).fileName()});
    // What a run that was killed has left is no obstacle.
    FakeRoot::write(folder + QStringLiteral("/.%1.part").arg(QFileInfo(file()).fileName()), "x");
    remember(seen(6));
    QCOMPARE(state().judge(id, keyring, seen(5), at(today)).kind, RVTrustFault::OlderList);
}

void tst_RVTrustState::writesNothingTwice()
{
    remember(seen(5));
    struct stat before = {};
    QVERIFY(::stat(QFile::encodeName(file()).constData(), &before) == 0);
    remember(seen(5));
    remember(seen(5, today - 5 * day));
    struct stat after = {};
    QVERIFY(::stat(QFile::encodeName(file()).constData(), &after) == 0);
    QCOMPARE(after.st_ino, before.st_ino);
}

void tst_RVTrustState::damaged_data()
{
    QTest::addColumn<QByteArray>("text");
    const QByteArray list = "\nlist " + QByteArray(64, 'a') + '\n';
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("cut off") << QByteArray("serial 5\nsigned 5\nlist aaaa\n");
    QTest::newRow("no number") << "serial x\nsigned 5" + list;
    QTest::newRow("a number that is too large") << "serial 99999999999999999999\nsigned 5" + list;
    QTest::newRow("more") << "serial 5\nsigned 5" + list + "serial 6\n";
    QTest::newRow("endless") << QByteArray(100000, 'x');
}

void tst_RVTrustState::damaged()
{
    QFETCH(QByteArray, text);
    FakeRoot::write(file(), text);
    const RVTrustFault fault = state().judge(id, keyring, seen(9), at(today));
    QCOMPARE(fault.kind, RVTrustFault::State);
    QVERIFY(fault.text.contains(file()));
    QString reason;
    QVERIFY(::chmod(QFile::encodeName(QFileInfo(file()).path()).constData(), 0700) == 0);
    QVERIFY(!state().remember(id, keyring, seen(9), &reason));
    QVERIFY(state().forget(id, keyring, &reason));
    QVERIFY(!state().judge(id, keyring, seen(9), at(today)).isSet());
}

void tst_RVTrustState::forgets()
{
    QString reason;
    QVERIFY(state().forget(id, keyring, &reason));
    QVERIFY(!QFileInfo::exists(QFileInfo(file()).path()));
    remember(seen(5));
    QVERIFY2(state().forget(id, keyring, &reason), qUtf8Printable(reason));
    QVERIFY(!state().judge(id, keyring, seen(1), at(today)).isSet());
}

void tst_RVTrustState::foreignFolder_data()
{
    QTest::addColumn<QString>("kind");
    QTest::newRow("everybody can write to it") << QStringLiteral("open");
    QTest::newRow("a link") << QStringLiteral("link");
    QTest::newRow("a file") << QStringLiteral("file");
}

void tst_RVTrustState::foreignFolder()
{
    QFETCH(QString, kind);
    const QString folder = QFileInfo(file()).path();
    if (kind == QLatin1String("file")) {
        FakeRoot::write(folder, "x");
    } else {
        const QString real =
            kind == QLatin1String("link") ? folder + QStringLiteral(".real") : folder;
        QVERIFY(QDir().mkpath(real));
        QVERIFY(::chmod(QFile::encodeName(real).constData(), 0777) == 0);
        QVERIFY(real == folder || QFile::link(real, folder));
    }
    QString reason;
    QVERIFY(!state().remember(id, keyring, seen(5), &reason));
    QVERIFY(reason.contains(folder));
    QVERIFY(!state().judge(id, keyring, seen(5), at(today)).isSet());
}

void tst_RVTrustState::readOnly()
{
    const QString folder = QFileInfo(file()).path();
    QVERIFY(QDir().mkpath(folder));
    QVERIFY(::chmod(QFile::encodeName(folder).constData(), 0500) == 0);
    QString reason;
    QVERIFY(!state().remember(id, keyring, seen(5), &reason));
    QVERIFY(reason.contains(folder));
    QVERIFY(!state().judge(id, keyring, seen(5), at(today)).isSet());
}

void tst_RVTrustState::readingMakesNothing()
{
    QVERIFY(!state().judge(id, keyring, seen(5), at(today)).isSet());
    QVERIFY(!QFileInfo::exists(QFileInfo(file()).path()));
}

QTEST_GUILESS_MAIN(tst_RVTrustState)
#include "tst_RVTrustState.moc"

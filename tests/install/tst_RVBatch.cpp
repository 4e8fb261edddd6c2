// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "install/RVBatch.h"
#include "install/RVResult.h"

#include <QBuffer>
#include <QTest>

using Kind = RVBatch::Kind;
using State = RVItemResult::State;
using Fault = RVItemResult::Fault;

namespace
{

RVData entry(const char *archive, const char *name = "update", const char *more = "")
{
    RVData data(QUrl(QStringLiteral("http://127.0.0.1/") + QLatin1String(archive)),
                QUrl(QStringLiteral("http://127.0.0.1/update.xml")));
    QBuffer source;
    source.setData("<update_data><name>" + QByteArray(name) + "</name><version>1.1</version>" + more
                   + "</update_data>");
    data.descriptor()->read(&source);
    return data;
}

RVResult resultOf(const QVector<State> &states)
{
    RVResult result;
    for (const State state : states) {
        result.items.append(
            {entry("a.deb"), QStringLiteral("a"), {}, {}, state, {}, Fault::None, 0});
    }
    return result;
}

} // namespace

Q_DECLARE_METATYPE(RVBatch::Kind)
Q_DECLARE_METATYPE(RVItemResult::State)

class tst_RVBatch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void kinds_data();
    void kinds();
    void identities();
    void eachArchiveOnce();
    void summaries_data();
    void summaries();
};

void tst_RVBatch::kinds_data()
{
    QTest::addColumn<QStringList>("archives");
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<QList<bool>>("reached");
    QTest::addColumn<int>("downloads");

    const QString deb = QStringLiteral("a.deb");
    const QString otherDeb = QStringLiteral("b.DEB");
    const QString xar = QStringLiteral("a.xar");
    const QString otherXar = QStringLiteral("b.xar");
    const QString image = QStringLiteral("a.dd.gz");
    const QString otherImage = QStringLiteral("b.dd.gz");
    QTest::newRow("nothing") << QStringList() << Kind::Nothing << QList<bool>() << 0;
    QTest::newRow("packages") << QStringList{deb, otherDeb} << Kind::Packages
                              << QList<bool>{true, true} << 2;
    QTest::newRow("service packs")
        << QStringList{xar, otherXar} << Kind::ServicePacks << QList<bool>{true, true} << 2;
    QTest::newRow("images") << QStringList{image, otherImage} << Kind::Image
                            << QList<bool>{true, false} << 0;
    QTest::newRow("a package first") << QStringList{deb, xar, image, otherDeb} << Kind::Packages
                                     << QList<bool>{true, false, false, true} << 2;
    QTest::newRow("an image first")
        << QStringList{image, deb} << Kind::Image << QList<bool>{true, false} << 0;
    QTest::newRow("a service pack first")
        << QStringList{xar, deb} << Kind::ServicePacks << QList<bool>{true, false} << 1;
}

void tst_RVBatch::kinds()
{
    QFETCH(QStringList, archives);
    QFETCH(Kind, kind);
    QFETCH(QList<bool>, reached);
    QFETCH(int, downloads);
    QList<RVData> entries;
    for (const QString &archive : archives) {
        entries.append(entry(archive.toLatin1().constData()));
    }
    const RVBatch batch = RVBatch::of(entries, nullptr);
    QCOMPARE(batch.kind, kind);
    QList<bool> isReached;
    for (const RVBatch::Item &item : batch.items) {
        isReached.append(item.isReached);
    }
    QCOMPARE(isReached, reached);
    QCOMPARE(batch.downloads.size(), downloads);
    QCOMPARE(batch.entries(), entries);
    QCOMPARE(batch.installer.program.isEmpty(), entries.isEmpty());
}

void tst_RVBatch::identities()
{
    const RVBatch batch = RVBatch::of(
        {entry("a.deb", "tool", "<name xml:lang=\"de\">Werkzeug</name><size>7</size>")}, nullptr);
    QCOMPARE(batch.items.first().name, QStringLiteral("tool"));
    QCOMPARE(batch.items.first().version, QStringLiteral("1.1"));
    QCOMPARE(batch.downloadSize, qint64(7));
}

void tst_RVBatch::eachArchiveOnce()
{
    // Two filters of a definition find the same archive.
    const RVBatch batch = RVBatch::of({entry("a.deb"), entry("b.deb"), entry("a.deb")}, nullptr);
    QCOMPARE(batch.items.size(), 3);
    QCOMPARE(batch.downloads.size(), 2);
    QCOMPARE(batch.downloadSize, qint64(-1));
}

void tst_RVBatch::summaries_data()
{
    QTest::addColumn<QVector<State>>("states");
    QTest::addColumn<QString>("summary");
    QTest::addColumn<bool>("isWhole");

    const auto row = [](const char *name, const QVector<State> &states, const char *summary,
                        bool isWhole) {
        QTest::newRow(name) << states << QString::fromLatin1(summary) << isWhole;
    };
    row("one", {State::Installed}, "1 update installed", true);
    row("three", {State::Installed, State::Installed, State::Installed}, "3 updates installed",
        true);
    row("some",
        {State::Installed, State::Failed, State::LeftOut, State::NotTried, State::Installed},
        "2 of 5 updates installed", false);
    row("none", {State::Failed, State::LeftOut}, "Installation failed", false);
    row("an image", {State::Arranged}, "The image will be installed at the restart", true);
    row("cancelled", {State::Cancelled}, "Installation cancelled", false);
    row("nothing tells", {State::NotConfirmable, State::NotConfirmable},
        "Installed, but the system cannot confirm it", true);
}

void tst_RVBatch::summaries()
{
    QFETCH(QVector<State>, states);
    QFETCH(bool, isWhole);
    const RVResult result = resultOf(states);
    QTEST(result.summary().english(), "summary");
    QCOMPARE(result.isWhole(), isWhole);
    RVResult crashed = result;
    crashed.exitStatus = QProcess::CrashExit;
    QVERIFY(!crashed.isWhole());
    RVResult failed = result;
    failed.exitCode = 1;
    QVERIFY(!failed.isWhole());
}

QTEST_GUILESS_MAIN(tst_RVBatch)
#include "tst_RVBatch.moc"

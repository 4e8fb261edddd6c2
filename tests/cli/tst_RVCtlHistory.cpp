// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "install/RVBatch.h"
#include "install/RVHistory.h"
#include "tests/support/FakeRoot.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTest>

#include <memory>

namespace
{

constexpr int limitMs = 60000;

RVHistory::Run runOf(const char *section, const char *name, const char *time)
{
    RVHistory::Run run = RVHistory::runOf({}, RVHistory::Face::Window, QLatin1String(section));
    run.sudoUser = QStringLiteral("alice");
    run.begun = QDateTime::fromString(QLatin1String(time), Qt::ISODate);
    run.items.append({QLatin1String(name),
                      QStringLiteral("1"),
                      QStringLiteral("2"),
                      QStringLiteral("http://host/a.deb"),
                      {},
                      QStringLiteral("installed"),
                      {}});
    return run;
}

} // namespace

class tst_RVCtlHistory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void nothing();
    void table();
    void document();
    void filters_data();
    void filters();
    void usage();
    void damaged();

private:
    struct Output {
        int exitCode;
        QByteArray text;
        QByteArray messages;

        QJsonObject json() const { return QJsonDocument::fromJson(text).object(); }
    };
    Output run(const QStringList &arguments) const;
    void write();

    std::unique_ptr<FakeRoot> m_root;
};

void tst_RVCtlHistory::init()
{
    m_root = std::make_unique<FakeRoot>();
}

tst_RVCtlHistory::Output tst_RVCtlHistory::run(const QStringList &arguments) const
{
    QProcess process;
    process.start(QStringLiteral(RAVELCTL),
                  QStringList{QStringLiteral("--root"), m_root->path()} + arguments);
    if (!process.waitForFinished(limitMs)) {
        return {-1, {}, {}};
    }
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

void tst_RVCtlHistory::write()
{
    RVHistory history(m_root->paths());
    RVHistory::Run first = runOf("package_uri", "tool", "2026-05-01T10:00:00Z");
    RVHistory::Run second = runOf("image_uri", "an image\x1b[31m", "2026-06-01T10:00:00Z");
    second.items[0].state = QStringLiteral("failed");
    second.items[0].reason = QStringLiteral("There is no space left on the disk.");
    QVERIFY2(history.end(&first), qPrintable(history.reason()));
    QVERIFY(history.end(&second));
    RVHistory::Run open = runOf("package_uri", "other", "2026-07-01T10:00:00Z");
    QVERIFY(history.begin(&open));
}

void tst_RVCtlHistory::nothing()
{
    const Output output = run({QStringLiteral("history")});
    QCOMPARE(output.exitCode, 0);
    QCOMPARE(output.text, QByteArray("The history has nothing.\n"));
    QVERIFY(!QDir(m_root->paths().stateFolder()).exists());
    QCOMPARE(run({QStringLiteral("--json"), QStringLiteral("history")})
                 .json()
                 .value(QStringLiteral("runs"))
                 .toArray()
                 .size(),
             0);
}

void tst_RVCtlHistory::table()
{
    write();
    const Output output = run({QStringLiteral("history")});
    QCOMPARE(output.exitCode, 0);
    const QList<QByteArray> lines = output.text.split('\n');
    QCOMPARE(lines.size(), 5);
    QVERIFY2(lines.at(0).startsWith("Begun"), lines.at(0).constData());
    QVERIFY2(lines.at(1).contains("tool") && lines.at(1).contains("installed")
                 && lines.at(1).contains("(alice)"),
             lines.at(1).constData());
    QVERIFY2(lines.at(2).contains("failed") && lines.at(2).endsWith("left on the disk."),
             lines.at(2).constData());
    QVERIFY2(lines.at(3).contains("not ended"), lines.at(3).constData());
    QVERIFY(!output.text.contains('\x1b'));
}

void tst_RVCtlHistory::document()
{
    write();
    const QJsonObject json = run({QStringLiteral("--json"), QStringLiteral("history")}).json();
    QCOMPARE(json.value(QStringLiteral("damaged")).toInt(-1), 0);
    const QJsonArray runs = json.value(QStringLiteral("runs")).toArray();
    QCOMPARE(runs.size(), 3);
    const QJsonObject first = runs.at(0).toObject();
    QCOMPARE(first.value(QStringLiteral("section")).toString(), QStringLiteral("package_uri"));
    QCOMPARE(first.value(QStringLiteral("face")).toString(), QStringLiteral("window"));
    QCOMPARE(first.value(QStringLiteral("sudoUser")).toString(), QStringLiteral("alice"));
    QVERIFY(first.value(QStringLiteral("exitCode")).isNull());
    const QJsonObject item = first.value(QStringLiteral("items")).toArray().at(0).toObject();
    QCOMPARE(item.value(QStringLiteral("from")).toString(), QStringLiteral("1"));
    QCOMPARE(item.value(QStringLiteral("to")).toString(), QStringLiteral("2"));
    QCOMPARE(item.value(QStringLiteral("state")).toString(), QStringLiteral("installed"));
    QVERIFY(item.value(QStringLiteral("signer")).isNull());
    QVERIFY(runs.at(2).toObject().value(QStringLiteral("ended")).isNull());
}

void tst_RVCtlHistory::filters_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("runs");
    QTest::newRow("a section") << QStringList{QStringLiteral("package_uri")} << 2;
    QTest::newRow("an update") << QStringList{QStringLiteral("tool")} << 1;
    QTest::newRow("a name that nothing has") << QStringList{QStringLiteral("nobody")} << 0;
    QTest::newRow("since long ago")
        << QStringList{QStringLiteral("--since"), QStringLiteral("2020-01-01")} << 3;
    QTest::newRow("since the future")
        << QStringList{QStringLiteral("--since"), QStringLiteral("2999-01-01T10:00")} << 0;
    QTest::newRow("both") << QStringList{QStringLiteral("--since"), QStringLiteral("2020-01-01"),
                                         QStringLiteral("tool")}
                          << 1;
}

void tst_RVCtlHistory::filters()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, runs);
    write();
    const Output output =
        run(QStringList{QStringLiteral("--json"), QStringLiteral("history")} + arguments);
    QCOMPARE(output.exitCode, 0);
    QCOMPARE(output.json().value(QStringLiteral("runs")).toArray().size(), runs);
}

void tst_RVCtlHistory::usage()
{
    const QStringList history{QStringLiteral("history")};
    QCOMPARE(
        run(history + QStringList{QStringLiteral("--since"), QStringLiteral("yesterday")}).exitCode,
        2);
    QCOMPARE(run(history + QStringList{QStringLiteral("a"), QStringLiteral("b")}).exitCode, 2);
}

void tst_RVCtlHistory::damaged()
{
    write();
    QFile file(m_root->paths().stateFolder() + QStringLiteral("/history.jsonl"));
    QVERIFY(file.open(QIODevice::Append));
    file.write("nonsense\n");
    file.close();
    const Output output = run({QStringLiteral("history")});
    QCOMPARE(output.exitCode, 0);
    QVERIFY(output.messages.contains("passed over: 1."));
    QCOMPARE(output.text.count('\n'), 4);
}

QTEST_GUILESS_MAIN(tst_RVCtlHistory)
#include "tst_RVCtlHistory.moc"

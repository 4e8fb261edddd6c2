// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "repository/RVChecksums.h"
#include "tests/support/DpkgRoot.h"
#include "tests/support/FakeRoot.h"
#include "tests/support/SignedWorld.h"
#include "tests/support/SigningKeys.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QtTest>

#include <memory>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

constexpr int timeout = 60000;
const QString &publisher = SignedWorld::publisher;
const QString &id = SignedWorld::id;

struct Run {
    int exit = -1;
    QByteArray output;
    QByteArray errors;
    QJsonObject document;

    QJsonObject repository() const
    {
        return document[QStringLiteral("repositories")].toArray().at(0).toObject();
    }
    QJsonObject trust() const { return document[QStringLiteral("trust")].toObject(); }
};

Run run(const QStringList &arguments)
{
    Run result;
    QProcess process;
    process.start(QStringLiteral(RAVELCTL), arguments);
    // A server of this thread may have to answer.
    const bool hasEnded = QTest::qWaitFor(
        [&process] {
            return process.state() == QProcess::NotRunning;
        },
        timeout);
    result.exit =
        hasEnded && process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    result.output = process.readAllStandardOutput();
    result.errors = process.readAllStandardError();
    result.document = QJsonDocument::fromJson(result.output).object();
    return result;
}

QByteArray content(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray descriptor(const QByteArray &name)
{
    return "<update_data><name>" + name
        + "</name><version>1.0</version><thin_client>all</thin_client></update_data>";
}

/// A package as far as a download looks at it: an ar archive with three members.
QByteArray packageWith(const QByteArray &content)
{
    QByteArray package = "!<arch>\n";
    for (const char *name : {"debian-binary", "control.tar", "data.tar"}) {
        package += QByteArray(name).leftJustified(48)
            + QByteArray::number(content.size()).leftJustified(10) + "`\n" + content
            + (content.size() % 2 == 0 ? "" : "\n");
    }
    return package;
}

QByteArray definition(const QByteArray &key, const QByteArray &location, const QByteArray &elements)
{
    return "<repository_list><repository><title>Packages</title><settings_key>" + key
        + "</settings_key><default_uri>" + location + "</default_uri>" + elements
        + "<filter_pattern><archive_pattern>\\.deb$</archive_pattern>"
          "<descriptor_pattern>\\.xml$</descriptor_pattern></filter_pattern>"
          "</repository></repository_list>";
}

QByteArray signedElements()
{
    return "<signed_by>vendor.gpg</signed_by><repository_id>" + id.toUtf8() + "</repository_id>";
}

} // namespace

class tst_RVCtlTrust : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void signedSection();
    void refusedSection();
    void oneOfTwoSections();
    void readingLeavesNoTrace();
    void installs();
    void installRefuses();
    void resets();
    void copiesStaySigned();
    void copyRefusesWhatIsNotListed();
    void copyFollowsThePublisher_data();
    void copyFollowsThePublisher();
    void copyEndsWithItsList();
    void sums();
    void sumsRefuses_data();
    void sumsRefuses();
    void sumsOfSelfDescribingArchives();
    void lintKnows();

private:
    Run ctl(const QStringList &arguments) const
    {
        return run(QStringList{QStringLiteral("--root"), m_root->path(), QStringLiteral("--json")}
                   + arguments);
    }
    Run makeSums(const QStringList &options = {}) const
    {
        return run(QStringList{QStringLiteral("--json"), QStringLiteral("sums"), m_repo,
                               QStringLiteral("--id"), id, QStringLiteral("--valid-for"),
                               QStringLiteral("30d")}
                   + options);
    }
    void sign() const;
    void define(const QString &file, const QString &location, const QByteArray &elements) const;
    void defineSigned(const QString &location) const
    {
        define(QStringLiteral("10.xml"), location, signedElements());
    }
    /// Real enough packages, and a device that knows the repository.
    static void serve(SignedWorld *world);
    /// Downloads all that it offers.
    static Run download(const SignedWorld &world, const QTemporaryDir &folder);

    std::unique_ptr<SigningKeys> m_keys;
    std::unique_ptr<FakeRoot> m_root;
    QString m_repo;
    QString m_deb;
    QTemporaryDir m_packages;
};

void tst_RVCtlTrust::initTestCase()
{
    m_keys = std::make_unique<SigningKeys>();
    QVERIFY(SignedWorld::makeKeys(m_keys.get()));
    m_deb = m_packages.filePath(QStringLiteral("tc-audio.deb"));
    QCOMPARE(DpkgRoot::build({QStringLiteral("tc-audio"), QStringLiteral("1.0")}, m_deb),
             QString());
}

void tst_RVCtlTrust::init()
{
    m_root = std::make_unique<FakeRoot>();
    m_repo = m_root->path() + QStringLiteral("/repo");
    FakeRoot::write(m_repo + QStringLiteral("/tc-audio.xml"), descriptor("tc-audio"));
    FakeRoot::write(m_repo + QStringLiteral("/tc-audio.deb"), content(m_deb));
    FakeRoot::write(m_root->paths().keyringDir + QStringLiteral("/vendor.gpg"),
                    m_keys->keyring({publisher}));
    defineSigned(m_repo);
    QCOMPARE(makeSums().exit, 0);
    sign();
}

void tst_RVCtlTrust::sign() const
{
    FakeRoot::write(m_repo + QStringLiteral("/SHA256SUMS.gpg"),
                    m_keys->sign(content(m_repo + QStringLiteral("/SHA256SUMS")), {publisher}));
}

void tst_RVCtlTrust::define(const QString &file, const QString &location,
                            const QByteArray &elements) const
{
    FakeRoot::write(m_root->paths().definitionDir + QLatin1Char('/') + file,
                    definition(file.toUtf8(), "file://" + location.toUtf8(), elements));
}

void tst_RVCtlTrust::signedSection()
{
    const Run repos = ctl({QStringLiteral("repos")});
    QCOMPARE(repos.repository()[QStringLiteral("trust")].toObject()[QStringLiteral("keyring")],
             QJsonValue(QStringLiteral("vendor.gpg")));
    const Run list = ctl({QStringLiteral("list")});
    QVERIFY2(list.exit == 0, list.output.constData());
    const QJsonObject trust = list.repository()[QStringLiteral("trust")].toObject();
    QCOMPARE(trust[QStringLiteral("kind")].toString(), QStringLiteral("signed"));
    QCOMPARE(trust[QStringLiteral("signer")].toString(), publisher);
    QCOMPARE(trust[QStringLiteral("serial")].toString(), QStringLiteral("1"));
    QCOMPARE(trust[QStringLiteral("repositoryId")].toString(), id);
    QVERIFY(trust[QStringLiteral("error")].isNull());
    QCOMPARE(list.repository()[QStringLiteral("entries")].toArray().size(), 1);
    const Run plan = ctl({QStringLiteral("plan"), QStringLiteral("0")});
    QCOMPARE(plan.exit, 0);
    QCOMPARE(plan.trust(), trust);
    const Run text = run({QStringLiteral("--root"), m_root->path(), QStringLiteral("list")});
    QVERIFY2(text.output.contains("   Signed by " + publisher.toUtf8() + ", valid until 20"),
             text.output.constData());
}

void tst_RVCtlTrust::refusedSection()
{
    QVERIFY(QFile::remove(m_repo + QStringLiteral("/SHA256SUMS.gpg")));
    for (const char *command : {"list", "explain"}) {
        const Run list = ctl({QLatin1String(command)});
        QCOMPARE(list.exit, 9);
        QCOMPARE(list.repository()[QStringLiteral("trust")]
                     .toObject()[QStringLiteral("error")]
                     .toObject()[QStringLiteral("kind")]
                     .toString(),
                 QStringLiteral("no-list"));
    }
    for (const char *command : {"plan", "install"}) {
        const Run plan = ctl({QLatin1String(command), QStringLiteral("0")});
        QCOMPARE(plan.exit, 9);
        QCOMPARE(
            plan.trust()[QStringLiteral("error")].toObject()[QStringLiteral("kind")].toString(),
            QStringLiteral("no-list"));
    }
    define(QStringLiteral("10.xml"), m_repo, "<signed_by/>");
    const Run list = ctl({QStringLiteral("list")});
    QCOMPARE(list.exit, 9);
    QCOMPARE(list.repository()[QStringLiteral("trust")]
                 .toObject()[QStringLiteral("error")]
                 .toObject()[QStringLiteral("kind")]
                 .toString(),
             QStringLiteral("definition"));
}

void tst_RVCtlTrust::oneOfTwoSections()
{
    const QString other = m_root->path() + QStringLiteral("/other");
    FakeRoot::write(other + QStringLiteral("/x.xml"), descriptor("x"));
    define(QStringLiteral("20.xml"), other, {});
    QVERIFY(QFile::remove(m_repo + QStringLiteral("/SHA256SUMS.gpg")));
    QCOMPARE(ctl({QStringLiteral("list")}).exit, 8);
    QCOMPARE(ctl({QStringLiteral("list"), QStringLiteral("1")}).exit, 0);
}

void tst_RVCtlTrust::readingLeavesNoTrace()
{
    QCOMPARE(ctl({QStringLiteral("list")}).exit, 0);
    QCOMPARE(ctl({QStringLiteral("plan"), QStringLiteral("0")}).exit, 0);
    QVERIFY(!QDir(m_root->path() + QStringLiteral("/var/lib/ravel")).exists());
    QVERIFY(!QDir(m_root->path() + QStringLiteral("/.local")).exists());
}

void tst_RVCtlTrust::installs()
{
    // The real dpkg on the private root.
    const DpkgRoot system;
    QVERIFY(system.isValid());
    FakeRoot::write(system.paths().keyringDir + QStringLiteral("/vendor.gpg"),
                    m_keys->keyring({publisher}));
    FakeRoot::write(system.paths().imageId, "6.1.0\n");
    FakeRoot::write(system.paths().definitionDir + QStringLiteral("/10.xml"),
                    content(m_root->paths().definitionDir + QStringLiteral("/10.xml")));
    const Run install = run({QStringLiteral("--root"), system.path(), QStringLiteral("--json"),
                             QStringLiteral("install"), QStringLiteral("0")});
    QVERIFY2(install.exit == 0, install.output.constData());
    QCOMPARE(install.trust()[QStringLiteral("kind")].toString(), QStringLiteral("signed"));
    QCOMPARE(system.installedVersion(QStringLiteral("tc-audio")), QStringLiteral("1.0"));
}

void tst_RVCtlTrust::installRefuses()
{
    FakeRoot::write(m_repo + QStringLiteral("/tc-audio.deb"), content(m_deb) + ' ');
    const Run install = ctl({QStringLiteral("install"), QStringLiteral("0")});
    QVERIFY2(install.exit == 9, install.output.constData());
    QCOMPARE(install.trust()[QStringLiteral("error")].toObject()[QStringLiteral("kind")].toString(),
             QStringLiteral("other-file"));
    QVERIFY(install.document[QStringLiteral("installer")].isNull());
}

void tst_RVCtlTrust::resets()
{
    const auto installs = [this](const QString &serial) {
        return makeSums({QStringLiteral("--serial"), serial}).exit == 0
            ? (sign(),
               ctl({QStringLiteral("install"), QStringLiteral("0"), QStringLiteral("missing")}))
            : Run();
    };
    // No such update: the refresh alone counts.
    QCOMPARE(installs(QStringLiteral("7")).exit, 2);
    const Run older = installs(QStringLiteral("6"));
    QCOMPARE(older.exit, 9);
    QCOMPARE(older.trust()[QStringLiteral("error")].toObject()[QStringLiteral("kind")].toString(),
             QStringLiteral("older-list"));
    QCOMPARE(ctl({QStringLiteral("list")}).exit, 9);
    QCOMPARE(ctl({QStringLiteral("trust"), QStringLiteral("reset"), QStringLiteral("10.xml")}).exit,
             0);
    QCOMPARE(ctl({QStringLiteral("list")}).exit, 0);
    QCOMPARE(ctl({QStringLiteral("trust"), QStringLiteral("forget"), QStringLiteral("0")}).exit, 2);
    QCOMPARE(ctl({QStringLiteral("trust"), QStringLiteral("reset"), QStringLiteral("5")}).exit, 2);
    define(QStringLiteral("10.xml"), m_repo, {});
    QCOMPARE(ctl({QStringLiteral("trust"), QStringLiteral("reset"), QStringLiteral("0")}).exit, 2);
}

void tst_RVCtlTrust::copiesStaySigned()
{
    const QString copy = m_root->path() + QStringLiteral("/copy");
    const QStringList download{QStringLiteral("download"), QStringLiteral("0"),
                               QStringLiteral("--all"), QStringLiteral("--to"), copy};
    const Run first = ctl(download);
    QVERIFY2(first.exit == 0, first.output.constData());
    QCOMPARE(first.document[QStringLiteral("files")].toArray().size(), 4);
    for (const char *name : {"tc-audio.deb", "tc-audio.xml", "SHA256SUMS", "SHA256SUMS.gpg"}) {
        const QString file = QLatin1Char('/') + QLatin1String(name);
        QCOMPARE(content(copy + file), content(m_repo + file));
    }
    // What was spoiled there is fetched once more.
    FakeRoot::write(copy + QStringLiteral("/tc-audio.xml"), "spoiled");
    QCOMPARE(ctl(download).exit, 0);
    QCOMPARE(content(copy + QStringLiteral("/tc-audio.xml")), descriptor("tc-audio"));

    defineSigned(copy);
    const Run list = ctl({QStringLiteral("list")});
    QVERIFY2(list.exit == 0, list.output.constData());
    QCOMPARE(list.repository()[QStringLiteral("entries")].toArray().size(), 1);
}

void tst_RVCtlTrust::copyRefusesWhatIsNotListed()
{
    FakeRoot::write(m_repo + QStringLiteral("/tc-audio.deb"), content(m_deb) + ' ');
    const QString copy = m_root->path() + QStringLiteral("/copy");
    const Run download = ctl({QStringLiteral("download"), QStringLiteral("0"),
                              QStringLiteral("--all"), QStringLiteral("--to"), copy});
    QVERIFY2(download.exit == 9, download.output.constData());
    QVERIFY(!QFile::exists(copy + QStringLiteral("/tc-audio.deb")));
    QVERIFY(!QFile::exists(copy + QStringLiteral("/tc-audio.deb.part")));
}

void tst_RVCtlTrust::serve(SignedWorld *world)
{
    for (const QByteArray &name : {QByteArray("a"), QByteArray("b")}) {
        world->add(name + ".deb", packageWith(name));
    }
    world->publish();
    FakeRoot::write(world->paths.definitionDir + QStringLiteral("/10.xml"),
                    definition("served", world->url().toEncoded(), signedElements()));
}

Run tst_RVCtlTrust::download(const SignedWorld &world, const QTemporaryDir &folder)
{
    return run({QStringLiteral("--root"), world.root.path(), QStringLiteral("--json"),
                QStringLiteral("download"), QStringLiteral("0"), QStringLiteral("--all"),
                QStringLiteral("--to"), folder.path()});
}

void tst_RVCtlTrust::copyFollowsThePublisher_data()
{
    QTest::addColumn<bool>("isThere");
    QTest::newRow("fetched in this run") << false;
    QTest::newRow("there before") << true;
}

void tst_RVCtlTrust::copyFollowsThePublisher()
{
    QFETCH(bool, isThere);
    SignedWorld world(m_keys.get());
    serve(&world);
    const QTemporaryDir copy;
    if (isThere) {
        QCOMPARE(download(world, copy).exit, 0);
        QVERIFY(QFile::remove(copy.filePath(QStringLiteral("b.deb"))));
    }
    // Everything is replaced when the last archive is asked for.
    bool isPublished = false;
    world.server.beforeAnswer = [&](const QByteArray &path) {
        if (path == "/r/b.deb" && !isPublished) {
            isPublished = true;
            for (const QByteArray &name : {QByteArray("a"), QByteArray("b")}) {
                world.add(name + ".deb", packageWith("new " + name));
                world.add(name + ".xml", SignedWorld::descriptor(name) + '\n');
            }
            world.list.serial = 6;
            world.publish();
        }
    };
    const Run run = download(world, copy);
    QVERIFY(isPublished);
    QVERIFY2(run.exit == 0, run.output.constData());
    QCOMPARE(run.trust()[QStringLiteral("serial")].toString(), QStringLiteral("6"));
    for (auto file = world.files.cbegin(); file != world.files.cend(); ++file) {
        QCOMPARE(content(copy.filePath(QString::fromLatin1(file.key()))), file.value());
    }
    for (const QJsonValue &file : run.document[QStringLiteral("files")].toArray()) {
        QVERIFY(file.toObject()[QStringLiteral("fetched")].toBool());
    }

    defineSigned(copy.path());
    QCOMPARE(ctl({QStringLiteral("list")}).repository()[QStringLiteral("entries")].toArray().size(),
             2);
}

void tst_RVCtlTrust::copyEndsWithItsList()
{
    SignedWorld world(m_keys.get());
    serve(&world);
    world.server.beforeAnswer = [&world](const QByteArray &path) {
        if (path == "/r/b.xml" && world.requests("b.xml") == 2) {
            world.serve("b.xml", "other");
            world.publishText(world.list.toText(), SignedWorld::stranger);
        }
    };
    const QTemporaryDir copy;
    const Run run = download(world, copy);
    QVERIFY2(run.exit == 9, run.output.constData());
    const QJsonArray files = run.document[QStringLiteral("files")].toArray();
    QCOMPARE(files.size(), 4);
    for (const QJsonValue &file : files) {
        QCOMPARE(
            file.toObject()[QStringLiteral("error")].toObject()[QStringLiteral("kind")].toString(),
            QStringLiteral("trust"));
    }
    QVERIFY(!QFile::exists(copy.filePath(QStringLiteral("SHA256SUMS"))));
    // Nothing more is asked for.
    QCOMPARE(world.requests("a.deb"), 1);
    QCOMPARE(world.requests("b.deb"), 0);
}

void tst_RVCtlTrust::sums()
{
    FakeRoot::write(m_repo + QStringLiteral("/.hidden"), "x");
    FakeRoot::write(m_repo + QStringLiteral("/half.deb.part"), "x");
    FakeRoot::write(m_repo + QStringLiteral("/folder/x.deb"), "x");
    QVERIFY(QFile::link(QStringLiteral("tc-audio.deb"), m_repo + QStringLiteral("/link.deb")));
    const Run made = makeSums();
    QCOMPARE(made.exit, 0);
    QCOMPARE(made.document[QStringLiteral("serial")].toString(), QStringLiteral("2"));
    QString reason;
    const auto list = RVChecksums::parse(content(m_repo + QStringLiteral("/SHA256SUMS")), &reason);
    QVERIFY2(list, qUtf8Printable(reason));
    QCOMPARE(list->sums.keys(), (QList<QByteArray>{"tc-audio.deb", "tc-audio.xml"}));
    QCOMPARE(*list->serial, qint64(2));
    QCOMPARE(list->repositoryId, id);
    QVERIFY(list->heads.isEmpty());
    const qint64 days =
        QDateTime::currentDateTimeUtc().secsTo(list->validUntil.addSecs(3600)) / 86400;
    QCOMPARE(days, qint64(30));

    QProcess process;
    process.setWorkingDirectory(m_repo);
    process.start(QStringLiteral("sha256sum"),
                  {QStringLiteral("--strict"), QStringLiteral("-c"), QStringLiteral("SHA256SUMS")});
    QVERIFY(process.waitForFinished(timeout));
    QCOMPARE(process.exitCode(), 0);

    // The old list's id.
    const Run again = run({QStringLiteral("--json"), QStringLiteral("sums"), m_repo,
                           QStringLiteral("--valid-for"), QStringLiteral("1d")});
    QCOMPARE(again.exit, 0);
    QCOMPARE(again.document[QStringLiteral("repositoryId")].toString(), id);
    QCOMPARE(makeSums({QStringLiteral("--serial"), QStringLiteral("41")}).exit, 0);
    QCOMPARE(makeSums().document[QStringLiteral("serial")].toString(), QStringLiteral("42"));
}

void tst_RVCtlTrust::sumsRefuses_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("code");
    const auto row = [](const char *name, const char *arguments, int code) {
        QTest::newRow(name) << QString::fromLatin1(arguments).split(QLatin1Char(' ')) << code;
    };
    row("no days", "REPO --id a", 2);
    row("days without a unit", "REPO --id a --valid-for 30", 2);
    row("no days at all", "REPO --id a --valid-for 0d", 2);
    row("for ever", "REPO --id a --valid-for 9999d", 2);
    row("an id with a slash", "REPO --id a/b --valid-for 30d", 2);
    row("an empty id", "REPO --id= --valid-for 30d", 2);
    row("a negative serial", "REPO --id a --valid-for 30d --serial=-1", 2);
    row("no number", "REPO --id a --valid-for 30d --serial x", 2);
    row("no folder", "REPO/missing --id a --valid-for 30d", 2);
    row("a file", "REPO/tc-audio.deb --id a --valid-for 30d", 2);
}

void tst_RVCtlTrust::sumsRefuses()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, code);
    const QByteArray before = content(m_repo + QStringLiteral("/SHA256SUMS"));
    arguments[0].replace(QStringLiteral("REPO"), m_repo);
    const Run made = run(QStringList{QStringLiteral("--json"), QStringLiteral("sums")} + arguments);
    QVERIFY2(made.exit == code, made.output.constData());
    QCOMPARE(content(m_repo + QStringLiteral("/SHA256SUMS")), before);

    FakeRoot::write(m_repo + QStringLiteral("/SHA256SUMS"), "<html>\n");
    QCOMPARE(makeSums().exit, 2);
    QCOMPARE(makeSums({QStringLiteral("--serial"), QStringLiteral("3")}).exit, 0);
}

void tst_RVCtlTrust::sumsOfSelfDescribingArchives()
{
    QVERIFY(QFile::remove(m_repo + QStringLiteral("/tc-audio.xml")));
    QCOMPARE(makeSums().exit, 0);
    QString reason;
    const auto list = RVChecksums::parse(content(m_repo + QStringLiteral("/SHA256SUMS")), &reason);
    QVERIFY2(list, qUtf8Printable(reason));
    const RVChecksums::Head head = list->heads.value("tc-audio.deb");
    const QByteArray deb = content(m_deb);
    QVERIFY(head.length > 0);
    QVERIFY(head.length < deb.size());
    QCOMPARE(deb.mid(static_cast<int>(head.length) - 60, 8), QByteArray("data.tar"));
    QCOMPARE(head.sum,
             QCryptographicHash::hash(deb.left(static_cast<int>(head.length)),
                                      QCryptographicHash::Sha256));
}

void tst_RVCtlTrust::lintKnows()
{
    const auto kinds = [this] {
        QStringList kinds;
        const Run lint = ctl({QStringLiteral("lint")});
        for (const QJsonValue &finding : lint.document[QStringLiteral("findings")].toArray()) {
            kinds.append(finding.toObject()[QStringLiteral("kind")].toString());
        }
        return kinds;
    };
    for (const char *kind : {"list-refused", "sum-missing", "sum-differs", "sum-without-file"}) {
        QVERIFY(!kinds().contains(QLatin1String(kind)));
    }
    // By a key that the device does not have.
    SigningKeys other;
    QVERIFY(other.make(QStringLiteral("Other <other@example.org>")));
    FakeRoot::write(m_repo + QStringLiteral("/SHA256SUMS.gpg"),
                    other.sign(content(m_repo + QStringLiteral("/SHA256SUMS")),
                               {QStringLiteral("Other <other@example.org>")}));
    QVERIFY(kinds().contains(QStringLiteral("list-refused")));
}

QTEST_GUILESS_MAIN(tst_RVCtlTrust)
#include "tst_RVCtlTrust.moc"

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/OSInfo.h"
#include "repository/RVExplain.h"
#include "repository/RVTrust.h"
#include "tests/support/LogFile.h"
#include "tests/support/Privileges.h"
#include "tests/support/SignedWorld.h"
#include "tests/support/WarningGuard.h"

#include <QDir>
#include <QDomDocument>
#include <QFile>
#include <QSignalSpy>
#include <QtTest>

#include <functional>
#include <memory>
#include <sys/stat.h>

namespace
{

constexpr int limitMs = 60000;

using Tamper = std::function<void(SignedWorld *world)>;

QString days(int count)
{
    return QDateTime::currentDateTimeUtc().addDays(count).toString(
        QStringLiteral("yyyyMMdd'T'HHmmss'!'"));
}

} // namespace

Q_DECLARE_METATYPE(Tamper)
Q_DECLARE_METATYPE(RVTrustFault::Kind)

class tst_RVTrust : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void nothingMoreWithoutTheElements();
    void signedRepository();
    void localFolder();
    void sumsAlone();
    void refused_data();
    void refused();
    void wrongDefinition_data();
    void wrongDefinition();
    void leftOut_data();
    void leftOut();
    void freshness();
    void readingRemembersNothing();
    void readOnlyState();
    void verifier_data();
    void verifier();
    void newerListWhileItIsFetched();
    void newerFilesWhileTheyAreFetched();
    void canceled();
    void destroyed();
    void secondRefresh();
    void changeOfKeys();
    void location_data();
    void location();

private:
    /// True when the refresh has ended, and left no page waiting.
    bool refresh(RVRepository *repository);
    QStringList names(const RVRepository &repository) const;
    RVVerdict verdictOf(const RVRepository &repository, const QByteArray &name) const;

    std::unique_ptr<SigningKeys> m_keys;
    std::unique_ptr<SignedWorld> m_world;
    std::unique_ptr<LogFile> m_log;
    std::unique_ptr<WarningGuard> m_guard;
    QStringList m_signals;
};

void tst_RVTrust::initTestCase()
{
    m_keys = std::make_unique<SigningKeys>();
    QVERIFY(SignedWorld::makeKeys(m_keys.get()));
}

void tst_RVTrust::init()
{
    m_log = std::make_unique<LogFile>();
    m_guard = std::make_unique<WarningGuard>();
    m_world = std::make_unique<SignedWorld>(m_keys.get());
}

void tst_RVTrust::cleanup()
{
    m_world.reset();
    m_guard.reset();
    m_log.reset();
}

bool tst_RVTrust::refresh(RVRepository *repository)
{
    m_signals.clear();
    QObject context;
    connect(repository, &RVRepository::refreshDone, &context, [this] {
        m_signals.append(QStringLiteral("done"));
    });
    connect(repository, &RVRepository::trustFailed, &context, [this] {
        m_signals.append(QStringLiteral("trustFailed"));
    });
    connect(repository, &RVRepository::networkError, &context, [this] {
        m_signals.append(QStringLiteral("networkError"));
    });
    connect(repository, &RVRepository::refreshEnded, &context, [this] {
        m_signals.append(QStringLiteral("ended"));
    });
    repository->refresh();
    return QTest::qWaitFor(
        [this] {
            return m_signals.contains(QStringLiteral("ended"));
        },
        limitMs);
}

QStringList tst_RVTrust::names(const RVRepository &repository) const
{
    QStringList names;
    for (const RVData &entry : repository.entries()) {
        names.append(entry.descriptor()->name(QString()));
    }
    return names;
}

RVVerdict tst_RVTrust::verdictOf(const RVRepository &repository, const QByteArray &name) const
{
    const OSInfo system(nullptr, m_world->paths);
    for (const RVVerdict &verdict : explain(repository, system, false)) {
        if (verdict.archive.toEncoded().endsWith('/' + name)) {
            return verdict;
        }
    }
    return {};
}

void tst_RVTrust::nothingMoreWithoutTheElements()
{
    const auto repository = m_world->repository({});
    QVERIFY(refresh(repository.get()));
    QCOMPARE(names(*repository), (QStringList{QStringLiteral("a"), QStringLiteral("b")}));
    QCOMPARE(m_world->server.requests().size(), 3);
    QCOMPARE(m_world->requests("SHA256SUMS"), 0);
    QVERIFY(!repository->trust());
    QVERIFY(!QDir(m_world->paths.stateFolder()).exists());
}

void tst_RVTrust::signedRepository()
{
    const auto repository = m_world->repository(m_world->policy());
    QVERIFY(refresh(repository.get()));
    QVERIFY2(!repository->trustFault().isSet(), qUtf8Printable(repository->trustFault().text));
    QCOMPARE(m_signals, (QStringList{QStringLiteral("done"), QStringLiteral("ended")}));
    QCOMPARE(names(*repository), (QStringList{QStringLiteral("a"), QStringLiteral("b")}));
    QCOMPARE(m_world->server.requests().size(), 5);
    QVERIFY(repository->trust());
    QCOMPARE(repository->trust()->signer(), SignedWorld::publisher);
    QCOMPARE(repository->trust()->forgetting(), QString());
    for (const RVData &entry : repository->entries()) {
        QCOMPARE(entry.trust, repository->trust());
    }
    QCOMPARE(verdictOf(*repository, "a.deb").reason, RVEligibility::Offered);
}

void tst_RVTrust::localFolder()
{
    const QString folder = m_world->root.path() + QStringLiteral("/a b");
    for (auto file = m_world->files.cbegin(); file != m_world->files.cend(); ++file) {
        FakeRoot::write(folder + QLatin1Char('/') + QString::fromLatin1(file.key()), file.value());
    }
    const QUrl location = QUrl::fromLocalFile(folder);
    const auto repository = m_world->repository(m_world->policy(), location);
    QVERIFY(refresh(repository.get()));
    QCOMPARE(repository->trustFault().kind, RVTrustFault::NoList);
    QCOMPARE(repository->entries().size(), 0);

    const QByteArray text = m_world->list.toText();
    FakeRoot::write(folder + QStringLiteral("/SHA256SUMS"), text);
    FakeRoot::write(folder + QStringLiteral("/SHA256SUMS.gpg"),
                    m_keys->sign(text, {SignedWorld::publisher}));
    QVERIFY(refresh(repository.get()));
    QVERIFY2(!repository->trustFault().isSet(), qUtf8Printable(repository->trustFault().text));
    QCOMPARE(names(*repository), (QStringList{QStringLiteral("a"), QStringLiteral("b")}));

    FakeRoot::write(folder + QStringLiteral("/a.xml"), SignedWorld::descriptor("evil"));
    QVERIFY(refresh(repository.get()));
    QCOMPARE(names(*repository), (QStringList{QString(), QStringLiteral("b")}));
    QCOMPARE(verdictOf(*repository, "a.deb").reason, RVEligibility::OtherDescriptor);
}

void tst_RVTrust::sumsAlone()
{
    RVTrustPolicy policy;
    policy.kind = RVTrustPolicy::Checksums;
    m_world->lose("SHA256SUMS.gpg");
    // As sha256sum writes it, with nothing of ours.
    m_world->list = RVChecksums();
    m_world->add("a.deb", "package a");
    m_world->add("a.xml", SignedWorld::descriptor("a"));
    m_world->serve("SHA256SUMS", m_world->list.toText());
    const auto repository = m_world->repository(policy);
    QVERIFY(refresh(repository.get()));
    QVERIFY2(!repository->trustFault().isSet(), qUtf8Printable(repository->trustFault().text));
    QCOMPARE(names(*repository), QStringList{QStringLiteral("a")});
    QCOMPARE(verdictOf(*repository, "b.deb").reason, RVEligibility::NotListed);
    QCOMPARE(m_world->requests("SHA256SUMS.gpg"), 0);
    QVERIFY(!QDir(m_world->paths.stateFolder()).exists());

    m_world->lose("SHA256SUMS");
    QVERIFY(refresh(repository.get()));
    QCOMPARE(repository->trustFault().kind, RVTrustFault::NoList);
}

void tst_RVTrust::refused_data()
{
    using F = RVTrustFault;
    QTest::addColumn<Tamper>("tamper");
    QTest::addColumn<RVTrustFault::Kind>("kind");
    const auto row = [](const char *name, F::Kind kind, const Tamper &tamper) {
        QTest::newRow(name) << tamper << kind;
    };
    const auto text = [](const std::function<void(QByteArray *)> &change) {
        return Tamper([change](SignedWorld *world) {
            QByteArray bytes = world->list.toText();
            change(&bytes);
            world->publishText(bytes);
        });
    };
    row("no list", F::NoList, [](SignedWorld *world) {
        world->lose("SHA256SUMS");
    });
    row("no signature", F::NoList, [](SignedWorld *world) {
        world->lose("SHA256SUMS.gpg");
    });
    row("neither", F::NoList, [](SignedWorld *world) {
        world->lose("SHA256SUMS");
        world->lose("SHA256SUMS.gpg");
    });
    row("an empty signature", F::BadSignature, [](SignedWorld *world) {
        world->serve("SHA256SUMS.gpg", "");
    });
    row("garbage for a signature", F::BadSignature, [](SignedWorld *world) {
        world->serve("SHA256SUMS.gpg", "<html>not here</html>");
    });
    row("an endless signature", F::NoList, [](SignedWorld *world) {
        world->serve("SHA256SUMS.gpg", QByteArray(100000, 'x'));
    });
    row("an endless list", F::NoList, [](SignedWorld *world) {
        world->serve("SHA256SUMS", QByteArray(RVChecksums::maxBytes + 1, '#'));
    });
    row("a list cut off at the end", F::BadSignature, [](SignedWorld *world) {
        world->serve("SHA256SUMS", world->list.toText().chopped(80));
    });
    row("a list cut off by the line", F::NoList, [](SignedWorld *world) {
        world->server.serveRaw(QStringLiteral("/r/SHA256SUMS"),
                               "HTTP/1.1 200 OK\r\nContent-Length: 4000\r\n\r\n# Ravel");
    });
    row("a line more", F::BadSignature, [](SignedWorld *world) {
        world->serve("SHA256SUMS", world->list.toText() + QByteArray(64, 'a') + "  evil.deb\n");
    });
    row("a sum changed", F::BadSignature, [](SignedWorld *world) {
        world->add("a.deb", "evil");
        world->serve("a.deb", "evil");
        world->serve("SHA256SUMS", world->list.toText());
    });
    row("another line end", F::BadSignature, [](SignedWorld *world) {
        world->serve("SHA256SUMS", world->list.toText().replace('\n', "\r\n"));
    });
    row("another publisher", F::BadSignature, [](SignedWorld *world) {
        world->publishText(world->list.toText(), SignedWorld::stranger);
    });
    row("signed, and not understood", F::BadList, text([](QByteArray *bytes) {
            *bytes += "<html>\n";
        }));
    row("without an id", F::BadList, text([](QByteArray *bytes) {
            bytes->replace("# Ravel-Repository", "# Other");
        }));
    row("without a serial", F::BadList, text([](QByteArray *bytes) {
            bytes->replace("# Ravel-Serial", "# Other");
        }));
    row("without a date", F::BadList, text([](QByteArray *bytes) {
            bytes->replace("# Ravel-Valid-Until", "# Other");
        }));
    row("two serials", F::BadList, text([](QByteArray *bytes) {
            bytes->prepend("# Ravel-Serial: 9\n");
        }));
    row("the list of another repository", F::OtherRepository, [](SignedWorld *world) {
        world->list.repositoryId = QStringLiteral("org.example.other");
        world->publish();
    });
    row("expired", F::Expired, [](SignedWorld *world) {
        world->list.validUntil = QDateTime::currentDateTimeUtc().addSecs(-60);
        world->publish();
    });
    row("signed in the future", F::FutureTime, [](SignedWorld *world) {
        world->publishText(world->list.toText(), SignedWorld::publisher,
                           {QStringLiteral("--faked-system-time"), days(3)});
    });
    row("no keyring", F::Keyring, [](SignedWorld *world) {
        QFile::remove(world->paths.keyringDir + QLatin1Char('/') + SignedWorld::keyring);
    });
    row("a keyring that others can write to", F::Keyring, [](SignedWorld *world) {
        ::chmod(QFile::encodeName(world->paths.keyringDir + QLatin1Char('/') + SignedWorld::keyring)
                    .constData(),
                0666);
    });
    row("a damaged memory", F::State, [](SignedWorld *world) {
        FakeRoot::write(
            world->paths.stateFolder()
                + QStringLiteral("/%1@%2.seen").arg(SignedWorld::id, SignedWorld::keyring),
            "?");
    });
    row("gpgv is missing", F::NoVerifier, [](SignedWorld *world) {
        world->paths.signatureTool = QStringLiteral("/nonexistent/gpgv");
    });
}

void tst_RVTrust::refused()
{
    QFETCH(Tamper, tamper);
    QFETCH(RVTrustFault::Kind, kind);
    tamper(m_world.get());
    const auto repository = m_world->repository(m_world->policy());
    QVERIFY(refresh(repository.get()));
    QVERIFY2(repository->trustFault().kind == kind, qUtf8Printable(repository->trustFault().text));
    QVERIFY(!repository->trustFault().text.isEmpty());
    QCOMPARE(m_signals, (QStringList{QStringLiteral("trustFailed"), QStringLiteral("ended")}));
    QCOMPARE(repository->entries().size(), 0);
    QVERIFY(!repository->trust());
    // Nothing of it was parsed, and nothing is remembered.
    QCOMPARE(m_world->requests("a.xml"), 0);
    std::optional<RVTrustState::Seen> seen;
    QVERIFY(!RVTrustState(m_world->paths).read(SignedWorld::id, SignedWorld::keyring, &seen)
            || !seen);
    // What does not fit is fetched once more, past every cache, and no more than that.
    if (kind == RVTrustFault::BadSignature) {
        QCOMPARE(m_world->requests("SHA256SUMS"), 2);
        QCOMPARE(m_world->requests("SHA256SUMS", "\r\nCache-Control: no-cache\r\n"), 1);
        QCOMPARE(m_world->requests("SHA256SUMS.gpg", "\r\nCache-Control: no-cache\r\n"), 1);
    }
}

void tst_RVTrust::wrongDefinition_data()
{
    QTest::addColumn<QString>("elements");
    QTest::newRow("no keyring named")
        << QStringLiteral("<signed_by/><repository_id>a</repository_id>");
    QTest::newRow("an unknown word") << QStringLiteral("<checksums>perhaps</checksums>");
    QTest::newRow("no id") << QStringLiteral("<signed_by>vendor.gpg</signed_by>");
}

void tst_RVTrust::wrongDefinition()
{
    QFETCH(QString, elements);
    QDomDocument document;
    QVERIFY(document.setContent(QStringLiteral("<repository>%1</repository>").arg(elements)));
    const auto repository = m_world->repository(RVTrustPolicy::parse(document.documentElement()));
    QVERIFY(refresh(repository.get()));
    QCOMPARE(repository->trustFault().kind, RVTrustFault::Definition);
    QCOMPARE(m_signals, (QStringList{QStringLiteral("trustFailed"), QStringLiteral("ended")}));
    QCOMPARE(m_world->server.requests().size(), 0);
}

void tst_RVTrust::leftOut_data()
{
    QTest::addColumn<Tamper>("tamper");
    QTest::addColumn<QByteArray>("archive");
    QTest::addColumn<int>("reason");
    QTest::addColumn<QStringList>("offered");
    const auto row = [](const char *name, const char *archive, RVEligibility reason,
                        const QStringList &offered, const Tamper &tamper) {
        QTest::newRow(name) << tamper << QByteArray(archive) << static_cast<int>(reason) << offered;
    };
    const QStringList both{QStringLiteral("a"), QStringLiteral("b")};
    const QStringList second{QString(), QStringLiteral("b")};
    row("a package more", "evil.deb", RVEligibility::NotListed, both, [](SignedWorld *world) {
        world->serve("evil.deb", "evil");
        world->serve("evil.xml", SignedWorld::descriptor("evil"));
    });
    row("a package without its sum", "a.deb", RVEligibility::NotListed, {QStringLiteral("b")},
        [](SignedWorld *world) {
            world->list.sums.remove("a.deb");
            world->publish();
        });
    row("a descriptor without its sum", "a.deb", RVEligibility::NoDescriptor, {QStringLiteral("b")},
        [](SignedWorld *world) {
            world->list.sums.remove("a.xml");
            world->publish();
        });
    row("another descriptor", "a.deb", RVEligibility::OtherDescriptor, second,
        [](SignedWorld *world) {
            world->serve("a.xml", SignedWorld::descriptor("evil"));
        });
    row("a descriptor of the same length", "a.deb", RVEligibility::OtherDescriptor, second,
        [](SignedWorld *world) {
            world->serve("a.xml", SignedWorld::descriptor("b"));
        });
    row("an empty descriptor", "a.deb", RVEligibility::OtherDescriptor, second,
        [](SignedWorld *world) {
            world->serve("a.xml", "");
        });
    row("two descriptors exchanged", "b.deb", RVEligibility::OtherDescriptor,
        {QString(), QString()}, [](SignedWorld *world) {
            world->serve("a.xml", SignedWorld::descriptor("b"));
            world->serve("b.xml", SignedWorld::descriptor("a"));
        });
    const auto link = [](const QByteArray &href) {
        return Tamper([href](SignedWorld *world) {
            world->server.serve(QStringLiteral("/r/"),
                                "<a href=\"a.deb\">x</a><a href=\"a.xml\">x</a>"
                                "<a href=\"b.xml\">x</a><a href=\"b.deb\">x</a>"
                                "<a href=\""
                                    + href.split(' ').join("\">x</a><a href=\"") + "\">x</a>",
                                200, "Content-Type: text/html\r\n");
            world->server.serve(QStringLiteral("/other/a.deb"), "package a");
            world->server.serve(QStringLiteral("/other/a.xml"), SignedWorld::descriptor("a"));
        });
    };
    row("links into another folder", "other/a.deb", RVEligibility::NotListed, both,
        link("/other/a.deb /other/a.xml"));
    row("links to another server", "127.0.0.1:9/r/a.deb", RVEligibility::NotListed, both,
        link("http://127.0.0.1:9/r/a.deb"));
    row("a link with a query", "a.deb?x", RVEligibility::NoFilter, both, link("a.deb?x"));
    row("a folder below", "x/a.deb", RVEligibility::NotListed, both, link("x/a.deb"));
    row("an escaped slash", "x%2Fa.deb", RVEligibility::NotListed, both, link("x%2Fa.deb"));
}

void tst_RVTrust::leftOut()
{
    QFETCH(Tamper, tamper);
    QFETCH(QByteArray, archive);
    QFETCH(int, reason);
    QFETCH(QStringList, offered);
    tamper(m_world.get());
    m_guard->allow(QStringLiteral("Repositories filters|URI|but that type"));
    const auto repository = m_world->repository(m_world->policy());
    QVERIFY(refresh(repository.get()));
    QVERIFY2(!repository->trustFault().isSet(), qUtf8Printable(repository->trustFault().text));
    QStringList found = names(*repository);
    found.sort();
    QCOMPARE(found, offered);
    const RVVerdict verdict = verdictOf(*repository, archive);
    QVERIFY2(!verdict.archive.isEmpty() || archive.contains('?'), archive.constData());
    if (!verdict.archive.isEmpty()) {
        QCOMPARE(static_cast<int>(verdict.reason), reason);
    }
    for (const QByteArray &head : m_world->server.requests()) {
        QVERIFY2(!head.startsWith("GET /other"), head.constData());
    }
    if (reason == static_cast<int>(RVEligibility::OtherDescriptor)) {
        QCOMPARE(m_world->requests("SHA256SUMS", "\r\nCache-Control: no-cache\r\n"), 1);
        QCOMPARE(m_world->requests("a.xml", "\r\nCache-Control: no-cache\r\n"), 1);
        QCOMPARE(m_world->requests("a.xml"), 2);
    }
}

void tst_RVTrust::freshness()
{
    const auto repository = m_world->repository(m_world->policy());
    const auto kindOf = [&](qint64 serial) {
        m_world->list.serial = serial;
        m_world->publish();
        return refresh(repository.get()) ? repository->trustFault().kind : RVTrustFault::NoVerifier;
    };
    QCOMPARE(kindOf(5), RVTrustFault::None);
    QCOMPARE(kindOf(5), RVTrustFault::None);
    QCOMPARE(kindOf(4), RVTrustFault::OlderList);
    QVERIFY(repository->trustFault().text.contains(QLatin1Char('4')));
    QVERIFY(repository->trustFault().text.contains(QLatin1Char('5')));
    QCOMPARE(kindOf(6), RVTrustFault::None);
    QCOMPARE(kindOf(5), RVTrustFault::OlderList);
    m_world->add("c.deb", "package c");
    QCOMPARE(kindOf(6), RVTrustFault::OtherList);
    QCOMPARE(kindOf(7), RVTrustFault::None);
    QString reason;
    QVERIFY(RVTrustState(m_world->paths).forget(SignedWorld::id, SignedWorld::keyring, &reason));
    QCOMPARE(kindOf(4), RVTrustFault::None);
}

void tst_RVTrust::readingRemembersNothing()
{
    const auto repository = m_world->repository(m_world->policy());
    repository->setRememberingTrust(false);
    QVERIFY(refresh(repository.get()));
    QVERIFY(!repository->trustFault().isSet());
    QVERIFY(!QDir(m_world->paths.stateFolder()).exists());
}

void tst_RVTrust::readOnlyState()
{
    QVERIFY(obeyFilePermissions());
    const QString folder = m_world->paths.stateFolder();
    QVERIFY(QDir().mkpath(folder));
    QVERIFY(::chmod(QFile::encodeName(folder).constData(), 0500) == 0);
    const auto repository = m_world->repository(m_world->policy());
    QVERIFY(refresh(repository.get()));
    QVERIFY2(!repository->trustFault().isSet(), qUtf8Printable(repository->trustFault().text));
    QVERIFY(repository->trust()->forgetting().contains(folder));
    QCOMPARE(m_log->lines().filter(QStringLiteral("Freshness is not remembered")).size(), 1);
    QVERIFY(::chmod(QFile::encodeName(folder).constData(), 0700) == 0);
}

void tst_RVTrust::verifier_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::newRow("ends with 0 and says nothing") << QByteArray("exit 0");
    QTest::newRow("lies on standard error")
        << QByteArray("printf '[GNUPG:] NEWSIG\\n[GNUPG:] GOODSIG 1 A\\n[GNUPG:] VALIDSIG 1 "
                      "2026-01-01 1767225600 0 4 0 22 8 00 1\\n' >&2");
    QTest::newRow("lies and fails")
        << QByteArray("printf '[GNUPG:] NEWSIG\\n[GNUPG:] GOODSIG 1 A\\n[GNUPG:] VALIDSIG 1 "
                      "2026-01-01 1767225600 0 4 0 22 8 00 1\\n'; exit 1");
    QTest::newRow("hangs") << QByteArray("exec sleep 1000");
}

void tst_RVTrust::verifier()
{
    QFETCH(QByteArray, script);
    // Not below the test's own folder: nobody may have no way in there.
    const QTemporaryDir tools(QStringLiteral("/tmp/ravel-gpgv-XXXXXX"));
    QVERIFY(::chmod(QFile::encodeName(tools.path()).constData(), 0755) == 0);
    m_world->paths.signatureTool = tools.filePath(QStringLiteral("gpgv"));
    FakeRoot::write(m_world->paths.signatureTool, "#!/bin/sh\n" + script + '\n');
    QVERIFY(::chmod(QFile::encodeName(m_world->paths.signatureTool).constData(), 0755) == 0);
    RVTrust trust(m_world->policy(), m_world->url(), m_world->paths);
    trust.verifierLimit = 500;
    QSignalSpy ends(&trust, &RVTrust::finished);
    trust.load();
    QTRY_COMPARE_WITH_TIMEOUT(ends.count(), 1, limitMs);
    QVERIFY(trust.fault().isSet());
    QVERIFY(!trust.isListed(m_world->url("a.deb")));
}

void tst_RVTrust::newerListWhileItIsFetched()
{
    // The old list comes with the new signature, and then the new one.
    const QByteArray old = m_world->list.toText();
    m_world->list.serial = 6;
    m_world->publish();
    m_world->serve("SHA256SUMS", old);
    m_world->server.beforeAnswer = [this](const QByteArray &path) {
        if (path == "/r/SHA256SUMS.gpg") {
            m_world->serve("SHA256SUMS", m_world->list.toText());
        }
    };
    const auto repository = m_world->repository(m_world->policy());
    QVERIFY(refresh(repository.get()));
    QVERIFY2(!repository->trustFault().isSet(), qUtf8Printable(repository->trustFault().text));
    QCOMPARE(names(*repository), (QStringList{QStringLiteral("a"), QStringLiteral("b")}));
    QCOMPARE(m_world->requests("SHA256SUMS"), 2);
}

void tst_RVTrust::newerFilesWhileTheyAreFetched()
{
    // A new descriptor is there before the list that knows it.
    bool isPublished = false;
    m_world->server.beforeAnswer = [&](const QByteArray &path) {
        if (path == "/r/a.xml" && !isPublished) {
            isPublished = true;
            m_world->add("a.xml", SignedWorld::descriptor("new"));
            m_world->list.serial = 6;
            m_world->publish();
        }
    };
    const auto repository = m_world->repository(m_world->policy());
    QVERIFY(refresh(repository.get()));
    QVERIFY2(!repository->trustFault().isSet(), qUtf8Printable(repository->trustFault().text));
    QCOMPARE(m_signals, (QStringList{QStringLiteral("done"), QStringLiteral("ended")}));
    QCOMPARE(names(*repository), (QStringList{QStringLiteral("b"), QStringLiteral("new")}));
    QCOMPARE(*repository->trust()->list().serial, qint64(6));
}

void tst_RVTrust::canceled()
{
    const auto repository = m_world->repository(m_world->policy());
    for (const char *name : {"SHA256SUMS", "SHA256SUMS.gpg"}) {
        bool isCanceled = false;
        m_world->server.beforeAnswer = [&](const QByteArray &path) {
            if (path == QByteArray("/r/") + name && !isCanceled) {
                isCanceled = true;
                repository->cancel();
            }
        };
        QVERIFY(refresh(repository.get()));
        QVERIFY(isCanceled);
        QCOMPARE(m_signals, (QStringList{QStringLiteral("trustFailed"), QStringLiteral("ended")}));
        QCOMPARE(repository->entries().size(), 0);
    }
    m_world->server.beforeAnswer = nullptr;
    QVERIFY(refresh(repository.get()));
    QCOMPARE(repository->entries().size(), 2);
}

void tst_RVTrust::destroyed()
{
    for (const char *name : {"SHA256SUMS", "SHA256SUMS.gpg", "a.xml"}) {
        auto repository = m_world->repository(m_world->policy());
        m_world->server.beforeAnswer = [&](const QByteArray &path) {
            if (path == QByteArray("/r/") + name) {
                repository.reset();
            }
        };
        repository->refresh();
        QTRY_VERIFY_WITH_TIMEOUT(!repository, limitMs);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

void tst_RVTrust::secondRefresh()
{
    const auto repository = m_world->repository(m_world->policy());
    bool isFirst = true;
    int ends = 0;
    connect(repository.get(), &RVRepository::refreshEnded, this, [&] {
        ++ends;
    });
    m_world->server.beforeAnswer = [&](const QByteArray &path) {
        if (path == "/r/SHA256SUMS" && isFirst) {
            isFirst = false;
            repository->refresh();
        }
    };
    repository->refresh();
    QTRY_COMPARE_WITH_TIMEOUT(ends, 2, limitMs);
    QVERIFY2(!repository->trustFault().isSet(), qUtf8Printable(repository->trustFault().text));
    QCOMPARE(repository->entries().size(), 2);
    repository->disconnect(this);
}

void tst_RVTrust::changeOfKeys()
{
    FakeRoot::write(m_world->paths.keyringDir + QLatin1Char('/') + SignedWorld::keyring,
                    m_keys->keyring({SignedWorld::publisher, SignedWorld::stranger}));
    const auto repository = m_world->repository(m_world->policy());
    QVERIFY(refresh(repository.get()));
    QVERIFY(!repository->trustFault().isSet());
    m_world->list.serial = 6;
    m_world->publishText(m_world->list.toText(), SignedWorld::stranger);
    QVERIFY(refresh(repository.get()));
    QVERIFY2(!repository->trustFault().isSet(), qUtf8Printable(repository->trustFault().text));
    QCOMPARE(repository->trust()->signer(), SignedWorld::stranger);
}

void tst_RVTrust::location_data()
{
    QTest::addColumn<QString>("location");
    QTest::addColumn<QString>("file");
    QTest::addColumn<bool>("isOwn");
    const auto row = [](const char *location, const char *file, bool isOwn) {
        QTest::newRow((QByteArray(location) + ' ' + file).constData())
            << QString::fromLatin1(location) << QString::fromLatin1(file) << isOwn;
    };
    row("http://h/p/", "http://h/p/a", true);
    row("http://h/p", "http://h/p/a", true);
    row("http://h/p/", "http://h:80/p/a", true);
    row("http://u:p@h/p/", "http://h/p/a", true);
    row("http://h/", "http://h/a", true);
    row("http://h", "http://h/a", true);
    row("http://h/p/?q", "http://h/p/a", true);
    row("http://h/p/", "https://h/p/a", false);
    row("http://h/p/", "http://h:81/p/a", false);
    row("http://h/p/", "http://i/p/a", false);
    row("http://h/p/", "http://h/a", false);
    row("http://h/p/", "http://h/p/x/a", false);
    row("http://h/p/", "http://h/p/../a", false);
    row("http://h/p/", "file:///p/a", false);
    row("ftp://h/a%20b/", "ftp://h/a%20b/a", true);
    row("file:///p/", "file:///p/a", true);
    row("file:///p", "file:///p/a", true);
    row("file:///x/../p", "file:///p/a", true);
    row("file:///p", "file:///p/x/a", false);
    row("file:///p", "http:///p/a", false);
}

void tst_RVTrust::location()
{
    QFETCH(QString, location);
    QFETCH(QString, file);
    QFETCH(bool, isOwn);
    const RVTrust trust(m_world->policy(), QUrl(location), m_world->paths);
    QCOMPARE(trust.isOwn(QUrl(file)), isOwn);
    QVERIFY(trust.isOwn(trust.listUrl()));
}

QTEST_GUILESS_MAIN(tst_RVTrust)
#include "tst_RVTrust.moc"

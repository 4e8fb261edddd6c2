// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "archive/ImageQuestion.h"
#include "install/RVInstallProc.h"
#include "repository/RVTrust.h"
#include "tests/support/LogFile.h"
#include "tests/support/SignedWorld.h"
#include "tests/support/WarningGuard.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QtTest>

#include <functional>
#include <memory>
#include <sys/stat.h>

namespace
{

constexpr int limitMs = 60000;
constexpr char freshly[] = "\r\nCache-Control: no-cache\r\n";

using Tamper = std::function<void(SignedWorld *world)>;

/// As long as that, and with a head that is an image's.
QByteArray imageOf(int size)
{
    return QByteArray("\x1f\x8b\x08", 3) + QByteArray(size - 3, 'i');
}

QByteArray content(const QString &file)
{
    QFile in(file);
    return in.open(QIODevice::ReadOnly) ? in.readAll() : QByteArray();
}

class Yes : public ImageQuestion
{
public:
    bool confirmImageInstall() override
    {
        isAsked = true;
        return true;
    }
    bool isAsked = false;
};

} // namespace

Q_DECLARE_METATYPE(Tamper)
Q_DECLARE_METATYPE(RVTrustFault::Kind)

/// What is offered by a signed repository, and installed after the server or the line has changed
/// it.
class tst_RVSignedInstall : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void installsWhatIsListed();
    void refused_data();
    void refused();
    void newerArchiveIsInstalled();
    void spoiledByACache();
    void canceledWhileTheListIsRenewed();
    void image();
    void imageRefused_data();
    void imageRefused();
    void imageIsNotReadWithoutAList();
    void localFolder();

private:
    void refresh();
    /// Runs the installation of everything that is offered to its end.
    void install();
    void addImage();

    std::unique_ptr<SigningKeys> m_keys;
    std::unique_ptr<SignedWorld> m_world;
    std::unique_ptr<LogFile> m_log;
    std::unique_ptr<WarningGuard> m_guard;
    std::unique_ptr<RVRepository> m_repository;
    QByteArray m_installed;
    RVTrustFault m_fault;
    QStringList m_signals;
    Yes m_question;
    QString m_previousDir;
};

void tst_RVSignedInstall::initTestCase()
{
    m_keys = std::make_unique<SigningKeys>();
    QVERIFY(SignedWorld::makeKeys(m_keys.get()));
}

void tst_RVSignedInstall::init()
{
    m_previousDir = QDir::currentPath();
    m_log = std::make_unique<LogFile>();
    m_guard = std::make_unique<WarningGuard>();
    m_world = std::make_unique<SignedWorld>(m_keys.get());
    // What dpkg would get.
    const QString report = m_world->root.path() + QStringLiteral("/installed");
    m_world->paths.shell = m_world->root.path() + QStringLiteral("/shell");
    FakeRoot::write(m_world->paths.shell,
                    "#!/bin/sh\ncat ./*.deb >'" + report.toUtf8() + "' 2>/dev/null; exit 0\n");
    QVERIFY(::chmod(QFile::encodeName(m_world->paths.shell).constData(), 0755) == 0);
    m_world->paths.rebootTool = m_world->root.path() + QStringLiteral("/reboot");
    FakeRoot::write(m_world->paths.rebootTool,
                    "#!/bin/sh\necho restarted >'" + report.toUtf8() + "'\n");
    QVERIFY(::chmod(QFile::encodeName(m_world->paths.rebootTool).constData(), 0755) == 0);
    m_question.isAsked = false;
    m_installed.clear();
    m_fault = {};
}

void tst_RVSignedInstall::cleanup()
{
    m_repository.reset();
    m_world.reset();
    QCOMPARE(QDir::currentPath(), m_previousDir);
    m_guard.reset();
    m_log.reset();
}

void tst_RVSignedInstall::refresh()
{
    m_repository = m_world->repository(m_world->policy());
    m_repository->addFilter(QRegExp(QStringLiteral("\\.dd\\.gz$")),
                            QRegExp(QStringLiteral("\\.xml$")));
    QSignalSpy ends(m_repository.get(), &RVRepository::refreshEnded);
    m_repository->refresh();
    QTRY_COMPARE_WITH_TIMEOUT(ends.count(), 1, limitMs);
    QVERIFY2(!m_repository->trustFault().isSet(), qUtf8Printable(m_repository->trustFault().text));
}

void tst_RVSignedInstall::install()
{
    RVInstallProc procedure(m_repository->entries(), QString(), QString(), nullptr, m_world->paths);
    procedure.access = m_repository->access();
    procedure.imageQuestion = &m_question;
    m_signals.clear();
    connect(&procedure, &RVInstallProc::trustFailed, this, [this] {
        m_signals.append(QStringLiteral("trustFailed"));
    });
    connect(&procedure, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), this,
            [this](int code) {
                m_signals.append(QStringLiteral("finished %1").arg(code));
            });
    procedure.start();
    QTRY_VERIFY_WITH_TIMEOUT(!m_signals.filter(QStringLiteral("finished")).isEmpty(), limitMs);
    m_fault = procedure.trustFault();
    m_installed = content(m_world->root.path() + QStringLiteral("/installed"));
}

void tst_RVSignedInstall::installsWhatIsListed()
{
    refresh();
    const int before = m_world->server.requests().size();
    install();
    QCOMPARE(m_signals, QStringList{QStringLiteral("finished 0")});
    QCOMPARE(m_installed, QByteArray("package apackage b"));
    QCOMPARE(m_world->server.requests().size(), before + 2);
}

void tst_RVSignedInstall::refused_data()
{
    QTest::addColumn<Tamper>("tamper");
    QTest::addColumn<RVTrustFault::Kind>("kind");
    const auto row = [](const char *name, RVTrustFault::Kind kind, const Tamper &tamper) {
        QTest::newRow(name) << tamper << kind;
    };
    row("another archive", RVTrustFault::OtherFile, [](SignedWorld *world) {
        world->serve("a.deb", "evil");
    });
    row("an archive of the same length", RVTrustFault::OtherFile, [](SignedWorld *world) {
        world->serve("a.deb", "package A");
    });
    row("the other archive's bytes", RVTrustFault::OtherFile, [](SignedWorld *world) {
        world->serve("b.deb", "package a");
    });
    row("an archive and an unsigned list for it", RVTrustFault::BadSignature,
        [](SignedWorld *world) {
            world->add("a.deb", "evil");
            world->serve("a.deb", "evil");
            world->serve("SHA256SUMS", world->list.toText());
        });
    row("an archive, and the list is gone", RVTrustFault::NoList, [](SignedWorld *world) {
        world->serve("a.deb", "evil");
        world->lose("SHA256SUMS");
    });
    row("an archive and a list of a stranger", RVTrustFault::BadSignature, [](SignedWorld *world) {
        world->add("a.deb", "evil");
        world->list.serial = 9;
        world->publish();
        world->publishText(world->list.toText(), SignedWorld::stranger);
    });
    row("an old state, signed", RVTrustFault::OlderList, [](SignedWorld *world) {
        world->add("a.deb", "old");
        world->list.serial = 4;
        world->publish();
    });
    row("another list with the same serial", RVTrustFault::OtherList, [](SignedWorld *world) {
        world->add("a.deb", "swapped");
        world->publish();
    });
}

void tst_RVSignedInstall::refused()
{
    QFETCH(Tamper, tamper);
    QFETCH(RVTrustFault::Kind, kind);
    refresh();
    tamper(m_world.get());
    install();
    QCOMPARE(m_signals, (QStringList{QStringLiteral("trustFailed"), QStringLiteral("finished 1")}));
    QVERIFY2(m_fault.kind == kind, qUtf8Printable(m_fault.text));
    QCOMPARE(m_installed, QByteArray());
    // Once more, and no more than that.
    QVERIFY(m_world->requests("a.deb") <= 2);
    QVERIFY(m_world->requests("SHA256SUMS", freshly) <= 1);
}

void tst_RVSignedInstall::newerArchiveIsInstalled()
{
    refresh();
    m_world->add("a.deb", "newer package a ");
    m_world->list.serial = 6;
    m_world->publish();
    install();
    QCOMPARE(m_signals, QStringList{QStringLiteral("finished 0")});
    QCOMPARE(m_installed, QByteArray("newer package a package b"));
    QCOMPARE(m_world->requests("a.deb", freshly), 1);
    QCOMPARE(m_world->requests("b.deb"), 1);
}

void tst_RVSignedInstall::spoiledByACache()
{
    refresh();
    m_world->serve("a.deb", "stale");
    m_world->server.beforeAnswer = [this](const QByteArray &path) {
        if (path == "/r/SHA256SUMS") {
            m_world->serve("a.deb", "package a");
        }
    };
    install();
    QCOMPARE(m_signals, QStringList{QStringLiteral("finished 0")});
    QCOMPARE(m_installed, QByteArray("package apackage b"));
}

void tst_RVSignedInstall::canceledWhileTheListIsRenewed()
{
    refresh();
    m_world->serve("a.deb", "evil");
    RVInstallProc procedure(m_repository->entries(), QString(), QString(), nullptr, m_world->paths);
    procedure.access = m_repository->access();
    int ends = 0;
    connect(&procedure, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), this, [&] {
        ++ends;
    });
    m_world->server.beforeAnswer = [&](const QByteArray &path) {
        if (path == "/r/SHA256SUMS.gpg") {
            procedure.cancel();
        }
    };
    QSignalSpy loads(m_repository->trust().data(), &RVTrust::finished);
    procedure.start();
    QTRY_COMPARE_WITH_TIMEOUT(loads.count(), 1, limitMs);
    QCOMPARE(ends, 1);
    QCOMPARE(m_world->requests("a.deb"), 1);
    m_world->server.beforeAnswer = nullptr;
}

void tst_RVSignedInstall::addImage()
{
    m_world->files.clear();
    m_world->list.sums.clear();
    for (const char *name : {"a.deb", "a.xml", "b.deb", "b.xml"}) {
        m_world->lose(name);
    }
    m_world->add("image.dd.gz", imageOf(3000000));
    m_world->add("image.xml", SignedWorld::descriptor("image", "<size>3000000</size>"));
    m_world->publish();
}

void tst_RVSignedInstall::image()
{
    addImage();
    refresh();
    QCOMPARE(m_repository->entries().size(), 1);
    install();
    QCOMPARE(m_signals, QStringList{QStringLiteral("finished 0")});
    QVERIFY(m_question.isAsked);
    QCOMPARE(m_installed, QByteArray("restarted\n"));
    QCOMPARE(m_world->requests("image.dd.gz"), 1);
}

void tst_RVSignedInstall::imageRefused_data()
{
    QTest::addColumn<Tamper>("tamper");
    QTest::addColumn<bool>("isTrust");
    const auto row = [](const char *name, bool isTrust, const Tamper &tamper) {
        QTest::newRow(name) << tamper << isTrust;
    };
    row("a byte changed", true, [](SignedWorld *world) {
        world->serve("image.dd.gz", imageOf(2999999) + 'j');
    });
    row("cut off", true, [](SignedWorld *world) {
        world->serve("image.dd.gz", imageOf(100));
    });
    row("gone", false, [](SignedWorld *world) {
        world->lose("image.dd.gz");
    });
    row("cut off by the line", false, [](SignedWorld *world) {
        world->server.serveRaw(QStringLiteral("/r/image.dd.gz"),
                               "HTTP/1.1 200 OK\r\nContent-Length: 3000000\r\n\r\niii");
    });
}

void tst_RVSignedInstall::imageRefused()
{
    QFETCH(Tamper, tamper);
    QFETCH(bool, isTrust);
    addImage();
    refresh();
    tamper(m_world.get());
    install();
    QCOMPARE(m_signals.constLast(), QStringLiteral("finished 1"));
    QCOMPARE(m_fault.isSet(), isTrust);
    QVERIFY(!m_question.isAsked);
    QCOMPARE(m_installed, QByteArray());
}

void tst_RVSignedInstall::imageIsNotReadWithoutAList()
{
    addImage();
    m_repository = m_world->repository({});
    m_repository->addFilter(QRegExp(QStringLiteral("\\.dd\\.gz$")),
                            QRegExp(QStringLiteral("\\.xml$")));
    QSignalSpy ends(m_repository.get(), &RVRepository::refreshEnded);
    m_repository->refresh();
    QTRY_COMPARE_WITH_TIMEOUT(ends.count(), 1, limitMs);
    install();
    QCOMPARE(m_installed, QByteArray("restarted\n"));
    QCOMPARE(m_world->requests("image.dd.gz"), 1);
    QCOMPARE(m_world->requests("image.dd.gz", "\r\nRange: bytes=0-15\r\n"), 1);
}

void tst_RVSignedInstall::localFolder()
{
    const QString folder = m_world->root.path() + QStringLiteral("/r/");
    for (auto file = m_world->files.cbegin(); file != m_world->files.cend(); ++file) {
        FakeRoot::write(folder + QString::fromLatin1(file.key()), file.value());
    }
    FakeRoot::write(folder + RVChecksums::fileName, m_world->list.toText());
    FakeRoot::write(folder + RVChecksums::signatureName,
                    m_keys->sign(m_world->list.toText(), {SignedWorld::publisher}));
    m_repository = m_world->repository(m_world->policy(), QUrl::fromLocalFile(folder));
    QSignalSpy ends(m_repository.get(), &RVRepository::refreshEnded);
    m_repository->refresh();
    QTRY_COMPARE_WITH_TIMEOUT(ends.count(), 1, limitMs);
    install();
    QCOMPARE(m_installed, QByteArray("package apackage b"));

    QVERIFY(QFile::remove(m_world->root.path() + QStringLiteral("/installed")));
    FakeRoot::write(folder + QStringLiteral("b.deb"), "evil");
    install();
    QCOMPARE(m_fault.kind, RVTrustFault::OtherFile);
    QCOMPARE(m_installed, QByteArray());
}

QTEST_GUILESS_MAIN(tst_RVSignedInstall)
#include "tst_RVSignedInstall.moc"

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "archive/ArchiveDDImage.h"
#include "archive/ImageQuestion.h"
#include "install/RVInstallProc.h"
#include "tests/support/FakeRoot.h"
#include "tests/support/LogFile.h"
#include "tests/support/WarningGuard.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QMap>
#include <QProcess>
#include <QProcessEnvironment>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <cctype>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

class Answer : public ImageQuestion
{
public:
    explicit Answer(bool confirmed)
        : m_confirmed(confirmed)
    {
    }
    bool confirmImageInstall() override
    {
        ++count;
        return m_confirmed;
    }
    int count = 0;

private:
    bool m_confirmed;
};

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
}

int mode(const QString &path)
{
    struct stat status = {};
    return ::stat(QFile::encodeName(path).constData(), &status) == 0
        ? static_cast<int>(status.st_mode & 07777U)
        : -1;
}

/// The "key=value" lines of the configuration.
QMap<QByteArray, QByteArray> keys(const QByteArray &configuration)
{
    QMap<QByteArray, QByteArray> result;
    for (const QByteArray &line : configuration.split('\n')) {
        const int equals = line.indexOf('=');
        if (equals > 0) {
            result.insert(line.left(equals), line.mid(equals + 1));
        }
    }
    return result;
}

} // namespace

class tst_ArchiveDDImage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void handlesUrlsByPath_data();
    void handlesUrlsByPath();
    void isNeverExtracted();
    void script_data();
    void script();
    void abortLeavesTheDevice_data();
    void abortLeavesTheDevice();
    void confirmedImageReboots();
    void earlierConfigurationBecomesPrivate_data();
    void earlierConfigurationBecomesPrivate();
    void autoUpdateDirectory_data();
    void autoUpdateDirectory();
    void directoryCannotBeMade_data();
    void directoryCannotBeMade();
    void failureLeavesTheDevice_data();
    void failureLeavesTheDevice();
    void fullDiskLeavesTheDevice_data();
    void fullDiskLeavesTheDevice();
    void leftoversAreNotPutBack();
    void orderIsReadBack_data();
    void orderIsReadBack();
    void urlArrivesUnchanged_data();
    void urlArrivesUnchanged();
    void controlCharacterIsRefused_data();
    void controlCharacterIsRefused();
    void proxyLine_data();
    void proxyLine();
    void scriptThatCannotBeWritten();
    void plantedScriptIsReplaced();
    void processGoneWhileAsking();
    void isAskedThroughTheProcedure_data();
    void isAskedThroughTheProcedure();

private:
    /// What could make a later restart deploy: the two files, and all that lies beside them.
    QMap<QString, QByteArray> orders() const;
    /// Stands before the program of the system for this test.
    void replaceTool(const QString &name, const QByteArray &script);
    /// Installs `url` with a yes below the private root, to the end; the exit code.
    int install(const QUrl &url, const QString &proxyHost = {}, int proxyPort = -1);
    QByteArray configuration() const
    {
        return contents(m_root->path() + QStringLiteral("/writable/CV/Snapstow.conf"));
    }
    QByteArray newImage() const
    {
        return contents(m_root->path() + QStringLiteral("/etc/auto-update/new_image"));
    }

    std::unique_ptr<LogFile> m_log;
    std::unique_ptr<WarningGuard> m_warnings;
    std::unique_ptr<FakeRoot> m_root;
    std::unique_ptr<QTemporaryDir> m_work;
    std::unique_ptr<QProcess> m_process;
    QByteArray m_searchPath;
    /// Of the last install().
    QString m_orderFault;
};

void tst_ArchiveDDImage::init()
{
    m_log = std::make_unique<LogFile>();
    m_warnings = std::make_unique<WarningGuard>();
    m_root = std::make_unique<FakeRoot>();
    const QString tool = m_root->paths().rebootTool;
    FakeRoot::write(tool,
                    "#!/bin/sh\n{ echo \"dir=$PWD\"; echo \"mask=$(umask)\"; env; } >'"
                        + m_root->path().toUtf8() + "/reboot.log'\necho rebooting\n");
    QFile::setPermissions(tool, QFile::Permissions(0x7755));
    m_work = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir::setCurrent(m_work->path()));
    m_process = std::make_unique<QProcess>();
    m_searchPath = qgetenv("PATH");
}

void tst_ArchiveDDImage::cleanup()
{
    qputenv("PATH", m_searchPath);
    QDir::setCurrent(QStringLiteral("/"));
    m_warnings.reset();
    m_process.reset();
    m_warnings.reset();
    m_log.reset();
}

QMap<QString, QByteArray> tst_ArchiveDDImage::orders() const
{
    QMap<QString, QByteArray> result;
    for (const char *folder : {"/writable/CV/", "/etc/auto-update/"}) {
        const QString path = m_root->path() + QLatin1String(folder);
        const QStringList names = QDir(path).entryList(QDir::AllEntries | QDir::Hidden
                                                       | QDir::System | QDir::NoDotAndDotDot);
        for (const QString &name : names) {
            result.insert(name,
                          QByteArray::number(mode(path + name), 8) + ' ' + contents(path + name));
        }
    }
    return result;
}

void tst_ArchiveDDImage::replaceTool(const QString &name, const QByteArray &script)
{
    const QString bin = m_root->path() + QStringLiteral("/bin");
    FakeRoot::write(bin + QLatin1Char('/') + name, script);
    QFile::setPermissions(bin + QLatin1Char('/') + name, QFile::Permissions(0x7755));
    qputenv("PATH", QFile::encodeName(bin) + ':' + m_searchPath);
}

int tst_ArchiveDDImage::install(const QUrl &url, const QString &proxyHost, int proxyPort)
{
    Answer yes(true);
    ArchiveDDImage image(url, nullptr, m_root->paths());
    image.setImageQuestion(&yes);
    image.setProxy(proxyHost, proxyPort);
    image.install(m_process.get());
    const int code = m_process->waitForFinished(10000) ? m_process->exitCode() : -1;
    m_orderFault = image.orderFault().english();
    return code;
}

void tst_ArchiveDDImage::handlesUrlsByPath_data()
{
    QTest::addColumn<QString>("url");
    QTest::addColumn<bool>("handled");
    QTest::newRow("image") << "http://h/x.dd.gz" << true;
    QTest::newRow("capital letters") << "http://h/image.DD.GZ" << true;
    QTest::newRow("query does not count") << "http://h/x.dd.gz?a=.deb" << true;
    QTest::newRow("in the query only") << "http://h/x?a=.dd.gz" << false;
    QTest::newRow("packed file") << "http://h/image.gz" << false;
    QTest::newRow("plain image") << "http://h/image.dd" << false;
    QTest::newRow("empty") << "" << false;
}

void tst_ArchiveDDImage::handlesUrlsByPath()
{
    QFETCH(QString, url);
    QTEST(ArchiveDDImage(QUrl(url)).urlIsHandled(), "handled");
}

void tst_ArchiveDDImage::isNeverExtracted()
{
    const ArchiveDDImage image(QUrl(QStringLiteral("http://h/x.dd.gz")));
    QVERIFY(!image.useExtract());
    bool thrown = false;
    try {
        image.extract(nullptr);
    } catch (ArchiveBaseClass::Exception_t exception) {
        thrown = true;
        QCOMPARE(static_cast<int>(exception), 2);
    }
    QVERIFY(thrown);
}

void tst_ArchiveDDImage::script_data()
{
    QTest::addColumn<QString>("url");
    QTest::addColumn<QString>("proxyHost");
    QTest::addColumn<int>("proxyPort");
    QTest::addColumn<QByteArray>("configuration");
    QTest::addColumn<QByteArray>("fileName");
    QTest::newRow("ftp with everything")
        << "ftp://u:p@h:2121/images/x.dd.gz"
        << "px" << 3128
        << QByteArray("remote-deploy.proto=ftp\nremote-deploy.host=h:2121\n"
                      "remote-deploy.user=u\nremote-deploy.pass=p\n"
                      "remote-deploy.path=/images/x.dd.gz\n"
                      "remote-deploy.proxy=ftp://px:3128\n")
        << QByteArray("x.dd.gz");
    QTest::newRow("http with everything")
        << "http://u:p@h:8080/images/x.dd.gz"
        << "px" << 3128
        << QByteArray("remote-deploy.proto=http\nremote-deploy.host=h:8080\n"
                      "remote-deploy.user=u\nremote-deploy.pass=p\n"
                      "remote-deploy.path=/images/x.dd.gz\n"
                      "remote-deploy.proxy=px:3128\n")
        << QByteArray("x.dd.gz");
    QTest::newRow("nothing but a path")
        << "http://h/x.dd.gz" << QString() << -1
        << QByteArray("remote-deploy.proto=http\nremote-deploy.host=h\nremote-deploy.user=\n"
                      "remote-deploy.pass=\nremote-deploy.path=/x.dd.gz\n")
        << QByteArray("x.dd.gz");
    QTest::newRow("blanks in the path")
        << "http://h/a b/c d.dd.gz" << QString() << -1
        << QByteArray("remote-deploy.proto=http\nremote-deploy.host=h\nremote-deploy.user=\n"
                      "remote-deploy.pass=\nremote-deploy.path=/a%20b/c%20d.dd.gz\n")
        << QByteArray("c d.dd.gz");
    QTest::newRow("port 0")
        << "http://h:0/x.dd.gz" << QString() << -1
        << QByteArray("remote-deploy.proto=http\nremote-deploy.host=h:0\nremote-deploy.user=\n"
                      "remote-deploy.pass=\nremote-deploy.path=/x.dd.gz\n")
        << QByteArray("x.dd.gz");
}

void tst_ArchiveDDImage::script()
{
    QFETCH(QString, url);
    QFETCH(QString, proxyHost);
    QFETCH(int, proxyPort);
    QFETCH(QByteArray, configuration);
    QFETCH(QByteArray, fileName);
    // The device's own paths: the only "bash" that can be found does nothing.
    const QString bin = m_work->filePath(QStringLiteral("bin"));
    FakeRoot::write(bin + QStringLiteral("/bash"), "#!/bin/sh\necho \"$#:$1\"\n");
    QFile::setPermissions(bin + QStringLiteral("/bash"), QFile::Permissions(0x7755));
    const QByteArray searchPath = qgetenv("PATH");
    qputenv("PATH", QFile::encodeName(bin));
    Answer yes(true);
    ArchiveDDImage image{QUrl(url)};
    image.setImageQuestion(&yes);
    image.setProxy(proxyHost, proxyPort);
    image.install(m_process.get());
    qputenv("PATH", searchPath);
    QVERIFY(m_process->waitForFinished(10000));

    QCOMPARE(m_process->program(), QStringLiteral("bash"));
    QCOMPARE(m_process->readAllStandardOutput(), QByteArray("1:./RVinstall.sh\n"));
    QCOMPARE(mode(QStringLiteral("RVinstall.sh")), 0700);
    const bool isLink = QFileInfo(QStringLiteral("/etc")).isSymLink()
        && QFileInfo(QStringLiteral("/writable")).isDir();
    const QByteArray autoUpdate = isLink ? "/writable/auto-update" : "/etc/auto-update";
    const QByteArray expected = R"(#!/bin/bash
changed=()
put_aside() {
    rm -f "$1.ravel" || exit 1
    if [ -e "$1" ] || [ -L "$1" ]; then
        mv "$1" "$1.ravel" || exit 1
    fi
    changed+=("$1")
}
put_back() {
    for file in "${changed[@]}"; do
        mv -f "$file.ravel" "$file" 2>/dev/null || rm -f "$file"
    done
}
trap put_back EXIT
mkdir -p /writable/CV
if ! cd /writable/CV; then
    echo 'Could not mkdir /writable/CV!' >&2
    exit 1
fi
put_aside "$PWD/Snapstow.conf"
install -m 600 /dev/null Snapstow.conf || exit 1
cat >Snapstow.conf <<EOF
[General]
autostart=remote-deploy
CONFIGURATION
EOF
[ $? -eq 0 ] || exit 1
mkdir -p AUTOUPDATE
if ! cd AUTOUPDATE; then
  echo 'Could not mkdir AUTOUPDATE' >&2
  exit 1
fi
put_aside "$PWD/new_image"
echo 'IMAGE' >new_image
[ $? -eq 0 ] && sync "${changed[@]}" || exit 1
cd /
trap - EXIT
/usr/sbin/cvtc-ts-reboot
status=$?
if [ $status -ne 0 ]; then
    put_back
    echo 'The restart failed.' >&2
    exit $status
fi
rm -f "${changed[@]/%/.ravel}"
)";
    QCOMPARE(contents(QStringLiteral("RVinstall.sh")),
             QByteArray(expected)
                 .replace("CONFIGURATION\n", configuration)
                 .replace("AUTOUPDATE", autoUpdate)
                 .replace("IMAGE", fileName));
}

void tst_ArchiveDDImage::abortLeavesTheDevice_data()
{
    QTest::addColumn<bool>("isAsked");
    QTest::newRow("the answer is no") << true;
    QTest::newRow("nobody to ask") << false;
}

void tst_ArchiveDDImage::abortLeavesTheDevice()
{
    QFETCH(bool, isAsked);
    Answer no(false);
    ArchiveDDImage image(QUrl(QStringLiteral("http://u:secret@h/x.dd.gz")), nullptr,
                         m_root->paths());
    image.setImageQuestion(isAsked ? &no : nullptr);
    QSignalSpy started(&image, &ArchiveBaseClass::installStarted);
    image.install(m_process.get());
    QVERIFY(m_process->waitForFinished(10000));
    QCOMPARE(m_process->program(), QStringLiteral("/bin/true"));
    QCOMPARE(m_process->arguments(), QStringList());
    QCOMPARE(m_process->exitStatus(), QProcess::NormalExit);
    QCOMPARE(m_process->exitCode(), 0);
    QCOMPARE(started.count(), 0);
    QCOMPARE(no.count, isAsked ? 1 : 0);
    QVERIFY(!QFile::exists(QStringLiteral("RVinstall.sh")));
    QCOMPARE(
        m_log->lines(),
        (QStringList{QStringLiteral("Preparing for image installation of 'http://u@h/x.dd.gz'"),
                     QStringLiteral("Image installation aborted by user.")}));
}

void tst_ArchiveDDImage::confirmedImageReboots()
{
    Answer yes(true);
    ArchiveDDImage image(QUrl(QStringLiteral("http://u:p@h/dir/x.dd.gz")), nullptr,
                         m_root->paths());
    image.setImageQuestion(&yes);
    QSignalSpy started(&image, &ArchiveBaseClass::installStarted);
    image.install(m_process.get());
    QCOMPARE(started.count(), 1);
    QVERIFY(m_process->waitForFinished(10000));
    QCOMPARE(m_process->exitCode(), 0);
    QCOMPARE(m_process->readAllStandardOutput(), QByteArray("rebooting\n"));
    QCOMPARE(m_process->readAllStandardError(), QByteArray());
    QCOMPARE(configuration(),
             QByteArray("[General]\nautostart=remote-deploy\nremote-deploy.proto=http\n"
                        "remote-deploy.host=h\nremote-deploy.user=u\nremote-deploy.pass=p\n"
                        "remote-deploy.path=/dir/x.dd.gz\n"));
    QCOMPARE(newImage(), QByteArray("x.dd.gz\n"));
    const auto recorded = keys(contents(m_root->path() + QStringLiteral("/reboot.log")));
    QCOMPARE(recorded.value("dir"), QByteArray("/"));
    QCOMPARE(mode(m_root->path() + QStringLiteral("/writable/CV/Snapstow.conf")), 0600);
    // Only the file is private: the folders are the device's.
    const mode_t mask = ::umask(022);
    ::umask(mask);
    for (const char *folder : {"/writable/CV", "/etc/auto-update"}) {
        QCOMPARE(mode(m_root->path() + QLatin1String(folder)), int(0777 & ~mask));
    }
    QCOMPARE(m_log->lines(),
             QStringList(
                 QStringLiteral("Preparing for image installation of 'http://u@h/dir/x.dd.gz'")));
}

void tst_ArchiveDDImage::earlierConfigurationBecomesPrivate_data()
{
    QTest::addColumn<bool>("isLink");
    QTest::newRow("open to all") << false;
    QTest::newRow("a link") << true;
}

void tst_ArchiveDDImage::earlierConfigurationBecomesPrivate()
{
    QFETCH(bool, isLink);
    const QString file = m_root->path() + QStringLiteral("/writable/CV/Snapstow.conf");
    const QString victim = m_root->path() + QStringLiteral("/victim");
    FakeRoot::write(victim, "untouched");
    if (isLink) {
        QVERIFY(QDir().mkpath(QFileInfo(file).path()));
        QVERIFY(QFile::link(victim, file));
    } else {
        FakeRoot::write(file, "old");
        QVERIFY(QFile::setPermissions(file, QFile::Permissions(0x6644)));
    }
    QCOMPARE(install(QUrl(QStringLiteral("http://u:p@h/x.dd.gz"))), 0);
    QVERIFY(configuration().contains("remote-deploy.pass=p\n"));
    QVERIFY(!QFileInfo(file).isSymLink());
    QCOMPARE(mode(file), 0600);
    QCOMPARE(contents(victim), QByteArray("untouched"));
}

void tst_ArchiveDDImage::autoUpdateDirectory_data()
{
    QTest::addColumn<bool>("isEtcLink");
    QTest::addColumn<bool>("isWritableThere");
    QTest::addColumn<QString>("directory");
    QTest::newRow("plain etc") << false << false << "/etc/auto-update";
    QTest::newRow("plain etc, writable there") << false << true << "/etc/auto-update";
    QTest::newRow("etc is a link") << true << true << "/writable/auto-update";
    QTest::newRow("etc is a link, no writable") << true << false << "/etc/auto-update";
}

void tst_ArchiveDDImage::autoUpdateDirectory()
{
    QFETCH(bool, isEtcLink);
    QFETCH(bool, isWritableThere);
    QFETCH(QString, directory);
    const QString root = m_root->path();
    if (isEtcLink) {
        QVERIFY(QDir().rename(root + QStringLiteral("/etc"), root + QStringLiteral("/etc.real")));
        QVERIFY(QFile::link(QStringLiteral("etc.real"), root + QStringLiteral("/etc")));
    }
    if (isWritableThere) {
        QVERIFY(QDir().mkpath(root + QStringLiteral("/writable")));
    }
    QCOMPARE(install(QUrl(QStringLiteral("http://h/x.dd.gz"))), 0);
    QCOMPARE(contents(root + directory + QStringLiteral("/new_image")), QByteArray("x.dd.gz\n"));
    QCOMPARE(QFile::exists(root + QStringLiteral("/writable/auto-update")),
             directory.startsWith(QLatin1String("/writable")));
}

void tst_ArchiveDDImage::directoryCannotBeMade_data()
{
    QTest::addColumn<QString>("obstacle");
    QTest::addColumn<QString>("message");
    QTest::newRow("configuration") << "/writable"
                                   << "Could not mkdir %1/writable/CV!";
    QTest::newRow("auto-update") << "/etc/auto-update"
                                 << "Could not mkdir %1/etc/auto-update";
}

void tst_ArchiveDDImage::directoryCannotBeMade()
{
    QFETCH(QString, obstacle);
    QFETCH(QString, message);
    FakeRoot::write(m_root->path() + obstacle, "a file");
    QCOMPARE(install(QUrl(QStringLiteral("http://h/x.dd.gz"))), 1);
    const QStringList lines =
        QString::fromUtf8(m_process->readAllStandardError()).split(QLatin1Char('\n'));
    QVERIFY2(lines.contains(message.arg(m_root->path())),
             qPrintable(lines.join(QLatin1Char('\n'))));
    QVERIFY(!QFile::exists(m_root->path() + QStringLiteral("/reboot.log")));
}

void tst_ArchiveDDImage::failureLeavesTheDevice_data()
{
    QTest::addColumn<QByteArray>("restart");
    QTest::addColumn<QString>("tool");
    QTest::addColumn<QByteArray>("replacement");
    QTest::addColumn<bool>("wasThere");
    QTest::addColumn<int>("exitCode");
    const auto add = [](const char *name, const QByteArray &restart, const QString &tool,
                        const QByteArray &replacement, int exitCode) {
        for (const bool wasThere : {true, false}) {
            QTest::addRow("%s, %s", name, wasThere ? "files of before" : "nothing before")
                << restart << tool << replacement << wasThere << exitCode;
        }
    };
    add("the restart fails", "exit 3", {}, {}, 3);
    add("the restart is killed", "kill -9 $$", {}, {}, 128 + 9);
    add("there is no restart", {}, {}, {}, 127);
    add("the configuration cannot be written", "exit 0", QStringLiteral("cat"),
        "#!/bin/sh\necho half\nexit 1\n", 1);
    add("the disk fails late", "exit 0", QStringLiteral("sync"), "#!/bin/sh\nexit 1\n", 1);
    add("ended on the way", "exit 0", QStringLiteral("sync"), "#!/bin/sh\nkill $PPID\n", 128 + 15);
}

void tst_ArchiveDDImage::failureLeavesTheDevice()
{
    QFETCH(QByteArray, restart);
    QFETCH(QString, tool);
    QFETCH(QByteArray, replacement);
    QFETCH(bool, wasThere);
    QFETCH(int, exitCode);
    const QString restartTool = m_root->paths().rebootTool;
    const QString log = m_root->path() + QStringLiteral("/reboot.log");
    const bool runsRestart = tool.isEmpty() && !restart.isEmpty();
    if (restart.isEmpty()) {
        QVERIFY(QFile::remove(restartTool));
    } else {
        FakeRoot::write(restartTool, "#!/bin/sh\ntouch '" + log.toUtf8() + "'\n" + restart + '\n');
    }
    if (!tool.isEmpty()) {
        replaceTool(tool, replacement);
    }
    if (wasThere) {
        const QString earlier = m_root->path() + QStringLiteral("/writable/CV/Snapstow.conf");
        FakeRoot::write(earlier, "an earlier order");
        QVERIFY(QFile::setPermissions(earlier, QFile::Permissions(0x6640)));
        FakeRoot::write(m_root->path() + QStringLiteral("/etc/auto-update/new_image"), "earlier");
    }
    const auto before = orders();
    QCOMPARE(before.size(), wasThere ? 2 : 0);
    const QUrl url(QStringLiteral("http://h/x.dd.gz"));
    const int code = install(url);
    QCOMPARE(m_process->exitStatus() == QProcess::CrashExit ? code + 128 : code, exitCode);
    QCOMPARE(orders(), before);
    QCOMPARE(QFile::exists(log), runsRestart);

    // Nothing of it is in the way of the next one.
    qputenv("PATH", m_searchPath);
    FakeRoot::write(restartTool, "#!/bin/sh\nexit 0\n");
    QVERIFY(QFile::setPermissions(restartTool, QFile::Permissions(0x7755)));
    QCOMPARE(install(url), 0);
    QCOMPARE(newImage(), QByteArray("x.dd.gz\n"));
    QCOMPARE(orders().size(), 2);
}

void tst_ArchiveDDImage::fullDiskLeavesTheDevice_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<bool>("isReadOnly");
    QTest::addColumn<bool>("wasThere");
    for (const char *folder : {"/writable/CV", "/etc/auto-update"}) {
        for (const bool isReadOnly : {false, true}) {
            for (const bool wasThere : {true, false}) {
                QTest::addRow("%s %s, %s", folder, isReadOnly ? "read-only" : "full",
                              wasThere ? "files of before" : "nothing before")
                    << folder << isReadOnly << wasThere;
            }
        }
    }
}

void tst_ArchiveDDImage::fullDiskLeavesTheDevice()
{
    QFETCH(QString, folder);
    QFETCH(bool, isReadOnly);
    QFETCH(bool, wasThere);
    if (::geteuid() != 0 || ::unshare(CLONE_NEWNS) != 0
        || ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0) {
        QSKIP("mounting is not allowed here");
    }
    const QString path = m_root->path() + folder;
    const QByteArray place = QFile::encodeName(path);
    QVERIFY(QDir().mkpath(path));
    QCOMPARE(::mount("tmpfs", place.constData(), "tmpfs", 0, "size=64k"), 0);
    const auto unmount = qScopeGuard([&] {
        ::umount2(place.constData(), MNT_DETACH);
    });
    if (wasThere) {
        FakeRoot::write(m_root->path() + QStringLiteral("/writable/CV/Snapstow.conf"), "earlier");
        FakeRoot::write(m_root->path() + QStringLiteral("/etc/auto-update/new_image"), "earlier");
    }
    if (isReadOnly) {
        QCOMPARE(::mount("tmpfs", place.constData(), "tmpfs", MS_REMOUNT | MS_RDONLY, nullptr), 0);
    } else {
        QFile filler(path + QStringLiteral("/filler"));
        QVERIFY(filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        while (filler.write(QByteArray(4096, 'x')) == 4096) { }
    }
    const auto before = orders();
    QCOMPARE(install(QUrl(QStringLiteral("http://h/x.dd.gz"))), 1);
    QVERIFY(!m_process->readAllStandardError().isEmpty());
    QCOMPARE(orders(), before);
    QVERIFY(!QFile::exists(m_root->path() + QStringLiteral("/reboot.log")));
}

void tst_ArchiveDDImage::leftoversAreNotPutBack()
{
    // Of a run that was killed, or whose restart came before its end.
    const QString file = m_root->path() + QStringLiteral("/writable/CV/Snapstow.conf");
    FakeRoot::write(file + QStringLiteral(".ravel"), "older");
    FakeRoot::write(m_root->paths().rebootTool, "#!/bin/sh\nexit 1\n");
    QCOMPARE(install(QUrl(QStringLiteral("http://h/x.dd.gz"))), 1);
    const QMap<QString, QByteArray> none;
    QCOMPARE(orders(), none);
}

void tst_ArchiveDDImage::orderIsReadBack_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("change");
    QTest::addColumn<QString>("fault");
    for (const char *file : {"/writable/CV/Snapstow.conf", "/etc/auto-update/new_image"}) {
        const auto add = [file](const char *name, const QByteArray &change, const char *fault) {
            QTest::addRow("%s %s", file, name) << file << change << fault;
        };
        const char differs[] = "%1 does not hold what was written to it.";
        add("whole", "true", "");
        add("emptied", ": >\"$1\"", differs);
        add("cut off", "truncate -s -1 \"$1\"", differs);
        add("longer", "echo more >>\"$1\"", differs);
        add("another order", "printf %s other >\"$1\"", differs);
        add("gone", "rm \"$1\"", "%1 cannot be read back: No such file or directory");
        add("a pipe", "rm \"$1\" && mkfifo \"$1\"", "%1 cannot be read back: Not a regular file");
        add("a folder", "rm \"$1\" && mkdir \"$1\"", "%1 cannot be read back: Is a directory");
    }
}

void tst_ArchiveDDImage::orderIsReadBack()
{
    QFETCH(QString, file);
    QFETCH(QByteArray, change);
    QFETCH(QString, fault);
    const QString path = m_root->path() + file;
    FakeRoot::write(m_root->paths().rebootTool,
                    "#!/bin/sh\nset -- '" + path.toUtf8() + "'\n" + change + '\n');
    QCOMPARE(
        install(QUrl(QStringLiteral("http://u:$p%60@h/x%20y.dd.gz")), QStringLiteral("px"), 3128),
        0);
    QCOMPARE(m_orderFault, fault.isEmpty() ? QString() : fault.arg(path));
    QVERIFY(!m_orderFault.contains(QLatin1String("$p")));
}

void tst_ArchiveDDImage::urlArrivesUnchanged_data()
{
    QTest::addColumn<QUrl>("url");
    const auto add = [](const char *name, const QString &text) {
        QUrl url;
        url.setScheme(QStringLiteral("ftp"));
        url.setHost(QStringLiteral("h.example"));
        url.setUserName(text, QUrl::DecodedMode);
        url.setPassword(text, QUrl::DecodedMode);
        url.setPath(QStringLiteral("/") + text + QStringLiteral("/x") + text
                        + QStringLiteral("y.dd.gz"),
                    QUrl::DecodedMode);
        QTest::newRow(name) << url;
    };
    for (char c = '!'; c <= '~'; ++c) {
        if (std::ispunct(static_cast<unsigned char>(c)) != 0) {
            add(qPrintable(QStringLiteral("character ") + QLatin1Char(c)), QString(QLatin1Char(c)));
        }
    }
    add("nothing", QString());
    add("blank", QStringLiteral(" "));
    add("blanks at both ends", QStringLiteral("  a  "));
    add("Latin letters", QStringLiteral("\u00e4\u00f6\u00fc\u00df"));
    add("other scripts", QStringLiteral("\u65e5\u672c \u05e9\u05dc\u05d5\u05dd"));
    add("beyond the basic plane", QString::fromUtf8("\xf0\x9f\x98\x80"));
    add("end mark", QStringLiteral("EOF"));
    add("placeholders", QStringLiteral("%1%2%%"));
    add("command substitution", QStringLiteral("$(touch pwned)"));
    add("backquotes", QStringLiteral("`touch pwned`"));
    add("end of the quotes", QStringLiteral("';touch pwned;'"));
    add("variable", QStringLiteral("$HOME${PATH}pa$$word"));
    add("backslashes", QStringLiteral("\\\\$(touch pwned)\\n\\'"));
    add("option", QStringLiteral("-n"));
    add("history", QStringLiteral("!!"));
    add("encoded line feed in words", QStringLiteral("%0A"));
    QTest::newRow("blank, encoded") << QUrl(QStringLiteral("http://h/a%20b.dd.gz"));
    QTest::newRow("lone percent sign") << QUrl(QStringLiteral("http://h/100%.dd.gz"));
    QTest::newRow("slash, encoded") << QUrl(QStringLiteral("http://h/a%2Fb.dd.gz"));
    QTest::newRow("not UTF-8") << QUrl(QStringLiteral("http://h/%E4.dd.gz"));
    QTest::newRow("international host")
        << QUrl(QStringLiteral("http://m\u00fcller.example/x.dd.gz"));
    QTest::newRow("local file") << QUrl(QStringLiteral("file:///dir/x.dd.gz"));
    QTest::newRow("relative") << QUrl(QStringLiteral("dir/x.dd.gz"));
    QTest::newRow("user without password") << QUrl(QStringLiteral("http://u@h/x.dd.gz"));
    QTest::newRow("name is the suffix") << QUrl(QStringLiteral("http://h/.dd.gz"));
}

void tst_ArchiveDDImage::urlArrivesUnchanged()
{
    QFETCH(QUrl, url);
    QVERIFY(url.isValid());
    QCOMPARE(install(url), 0);
    QCOMPARE(m_process->readAllStandardError(), QByteArray());
    const auto found = keys(configuration());
    QCOMPARE(found.value("remote-deploy.proto"), url.scheme().toUtf8());
    QCOMPARE(found.value("remote-deploy.host"), url.host(QUrl::FullyEncoded).toUtf8());
    QCOMPARE(found.value("remote-deploy.user"), url.userName(QUrl::FullyEncoded).toUtf8());
    QCOMPARE(found.value("remote-deploy.pass"), url.password(QUrl::FullyEncoded).toUtf8());
    QCOMPARE(found.value("remote-deploy.path"), url.path(QUrl::FullyEncoded).toUtf8());
    QCOMPARE(QByteArray::fromPercentEncoding(found.value("remote-deploy.pass")),
             url.password(QUrl::FullyDecoded).toUtf8());
    QCOMPARE(newImage(),
             url.path(QUrl::FullyDecoded).section(QLatin1Char('/'), -1).toUtf8() + '\n');
    QCOMPARE(configuration().count('\n'), 7);
    QCOMPARE(m_orderFault, QString());

    // Nothing but what the script says, wherever a foreign command could have left its mark.
    const QStringList none;
    QCOMPARE(m_work->isValid() ? QDir(m_work->path()).entryList(QDir::Files) : none,
             QStringList(QStringLiteral("RVinstall.sh")));
    QCOMPARE(QDir(m_root->path() + QStringLiteral("/writable/CV")).entryList(QDir::Files),
             QStringList(QStringLiteral("Snapstow.conf")));
    QCOMPARE(QDir(m_root->path() + QStringLiteral("/etc/auto-update")).entryList(QDir::Files),
             QStringList(QStringLiteral("new_image")));
    QVERIFY(!QFile::exists(QStringLiteral("/pwned")));
}

void tst_ArchiveDDImage::controlCharacterIsRefused_data()
{
    QTest::addColumn<QString>("url");
    QTest::newRow("line feed") << "http://h/a%0Ab.dd.gz";
    QTest::newRow("carriage return") << "http://h/a%0Db.dd.gz";
    QTest::newRow("NUL") << "http://h/a%00b.dd.gz";
    QTest::newRow("escape") << "http://h/a%1B[2Jb.dd.gz";
    QTest::newRow("delete") << "http://h/a%7Fb.dd.gz";
    QTest::newRow("control of the second set") << "http://h/a%C2%85b.dd.gz";
}

void tst_ArchiveDDImage::controlCharacterIsRefused()
{
    QFETCH(QString, url);
    Answer yes(true);
    ArchiveDDImage image(QUrl(url), nullptr, m_root->paths());
    image.setImageQuestion(&yes);
    QSignalSpy started(&image, &ArchiveBaseClass::installStarted);
    image.install(m_process.get());
    QVERIFY(m_process->waitForFinished(10000));
    QCOMPARE(m_process->exitCode(), 1);
    QCOMPARE(m_process->readAllStandardError(),
             QByteArray("The image's file name holds a control character\n"));
    QCOMPARE(started.count(), 0);
    QCOMPARE(yes.count, 0);
    QVERIFY(!QFile::exists(QStringLiteral("RVinstall.sh")));
    QVERIFY(!QFile::exists(m_root->path() + QStringLiteral("/reboot.log")));
    QVERIFY(m_log->contains(QStringLiteral("The image's file name holds a control character")));
}

void tst_ArchiveDDImage::proxyLine_data()
{
    QTest::addColumn<QString>("host");
    QTest::addColumn<int>("port");
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<bool>("isLogged");
    QTest::newRow("host name") << "px.example" << 3128 << QByteArray("px.example:3128") << false;
    QTest::newRow("address") << "10.0.0.1" << 1 << QByteArray("10.0.0.1:1") << false;
    QTest::newRow("IPv6 address") << "fe80::1" << 80 << QByteArray("[fe80::1]:80") << false;
    QTest::newRow("IPv6 address in brackets")
        << "[fe80::1]" << 80 << QByteArray("[fe80::1]:80") << false;
    QTest::newRow("underscore") << "px_1" << 80 << QByteArray("px_1:80") << false;
    QTest::newRow("port 0") << "px" << 0 << QByteArray() << false;
    QTest::newRow("port unset") << "px" << -1 << QByteArray() << false;
    QTest::newRow("no host") << QString() << 3128 << QByteArray() << false;
    QTest::newRow("command") << "$(touch pwned)" << 80 << QByteArray() << true;
    QTest::newRow("backquotes") << "`id`" << 80 << QByteArray() << true;
    QTest::newRow("line feed") << "px\nEOF" << 80 << QByteArray() << true;
    QTest::newRow("blank") << "p x" << 80 << QByteArray() << true;
    QTest::newRow("URL") << "http://px" << 80 << QByteArray() << true;
    QTest::newRow("user") << "u@px" << 80 << QByteArray() << true;
    QTest::newRow("bracket alone") << "[px" << 80 << QByteArray() << true;
}

void tst_ArchiveDDImage::proxyLine()
{
    QFETCH(QString, host);
    QFETCH(int, port);
    QFETCH(QByteArray, line);
    QCOMPARE(install(QUrl(QStringLiteral("http://h/x.dd.gz")), host, port), 0);
    QCOMPARE(keys(configuration()).value("remote-deploy.proxy"), line);
    QCOMPARE(m_orderFault, QString());
    QCOMPARE(configuration().contains("proxy="), !line.isEmpty());
    QFETCH(bool, isLogged);
    QCOMPARE(
        QString::fromUtf8(m_log->raw())
            .contains(QStringLiteral("The proxy '%1' is no host name and is left out").arg(host)),
        isLogged);
}

void tst_ArchiveDDImage::scriptThatCannotBeWritten()
{
    QVERIFY(QDir().mkpath(QStringLiteral("RVinstall.sh/full")));
    QCOMPARE(install(QUrl(QStringLiteral("http://h/x.dd.gz"))), 1);
    QVERIFY(m_process->readAllStandardError().startsWith("Could not write ./RVinstall.sh: "));
    QVERIFY(!QFile::exists(m_root->path() + QStringLiteral("/reboot.log")));
}

void tst_ArchiveDDImage::plantedScriptIsReplaced()
{
    const QString victim = m_root->path() + QStringLiteral("/victim");
    FakeRoot::write(victim, "untouched");
    QVERIFY(QFile::link(victim, QStringLiteral("RVinstall.sh")));
    QCOMPARE(install(QUrl(QStringLiteral("http://h/x.dd.gz"))), 0);
    QCOMPARE(contents(victim), QByteArray("untouched"));
    QVERIFY(!QFileInfo(QStringLiteral("RVinstall.sh")).isSymLink());
    QCOMPARE(mode(QStringLiteral("RVinstall.sh")), 0700);
}

void tst_ArchiveDDImage::processGoneWhileAsking()
{
    class Leave : public ImageQuestion
    {
    public:
        explicit Leave(std::unique_ptr<QProcess> *process)
            : m_process(process)
        {
        }
        bool confirmImageInstall() override
        {
            m_process->reset();
            return true;
        }

    private:
        std::unique_ptr<QProcess> *m_process;
    };
    Leave leave(&m_process);
    ArchiveDDImage image(QUrl(QStringLiteral("http://h/x.dd.gz")), nullptr, m_root->paths());
    image.setImageQuestion(&leave);
    QSignalSpy started(&image, &ArchiveBaseClass::installStarted);
    image.install(m_process.get());
    QCOMPARE(started.count(), 0);
    QVERIFY(!QFile::exists(QStringLiteral("RVinstall.sh")));
}

void tst_ArchiveDDImage::isAskedThroughTheProcedure_data()
{
    QTest::addColumn<bool>("confirmed");
    QTest::newRow("yes") << true;
    QTest::newRow("no") << false;
}

void tst_ArchiveDDImage::isAskedThroughTheProcedure()
{
    QFETCH(bool, confirmed);
    const QString file = m_root->path() + QStringLiteral("/x.dd.gz");
    FakeRoot::write(file, QByteArray("\x1f\x8b\x08", 3) + QByteArray(20, 'i'));
    Answer answer(confirmed);
    {
        const RVData entry(QUrl::fromLocalFile(file), QUrl(QStringLiteral("http://h/x.xml")),
                           nullptr, m_root->paths());
        QBuffer descriptor;
        descriptor.setData("<update_data><name>tc-system</name><version>6&lt;7</version>"
                           "</update_data>");
        QVERIFY(entry.descriptor()->read(&descriptor));
        RVInstallProc procedure(entry, nullptr, m_root->paths());
        procedure.imageQuestion = &answer;
        QSignalSpy started(&procedure, &RVInstallProc::installStarted);
        qRegisterMetaType<QProcess::ExitStatus>();
        QSignalSpy finished(&procedure, qOverload<int, QProcess::ExitStatus>(&QProcess::finished));
        procedure.start();
        QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, 10000);
        QCOMPARE(procedure.exitCode(), 0);
        QCOMPARE(started.count(), confirmed ? 1 : 0);
        QCOMPARE(procedure.isDeclined(), !confirmed);
        QVERIFY(entry.archive()->orderFault().isEmpty() == confirmed);
    }
    QCOMPARE(answer.count, 1);
    QCOMPARE(answer.name, QStringLiteral("tc-system"));
    QCOMPARE(answer.version, QStringLiteral("6<7"));
    QVERIFY(!answer.isChecked);
    QVERIFY(answer.certificateWarning.isEmpty());
    QCOMPARE(QFile::exists(m_root->path() + QStringLiteral("/reboot.log")), confirmed);
}

QTEST_GUILESS_MAIN(tst_ArchiveDDImage)
#include "tst_ArchiveDDImage.moc"

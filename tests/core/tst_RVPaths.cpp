// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/RVPaths.h"
#include "tests/support/FakeRoot.h"
#include "tests/support/OrdinaryUser.h"

#include <QDir>
#include <QTest>

#include <unistd.h>

class tst_RVPaths : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void paths_data();
    void paths();
    void packageDatabase();
    void installerEnvironment();
    void stateFolder();
    void runFolder();
};

using Field = QString RVPaths::*;
Q_DECLARE_METATYPE(Field)

void tst_RVPaths::paths_data()
{
    QTest::addColumn<Field>("field");
    QTest::addColumn<QString>("onTheDevice");
    QTest::addColumn<bool>("moves");

    const auto row = [](const char *name, Field field, const char *path, bool moves) {
        QTest::newRow(name) << field << QString::fromLatin1(path) << moves;
    };
    row("image identification", &RVPaths::imageId, "/etc/imageid", true);
    row("service packs", &RVPaths::servicePackDir, "/etc/service-packs", true);
    row("hardware tool", &RVPaths::hardwareTool, "/usr/bin/cvtc-hwsw-id", true);
    row("definition files", &RVPaths::definitionDir, "/etc/cvtc-ravel/repositories", true);
    row("package database", &RVPaths::packageDatabase, "/var/lib/dpkg", true);
    row("root's log", &RVPaths::rootLog, "/var/log/Ravel.log", true);
    row("a user's log", &RVPaths::userLog, "/tmp/Ravel.log", true);
    row("xar installer", &RVPaths::xarInstaller, "/usr/sbin/xarinstall", true);
    row("reboot tool", &RVPaths::rebootTool, "/usr/sbin/cvtc-ts-reboot", true);
    row("configuration", &RVPaths::etcDir, "/etc", true);
    row("mark of a read-only system", &RVPaths::writableDir, "/writable", true);
    row("keyrings", &RVPaths::keyringDir, "/etc/cvtc-ravel/keys", true);
    row("root's state", &RVPaths::stateDir, "/var/lib/ravel", true);
    row("root's state on a read-only system", &RVPaths::writableStateDir, "/writable/ravel", true);
    row("root's running installation", &RVPaths::runDir, "/run/ravel", true);
    row("gpgv", &RVPaths::signatureTool, "/usr/bin/gpgv", false);
    row("shell", &RVPaths::shell, "/bin/bash", false);
    row("true", &RVPaths::trueTool, "/bin/true", false);
    row("icons", &RVPaths::iconDir, "/usr/share/icons/Rodent/scalable/stock", false);
}

void tst_RVPaths::paths()
{
    QFETCH(Field, field);
    QFETCH(QString, onTheDevice);
    QFETCH(bool, moves);
    QCOMPARE(RVPaths().*field, onTheDevice);
    QCOMPARE(RVPaths::under(QStringLiteral("/srv/a b")).*field,
             moves ? QStringLiteral("/srv/a b") + onTheDevice : onTheDevice);
}

void tst_RVPaths::packageDatabase()
{
    QCOMPARE(RVPaths().packageStatus, QString());
    QCOMPARE(RVPaths::under(QStringLiteral("/srv/x")).packageStatus,
             QStringLiteral("/srv/x/var/lib/dpkg/status"));
}

void tst_RVPaths::installerEnvironment()
{
    QCOMPARE(RVPaths().installerEnvironment, QStringList());
    const QStringList expected{QStringLiteral("DPKG_ROOT=/srv/x"),
                               QStringLiteral("DPKG_FORCE=not-root,script-chrootless,bad-path")};
    QCOMPARE(RVPaths::under(QStringLiteral("/srv/x")).installerEnvironment, expected);
}

void tst_RVPaths::stateFolder()
{
    const bool isRoot = ::geteuid() == 0;
    const FakeRoot root;
    const RVPaths &paths = root.paths();
    QCOMPARE(paths.stateFolder(),
             root.path() + QLatin1String(isRoot ? "/var/lib/ravel" : "/.local/state/ravel"));
    QVERIFY(QDir().mkpath(paths.writableDir + QStringLiteral("/etc")));
    QCOMPARE(paths.stateFolder().contains(QStringLiteral("writable")), false);
    QVERIFY(QDir().rename(paths.etcDir, paths.etcDir + QStringLiteral(".real")));
    QVERIFY(QFile::link(paths.etcDir + QStringLiteral(".real"), paths.etcDir));
    QCOMPARE(paths.stateFolder(),
             root.path() + QLatin1String(isRoot ? "/writable/ravel" : "/.local/state/ravel"));

    const QString check = OrdinaryUser::run(QStringLiteral("/"), []() -> QString {
        qputenv("XDG_STATE_HOME", "/srv/state");
        const QString given = RVPaths().stateFolder();
        qputenv("XDG_STATE_HOME", "relative");
        qputenv("HOME", "/home/somebody");
        return given + QLatin1Char(' ') + RVPaths().stateFolder();
    });
    QCOMPARE(check, QStringLiteral("/srv/state/ravel /home/somebody/.local/state/ravel"));
}

void tst_RVPaths::runFolder()
{
    const FakeRoot root;
    QCOMPARE(root.paths().runFolder(),
             root.path()
                 + QLatin1String(::geteuid() == 0 ? "/run/ravel" : "/.local/state/ravel/run"));
    const QString check = OrdinaryUser::run(QStringLiteral("/"), []() -> QString {
        qputenv("XDG_STATE_HOME", "/srv/state");
        qputenv("XDG_RUNTIME_DIR", "/run/user/7");
        const QString given = RVPaths().runFolder();
        qputenv("XDG_RUNTIME_DIR", "relative");
        return given + QLatin1Char(' ') + RVPaths().runFolder();
    });
    QCOMPARE(check, QStringLiteral("/run/user/7/ravel /srv/state/ravel/run"));
}

QTEST_APPLESS_MAIN(tst_RVPaths)
#include "tst_RVPaths.moc"

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/RVPaths.h"

#include <QTest>

class tst_RVPaths : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void paths_data();
    void paths();
    void packageDatabase();
    void installerEnvironment();
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

QTEST_APPLESS_MAIN(tst_RVPaths)
#include "tst_RVPaths.moc"

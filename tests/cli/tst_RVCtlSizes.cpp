// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/support/FakeRoot.h"

#include <QProcess>
#include <QtTest>

#include <limits>

namespace
{

constexpr int timeout = 60000;

QByteArray element(const char *name, qint64 size)
{
    return QByteArray("<") + name + '>' + QByteArray::number(size) + "</" + name + '>';
}

} // namespace

/// Updates that announce the largest size there is: their sum is no small one.
class tst_RVCtlSizes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sumsSaturate_data();
    void sumsSaturate();
};

void tst_RVCtlSizes::sumsSaturate_data()
{
    QTest::addColumn<int>("updates");
    QTest::addColumn<QByteArray>("suffix");
    QTest::addColumn<QByteArray>("sizes");
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QByteArray>("said");

    constexpr qint64 most = std::numeric_limits<qint64>::max();
    constexpr qint64 spare = 64LL * 1024 * 1024;
    const auto row = [](const char *title, int updates, const char *suffix, const QByteArray &sizes,
                        const char *arguments, int exitCode, const char *said) {
        QTest::newRow(title) << updates << QByteArray(suffix) << sizes
                             << QString::fromLatin1(arguments).split(QLatin1Char(' ')) << exitCode
                             << QByteArray(said);
    };
    const auto refused = [row](const char *title, int updates, const char *suffix,
                               const QByteArray &sizes, const char *arguments) {
        row(title, updates, suffix, sizes, arguments, 5, "Not enough space");
    };
    // As a double, which is what a document's numbers are.
    row("the plan's downloads", 4, ".deb", element("size", most), "plan 0", 0,
        "\"downloadSize\": 9223372036854776000");
    refused("a folder of downloads", 4, ".deb", element("size", most), "download 0 --all --to");
    refused("a package and its copy", 1, ".deb", element("size", most), "install 0");
    refused("unpacked service packs", 4, ".xar", element("unpacked_size", most), "install 0");
    refused("a service pack and what it leaves free", 1, ".xar", element("unpacked_size", most),
            "install 0");
    refused("installed packages", 4, ".deb", element("installed_size", most), "install 0");
    refused("what is new and what is replaced", 4, ".deb", element("installed_size", most),
            "install 0 update0 update1");
    refused("downloaded and installed", 1, ".xar",
            element("unpacked_size", most - spare) + element("installed_size", most), "install 0");
}

void tst_RVCtlSizes::sumsSaturate()
{
    QFETCH(int, updates);
    QFETCH(QByteArray, suffix);
    QFETCH(QByteArray, sizes);
    QFETCH(QStringList, arguments);
    QFETCH(int, exitCode);
    QFETCH(QByteArray, said);

    const FakeRoot root;
    root.addPackage("update0", "0.1");
    FakeRoot::write(root.paths().xarInstaller, "#!/bin/sh\n");
    QVERIFY(QFile::setPermissions(root.paths().xarInstaller, QFile::ReadOwner | QFile::ExeOwner));
    const QString repository = root.path() + QStringLiteral("/updates");
    for (int i = 0; i < updates; ++i) {
        const QByteArray name = "update" + QByteArray::number(i);
        const QString path = repository + QLatin1Char('/') + QLatin1String(name);
        FakeRoot::write(path + QLatin1String(suffix), "archive");
        FakeRoot::write(path + QStringLiteral(".xml"),
                        "<update_data><name>" + name
                            + "</name><version>1</version><thin_client>all</thin_client>" + sizes
                            + "</update_data>");
    }
    FakeRoot::write(root.paths().definitionDir + QStringLiteral("/updates.xml"),
                    "<repository_list><repository><default_uri>"
                        + QUrl::fromLocalFile(repository).toEncoded()
                        + "</default_uri><filter_pattern><archive_pattern>\\" + suffix
                        + "$</archive_pattern><descriptor_pattern>\\.xml$</descriptor_pattern>"
                          "</filter_pattern></repository></repository_list>");
    if (arguments.constLast() == QLatin1String("--to")) {
        arguments.append(root.path() + QStringLiteral("/downloads"));
    }

    QProcess program;
    program.start(QStringLiteral(RAVELCTL),
                  QStringList{QStringLiteral("--root"), root.path(), QStringLiteral("--json")}
                      + arguments);
    QVERIFY(program.waitForFinished(timeout));
    const QByteArray document = program.readAllStandardOutput();
    QVERIFY2(document.contains(said), document.constData());
    QCOMPARE(program.exitCode(), exitCode);
}

QTEST_GUILESS_MAIN(tst_RVCtlSizes)
#include "tst_RVCtlSizes.moc"

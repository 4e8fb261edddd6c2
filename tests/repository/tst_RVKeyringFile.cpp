// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "repository/RVKeyringFile.h"
#include "tests/support/FakeRoot.h"
#include "tests/support/OrdinaryUser.h"

#include <QDir>
#include <QFile>
#include <QtTest>

#include <functional>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

using Change = std::function<bool(const RVPaths &paths, const QString &file)>;
Q_DECLARE_METATYPE(Change)

class tst_RVKeyringFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void good();
    void refused_data();
    void refused();
    void othersFile();

private:
    QString path(const char *name) const
    {
        return m_root->paths().keyringDir + QLatin1Char('/') + QLatin1String(name);
    }

    std::unique_ptr<FakeRoot> m_root;
};

void tst_RVKeyringFile::init()
{
    m_root = std::make_unique<FakeRoot>();
    FakeRoot::write(path("vendor.gpg"), "keys");
}

void tst_RVKeyringFile::good()
{
    QString reason;
    const auto keys = RVKeyringFile::read(m_root->paths(), QStringLiteral("vendor.gpg"), &reason);
    QVERIFY2(keys, qUtf8Printable(reason));
    QCOMPARE(*keys, QByteArray("keys"));
}

void tst_RVKeyringFile::refused_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<QString>("name");
    const QString usual = QStringLiteral("vendor.gpg");
    const auto mode = [](mode_t bits) {
        return Change([bits](const RVPaths &, const QString &file) {
            return ::chmod(QFile::encodeName(file).constData(), bits) == 0;
        });
    };
    const auto folderMode = [](mode_t bits) {
        return Change([bits](const RVPaths &paths, const QString &) {
            return ::chmod(QFile::encodeName(paths.keyringDir).constData(), bits) == 0;
        });
    };
    const Change nothing = [](const RVPaths &, const QString &) {
        return true;
    };
    QTest::newRow("missing") << nothing << QStringLiteral("other.gpg");
    QTest::newRow("a path") << nothing << QStringLiteral("../keys/vendor.gpg");
    QTest::newRow("no name") << nothing << QString();
    QTest::newRow("the group may write") << mode(0664) << usual;
    QTest::newRow("everybody may write") << mode(0646) << usual;
    QTest::newRow("the group may write to the folder") << folderMode(0775) << usual;
    QTest::newRow("everybody may write to the folder") << folderMode(01777) << usual;
    QTest::newRow("a link") << Change([](const RVPaths &, const QString &file) {
        return QFile::rename(file, file + QStringLiteral(".real"))
            && QFile::link(file + QStringLiteral(".real"), file);
    }) << usual;
    QTest::newRow("a folder") << Change([](const RVPaths &, const QString &file) {
        return QFile::remove(file) && QDir().mkdir(file);
    }) << usual;
    QTest::newRow("a pipe") << Change([](const RVPaths &, const QString &file) {
        return QFile::remove(file) && ::mkfifo(QFile::encodeName(file).constData(), 0600) == 0;
    }) << usual;
    QTest::newRow("empty") << Change([](const RVPaths &, const QString &file) {
        return QFile::resize(file, 0);
    }) << usual;
    QTest::newRow("endless") << Change([](const RVPaths &, const QString &file) {
        return QFile::resize(file, RVKeyringFile::maxBytes + 1);
    }) << usual;
    QTest::newRow("the folder is a link") << Change([](const RVPaths &paths, const QString &) {
        const QString real = paths.keyringDir + QStringLiteral(".real");
        return QDir().rename(paths.keyringDir, real) && QFile::link(real, paths.keyringDir);
    }) << usual;
}

void tst_RVKeyringFile::refused()
{
    QFETCH(Change, change);
    QFETCH(QString, name);
    QVERIFY(change(m_root->paths(), path("vendor.gpg")));
    QString reason;
    QVERIFY(!RVKeyringFile::read(m_root->paths(), name, &reason));
    QVERIFY(reason.contains(m_root->paths().keyringDir));
}

// Whoever it belongs to can make it writable again.
void tst_RVKeyringFile::othersFile()
{
    if (::geteuid() != 0) {
        QSKIP("only root can give a file to somebody");
    }
    QVERIFY(::chown(QFile::encodeName(path("vendor.gpg")).constData(), OrdinaryUser::id, 0) == 0);
    QString reason;
    QVERIFY(!RVKeyringFile::read(m_root->paths(), QStringLiteral("vendor.gpg"), &reason));
}

QTEST_GUILESS_MAIN(tst_RVKeyringFile)
#include "tst_RVKeyringFile.moc"

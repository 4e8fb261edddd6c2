// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "install/RVFreeSpace.h"
#include "tests/support/FakeRoot.h"
#include "tests/support/InChild.h"

#include <QBuffer>
#include <QTest>

#include <limits>

namespace
{

constexpr qint64 most = std::numeric_limits<qint64>::max();

RVFreeSpace::Update update(const char *archive, const QByteArray &fields, bool isReplacing = false)
{
    RVData data(QUrl(QLatin1String("file:///updates/") + QLatin1String(archive)),
                QUrl(QStringLiteral("file:///updates/x.xml")));
    QByteArray xml = "<update_data><name>x</name>" + fields + "</update_data>";
    QBuffer buffer(&xml);
    data.descriptor()->read(&buffer);
    return {data, isReplacing};
}

QByteArray size(const char *field, qint64 bytes)
{
    return QByteArray("<") + field + '>' + QByteArray::number(bytes) + "</" + field + '>';
}

} // namespace

/// Sizes far beyond every disk, and a small disk where the system allows to mount one.
class tst_RVFreeSpace : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void oneDirectory();
    void batches_data();
    void batches();
    void smallDisk();
    void missingDirectory();
};

void tst_RVFreeSpace::oneDirectory()
{
    const qint64 available = RVFreeSpace::freeBytes(QDir::tempPath());
    QVERIFY(available > 0);
    QVERIFY(!RVFreeSpace::shortage(0, QDir::tempPath()));
    const auto shortage = RVFreeSpace::shortage(most, QDir::tempPath());
    QVERIFY(shortage.has_value());
    QCOMPARE(shortage->needed, most);
    QCOMPARE(shortage->directory, QDir::tempPath());
    const QString sentence = shortage->sentence().english();
    QVERIFY2(sentence.startsWith(QStringLiteral("Not enough space in '%1': 8589934592 GiB needed, ")
                                     .arg(QDir::tempPath())),
             qUtf8Printable(sentence));
    QVERIFY2(sentence.endsWith(QLatin1String("B free.")), qUtf8Printable(sentence));
}

void tst_RVFreeSpace::batches_data()
{
    QTest::addColumn<QByteArray>("archive");
    QTest::addColumn<QByteArray>("fields");
    QTest::addColumn<bool>("isReplacing");
    QTest::addColumn<bool>("fits");

    const auto row = [](const char *title, const char *archive, const QByteArray &fields,
                        bool isReplacing, bool fits) {
        QTest::newRow(title) << QByteArray(archive) << fields << isReplacing << fits;
    };
    row("a small package", "a.deb", size("size", 1000), false, true);
    row("a package of unknown size", "a.deb", "", false, true);
    row("a huge package", "a.deb", size("size", most / 4), false, false);
    row("a package that unpacks to a lot", "a.deb", size("installed_size", most / 4), false, false);
    row("the same over an older version", "a.deb", size("installed_size", most / 4), true, false);
    row("a service pack that unpacks to a lot", "a.xar", size("unpacked_size", most / 4), false,
        false);
    row("a huge image, which is not stored", "a.dd.gz", size("size", most / 4), false, true);
}

void tst_RVFreeSpace::batches()
{
    QFETCH(QByteArray, archive);
    QFETCH(QByteArray, fields);
    QFETCH(bool, isReplacing);
    QFETCH(bool, fits);

    const FakeRoot root;
    QCOMPARE(
        !RVFreeSpace::shortage({update(archive.constData(), fields, isReplacing)}, root.paths())
             .has_value(),
        fits);
}

void tst_RVFreeSpace::smallDisk()
{
    const FakeRoot root;
    QString result;
    const bool isMounted = withSmallDisk(
        root.path(), "256k",
        [&] {
            constexpr qint64 disk = 256 * 1024;
            const auto judged = [&root](qint64 installed) {
                return RVFreeSpace::shortage({update("a.deb", size("installed_size", installed))},
                                             root.paths());
            };
            const auto shortage = judged(disk + 1);
            if (judged(disk) || !shortage || shortage->directory != root.path()
                || shortage->available != disk) {
                return QStringLiteral("judged wrongly");
            }
            return QString();
        },
        &result);
    if (!isMounted) {
        QSKIP("no private mounts here");
    }
    QCOMPARE(result, QString());
}

void tst_RVFreeSpace::missingDirectory()
{
    QCOMPARE(RVFreeSpace::freeBytes(QStringLiteral("/nowhere/at/all")), -1);
    QVERIFY(!RVFreeSpace::shortage(most, QStringLiteral("/nowhere/at/all")));
}

QTEST_GUILESS_MAIN(tst_RVFreeSpace)
#include "tst_RVFreeSpace.moc"

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
// Archives that describe themselves: unpacking a service pack against the archiver's own program,
// reading the control data of real packages against the package tool's.
#include "archive/ArchiveXar.h"
#include "descriptor/DescriptorDeb.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QProcess>
#include <QStorageInfo>
#include <QTemporaryDir>

#include "bench/Bench.h"

namespace
{

constexpr int directories = 99;
constexpr int filesInEach = 201;
// With the directory at the top: as many as a service pack may hold.
constexpr int members = 1 + directories * (1 + filesInEach);
static_assert(members <= 20000 && members > 19990);

bool runs(const QString &program, const QStringList &arguments, const QString &directory,
          QByteArray *output = nullptr)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.setWorkingDirectory(directory);
    process.start(program, arguments);
    const bool ended = process.waitForFinished(120000);
    if (output) {
        *output = process.readAllStandardOutput();
    }
    return ended && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
}

bool writeServicePack(const QDir &top)
{
    for (int i = 0; i < directories; ++i) {
        const QString directory = QStringLiteral("pack/%1").arg(i);
        if (!top.mkpath(directory)) {
            return false;
        }
        for (int j = 0; j < filesInEach; ++j) {
            QFile file(top.filePath(QStringLiteral("%1/%2").arg(directory).arg(j)));
            const QByteArray content = QByteArray::number(i * filesInEach + j).repeated(100);
            if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
                return false;
            }
        }
    }
    return runs(QStringLiteral("bsdtar"),
                {QStringLiteral("--format=xar"), QStringLiteral("-cf"), QStringLiteral("pack.xar"),
                 QStringLiteral("pack")},
                top.path());
}

int countMembers(const QString &directory)
{
    int count = 0;
    QDirIterator walk(directory, QDir::AllEntries | QDir::NoDotAndDotDot,
                      QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        walk.next();
        ++count;
    }
    return count;
}

bool unpacking()
{
    // In memory where there is room, since a disk is not equally quick all the time.
    const QString memory = QStringLiteral("/dev/shm");
    const bool fits = QStorageInfo(memory).bytesAvailable() > 1024LL * 1024 * 1024;
    QTemporaryDir place((fits ? memory : QDir::tempPath())
                        + QLatin1String("/bench_archives-XXXXXX"));
    const QDir top(place.path());
    const QString archive = top.filePath(QStringLiteral("pack.xar"));
    if (!writeServicePack(top)) {
        std::printf("FAIL archives: no service pack to unpack\n");
        return false;
    }
    bool good = true;
    int run = 0;
    // All are kept to the end: ext4 is slow to make files where it has just removed some.
    const auto timed = [&](const auto &unpack) {
        const QString directory = top.filePath(QStringLiteral("run%1").arg(run++));
        good = top.mkdir(directory) && good;
        const double took = bestOf(1, [&] {
            good = unpack(directory) && good;
        });
        good = countMembers(directory) == members && good;
        return took;
    };
    // In turns, so that both meet the same load.
    double ours = 0;
    double peer = 0;
    for (int round = 0; round < 3; ++round) {
        const double extract = timed([&](const QString &directory) {
            QFile source(archive);
            return QDir::setCurrent(directory)
                && ArchiveXar(QUrl::fromLocalFile(archive)).extract(&source);
        });
        const double bsdtar = timed([&](const QString &directory) {
            return runs(QStringLiteral("bsdtar"), {QStringLiteral("-xf"), archive}, directory);
        });
        ours = round == 0 ? extract : std::min(ours, extract);
        peer = round == 0 ? bsdtar : std::min(peer, bsdtar);
    }
    QDir::setCurrent(QDir::rootPath());
    if (!good) {
        std::printf("FAIL archives: the service pack was not unpacked whole\n");
        return false;
    }
    // Everything is looked at before the first file is written, which takes another two walks.
    return report("unpacking 20,000 members", ours, "bsdtar", peer, 0.5);
}

bool describing(const QString &directory)
{
    const QFileInfoList packages =
        QDir(directory).entryInfoList({QStringLiteral("*.deb")}, QDir::Files, QDir::Name);
    if (packages.isEmpty()) {
        std::printf("skip archives: no real packages; RAVEL_BENCH_PACKAGES names a directory\n");
        return true;
    }
    QList<QByteArray> read;
    const double ours = bestOf(3, [&] {
        read.clear();
        for (const QFileInfo &package : packages) {
            QFile source(package.filePath());
            DescriptorDeb descriptor(QUrl::fromLocalFile(package.filePath()));
            descriptor.read(&source);
            read.append("Package: " + descriptor.name(QString()).toLatin1()
                        + "\nVersion: " + descriptor.version().toString().toLatin1() + '\n');
        }
    });
    QList<QByteArray> expected;
    const double peer = bestOf(3, [&] {
        expected.clear();
        for (const QFileInfo &package : packages) {
            QByteArray output;
            runs(QStringLiteral("dpkg-deb"),
                 {QStringLiteral("-f"), package.filePath(), QStringLiteral("Package"),
                  QStringLiteral("Version")},
                 directory, &output);
            expected.append(output);
        }
    });
    if (read != expected) {
        std::printf("FAIL archives: dpkg-deb reads something else\n");
        return false;
    }
    const QByteArray what = "control data of " + QByteArray::number(packages.size()) + " packages";
    return report(what.constData(), ours, "dpkg-deb -f", peer, 1.0);
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    const bool unpacks = unpacking();
    const bool describes = describing(qEnvironmentVariable("RAVEL_BENCH_PACKAGES"));
    return unpacks && describes ? 0 : 1;
}

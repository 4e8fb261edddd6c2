// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
// A local refresh of 2,000 descriptors against reading and parsing the same files in a plain loop.
#include "repository/RVRepository.h"

#include <QCoreApplication>
#include <QDir>
#include <QDomDocument>
#include <QEventLoop>
#include <QFile>
#include <QTemporaryDir>

#include "bench/Bench.h"

namespace
{

constexpr int updates = 2000;

bool fill(const QDir &dir)
{
    for (int i = 0; i < updates; ++i) {
        const QString base = dir.filePath(QStringLiteral("package_%1").arg(i));
        QFile archive(base + QStringLiteral(".deb"));
        QFile descriptor(base + QStringLiteral(".xml"));
        if (!archive.open(QIODevice::WriteOnly) || !descriptor.open(QIODevice::WriteOnly)) {
            return false;
        }
        descriptor.write("<update_data><name>package_" + QByteArray::number(i)
                         + "</name><version>1.0</version><thin_client>all</thin_client>"
                           "<architecture>all</architecture></update_data>");
    }
    return true;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QTemporaryDir temporary;
    if (!fill(QDir(temporary.path()))) {
        return 1;
    }
    RVPaths paths;
    paths.rootLog = paths.userLog = temporary.path() + QStringLiteral("/log");
    RVRepository repository(QStringLiteral("Corvane"), QStringLiteral("RavelBench"),
                            QStringLiteral("bench"), QUrl::fromLocalFile(temporary.path()),
                            QStringLiteral("bench"), SortByName, nullptr, paths);
    repository.addFilter(QRegExp(QStringLiteral("\\.deb$")), QRegExp(QStringLiteral("\\.xml$")));
    const double ours = bestOf(3, [&] {
        QEventLoop loop;
        QObject::connect(&repository, &RVRepository::refreshDone, &loop, &QEventLoop::quit,
                         Qt::QueuedConnection);
        repository.refresh();
        loop.exec();
    });
    if (repository.entries().size() != updates) {
        std::printf("FAIL refresh: %d entries\n", static_cast<int>(repository.entries().size()));
        return 1;
    }
    const double peer = bestOf(3, [&] {
        const QDir dir(temporary.path());
        const QStringList names = dir.entryList({QStringLiteral("*.xml")});
        for (const QString &name : names) {
            QFile file(dir.filePath(name));
            QDomDocument document;
            if (!file.open(QIODevice::ReadOnly) || !document.setContent(&file)) {
                return;
            }
        }
    });
    // Each descriptor has a network access manager of its own: the price is bounded, not nothing.
    return report("refresh of 2,000 descriptors", ours, "plain loop", peer, 0.02) ? 0 : 1;
}

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
// Downloading a package of 300 MB for its installation, over HTTP and over FTP, against Qt's own
// manager and readAll(): the memory that it takes, and the time. Each in a process of its own.
#include "install/RVInstallProc.h"
#include "tests/support/FtpServers.h"
#include "tests/support/WebServers.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QNetworkAccessManager>
#include <QProcess>
#include <QTemporaryDir>

#include "bench/Bench.h"

namespace
{

constexpr qint64 packageSize = 300LL * 1000 * 1000;
constexpr double mayGrowMB = 40;
const char packageName[] = "large.deb";

/// The most memory that this process ever had, in MB.
double peakMemory()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly)) {
        return 0;
    }
    const QByteArray text = status.readAll();
    const QByteArray line = text.mid(text.indexOf("VmHWM:") + 6, 40).split('k').first();
    return line.trimmed().toDouble() * 1024 / 1e6;
}

qint64 installAs(const QUrl &url, const QString &directory)
{
    RVPaths paths = RVPaths::under(directory);
    paths.rootLog = paths.userLog = directory + QStringLiteral("/log");
    // Nothing is installed of it.
    paths.shell = paths.trueTool;
    RVInstallProc procedure(RVData(url, QUrl(), nullptr, paths), nullptr, paths);
    QEventLoop loop;
    QObject::connect(&procedure, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), &loop,
                     &QEventLoop::quit, Qt::QueuedConnection);
    procedure.start();
    loop.exec();
    return QFile(QLatin1String(packageName)).size();
}

qint64 copyAs(const QUrl &url, const QString &directory)
{
    QNetworkAccessManager manager;
    QNetworkReply *reply = manager.get(QNetworkRequest(url));
    QEventLoop loop;
    QObject::connect(reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
    loop.exec();
    QFile file(directory + QLatin1Char('/') + QLatin1String(packageName));
    return file.open(QIODevice::WriteOnly) ? file.write(reply->readAll()) : -1;
}

/// Downloads and prints how many MB and milliseconds that took.
int download(bool isOurs, const QUrl &url)
{
    const QTemporaryDir directory;
    const double before = peakMemory();
    QElapsedTimer timer;
    timer.start();
    const qint64 size = isOurs ? installAs(url, directory.path()) : copyAs(url, directory.path());
    std::printf("%f %lld", peakMemory() - before, static_cast<long long>(timer.elapsed()));
    return size == packageSize ? 0 : 1;
}

struct Price {
    double memory = -1;
    double time = -1;
};

Price priceOf(const char *whose, const QUrl &url)
{
    QProcess child;
    child.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    child.start(QCoreApplication::applicationFilePath(),
                {QLatin1String(whose), QString::fromLatin1(url.toEncoded())});
    if (!child.waitForFinished(120000) || child.exitStatus() != QProcess::NormalExit
        || child.exitCode() != 0) {
        std::printf("FAIL %s did not get %s\n", whose, url.toEncoded().constData());
        return {};
    }
    const QList<QByteArray> numbers = child.readAllStandardOutput().split(' ');
    return {numbers.value(0).toDouble(), numbers.value(1).toDouble()};
}

bool compare(const char *scheme, const QUrl &ourUrl, const QUrl &peerUrl)
{
    const Price ours = priceOf("ours", ourUrl);
    const Price peer = priceOf("peer", peerUrl);
    if (ours.time < 0 || peer.time < 0) {
        return false;
    }
    // What the peer takes shows that it is measured at all.
    const bool isSmall =
        ours.memory < mayGrowMB && ours.memory * 5 < peer.memory && peer.memory > packageSize / 1e6;
    std::printf("%-4s memory for 300 MB over %s: %.1f MB; Qt and readAll(): %.1f MB\n",
                isSmall ? "ok" : "BIG", scheme, ours.memory, peer.memory);
    // It goes through the disk twice.
    const QByteArray what = QByteArray("300 MB over ") + scheme;
    return report(what.constData(), ours.time, "Qt and readAll()", peer.time, 0.2) && isSmall;
}

bool publish(const QString &root)
{
    QFile file(root + QLatin1Char('/') + QLatin1String(packageName));
    return file.open(QIODevice::WriteOnly) && file.resize(packageSize)
        && file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup
                               | QFile::ReadOther);
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() == 3) {
        return download(arguments.at(1) == QLatin1String("ours"), QUrl(arguments.at(2)));
    }
    NginxServer web;
    VsftpdServer ftp;
    if (!publish(web.root()) || !publish(ftp.root())) {
        std::printf("FAIL no room for the package\n");
        return 1;
    }
    if (!web.start() || !ftp.start()) {
        std::printf("FAIL %s%s\n", web.report(), ftp.report());
        return 1;
    }
    const QString name = QLatin1Char('/') + QLatin1String(packageName);
    const bool http = compare("HTTP", web.url(name), web.url(name));
    // Qt puts the login directory in front.
    const bool overFtp = compare("FTP", ftp.url(ftp.rootPath() + name), ftp.url(name));
    return http && overFtp ? 0 : 1;
}

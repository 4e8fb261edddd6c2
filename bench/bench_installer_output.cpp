// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
// Installer output: our way of putting it into the progress dialog against inserting HTML, and 200
// MB of it, in the window and on the command line, against the installer's own time.
#include "cli/RVCtlMessages.h"
#include "cli/RVCtlOutput.h"
#include "install/RVInstallProc.h"
#include "ui/BusyDialog.h"

#include <QApplication>
#include <QEventLoop>
#include <QTemporaryDir>
#include <QTextCursor>
#include <QTextEdit>

#include "bench/Bench.h"

namespace
{

void throughDialog(int lines)
{
    QProcess process;
    auto *dialog = new BusyDialog(QStringLiteral("…"), QString(), 0, 100);
    dialog->processOutputToDetails(&process);
    dialog->showDetails();
    dialog->show();
    QEventLoop loop;
    QObject::connect(&process, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), &loop,
                     &QEventLoop::quit);
    process.start(QStringLiteral("/usr/bin/seq"), {QString::number(lines)});
    loop.exec();
    dialog->finished();
    QCoreApplication::processEvents();
    delete dialog;
}

void throughHtml(int lines)
{
    QTextEdit view;
    view.show();
    QProcess process;
    process.start(QStringLiteral("/usr/bin/seq"), {QString::number(lines)});
    while (process.waitForReadyRead(10000)) {
        const QString text = QString::fromUtf8(process.readAllStandardOutput());
        view.moveCursor(QTextCursor::End);
        view.insertHtml(Qt::convertFromPlainText(text, Qt::WhiteSpacePre));
        view.ensureCursorVisible();
        QCoreApplication::processEvents();
    }
    process.waitForFinished(10000);
}

/// 200 MB in lines.
const QString flood = QStringLiteral("seq 23500000");

/// A system whose installer writes the flood, and a package "a.deb" for it.
RVPaths floodingSystem(const QString &directory)
{
    RVPaths paths = RVPaths::under(directory);
    paths.rootLog = paths.userLog = directory + QStringLiteral("/log");
    paths.shell = directory + QStringLiteral("/installer");
    QProcess make;
    make.setWorkingDirectory(directory);
    make.start(QStringLiteral("/bin/sh"),
               {QStringLiteral("-ec"),
                QStringLiteral("mkdir -p tree/DEBIAN; chmod 755 tree/DEBIAN\n"
                               "printf 'Package: a\\nVersion: 1\\nArchitecture: all\\n"
                               "Maintainer: A <a@example.org>\\nDescription: a\\n'"
                               " >tree/DEBIAN/control\n"
                               "dpkg-deb --build tree a.deb >/dev/null\n"
                               "printf '#!/bin/sh\\nexec %1\\n' >installer; chmod 755 installer")
                    .arg(flood)});
    if (!make.waitForFinished(-1) || make.exitCode() != 0) {
        qFatal("no package: %s", make.readAllStandardError().constData());
    }
    return paths;
}

/// `watch` is given the procedure before it starts, `end` is called when it has ended.
template<typename Watch, typename End>
void installFlood(Watch &&watch, End &&end)
{
    const QTemporaryDir directory;
    const RVPaths paths = floodingSystem(directory.path());
    const QUrl url = QUrl::fromLocalFile(directory.filePath(QStringLiteral("a.deb")));
    RVInstallProc procedure(RVData(url, QUrl(), nullptr, paths), nullptr, paths);
    watch(&procedure);
    QEventLoop loop;
    QObject::connect(&procedure, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished),
                     &loop, &QEventLoop::quit, Qt::QueuedConnection);
    procedure.start();
    loop.exec();
    end();
    if (!procedure.result().isInstallerStarted || procedure.exitCode() != 0) {
        qFatal("the installer did not run");
    }
}

void floodTheWindow()
{
    auto *dialog = new BusyDialog(QStringLiteral("…"), QString(), 0, 100);
    installFlood(
        [&](RVInstallProc *procedure) {
            dialog->processOutputToDetails(procedure);
            dialog->showDetails();
            dialog->show();
        },
        [&] {
            dialog->finished();
            QCoreApplication::processEvents();
        });
    delete dialog;
}

void floodTheCommandLine()
{
    RVCtlMessages messages;
    std::FILE *stream = std::fopen("/dev/null", "w");
    RVCtlOutput output(stream, &messages);
    installFlood(
        [&](RVInstallProc *procedure) {
            procedure->setProcessChannelMode(QProcess::MergedChannels);
            QObject::connect(procedure, &QProcess::readyReadStandardOutput, procedure,
                             [&output, procedure] {
                                 output.add(procedure->readAllStandardOutput());
                             });
        },
        [&] {
            output.end();
        });
    std::fclose(stream);
}

/// Into a pipe, as an installer's output goes.
void floodNobody()
{
    QProcess process;
    process.start(QStringLiteral("/bin/sh"),
                  {QStringLiteral("-c"), flood + QStringLiteral(" | cat >/dev/null")});
    process.waitForFinished(-1);
}

} // namespace

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    // Short output costs the dialog more than the peer: it waits up to a batch's interval, and
    // breaks and bounds lines. Known, and bounded here; what the way of appending is for is long
    // output.
    const double shortOurs = bestOf(2, [] {
        throughDialog(20000);
    });
    const double shortPeer = bestOf(2, [] {
        throughHtml(20000);
    });
    const bool isBounded =
        report("20,000 lines of output", shortOurs, "inserted as HTML", shortPeer, 0.2);
    const double ours = bestOf(1, [] {
        throughDialog(200000);
    });
    const double peer = bestOf(1, [] {
        throughHtml(200000);
    });
    const bool isQuick = report("200,000 lines of output", ours, "inserted as HTML", peer, 2.0);
    const double own = bestOf(2, floodNobody);
    const bool isWindow = report("200 MB of output in the window", bestOf(2, floodTheWindow),
                                 "the installer alone", own, 1 / 1.2);
    const bool isCommandLine =
        report("200 MB of output on the command line", bestOf(2, floodTheCommandLine),
               "the installer alone", own, 1 / 1.2);
    return isBounded && isQuick && isWindow && isCommandLine ? 0 : 1;
}

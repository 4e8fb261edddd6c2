// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/HostWindow.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QFileInfo>
#include <QMessageBox>
#include <QSocketNotifier>

#include <csignal>
#include <cstdio>
#include <cstring>
#include <memory>
#include <sys/socket.h>
#include <unistd.h>

namespace
{

constexpr int exitFailure = 1;
constexpr int exitUsage = 2;

int s_signalPipe[2] = {-1, -1};

void onSignal(int)
{
    const char byte = 0;
    [[maybe_unused]] const ssize_t written = write(s_signalPipe[1], &byte, 1);
}

/// SIGINT and SIGTERM close the windows as their close buttons would: not in the middle of an
/// installation, whose package tool would be left half-way.
void closeWindowsOnSignals()
{
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0, s_signalPipe) != 0) {
        return;
    }
    auto *notifier = new QSocketNotifier(s_signalPipe[0], QSocketNotifier::Read, qApp);
    QObject::connect(notifier, &QSocketNotifier::activated, qApp, [] {
        char byte = 0;
        while (read(s_signalPipe[0], &byte, 1) > 0) { }
        QApplication::closeAllWindows();
    });
    struct sigaction action = {};
    action.sa_handler = onSignal;
    action.sa_flags = SA_RESTART;
    sigaction(SIGINT, &action, nullptr);
    sigaction(SIGTERM, &action, nullptr);
}

bool hasDisplay(int argc, char *argv[])
{
    for (const char *variable : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"}) {
        if (!qEnvironmentVariableIsEmpty(variable)) {
            return true;
        }
    }
    for (int i = 1; i < argc; ++i) {
        const char *name = argv[i] + std::strspn(argv[i], "-");
        if (name != argv[i] && (!std::strcmp(name, "platform") || !std::strcmp(name, "display"))) {
            return true;
        }
    }
    return false;
}

int fail(int exitCode, const QString &message)
{
    std::fprintf(stderr, "ravel-host: %s\n", qUtf8Printable(message));
    return exitCode;
}

} // namespace

int main(int argc, char *argv[])
{
    HostWindow::nameApplication();
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);

    // Without a display QApplication aborts; the arguments can be answered all the same.
    const bool display = hasDisplay(argc, argv);
    const std::unique_ptr<QCoreApplication> application(display ? new QApplication(argc, argv)
                                                                : new QCoreApplication(argc, argv));

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Shows and installs software updates."));
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version = parser.addVersionOption();
    const QCommandLineOption root(
        QStringLiteral("root"),
        QStringLiteral("Work on the system below the directory DIR instead of on this one."),
        QStringLiteral("DIR"));
    parser.addOption(root);
    if (!parser.parse(QCoreApplication::arguments())) {
        return fail(exitUsage, parser.errorText());
    }
    if (parser.isSet(help)) {
        parser.showHelp();
    }
    if (parser.isSet(version)) {
        parser.showVersion();
    }
    if (!parser.positionalArguments().isEmpty()) {
        return fail(exitUsage,
                    QStringLiteral("Unexpected argument '%1'.")
                        .arg(parser.positionalArguments().constFirst()));
    }

    RVPaths paths;
    if (parser.isSet(root)) {
        const QString directory = parser.value(root);
        const QFileInfo info(directory);
        if (directory.isEmpty() || !info.isDir()) {
            return fail(exitUsage, QStringLiteral("'%1' is not a directory.").arg(directory));
        }
        paths = HostWindow::enterRoot(info.canonicalFilePath());
    }
    if (!display) {
        return fail(exitFailure, QStringLiteral("There is no display: DISPLAY is not set."));
    }

    closeWindowsOnSignals();
    HostWindow window;
    QApplication::setWindowIcon(window.windowIcon());
    QString error;
    if (!window.load(paths, &error)) {
        fail(exitFailure, error);
        QMessageBox::critical(nullptr, window.windowTitle(), error);
        return exitFailure;
    }
    window.show();
    return QApplication::exec();
}

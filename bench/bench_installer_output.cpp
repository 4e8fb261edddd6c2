// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
// Installer output in the progress dialog: our way of appending against inserting HTML.
#include "ui/BusyDialog.h"

#include <QApplication>
#include <QEventLoop>
#include <QTextCursor>
#include <QTextEdit>

#include "bench/Bench.h"

namespace
{

constexpr int lines = 200000;

void throughDialog()
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

void throughHtml()
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

} // namespace

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    const double ours = bestOf(1, throughDialog);
    const double peer = bestOf(1, throughHtml);
    return report("200,000 lines of output", ours, "inserted as HTML", peer, 2.0) ? 0 : 1;
}

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
//
// ravel-gallery CODE DIRECTORY: pictures of every page and dialog in a language, for a translator
// to look at.
#include "tests/support/EventLoop.h"
#include "tests/ui/Gallery.h"

#include <QApplication>
#include <QDir>
#include <QPixmap>
#include <QWidget>

#include <cstdio>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() != 3 || !QDir().mkpath(arguments.at(2))) {
        std::fprintf(stderr, "usage: ravel-gallery CODE DIRECTORY\n");
        return 2;
    }
    QLocale::setDefault(QLocale(arguments.at(1)));
    const Gallery gallery;
    for (const Gallery::View &view : gallery.views()) {
        view.enter();
        view.window->show();
        runUntilIdle();
        view.window->resize(view.window->size().expandedTo(view.window->sizeHint()));
        runUntilIdle();
        const QString file =
            QStringLiteral("%1/%2-%3.png")
                .arg(arguments.at(2), arguments.at(1),
                     QString(view.name).replace(QLatin1Char(' '), QLatin1Char('-')));
        if (!view.window->grab().save(file)) {
            std::fprintf(stderr, "%s cannot be written\n", qUtf8Printable(file));
            return 1;
        }
        view.window->hide();
    }
    return 0;
}

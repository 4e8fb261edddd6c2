// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/RVPaths.h"

#include <QColor>
#include <QIcon>
#include <QString>

/// The one table of standard icons. On the device a row's file is there; elsewhere the theme's icon
/// of the freedesktop name stands in, then the style's standard pixmap, then a drawing of our own:
/// no button is ever blank.
class RVStyle
{
public:
    enum StdIcon_t {
        Abort,
        Apply,
        Cancel,
        Close,
        Info,
        Install,
        Ok,
        Refresh,
        RestoreDefaults,
        SelectAll,
        SelectNone,
        Yes,
        No,
        ImageRepository,
        SPRepository,
        PackageRepository,
    };

    explicit RVStyle(const RVPaths &paths = {});

    /// An empty icon, and one level-4 log line, for a number or name that the table does not have.
    QIcon StdIcon(StdIcon_t number) const;
    /// Names are compared without regard to case.
    QIcon StdIcon(const QString &name) const;

    /// Whether dark marks are lost on it.
    static bool isDark(const QColor &background) { return background.lightness() < 128; }

private:
    QString m_iconDir;
};

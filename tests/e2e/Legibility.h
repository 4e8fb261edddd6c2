// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

class QWidget;

/// What cannot be read of the shown widgets of a window: one line for each text that is cut off or
/// runs out of its widget, and for each that differs too little from its background. Scrolled
/// contents count as reachable.
QString illegible(QWidget *window);

/// How the program looks to somebody: its font and colours.
bool setAppearance(const QString &name);

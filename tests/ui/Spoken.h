// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

class QWidget;

/// What a screen reader cannot say of the shown controls and table cells below `root`: one line for
/// each that has no name, or markup or a mark for the keyboard in its name or description.
QString unspoken(const QWidget &root);

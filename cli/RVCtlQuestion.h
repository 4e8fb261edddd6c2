// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

class RVCtlDeadline;

/// A question on a terminal.
namespace RVCtlQuestion
{

/// Whether there is somebody to be asked.
bool canAsk();
/// Whether the answer is yes; any other answer, and the deadline, are a no.
bool isYes(const QString &question, RVCtlDeadline *deadline);

} // namespace RVCtlQuestion

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

class RVCtlDeadline;

/// Passwords are never arguments, which every user of the system can read.
namespace RVCtlPassword
{

/// The first line of a file, a pipe as well. False, and why, when there is none.
bool fromFile(const QString &name, const RVCtlDeadline &deadline, QString *password,
              QString *error);
/// What is typed on the controlling terminal, without being shown.
bool fromTerminal(const QString &user, const RVCtlDeadline &deadline, QString *password,
                  QString *error);

} // namespace RVCtlPassword

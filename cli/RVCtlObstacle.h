// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "cli/RVCtlCommand.h"
#include "install/RVPreflight.h"

#include <QJsonArray>

/// What stands in the way of an installation, on the command line.
namespace RVCtlObstacle
{

/// With what can be done about it here.
QString text(const RVObstacle &obstacle);
/// `obstacle` as the end of the command, without a document.
RVCtlResult result(const RVObstacle &obstacle);
/// "kind", "code" and "text" of each.
QJsonArray toJson(const QVector<RVObstacle> &obstacles);

/// Seconds to wait for locks.
QCommandLineOption timeoutOption();
/// False, and why, when it is no number of seconds.
bool readTimeout(const RVCtlCall &call, int *seconds, QString *error);
/// Takes the locks of an installation, and waits so long for them; who is first when that was in
/// vain, or when the deadline is over.
std::optional<RVObstacle> takeLocks(const RVCtlCall &call, RVPreflight *preflight,
                                    RVBatch::Kind kind, int seconds);

} // namespace RVCtlObstacle

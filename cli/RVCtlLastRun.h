// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "install/RVKeptRun.h"

#include <QJsonValue>

struct RVCtlCall;

/// An installation that outlived its program.
namespace RVCtlLastRun
{

/// Empty without one.
QString toText(const std::optional<RVKeptRun> &run);
QJsonValue toJson(const std::optional<RVKeptRun> &run);
/// Says it before another installation; once, when it has ended.
void tell(const RVCtlCall &call);

} // namespace RVCtlLastRun

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "repository/RVTrustFault.h"

#include <QJsonObject>
#include <QString>

class RVRepository;

/// What is said of a repository's list of sums and its signature.
namespace RVCtlTrust
{

/// Stable: scripts know it.
QString word(RVTrustFault::Kind kind);
/// "kind" and "text", or null.
QJsonValue toJson(const RVTrustFault &fault);
/// The `trust` of a section: what its definition asks for and, after a refresh, what was found.
QJsonObject toJson(const RVRepository &repository);
/// One line without its end, safe for a terminal; empty where there is nothing to say.
QString line(const RVRepository &repository);

} // namespace RVCtlTrust

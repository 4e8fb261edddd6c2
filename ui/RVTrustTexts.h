// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "repository/RVTrustFault.h"

#include <QString>

class RVRepository;

/// What the window says of signatures. Names in them are safe to show as plain text.
namespace RVTrustTexts
{

/// One line for a section: who has signed it, or that nobody has; empty where there is nothing to
/// say.
QString line(const RVRepository &repository);
/// What the line means, for a tool tip.
QString explanation(const RVRepository &repository);
/// A sentence for the user; the fault's own text has the values.
QString sentence(const RVTrustFault &fault);
/// What the check of an image finds, and what not.
QString imageNote();

} // namespace RVTrustTexts

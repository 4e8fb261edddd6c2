// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

class QString;

/// The settings store that the window and the command-line program share.
namespace RVSettings
{

constexpr char organisation[] = "Corvane";
constexpr char application[] = "Ravel";

/// A location may hold a password, so the store is its owner's alone before one goes into it.
void makePrivate(const QString &fileName);

} // namespace RVSettings

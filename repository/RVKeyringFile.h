// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/RVPaths.h"

#include <QByteArray>
#include <QString>

#include <optional>

/// The public keys that a definition trusts: a file that only root, or the running user, can
/// change.
namespace RVKeyringFile
{

constexpr int maxBytes = 1024 * 1024;

/// Whether a definition may name a keyring so: a plain file name of letters, digits, ".", "_" and
/// "-" that ends in ".gpg".
bool isName(const QString &name);
/// What the keyring holds; nothing, and why, when it cannot be used. Judged is what was opened, so
/// that nothing can be put in its place in between.
std::optional<QByteArray> read(const RVPaths &paths, const QString &name, QString *reason);

} // namespace RVKeyringFile

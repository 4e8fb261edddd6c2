// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QStringList>

/// 2^bits plain names. Behind `prefix`, which stays the same, Qt's hash tables take all of them for
/// one: each name that is inserted is compared with all others.
QStringList namesOfOneHash(const QString &prefix, int bits);

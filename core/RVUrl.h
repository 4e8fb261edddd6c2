// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>
#include <QUrl>

namespace RVUrl
{

/// The name of the file at this URL: the last component of its decoded path. "a%2Fb.deb" is the
/// file "b.deb", so that no name holds a slash. Query and fragment take no part.
QString fileName(const QUrl &url);
/// The whole URL as it is shown to people, without its password.
QString shown(const QUrl &url);

} // namespace RVUrl

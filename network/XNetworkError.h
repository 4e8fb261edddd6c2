// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QNetworkReply>

/// The code that Qt 4 gave for the same failure. Qt 5 tells some HTTP statuses apart that were one
/// code before; the system's messages know the old codes only. Every other code stays as it is.
QNetworkReply::NetworkError qt4Error(QNetworkReply::NetworkError error);

/// The same for the answer to an HTTP request, with its status (0 for none).
QNetworkReply::NetworkError qt4Error(QNetworkReply::NetworkError error, int httpStatus);

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QList>
#include <QSslCertificate>

class QNetworkReply;
class QSslError;

/// The certificate that certificate errors are about: the server's own. The errors carry that of
/// the authority as well, which stands for every server under it; they are asked only where the
/// connection is not known. May be null.
QSslCertificate serverCertificate(const QNetworkReply *reply, const QList<QSslError> &errors);

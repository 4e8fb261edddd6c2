// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "network/XServerCertificate.h"

#include <QNetworkReply>
#include <QSslConfiguration>
#include <QSslError>

QSslCertificate serverCertificate(const QNetworkReply *reply, const QList<QSslError> &errors)
{
    QSslCertificate certificate = reply->sslConfiguration().peerCertificate();
    for (auto error = errors.cbegin(); certificate.isNull() && error != errors.cend(); ++error) {
        certificate = error->certificate();
    }
    return certificate;
}

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "network/XNetworkError.h"

QNetworkReply::NetworkError qt4Error(QNetworkReply::NetworkError error)
{
    switch (error) {
    case QNetworkReply::ContentConflictError:
    case QNetworkReply::ContentGoneError:
    case QNetworkReply::InternalServerError:
        return QNetworkReply::UnknownContentError;
    case QNetworkReply::OperationNotImplementedError:
    case QNetworkReply::ServiceUnavailableError:
    case QNetworkReply::UnknownServerError:
        return QNetworkReply::ProtocolUnknownError;
    default:
        return error;
    }
}

QNetworkReply::NetworkError qt4Error(QNetworkReply::NetworkError error, int httpStatus)
{
    // For 400 and 418, Qt 5 blames the request.
    if (error == QNetworkReply::ProtocolInvalidOperationError && httpStatus >= 400
        && httpStatus < 500) {
        return QNetworkReply::UnknownContentError;
    }
    return qt4Error(error);
}

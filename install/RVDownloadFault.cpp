// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "install/RVDownloadFault.h"

#include "network/XNetworkError.h"
#include "network/XSpooledReply.h"

#include <QCoreApplication>

#include <cerrno>

using Fault = RVItemResult::Fault;

RVDownloadFault RVDownloadFault::ofReply(const QNetworkReply &reply)
{
    const QString text = reply.errorString();
    const auto *spooled = qobject_cast<const XSpooledReply *>(&reply);
    RVDownloadFault fault{
        Fault::Network, qt4Error(reply.error()),
        RVSentence(QT_TRANSLATE_NOOP("RVSentence", "It could not be downloaded: %1"), {text})};
    // The engine has one code for a download that it cannot store; the reason is in its text.
    if (text.contains(qt_error_string(ENOSPC)) || text.contains(qt_error_string(EDQUOT))) {
        fault.kind = Fault::Space;
    } else if (reply.error() == QNetworkReply::RemoteHostClosedError && spooled
               && spooled->received() > 0) {
        fault.kind = Fault::Damaged;
    }
    return fault;
}

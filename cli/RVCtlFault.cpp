// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/RVCtlFault.h"

#include "network/XNetworkError.h"
#include "network/XSpooledReply.h"

#include <algorithm>
#include <cerrno>

RVCtlFault RVCtlFault::ofReply(const QNetworkReply &reply)
{
    RVCtlFault fault;
    fault.kind = Network;
    fault.code = qt4Error(reply.error());
    fault.text = reply.errorString();
    const auto *spooled = qobject_cast<const XSpooledReply *>(&reply);
    // The engine has one code for a download that it cannot store; the reason is in its text.
    if (fault.text.contains(qt_error_string(ENOSPC))
        || fault.text.contains(qt_error_string(EDQUOT))) {
        fault.kind = Space;
    } else if (reply.error() == QNetworkReply::RemoteHostClosedError && spooled
               && spooled->received() > 0) {
        fault.kind = Damaged;
    }
    return fault;
}

QJsonValue RVCtlFault::toJson() const
{
    static const QStringList kinds{QString(),
                                   QStringLiteral("network"),
                                   QStringLiteral("damaged"),
                                   QStringLiteral("space"),
                                   QStringLiteral("target"),
                                   QStringLiteral("trust")};
    if (!isSet()) {
        return {};
    }
    return QJsonObject{
        {QStringLiteral("kind"), kinds.at(kind)},
        {QStringLiteral("code"), code},
        {QStringLiteral("text"), text},
    };
}

RVCtlExit RVCtlFault::exitFor(const QVector<RVCtlFault> &faults)
{
    const auto has = [&faults](Kind kind) {
        return std::any_of(faults.cbegin(), faults.cend(), [kind](const RVCtlFault &fault) {
            return fault.kind == kind;
        });
    };
    if (has(Refused)) {
        return RVCtlExit::NotTrusted;
    }
    if (has(Space)) {
        return RVCtlExit::NoSpace;
    }
    if (has(Target)) {
        return RVCtlExit::Failed;
    }
    return has(Network) ? RVCtlExit::Network : RVCtlExit::DamagedArchive;
}

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/RVCtlFault.h"

#include "install/RVDownloadFault.h"

#include <algorithm>

namespace
{

RVCtlFault::Kind kindOf(RVItemResult::Fault fault)
{
    switch (fault) {
    case RVItemResult::Fault::Network:
        return RVCtlFault::Network;
    case RVItemResult::Fault::Damaged:
        return RVCtlFault::Damaged;
    case RVItemResult::Fault::Space:
        return RVCtlFault::Space;
    case RVItemResult::Fault::Untrusted:
        return RVCtlFault::Refused;
    case RVItemResult::Fault::None:
    case RVItemResult::Fault::OtherKind:
        break;
    }
    return RVCtlFault::None;
}

} // namespace

RVCtlFault RVCtlFault::ofReply(const QNetworkReply &reply)
{
    const RVDownloadFault fault = RVDownloadFault::ofReply(reply);
    return {kindOf(fault.kind), fault.networkError, reply.errorString()};
}

RVCtlFault RVCtlFault::ofItem(const RVItemResult &item)
{
    const Kind kind = kindOf(item.fault);
    return kind == None ? RVCtlFault() : RVCtlFault{kind, item.networkError, item.reason.english()};
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

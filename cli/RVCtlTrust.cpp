// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/RVCtlTrust.h"

#include "cli/RVCtlCommand.h"
#include "cli/RVCtlText.h"
#include "cli/RVCtlWorld.h"
#include "core/RVText.h"
#include "repository/RVRepository.h"
#include "repository/RVTrust.h"

namespace
{

QString policyWord(RVTrustPolicy::Kind kind)
{
    switch (kind) {
    case RVTrustPolicy::None:
        return QStringLiteral("none");
    case RVTrustPolicy::Checksums:
        return QStringLiteral("checksums");
    case RVTrustPolicy::Signed:
        return QStringLiteral("signed");
    }
    return {};
}

QString shown(qint64 seconds)
{
    return QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC).toString(Qt::ISODate);
}

} // namespace

QString RVCtlTrust::word(RVTrustFault::Kind kind)
{
    switch (kind) {
    case RVTrustFault::None:
        return {};
    case RVTrustFault::Definition:
        return QStringLiteral("definition");
    case RVTrustFault::Keyring:
        return QStringLiteral("keyring");
    case RVTrustFault::NoList:
        return QStringLiteral("no-list");
    case RVTrustFault::BadList:
        return QStringLiteral("bad-list");
    case RVTrustFault::BadSignature:
        return QStringLiteral("bad-signature");
    case RVTrustFault::NoVerifier:
        return QStringLiteral("no-verifier");
    case RVTrustFault::OtherRepository:
        return QStringLiteral("other-repository");
    case RVTrustFault::Expired:
        return QStringLiteral("expired");
    case RVTrustFault::FutureTime:
        return QStringLiteral("future-time");
    case RVTrustFault::OlderList:
        return QStringLiteral("older-list");
    case RVTrustFault::OtherList:
        return QStringLiteral("other-list");
    case RVTrustFault::State:
        return QStringLiteral("state");
    case RVTrustFault::OtherFile:
        return QStringLiteral("other-file");
    }
    return {};
}

QJsonValue RVCtlTrust::toJson(const RVTrustFault &fault)
{
    if (!fault.isSet()) {
        return {};
    }
    return QJsonObject{{QStringLiteral("kind"), word(fault.kind)},
                       {QStringLiteral("text"), fault.text}};
}

QJsonObject RVCtlTrust::toJson(const RVRepository &repository)
{
    const RVTrustPolicy &policy = repository.trustPolicy();
    const bool isSigned = policy.kind == RVTrustPolicy::Signed;
    const RVTrust *trust = isSigned ? repository.trust().data() : nullptr;
    const RVTrustFault &fault =
        repository.trustFault().isSet() ? repository.trustFault() : policy.fault;
    const auto found = [trust](const QString &text) {
        return trust ? QJsonValue(text) : QJsonValue();
    };
    return {
        {QStringLiteral("kind"), policyWord(policy.kind)},
        {QStringLiteral("keyring"), RVCtlText::jsonOrNull(policy.keyring)},
        {QStringLiteral("repositoryId"), RVCtlText::jsonOrNull(policy.repositoryId)},
        {QStringLiteral("signer"), found(trust ? trust->signer() : QString())},
        {QStringLiteral("signedAt"), found(trust ? shown(trust->signedAt()) : QString())},
        {QStringLiteral("validUntil"),
         found(trust ? trust->list().validUntil.toString(Qt::ISODate) : QString())},
        // A text: a document's numbers are not exact above 2^53.
        {QStringLiteral("serial"),
         found(trust ? QString::number(*trust->list().serial) : QString())},
        {QStringLiteral("forgetting"),
         trust ? RVCtlText::jsonOrNull(trust->forgetting()) : QJsonValue()},
        {QStringLiteral("error"), toJson(fault)},
    };
}

QString RVCtlTrust::line(const RVRepository &repository)
{
    const RVTrust *trust = repository.trust().data();
    if (trust && trust->policy().kind == RVTrustPolicy::Signed) {
        QString text = QStringLiteral("Signed by %1, valid until %2")
                           .arg(trust->signer(), trust->list().validUntil.toString(Qt::ISODate));
        if (!trust->forgetting().isEmpty()) {
            text += QStringLiteral("; freshness is not remembered: %1").arg(trust->forgetting());
        }
        return RVText::safe(text);
    }
    if (repository.trustPolicy().kind == RVTrustPolicy::Checksums) {
        return QStringLiteral("Integrity without authenticity: the list of sums is not signed");
    }
    return {};
}

RVCtlResult RVCtlCommands::trust(const RVCtlCall &call)
{
    QString error;
    if (call.arguments.constFirst() != QLatin1String("reset")) {
        return RVCtlResult::failed(RVCtlExit::Usage,
                                   QStringLiteral("usage: ravelctl trust reset SECTION"));
    }
    if (!call.world.readSections(&error)) {
        return RVCtlResult::failed(RVCtlExit::Failed, error);
    }
    const RVCtlWorld::Section *section = call.world.find(call.arguments.at(1), &error);
    if (!section) {
        return RVCtlResult::failed(RVCtlExit::Usage, error);
    }
    const RVTrustPolicy &policy = section->repository->trustPolicy();
    if (policy.kind != RVTrustPolicy::Signed || policy.fault.isSet()) {
        return RVCtlResult::failed(
            RVCtlExit::Usage,
            QStringLiteral("Section %1 has no signed list to forget.").arg(section->index));
    }
    RVTrustState state(call.world.paths());
    if (!state.forget(policy.repositoryId, policy.keyring, &error)) {
        return RVCtlResult::failed(
            RVCtlExit::Failed,
            QStringLiteral("The newest list cannot be forgotten: %1").arg(error));
    }
    return {RVCtlExit::Done,
            QStringLiteral("The next refresh accepts any valid list.\n"),
            {{QStringLiteral("index"), section->index},
             {QStringLiteral("trust"), RVCtlTrust::toJson(*section->repository)}},
            {}};
}

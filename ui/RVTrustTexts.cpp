// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "ui/RVTrustTexts.h"

#include "core/RVText.h"
#include "repository/RVRepository.h"
#include "repository/RVTrust.h"

#include <QCoreApplication>
#include <QLocale>

namespace
{

constexpr int longestSigner = 100;

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(RVTrustTexts)

public:
    static QString signedLine(const RVTrust &trust)
    {
        const QString line =
            tr("Signed by %1, valid until %2",
               "The arguments are the name of a key's owner and a date.")
                .arg(RVText::safe(RVText::shortened(trust.signer(), longestSigner)),
                     QLocale().toString(trust.list().validUntil.toLocalTime().date(),
                                        QLocale::ShortFormat));
        return trust.forgetting().isEmpty() ? line
                                            : line + QLatin1Char('\n')
                + tr("This device cannot remember the newest list, so it would not notice an "
                     "outdated one.");
    }
    static QString unsignedLine(const QUrl &location)
    {
        const QString scheme = location.scheme();
        if (scheme == QLatin1String("https")) {
            return tr("Not signed: whoever controls the server controls what is installed");
        }
        if (scheme == QLatin1String("http") || scheme == QLatin1String("ftp")) {
            return tr("Not signed: whoever controls the server or the network controls what is "
                      "installed");
        }
        return {};
    }
    static QString checksumsLine()
    {
        return tr("Checked for damage, but not signed: whoever controls the server controls what "
                  "is installed");
    }
    static QString signedExplanation()
    {
        return tr("Only files that the publisher has listed and signed are offered and installed.");
    }
    static QString unsignedExplanation()
    {
        return tr("The definition of this section does not require a signature. The publisher can "
                  "sign the repository.");
    }
    static QString sentence(RVTrustFault::Kind kind)
    {
        switch (kind) {
        case RVTrustFault::Definition:
        case RVTrustFault::Keyring:
        case RVTrustFault::NoVerifier:
        case RVTrustFault::State:
            return tr("This device cannot check the signature of the repository.");
        case RVTrustFault::NoList:
            return tr("The list of the repository's files, or its signature, is missing.");
        case RVTrustFault::Expired:
        case RVTrustFault::FutureTime:
            return tr(
                "The repository's signature is not currently valid, or this device's clock is "
                "wrong.");
        default:
            return tr("The repository is not what its publisher signed.");
        }
    }
    static QString imageNote()
    {
        return tr("The image is read once and compared with the repository's list, which reveals "
                  "damage. After the restart, the device fetches the image again and checks "
                  "nothing: a hostile server can then deliver another one.");
    }
};

bool isSigned(const RVRepository &repository)
{
    return repository.trustPolicy().kind == RVTrustPolicy::Signed;
}

} // namespace

QString RVTrustTexts::line(const RVRepository &repository)
{
    switch (repository.trustPolicy().kind) {
    case RVTrustPolicy::Signed:
        // An installation that fetched the list once more may have found it wanting.
        return repository.trust() && !repository.trust()->fault().isSet()
            ? Texts::signedLine(*repository.trust())
            : QString();
    case RVTrustPolicy::Checksums:
        return Texts::checksumsLine();
    case RVTrustPolicy::None:
        break;
    }
    return Texts::unsignedLine(repository.url());
}

QString RVTrustTexts::explanation(const RVRepository &repository)
{
    return isSigned(repository) ? Texts::signedExplanation() : Texts::unsignedExplanation();
}

QString RVTrustTexts::sentence(const RVTrustFault &fault)
{
    return Texts::sentence(fault.kind);
}

QString RVTrustTexts::imageNote()
{
    return Texts::imageNote();
}

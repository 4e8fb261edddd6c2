// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "network/RVCertificates.h"

#include "core/RVOrigin.h"

#include <QCryptographicHash>
#include <QNetworkReply>
#include <QRegularExpression>
#include <QSslConfiguration>
#include <QSslError>
#include <QStringList>

#include <algorithm>

namespace
{

/// The authority is not one that the system knows, or the certificate is its own.
const QSet<int> &unknownAuthority()
{
    static const QSet<int> codes{
        QSslError::UnableToGetIssuerCertificate,   QSslError::SelfSignedCertificate,
        QSslError::SelfSignedCertificateInChain,   QSslError::UnableToGetLocalIssuerCertificate,
        QSslError::UnableToVerifyFirstCertificate, QSslError::CertificateUntrusted,
    };
    return codes;
}

struct AcceptableError {
    const char *name = nullptr;
    QSslError::SslError code = QSslError::NoError;
};
constexpr AcceptableError acceptable[] = {
    {"expired", QSslError::CertificateExpired},
    {"not-yet-valid", QSslError::CertificateNotYetValid},
    {"host", QSslError::HostNameMismatch},
};

} // namespace

RVCertificateFault::RVCertificateFault(const QNetworkReply *reply, const QList<QSslError> &errors)
    : server(originOf(reply->url()))
    , certificate(reply->sslConfiguration().peerCertificate())
{
    for (const QSslError &error : errors) {
        if (certificate.isNull()) {
            certificate = error.certificate();
        }
        codes.insert(error.error());
    }
}

QString RVCertificateFault::sha256() const
{
    return certificate.isNull()
        ? QString()
        : QString::fromLatin1(certificate.digest(QCryptographicHash::Sha256).toHex());
}

QString RVCertificateFault::key() const
{
    if (certificate.isNull()) {
        return {};
    }
    QList<int> sorted = codes.values();
    std::sort(sorted.begin(), sorted.end());
    QString text = server + QLatin1Char(' ') + sha256();
    for (const int code : qAsConst(sorted)) {
        text += QLatin1Char(' ') + QString::number(code);
    }
    return text;
}

bool RVCertificateFault::isFinal() const
{
    return codes.contains(QSslError::CertificateRevoked)
        || codes.contains(QSslError::CertificateBlacklisted);
}

void RVCertificates::accept(const RVCertificateFault &fault)
{
    if (!fault.certificate.isNull()) {
        m_accepted.append({fault.server, fault.sha256(), fault.codes});
    }
}

bool RVCertificates::acceptFingerprint(const QString &text)
{
    static const QRegularExpression pattern(QStringLiteral(
        "\\A((?:[0-9A-Fa-f]{2}){32}|(?:[0-9A-Fa-f]{2}:){31}[0-9A-Fa-f]{2})(?::([a-z,-]+))?\\z"));
    const QRegularExpressionMatch match = pattern.match(text);
    if (!match.hasMatch()) {
        return false;
    }
    Accepted accepted;
    accepted.sha256 = match.captured(1).remove(QLatin1Char(':')).toLower();
    accepted.codes = unknownAuthority();
    const QStringList names =
        match.captured(2).isEmpty() ? QStringList() : match.captured(2).split(QLatin1Char(','));
    for (const QString &name : names) {
        const auto *word = std::find_if(std::begin(acceptable), std::end(acceptable),
                                        [&](const AcceptableError &known) {
                                            return QLatin1String(known.name) == name;
                                        });
        if (word == std::end(acceptable)) {
            return false;
        }
        accepted.codes.insert(word->code);
    }
    m_accepted.append(accepted);
    return true;
}

bool RVCertificates::accepts(const RVCertificateFault &fault) const
{
    const QString sha256 = fault.sha256();
    if (sha256.isEmpty() || fault.server.isEmpty() || fault.isFinal()) {
        return false;
    }
    return std::any_of(m_accepted.cbegin(), m_accepted.cend(), [&](const Accepted &accepted) {
        if (accepted.sha256 != sha256) {
            return false;
        }
        // Whoever has seen it has seen exactly this; a fingerprint names what there may be.
        return accepted.server.isEmpty()
            ? m_servers.contains(fault.server) && accepted.codes.contains(fault.codes)
            : accepted.server == fault.server && accepted.codes == fault.codes;
    });
}

QString RVCertificates::optionFor(const RVCertificateFault &fault)
{
    if (fault.certificate.isNull() || fault.isFinal()) {
        return {};
    }
    QSet<int> rest = fault.codes - unknownAuthority();
    QStringList names;
    for (const AcceptableError &word : acceptable) {
        if (rest.remove(word.code)) {
            names.append(QLatin1String(word.name));
        }
    }
    if (!rest.isEmpty()) {
        return {};
    }
    return names.isEmpty() ? fault.sha256()
                           : fault.sha256() + QLatin1Char(':') + names.join(QLatin1Char(','));
}

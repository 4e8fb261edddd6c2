// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QList>
#include <QSet>
#include <QSslCertificate>
#include <QString>
#include <QVector>

class QNetworkReply;
class QSslError;

/// What a question about certificates is about: one server, the certificate that it presented in
/// this handshake, and all that is wrong with it.
struct RVCertificateFault {
    /// For sslErrors(). The certificate is the server's own. The errors carry that of the authority
    /// as well, which stands for every server under it; they are asked only where the connection
    /// is not known.
    RVCertificateFault(const QNetworkReply *reply, const QList<QSslError> &errors);
    RVCertificateFault() = default;

    /// "scheme://host:port"; see originOf().
    QString server;
    /// Null when there is none.
    QSslCertificate certificate;
    /// QSslError::SslError values.
    QSet<int> codes;

    /// Of the certificate, in small hexadecimal digits; empty without one.
    QString sha256() const;
    /// Equal for equal faults of one certificate of one server; empty without a certificate.
    QString key() const;
    /// Nobody can accept a certificate that was withdrawn.
    bool isFinal() const;
};

/// The certificates that somebody vouched for in this run although they do not validate. Window and
/// command line have the same judgement: a handshake passes when its certificate was accepted for
/// its server, and what is wrong with it was accepted.
class RVCertificates
{
public:
    /// The user has seen the fault and accepts it.
    void accept(const RVCertificateFault &fault);
    /// `text` is "SHA256" or "SHA256:FAULT,...": a fingerprint of 64 hexadecimal digits, in pairs
    /// with colons or without, and what may be wrong beside an authority that nobody knows:
    /// "expired", "not-yet-valid", "host". It holds for setServers(). False when it makes no sense.
    bool acceptFingerprint(const QString &text);
    /// The servers, by originOf(), that fingerprints hold for; none before.
    void setServers(const QSet<QString> &servers) { m_servers = servers; }

    bool accepts(const RVCertificateFault &fault) const;
    /// What acceptFingerprint() takes to accept this fault; empty when nothing does.
    static QString optionFor(const RVCertificateFault &fault);

private:
    struct Accepted {
        /// Empty for a fingerprint, which holds for m_servers.
        QString server;
        QString sha256;
        QSet<int> codes;
    };

    QVector<Accepted> m_accepted;
    QSet<QString> m_servers;
};

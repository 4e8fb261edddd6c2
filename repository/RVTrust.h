// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/RVPaths.h"
#include "network/RVAccess.h"
#include "network/XUrlInfo.h"
#include "repository/RVChecksums.h"
#include "repository/RVSignature.h"
#include "repository/RVTrustPolicy.h"
#include "repository/RVTrustState.h"

#include <QAuthenticator>
#include <QList>
#include <QNetworkProxy>
#include <QNetworkReply>
#include <QObject>
#include <QPointer>
#include <QSslError>

#include <functional>
#include <set>

class XNetworkAccessManager;

/// The list of sums of one repository: fetches it with its signature, has both judged, and says
/// then whether a file is the one that the publisher listed. Shared by the entries of a refresh,
/// which it outlives with them.
///
/// Its final signal is finished(), once for each load(), from the event loop or inside cancel().
class RVTrust : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(RVTrust)

public:
    /// Whose files are these: those in the folder `location`, and of no other.
    RVTrust(const RVTrustPolicy &policy, const QUrl &location, const RVPaths &paths = {});
    ~RVTrust() override;

    /// Written before load().
    RVAccess access;
    /// Whether what was seen is written down for later; the fault is the same.
    bool isRemembering = true;
    /// See RVSignature.
    int verifierLimit = RVSignature::defaultInactivityMs;

    /// Fetches the list, past every cache if `isFresh`; what an earlier call has under way is
    /// dropped.
    void load(bool isFresh = false);
    /// Ends what is under way, with a fault.
    void cancel();

    const RVTrustPolicy &policy() const { return m_policy; }
    /// What is wrong before anything is fetched: with the definition, or with its keyring.
    RVTrustFault judgePolicy() const;
    /// Why the list cannot be used; the rest below is empty then.
    const RVTrustFault &fault() const { return m_fault; }
    const RVChecksums &list() const { return m_list; }
    const QByteArray &listText() const { return m_listText; }
    const QByteArray &signature() const { return m_signature; }
    const QString &signer() const { return m_signer; }
    qint64 signedAt() const { return m_signedAt; }
    /// Why a later refresh will not know of this one; empty when it will.
    const QString &forgetting() const { return m_forgetting; }

    /// In the repository's own folder.
    bool isOwn(const QUrl &url) const;
    /// Own, and in the list.
    bool isListed(const QUrl &url) const;
    QList<XUrlInfo> listed(const QList<XUrlInfo> &listing) const;
    /// Whether the list still holds now.
    RVTrustFault judgeTime() const;
    /// Whether a file is the listed one, by its SHA-256.
    RVTrustFault judge(const QUrl &url, const QByteArray &sum) const;
    /// The same for all that a random-access device holds, which is at its start again then.
    RVTrustFault judge(const QUrl &url, QIODevice *file) const;
    /// What was found not to be the listed file, for explanations.
    void refuse(const QUrl &url) { m_refused.insert(url); }
    bool isRefused(const QUrl &url) const { return m_refused.count(url) > 0; }

    /// Where the list lies.
    QUrl listUrl() const { return urlOf(RVChecksums::fileName); }
    QUrl signatureUrl() const { return urlOf(RVChecksums::signatureName); }
    /// A request that no cache answers.
    static QNetworkRequest request(const QUrl &url, bool isFresh);

Q_SIGNALS:
    void finished();
    void authenticationRequired(QNetworkReply *reply, QAuthenticator *auth);
    void proxyAuthenticationRequired(const QNetworkProxy &proxy, QAuthenticator *auth);
    void sslErrors(QNetworkReply *reply, const QList<QSslError> &errors);

private:
    QUrl urlOf(const QString &name) const;
    void fetch(const QString &name, int limit, QByteArray *target,
               const std::function<void()> &next);
    void fetchSignature();
    void verify();
    void judgeList();
    void retry(const RVTrustFault &fault);
    void drop();
    void releaseTransfer();
    void releaseVerifier();
    void end(const RVTrustFault &fault);

    const RVTrustPolicy m_policy;
    const RVPaths m_paths;
    const QUrl m_folder;
    RVTrustFault m_fault;
    RVChecksums m_list;
    QByteArray m_listText;
    QByteArray m_signature;
    QString m_signer;
    qint64 m_signedAt = 0;
    QString m_forgetting;
    std::set<QUrl> m_refused;
    // Of the load that runs.
    QPointer<XNetworkAccessManager> m_manager;
    QPointer<QNetworkReply> m_reply;
    RVSignature *m_verifier = nullptr;
    bool m_isFresh = false;
    bool m_isLoading = false;
};

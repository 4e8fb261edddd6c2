// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "repository/RVTrust.h"

#include "core/RVLogger.h"
#include "core/RVOrigin.h"
#include "core/RVUrl.h"
#include "network/XNetworkAccessManager.h"
#include "repository/RVFilter.h"
#include "repository/RVKeyringFile.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>

#include <utility>

namespace
{

constexpr int maxSignature = 64 * 1024;

bool isLocal(const QUrl &url)
{
    return url.scheme().isEmpty() || url.isLocalFile();
}

/// The folder that a location names, with a slash at its end.
QUrl folderOf(const QUrl &location)
{
    if (isLocal(location)) {
        return QUrl::fromLocalFile(QDir(QDir::cleanPath(location.path())).absolutePath()
                                   + QLatin1Char('/'));
    }
    QUrl folder = location.adjusted(QUrl::RemoveQuery | QUrl::RemoveFragment);
    if (!folder.path().endsWith(QLatin1Char('/'))) {
        folder.setPath(folder.path(QUrl::FullyEncoded) + QLatin1Char('/'), QUrl::TolerantMode);
    }
    return folder;
}

QByteArray pathAbove(const QUrl &file)
{
    const QByteArray path = file.path(QUrl::FullyEncoded).toLatin1();
    return path.left(path.lastIndexOf('/') + 1);
}

QByteArray sha256(const QByteArray &bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256);
}

} // namespace

RVTrust::RVTrust(const RVTrustPolicy &policy, const QUrl &location, const RVPaths &paths)
    : m_policy(policy)
    , m_paths(paths)
    , m_folder(folderOf(location))
{
}

RVTrust::~RVTrust()
{
    drop();
}

QNetworkRequest RVTrust::request(const QUrl &url, bool isFresh)
{
    QNetworkRequest request(url);
    if (isFresh) {
        request.setRawHeader("Cache-Control", "no-cache");
        request.setRawHeader("Pragma", "no-cache");
    }
    return request;
}

QUrl RVTrust::urlOf(const QString &name) const
{
    QUrl url = m_folder;
    url.setPath(m_folder.path(QUrl::FullyEncoded) + name, QUrl::TolerantMode);
    return url;
}

void RVTrust::load(bool isFresh)
{
    drop();
    m_isLoading = true;
    m_isFresh = isFresh;
    const RVTrustFault fault = judgePolicy();
    if (fault.isSet()) {
        QMetaObject::invokeMethod(
            this,
            [this, fault] {
                end(fault);
            },
            Qt::QueuedConnection);
        return;
    }
    fetch(RVChecksums::fileName, RVChecksums::maxBytes, &m_listText, [this] {
        if (m_policy.kind == RVTrustPolicy::Signed) {
            fetchSignature();
        } else {
            judgeList();
        }
    });
}

RVTrustFault RVTrust::judgePolicy() const
{
    QString reason;
    if (!m_policy.fault.isSet() && m_policy.kind == RVTrustPolicy::Signed
        && !RVKeyringFile::read(m_paths, m_policy.keyring, &reason)) {
        return {RVTrustFault::Keyring, reason};
    }
    return m_policy.fault;
}

void RVTrust::cancel()
{
    if (m_isLoading) {
        drop();
        end({RVTrustFault::NoList, QStringLiteral("Operation canceled")});
    }
}

// Nothing of it is heard any more.
void RVTrust::drop()
{
    releaseTransfer();
    releaseVerifier();
    m_list = RVChecksums();
    m_listText.clear();
    m_signature.clear();
    m_signer.clear();
    m_signedAt = 0;
}

// Neither goes with this object: it may be released in a slot of one of their signals.
void RVTrust::releaseTransfer()
{
    if (const QPointer<XNetworkAccessManager> manager = std::exchange(m_manager, nullptr)) {
        manager->setParent(nullptr);
        manager->disconnect(this);
        manager->deleteLater();
    }
    if (const QPointer<QNetworkReply> reply = std::exchange(m_reply, nullptr)) {
        reply->disconnect(this);
        if (!reply->isFinished()) {
            reply->abort();
        }
    }
}

void RVTrust::releaseVerifier()
{
    if (RVSignature *verifier = std::exchange(m_verifier, nullptr)) {
        verifier->setParent(nullptr);
        verifier->disconnect(this);
        verifier->deleteLater();
    }
}

void RVTrust::fetch(const QString &name, int limit, QByteArray *target,
                    const std::function<void()> &next)
{
    const QUrl url = urlOf(name);
    m_manager = new XNetworkAccessManager(this);
    access.configure(m_manager, url);
    m_manager->bodyLimit = limit + 1;
    connect(m_manager, &QNetworkAccessManager::authenticationRequired, this,
            [this](QNetworkReply *reply, QAuthenticator *auth) {
                if (!access.answer(reply, auth)) {
                    Q_EMIT authenticationRequired(reply, auth);
                }
            });
    connect(m_manager, &QNetworkAccessManager::proxyAuthenticationRequired, this,
            [this](const QNetworkProxy &proxy, QAuthenticator *auth) {
                if (!access.answer(proxy, auth)) {
                    Q_EMIT proxyAuthenticationRequired(proxy, auth);
                }
            });
    connect(m_manager, &QNetworkAccessManager::sslErrors, this, &RVTrust::sslErrors);
    m_reply = m_manager->get(request(access.withLogin(url), m_isFresh));
    connect(m_reply, &QNetworkReply::finished, this, [=] {
        QNetworkReply *reply = m_reply;
        releaseTransfer();
        // The limit of a transfer is none of local files.
        *target = reply->read(limit + 1);
        if (reply->error() != QNetworkReply::NoError) {
            end({RVTrustFault::NoList,
                 QStringLiteral("'%1' cannot be had: %2")
                     .arg(RVUrl::shown(url), reply->errorString())});
        } else if (target->size() > limit) {
            end({RVTrustFault::BadList,
                 QStringLiteral("'%1' is longer than %2 bytes.")
                     .arg(RVUrl::shown(url))
                     .arg(limit)});
        } else {
            next();
        }
    });
}

void RVTrust::fetchSignature()
{
    fetch(RVChecksums::signatureName, maxSignature, &m_signature, [this] {
        verify();
    });
}

void RVTrust::verify()
{
    QString reason;
    const auto keys = RVKeyringFile::read(m_paths, m_policy.keyring, &reason);
    if (!keys) {
        end({RVTrustFault::Keyring, reason});
        return;
    }
    m_verifier = new RVSignature(this, m_paths);
    m_verifier->inactivityLimit = verifierLimit;
    connect(m_verifier, &RVSignature::finished, this, [this] {
        const RVSignature::Result result = m_verifier->result();
        releaseVerifier();
        if (result.fault.kind == RVTrustFault::BadSignature) {
            retry(result.fault);
        } else if (!result.isGood()) {
            end(result.fault);
        } else {
            m_signer = result.signer;
            m_signedAt = result.signedAt;
            judgeList();
        }
    });
    m_verifier->start(m_listText, m_signature, *keys);
}

void RVTrust::judgeList()
{
    QString reason;
    const auto list = RVChecksums::parse(m_listText, &reason);
    if (!list) {
        retry({RVTrustFault::BadList,
               QStringLiteral("The list '%1' is not understood: %2.")
                   .arg(RVUrl::shown(listUrl()), reason)});
        return;
    }
    m_list = *list;
    if (m_policy.kind != RVTrustPolicy::Signed) {
        end({});
        return;
    }
    if (m_list.repositoryId.isEmpty() || !m_list.serial || !m_list.validUntil.isValid()) {
        end({RVTrustFault::BadList,
             QStringLiteral("The list '%1' does not say whose it is, its serial, and until when "
                            "it is valid.")
                 .arg(RVUrl::shown(listUrl()))});
        return;
    }
    if (m_list.repositoryId != m_policy.repositoryId) {
        end({RVTrustFault::OtherRepository,
             QStringLiteral("The list is one of the repository '%1' and not of '%2'.")
                 .arg(m_list.repositoryId, m_policy.repositoryId)});
        return;
    }
    const RVTrustState::Seen seen{*m_list.serial, m_signedAt, sha256(m_listText)};
    RVTrustState state(m_paths);
    const RVTrustFault fault =
        state.judge(m_policy.repositoryId, m_policy.keyring, seen, m_list.validUntil);
    m_forgetting.clear();
    if (!fault.isSet() && isRemembering
        && !state.remember(m_policy.repositoryId, m_policy.keyring, seen, &m_forgetting)) {
        RVLogger().log(4, "Freshness is not remembered: %s", qUtf8Printable(m_forgetting));
    }
    end(fault);
}

// A publisher may have been at work between the two, or a cache holds one of them back.
void RVTrust::retry(const RVTrustFault &fault)
{
    if (m_isFresh) {
        end(fault);
    } else {
        load(true);
    }
}

void RVTrust::end(const RVTrustFault &fault)
{
    if (!m_isLoading) {
        return;
    }
    m_isLoading = false;
    m_fault = fault;
    if (fault.isSet()) {
        RVLogger().log(3, "Not trusted: %s", RVLogger::oneLine(fault.text).constData());
        drop();
    }
    Q_EMIT finished();
}

bool RVTrust::isOwn(const QUrl &url) const
{
    if (m_folder.isLocalFile()) {
        return url.isLocalFile()
            && QDir::cleanPath(QFileInfo(url.toLocalFile()).path())
            == QDir::cleanPath(m_folder.toLocalFile());
    }
    return isSameOrigin(url, m_folder) && pathAbove(url) == pathAbove(m_folder);
}

bool RVTrust::isListed(const QUrl &url) const
{
    return isOwn(url) && !m_list.sumOf(url).isEmpty();
}

QList<XUrlInfo> RVTrust::listed(const QList<XUrlInfo> &listing) const
{
    QList<XUrlInfo> result;
    for (const XUrlInfo &item : listing) {
        if (!item.isDir() && isListed(RVFilter::urlOf(item))) {
            result.append(item);
        }
    }
    return result;
}

RVTrustFault RVTrust::judgeTime() const
{
    if (m_policy.kind != RVTrustPolicy::Signed || m_fault.isSet()) {
        return m_fault;
    }
    return RVTrustState(m_paths).judge(m_policy.repositoryId, m_policy.keyring,
                                       {*m_list.serial, m_signedAt, sha256(m_listText)},
                                       m_list.validUntil);
}

RVTrustFault RVTrust::judge(const QUrl &url, const QByteArray &sum) const
{
    if (m_fault.isSet()) {
        return m_fault;
    }
    if (!isListed(url)) {
        return {
            RVTrustFault::OtherFile,
            QStringLiteral("'%1' is not in the list of the repository.").arg(RVUrl::shown(url))};
    }
    const QByteArray listed = m_list.sumOf(url);
    if (sum == listed) {
        return {};
    }
    return {RVTrustFault::OtherFile,
            QStringLiteral("'%1' is not the file that the list has: its sum is %2 and not %3.")
                .arg(RVUrl::shown(url), QLatin1String(sum.toHex()), QLatin1String(listed.toHex()))};
}

RVTrustFault RVTrust::judge(const QUrl &url, QIODevice *file) const
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    if (!file->seek(0) || !hash.addData(file) || !file->seek(0)) {
        return {
            RVTrustFault::OtherFile,
            QStringLiteral("'%1' cannot be read: %2").arg(RVUrl::shown(url), file->errorString())};
    }
    return judge(url, hash.result());
}

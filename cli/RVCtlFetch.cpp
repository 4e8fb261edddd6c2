// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/RVCtlFetch.h"

#include "cli/RVCtlAccess.h"
#include "cli/RVCtlDeadline.h"
#include "cli/RVCtlFolder.h"
#include "install/RVWholeArchive.h"
#include "network/XNetworkAccessManager.h"
#include "repository/RVRepository.h"
#include "repository/RVTrust.h"

#include <QEventLoop>
#include <QNetworkRequest>

#include <cerrno>

namespace
{

constexpr int pieceSize = 64 * 1024;
/// Images are larger than what is spooled elsewhere.
constexpr qint64 largestFile = qint64(64) << 30;

RVCtlFault ofDisk(int reason)
{
    RVCtlFault fault;
    fault.kind = reason == ENOSPC || reason == EDQUOT ? RVCtlFault::Space : RVCtlFault::Target;
    fault.text = QStringLiteral("The file cannot be stored: %1").arg(qt_error_string(reason));
    return fault;
}

/// The next piece is on the disk, or errno says why not.
bool copyAvailable(QNetworkReply *reply, QFile *part)
{
    QByteArray piece(pieceSize, Qt::Uninitialized);
    qint64 length = 0;
    while ((length = reply->read(piece.data(), piece.size())) > 0) {
        errno = 0;
        if (part->write(piece.constData(), length) != length) {
            return false;
        }
    }
    return true;
}

bool isSound(const QString &file, const QByteArray &name)
{
    const QByteArray lower = name.toLower();
    if (lower.endsWith(".deb")) {
        return RVWholeArchive::isWholePackage(file);
    }
    return !lower.endsWith(".xar") || RVWholeArchive::isServicePack(file);
}

} // namespace

RVCtlFetch::RVCtlFetch(const RVRepository &repository, RVCtlAccess *access, RVCtlDeadline *deadline)
    : m_source(repository.access())
    , m_access(access)
    , m_deadline(deadline)
    , m_manager(std::make_unique<XNetworkAccessManager>())
{
    m_source.bodyLimit = largestFile;
    trust = repository.trust();
    connect(m_manager.get(), &QNetworkAccessManager::authenticationRequired, this,
            [this](QNetworkReply *reply, QAuthenticator *auth) {
                m_source.answer(reply, auth);
            });
    connect(m_manager.get(), &QNetworkAccessManager::proxyAuthenticationRequired, this,
            [this](const QNetworkProxy &proxy, QAuthenticator *auth) {
                m_source.answer(proxy, auth);
            });
    connect(m_manager.get(), &QNetworkAccessManager::sslErrors, this,
            [this](QNetworkReply *reply, const QList<QSslError> &errors) {
                m_access->judge(reply, errors);
            });
}

RVCtlFetch::~RVCtlFetch() = default;

RVCtlFault RVCtlFetch::fetch(const QUrl &url, const QByteArray &name, const RVCtlFolder &folder,
                             const std::function<void(qint64)> &progress)
{
    QFile part;
    if (!folder.begin(name, &part)) {
        return ofDisk(errno);
    }
    RVCtlFault fault = transfer(url, &part, progress);
    if (!fault.isSet() && !m_deadline->isOver() && trust) {
        const RVTrustFault refusal = trust->judge(url, &part);
        if (refusal.isSet()) {
            fault.kind = RVCtlFault::Refused;
            fault.text = refusal.text;
        }
    }
    if (!fault.isSet() && !m_deadline->isOver() && !isSound(folder.partPath(name), name)) {
        fault.kind = RVCtlFault::Damaged;
        fault.text = QStringLiteral("The archive is damaged or not complete.");
    }
    if (!fault.isSet() && !m_deadline->isOver() && !folder.complete(name, &part)) {
        fault = ofDisk(errno);
    }
    if (fault.isSet()) {
        folder.drop(name);
    }
    return fault;
}

void RVCtlFetch::renewList()
{
    m_isFresh = true;
    trust->access = m_source;
    QEventLoop loop;
    connect(trust.data(), &RVTrust::finished, &loop, &QEventLoop::quit);
    connect(trust.data(), &RVTrust::sslErrors, &loop,
            [this](QNetworkReply *reply, const QList<QSslError> &errors) {
                m_access->judge(reply, errors);
            });
    connect(m_deadline, &RVCtlDeadline::over, &loop, &QEventLoop::quit);
    trust->load(true);
    loop.exec();
}

RVCtlFault RVCtlFetch::transfer(const QUrl &url, QFile *part,
                                const std::function<void(qint64)> &progress)
{
    m_source.configure(m_manager.get(), url);
    const std::unique_ptr<QNetworkReply> reply(
        m_manager->get(RVTrust::request(m_source.withLogin(url), m_isFresh)));
    RVCtlFault fault;
    QEventLoop loop;
    const auto take = [&] {
        if (!fault.isSet() && !copyAvailable(reply.get(), part)) {
            fault = ofDisk(errno == 0 ? EIO : errno);
            reply->abort();
        }
        progress(part->pos());
    };
    connect(reply.get(), &QNetworkReply::readyRead, &loop, take);
    connect(reply.get(), &QNetworkReply::finished, &loop, &QEventLoop::quit);
    connect(m_deadline, &RVCtlDeadline::over, &loop, &QEventLoop::quit);
    if (!reply->isFinished() && !m_deadline->isOver()) {
        loop.exec();
    }
    if (!fault.isSet() && reply->error() != QNetworkReply::NoError) {
        fault = RVCtlFault::ofReply(*reply);
    } else if (!m_deadline->isOver()) {
        take();
    }
    return fault;
}

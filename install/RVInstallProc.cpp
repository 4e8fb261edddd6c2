// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "install/RVInstallProc.h"

#include "archive/ImageQuestion.h"
#include "core/LocalCopy.h"
#include "core/RVLimits.h"
#include "core/RVLogger.h"
#include "core/RVSum.h"
#include "core/RVUrl.h"
#include "descriptor/DataXML.h"
#include "descriptor/DescriptorGeneric.h"
#include "install/RVImageCheck.h"
#include "install/RVInstallerEnvironment.h"
#include "install/RVShown.h"
#include "network/XHttpReply.h"
#include "network/XNetworkAccessManager.h"
#include "repository/RVTrust.h"

#include <plume/TemporaryDir.h>

#include <QAuthenticator>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QNetworkRequest>
#include <QPointer>

#include <algorithm>
#include <limits>
#include <utility>

namespace
{

bool isPackage(const QUrl &url)
{
    return QFileInfo(url.path()).suffix().compare(QLatin1String("deb"), Qt::CaseInsensitive) == 0;
}

QList<RVData> withArchiveOnce(const QList<RVData> &entries)
{
    QList<RVData> result;
    for (const RVData &entry : entries) {
        const bool known = std::any_of(result.cbegin(), result.cend(), [&](const RVData &other) {
            return other.archive() == entry.archive();
        });
        if (entry.archive() && !known) {
            result.append(entry);
        }
    }
    return result;
}

} // namespace

RVInstallProc::RVInstallProc(const QList<RVData> &entries, const QString &user,
                             const QString &password, QObject *parent, const RVPaths &paths)
    : QProcess(parent)
    , m_entries(withArchiveOnce(entries))
    , m_batch(RVBatch::of(m_entries, nullptr))
    , m_keeper(paths)
{
    access.login = {user, password};
    setProcessEnvironment(RVInstallerEnvironment::of(paths));
    setStandardInputFile(nullDevice());

    // Whichever archive starts the installer.
    connect(this, &QProcess::stateChanged, this, [this](QProcess::ProcessState state) {
        switch (state) {
        case QProcess::Starting:
            // After a no there is no run to be remembered.
            if (!m_isDeclined) {
                m_keeper.prepare(processChannelMode() == MergedChannels, heldLocks);
            }
            break;
        case QProcess::Running:
            m_keeper.release();
            break;
        case QProcess::NotRunning:
            m_keeper.forget();
            break;
        }
    });
    connect(this, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), this, [this] {
        m_state = State::Ended;
    });
    connect(this, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) {
            m_state = State::Ended;
        }
    });
}

RVInstallProc::RVInstallProc(const RVData &entry, QObject *parent, const RVPaths &paths)
    : RVInstallProc(QList<RVData>{entry}, QString(), QString(), parent, paths)
{
}

RVInstallProc::~RVInstallProc()
{
    if (state() != QProcess::NotRunning) {
        // However long it takes: dpkg dies of a reader that goes away and leaves its packages half
        // installed. Nobody is told, since the watchers may be half destroyed already.
        blockSignals(true);
        waitForFinished(-1);
    }
    leaveTemporaryDir();
}

void RVInstallProc::setupChildProcess()
{
    if (!m_isDeclined) {
        m_keeper.keep();
    }
}

void RVInstallProc::start()
{
    if (m_entries.isEmpty() || m_state == State::Downloading || m_state == State::Installing) {
        return;
    }
    m_state = State::Downloading;
    m_next = 0;
    m_pending.clear();
    if (!m_temporaryDir || !m_temporaryDir->isValid()) {
        m_previousDir = QDir::currentPath();
        m_temporaryDir = std::make_unique<TemporaryDir>();
    }
    if (!enterTemporaryDir()) {
        return;
    }
    connect(this, &RVInstallProc::extractFinished, this, &RVInstallProc::startInstallation,
            Qt::UniqueConnection);

    m_replies.clear();
    m_received.clear();
    m_expectedTotal = 0;
    m_unfit.clear();
    m_isFresh = false;
    m_hasRefused = false;
    m_isDeclined = false;
    m_certificateWarning = {};
    for (const RVData &entry : m_entries) {
        // It may be long since the list was read.
        const RVTrustFault fault = entry.trust ? entry.trust->judgeTime() : RVTrustFault();
        if (fault.isSet()) {
            failTrust(fault);
            return;
        }
    }
    if (m_entries.first().archive()->isImage()) {
        startImageCheck();
        return;
    }
    if (!m_entries.first().archive()->useExtract()) {
        Q_EMIT extractFinished();
        return;
    }
    m_replies.fill(nullptr, m_entries.size());
    m_received.fill(0, m_entries.size());
    for (const RVData &entry : m_entries) {
        // As it stands: a size that is not announced is -1.
        const qint64 size = entry.descriptor() ? entry.descriptor()->size() : -1;
        m_expectedTotal = saturatingSum(m_expectedTotal, size);
    }
    startDownloads();
}

void RVInstallProc::cancel()
{
    RVLogger().log(5, "INSTALL FETCH CANCEL, KILLING %d FETCHES",
                   static_cast<int>(m_pending.size()) + (m_imageCheck ? 1 : 0));
    // A second final signal would be taken for a second installation.
    if (m_state == State::Installing || m_state == State::Ended) {
        return;
    }
    m_state = State::Ended;
    if (m_imageCheck) {
        m_imageCheck->disconnect(this);
        m_imageCheck->deleteLater();
        m_imageCheck = nullptr;
    }
    // Emptied first: what still arrives from these downloads is not theirs any more to unpack.
    QList<QPointer<QNetworkReply>> replies;
    const QMap<ArchiveGeneric *, QNetworkReply *> pending = std::exchange(m_pending, {});
    for (auto it = pending.cbegin(); it != pending.cend(); ++it) {
        disconnect(it.key(), &ArchiveGeneric::extractFinished, this,
                   &RVInstallProc::incExtractFinished);
        replies.append(it.value());
    }
    for (const QPointer<QNetworkReply> &reply : std::as_const(replies)) {
        // Whoever hears of an error may run an event loop, in which other replies end and go away.
        if (reply) {
            reply->abort();
            reply->manager()->deleteLater();
            reply->deleteLater();
        }
    }
    Q_EMIT finished(1, QProcess::CrashExit);
}

void RVInstallProc::startDownloads()
{
    while (m_state == State::Downloading && m_next < m_entries.size()
           && m_pending.size() < RVLimits::transfersNow()) {
        startDownload(m_next++);
    }
}

void RVInstallProc::startDownload(int index)
{
    const RVData &entry = m_entries.at(index);
    ArchiveGeneric *archive = entry.archive().data();
    const QUrl &url = entry.archiveUrl();
    if (!m_batch.items.at(index).isReached) {
        RVLogger().log(4, "'%s' cannot be installed together with other updates",
                       RVLogger::oneLine(url).constData());
        return;
    }

    auto *manager = new XNetworkAccessManager(this);
    access.configure(manager, url);
    if (access.hasProxy()) {
        archive->setProxy(proxyHost, proxyPort);
    }
    connect(manager, &QNetworkAccessManager::authenticationRequired, this,
            &RVInstallProc::relayAuthenticationRequired);
    connect(manager, &QNetworkAccessManager::proxyAuthenticationRequired, this,
            &RVInstallProc::relayProxyAuthenticationRequired);
    connect(manager, &QNetworkAccessManager::sslErrors, this, &RVInstallProc::relaySslErrors);

    QNetworkReply *reply = manager->get(RVTrust::request(access.withLogin(url), m_isFresh));
    if (reply->error() != QNetworkReply::NoError) {
        Q_EMIT networkError(reply);
        reply->abort();
        manager->deleteLater();
        reply->deleteLater();
        return;
    }

    m_pending.insert(archive, reply);
    m_replies[index] = reply;
    connect(archive, &ArchiveGeneric::extractFinished, this, &RVInstallProc::incExtractFinished,
            Qt::UniqueConnection);
    connect(manager, &QNetworkAccessManager::finished, this,
            [this, archive](QNetworkReply *finished) {
                downloadFinished(archive, finished);
            });
    connect(manager, &QNetworkAccessManager::finished, this, &RVInstallProc::deleteSenderLater);
    connect(reply, &QNetworkReply::downloadProgress, this, &RVInstallProc::progress);
    connect(reply, &QNetworkReply::errorOccurred, this, &RVInstallProc::relayNetworkError);
    connect(reply, &QNetworkReply::finished, reply, &QObject::deleteLater);
    connect(reply, &QObject::destroyed, this, &RVInstallProc::replyDestroyed);
}

void RVInstallProc::downloadFinished(ArchiveGeneric *archive, QNetworkReply *reply)
{
    if (m_pending.value(archive) != reply) {
        return;
    }
    // Another procedure may have changed the directory since this one started.
    if (m_temporaryDir->cdTo()) {
        const int index = indexOf(archive);
        const RVData &entry = m_entries.at(index);
        const bool isLookedAt = entry.trust || !isPackage(entry.archiveUrl());
        if (isLookedAt && reply->error() == QNetworkReply::NoError) {
            extractCopy(index, reply);
        } else {
            archive->extract(reply);
        }
    } else {
        RVLogger().log(3, "Could not enter '%s'", qUtf8Printable(m_temporaryDir->path()));
        endDownload(archive);
    }
}

int RVInstallProc::indexOf(const ArchiveGeneric *archive) const
{
    const auto isOf = [archive](const RVData &entry) {
        return entry.archive() == archive;
    };
    return static_cast<int>(std::find_if(m_entries.cbegin(), m_entries.cend(), isOf)
                            - m_entries.cbegin());
}

// The file that is looked at is the one that is unpacked. A package is looked at once it is there.
void RVInstallProc::extractCopy(int index, QNetworkReply *reply)
{
    const RVData &entry = m_entries.at(index);
    LocalCopy copy;
    if (!copy.take(reply)) {
        RVLogger().log(3, "Could not store '%s'",
                       RVLogger::oneLine(entry.archiveUrl()).constData());
        endDownload(entry.archive().data());
        return;
    }
    const RVTrustFault fault =
        entry.trust ? entry.trust->judge(entry.archiveUrl(), copy.file()) : RVTrustFault();
    if (!fault.isSet()) {
        if (isPackage(entry.archiveUrl()) || isAsShown(entry, copy.file())) {
            entry.archive()->extract(copy.file());
        } else {
            endDownload(entry.archive().data());
        }
        return;
    }
    RVLogger().log(3, "%s", RVLogger::oneLine(fault.text).constData());
    if (m_isFresh) {
        failTrust(fault);
        return;
    }
    m_unfit.append(index);
    endDownload(entry.archive().data());
}

// The publisher may have been at work since the refresh, or a cache holds something back.
void RVInstallProc::renewList()
{
    m_isFresh = true;
    const QSharedPointer<RVTrust> trust = m_entries.at(m_unfit.constFirst()).trust;
    connect(trust.data(), &RVTrust::finished, this, [this, trust] {
        disconnect(trust.data(), nullptr, this, nullptr);
        if (m_state != State::Downloading) {
            return;
        }
        if (trust->fault().isSet()) {
            failTrust(trust->fault());
            return;
        }
        const QList<int> unfit = std::exchange(m_unfit, {});
        if (m_entries.first().archive()->isImage()) {
            startImageCheck();
            return;
        }
        for (const int index : unfit) {
            startDownload(index);
        }
        continueDownloads();
    });
    connect(trust.data(), &RVTrust::authenticationRequired, this,
            &RVInstallProc::authenticationRequired);
    connect(trust.data(), &RVTrust::proxyAuthenticationRequired, this,
            &RVInstallProc::proxyAuthenticationRequired);
    connect(trust.data(), &RVTrust::sslErrors, this, &RVInstallProc::sslErrors);
    trust->access = access;
    trust->load(true);
}

// What is found is damage: the device fetches the image again, from a server that may give another
// one then.
void RVInstallProc::startImageCheck()
{
    const RVData &entry = m_entries.first();
    const auto reads = entry.trust ? RVImageCheck::Reads::All : RVImageCheck::Reads::Head;
    const qint64 size = entry.trust && entry.descriptor() ? entry.descriptor()->size() : -1;
    m_imageCheck = new RVImageCheck(entry, access, reads, m_isFresh, this);
    connect(m_imageCheck, &RVImageCheck::networkError, this, &RVInstallProc::networkError);
    connect(m_imageCheck, &RVImageCheck::sslErrors, this, &RVInstallProc::relaySslErrors);
    connect(m_imageCheck, &RVImageCheck::progress, this, [this, size](qint64 bytesReceived) {
        if (size > 0) {
            Q_EMIT downloadProgress(qMin(bytesReceived, size), size);
        }
    });
    connect(m_imageCheck, &RVImageCheck::finished, this, &RVInstallProc::imageChecked);
    m_imageCheck->start();
}

void RVInstallProc::imageChecked()
{
    const RVImageCheck &check = *m_imageCheck;
    const RVData &entry = m_entries.first();
    m_imageCheck->deleteLater();
    m_imageCheck = nullptr;
    if (m_state != State::Downloading) {
        return;
    }
    if (entry.trust && !check.hasFailed()) {
        const RVTrustFault fault = entry.trust->judge(entry.archiveUrl(), check.sum());
        if (fault.isSet() && m_isFresh) {
            failTrust(fault);
            return;
        }
        if (fault.isSet()) {
            m_unfit = {0};
            renewList();
            return;
        }
    }
    if (!check.fault().isEmpty()) {
        m_hasRefused = true;
        const QString reason = check.fault().english();
        Q_EMIT archiveRefused(entry.archiveUrl(), check.fault().translated());
        fail(reason);
        return;
    }
    m_certificateWarning = check.certificateWarning();
    Q_EMIT extractFinished();
}

void RVInstallProc::failTrust(const RVTrustFault &fault)
{
    m_trustFault = fault;
    RVLogger().log(3, "Not trusted: %s", RVLogger::oneLine(fault.text).constData());
    Q_EMIT trustFailed();
    cancel();
}

void RVInstallProc::incExtractFinished()
{
    if (auto *archive = qobject_cast<ArchiveGeneric *>(sender())) {
        const RVData &entry = m_entries.at(indexOf(archive));
        QFile package(QDir(m_temporaryDir->path()).filePath(RVUrl::fileName(entry.archiveUrl())));
        if (isPackage(entry.archiveUrl()) && package.exists() && !isAsShown(entry, &package)) {
            // The installer takes every package of the directory.
            package.remove();
        }
        endDownload(archive);
    }
}

bool RVInstallProc::isAsShown(const RVData &entry, QFile *file)
{
    const QString difference = RVShown::difference(entry, file);
    if (difference.isEmpty()) {
        return true;
    }
    RVLogger().log(3, "%s: %s", RVLogger::oneLine(entry.archiveUrl()).constData(),
                   RVLogger::oneLine(difference).constData());
    m_hasRefused = true;
    Q_EMIT archiveRefused(entry.archiveUrl(), difference);
    return false;
}

void RVInstallProc::endDownload(ArchiveGeneric *archive)
{
    m_pending.remove(archive);
    disconnect(archive, &ArchiveGeneric::extractFinished, this, &RVInstallProc::incExtractFinished);
    continueDownloads();
}

void RVInstallProc::continueDownloads()
{
    startDownloads();
    if (m_state != State::Downloading || !m_pending.isEmpty()) {
        return;
    }
    if (!m_unfit.isEmpty()) {
        renewList();
    } else if (m_hasRefused && QDir(m_temporaryDir->path()).isEmpty()) {
        fail(QStringLiteral("Nothing is left to install"));
    } else {
        Q_EMIT extractFinished();
    }
}

void RVInstallProc::startInstallation()
{
    disconnect(this, &RVInstallProc::extractFinished, this, &RVInstallProc::startInstallation);
    if (m_state != State::Downloading) {
        // Another receiver of the signal has cancelled.
        return;
    }
    RVLogger().log(5, "  Starting installation.");
    m_state = State::Installing;
    if (!enterTemporaryDir()) {
        return;
    }
    // Held here, because a backend may ask the user and so run an event loop in which this object
    // goes away.
    const QSharedPointer<ArchiveGeneric> first = m_entries.first().archive();
    if (!first->urlIsHandled()) {
        fail(QStringLiteral("There is no installer for '%1'").arg(RVUrl::shown(first->url())));
        return;
    }
    connect(first.data(), &ArchiveGeneric::installStarted, this,
            &RVInstallProc::relayInstallStarted, Qt::UniqueConnection);
    connect(first.data(), &ArchiveGeneric::installDeclined, this, [this] {
        m_isDeclined = true;
    });
    if (access.hasProxy()) {
        first->setProxy(proxyHost, proxyPort);
    }
    if (imageQuestion && first->isImage()) {
        const RVData &entry = m_entries.first();
        const auto &descriptor = entry.descriptor();
        imageQuestion->name = descriptor ? DataXML::plainText(descriptor->name({})) : QString();
        imageQuestion->version =
            descriptor ? DataXML::plainText(descriptor->version().toString()) : QString();
        imageQuestion->isChecked = !entry.trust.isNull();
        imageQuestion->certificateWarning = m_certificateWarning;
    }
    first->setImageQuestion(imageQuestion);
    first->install(this);
}

bool RVInstallProc::enterTemporaryDir()
{
    if (m_temporaryDir->cdTo()) {
        return true;
    }
    fail(
        QStringLiteral("Could not enter the temporary directory '%1'").arg(m_temporaryDir->path()));
    return false;
}

void RVInstallProc::leaveTemporaryDir()
{
    // A process whose current directory was removed cannot start programs or resolve a name.
    if (m_temporaryDir && QDir::current() == QDir(m_temporaryDir->path())
        && !QDir::setCurrent(m_previousDir)) {
        QDir::setCurrent(QDir::rootPath());
    }
}

void RVInstallProc::fail(const QString &reason)
{
    RVLogger().log(3, "%s", qUtf8Printable(reason));
    m_state = State::Ended;
    Q_EMIT finished(1, QProcess::CrashExit);
}

void RVInstallProc::deleteSenderLater(QNetworkReply *reply)
{
    Q_UNUSED(reply)
    sender()->deleteLater();
}

void RVInstallProc::relayNetworkError(QNetworkReply::NetworkError err)
{
    Q_UNUSED(err)
    Q_EMIT networkError(qobject_cast<QNetworkReply *>(sender()));
}

void RVInstallProc::relayAuthenticationRequired(QNetworkReply *reply, QAuthenticator *auth)
{
    Q_EMIT authenticationRequired(XHttpReply::outer(reply), auth);
}

void RVInstallProc::relayProxyAuthenticationRequired(const QNetworkProxy &proxy,
                                                     QAuthenticator *auth)
{
    Q_EMIT proxyAuthenticationRequired(proxy, auth);
}

void RVInstallProc::relaySslErrors(QNetworkReply *reply, const QList<QSslError> &errors)
{
    Q_EMIT sslErrors(reply, errors);
}

void RVInstallProc::replyDestroyed(QObject *obj)
{
    // A slot that kept its address would mistake a later reply at the same place for this one.
    const auto isDestroyed = [obj](const QNetworkReply *reply) {
        return reply == obj;
    };
    std::replace_if(m_replies.begin(), m_replies.end(), isDestroyed, nullptr);
    const auto pending = std::find_if(m_pending.cbegin(), m_pending.cend(), isDestroyed);
    if (pending != m_pending.cend()) {
        endDownload(pending.key());
    }
}

void RVInstallProc::relayInstallStarted()
{
    Q_EMIT installStarted();
}

void RVInstallProc::progress(qint64 bytesReceived, qint64 bytesTotal)
{
    Q_UNUSED(bytesTotal)
    const int index = m_replies.indexOf(qobject_cast<QNetworkReply *>(sender()));
    if (m_expectedTotal <= 0 || index < 0) {
        return;
    }
    m_received[index] = bytesReceived;
    qint64 sum = 0;
    for (const qint64 received : std::as_const(m_received)) {
        sum = saturatingSum(sum, received);
    }
    Q_EMIT downloadProgress(qMin(sum, m_expectedTotal), m_expectedTotal);
}

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "install/RVInstallProc.h"

#include "archive/ArchiveXar.h"
#include "archive/ImageQuestion.h"
#include "core/LocalCopy.h"
#include "core/RVLimits.h"
#include "core/RVLogger.h"
#include "core/RVSum.h"
#include "core/RVUrl.h"
#include "descriptor/DataXML.h"
#include "descriptor/DescriptorGeneric.h"
#include "install/RVFolderMark.h"
#include "install/RVFreeSpace.h"
#include "install/RVImageCheck.h"
#include "install/RVInstallerEnvironment.h"
#include "install/RVShown.h"
#include "install/RVVerify.h"
#include "install/RVWholeArchive.h"
#include "network/XHttpReply.h"
#include "network/XNetworkAccessManager.h"
#include "repository/RVTrust.h"

#include <plume/TemporaryDir.h>

#include <QAuthenticator>
#include <QCoreApplication>
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

QString rawName(const RVData &entry)
{
    if (!entry.descriptor()) {
        return {};
    }
    const QString english = entry.descriptor()->name(QStringLiteral("en"));
    return english.isEmpty() ? entry.descriptor()->name({}) : english;
}

/// A name for a package in the batch's folder that is like the archive's own: dpkg shows it.
QString freeName(const QDir &folder, const QString &name)
{
    // What the file system's encoding does not have would be another name the next time.
    const QString base =
        QFile::decodeName(QFile::encodeName(name)) == name ? name : QStringLiteral("package.deb");
    QString result = base;
    for (int number = 2; folder.exists(result); ++number) {
        result = QStringLiteral("%1-%2").arg(number).arg(base);
    }
    return result;
}

} // namespace

RVInstallProc::RVInstallProc(const QList<RVData> &entries, const QString &user,
                             const QString &password, QObject *parent, const RVPaths &paths)
    : QProcess(parent)
    , m_paths(paths)
    , m_batch(RVBatch::of(entries, nullptr))
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
                m_keeper.prepare(processChannelMode() == MergedChannels,
                                 heldLocks
                                     + QVector<int>{m_folderMark ? m_folderMark->lock() : -1});
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
    // Before any other receiver: the result is there when they hear of the end.
    connect(this, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), this,
            &RVInstallProc::conclude);
    connect(this, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) {
            m_reason = RVSentence(
                QT_TRANSLATE_NOOP("RVSentence", "The installer '%1' cannot be started: %2"),
                {program(), errorString()});
            conclude(1, QProcess::NormalExit);
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
    if (m_batch.items.isEmpty() || m_state == State::Downloading || m_state == State::Installing) {
        return;
    }
    m_state = State::Downloading;
    m_next = 0;
    m_pending.clear();
    m_unfit.clear();
    m_isFresh = false;
    m_trustFault = {};
    m_isCancelled = false;
    m_isInstallerStarted = false;
    m_reason = {};
    m_verify.reset();
    m_result = {};
    const int downloads = qMax(1, m_batch.downloads.size());
    m_replies.fill(nullptr, downloads);
    m_received.fill(0, downloads);
    m_faults = QVector<RVDownloadFault>(downloads);
    m_identities = QVector<Identity>(downloads);
    m_expectedTotal = 0;

    // What an earlier start() left is not part of this one.
    if (m_temporaryDir) {
        leaveTemporaryDir();
    } else {
        m_previousDir = QDir::currentPath();
    }
    m_temporaryDir = std::make_unique<TemporaryDir>();
    m_folderMark = std::make_unique<RVFolderMark>(m_temporaryDir->path());
    if (!enterTemporaryDir()) {
        return;
    }
    connect(this, &RVInstallProc::extractFinished, this, &RVInstallProc::startInstallation,
            Qt::UniqueConnection);
    m_isDeclined = false;
    m_certificateWarning = {};
    for (const RVBatch::Item &item : m_batch.items) {
        // It may be long since the list was read.
        const RVTrustFault fault =
            item.entry.trust ? item.entry.trust->judgeTime() : RVTrustFault();
        if (fault.isSet()) {
            failTrust(fault);
            return;
        }
        if (!item.isReached) {
            RVLogger().log(4, "'%s' cannot be installed together with other updates",
                           RVLogger::oneLine(item.entry.archiveUrl()).constData());
        }
    }
    if (m_batch.isImage()) {
        startImageCheck();
        return;
    }
    if (m_batch.downloads.isEmpty()) {
        Q_EMIT extractFinished();
        return;
    }
    for (const RVData &entry : m_batch.downloads) {
        // As it stands: a size that is not announced is -1.
        const qint64 size = entry.descriptor() ? entry.descriptor()->size() : -1;
        m_expectedTotal = saturatingSum(m_expectedTotal, size);
    }
    continueDownloads();
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
    m_isCancelled = m_reason.isEmpty();
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

void RVInstallProc::refuse(const RVSentence &reason)
{
    if (m_state == State::Downloading) {
        m_reason = reason;
        cancel();
    }
}

void RVInstallProc::startDownloads()
{
    while (m_state == State::Downloading && m_next < m_batch.downloads.size()
           && m_pending.size() < RVLimits::transfersNow()) {
        startDownload(m_next++);
    }
}

void RVInstallProc::startDownload(int index)
{
    const RVData &entry = m_batch.downloads.at(index);
    ArchiveGeneric *archive = entry.archive().data();
    const QUrl &url = entry.archiveUrl();

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
        leaveOut(index, RVDownloadFault::ofReply(*reply));
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
    unpack(indexOf(archive), reply);
    endDownload(archive);
    continueDownloads();
}

int RVInstallProc::indexOf(const ArchiveGeneric *archive) const
{
    const QList<RVData> &downloads = m_batch.downloads;
    const auto isOf = [archive](const RVData &entry) {
        return entry.archive() == archive;
    };
    return static_cast<int>(std::find_if(downloads.cbegin(), downloads.cend(), isOf)
                            - downloads.cbegin());
}

const RVData &RVInstallProc::firstEntry() const
{
    return m_batch.items.first().entry;
}

void RVInstallProc::unpack(int index, QNetworkReply *reply)
{
    const RVData &entry = m_batch.downloads.at(index);
    if (reply->error() != QNetworkReply::NoError) {
        entry.archive()->extract(reply);
        leaveOut(index, RVDownloadFault::ofReply(*reply));
        return;
    }
    // Each in a folder of its own, where it can neither meet another nor leave anything behind.
    const QDir batch(m_temporaryDir->path());
    const QString folder = batch.filePath(ArchiveXar::packFolder(index));
    if (!batch.mkpath(folder) || !QDir::setCurrent(folder)) {
        leaveOut(index, storageFault(index, reply));
        return;
    }
    const RVDownloadFault fault = unpackHere(index, reply);
    // Another procedure may have changed the directory since this one started.
    m_temporaryDir->cdTo();
    const bool isKept = !fault.isSet() && !m_unfit.contains(index) && m_state == State::Downloading;
    if (isKept && m_batch.isPackages()) {
        // One run of dpkg takes all packages of the batch's folder.
        const QString name = RVUrl::fileName(entry.archiveUrl());
        QDir(folder).rename(name, batch.filePath(freeName(batch, name)));
    }
    if (!isKept || m_batch.isPackages()) {
        QDir(folder).removeRecursively();
    }
    if (fault.isSet()) {
        leaveOut(index, fault);
    }
}

RVDownloadFault RVInstallProc::unpackHere(int index, QNetworkReply *reply)
{
    const RVData &entry = m_batch.downloads.at(index);
    LocalCopy copy;
    bool isExtracted = false;
    if (entry.trust || !m_batch.isPackages()) {
        // The file that is looked at is the one that is unpacked.
        if (!copy.take(reply)) {
            return storageFault(index, reply);
        }
        const RVTrustFault fault =
            entry.trust ? entry.trust->judge(entry.archiveUrl(), copy.file()) : RVTrustFault();
        if (fault.isSet()) {
            RVLogger().log(3, "%s", RVLogger::oneLine(fault.text).constData());
            if (m_isFresh) {
                m_faults[index] = untrusted(fault);
                failTrust(fault);
            } else {
                m_unfit.append(index);
            }
            return {};
        }
        if (!m_batch.isPackages()) {
            RVDownloadFault difference = differenceOf(index, copy.file());
            if (difference.isSet()) {
                return difference;
            }
        }
        isExtracted = entry.archive()->extract(copy.file());
    } else {
        isExtracted = entry.archive()->extract(reply);
    }
    if (!isExtracted) {
        return storageFault(index, reply);
    }
    return m_batch.isPackages() ? judgePackage(index) : RVDownloadFault();
}

RVDownloadFault RVInstallProc::judgePackage(int index)
{
    const RVData &entry = m_batch.downloads.at(index);
    const QString name = RVUrl::fileName(entry.archiveUrl());
    QFile file(QDir::current().filePath(name));
    // What the repository's list has is whole.
    if (!entry.trust && !RVWholeArchive::isWholePackage(file.fileName())) {
        return {
            RVItemResult::Fault::Damaged, 0,
            RVSentence(QT_TRANSLATE_NOOP("RVSentence", "The package is damaged or not complete."))};
    }
    if (!name.endsWith(QLatin1String(".deb"))) {
        return {RVItemResult::Fault::OtherKind, 0,
                RVSentence(QT_TRANSLATE_NOOP(
                    "RVSentence", "The installer takes only files whose name ends in '.deb'."))};
    }
    RVDownloadFault difference = differenceOf(index, &file);
    if (difference.isSet()) {
        return difference;
    }
    DescriptorGeneric descriptor(entry.archiveUrl());
    if (descriptor.read(&file)) {
        m_identities[index] = {descriptor.name(QStringLiteral("en")),
                               descriptor.version().toString()};
    }
    return {};
}

RVDownloadFault RVInstallProc::differenceOf(int index, QFile *file) const
{
    for (const RVBatch::Item &item : m_batch.items) {
        const QString difference = item.isReached && m_batch.downloadOf(item.entry) == index
            ? RVShown::difference(item.entry, file)
            : QString();
        if (!difference.isEmpty()) {
            return {RVItemResult::Fault::Damaged, 0, RVSentence("%1", {difference})};
        }
    }
    return {};
}

/// Why an archive could not be stored or unpacked, which its backend does not tell.
RVDownloadFault RVInstallProc::storageFault(int index, const QNetworkReply *reply) const
{
    const RVData &entry = m_batch.downloads.at(index);
    const auto *spooled = qobject_cast<const XSpooledReply *>(reply);
    qint64 needed =
        qMax(spooled ? spooled->received() : 0, QFileInfo(entry.archiveUrl().toLocalFile()).size());
    if (const auto &descriptor = entry.descriptor()) {
        needed = qMax(needed, qMax(descriptor->size(), descriptor->unpackedSize()));
    }
    const qint64 available = RVFreeSpace::freeBytes(m_temporaryDir->path());
    if (available >= 0 && available < needed) {
        return {RVItemResult::Fault::Space, 0,
                RVSentence(QT_TRANSLATE_NOOP("RVSentence", "There is no space left for it in %1."),
                           {QDir::tempPath()})};
    }
    return {
        RVItemResult::Fault::Damaged, 0,
        m_batch.isPackages()
            ? RVSentence(QT_TRANSLATE_NOOP("RVSentence", "The package is damaged or not complete."))
            : RVSentence(QT_TRANSLATE_NOOP(
                "RVSentence", "The archive is damaged, or refused for what it holds."))};
}

RVDownloadFault RVInstallProc::untrusted(const RVTrustFault &fault)
{
    return {RVItemResult::Fault::Untrusted, 0, RVSentence("%1", {fault.text})};
}

void RVInstallProc::leaveOut(int index, const RVDownloadFault &fault)
{
    m_faults[index] = fault;
    const QUrl &url = m_batch.downloads.at(index).archiveUrl();
    RVLogger().log(3, "%s: %s", RVLogger::oneLine(url).constData(),
                   RVLogger::oneLine(fault.reason.english()).constData());
    if (fault.kind != RVItemResult::Fault::Network) {
        Q_EMIT archiveRefused(url, fault.reason);
    }
}

// The publisher may have been at work since the refresh, or a cache holds something back.
void RVInstallProc::renewList()
{
    m_isFresh = true;
    const RVData &entry =
        m_batch.isImage() ? firstEntry() : m_batch.downloads.at(m_unfit.constFirst());
    const QSharedPointer<RVTrust> trust = entry.trust;
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
        if (m_batch.isImage()) {
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
    const RVData &entry = firstEntry();
    const auto reads = entry.trust ? RVImageCheck::Reads::All : RVImageCheck::Reads::Head;
    const qint64 size = entry.trust && entry.descriptor() ? entry.descriptor()->size() : -1;
    m_imageCheck = new RVImageCheck(entry, access, reads, m_isFresh, this);
    connect(m_imageCheck, &RVImageCheck::networkError, this, [this](const QNetworkReply *reply) {
        m_faults[0] = RVDownloadFault::ofReply(*reply);
        Q_EMIT networkError(reply);
    });
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
    const RVData &entry = firstEntry();
    m_imageCheck->deleteLater();
    m_imageCheck = nullptr;
    if (m_state != State::Downloading) {
        return;
    }
    if (entry.trust && !check.hasFailed()) {
        const RVTrustFault fault = entry.trust->judge(entry.archiveUrl(), check.sum());
        if (fault.isSet() && m_isFresh) {
            m_faults[0] = untrusted(fault);
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
        const RVSentence reason = check.fault();
        m_faults[0].kind =
            m_faults.at(0).isSet() ? m_faults.at(0).kind : RVItemResult::Fault::Damaged;
        m_faults[0].reason = reason;
        Q_EMIT archiveRefused(entry.archiveUrl(), reason);
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
    m_reason = RVSentence("%1", {fault.text});
    Q_EMIT trustFailed();
    cancel();
}

void RVInstallProc::incExtractFinished()
{
    if (auto *archive = qobject_cast<ArchiveGeneric *>(sender())) {
        endDownload(archive);
    }
}

void RVInstallProc::endDownload(ArchiveGeneric *archive)
{
    m_pending.remove(archive);
    disconnect(archive, &ArchiveGeneric::extractFinished, this, &RVInstallProc::incExtractFinished);
}

void RVInstallProc::continueDownloads()
{
    startDownloads();
    if (m_state != State::Downloading || !m_pending.isEmpty()) {
        return;
    }
    if (!m_unfit.isEmpty()) {
        renewList();
    } else if (whole().isEmpty()) {
        fail(RVSentence(QT_TRANSLATE_NOOP("RVSentence", "No archive is left to install.")));
    } else {
        Q_EMIT extractFinished();
    }
}

QVector<int> RVInstallProc::whole() const
{
    QVector<int> result;
    for (int i = 0; i < m_batch.downloads.size(); ++i) {
        if (!m_faults.at(i).isSet()) {
            result.append(i);
        }
    }
    return result;
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
    const QVector<int> archives = whole();
    // Held here, because a backend may ask the user and so run an event loop in which this object
    // goes away.
    const QSharedPointer<ArchiveGeneric> first =
        (archives.isEmpty() ? firstEntry() : m_batch.downloads.at(archives.first())).archive();
    if (!first->urlIsHandled()) {
        fail(RVSentence(QT_TRANSLATE_NOOP("RVSentence", "There is no installer for '%1'"),
                        {RVUrl::shown(first->url())}));
        return;
    }
    makeVerify();
    connect(first.data(), &ArchiveGeneric::installStarted, this,
            &RVInstallProc::relayInstallStarted, Qt::UniqueConnection);
    connect(first.data(), &ArchiveGeneric::installDeclined, this, [this] {
        m_isDeclined = true;
    });
    if (access.hasProxy()) {
        first->setProxy(proxyHost, proxyPort);
    }
    if (imageQuestion && first->isImage()) {
        const RVData &entry = firstEntry();
        const auto &descriptor = entry.descriptor();
        imageQuestion->name = descriptor ? DataXML::plainText(descriptor->name({})) : QString();
        imageQuestion->version =
            descriptor ? DataXML::plainText(descriptor->version().toString()) : QString();
        imageQuestion->isChecked = !entry.trust.isNull();
        imageQuestion->certificateWarning = m_certificateWarning;
    }
    first->setImageQuestion(imageQuestion);
    if (!m_batch.isServicePacks()) {
        first->install(this);
    } else if (archives.size() == 1) {
        QDir::setCurrent(ArchiveXar::packFolder(archives.first()));
        first->install(this);
        m_temporaryDir->cdTo();
    } else {
        first->installAll(this);
    }
}

void RVInstallProc::makeVerify()
{
    QStringList packages;
    for (const Identity &identity : qAsConst(m_identities)) {
        packages.append(identity.name);
    }
    m_verify = std::make_unique<RVVerify>(m_paths, packages);
}

void RVInstallProc::conclude(int exitCode, QProcess::ExitStatus exitStatus)
{
    m_state = State::Ended;
    if (!m_verify) {
        makeVerify();
    }
    m_verify->lookAgain();
    m_result = {};
    m_result.isInstallerStarted = m_isInstallerStarted;
    m_result.exitCode = exitCode;
    m_result.exitStatus = exitStatus;
    m_result.reason = m_reason;
    for (const RVBatch::Item &item : m_batch.items) {
        RVItemResult result{item.entry, item.name, {}, item.version, RVItemResult::State::NotTried,
                            m_reason,   {},        0};
        judge(item, &result);
        m_result.items.append(result);
    }
    m_verify.reset();
}

void RVInstallProc::judge(const RVBatch::Item &item, RVItemResult *result) const
{
    using State = RVItemResult::State;
    const auto leftOut = [result](const RVDownloadFault &fault) {
        result->state = State::LeftOut;
        result->fault = fault.kind;
        result->networkError = fault.networkError;
        result->reason = fault.reason;
    };
    if (!item.isReached) {
        leftOut({RVItemResult::Fault::OtherKind, 0,
                 RVSentence(QT_TRANSLATE_NOOP(
                     "RVSentence", "It cannot be installed together with the others."))});
        return;
    }
    const int index = qMax(0, m_batch.downloadOf(item.entry));
    const Identity identity = m_identities.value(index);
    if (m_batch.isPackages()) {
        result->to = identity.version.isEmpty() ? item.version : identity.version;
        result->from = m_verify->versionBefore(identity.name.isEmpty() ? item.name : identity.name);
    }
    if (m_faults.value(index).isSet()) {
        leftOut(m_faults.at(index));
    } else if (m_isCancelled) {
        result->state = State::Cancelled;
    } else if (m_isInstallerStarted && !m_reason.isEmpty()) {
        // It could not be started.
        result->state = State::Failed;
    } else if (m_reason.isEmpty()) {
        judgeInstalled(index, item, result);
    }
}

// What the system says of an archive that the installer was given.
void RVInstallProc::judgeInstalled(int index, const RVBatch::Item &item, RVItemResult *result) const
{
    using State = RVItemResult::State;
    const RVVerify::End end{m_result.exitCode, m_result.exitStatus == QProcess::CrashExit};
    if (m_batch.isPackages()) {
        const Identity identity = m_identities.at(index);
        if (identity.name.isEmpty()) {
            m_verify->judgePackage(rawName(item.entry), item.version, end, result);
        } else {
            m_verify->judgePackage(identity.name, identity.version, end, result);
        }
    } else if (m_batch.isServicePacks()) {
        judgeServicePack(index, end, item, result);
    } else if (m_isDeclined) {
        result->state = State::Cancelled;
    } else {
        result->reason = end.isGood() ? item.entry.archive()->orderFault() : end.sentence();
        result->state = result->reason.isEmpty() ? State::Arranged : State::Failed;
    }
}

void RVInstallProc::judgeServicePack(int index, const RVVerify::End &end, const RVBatch::Item &item,
                                     RVItemResult *result) const
{
    const QVector<int> archives = whole();
    if (archives.size() == 1) {
        m_verify->judgeServicePack(rawName(item.entry), end, result);
        return;
    }
    for (const int archive : archives) {
        const int code = packExitCode(archive);
        // The shell's way to say that a signal ended it.
        const RVVerify::End packEnd = code < 0 ? end : RVVerify::End{code, code > 128};
        if (archive == index) {
            m_verify->judgeServicePack(rawName(item.entry), packEnd, result);
            return;
        }
        if (!packEnd.isGood()) {
            result->state = RVItemResult::State::NotTried;
            result->reason = RVSentence(
                QT_TRANSLATE_NOOP("RVSentence", "The service pack before it was not installed."));
            return;
        }
    }
}

int RVInstallProc::packExitCode(int index) const
{
    m_temporaryDir->cdTo();
    return ArchiveXar::packExitCode(index);
}

bool RVInstallProc::enterTemporaryDir()
{
    if (m_temporaryDir->cdTo()) {
        return true;
    }
    fail(RVSentence(QT_TRANSLATE_NOOP("RVSentence", "Could not enter the temporary directory '%1'"),
                    {m_temporaryDir->path()}));
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

void RVInstallProc::fail(const RVSentence &reason)
{
    RVLogger().log(3, "%s", RVLogger::oneLine(reason.english()).constData());
    m_state = State::Ended;
    m_reason = reason;
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
        ArchiveGeneric *archive = pending.key();
        leaveOut(indexOf(archive),
                 {RVItemResult::Fault::Network, QNetworkReply::OperationCanceledError,
                  RVSentence(QT_TRANSLATE_NOOP("RVSentence", "Its download was ended."))});
        endDownload(archive);
        continueDownloads();
    }
}

void RVInstallProc::relayInstallStarted()
{
    m_isInstallerStarted = true;
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

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/RVLimits.h"
#include "core/RVPaths.h"
#include "install/RVBatch.h"
#include "install/RVDownloadFault.h"
#include "install/RVKeeper.h"
#include "install/RVResult.h"
#include "install/RVVerify.h"
#include "network/RVAccess.h"
#include "repository/RVData.h"
#include "repository/RVTrustFault.h"

#include <QList>
#include <QMap>
#include <QNetworkProxy>
#include <QNetworkReply>
#include <QProcess>
#include <QSslError>
#include <QVector>

#include <memory>

class ImageQuestion;
class QFile;
class RVFolderMark;
class RVImageCheck;
class TemporaryDir;

/// Downloads and unpacks a batch of updates and is itself the process in which their installer
/// runs. The first one decides what is installed: packages together, service packs one after the
/// other (ADR 53), or an image. An archive that fails or is refused is left out, and the others go
/// on; with none left no installer is started (ADR 52).
///
/// The installer has a session and an environment of its own, without what the program's holds but
/// PATH, HOME, the user's name, the language and the place for temporary files, and nothing to
/// read on its standard input.
///
/// Its final signal, once after each start(), is QProcess's finished(), or
/// errorOccurred(FailedToStart) when there was no installer program to start; result() is there
/// then. It must not be destroyed while the installer runs; if it is, it waits: a dpkg whose reader
/// goes away leaves packages half-installed. In slots of its own signals use deleteLater().
class RVInstallProc : public QProcess
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(RVInstallProc)

public:
    /// The login of `access`. Nothing is started.
    RVInstallProc(const QList<RVData> &entries, const QString &user, const QString &password,
                  QObject *parent = nullptr, const RVPaths &paths = {});
    explicit RVInstallProc(const RVData &entry, QObject *parent = nullptr,
                           const RVPaths &paths = {});
    ~RVInstallProc() override;

    /// Written before start().
    RVAccess access;
    QString &proxyHost = access.proxyHost;
    int &proxyPort = access.proxyPort;
    /// Written before start(): locks that hold until the installer has ended, although this program
    /// may be gone by then.
    QVector<int> heldLocks;
    /// Written before start(); not owned, and alive until the installation has begun. Without one a
    /// full image is never installed.
    ImageQuestion *imageQuestion = nullptr;

    /// Where the installer's output is kept, or was kept last; empty when it is not.
    const QString &outputFile() const { return m_keeper.outputFile(); }

    /// Why nothing was installed, where an archive is not the one that its repository lists.
    const RVTrustFault &trustFault() const { return m_trustFault; }

    const RVBatch &batch() const { return m_batch; }
    /// How it ended, from the final signal on: what the system says of each update.
    const RVResult &result() const { return m_result; }
    /// Ends it before the installer, for a reason: no update is tried. Nothing once it has begun.
    void refuse(const RVSentence &reason);

    /// Whether there was no yes to an image: nothing was installed, and nothing failed. The process
    /// ends with exit code 0 then.
    bool isDeclined() const { return m_isDeclined; }

public Q_SLOTS:
    /// Starts the downloads, or the check of an image, which is not downloaded.
    /// Makes a temporary directory the process's current one. Nothing while an earlier start() is
    /// under way.
    void start();
    /// Ends the downloads and reports finished(1, CrashExit). A running installer is left alone: it
    /// gives the final signal itself.
    void cancel();

Q_SIGNALS:
    /// Every archive is unpacked: the installation starts now and cannot be cancelled any more,
    /// but for a slot that was connected before start().
    void extractFinished();
    /// One download failed; the others go on.
    void networkError(const QNetworkReply *reply);
    /// One archive cannot be unpacked or is not what was shown of it, and is left out; the others
    /// go on.
    void archiveRefused(const QUrl &archive, const RVSentence &reason);
    void authenticationRequired(QNetworkReply *reply, QAuthenticator *auth);
    void proxyAuthenticationRequired(const QNetworkProxy &proxy, QAuthenticator *auth);
    void sslErrors(QNetworkReply *reply, const QList<QSslError> &errors);
    void installStarted();
    /// An archive is not the one that its repository lists, or the list does not hold any more:
    /// trustFault() says so. The final signal follows, and nothing is installed of the batch.
    void trustFailed();
    /// Bytes of the whole batch, measured against what the descriptors announce; never above it.
    void downloadProgress(qint64 bytesReceived, qint64 bytesTotal);

protected:
    void setupChildProcess() override;

private Q_SLOTS:
    void incExtractFinished();
    void startInstallation();
    void deleteSenderLater(QNetworkReply *reply);
    void relayNetworkError(QNetworkReply::NetworkError err);
    void relayAuthenticationRequired(QNetworkReply *reply, QAuthenticator *auth);
    void relayProxyAuthenticationRequired(const QNetworkProxy &proxy, QAuthenticator *auth);
    void relaySslErrors(QNetworkReply *reply, const QList<QSslError> &errors);
    void replyDestroyed(QObject *obj);
    void relayInstallStarted();
    void progress(qint64 bytesReceived, qint64 bytesTotal);

private:
    enum class State {
        Idle,
        Downloading,
        /// From extractFinished() on; also while a backend still asks the user.
        Installing,
        /// The final signal was given.
        Ended,
    };

    bool enterTemporaryDir();
    void leaveTemporaryDir();
    void startDownloads();
    void startDownload(int index);
    void startImageCheck();
    void imageChecked();
    /// What a package says it is.
    struct Identity {
        QString name;
        QString version;
    };

    void downloadFinished(ArchiveGeneric *archive, QNetworkReply *reply);
    void unpack(int index, QNetworkReply *reply);
    /// In the current directory.
    RVDownloadFault unpackHere(int index, QNetworkReply *reply);
    RVDownloadFault judgePackage(int index);
    RVDownloadFault differenceOf(int index, QFile *file) const;
    RVDownloadFault storageFault(int index, const QNetworkReply *reply) const;
    static RVDownloadFault untrusted(const RVTrustFault &fault);
    void leaveOut(int index, const RVDownloadFault &fault);
    void renewList();
    void failTrust(const RVTrustFault &fault);
    int indexOf(const ArchiveGeneric *archive) const;
    const RVData &firstEntry() const;
    void endDownload(ArchiveGeneric *archive);
    void continueDownloads();
    /// The downloads that are there and unpacked.
    QVector<int> whole() const;
    void makeVerify();
    void conclude(int exitCode, QProcess::ExitStatus exitStatus);
    void judge(const RVBatch::Item &item, RVItemResult *result) const;
    void judgeInstalled(int index, const RVBatch::Item &item, RVItemResult *result) const;
    void judgeServicePack(int index, const RVVerify::End &end, const RVBatch::Item &item,
                          RVItemResult *result) const;
    int packExitCode(int index) const;
    void fail(const RVSentence &reason);

    const RVPaths m_paths;
    /// Its copies keep the archives and descriptors alive.
    const RVBatch m_batch;
    RVKeeper m_keeper;
    State m_state = State::Idle;
    QString m_previousDir;
    /// Goes after its folder.
    std::unique_ptr<RVFolderMark> m_folderMark;
    std::unique_ptr<TemporaryDir> m_temporaryDir;
    /// The download that is started next.
    int m_next = 0;
    /// Downloads that were started and whose archive is not extracted yet.
    QMap<ArchiveGeneric *, QNetworkReply *> m_pending;
    /// One for each download, and one for an image.
    QVector<RVDownloadFault> m_faults;
    QVector<Identity> m_identities;
    /// The same; null before and after the reply's life.
    QVector<QNetworkReply *> m_replies;
    QVector<qint64> m_received;
    qint64 m_expectedTotal = 0;
    /// Downloads that did not fit their sum, to be fetched once more with a new list.
    QList<int> m_unfit;
    bool m_isFresh = false;
    RVTrustFault m_trustFault;
    bool m_isDeclined = false;
    /// While it is under way.
    RVImageCheck *m_imageCheck = nullptr;
    /// For the question.
    RVSentence m_certificateWarning;
    bool m_isCancelled = false;
    bool m_isInstallerStarted = false;
    /// Why it ended without a running installer; empty else.
    RVSentence m_reason;
    std::unique_ptr<RVVerify> m_verify;
    RVResult m_result;
};

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "cli/RVCtlBatch.h"
#include "cli/RVCtlFault.h"
#include "cli/RVCtlOutput.h"
#include "cli/RVCtlProgress.h"
#include "install/RVPreflight.h"

#include <QJsonObject>
#include <QNetworkReply>
#include <QObject>
#include <QProcess>
#include <QUrl>
#include <QVector>

class QAuthenticator;
class ImageQuestion;
class RVCtlAccess;
class RVInstallProc;

/// One installation, as the window does it, from its first download to the end of its installer.
/// Until the installer starts, the deadline ends it; from then on nothing does.
class RVCtlInstallRun : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(RVCtlInstallRun)

public:
    RVCtlInstallRun(const RVCtlCall &call, RVCtlAccess *access, const RVCtlOffers &section,
                    const RVCtlBatch &batch, RVPreflight *preflight, int lockTimeoutSeconds,
                    ImageQuestion *question);
    ~RVCtlInstallRun() override;

    /// Runs an event loop until there is nothing more to come.
    void run();
    /// `refreshed` says what went wrong before.
    RVCtlResult result(const RVCtlResult &refreshed) const;

Q_SIGNALS:
    void ended();

private:
    /// How far it came.
    enum class Stage {
        Downloading,
        Installing,
        Ended,
    };

    void networkError(const QNetworkReply *reply);
    /// Everything is downloaded that can be: the last moment at which nothing is changed yet.
    void beforeInstaller();
    /// Whether dpkg can work now; m_refusal says why not, unless the deadline is over.
    bool isDatabaseReady();
    void end();
    /// The updates and how each ended.
    QString table() const;
    QJsonObject toJson() const;
    void judge(RVCtlResult *result) const;

    const RVCtlCall &m_call;
    RVCtlAccess *m_access;
    const RVRepository &m_repository;
    const RVCtlBatch &m_batch;
    RVPreflight *m_preflight;
    const int m_lockTimeoutSeconds;
    ImageQuestion *m_question;
    const bool m_isJson;

    std::unique_ptr<RVInstallProc> m_process;
    std::unique_ptr<RVCtlProgress> m_progress;
    RVCtlOutput m_output;
    Stage m_stage = Stage::Downloading;
    /// Why the installer was not started in the last moment.
    std::optional<RVObstacle> m_refusal;
};

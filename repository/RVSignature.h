// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/RVPaths.h"
#include "repository/RVTrustFault.h"

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QTimer>

class QProcess;

/// One run of gpgv: is this the signature of these bytes by a key of that keyring? The program gets
/// copies that nobody can change, no environment, and where this one is root's, the rights of
/// nobody. Its final signal is finished(), once after start(), from the event loop.
class RVSignature : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(RVSignature)

public:
    static constexpr int defaultInactivityMs = 120'000;
    /// Of gpgv's answer; a longer one is refused.
    static constexpr int maxOutput = 64 * 1024;

    struct Result {
        RVTrustFault fault;
        /// Of the key that signed, as it calls itself.
        QString signer;
        /// Seconds since 1970, as the signer's clock said.
        qint64 signedAt = 0;

        bool isGood() const { return !fault.isSet() && signedAt > 0; }
    };

    explicit RVSignature(QObject *parent = nullptr, const RVPaths &paths = {});
    /// A run that is under way is ended and tells nothing.
    ~RVSignature() override;

    /// Written before start(): so long gpgv may say nothing before it is ended.
    int inactivityLimit = defaultInactivityMs;

    void start(const QByteArray &data, const QByteArray &signature, const QByteArray &keys);
    const Result &result() const { return m_result; }
    /// What gpgv said to people; the end of it, where that is long.
    const QByteArray &messages() const { return m_messages; }

    /// What gpgv's status lines say, of a run that ended with code 0. The lines and their fields:
    /// doc/DETAILS of GnuPG.
    static Result judge(const QByteArray &status);

Q_SIGNALS:
    void finished();

private:
    void take();
    void processFinished(int exitCode, bool isNormal);
    void fail(const QString &reason);
    void refuse(const RVTrustFault &fault);
    void end();

    const RVPaths m_paths;
    QProcess *m_process = nullptr;
    QTimer m_inactivity;
    QByteArray m_status;
    QByteArray m_messages;
    Result m_result;
    bool m_ended = false;
};

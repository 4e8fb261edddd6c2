// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/RVSentence.h"
#include "network/RVAccess.h"
#include "network/RVCertificates.h"
#include "repository/RVData.h"

#include <QCryptographicHash>
#include <QList>
#include <QNetworkReply>
#include <QObject>
#include <QSslError>

/// Asks for a full image before anybody is asked about it, as the device will after the restart:
/// with the login in the URL and no other, through the proxy that it is told, or none. Reads its
/// first bytes, or all of it for its sum.
///
/// Its final signal is finished(), once after start(), from the event loop. Deleting it ends what
/// is under way, in a slot of its signals by deleteLater().
class RVImageCheck : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(RVImageCheck)

public:
    enum class Reads {
        Head,
        All,
    };

    /// Past every cache if `isFresh`.
    RVImageCheck(const RVData &entry, const RVAccess &access, Reads reads, bool isFresh,
                 QObject *parent = nullptr);
    ~RVImageCheck() override;

    void start();

    /// Why the device would get no image; empty when it can have one.
    const RVSentence &fault() const { return m_fault; }
    /// Whether that is because it could not be read to its end.
    bool hasFailed() const { return m_hasFailed; }
    /// SHA-256 of all that was read.
    QByteArray sum() const { return m_sum.result(); }
    /// A warning where the server's certificate was accepted although it does not validate.
    RVSentence certificateWarning() const;

Q_SIGNALS:
    void finished();
    /// Before finished(); the reply is the receiver's for the time of the call.
    void networkError(const QNetworkReply *reply);
    void sslErrors(QNetworkReply *reply, const QList<QSslError> &errors);
    void progress(qint64 bytesReceived);

private:
    void read();
    void end();
    RVSentence faultOfReply() const;
    RVSentence faultOfFile() const;
    int status() const;
    qint64 size() const;

    const RVData m_entry;
    const RVAccess m_access;
    const Reads m_reads;
    const bool m_isFresh;
    QNetworkReply *m_reply = nullptr;
    QByteArray m_head;
    qint64 m_received = 0;
    QCryptographicHash m_sum{QCryptographicHash::Sha256};
    RVSentence m_fault;
    bool m_hasFailed = false;
    bool m_isCertificateAccepted = false;
};

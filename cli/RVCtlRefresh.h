// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QJsonObject>
#include <QList>
#include <QObject>
#include <QString>
#include <QUrl>

class QNetworkReply;
class RVCtlAccess;
class RVCtlDeadline;
class RVRepository;

/// One refresh of one repository, from its start to its end.
class RVCtlRefresh : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(RVCtlRefresh)

public:
    struct Failure {
        /// Qt 4's code; 0 for none.
        int code = 0;
        QString text;
        QUrl url;
        /// Of a server that was refused for its certificate.
        QJsonObject certificate;
        /// What came is refused; there is no code then.
        bool isTrust = false;

        bool isSet() const { return code != 0 || isTrust; }
        QJsonObject toJson() const;
    };

    RVCtlRefresh(RVRepository *repository, RVCtlAccess *access, RVCtlDeadline *deadline);
    ~RVCtlRefresh() override;

    /// Runs an event loop until the refresh has ended, or time is up.
    void run();

    /// Why there is nothing to select from: the listing failed, or nothing could be described.
    const Failure &failure() const { return m_failure; }
    /// Single descriptors that could not be had.
    const QList<Failure> &descriptorFailures() const { return m_descriptorFailures; }

Q_SIGNALS:
    void ended();

private:
    void networkError(const QNetworkReply *reply);

    RVRepository *m_repository;
    RVCtlAccess *m_access;
    RVCtlDeadline *m_deadline;
    Failure m_failure;
    QList<Failure> m_descriptorFailures;
    bool m_done = false;
    bool m_ended = false;
};

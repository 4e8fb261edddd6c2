// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "cli/RVCtlWorld.h"
#include "network/RVCertificates.h"

#include <QHash>
#include <QJsonObject>
#include <QList>
#include <QNetworkReply>
#include <QSet>
#include <QSslError>
#include <QString>

class QCommandLineOption;
class QCommandLineParser;
class RVCtlDeadline;
class RVCtlMessages;

/// What the caller brings to get in: a user with a password, another for the proxy, and
/// certificates that it vouches for.
/// Certificates that do not validate are refused and described, unless they are among those.
class RVCtlAccess
{
public:
    explicit RVCtlAccess(const RVCtlMessages &messages);

    static QList<QCommandLineOption> options();
    /// Asks for the password on the terminal when there is no file with it. False, and why, when
    /// the arguments make no sense or the password cannot be had.
    bool read(const QCommandLineParser &parser, const RVCtlDeadline &deadline, QString *error);
    /// What was read is for these sections: certificates are accepted of their servers, and the
    /// login for the proxy is left with those that use it. False, and why, when they use several
    /// proxies: each of them would learn it.
    bool useFor(const QList<RVCtlWorld::Section> &sections, QString *error);

    const QString &user() const { return m_user; }
    const QString &password() const { return m_password; }

    /// For sslErrors(): lets an accepted certificate pass, else says what is wrong with it.
    void judge(QNetworkReply *reply, const QList<QSslError> &errors);
    /// The certificate that `host` was refused for, as the documents describe it; else empty.
    QJsonObject refusedCertificate(const QString &host) const { return m_refused.value(host); }

private:
    Q_DISABLE_COPY_MOVE(RVCtlAccess)

    bool keepProxyLogin(const QList<RVCtlWorld::Section> &sections, QString *error) const;
    static bool readLogin(const QCommandLineParser &parser, const QString &prefix,
                          const RVCtlDeadline &deadline, QString *user, QString *password,
                          QString *error);

    const RVCtlMessages &m_messages;
    QString m_user;
    QString m_password;
    QString m_proxyUser;
    QString m_proxyPassword;
    RVCertificates m_certificates;
    /// Faults that were described, by RVCertificateFault::key().
    QSet<QString> m_described;
    QHash<QString, QJsonObject> m_refused;
};

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/RVCtlAccess.h"

#include "cli/RVCtlDeadline.h"
#include "cli/RVCtlMessages.h"
#include "cli/RVCtlPassword.h"
#include "core/RVOrigin.h"
#include "network/RVKeyring.h"
#include "repository/RVRepository.h"

#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QJsonArray>
#include <QNetworkProxy>

namespace
{

QString nameOf(const QStringList &commonName, const QStringList &organisation)
{
    return (commonName + organisation).join(QLatin1String(", "));
}

QString subjectOf(const QSslCertificate &certificate)
{
    return nameOf(certificate.subjectInfo(QSslCertificate::CommonName),
                  certificate.subjectInfo(QSslCertificate::Organization));
}

QString issuerOf(const QSslCertificate &certificate)
{
    return nameOf(certificate.issuerInfo(QSslCertificate::CommonName),
                  certificate.issuerInfo(QSslCertificate::Organization));
}

} // namespace

RVCtlAccess::RVCtlAccess(const RVCtlMessages &messages)
    : m_messages(messages)
{
}

QList<QCommandLineOption> RVCtlAccess::options()
{
    return {
        {QStringLiteral("user"),
         QStringLiteral("Log in as NAME where the server asks. The password comes from "
                        "--password-file or is asked for on the terminal."),
         QStringLiteral("NAME")},
        {QStringLiteral("password-file"),
         QStringLiteral("Read the password from the first line of FILE."), QStringLiteral("FILE")},
        {QStringLiteral("proxy-user"),
         QStringLiteral("Log in to the proxy as NAME. The password comes from "
                        "--proxy-password-file or is asked for on the terminal."),
         QStringLiteral("NAME")},
        {QStringLiteral("proxy-password-file"),
         QStringLiteral("Read the proxy's password from the first line of FILE."),
         QStringLiteral("FILE")},
        {QStringLiteral("accept-fingerprint"),
         QStringLiteral("Accept the server certificate with this SHA-256 fingerprint although its "
                        "authority is unknown. Add ':' and any of expired, not-yet-valid and host, "
                        "separated by commas, to accept these faults too."),
         QStringLiteral("SHA256")},
    };
}

bool RVCtlAccess::read(const QCommandLineParser &parser, const RVCtlDeadline &deadline,
                       QString *error)
{
    const QStringList fingerprints = parser.values(QStringLiteral("accept-fingerprint"));
    for (const QString &text : fingerprints) {
        if (!m_certificates.acceptFingerprint(text)) {
            *error = QStringLiteral("'%1' is no SHA-256 fingerprint: 64 hexadecimal digits, and "
                                    "':' with any of expired, not-yet-valid and host.")
                         .arg(text);
            return false;
        }
    }
    return readLogin(parser, QString(), deadline, &m_user, &m_password, error)
        && readLogin(parser, QStringLiteral("proxy-"), deadline, &m_proxyUser, &m_proxyPassword,
                     error);
}

bool RVCtlAccess::readLogin(const QCommandLineParser &parser, const QString &prefix,
                            const RVCtlDeadline &deadline, QString *user, QString *password,
                            QString *error)
{
    const QString userOption = prefix + QStringLiteral("user");
    const QString fileOption = prefix + QStringLiteral("password-file");
    const QString file = parser.value(fileOption);
    const bool hasFile = parser.isSet(fileOption);
    if (!parser.isSet(userOption)) {
        if (hasFile) {
            *error = QStringLiteral("--%1 needs --%2.").arg(fileOption, userOption);
        }
        return !hasFile;
    }
    *user = parser.value(userOption);
    if (user->isEmpty()) {
        *error = QStringLiteral("--%1 needs a name.").arg(userOption);
        return false;
    }
    return hasFile ? RVCtlPassword::fromFile(file, deadline, password, error)
                   : RVCtlPassword::fromTerminal(*user, deadline, password, error);
}

bool RVCtlAccess::keepProxyLogin(const QList<RVCtlWorld::Section> &sections, QString *error) const
{
    if (m_proxyUser.isEmpty()) {
        return true;
    }
    QString known;
    for (const RVCtlWorld::Section &section : sections) {
        const RVRepository &repository = *section.repository;
        if (repository.proxyHost().isEmpty() || repository.proxyPort() <= 0) {
            continue;
        }
        const QString place =
            RVKeyring::placeOf(QNetworkProxy(QNetworkProxy::HttpProxy, repository.proxyHost(),
                                             static_cast<quint16>(repository.proxyPort())));
        if (!known.isEmpty() && known != place) {
            *error = QStringLiteral("--proxy-user is for one proxy: name sections that use one.");
            return false;
        }
        known = place;
        repository.keyring()->keep(place, {m_proxyUser, m_proxyPassword});
    }
    return true;
}

bool RVCtlAccess::useFor(const QList<RVCtlWorld::Section> &sections, QString *error)
{
    QSet<QString> servers;
    for (const RVCtlWorld::Section &section : sections) {
        servers.insert(originOf(section.repository->url()));
    }
    m_certificates.setServers(servers);
    return keepProxyLogin(sections, error);
}

void RVCtlAccess::judge(QNetworkReply *reply, const QList<QSslError> &errors)
{
    const RVCertificateFault fault(reply, errors);
    if (m_certificates.accepts(fault)) {
        reply->ignoreSslErrors();
        return;
    }

    QJsonArray texts;
    for (const QSslError &error : errors) {
        texts.append(error.errorString());
    }
    const QString host = reply->url().host();
    const QString option = RVCertificates::optionFor(fault);
    m_refused.insert(
        host,
        {{QStringLiteral("subject"), subjectOf(fault.certificate)},
         {QStringLiteral("issuer"), issuerOf(fault.certificate)},
         {QStringLiteral("sha256"), fault.sha256()},
         {QStringLiteral("errors"), texts},
         {QStringLiteral("option"), option.isEmpty() ? QJsonValue() : QJsonValue(option)}});
    const QString known = fault.server + QLatin1Char(' ') + fault.key();
    if (m_described.contains(known)) {
        return;
    }
    m_described.insert(known);
    // A refusal is an error: it is described even when the caller wants to hear of errors only.
    m_messages.error(QStringLiteral("The certificate of %1 is refused:").arg(host));
    m_messages.error(QStringLiteral("  Subject: %1").arg(subjectOf(fault.certificate)));
    m_messages.error(QStringLiteral("  Issuer:  %1").arg(issuerOf(fault.certificate)));
    m_messages.error(QStringLiteral("  SHA-256: %1").arg(fault.sha256()));
    for (const QSslError &error : errors) {
        m_messages.error(QStringLiteral("  Error:   %1").arg(error.errorString()));
    }
    if (!option.isEmpty()) {
        m_messages.error(
            QStringLiteral("To accept it all the same: --accept-fingerprint %1").arg(option));
    }
}

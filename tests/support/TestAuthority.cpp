// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/support/TestAuthority.h"

#include <QDateTime>
#include <QFile>
#include <QHostAddress>
#include <QProcess>

namespace
{

const QStringList &newKey()
{
    static const QStringList arguments{QStringLiteral("-nodes"), QStringLiteral("-newkey"),
                                       QStringLiteral("ec"), QStringLiteral("-pkeyopt"),
                                       QStringLiteral("ec_paramgen_curve:prime256v1")};
    return arguments;
}

QString subject(const QString &commonName)
{
    return QStringLiteral("/O=Ravel tests/CN=") + commonName;
}

QString alternativeNames(const QStringList &hosts)
{
    QStringList names;
    for (const QString &host : hosts) {
        const bool isAddress = !QHostAddress(host).isNull();
        names.append((isAddress ? QStringLiteral("IP:") : QStringLiteral("DNS:")) + host);
    }
    return QStringLiteral("subjectAltName=") + names.join(QLatin1Char(','));
}

QString stamp(int daysFromNow)
{
    return QDateTime::currentDateTimeUtc()
        .addDays(daysFromNow)
        .toString(QStringLiteral("yyyyMMddHHmmss'Z'"));
}

bool write(const QString &fileName, const QByteArray &content)
{
    QFile file(fileName);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

} // namespace

TestAuthority::TestAuthority(const QString &name)
{
    const QByteArray dir = QFile::encodeName(m_dir.path());
    write(path(QStringLiteral("ca.conf")),
          "[ca]\ndefault_ca = own\n[own]\n"
          "certificate = "
              + dir + "/ca.pem\nprivate_key = " + dir + "/ca.key\ndatabase = " + dir
              + "/index\nnew_certs_dir = " + dir
              + "\nrand_serial = yes\nunique_subject = no\ndefault_md = sha256\n"
                "policy = any\ncopy_extensions = copy\nx509_extensions = server\n"
                "[any]\norganizationName = optional\ncommonName = supplied\n"
                "[server]\nbasicConstraints = CA:FALSE\n");
    write(path(QStringLiteral("index")), {});
    openssl(QStringList{QStringLiteral("req"), QStringLiteral("-x509"), QStringLiteral("-days"),
                        QStringLiteral("365"), QStringLiteral("-subj"), subject(name),
                        QStringLiteral("-keyout"), path(QStringLiteral("ca.key")),
                        QStringLiteral("-out"), certificateFile()}
            + newKey());
}

TestAuthority::Pair TestAuthority::issue(const QStringList &hosts, Validity validity)
{
    const QString base = path(QStringLiteral("server-%1").arg(++m_issued));
    const Pair pair{base + QStringLiteral(".pem"), base + QStringLiteral(".key")};
    const QString request = base + QStringLiteral(".csr");
    const int first = validity == Expired ? -30 : validity == NotYetValid ? 1 : -1;
    const int last = validity == Expired ? -1 : 365;
    const bool made =
        openssl(QStringList{QStringLiteral("req"), QStringLiteral("-new"), QStringLiteral("-subj"),
                            subject(hosts.value(0)), QStringLiteral("-addext"),
                            alternativeNames(hosts), QStringLiteral("-keyout"), pair.key,
                            QStringLiteral("-out"), request}
                + newKey())
        && openssl({QStringLiteral("ca"), QStringLiteral("-batch"), QStringLiteral("-notext"),
                    QStringLiteral("-config"), path(QStringLiteral("ca.conf")),
                    QStringLiteral("-startdate"), stamp(first), QStringLiteral("-enddate"),
                    stamp(last), QStringLiteral("-in"), request, QStringLiteral("-out"),
                    pair.certificate});
    return made ? pair : Pair();
}

TestAuthority::Pair TestAuthority::issueSelfSigned(const QStringList &hosts)
{
    const QString base = path(QStringLiteral("self-%1").arg(++m_issued));
    const Pair pair{base + QStringLiteral(".pem"), base + QStringLiteral(".key")};
    const bool made = openssl(
        QStringList{QStringLiteral("req"), QStringLiteral("-x509"), QStringLiteral("-days"),
                    QStringLiteral("365"), QStringLiteral("-subj"), subject(hosts.value(0)),
                    QStringLiteral("-addext"), alternativeNames(hosts), QStringLiteral("-keyout"),
                    pair.key, QStringLiteral("-out"), pair.certificate}
        + newKey());
    return made ? pair : Pair();
}

QString TestAuthority::certificateFile() const
{
    return path(QStringLiteral("ca.pem"));
}

QSslCertificate TestAuthority::read(const QString &fileName)
{
    return QSslCertificate::fromPath(fileName).value(0);
}

bool TestAuthority::openssl(const QStringList &arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(QStringLiteral("openssl"), arguments);
    const bool ended = process.waitForFinished(30000);
    const QByteArray output = process.readAll();
    if (ended && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0) {
        return true;
    }
    m_report = "openssl " + arguments.value(0).toUtf8() + ": " + output;
    qWarning("%s", m_report.constData());
    return false;
}

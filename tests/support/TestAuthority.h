// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QSslCertificate>
#include <QStringList>
#include <QTemporaryDir>

/// A private certificate authority, made with the openssl program. Nobody trusts it until a test
/// says so; its certificates are files for as long as it lives.
class TestAuthority
{
public:
    enum Validity {
        Valid, ///< from yesterday on for a year
        Expired, ///< ended yesterday
        NotYetValid, ///< begins tomorrow
    };

    /// A certificate and its key, each the name of a PEM file.
    struct Pair {
        QString certificate;
        QString key;
    };

    explicit TestAuthority(const QString &name = QStringLiteral("Ravel test authority"));

    /// Issues a certificate for these names and addresses, the first of which is its common name;
    /// for the wrong host name another one. Both names are empty when openssl failed.
    Pair issue(const QStringList &hosts = {QStringLiteral("127.0.0.1"),
                                           QStringLiteral("localhost")},
               Validity validity = Valid);
    /// The same with no authority: signed by its own key.
    Pair issueSelfSigned(const QStringList &hosts = {QStringLiteral("127.0.0.1"),
                                                     QStringLiteral("localhost")});

    QString certificateFile() const;
    QSslCertificate certificate() const { return read(certificateFile()); }
    static QSslCertificate read(const QString &fileName);
    /// What openssl had to say about its last failure.
    const QByteArray &report() const { return m_report; }

private:
    Q_DISABLE_COPY_MOVE(TestAuthority)

    bool openssl(const QStringList &arguments);
    QString path(const QString &name) const { return m_dir.filePath(name); }

    QTemporaryDir m_dir;
    QByteArray m_report;
    int m_issued = 0;
};

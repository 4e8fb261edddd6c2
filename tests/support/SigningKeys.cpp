// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/support/SigningKeys.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTest>

namespace
{

QStringList fakedTime(const QString &time)
{
    return {QStringLiteral("--faked-system-time"), time + QLatin1Char('!')};
}

} // namespace

// Not below the test's own folder: the agent's socket lies here, and its path may have no more than
// a hundred characters.
SigningKeys::SigningKeys()
    : m_home(QStringLiteral("/tmp/ravel-keys-XXXXXX"))
{
}

SigningKeys::~SigningKeys()
{
    QProcess process;
    process.start(QStringLiteral("gpgconf"),
                  {QStringLiteral("--homedir"), m_home.path(), QStringLiteral("--kill"),
                   QStringLiteral("gpg-agent")});
    process.waitForFinished(30000);
    // The agent removes its sockets when it has heard of it.
    const bool isRemoved = QTest::qWaitFor(
        [this] {
            return m_home.remove();
        },
        10000);
    if (!isRemoved) {
        qWarning("%s", qUtf8Printable(m_home.errorString()));
    }
}

bool SigningKeys::make(const QString &name, Kind kind)
{
    return gpg({QStringLiteral("--quick-generate-key"), name,
                kind == Rsa ? QStringLiteral("rsa2048") : QStringLiteral("ed25519"),
                QStringLiteral("sign"), QStringLiteral("1y")});
}

bool SigningKeys::makeOld(const QString &name, const QString &validity)
{
    return gpg(fakedTime(QStringLiteral("20250101T000000"))
               + QStringList{QStringLiteral("--quick-generate-key"), name,
                             QStringLiteral("ed25519"), QStringLiteral("sign"), validity});
}

bool SigningKeys::revoke(const QString &name)
{
    QByteArray listing;
    if (!gpg({QStringLiteral("--with-colons"), QStringLiteral("--list-keys"), name}, &listing)) {
        return false;
    }
    const int line = listing.indexOf("\nfpr:");
    const QByteArray fingerprint = listing.mid(line + 1).split(':').value(9);
    QFile made(
        m_home.filePath(QStringLiteral("openpgp-revocs.d/%1.rev").arg(QLatin1String(fingerprint))));
    QFile certificate(m_home.filePath(QStringLiteral("revocation")));
    // gpg writes it with a colon in front, so that nobody imports it by mistake.
    return made.open(QIODevice::ReadOnly) && certificate.open(QIODevice::WriteOnly)
        && certificate.write(made.readAll().replace(":-----BEGIN", "-----BEGIN")) > 0
        && certificate.flush() && gpg({QStringLiteral("--import"), certificate.fileName()});
}

QByteArray SigningKeys::keyring(const QStringList &names)
{
    QByteArray keys;
    gpg(QStringList{QStringLiteral("--export")} + names, &keys);
    return keys;
}

QByteArray SigningKeys::sign(const QByteArray &data, const QStringList &names,
                             const QStringList &options)
{
    QFile file(m_home.filePath(QStringLiteral("data")));
    if (!file.open(QIODevice::WriteOnly) || file.write(data) != data.size() || !file.flush()) {
        return {};
    }
    QStringList arguments = options;
    for (const QString &name : names) {
        arguments += QStringList{QStringLiteral("--local-user"), name};
    }
    QByteArray signature;
    gpg(arguments
            + QStringList{QStringLiteral("--output"), QStringLiteral("-"),
                          QStringLiteral("--detach-sign"), file.fileName()},
        &signature);
    return signature;
}

QByteArray SigningKeys::signAt(const QString &time, const QByteArray &data, const QString &name,
                               const QStringList &options)
{
    return sign(data, {name}, fakedTime(time) + options);
}

bool SigningKeys::gpg(const QStringList &arguments, QByteArray *output)
{
    const QStringList usual{
        QStringLiteral("--homedir"),       m_home.path(),
        QStringLiteral("--batch"),         QStringLiteral("--quiet"),
        QStringLiteral("--yes"),           QStringLiteral("--no-permission-warning"),
        QStringLiteral("--pinentry-mode"), QStringLiteral("loopback"),
        QStringLiteral("--passphrase"),    QString(),
    };
    QProcess process;
    process.start(QStringLiteral("gpg"), usual + arguments);
    const bool hasEnded = process.waitForFinished(60000);
    if (output) {
        *output = process.readAllStandardOutput();
    }
    if (hasEnded && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0) {
        return true;
    }
    qWarning("gpg %s: %s", qUtf8Printable(arguments.join(QLatin1Char(' '))),
             process.readAllStandardError().constData());
    return false;
}

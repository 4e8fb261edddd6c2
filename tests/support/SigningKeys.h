// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QStringList>
#include <QTemporaryDir>

/// Throw-away OpenPGP keys, made with the gpg program in a home of their own. Keys are named by the
/// user id that they were made for.
class SigningKeys
{
public:
    enum Kind {
        Modern, ///< Ed25519
        Rsa, ///< takes weak hashes too
    };

    SigningKeys();
    /// Ends gpg's agent.
    ~SigningKeys();

    /// A key that is valid for a year.
    bool make(const QString &name, Kind kind = Modern);
    /// A key that was made on the first day of 2025, valid for so long.
    bool makeOld(const QString &name, const QString &validity);
    bool revoke(const QString &name);
    /// For gpg's own commands.
    QString home() const { return m_home.path(); }
    /// The public keys, as a definition names a file of them.
    QByteArray keyring(const QStringList &names);
    /// A detached signature by all of them; `options` go before gpg's command.
    QByteArray sign(const QByteArray &data, const QStringList &names,
                    const QStringList &options = {});
    /// Signs as if it were then, and as gpg writes times: "20250101T120000".
    QByteArray signAt(const QString &time, const QByteArray &data, const QString &name,
                      const QStringList &options = {});

private:
    Q_DISABLE_COPY_MOVE(SigningKeys)

    bool gpg(const QStringList &arguments, QByteArray *output = nullptr);

    QTemporaryDir m_home;
};

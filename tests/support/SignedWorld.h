// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "repository/RVChecksums.h"
#include "repository/RVRepository.h"
#include "tests/support/FakeRoot.h"
#include "tests/support/HttpServer.h"
#include "tests/support/SigningKeys.h"

#include <QMap>

#include <memory>

/// A device that trusts one publisher, and a server with that publisher's repository: the packages
/// "a" and "b" with their descriptors. Whatever is changed between its making and a refresh is what
/// the server, or the line, does to it.
class SignedWorld
{
public:
    static const QString publisher;
    static const QString stranger;
    static const QString id;
    static const QString keyring;

    /// The keys are made once for a test program.
    explicit SignedWorld(SigningKeys *keys);
    static bool makeKeys(SigningKeys *keys);

    /// Puts a file into the repository and its sum into the list, which publish() makes known.
    void add(const QByteArray &name, const QByteArray &content);
    static QByteArray descriptor(const QByteArray &name, const QByteArray &more = {});
    /// Writes the list, signs it and serves everything.
    void publish();
    /// Signs a text in place of the list, and serves both.
    void publishText(const QByteArray &text, const QString &by = publisher,
                     const QStringList &options = {});
    void serve(const QByteArray &name, const QByteArray &content);
    /// The server has it no more.
    void lose(const QByteArray &name);
    int requests(const QByteArray &name, const QByteArray &with = {}) const;

    QUrl url(const QByteArray &name = {}) const
    {
        return server.url(QStringLiteral("/r/") + QString::fromLatin1(name));
    }
    RVTrustPolicy policy() const;
    /// The repository of a definition that asks for the signature.
    std::unique_ptr<RVRepository> repository(const RVTrustPolicy &policy,
                                             const QUrl &location = {}) const;

    FakeRoot root;
    RVPaths paths;
    HttpServer server;
    RVChecksums list;
    QMap<QByteArray, QByteArray> files;

private:
    Q_DISABLE_COPY_MOVE(SignedWorld)

    void serveIndex();

    SigningKeys *m_keys;
    QList<QByteArray> m_served;
};

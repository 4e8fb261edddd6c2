// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "archive/ArchiveBaseClass.h"
#include "core/RVPaths.h"

#include <QNetworkReply>
#include <QSharedPointer>

/// The archive that the rest of the system uses: it chooses the installer for its URL once and forwards
/// to it. Its final signal after each extract() is extractFinished().
class ArchiveGeneric : public ArchiveBaseClass
{
    Q_OBJECT

public:
    explicit ArchiveGeneric(const QUrl &url, QObject *parent = nullptr, const RVPaths &paths = {});
    /// Same parent, URL and backend; the front's own proxy starts unset.
    ArchiveGeneric(const ArchiveGeneric &other);
    /// Takes the backend alone; URL and proxy stay.
    ArchiveGeneric &operator=(const ArchiveGeneric &other);
    ~ArchiveGeneric() override;

    bool urlIsHandled() const override;
    bool useExtract() const override;
    void setProxy(const QString &host, int port) override;
    bool extract(QIODevice *source) const override;

public Q_SLOTS:
    bool extract(QIODevice *source);
    bool extract(QNetworkReply *source);
    void install(QProcess *proc) override;

Q_SIGNALS:
    /// After every extract(), also when it failed or there is no backend.
    void extractFinished() const;
    void installStarted();

private Q_SLOTS:
    void relayInstallStarted();

private:
    bool matchBackend(const QUrl &url, const RVPaths &paths);

    QSharedPointer<ArchiveBaseClass> m_backend;
};

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "archive/ArchiveBaseClass.h"
#include "core/RVPaths.h"
#include "core/RVSentence.h"

#include <QNetworkReply>
#include <QSharedPointer>

class ImageQuestion;

/// The archive that the rest of the system uses: it chooses the installer for its URL once and
/// forwards to it. Without an installer for that kind of file every operation is harmless and does
/// nothing. Its final signal after each extract() is extractFinished().
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
    /// Whether there is an installer for that kind of file.
    static bool isHandled(const QUrl &url);

    /// True when there is a backend; ask before offering the archive for installation.
    bool urlIsHandled() const override;
    bool useExtract() const override;
    void setProxy(const QString &host, int port) override;
    InstallCommand installCommand() const override;
    /// A full image, which is never downloaded and installs after a yes only.
    bool isImage() const;
    /// See ArchiveXar: of another kind these do nothing.
    void installAll(QProcess *proc);
    InstallCommand installAllCommand() const;
    /// Not owned; only a full image asks.
    void setImageQuestion(ImageQuestion *question);
    /// Of a full image whose installation has ended well: why the device's next start cannot carry
    /// it out after all. Empty when it can, and for every other archive.
    RVSentence orderFault() const;

public Q_SLOTS:
    /// False also for a network reply that failed, whose bytes no backend gets to see. Throws
    /// NotExtractable for an archive that is installed without extraction: ask useExtract() first.
    bool extract(QIODevice *source) const override;
    /// The same, for a manager's finished().
    bool extract(QNetworkReply *source);
    void install(QProcess *proc) override;

Q_SIGNALS:
    /// Once after every extract(), also when it failed or there is no backend.
    void extractFinished() const;

private Q_SLOTS:
    void relayInstallStarted();

private:
    bool matchBackend(const QUrl &url, const RVPaths &paths);

    QSharedPointer<ArchiveBaseClass> m_backend;
};

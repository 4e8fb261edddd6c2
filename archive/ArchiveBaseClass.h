// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "archive/InstallScript.h"

#include <QIODevice>
#include <QObject>
#include <QProcess>
#include <QUrl>

/// The archive of one update: how its bytes get to local storage and how it is installed.
/// Works in the process's current directory, which the install procedure chooses.
class ArchiveBaseClass : public QObject
{
    Q_OBJECT

public:
    /// Thrown by value from extract().
    enum Exception_t {
        NotExtractable = 2,
    };

    explicit ArchiveBaseClass(const QUrl &url, QObject *parent = nullptr);
    ~ArchiveBaseClass() override;

    const QUrl &url() const { return m_url; }

    virtual bool urlIsHandled() const = 0;
    /// Whether the archive's bytes pass through extract() before install().
    virtual bool useExtract() const = 0;
    /// Copies or unpacks `source` into the current directory.
    virtual bool extract(QIODevice *source) const = 0;
    /// Starts the installation in `proc` and does not wait for it.
    virtual void install(QProcess *proc) = 0;
    /// A proxy for installers that fetch by themselves.
    virtual void setProxy(const QString &host, int port) = 0;
    /// What install() would run now; no program where there is nothing to run.
    virtual InstallCommand installCommand() const = 0;

Q_SIGNALS:
    /// The installation has really begun. Every archive emits this one: a subclass that declared
    /// its own would hide it from whoever is connected to this class.
    void installStarted();
    /// The user was asked and said no: the process ends at once, and well.
    void installDeclined();

protected:
    QUrl m_url;
    QString m_proxyHost;
    int m_proxyPort = -1;

private:
    Q_DISABLE_COPY_MOVE(ArchiveBaseClass)
};

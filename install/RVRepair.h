// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/RVPaths.h"
#include "install/RVKeeper.h"

#include <QProcess>
#include <QVector>

/// Sets an interrupted package database right: the process of one run of dpkg, on a system that is
/// unlocked for it as for an installation. Whether it helped is for RVPackageDatabase to say.
/// Its final signal, once after each start, is QProcess's finished(), or
/// errorOccurred(FailedToStart). A keeper reads what dpkg writes
/// (ADR 60). If it is destroyed while dpkg runs, it waits.
class RVRepair : public QProcess
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(RVRepair)

public:
    explicit RVRepair(const RVPaths &paths, QObject *parent = nullptr);
    ~RVRepair() override;

    /// Written before a start: as RVInstallProc's.
    QVector<int> heldLocks;

    /// Ends what was begun: configures what is unpacked, and runs the triggers.
    void configure();
    /// For packages that cannot be configured.
    void remove(const QStringList &packages);

protected:
    void setupChildProcess() override;

private:
    void run(const QStringList &arguments);

    RVKeeper m_keeper;
    const QString m_shell;
};

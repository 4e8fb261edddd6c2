// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "install/RVLockWait.h"
#include "install/RVPreflight.h"
#include "ui/RVObstacleBox.h"

#include <QObject>
#include <QPointer>
#include <QVector>

#include <memory>

class BusyDialog;
class RVRepair;

/// What the window does before an installation begins: it waits for locks, says what stands in the
/// way, and repairs the package database. passed() is its final signal; where the user gives up,
/// the dialog's Cancel takes its place.
class RVInstallGate : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(RVInstallGate)

public:
    /// `dialog` shows what is waited for, and its Cancel ends it. The lock of the run is held for
    /// as long as this object lives.
    RVInstallGate(const RVBatch &batch, const RVPaths &paths, BusyDialog *dialog,
                  QObject *parent = nullptr);
    ~RVInstallGate() override;

    /// Written before start(): how many seconds locks are waited for before the user is asked.
    int patience = 60;
    /// For the procedure that follows.
    QVector<int> heldLocks() const;

public Q_SLOTS:
    /// passed() comes inside it where nothing is in the way.
    void start();
    void stop();

Q_SIGNALS:
    void passed();

private:
    void lookFurther();
    void ask(const RVObstacle &obstacle, RVObstacleBox::Offer offer);
    void act(const RVObstacle &obstacle, RVObstacleBox::Offer offer);
    void repaired();

    const RVBatch m_batch;
    const RVPaths m_paths;
    RVPreflight m_preflight;
    RVLockWait m_wait;
    QPointer<BusyDialog> m_dialog;
    std::unique_ptr<RVRepair> m_repair;
    bool m_isRepaired = false;
};

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "ui/RVInstallGate.h"

#include "core/RVLogger.h"
#include "install/RVRepair.h"
#include "ui/BusyDialog.h"

RVInstallGate::RVInstallGate(const RVBatch &batch, const RVPaths &paths, BusyDialog *dialog,
                             QObject *parent)
    : QObject(parent)
    , m_batch(batch)
    , m_paths(paths)
    , m_preflight(paths)
    , m_wait(&m_preflight, batch.kind)
    , m_dialog(dialog)
{
    connect(dialog, &BusyDialog::canceled, this, &RVInstallGate::stop);
    connect(&m_wait, &RVLockWait::waiting, this, [this](const RVSentence &holder, int seconds) {
        if (m_dialog) {
            m_dialog->setLabelText(holder.translated() + QLatin1Char('\n')
                                   + tr("Waiting for %n more second(s)...", nullptr, seconds));
        }
    });
    connect(&m_wait, &RVLockWait::ended, this, [this](bool isFree) {
        if (isFree) {
            lookFurther();
        } else {
            ask(m_wait.obstacle(), RVObstacleBox::Offer::Retry);
        }
    });
}

RVInstallGate::~RVInstallGate() = default;

QVector<int> RVInstallGate::heldLocks() const
{
    const int handle = m_preflight.runLock().handle();
    return handle >= 0 ? QVector<int>{handle} : QVector<int>();
}

void RVInstallGate::start()
{
    if (m_preflight.takeLocks(m_batch.kind)) {
        m_wait.start(patience);
    } else {
        lookFurther();
    }
}

void RVInstallGate::stop()
{
    m_wait.stop();
    m_dialog = nullptr;
}

void RVInstallGate::lookFurther()
{
    if (m_preflight.runLock().state() == RVRunLock::State::Unavailable) {
        RVLogger().log(4, "Nothing keeps another installation from running beside this one: %s",
                       RVLogger::oneLine(m_preflight.runLock().reason()).constData());
    }
    const QVector<RVObstacle> obstacles = m_preflight.obstacles(m_batch);
    if (obstacles.isEmpty()) {
        Q_EMIT passed();
        return;
    }
    const RVObstacle &first = obstacles.constFirst();
    const bool isRepairable = first.kind == RVObstacle::Kind::Interrupted;
    if (!isRepairable) {
        ask(first, RVObstacleBox::Offer::Retry);
    } else {
        ask(first,
            m_isRepaired && !first.packages.isEmpty() ? RVObstacleBox::Offer::Remove
                                                      : RVObstacleBox::Offer::Repair);
    }
}

void RVInstallGate::ask(const RVObstacle &obstacle, RVObstacleBox::Offer offer)
{
    if (!m_dialog) {
        return;
    }
    RVLogger().log(3, "%s", RVLogger::oneLine(obstacle.sentence.english()).constData());
    auto *box = new RVObstacleBox(obstacle, offer, m_dialog);
    box->setAttribute(Qt::WA_DeleteOnClose);
    connect(box, &QDialog::finished, this, [this, box, obstacle, offer] {
        if (box->isAccepted()) {
            act(obstacle, offer);
        } else if (m_dialog) {
            m_dialog->cancel();
        }
    });
    box->open();
}

void RVInstallGate::act(const RVObstacle &obstacle, RVObstacleBox::Offer offer)
{
    if (offer == RVObstacleBox::Offer::Retry) {
        start();
        return;
    }
    m_repair = std::make_unique<RVRepair>(m_paths);
    m_repair->heldLocks = heldLocks();
    connect(m_repair.get(), &QProcess::readyReadStandardOutput, this, [this] {
        const QByteArray output = m_repair->readAllStandardOutput();
        if (m_dialog) {
            m_dialog->showOutput(output);
        }
    });
    connect(m_repair.get(), qOverload<int, QProcess::ExitStatus>(&QProcess::finished), this,
            &RVInstallGate::repaired);
    connect(m_repair.get(), &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) {
            repaired();
        }
    });
    if (m_dialog) {
        m_dialog->disableCancel();
        m_dialog->setLabelText(tr("Repairing the package database..."));
        m_dialog->setRange(0, 0);
    }
    if (offer == RVObstacleBox::Offer::Remove) {
        m_repair->remove(obstacle.packages);
    } else {
        m_repair->configure();
    }
}

void RVInstallGate::repaired()
{
    m_isRepaired = true;
    if (m_dialog) {
        m_dialog->setCancelButtonText(BusyDialog::tr("Cancel"));
        m_dialog->setRange(0, 100);
    }
    start();
}

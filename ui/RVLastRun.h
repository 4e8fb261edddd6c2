// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/RVPaths.h"
#include "install/RVKeptRun.h"

#include <QTimer>
#include <QWidget>

#include <optional>

class QGroupBox;
class QLabel;
class QPlainTextEdit;
class QPushButton;

/// The message at the head of the page about an installation that outlived its program: how it
/// ended, or that it still runs, with its output. Hidden when there is none. Follows one that
/// runs; one that has ended is shown once.
class RVLastRun : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(RVLastRun)

public:
    explicit RVLastRun(const RVPaths &paths, QWidget *parent = nullptr);
    ~RVLastRun() override;

Q_SIGNALS:
    /// The run that was shown as running has ended: the system may be another.
    void ended();

protected:
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void look();
    void showOutput(bool isShown);
    void retranslateUi();

    const RVPaths m_paths;
    std::optional<RVKeptRun> m_run;
    QLabel *m_label = nullptr;
    QGroupBox *m_detailsBox = nullptr;
    QPlainTextEdit *m_output = nullptr;
    QPushButton *m_close = nullptr;
    QTimer m_timer;
};

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "install/RVHistory.h"

#include <QDialog>
#include <QVector>

class QLabel;
class QTableWidget;

/// What was installed on this system, the newest first. Not modal; deletes itself when it is
/// closed.
class RVHistoryDialog : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(RVHistoryDialog)

public:
    explicit RVHistoryDialog(const RVHistory::Reading &reading, QWidget *parent = nullptr);
    ~RVHistoryDialog() override;

    /// Updates that are listed; the rest is on the command line.
    static constexpr int mostRows = 1000;

    /// Closing and Escape end here.
    void done(int result) override;

protected:
    void changeEvent(QEvent *event) override;

private:
    struct Row {
        const RVHistory::Run *run;
        const RVHistory::Item *item;
    };
    void retranslateUi();
    QString result(const Row &row) const;

    const QVector<RVHistory::Run> m_runs;
    const int m_damaged;
    QVector<Row> m_rows;
    bool m_isCut = false;
    QTableWidget *m_table = nullptr;
    QLabel *m_note = nullptr;
};

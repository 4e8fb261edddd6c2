// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QTableWidget>

/// The table of the proxies page: server and port for each type of connection. As high as its rows;
/// a click or a key opens a cell's editor, Tab goes from editor to editor and then out of the
/// table.
class RVProxyTable : public QTableWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(RVProxyTable)

public:
    enum Column {
        SchemeColumn,
        ServerColumn,
        PortColumn,
    };

    explicit RVProxyTable(int rows, QWidget *parent = nullptr);
    ~RVProxyTable() override;

    /// Of a cell, without the blanks that pasting brings.
    QString text(int row, int column) const;
    /// -1 for a text that is no port, which the empty one is not either.
    int port(int row) const;
    /// Marks the cell by an icon, a tool tip and in words, or takes the mark away.
    void setProblem(int row, const QString &problem);
    /// What an open editor holds goes into its cell.
    void commitEditor();
    /// After a change of the headings' texts.
    void fitColumns();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void changeEvent(QEvent *event) override;
    void closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint) override;
};

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QDialog>

class DescriptorGeneric;

/// Everything that a descriptor says about one update. Not modal; deletes itself after OK.
class ItemDetailsDialog : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ItemDetailsDialog)

public:
    /// `descriptor` must outlive the dialog.
    explicit ItemDetailsDialog(const DescriptorGeneric *descriptor, QWidget *parent = nullptr,
                               Qt::WindowFlags flags = {});
    ~ItemDetailsDialog() override;

    void retranslateUi();
    /// A byte count in KiB, MiB or GiB.
    QString sizeStr(qint64 bytes) const;

protected:
    void changeEvent(QEvent *event) override;

private:
    const DescriptorGeneric *m_descriptor;
};

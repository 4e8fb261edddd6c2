// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <plume/PlumeExport.h>

#include <QWidget>

/// One page of the host's window. A page that has help for what is selected on it also has a signal
/// helpChanged(QString), which the window follows when it is there.
class PLUME_EXPORT WizardPage : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(WizardPage)

public:
    explicit WizardPage(QWidget *parent = nullptr, Qt::WindowFlags flags = {});
    ~WizardPage() override;

    virtual QString title() const = 0;
    virtual QString description() const = 0;
    /// Rich text.
    virtual QString helpText() const = 0;

Q_SIGNALS:
    /// The page changed the system, or what is set for it.
    void modified();
};

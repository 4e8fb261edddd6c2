// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <plume/PlumeExport.h>

#include <QFrame>
#include <QIcon>

/// The content of one accordion item, which asks it for its heading.
class PLUME_EXPORT ControlFrame : public QFrame
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ControlFrame)

public:
    explicit ControlFrame(QWidget *parent = nullptr);
    ~ControlFrame() override;

    virtual QString title() const = 0;
    virtual QString helpText() const = 0;
    virtual QIcon icon() const = 0;

Q_SIGNALS:
    /// title(), helpText() or icon() give something else now.
    void headingChanged();
};

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/VersionString.h"

#include <QList>
#include <QObject>

/// What is installed on the system that updates are offered to.
class OSInfoBaseClass : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(OSInfoBaseClass)

public:
    /// Thrown by value from constructors.
    enum ExceptionType {
        ImageIdUnreadable = 1,
    };

    explicit OSInfoBaseClass(QObject *parent = nullptr);
    ~OSInfoBaseClass() override;

    virtual VersionString baseOSName() const = 0;
    virtual QList<VersionString> servicePackList() const = 0;
    /// The installed version of a package (epoch and revision included), or the empty text, also of
    /// one that was not configured.
    virtual QString versionInstalled(const QString &packageName) const = 0;
    virtual QString architecture() const = 0;
    virtual QString thinClient() const = 0;
    /// Reads everything again.
    virtual void refresh() = 0;
    /// Whether an installation of the package began and did not come to its end: it is not
    /// installed, and not gone either.
    virtual bool isNotConfigured(const QString &packageName) const;
};

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "cli/RVCtlResult.h"

#include <QJsonObject>
#include <QString>
#include <QVector>

class QNetworkReply;
struct RVItemResult;

/// Why a file could not be had.
struct RVCtlFault {
    enum Kind {
        None,
        Network,
        /// It came to an early end, or is not what its name says.
        Damaged,
        Space,
        /// The place for it cannot be used.
        Target,
        /// It is not the file that the repository's list has.
        Refused,
    };

    static RVCtlFault ofReply(const QNetworkReply &reply);
    /// Why the installer did not get its archive; none where that is not why.
    static RVCtlFault ofItem(const RVItemResult &item);

    Kind kind = None;
    /// Qt 4's, of the network; else 0.
    int code = 0;
    QString text;

    bool isSet() const { return kind != None; }
    /// "code", "text" and "kind", or null.
    QJsonValue toJson() const;

    /// The exit code of a run in which nothing could be had.
    static RVCtlExit exitFor(const QVector<RVCtlFault> &faults);
};

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "install/RVResult.h"

class QNetworkReply;

/// Why an archive did not reach its installer.
struct RVDownloadFault {
    RVItemResult::Fault kind = RVItemResult::Fault::None;
    /// Qt 4's, of the network; else 0.
    int networkError = 0;
    RVSentence reason;

    /// Of a download that failed.
    static RVDownloadFault ofReply(const QNetworkReply &reply);

    bool isSet() const { return kind != RVItemResult::Fault::None; }
};

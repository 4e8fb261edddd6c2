// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "repository/RVTrustFault.h"

#include <QString>

class QDomElement;

/// What a definition asks of its repository before anything of it is used.
struct RVTrustPolicy {
    enum Kind {
        /// Whatever the server has.
        None,
        /// Every file fits a list that whoever has the server can write: integrity, and no
        /// authenticity.
        Checksums,
        /// The list is signed.
        Signed,
    };

    Kind kind = None;
    /// Of a signed one: a file in the folder of the keyrings, and what the list calls itself.
    QString keyring;
    QString repositoryId;
    /// The elements make no sense. The section is an error then, and never one without a signature.
    RVTrustFault fault;

    /// By the elements `signed_by`, `repository_id` and `checksums` of a `repository` element.
    static RVTrustPolicy parse(const QDomElement &repository);
};

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/RVSentence.h"

#include <QString>

/// Asks the person at the device whether a full image may wipe it. Whoever sets one keeps it alive
/// for as long as the archive that it was handed to.
class ImageQuestion
{
public:
    virtual ~ImageQuestion() = default;

    /// What is asked about, written by whoever has it asked. As they came from outside.
    QString name;
    QString version;
    /// Whether the image was compared with a list of sums before.
    bool isChecked = false;
    /// Empty where the device will take the server's certificate as far as anybody can tell.
    RVSentence certificateWarning;

    /// False is the answer that leaves the device as it is.
    virtual bool confirmImageInstall() = 0;
};

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

/// Asks the person at the device whether a full image may wipe it. Whoever sets one keeps it alive
/// for as long as the archive that it was handed to.
class ImageQuestion
{
public:
    virtual ~ImageQuestion() = default;

    /// False is the answer that leaves the device as it is.
    virtual bool confirmImageInstall() = 0;
};

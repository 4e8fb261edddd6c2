// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "archive/ImageQuestion.h"
#include "core/RVPaths.h"

/// The question before a full image as a message box, which blocks until it is answered. Escape,
/// Return and closing the box all leave the device as it is.
class ImageInstallBox : public ImageQuestion
{
public:
    explicit ImageInstallBox(const RVPaths &paths = {});

    /// Whether the image was compared with a list of sums before, and what that means is said.
    void setChecked(bool isChecked) { m_isChecked = isChecked; }
    bool confirmImageInstall() override;

private:
    const RVPaths m_paths;
    bool m_isChecked = false;
};

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

    bool confirmImageInstall() override;

private:
    const RVPaths m_paths;
};

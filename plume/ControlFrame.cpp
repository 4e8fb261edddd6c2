// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include <plume/ControlFrame.h>

ControlFrame::ControlFrame(QWidget *parent)
    : QFrame(parent)
{
}

ControlFrame::~ControlFrame() = default;

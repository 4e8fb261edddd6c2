// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

class QUrl;

/// True for a local pipe, socket or device, whatever links lead to it: opening one may block, and
/// what it gives may never end. Ask before a network access manager is sent for it.
bool isSpecialFile(const QUrl &url);

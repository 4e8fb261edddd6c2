// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

/// From here on file permissions hold for the calling thread, and for those that it starts, even
/// when the tests run as root: gives up the capabilities that override them. For good; false on
/// failure. Nothing changes for an ordinary user.
bool obeyFilePermissions();

/// The same for a program that this process becomes, also one of root's: to be called by
/// QProcess::setupChildProcess().
void obeyFilePermissionsAfterExec();

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
//
// Part of every test program, so that none of them writes to the log of the system.
#include "tests/support/LogFile.h"

namespace
{

const bool isSent = [] {
    LogFile::sendToTestFolder();
    return true;
}();

} // namespace

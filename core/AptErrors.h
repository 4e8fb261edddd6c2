// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QtGlobal>

/// Guards one use of libapt-pkg. The library's error stack is one for the whole process, and what
/// is left on it makes every later operation fail: for as long as this lives the stack is a fresh
/// one, whose messages then end up in the log.
class AptErrors
{
public:
    AptErrors();
    ~AptErrors();

    bool any() const;

private:
    Q_DISABLE_COPY_MOVE(AptErrors)
};

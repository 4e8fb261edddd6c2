// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

/// A user name and a password.
struct RVLogin {
    QString user;
    QString password;

    bool isEmpty() const { return user.isEmpty() && password.isEmpty(); }
    bool operator==(const RVLogin &other) const
    {
        return user == other.user && password == other.password;
    }
};

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

/// A version text with the system's own ordering: a relative of Debian's (Policy 5.6.12) with
/// deliberate simplifications. There is no epoch, and a tilde suffix on the left side does not make
/// a version older; repositories rely on the order as it is.
class VersionString
{
public:
    VersionString() = default;
    explicit VersionString(const QString &text)
        : m_text(text)
    {
    }

    /// The text as it was read.
    const QString &toString() const { return m_text; }
    bool isEmpty() const { return m_text.isEmpty(); }

    /// -1 when this version is older than `other`, 0 when equal, 1 when newer.
    int compare(const VersionString &other, Qt::CaseSensitivity cs) const;
    /// The same for two fragments without a revision; independent of the object's own text.
    int versionCompare(const QString &a, const QString &b, Qt::CaseSensitivity cs) const;

private:
    QString m_text;
};

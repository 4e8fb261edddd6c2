// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

/// The one cheap streaming pass that every XML document takes before it reaches the DOM, which
/// crashes on deep nesting and expands entities without a bound.
class XmlCheck
{
public:
    static constexpr int maxBytes = 16 * 1024 * 1024;
    static constexpr int maxDepth = 256;
    static constexpr int maxEntityGrowth = 1024 * 1024;

    /// True when `document` is well-formed and within the bounds; else error(), line() and column()
    /// (from 1) say why and where.
    bool accepts(const QByteArray &document);

    const QString &error() const { return m_error; }
    int line() const { return m_line; }
    int column() const { return m_column; }

private:
    QString m_error;
    int m_line = 0;
    int m_column = 0;
};

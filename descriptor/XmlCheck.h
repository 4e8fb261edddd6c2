// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

/// The one cheap streaming pass that every XML document takes before it reaches the DOM, which
/// crashes on deep nesting, takes over 200 bytes for each node and expands entities without a
/// bound. It runs the parser that the DOM itself is built from, so that both see the same document;
/// nothing that the document refers to is ever fetched.
class XmlCheck
{
public:
    static constexpr int maxBytes = 16 * 1024 * 1024;
    static constexpr int maxDepth = 256;
    /// Characters that entity references may bring in, in all.
    static constexpr int maxEntityGrowth = 1024 * 1024;
    /// Declaring entities costs the parser quadratic time: 1,000 take 16 ms, 20,000 take 9 s.
    static constexpr int maxEntities = 1000;
    /// Elements, attributes, texts, comments and so on: about 100 MB of DOM.
    static constexpr int maxNodes = 250'000;
    /// Of one element: the DOM reaches the n-th attribute in n steps.
    static constexpr int maxAttributes = 256;

    /// True when `document` is well-formed and within the bounds; else error(), line() and column()
    /// (from 1) say why and where.
    bool accepts(const QByteArray &document);

    const QString &error() const { return m_error; }
    /// Whether it was refused for its bounds, and not for what is no XML.
    bool isBeyondBounds() const { return m_beyondBounds; }
    int line() const { return m_line; }
    int column() const { return m_column; }

private:
    QString m_error;
    bool m_beyondBounds = false;
    int m_line = 0;
    int m_column = 0;
};

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QMap>
#include <QString>
#include <QUrl>

#include <optional>

/// The list SHA256SUMS of a repository: a sum for each file, as sha256sum(1) writes it, and what a
/// signed list says of itself, in lines that sha256sum passes over. A value.
class RVChecksums
{
public:
    static const QString fileName;
    static const QString signatureName;
    static constexpr int maxBytes = 4 * 1024 * 1024;
    /// The longest head of an archive that a list may name.
    static constexpr qint64 maxHead = 32 * 1024 * 1024;

    /// The beginning of an archive that describes itself, so much of it as its description needs.
    struct Head {
        QByteArray sum;
        qint64 length = 0;
    };

    /// Nothing, and why, when the text is not a list: one wrong line refuses the whole.
    static std::optional<RVChecksums> parse(const QByteArray &text, QString *reason);
    QByteArray toText() const;

    /// What a signed list has to say; each may be missing in one that is not signed.
    QString repositoryId;
    std::optional<qint64> serial;
    QDateTime validUntil;

    /// By the names of the files, as bytes; the sums are binary.
    QMap<QByteArray, QByteArray> sums;
    QMap<QByteArray, Head> heads;

    /// The sum of the file at `url`; empty when it is not in the list.
    QByteArray sumOf(const QUrl &url) const { return sums.value(nameOf(url)); }

    /// The name that a list has for the file at `url`: its last segment, decoded once. Empty where
    /// that is no name of a file, or where a query or a fragment could make another file of it.
    static QByteArray nameOf(const QUrl &url);
    /// A letter or digit, then letters, digits, ".", "_" and "-", 100 of them at most.
    static bool isRepositoryId(const QString &text);
};

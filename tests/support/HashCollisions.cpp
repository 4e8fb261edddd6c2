// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/support/HashCollisions.h"

#include <QHash>
#include <QVector>

namespace
{

/// What a table's own seed would be; what collides here collides with any other, too.
constexpr uint seed = 1;

/// Spells `choices` with one of two texts for each bit.
QString spelled(quint64 choices, int bits, const QString &zero, const QString &one)
{
    QString name;
    for (int i = 0; i < bits; ++i) {
        name += (choices >> i & 1) != 0 ? one : zero;
    }
    return name;
}

/// Choices that can be made in any combination without a change of the sum, by elimination.
QVector<quint64> withoutEffect(const QVector<uint> &effects)
{
    struct Row {
        uint effect;
        quint64 choices;
    };
    QVector<Row> pivots;
    QVector<quint64> result;
    for (int i = 0; i < effects.size(); ++i) {
        Row row{effects.at(i), quint64(1) << i};
        for (const Row &pivot : qAsConst(pivots)) {
            if ((row.effect ^ pivot.effect) < row.effect) {
                row.effect ^= pivot.effect;
                row.choices ^= pivot.choices;
            }
        }
        if (row.effect == 0) {
            result.append(row.choices);
        } else {
            pivots.append(row);
        }
    }
    return result;
}

} // namespace

QStringList namesOfOneHash(const QString &prefix, int bits)
{
    // Where the processor has an instruction for it, Qt's hash is a CRC: each bit of the text
    // changes the same bits of the hash, whatever the others are.
    const int letters = bits + 32;
    const auto name = [letters](quint64 choices) {
        return spelled(choices, letters, QStringLiteral("a"), QStringLiteral("b"));
    };
    const auto hash = [&prefix](const QString &text) {
        return qHash(prefix + text, seed);
    };
    QVector<uint> effects;
    for (int i = 0; i < letters; ++i) {
        effects.append(hash(name(quint64(1) << i)) ^ hash(name(0)));
    }
    const bool isCrc = (hash(name(3)) ^ hash(name(0))) == (effects.at(0) ^ effects.at(1));
    const QVector<quint64> free = isCrc ? withoutEffect(effects) : QVector<quint64>();

    QStringList names;
    for (quint64 i = 0; i < quint64(1) << bits; ++i) {
        if (!isCrc) {
            // Elsewhere it is a sum of powers of 31.
            names.append(spelled(i, bits, QStringLiteral("Aa"), QStringLiteral("BB")));
            continue;
        }
        quint64 choices = 0;
        for (int k = 0; k < bits; ++k) {
            choices ^= (i >> k & 1) != 0 ? free.at(k) : 0;
        }
        names.append(name(choices));
    }
    return names;
}

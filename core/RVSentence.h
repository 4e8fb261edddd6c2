// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QMetaType>
#include <QString>
#include <QStringList>

/// A sentence of the engine for people: in English for the log, the documents of programs and the
/// command line, and in the user's language for the window. A value.
///
///     RVSentence(QT_TRANSLATE_NOOP("RVSentence", "%1 needs %2."), {package, needed})
class RVSentence
{
public:
    /// The arguments are shown without what hides or turns text around, each at most so long.
    static constexpr int longestArgument = 300;

    RVSentence() = default;
    /// `source` holds "%1" to "%9" for the arguments. It is a text that translators see: mark it
    /// as above.
    explicit RVSentence(const char *source, const QStringList &arguments = {});
    /// The same with a number, "%n", on which the form of the words depends: mark it with
    /// QT_TRANSLATE_N_NOOP. English has one form: the number is two or more.
    static RVSentence counted(const char *source, int number, const QStringList &arguments = {});

    bool isEmpty() const { return m_source.isEmpty(); }
    /// With the arguments as they came: whoever writes it sees to what is harmless there.
    QString english() const;
    /// In the language of the application now, safe to show as plain text.
    QString translated() const;

    bool operator==(const RVSentence &other) const
    {
        return m_source == other.m_source && m_arguments == other.m_arguments
            && m_number == other.m_number;
    }
    bool operator!=(const RVSentence &other) const { return !(*this == other); }

private:
    QByteArray m_source;
    QStringList m_arguments;
    /// -1 for none.
    int m_number = -1;
};

Q_DECLARE_METATYPE(RVSentence)

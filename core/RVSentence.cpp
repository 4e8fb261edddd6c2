// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/RVSentence.h"

#include "core/RVText.h"

#include <QCoreApplication>

namespace
{

// In one pass: an argument that looks like a placeholder stays what it is.
QString filled(const QString &text, const QStringList &arguments)
{
    QString result;
    for (int i = 0; i < text.size(); ++i) {
        const int digit = text.at(i) == QLatin1Char('%') && i + 1 < text.size()
            ? text.at(i + 1).unicode() - '1'
            : -1;
        if (digit >= 0 && digit < arguments.size()) {
            result += arguments.at(digit);
            ++i;
        } else {
            result += text.at(i);
        }
    }
    return result;
}

} // namespace

RVSentence::RVSentence(const char *source, const QStringList &arguments)
    : m_source(source)
    , m_arguments(arguments)
{
}

RVSentence RVSentence::counted(const char *source, int number, const QStringList &arguments)
{
    RVSentence result(source, arguments);
    result.m_number = number;
    return result;
}

QString RVSentence::english() const
{
    QString text = QString::fromUtf8(m_source);
    if (m_number >= 0) {
        text.replace(QLatin1String("%n"), QString::number(m_number));
    }
    return filled(text, m_arguments);
}

QString RVSentence::translated() const
{
    if (isEmpty()) {
        // An empty source is the catalogue's own head.
        return {};
    }
    QStringList arguments;
    for (const QString &argument : m_arguments) {
        arguments.append(RVText::shown(argument, longestArgument));
    }
    return filled(
        QCoreApplication::translate("RVSentence", m_source.constData(), nullptr, m_number),
        arguments);
}

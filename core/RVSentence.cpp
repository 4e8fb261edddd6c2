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

QString RVSentence::english() const
{
    return filled(QString::fromUtf8(m_source), m_arguments);
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
    return filled(QCoreApplication::translate("RVSentence", m_source.constData()), arguments);
}

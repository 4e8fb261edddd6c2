// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include <plume/LocaleString.h>

#include <QLocale>
#include <QStringList>

namespace
{

/// The keys to look for, best first, when no language is asked for: "pt_BR", "pt-BR", "pt", "en".
QStringList runningLanguages()
{
    const QString name = QLocale().name();
    QString dashed = name;
    dashed.replace(QLatin1Char('_'), QLatin1Char('-'));
    return {name, dashed, name.section(QLatin1Char('_'), 0, 0), QStringLiteral("en")};
}

} // namespace

void LocaleString::setValue(const QString &text, const QString &language)
{
    m_values.insert(language, text);
}

QString LocaleString::value(const QString &language) const
{
    if (!language.isEmpty()) {
        return m_values.value(language);
    }
    const QStringList languages = runningLanguages();
    for (const QString &candidate : languages) {
        const auto found = m_values.constFind(candidate);
        if (found != m_values.constEnd()) {
            return *found;
        }
    }
    return m_values.isEmpty() ? QString() : m_values.first();
}

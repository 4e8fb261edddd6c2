// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <plume/PlumeExport.h>

#include <QMap>
#include <QString>

/// A text in several languages, keyed by language code ("de", "pt_BR"). A value.
class PLUME_EXPORT LocaleString
{
public:
    /// Stores the variant for a language, replacing an earlier one.
    void setValue(const QString &text, const QString &language);
    /// The variant for a language. The empty language is the running one (QLocale's default), then
    /// "en", then whatever is stored; any other language that is not stored gives the empty text.
    QString value(const QString &language) const;
    bool isEmpty() const { return m_values.isEmpty(); }

    bool operator==(const LocaleString &other) const { return m_values == other.m_values; }
    bool operator!=(const LocaleString &other) const { return !(*this == other); }

private:
    QMap<QString, QString> m_values;
};

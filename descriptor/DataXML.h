// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QDomDocument>
#include <QStringList>

class LocaleString;

/// A DOM document with the extraction helpers that descriptors and definition files share. Each
/// helper looks at every descendant of `elem` with the tag name `tag`, at any depth, in document order.
class DataXML : public QDomDocument
{
public:
    /// Parses a document that came from outside: refuses what XmlCheck refuses, without touching
    /// the DOM. On failure the document is empty, and `error`, `line`, `column` (each may be null)
    /// say why and where.
    bool load(const QByteArray &document, QString *error = nullptr, int *line = nullptr,
              int *column = nullptr);

    /// The last match's content; false, and `out` untouched, when nothing matches.
    bool elementsToQString(const QDomElement &elem, const QString &tag, QString *out) const;
    /// Appends every match's content.
    bool elementsToStringList(const QDomElement &elem, const QString &tag, QStringList *out) const;
    /// Sets every match's content for its language.
    bool elementsToLocaleString(const QDomElement &elem, const QString &tag,
                                LocaleString *out) const;
    /// The last match that holds a decimal integer: a sign and digits, nothing else.
    bool elementsToQint64(const QDomElement &elem, const QString &tag, qint64 *out) const;
    /// t…, y… and 1 are true; f…, n… and 0 false; anything else sets false and returns false.
    bool elementsToBool(const QDomElement &elem, const QString &tag, bool *out) const;
    /// The node's "xml:lang", or "en".
    QString getLangAttr(const QDomNode &node) const;
};

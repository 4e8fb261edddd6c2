// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QDomDocument>
#include <QStringList>

class LocaleString;
class QIODevice;

/// A DOM document with the extraction helpers that descriptors and definition files share. Each
/// helper looks at every descendant of `elem` with the tag name `tag`, at any depth, in document
/// order. An element's content is its children as XML text: markup stays markup, and <, > and & are
/// escaped. Nothing is trimmed, but the DOM drops a text of nothing but blanks.
class DataXML : public QDomDocument
{
public:
    /// Matches inside one another repeat their content at each level; flat documents never get
    /// here.
    static constexpr int maxContent = 16 * 1024 * 1024;

    /// Parses a document that came from outside: refuses what XmlCheck refuses, without touching
    /// the DOM. On failure the document is empty, and `error`, `line`, `column` (each may be null)
    /// say why and where.
    bool load(const QByteArray &document, QString *error = nullptr, int *line = nullptr,
              int *column = nullptr);
    /// The same for all that `device` holds, read no further than XmlCheck takes. A device that is
    /// not open is opened for the time of the call.
    bool load(QIODevice *device, QString *error = nullptr, int *line = nullptr,
              int *column = nullptr);

    /// The last match's content; false, and `out` untouched, when nothing matches.
    bool elementsToQString(const QDomElement &elem, const QString &tag, QString *out) const;
    /// Appends every match's content, as long as all of it stays within maxContent characters.
    bool elementsToStringList(const QDomElement &elem, const QString &tag, QStringList *out) const;
    /// Sets every match's content for its language, within the same bound.
    bool elementsToLocaleString(const QDomElement &elem, const QString &tag,
                                LocaleString *out) const;
    /// The last match that begins with a text that is a decimal integer: at most one sign, then
    /// digits, nothing else, within 64 bits.
    bool elementsToQint64(const QDomElement &elem, const QString &tag, qint64 *out) const;
    /// t…, y… and 1 are true; f…, n… and 0 false; anything else sets false and returns false.
    bool elementsToBool(const QDomElement &elem, const QString &tag, bool *out) const;
    /// A content as a reader is to see it: the helpers above leave references as they stand in the
    /// document, "&amp;" for "&".
    static QString plainText(const QString &content);
    /// The node's "xml:lang", or "en".
    QString getLangAttr(const QDomNode &node) const;
};

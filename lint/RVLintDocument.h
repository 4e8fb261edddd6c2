// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "descriptor/DataXML.h"
#include "lint/RVLintReport.h"

#include <QHash>
#include <QVector>

class QIODevice;

/// What the engine looks for below one element, by tag name.
struct RVLintFields {
    /// Once a language, and shown.
    QStringList texts;
    /// Once a language, and taken literally.
    QStringList names;
    /// Once, and taken literally.
    QStringList values;
    /// Any number, each taken literally.
    QStringList lists;
    /// Once, a number of bytes.
    QStringList sizes;
    /// Elements with fields of their own, which are not looked into.
    QStringList parts;
    /// Mean something in one of the parts alone.
    QStringList onlyInParts;

    QStringList all() const { return texts + names + values + lists + sizes; }
};

/// An XML document that is checked: the engine's own reading of it, and where everything stands.
class RVLintDocument
{
public:
    /// The elements by tag name, in document order.
    using Elements = QHash<QString, QVector<QDomElement>>;

    /// Without lines: of a document that nobody sees as it is.
    RVLintDocument(const QString &file, RVLintReport *report, bool hasLines = true);

    /// All that a document may hold, and a byte more.
    static QByteArray read(QIODevice *device);
    /// False, and reported why, when the engine refuses it.
    bool load(const QByteArray &document);
    QDomElement root() const { return m_xml.documentElement(); }

    /// Reports what is wrong with the elements below `scope` as such; gives those that hold its
    /// fields.
    Elements check(const QDomElement &scope, const RVLintFields &fields);
    /// The content of one element, as the engine reads it.
    QString valueOf(const QDomElement &element);
    bool sizeOf(const QDomElement &element, qint64 *bytes);
    bool boolOf(const QDomElement &element, bool *value);
    /// Whether one of them says something.
    bool hasText(const QVector<QDomElement> &elements);
    /// Of its start tag.
    int lineOf(const QDomElement &element) const;
    void add(RVLintKind kind, const QDomElement &element, const QString &detail = {});

    const QString &file() const { return m_file; }
    RVLintReport *report() const { return m_report; }

private:
    void walk(const QDomElement &parent, const QString &field);
    void checkField(const QDomElement &element);
    void checkText(const QDomElement &element);
    void checkValue(const QDomElement &element);
    void checkSize(const QDomElement &element);
    void checkRepeated(const QVector<QDomElement> &elements);
    void checkLanguages(const QVector<QDomElement> &elements);
    QDomElement alone(const QDomElement &element);

    const QString m_file;
    RVLintReport *m_report;
    const bool m_hasLines;
    DataXML m_xml;
    // Of the running check().
    RVLintFields m_fields;
    QStringList m_known;
    Elements m_elements;
    /// The last one of each name that stands in another field.
    QHash<QString, QDomElement> m_nested;
    /// The known names that unknown ones come close to, or none.
    QHash<QString, QString> m_meant;
};

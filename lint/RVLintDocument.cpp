// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "lint/RVLintDocument.h"

#include "descriptor/XmlCheck.h"

#include <QIODevice>
#include <QRegularExpression>

#include <algorithm>
#include <numeric>

namespace
{

constexpr int longestNotes = 64 * 1024;
constexpr int longestText = 1000;
/// Misspelt by that many characters.
constexpr int farthestTypo = 2;

const QString langAttribute = QStringLiteral("xml:lang");

/// As LocaleString is asked: the language of the system, with its country or without.
bool isLanguage(const QString &code)
{
    static const QRegularExpression form(
        QStringLiteral("\\A[a-z]{2,3}([_-]([A-Z]{2}|[0-9]{3}))?\\z"));
    return form.match(code).hasMatch();
}

bool isEnglish(const QString &code)
{
    return code == QLatin1String("en") || code.startsWith(QLatin1String("en_"))
        || code.startsWith(QLatin1String("en-"));
}

/// Of scripts that join their letters by invisible characters nothing is taken amiss.
bool hasControls(const QString &text)
{
    return std::any_of(text.cbegin(), text.cend(), [](QChar c) {
        const ushort code = c.unicode();
        const bool isSpace = code == '\t' || code == '\n' || code == '\r';
        return (code < 0x20 && !isSpace) || (code >= 0x7f && code < 0xa0)
            || (code >= 0x202a && code <= 0x202e) || (code >= 0x2066 && code <= 0x2069);
    });
}

int distance(const QString &a, const QString &b)
{
    QVector<int> row(b.size() + 1);
    std::iota(row.begin(), row.end(), 0);
    for (int i = 1; i <= a.size(); ++i) {
        int diagonal = row.at(0);
        row[0] = i;
        for (int j = 1; j <= b.size(); ++j) {
            const int substituted = diagonal + (a.at(i - 1) == b.at(j - 1) ? 0 : 1);
            diagonal = row.at(j);
            row[j] = std::min({substituted, row.at(j) + 1, row.at(j - 1) + 1});
        }
    }
    return row.constLast();
}

/// The one of the known names that was meant, or nothing.
QString meant(const QString &tag, const QStringList &known)
{
    const auto plain = [](const QString &text) {
        return text.toLower().replace(QLatin1Char('-'), QLatin1Char('_'));
    };
    QString best;
    int nearest = farthestTypo + 1;
    for (const QString &name : known) {
        // A longer one is too far away, whatever it is.
        const bool isNear = qAbs(name.size() - tag.size()) <= farthestTypo;
        const int steps = isNear ? distance(plain(tag), name) : nearest;
        if (steps < nearest && steps < name.size() / 2) {
            nearest = steps;
            best = name;
        }
    }
    return best;
}

QString quoted(const QString &tag)
{
    return QLatin1Char('<') + tag + QLatin1Char('>');
}

bool isPlain(const QDomNode &node)
{
    static const QRegularExpression escaped(QStringLiteral("[&<]|\\]\\]>"));
    return node.isText() && !node.isCDATASection() && !node.nodeValue().contains(escaped);
}

} // namespace

RVLintDocument::RVLintDocument(const QString &file, RVLintReport *report, bool hasLines)
    : m_file(file)
    , m_report(report)
    , m_hasLines(hasLines)
{
}

QByteArray RVLintDocument::read(QIODevice *device)
{
    return device->read(XmlCheck::maxBytes + 1);
}

bool RVLintDocument::load(const QByteArray &document)
{
    XmlCheck check;
    if (!check.accepts(document)) {
        m_report->add(check.isBeyondBounds() ? RVLintKind::XmlBeyondBounds
                                             : RVLintKind::XmlNotWellFormed,
                      m_file, m_hasLines ? check.line() : 0, check.error());
        return false;
    }
    QString error;
    int line = 0;
    if (!m_xml.load(document, &error, &line)) {
        m_report->add(RVLintKind::XmlNotWellFormed, m_file, m_hasLines ? line : 0, error);
        return false;
    }
    return true;
}

int RVLintDocument::lineOf(const QDomElement &element) const
{
    return m_hasLines ? element.lineNumber() : 0;
}

void RVLintDocument::add(RVLintKind kind, const QDomElement &element, const QString &detail)
{
    m_report->add(kind, m_file, lineOf(element), detail);
}

// The engine looks for elements below another one; this is where it finds this one alone.
QDomElement RVLintDocument::alone(const QDomElement &element)
{
    QDomElement holder = m_xml.createElement(QStringLiteral("holder"));
    holder.appendChild(element.cloneNode());
    return holder;
}

QString RVLintDocument::valueOf(const QDomElement &element)
{
    QString value;
    if (!element.isNull()) {
        m_xml.elementsToQString(alone(element), element.tagName(), &value);
    }
    return value;
}

bool RVLintDocument::sizeOf(const QDomElement &element, qint64 *bytes)
{
    return m_xml.elementsToQint64(alone(element), element.tagName(), bytes);
}

bool RVLintDocument::boolOf(const QDomElement &element, bool *value)
{
    return m_xml.elementsToBool(alone(element), element.tagName(), value);
}

bool RVLintDocument::hasText(const QVector<QDomElement> &elements)
{
    return std::any_of(elements.cbegin(), elements.cend(), [this](const QDomElement &element) {
        return !valueOf(element).trimmed().isEmpty();
    });
}

RVLintDocument::Elements RVLintDocument::check(const QDomElement &scope, const RVLintFields &fields)
{
    m_fields = fields;
    m_known = fields.all();
    m_elements.clear();
    m_nested.clear();
    m_meant.clear();
    walk(scope, {});
    for (const QString &tag : fields.values + fields.sizes) {
        checkRepeated(m_elements.value(tag));
    }
    for (const QString &tag : fields.texts + fields.names) {
        checkLanguages(m_elements.value(tag));
    }
    // One that stands in another field is reported as such; it is looked at where it is all there
    // is. Looking at all of them would take the square of their depth.
    for (auto it = m_nested.cbegin(); it != m_nested.cend(); ++it) {
        if (!m_elements.contains(it.key())) {
            m_elements[it.key()].append(it.value());
        }
    }
    return m_elements;
}

void RVLintDocument::walk(const QDomElement &parent, const QString &field)
{
    for (QDomElement element = parent.firstChildElement(); !element.isNull();
         element = element.nextSiblingElement()) {
        const QString tag = element.tagName();
        if (m_fields.parts.contains(tag)) {
            m_elements[tag].append(element);
            continue;
        }
        if (m_known.contains(tag)) {
            if (field.isEmpty()) {
                m_elements[tag].append(element);
                checkField(element);
            } else {
                m_nested[tag] = element;
                add(RVLintKind::FieldInField, element,
                    QStringLiteral("%1 in %2").arg(quoted(tag), quoted(field)));
            }
            walk(element, field.isEmpty() ? tag : field);
            continue;
        }
        if (m_fields.onlyInParts.contains(tag)) {
            add(RVLintKind::PatternOutsideFilter, element, quoted(tag));
        } else if (field.isEmpty() && !m_report->isFull(RVLintKind::ElementUnknown, m_file)) {
            // A document may hold the same one a hundred thousand times.
            if (!m_meant.contains(tag)) {
                m_meant[tag] = meant(tag, m_known + m_fields.parts + m_fields.onlyInParts);
            }
            const QString better = m_meant.value(tag);
            add(RVLintKind::ElementUnknown, element,
                better.isEmpty()
                    ? quoted(tag)
                    : QStringLiteral("%1; %2 is meant?").arg(quoted(tag), quoted(better)));
        }
        walk(element, field);
    }
}

void RVLintDocument::checkField(const QDomElement &element)
{
    const QString tag = element.tagName();
    if (m_fields.sizes.contains(tag)) {
        checkSize(element);
        return;
    }
    if (m_fields.texts.contains(tag) || m_fields.names.contains(tag)) {
        checkText(element);
    }
    if (!m_fields.texts.contains(tag)) {
        checkValue(element);
    }
    if (hasControls(element.text())) {
        add(RVLintKind::TextControls, element, quoted(tag));
    }
}

void RVLintDocument::checkText(const QDomElement &element)
{
    const QString tag = element.tagName();
    if (element.hasAttribute(QStringLiteral("lang")) && !element.hasAttribute(langAttribute)) {
        add(RVLintKind::LangAttribute, element, QStringLiteral("lang"));
    }
    const QString language = m_xml.getLangAttr(element);
    if (!isLanguage(language)) {
        add(RVLintKind::LangUnknown, element, language);
    }
    const int length = valueOf(element).size();
    const int limit = tag == QLatin1String("notes") ? longestNotes : longestText;
    if (length > limit) {
        add(RVLintKind::TextTooLong, element,
            QStringLiteral("%1, %2 characters").arg(quoted(tag)).arg(length));
    }
}

void RVLintDocument::checkValue(const QDomElement &element)
{
    for (QDomNode child = element.firstChild(); !child.isNull(); child = child.nextSibling()) {
        const bool isField = child.isElement() && m_known.contains(child.nodeName());
        if (!isPlain(child) && !isField) {
            add(RVLintKind::MarkupInValue, element, quoted(element.tagName()));
            return;
        }
    }
    const QString value = valueOf(element);
    if (value != value.trimmed()) {
        add(RVLintKind::BlankAround, element, quoted(element.tagName()));
    }
}

void RVLintDocument::checkSize(const QDomElement &element)
{
    qint64 bytes = 0;
    const QString detail =
        QStringLiteral("%1 is '%2'").arg(quoted(element.tagName()), element.text());
    if (!sizeOf(element, &bytes)) {
        add(RVLintKind::SizeNotNumber, element, detail);
    } else if (bytes < 0) {
        add(RVLintKind::SizeNegative, element, detail);
    }
}

void RVLintDocument::checkRepeated(const QVector<QDomElement> &elements)
{
    for (int i = 1; i < elements.size(); ++i) {
        add(RVLintKind::ElementRepeated, elements.at(i), quoted(elements.at(i).tagName()));
    }
}

void RVLintDocument::checkLanguages(const QVector<QDomElement> &elements)
{
    QStringList languages;
    for (const QDomElement &element : elements) {
        const QString language = m_xml.getLangAttr(element);
        if (languages.contains(language)) {
            add(RVLintKind::LangRepeated, element,
                QStringLiteral("%1, %2").arg(quoted(element.tagName()), language));
        } else {
            languages.append(language);
        }
    }
    if (!elements.isEmpty() && std::none_of(languages.cbegin(), languages.cend(), isEnglish)) {
        add(RVLintKind::NoDefaultLanguage, elements.constFirst(),
            quoted(elements.constFirst().tagName()));
    }
}

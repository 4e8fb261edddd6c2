// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "ui/NotesDocument.h"

#include <QImage>
#include <QRegularExpression>
#include <QStringList>
#include <QUrl>
#include <QVariant>
#include <QVector>

namespace
{

/// What the layout takes more than its share of time for: one word of many characters and one list
/// of many items (the square of their number), tables inside tables (twice the time for each), and
/// rows times columns.
constexpr int maximumLength = 64 * 1024;
constexpr int maximumDepth = 16;
constexpr int maximumItems = 1000;
constexpr int maximumTableDepth = 4;
constexpr int maximumRows = 500;
constexpr int maximumCells = 16;

/// Elements that may stand anywhere and nest.
const QStringList &inlineTags()
{
    static const QStringList tags =
        QStringLiteral("b strong i em cite var u s big small tt code kbd "
                       "samp font sub sup")
            .split(QLatin1Char(' '));
    return tags;
}

const QStringList &blockTags()
{
    static const QStringList tags =
        QStringLiteral("p div center address blockquote pre h1 h2 h3 h4 "
                       "h5 h6 ul ol dl")
            .split(QLatin1Char(' '));
    return tags;
}

/// Elements without a content.
bool isEmptyTag(const QString &name)
{
    return name == QLatin1String("br") || name == QLatin1String("hr");
}

/// Elements whose content is no text for a reader.
bool isHiddenTag(const QString &name)
{
    return name == QLatin1String("style") || name == QLatin1String("script")
        || name == QLatin1String("title");
}

class Sanitiser
{
public:
    QString run(const QString &html);

private:
    struct Element {
        QString name;
        int cells = 0; ///< of a table row
    };

    void addText(const QStringRef &text);
    int addTag(const QString &html, int begin);
    void open(const QString &name, const QString &attributes);
    void close(const QString &name);
    bool openTablePart(const QString &name);
    void push(const QString &name, const QString &attributes);
    void pop(int size);
    int indexOf(const QStringList &names, const QStringList &boundaries) const;
    void closeOpen(const QStringList &names, const QStringList &boundaries);
    bool isInside(const QString &name) const;
    int tableDepth() const;

    QString m_output;
    QVector<Element> m_open;
    int m_rows = 0;
    int m_items = 0;
};

QString keptAttributes(const QString &tag)
{
    static const QRegularExpression expression(
        QStringLiteral("\\s(?:(?<name>color)\\s*=\\s*[\"']?(?<value>#[0-9a-f]{3,6}|[a-z]{3,20})"
                       "|(?<name2>align)\\s*=\\s*[\"']?(?<value2>left|right|center|justify))"
                       "[\"'\\s/>]"),
        QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = expression.match(tag);
    if (!match.hasMatch()) {
        return {};
    }
    const QString name = match.captured(QStringLiteral("name"));
    return name.isEmpty()
        ? QStringLiteral(" align=\"%1\"").arg(match.captured(QStringLiteral("value2")))
        : QStringLiteral(" color=\"%1\"").arg(match.captured(QStringLiteral("value")));
}

QString Sanitiser::run(const QString &html)
{
    int position = 0;
    while (position < html.size()) {
        const int begin = html.indexOf(QLatin1Char('<'), position);
        addText(html.midRef(position, begin < 0 ? -1 : begin - position));
        if (begin < 0) {
            break;
        }
        position = addTag(html, begin);
    }
    pop(0);
    return m_output;
}

void Sanitiser::addText(const QStringRef &text)
{
    for (const QChar c : text) {
        if (c == QLatin1Char('<')) {
            m_output += QLatin1String("&lt;");
        } else if (c == QLatin1Char('>')) {
            m_output += QLatin1String("&gt;");
        } else if (!c.isNull()) {
            m_output += c;
        }
    }
}

// Takes the tag, comment or declaration that begins at the "<"; returns where it ends. One that
// does not end takes the rest of the text with it.
int Sanitiser::addTag(const QString &html, int begin)
{
    if (html.midRef(begin, 4) == QLatin1String("<!--")) {
        const int end = html.indexOf(QLatin1String("-->"), begin + 4);
        return end < 0 ? html.size() : end + 3;
    }
    int nameBegin = begin + 1;
    const bool isClosing = html.midRef(nameBegin, 1) == QLatin1String("/");
    nameBegin += isClosing ? 1 : 0;
    int nameEnd = nameBegin;
    while (nameEnd < html.size() && html.at(nameEnd).unicode() < 128
           && html.at(nameEnd).isLetterOrNumber()) {
        ++nameEnd;
    }
    const bool isDeclaration = nameBegin < html.size()
        && (html.at(nameBegin) == QLatin1Char('!') || html.at(nameBegin) == QLatin1Char('?'));
    if (nameEnd == nameBegin && !isDeclaration) {
        addText(html.midRef(begin, 1));
        return begin + 1;
    }

    QChar quote;
    int end = nameEnd;
    while (end < html.size() && (!quote.isNull() || html.at(end) != QLatin1Char('>'))) {
        const QChar c = html.at(end);
        if (quote.isNull() && (c == QLatin1Char('"') || c == QLatin1Char('\''))) {
            quote = c;
        } else if (c == quote) {
            quote = QChar();
        }
        ++end;
    }
    ++end;
    const QString name = html.mid(nameBegin, nameEnd - nameBegin).toLower();
    if (end > html.size() || isDeclaration) {
        return end;
    }
    if (isClosing) {
        close(name);
    } else if (isHiddenTag(name)) {
        const int closing = html.indexOf(QLatin1String("</") + name, end, Qt::CaseInsensitive);
        return closing < 0 ? html.size() : closing;
    } else {
        open(name, keptAttributes(html.mid(nameEnd, end - nameEnd)));
    }
    return end;
}

int Sanitiser::indexOf(const QStringList &names, const QStringList &boundaries) const
{
    for (int i = m_open.size() - 1; i >= 0; --i) {
        if (names.contains(m_open.at(i).name)) {
            return i;
        }
        if (boundaries.contains(m_open.at(i).name)) {
            return -1;
        }
    }
    return -1;
}

void Sanitiser::closeOpen(const QStringList &names, const QStringList &boundaries)
{
    const int index = indexOf(names, boundaries);
    if (index >= 0) {
        pop(index);
    }
}

bool Sanitiser::isInside(const QString &name) const
{
    return !m_open.isEmpty() && m_open.constLast().name == name;
}

int Sanitiser::tableDepth() const
{
    int depth = 0;
    for (const Element &element : m_open) {
        depth += element.name == QLatin1String("table") ? 1 : 0;
    }
    return depth;
}

void Sanitiser::push(const QString &name, const QString &attributes)
{
    m_output += QLatin1Char('<') + name + attributes + QLatin1Char('>');
    m_open.append({name});
}

void Sanitiser::pop(int size)
{
    while (m_open.size() > size) {
        m_output += QLatin1String("</") + m_open.constLast().name + QLatin1Char('>');
        m_open.removeLast();
    }
}

void Sanitiser::open(const QString &name, const QString &attributes)
{
    static const QString p = QStringLiteral("p");
    static const QString li = QStringLiteral("li");
    static const QString table = QStringLiteral("table");
    static const QStringList terms = {QStringLiteral("dt"), QStringLiteral("dd")};
    static const QStringList lists = {QStringLiteral("ul"), QStringLiteral("ol")};

    if (isEmptyTag(name)) {
        m_output += QLatin1Char('<') + name + QLatin1Char('>');
        return;
    }
    // What HTML lets a writer leave open ends here, or a long list would count as a deep one.
    if (blockTags().contains(name)) {
        closeOpen({p},
                  {li, table, QStringLiteral("dd"), QStringLiteral("td"), QStringLiteral("th")});
    } else if (name == li) {
        closeOpen({li}, lists + QStringList(table));
    } else if (terms.contains(name)) {
        closeOpen(terms, {QStringLiteral("dl"), table});
    } else if (openTablePart(name) || (name != table && !inlineTags().contains(name))) {
        return;
    }
    const bool isRefused = m_open.size() >= maximumDepth
        || (name == table && tableDepth() >= maximumTableDepth)
        || (name == li && ++m_items > maximumItems);
    if (isRefused) {
        return;
    }
    push(name, attributes);
}

// Rows directly in tables, cells directly in rows: what is elsewhere would be mended by the parser
// in ways that cannot be counted here.
bool Sanitiser::openTablePart(const QString &name)
{
    static const QString table = QStringLiteral("table");
    static const QString tr = QStringLiteral("tr");
    static const QStringList cells = {QStringLiteral("td"), QStringLiteral("th")};
    const bool isCell = cells.contains(name);
    if (!isCell && name != tr) {
        return false;
    }
    closeOpen(isCell ? cells : QStringList(tr), {table});
    const bool needsRow = !isInside(tr);
    if (needsRow && isInside(table) && m_rows < maximumRows) {
        ++m_rows;
        push(tr, {});
    }
    if (isCell && isInside(tr) && m_open.constLast().cells < maximumCells) {
        ++m_open.last().cells;
        push(name, {});
    }
    return true;
}

void Sanitiser::close(const QString &name)
{
    static const QString table = QStringLiteral("table");
    closeOpen({name}, name == table ? QStringList() : QStringList(table));
}

} // namespace

NotesDocument::NotesDocument(QObject *parent)
    : QTextDocument(parent)
{
    setUndoRedoEnabled(false);
}

NotesDocument::~NotesDocument() = default;

void NotesDocument::setNotes(const QString &html)
{
    setHtml(sanitised(html));
}

QString NotesDocument::sanitised(const QString &html)
{
    QString text = html;
    if (text.size() > maximumLength) {
        const bool insidePair = text.at(maximumLength - 1).isHighSurrogate();
        text.truncate(maximumLength - (insidePair ? 1 : 0));
        text += QChar(0x2026);
    }
    // Descriptors quote their markup like this; HTML does not know it.
    text.remove(QLatin1String("<![CDATA["));
    text.remove(QLatin1String("]]>"));
    return Sanitiser().run(text);
}

QVariant NotesDocument::loadResource(int type, const QUrl &name)
{
    Q_UNUSED(name)
    // Where the document has no image, its layout opens the file of that name itself: a FIFO would
    // stop the program. So every image is there, and there is nothing on it.
    if (type == ImageResource) {
        static const QImage nothing = [] {
            QImage image(1, 1, QImage::Format_ARGB32_Premultiplied);
            image.fill(Qt::transparent);
            return image;
        }();
        return nothing;
    }
    return {};
}

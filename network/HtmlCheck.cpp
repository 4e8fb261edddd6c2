// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "network/HtmlCheck.h"

#include <QHash>

#include <algorithm>
#include <cstring>
#include <vector>

namespace
{

enum Kind : quint8 {
    Inline, // closed by its own end tag only, and only where no block is in between
    Formatting, // its end tag takes it out from below others
    Block,
    Scope, // a block out of which no end tag reaches
    Table,
    Row,
    Section, // of a table
    Cell,
    Item, // li
    Definition, // dd, dt
    Paragraph,
    Option,
    Anchor,
    Root, // html, head, body: there is one of each
    RawText, // what looks like a tag inside is text
    PlainText,
    Void,
};

struct Element {
    int name;
    Kind kind;
    bool isForeign; // svg and math, and what is inside
};

/// Tells the elements apart, by kind and by number.
class Names
{
public:
    Names()
    {
        add(Void,
            "area base basefont bgsound br col embed frame hr image img input keygen link "
            "meta param source track wbr");
        add(RawText, "script style textarea title xmp iframe noembed noframes");
        add(PlainText, "plaintext");
        add(Root, "html head body");
        add(Formatting, "b big code em font i nobr s small strike strong tt u");
        add(Anchor, "a");
        add(Scope, "applet marquee object template select svg math");
        add(Table, "table");
        add(Section, "tbody thead tfoot caption colgroup");
        add(Row, "tr");
        add(Cell, "td th");
        add(Item, "li");
        add(Definition, "dd dt");
        add(Paragraph, "p");
        add(Option, "option");
        add(Block,
            "address article aside blockquote button center details dir div dl fieldset "
            "figcaption figure footer form frameset h1 h2 h3 h4 h5 h6 header hgroup listing "
            "main menu nav noscript ol pre section summary ul");
        m_svg = m_elements.value("svg").name;
        m_math = m_elements.value("math").name;
    }

    Element operator[](const QByteArray &name) const
    {
        return m_elements.value(name, {static_cast<int>(qHash(name) | (1U << 30)), Inline, false});
    }
    bool startsForeign(int name) const { return name == m_svg || name == m_math; }

private:
    void add(Kind kind, const char *names)
    {
        const auto list = QByteArray(names).split(' ');
        for (const QByteArray &name : list) {
            m_elements.insert(name, {m_elements.size() + 1, kind, false});
        }
    }

    QHash<QByteArray, Element> m_elements;
    int m_svg;
    int m_math;
};

bool isSpecial(Kind kind)
{
    return kind != Inline && kind != Formatting && kind != Anchor && kind != Option;
}

/// The elements that are open.
class OpenElements
{
public:
    int count() const { return static_cast<int>(m_open.size()); }
    bool isForeign() const { return !m_open.empty() && m_open.back().isForeign; }

    void push(Element element) { m_open.push_back(element); }

    /// Closes what the start of such an element closes without an end tag.
    void closeImplied(Kind kind)
    {
        switch (kind) {
        case Item:
        case Definition:
        case Paragraph:
            closeNext(kind, [](Kind other) {
                return isSpecial(other) && other != Paragraph;
            });
            break;
        case Option:
            if (!m_open.empty() && m_open.back().kind == Option) {
                m_open.pop_back();
            }
            break;
        case Cell:
            closeNext(Cell, [](Kind other) {
                return other == Table || other == Scope || other == Row;
            });
            break;
        case Section:
        case Row:
            closeNext(Cell, [](Kind other) {
                return other == Table || other == Scope || other == Row;
            });
            closeNext(Row, [](Kind other) {
                return other == Table || other == Scope || other == Section;
            });
            if (kind == Section) {
                closeNext(Section, [](Kind other) {
                    return other == Table || other == Scope;
                });
            }
            break;
        case Anchor:
            takeOut([](const Element &other) {
                return other.kind == Anchor;
            });
            break;
        default:
            break;
        }
    }

    void close(const Element &element)
    {
        const auto isSame = [&element](const Element &other) {
            return other.name == element.name;
        };
        switch (element.kind) {
        case Formatting:
        case Anchor:
            takeOut(isSame);
            break;
        case Inline:
            closeTo(isSame, [](const Element &other) {
                return isSpecial(other.kind) && !other.isForeign;
            });
            break;
        case Table:
        case Section:
        case Row:
        case Cell:
            closeTo(isSame, [](const Element &other) {
                return other.kind == Table || other.kind == Scope;
            });
            break;
        default:
            closeTo(isSame, [](const Element &other) {
                return other.kind == Table || other.kind == Cell || other.kind == Scope;
            });
            break;
        }
    }

private:
    /// How far the search goes: beyond it an element counts as open, which it may not be.
    static constexpr std::ptrdiff_t reach = 64;

    template<typename Wanted, typename Barrier>
    void closeTo(Wanted &&isWanted, Barrier &&isBarrier)
    {
        const auto end = m_open.rbegin() + std::min(reach, m_open.rend() - m_open.rbegin());
        for (auto it = m_open.rbegin(); it != end; ++it) {
            if (isWanted(*it)) {
                m_open.erase(std::prev(it.base()), m_open.end());
                return;
            }
            if (isBarrier(*it)) {
                return;
            }
        }
    }

    template<typename Barrier>
    void closeNext(Kind kind, Barrier &&isBarrier)
    {
        closeTo(
            [kind](const Element &other) {
                return other.kind == kind;
            },
            [&isBarrier](const Element &other) {
                return isBarrier(other.kind);
            });
    }

    template<typename Wanted>
    void takeOut(Wanted &&isWanted)
    {
        const auto end = m_open.rbegin() + std::min(reach, m_open.rend() - m_open.rbegin());
        for (auto it = m_open.rbegin(); it != end; ++it) {
            if (isWanted(*it)) {
                m_open.erase(std::prev(it.base()));
                return;
            }
            if (it->kind == Cell || it->kind == Scope) {
                return;
            }
        }
    }

    std::vector<Element> m_open;
};

bool isLetter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\n' || c == '\f' || c == '\r';
}

const char *find(const char *from, const char *end, const char *text)
{
    return std::search(from, end, text, text + std::strlen(text));
}

class Scanner
{
public:
    explicit Scanner(const QByteArray &page)
        : m_at(page.constBegin())
        , m_end(page.constEnd())
    {
    }

    bool run()
    {
        while (const auto *tag = static_cast<const char *>(
                   std::memchr(m_at, '<', static_cast<size_t>(m_end - m_at)))) {
            m_at = tag + 1;
            if (m_at == m_end) {
                break;
            }
            const bool isEnd = *m_at == '/';
            if (isEnd && ++m_at == m_end) {
                break;
            }
            if (isLetter(*m_at)) {
                readTag(isEnd);
                if (m_looks > HtmlCheck::maximumLooks || m_open.count() > HtmlCheck::maximumOpen) {
                    return false;
                }
            } else if (isEnd || *m_at == '!' || *m_at == '?') {
                skipComment();
            }
        }
        return true;
    }

private:
    void skipComment()
    {
        if (m_end - m_at >= 3 && std::memcmp(m_at, "!--", 3) == 0) {
            m_at += 3;
            if (m_at != m_end && *m_at == '>') {
                ++m_at;
            } else if (m_end - m_at >= 2 && std::memcmp(m_at, "->", 2) == 0) {
                m_at += 2;
            } else {
                skipToCommentEnd();
            }
        } else {
            m_at = std::find(m_at, m_end, '>');
        }
    }

    void skipToCommentEnd()
    {
        for (; m_end - m_at >= 3; ++m_at) {
            if (std::memcmp(m_at, "-->", 3) == 0
                || (m_end - m_at >= 4 && std::memcmp(m_at, "--!>", 4) == 0)) {
                return;
            }
        }
        m_at = m_end;
    }

    void readTag(bool isEnd)
    {
        static const Names names;
        const char *const start = m_at;
        while (m_at != m_end && !isBlank(*m_at) && *m_at != '/' && *m_at != '>') {
            ++m_at;
        }
        const QByteArray name = QByteArray(start, static_cast<int>(m_at - start)).toLower();
        Element element = names[name];
        const qint64 attributes = skipAttributes();
        m_looks += HtmlCheck::looksPerTag + m_open.count() + attributes * attributes / 2;
        if (isEnd) {
            m_open.close(element);
            return;
        }
        element.isForeign = m_open.isForeign() || names.startsForeign(element.name);
        if (element.isForeign) {
            if (!m_closesItself) {
                m_open.push(element);
            }
            return;
        }
        switch (element.kind) {
        case Void:
            break;
        case Root:
            // The attributes of all of them become those of the one.
            m_rootAttributes += attributes;
            m_looks += attributes * m_rootAttributes;
            break;
        case RawText:
            skipRawText(name);
            break;
        case PlainText:
            m_at = m_end;
            break;
        default:
            m_open.closeImplied(element.kind);
            m_open.push(element);
            break;
        }
    }

    /// To the end of the tag; returns how many there are.
    qint64 skipAttributes()
    {
        qint64 count = 0;
        m_closesItself = false;
        while (m_at != m_end && *m_at != '>') {
            if (isBlank(*m_at) || *m_at == '/') {
                m_closesItself = *m_at == '/';
                ++m_at;
                continue;
            }
            m_closesItself = false;
            ++count;
            // A name may begin with an equals sign.
            ++m_at;
            while (m_at != m_end && !isBlank(*m_at) && *m_at != '/' && *m_at != '>'
                   && *m_at != '=') {
                ++m_at;
            }
            skipBlanks();
            if (m_at != m_end && *m_at == '=') {
                ++m_at;
                skipBlanks();
                skipValue();
            }
        }
        return count;
    }

    void skipBlanks()
    {
        while (m_at != m_end && isBlank(*m_at)) {
            ++m_at;
        }
    }

    void skipValue()
    {
        if (m_at == m_end) {
            return;
        }
        if (*m_at == '"' || *m_at == '\'') {
            m_at = std::find(m_at + 1, m_end, *m_at);
            m_at += m_at != m_end ? 1 : 0;
            return;
        }
        while (m_at != m_end && !isBlank(*m_at) && *m_at != '>') {
            ++m_at;
        }
    }

    void skipRawText(const QByteArray &name)
    {
        while ((m_at = find(m_at, m_end, "</")) != m_end) {
            m_at += 2;
            if (m_end - m_at >= name.size()
                && qstrnicmp(m_at, name.constData(), static_cast<uint>(name.size())) == 0) {
                m_at = std::find(m_at, m_end, '>');
                return;
            }
        }
    }

    const char *m_at;
    const char *const m_end;
    OpenElements m_open;
    qint64 m_looks = 0;
    qint64 m_rootAttributes = 0;
    bool m_closesItself = false;
};

} // namespace

bool HtmlCheck::accepts(const QByteArray &page)
{
    return Scanner(page).run();
}

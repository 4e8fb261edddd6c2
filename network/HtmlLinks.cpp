// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "network/HtmlLinks.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <gumbo.h>
#include <memory>

namespace
{

bool isLetter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\n' || c == '\f' || c == '\r';
}

bool endsName(char c)
{
    return isBlank(c) || c == '/' || c == '>';
}

const char *find(char c, const char *at, const char *end)
{
    const void *found = std::memchr(at, c, static_cast<size_t>(end - at));
    return found ? static_cast<const char *>(found) : end;
}

const char *behind(char c, const char *at, const char *end)
{
    const char *found = find(c, at, end);
    return found == end ? end : found + 1;
}

bool startsWith(const char *at, const char *end, const char *text)
{
    const auto size = static_cast<std::ptrdiff_t>(std::strlen(text));
    return end - at >= size && std::memcmp(at, text, static_cast<size_t>(size)) == 0;
}

struct Tag {
    const char *begin = nullptr;
    const char *end = nullptr;
    const char *name = nullptr;
    uint nameSize = 0;
    int attributes = 0;
    bool closesItself = false;

    bool isEndTag() const { return begin[1] == '/'; }
    bool isNamed(const char *other) const
    {
        return nameSize == std::strlen(other) && qstrnicmp(name, other, nameSize) == 0;
    }
    bool isStartOf(const char *other) const { return !isEndTag() && isNamed(other); }
};

/// What looks like a tag inside of such an element is text.
bool startsRawText(const Tag &tag)
{
    static constexpr std::array names = {"script", "style",  "textarea", "title",
                                         "xmp",    "iframe", "noembed",  "noframes"};
    // A drawing has titles, styles and scripts without contents.
    return !tag.closesItself && std::any_of(names.begin(), names.end(), [&tag](const char *name) {
        return tag.isStartOf(name);
    });
}

/// Cuts a page into tags, in linear time (HTML standard, 13.2.5). The page must outlive it.
class Tags
{
public:
    explicit Tags(const QByteArray &page)
        : m_at(page.constBegin())
        , m_end(find('\0', page.constBegin(), page.constEnd()))
    {
    }

    /// Goes on to the next whole one; false when there is none.
    bool next()
    {
        while ((m_at = find('<', m_at, m_end)) != m_end) {
            const char *const name = m_at + (startsWith(m_at, m_end, "</") ? 2 : 1);
            if (name != m_end && isLetter(*name)) {
                return readTag(name);
            }
            m_at = behindOther();
        }
        return false;
    }

    const Tag &current() const { return m_tag; }

private:
    bool readTag(const char *name)
    {
        const char *const nameEnd = std::find_if(name, m_end, endsName);
        m_tag = {m_at, nullptr, name, static_cast<uint>(nameEnd - name), 0, false};
        m_at = nameEnd;
        while (m_at != m_end && *m_at != '>') {
            m_tag.closesItself = *m_at == '/';
            if (endsName(*m_at)) {
                ++m_at;
            } else {
                ++m_tag.attributes;
                m_at = behindAttribute();
            }
        }
        if (m_at == m_end) {
            return false;
        }
        m_tag.end = ++m_at;
        if (startsRawText(m_tag)) {
            m_at = behindRawText();
        } else if (m_tag.isStartOf("plaintext")) {
            m_at = m_end;
        }
        return true;
    }

    const char *behindAttribute() const
    {
        // A name may begin with an equals sign.
        const char *const nameEnd = std::find_if(m_at + 1, m_end, [](char c) {
            return endsName(c) || c == '=';
        });
        const char *const equals = std::find_if_not(nameEnd, m_end, isBlank);
        if (equals == m_end || *equals != '=') {
            return nameEnd;
        }
        const char *const value = std::find_if_not(equals + 1, m_end, isBlank);
        if (value != m_end && (*value == '"' || *value == '\'')) {
            return behind(*value, value + 1, m_end);
        }
        return std::find_if(value, m_end, [](char c) {
            return isBlank(c) || c == '>';
        });
    }

    /// At the element's end tag.
    const char *behindRawText() const
    {
        const char *at = m_at;
        for (; (at = find('<', at, m_end)) != m_end; ++at) {
            const char *const name = at + 2;
            if (m_end - name > m_tag.nameSize && at[1] == '/' && endsName(name[m_tag.nameSize])
                && qstrnicmp(name, m_tag.name, m_tag.nameSize) == 0) {
                break;
            }
        }
        return at;
    }

    /// Behind a comment or declaration; behind a "<" that is text.
    const char *behindOther() const
    {
        if (startsWith(m_at, m_end, "<!--")) {
            return behindComment(m_at + 4);
        }
        const bool isDeclaration = startsWith(m_at, m_end, "</") || startsWith(m_at, m_end, "<!")
            || startsWith(m_at, m_end, "<?");
        return isDeclaration ? behind('>', m_at, m_end) : m_at + 1;
    }

    const char *behindComment(const char *at) const
    {
        if (startsWith(at, m_end, ">") || startsWith(at, m_end, "->")) {
            return behind('>', at, m_end);
        }
        for (; (at = find('-', at, m_end)) != m_end; ++at) {
            if (startsWith(at, m_end, "-->") || startsWith(at, m_end, "--!>")) {
                return behind('>', at, m_end);
            }
        }
        return m_end;
    }

    const char *m_at;
    const char *const m_end;
    Tag m_tag;
};

/// The length of the UTF-8 sequence at `at`, 0 when there is none (RFC 3629).
int utf8Length(const uchar *at, const uchar *end)
{
    const uchar first = *at;
    if (first < 0x80) {
        return 1;
    }
    const int length = first < 0xc2 ? 0
        : first < 0xe0              ? 2
        : first < 0xf0              ? 3
        : first < 0xf5              ? 4
                                    : 0;
    if (length == 0 || end - at < length) {
        return 0;
    }
    const uchar low = first == 0xe0 ? 0xa0 : first == 0xf0 ? 0x90 : 0x80;
    const uchar high = first == 0xed ? 0x9f : first == 0xf4 ? 0x8f : 0xbf;
    if (at[1] < low || at[1] > high) {
        return 0;
    }
    for (int i = 2; i < length; ++i) {
        if ((at[i] & 0xc0) != 0x80) {
            return 0;
        }
    }
    return length;
}

/// As the parser wants it, in UTF-8. A byte that is none becomes a percent escape: in a link it is
/// what names the file, whatever character the server means.
QByteArray asUtf8(const Tag &tag)
{
    static const char digits[] = "0123456789ABCDEF";
    const auto *at = reinterpret_cast<const uchar *>(tag.begin);
    const auto *end = reinterpret_cast<const uchar *>(tag.end);
    QByteArray result;
    result.reserve(static_cast<int>(end - at));
    while (at != end) {
        const int length = utf8Length(at, end);
        if (length == 0) {
            result.append('%').append(digits[*at >> 4]).append(digits[*at & 15]);
        } else {
            result.append(reinterpret_cast<const char *>(at), length);
        }
        at += qMax(length, 1);
    }
    return result;
}

/// As a browser does before it looks at a link.
QString stripped(const QString &href)
{
    const auto isBlankCharacter = [](QChar c) {
        return c.unicode() < 0x80 && isBlank(c.toLatin1());
    };
    const auto *first = std::find_if_not(href.cbegin(), href.cend(), isBlankCharacter);
    const auto *end = href.cend();
    while (end != first && isBlankCharacter(end[-1])) {
        --end;
    }
    return href.mid(static_cast<int>(first - href.cbegin()), static_cast<int>(end - first));
}

/// Empty when the tag has none.
QString href(const QByteArray &tag)
{
    GumboOptions options = kGumboDefaultOptions;
    options.fragment_context = GUMBO_TAG_BODY;
    const auto destroy = [&options](GumboOutput *tree) {
        gumbo_destroy_output(&options, tree);
    };
    const std::unique_ptr<GumboOutput, decltype(destroy)> tree(
        gumbo_parse_with_options(&options, tag.constData(), static_cast<size_t>(tag.size())),
        destroy);
    const GumboVector &nodes = tree->root->v.element.children;
    const auto *node = nodes.length > 0 ? static_cast<const GumboNode *>(nodes.data[0]) : nullptr;
    if (!node || node->type != GUMBO_NODE_ELEMENT) {
        return {};
    }
    const GumboAttribute *attribute = gumbo_get_attribute(&node->v.element.attributes, "href");
    return attribute ? stripped(QString::fromUtf8(attribute->value)) : QString();
}

} // namespace

std::optional<QStringList> HtmlLinks::of(const QByteArray &page)
{
    QStringList links;
    int count = 0;
    int bytes = 0;
    int openTemplates = 0;
    for (Tags tags(page); tags.next();) {
        const Tag &tag = tags.current();
        if (tag.isNamed("template")) {
            // Its contents are not part of the document.
            openTemplates = qMax(0, openTemplates + (tag.isEndTag() ? -1 : 1));
        }
        if (!tag.isStartOf("a") || openTemplates > 0) {
            continue;
        }
        if (++count > maximumTags || tag.attributes > maximumAttributes
            || tag.end - tag.begin > maximumTag) {
            return std::nullopt;
        }
        const QByteArray text = asUtf8(tag);
        bytes += text.size();
        if (bytes > maximumBytes) {
            return std::nullopt;
        }
        const QString link = href(text);
        if (!link.isEmpty()) {
            links.append(link);
        }
    }
    return links;
}

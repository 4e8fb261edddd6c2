// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "repository/RVFilter.h"

#include "core/RVOrigin.h"

#include <QMap>
#include <QRegularExpression>

namespace
{

/// Names are full URLs as text, or bare file names, of which QUrl would read "foo:bar.deb" as a
/// scheme and refuse "tool_1:2.0-1_all.deb".
QUrl urlOfName(const QString &name)
{
    static const QRegularExpression scheme(QStringLiteral("^[A-Za-z][A-Za-z0-9+.-]*:/"));
    if (scheme.match(name).hasMatch()) {
        return QUrl(name);
    }
    QUrl url;
    const bool colonFirst = name.section(QLatin1Char('/'), 0, 0).contains(QLatin1Char(':'));
    url.setPath(colonFirst ? QStringLiteral("./") + name : name, QUrl::DecodedMode);
    return url;
}

bool isFound(const QRegExp &pattern, const XUrlInfo &item)
{
    return !item.isDir() && item.name().size() <= RVFilter::longestName
        && pattern.indexIn(item.name()) != -1;
}

/// The files that describe the archives of one core name: what an archive takes is the first of
/// them that does not have its own name, so that two different names are enough.
struct Candidates {
    QString first;
    QString other;

    void add(const QString &name)
    {
        if (first.isEmpty()) {
            first = name;
        } else if (other.isEmpty() && name != first) {
            other = name;
        }
    }
};

} // namespace

RVFilter::RVFilter(const QRegExp &archive, const QRegExp &descriptor, QObject *parent)
    : QObject(parent)
    , m_archive(archive)
    , m_descriptor(descriptor)
{
}

RVFilter::RVFilter(const QString &archive, const QString &descriptor, QObject *parent)
    : RVFilter(QRegExp(archive, Qt::CaseSensitive, QRegExp::RegExp),
               QRegExp(descriptor, Qt::CaseSensitive, QRegExp::RegExp), parent)
{
}

RVFilter::RVFilter(const RVFilter &other)
    : RVFilter(other.m_archive, other.m_descriptor)
{
}

RVFilter::~RVFilter() = default;

void RVFilter::setFilters(const QRegExp &archive, const QRegExp &descriptor)
{
    m_archive = archive;
    m_descriptor = descriptor;
}

bool RVFilter::operator==(const RVFilter &other) const
{
    return m_archive == other.m_archive && m_descriptor == other.m_descriptor;
}

bool RVFilter::selects(const XUrlInfo &item) const
{
    return m_archive.isEmpty() ? !item.isDir() : isFound(m_archive, item);
}

QUrl RVFilter::urlOf(const XUrlInfo &item)
{
    return urlOfName(item.name());
}

QString RVFilter::corename(const QString &name, const QRegExp &pattern) const
{
    QString core = name.mid(name.lastIndexOf(QLatin1Char('/')) + 1);
    core.remove(0, core.lastIndexOf(QLatin1Char('\\')) + 1);
    if (!pattern.isEmpty()) {
        const int position = pattern.lastIndexIn(core);
        if (position != -1) {
            core.truncate(position);
        }
    }
    return core;
}

void RVFilter::filterList(const QList<XUrlInfo> &listing, QList<RVData> &entries,
                          const RVPaths &paths, const QUrl &location) const
{
    entries.clear();
    const auto isForeign = [&location](const QString &name) {
        return !location.isEmpty() && !mayLeadTo(location, urlOfName(name));
    };
    const auto add = [&](const QString &archive, const QString &descriptor) {
        entries.append(RVData(urlOfName(archive),
                              descriptor.isEmpty() ? QUrl() : urlOfName(descriptor), nullptr,
                              paths));
    };

    QStringList archives;
    for (const XUrlInfo &item : listing) {
        if (selects(item)) {
            archives.append(item.name());
        }
    }

    if (m_descriptor.isEmpty()) {
        // The index runs over the whole listing and not over the matches: repositories rely on it.
        for (int i = 0; i < archives.size(); ++i) {
            if (!isForeign(listing[i].name())) {
                add(listing[i].name(), {});
            }
        }
        return;
    }

    // Ordered: names that share one hash would make it quadratic.
    QMap<QString, Candidates> candidates;
    for (const XUrlInfo &item : listing) {
        if (isFound(m_descriptor, item) && !isForeign(item.name())) {
            candidates[corename(item.name(), m_descriptor)].add(item.name());
        }
    }
    for (const QString &archive : qAsConst(archives)) {
        if (isForeign(archive)) {
            continue;
        }
        const Candidates found = candidates.value(corename(archive, m_archive));
        if (!found.first.isEmpty() && found.first != archive) {
            add(archive, found.first);
        } else if (!found.other.isEmpty()) {
            add(archive, found.other);
        } else if (!found.first.isEmpty()) {
            add(archive, {});
        }
    }
}

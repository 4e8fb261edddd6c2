// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/RVPaths.h"
#include "network/XUrlInfo.h"
#include "repository/RVData.h"

#include <QList>
#include <QObject>
#include <QRegExp>

/// Picks the archives out of a listing by one pattern and pairs each with the file that describes
/// it, found by another.
class RVFilter : public QObject
{
    Q_OBJECT

public:
    /// A longer name matches no pattern: some patterns take minutes to say no.
    static constexpr int longestName = 4096;

    RVFilter(const QRegExp &archive, const QRegExp &descriptor, QObject *parent = nullptr);
    RVFilter(const QString &archive, const QString &descriptor, QObject *parent = nullptr);
    RVFilter(const RVFilter &other);
    RVFilter &operator=(const RVFilter &) = delete;
    ~RVFilter() override;

    void setFilters(const QRegExp &archive, const QRegExp &descriptor);
    bool operator==(const RVFilter &other) const;
    bool operator!=(const RVFilter &other) const { return !(*this == other); }

    /// Whether a file of a listing is an archive of this filter; a descriptor is another question.
    bool selects(const XUrlInfo &item) const;
    /// The address that an item's name stands for.
    static QUrl urlOf(const XUrlInfo &item);

    /// The part of a file name that an archive and its descriptor share.
    QString corename(const QString &name, const QRegExp &pattern) const;
    /// Replaces `entries` by what the listing holds. Linear in the size of the listing. Items that
    /// a listing of `location` may not lead to keep their position and become no entry, if a
    /// location is given; see mayLeadTo().
    void filterList(const QList<XUrlInfo> &listing, QList<RVData> &entries,
                    const RVPaths &paths = {}, const QUrl &location = {}) const;

private:
    QRegExp m_archive;
    QRegExp m_descriptor;
};

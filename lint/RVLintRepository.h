// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "lint/RVLintDefinition.h"
#include "network/XUrlInfo.h"
#include "repository/RVData.h"

#include <QHash>
#include <QSet>
#include <QUrl>

#include <functional>

class OSInfoBaseClass;
class QNetworkReply;
class RVRepository;

/// Checks what a refreshed repository lists: how archives and descriptors belong together, each
/// descriptor as it came, and whatever a local archive says itself. Nothing is fetched for it.
class RVLintRepository
{
public:
    RVLintRepository(const RVRepository &repository, const RVLintDefinition::Section &section,
                     RVLintReport *report);

    /// Checks an XML descriptor as it comes, while the repository is refreshed; none is kept.
    void checkDownload(QNetworkReply *reply);
    /// Other sections of the same location: what is for them is not out of place.
    void setSiblings(const QVector<RVLintDefinition::Section> &siblings);
    /// `notFetched`: why a descriptor could not be had, by its address. `system` may be null: then
    /// nothing is said of what fits it. Asks `isOver` for each entry, and ends early when it is.
    void check(const QHash<QUrl, QString> &notFetched, const OSInfoBaseClass *system,
               const std::function<bool()> &isOver);

    /// A path, or an address without its password.
    static QString fileOf(const QUrl &url);

private:
    void use(const RVLintDefinition::Section &section);
    void use(const QList<RVData> &entries);
    void checkPatterns();
    void checkPattern(const QString &pattern, int line);
    bool checkTrust();
    void checkSums();
    void checkListing();
    bool isDescriptor(const XUrlInfo &item) const;
    /// Adds what stands behind the descriptor that an archive takes.
    void checkPairs(const QRegExp &archive, const QRegExp &descriptor, QSet<QUrl> *paired);
    void checkEntries(const QHash<QUrl, QString> &notFetched, const OSInfoBaseClass *system,
                      const std::function<bool()> &isOver);
    void checkDescriptor(const RVData &entry, const QHash<QUrl, QString> &failures);
    void checkArchive(const RVData &entry);
    void checkPackage(const RVData &entry, const QString &path);
    void checkFits(const RVData &entry, const OSInfoBaseClass &system);
    void checkTogether();
    void checkVersions();
    void checkInstallers();

    const RVRepository &m_repository;
    const RVLintDefinition::Section &m_section;
    RVLintReport *m_report;
    /// Descriptors that came whole, by their addresses without a login.
    QSet<QUrl> m_checked;
    /// Files of which some section at this location makes an update.
    QSet<QUrl> m_used;
    /// Archives that a filter of another section picks.
    QSet<QUrl> m_selected;
};

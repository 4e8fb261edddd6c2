// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "cli/RVCtlCommand.h"
#include "cli/RVCtlRefresh.h"
#include "cli/RVCtlWorld.h"
#include "repository/RVEligibility.h"
#include "repository/RVSelection.h"

#include <QJsonObject>
#include <QList>
#include <QVector>

class QCommandLineOption;
class QCommandLineParser;
class RVCtlAccess;

/// What one section offers after a refresh: the window's table and what is missing from it.
class RVCtlOffers
{
public:
    /// An update, or an archive of which none was made.
    struct Entry {
        QUrl archive;
        /// Empty when there is none.
        QUrl descriptor;
        /// Null as well; else the update itself.
        QSharedPointer<DescriptorGeneric> description;
        RVEligibility reason = RVEligibility::NoFilter;
        RVProposal proposal;
        /// Its place among the repository's entries, or -1.
        int index = -1;
        /// The image that the device runs.
        bool isRunning = false;

        bool isOffered() const { return reason == RVEligibility::Offered; }
        bool isNew() const { return isOffered() && !proposal.upToDate && !isRunning; }
        /// What the window proposes too, but for an image that runs.
        bool isPreselected() const { return proposal.preselected && !isRunning; }
        /// As it is shown, in the user's language.
        QString name() const;
        /// The one that the package database knows.
        QString englishName() const;
        QString title() const;
        QString version() const;
        /// The installed version, "none" or "not configured".
        QString installed() const;
        /// "new", "update", "not-configured" or "current".
        QString state() const;
        QJsonObject toJson() const;
    };

    /// Refreshes the named sections, all without a name, one after the other. False when the
    /// command ends here: `result` says why, unless the deadline is over.
    static bool read(const RVCtlCall &call, const QStringList &names, QList<RVCtlOffers> *sections,
                     RVCtlResult *result);
    /// The same, for commands that go on with `access`.
    static bool read(const RVCtlCall &call, const QStringList &names, RVCtlAccess *access,
                     QList<RVCtlOffers> *sections, RVCtlResult *result);
    /// Refreshes the section. Until `deadline` is over; then there is nothing.
    RVCtlOffers(const RVCtlWorld::Section &section, const OSInfoBaseClass &system,
                RVCtlAccess *access, RVCtlDeadline *deadline);

    /// A password is for one server; every other one that asked would learn it. False, and why, for
    /// sections of several.
    static bool isOneServer(const QList<RVCtlWorld::Section> &sections, QString *error);

    const RVCtlWorld::Section &section() const { return m_section; }
    const RVCtlRefresh::Failure &failure() const { return m_failure; }
    const QList<RVCtlRefresh::Failure> &descriptorFailures() const { return m_descriptorFailures; }
    /// In the window's order; what is not offered stands between, archives without an entry last.
    const QVector<Entry> &entries() const { return m_entries; }
    bool hasNews() const;
    /// The update itself.
    RVData data(const Entry &entry) const;
    enum class RunningImage {
        Refuse, ///< it is never preselected, and cannot be named
        Take, ///< as any other image
    };
    /// --reinstall, and what it says.
    static QCommandLineOption reinstallOption();
    static RunningImage runningImage(const QCommandLineParser &parser);
    /// The offered ones that the arguments name as NAME or NAME=VERSION, or, without any, the
    /// preselected ones; in the window's order, each once. Of several versions, NAME is the first.
    /// False, and why, when one is not offered or more are named than can be picked.
    bool choose(const QStringList &names, RunningImage runningImage, QVector<Entry> *chosen,
                QString *error) const;
    /// The best match, also among what is not offered; null, and why, when there is none.
    const Entry *find(const QString &name, QString *error) const;

    /// "index", "title", "location", "selector", "error" and, if any, "descriptorErrors".
    QJsonObject toJson() const;
    /// The heading of a section in texts, with what went wrong; safe.
    QString heading() const;
    /// The same for several sections at once: all, some or none of them failed.
    static void judge(const QList<RVCtlOffers> &sections, RVCtlResult *result);

private:
    void collect(const OSInfoBaseClass &system);

    RVCtlWorld::Section m_section;
    RVCtlRefresh::Failure m_failure;
    QList<RVCtlRefresh::Failure> m_descriptorFailures;
    QVector<Entry> m_entries;
};

/// The word for a reason in documents, "base-release" and the like.
QString reasonWord(RVEligibility reason);

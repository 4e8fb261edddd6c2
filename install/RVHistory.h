// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/RVPaths.h"
#include "install/RVResult.h"

#include <QDateTime>
#include <QJsonObject>
#include <QString>
#include <QVector>

#include <functional>
#include <optional>

class OSInfoBaseClass;
struct RVBatch;
class RVOwnFolder;

/// What was installed on this system, by whom and how it ended: two files of JSON lines that
/// outlive whatever happens to the program. A run is one line when it begins, on the disk before
/// its installer starts, and one when it ends.
///
/// Files of root's belong to the group adm too, which may read them. Nothing in them is trusted:
/// lines that are damaged or too long are passed over.
class RVHistory
{
public:
    enum class Face {
        Window,
        CommandLine,
    };
    struct Item {
        /// English, and plain text.
        QString name;
        QString from;
        QString to;
        /// The archive's URL, without a login.
        QString source;
        /// Who signed the list that has it; empty where nobody did.
        QString signer;
        /// RVItemResult's word; empty while the run is open.
        QString state;
        QString reason;
    };
    struct Run {
        QString id;
        QDateTime begun;
        /// Not valid while it is open.
        QDateTime ended;
        QString user;
        /// Who logged in, and whom sudo ran it for; empty where that is not known.
        QString login;
        QString sudoUser;
        /// "window" or "ravelctl".
        QString face;
        /// The settings key of its section.
        QString section;
        /// "packages", "service-packs", "image" or "unknown".
        QString kind;
        QVector<Item> items;
        /// Items that are not listed, in a run of very many.
        int more = 0;
        /// Not set where there was no installer, or a signal ended it.
        std::optional<int> exitCode;
        bool isRestartNeeded = false;
        /// The file with the installer's output; empty where there is none.
        QString output;
        /// Its end was found out later, by looking at the system.
        bool isFoundLater = false;
        /// The process that began it.
        qint64 process = 0;
        QByteArray processBegin;

        bool isOpen() const { return !ended.isValid(); }
        void setResult(const RVResult &result);
        /// As documents show it.
        QJsonObject toJson() const;
    };
    struct Reading {
        /// In the order in which they began.
        QVector<Run> runs;
        /// Lines that were passed over.
        int damaged = 0;
    };
    /// Gives each item of a run that nobody ended its state, and the run its `isRestartNeeded`.
    using Judge = std::function<void(Run *run)>;

    static constexpr qint64 defaultLargest = 10 * 1024 * 1024;
    /// Of one line; a run of more updates than fit in lists the first of them.
    static constexpr int longestLine = 1024 * 1024;

    /// `largest` bytes for each of the two files.
    explicit RVHistory(const RVPaths &paths, qint64 largest = defaultLargest);

    /// The run that is about to begin, of the running process and user.
    static Run runOf(const RVBatch &batch, Face face, const QString &section);
    /// Puts the beginning on the disk; gives the run its id and time. False, with reason(), where
    /// nothing can be written.
    bool begin(Run *run);
    /// The same for the end; a run that was never begun is written whole.
    bool end(Run *run);
    /// Says what the system has now.
    static Judge judgeBy(const OSInfoBaseClass *system);
    /// Ends the runs whose program is gone, unless another of ours is at work. How many.
    int closeOpen(const Judge &judge);
    const QString &reason() const { return m_reason; }

    /// Makes nothing. An ordinary user sees root's too, where that may be read.
    Reading read() const;
    /// Whether there is nothing to read; looks at no line.
    bool isEmpty() const;

private:
    bool append(const QByteArray &line);
    bool appendIn(const RVOwnFolder &folder, const QByteArray &line);

    const RVPaths m_paths;
    const qint64 m_largest;
    QString m_reason;
};

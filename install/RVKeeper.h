// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/RVPaths.h"
#include "install/RVKeeperLoop.h"
#include "install/RVRunRecord.h"

#include <QString>
#include <QVector>

/// The process between the program and an installer. A package tool dies of a reader that goes
/// away and leaves its packages half-installed; the keeper always reads on, so that an installer
/// runs to its end whatever becomes of the program. It stores the output, hands it on, records how
/// the installer ended, and ends in the same way itself.
///
/// One object belongs to one QProcess: prepare() before each start, keep() from its
/// setupChildProcess(), release() when it has started, forget() when its end was heard.
class RVKeeper
{
public:
    explicit RVKeeper(const RVPaths &paths);
    ~RVKeeper();

    /// Opens what the keeper writes. What cannot be opened is left out and said in the log.
    /// `held` are descriptors that stay open until the installer has ended, for the locks on them.
    void prepare(bool isMerged, const QVector<int> &held);
    /// In the child process. Returns in a child of it, which goes on to be the installer. Where
    /// there can be no keeper, it returns in the process itself.
    void keep() const;
    /// From here on the record is the keeper's alone.
    void release();
    /// Nobody needs to be told of this run any more. Its output stays.
    void forget();

    /// Empty where none is kept.
    const QString &outputFile() const { return m_record.outputFile; }

    /// So many runs' outputs are kept, where nobody but their owner may look.
    static constexpr int keptOutputs = 5;
    static constexpr QLatin1String outputSuffix{".txt", 4};
    static QString outputFolder(const RVPaths &paths);
    /// Of the runs that go on, or whose end nobody heard.
    static constexpr QLatin1String recordSuffix{".run", 4};
    static QString recordFolder(const RVPaths &paths);

private:
    Q_DISABLE_COPY_MOVE(RVKeeper)

    void openOutput();
    void openRecord();

    const RVPaths m_paths;
    QString m_id;
    RVRunRecord m_record;
    RVKeeperFiles m_files;
    bool m_isMerged = false;
};

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/OSInfo.h"
#include "core/RVPaths.h"
#include "repository/RVDefinitions.h"

#include <QList>
#include <QString>

#include <memory>
#include <vector>

class RVRepository;

/// The system and its repositories as the window would have them after its start, read when a
/// command first asks.
class RVCtlWorld
{
public:
    explicit RVCtlWorld(const RVPaths &paths);
    ~RVCtlWorld();

    struct Section {
        /// Its place in the window, from 0.
        int index = -1;
        const RVRepDesc *definition = nullptr;
        RVRepository *repository = nullptr;
    };

    const RVPaths &paths() const { return m_paths; }
    /// Before readSections(): whether refreshes write down which signed lists they have seen. Only
    /// for commands that change something.
    void setRememberingTrust(bool isRemembering) { m_isRememberingTrust = isRemembering; }
    /// False, and why, when the system cannot be used.
    bool readSystem(QString *error);
    bool readSections(QString *error);
    const OSInfo &system() const { return *m_system; }
    const std::vector<Section> &sections() const { return m_sections; }
    /// By index or settings key; null, and why, when that names none or several.
    const Section *find(const QString &name, QString *error) const;
    /// The named ones in the window's order, each once; all of them when none is named.
    bool find(const QStringList &names, QList<Section> *sections, QString *error) const;

private:
    Q_DISABLE_COPY_MOVE(RVCtlWorld)

    const RVPaths m_paths;
    bool m_isRememberingTrust = false;
    std::unique_ptr<OSInfo> m_system;
    RVDefinitions::List m_definitions;
    std::vector<std::unique_ptr<RVRepository>> m_repositories;
    std::vector<Section> m_sections;
};

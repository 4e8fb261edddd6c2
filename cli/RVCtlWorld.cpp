// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/RVCtlWorld.h"

#include "repository/RVProxySettings.h"
#include "repository/RVRepDesc.h"
#include "repository/RVRepository.h"

#include <QFileInfo>

#include <algorithm>

RVCtlWorld::RVCtlWorld(const RVPaths &paths)
    : m_paths(paths)
{
}

RVCtlWorld::~RVCtlWorld() = default;

bool RVCtlWorld::readSystem(QString *error)
{
    try {
        m_system = std::make_unique<OSInfo>(nullptr, m_paths);
    } catch (OSInfoBaseClass::ExceptionType) {
        *error =
            QStringLiteral("The image identification '%1' cannot be read.").arg(m_paths.imageId);
        return false;
    }
    return true;
}

bool RVCtlWorld::readSections(QString *error)
{
    if (!QFileInfo(m_paths.definitionDir).isDir()) {
        *error =
            QStringLiteral("There is no definition directory '%1'.").arg(m_paths.definitionDir);
        return false;
    }
    QString reason;
    switch (RVDefinitions::readDirectory(m_paths, &m_definitions, &reason)) {
    case RVDefinitions::NoError:
        break;
    case RVDefinitions::NoRepositories:
        *error = QStringLiteral("No repositories are defined in '%1'.").arg(m_paths.definitionDir);
        return false;
    default:
        *error = QStringLiteral("A definition file cannot be used: %1").arg(reason);
        return false;
    }

    const RVProxySettings proxies = RVProxySettings::read();
    for (const auto &definition : m_definitions) {
        std::unique_ptr<RVRepository> repository(
            RVRepository::fromDefinition(*definition, nullptr, m_paths));
        const RVProxySettings::Proxy proxy = proxies.forScheme(repository->url().scheme());
        repository->setProxy(proxy.host, proxy.port);
        repository->setRememberingTrust(m_isRememberingTrust);
        m_sections.push_back(
            {static_cast<int>(m_sections.size()), definition.get(), repository.get()});
        m_repositories.push_back(std::move(repository));
    }
    return true;
}

const RVCtlWorld::Section *RVCtlWorld::find(const QString &name, QString *error) const
{
    bool isNumber = false;
    const uint index = name.toUInt(&isNumber);
    if (isNumber && index < m_sections.size()) {
        return &m_sections[index];
    }
    const auto hasKey = [&name](const Section &section) {
        return !name.isEmpty() && section.definition->settingsKey == name;
    };
    const auto found = std::find_if(m_sections.begin(), m_sections.end(), hasKey);
    if (found == m_sections.end()) {
        *error =
            QStringLiteral("Unknown section '%1'; `ravelctl repos` lists the sections.").arg(name);
        return nullptr;
    }
    if (std::find_if(found + 1, m_sections.end(), hasKey) != m_sections.end()) {
        *error = QStringLiteral("Several sections have the settings key '%1'; name the section by "
                                "its index.")
                     .arg(name);
        return nullptr;
    }
    return &*found;
}

bool RVCtlWorld::find(const QStringList &names, QList<Section> *sections, QString *error) const
{
    std::vector<bool> chosen(m_sections.size(), names.isEmpty());
    for (const QString &name : names) {
        const Section *section = find(name, error);
        if (!section) {
            return false;
        }
        chosen[static_cast<std::size_t>(section->index)] = true;
    }
    for (std::size_t i = 0; i < m_sections.size(); ++i) {
        if (chosen[i]) {
            sections->append(m_sections[i]);
        }
    }
    return true;
}

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "repository/RVSelection.h"

#include "descriptor/DataXML.h"

namespace
{

RVProposal proposal(const DescriptorGeneric &descriptor, const OSInfoBaseClass *system,
                    bool isEligible)
{
    RVProposal result;
    if (system) {
        const QString name = descriptor.name(QStringLiteral("en"));
        result.installed = system->versionInstalled(name);
        result.current = !result.installed.isEmpty() ? RVProposal::Known
            : system->isNotConfigured(name)          ? RVProposal::NotConfigured
                                                     : RVProposal::NotInstalled;
    }
    result.upToDate = result.current != RVProposal::NotConfigured
        && VersionString(result.installed).compare(descriptor.version(), Qt::CaseSensitive) >= 0;
    result.preselected = isEligible && !result.upToDate;
    return result;
}

} // namespace

QVector<RVProposal> proposals(const QList<RVData> &offered, const OSInfoBaseClass *system,
                              bool picksOne)
{
    QVector<RVProposal> result(offered.size());
    for (int i = 0; i < offered.size(); ++i) {
        if (const auto &descriptor = offered.at(i).descriptor()) {
            result[i] = proposal(*descriptor, system, !picksOne || i == 0);
        }
    }
    return result;
}

bool runsImage(const OSInfoBaseClass &system, const QString &version)
{
    return !version.isEmpty() && system.baseOSName().toString() == version;
}

bool isRunningImage(const RVData &entry, const OSInfoBaseClass &system)
{
    return entry.archive() && entry.archive()->isImage() && entry.descriptor()
        && runsImage(system, DataXML::plainText(entry.descriptor()->version().toString()));
}

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "repository/RVData.h"

#include "core/RVLogger.h"
#include "repository/RVTrust.h"

namespace
{

void warnUnhandled(const char *kind, const QUrl &url)
{
    qWarning("Repositories filters have selected %s URI", kind);
    qWarning("  '%s',", RVLogger::oneLine(url).constData());
    qWarning("  but that type is not actually handled by the libraries.");
}

} // namespace

RVData::RVData(const QUrl &archive, const QUrl &descriptor, QObject *parent, const RVPaths &paths)
    : QObject(parent)
    , m_archiveUrl(archive)
    , m_descriptorUrl(descriptor.isEmpty() ? archive : descriptor)
    , m_descriptor(new DescriptorGeneric(m_descriptorUrl))
{
    if (!m_descriptor->urlIsHandled()) {
        warnUnhandled("descriptor", m_descriptorUrl);
    }
    m_archive.reset(new ArchiveGeneric(m_archiveUrl, nullptr, paths));
    if (!m_archive->urlIsHandled()) {
        warnUnhandled("archive", m_archiveUrl);
    }
}

// A copy has no parent: it lives in a list, which deletes it.
RVData::RVData(const RVData &other)
    : QObject(nullptr)
    , trust(other.trust)
    , m_archiveUrl(other.m_archiveUrl)
    , m_descriptorUrl(other.m_descriptorUrl)
    , m_descriptor(other.m_descriptor)
    , m_archive(other.m_archive)
{
}

RVData &RVData::operator=(const RVData &other)
{
    trust = other.trust;
    m_archiveUrl = other.m_archiveUrl;
    m_descriptorUrl = other.m_descriptorUrl;
    m_descriptor = other.m_descriptor;
    m_archive = other.m_archive;
    return *this;
}

RVData::~RVData() = default;

bool RVData::operator==(const RVData &other) const
{
    return m_archiveUrl == other.m_archiveUrl && m_descriptorUrl == other.m_descriptorUrl;
}

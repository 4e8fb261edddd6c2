// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "archive/ArchiveGeneric.h"
#include "core/RVPaths.h"
#include "descriptor/DescriptorGeneric.h"

#include <QObject>
#include <QSharedPointer>
#include <QUrl>

class RVTrust;

/// One update entry: where its archive and its descriptor are, and the objects that handle them.
/// A value: copies share both objects.
class RVData : public QObject
{
    Q_OBJECT

public:
    /// An empty descriptor URL means that the archive describes itself.
    RVData(const QUrl &archive, const QUrl &descriptor, QObject *parent = nullptr,
           const RVPaths &paths = {});
    RVData(const RVData &other);
    RVData &operator=(const RVData &other);
    ~RVData() override;

    const QUrl &archiveUrl() const { return m_archiveUrl; }
    const QUrl &descriptorUrl() const { return m_descriptorUrl; }
    const QSharedPointer<DescriptorGeneric> &descriptor() const { return m_descriptor; }
    const QSharedPointer<ArchiveGeneric> &archive() const { return m_archive; }
    /// For entries whose descriptor was lost; every reader has to cope with a null one.
    void clearDescriptor() { m_descriptor.clear(); }

    /// What both files are held against before they are used; null where the definition asks for
    /// nothing. Written by the repository.
    QSharedPointer<RVTrust> trust;

    /// Equal URLs; the shared objects take no part.
    bool operator==(const RVData &other) const;
    bool operator!=(const RVData &other) const { return !(*this == other); }

private:
    QUrl m_archiveUrl;
    QUrl m_descriptorUrl;
    QSharedPointer<DescriptorGeneric> m_descriptor;
    QSharedPointer<ArchiveGeneric> m_archive;
};

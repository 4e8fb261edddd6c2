// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "archive/ArchiveDDImage.h"

ArchiveDDImage::ArchiveDDImage(const QUrl &url, QObject *parent, const RVPaths &paths)
    : ArchiveBaseClass(url, parent)
    , m_paths(paths)
    , m_urlHandled(!url.isEmpty()
                   && url.path().endsWith(QLatin1String(".dd.gz"), Qt::CaseInsensitive))
{
}

ArchiveDDImage::~ArchiveDDImage() = default;

bool ArchiveDDImage::extract(QIODevice *source) const
{
    Q_UNUSED(source)
    throw NotExtractable;
}

void ArchiveDDImage::install(QProcess *proc)
{
    proc->start(m_paths.trueTool, QStringList());
}

void ArchiveDDImage::setProxy(const QString &host, int port)
{
    m_proxyHost = host;
    m_proxyPort = port;
}

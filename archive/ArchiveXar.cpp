// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "archive/ArchiveXar.h"

#include <QFileInfo>

ArchiveXar::ArchiveXar(const QUrl &url, QObject *parent, const RVPaths &paths)
    : ArchiveBaseClass(url, parent)
    , m_paths(paths)
    , m_urlHandled(
          !url.isEmpty()
          && QFileInfo(url.path()).suffix().compare(QLatin1String("xar"), Qt::CaseInsensitive) == 0)
{
}

ArchiveXar::~ArchiveXar() = default;

bool ArchiveXar::extract(QIODevice *source) const
{
    return source->open(QIODevice::ReadOnly);
}

void ArchiveXar::install(QProcess *proc)
{
    Q_EMIT installStarted();
    proc->start(m_paths.xarInstaller, QStringList());
}

void ArchiveXar::setProxy(const QString &host, int port)
{
    Q_UNUSED(host)
    Q_UNUSED(port)
}

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "descriptor/DescriptorXar.h"

#include <QFileInfo>

DescriptorXar::DescriptorXar(const QUrl &url, QObject *parent)
    : DescriptorBaseClass(url, parent)
    , m_urlHandled(
          !url.isEmpty()
          && QFileInfo(url.path()).suffix().compare(QLatin1String("xar"), Qt::CaseInsensitive) == 0)
{
}

DescriptorXar::~DescriptorXar() = default;

bool DescriptorXar::read(QIODevice *source)
{
    return source->open(QIODevice::ReadOnly);
}

bool DescriptorXar::read(QNetworkReply *reply)
{
    return read(static_cast<QIODevice *>(reply));
}

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "descriptor/DescriptorDeb.h"

#include <QFileInfo>

DescriptorDeb::DescriptorDeb(const QUrl &url, QObject *parent)
    : DescriptorBaseClass(url, parent)
    , m_urlHandled(
          !url.isEmpty()
          && QFileInfo(url.path()).suffix().compare(QLatin1String("deb"), Qt::CaseInsensitive) == 0)
{
}

DescriptorDeb::~DescriptorDeb() = default;

bool DescriptorDeb::read(QIODevice *source)
{
    return source->open(QIODevice::ReadOnly);
}

bool DescriptorDeb::read(QNetworkReply *reply)
{
    return read(static_cast<QIODevice *>(reply));
}

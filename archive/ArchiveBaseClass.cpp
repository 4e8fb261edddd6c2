// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "archive/ArchiveBaseClass.h"

ArchiveBaseClass::ArchiveBaseClass(const QUrl &url, QObject *parent)
    : QObject(parent)
    , m_url(url)
{
}

ArchiveBaseClass::~ArchiveBaseClass() = default;

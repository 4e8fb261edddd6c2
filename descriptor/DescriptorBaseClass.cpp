// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "descriptor/DescriptorBaseClass.h"

DescriptorBaseClass::DescriptorBaseClass(const QUrl &url, QObject *parent)
    : QObject(parent)
    , m_url(url)
{
}

DescriptorBaseClass::~DescriptorBaseClass() = default;

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "descriptor/DescriptorFields.h"

/// The descriptor inside a xar archive: two subdocuments of its table of contents, known by the
/// name of their root element, "sp-attrs" with the sizes and "service-pack-description" with the
/// rest. The archive's members are not looked at.
class DescriptorXar : public DescriptorFields
{
    Q_OBJECT

public:
    explicit DescriptorXar(const QUrl &url, QObject *parent = nullptr);
    ~DescriptorXar() override;

    using DescriptorFields::read;

public Q_SLOTS:
    bool read(QIODevice *source) override;

private:
    Q_DISABLE_COPY_MOVE(DescriptorXar)
};

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "descriptor/DescriptorFields.h"

/// The descriptor of an update that is a plain Debian package: the package describes itself by its
/// control data. It has no text per language, no release and no model of its own, so those hold
/// fixed values. A second read() appends to the lists again.
class DescriptorDeb : public DescriptorFields
{
    Q_OBJECT

public:
    explicit DescriptorDeb(const QUrl &url, QObject *parent = nullptr);
    ~DescriptorDeb() override;

    using DescriptorFields::read;

public Q_SLOTS:
    bool read(QIODevice *source) override;

private:
    Q_DISABLE_COPY_MOVE(DescriptorDeb)
};

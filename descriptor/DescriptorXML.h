// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "descriptor/DescriptorFields.h"

class DataXML;

/// The descriptor that is an XML document of its own: a flat one with the root "update_data", or
/// one with the root "xar" and the description in its "subdoc" elements. A second read() appends to
/// the lists again. Read failures show only in the result: nothing is logged here.
class DescriptorXML : public DescriptorFields
{
    Q_OBJECT

public:
    explicit DescriptorXML(const QUrl &url, QObject *parent = nullptr);
    ~DescriptorXML() override;

    /// Always true: nothing is required of the document.
    bool readUpdateStyleXML(DataXML &doc);
    /// True when the root has at least one child "subdoc".
    bool readXarStyleXML(DataXML &doc);

    using DescriptorFields::read;

public Q_SLOTS:
    bool read(QIODevice *source) override;

private:
    Q_DISABLE_COPY_MOVE(DescriptorXML)
};

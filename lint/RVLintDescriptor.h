// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "lint/RVLintDocument.h"

class DescriptorBaseClass;

/// Checks what describes an update: XML documents, and archives that describe themselves.
class RVLintDescriptor
{
public:
    RVLintDescriptor(const QString &file, RVLintReport *report);

    /// A file whose suffix says what it is: a package, a service pack, or else a document.
    /// A service pack that something else describes need not describe itself.
    void checkFile(const QString &path, bool isDescriptor);
    void checkXml(const QByteArray &document);
    /// A document that is known to be a descriptor.
    void checkDocument(RVLintDocument *document);
    /// What is known of a description of which there is no document.
    void checkFields(const DescriptorBaseClass &descriptor);
    /// Whether the notes' reader leaves an element of this name out.
    static bool isDropped(const QString &tag);

private:
    void checkXar(const QString &path, bool isDescriptor);
    void checkDeb(const QString &path);
    /// What every format has; `scope` stands for what is missing.
    void checkUpdate(RVLintDocument *document, const QDomElement &scope,
                     const RVLintDocument::Elements &fields);
    void checkNotes(RVLintDocument *document, const QDomElement &element);
    void checkName(RVLintDocument *document, const QDomElement &scope,
                   const QVector<QDomElement> &names);
    void checkVersion(const QString &version, int line);
    void checkBaseRelease(const QString &release, int line);
    void checkAll(const QString &value, int line);

    const QString m_file;
    RVLintReport *m_report;
};

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/RVPaths.h"
#include "lint/RVLintReport.h"

#include <QHash>
#include <QSharedPointer>
#include <QVector>

class QDomElement;
class RVLintDocument;
class RVRepDesc;

/// Checks definition files.
class RVLintDefinition
{
public:
    /// One section, and where its patterns stand.
    struct Section {
        QString file;
        QSharedPointer<RVRepDesc> definition;
        QVector<int> archiveLines;
        QVector<int> descriptorLines;
    };

    explicit RVLintDefinition(RVLintReport *report);

    /// Every file of the definition directory that the program reads, or was perhaps meant to.
    void checkDirectory(const RVPaths &paths);
    void checkFile(const QString &path);
    /// A document that is known to be a definition.
    void checkDocument(RVLintDocument *document);

    /// Who else can change the file.
    void checkAccess(const QString &path);

    /// What was found, in the window's order.
    const QVector<Section> &sections() const { return m_sections; }
    /// Whether it is safe to make repositories of them: their patterns are compiled then.
    bool isCompilable() const { return m_isCompilable; }

    /// The name of every standard icon.
    static QStringList iconNames();

private:
    void checkUnread(const QString &path);
    void checkSection(RVLintDocument *document, QDomElement element);
    void checkTexts(RVLintDocument *document, const QDomElement &element,
                    const QHash<QString, QVector<QDomElement>> &fields);
    void checkKey(RVLintDocument *document, const QDomElement &element, const QDomElement &section);
    void checkLocation(RVLintDocument *document, const QDomElement &element,
                       const QDomElement &section);
    void checkChoices(RVLintDocument *document, const QDomElement &element,
                      const QHash<QString, QVector<QDomElement>> &fields);
    void checkTrust(RVLintDocument *document, const QDomElement &element, const RVRepDesc &section);
    void checkFilters(RVLintDocument *document, const QDomElement &element,
                      const QVector<QDomElement> &filters, Section *section);
    void checkPattern(RVLintDocument *document, const QDomElement &element);

    RVLintReport *m_report;
    /// Where keyrings are; those of files alone are not looked at.
    const RVPaths *m_paths = nullptr;
    QVector<Section> m_sections;
    /// Where a settings key was first used.
    QHash<QString, QString> m_keys;
    bool m_isCompilable = true;
};

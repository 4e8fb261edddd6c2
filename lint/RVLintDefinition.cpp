// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "lint/RVLintDefinition.h"

#include "core/RVPattern.h"
#include "lint/RVLintDocument.h"
#include "network/XNetworkAccessManager.h"
#include "repository/RVDefinitions.h"
#include "repository/RVKeyringFile.h"
#include "repository/RVRepDesc.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

namespace
{

/// Enough to see what a file is.
constexpr int headLength = 4096;

const QString listTag = QStringLiteral("repository_list");
const QString repositoryTag = QStringLiteral("repository");
const QString sectionTitleTag = QStringLiteral("title");
const QString descriptionTag = QStringLiteral("description");
const QString labelTag = QStringLiteral("uri_description");
const QString keyTag = QStringLiteral("settings_key");
const QString uriTag = QStringLiteral("default_uri");
const QString selectorTag = QStringLiteral("selector_type");
const QString iconTag = QStringLiteral("icon");
const QString filterSpsTag = QStringLiteral("filter_sps");
const QString signedByTag = QStringLiteral("signed_by");
const QString repositoryIdTag = QStringLiteral("repository_id");
const QString checksumsTag = QStringLiteral("checksums");
const QString filterTag = QStringLiteral("filter_pattern");
const QString archiveTag = QStringLiteral("archive_pattern");
const QString descriptorTag = QStringLiteral("descriptor_pattern");

/// The group of the proxy settings and what lies in it.
bool isReserved(const QString &key)
{
    const QString group = QStringLiteral("ProxySettings");
    return key == group || key.startsWith(group + QLatin1Char('/'));
}

bool isKnown(const QString &word, const QStringList &words)
{
    return words.contains(word, Qt::CaseInsensitive);
}

QDomElement last(const QHash<QString, QVector<QDomElement>> &fields, const QString &tag)
{
    const QVector<QDomElement> elements = fields.value(tag);
    return elements.isEmpty() ? QDomElement() : elements.constLast();
}

} // namespace

RVLintDefinition::RVLintDefinition(RVLintReport *report)
    : m_report(report)
{
}

QStringList RVLintDefinition::iconNames()
{
    return {QStringLiteral("Abort"),
            QStringLiteral("Apply"),
            QStringLiteral("Cancel"),
            QStringLiteral("Close"),
            QStringLiteral("Info"),
            QStringLiteral("Install"),
            QStringLiteral("Ok"),
            QStringLiteral("Refresh"),
            QStringLiteral("RestoreDefaults"),
            QStringLiteral("SelectAll"),
            QStringLiteral("SelectNone"),
            QStringLiteral("Yes"),
            QStringLiteral("No"),
            QStringLiteral("ImageRepository"),
            QStringLiteral("SPRepository"),
            QStringLiteral("PackageRepository")};
}

void RVLintDefinition::checkDirectory(const RVPaths &paths)
{
    m_paths = &paths;
    if (QFileInfo(paths.definitionDir).permission(QFile::WriteOther)) {
        m_report->add(RVLintKind::FileWritable, paths.definitionDir);
    }
    const QStringList read = RVDefinitions::files(paths);
    for (const QString &path : read) {
        checkFile(path);
    }
    const QStringList names =
        QDir(paths.definitionDir).entryList(QDir::Files | QDir::Hidden | QDir::System, QDir::Name);
    for (const QString &name : names) {
        const QString path = paths.definitionDir + QLatin1Char('/') + name;
        if (!read.contains(path)) {
            checkUnread(path);
        }
    }
}

void RVLintDefinition::checkUnread(const QString &path)
{
    const QFileInfo info(path);
    const bool isHidden = info.fileName().startsWith(QLatin1Char('.'));
    const bool isMeant =
        info.suffix().compare(QLatin1String("xml"), Qt::CaseInsensitive) == 0 && !isHidden;
    if (!info.isFile() || !info.isReadable()) {
        if (isMeant) {
            m_report->add(RVLintKind::FileUnreadable, path);
        }
        return;
    }
    QFile file(path);
    if (file.open(QIODevice::ReadOnly) && file.read(headLength).contains("<repository_list")) {
        m_report->add(RVLintKind::FileNotRead, path);
    }
}

void RVLintDefinition::checkAccess(const QString &path)
{
    const QFileInfo info(path);
    if (info.isSymLink()) {
        m_report->add(RVLintKind::FileSymlink, path, 0, info.symLinkTarget());
    }
    if (info.permission(QFile::WriteOther)) {
        m_report->add(RVLintKind::FileWritable, path);
    }
}

void RVLintDefinition::checkFile(const QString &path)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) {
        m_report->add(RVLintKind::FileUnreadable, path);
        return;
    }
    checkAccess(path);
    RVLintDocument document(path, m_report);
    if (document.load(RVLintDocument::read(&file))) {
        checkDocument(&document);
    }
}

void RVLintDefinition::checkDocument(RVLintDocument *document)
{
    const QDomElement root = document->root();
    if (root.tagName() != listTag) {
        document->add(RVLintKind::DefinitionRoot, root, root.tagName());
        return;
    }
    bool isEmpty = true;
    for (QDomElement element = root.firstChildElement(); !element.isNull();
         element = element.nextSiblingElement()) {
        if (element.tagName() == repositoryTag) {
            checkSection(document, element);
            isEmpty = false;
            continue;
        }
        const QDomNodeList nested = element.elementsByTagName(repositoryTag);
        if (nested.isEmpty()) {
            document->add(RVLintKind::ElementUnknown, element,
                          QStringLiteral("<%1>; only <%2> counts here")
                              .arg(element.tagName(), repositoryTag));
        } else {
            document->add(RVLintKind::RepositoryNested, nested.at(0).toElement());
            isEmpty = false;
        }
    }
    if (isEmpty) {
        document->add(RVLintKind::NoRepository, root);
    }
}

void RVLintDefinition::checkSection(RVLintDocument *document, QDomElement element)
{
    Section section;
    section.file = document->file();
    section.definition = QSharedPointer<RVRepDesc>::create();
    section.definition->parse(element);

    RVLintFields fields;
    fields.texts = QStringList{sectionTitleTag, descriptionTag, labelTag};
    fields.values = QStringList{keyTag,       uriTag,      selectorTag,     iconTag,
                                filterSpsTag, signedByTag, repositoryIdTag, checksumsTag};
    fields.parts = QStringList{filterTag};
    fields.onlyInParts = QStringList{archiveTag, descriptorTag};
    const RVLintDocument::Elements elements = document->check(element, fields);
    checkTexts(document, element, elements);
    checkKey(document, last(elements, keyTag), element);
    checkLocation(document, last(elements, uriTag), element);
    checkChoices(document, element, elements);
    checkTrust(document, element, *section.definition);
    checkFilters(document, element, elements.value(filterTag), &section);
    m_sections.append(section);
}

void RVLintDefinition::checkTexts(RVLintDocument *document, const QDomElement &element,
                                  const QHash<QString, QVector<QDomElement>> &fields)
{
    const QVector<QPair<QString, RVLintKind>> texts{
        {sectionTitleTag, RVLintKind::NoTitle},
        {descriptionTag, RVLintKind::NoDescription},
        {labelTag, RVLintKind::NoLocationLabel},
    };
    for (const auto &text : texts) {
        if (!document->hasText(fields.value(text.first))) {
            document->add(text.second, element);
        }
    }
}

void RVLintDefinition::checkKey(RVLintDocument *document, const QDomElement &element,
                                const QDomElement &section)
{
    const QString key = document->valueOf(element);
    if (key.isEmpty()) {
        document->add(RVLintKind::NoSettingsKey, section);
        return;
    }
    const QString place =
        QStringLiteral("%1:%2").arg(document->file()).arg(document->lineOf(element));
    if (m_keys.contains(key)) {
        document->add(RVLintKind::SettingsKeyTwice, element,
                      QStringLiteral("%1, as in %2").arg(key, m_keys.value(key)));
    } else {
        m_keys.insert(key, place);
    }
    bool isNumber = false;
    key.toUInt(&isNumber);
    if (isReserved(key)) {
        document->add(RVLintKind::SettingsKeyReserved, element, key);
    } else if (isNumber) {
        document->add(RVLintKind::SettingsKeyNumber, element, key);
    }
}

void RVLintDefinition::checkLocation(RVLintDocument *document, const QDomElement &element,
                                     const QDomElement &section)
{
    static const QRegularExpression capitals(QStringLiteral("\\A[a-z0-9+.-]*[A-Z][^:/]*:"));
    const QString text = document->valueOf(element);
    if (text.isEmpty()) {
        document->add(RVLintKind::NoLocation, section);
        return;
    }
    const QUrl url = QUrl::fromEncoded(text.toUtf8());
    const QString scheme = url.scheme();
    if (!url.isValid()
        || (url.host().isEmpty() && !scheme.isEmpty() && scheme != QLatin1String("file")
            && XNetworkAccessManager().schemeIsSupported(scheme))) {
        document->add(RVLintKind::LocationInvalid, element);
    } else if (scheme.isEmpty()) {
        document->add(RVLintKind::LocationRelative, element, text);
    } else if (!XNetworkAccessManager().schemeIsSupported(scheme)) {
        document->add(RVLintKind::LocationScheme, element, scheme);
    } else if (capitals.match(text.trimmed()).hasMatch()) {
        document->add(RVLintKind::LocationCapitals, element,
                      text.trimmed().section(QLatin1Char(':'), 0, 0));
    }
    if (!url.password().isEmpty()) {
        document->add(RVLintKind::LocationPassword, element);
    }
}

void RVLintDefinition::checkChoices(RVLintDocument *document, const QDomElement &element,
                                    const QHash<QString, QVector<QDomElement>> &fields)
{
    // A value with blanks around has been reported as such.
    const auto word = [&](const QString &tag) {
        return document->valueOf(last(fields, tag)).trimmed();
    };
    const QStringList selectors{QStringLiteral("PickOne"), QStringLiteral("PickAny")};
    const QString selector = word(selectorTag);
    if (!selector.isEmpty() && !isKnown(selector, selectors)) {
        document->add(RVLintKind::SelectorUnknown, last(fields, selectorTag), selector);
    }
    const QString icon = word(iconTag);
    if (icon.isEmpty()) {
        document->add(RVLintKind::NoIcon, element);
    } else if (!isKnown(icon, iconNames())) {
        document->add(RVLintKind::IconUnknown, last(fields, iconTag), icon);
    }
    const QDomElement filterSps = last(fields, filterSpsTag);
    const QString raw = document->valueOf(filterSps);
    bool value = false;
    if (!filterSps.isNull() && raw == raw.trimmed() && !document->boolOf(filterSps, &value)) {
        document->add(RVLintKind::FilterSps, filterSps, raw);
    }
}

void RVLintDefinition::checkTrust(RVLintDocument *document, const QDomElement &element,
                                  const RVRepDesc &section)
{
    const RVTrustPolicy &policy = section.trust;
    QString reason;
    if (policy.fault.isSet()) {
        document->add(RVLintKind::TrustUnclear, element, policy.fault.text);
    } else if (policy.kind == RVTrustPolicy::Checksums) {
        document->add(RVLintKind::SumsNotSigned, element);
    } else if (policy.kind == RVTrustPolicy::Signed && m_paths
               && !RVKeyringFile::read(*m_paths, policy.keyring, &reason)) {
        document->add(RVLintKind::KeyringUnusable, element, reason);
    }
}

void RVLintDefinition::checkFilters(RVLintDocument *document, const QDomElement &element,
                                    const QVector<QDomElement> &filters, Section *section)
{
    RVLintFields fields;
    fields.values = QStringList{archiveTag, descriptorTag};
    for (const QDomElement &filter : filters) {
        const RVLintDocument::Elements patterns = document->check(filter, fields);
        const QDomElement archive = last(patterns, archiveTag);
        const QDomElement descriptor = last(patterns, descriptorTag);
        if (document->valueOf(archive).isEmpty()) {
            document->add(RVLintKind::FilterWithoutArchive, filter);
            continue;
        }
        section->archiveLines.append(document->lineOf(archive));
        section->descriptorLines.append(
            document->lineOf(descriptor.isNull() ? archive : descriptor));
        checkPattern(document, archive);
        if (!descriptor.isNull()) {
            checkPattern(document, descriptor);
        }
    }
    if (filters.isEmpty()) {
        document->add(RVLintKind::NoFilter, element);
    }
}

void RVLintDefinition::checkPattern(RVLintDocument *document, const QDomElement &element)
{
    const QString pattern = document->valueOf(element);
    switch (RVPattern::judge(pattern)) {
    case RVPattern::Bounded:
        break;
    case RVPattern::Invalid:
        document->add(RVLintKind::PatternInvalid, element, pattern);
        break;
    case RVPattern::TooComplex:
        m_isCompilable = false;
        document->add(RVLintKind::PatternCostly, element, pattern);
        break;
    }
}

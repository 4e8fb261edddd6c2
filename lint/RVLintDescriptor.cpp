// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "lint/RVLintDescriptor.h"

#include "core/RVPattern.h"
#include "core/XarToc.h"
#include "descriptor/DescriptorDeb.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>

#include <memory>
#include <vector>

namespace
{

/// The window shows no more of them either.
constexpr int mostNotes = 64 * 1024;

const QString nameTag = QStringLiteral("name");
const QString titleTag = QStringLiteral("title");
const QString notesTag = QStringLiteral("notes");
const QString versionTag = QStringLiteral("version");
const QString releaseTag = QStringLiteral("base_releases");
const QString packageTag = QStringLiteral("package");
const QString sizeTag = QStringLiteral("size");
const QString unpackedTag = QStringLiteral("unpacked_size");
const QString installedTag = QStringLiteral("installed_size");
const QString architectureTag = QStringLiteral("architecture");
const QString clientTag = QStringLiteral("thin_client");
const QString subdocTag = QStringLiteral("subdoc");
const QString attributesTag = QStringLiteral("sp-attrs");
const QString servicePackTag = QStringLiteral("service-pack-description");

RVLintFields descriptionFields()
{
    RVLintFields fields;
    fields.names = QStringList{nameTag};
    fields.texts = QStringList{titleTag, notesTag};
    fields.values = QStringList{versionTag};
    fields.lists = QStringList{releaseTag, packageTag, architectureTag, clientTag};
    return fields;
}

RVLintFields updateFields()
{
    RVLintFields fields = descriptionFields();
    fields.sizes = QStringList{sizeTag, unpackedTag, installedTag};
    return fields;
}

RVLintFields attributeFields()
{
    RVLintFields fields;
    fields.sizes = QStringList{unpackedTag, installedTag};
    return fields;
}

RVLintFields fieldsOf(const QString &subdocument)
{
    return subdocument == attributesTag ? attributeFields() : descriptionFields();
}

/// Checks a part, and adds what counts of it to the whole.
void checkPart(RVLintDocument *document, const QDomElement &part, RVLintDocument::Elements *whole)
{
    const RVLintDocument::Elements elements = document->check(part, fieldsOf(part.tagName()));
    for (auto it = elements.cbegin(); it != elements.cend(); ++it) {
        (*whole)[it.key()] += it.value();
    }
}

bool isOne(const QString &tag)
{
    return tag == attributesTag || tag == servicePackTag;
}

} // namespace

RVLintDescriptor::RVLintDescriptor(const QString &file, RVLintReport *report)
    : m_file(file)
    , m_report(report)
{
}

bool RVLintDescriptor::isDropped(const QString &tag)
{
    static const QSet<QString> shown = [] {
        const QStringList names =
            QStringLiteral("b strong i em cite var u s big small tt code kbd samp font sub sup "
                           "p div center address blockquote pre h1 h2 h3 h4 h5 h6 ul ol dl "
                           "li dt dd table tr td th br hr "
                           // Around a whole page they hold nothing of their own.
                           "html body head")
                .split(QLatin1Char(' '));
        return QSet<QString>(names.cbegin(), names.cend());
    }();
    return !shown.contains(tag.toLower());
}

void RVLintDescriptor::checkFile(const QString &path, bool isDescriptor)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    if (suffix == QLatin1String("deb")) {
        checkDeb(path);
        return;
    }
    if (suffix == QLatin1String("xar")) {
        checkXar(path, isDescriptor);
        return;
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        m_report->add(RVLintKind::FileUnreadable, m_file);
        return;
    }
    checkXml(RVLintDocument::read(&file));
}

void RVLintDescriptor::checkDeb(const QString &path)
{
    QFile file(path);
    DescriptorDeb package(QUrl::fromLocalFile(path));
    if (package.read(&file)) {
        checkFields(package);
    } else {
        m_report->add(RVLintKind::ArchiveUnreadable, m_file);
    }
}

void RVLintDescriptor::checkXar(const QString &path, bool isDescriptor)
{
    QFile file(path);
    XarToc table;
    if (!file.open(QIODevice::ReadOnly) || !table.read(&file)) {
        m_report->add(RVLintKind::ArchiveUnreadable, m_file);
        return;
    }
    // Each is a document of its own, somewhere in the archive.
    RVLintDocument::Elements fields;
    std::vector<std::unique_ptr<RVLintDocument>> documents;
    RVLintDocument *description = nullptr;
    for (const QByteArray &text : table.subdocuments()) {
        documents.push_back(std::make_unique<RVLintDocument>(m_file, m_report, false));
        RVLintDocument *document = documents.back().get();
        if (document->load(text) && isOne(document->root().tagName())) {
            checkPart(document, document->root(), &fields);
            if (document->root().tagName() == servicePackTag) {
                description = document;
            }
        }
    }
    if (description) {
        checkUpdate(description, description->root(), fields);
    } else if (isDescriptor) {
        m_report->add(RVLintKind::NoSubdocument, m_file);
    }
}

void RVLintDescriptor::checkXml(const QByteArray &document)
{
    RVLintDocument xml(m_file, m_report);
    if (xml.load(document)) {
        checkDocument(&xml);
    }
}

void RVLintDescriptor::checkDocument(RVLintDocument *document)
{
    const QDomElement root = document->root();
    RVLintDocument::Elements fields;
    if (root.tagName() == QLatin1String("update_data")) {
        fields = document->check(root, updateFields());
        if (fields.value(sizeTag).isEmpty()) {
            document->add(RVLintKind::SizeMissing, root);
        }
    } else if (root.tagName() == QLatin1String("xar")) {
        bool isDescribed = false;
        for (QDomElement part = root.firstChildElement(subdocTag); !part.isNull();
             part = part.nextSiblingElement(subdocTag)) {
            for (QDomElement element = part.firstChildElement(); !element.isNull();
                 element = element.nextSiblingElement()) {
                if (isOne(element.tagName())) {
                    checkPart(document, element, &fields);
                    isDescribed = isDescribed || element.tagName() == servicePackTag;
                }
            }
        }
        if (!isDescribed) {
            document->add(RVLintKind::NoSubdocument, root);
            return;
        }
    } else {
        document->add(RVLintKind::DescriptorRoot, root, root.tagName());
        return;
    }
    if (fields.value(clientTag).isEmpty()) {
        document->add(RVLintKind::NoThinClient, root);
    }
    if (fields.value(architectureTag).isEmpty()) {
        document->add(RVLintKind::NoArchitecture, root);
    }
    checkUpdate(document, root, fields);
}

void RVLintDescriptor::checkUpdate(RVLintDocument *document, const QDomElement &scope,
                                   const RVLintDocument::Elements &fields)
{
    checkName(document, scope, fields.value(nameTag));
    if (!document->hasText(fields.value(titleTag))) {
        document->add(RVLintKind::NoUpdateTitle, scope);
    }
    const QVector<QDomElement> versions = fields.value(versionTag);
    const QDomElement version = versions.isEmpty() ? scope : versions.constLast();
    checkVersion(versions.isEmpty() ? QString() : document->valueOf(version).trimmed(),
                 document->lineOf(version));
    for (const QDomElement &release : fields.value(releaseTag)) {
        checkBaseRelease(document->valueOf(release), document->lineOf(release));
    }
    for (const QString &tag : {architectureTag, clientTag}) {
        for (const QDomElement &element : fields.value(tag)) {
            checkAll(document->valueOf(element), document->lineOf(element));
        }
    }
    for (const QDomElement &notes : fields.value(notesTag)) {
        checkNotes(document, notes);
    }
}

void RVLintDescriptor::checkName(RVLintDocument *document, const QDomElement &scope,
                                 const QVector<QDomElement> &names)
{
    if (!document->hasText(names)) {
        document->add(RVLintKind::NoName, names.isEmpty() ? scope : names.constLast());
        return;
    }
    for (const QDomElement &name : names) {
        if (document->valueOf(name) != document->valueOf(names.constFirst())) {
            document->add(RVLintKind::NamePerLanguage, name, document->valueOf(name));
            return;
        }
    }
}

void RVLintDescriptor::checkNotes(RVLintDocument *document, const QDomElement &element)
{
    static const QRegularExpression tag(QStringLiteral("<([A-Za-z][A-Za-z0-9]*)"));
    QStringList dropped;
    // Quoted markup is markup as well.
    QRegularExpressionMatchIterator tags =
        tag.globalMatch(DataXML::plainText(document->valueOf(element).left(mostNotes)));
    while (tags.hasNext()) {
        const QString name = tags.next().captured(1).toLower();
        const bool isField = updateFields().all().contains(name);
        if (isDropped(name) && !isField && !dropped.contains(name)) {
            dropped.append(name);
            document->add(RVLintKind::NotesMarkup, element, QStringLiteral("<%1>").arg(name));
        }
    }
}

void RVLintDescriptor::checkVersion(const QString &version, int line)
{
    static const QRegularExpression usual(QStringLiteral("\\A[0-9][A-Za-z0-9.+~:-]*\\z"));
    static const QRegularExpression number(QStringLiteral("[0-9]+"));
    if (version.isEmpty()) {
        m_report->add(RVLintKind::NoVersion, m_file, line);
        return;
    }
    if (!usual.match(version).hasMatch()) {
        m_report->add(RVLintKind::VersionOdd, m_file, line, version);
    }
    QRegularExpressionMatchIterator numbers = number.globalMatch(version);
    while (numbers.hasNext()) {
        bool fits = false;
        const QString digits = numbers.next().captured();
        digits.toInt(&fits);
        if (!fits) {
            m_report->add(RVLintKind::VersionNumber, m_file, line, digits);
            return;
        }
    }
}

void RVLintDescriptor::checkBaseRelease(const QString &release, int line)
{
    static const QRegularExpression glob(QStringLiteral("(\\A|[^\\\\])[0-9]\\*"));
    checkAll(release, line);
    switch (RVPattern::judge(release)) {
    case RVPattern::Bounded:
        if (glob.match(release).hasMatch()) {
            m_report->add(RVLintKind::BaseReleaseGlob, m_file, line, release);
        }
        break;
    case RVPattern::Invalid:
        m_report->add(RVLintKind::BaseReleaseInvalid, m_file, line, release);
        break;
    case RVPattern::TooComplex:
        m_report->add(RVLintKind::BaseReleaseCostly, m_file, line, release);
        break;
    }
}

void RVLintDescriptor::checkAll(const QString &value, int line)
{
    const QString all = QStringLiteral("all");
    const QString word = value.trimmed().toLower();
    const bool isOther = word == QLatin1String("any") || word == QLatin1String("every");
    if (isOther || (word == all && value.trimmed() != all)) {
        m_report->add(RVLintKind::AllMisspelt, m_file, line, value.trimmed());
    }
}

void RVLintDescriptor::checkFields(const DescriptorBaseClass &descriptor)
{
    if (descriptor.name({}).isEmpty()) {
        m_report->add(RVLintKind::NoName, m_file);
    }
    if (descriptor.title({}).isEmpty()) {
        m_report->add(RVLintKind::NoUpdateTitle, m_file);
    }
    checkVersion(descriptor.version().toString(), 0);
    for (const QString &release : descriptor.baseReleases()) {
        checkBaseRelease(release, 0);
    }
    for (const QString &value : descriptor.architectureList() + descriptor.thinClientList()) {
        checkAll(value, 0);
    }
}

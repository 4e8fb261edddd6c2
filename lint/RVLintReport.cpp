// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "lint/RVLintReport.h"

#include "core/RVText.h"

#include <algorithm>
#include <tuple>

namespace
{

/// Of what a document says itself.
constexpr int longestDetail = 160;

constexpr auto error = RVLintSeverity::Error;
constexpr auto warning = RVLintSeverity::Warning;
constexpr auto notice = RVLintSeverity::Notice;

} // namespace

const QVector<RVLintRule> &RVLintRule::all()
{
    using K = RVLintKind;
    static const QVector<RVLintRule> rules{
        {K::XmlNotWellFormed, "xml-not-well-formed", error, "The document is not well-formed XML",
         "The program does not start with such a definition file; an update with such a "
         "descriptor is never offered."},
        {K::XmlBeyondBounds, "xml-beyond-bounds", error,
         "The document exceeds the bounds of the reader", "It is not read, as if it were not XML."},
        {K::ElementUnknown, "element-unknown", warning, "Unknown element",
         "It is ignored. Elements inside it count as if it were not there."},
        {K::ElementRepeated, "element-repeated", warning,
         "Repeated element; only the last one counts", "The earlier ones are ignored."},
        {K::FieldInField, "field-in-field", error,
         "The element is inside another field and counts as a field of its own",
         "Elements are found by name at any depth. It overrides the real field or adds to it."},
        {K::MarkupInValue, "markup-in-value", error,
         "The value contains markup, a comment, CDATA or an escaped character",
         "Values are taken literally: \"&amp;\" stays \"&amp;\"."},
        {K::BlankAround, "blank-around", error, "Blanks or line breaks surround the value",
         "Values are not trimmed, and this one matches nothing."},
        {K::LangAttribute, "lang-attribute", warning, "The attribute is not read; use \"xml:lang\"",
         "The text counts as English."},
        {K::LangUnknown, "lang-unknown", warning,
         "Not a language code; use one like \"de\" or \"de_CH\"",
         "The text is shown only where there is no better one."},
        {K::LangRepeated, "lang-repeated", warning, "Repeated language",
         "Only the last text counts. A text without a language is English."},
        {K::NoDefaultLanguage, "no-default-language", warning, "There is no English text",
         "Users whose language is missing see one of the others."},
        {K::TextTooLong, "text-too-long", warning, "The text is very long",
         "Notes are cut at 64 Ki characters, and tables have no room for long names."},
        {K::TextControls, "text-controls", warning,
         "The text contains control characters or changes the reading direction",
         "ravelctl shows their codes; the window shows them as they are."},

        {K::FileNotRead, "file-not-read", notice,
         "The file looks like a definition file but is not read",
         "Only files whose names end in \".xml\" and do not start with a dot are read."},
        {K::FileUnreadable, "file-unreadable", error, "The file cannot be read",
         "It is ignored, and its sections are missing."},
        {K::FileSymlink, "file-symlink", notice, "The file is a symbolic link",
         "The program, which may run as root, trusts its target."},
        {K::FileWritable, "file-writable", error, "Everyone can write here",
         "Any user can decide where root's software comes from."},
        {K::DefinitionRoot, "definition-root", error, "The root element is not repository_list",
         "The program does not start."},
        {K::NoRepository, "no-repository", warning, "No repository is defined here",
         "The file adds no section. Without any section, the program does not start."},
        {K::RepositoryNested, "repository-nested", error,
         "The repository is not a child of repository_list", "It is ignored."},
        {K::NoTitle, "no-title", warning, "The section has no title", "Its heading is empty."},
        {K::NoDescription, "no-description", notice, "The section has no description",
         "No text is shown below its heading."},
        {K::NoLocationLabel, "no-location-label", notice, "The location has no uri_description",
         "Its row on the options page and its log lines have no name."},
        {K::NoSettingsKey, "no-settings-key", warning, "There is no settings_key",
         "A location that the user sets is lost when the program ends."},
        {K::SettingsKeyTwice, "settings-key-twice", error,
         "Another section has the same settings_key",
         "Both sections store their location in the same place: setting one changes the other."},
        {K::SettingsKeyReserved, "settings-key-reserved", error,
         "The settings_key is in the group of the proxy settings",
         "The location and the proxies overwrite each other."},
        {K::SettingsKeyNumber, "settings-key-number", notice, "The settings_key is a number",
         "ravelctl takes it for a section's index first."},
        {K::NoLocation, "no-location", warning, "There is no default_uri",
         "The section is hidden until the user sets a location."},
        {K::LocationInvalid, "location-invalid", error, "The default_uri is not a valid address",
         "The section is hidden or cannot be listed."},
        {K::LocationScheme, "location-scheme", error,
         "The scheme of the default_uri is not http, https, ftp or file",
         "Every refresh of the section fails."},
        {K::LocationCapitals, "location-capitals", warning,
         "The scheme of the default_uri is in capitals",
         "It is read in lower case here. Programs that take it literally find no backend."},
        {K::LocationRelative, "location-relative", warning, "The default_uri is relative",
         "Its meaning depends on the directory that the program was started in."},
        {K::LocationPassword, "location-password", warning, "The default_uri contains a password",
         "Everyone who can read the file knows it. Installing an image writes it to the device."},
        {K::SelectorUnknown, "selector-unknown", warning,
         "The selector_type is neither PickOne nor PickAny",
         "Any number of updates can be chosen."},
        {K::IconUnknown, "icon-unknown", warning, "No standard icon has this name",
         "The section has no icon."},
        {K::NoIcon, "no-icon", notice, "The section names no icon", "It is shown without one."},
        {K::FilterSps, "filter-sps", warning, "The value of filter_sps is neither yes nor no",
         "It counts as no: installed service packs are offered again."},
        {K::NoFilter, "no-filter", error, "The section has no filter with an archive_pattern",
         "The section lists nothing."},
        {K::FilterWithoutArchive, "filter-without-archive", error,
         "The filter_pattern has no archive_pattern", "The whole filter is ignored."},
        {K::PatternOutsideFilter, "pattern-outside-filter", error,
         "The pattern is not inside a filter_pattern", "It is ignored."},
        {K::PatternInvalid, "pattern-invalid", error, "The pattern cannot be compiled",
         "It matches nothing."},
        {K::PatternCostly, "pattern-costly", error, "The pattern takes very long to compile",
         "The program may hang at its start. lint does not refresh such a system."},
        {K::PatternMatchesNothing, "pattern-matches-nothing", warning,
         "The pattern matches no file of the repository", "The filter yields no update."},
        {K::TrustUnclear, "trust-unclear", error, "The section's trust settings are not valid",
         "The section shows an error. It never counts as one without a signature."},
        {K::KeyringUnusable, "keyring-unusable", error, "The keyring cannot be used",
         "The section shows an error until it can."},
        {K::SumsNotSigned, "sums-not-signed", notice, "The list of sums is not signed",
         "It reveals damage only: whoever controls the server can change it along with the files."},

        {K::DescriptorRoot, "descriptor-root", error,
         "The root element is neither update_data nor xar", "Its update is never offered."},
        {K::NoSubdocument, "no-subdocument", error, "The service pack's description is missing",
         "The update has no name and no version, or is never offered."},
        {K::NoThinClient, "descriptor-no-thin-client", error, "There is no thin_client",
         "The update is never offered. Use \"all\" for every model."},
        {K::NoArchitecture, "descriptor-no-architecture", notice, "There is no architecture",
         "The update is offered to every architecture."},
        {K::NoName, "descriptor-no-name", error, "The update has no name",
         "It never counts as installed, and nothing can refer to it."},
        {K::NamePerLanguage, "name-per-language", warning, "The name differs between languages",
         "The English name decides whether the update counts as installed."},
        {K::NoUpdateTitle, "descriptor-no-title", warning, "The update has no title",
         "Its row shows only the name."},
        {K::NoVersion, "descriptor-no-version", error, "The update has no version",
         "It never counts as newer than what is installed."},
        {K::VersionOdd, "version-odd", warning, "The version does not have the usual form",
         "Letters, digits and \".+~:-\", starting with a digit, compare as expected. Others may "
         "not."},
        {K::VersionNumber, "version-number", error, "A number in the version is too large",
         "It counts as 0 when versions are compared."},
        {K::SizeNotNumber, "size-not-number", warning, "The size is not a whole number of bytes",
         "It is ignored, and the size is unknown."},
        {K::SizeNegative, "size-negative", warning, "The size is negative",
         "The size is unknown, and the progress of a batch is wrong."},
        {K::SizeMissing, "size-missing", notice, "The size of the archive is missing",
         "Progress cannot be shown, and free space cannot be checked in advance."},
        {K::BaseReleaseInvalid, "base-release-invalid", error,
         "The base release is not a valid regular expression", "It matches no system."},
        {K::BaseReleaseCostly, "base-release-costly", error,
         "The base release is too complex a regular expression", "It matches no system."},
        {K::BaseReleaseGlob, "base-release-glob", warning,
         "The base release looks like a wildcard but is a regular expression",
         "\"6.1*\" matches 6.1 and 6.11 but not 6.1.2. \"6\\.1.*\" matches all three."},
        {K::AllMisspelt, "all-misspelt", warning, "The word for everything is \"all\"",
         "This one counts as an ordinary name, which no system has."},
        {K::NotesMarkup, "notes-markup", notice, "The notes contain markup that is not shown",
         "The tags are removed and their text is kept. Scripts and styles are removed entirely."},
        {K::ArchiveUnreadable, "archive-unreadable", error,
         "The archive is damaged or is not what its suffix says",
         "It cannot be installed. If it describes itself, it is never offered."},

        {K::RepositoryEmpty, "repository-empty", notice, "The repository lists no files",
         "The section offers nothing."},
        {K::ListRefused, "list-refused", error,
         "The list of sums, or its signature, is missing or refused", "Nothing is offered."},
        {K::SumMissing, "sum-missing", warning, "The file is not in the list of sums",
         "It counts as missing."},
        {K::SumDiffers, "sum-differs", error, "The file does not have the sum that the list gives",
         "The update is not offered, or its installation is refused."},
        {K::SumWithoutFile, "sum-without-file", warning,
         "The list of sums names a file that does not exist", "Nothing needs the file."},
        {K::ArchiveWithoutDescriptor, "archive-without-descriptor", warning,
         "The archive has no descriptor", "It is not offered."},
        {K::DescriptorWithoutArchive, "descriptor-without-archive", warning,
         "The descriptor has no archive", "It is not read."},
        {K::ArchiveNotSelected, "archive-not-selected", notice,
         "No section has a filter that matches the archive", "It is not offered."},
        {K::ArchiveNoInstaller, "archive-no-installer", error, "No installer handles this suffix",
         "The update is offered, but installing it does nothing."},
        {K::DescriptorFormat, "descriptor-format", error,
         "Descriptors with this suffix are not supported", "The update is never offered."},
        {K::DebSuffix, "deb-not-installed", error,
         "The install script does not find the package by its file name",
         "The script installs ./*.deb, in lower case and not hidden. The package is downloaded but "
         "not installed."},
        {K::DescriptorNotFetched, "descriptor-not-fetched", error,
         "The descriptor cannot be fetched", "The update is never offered."},
        {K::DescriptorAmbiguous, "descriptor-ambiguous", warning,
         "The archive has several descriptors", "The first one in the listing is used."},
        {K::DescriptorShared, "descriptor-shared", warning, "Several archives share the descriptor",
         "They look like the same update."},
        {K::ListedTwice, "listed-twice", warning, "Several filters match the archive",
         "It is listed once for each of them."},
        {K::FileNamesCollide, "file-names-collide", error,
         "Archives in different directories have the same file name",
         "Chosen together, one overwrites the other."},
        {K::UpdateTwice, "update-twice", warning, "Another archive has the same name and version",
         "Both are offered."},
        {K::VersionsIncomparable, "versions-incomparable", warning,
         "Versions of the same update have no clear order",
         "Which one is newer depends on which is compared with which."},
        {K::InstallersMixed, "installers-mixed", warning,
         "The section mixes archives for different installers",
         "Chosen together, only those of the first one's kind are installed."},
        {K::ImageNotPickOne, "image-not-pick-one", warning,
         "The section offers full images but is not a PickOne section",
         "Chosen together with others, only the first image is installed."},
        {K::SizeDiffers, "size-differs", warning, "The archive has a different size",
         "Progress and the check of free space are wrong."},
        {K::PackageNameDiffers, "package-name-differs", error, "The package has a different name",
         "The update never counts as installed: the descriptor's name is looked up."},
        {K::PackageVersionDiffers, "package-version-differs", error,
         "The package has a different version",
         "The update is offered again after its installation, or never."},
        {K::OtherBaseRelease, "other-base-release", notice,
         "The update is for another base release", "It is not offered here."},
        {K::OtherArchitecture, "other-architecture", notice,
         "The update is for another architecture", "It is not offered here."},
        {K::OtherModel, "other-model", notice, "The update is for another model",
         "It is not offered here."},

        {K::MoreOfTheSame, "more-of-the-same", notice, "More findings of the same kind",
         "Only the first findings of a kind are listed for a file."},
    };
    return rules;
}

const RVLintRule &RVLintRule::of(RVLintKind kind)
{
    return all().at(static_cast<int>(kind));
}

QString RVLintRule::word(RVLintSeverity severity)
{
    switch (severity) {
    case RVLintSeverity::Error:
        return QStringLiteral("error");
    case RVLintSeverity::Warning:
        return QStringLiteral("warning");
    case RVLintSeverity::Notice:
        return QStringLiteral("notice");
    }
    return {};
}

QString RVLintFinding::toText() const
{
    const RVLintRule &rule = RVLintRule::of(kind);
    QString text = file;
    if (line > 0) {
        text += QLatin1Char(':') + QString::number(line);
    }
    text += QLatin1String(": ") + RVLintRule::word(rule.severity) + QLatin1String(": ")
        + QLatin1String(rule.message);
    if (!detail.isEmpty()) {
        text += QLatin1String(": ") + detail;
    }
    return RVText::safe(text) + QLatin1String(" [") + QLatin1String(rule.id) + QLatin1Char(']');
}

QJsonObject RVLintFinding::toJson() const
{
    const RVLintRule &rule = RVLintRule::of(kind);
    return {
        {QStringLiteral("file"), file},
        {QStringLiteral("line"), line > 0 ? QJsonValue(line) : QJsonValue()},
        {QStringLiteral("severity"), RVLintRule::word(rule.severity)},
        {QStringLiteral("kind"), QLatin1String(rule.id)},
        {QStringLiteral("message"), QLatin1String(rule.message)},
        {QStringLiteral("detail"), detail.isEmpty() ? QJsonValue() : QJsonValue(detail)},
    };
}

bool RVLintReport::isFull(RVLintKind kind, const QString &file) const
{
    return m_counts.value({file, static_cast<int>(kind)}) > mostOfOneKind;
}

void RVLintReport::add(RVLintKind kind, const QString &file, int line, const QString &detail)
{
    if (isFull(kind, file)) {
        return;
    }
    const QString whole =
        QStringLiteral("%1\n%2\n%3\n%4").arg(static_cast<int>(kind)).arg(line).arg(file, detail);
    if (m_known.contains(whole)) {
        return;
    }
    m_known.insert(whole);
    const int count = ++m_counts[{file, static_cast<int>(kind)}];
    if (count <= mostOfOneKind) {
        m_findings.append({kind, file, qMax(0, line), RVText::shortened(detail, longestDetail)});
    } else {
        m_findings.append({RVLintKind::MoreOfTheSame, file, qMax(0, line),
                           QLatin1String(RVLintRule::of(kind).id)});
    }
}

void RVLintReport::add(const RVLintReport &other, const QString &file)
{
    for (const RVLintFinding &finding : other.m_findings) {
        if (file.isEmpty() || finding.file == file) {
            add(finding.kind, finding.file, finding.line, finding.detail);
        }
    }
}

QVector<RVLintFinding> RVLintReport::sorted() const
{
    QVector<RVLintFinding> findings = m_findings;
    std::stable_sort(findings.begin(), findings.end(),
                     [](const RVLintFinding &a, const RVLintFinding &b) {
                         return std::tie(a.file, a.line, a.kind) < std::tie(b.file, b.line, b.kind);
                     });
    return findings;
}

int RVLintReport::count(RVLintSeverity severity) const
{
    return static_cast<int>(
        std::count_if(m_findings.cbegin(), m_findings.cend(), [severity](const auto &finding) {
            return RVLintRule::of(finding.kind).severity == severity;
        }));
}

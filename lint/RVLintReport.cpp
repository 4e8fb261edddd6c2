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
         "A definition file like this keeps the program from starting; a descriptor says nothing."},
        {K::XmlBeyondBounds, "xml-beyond-bounds", error, "The document is refused",
         "Documents that would take too much memory are not read, as if they were not XML."},
        {K::ElementUnknown, "element-unknown", warning, "Nothing reads this element",
         "It is passed over; elements that stand in it count as if it were not there."},
        {K::ElementRepeated, "element-repeated", warning,
         "The element is there already; only the last one counts", "The earlier ones are ignored."},
        {K::FieldInField, "field-in-field", error,
         "The element stands in another one and counts as a field of its own",
         "Elements are found by name at any depth: it overrides the real field or adds to it."},
        {K::MarkupInValue, "markup-in-value", error,
         "The value holds markup, a comment, CDATA or an escaped character",
         "Values are taken as they are written: \"&amp;\" stays \"&amp;\"."},
        {K::BlankAround, "blank-around", error, "There are blanks or line breaks around the value",
         "Nothing is trimmed: they are part of the value, which then fits nothing."},
        {K::LangAttribute, "lang-attribute", warning,
         "The attribute is not read; \"xml:lang\" is meant", "The text counts as English."},
        {K::LangUnknown, "lang-unknown", warning,
         "No system calls its language so; \"de\" or \"de_CH\" is the form",
         "The text is never chosen, unless there is no better one."},
        {K::LangRepeated, "lang-repeated", warning, "There is a text in this language already",
         "The last one counts. A text without a language is English."},
        {K::NoDefaultLanguage, "no-default-language", warning, "There is no English text",
         "Whoever's language is missing sees any of the others."},
        {K::TextTooLong, "text-too-long", warning, "The text is very long",
         "Notes are cut at 64 Ki characters, and no table has room for long names."},
        {K::TextControls, "text-controls", warning,
         "The text holds control characters or changes the direction of reading",
         "ravelctl shows their codes; the window shows them as they are."},

        {K::FileNotRead, "file-not-read", notice,
         "The file looks like a definition file, but is not read",
         "Only files whose names end in \".xml\" and do not begin with a full stop are."},
        {K::FileUnreadable, "file-unreadable", error, "The file cannot be read",
         "It is passed over, and its sections are missing."},
        {K::FileSymlink, "file-symlink", notice, "The file is a symbolic link",
         "The program, which may be root's, trusts whatever it leads to."},
        {K::FileWritable, "file-writable", error, "Everybody can write here",
         "Whoever does decides where root's software comes from."},
        {K::DefinitionRoot, "definition-root", error, "The root element is not repository_list",
         "The program does not start."},
        {K::NoRepository, "no-repository", warning, "No repository is defined here",
         "The file adds no section; without any section the program does not start."},
        {K::RepositoryNested, "repository-nested", error,
         "The repository is not a child of repository_list", "It is passed over."},
        {K::NoTitle, "no-title", warning, "The section has no title", "Its heading is empty."},
        {K::NoDescription, "no-description", notice, "The section has no description",
         "There is no text below its heading."},
        {K::NoLocationLabel, "no-location-label", notice, "The location has no uri_description",
         "Its row on the options page and its lines in the log have no name."},
        {K::NoSettingsKey, "no-settings-key", warning, "There is no settings_key",
         "A location that a user sets is forgotten at the end."},
        {K::SettingsKeyTwice, "settings-key-twice", error,
         "Another section has the same settings_key",
         "Both keep their location in the same place: setting one moves the other."},
        {K::SettingsKeyReserved, "settings-key-reserved", error,
         "The settings_key lies in the group of the proxy settings",
         "The location and the proxies overwrite each other."},
        {K::SettingsKeyNumber, "settings-key-number", notice, "The settings_key is a number",
         "ravelctl takes it for the index of a section first."},
        {K::NoLocation, "no-location", warning, "There is no default_uri",
         "The section is hidden until a user sets a location."},
        {K::LocationInvalid, "location-invalid", error, "The default_uri is no valid address",
         "The section is hidden or cannot be listed."},
        {K::LocationScheme, "location-scheme", error,
         "The scheme of the default_uri is not http, https, ftp or file",
         "Each refresh of the section fails."},
        {K::LocationCapitals, "location-capitals", warning,
         "The scheme of the default_uri is written in capitals",
         "It is read in small letters here; programs that take it as it is find no backend."},
        {K::LocationRelative, "location-relative", warning, "The default_uri is relative",
         "What it means depends on the directory that the program was started in."},
        {K::LocationPassword, "location-password", warning, "The default_uri holds a password",
         "Everybody who can read the file knows it; an image's goes into the device."},
        {K::SelectorUnknown, "selector-unknown", warning,
         "The selector_type is neither PickOne nor PickAny",
         "Any number of updates can be chosen."},
        {K::IconUnknown, "icon-unknown", warning, "There is no standard icon of this name",
         "The section has no icon."},
        {K::NoIcon, "no-icon", notice, "The section names no icon", "It has none."},
        {K::FilterSps, "filter-sps", warning, "The value of filter_sps is neither yes nor no",
         "It counts as no: service packs that are installed are offered again."},
        {K::NoFilter, "no-filter", error, "The section has no filter with an archive_pattern",
         "It never lists anything."},
        {K::FilterWithoutArchive, "filter-without-archive", error,
         "The filter_pattern has no archive_pattern", "The whole filter is passed over."},
        {K::PatternOutsideFilter, "pattern-outside-filter", error,
         "The pattern does not stand in a filter_pattern", "It is passed over."},
        {K::PatternInvalid, "pattern-invalid", error, "The pattern cannot be compiled",
         "It matches nothing."},
        {K::PatternCostly, "pattern-costly", error, "Compiling the pattern takes very long",
         "The program may stand still at its start; lint does not refresh such a system."},
        {K::PatternMatchesNothing, "pattern-matches-nothing", warning,
         "The pattern matches no file of the repository", "The filter gives no update."},
        {K::TrustUnclear, "trust-unclear", error,
         "What the section asks of its repository makes no sense",
         "The section is an error; it never counts as one without a signature."},
        {K::KeyringUnusable, "keyring-unusable", error, "The keyring cannot be used",
         "The section is an error until it can."},
        {K::SumsNotSigned, "sums-not-signed", notice, "The list of sums is not signed",
         "It finds damage; whoever has the server can change it together with the files."},

        {K::DescriptorRoot, "descriptor-root", error,
         "The root element is neither update_data nor xar",
         "The descriptor says nothing, and its update is never offered."},
        {K::NoSubdocument, "no-subdocument", error, "The description of a service pack is missing",
         "The update has no name and no version, or is never offered."},
        {K::NoThinClient, "descriptor-no-thin-client", error, "There is no thin_client",
         "The update is never offered; \"all\" offers it to every model."},
        {K::NoArchitecture, "descriptor-no-architecture", notice, "There is no architecture",
         "The update counts as one for all."},
        {K::NoName, "descriptor-no-name", error, "The update has no name",
         "It never counts as installed, and nothing can refer to it."},
        {K::NamePerLanguage, "name-per-language", warning,
         "The name of the update differs between languages",
         "The English name decides whether it counts as installed."},
        {K::NoUpdateTitle, "descriptor-no-title", warning, "The update has no title",
         "Its row shows the name alone."},
        {K::NoVersion, "descriptor-no-version", error, "The update has no version",
         "It never counts as newer than what is installed."},
        {K::VersionOdd, "version-odd", warning, "The version is not of the usual form",
         "Letters, digits and \".+~:-\", a digit first, compare as expected; others may not."},
        {K::VersionNumber, "version-number", error, "A number in the version is too large",
         "It counts as 0 when versions are compared."},
        {K::SizeNotNumber, "size-not-number", warning, "The size is not a whole number of bytes",
         "It is passed over; the size is unknown."},
        {K::SizeNegative, "size-negative", warning, "The size is negative",
         "The size is unknown, and the progress of a batch is wrong."},
        {K::SizeMissing, "size-missing", notice, "The size of the archive is not given",
         "Progress cannot be shown, and free space cannot be checked beforehand."},
        {K::BaseReleaseInvalid, "base-release-invalid", error,
         "The base release is no valid regular expression", "It fits no system."},
        {K::BaseReleaseCostly, "base-release-costly", error,
         "The base release is a regular expression that is too complex", "It fits no system."},
        {K::BaseReleaseGlob, "base-release-glob", warning,
         "The base release looks like a file pattern, but is a regular expression",
         "\"6.1*\" fits 6.1 and 6.11, and not 6.1.2; \"6\\.1.*\" fits both."},
        {K::AllMisspelt, "all-misspelt", warning, "The word for everything is \"all\"",
         "Taken as a name of its own, which no system has."},
        {K::NotesMarkup, "notes-markup", notice, "The notes hold markup that is not shown",
         "The element is left out and its text kept; of scripts and styles nothing is."},
        {K::ArchiveUnreadable, "archive-unreadable", error,
         "The archive is damaged or not of the kind that its name says",
         "It cannot be installed; an update that describes itself says nothing."},

        {K::RepositoryEmpty, "repository-empty", notice, "The repository lists no file",
         "The section offers nothing."},
        {K::ListRefused, "list-refused", error,
         "The list of sums, or its signature, is missing or refused", "Nothing is offered."},
        {K::SumMissing, "sum-missing", warning, "The list of sums does not have the file",
         "It counts as if it were not there."},
        {K::SumDiffers, "sum-differs", error, "The file is not the one that the list of sums has",
         "The update is not offered, or its installation is refused."},
        {K::SumWithoutFile, "sum-without-file", warning,
         "The list of sums has a file that is not there", "Nothing misses it."},
        {K::ArchiveWithoutDescriptor, "archive-without-descriptor", warning,
         "No descriptor belongs to the archive", "It is not offered."},
        {K::DescriptorWithoutArchive, "descriptor-without-archive", warning,
         "No archive belongs to the descriptor", "It is not read."},
        {K::ArchiveNotSelected, "archive-not-selected", notice,
         "No filter of a section picks the archive", "It is not offered."},
        {K::ArchiveNoInstaller, "archive-no-installer", error,
         "Nothing installs archives of this suffix",
         "The update is offered, but installing it does nothing."},
        {K::DescriptorFormat, "descriptor-format", error,
         "Nothing reads descriptors of this suffix", "The update is never offered."},
        {K::DebSuffix, "deb-not-installed", error,
         "The package's file name is not one that the install script finds",
         "The script installs ./*.deb, in small letters and not hidden: the package is downloaded "
         "and left out."},
        {K::DescriptorNotFetched, "descriptor-not-fetched", error,
         "The descriptor cannot be fetched", "The update is never offered."},
        {K::DescriptorAmbiguous, "descriptor-ambiguous", warning,
         "Several descriptors belong to one archive", "The first of the listing is taken."},
        {K::DescriptorShared, "descriptor-shared", warning, "Several archives have one descriptor",
         "They look like the same update."},
        {K::ListedTwice, "listed-twice", warning, "Several filters pick the archive",
         "It stands in the table as often."},
        {K::FileNamesCollide, "file-names-collide", error,
         "Archives of different directories have the same file name",
         "Chosen together, one is downloaded over the other."},
        {K::UpdateTwice, "update-twice", warning, "Another archive has the same name and version",
         "Both are offered."},
        {K::VersionsIncomparable, "versions-incomparable", warning,
         "The versions of one update cannot be put in order",
         "Which one is newer depends on which is asked first."},
        {K::InstallersMixed, "installers-mixed", warning,
         "The section mixes archives of several installers",
         "Chosen together, only those of the first one's kind are installed."},
        {K::ImageNotPickOne, "image-not-pick-one", warning,
         "The section offers full images, but is not of the type PickOne",
         "Chosen together with others, only the first image is installed."},
        {K::SizeDiffers, "size-differs", warning, "The archive has another size",
         "Progress, and the space that is asked for beforehand, are wrong."},
        {K::PackageNameDiffers, "package-name-differs", error,
         "The package calls itself differently",
         "What is installed is asked for under the descriptor's name: it is never found."},
        {K::PackageVersionDiffers, "package-version-differs", error,
         "The package has another version",
         "The update is offered again once it is installed, or not at all."},
        {K::OtherBaseRelease, "other-base-release", notice,
         "The update is not for the base release of this system", "It is not offered here."},
        {K::OtherArchitecture, "other-architecture", notice,
         "The update is not for the architecture of this system", "It is not offered here."},
        {K::OtherModel, "other-model", notice, "The update is not for the model of this system",
         "It is not offered here."},

        {K::MoreOfTheSame, "more-of-the-same", notice, "There is more of the same",
         "Of one kind in one file only the first are listed."},
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

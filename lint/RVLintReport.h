// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QHash>
#include <QJsonObject>
#include <QSet>
#include <QString>
#include <QVector>

enum class RVLintSeverity { Error, Warning, Notice };

/// What `lint` finds. The order is the one in which they are listed.
enum class RVLintKind {
    // Any XML document
    XmlNotWellFormed,
    XmlBeyondBounds,
    ElementUnknown,
    ElementRepeated,
    FieldInField,
    MarkupInValue,
    BlankAround,
    LangAttribute,
    LangUnknown,
    LangRepeated,
    NoDefaultLanguage,
    TextTooLong,
    TextControls,
    // Definition files
    FileNotRead,
    FileUnreadable,
    FileSymlink,
    FileWritable,
    DefinitionRoot,
    NoRepository,
    RepositoryNested,
    NoTitle,
    NoDescription,
    NoLocationLabel,
    NoSettingsKey,
    SettingsKeyTwice,
    SettingsKeyReserved,
    SettingsKeyNumber,
    NoLocation,
    LocationInvalid,
    LocationScheme,
    LocationCapitals,
    LocationRelative,
    LocationPassword,
    SelectorUnknown,
    IconUnknown,
    NoIcon,
    FilterSps,
    NoFilter,
    FilterWithoutArchive,
    PatternOutsideFilter,
    PatternInvalid,
    PatternCostly,
    PatternMatchesNothing,
    TrustUnclear,
    KeyringUnusable,
    SumsNotSigned,
    // Descriptors
    DescriptorRoot,
    NoSubdocument,
    NoThinClient,
    NoArchitecture,
    NoName,
    NamePerLanguage,
    NoUpdateTitle,
    NoVersion,
    VersionOdd,
    VersionNumber,
    SizeNotNumber,
    SizeNegative,
    SizeMissing,
    BaseReleaseInvalid,
    BaseReleaseCostly,
    BaseReleaseGlob,
    AllMisspelt,
    NotesMarkup,
    ArchiveUnreadable,
    // Repositories
    RepositoryEmpty,
    ListRefused,
    SumMissing,
    SumDiffers,
    SumWithoutFile,
    ArchiveWithoutDescriptor,
    DescriptorWithoutArchive,
    ArchiveNotSelected,
    ArchiveNoInstaller,
    DescriptorFormat,
    DebSuffix,
    DescriptorNotFetched,
    DescriptorAmbiguous,
    DescriptorShared,
    ListedTwice,
    FileNamesCollide,
    UpdateTwice,
    VersionsIncomparable,
    InstallersMixed,
    ImageNotPickOne,
    SizeDiffers,
    PackageNameDiffers,
    PackageVersionDiffers,
    OtherBaseRelease,
    OtherArchitecture,
    OtherModel,
    // The report itself
    MoreOfTheSame,
};

/// What is said of a kind of defect.
struct RVLintRule {
    RVLintKind kind;
    /// Stable: scripts know it.
    const char *id;
    RVLintSeverity severity;
    /// A sentence without its full stop.
    const char *message;
    /// What the program makes of it.
    const char *effect;

    static const QVector<RVLintRule> &all();
    static const RVLintRule &of(RVLintKind kind);
    /// "error", "warning" or "notice".
    static QString word(RVLintSeverity severity);
};

struct RVLintFinding {
    RVLintKind kind;
    /// A path, or an address without its password.
    QString file;
    /// From 1; 0 where there is none.
    int line = 0;
    /// What it is about; may be empty.
    QString detail;

    /// "file:line: severity: message: detail [kind]"; safe for a terminal.
    QString toText() const;
    QJsonObject toJson() const;
};

/// The findings of one run. Of one kind in one file only the first are kept.
class RVLintReport
{
public:
    static constexpr int mostOfOneKind = 20;

    void add(RVLintKind kind, const QString &file, int line = 0, const QString &detail = {});
    /// Whether more of a kind in a file is passed over.
    bool isFull(RVLintKind kind, const QString &file) const;
    /// What another report says, of one file or of all.
    void add(const RVLintReport &other, const QString &file = {});
    /// By file, line and kind.
    QVector<RVLintFinding> sorted() const;
    int count(RVLintSeverity severity) const;

private:
    QVector<RVLintFinding> m_findings;
    QHash<QPair<QString, int>, int> m_counts;
    /// Sections that share a location find the same.
    QSet<QString> m_known;
};

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "lint/RVLintRepository.h"

#include "core/OSInfoBaseClass.h"
#include "core/RVUrl.h"
#include "core/XarToc.h"
#include "descriptor/DataXML.h"
#include "descriptor/DescriptorDeb.h"
#include "descriptor/DescriptorXML.h"
#include "descriptor/XmlCheck.h"
#include "lint/RVLintDescriptor.h"
#include "repository/RVEligibility.h"
#include "repository/RVFilter.h"
#include "repository/RVRepDesc.h"
#include "repository/RVRepository.h"
#include "repository/RVTrust.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <fnmatch.h>

namespace
{

/// More versions of one update are not compared with each other.
constexpr int mostVersions = 100;

QUrl withoutLogin(const QUrl &url)
{
    return url.adjusted(QUrl::RemoveUserInfo);
}

bool hasSuffix(const QUrl &url, const char *suffix)
{
    return QFileInfo(url.path()).suffix().compare(QLatin1String(suffix), Qt::CaseInsensitive) == 0;
}

/// A regular file of this system; empty for anything else.
QString localFile(const QUrl &url)
{
    const QString path = url.isLocalFile() ? url.toLocalFile() : QString();
    return !path.isEmpty() && QFileInfo(path).isFile() ? path : QString();
}

/// Whether the script that installs packages finds this one in its directory.
bool isInstalledByScript(const ArchiveGeneric &archive, const QUrl &url)
{
    static const QRegularExpression word(QStringLiteral("^dpkg .* \\./(\\S+)$"),
                                         QRegularExpression::MultilineOption);
    const QString script = QString::fromLatin1(archive.installCommand().script);
    const QString pattern = word.match(script).captured(1);
    return pattern.isEmpty()
        || ::fnmatch(QFile::encodeName(pattern).constData(),
                     QFile::encodeName(RVUrl::fileName(url)).constData(), FNM_PERIOD)
        == 0;
}

QRegExp compiled(const QString &pattern)
{
    return QRegExp(pattern, Qt::CaseSensitive, QRegExp::RegExp);
}

/// The one that decides whether the update is installed.
QString nameOf(const RVData &entry)
{
    return entry.descriptor() ? DataXML::plainText(entry.descriptor()->name(QStringLiteral("en")))
                              : QString();
}

QString versionOf(const RVData &entry)
{
    return entry.descriptor() ? entry.descriptor()->version().toString() : QString();
}

} // namespace

RVLintRepository::RVLintRepository(const RVRepository &repository,
                                   const RVLintDefinition::Section &section, RVLintReport *report)
    : m_repository(repository)
    , m_section(section)
    , m_report(report)
{
}

QString RVLintRepository::fileOf(const QUrl &url)
{
    return url.isLocalFile() ? url.toLocalFile() : RVUrl::shown(url);
}

void RVLintRepository::checkDownload(QNetworkReply *reply)
{
    const QUrl url = withoutLogin(reply->request().url());
    if (reply->error() == QNetworkReply::NoError && DescriptorXML(url).urlIsHandled()) {
        m_checked.insert(url);
        RVLintDescriptor(fileOf(url), m_report).checkXml(reply->peek(XmlCheck::maxBytes + 1));
    }
}

void RVLintRepository::setSiblings(const QVector<RVLintDefinition::Section> &siblings)
{
    for (const RVLintDefinition::Section &sibling : siblings) {
        use(sibling);
    }
}

void RVLintRepository::use(const RVLintDefinition::Section &section)
{
    const RVRepDesc &definition = *section.definition;
    for (int i = 0; i < definition.archivePatterns.size(); ++i) {
        const RVFilter filter(definition.archivePatterns.at(i),
                              definition.descriptorPatterns.at(i));
        QList<RVData> entries;
        filter.filterList(m_repository.listing(), entries);
        use(entries);
        for (const XUrlInfo &item : m_repository.listing()) {
            if (filter.selects(item)) {
                m_selected.insert(RVFilter::urlOf(item));
            }
        }
    }
}

void RVLintRepository::use(const QList<RVData> &entries)
{
    for (const RVData &entry : entries) {
        m_used.insert(entry.archiveUrl());
        m_used.insert(entry.descriptorUrl());
    }
}

void RVLintRepository::check(const QHash<QUrl, QString> &notFetched, const OSInfoBaseClass *system,
                             const std::function<bool()> &isOver)
{
    if (!checkTrust()) {
        return;
    }
    const QList<XUrlInfo> &listing = m_repository.listing();
    const bool isEmpty = std::all_of(listing.cbegin(), listing.cend(), [](const XUrlInfo &item) {
        return item.isDir();
    });
    if (isEmpty) {
        m_report->add(RVLintKind::RepositoryEmpty, fileOf(m_repository.url()));
        return;
    }
    use(m_repository.entries());
    checkPatterns();
    checkSums();
    checkListing();
    checkEntries(notFetched, system, isOver);
    checkTogether();
    checkVersions();
    checkInstallers();
}

// False where nothing of it is used.
bool RVLintRepository::checkTrust()
{
    const RVTrustFault &fault = m_repository.trustFault();
    if (fault.isSet() && fault.kind != RVTrustFault::Definition
        && fault.kind != RVTrustFault::Keyring) {
        m_report->add(RVLintKind::ListRefused, fileOf(m_repository.url()), 0, fault.text);
    }
    return !fault.isSet();
}

void RVLintRepository::checkSums()
{
    const RVTrust *trust = m_repository.trust().data();
    if (!trust) {
        return;
    }
    QSet<QByteArray> missing;
    for (auto sum = trust->list().sums.keyBegin(); sum != trust->list().sums.keyEnd(); ++sum) {
        missing.insert(*sum);
    }
    for (const XUrlInfo &item : m_repository.listing()) {
        const QUrl url = RVFilter::urlOf(item);
        if (item.isDir() || !trust->isOwn(url)) {
            continue;
        }
        const QByteArray name = RVChecksums::nameOf(url);
        missing.remove(name);
        if (!trust->isListed(url) && url != trust->listUrl() && url != trust->signatureUrl()
            && (m_repository.selects(item) || isDescriptor(item))) {
            m_report->add(RVLintKind::SumMissing, fileOf(url));
        }
    }
    QList<QByteArray> names = missing.values();
    std::sort(names.begin(), names.end());
    for (const QByteArray &name : qAsConst(names)) {
        m_report->add(RVLintKind::SumWithoutFile, fileOf(trust->listUrl()), 0,
                      QFile::decodeName(name));
    }
}

void RVLintRepository::checkPattern(const QString &pattern, int line)
{
    const RVFilter filter(pattern, QString());
    const QList<XUrlInfo> &listing = m_repository.listing();
    if (std::none_of(listing.cbegin(), listing.cend(), [&filter](const XUrlInfo &item) {
            return filter.selects(item);
        })) {
        m_report->add(RVLintKind::PatternMatchesNothing, m_section.file, line, pattern);
    }
}

void RVLintRepository::checkPatterns()
{
    const RVRepDesc &definition = *m_section.definition;
    for (int i = 0; i < definition.archivePatterns.size(); ++i) {
        const QString archive = definition.archivePatterns.at(i);
        const QString descriptor = definition.descriptorPatterns.at(i);
        checkPattern(archive, m_section.archiveLines.value(i));
        if (descriptor != archive) {
            checkPattern(descriptor, m_section.descriptorLines.value(i));
        }
    }
}

void RVLintRepository::checkListing()
{
    const RVRepDesc &definition = *m_section.definition;
    QSet<QUrl> paired;
    for (int i = 0; i < definition.archivePatterns.size(); ++i) {
        if (definition.archivePatterns.at(i) != definition.descriptorPatterns.at(i)) {
            checkPairs(compiled(definition.archivePatterns.at(i)),
                       compiled(definition.descriptorPatterns.at(i)), &paired);
        }
    }
    for (const XUrlInfo &item : m_repository.listing()) {
        const QUrl url = RVFilter::urlOf(item);
        const bool isMissed = m_repository.trust() && !m_repository.trust()->isListed(url);
        if (item.isDir() || m_used.contains(url) || paired.contains(url) || isMissed) {
            continue;
        }
        if (m_repository.selects(item)) {
            m_report->add(RVLintKind::ArchiveWithoutDescriptor, fileOf(url));
        } else if (isDescriptor(item)) {
            m_report->add(RVLintKind::DescriptorWithoutArchive, fileOf(url));
        } else if (ArchiveGeneric::isHandled(url) && !m_selected.contains(url)) {
            m_report->add(RVLintKind::ArchiveNotSelected, fileOf(url));
        }
    }
}

bool RVLintRepository::isDescriptor(const XUrlInfo &item) const
{
    const QStringList &patterns = m_section.definition->descriptorPatterns;
    return std::any_of(patterns.cbegin(), patterns.cend(), [&item](const QString &pattern) {
        return RVFilter(pattern, QString()).selects(item);
    });
}

void RVLintRepository::checkPairs(const QRegExp &archive, const QRegExp &descriptor,
                                  QSet<QUrl> *paired)
{
    const RVFilter archives(archive, descriptor);
    const RVFilter descriptors(descriptor, archive);
    QSet<QString> cores;
    for (const XUrlInfo &item : m_repository.listing()) {
        if (archives.selects(item)) {
            cores.insert(archives.corename(item.name(), archive));
        }
    }
    QHash<QString, QString> firsts;
    for (const XUrlInfo &item : m_repository.listing()) {
        if (!descriptors.selects(item) || archives.selects(item)) {
            continue;
        }
        const QString core = descriptors.corename(item.name(), descriptor);
        const QString first = firsts.value(core, item.name());
        firsts.insert(core, first);
        if (first != item.name() && cores.contains(core)) {
            const QUrl url = RVFilter::urlOf(item);
            paired->insert(url);
            m_report->add(RVLintKind::DescriptorAmbiguous, fileOf(url), 0,
                          RVUrl::fileName(QUrl(first)));
        }
    }
}

void RVLintRepository::checkEntries(const QHash<QUrl, QString> &notFetched,
                                    const OSInfoBaseClass *system,
                                    const std::function<bool()> &isOver)
{
    QHash<QUrl, QString> reasons;
    for (auto it = notFetched.cbegin(); it != notFetched.cend(); ++it) {
        reasons.insert(withoutLogin(it.key()), it.value());
    }
    QSet<QUrl> seen;
    for (const RVData &entry : m_repository.entries()) {
        if (isOver()) {
            return;
        }
        if (seen.contains(entry.archiveUrl())) {
            m_report->add(RVLintKind::ListedTwice, fileOf(entry.archiveUrl()));
            continue;
        }
        seen.insert(entry.archiveUrl());
        checkDescriptor(entry, reasons);
        checkArchive(entry);
        if (system) {
            checkFits(entry, *system);
        }
    }
}

void RVLintRepository::checkDescriptor(const RVData &entry, const QHash<QUrl, QString> &failures)
{
    const QUrl &url = entry.descriptorUrl();
    const QString file = fileOf(url);
    const auto &descriptor = entry.descriptor();
    if (!descriptor || !descriptor->urlIsHandled()) {
        m_report->add(RVLintKind::DescriptorFormat, file);
        return;
    }
    if (entry.trust && entry.trust->isRefused(url)) {
        m_report->add(RVLintKind::SumDiffers, file);
        return;
    }
    if (m_checked.contains(withoutLogin(url))) {
        return;
    }
    RVLintDescriptor lint(file, m_report);
    if (failures.contains(withoutLogin(url))) {
        m_report->add(RVLintKind::DescriptorNotFetched, file, 0, failures.value(withoutLogin(url)));
    } else if (!localFile(url).isEmpty() && !DescriptorXML(url).urlIsHandled()) {
        lint.checkFile(localFile(url), true);
    } else if (descriptor->isUnderstood()) {
        lint.checkFields(*descriptor);
    } else {
        m_report->add(DescriptorXML(url).urlIsHandled() ? RVLintKind::DescriptorNotFetched
                                                        : RVLintKind::ArchiveUnreadable,
                      file);
    }
}

void RVLintRepository::checkArchive(const RVData &entry)
{
    const QUrl &url = entry.archiveUrl();
    const QString file = fileOf(url);
    if (!entry.archive() || !entry.archive()->urlIsHandled()) {
        m_report->add(RVLintKind::ArchiveNoInstaller, file);
        return;
    }
    if (!isInstalledByScript(*entry.archive(), url)) {
        m_report->add(RVLintKind::DebSuffix, file);
    }
    const QString path = localFile(url);
    if (path.isEmpty() || entry.descriptorUrl() == url || !entry.descriptor()) {
        return;
    }
    QFile listed(path);
    if (entry.trust && listed.open(QIODevice::ReadOnly)
        && entry.trust->judge(url, &listed).isSet()) {
        m_report->add(RVLintKind::SumDiffers, file);
        return;
    }
    const qint64 size = QFileInfo(path).size();
    const qint64 said = entry.descriptor()->size();
    if (said >= 0 && said != size) {
        m_report->add(
            RVLintKind::SizeDiffers, file, 0,
            QStringLiteral("%1 bytes, not %2").arg(QString::number(size), QString::number(said)));
    }
    if (hasSuffix(url, "deb")) {
        checkPackage(entry, path);
    } else if (hasSuffix(url, "xar")) {
        QFile archive(path);
        XarToc table;
        if (!archive.open(QIODevice::ReadOnly) || !table.read(&archive)) {
            m_report->add(RVLintKind::ArchiveUnreadable, file);
        }
    }
}

void RVLintRepository::checkPackage(const RVData &entry, const QString &path)
{
    const QString file = fileOf(entry.archiveUrl());
    QFile archive(path);
    DescriptorDeb package(entry.archiveUrl());
    if (!package.read(&archive)) {
        m_report->add(RVLintKind::ArchiveUnreadable, file);
        return;
    }
    const auto differs = [](const QString &own, const QString &said) {
        return !said.trimmed().isEmpty() && own != DataXML::plainText(said).trimmed();
    };
    const auto detail = [](const QString &own, const QString &said) {
        return QStringLiteral("%1, not %2").arg(own, said);
    };
    const QString name = package.name({});
    if (differs(name, nameOf(entry))) {
        m_report->add(RVLintKind::PackageNameDiffers, file, 0, detail(name, nameOf(entry)));
    }
    const QString version = package.version().toString();
    if (differs(version, versionOf(entry))) {
        m_report->add(RVLintKind::PackageVersionDiffers, file, 0,
                      detail(version, versionOf(entry)));
    }
}

void RVLintRepository::checkFits(const RVData &entry, const OSInfoBaseClass &system)
{
    const QString file = fileOf(entry.descriptorUrl());
    const auto &descriptor = entry.descriptor();
    const auto list = [](const QStringList &values) {
        return values.join(QLatin1String(", "));
    };
    switch (eligibility(entry, system, m_section.definition->filterSps)) {
    case RVEligibility::OtherBaseRelease:
        m_report->add(RVLintKind::OtherBaseRelease, file, 0, list(descriptor->baseReleases()));
        break;
    case RVEligibility::OtherArchitecture:
        m_report->add(RVLintKind::OtherArchitecture, file, 0, list(descriptor->architectureList()));
        break;
    case RVEligibility::OtherThinClient:
        // That there is none is another matter.
        if (!descriptor->thinClientList().isEmpty()) {
            m_report->add(RVLintKind::OtherModel, file, 0, list(descriptor->thinClientList()));
        }
        break;
    default:
        break;
    }
}

void RVLintRepository::checkTogether()
{
    QHash<QUrl, QUrl> archiveOf;
    QHash<QString, QUrl> byFileName;
    for (const RVData &entry : m_repository.entries()) {
        const QUrl &archive = entry.archiveUrl();
        const QUrl other = archiveOf.value(entry.descriptorUrl(), archive);
        if (other != archive) {
            m_report->add(RVLintKind::DescriptorShared, fileOf(entry.descriptorUrl()), 0,
                          RVUrl::fileName(archive));
        }
        archiveOf.insert(entry.descriptorUrl(), archive);
        const QUrl namesake = byFileName.value(RVUrl::fileName(archive), archive);
        if (namesake != archive) {
            m_report->add(RVLintKind::FileNamesCollide, fileOf(archive), 0, fileOf(namesake));
        }
        byFileName.insert(RVUrl::fileName(archive), archive);
    }
}

void RVLintRepository::checkVersions()
{
    QHash<QString, QVector<RVData>> byName;
    for (const RVData &entry : m_repository.entries()) {
        QVector<RVData> &same = byName[nameOf(entry)];
        const bool isSaid = !nameOf(entry).isEmpty() && !versionOf(entry).isEmpty();
        if (!isSaid || same.size() >= mostVersions) {
            continue;
        }
        for (const RVData &other : qAsConst(same)) {
            if (other.archiveUrl() == entry.archiveUrl()
                || other.descriptorUrl() == entry.descriptorUrl()) {
                continue;
            }
            const VersionString a = entry.descriptor()->version();
            const VersionString b = other.descriptor()->version();
            const int forth = a.compare(b, Qt::CaseSensitive);
            const int back = b.compare(a, Qt::CaseSensitive);
            if (a.toString() == b.toString()) {
                m_report->add(RVLintKind::UpdateTwice, fileOf(entry.descriptorUrl()), 0,
                              fileOf(other.archiveUrl()));
            } else if (forth == 0 || (forth > 0) == (back > 0)) {
                m_report->add(RVLintKind::VersionsIncomparable, fileOf(entry.descriptorUrl()), 0,
                              QStringLiteral("%1 and %2").arg(a.toString(), b.toString()));
            }
        }
        same.append(entry);
    }
}

void RVLintRepository::checkInstallers()
{
    if (m_section.definition->picksOne()) {
        return;
    }
    bool hasImage = false;
    QSet<QString> programs;
    for (const RVData &entry : m_repository.entries()) {
        if (entry.archive() && entry.archive()->urlIsHandled()) {
            hasImage = hasImage || !entry.archive()->useExtract();
            programs.insert(entry.archive()->installCommand().program);
        }
    }
    const QString file = fileOf(m_repository.url());
    if (programs.size() > 1) {
        m_report->add(RVLintKind::InstallersMixed, file);
    }
    if (hasImage) {
        m_report->add(RVLintKind::ImageNotPickOne, file);
    }
}

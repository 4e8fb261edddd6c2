// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/RVCtlOffers.h"

#include "cli/RVCtlAccess.h"
#include "cli/RVCtlDeadline.h"
#include "cli/RVCtlMessages.h"
#include "cli/RVCtlText.h"
#include "cli/RVCtlTrust.h"
#include "core/RVOrigin.h"
#include "core/RVText.h"
#include "core/RVUrl.h"
#include "descriptor/DataXML.h"
#include "repository/RVExplain.h"
#include "repository/RVRepDesc.h"
#include "repository/RVRepository.h"

#include <QCommandLineParser>
#include <QJsonArray>
#include <QSet>

#include <algorithm>

namespace
{

bool isRemote(const QUrl &url)
{
    return !url.isRelative() && !url.isLocalFile();
}

/// NAME, or NAME=VERSION, where NAME is the one that is shown or, in every language, the English
/// one.
bool isNamed(const RVCtlOffers::Entry &entry, const QString &argument)
{
    if (!entry.description) {
        return false;
    }
    const QStringList names{entry.name(), entry.englishName()};
    return std::any_of(names.cbegin(), names.cend(), [&](const QString &name) {
        return argument == name || argument == name + QLatin1Char('=') + entry.version();
    });
}

} // namespace

QString RVCtlOffers::Entry::name() const
{
    return description ? DataXML::plainText(description->name({})) : QString();
}

QString RVCtlOffers::Entry::englishName() const
{
    return description ? DataXML::plainText(description->name(QStringLiteral("en"))) : QString();
}

QString RVCtlOffers::Entry::title() const
{
    return description ? DataXML::plainText(description->title({})) : QString();
}

QString RVCtlOffers::Entry::version() const
{
    return description ? DataXML::plainText(description->version().toString()) : QString();
}

QString RVCtlOffers::Entry::installed() const
{
    if (proposal.current == RVProposal::NotConfigured) {
        return QStringLiteral("not configured");
    }
    return proposal.installed.isEmpty() ? QStringLiteral("none") : proposal.installed;
}

QString RVCtlOffers::Entry::state() const
{
    if (!description || proposal.upToDate || isRunning) {
        return description ? QStringLiteral("current") : QString();
    }
    if (proposal.current == RVProposal::NotConfigured) {
        return QStringLiteral("not-configured");
    }
    return proposal.installed.isEmpty() ? QStringLiteral("new") : QStringLiteral("update");
}

QJsonObject RVCtlOffers::Entry::toJson() const
{
    const auto size = [](qint64 bytes) {
        return bytes < 0 ? QJsonValue() : QJsonValue(bytes);
    };
    return {
        {QStringLiteral("name"), RVCtlText::jsonOrNull(name())},
        {QStringLiteral("title"), title()},
        {QStringLiteral("version"), version()},
        {QStringLiteral("installed"), RVCtlText::jsonOrNull(proposal.installed)},
        {QStringLiteral("state"), RVCtlText::jsonOrNull(state())},
        {QStringLiteral("size"), size(description ? description->size() : -1)},
        {QStringLiteral("unpackedSize"), size(description ? description->unpackedSize() : -1)},
        {QStringLiteral("installedSize"), size(description ? description->installedSize() : -1)},
        {QStringLiteral("archive"), RVUrl::shown(archive)},
        {QStringLiteral("descriptor"), RVCtlText::jsonOrNull(RVUrl::shown(descriptor))},
        {QStringLiteral("offered"), isOffered()},
        {QStringLiteral("preselected"), isPreselected()},
        {QStringLiteral("reason"), reasonWord(reason)},
    };
}

bool RVCtlOffers::isOneServer(const QList<RVCtlWorld::Section> &sections, QString *error)
{
    QSet<QString> servers;
    for (const RVCtlWorld::Section &section : sections) {
        const QUrl &url = section.repository->url();
        if (isRemote(url)) {
            servers.insert(originOf(url));
        }
    }
    if (servers.size() > 1) {
        *error = QStringLiteral("--user is for one server; name only sections on that server.");
    }
    return servers.size() <= 1;
}

RVCtlOffers::RVCtlOffers(const RVCtlWorld::Section &section, const OSInfoBaseClass &system,
                         RVCtlAccess *access, RVCtlDeadline *deadline)
    : m_section(section)
{
    RVCtlRefresh refresh(section.repository, access, deadline);
    refresh.run();
    m_failure = refresh.failure();
    m_descriptorFailures = refresh.descriptorFailures();
    if (!deadline->isOver()) {
        collect(system);
    }
}

void RVCtlOffers::collect(const OSInfoBaseClass &system)
{
    const RVRepository &repository = *m_section.repository;
    const bool filterSps = m_section.definition->filterSps;
    const bool picksOne = m_section.definition->picksOne();
    const QList<RVData> &all = repository.entries();
    const QVector<RVProposal> offered =
        proposals(offeredEntries(all, system, filterSps), &system, picksOne);
    int next = 0;
    for (int i = 0; i < all.size(); ++i) {
        const RVData &data = all.at(i);
        Entry entry;
        entry.archive = data.archiveUrl();
        entry.descriptor = data.descriptorUrl();
        entry.description = data.descriptor();
        entry.reason = eligibility(data, system, filterSps);
        entry.index = i;
        entry.isRunning = isRunningImage(data, system);
        if (entry.isOffered()) {
            entry.proposal = offered.at(next++);
        } else {
            entry.proposal = proposals({data}, &system, picksOne).constFirst();
            entry.proposal.preselected = false;
        }
        if (entry.isRunning) {
            entry.proposal.current = RVProposal::Known;
            entry.proposal.installed = entry.version();
        }
        m_entries.append(entry);
    }
    for (const RVVerdict &verdict : explain(repository, system, filterSps)) {
        if (verdict.entry < 0) {
            Entry entry;
            entry.archive = verdict.archive;
            entry.reason = verdict.reason;
            m_entries.append(entry);
        }
    }
}

bool RVCtlOffers::hasNews() const
{
    return std::any_of(m_entries.cbegin(), m_entries.cend(), [](const Entry &entry) {
        return entry.isNew();
    });
}

RVData RVCtlOffers::data(const Entry &entry) const
{
    return m_section.repository->entries().at(entry.index);
}

QCommandLineOption RVCtlOffers::reinstallOption()
{
    return {QStringLiteral("reinstall"),
            QStringLiteral("Take an image even if the device runs it already.")};
}

RVCtlOffers::RunningImage RVCtlOffers::runningImage(const QCommandLineParser &parser)
{
    return parser.isSet(reinstallOption()) ? RunningImage::Take : RunningImage::Refuse;
}

bool RVCtlOffers::choose(const QStringList &names, RunningImage runningImage,
                         QVector<Entry> *chosen, QString *error) const
{
    QVector<bool> isChosen(m_entries.size(), false);
    for (int i = 0; names.isEmpty() && i < m_entries.size(); ++i) {
        isChosen[i] = runningImage == RunningImage::Take ? m_entries.at(i).proposal.preselected
                                                         : m_entries.at(i).isPreselected();
    }
    for (const QString &name : names) {
        const auto found =
            std::find_if(m_entries.cbegin(), m_entries.cend(), [&](const Entry &entry) {
                return entry.isOffered() && isNamed(entry, name);
            });
        if (found == m_entries.cend()) {
            *error =
                QStringLiteral("Section %1 does not offer '%2'.").arg(m_section.index).arg(name);
            return false;
        }
        if (found->isRunning && runningImage == RunningImage::Refuse) {
            *error = QStringLiteral("The device runs %1 %2 already; --reinstall takes it again.")
                         .arg(found->name(), found->version());
            return false;
        }
        isChosen[static_cast<int>(found - m_entries.cbegin())] = true;
    }
    if (m_section.definition->picksOne() && isChosen.count(true) > 1) {
        *error =
            QStringLiteral("Only one update of section %1 can be chosen.").arg(m_section.index);
        return false;
    }
    for (int i = 0; i < m_entries.size(); ++i) {
        if (isChosen.at(i)) {
            chosen->append(m_entries.at(i));
        }
    }
    return true;
}

const RVCtlOffers::Entry *RVCtlOffers::find(const QString &name, QString *error) const
{
    const Entry *match = nullptr;
    for (const Entry &entry : m_entries) {
        if (isNamed(entry, name) && (!match || (entry.isOffered() && !match->isOffered()))) {
            match = &entry;
        }
    }
    if (!match) {
        *error =
            QStringLiteral("There is no update '%1' in section %2.").arg(name).arg(m_section.index);
    }
    return match;
}

QJsonObject RVCtlOffers::toJson() const
{
    QJsonObject object{
        {QStringLiteral("index"), m_section.index},
        {QStringLiteral("title"), DataXML::plainText(m_section.definition->title.value({}))},
        {QStringLiteral("location"), RVUrl::shown(m_section.repository->url())},
        {QStringLiteral("selector"),
         m_section.definition->picksOne() ? QStringLiteral("PickOne") : QStringLiteral("PickAny")},
        {QStringLiteral("error"),
         m_failure.isSet() ? QJsonValue(m_failure.toJson()) : QJsonValue()},
        {QStringLiteral("trust"), RVCtlTrust::toJson(*m_section.repository)},
    };
    QJsonArray failures;
    for (const RVCtlRefresh::Failure &failure : m_descriptorFailures) {
        failures.append(failure.toJson());
    }
    object.insert(QStringLiteral("descriptorErrors"), failures);
    return object;
}

QString RVCtlOffers::heading() const
{
    const QString title = DataXML::plainText(m_section.definition->title.value({}));
    QString text = RVText::safe(QStringLiteral("%1. %2 (%3)")
                                    .arg(m_section.index)
                                    .arg(title, RVUrl::shown(m_section.repository->url())))
        + QLatin1Char('\n');
    const QString trust = RVCtlTrust::line(*m_section.repository);
    if (!trust.isEmpty()) {
        text += QLatin1String("   ") + trust + QLatin1Char('\n');
    }
    if (m_failure.isTrust) {
        text += RVText::safe(QStringLiteral("   Not trusted: %1").arg(m_failure.text))
            + QLatin1Char('\n');
    } else if (m_failure.isSet()) {
        text +=
            RVText::safe(QStringLiteral("   Error %1: %2").arg(m_failure.code).arg(m_failure.text))
            + QLatin1Char('\n');
    }
    return text;
}

void RVCtlOffers::judge(const QList<RVCtlOffers> &sections, RVCtlResult *result)
{
    int failed = 0;
    bool isTrusted = true;
    bool isPartial = false;
    QString first;
    for (const RVCtlOffers &section : sections) {
        if (section.failure().isSet()) {
            ++failed;
            isTrusted = isTrusted && !section.failure().isTrust;
            if (first.isEmpty()) {
                first = section.failure().text;
            }
        }
        isPartial = isPartial || !section.descriptorFailures().isEmpty()
            || std::any_of(section.m_entries.cbegin(), section.m_entries.cend(),
                           [](const Entry &entry) {
                               return entry.reason == RVEligibility::OtherDescriptor;
                           });
    }
    if (failed > 0) {
        result->exit = failed < sections.size() ? RVCtlExit::DoneInPart
            : isTrusted                         ? RVCtlExit::Network
                                                : RVCtlExit::NotTrusted;
        result->error = QStringLiteral("%1 of %2 sections could not be read: %3")
                            .arg(failed)
                            .arg(sections.size())
                            .arg(first);
    } else if (isPartial) {
        result->exit = RVCtlExit::DoneInPart;
        result->error = QStringLiteral("Some descriptors could not be fetched or were refused.");
    }
}

bool RVCtlOffers::read(const RVCtlCall &call, const QStringList &names,
                       QList<RVCtlOffers> *sections, RVCtlResult *result)
{
    RVCtlAccess access(call.messages);
    return read(call, names, &access, sections, result);
}

bool RVCtlOffers::read(const RVCtlCall &call, const QStringList &names, RVCtlAccess *access,
                       QList<RVCtlOffers> *sections, RVCtlResult *result)
{
    const auto fail = [result](RVCtlExit exit, const QString &error) {
        *result = RVCtlResult::failed(exit, error);
        return false;
    };
    QString error;
    QList<RVCtlWorld::Section> named;
    if (!call.world.readSections(&error) || !call.world.readSystem(&error)) {
        return fail(RVCtlExit::Failed, error);
    }
    if (!call.world.find(names, &named, &error) || !access->read(call.parser, call.deadline, &error)
        || !(access->user().isEmpty() || isOneServer(named, &error))
        || !access->useFor(named, &error)) {
        return fail(RVCtlExit::Usage, error);
    }
    for (const RVCtlWorld::Section &section : qAsConst(named)) {
        if (isRemote(section.repository->url())) {
            call.messages.note(QStringLiteral("Retrieving data from repository %1")
                                   .arg(RVUrl::shown(section.repository->url())));
        }
        sections->append(RVCtlOffers(section, call.world.system(), access, &call.deadline));
        if (call.deadline.isOver()) {
            return false;
        }
        for (const RVCtlRefresh::Failure &failure : sections->constLast().descriptorFailures()) {
            call.messages.warning(
                QStringLiteral("%1: %2").arg(RVUrl::shown(failure.url), failure.text));
        }
    }
    return true;
}

QString reasonWord(RVEligibility reason)
{
    switch (reason) {
    case RVEligibility::Offered:
        return QStringLiteral("offered");
    case RVEligibility::NoFilter:
        return QStringLiteral("no-filter");
    case RVEligibility::NoDescriptor:
        return QStringLiteral("no-descriptor");
    case RVEligibility::ForeignLink:
        return QStringLiteral("foreign-link");
    case RVEligibility::NotListed:
        return QStringLiteral("not-listed");
    case RVEligibility::OtherDescriptor:
        return QStringLiteral("other-descriptor");
    case RVEligibility::UnreadableDescriptor:
        return QStringLiteral("unreadable-descriptor");
    case RVEligibility::OtherBaseRelease:
        return QStringLiteral("base-release");
    case RVEligibility::OtherArchitecture:
        return QStringLiteral("architecture");
    case RVEligibility::OtherThinClient:
        return QStringLiteral("model");
    case RVEligibility::ServicePackInstalled:
        return QStringLiteral("service-pack-installed");
    }
    return {};
}

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/RVCtlAccess.h"
#include "cli/RVCtlCommand.h"
#include "cli/RVCtlDeadline.h"
#include "cli/RVCtlMessages.h"
#include "cli/RVCtlOffers.h"
#include "cli/RVCtlRefresh.h"
#include "cli/RVCtlText.h"
#include "cli/RVCtlWorld.h"
#include "core/RVUrl.h"
#include "lint/RVLintDefinition.h"
#include "lint/RVLintDescriptor.h"
#include "lint/RVLintReport.h"
#include "lint/RVLintRepository.h"
#include "repository/RVRepDesc.h"
#include "repository/RVRepository.h"

#include <QCommandLineParser>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>

namespace
{

const QString kindsOption = QStringLiteral("kinds");

/// One run over files and sections.
class Lint
{
public:
    explicit Lint(const RVCtlCall &call)
        : m_call(call)
        , m_definitions(&m_definitionReport)
        , m_files(&m_report)
        , m_access(call.messages)
    {
    }

    RVCtlResult run();

private:
    bool sortArguments();
    void checkFile(const QString &path);
    bool findSections();
    void checkSection(const RVCtlWorld::Section &section, const OSInfoBaseClass *system);
    QVector<RVLintDefinition::Section> siblingsOf(const RVCtlWorld::Section &section) const;
    RVCtlResult result() const;
    bool fail(RVCtlExit exit, const QString &error)
    {
        m_failure = RVCtlResult::failed(exit, error);
        return false;
    }

    const RVCtlCall &m_call;
    RVLintReport m_report;
    /// Of the whole definition directory; only what is asked for is taken from it.
    RVLintReport m_definitionReport;
    RVLintDefinition m_definitions;
    RVLintDefinition m_files;
    RVCtlAccess m_access;
    QStringList m_paths;
    QStringList m_names;
    QList<RVCtlWorld::Section> m_sections;
    QJsonArray m_repositories;
    QStringList m_unreachable;
    RVCtlResult m_failure;
};

// A section first: its index or key is what the other commands take, and "./NAME" is a file's name.
bool Lint::sortArguments()
{
    const QVector<RVLintDefinition::Section> &sections = m_definitions.sections();
    for (const QString &argument : m_call.arguments) {
        bool isNumber = false;
        const uint index = argument.toUInt(&isNumber);
        bool isSection = isNumber && index < static_cast<uint>(sections.size());
        for (const RVLintDefinition::Section &section : sections) {
            isSection =
                isSection || (!argument.isEmpty() && section.definition->settingsKey == argument);
        }
        if (isSection) {
            m_names.append(argument);
        } else if (QFileInfo(argument).isFile()) {
            m_paths.append(argument);
        } else {
            return fail(RVCtlExit::Usage,
                        QStringLiteral("'%1' is neither a section nor a file.").arg(argument));
        }
    }
    return true;
}

void Lint::checkFile(const QString &path)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    RVLintDescriptor descriptor(path, &m_report);
    if (suffix == QLatin1String("deb") || suffix == QLatin1String("xar")) {
        descriptor.checkFile(path, false);
        return;
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        m_report.add(RVLintKind::FileUnreadable, path);
        return;
    }
    RVLintDocument document(path, &m_report);
    if (!document.load(RVLintDocument::read(&file))) {
        return;
    }
    if (document.root().tagName() == QLatin1String("repository_list")) {
        m_files.checkAccess(path);
        m_files.checkDocument(&document);
    } else {
        descriptor.checkDocument(&document);
    }
}

// What the commands would work on. False where there is nothing that they could.
bool Lint::findSections()
{
    QString error;
    const bool isAll = m_call.arguments.isEmpty();
    if (isAll || !m_names.isEmpty()) {
        if (!m_definitions.isCompilable()) {
            return fail(RVCtlExit::Failed,
                        QStringLiteral(
                            "Repositories are not checked: a pattern takes too long to compile."));
        }
        if (!m_call.world.readSections(&error)) {
            return fail(RVCtlExit::Failed, error);
        }
        if (m_call.world.sections().size()
            != static_cast<std::size_t>(m_definitions.sections().size())) {
            return fail(RVCtlExit::Failed,
                        QStringLiteral("The definition files changed during the check."));
        }
        if (!m_call.world.find(m_names, &m_sections, &error)
            || !m_access.read(m_call.parser, m_call.deadline, &error)
            || !(m_access.user().isEmpty() || RVCtlOffers::isOneServer(m_sections, &error))
            || !m_access.useFor(m_sections, &error)) {
            return fail(RVCtlExit::Usage, error);
        }
    }
    return true;
}

QVector<RVLintDefinition::Section> Lint::siblingsOf(const RVCtlWorld::Section &section) const
{
    QVector<RVLintDefinition::Section> siblings;
    for (const RVCtlWorld::Section &other : m_call.world.sections()) {
        if (other.index != section.index && other.repository->url() == section.repository->url()) {
            siblings.append(m_definitions.sections().at(other.index));
        }
    }
    return siblings;
}

void Lint::checkSection(const RVCtlWorld::Section &section, const OSInfoBaseClass *system)
{
    const RVLintDefinition::Section &definition = m_definitions.sections().at(section.index);
    m_report.add(m_definitionReport, definition.file);
    RVRepository &repository = *section.repository;
    QJsonObject object{
        {QStringLiteral("index"), section.index},
        {QStringLiteral("location"), RVUrl::shown(repository.url())},
        {QStringLiteral("error"), QJsonValue()},
    };
    if (!repository.url().isEmpty()) {
        RVLintRepository lint(repository, definition, &m_report);
        QObject context;
        QObject::connect(&repository, &RVRepository::descriptorArrived, &context,
                         [&lint](QNetworkReply *reply) {
                             lint.checkDownload(reply);
                         });
        RVCtlRefresh refresh(&repository, &m_access, &m_call.deadline);
        refresh.run();
        if (refresh.failure().isSet() && !refresh.failure().isTrust
            && repository.listing().isEmpty()) {
            object.insert(QStringLiteral("error"), refresh.failure().toJson());
            m_unreachable.append(QStringLiteral("%1: %2").arg(
                RVLintRepository::fileOf(repository.url()), refresh.failure().text));
        } else if (!m_call.deadline.isOver()) {
            lint.setSiblings(siblingsOf(section));
            QHash<QUrl, QString> notFetched;
            for (const RVCtlRefresh::Failure &failure : refresh.descriptorFailures()) {
                notFetched.insert(failure.url, failure.text);
            }
            lint.check(notFetched, system, [this] {
                return m_call.deadline.isOver();
            });
        }
    }
    m_repositories.append(object);
}

RVCtlResult Lint::run()
{
    m_definitions.checkDirectory(m_call.world.paths());
    if (!sortArguments()) {
        return m_failure;
    }
    for (const QString &path : qAsConst(m_paths)) {
        if (m_call.deadline.isOver()) {
            return {};
        }
        checkFile(path);
    }
    if (m_call.arguments.isEmpty()) {
        m_report.add(m_definitionReport);
    }
    if (findSections()) {
        QString error;
        const bool hasSystem = !m_sections.isEmpty() && m_call.world.readSystem(&error);
        if (!m_sections.isEmpty() && !hasSystem) {
            m_call.messages.note(
                QStringLiteral("%1 Whether updates fit this system is not checked.").arg(error));
        }
        for (const RVCtlWorld::Section &section : qAsConst(m_sections)) {
            checkSection(section, hasSystem ? &m_call.world.system() : nullptr);
            if (m_call.deadline.isOver()) {
                return {};
            }
        }
    } else if (m_failure.exit == RVCtlExit::Usage) {
        return m_failure;
    }
    return result();
}

RVCtlResult Lint::result() const
{
    RVCtlResult result;
    QJsonArray findings;
    for (const RVLintFinding &finding : m_report.sorted()) {
        result.text += finding.toText() + QLatin1Char('\n');
        findings.append(finding.toJson());
    }
    const int errors = m_report.count(RVLintSeverity::Error);
    const int warnings = m_report.count(RVLintSeverity::Warning);
    result.json = QJsonObject{
        {QStringLiteral("findings"), findings},
        {QStringLiteral("errors"), errors},
        {QStringLiteral("warnings"), warnings},
        {QStringLiteral("notices"), m_report.count(RVLintSeverity::Notice)},
        {QStringLiteral("repositories"), m_repositories},
    };
    if (!m_unreachable.isEmpty()) {
        result.exit = m_unreachable.size() == m_sections.size() && m_paths.isEmpty()
            ? RVCtlExit::Network
            : RVCtlExit::DoneInPart;
        result.error = QStringLiteral("Some repositories could not be listed: %1")
                           .arg(m_unreachable.constFirst());
    } else if (!m_failure.error.isEmpty()) {
        result.exit = m_failure.exit;
        result.error = m_failure.error;
    } else if (errors + warnings > 0) {
        result.exit = RVCtlExit::Failed;
        result.error =
            QStringLiteral("Defects found; errors: %1, warnings: %2.").arg(errors).arg(warnings);
    }
    return result;
}

RVCtlResult kinds()
{
    RVCtlResult result;
    QJsonArray kinds;
    for (const RVLintRule &rule : RVLintRule::all()) {
        const QString id = QLatin1String(rule.id);
        const QString severity = RVLintRule::word(rule.severity);
        const QString message = QLatin1String(rule.message) + QLatin1Char('.');
        const QString effect = QLatin1String(rule.effect);
        result.text +=
            QStringLiteral("%1 (%2)\n    %3\n    %4\n").arg(id, severity, message, effect);
        kinds.append(QJsonObject{{QStringLiteral("kind"), id},
                                 {QStringLiteral("severity"), severity},
                                 {QStringLiteral("message"), message},
                                 {QStringLiteral("effect"), effect}});
    }
    result.json.insert(kindsOption, kinds);
    return result;
}

} // namespace

QList<QCommandLineOption> RVCtlCommands::lintOptions()
{
    return QList<QCommandLineOption>{
               {kindsOption, QStringLiteral("List every kind of defect and its effect.")},
           }
    + RVCtlAccess::options();
}

RVCtlResult RVCtlCommands::lint(const RVCtlCall &call)
{
    return call.parser.isSet(kindsOption) ? kinds() : Lint(call).run();
}

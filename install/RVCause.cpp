// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "install/RVCause.h"

#include "core/RVPaths.h"
#include "core/RVText.h"
#include "install/RVPackageDatabase.h"

#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QRegularExpression>
#include <QStandardPaths>

#include <algorithm>
#include <csignal>
#include <cstring>
#include <optional>

namespace
{

constexpr int longestLine = 2000;
constexpr int longestShownLine = 240;
constexpr int shownLines = 5;
/// A shell says with it that it found no such program.
constexpr int commandNotFound = 127;
constexpr int commandNotExecutable = 126;
constexpr int signalBase = 128;
constexpr int fatalError = 2;

using Kind = RVCause::Kind;

struct Texts {
    Kind kind;
    const char *cause;
    const char *advice;
};

// The arguments of an advice are those of its cause.
const Texts texts[] = {
    {Kind::NoRights,
     QT_TRANSLATE_NOOP("RVSentence", "Only an administrator may install on this system."),
     QT_TRANSLATE_NOOP("RVSentence", "Start the program as root.")},
    {Kind::DependencyMissing,
     QT_TRANSLATE_NOOP("RVSentence", "%1 needs %2, which is not installed."),
     QT_TRANSLATE_NOOP("RVSentence", "Install %2 first, or together with %1.")},
    {Kind::DependencyVersion,
     QT_TRANSLATE_NOOP("RVSentence", "%1 needs %2, but version %3 is installed."),
     QT_TRANSLATE_NOOP("RVSentence", "Install %2 first, or together with %1.")},
    {Kind::DependencyNotConfigured,
     QT_TRANSLATE_NOOP("RVSentence", "%1 needs %2, which is not configured."),
     QT_TRANSLATE_NOOP("RVSentence", "Install %2 again first.")},
    {Kind::DependencyBroken,
     QT_TRANSLATE_NOOP("RVSentence", "%1 needs %2, which is only partly installed."),
     QT_TRANSLATE_NOOP("RVSentence", "Install %2 again first.")},
    {Kind::Conflict, QT_TRANSLATE_NOOP("RVSentence", "%1 cannot be installed beside %2."),
     QT_TRANSLATE_NOOP("RVSentence", "Install only one of the two, or remove one first.")},
    {Kind::Breaks, QT_TRANSLATE_NOOP("RVSentence", "%1 would make the installed %2 unusable."),
     QT_TRANSLATE_NOOP("RVSentence", "Update or remove %2 first.")},
    {Kind::FileConflict,
     QT_TRANSLATE_NOOP("RVSentence", "The package contains '%1', which belongs to %2."),
     QT_TRANSLATE_NOOP("RVSentence",
                       "Update or remove %2 first, or ask the publisher for a corrected package.")},
    {Kind::DiskFull, QT_TRANSLATE_NOOP("RVSentence", "There is no space left on the disk."),
     QT_TRANSLATE_NOOP("RVSentence", "Free some space, then try again.")},
    {Kind::ReadOnly, QT_TRANSLATE_NOOP("RVSentence", "The system is read-only."),
     QT_TRANSLATE_NOOP("RVSentence", "Make it writable, then try again.")},
    {Kind::UnlockFailed,
     QT_TRANSLATE_NOOP("RVSentence", "The system is read-only, and '%1' did not change that."),
     QT_TRANSLATE_NOOP("RVSentence", "Run '%1' to see why, then try again.")},
    {Kind::NotPermitted,
     QT_TRANSLATE_NOOP("RVSentence", "The system does not allow '%1' to be changed."),
     QT_TRANSLATE_NOOP("RVSentence", "Check the attributes of that file, then try again.")},
    {Kind::Incomplete, QT_TRANSLATE_NOOP("RVSentence", "The package file '%1' is not complete."),
     QT_TRANSLATE_NOOP("RVSentence",
                       "Try again; if it happens again, the file in the repository is damaged.")},
    {Kind::Damaged, QT_TRANSLATE_NOOP("RVSentence", "The package file '%1' is damaged."),
     QT_TRANSLATE_NOOP("RVSentence",
                       "Try again; if it happens again, the file in the repository is damaged.")},
    {Kind::NotAPackage, QT_TRANSLATE_NOOP("RVSentence", "The file '%1' is not a Debian package."),
     QT_TRANSLATE_NOOP("RVSentence", "Ask the administrator of the repository to replace it.")},
    {Kind::UnknownFormat,
     QT_TRANSLATE_NOOP("RVSentence",
                       "The package file '%1' has a format that this system cannot read."),
     QT_TRANSLATE_NOOP("RVSentence",
                       "Update dpkg first, or ask the publisher for a package for this system.")},
    {Kind::BadPackage, QT_TRANSLATE_NOOP("RVSentence", "The control data of '%1' are wrong."),
     QT_TRANSLATE_NOOP("RVSentence", "Ask the publisher for a corrected package.")},
    {Kind::WrongArchitecture,
     QT_TRANSLATE_NOOP("RVSentence", "The package is for %1, but this system is %2."),
     QT_TRANSLATE_NOOP("RVSentence", "Install the package for %2.")},
    {Kind::Downgrade,
     QT_TRANSLATE_NOOP("RVSentence", "Version %2 of %1 is installed, which is newer than %3."),
     QT_TRANSLATE_NOOP("RVSentence", "Remove %1 first if you want the older version.")},
    {Kind::ScriptFailed,
     QT_TRANSLATE_NOOP("RVSentence", "The script '%2' of %1 failed with exit code %3."),
     QT_TRANSLATE_NOOP("RVSentence",
                       "The installer's output may say why; if not, ask the publisher of %1.")},
    {Kind::ScriptKilled,
     QT_TRANSLATE_NOOP("RVSentence", "The script '%2' of %1 was ended by a signal (%3)."),
     QT_TRANSLATE_NOOP("RVSentence", "Try again; if it happens again, ask the publisher of %1.")},
    {Kind::ScriptNotRun,
     QT_TRANSLATE_NOOP("RVSentence", "The script '%2' of %1 may not be run where it lies."),
     QT_TRANSLATE_NOOP("RVSentence",
                       "Check whether the file system of '%3' is mounted with 'noexec'.")},
    {Kind::InterpreterMissing,
     QT_TRANSLATE_NOOP("RVSentence",
                       "The script '%2' of %1 cannot be run, since its interpreter is missing."),
     QT_TRANSLATE_NOOP("RVSentence",
                       "Install the program that the script's first line names, or ask the "
                       "publisher of %1.")},
    {Kind::TriggerFailed,
     QT_TRANSLATE_NOOP("RVSentence", "A trigger of %1 failed with exit code %2."),
     QT_TRANSLATE_NOOP("RVSentence",
                       "Install %1 again; the installer's output may say why its trigger failed.")},
    {Kind::HalfInstalled, QT_TRANSLATE_NOOP("RVSentence", "%1 is only partly installed."),
     QT_TRANSLATE_NOOP("RVSentence", "Install %1 again.")},
    {Kind::TooManyErrors,
     QT_TRANSLATE_NOOP("RVSentence", "The installer gave up after too many errors."),
     QT_TRANSLATE_NOOP("RVSentence", "Install fewer packages at a time.")},
    {Kind::DatabaseDamaged,
     QT_TRANSLATE_NOOP("RVSentence", "The package database is damaged: '%1' cannot be read."),
     QT_TRANSLATE_NOOP("RVSentence",
                       "Ask an administrator to restore the package database from a copy.")},
    {Kind::UnknownUser,
     QT_TRANSLATE_NOOP("RVSentence",
                       "The package database names '%1', whom this system does not know."),
     QT_TRANSLATE_NOOP("RVSentence",
                       "Add that user or group, or remove the entry with dpkg-statoverride.")},
    {Kind::ToolMissing, QT_TRANSLATE_NOOP("RVSentence", "The program '%1' is missing."),
     QT_TRANSLATE_NOOP("RVSentence", "Ask an administrator to install it, then try again.")},
    {Kind::ToolBroken, QT_TRANSLATE_NOOP("RVSentence", "The program '%1' cannot be run."),
     QT_TRANSLATE_NOOP("RVSentence", "Ask an administrator to repair it, then try again.")},
    {Kind::NothingToInstall, QT_TRANSLATE_NOOP("RVSentence", "No package reached the installer."),
     QT_TRANSLATE_NOOP("RVSentence", "Try again.")},
    {Kind::InstallerKilled,
     QT_TRANSLATE_NOOP("RVSentence", "The installer was ended by a signal (%1)."),
     QT_TRANSLATE_NOOP("RVSentence",
                       "Try again; the system may have been short of memory, or shut down.")},
    {Kind::InstallerMissing, QT_TRANSLATE_NOOP("RVSentence", "The installer '%1' is missing."),
     QT_TRANSLATE_NOOP("RVSentence", "Ask an administrator to install it, then try again.")},
    {Kind::InstallerNotExecutable,
     QT_TRANSLATE_NOOP("RVSentence", "The installer '%1' is not executable."),
     QT_TRANSLATE_NOOP("RVSentence", "Ask an administrator to correct its permissions.")},
    {Kind::InstallerFailed,
     QT_TRANSLATE_NOOP("RVSentence", "The installer '%1' failed with exit code %2."),
     QT_TRANSLATE_NOOP("RVSentence", "The installer's output may say why.")},
    {Kind::RestartFailed,
     QT_TRANSLATE_NOOP("RVSentence",
                       "The system could not be restarted, so the image is not "
                       "installed."),
     QT_TRANSLATE_NOOP("RVSentence", "Find out why '%1' fails, then try again.")},
};

RVCause::Answer answer(Kind kind, const QStringList &arguments = {})
{
    const auto *const found =
        std::find_if(std::begin(texts), std::end(texts), [kind](const Texts &entry) {
            return entry.kind == kind;
        });
    return {kind, RVSentence(found->cause, arguments), RVSentence(found->advice, arguments)};
}

QRegularExpression pattern(const char *text)
{
    return QRegularExpression(QLatin1String(text));
}

/// The last path segment, of which archives are known here.
QString lastSegment(const QString &path)
{
    return path.mid(path.lastIndexOf(QLatin1Char('/')) + 1);
}

/// "name:armel" is the package "name".
QString withoutArchitecture(const QString &package)
{
    return package.section(QLatin1Char(':'), 0, 0);
}

QString scriptName(const QString &longName)
{
    static const QMap<QString, QString> names{
        {QStringLiteral("pre-installation"), QStringLiteral("preinst")},
        {QStringLiteral("post-installation"), QStringLiteral("postinst")},
        {QStringLiteral("pre-removal"), QStringLiteral("prerm")},
        {QStringLiteral("post-removal"), QStringLiteral("postrm")},
    };
    return names.value(longName);
}

/// Of a text that ends in the system's words for an error, as "…: WORDS" or "… (WORDS)".
bool endsInError(const QString &text, const char *words)
{
    return text.endsWith(QLatin1String(": ") + QLatin1String(words))
        || text.endsWith(QLatin1Char('(') + QLatin1String(words) + QLatin1Char(')'));
}

/// One line of at most so many characters: what is left out of a long one is its middle, since its
/// end says what is wrong.
QString shownLine(const QString &text)
{
    const QString line = text.simplified();
    constexpr int half = longestShownLine / 2;
    return RVText::safe(
        line.size() <= longestShownLine ? line : RVText::shortened(line, half) + line.right(half));
}

RVCause::Answer unknown(const QString &words)
{
    return {Kind::NotRecognised,
            words.isEmpty()
                ? RVSentence(QT_TRANSLATE_NOOP(
                    "RVSentence", "The cause is not known, and the installer wrote nothing."))
                : RVSentence(QT_TRANSLATE_NOOP("RVSentence",
                                               "The cause is not known; the installer says: %1"),
                             {shownLine(words)}),
            {}};
}

/// The lines at the end of an output; a first one that is cut is left out.
QStringList linesOf(const QByteArray &output)
{
    QByteArray end = output.right(RVCause::searched);
    if (end.size() < output.size()) {
        end.remove(0, end.indexOf('\n') + 1);
    }
    QStringList lines;
    for (const QByteArray &line : end.split('\n')) {
        QString text = QString::fromUtf8(line.left(longestLine));
        while (!text.isEmpty() && text.at(text.size() - 1).isSpace()) {
            text.chop(1);
        }
        lines.append(text);
    }
    return lines;
}

/// The program that the first line of a script names; empty without one.
QString interpreterOf(const QString &script)
{
    QFile file(script);
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    const QByteArray line = file.readLine(longestLine).trimmed();
    return line.startsWith("#!") ? QString::fromUtf8(line.mid(2))
                                       .trimmed()
                                       .section(QRegularExpression(QStringLiteral("\\s")), 0, 0)
                                 : QString();
}

QString signalName(int signal)
{
    const char *name = ::sigdescr_np(signal);
    return name ? QString::fromLatin1(name) : QString::number(signal);
}

} // namespace

/// Reads what dpkg, the shell round it and the image's script say, line by line.
class RVCause::Reader
{
public:
    Reader(const Run &run, const RVPaths &paths, const QStringList &lines)
        : m_run(run)
        , m_paths(paths)
        , m_lines(lines)
    {
    }

    QVector<Finding> packages();
    QVector<Finding> image() const;

private:
    Q_DISABLE_COPY_MOVE(Reader)

    /// The indented lines from m_next on, as one text.
    QString reason();
    void add(const QString &subject, const Answer &found);
    void readLine(const QString &line);
    void readFault(const QString &subject, const QString &text);
    void readArchiveFault(const QString &fileName, const QString &text);
    bool readScriptFault(const QString &subject, const QString &text);
    void readDependency(const QString &subject, const QString &package, const QString &text);
    void readFatal(const QString &text);
    void readEnd();
    std::optional<Answer> errorAnswer(const QString &text) const;

    const Run &m_run;
    const RVPaths &m_paths;
    const QStringList &m_lines;
    QVector<Finding> m_findings;
    int m_next = 0;

    /// What dpkg wrote before it gave up on a package.
    QMap<QString, QString> m_dependencies;
    QString m_problem;
    QString m_archiveKind;
    QString m_oldScript;
    QString m_notRun;
    QMap<QString, bool> m_isTriggered;
    QString m_missingTool;
};

QVector<RVCause::Finding> RVCause::Reader::packages()
{
    while (m_next < m_lines.size()) {
        const QString line = m_lines.at(m_next++);
        readLine(line);
    }
    readEnd();
    return m_findings;
}

QVector<RVCause::Finding> RVCause::Reader::image() const
{
    const auto last = std::find_if(m_lines.crbegin(), m_lines.crend(), [](const QString &line) {
        return !line.isEmpty();
    });
    if (last != m_lines.crend() && *last == QLatin1String("The restart failed.")) {
        return {{QString(), answer(Kind::RestartFailed, {m_paths.rebootTool})}};
    }
    for (const QString &line : m_lines) {
        if (const auto found = errorAnswer(line)) {
            return {{QString(), *found}};
        }
    }
    return {};
}

QString RVCause::Reader::reason()
{
    QStringList lines;
    while (m_next < m_lines.size() && m_lines.at(m_next).startsWith(QLatin1Char(' '))) {
        lines.append(m_lines.at(m_next++).trimmed());
    }
    return lines.join(QLatin1Char('\n'));
}

void RVCause::Reader::add(const QString &subject, const Answer &found)
{
    m_findings.append({subject, found});
}

void RVCause::Reader::readLine(const QString &line)
{
    static const QRegularExpression error =
        pattern("\\Adpkg: error processing (archive|package) (.+) \\(--[a-z-]+\\):\\z");
    static const QRegularExpression dependencies =
        pattern("\\Adpkg: dependency problems prevent configuration of (\\S+):\\z");
    static const QRegularExpression regarding =
        pattern("\\Adpkg: regarding .+ containing \\S+:\\z");
    static const QRegularExpression oldScript =
        pattern("\\Adpkg: warning: (old \\S+ package \\S+ script subprocess .*)\\z");
    static const QRegularExpression notRun =
        pattern("\\Adpkg \\(subprocess\\): unable to execute (.+)\\z");
    static const QRegularExpression noTool =
        pattern("\\Adpkg: warning: '([^']+)' not found in PATH or not executable\\z");
    static const QRegularExpression downgrade =
        pattern("\\Adpkg: will not downgrade (\\S+) from (\\S+) to (\\S+), skipping\\z");
    static const QRegularExpression step =
        pattern("\\A(Setting up|Processing triggers for) (\\S+) \\(");

    if (line.startsWith(QLatin1String("dpkg-deb"))) {
        m_archiveKind += line + QLatin1Char('\n');
        return;
    }
    if (const auto match = step.match(line); match.hasMatch()) {
        m_isTriggered.insert(withoutArchitecture(match.captured(2)),
                             match.captured(1).startsWith(QLatin1Char('P')));
        return;
    }
    if (line == QLatin1String("Processing was halted because there were too many errors.")) {
        add({}, answer(Kind::TooManyErrors));
        return;
    }
    if (!line.startsWith(QLatin1String("dpkg"))) {
        return;
    }
    if (const auto match = error.match(line); match.hasMatch()) {
        const bool isArchive = match.captured(1) == QLatin1String("archive");
        readFault(isArchive ? lastSegment(match.captured(2))
                            : withoutArchitecture(match.captured(2)),
                  reason());
        m_problem.clear();
        m_archiveKind.clear();
        m_oldScript.clear();
        m_notRun.clear();
    } else if (const auto match = dependencies.match(line); match.hasMatch()) {
        m_dependencies.insert(withoutArchitecture(match.captured(1)), reason());
    } else if (regarding.match(line).hasMatch()
               || line.endsWith(QLatin1String(", pre-dependency problem:"))) {
        m_problem = reason();
    } else if (const auto match = oldScript.match(line); match.hasMatch()) {
        m_oldScript = match.captured(1);
    } else if (const auto match = notRun.match(line); match.hasMatch()) {
        m_notRun = match.captured(1);
    } else if (const auto match = noTool.match(line); match.hasMatch()) {
        if (m_missingTool.isEmpty()) {
            m_missingTool = match.captured(1);
        }
    } else if (const auto match = downgrade.match(line); match.hasMatch()) {
        add(withoutArchitecture(match.captured(1)),
            answer(Kind::Downgrade, {match.captured(1), match.captured(2), match.captured(3)}));
    } else if (m_run.exitCode == fatalError
               && line == QLatin1String("dpkg: unrecoverable fatal error, aborting:")) {
        readFatal(reason());
    } else if (m_run.exitCode == fatalError && line.startsWith(QLatin1String("dpkg: error: "))) {
        readFatal(line.mid(static_cast<int>(std::strlen("dpkg: error: "))));
    }
}

void RVCause::Reader::readFault(const QString &subject, const QString &text)
{
    static const QRegularExpression conflict =
        pattern("\\Aconflicting packages - not installing (\\S+)\\z");
    static const QRegularExpression preDependency =
        pattern("\\Apre-dependency problem - not installing (\\S+)\\z");
    static const QRegularExpression breaks =
        pattern("\\Ainstalling (\\S+) would break (\\S+), and");
    static const QRegularExpression overwrite =
        pattern("\\Atrying to overwrite '(.*)', which is also in package (\\S+)");
    static const QRegularExpression overDirectory =
        pattern("\\Atrying to overwrite directory '(.*)' in package (\\S+) ");
    static const QRegularExpression architecture =
        pattern("\\Apackage architecture \\((\\S+)\\) does not match system \\((\\S+)\\)\\z");
    static const QRegularExpression conflictWith =
        pattern("\\A(\\S+) conflicts with [^\n]+\n(\\S+) ");

    if (readScriptFault(subject, text)) {
        return;
    }
    if (text.startsWith(QLatin1String("dependency problems - leaving unconfigured"))) {
        readDependency(subject, subject, m_dependencies.value(subject));
    } else if (const auto match = preDependency.match(text); match.hasMatch()) {
        readDependency(subject, match.captured(1), m_problem);
    } else if (const auto match = conflict.match(text); match.hasMatch()) {
        const QString package = match.captured(1);
        const auto pair = conflictWith.match(m_problem);
        if (pair.hasMatch()) {
            const QString other = pair.captured(pair.captured(1) == package ? 2 : 1);
            add(subject, answer(Kind::Conflict, {package, other}));
        }
    } else if (const auto match = breaks.match(text); match.hasMatch()) {
        add(subject, answer(Kind::Breaks, {match.captured(1), match.captured(2)}));
    } else if (const auto match = overwrite.match(text); match.hasMatch()) {
        add(subject, answer(Kind::FileConflict, {match.captured(1), match.captured(2)}));
    } else if (const auto match = overDirectory.match(text); match.hasMatch()) {
        add(subject, answer(Kind::FileConflict, {match.captured(1), match.captured(2)}));
    } else if (const auto match = architecture.match(text); match.hasMatch()) {
        add(subject, answer(Kind::WrongArchitecture, {match.captured(1), match.captured(2)}));
    } else if (text.startsWith(
                   QLatin1String("package is in a very bad inconsistent state; you should"))) {
        add(subject, answer(Kind::HalfInstalled, {subject}));
    } else if (text.startsWith(QLatin1String("there is no script in the new version"))) {
        readScriptFault(subject, m_oldScript);
    } else {
        readArchiveFault(subject, text);
    }
}

bool RVCause::Reader::readScriptFault(const QString &subject, const QString &text)
{
    static const QRegularExpression script =
        pattern("\\A(?:new|old|installed) (\\S+) package (\\S+) script subprocess "
                "(?:returned error exit status (\\d+)|was killed by signal \\(([^)]*)\\))");
    static const QRegularExpression notRun =
        pattern("\\A(?:new|old|installed) (\\S+) package (\\S+) script \\((.*)\\): (.*)\\z");
    const auto match = script.match(text);
    if (!match.hasMatch()) {
        return false;
    }
    const QString package = match.captured(1);
    const QString name = scriptName(match.captured(2));
    const auto refused = notRun.match(m_notRun);
    if (refused.hasMatch() && refused.captured(1) == package
        && refused.captured(2) == match.captured(2)) {
        if (refused.captured(4) == QLatin1String("No such file or directory")) {
            add(subject, answer(Kind::InterpreterMissing, {package, name}));
            return true;
        }
        if (refused.captured(4) == QLatin1String("Permission denied")) {
            add(subject, answer(Kind::ScriptNotRun, {package, name, m_paths.packageDatabase}));
            return true;
        }
    }
    if (!match.captured(4).isEmpty()) {
        add(subject, answer(Kind::ScriptKilled, {package, name, match.captured(4)}));
    } else if (m_isTriggered.value(package) && name == QLatin1String("postinst")) {
        add(subject, answer(Kind::TriggerFailed, {package, match.captured(3)}));
    } else {
        add(subject, answer(Kind::ScriptFailed, {package, name, match.captured(3)}));
    }
    return true;
}

void RVCause::Reader::readDependency(const QString &subject, const QString &package,
                                     const QString &text)
{
    static const QRegularExpression depends =
        pattern("\\A(\\S+) (?:pre-)?depends on (.+?)(?:; however:)?\\z");
    static const QRegularExpression missing =
        pattern("\\A(?:Package )?(\\S+) is (?:not installed|to be removed)\\.\\z");
    static const QRegularExpression version =
        pattern("\\A(?:Version of|latest configured version of) \\S+ "
                "(?:on system |to be configured )?is (\\S+)\\.\\z");
    static const QRegularExpression notConfigured =
        pattern("\\A(?:Package )?(\\S+)(?: which provides \\S+)? is "
                "(?:not configured yet|unpacked, but has never been configured)\\.\\z");
    static const QRegularExpression breaks = pattern("\\A(\\S+) \\(\\S+\\) breaks \\S+ and is ");

    QString relation;
    for (const QString &line : text.split(QLatin1Char('\n'))) {
        if (const auto match = depends.match(line); match.hasMatch()) {
            relation = match.captured(2);
        } else if (const auto match = breaks.match(line); match.hasMatch()) {
            add(subject, answer(Kind::Conflict, {package, match.captured(1)}));
            return;
        } else if (relation.isEmpty()) {
            continue;
        } else if (const auto match = missing.match(line); match.hasMatch()) {
            const QString needed = withoutArchitecture(match.captured(1));
            const auto unfinished = RVPackageDatabase(m_paths).unfinished();
            const bool isBroken = std::any_of(
                unfinished.cbegin(), unfinished.cend(),
                [&needed](const RVPackageDatabase::Package &other) {
                    return other.name == needed && other.state == QLatin1String("half-installed");
                });
            add(subject,
                isBroken ? answer(Kind::DependencyBroken, {package, needed})
                         : answer(Kind::DependencyMissing, {package, relation}));
            return;
        } else if (const auto match = version.match(line); match.hasMatch()) {
            add(subject, answer(Kind::DependencyVersion, {package, relation, match.captured(1)}));
            return;
        } else if (const auto match = notConfigured.match(line); match.hasMatch()) {
            add(subject,
                answer(Kind::DependencyNotConfigured,
                       {package, withoutArchitecture(match.captured(1))}));
            return;
        }
    }
}

// What the package tool's own helper said of the file tells more than what dpkg makes of it.
void RVCause::Reader::readArchiveFault(const QString &fileName, const QString &text)
{
    const auto says = [this](const char *words) {
        return m_archiveKind.contains(QLatin1String(words));
    };
    static const QRegularExpression control =
        pattern("\\Aparsing file '[^']*/tmp\\.ci/|\\Atriggers ci file contains |"
                "\\Afailed to open package info file '");
    static const QRegularExpression noTool =
        pattern("\\A[a-z -]+ \\(([^()/]+)\\): No such file or directory\\z");
    if (const auto found = errorAnswer(text)) {
        add(fileName, *found);
    } else if (control.match(text).hasMatch()) {
        add(fileName, answer(Kind::BadPackage, {fileName}));
    } else if (const auto tool = noTool.match(m_notRun);
               tool.hasMatch() && text.startsWith(QLatin1String("subprocess "))) {
        add(fileName, answer(Kind::ToolMissing, {tool.captured(1)}));
    } else if (says("' is not a Debian format archive")) {
        add(fileName, answer(Kind::NotAPackage, {fileName}));
    } else if (says("get a newer dpkg-deb") || says("uses unknown compression for member")) {
        add(fileName, answer(Kind::UnknownFormat, {fileName}));
    } else if (says("decompressor pipe: unexpected end of file or stream")
               || says("unexpected end of file in archive ")) {
        add(fileName, answer(Kind::Incomplete, {fileName}));
    } else if (says("): decompressing archive ")) {
        add(fileName, answer(Kind::Damaged, {fileName}));
    } else {
        add(fileName, unknown(text));
    }
}

std::optional<RVCause::Answer> RVCause::Reader::errorAnswer(const QString &text) const
{
    static const QRegularExpression quoted = pattern("'(\\./|/)([^']+)'");
    if (endsInError(text, "No space left on device") || endsInError(text, "Disk quota exceeded")) {
        return answer(Kind::DiskFull);
    }
    if (endsInError(text, "Read-only file system")) {
        const QString tool = QStringLiteral("fsunlock");
        const bool hasTool = !m_run.searchPath.isEmpty()
            && !QStandardPaths::findExecutable(tool, m_run.searchPath).isEmpty();
        return hasTool ? answer(Kind::UnlockFailed, {tool}) : answer(Kind::ReadOnly);
    }
    if (const auto file = quoted.match(text);
        file.hasMatch() && endsInError(text, "Operation not permitted")) {
        return answer(Kind::NotPermitted, {QLatin1Char('/') + file.captured(2)});
    }
    return std::nullopt;
}

void RVCause::Reader::readFatal(const QString &text)
{
    static const QRegularExpression locked =
        pattern("\\Adpkg (?:frontend|database) lock was locked by another process with pid (\\d+)");
    static const QRegularExpression user =
        pattern("\\Aunknown system (?:user|group) '([^']+)' in statoverride file");
    static const QRegularExpression damaged = pattern("\\Aparsing file '([^']+)' near line");

    if (const auto match = locked.match(text); match.hasMatch()) {
        RVLockHolder holder = RVPackageDatabase(m_paths).lockHolder();
        const qint64 process = match.captured(1).toLongLong();
        if (holder.process != process) {
            // It has ended meanwhile.
            holder = {true, process, {}};
        }
        add({},
            {Kind::LockHeld, RVPackageDatabase::lockedBy(holder),
             RVSentence(QT_TRANSLATE_NOOP("RVSentence",
                                          "Wait until that program has ended, then try again."))});
    } else if (text.startsWith(QLatin1String("requested operation requires superuser privilege"))
               || text.startsWith(
                   QLatin1String("required read/write access to the dpkg database"))) {
        add({}, answer(Kind::NoRights));
    } else if (text.startsWith(QLatin1String("cannot access archive './*.deb'"))) {
        add({}, answer(Kind::NothingToInstall));
    } else if (const auto match = damaged.match(text); match.hasMatch()) {
        add({}, answer(Kind::DatabaseDamaged, {match.captured(1)}));
    } else if (const auto match = user.match(text); match.hasMatch()) {
        add({}, answer(Kind::UnknownUser, {match.captured(1)}));
    } else if (!m_missingTool.isEmpty()
               && text.contains(QLatin1String("not found in PATH or not executable"))) {
        add({}, answer(Kind::ToolMissing, {m_missingTool}));
    } else {
        add({}, errorAnswer(text).value_or(unknown(text)));
    }
}

// What the shell round dpkg tells.
void RVCause::Reader::readEnd()
{
    const QString tool = QStringLiteral("dpkg");
    const auto hasLine = [this](const QString &start, const QString &end) {
        return std::any_of(m_lines.cbegin(), m_lines.cend(), [&](const QString &line) {
            return line.startsWith(start) && line.endsWith(end);
        });
    };
    if (m_run.exitCode == commandNotFound
        && hasLine(QString(), QStringLiteral(": dpkg: command not found"))) {
        add({}, answer(Kind::ToolMissing, {tool}));
    } else if ((m_run.exitCode == commandNotFound
                && hasLine(QStringLiteral("dpkg: error while loading shared libraries: "), {}))
               || (m_run.exitCode == commandNotExecutable
                   && hasLine({}, QStringLiteral("/dpkg: Permission denied")))) {
        add({}, answer(Kind::ToolBroken, {tool}));
    } else if (m_run.exitCode > signalBase && m_run.exitCode < signalBase + NSIG) {
        add({}, answer(Kind::InstallerKilled, {signalName(m_run.exitCode - signalBase)}));
    } else if (m_findings.isEmpty() && m_run.exitCode != 0) {
        for (const QString &line : m_lines) {
            const auto found = errorAnswer(line);
            if (found && line.startsWith(QLatin1String("Could not write ./RVinstall.sh: "))) {
                add({}, *found);
            }
        }
    }
}

RVCause::RVCause(const Run &run, const RVPaths &paths)
    : m_lines(linesOf(run.output))
{
    if (!run.isStarted) {
        m_findings = {{QString(), ofStart(run)}};
    } else if (run.exitStatus == QProcess::CrashExit) {
        m_findings = {{QString(), answer(Kind::InstallerKilled, {signalName(run.exitCode)})}};
    } else if (run.kind == RVBatch::Kind::Packages) {
        m_findings = Reader(run, paths, m_lines).packages();
    } else if (run.kind == RVBatch::Kind::Image) {
        m_findings = Reader(run, paths, m_lines).image();
    } else if (run.exitCode != 0) {
        m_findings = {
            {QString(),
             answer(Kind::InstallerFailed, {run.program, QString::number(run.exitCode)})}};
    }
}

RVCause::Answer RVCause::ofStart(const Run &run)
{
    const bool isPath = run.program.contains(QLatin1Char('/'));
    const QString file = isPath || run.searchPath.isEmpty()
        ? run.program
        : QStandardPaths::findExecutable(run.program, run.searchPath);
    const QFileInfo program(file);
    if (file.isEmpty() || !program.exists()) {
        return answer(Kind::InstallerMissing, {run.program});
    }
    if (!program.isFile() || !program.isExecutable()) {
        return answer(Kind::InstallerNotExecutable, {run.program});
    }
    const QString interpreter = interpreterOf(file);
    if (!interpreter.isEmpty() && !QFileInfo::exists(interpreter)) {
        return answer(Kind::ToolMissing, {interpreter});
    }
    return answer(Kind::ToolBroken, {run.program});
}

RVCause::Answer RVCause::ofRun() const
{
    const auto found =
        std::find_if(m_findings.cbegin(), m_findings.cend(), [](const Finding &finding) {
            return finding.answer.isRecognised() && finding.answer.kind != Kind::TooManyErrors;
        });
    if (found != m_findings.cend()) {
        return found->answer;
    }
    return m_findings.isEmpty() ? unknown(lastLine()) : m_findings.constFirst().answer;
}

RVCause::Answer RVCause::ofPackage(const QString &package, const QString &fileName) const
{
    const auto last = [this](auto &&matches) -> const Finding * {
        const auto found = std::find_if(m_findings.crbegin(), m_findings.crend(), matches);
        return found == m_findings.crend() ? nullptr : &*found;
    };
    const Finding *found = last([&](const Finding &finding) {
        return !finding.subject.isEmpty()
            && (finding.subject == package || finding.subject == fileName);
    });
    if (!found) {
        found = last([](const Finding &finding) {
            return finding.subject.isEmpty();
        });
    }
    if (!found) {
        // It waits for that trigger.
        found = last([](const Finding &finding) {
            return finding.answer.kind == Kind::TriggerFailed;
        });
    }
    return found ? found->answer : unknown(lastLine());
}

QString RVCause::lastLine() const
{
    // At its end dpkg only lists what it has told already.
    const int list =
        m_lines.lastIndexOf(QStringLiteral("Errors were encountered while processing:"));
    for (int i = (list < 0 ? m_lines.size() : list) - 1; i >= 0; --i) {
        if (!m_lines.at(i).isEmpty()) {
            return m_lines.at(i);
        }
    }
    return {};
}

QStringList RVCause::lastLines() const
{
    QStringList result;
    for (auto line = m_lines.crbegin(); line != m_lines.crend() && result.size() < shownLines;
         ++line) {
        if (!line->isEmpty()) {
            result.prepend(shownLine(*line));
        }
    }
    return result;
}

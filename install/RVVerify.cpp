// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "install/RVVerify.h"

#include "core/OSInfo.h"
#include "core/RVInstalledPackages.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <sys/stat.h>

using Package = RVInstalledPackages::Package;
using PackageState = RVInstalledPackages::State;
using State = RVItemResult::State;

namespace
{

std::unique_ptr<RVInstalledPackages> readPackages(const RVPaths &paths)
{
    return std::make_unique<RVInstalledPackages>(paths, OSInfo::deviceArchitecture());
}

QStringList readPacks(const RVPaths &paths)
{
    QStringList result;
    const QList<VersionString> packs = OSInfo::servicePacks(paths);
    for (const VersionString &pack : packs) {
        result.append(pack.toString());
    }
    return result;
}

/// The database leaves out an epoch of 0.
QString normalized(const QString &version)
{
    const QString text = version.trimmed();
    return text.startsWith(QLatin1String("0:")) ? text.mid(2) : text;
}

void judge(RVItemResult *item, State state, const RVSentence &reason = {})
{
    item->state = state;
    item->reason = reason;
}

} // namespace

RVSentence RVVerify::End::sentence() const
{
    if (isCrashed) {
        return RVSentence(QT_TRANSLATE_NOOP("RVSentence", "The installer was ended by a signal."));
    }
    return exitCode == 0
        ? RVSentence()
        : RVSentence(QT_TRANSLATE_NOOP("RVSentence", "The installer ended with exit code %1."),
                     {QString::number(exitCode)});
}

RVVerify::RVVerify(const RVPaths &paths, const QStringList &packages)
    : m_paths(paths)
    , m_before(readPackages(paths))
    , m_packsBefore(readPacks(paths))
{
    for (const QString &package : packages) {
        m_stamps.insert(package, stampOf(package));
    }
}

RVVerify::~RVVerify() = default;

void RVVerify::lookAgain()
{
    m_after = readPackages(m_paths);
    m_packsAfter = readPacks(m_paths);
}

QString RVVerify::versionBefore(const QString &package) const
{
    const Package before = m_before->package(package);
    return before.state == PackageState::Installed ? before.version : QString();
}

void RVVerify::judgePackage(const QString &name, const QString &version, const End &end,
                            RVItemResult *item) const
{
    if (!m_after->isReadable()) {
        judge(item, end.isGood() ? State::NotConfirmable : State::Failed,
              end.isGood() ? RVSentence(
                  QT_TRANSLATE_NOOP("RVSentence", "The package database cannot be read."))
                           : end.sentence());
        return;
    }
    const Package after = m_after->package(name);
    if (after.state == PackageState::Absent) {
        judge(item, State::Failed,
              RVSentence(QT_TRANSLATE_NOOP("RVSentence", "The system does not have it.")));
    } else if (after.state == PackageState::NotConfigured) {
        judge(item, State::Failed,
              RVSentence(QT_TRANSLATE_NOOP("RVSentence", "It is unpacked, but not configured.")));
    } else if (normalized(after.version) != normalized(version)) {
        judge(item, State::Failed,
              RVSentence(QT_TRANSLATE_NOOP("RVSentence", "The system has version %1."),
                         {after.version}));
    } else if (normalized(versionBefore(name)) == normalized(version)
               && stampOf(name) == m_stamps.value(name)) {
        judge(item, State::Failed,
              RVSentence(QT_TRANSLATE_NOOP("RVSentence",
                                           "The installer left the installed package as it was.")));
    } else {
        judge(item, State::Installed);
    }
}

void RVVerify::judgeServicePack(const QString &name, const End &end, RVItemResult *item) const
{
    if (!end.isGood()) {
        judge(item, State::Failed, end.sentence());
    } else if (m_packsBefore.contains(name) && m_packsAfter.contains(name)) {
        judge(item, State::NotConfirmable,
              RVSentence(QT_TRANSLATE_NOOP(
                  "RVSentence", "It was in the list of installed service packs before.")));
    } else if (m_packsAfter.contains(name)) {
        judge(item, State::Installed);
    } else if (!QFileInfo(m_paths.servicePackDir).isDir()) {
        judge(item, State::NotConfirmable,
              RVSentence(QT_TRANSLATE_NOOP("RVSentence",
                                           "This system has no list of installed service packs.")));
    } else {
        judge(item, State::Failed,
              RVSentence(QT_TRANSLATE_NOOP("RVSentence",
                                           "It is not in the list of installed service packs.")));
    }
}

QByteArray RVVerify::stampOf(const QString &package) const
{
    const QDir info(m_paths.packageDatabase + QStringLiteral("/info"));
    // dpkg replaces the package's list of files whenever it unpacks it.
    for (const QString &name :
         {package, package + QLatin1Char(':') + OSInfo::deviceArchitecture()}) {
        struct stat file = {};
        const QString list = info.filePath(name + QStringLiteral(".list"));
        if (::stat(QFile::encodeName(list).constData(), &file) == 0) {
            return QByteArray::number(static_cast<qulonglong>(file.st_ino)) + ' '
                + QByteArray::number(static_cast<qlonglong>(file.st_mtim.tv_sec)) + ' '
                + QByteArray::number(static_cast<qlonglong>(file.st_mtim.tv_nsec));
        }
    }
    return {};
}

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/support/DpkgRoot.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QProcessEnvironment>

namespace
{

constexpr int limitMs = 20000;

constexpr QFile::Permissions openToAll = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner
    | QFile::ReadGroup | QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther;

bool write(const QString &file, const QByteArray &content, bool executable = false)
{
    QFile out(file);
    return out.open(QIODevice::WriteOnly) && out.write(content) == content.size() && out.flush()
        && (!executable || out.setPermissions(openToAll));
}

QString run(QProcess *process, const QString &program, const QStringList &arguments)
{
    process->setProcessChannelMode(QProcess::MergedChannels);
    process->start(program, arguments, QIODevice::ReadOnly);
    if (!process->waitForFinished(limitMs)) {
        return program + QStringLiteral(": ") + process->errorString();
    }
    if (process->exitStatus() != QProcess::NormalExit || process->exitCode() != 0) {
        return QString::fromUtf8(process->readAll()) + program + QStringLiteral(" failed");
    }
    return QString();
}

} // namespace

DpkgRoot::DpkgRoot()
{
    const QDir root(m_dir.path());
    m_valid = m_dir.isValid();
    for (const char *directory :
         {"lib/dpkg/info", "lib/dpkg/updates", "lib/dpkg/triggers", "lib/dpkg/parts", "log"}) {
        m_valid = m_valid && root.mkpath(QStringLiteral("var/") + QLatin1String(directory));
    }
    m_valid = m_valid && write(root.filePath(QStringLiteral("var/lib/dpkg/status")), QByteArray())
        && write(root.filePath(QStringLiteral("var/lib/dpkg/available")), QByteArray())
        && write(root.filePath(QStringLiteral(".dpkg.cfg")),
                 "log " + QFile::encodeName(path()) + "/var/log/dpkg.log\n");
}

RVPaths DpkgRoot::paths() const
{
    RVPaths paths = RVPaths::under(path());
    // Without a configuration of its own, dpkg notes in the log of the system that runs the tests.
    paths.installerEnvironment.append(QStringLiteral("HOME=") + path());
    return paths;
}

QString DpkgRoot::build(const Package &package, const QString &file)
{
    const QTemporaryDir tree;
    const QDir dir(tree.path());
    // dpkg-deb refuses a control directory that others may not enter.
    if (!tree.isValid() || !dir.mkpath(QStringLiteral("DEBIAN"))
        || !dir.mkpath(QStringLiteral("usr/share/doc/") + package.name)
        || !QFile::setPermissions(dir.filePath(QStringLiteral("DEBIAN")), openToAll)) {
        return QStringLiteral("no package tree");
    }
    const QByteArray control = "Package: " + package.name.toUtf8() + "\nVersion: "
        + package.version.toUtf8() + "\nArchitecture: " + package.architecture.toUtf8()
        + "\nMaintainer: Ravel developers <ravel@example.org>\n" + package.fields
        + "Description: package for a test\n";
    bool written = write(dir.filePath(QStringLiteral("DEBIAN/control")), control)
        && write(dir.filePath(QStringLiteral("usr/share/doc/%1/version").arg(package.name)),
                 package.version.toUtf8() + '\n');
    for (auto it = package.scripts.cbegin(); it != package.scripts.cend(); ++it) {
        written =
            written && write(dir.filePath(QStringLiteral("DEBIAN/") + it.key()), it.value(), true);
    }
    for (auto it = package.files.cbegin(); it != package.files.cend(); ++it) {
        written = written && dir.mkpath(QFileInfo(it.key()).path())
            && write(dir.filePath(it.key()), it.value());
    }
    if (!written) {
        return QStringLiteral("no package tree");
    }
    QProcess process;
    return run(&process, QStringLiteral("dpkg-deb"),
               {QStringLiteral("--root-owner-group"), QStringLiteral("-Z") + package.compression,
                QStringLiteral("--build"), tree.path(), file});
}

QString DpkgRoot::preinstall(const Package &package) const
{
    const QTemporaryDir pool;
    const QString file = pool.filePath(QStringLiteral("package.deb"));
    const QString problem = build(package, file);
    if (!problem.isEmpty()) {
        return problem;
    }
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    const QStringList additions = paths().installerEnvironment;
    for (const QString &addition : additions) {
        environment.insert(addition.section(QLatin1Char('='), 0, 0),
                           addition.section(QLatin1Char('='), 1));
    }
    process.setProcessEnvironment(environment);
    return run(&process, QStringLiteral("dpkg"), {QStringLiteral("--install"), file});
}

QString DpkgRoot::status(const QString &name) const
{
    return query(name, QStringLiteral("${db:Status-Abbrev}")).trimmed();
}

QString DpkgRoot::installedVersion(const QString &name) const
{
    return status(name) == QLatin1String("ii") ? query(name, QStringLiteral("${Version}"))
                                               : QString();
}

QString DpkgRoot::query(const QString &name, const QString &format) const
{
    QProcess process;
    const QString problem =
        run(&process, QStringLiteral("dpkg-query"),
            {QStringLiteral("--admindir=%1/var/lib/dpkg").arg(path()), QStringLiteral("--show"),
             QStringLiteral("--showformat=") + format, name});
    return problem.isEmpty() ? QString::fromUtf8(process.readAll()) : QString();
}

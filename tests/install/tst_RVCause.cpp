// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "archive/ArchiveDDImage.h"
#include "archive/ArchiveDeb.h"
#include "archive/ArchiveXar.h"
#include "install/RVCause.h"
#include "tests/support/DpkgRoot.h"
#include "tests/support/OrdinaryUser.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QProcessEnvironment>
#include <QScopeGuard>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <csignal>
#include <fcntl.h>
#include <functional>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

constexpr int limitMs = 60000;
using Kind = RVCause::Kind;
using Package = DpkgRoot::Package;

/// A package whose names are plain ASCII.
struct Plain {
    const char *name;
    const char *version;
    QByteArray fields = {};
    QVector<QPair<const char *, QByteArray>> scripts = {};
    QVector<QPair<const char *, QByteArray>> files = {};

    Package package() const
    {
        Package result;
        result.name = QLatin1String(name);
        result.version = QLatin1String(version);
        result.fields = fields;
        for (const auto &script : scripts) {
            result.scripts.insert(QLatin1String(script.first), script.second);
        }
        for (const auto &file : files) {
            result.files.insert(QLatin1String(file.first), file.second);
        }
        return result;
    }
};

const QByteArray failing = "#!/bin/sh\nexit 3\n";

bool write(const QString &file, const QByteArray &content)
{
    QFile out(file);
    return QDir().mkpath(QFileInfo(file).path()) && out.open(QIODevice::WriteOnly)
        && out.write(content) == content.size();
}

QByteArray read(const QString &file)
{
    QFile in(file);
    return in.open(QIODevice::ReadOnly) ? in.readAll() : QByteArray();
}

/// A system, a folder of what is installed into it, and the run of the installer that the product
/// has for it.
class World
{
public:
    World()
        : root(m_root)
    {
        QFile::setPermissions(m_pool.path(), QFile::Permissions(0x7755));
        program = paths().shell;
        arguments = QStringList{QStringLiteral("./RVinstall.sh")};
        for (const char *folder : {"/usr/sbin", "/usr/bin", "/sbin", "/bin"}) {
            searchPath.append(QLatin1String(folder));
        }
        environment = root.paths().installerEnvironment;
        script = ArchiveDeb(QUrl(QStringLiteral("file:///a.deb"))).installCommand().script;
    }

    ~World() { unlock(); }

    RVPaths paths() const { return root.paths(); }
    QString pool() const { return m_pool.path(); }
    QString file(const char *name) const
    {
        return m_pool.path() + QLatin1Char('/') + QLatin1String(name);
    }
    QString inRoot(const char *path) const { return root.path() + QLatin1String(path); }

    void add(const Plain &plain) { addPackage(plain.package()); }
    void addPackage(const Package &package)
    {
        note(DpkgRoot::build(package, file(qPrintable(package.name + QStringLiteral(".deb")))));
    }
    void addPlain(const char *name, const QByteArray &content)
    {
        note(write(file(name), content) ? QString() : QStringLiteral("not written"));
    }
    void have(const Plain &plain) { note(root.preinstall(plain.package())); }
    /// One whose installation fails.
    void haveBroken(const Plain &plain) { root.preinstall(plain.package()); }
    /// Changes bytes of an archive, as a broken disk does.
    void damage(const char *name, const QByteArray &before, const QByteArray &after)
    {
        QByteArray content = read(file(name));
        const int at = content.indexOf(before);
        note(at >= 0 && before.size() == after.size() ? QString()
                                                      : QStringLiteral("nothing to damage"));
        content.replace(at, before.size(), after);
        addPlain(name, content);
    }
    /// A lock of the kind that dpkg takes, of another process.
    void lock(const char *name)
    {
        const QByteArray path = QFile::encodeName(inRoot("/var/lib/dpkg/") + QLatin1String(name));
        int ready[2];
        note(::pipe(ready) == 0 ? QString() : QStringLiteral("no pipe"));
        holder = ::fork();
        if (holder == 0) {
            struct flock lock = {};
            lock.l_type = F_WRLCK;
            const int handle = ::open(path.constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
            const bool isReady =
                ::fcntl(handle, F_SETLK, &lock) == 0 && ::write(ready[1], "", 1) == 1;
            while (isReady) {
                ::pause();
            }
            ::_exit(1);
        }
        ::close(ready[1]);
        char byte = 0;
        note(::read(ready[0], &byte, 1) == 1 ? QString() : QStringLiteral("no lock"));
        ::close(ready[0]);
    }
    void unlock()
    {
        if (holder > 0) {
            ::kill(holder, SIGKILL);
            ::waitpid(holder, nullptr, 0);
            holder = -1;
        }
    }
    /// Looks for programs in a folder that has only these.
    void havePrograms(const QStringList &names)
    {
        const QString folder = inRoot("/only");
        QDir().mkpath(folder);
        for (const QString &name : names) {
            QFile::link(QStandardPaths::findExecutable(name), folder + QLatin1Char('/') + name);
        }
        searchPath = QStringList{folder};
    }
    void addProgram(const char *name, const QByteArray &content, bool isExecutable = true)
    {
        const QString program = inRoot("/own/") + QLatin1String(name);
        note(write(program, content) ? QString() : QStringLiteral("no program"));
        if (isExecutable) {
            QFile::setPermissions(program, QFile::Permissions(0x7755));
        }
        if (!searchPath.contains(inRoot("/own"))) {
            searchPath.prepend(inRoot("/own"));
        }
    }
    /// Runs it where this command has changed the mounts, which end with it.
    void mount(const QString &command)
    {
        needsMounts = true;
        wrapper = QStringList{QStringLiteral("unshare"),
                              QStringLiteral("-m"),
                              QStringLiteral("sh"),
                              QStringLiteral("-c"),
                              command + QStringLiteral(" && exec \"$@\""),
                              QStringLiteral("sh")};
        if (::geteuid() != 0) {
            wrapper.insert(1, QStringLiteral("-r"));
        }
    }
    void useServicePack()
    {
        kind = RVBatch::Kind::ServicePacks;
        program = paths().xarInstaller;
        arguments = QStringList{QStringLiteral("--extrdir=pack")};
        script.clear();
    }
    void useImage()
    {
        kind = RVBatch::Kind::Image;
        const ArchiveDDImage image(QUrl(QStringLiteral("http://host/a.dd.gz")), nullptr, paths());
        program = image.installCommand().program;
        script = image.installCommand().script;
    }
    void haveInstaller(const QByteArray &content, bool isExecutable = true)
    {
        note(write(paths().xarInstaller, content) ? QString() : QStringLiteral("no installer"));
        if (isExecutable) {
            QFile::setPermissions(paths().xarInstaller, QFile::Permissions(0x7755));
        }
    }

    RVCause::Run run()
    {
        if (!script.isEmpty()) {
            addPlain("RVinstall.sh", script);
            QFile::setPermissions(file("RVinstall.sh"), QFile::Permissions(0x7755));
        }
        QProcess process;
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.setWorkingDirectory(m_pool.path());
        QProcessEnvironment variables;
        variables.insert(QStringLiteral("PATH"), searchPath.join(QLatin1Char(':')));
        variables.insert(QStringLiteral("LC_MESSAGES"), QStringLiteral("C.UTF-8"));
        for (const QString &assignment : qAsConst(environment)) {
            variables.insert(assignment.section(QLatin1Char('='), 0, 0),
                             assignment.section(QLatin1Char('='), 1));
        }
        process.setProcessEnvironment(variables);
        process.setStandardInputFile(QProcess::nullDevice());
        const QStringList command = wrapper + QStringList{program} + arguments;
        process.start(command.constFirst(), command.mid(1));
        RVCause::Run result;
        result.kind = kind;
        result.program = program;
        result.searchPath = searchPath;
        result.isStarted = process.waitForStarted(limitMs);
        if (result.isStarted && !process.waitForFinished(limitMs)) {
            note(QStringLiteral("no end"));
            process.kill();
            process.waitForFinished();
        }
        result.exitCode = process.exitCode();
        result.exitStatus = process.exitStatus();
        result.output = process.readAllStandardOutput();
        return result;
    }

    const DpkgRoot &root;
    RVBatch::Kind kind = RVBatch::Kind::Packages;
    QStringList wrapper;
    QString program;
    QStringList arguments;
    QStringList searchPath;
    QStringList environment;
    QByteArray script;
    bool needsMounts = false;
    pid_t holder = -1;
    QString skip;
    QString problem;

private:
    Q_DISABLE_COPY_MOVE(World)

    void note(const QString &reason)
    {
        if (problem.isEmpty()) {
            problem = reason;
        }
    }

    DpkgRoot m_root;
    QTemporaryDir m_pool;
};

bool hasMounts()
{
    QProcess process;
    process.start(QStringLiteral("unshare"),
                  (::geteuid() == 0 ? QStringList{} : QStringList{QStringLiteral("-r")})
                      + QStringList{QStringLiteral("-m"), QStringLiteral("mount"),
                                    QStringLiteral("-t"), QStringLiteral("tmpfs"),
                                    QStringLiteral("none"), QDir::currentPath()});
    return process.waitForFinished(limitMs) && process.exitCode() == 0
        && process.exitStatus() == QProcess::NormalExit;
}

QString smallDisk(const QString &folder, const char *size)
{
    return QStringLiteral("mkdir -p %1 && mount -t tmpfs -o size=%2 none %1")
        .arg(folder, QLatin1String(size));
}

QString remounted(const QString &folder, const char *option)
{
    return QStringLiteral("mkdir -p %1 && mount --bind %1 %1 && mount -o remount,bind,%2 %1")
        .arg(folder, QLatin1String(option));
}

struct Failure {
    const char *title;
    Kind kind;
    /// "%ROOT" and "%PID" stand for those of the test.
    const char *cause;
    std::function<void(World &)> provoke;
    /// Asked of this package; null: of the run.
    const char *package = "a";
};

const std::vector<Failure> &failures()
{
    static const std::vector<Failure> all{
        {"another program holds the front end's lock", Kind::LockHeld,
         "The package database is locked by tst_RVCause (process %PID).",
         [](World &w) {
             w.add({"a", "1"});
             w.lock("lock-frontend");
         }},
        {"another program holds the database's lock", Kind::LockHeld,
         "The package database is locked by tst_RVCause (process %PID).",
         [](World &w) {
             w.add({"a", "1"});
             w.lock("lock");
         }},
        {"a missing dependency", Kind::DependencyMissing,
         "a needs nowhere, which is not installed.",
         [](World &w) {
             w.add({"a", "1", "Depends: nowhere\n"});
         }},
        {"neither of two alternatives", Kind::DependencyMissing,
         "a needs here (>= 2) | there, which is not installed.",
         [](World &w) {
             w.add({"a", "1", "Depends: here (>= 2) | there\n"});
         }},
        {"a missing dependency before unpacking", Kind::DependencyMissing,
         "a needs nowhere, which is not installed.",
         [](World &w) {
             w.add({"a", "1", "Pre-Depends: nowhere\n"});
         }},
        {"a dependency of an older version", Kind::DependencyVersion,
         "a needs b (>= 2), but version 1 is installed.",
         [](World &w) {
             w.have({"b", "1"});
             w.add({"a", "1", "Depends: b (>= 2)\n"});
         }},
        {"a dependency that fails in the same run", Kind::DependencyNotConfigured,
         "a needs b, which is not configured.",
         [](World &w) {
             w.add({"a", "1", "Depends: b\n"});
             w.add({"b", "1", {}, {{"postinst", failing}}});
         }},
        {"a dependency that an earlier run left unconfigured", Kind::DependencyNotConfigured,
         "a needs b, which is not configured.",
         [](World &w) {
             w.haveBroken({"b", "1", {}, {{"postinst", failing}}});
             w.add({"a", "1", "Depends: b\n"});
         }},
        {"a dependency that an earlier run left half installed", Kind::DependencyBroken,
         "a needs b, which is only partly installed.",
         [](World &w) {
             w.have({"b", "1"});
             // Its removal is interrupted after the files are gone.
             QByteArray status = read(w.inRoot("/var/lib/dpkg/status"));
             status.replace("install ok installed", "install reinstreq half-installed");
             write(w.inRoot("/var/lib/dpkg/status"), status);
             w.add({"a", "1", "Depends: b\n"});
         }},
        {"a package that conflicts with an installed one", Kind::Conflict,
         "a cannot be installed beside b.",
         [](World &w) {
             w.have({"b", "1"});
             w.add({"a", "1", "Conflicts: b\n"});
         }},
        {"an installed package that conflicts with it", Kind::Conflict,
         "a cannot be installed beside b.",
         [](World &w) {
             w.have({"b", "1", "Conflicts: a\n"});
             w.add({"a", "1"});
         }},
        {"a package that breaks an installed one", Kind::Breaks,
         "a would make the installed b unusable.",
         [](World &w) {
             w.have({"b", "1"});
             w.add({"a", "1", "Breaks: b (<< 2)\n"});
         }},
        {"an installed package that breaks it", Kind::Conflict, "a cannot be installed beside b.",
         [](World &w) {
             w.have({"b", "1", "Breaks: a\n"});
             w.add({"a", "1"});
         }},
        {"a file of another package", Kind::FileConflict,
         "The package contains '/etc/x.conf', which belongs to b.",
         [](World &w) {
             w.have({"b", "1", {}, {}, {{"etc/x.conf", "b"}}});
             w.add({"a", "1", {}, {}, {{"etc/x.conf", "a"}}});
         }},
        {"a folder of another package", Kind::FileConflict,
         "The package contains '/etc/x', which belongs to b.",
         [](World &w) {
             w.have({"b", "1", {}, {}, {{"etc/x/y", "b"}}});
             w.add({"a", "1", {}, {}, {{"etc/x", "a"}}});
         }},
        {"a full disk", Kind::DiskFull, "There is no space left on the disk.",
         [](World &w) {
             w.add({"a", "1", {}, {}, {{"opt/big", QByteArray(1 << 20, 'x')}}});
             w.mount(smallDisk(w.inRoot("/opt"), "64k"));
         }},
        {"a full disk below the package database", Kind::DiskFull,
         "There is no space left on the disk.",
         [](World &w) {
             w.add({"a", "1"});
             const QString folder = w.inRoot("/var/lib/dpkg/updates");
             w.mount(smallDisk(folder, "64k")
                     + QStringLiteral(" && { head -c 100000 /dev/zero >%1/x || :; }").arg(folder));
         }},
        {"a read-only system", Kind::ReadOnly, "The system is read-only.",
         [](World &w) {
             w.add({"a", "1"});
             w.mount(remounted(w.root.path(), "ro"));
         }},
        {"a read-only part of the system", Kind::ReadOnly, "The system is read-only.",
         [](World &w) {
             w.add({"a", "1"});
             w.mount(remounted(w.inRoot("/usr"), "ro"));
         }},
        {"a read-only system that is not unlocked", Kind::UnlockFailed,
         "The system is read-only, and 'fsunlock' did not change that.",
         [](World &w) {
             w.add({"a", "1"});
             w.addProgram("fsunlock", "#!/bin/sh\nexit 1\n");
             w.mount(remounted(w.root.path(), "ro"));
         }},
        {"a file that may not be changed", Kind::NotPermitted,
         "The system does not allow '/etc/z' to be changed.",
         [](World &w) {
             const QString file = w.inRoot("/etc/z");
             write(file, "z");
             if (QProcess::execute(QStringLiteral("chattr"), {QStringLiteral("+i"), file}) != 0) {
                 w.skip = QStringLiteral("no such attributes here");
             }
             w.add({"a", "1", {}, {}, {{"etc/z", "a"}}});
         }},
        {"an archive that is cut", Kind::Incomplete, "The package file 'a.deb' is not complete.",
         [](World &w) {
             w.add({"a", "1", {}, {}, {{"opt/big", QByteArray(1 << 20, 'x')}}});
             w.addPlain("a.deb", read(w.file("a.deb")).left(500000));
         }},
        {"an archive that is cut in its control data", Kind::Incomplete,
         "The package file 'a.deb' is not complete.",
         [](World &w) {
             w.add({"a", "1"});
             w.addPlain("a.deb", read(w.file("a.deb")).left(150));
         }},
        {"an empty archive", Kind::Incomplete, "The package file 'a.deb' is not complete.",
         [](World &w) {
             w.addPlain("a.deb", {});
         }},
        {"a page instead of an archive", Kind::NotAPackage,
         "The file 'a.deb' is not a Debian package.",
         [](World &w) {
             w.addPlain("a.deb", "<html>Please log in</html>\n");
         }},
        {"a wrong sum in the archive", Kind::Damaged, "The package file 'a.deb' is damaged.",
         [](World &w) {
             Package package = Plain{"a", "1"}.package();
             QByteArray noise;
             for (int i = 0; i < 200000; ++i) {
                 noise += static_cast<char>((i * 7919 + i / 3) % 251);
             }
             package.files.insert(QStringLiteral("opt/big"), noise);
             package.compression = QStringLiteral("gzip");
             w.addPackage(package);
             QByteArray content = read(w.file("a.deb"));
             // The last bytes are gzip's check of what it holds.
             content[content.size() - 6] = static_cast<char>(content.at(content.size() - 6) ^ 0x55);
             w.addPlain("a.deb", content);
         }},
        {"damaged compressed data", Kind::Damaged, "The package file 'a.deb' is damaged.",
         [](World &w) {
             Package package = Plain{"a", "1"}.package();
             package.files.insert(QStringLiteral("opt/big"), QByteArray(3 << 20, 'x'));
             package.compression = QStringLiteral("xz");
             w.addPackage(package);
             QByteArray content = read(w.file("a.deb"));
             content.replace(content.size() - 300, 100, QByteArray(100, 'x'));
             w.addPlain("a.deb", content);
         }},
        {"an archive of a later format", Kind::UnknownFormat,
         "The package file 'a.deb' has a format that this system cannot read.",
         [](World &w) {
             w.add({"a", "1"});
             w.damage("a.deb", "\n2.0\n", "\n3.0\n");
         }},
        {"an unknown compression", Kind::UnknownFormat,
         "The package file 'a.deb' has a format that this system cannot read.",
         [](World &w) {
             w.add({"a", "1"});
             w.damage("a.deb", "data.tar    ", "data.tar.foo");
         }},
        {"a package without a version", Kind::BadPackage, "The control data of 'a.deb' are wrong.",
         [](World &w) {
             w.add({"a", "1"});
             w.damage("a.deb", "\nVersion: 1", "\nVursion: 1");
         }},
        {"unknown trigger directives", Kind::BadPackage, "The control data of 'a.deb' are wrong.",
         [](World &w) {
             w.add({"a", "1", {}, {{"triggers", "interest /etc/t\n"}}});
             w.damage("a.deb", "interest /etc/t", "trouble  /etc/t");
         }},
        {"a package for another architecture", Kind::WrongArchitecture,
         "The package is for hurd-i386, but this system is %ARCH.",
         [](World &w) {
             Package package = Plain{"a", "1"}.package();
             package.architecture = QStringLiteral("hurd-i386");
             w.addPackage(package);
         }},
        {"an older version than the installed one", Kind::Downgrade,
         "Version 2 of a is installed, which is newer than 1.",
         [](World &w) {
             w.have({"a", "2"});
             w.add({"a", "1"});
         }},
        {"a failing preinst", Kind::ScriptFailed,
         "The script 'preinst' of a failed with exit code 3.",
         [](World &w) {
             w.add({"a", "1", {}, {{"preinst", failing}}});
         }},
        {"a failing postinst", Kind::ScriptFailed,
         "The script 'postinst' of a failed with exit code 3.",
         [](World &w) {
             w.add({"a", "1", {}, {{"postinst", failing}}});
         }},
        {"a failing prerm of the installed version", Kind::ScriptFailed,
         "The script 'prerm' of a failed with exit code 3.",
         [](World &w) {
             w.have({"a", "1", {}, {{"prerm", failing}}});
             w.add({"a", "2"});
         }},
        {"a failing prerm of both versions", Kind::ScriptFailed,
         "The script 'prerm' of a failed with exit code 3.",
         [](World &w) {
             w.have({"a", "1", {}, {{"prerm", failing}}});
             w.add({"a", "2", {}, {{"prerm", failing}}});
         }},
        {"a failing postrm", Kind::ScriptFailed,
         "The script 'postrm' of a failed with exit code 3.",
         [](World &w) {
             w.have({"a", "1", {}, {{"postrm", failing}}});
             w.add({"a", "2", {}, {{"postrm", failing}}});
         }},
        {"a script that calls a missing program", Kind::ScriptFailed,
         "The script 'postinst' of a failed with exit code 127.",
         [](World &w) {
             w.add({"a", "1", {}, {{"postinst", "#!/bin/sh\nset -e\nno-such-tool --now\n"}}});
         }},
        {"a killed script", Kind::ScriptKilled,
         "The script 'postinst' of a was ended by a signal (Killed).",
         [](World &w) {
             w.add({"a", "1", {}, {{"postinst", "#!/bin/sh\nkill -9 $$\n"}}});
         }},
        {"a failing trigger of another package", Kind::TriggerFailed,
         "A trigger of b failed with exit code 4.",
         [](World &w) {
             w.have({"b",
                     "1",
                     {},
                     {{"triggers", "interest /etc/t\n"},
                      {"postinst", "#!/bin/sh\n[ \"$1\" != triggered ] || exit 4\n"}}});
             w.add({"a", "1", {}, {}, {{"etc/t/x", "a"}}});
         }},
        {"a preinst without its interpreter", Kind::InterpreterMissing,
         "The script 'preinst' of a cannot be run, since its interpreter is missing.",
         [](World &w) {
             w.add({"a", "1", {}, {{"preinst", "#!/usr/bin/nobody\n"}}});
         }},
        {"a postinst without its interpreter", Kind::InterpreterMissing,
         "The script 'postinst' of a cannot be run, since its interpreter is missing.",
         [](World &w) {
             w.add({"a", "1", {}, {{"postinst", "#!/usr/bin/nobody\n"}}});
         }},
        {"scripts on a file system without programs", Kind::ScriptNotRun,
         "The script 'postinst' of a may not be run where it lies.",
         [](World &w) {
             w.add({"a", "1", {}, {{"postinst", "#!/bin/sh\n"}}});
             w.mount(remounted(w.inRoot("/var/lib/dpkg"), "noexec"));
         }},
        {"no rights", Kind::NoRights, "Only an administrator may install on this system.",
         [](World &w) {
             w.add({"a", "1"});
             QFile::setPermissions(w.file("a.deb"), QFile::Permissions(0x6644));
             w.environment = QStringList{QStringLiteral("DPKG_FORCE=bad-path")};
             const QString user = QString::number(OrdinaryUser::id);
             if (::geteuid() == 0) {
                 w.wrapper = QStringList{
                     QStringLiteral("setpriv"), QStringLiteral("--reuid=") + user,
                     QStringLiteral("--regid=") + user, QStringLiteral("--clear-groups")};
             }
         }},
        {"a damaged package database", Kind::DatabaseDamaged,
         "The package database is damaged: '%ROOT/var/lib/dpkg/status' cannot be read.",
         [](World &w) {
             w.add({"a", "1"});
             write(w.inRoot("/var/lib/dpkg/status"), "nonsense\n");
         }},
        {"a user of the database that is gone", Kind::UnknownUser,
         "The package database names 'gone-user', whom this system does not know.",
         [](World &w) {
             w.add({"a", "1"});
             write(w.inRoot("/var/lib/dpkg/statoverride"), "gone-user root 644 /etc/z\n");
         }},
        {"no dpkg", Kind::ToolMissing, "The program 'dpkg' is missing.",
         [](World &w) {
             w.add({"a", "1"});
             w.havePrograms({QStringLiteral("sh")});
         }},
        {"programs that dpkg needs are missing", Kind::ToolMissing, "The program 'rm' is missing.",
         [](World &w) {
             w.add({"a", "1"});
             w.havePrograms({QStringLiteral("sh"), QStringLiteral("dpkg")});
             w.environment.replaceInStrings(QStringLiteral(",bad-path"), QString());
         }},
        {"a program that dpkg needs is missing, and it goes on", Kind::ToolMissing,
         "The program 'dpkg-split' is missing.",
         [](World &w) {
             w.add({"a", "1"});
             w.havePrograms({QStringLiteral("sh"), QStringLiteral("dpkg"), QStringLiteral("rm"),
                             QStringLiteral("tar"), QStringLiteral("diff"),
                             QStringLiteral("dpkg-deb"), QStringLiteral("ldconfig"),
                             QStringLiteral("start-stop-daemon")});
         }},
        {"a dpkg without its libraries", Kind::ToolBroken, "The program 'dpkg' cannot be run.",
         [](World &w) {
             w.add({"a", "1"});
             QByteArray dpkg = read(QStandardPaths::findExecutable(QStringLiteral("dpkg")));
             dpkg.replace("libc.so.6", "libx.so.6");
             w.addProgram("dpkg", dpkg);
         }},
        {"a dpkg that is not executable", Kind::ToolBroken, "The program 'dpkg' cannot be run.",
         [](World &w) {
             w.add({"a", "1"});
             w.havePrograms({});
             w.addProgram("dpkg", "#!/bin/sh\n", false);
         }},
        {"no archive at all", Kind::NothingToInstall, "No package reached the installer.",
         [](World &w) {
             Q_UNUSED(w)
         }},
        {"a killed dpkg", Kind::InstallerKilled, "The installer was ended by a signal (Killed).",
         [](World &w) {
             w.add({"a", "1", {}, {{"postinst", "#!/bin/sh\nkill -9 $PPID\n"}}});
         }},
        {"a killed shell", Kind::InstallerKilled, "The installer was ended by a signal (Killed).",
         [](World &w) {
             w.add({"a", "1"});
             w.addProgram("dpkg", "#!/bin/sh\nkill -9 $PPID\n");
         }},
        {"an installer that gave up before this package", Kind::TooManyErrors,
         "The installer gave up after too many errors.",
         [](World &w) {
             for (int i = 0; i < 60; ++i) {
                 w.addPlain(qPrintable(QStringLiteral("0%1.deb").arg(i)), "no package\n");
             }
             w.add({"a", "1"});
         }},
        {"no installer of service packs", Kind::InstallerMissing,
         "The installer '%ROOT/usr/sbin/xarinstall' is missing.",
         [](World &w) {
             w.useServicePack();
         }},
        {"an installer of service packs that is not executable", Kind::InstallerNotExecutable,
         "The installer '%ROOT/usr/sbin/xarinstall' is not executable.",
         [](World &w) {
             w.useServicePack();
             w.haveInstaller("#!/bin/sh\n", false);
         }},
        {"an installer of service packs without its interpreter", Kind::ToolMissing,
         "The program '/usr/bin/nobody' is missing.",
         [](World &w) {
             w.useServicePack();
             w.haveInstaller("#!/usr/bin/nobody -x\n");
         }},
        {"a failing installer of service packs", Kind::InstallerFailed,
         "The installer '%ROOT/usr/sbin/xarinstall' failed with exit code 5.",
         [](World &w) {
             w.useServicePack();
             w.haveInstaller("#!/bin/sh\necho No such pack\nexit 5\n");
         }},
        {"a killed installer of service packs", Kind::InstallerKilled,
         "The installer was ended by a signal (Killed).",
         [](World &w) {
             w.useServicePack();
             w.haveInstaller("#!/bin/sh\nkill -9 $$\n");
         }},
        {"an image, and no restart", Kind::RestartFailed,
         "The system could not be restarted, so the image is not installed.",
         [](World &w) {
             w.useImage();
             QDir().mkpath(w.paths().etcDir);
             write(w.paths().rebootTool, "#!/bin/sh\nexit 1\n");
             QFile::setPermissions(w.paths().rebootTool, QFile::Permissions(0x7755));
         }},
        {"an image on a read-only system", Kind::ReadOnly, "The system is read-only.",
         [](World &w) {
             w.useImage();
             w.mount(remounted(w.root.path(), "ro"));
         }},
        {"an image on a full disk", Kind::DiskFull, "There is no space left on the disk.",
         [](World &w) {
             w.useImage();
             const QString folder = w.paths().writableDir;
             w.mount(smallDisk(folder, "16k")
                     + QStringLiteral(" && { head -c 100000 /dev/zero >%1/x || :; }").arg(folder));
         }},
        {"a name that is too long", Kind::NotRecognised, "File name too long",
         [](World &w) {
             Package package = Plain{"a", "1"}.package();
             package.files.insert(QStringLiteral("etc/") + QString(250, QLatin1Char('x')), "a");
             w.addPackage(package);
         }},
        {"a tar that does nothing", Kind::NotRecognised,
         "the installer says: dpkg-deb --control subprocess returned error exit status 2",
         [](World &w) {
             w.add({"a", "1"});
             w.addProgram("tar", "#!/bin/sh\nexit 1\n");
         }},
    };
    return all;
}

QString expected(const Failure &failure, const World &world)
{
    static const QString architecture = [] {
        QProcess process;
        process.start(QStringLiteral("dpkg"), {QStringLiteral("--print-architecture")});
        process.waitForFinished(limitMs);
        return QString::fromUtf8(process.readAll()).trimmed();
    }();
    return QString::fromUtf8(failure.cause)
        .replace(QLatin1String("%ROOT"), world.root.path())
        .replace(QLatin1String("%ARCH"), architecture)
        .replace(QLatin1String("%PID"), QString::number(world.holder));
}

RVCause::Run failedRun(const QByteArray &output, int exitCode = 1)
{
    RVCause::Run run;
    run.output = output;
    run.exitCode = exitCode;
    return run;
}

QString causeOf(const QByteArray &output, int exitCode = 1)
{
    return RVCause(failedRun(output, exitCode), RVPaths::under(QStringLiteral("/nowhere")))
        .ofPackage(QStringLiteral("a"), QStringLiteral("a.deb"))
        .cause.english();
}

} // namespace

/// Every failure is provoked: the real dpkg, on a system of its own, run by the product's own
/// script.
class tst_RVCause : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void failure_data();
    void failure();
    void enoughFailures();
    void severalPackages();
    void lockThatIsFreeAgain();
    void whatPackagesWrite_data();
    void whatPackagesWrite();
    void separateChannels();
    void lastLines();
    void boundedSearch();
};

void tst_RVCause::failure_data()
{
    QTest::addColumn<int>("index");
    for (std::size_t i = 0; i < failures().size(); ++i) {
        QTest::newRow(failures().at(i).title) << static_cast<int>(i);
    }
}

void tst_RVCause::failure()
{
    QFETCH(int, index);
    const Failure &failure = failures().at(static_cast<std::size_t>(index));
    World world;
    const auto mutableAgain = qScopeGuard([&world] {
        if (QFileInfo::exists(world.inRoot("/etc/z"))) {
            QProcess::execute(QStringLiteral("chattr"),
                              {QStringLiteral("-i"), world.inRoot("/etc/z")});
        }
    });
    failure.provoke(world);
    if (!world.skip.isEmpty()) {
        QSKIP(qPrintable(world.skip));
    }
    if (world.needsMounts && !hasMounts()) {
        QSKIP("no private mounts here");
    }
    const RVCause::Run run = world.run();
    QVERIFY2(world.problem.isEmpty(), qPrintable(world.problem));
    const RVCause cause(run, world.paths());
    const RVCause::Answer answer =
        cause.ofPackage(QString::fromUtf8(failure.package), QStringLiteral("a.deb"));
    const QByteArray seen = "exit code " + QByteArray::number(run.exitCode) + '\n' + run.output
        + '\n' + answer.cause.english().toUtf8();
    QVERIFY2(answer.kind == failure.kind, seen.constData());
    if (failure.kind == Kind::NotRecognised) {
        QVERIFY2(answer.advice.isEmpty(), seen.constData());
        QVERIFY2(answer.cause.english().endsWith(expected(failure, world)), seen.constData());
        return;
    }
    QCOMPARE(answer.cause.english(), expected(failure, world));
    QVERIFY(!answer.advice.isEmpty());
    QVERIFY2(!answer.advice.english().contains(QLatin1Char('%')),
             qUtf8Printable(answer.advice.english()));
    if (failure.kind != Kind::TooManyErrors && failure.kind != Kind::DependencyNotConfigured) {
        QCOMPARE(cause.ofRun().cause.english(), answer.cause.english());
    }
}

void tst_RVCause::enoughFailures()
{
    const auto recognised =
        std::count_if(failures().begin(), failures().end(), [](const Failure &failure) {
            return failure.kind != Kind::NotRecognised;
        });
    QVERIFY(failures().size() >= 40);
    QVERIFY2(static_cast<std::size_t>(recognised) * 40 >= failures().size() * 38,
             qPrintable(QString::number(recognised)));
}

void tst_RVCause::severalPackages()
{
    World world;
    world.have({"x", "1", {}, {}, {{"etc/x.conf", "x"}}});
    world.add({"a", "1", {}, {{"postinst", failing}}});
    world.add({"b", "1", "Depends: nowhere\n"});
    world.add({"c", "1", {}, {}, {{"etc/x.conf", "c"}}});
    world.add({"d", "1"});
    world.add({"e", "1", "Depends: a\n"});
    const RVCause cause(world.run(), world.paths());
    QVERIFY2(world.problem.isEmpty(), qPrintable(world.problem));
    const auto of = [&cause](const char *name) {
        const QString package = QString::fromUtf8(name);
        return cause.ofPackage(package, package + QStringLiteral(".deb")).kind;
    };
    QCOMPARE(of("a"), Kind::ScriptFailed);
    QCOMPARE(of("b"), Kind::DependencyMissing);
    QCOMPARE(of("c"), Kind::FileConflict);
    QCOMPARE(of("d"), Kind::NotRecognised);
    QCOMPARE(of("e"), Kind::DependencyNotConfigured);
    QCOMPARE(cause.ofRun().kind, Kind::FileConflict);
}

void tst_RVCause::lockThatIsFreeAgain()
{
    World world;
    world.add({"a", "1"});
    world.lock("lock-frontend");
    const RVCause::Run run = world.run();
    const pid_t holder = world.holder;
    world.unlock();
    QCOMPARE(RVCause(run, world.paths()).ofRun().cause.english(),
             QStringLiteral("The package database is locked by process %1.").arg(holder));
}

void tst_RVCause::whatPackagesWrite_data()
{
    QTest::addColumn<QByteArray>("written");
    QTest::newRow("the words of a full disk") << QByteArray("cp: x: No space left on device");
    QTest::newRow("the words of a lock")
        << QByteArray("dpkg: error: dpkg frontend lock was locked by another process with pid 1");
    QTest::newRow("another cause of its own")
        << QByteArray("dpkg: error processing package a (--install):\n"
                      " trying to overwrite '/x', which is also in package b 1");
    QTest::newRow("a missing tool") << QByteArray("bash: line 4: dpkg: command not found");
    QTest::newRow("a cause of dpkg-deb")
        << QByteArray("dpkg-deb: error: './a.deb' is not a Debian format archive");
    QTest::newRow("an interpreter of another package")
        << QByteArray("dpkg (subprocess): unable to execute installed z package post-installation "
                      "script (/z): No such file or directory");
}

void tst_RVCause::whatPackagesWrite()
{
    QFETCH(QByteArray, written);
    World world;
    world.add(
        {"a", "1", {}, {{"postinst", "#!/bin/sh\ncat <<'END'\n" + written + "\nEND\nexit 3\n"}}});
    const RVCause cause(world.run(), world.paths());
    QVERIFY2(world.problem.isEmpty(), qPrintable(world.problem));
    QCOMPARE(cause.ofPackage(QStringLiteral("a"), QStringLiteral("a.deb")).cause.english(),
             QStringLiteral("The script 'postinst' of a failed with exit code 3."));
}

void tst_RVCause::separateChannels()
{
    // The window reads the two apart.
    QCOMPARE(
        causeOf("Setting up b (1) ...\nSetting up a (1) ...\nProcessing triggers for b (1) ...\n"
                "dpkg: error processing package b (--install):\n"
                " installed b package post-installation script subprocess returned error exit "
                "status 4\nErrors were encountered while processing:\n b\n"),
        QStringLiteral("A trigger of b failed with exit code 4."));
}

void tst_RVCause::lastLines()
{
    const RVCause silent(failedRun({}), {});
    QVERIFY(silent.lastLines().isEmpty());
    QCOMPARE(silent.ofRun().cause.english(),
             QStringLiteral("The cause is not known, and the installer wrote nothing."));

    const RVCause cause(failedRun("1\n2\n3\n\n4\n5\n\x1b[31m6\n" + QByteArray(5000, 'x') + "\n\n"),
                        {});
    const QStringList lines = cause.lastLines();
    QCOMPARE(lines.size(), 5);
    QCOMPARE(lines.at(0), QStringLiteral("3"));
    QCOMPARE(lines.at(3), QStringLiteral("\\u001b[31m6"));
    QCOMPARE(lines.at(4).size(), 240);
    QVERIFY(cause.ofRun().cause.english().endsWith(lines.at(4)));
}

void tst_RVCause::boundedSearch()
{
    const QByteArray error = "dpkg: error processing package a (--install):\n"
                             " dependency problems - leaving unconfigured\n";
    const QByteArray depends = "dpkg: dependency problems prevent configuration of a:\n"
                               " a depends on b; however:\n  Package b is not installed.\n\n";
    const QString found = QStringLiteral("a needs b, which is not installed.");
    QCOMPARE(causeOf(QByteArray(100 << 20, 'x') + '\n' + depends + error), found);
    QVERIFY(causeOf(depends + error + QByteArray(RVCause::searched, 'x'))
                .startsWith(QLatin1String("The cause is not known; ")));
    // Whatever stands in it: a line for each byte, or patterns that are never completed.
    for (const QByteArray &piece :
         {QByteArray("\n"), QByteArray(" \n"), QByteArray("dpkg: error processing package "),
          QByteArray("dpkg: regarding x containing "), QByteArray("dpkg-deb: "),
          QByteArray("dpkg: dependency problems prevent configuration of a:\n a depends on ")}) {
        QCOMPARE(causeOf(piece.repeated(RVCause::searched / piece.size()) + '\n' + depends + error),
                 found);
    }
}

QTEST_GUILESS_MAIN(tst_RVCause)
#include "tst_RVCause.moc"

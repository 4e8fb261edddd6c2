// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "archive/ArchiveDeb.h"

#include "archive/InstallScript.h"
#include "core/RVLogger.h"
#include "core/RVUrl.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

// dpkg gets every package of the directory in one run, so that packages of a batch may need each
// other.
const char installCommandLine[] = "dpkg --install --no-force-downgrade --no-debsig --force-confdef"
                                  " --force-confnew --force-confmiss ./*.deb";

bool isPlainFileName(const QString &name)
{
    return !name.isEmpty() && name != QLatin1String(".") && name != QLatin1String("..")
        && !name.contains(QLatin1Char('/')) && !name.contains(QChar(QChar::Null));
}

/// An empty regular file of that name, open for writing: a link is not followed, and a pipe or
/// device is neither waited for nor written to. -1 when there is none.
int openEmptyFile(const QByteArray &name)
{
    const int handle = ::open(
        name.constData(), O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, 0644);
    struct stat status = {};
    if (handle >= 0 && (::fstat(handle, &status) != 0 || !S_ISREG(status.st_mode))) {
        ::close(handle);
        return -1;
    }
    return handle;
}

/// Copies to the end, in pieces: packages are larger than the memory of the devices. False when
/// reading or writing failed, or when there was nothing to copy.
bool copyAll(QIODevice *source, QFile *target)
{
    QByteArray piece(64 * 1024, Qt::Uninitialized);
    qint64 total = 0;
    qint64 length = 0;
    while ((length = source->read(piece.data(), piece.size())) > 0) {
        if (target->write(piece.constData(), length) != length) {
            return false;
        }
        total += length;
    }
    // A sequential device answers its end with -1, a file an error.
    return total > 0 && (length == 0 || source->isSequential());
}

} // namespace

ArchiveDeb::ArchiveDeb(const QUrl &url, QObject *parent, const RVPaths &paths)
    : ArchiveBaseClass(url, parent)
    , m_paths(paths)
    , m_handled(!url.isEmpty()
                && QFileInfo(url.path()).suffix().compare(QLatin1String("deb"), Qt::CaseInsensitive)
                    == 0)
    , m_fileName(RVUrl::fileName(url))
{
}

ArchiveDeb::~ArchiveDeb() = default;

bool ArchiveDeb::extract(QIODevice *source) const
{
    RVLogger().log(5, "Copying .deb file %s to local storage",
                   RVLogger::oneLine(m_fileName).constData());
    // A finished download is open already, and opening it again would drop what it holds.
    if (!source->isOpen() && !source->open(QIODevice::ReadOnly)) {
        return false;
    }
    if (!source->isReadable() || !isPlainFileName(m_fileName)) {
        return false;
    }
    const QByteArray name = QFile::encodeName(m_fileName);
    const int handle = openEmptyFile(name);
    QFile target;
    if (handle < 0
        || !target.open(handle, QIODevice::WriteOnly | QIODevice::Unbuffered,
                        QFileDevice::AutoCloseHandle)) {
        return false;
    }
    const bool copied = copyAll(source, &target);
    target.close();
    source->close();
    // Closing is where a network file system reports what it could not store.
    if (!copied || target.error() != QFileDevice::NoError) {
        ::unlink(name.constData());
        return false;
    }
    return true;
}

void ArchiveDeb::install(QProcess *proc)
{
    Q_EMIT installStarted();
    const InstallCommand command = installCommand();
    if (writeInstallScript(command.script)) {
        proc->start(command.program, command.arguments);
        return;
    }
    failInstallation(
        proc, QStringLiteral("Could not write ./RVinstall.sh: %1").arg(qt_error_string(errno)),
        m_paths);
}

InstallCommand ArchiveDeb::installCommand() const
{
    return {m_paths.shell, {QStringLiteral("./RVinstall.sh")}, unlockedScript(installCommandLine)};
}

void ArchiveDeb::setProxy(const QString &host, int port)
{
    Q_UNUSED(host)
    Q_UNUSED(port)
}

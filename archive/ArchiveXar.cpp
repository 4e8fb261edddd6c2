// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "archive/ArchiveXar.h"

#include "archive/InstallScript.h"
#include "core/LocalCopy.h"
#include "core/RVLogger.h"
#include "core/RVSum.h"
#include "core/XarToc.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <archive.h>
#include <archive_entry.h>
#include <cerrno>
#include <clocale>
#include <limits>
#include <memory>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>
#include <vector>

namespace
{

constexpr int maxMembers = 20000;
// Left over for the rest of the system, which shares the disk.
constexpr qint64 spareBytes = 64LL * 1024 * 1024;
constexpr std::size_t blockSize = 65536;

using Reader = std::unique_ptr<archive, decltype(&archive_read_free)>;
using Writer = std::unique_ptr<archive, decltype(&archive_write_free)>;

/// The archive library converts names from the archive's UTF-8 to the thread's locale and refuses
/// those that do not fit in. For as long as this lives, all do, and names arrive as the bytes they
/// are.
class Utf8Locale
{
public:
    Utf8Locale()
        : m_locale(::newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr))
        , m_before(m_locale ? ::uselocale(m_locale) : nullptr)
    {
    }
    ~Utf8Locale()
    {
        if (m_locale) {
            ::uselocale(m_before);
            ::freelocale(m_locale);
        }
    }

private:
    Q_DISABLE_COPY_MOVE(Utf8Locale)

    const locale_t m_locale;
    const locale_t m_before;
};

Reader openArchive(QFile *file)
{
    Reader reader(archive_read_new(), &archive_read_free);
    ::lseek(file->handle(), 0, SEEK_SET);
    if (archive_read_support_format_xar(reader.get()) != ARCHIVE_OK
        || archive_read_open_fd(reader.get(), file->handle(), blockSize) != ARCHIVE_OK) {
        reader.reset();
    }
    return reader;
}

Writer makeWriter()
{
    Writer writer(archive_write_disk_new(), &archive_write_free);
    archive_write_disk_set_options(
        writer.get(),
        ARCHIVE_EXTRACT_PERM | ARCHIVE_EXTRACT_TIME | ARCHIVE_EXTRACT_SECURE_NODOTDOT
            | ARCHIVE_EXTRACT_SECURE_NOABSOLUTEPATHS | ARCHIVE_EXTRACT_SECURE_SYMLINKS);
    return writer;
}

/// Goes on to the next member; false after the last one, or when the archive cannot be read on.
bool readNext(archive *reader, archive_entry **entry, int *result)
{
    *result = archive_read_next_header(reader, entry);
    return *result != ARCHIVE_EOF && *result != ARCHIVE_FATAL;
}

/// A path that names something below the current directory, and one thing only.
bool isPlainPath(const QByteArray &path)
{
    const QByteArrayList components = path.split('/');
    return std::none_of(components.begin(), components.end(), [](const QByteArray &component) {
        return component.isEmpty() || component == "." || component == "..";
    });
}

enum class Kind {
    Nothing,
    Directory,
    Other,
};

Kind kindOf(const QByteArray &path)
{
    struct stat status = {};
    if (::lstat(path.constData(), &status) != 0) {
        return Kind::Nothing;
    }
    return S_ISDIR(status.st_mode) ? Kind::Directory : Kind::Other;
}

/// The directories on the way to `path`, outermost first.
QByteArrayList parents(const QByteArray &path)
{
    QByteArrayList result;
    for (int end = path.indexOf('/'); end > 0; end = path.indexOf('/', end + 1)) {
        result.append(path.left(end));
    }
    return result;
}

/// Whether no link or file is in the way to `path`.
bool isReachable(const QByteArray &path)
{
    const QByteArrayList way = parents(path);
    return std::none_of(way.begin(), way.end(), [](const QByteArray &parent) {
        return kindOf(parent) == Kind::Other;
    });
}

/// Unpacks members into the current directory and remembers what that added to it.
class Unpacking
{
public:
    Unpacking()
        : m_writer(makeWriter())
    {
    }

    /// False when the member is refused or damaged; the next one can follow all the same.
    bool unpack(archive *reader, archive_entry *entry);
    /// False when something could not be completed.
    bool finish() { return archive_write_close(m_writer.get()) == ARCHIVE_OK; }
    /// Removes what was added; before finish(), which may close directories to their owner.
    void undo();

private:
    Q_DISABLE_COPY_MOVE(Unpacking)

    struct Mode {
        QByteArray path;
        mode_t mode;
    };

    void remember(const QByteArray &path, bool isDirectory);
    bool copyContents(archive *reader, archive_entry *entry);

    Writer m_writer;
    QByteArrayList m_added;
    /// Of the directories that were there before, and take the mode that a member gives them.
    std::vector<Mode> m_modes;
};

bool Unpacking::unpack(archive *reader, archive_entry *entry)
{
    const QByteArray path(archive_entry_pathname(entry));
    const char *original = archive_entry_hardlink(entry);
    const auto type = archive_entry_filetype(entry);
    const bool isKnownType = type == AE_IFREG || type == AE_IFDIR || type == AE_IFLNK || original;
    if (!isKnownType || !isPlainPath(path) || !isReachable(path)
        || (original && (!isPlainPath(original) || !isReachable(original)))) {
        return false;
    }
    archive_entry_set_perm(entry, archive_entry_perm(entry) & 01777U);
    remember(path, type == AE_IFDIR);
    return archive_write_header(m_writer.get(), entry) == ARCHIVE_OK
        && (original || type != AE_IFREG || copyContents(reader, entry))
        && archive_write_finish_entry(m_writer.get()) == ARCHIVE_OK;
}

bool Unpacking::copyContents(archive *reader, archive_entry *entry)
{
    const void *block = nullptr;
    std::size_t length = 0;
    la_int64_t offset = 0;
    int result = ARCHIVE_OK;
    while ((result = archive_read_data_block(reader, &block, &length, &offset)) == ARCHIVE_OK) {
        // More than was announced is more than there may be room for.
        if (offset + static_cast<la_int64_t>(length) > archive_entry_size(entry)
            || archive_write_data_block(m_writer.get(), block, length, offset) != ARCHIVE_OK) {
            return false;
        }
    }
    return result == ARCHIVE_EOF;
}

void Unpacking::remember(const QByteArray &path, bool isDirectory)
{
    // With the directories that are made on the way; a file that a member replaces goes with it.
    for (const QByteArray &parent : parents(path)) {
        if (kindOf(parent) == Kind::Nothing) {
            m_added.append(parent);
        }
    }
    struct stat status = {};
    if (isDirectory && ::lstat(path.constData(), &status) == 0 && S_ISDIR(status.st_mode)) {
        m_modes.push_back({path, status.st_mode & 07777U});
    } else {
        m_added.append(path);
    }
}

void Unpacking::undo()
{
    // What came last goes first, so that everything is again as it was when the path was added.
    for (auto path = m_added.crbegin(); path != m_added.crend(); ++path) {
        if (isReachable(*path) && ::unlink(path->constData()) != 0) {
            ::rmdir(path->constData());
        }
    }
    // It gives directories their modes at its end.
    m_writer.reset();
    for (auto was = m_modes.crbegin(); was != m_modes.crend(); ++was) {
        if (isReachable(was->path) && kindOf(was->path) == Kind::Directory) {
            ::chmod(was->path.constData(), was->mode);
        }
    }
}

/// The sizes of all members, as announced; -1 when an announcement cannot be true.
qint64 announcedSize(QFile *file)
{
    const Reader reader = openArchive(file);
    archive_entry *entry = nullptr;
    int result = ARCHIVE_OK;
    qint64 total = 0;
    while (reader && readNext(reader.get(), &entry, &result)) {
        const qint64 size = archive_entry_size(entry);
        if (size < 0) {
            return -1;
        }
        total = saturatingSum(total, size);
    }
    return total;
}

/// Bytes free for us where the current directory is; -1 when that cannot be told. (QStorageInfo
/// goes by the table of mounts, which in a container need not name this place.)
qint64 freeSpace()
{
    struct statvfs status = {};
    if (::statvfs(".", &status) != 0) {
        return -1;
    }
    const quint64 blocks = status.f_bavail;
    const quint64 size = status.f_frsize;
    constexpr quint64 most = std::numeric_limits<qint64>::max();
    return static_cast<qint64>(size != 0 && blocks > most / size ? most : blocks * size);
}

bool isWithinBounds(QFile *file)
{
    XarToc table;
    if (!table.read(file)) {
        return false;
    }
    if (table.memberCount() > maxMembers) {
        RVLogger().log(3, "The xar archive holds %d members, more than %d", table.memberCount(),
                       maxMembers);
        return false;
    }
    const qint64 size = announcedSize(file);
    const qint64 available = freeSpace();
    if (size < 0 || size > available - spareBytes) {
        RVLogger().log(3, "The xar archive needs %lld bytes, of %lld that are free",
                       static_cast<long long>(size), static_cast<long long>(available));
        return false;
    }
    return true;
}

bool unpackAll(QFile *file)
{
    const Reader reader = openArchive(file);
    if (!reader) {
        return false;
    }
    Unpacking unpacking;
    archive_entry *entry = nullptr;
    bool isWhole = true;
    int result = ARCHIVE_OK;
    while (readNext(reader.get(), &entry, &result)) {
        isWhole = result == ARCHIVE_OK && unpacking.unpack(reader.get(), entry) && isWhole;
    }
    isWhole = isWhole && result == ARCHIVE_EOF;
    if (isWhole && unpacking.finish()) {
        return true;
    }
    unpacking.undo();
    return false;
}

} // namespace

ArchiveXar::ArchiveXar(const QUrl &url, QObject *parent, const RVPaths &paths)
    : ArchiveBaseClass(url, parent)
    , m_paths(paths)
    , m_urlHandled(
          !url.isEmpty()
          && QFileInfo(url.path()).suffix().compare(QLatin1String("xar"), Qt::CaseInsensitive) == 0)
{
}

ArchiveXar::~ArchiveXar() = default;

bool ArchiveXar::extract(QIODevice *source) const
{
    const Utf8Locale locale;
    LocalCopy archive;
    return archive.take(source) && archive.file()->size() > 0 && isWithinBounds(archive.file())
        && unpackAll(archive.file());
}

void ArchiveXar::install(QProcess *proc)
{
    Q_EMIT installStarted();
    // The first one as the directory lists it; a service pack has one directory at its top.
    QDir current(QDir::currentPath());
    current.setSorting(QDir::Unsorted);
    QString directory;
    for (const QFileInfo &entry : current.entryInfoList()) {
        if (entry.fileName() != QLatin1String(".") && entry.fileName() != QLatin1String("..")
            && entry.isDir() && !entry.isSymLink()) {
            directory = entry.fileName();
            break;
        }
    }
    RVLogger().log(5, "Installing xar archive %s", RVLogger::oneLine(m_url).constData());
    const InstallCommand command = installCommand();
    proc->start(command.program, {command.arguments.constFirst().arg(directory)});
}

InstallCommand ArchiveXar::installCommand() const
{
    return {m_paths.xarInstaller, {QStringLiteral("--extrdir=%1")}, {}};
}

void ArchiveXar::setProxy(const QString &host, int port)
{
    Q_UNUSED(host)
    Q_UNUSED(port)
}

void ArchiveXar::installAll(QProcess *proc)
{
    Q_EMIT installStarted();
    const InstallCommand command = installAllCommand();
    if (writeInstallScript(command.script)) {
        proc->start(command.program, command.arguments);
        return;
    }
    failInstallation(
        proc, QStringLiteral("Could not write ./RVinstall.sh: %1").arg(qt_error_string(errno)),
        m_paths);
}

InstallCommand ArchiveXar::installAllCommand() const
{
    const QByteArray installer = '\'' + m_paths.xarInstaller.toUtf8().replace("'", "'\\''") + '\'';
    const QByteArrayList lines{
        "#!/bin/bash",
        "batch=$PWD",
        "for pack in \"$batch\"/[0-9]*/; do",
        "    cd \"$pack\" || exit 1",
        "    directory=",
        "    for entry in *; do",
        "        if [ -d \"$entry\" ] && [ ! -L \"$entry\" ]; then",
        "            directory=$entry",
        "            break",
        "        fi",
        "    done",
        "    " + installer + " \"--extrdir=$directory\"",
        "    status=$?",
        "    echo $status >\"${pack%/}.status\"",
        "    [ $status -eq 0 ] || exit $status",
        "done",
    };
    return {m_paths.shell, {QStringLiteral("./RVinstall.sh")}, lines.join('\n') + '\n'};
}

QString ArchiveXar::packFolder(int index)
{
    // As wide as any: the script goes by the order of the names.
    return QStringLiteral("%1").arg(index + 1, 6, 10, QLatin1Char('0'));
}

int ArchiveXar::packExitCode(int index)
{
    QFile file(packFolder(index) + QStringLiteral(".status"));
    bool isNumber = false;
    const int code = file.open(QIODevice::ReadOnly) ? file.read(8).trimmed().toInt(&isNumber) : -1;
    return isNumber ? code : -1;
}

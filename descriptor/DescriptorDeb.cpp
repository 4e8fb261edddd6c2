// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "descriptor/DescriptorDeb.h"

#include "core/LocalCopy.h"
#include "core/RVLogger.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryFile>

#include <apt-pkg/debfile.h>
#include <apt-pkg/error.h>
#include <apt-pkg/fileutl.h>

#include <cstdlib>
#include <string>

namespace
{

// Bounds of a package's control archive, packed and unpacked; the largest ones of the distribution
// are a tenth of it.
constexpr int maxControlBytes = 16 * 1024 * 1024;
constexpr int maxMembers = 1000;

/// The package library's messages go onto one stack for the whole process, and as long as an error
/// lies there every later operation fails. This keeps one operation's messages to itself and logs
/// them.
class ErrorGuard
{
public:
    ErrorGuard() { _error->PushToStack(); }
    ~ErrorGuard()
    {
        std::string message;
        while (!_error->empty()) {
            _error->PopMessage(message);
            RVLogger().log(4, "%s", message.c_str());
        }
        _error->RevertToStack();
    }

private:
    Q_DISABLE_COPY_MOVE(ErrorGuard)
};

/// A number field of an archive's header: digits alone, padded with blanks or NULs; -1 for any
/// other.
qint64 number(QByteArray field, int base)
{
    const int end = field.indexOf('\0');
    field = field.left(end < 0 ? field.size() : end).trimmed();
    for (const char digit : field) {
        if (digit < '0' || digit >= '0' + base) {
            return -1;
        }
    }
    bool ok = true;
    const qint64 value = field.isEmpty() ? 0 : field.toLongLong(&ok, base);
    return ok ? value : -1;
}

bool isTarHeader(const QByteArray &block)
{
    unsigned int sum = 0;
    for (int i = 0; i < block.size(); ++i) {
        sum += i >= 148 && i < 156 ? ' ' : static_cast<unsigned char>(block.at(i));
    }
    return std::strtoul(block.mid(148, 8).constData(), nullptr, 8) == sum;
}

/// Whether no header of a tar archive announces more than the archive holds. Every block that could
/// be taken for a header is looked at, wherever the library may find itself, and the archive ends
/// in an end mark that none of them can jump over.
bool isTarSound(const QByteArray &tar)
{
    constexpr int blockSize = 512;
    const qint64 end = tar.size() - blockSize;
    if (end < 0 || tar.size() % blockSize != 0
        || tar.right(blockSize) != QByteArray(blockSize, '\0')) {
        return false;
    }
    for (int pos = 0; pos < end; pos += blockSize) {
        const QByteArray block = tar.mid(pos, blockSize);
        if (!isTarHeader(block)) {
            continue;
        }
        const qint64 size = number(block.mid(124, 12), 8);
        const qint64 blocks = (size + blockSize - 1) / blockSize;
        if (size < 0 || blocks > (end - pos) / blockSize - 1) {
            return false;
        }
    }
    return true;
}

/// Unpacks one control archive with the decoder that the library will use, up to the bound.
bool isControlSound(const QByteArray &packed, const QString &suffix)
{
    static const QStringList packings{
        QString(),
        QStringLiteral(".gz"),
        QStringLiteral(".xz"),
        QStringLiteral(".zst"),
        QStringLiteral(".bz2"),
        QStringLiteral(".lzma"),
    };
    QTemporaryFile file(QDir::tempPath() + QLatin1String("/XXXXXX") + suffix);
    if (!packings.contains(suffix) || !file.open() || file.write(packed) != packed.size()
        || !file.flush()) {
        return false;
    }
    FileFd reader;
    if (!reader.Open(file.fileName().toStdString(), FileFd::ReadOnly, FileFd::Extension)) {
        return false;
    }
    QByteArray tar;
    QByteArray piece(64 * 1024, Qt::Uninitialized);
    unsigned long long length = 0;
    do {
        if (!reader.Read(piece.data(), static_cast<unsigned long long>(piece.size()), &length)) {
            return false;
        }
        tar.append(piece.constData(), static_cast<int>(length));
    } while (length > 0 && tar.size() <= maxControlBytes);
    if (length > 0) {
        return false;
    }
    return isTarSound(tar);
}

/// Whether the library may be let loose on a package: it takes the sizes in the headers of the
/// control archive for granted and unpacks the "control" file into memory, whatever its size.
bool isPackageSound(QFile *package)
{
    if (package->read(8) != "!<arch>\n") {
        return false;
    }
    for (int member = 0; member < maxMembers; ++member) {
        const QByteArray header = package->read(60);
        if (header.size() < 60) {
            return true;
        }
        QByteArray name = header.left(16);
        while (name.endsWith(' ') || name.endsWith('/')) {
            name.chop(1);
        }
        const qint64 size = number(header.mid(48, 10), 10);
        if (size < 0 || name.startsWith("#1/") || !header.endsWith("`\n")) {
            return false;
        }
        const qint64 next = package->pos() + size + size % 2;
        const QByteArray controlName("control.tar");
        if (name.startsWith(controlName)
            && (size > maxControlBytes || size > package->size() - package->pos()
                || !isControlSound(package->read(size),
                                   QString::fromLatin1(name.mid(controlName.size()))))) {
            return false;
        }
        if (!package->seek(next)) {
            return true;
        }
    }
    return false;
}

bool readControl(QFile *package, debDebFile::MemControlExtract *control)
{
    if (!isPackageSound(package)) {
        return false;
    }
    FileFd file;
    if (!file.Open(package->fileName().toStdString(), FileFd::ReadOnly, 0666)) {
        return false;
    }
    debDebFile deb(file);
    return control->Read(deb) && control->Control;
}

QString toText(const std::string &value)
{
    return QString::fromLatin1(value.data(), static_cast<int>(value.size()));
}

/// A text that starts on the line below the field's name keeps the line feed, which the library's
/// plain look-up drops.
QString descriptionText(const pkgTagSection &section)
{
    const QString raw = toText(section.FindRawS("Description"));
    int start = 0;
    while (start < raw.size()
           && (raw.at(start) == QLatin1Char(' ') || raw.at(start) == QLatin1Char('\t'))) {
        ++start;
    }
    return raw.midRef(start).startsWith(QLatin1Char('\n')) ? raw.mid(start)
                                                           : toText(section.FindS("Description"));
}

/// Leaves `bytes` alone unless `kibibytes` is a decimal integer.
void toBytes(const QString &kibibytes, qint64 *bytes)
{
    static const QRegularExpression decimal(QStringLiteral("\\A[+-]?[0-9]+\\z"));
    bool ok = false;
    const int value = kibibytes.toInt(&ok);
    if (ok && decimal.match(kibibytes).hasMatch()) {
        // A product of 32 bits that wraps from 2 GiB on: the sizes shown have always been these.
        *bytes = static_cast<qint32>(static_cast<quint32>(value) * 1024U);
    }
}

} // namespace

DescriptorDeb::DescriptorDeb(const QUrl &url, QObject *parent)
    : DescriptorBaseClass(url, parent)
    , m_urlHandled(
          !url.isEmpty()
          && QFileInfo(url.path()).suffix().compare(QLatin1String("deb"), Qt::CaseInsensitive) == 0)
{
}

DescriptorDeb::~DescriptorDeb() = default;

bool DescriptorDeb::read(QIODevice *source)
{
    LocalCopy package;
    if (!package.take(source)) {
        return false;
    }
    m_size = package.file()->size();
    if (m_size == 0) {
        return false;
    }
    debDebFile::MemControlExtract control("control");
    {
        const ErrorGuard guard;
        if (!readControl(package.file(), &control)) {
            RVLogger().log(4, ".deb file control read failed, url %s",
                           qUtf8Printable(m_url.toString()));
            return false;
        }
    }
    // The section that the extractor parsed itself: scanning its bytes again with their length
    // alone would lose the last field.
    const auto field = [&control](const char *name) {
        const std::string value = control.Section.FindS(name);
        return QString::fromLatin1(value.data(), static_cast<int>(value.size()));
    };

    const QString english = QStringLiteral("en");
    m_name.setValue(field("Package"), english);
    const QString description = descriptionText(control.Section);
    const int lineEnd = description.indexOf(QLatin1Char('\n'));
    m_title.setValue(lineEnd > 0 ? description.left(lineEnd) : description, english);
    m_notes.setValue(lineEnd > 0 ? description.mid(lineEnd + 1) : QString(), english);
    m_version = VersionString(field("Version"));
    const QString architecture = field("Architecture");
    m_architectureList.append(architecture.isEmpty() ? QStringLiteral("all") : architecture);
    m_contentFiles.append(
        QStringLiteral("%1 %2").arg(m_name.value(QString()), m_version.toString()));
    m_baseReleases.append(QStringLiteral("all"));
    toBytes(field("Installed-Size"), &m_installedSize);
    m_unpackedSize = m_size;
    m_thinClientList.append(QStringLiteral("all"));
    return true;
}

bool DescriptorDeb::read(QNetworkReply *reply)
{
    return read(static_cast<QIODevice *>(reply));
}

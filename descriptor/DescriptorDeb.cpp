// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "descriptor/DescriptorDeb.h"

#include "core/AptErrors.h"
#include "core/LocalCopy.h"
#include "core/RVLogger.h"

#include <QDir>
#include <QRegularExpression>
#include <QTemporaryFile>

#include <apt-pkg/aptconfiguration.h>
#include <apt-pkg/debfile.h>
#include <apt-pkg/fileutl.h>

#include <algorithm>
#include <string>
#include <vector>

namespace
{

// Of a package's control archive, packed and unpacked; the largest ones of the distribution are a
// tenth of it.
constexpr int maxControlBytes = 16 * 1024 * 1024;

/// Whether bytes that are packed as their suffix says come to no more than the bound.
bool isBounded(const QByteArray &packed, const std::string &suffix)
{
    QTemporaryFile file(QDir::tempPath() + QLatin1String("/XXXXXX")
                        + QString::fromStdString(suffix));
    if (!file.open() || file.write(packed) != packed.size() || !file.flush()) {
        return false;
    }
    FileFd reader;
    if (!reader.Open(file.fileName().toStdString(), FileFd::ReadOnly, FileFd::Extension)) {
        return false;
    }
    QByteArray piece(64 * 1024, Qt::Uninitialized);
    unsigned long long total = 0;
    unsigned long long length = 0;
    do {
        if (!reader.Read(piece.data(), static_cast<unsigned long long>(piece.size()), &length)) {
            return false;
        }
        total += length;
    } while (length > 0 && total <= maxControlBytes);
    return length == 0;
}

/// Whether the library may go and look for the control file: it unpacks what stands in front of it,
/// however much a megabyte of zeros comes to.
bool isControlBounded(QFile *package, debDebFile *deb)
{
    std::vector<std::string> suffixes = APT::Configuration::getCompressorExtensions();
    suffixes.emplace_back();
    return std::all_of(suffixes.begin(), suffixes.end(), [&](const std::string &suffix) {
        const auto *member = deb->GotoMember(("control.tar" + suffix).c_str());
        return !member
            || (member->Size <= maxControlBytes && package->seek(qint64(member->Start))
                && isBounded(package->read(qint64(member->Size)), suffix));
    });
}

bool readControl(QFile *package, debDebFile::MemControlExtract *control)
{
    FileFd file;
    if (!file.Open(QFile::encodeName(package->fileName()).toStdString(), FileFd::ReadOnly, 0666)) {
        return false;
    }
    debDebFile deb(file);
    return isControlBounded(package, &deb) && control->Read(deb) && control->Control;
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
    : DescriptorFields(url, QStringLiteral("deb"), parent)
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
        const AptErrors errors;
        if (!readControl(package.file(), &control)) {
            RVLogger().log(4, ".deb file control read failed, url %s",
                           RVLogger::oneLine(m_url).constData());
            return false;
        }
    }
    // The section that the extractor parsed itself: scanning its bytes again with their length
    // alone would lose the last field.
    const auto field = [&control](const char *name) {
        return toText(control.Section.FindS(name));
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

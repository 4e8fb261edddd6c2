// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "install/RVShown.h"

#include "core/RVText.h"
#include "descriptor/DataXML.h"
#include "descriptor/DescriptorGeneric.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

namespace
{

constexpr int longestValue = 100;

QString quoted(const QString &value)
{
    return QLatin1Char('\'') + RVText::safe(RVText::shortened(value, longestValue))
        + QLatin1Char('\'');
}

QString differs(const char *field, const QString &was, const QString &is)
{
    return QStringLiteral("The archive is not the one that was described: its %1 is %2, not %3.")
        .arg(QLatin1String(field), quoted(is), quoted(was));
}

QString withoutEpoch(const QString &version)
{
    static const QRegularExpression epoch(QStringLiteral("\\A[0-9]+:"));
    return QString(version).remove(epoch);
}

bool isSameVersion(const QString &a, const QString &b)
{
    // Each has lost what it had, or neither had one.
    const bool oneHasEpoch = (withoutEpoch(a) == a) != (withoutEpoch(b) == b);
    return oneHasEpoch ? withoutEpoch(a) == withoutEpoch(b) : a == b;
}

struct Field {
    const char *name = nullptr;
    QString was;
    QString is;
};

QVector<Field> fields(const DescriptorGeneric &was, const DescriptorGeneric &is)
{
    const auto list = [](const QStringList &values) {
        return values.join(QLatin1Char('\n'));
    };
    const QString english = QStringLiteral("en");
    return {
        {"name", was.name(english), is.name(english)},
        {"version", was.version().toString(), is.version().toString()},
        {"name", was.name({}), is.name({})},
        {"title", was.title(english), is.title(english)},
        {"title", was.title({}), is.title({})},
        {"description", was.contentNotes(english), is.contentNotes(english)},
        {"description", was.contentNotes({}), is.contentNotes({})},
        {"list of contents", list(was.contentFiles()), list(is.contentFiles())},
        {"list of base releases", list(was.baseReleases()), list(is.baseReleases())},
        {"list of architectures", list(was.architectureList()), list(is.architectureList())},
        {"list of models", list(was.thinClientList()), list(is.thinClientList())},
        {"size", QString::number(was.size()), QString::number(is.size())},
        {"unpacked size", QString::number(was.unpackedSize()), QString::number(is.unpackedSize())},
        {"installed size", QString::number(was.installedSize()),
         QString::number(is.installedSize())},
    };
}

QString plain(const QString &text)
{
    return DataXML::plainText(text).trimmed();
}

} // namespace

QString RVShown::difference(const RVData &entry, QFile *file)
{
    const auto &was = entry.descriptor();
    if (!was || !was->isUnderstood()) {
        return {};
    }
    const qint64 size = QFileInfo(file->fileName()).size();
    DescriptorGeneric is(entry.archiveUrl());
    QFile archive(file->fileName());
    const bool isReadable = is.urlIsHandled() && is.read(&archive);
    if (entry.descriptorUrl() == entry.archiveUrl()) {
        if (!isReadable) {
            return QStringLiteral("The archive is not the one that was described: it does not "
                                  "describe itself any more.");
        }
        for (const Field &field : fields(*was, is)) {
            if (field.was != field.is) {
                return differs(field.name, field.was, field.is);
            }
        }
        return {};
    }
    const bool isPackage = QFileInfo(entry.archiveUrl().path())
                               .suffix()
                               .compare(QLatin1String("deb"), Qt::CaseInsensitive)
        == 0;
    if (!isPackage) {
        return was->size() >= 0 && was->size() != size
            ? differs("size", QString::number(was->size()), QString::number(size))
            : QString();
    }
    if (!isReadable) {
        return {};
    }
    const QString english = QStringLiteral("en");
    const QString name = plain(was->name(english));
    if (!name.isEmpty() && name != plain(is.name(english))) {
        return differs("name", name, is.name(english));
    }
    const QString version = plain(was->version().toString());
    if (!version.isEmpty() && !isSameVersion(version, plain(is.version().toString()))) {
        return differs("version", version, is.version().toString());
    }
    return {};
}

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/RVCtlAccess.h"
#include "cli/RVCtlCommand.h"
#include "cli/RVCtlOffers.h"
#include "cli/RVCtlText.h"
#include "core/RVText.h"
#include "core/RVUrl.h"
#include "descriptor/DataXML.h"

#include <QJsonArray>

namespace
{

constexpr int longestText = 2000;
constexpr int mostContents = 1000;

QStringList plain(const QStringList &list)
{
    QStringList result;
    for (const QString &text : list) {
        result.append(DataXML::plainText(text));
    }
    return result;
}

QString sizeText(qint64 bytes)
{
    if (bytes < 1024) {
        return RVCtlText::size(bytes);
    }
    return QStringLiteral("%1 (%2 bytes)").arg(RVCtlText::size(bytes)).arg(bytes);
}

QString toText(const RVCtlOffers::Entry &entry)
{
    const DescriptorGeneric &descriptor = *entry.description;
    const auto list = [](const QStringList &texts) {
        return RVText::shortened(plain(texts).join(QLatin1String(", ")), longestText);
    };
    QString text = RVCtlText::fields({
        {QStringLiteral("Name"), RVText::shortened(entry.name(), longestText)},
        {QStringLiteral("Title"), RVText::shortened(entry.title(), longestText)},
        {QStringLiteral("Version"), RVText::shortened(entry.version(), longestText)},
        {QStringLiteral("Installed"), entry.installed()},
        {QStringLiteral("Offered"),
         entry.isOffered() ? QStringLiteral("yes")
                           : QStringLiteral("no: ") + reasonWord(entry.reason)},
        {QStringLiteral("URI"), RVUrl::shown(entry.descriptor)},
        {QStringLiteral("Archive"), RVUrl::shown(entry.archive)},
        {QStringLiteral("For releases"), list(descriptor.baseReleases())},
        {QStringLiteral("For architectures"), list(descriptor.architectureList())},
        {QStringLiteral("For models"), list(descriptor.thinClientList())},
        {QStringLiteral("Update size"), sizeText(descriptor.size())},
        {QStringLiteral("Unpacked size"), sizeText(descriptor.unpackedSize())},
        {QStringLiteral("Installed size"), sizeText(descriptor.installedSize())},
    });
    const QStringList contents = plain(descriptor.contentFiles());
    if (!contents.isEmpty()) {
        text += QStringLiteral("Service pack contents:\n");
    }
    for (const QString &line : contents.mid(0, mostContents)) {
        text += QLatin1String("  ") + RVText::safe(RVText::shortened(line, longestText))
            + QLatin1Char('\n');
    }
    if (contents.size() > mostContents) {
        text += QStringLiteral("  and %1 more\n").arg(contents.size() - mostContents);
    }
    const QString notes = RVCtlText::notes(descriptor.contentNotes({}));
    if (!notes.isEmpty()) {
        text += QLatin1Char('\n') + RVText::safeLines(notes) + QLatin1Char('\n');
    }
    return text;
}

QJsonObject toJson(const RVCtlOffers::Entry &entry)
{
    const DescriptorGeneric &descriptor = *entry.description;
    QJsonObject object = entry.toJson();
    object.insert(QStringLiteral("baseReleases"),
                  QJsonArray::fromStringList(plain(descriptor.baseReleases())));
    object.insert(QStringLiteral("architectures"),
                  QJsonArray::fromStringList(plain(descriptor.architectureList())));
    object.insert(QStringLiteral("models"),
                  QJsonArray::fromStringList(plain(descriptor.thinClientList())));
    object.insert(QStringLiteral("contents"),
                  QJsonArray::fromStringList(plain(descriptor.contentFiles())));
    object.insert(QStringLiteral("notes"), descriptor.contentNotes({}));
    object.insert(QStringLiteral("notesText"), RVCtlText::notes(descriptor.contentNotes({})));
    return object;
}

} // namespace

RVCtlResult RVCtlCommands::details(const RVCtlCall &call)
{
    RVCtlResult result;
    QList<RVCtlOffers> sections;
    if (!RVCtlOffers::read(call, call.arguments.mid(0, 1), &sections, &result)) {
        return result;
    }
    if (sections.constFirst().failure().isSet()) {
        RVCtlOffers::judge(sections, &result);
        return result;
    }
    QString error;
    const RVCtlOffers::Entry *entry = sections.constFirst().find(call.arguments.at(1), &error);
    if (!entry) {
        return RVCtlResult::failed(RVCtlExit::Usage, error);
    }
    return {RVCtlExit::Done, toText(*entry), toJson(*entry), {}};
}

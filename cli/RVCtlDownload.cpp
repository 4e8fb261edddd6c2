// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/RVCtlAccess.h"
#include "cli/RVCtlCommand.h"
#include "cli/RVCtlDeadline.h"
#include "cli/RVCtlFetch.h"
#include "cli/RVCtlFolder.h"
#include "cli/RVCtlMessages.h"
#include "cli/RVCtlOffers.h"
#include "cli/RVCtlProgress.h"
#include "cli/RVCtlText.h"
#include "cli/RVCtlTrust.h"
#include "core/RVSum.h"
#include "core/RVUrl.h"
#include "install/RVFreeSpace.h"
#include "repository/RVRepDesc.h"
#include "repository/RVRepository.h"
#include "repository/RVTrust.h"

#include <QCommandLineParser>
#include <QJsonArray>

#include <algorithm>
#include <cerrno>

namespace
{

const QString toOption = QStringLiteral("to");
const QString allOption = QStringLiteral("all");
const QString againOption = QStringLiteral("again");

/// One file of the folder-to-be.
struct File {
    QUrl url;
    QByteArray name;
    /// -1 when it is not known.
    qint64 size = -1;
    bool isArchive = false;
    /// It has its name in the folder: since before this run, or fetched.
    bool isPresent = false;
    bool isFetched = false;
    /// Known already, and not fetched once more.
    QByteArray content;
    RVCtlFault fault;

    bool isMissing() const { return !isPresent && !isFetched && !fault.isSet(); }
};

/// Any number of updates, also of a section in which one is picked: nothing is installed.
bool select(const RVCtlOffers &section, const QStringList &names, bool isAll,
            QVector<RVCtlOffers::Entry> *chosen, QString *error)
{
    if (names.isEmpty() && !isAll) {
        return section.choose(names, RVCtlOffers::RunningImage::Refuse, chosen, error);
    }
    QVector<int> indices;
    for (const QString &name : names) {
        QVector<RVCtlOffers::Entry> one;
        if (!section.choose({name}, RVCtlOffers::RunningImage::Take, &one, error)) {
            return false;
        }
        indices.append(one.constFirst().index);
    }
    for (const RVCtlOffers::Entry &entry : section.entries()) {
        if (entry.isOffered() && (isAll || indices.contains(entry.index))) {
            chosen->append(entry);
        }
    }
    return true;
}

RVCtlFault targetFault(const QString &text)
{
    RVCtlFault fault;
    fault.kind = RVCtlFault::Target;
    fault.text = text;
    return fault;
}

void add(const QUrl &url, qint64 size, bool isArchive, QVector<File> *files)
{
    File file;
    file.url = url;
    file.name = RVCtlFolder::nameOf(url);
    file.size = size;
    file.isArchive = isArchive;
    for (const File &other : qAsConst(*files)) {
        if (other.url == url) {
            // Service packs that share a descriptor, archives that two filters pick.
            return;
        }
        if (!file.name.isEmpty() && other.name == file.name) {
            file.fault = targetFault(QStringLiteral("Another file has the same name."));
        }
    }
    if (file.name.isEmpty()) {
        file.fault = targetFault(QStringLiteral("The address does not end in a file name."));
    }
    files->append(file);
}

/// The descriptor before its archive: an archive that is there is described.
QVector<File> filesOf(const QVector<RVCtlOffers::Entry> &chosen)
{
    QVector<File> files;
    for (const RVCtlOffers::Entry &entry : chosen) {
        if (!entry.descriptor.isEmpty() && entry.descriptor != entry.archive) {
            add(entry.descriptor, -1, false, &files);
        }
        add(entry.archive, entry.description ? entry.description->size() : -1, true, &files);
    }
    return files;
}

/// A copy of a signed repository stays one.
void addList(const RVTrust &trust, QVector<File> *files)
{
    const auto add = [files](const QUrl &url, const QByteArray &content) {
        File file;
        file.url = url;
        file.name = RVCtlFolder::nameOf(url);
        file.size = content.size();
        file.content = content;
        files->append(file);
    };
    add(trust.listUrl(), trust.listText());
    if (trust.policy().kind == RVTrustPolicy::Signed) {
        add(trust.signatureUrl(), trust.signature());
    }
}

void store(File *file, const RVCtlFolder &folder)
{
    QFile part;
    file->isFetched = folder.begin(file->name, &part)
        && part.write(file->content) == file->content.size() && folder.complete(file->name, &part);
    if (!file->isFetched) {
        file->fault = targetFault(
            QStringLiteral("The file cannot be stored: %1").arg(qt_error_string(errno)));
        folder.drop(file->name);
    }
}

/// What is there already, and still the listed file.
bool isListed(const File &file, const RVTrust *trust, const RVCtlFolder &folder)
{
    QFile present(folder.path() + QLatin1Char('/') + QFile::decodeName(file.name));
    return !trust
        || (present.open(QIODevice::ReadOnly) && !trust->judge(file.url, &present).isSet());
}

QJsonObject toJson(const QVector<File> &files, const RVCtlFolder &folder)
{
    QJsonArray list;
    for (const File &file : files) {
        const bool isThere = !file.name.isEmpty() && !file.fault.isSet();
        list.append(QJsonObject{
            {QStringLiteral("url"), RVUrl::shown(file.url)},
            {QStringLiteral("file"),
             file.name.isEmpty() ? QJsonValue() : QJsonValue(QFile::decodeName(file.name))},
            {QStringLiteral("size"), isThere ? QJsonValue(folder.sizeOf(file.name)) : QJsonValue()},
            {QStringLiteral("fetched"), file.isFetched},
            {QStringLiteral("error"), file.fault.toJson()},
        });
    }
    return {{QStringLiteral("directory"), folder.path()}, {QStringLiteral("files"), list}};
}

QString toText(const QVector<File> &files)
{
    int fetched = 0;
    int present = 0;
    for (const File &file : files) {
        present += file.isPresent ? 1 : 0;
        fetched += file.isFetched ? 1 : 0;
    }
    return QStringLiteral("%1 files fetched, %2 already there.\n").arg(fetched).arg(present);
}

void judge(const QVector<File> &files, RVCtlResult *result)
{
    QVector<RVCtlFault> faults;
    for (const File &file : files) {
        if (file.fault.isSet()) {
            faults.append(file.fault);
        }
    }
    if (faults.isEmpty()) {
        return;
    }
    const bool hasArchive = std::any_of(files.cbegin(), files.cend(), [](const File &file) {
        return file.isArchive && !file.fault.isSet();
    });
    result->exit = hasArchive ? RVCtlExit::DoneInPart : RVCtlFault::exitFor(faults);
    result->error = QStringLiteral("%1 of %2 files could not be downloaded: %3")
                        .arg(faults.size())
                        .arg(files.size())
                        .arg(faults.constFirst().text);
}

/// As far as it is known.
qint64 bytesToFetch(const QVector<File> &files)
{
    qint64 total = 0;
    for (const File &file : files) {
        if (file.isMissing() && file.size > 0) {
            total = saturatingSum(total, file.size);
        }
    }
    return total;
}

/// Fetches what is missing, up to the first file that the list refuses if `endsThere`: false then.
bool fetchMissing(const RVCtlCall &call, const RVCtlFolder &folder, bool endsThere,
                  RVCtlFetch *fetch, QVector<File> *files)
{
    const qint64 total = bytesToFetch(*files);
    RVCtlProgress progress(&call.messages, QStringLiteral("Retrieving updates"));
    qint64 before = 0;
    for (File &file : *files) {
        if (!file.isMissing()) {
            continue;
        }
        // A descriptor's is not announced.
        const qint64 size = qMax<qint64>(0, file.size);
        const RVCtlFault fault = fetch->fetch(file.url, file.name, folder, [&](qint64 received) {
            if (total > 0) {
                progress.show(saturatingSum(before, qBound<qint64>(0, received, size)), total);
            }
        });
        if (call.deadline.isOver()) {
            return true;
        }
        if (fault.kind == RVCtlFault::Refused && endsThere) {
            return false;
        }
        file.fault = fault;
        file.isFetched = !fault.isSet();
        before = saturatingSum(before, size);
        if (fault.isSet()) {
            call.messages.error(QStringLiteral("%1: %2").arg(RVUrl::shown(file.url), fault.text));
        }
    }
    return true;
}

/// What the folder has and the new list does not is missing again; all of it fails without a list.
void holdAgainst(const RVTrust &trust, const RVCtlFolder &folder, QVector<File> *files)
{
    for (File &file : *files) {
        if (file.fault.isSet()) {
            continue;
        }
        if (trust.fault().isSet()) {
            file.fault.kind = RVCtlFault::Refused;
            file.fault.text = trust.fault().text;
        }
        if ((file.isPresent || file.isFetched) && !isListed(file, &trust, folder)) {
            file.isPresent = false;
            file.isFetched = false;
        }
    }
}

void fetchAll(const RVCtlCall &call, const RVCtlOffers &section, RVCtlAccess *access,
              const RVCtlFolder &folder, QVector<File> *files)
{
    RVCtlFetch fetch(*section.section().repository, access, &call.deadline);
    if (fetchMissing(call, folder, true, &fetch, files)) {
        return;
    }
    // The publisher may have been at work since the refresh, on what was fetched before as well.
    fetch.renewList();
    if (call.deadline.isOver()) {
        return;
    }
    holdAgainst(*fetch.trust, folder, files);
    if (fetch.trust->fault().isSet()) {
        call.messages.error(fetch.trust->fault().text);
    }
    fetchMissing(call, folder, false, &fetch, files);
}

} // namespace

QList<QCommandLineOption> RVCtlCommands::downloadOptions()
{
    QList<QCommandLineOption> options{
        {toOption, QStringLiteral("The folder; it is created if missing."), QStringLiteral("DIR")},
        {allOption, QStringLiteral("Download everything that is offered.")},
        {againOption, QStringLiteral("Also download what is already there.")},
    };
    return options + RVCtlAccess::options();
}

RVCtlResult RVCtlCommands::download(const RVCtlCall &call)
{
    const QStringList names = call.arguments.mid(1);
    const bool isAll = call.parser.isSet(allOption);
    if (call.parser.value(toOption).isEmpty()) {
        return RVCtlResult::failed(
            RVCtlExit::Usage,
            QStringLiteral("--to is missing: it names the folder to download into."));
    }
    if (isAll && !names.isEmpty()) {
        return RVCtlResult::failed(RVCtlExit::Usage,
                                   QStringLiteral("--all cannot be combined with names."));
    }
    RVCtlResult result;
    RVCtlAccess access(call.messages);
    QList<RVCtlOffers> sections;
    if (!RVCtlOffers::read(call, call.arguments.mid(0, 1), &access, &sections, &result)) {
        return result;
    }
    const RVCtlOffers &section = sections.constFirst();
    RVCtlOffers::judge(sections, &result);
    if (section.failure().isSet()) {
        result.json.insert(QStringLiteral("trust"),
                           RVCtlTrust::toJson(*section.section().repository));
        return result;
    }
    QString error;
    QVector<RVCtlOffers::Entry> chosen;
    if (!select(section, names, isAll, &chosen, &error)) {
        return RVCtlResult::failed(RVCtlExit::Usage, error);
    }
    RVCtlFolder folder;
    if (!folder.open(call.parser.value(toOption), &error)) {
        return RVCtlResult::failed(RVCtlExit::Failed, error);
    }

    const QSharedPointer<RVTrust> trust = section.section().repository->trust();
    QVector<File> files = filesOf(chosen);
    for (File &file : files) {
        const RVCtlFolder::State state =
            file.fault.isSet() ? RVCtlFolder::Missing : folder.state(file.name);
        file.isPresent = state == RVCtlFolder::Present && !call.parser.isSet(againOption)
            && isListed(file, trust.data(), folder);
        if (state == RVCtlFolder::Foreign) {
            file.fault = targetFault(QStringLiteral(
                "The folder already holds something that is not a regular file under that name."));
        }
    }
    if (const auto shortage = RVFreeSpace::shortage(bytesToFetch(files), folder.path())) {
        return RVCtlResult::failed(RVCtlExit::NoSpace, shortage->sentence().english());
    }
    if (std::any_of(files.cbegin(), files.cend(), [](const File &file) {
            return file.isMissing();
        })) {
        fetchAll(call, section, &access, folder, &files);
    }
    if (call.deadline.isOver()) {
        return result;
    }
    if (trust && !trust->fault().isSet() && !files.isEmpty()) {
        const int first = files.size();
        addList(*trust, &files);
        for (int i = first; i < files.size(); ++i) {
            store(&files[i], folder);
        }
    }
    result.json = toJson(files, folder);
    result.json.insert(QStringLiteral("trust"), RVCtlTrust::toJson(*section.section().repository));
    result.text = files.isEmpty() ? QStringLiteral("Nothing is new.\n") : toText(files);
    judge(files, &result);
    return result;
}

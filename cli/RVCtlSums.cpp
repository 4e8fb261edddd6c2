// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/RVCtlCommand.h"
#include "cli/RVCtlFolder.h"
#include "descriptor/ArchiveHead.h"
#include "repository/RVChecksums.h"

#include <QCommandLineParser>
#include <QCryptographicHash>
#include <QDir>
#include <QRegularExpression>

#include <cerrno>
#include <limits>

namespace
{

const QString idOption = QStringLiteral("id");
const QString validOption = QStringLiteral("valid-for");
const QString serialOption = QStringLiteral("serial");

constexpr int readAtOnce = 64 * 1024;
/// Ten years; a list that is valid for longer is valid for ever.
constexpr int longestDays = 3660;

/// "30d"; 0 when it is none.
int daysOf(const QString &text)
{
    static const QRegularExpression form(QStringLiteral("\\A([1-9][0-9]{0,3})d\\z"));
    const int days = form.match(text).captured(1).toInt();
    return days <= longestDays ? days : 0;
}

/// What lies beside the archives and is none of the repository.
bool isOurs(const QByteArray &name)
{
    return name == RVChecksums::fileName.toLatin1() || name.startsWith("SHA256SUMS.")
        || name.startsWith('.') || name.endsWith(".part");
}

/// So much of the file, from its start; empty when it cannot be read.
QByteArray sumOf(QFile *file, qint64 length)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    if (!file->seek(0)) {
        return {};
    }
    while (length > 0) {
        const QByteArray piece = file->read(qMin<qint64>(length, readAtOnce));
        if (piece.isEmpty()) {
            return {};
        }
        hash.addData(piece);
        length -= piece.size();
    }
    return hash.result();
}

/// -1 for what does not describe itself.
qint64 headOf(const QByteArray &name, QFile *file, const QStringList &all)
{
    const QByteArray lower = name.toLower();
    if (lower.endsWith(".xar")) {
        return ArchiveHead::lengthOfXar(file);
    }
    const bool isDescribed = all.contains(QFile::decodeName(name.chopped(4) + ".xml"));
    return lower.endsWith(".deb") && !isDescribed ? ArchiveHead::lengthOfDeb(file) : -1;
}

bool addFiles(const QDir &folder, RVChecksums *list, QString *error)
{
    const QStringList names =
        folder.entryList(QDir::Files | QDir::Hidden | QDir::System | QDir::NoSymLinks, QDir::Name);
    for (const QString &text : names) {
        const QByteArray name = QFile::encodeName(text);
        if (isOurs(name)) {
            continue;
        }
        QFile file(folder.filePath(text));
        if (!file.open(QIODevice::ReadOnly)) {
            *error = QStringLiteral("'%1' cannot be read: %2").arg(text, file.errorString());
            return false;
        }
        const QByteArray sum = sumOf(&file, file.size());
        if (sum.isEmpty()) {
            *error = QStringLiteral("'%1' changed while it was read.").arg(text);
            return false;
        }
        list->sums.insert(name, sum);
        const qint64 length = headOf(name, &file, names);
        if (length > 0 && length <= RVChecksums::maxHead) {
            list->heads.insert(name, {sumOf(&file, length), length});
        }
    }
    return true;
}

/// What the folder had until now; empty when there is none.
bool readOld(const QDir &folder, RVChecksums *old, QString *error)
{
    QFile file(folder.filePath(RVChecksums::fileName));
    if (!file.exists()) {
        return true;
    }
    QString reason;
    const auto list = file.open(QIODevice::ReadOnly)
        ? RVChecksums::parse(file.read(RVChecksums::maxBytes + 1), &reason)
        : std::nullopt;
    if (!list) {
        *error = QStringLiteral("The old list cannot be read (%1); give --id and --serial.")
                     .arg(reason.isEmpty() ? file.errorString() : reason);
        return false;
    }
    *old = *list;
    return true;
}

bool setHead(const RVCtlCall &call, const RVChecksums &old, RVChecksums *list, QString *error)
{
    const int days = daysOf(call.parser.value(validOption));
    if (days == 0) {
        *error =
            QStringLiteral("--valid-for takes a number of days, from 1d to %1d.").arg(longestDays);
        return false;
    }
    list->validUntil = QDateTime::currentDateTimeUtc().addDays(days);
    list->repositoryId =
        call.parser.isSet(idOption) ? call.parser.value(idOption) : old.repositoryId;
    if (!RVChecksums::isRepositoryId(list->repositoryId)) {
        *error = QStringLiteral("--id takes letters, digits, '.', '_' and '-', 100 of them at "
                                "most.");
        return false;
    }
    bool isNumber = true;
    const qint64 next = old.serial.value_or(0) == std::numeric_limits<qint64>::max()
        ? -1
        : old.serial.value_or(0) + 1;
    list->serial = call.parser.isSet(serialOption)
        ? call.parser.value(serialOption).toLongLong(&isNumber)
        : next;
    if (!isNumber || *list->serial < 0) {
        *error = QStringLiteral("--serial takes a number of 0 or more.");
        return false;
    }
    return true;
}

} // namespace

QList<QCommandLineOption> RVCtlCommands::sumsOptions()
{
    return {
        {idOption, QStringLiteral("The id of the repository; the default is the old list's."),
         QStringLiteral("ID")},
        {validOption, QStringLiteral("How long the list is valid, such as 30d."),
         QStringLiteral("DAYS")},
        {serialOption,
         QStringLiteral("The number of the list; the default is the old list's plus one."),
         QStringLiteral("N")},
    };
}

RVCtlResult RVCtlCommands::sums(const RVCtlCall &call)
{
    const QDir directory(call.arguments.constFirst());
    if (call.arguments.constFirst().isEmpty() || !directory.exists()) {
        return RVCtlResult::failed(
            RVCtlExit::Usage,
            QStringLiteral("'%1' is not a directory.").arg(call.arguments.constFirst()));
    }
    QString error;
    RVChecksums old;
    const bool isOldNeeded = !call.parser.isSet(idOption) || !call.parser.isSet(serialOption);
    RVChecksums list;
    if ((isOldNeeded && !readOld(directory, &old, &error)) || !setHead(call, old, &list, &error)) {
        return RVCtlResult::failed(RVCtlExit::Usage, error);
    }
    RVCtlFolder folder;
    if (!folder.open(directory.path(), &error) || !addFiles(directory, &list, &error)) {
        return RVCtlResult::failed(RVCtlExit::Failed, error);
    }
    const QByteArray text = list.toText();
    if (text.size() > RVChecksums::maxBytes) {
        return RVCtlResult::failed(
            RVCtlExit::Failed,
            QStringLiteral("The list would be longer than %1 bytes.").arg(RVChecksums::maxBytes));
    }
    const QByteArray name = RVChecksums::fileName.toLatin1();
    QFile part;
    if (!folder.begin(name, &part) || part.write(text) != text.size()
        || !folder.complete(name, &part)) {
        const QString reason = qt_error_string(errno);
        folder.drop(name);
        return RVCtlResult::failed(RVCtlExit::Failed,
                                   QStringLiteral("The list cannot be written: %1").arg(reason));
    }
    return {RVCtlExit::Done,
            QStringLiteral("%1 files, serial %2, valid until %3. Sign it now:\n"
                           "  gpg --yes --detach-sign --output %4 %5\n")
                .arg(list.sums.size())
                .arg(*list.serial)
                .arg(list.validUntil.toString(Qt::ISODate), RVChecksums::signatureName,
                     RVChecksums::fileName),
            {{QStringLiteral("directory"), folder.path()},
             {QStringLiteral("repositoryId"), list.repositoryId},
             {QStringLiteral("serial"), QString::number(*list.serial)},
             {QStringLiteral("validUntil"), list.validUntil.toString(Qt::ISODate)},
             {QStringLiteral("files"), list.sums.size()},
             {QStringLiteral("heads"), list.heads.size()}},
            {}};
}

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "install/RVHistory.h"

#include "core/OSInfoBaseClass.h"
#include "core/RVLogger.h"
#include "core/RVOwnFolder.h"
#include "core/RVUrl.h"
#include "install/RVBatch.h"
#include "install/RVRunLock.h"
#include "repository/RVTrust.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QMap>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QUuid>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <grp.h>
#include <memory>
#include <pwd.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

const char currentFile[] = "history.jsonl";
const char olderFile[] = "history.1.jsonl";
const char lockFile[] = ".history.lock";
constexpr int longestName = 64;

const QString eventKey = QStringLiteral("event");
const QString beginEvent = QStringLiteral("begin");
const QString endEvent = QStringLiteral("end");
const QString itemsKey = QStringLiteral("items");
const QString moreKey = QStringLiteral("more");

/// On one line, not too long, and without the login of any address in it.
QString clean(const QString &text)
{
    static const QRegularExpression login(QStringLiteral("://[^/@\\s]*@"));
    QString result = QString::fromUtf8(RVLogger::oneLine(text));
    return result.replace(login, QStringLiteral("://"));
}

QString textOf(const QJsonObject &object, const char *key)
{
    return clean(object.value(QLatin1String(key)).toString());
}

/// Empty texts are left out.
void put(QJsonObject *object, const char *key, const QString &text)
{
    if (!text.isEmpty()) {
        object->insert(QLatin1String(key), clean(text));
    }
}

QString toText(const QDateTime &time)
{
    return time.toUTC().toString(Qt::ISODate);
}

QString userName(uid_t user)
{
    const passwd *entry = ::getpwuid(user);
    return entry ? QString::fromLocal8Bit(entry->pw_name) : QString::number(user);
}

/// Whom the system has as logged in, whatever user runs this.
QString loginName()
{
    char name[longestName] = {};
    return ::getlogin_r(name, sizeof name) == 0 ? QString::fromLocal8Bit(name) : QString();
}

QJsonObject toJson(const RVHistory::Item &item, bool isBegin, bool isEnd)
{
    QJsonObject object;
    put(&object, "name", item.name);
    put(&object, "from", item.from);
    put(&object, "to", item.to);
    if (isBegin) {
        put(&object, "source", item.source);
        put(&object, "signer", item.signer);
    }
    if (isEnd) {
        put(&object, "state", item.state);
        put(&object, "reason", item.reason);
    }
    return object;
}

/// As many items as fit into one line.
QByteArray lineOf(QJsonObject object, const RVHistory::Run &run, bool isBegin)
{
    object.insert(QStringLiteral("run"), run.id);
    constexpr int room = RVHistory::longestLine - 16 * 1024;
    QJsonArray items;
    int size = 0;
    for (const RVHistory::Item &item : run.items) {
        const QJsonObject entry = toJson(item, isBegin, !isBegin);
        size += QJsonDocument(entry).toJson(QJsonDocument::Compact).size() + 1;
        if (size > room) {
            break;
        }
        items.append(entry);
    }
    object.insert(itemsKey, items);
    const int more = run.more + run.items.size() - items.size();
    if (more > 0) {
        object.insert(moreKey, more);
    }
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

QByteArray beginLine(const RVHistory::Run &run)
{
    QJsonObject by;
    put(&by, "user", run.user);
    put(&by, "login", run.login);
    put(&by, "sudoUser", run.sudoUser);
    put(&by, "face", run.face);
    QJsonObject object{
        {eventKey, beginEvent},
        {QStringLiteral("time"), toText(run.begun)},
        {QStringLiteral("by"), by},
        {QStringLiteral("process"),
         QJsonObject{{QStringLiteral("id"), run.process},
                     {QStringLiteral("begin"), QString::fromLatin1(run.processBegin)}}},
    };
    put(&object, "section", run.section);
    put(&object, "kind", run.kind);
    return lineOf(object, run, true);
}

QByteArray endLine(const RVHistory::Run &run)
{
    QJsonObject object{
        {eventKey, endEvent},
        {QStringLiteral("time"), toText(run.ended)},
        {QStringLiteral("exitCode"), run.exitCode ? QJsonValue(*run.exitCode) : QJsonValue()},
        {QStringLiteral("restartNeeded"), run.isRestartNeeded},
    };
    put(&object, "output", run.output);
    if (run.isFoundLater) {
        object.insert(QStringLiteral("foundLater"), true);
    }
    return lineOf(object, run, false);
}

QDateTime timeIn(const QJsonObject &object)
{
    return QDateTime::fromString(object.value(QStringLiteral("time")).toString(), Qt::ISODate);
}

bool readBegin(const QJsonObject &object, RVHistory::Run *run)
{
    run->id = textOf(object, "run");
    run->begun = timeIn(object);
    const QJsonObject by = object.value(QStringLiteral("by")).toObject();
    run->user = textOf(by, "user");
    run->login = textOf(by, "login");
    run->sudoUser = textOf(by, "sudoUser");
    run->face = textOf(by, "face");
    run->section = textOf(object, "section");
    run->kind = textOf(object, "kind");
    const QJsonObject process = object.value(QStringLiteral("process")).toObject();
    run->process = static_cast<qint64>(process.value(QStringLiteral("id")).toDouble());
    run->processBegin = process.value(QStringLiteral("begin")).toString().toLatin1();
    run->more = qMax(0, object.value(moreKey).toInt());
    const QJsonArray items = object.value(itemsKey).toArray();
    for (const auto value : items) {
        const QJsonObject item = value.toObject();
        run->items.append({textOf(item, "name"),
                           textOf(item, "from"),
                           textOf(item, "to"),
                           textOf(item, "source"),
                           textOf(item, "signer"),
                           {},
                           {}});
    }
    return !run->id.isEmpty() && run->begun.isValid() && !run->items.isEmpty();
}

bool readEnd(const QJsonObject &object, RVHistory::Run *run)
{
    const QDateTime ended = timeIn(object);
    const QJsonArray items = object.value(itemsKey).toArray();
    if (!ended.isValid() || !run->isOpen()) {
        return false;
    }
    run->ended = ended;
    const QJsonValue exitCode = object.value(QStringLiteral("exitCode"));
    if (exitCode.isDouble()) {
        run->exitCode = exitCode.toInt();
    }
    run->isRestartNeeded = object.value(QStringLiteral("restartNeeded")).toBool();
    run->isFoundLater = object.value(QStringLiteral("foundLater")).toBool();
    run->output = textOf(object, "output");
    for (int i = 0; i < run->items.size() && i < items.size(); ++i) {
        const QJsonObject item = items.at(i).toObject();
        if (textOf(item, "name") == run->items.at(i).name) {
            run->items[i].from = textOf(item, "from");
            run->items[i].to = textOf(item, "to");
            run->items[i].state = textOf(item, "state");
            run->items[i].reason = textOf(item, "reason");
        }
    }
    return true;
}

/// A regular file of root's or our own that nobody else can write to, or null. Makes nothing.
std::unique_ptr<QFile> openForReading(const QString &folder, const char *name)
{
    const int directory = ::open(QFile::encodeName(folder).constData(),
                                 O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    if (directory < 0) {
        return nullptr;
    }
    const int handle =
        ::openat(directory, name, O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    ::close(directory);
    struct stat status = {};
    if (handle < 0) {
        return nullptr;
    }
    auto file = std::make_unique<QFile>();
    if (::fstat(handle, &status) != 0 || !S_ISREG(status.st_mode)
        || (status.st_uid != ::geteuid() && status.st_uid != 0)
        || (status.st_mode & (S_IWGRP | S_IWOTH)) != 0 || status.st_nlink != 1
        || !file->open(handle, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) {
        ::close(handle);
        return nullptr;
    }
    return file;
}

/// Reads the files of one folder.
class Reader
{
public:
    Reader(const QString &folder, qint64 largest)
        : m_folder(folder)
        , m_largest(largest)
    {
    }

    RVHistory::Reading read()
    {
        readFile(olderFile);
        readFile(currentFile);
        return m_reading;
    }

private:
    Q_DISABLE_COPY_MOVE(Reader)

    void readFile(const char *name);
    bool readLine(const QByteArray &line);

    const QString m_folder;
    const qint64 m_largest;
    RVHistory::Reading m_reading;
    QMap<QString, int> m_indexes;
};

void Reader::readFile(const char *name)
{
    const std::unique_ptr<QFile> file = openForReading(m_folder, name);
    if (!file) {
        return;
    }
    // Of a file that we did not let become so long, the end.
    bool isInside = file->size() > m_largest && file->seek(file->size() - m_largest);
    m_reading.damaged += isInside ? 1 : 0;
    qint64 left = m_largest;
    while (left > 0) {
        const QByteArray line = file->readLine(qMin<qint64>(RVHistory::longestLine, left) + 1);
        if (line.isEmpty()) {
            break;
        }
        left -= line.size();
        const bool isWhole = line.endsWith('\n');
        if (!isInside && (!isWhole || !readLine(line))) {
            ++m_reading.damaged;
        }
        isInside = !isWhole;
    }
}

bool Reader::readLine(const QByteArray &line)
{
    const QJsonObject object = QJsonDocument::fromJson(line).object();
    const QString event = object.value(eventKey).toString();
    if (event == beginEvent) {
        RVHistory::Run run;
        if (!readBegin(object, &run) || m_indexes.contains(run.id)) {
            return false;
        }
        m_indexes.insert(run.id, m_reading.runs.size());
        m_reading.runs.append(run);
        return true;
    }
    if (event == endEvent) {
        const auto index = m_indexes.constFind(textOf(object, "run"));
        // The beginning of the oldest went with its file.
        return index == m_indexes.cend() || readEnd(object, &m_reading.runs[*index]);
    }
    return false;
}

const QString packages = QStringLiteral("packages");
const QString servicePacks = QStringLiteral("service-packs");
const QString image = QStringLiteral("image");

QString kindWord(RVBatch::Kind kind)
{
    switch (kind) {
    case RVBatch::Kind::Packages:
        return packages;
    case RVBatch::Kind::ServicePacks:
        return servicePacks;
    case RVBatch::Kind::Image:
        return image;
    case RVBatch::Kind::Nothing:
    case RVBatch::Kind::Unknown:
        break;
    }
    return QStringLiteral("unknown");
}

bool isSame(const VersionString &a, const QString &b)
{
    return a.compare(VersionString(b), Qt::CaseSensitive) == 0;
}

bool isOnSystem(const RVHistory::Run &run, const RVHistory::Item &item,
                const OSInfoBaseClass &system)
{
    if (run.kind == packages) {
        const QString installed = system.versionInstalled(item.name);
        return !installed.isEmpty() && isSame(VersionString(installed), item.to);
    }
    if (run.kind == image) {
        return isSame(system.baseOSName(), item.to);
    }
    const QList<VersionString> packs = system.servicePackList();
    return run.kind == servicePacks
        && std::any_of(packs.cbegin(), packs.cend(), [&item](const VersionString &pack) {
               return isSame(pack, item.name);
           });
}

QString systemFolder(const RVPaths &paths)
{
    return paths.isEtcReadOnly() ? paths.writableStateDir : paths.stateDir;
}

/// Who may read what root writes.
std::optional<unsigned int> readers()
{
    const group *adm = ::geteuid() == 0 ? ::getgrnam("adm") : nullptr;
    return adm ? std::optional<unsigned int>(adm->gr_gid) : std::nullopt;
}

/// Everything or nothing, and on the disk: half a line would spoil the next one too.
bool appendTo(int file, QByteArray line)
{
    const off_t size = ::lseek(file, 0, SEEK_END);
    char last = '\n';
    if (size < 0 || (size > 0 && ::pread(file, &last, 1, size - 1) != 1)) {
        return false;
    }
    if (last != '\n') {
        // Another program came to its end inside a line.
        line.prepend('\n');
    }
    errno = ENOSPC;
    if (::write(file, line.constData(), static_cast<size_t>(line.size())) == line.size()
        && ::fsync(file) == 0) {
        return true;
    }
    const int error = errno;
    const bool isCut = ::ftruncate(file, size) == 0;
    Q_UNUSED(isCut)
    errno = error;
    return false;
}

} // namespace

void RVHistory::Run::setResult(const RVResult &result)
{
    for (int i = 0; i < qMin(items.size(), result.items.size()); ++i) {
        const RVItemResult &item = result.items.at(i);
        // Known only once the archive is read.
        items[i].from = item.from.isEmpty() ? items.at(i).from : clean(item.from);
        items[i].to = item.to.isEmpty() ? items.at(i).to : clean(item.to);
        items[i].state = item.stateWord();
        items[i].reason = clean(item.reason.english());
    }
    if (result.isInstallerStarted && result.exitStatus == QProcess::NormalExit) {
        exitCode = result.exitCode;
    }
    isRestartNeeded = result.count(RVItemResult::State::Arranged) > 0;
}

QJsonObject RVHistory::Run::toJson() const
{
    QJsonArray list;
    for (const Item &item : items) {
        list.append(QJsonObject{
            {QStringLiteral("name"), item.name},
            {QStringLiteral("from"), item.from.isEmpty() ? QJsonValue() : item.from},
            {QStringLiteral("to"), item.to.isEmpty() ? QJsonValue() : item.to},
            {QStringLiteral("source"), item.source.isEmpty() ? QJsonValue() : item.source},
            {QStringLiteral("signer"), item.signer.isEmpty() ? QJsonValue() : item.signer},
            {QStringLiteral("state"), item.state.isEmpty() ? QJsonValue() : item.state},
            {QStringLiteral("reason"), item.reason.isEmpty() ? QJsonValue() : item.reason},
        });
    }
    return {
        {QStringLiteral("begun"), toText(begun)},
        {QStringLiteral("ended"), isOpen() ? QJsonValue() : toText(ended)},
        {QStringLiteral("user"), user},
        {QStringLiteral("login"), login.isEmpty() ? QJsonValue() : login},
        {QStringLiteral("sudoUser"), sudoUser.isEmpty() ? QJsonValue() : sudoUser},
        {QStringLiteral("face"), face},
        {QStringLiteral("section"), section.isEmpty() ? QJsonValue() : section},
        {QStringLiteral("kind"), kind},
        {QStringLiteral("items"), list},
        {QStringLiteral("more"), more},
        {QStringLiteral("exitCode"), exitCode ? QJsonValue(*exitCode) : QJsonValue()},
        {QStringLiteral("restartNeeded"), isRestartNeeded},
        {QStringLiteral("output"), output.isEmpty() ? QJsonValue() : output},
        {QStringLiteral("foundLater"), isFoundLater},
    };
}

RVHistory::RVHistory(const RVPaths &paths, qint64 largest)
    : m_paths(paths)
    , m_largest(largest)
{
}

RVHistory::Run RVHistory::runOf(const RVBatch &batch, Face face, const QString &section)
{
    Run run;
    run.user = clean(userName(::getuid()));
    run.login = clean(loginName());
    run.sudoUser = clean(qEnvironmentVariable("SUDO_USER"));
    run.face = face == Face::Window ? QStringLiteral("window") : QStringLiteral("ravelctl");
    run.section = clean(section);
    run.kind = kindWord(batch.kind);
    run.process = ::getpid();
    run.processBegin = RVLockHolder::beginOf(run.process);
    for (const RVBatch::Item &item : batch.items) {
        const QUrl url = item.entry.archiveUrl().adjusted(QUrl::RemoveUserInfo);
        run.items.append({clean(item.name),
                          clean(item.installed),
                          clean(item.version),
                          clean(RVUrl::shown(url)),
                          item.entry.trust ? clean(item.entry.trust->signer()) : QString(),
                          {},
                          {}});
    }
    return run;
}

bool RVHistory::begin(Run *run)
{
    run->id = QUuid::createUuid().toString(QUuid::WithoutBraces);
    run->begun = QDateTime::currentDateTimeUtc();
    if (append(beginLine(*run))) {
        return true;
    }
    run->id.clear();
    return false;
}

bool RVHistory::end(Run *run)
{
    if (run->id.isEmpty() && !begin(run)) {
        return false;
    }
    run->ended = QDateTime::currentDateTimeUtc();
    return append(endLine(*run));
}

RVHistory::Judge RVHistory::judgeBy(const OSInfoBaseClass *system)
{
    return [system](Run *run) {
        const RVSentence missing(QT_TRANSLATE_NOOP(
            "RVSentence", "The program was ended before the installation was over."));
        for (Item &item : run->items) {
            if (isOnSystem(*run, item, *system)) {
                item.state = QStringLiteral("installed");
                item.reason.clear();
                continue;
            }
            // A service pack need not be listed, and an image may still wait for its restart.
            item.state = run->kind == packages ? QStringLiteral("failed")
                                               : QStringLiteral("not-confirmable");
            item.reason = missing.english();
        }
    };
}

int RVHistory::closeOpen(const Judge &judge)
{
    if (RVRunLock(m_paths).look() == RVRunLock::State::Busy) {
        return 0;
    }
    int closed = 0;
    for (Run &run : Reader(m_paths.stateFolder(), m_largest).read().runs) {
        const QByteArray processBegin = RVLockHolder::beginOf(run.process);
        const bool isAlive = !processBegin.isEmpty() && processBegin == run.processBegin;
        if (run.isOpen() && !isAlive) {
            judge(&run);
            run.isFoundLater = true;
            closed += end(&run) ? 1 : 0;
        }
    }
    return closed;
}

RVHistory::Reading RVHistory::read() const
{
    Reading reading = Reader(m_paths.stateFolder(), m_largest).read();
    if (::geteuid() != 0) {
        const Reading system = Reader(systemFolder(m_paths), m_largest).read();
        reading.runs += system.runs;
        reading.damaged += system.damaged;
        std::stable_sort(reading.runs.begin(), reading.runs.end(), [](const Run &a, const Run &b) {
            return a.begun < b.begun;
        });
    }
    return reading;
}

bool RVHistory::isEmpty() const
{
    QStringList folders{m_paths.stateFolder()};
    if (::geteuid() != 0) {
        folders.append(systemFolder(m_paths));
    }
    return std::none_of(folders.cbegin(), folders.cend(), [](const QString &folder) {
        const auto file = openForReading(folder, currentFile);
        return file && file->size() > 0;
    });
}

bool RVHistory::append(const QByteArray &line)
{
    const QString place = m_paths.stateFolder();
    const RVOwnFolder folder(place);
    if (folder.isOpen() && appendIn(folder, line)) {
        m_reason.clear();
        return true;
    }
    m_reason = QStringLiteral("'%1': %2").arg(place, qt_error_string(errno));
    return false;
}

bool RVHistory::appendIn(const RVOwnFolder &folder, const QByteArray &line)
{
    const std::optional<unsigned int> group = readers();
    if (group && !folder.shareWith(*group)) {
        return false;
    }
    // A file of its own, which no reader can lock.
    const int lock = folder.openFile(lockFile);
    const auto unlock = qScopeGuard([lock] {
        ::close(lock);
    });
    if (lock < 0 || ::flock(lock, LOCK_EX) != 0) {
        return false;
    }
    int file = folder.openFile(currentFile, group);
    struct stat status = {};
    if (file >= 0 && ::fstat(file, &status) == 0 && status.st_size > 0
        && status.st_size + line.size() + 1 > m_largest) {
        ::close(file);
        file = folder.renameFile(currentFile, olderFile) ? folder.openFile(currentFile, group) : -1;
    }
    if (file < 0) {
        return false;
    }
    const bool isStored = appendTo(file, line) && folder.sync();
    const int error = errno;
    ::close(file);
    errno = error;
    return isStored;
}

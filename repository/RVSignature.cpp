// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "repository/RVSignature.h"

#include "core/RVLogger.h"

#include <QHash>
#include <QProcess>
#include <QProcessEnvironment>
#include <QSet>

#include <array>
#include <csignal>
#include <fcntl.h>
#include <grp.h>
#include <linux/close_range.h>
#include <pwd.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

namespace
{

constexpr uid_t usualNobody = 65534;
constexpr long mostHandles = 65536;
/// SHA-256, SHA-384 and SHA-512 (RFC 4880 §9.4).
const QSet<QByteArray> &goodHashes()
{
    static const QSet<QByteArray> hashes{"8", "9", "10"};
    return hashes;
}

/// A binary document (RFC 4880 §5.2.1): a signature of a text would fit other line ends too.
constexpr char binaryDocument[] = "00";

/// Bytes that another process reads by a descriptor, and that nobody can change any more.
class SealedBytes
{
public:
    SealedBytes() = default;
    ~SealedBytes()
    {
        if (m_handle >= 0) {
            ::close(m_handle);
        }
    }

    bool set(const char *name, const QByteArray &bytes)
    {
        m_handle = ::memfd_create(name, MFD_CLOEXEC | MFD_ALLOW_SEALING);
        return m_handle >= 0
            && ::write(m_handle, bytes.constData(), static_cast<size_t>(bytes.size()))
            == bytes.size()
            && ::fcntl(m_handle, F_ADD_SEALS,
                       F_SEAL_SHRINK | F_SEAL_GROW | F_SEAL_WRITE | F_SEAL_SEAL)
            == 0;
    }
    int handle() const { return m_handle; }
    /// For the process that inherits it.
    QString path() const { return QStringLiteral("/proc/self/fd/%1").arg(m_handle); }

private:
    Q_DISABLE_COPY_MOVE(SealedBytes)

    int m_handle = -1;
};

class Verifier : public QProcess
{
public:
    explicit Verifier(QObject *parent)
        : QProcess(parent)
    {
        if (::geteuid() == 0) {
            const passwd *nobody = ::getpwnam("nobody");
            m_user = nobody ? nobody->pw_uid : usualNobody;
            m_group = nobody ? nobody->pw_gid : usualNobody;
        }
        QProcessEnvironment environment;
        // One at least: an empty environment would be the program's own.
        environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C"));
        setProcessEnvironment(environment);
        setWorkingDirectory(QStringLiteral("/"));
        setStandardInputFile(QProcess::nullDevice());
    }

    SealedBytes keys;
    SealedBytes signature;
    SealedBytes data;

protected:
    // Between fork and exec: nothing but system calls.
    void setupChildProcess() override
    {
        const rlimit none = {0, 0};
        const bool isSet = ::setrlimit(RLIMIT_CORE, &none) == 0
            && ::setrlimit(RLIMIT_FSIZE, &none) == 0 && dropRights()
            && ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0
            // A change of user takes it back: that comes after.
            && ::prctl(PR_SET_PDEATHSIG, SIGKILL) == 0;
        keepToOurselves();
        if (!isSet || !hand(keys) || !hand(signature) || !hand(data)) {
            ::_exit(126);
        }
    }

private:
    bool dropRights() const
    {
        return m_user == 0
            || (::setgroups(0, nullptr) == 0 && ::setresgid(m_group, m_group, m_group) == 0
                && ::setresuid(m_user, m_user, m_user) == 0);
    }
    /// Whatever else is open here.
    static void keepToOurselves()
    {
        constexpr unsigned int first = 3;
        if (::close_range(first, ~0U, CLOSE_RANGE_CLOEXEC) == 0) {
            return;
        }
        // Before Linux 5.11.
        const auto end = static_cast<int>(qMin(::sysconf(_SC_OPEN_MAX), mostHandles));
        for (int handle = first; handle < end; ++handle) {
            ::fcntl(handle, F_SETFD, FD_CLOEXEC);
        }
    }
    static bool hand(const SealedBytes &bytes) { return ::fcntl(bytes.handle(), F_SETFD, 0) == 0; }

    /// 0 where there are no rights to drop.
    uid_t m_user = 0;
    gid_t m_group = 0;
};

QByteArray lastLine(const QByteArray &messages)
{
    const QByteArray text = messages.trimmed();
    return RVLogger::oneLine(QString::fromUtf8(text.mid(text.lastIndexOf('\n') + 1)));
}

RVTrustFault bad(const QString &reason)
{
    return {RVTrustFault::BadSignature, reason};
}

/// Why a status line is enough to refuse; empty for all others.
QString refusal(const QList<QByteArray> &fields)
{
    static const QHash<QByteArray, QString> refusals{
        {"BADSIG", QStringLiteral("The signature does not belong to the list.")},
        {"ERRSIG", QStringLiteral("The signature cannot be checked.")},
        {"EXPSIG", QStringLiteral("The signature has expired.")},
        {"EXPKEYSIG", QStringLiteral("The key of the signature has expired.")},
        {"REVKEYSIG", QStringLiteral("The key of the signature was revoked.")},
    };
    // ERRSIG: key, its kind, hash, class, time, reason.
    constexpr int reasonField = 6;
    if (fields.constFirst() == "ERRSIG" && fields.value(reasonField) == "9") {
        return QStringLiteral("The signature is by a key that is not in the keyring.");
    }
    return refusals.value(fields.constFirst());
}

} // namespace

RVSignature::RVSignature(QObject *parent, const RVPaths &paths)
    : QObject(parent)
    , m_paths(paths)
{
    m_inactivity.setSingleShot(true);
    connect(&m_inactivity, &QTimer::timeout, this, [this] {
        fail(QStringLiteral("The signature could not be checked: '%1' does not answer.")
                 .arg(m_paths.signatureTool));
    });
}

RVSignature::~RVSignature()
{
    m_ended = true;
    if (m_process && m_process->state() != QProcess::NotRunning) {
        m_process->kill();
        m_process->waitForFinished(-1);
    }
}

void RVSignature::start(const QByteArray &data, const QByteArray &signature, const QByteArray &keys)
{
    auto *verifier = new Verifier(this);
    m_process = verifier;
    connect(verifier, &QProcess::readyReadStandardOutput, this, &RVSignature::take);
    connect(verifier, &QProcess::readyReadStandardError, this, &RVSignature::take);
    connect(verifier, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), this,
            [this](int code, QProcess::ExitStatus status) {
                processFinished(code, status == QProcess::NormalExit);
            });
    // From the event loop, as every other end.
    connect(
        verifier, &QProcess::errorOccurred, this,
        [this](QProcess::ProcessError error) {
            if (error == QProcess::FailedToStart) {
                fail(QStringLiteral("The signature cannot be checked: '%1' cannot be started.")
                         .arg(m_paths.signatureTool));
            }
        },
        Qt::QueuedConnection);
    if (!verifier->keys.set("keys", keys) || !verifier->signature.set("signature", signature)
        || !verifier->data.set("data", data)) {
        const QString reason = qt_error_string(errno);
        QMetaObject::invokeMethod(
            this,
            [this, reason] {
                fail(QStringLiteral("The signature cannot be checked: %1").arg(reason));
            },
            Qt::QueuedConnection);
        return;
    }
    m_inactivity.start(inactivityLimit);
    verifier->start(m_paths.signatureTool,
                    {QStringLiteral("--status-fd"), QStringLiteral("1"),
                     // Whether a time is right is not gpgv's to say: devices have no clock.
                     QStringLiteral("--ignore-time-conflict"),
                     // Nobody's: what lies in a home is not asked.
                     QStringLiteral("--homedir"), QStringLiteral("/nonexistent"),
                     QStringLiteral("--keyring"), verifier->keys.path(), QStringLiteral("--"),
                     verifier->signature.path(), verifier->data.path()});
}

void RVSignature::take()
{
    if (m_ended) {
        return;
    }
    m_inactivity.start(inactivityLimit);
    m_status += m_process->readAllStandardOutput();
    m_messages = (m_messages + m_process->readAllStandardError()).right(maxOutput);
    if (m_status.size() > maxOutput) {
        fail(QStringLiteral("The signature could not be checked: '%1' says too much.")
                 .arg(m_paths.signatureTool));
    }
}

void RVSignature::processFinished(int exitCode, bool isNormal)
{
    take();
    if (m_ended) {
        return;
    }
    if (!isNormal) {
        fail(QStringLiteral("The signature could not be checked: '%1' was ended.")
                 .arg(m_paths.signatureTool));
        return;
    }
    const Result result = judge(m_status);
    if (result.fault.isSet()) {
        refuse(result.fault);
    } else if (exitCode != 0) {
        refuse(bad(
            QStringLiteral("The signature is not valid; gpgv ended with code %1.").arg(exitCode)));
    } else {
        m_result = result;
        end();
    }
}

void RVSignature::fail(const QString &reason)
{
    refuse({RVTrustFault::NoVerifier, reason});
}

void RVSignature::refuse(const RVTrustFault &fault)
{
    if (m_ended) {
        return;
    }
    RVLogger().log(3, "%s %s", RVLogger::oneLine(fault.text).constData(),
                   lastLine(m_messages).constData());
    m_result = Result();
    m_result.fault = fault;
    end();
}

void RVSignature::end()
{
    m_ended = true;
    m_inactivity.stop();
    if (m_process->state() != QProcess::NotRunning) {
        m_process->kill();
    }
    Q_EMIT finished();
}

RVSignature::Result RVSignature::judge(const QByteArray &status)
{
    static const QByteArray prefix = QByteArrayLiteral("[GNUPG:] ");
    const auto refused = [](const QString &reason) {
        Result result;
        result.fault = bad(reason);
        return result;
    };
    const QString none = QStringLiteral("There is no signature of the list.");
    if (status.isEmpty()) {
        return refused(none);
    }
    Result result;
    int started = 0;
    int good = 0;
    int valid = 0;
    QList<QByteArray> validFields;
    QList<QByteArray> lines = status.split('\n');
    // Behind the last line feed; a line without one is none of gpgv's.
    const bool isWhole = lines.takeLast().isEmpty();
    for (const QByteArray &line : qAsConst(lines)) {
        if (!isWhole || !line.startsWith(prefix)) {
            return refused(QStringLiteral("What gpgv says of the signature is not understood."));
        }
        const QList<QByteArray> fields = line.mid(prefix.size()).split(' ');
        const QString reason = refusal(fields);
        if (!reason.isEmpty()) {
            return refused(reason);
        }
        if (fields.constFirst() == "NEWSIG") {
            ++started;
        } else if (fields.constFirst() == "GOODSIG") {
            ++good;
            result.signer =
                QString::fromUtf8(QByteArray::fromPercentEncoding(fields.mid(2).join(' ')));
        } else if (fields.constFirst() == "VALIDSIG") {
            ++valid;
            validFields = fields;
        }
    }
    if (started + good + valid == 0) {
        return refused(none);
    }
    if (started != 1 || good != 1 || valid != 1) {
        return refused(QStringLiteral("There is not exactly one good signature of the list."));
    }
    // VALIDSIG: fingerprint, date, time, expiry, version, reserved, key's kind, hash, class.
    constexpr int timeField = 3;
    constexpr int hashField = 8;
    constexpr int classField = 9;
    bool isTime = false;
    result.signedAt = validFields.value(timeField).toLongLong(&isTime);
    if (!isTime || result.signedAt <= 0) {
        return refused(QStringLiteral("The signature has no time."));
    }
    if (!goodHashes().contains(validFields.value(hashField))) {
        return refused(QStringLiteral("The signature uses a hash that is too weak."));
    }
    if (validFields.value(classField) != binaryDocument) {
        return refused(QStringLiteral("The signature is not one of a file as it stands."));
    }
    return result;
}

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/support/FtpServers.h"

#include <QCoreApplication>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QNetworkProxy>
#include <QPointer>
#include <QTcpSocket>

#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

constexpr int startTimeout = 20000;

QString nextAddress()
{
    static int last = 1;
    last = last % 250 + 1;
    return QStringLiteral("127.0.0.%1").arg(last);
}

/// Not through QFile, which decodes and encodes names by the locale.
bool writeRaw(const QByteArray &path, const QByteArray &content, mode_t mode)
{
    const int file = ::open(path.constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, mode);
    if (file < 0) {
        return false;
    }
    const bool written = ::fchmod(file, mode) == 0
        && ::write(file, content.constData(), static_cast<size_t>(content.size()))
            == content.size();
    ::close(file);
    return written;
}

/// The process that forks a server for each script: Python takes longer to start than most tests
/// take. It ends with the application.
class ScriptHost : public ServerProcess
{
public:
    /// The answer's number, 0 if there is none.
    static qint64 ask(const QByteArray &request)
    {
        static QPointer<ScriptHost> host;
        if (!host) {
            host = new ScriptHost;
        }
        host->write(request + '\n');
        while (!host->canReadLine()) {
            if (!host->waitForReadyRead(startTimeout)) {
                delete host;
                return 0;
            }
        }
        return host->readLine().trimmed().toLongLong();
    }

private:
    ScriptHost()
        : ServerProcess(AllRights)
    {
        setParent(QCoreApplication::instance());
        setStandardInputFile({});
        setProcessChannelMode(ForwardedErrorChannel);
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        // Names on disk may be no UTF-8 and are passed on as they are.
        environment.insert(QStringLiteral("PYTHONUTF8"), QStringLiteral("1"));
        setProcessEnvironment(environment);
        start(QStringLiteral("/usr/bin/python3"),
              {QStringLiteral(RAVEL_TEST_SUPPORT "/ftp_server.py")});
    }

    ~ScriptHost() override { killGroup(); }
};

} // namespace

FtpServer::FtpServer()
    : m_address(nextAddress())
    // Not below the test's own folder: nobody but its owner may be able to reach that one.
    , m_dir(QStringLiteral("/tmp/ravel-ftp-XXXXXX"))
{
    for (const QString &folder :
         {m_dir.path(), runFile({}), runFile(QStringLiteral("empty")), root()}) {
        ServerProcess::makeOpenFolder(folder);
    }
}

FtpServer::~FtpServer()
{
    // Qt cannot remove a file whose name is no UTF-8.
    std::error_code ignored;
    std::filesystem::remove_all(QFile::encodeName(root()).toStdString(), ignored);
}

bool FtpServer::start()
{
    stop();
    const bool keepsPort = m_port != 0;
    // Somebody else may take the port between the search and the start.
    for (int attempt = 0; attempt < (keepsPort ? 1 : 3); ++attempt) {
        if (!keepsPort) {
            m_port = ServerProcess::freePort(QHostAddress(m_address));
        }
        if (configure() && launch()) {
            return true;
        }
        m_report = program().toUtf8() + " did not start\n" + readRunFile(QStringLiteral("output"))
            + readRunFile(QStringLiteral("log"));
        const bool mayTryAgain = hasEnded();
        stop();
        if (!mayTryAgain) {
            break;
        }
    }
    if (!keepsPort) {
        m_port = 0;
    }
    return false;
}

const char *FtpServer::report()
{
    return m_report.constData();
}

bool FtpServer::write(const QByteArray &name, const QByteArray &content) const
{
    return writeRaw(QFile::encodeName(root()) + '/' + name, content, 0644);
}

bool FtpServer::makeDir(const QByteArray &name) const
{
    const QByteArray path = QFile::encodeName(root()) + '/' + name;
    return ::mkdir(path.constData(), 0755) == 0 && ::chmod(path.constData(), 0755) == 0;
}

QUrl FtpServer::url(const QString &path) const
{
    return QUrl(QStringLiteral("ftp://%1:%2").arg(m_address).arg(m_port) + path);
}

QString FtpServer::runFile(const QString &name) const
{
    return m_dir.filePath(QStringLiteral("run/")) + name;
}

bool FtpServer::writeRunFile(const QString &name, const QByteArray &content) const
{
    return writeRaw(QFile::encodeName(runFile(name)), content, 0644);
}

QByteArray FtpServer::readRunFile(const QString &name) const
{
    QFile file(runFile(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

FtpProgram::~FtpProgram()
{
    FtpProgram::stop();
}

bool FtpProgram::launch()
{
    m_process = std::make_unique<ServerProcess>(ServerProcess::AllRights);
    return m_process->launch(runFile({}), program(), arguments(), [this] {
        return isReady();
    });
}

bool FtpProgram::hasEnded() const
{
    return m_process && m_process->state() == QProcess::NotRunning;
}

void FtpProgram::stop()
{
    if (m_process) {
        // The sessions are children of the server.
        m_process->killGroup();
        m_process.reset();
    }
}

bool FtpProgram::isReady() const
{
    QTcpSocket socket;
    socket.setProxy(QNetworkProxy::NoProxy);
    socket.connectToHost(QHostAddress(address()), port());
    const bool greeted = socket.waitForConnected(1000) && socket.waitForReadyRead(5000)
        && socket.readAll().startsWith("220");
    socket.abort();
    return greeted;
}

bool VsftpdServer::canChroot()
{
    return ::geteuid() == 0;
}

QStringList VsftpdServer::arguments() const
{
    return {runFile(QStringLiteral("vsftpd.conf"))};
}

bool VsftpdServer::configure()
{
    QByteArray configuration = "listen=YES\nlisten_address=" + m_address.toLatin1()
        + "\nlisten_port=" + QByteArray::number(m_port)
        + "\nbackground=NO\nconnect_from_port_20=NO\nxferlog_enable=NO\n"
          // Its filter of system calls is older than the C library.
          "seccomp_sandbox=NO\n"
          "anonymous_enable=YES\nanon_world_readable_only=NO\n"
          // It enters this user's home before it goes to the root, so there has to be one.
          "ftp_username=daemon\n"
          "secure_chroot_dir="
        + runFile(QStringLiteral("empty")).toUtf8() + "\nvsftpd_log_file="
        + runFile(QStringLiteral("log")).toUtf8() + "\nanon_root=" + root().toUtf8() + '\n';
    if (m_jail == NotChrooted) {
        configuration += "run_as_launching_user=YES\n";
    }
    if (!m_password.isEmpty()) {
        configuration += "secure_email_list_enable=YES\nemail_password_file="
            + runFile(QStringLiteral("passwords")).toUtf8() + '\n';
    }
    return writeRunFile(QStringLiteral("passwords"), m_password.toUtf8() + '\n')
        && writeRunFile(QStringLiteral("vsftpd.conf"), configuration);
}

FtpScriptServer::~FtpScriptServer()
{
    FtpScriptServer::stop();
}

void FtpScriptServer::addUser(const QString &user, const QString &password)
{
    QJsonObject users = m_script.value(QLatin1String("users")).toObject();
    users.insert(user, password);
    m_script[QStringLiteral("users")] = users;
}

void FtpScriptServer::setListing(const QByteArray &listing)
{
    m_script[QStringLiteral("listing")] = QString::fromLatin1(listing);
}

void FtpScriptServer::refuse(const QString &step, const QString &answer)
{
    QJsonObject refused = m_script.value(QLatin1String("refuse")).toObject();
    refused.insert(step, answer);
    m_script[QStringLiteral("refuse")] = refused;
}

void FtpScriptServer::addTo(const QString &list, const QString &step)
{
    QJsonArray steps = m_script.value(list).toArray();
    steps.append(step);
    m_script[list] = steps;
}

QList<QByteArray> FtpScriptServer::commands() const
{
    QList<QByteArray> lines = readRunFile(QStringLiteral("commands")).split('\n');
    lines.removeAll(QByteArray());
    return lines;
}

int FtpScriptServer::count(const QByteArray &command) const
{
    return static_cast<int>(commands().count(command));
}

bool FtpScriptServer::configure()
{
    m_script[QStringLiteral("address")] = m_address;
    m_script[QStringLiteral("port")] = m_port;
    m_script[QStringLiteral("root")] = root();
    m_script[QStringLiteral("log")] = runFile(QStringLiteral("commands"));
    m_script[QStringLiteral("output")] = runFile(QStringLiteral("output"));
    QFile::remove(runFile(QStringLiteral("commands")));
    return writeRunFile(QStringLiteral("script.json"), QJsonDocument(m_script).toJson());
}

bool FtpScriptServer::launch()
{
    m_process =
        ScriptHost::ask("start " + QFile::encodeName(runFile(QStringLiteral("script.json"))));
    return m_process != 0;
}

void FtpScriptServer::stop()
{
    if (m_process != 0) {
        ScriptHost::ask("stop " + QByteArray::number(m_process));
        m_process = 0;
    }
}

QStringList FtpProxyServer::arguments() const
{
    return {QStringLiteral("-d"), QStringLiteral("-n"), QStringLiteral("-f"),
            runFile(QStringLiteral("ftp-proxy.conf"))};
}

bool FtpProxyServer::configure()
{
    return writeRunFile(QStringLiteral("ftp-proxy.conf"),
                        "[-Global-]\nServerType standalone\nListen " + m_address.toLatin1()
                            + "\nPort " + QByteArray::number(m_port)
                            + "\nDestinationAddress 127.0.0.1\nAllowMagicUser yes\n"
                              "ForkLimit 10000\nPidFile "
                            + runFile(QStringLiteral("pid")).toUtf8() + "\nLogDestination "
                            + runFile(QStringLiteral("log")).toUtf8() + '\n');
}

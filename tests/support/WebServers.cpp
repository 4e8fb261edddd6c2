// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/support/WebServers.h"

#include "tests/support/OrdinaryUser.h"

#include <QCryptographicHash>
#include <QFile>
#include <QNetworkProxy>
#include <QTcpSocket>

#include <unistd.h>

namespace
{

QByteArray contentOf(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// For a configuration file that has no other use for quotes.
QByteArray quoted(const QString &text)
{
    return '"' + text.toUtf8().replace('\\', "\\\\").replace('"', "\\\"") + '"';
}

QByteArray listenAddress(quint16 port)
{
    return "127.0.0.1:" + QByteArray::number(port);
}

} // namespace

WebServer::WebServer()
    // Not below the test's own folder: nobody but its owner may be able to reach that one.
    : m_dir(QStringLiteral("/tmp/ravel-web-XXXXXX"))
{
    for (const QString &folder : {m_dir.path(), runFile({}), root()}) {
        ServerProcess::makeOpenFolder(folder);
    }
    if (::geteuid() == 0
        && ::chown(QFile::encodeName(runFile({})).constData(), OrdinaryUser::id, OrdinaryUser::id)
            != 0) {
        qFatal("no folder for the test's server");
    }
}

WebServer::~WebServer()
{
    stop();
}

bool WebServer::start()
{
    stop();
    const bool keepsPorts = m_port != 0;
    // Somebody else may take a port between the search and the start.
    for (int attempt = 0; attempt < 5; ++attempt) {
        if (!keepsPorts) {
            m_port = ServerProcess::freePort(QHostAddress::LocalHost);
            m_tlsPort = ServerProcess::freePort(QHostAddress::LocalHost);
        }
        if (launch()) {
            return true;
        }
        m_report = program().toUtf8() + " did not start\n" + contentOf(errorLog())
            + contentOf(runFile(QStringLiteral("output")));
        stop();
        if (!m_report.contains("ddress already in use")) {
            break;
        }
    }
    if (!keepsPorts) {
        m_port = 0;
        m_tlsPort = 0;
    }
    return false;
}

bool WebServer::launch()
{
    QFile::remove(runFile(QStringLiteral("pid")));
    QFile::remove(errorLog());
    if (!configure()) {
        return false;
    }
    m_process = std::make_unique<ServerProcess>(ServerProcess::OrdinaryRights);
    return m_process->launch(runFile({}), program(), arguments(), [this] {
        return answers();
    });
}

/// The PID file tells it from a stranger on the same port: it is written once the port is ours.
bool WebServer::answers() const
{
    if (contentOf(runFile(QStringLiteral("pid"))).trimmed().isEmpty()) {
        return false;
    }
    QTcpSocket socket;
    socket.setProxy(QNetworkProxy::NoProxy);
    socket.connectToHost(QHostAddress(QHostAddress::LocalHost), m_port);
    const bool connected = socket.waitForConnected(1000);
    socket.abort();
    return connected;
}

void WebServer::stop()
{
    if (!m_process) {
        return;
    }
    if (m_process->processId() > 0) {
        m_process->terminate();
        if (!m_process->waitForFinished(5000)) {
            m_process->killGroup();
        }
    }
    m_process.reset();
}

const char *WebServer::report()
{
    return m_report.constData();
}

QUrl WebServer::url(const QString &path, const QString &host) const
{
    return QUrl(QStringLiteral("http://%1:%2").arg(host).arg(m_port) + path);
}

QStringList WebServer::requests() const
{
    return QString::fromUtf8(contentOf(runFile(QStringLiteral("access.log"))))
        .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

void WebServer::clearRequests()
{
    // Emptied in place: the server has it open for appending.
    QFile::resize(runFile(QStringLiteral("access.log")), 0);
}

QString WebServer::runFile(const QString &name) const
{
    return m_dir.filePath(QStringLiteral("run/")) + name;
}

bool WebServer::writeRunFile(const QString &name, const QByteArray &content)
{
    QFile file(runFile(name));
    return file.open(QIODevice::WriteOnly | QIODevice::Truncate)
        && file.write(content) == content.size()
        && file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup
                               | QFile::ReadOther);
}

QByteArray WebServer::passwordLine(const QString &user, const QString &password)
{
    QProcess openssl;
    openssl.start(QStringLiteral("openssl"),
                  {QStringLiteral("passwd"), QStringLiteral("-apr1"), password});
    openssl.waitForFinished(30000);
    return user.toUtf8() + ':' + openssl.readAllStandardOutput().trimmed() + '\n';
}

QStringList NginxServer::arguments() const
{
    return {QStringLiteral("-p"), runFile({}),
            QStringLiteral("-c"), runFile(QStringLiteral("nginx.conf")),
            QStringLiteral("-e"), errorLog()};
}

bool NginxServer::configure()
{
    QByteArray tls;
    if (!m_certificate.certificate.isEmpty()) {
        if (!writeRunFile(QStringLiteral("tls.pem"), contentOf(m_certificate.certificate))
            || !writeRunFile(QStringLiteral("tls.key"), contentOf(m_certificate.key))) {
            return false;
        }
        tls = "listen " + listenAddress(m_tlsPort)
            + " ssl;\nssl_certificate tls.pem;\nssl_certificate_key tls.key;\n";
    }
    QByteArray temporary;
    for (const char *user : {"client_body", "proxy", "fastcgi", "uwsgi", "scgi"}) {
        temporary +=
            QByteArray(user) + "_temp_path " + quoted(runFile(QLatin1String(user))) + ";\n";
    }
    return writeRunFile(
        QStringLiteral("nginx.conf"),
        "daemon off;\nmaster_process off;\npid " + quoted(runFile(QStringLiteral("pid")))
            + ";\nevents { worker_connections 256; }\nhttp {\n" + temporary
            + "log_format tests '$request_method $request_uri $status $remote_user';\n"
              "access_log "
            + quoted(runFile(QStringLiteral("access.log")))
            + " tests;\ndefault_type application/octet-stream;\n"
              "types { text/html html; text/xml xml; }\nserver {\nlisten "
            + listenAddress(m_port) + ";\n" + tls + "root " + quoted(root()) + ";\nautoindex on;\n"
            + m_directives + "}\n}\n");
}

QUrl NginxServer::tlsUrl(const QString &path, const QString &host) const
{
    return QUrl(QStringLiteral("https://%1:%2").arg(host).arg(m_tlsPort) + path);
}

void NginxServer::addLocation(const QString &path, const QByteArray &directives)
{
    const bool isFolder = path.endsWith(QLatin1Char('/'));
    addDirectives("location " + QByteArray(isFolder ? "" : "= ") + quoted(path) + " {\n"
                  + directives + "}");
}

void NginxServer::protect(const QString &path, const QString &user, const QString &password,
                          const QString &realm)
{
    const QString users = QStringLiteral("users-%1").arg(++m_userFiles);
    writeRunFile(users, passwordLine(user, password));
    addLocation(
        path, "auth_basic " + quoted(realm) + ";\nauth_basic_user_file " + users.toUtf8() + ";\n");
}

void NginxServer::answer(const QString &path, int status)
{
    const QByteArray code = QByteArray::number(status);
    const QByteArray page =
        status == 204 || status == 304 ? QByteArray() : " \"status " + code + "\"";
    addLocation(path, "default_type text/html;\nreturn " + code + page + ";\n");
}

void NginxServer::redirect(const QString &path, int status, const QString &target)
{
    addLocation(path, "return " + QByteArray::number(status) + ' ' + quoted(target) + ";\n");
}

void NginxServer::limitRate(const QString &path, int bytesPerSecond)
{
    addLocation(path, "limit_rate " + QByteArray::number(bytesPerSecond) + ";\n");
}

QStringList ApacheServer::arguments() const
{
    return {QStringLiteral("-DFOREGROUND"), QStringLiteral("-d"), runFile({}), QStringLiteral("-f"),
            runFile(QStringLiteral("apache.conf"))};
}

void ApacheServer::protect(const QString &path, const QString &user, const QString &password,
                           Login login, const QString &realm)
{
    const QString users = QStringLiteral("users-%1").arg(++m_userFiles);
    QByteArray line;
    if (login == Digest) {
        const QByteArray name = user.toUtf8() + ':' + realm.toUtf8() + ':';
        line = name
            + QCryptographicHash::hash(name + password.toUtf8(), QCryptographicHash::Md5).toHex()
            + '\n';
    } else {
        line = passwordLine(user, password);
    }
    writeRunFile(users, line);
    const QByteArray type = login == Digest ? "Digest" : "Basic";
    addDirectives("<Location " + quoted(path) + ">\nAuthType " + type + "\nAuth" + type
                  + "Provider file\nAuthName " + quoted(realm) + "\nAuthUserFile "
                  + quoted(runFile(users)) + "\nRequire valid-user\n</Location>");
}

bool ApacheServer::configure()
{
    QByteArray modules;
    for (const char *module :
         {"mpm_prefork", "authn_core", "authn_file", "authz_core", "authz_user", "auth_basic",
          "auth_digest", "autoindex", "dir", "alias", "headers"}) {
        modules += QByteArray("LoadModule ") + module + "_module /usr/lib/apache2/modules/mod_"
            + module + ".so\n";
    }
    const QByteArray index = m_index == PlainIndex ? QByteArray()
        : m_index == FancyIndex                    ? QByteArray("IndexOptions FancyIndexing\n")
                                : QByteArray("IndexOptions FancyIndexing HTMLTable\n");
    const QByteArray run = quoted(runFile({}));
    return writeRunFile(
        QStringLiteral("apache.conf"),
        modules + "Listen " + listenAddress(m_port) + "\nServerName 127.0.0.1\nPidFile "
            + quoted(runFile(QStringLiteral("pid"))) + "\nDefaultRuntimeDir " + run + "\nMutex "
            + quoted(QStringLiteral("file:") + runFile({})) + " default\nErrorLog "
            + quoted(errorLog()) + "\nLogFormat \"%m %U%q %>s %u\" tests\nCustomLog "
            + quoted(runFile(QStringLiteral("access.log")))
            + " tests\nStartServers 2\nMinSpareServers 1\nMaxSpareServers 4\n"
              "MaxRequestWorkers 16\nKeepAliveTimeout 2\nDocumentRoot "
            + quoted(root()) + "\n<Directory " + quoted(root())
            + ">\nOptions Indexes FollowSymLinks\nRequire all granted\n" + index + "</Directory>\n"
            + m_directives);
}

void SquidProxy::protect(const QString &user, const QString &password, const QString &realm)
{
    m_users += passwordLine(user, password);
    m_realm = realm.toUtf8();
}

QStringList SquidProxy::arguments() const
{
    // What it keeps in shared memory bears the name of its service.
    return {QStringLiteral("-N"), QStringLiteral("-n"), QStringLiteral("tests%1").arg(m_port),
            QStringLiteral("-f"), runFile(QStringLiteral("squid.conf"))};
}

bool SquidProxy::configure()
{
    QByteArray login;
    if (!m_users.isEmpty()) {
        if (!writeRunFile(QStringLiteral("users"), m_users)) {
            return false;
        }
        login = "auth_param basic program /usr/lib/squid/basic_ncsa_auth "
            + runFile(QStringLiteral("users")).toUtf8()
            + "\nauth_param basic children 1\nauth_param basic realm " + m_realm
            + "\nacl known proxy_auth REQUIRED\nhttp_access deny !known\n";
    }
    const QByteArray run = runFile({}).toUtf8();
    // The built-in localhost and to_localhost are the loopback network on either side.
    return writeRunFile(
        QStringLiteral("squid.conf"),
        "http_port " + listenAddress(m_port) + "\npid_filename " + run + "pid\ncache_log " + run
            + "error.log\ncoredump_dir " + run
            + "\nacl asked has request\nlogformat tests %rm %ru %>Hs %[un\naccess_log stdio:" + run
            + "access.log logformat=tests asked\nacl asked has "
              "request\nvisible_hostname ravel-tests\n"
              "cache deny all\ncache_mem 1 MB\nmemory_cache_shared off\n"
              "max_filedescriptors 1024\nnetdb_filename none\n"
              "pinger_enable off\nshutdown_lifetime 0 seconds\n"
            + login + "http_access allow localhost to_localhost\nhttp_access deny all\n");
}

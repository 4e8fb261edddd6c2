// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "tests/support/ServerProcess.h"
#include "tests/support/TestAuthority.h"

#include <QTemporaryDir>
#include <QUrl>

#include <memory>

/// A server of the distribution, on free loopback ports and in a private folder, that a test starts
/// and that goes with this object, or with the test program if that is killed. It never runs as
/// root: files that it publishes are served only if everybody may read them.
///
///     NginxServer server;
///     write(server.root() + "/a.deb");
///     QVERIFY2(server.start(), server.report());
class WebServer
{
public:
    virtual ~WebServer();

    /// Starts it, or starts it anew with changed settings on the same ports, and waits until it
    /// answers. False after 20 s, or when it ended.
    bool start();
    void stop();
    bool isRunning() const { return m_process && m_process->state() == QProcess::Running; }
    /// Why it did not start, with its own messages; valid until the next call.
    const char *report();

    /// The published directory; it exists from the start on.
    QString root() const { return m_dir.filePath(QStringLiteral("www")); }
    quint16 port() const { return m_port; }
    /// `path` begins with a slash and is taken as it is: encode it yourself.
    QUrl url(const QString &path = QStringLiteral("/"),
             const QString &host = QStringLiteral("127.0.0.1")) const;

    /// One line for each request that has been answered, "GET /path 200 user", in this order; a
    /// user that is not known is "-". The line comes after the answer: wait for it.
    QStringList requests() const;
    int count(const QString &request) const { return static_cast<int>(requests().count(request)); }
    void clearRequests();

protected:
    WebServer();

    virtual QString program() const = 0;
    virtual QStringList arguments() const = 0;
    /// Writes the configuration into `runFile()` names; the ports are known.
    virtual bool configure() = 0;
    virtual QString errorLog() const { return runFile(QStringLiteral("error.log")); }

    /// A file of the server's own.
    QString runFile(const QString &name) const;
    bool writeRunFile(const QString &name, const QByteArray &content);
    /// A line of a password file.
    static QByteArray passwordLine(const QString &user, const QString &password);

    quint16 m_port = 0;
    quint16 m_tlsPort = 0;

private:
    Q_DISABLE_COPY_MOVE(WebServer)

    bool launch();
    bool answers() const;

    QTemporaryDir m_dir;
    std::unique_ptr<ServerProcess> m_process;
    QByteArray m_report;
};

/// nginx with directory indexes, HTTP and, on a second port, HTTPS.
class NginxServer : public WebServer
{
public:
    /// Serves HTTPS too, or, after start(), with another certificate from the next start() on.
    void setCertificate(const TestAuthority::Pair &certificate) { m_certificate = certificate; }
    QUrl tlsUrl(const QString &path = QStringLiteral("/"),
                const QString &host = QStringLiteral("127.0.0.1")) const;

    // Settings for one path ("/a.xml"), or for everything below it if it ends in a slash.

    /// Asks for a login.
    void protect(const QString &path, const QString &user, const QString &password,
                 const QString &realm = QStringLiteral("Ravel tests"));
    /// Answers with this status and a one-line page.
    void answer(const QString &path, int status);
    /// Answers with a redirect (301, 302, 303, 307, 308).
    void redirect(const QString &path, int status, const QString &target);
    /// Sends this many bytes each second.
    void limitRate(const QString &path, int bytesPerSecond);
    /// Any other directives: `location` blocks, or ones for the whole server.
    void addDirectives(const QByteArray &directives) { m_directives += directives + '\n'; }

protected:
    QString program() const override { return QStringLiteral("/usr/sbin/nginx"); }
    QStringList arguments() const override;
    bool configure() override;

private:
    void addLocation(const QString &path, const QByteArray &directives);

    TestAuthority::Pair m_certificate;
    QByteArray m_directives;
    QByteArray m_users;
    int m_userFiles = 0;
};

/// Apache with directory indexes.
class ApacheServer : public WebServer
{
public:
    enum Index {
        PlainIndex, ///< a list of names
        FancyIndex, ///< columns that are links for sorting
        TableIndex, ///< the same as a table
    };
    enum Login {
        Basic,
        Digest,
    };

    explicit ApacheServer(Index index = PlainIndex)
        : m_index(index)
    {
    }

    /// Asks for a login for this path and what is below it.
    void protect(const QString &path, const QString &user, const QString &password,
                 Login login = Basic, const QString &realm = QStringLiteral("Ravel tests"));
    void addDirectives(const QByteArray &directives) { m_directives += directives + '\n'; }

protected:
    QString program() const override { return QStringLiteral("/usr/sbin/apache2"); }
    QStringList arguments() const override;
    bool configure() override;

private:
    Index m_index;
    QByteArray m_directives;
    int m_userFiles = 0;
};

/// An HTTP proxy (squid), CONNECT included, that lets through to the loopback interface only.
/// requests() gives the URL instead of the path, and host:port for a CONNECT.
class SquidProxy : public WebServer
{
public:
    /// Asks for this login; before start().
    void protect(const QString &user, const QString &password,
                 const QString &realm = QStringLiteral("Ravel test proxy"));

protected:
    QString program() const override { return QStringLiteral("/usr/sbin/squid"); }
    QStringList arguments() const override;
    bool configure() override;

private:
    QByteArray m_users;
    QByteArray m_realm;
};

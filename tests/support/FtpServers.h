// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "tests/support/ServerProcess.h"

#include <QJsonObject>
#include <QTemporaryDir>
#include <QUrl>

#include <memory>

/// An FTP server on a free loopback port that a test starts; it and its children go with this
/// object, or with the test program if that is killed. Each has a loopback address of its own,
/// since what a program remembers of a host would else go from one test to the next.
///
///     VsftpdServer server;
///     server.write("a.deb", "…");
///     QVERIFY2(server.start(), server.report());
class FtpServer
{
public:
    virtual ~FtpServer();

    /// Starts it and waits until it answers. False after 20 s, or when it ended.
    bool start();
    /// Ends it and its children at once.
    virtual void stop() = 0;
    /// Why it did not start, with its own messages; valid until the next call.
    const char *report();

    /// The published directory; it exists from the start on. Below /tmp, readable for everybody.
    QString root() const { return m_dir.filePath(QStringLiteral("srv")); }
    /// Writes a file below root(), readable for everybody; the name is taken byte by byte.
    bool write(const QByteArray &name, const QByteArray &content) const;
    bool makeDir(const QByteArray &name) const;

    QString address() const { return m_address; }
    quint16 port() const { return m_port; }
    /// `path` begins with a slash and is taken as it is: encode it yourself.
    QUrl url(const QString &path = QStringLiteral("/")) const;

protected:
    FtpServer();

    /// For the report.
    virtual QString program() const = 0;
    /// Writes the configuration into `runFile()` names; the port is known.
    virtual bool configure() = 0;
    /// Waits until it answers.
    virtual bool launch() = 0;
    virtual bool hasEnded() const = 0;

    QString runFile(const QString &name) const;
    bool writeRunFile(const QString &name, const QByteArray &content) const;
    QByteArray readRunFile(const QString &name) const;

    const QString m_address;
    quint16 m_port = 0;

private:
    Q_DISABLE_COPY_MOVE(FtpServer)

    QTemporaryDir m_dir;
    QByteArray m_report;
};

/// A server of the distribution.
class FtpProgram : public FtpServer
{
public:
    ~FtpProgram() override;
    void stop() override;

protected:
    virtual QStringList arguments() const = 0;
    bool launch() override;
    bool hasEnded() const override;

private:
    bool isReady() const;

    std::unique_ptr<ServerProcess> m_process;
};

/// vsftpd. Its logins are anonymous ones.
class VsftpdServer : public FtpProgram
{
public:
    enum Jail {
        /// "/" is the root of the file system, the login directory is root(). For any user.
        NotChrooted,
        /// "/" is root(). Only root can start it: ask canChroot().
        Chrooted,
    };

    explicit VsftpdServer(Jail jail = NotChrooted)
        : m_jail(jail)
    {
    }

    static bool canChroot();

    /// Only this password is good for "anonymous"; any other user is refused anyway.
    void requirePassword(const QString &password) { m_password = password; }
    /// The URL path of root(), without a slash at its end.
    QString rootPath() const { return m_jail == Chrooted ? QString() : root(); }

protected:
    QString program() const override { return QStringLiteral("/usr/sbin/vsftpd"); }
    QStringList arguments() const override;
    bool configure() override;

private:
    Jail m_jail;
    QString m_password;
};

/// A server that does as it is told (pyftpdlib), for any user. A step is an FTP command in capitals
/// or CONNECT; PASV and EPSV make the data connection, DATA is the transfer on it.
class FtpScriptServer : public FtpServer
{
public:
    ~FtpScriptServer() override;
    void stop() override;

    void addUser(const QString &user, const QString &password);
    void refuseAnonymous() { m_script[QStringLiteral("anonymous")] = false; }
    /// The login directory, an absolute path below root().
    void setLoginDirectory(const QString &path) { m_script[QStringLiteral("login")] = path; }
    /// "/" is the root of the file system, as in VsftpdServer::NotChrooted.
    void setNotChrooted() { m_script[QStringLiteral("chroot")] = false; }
    /// Lists as servers on DOS do.
    void setDosListing() { m_script[QStringLiteral("dos")] = true; }
    /// Lists these bytes, whatever the directory holds.
    void setListing(const QByteArray &listing);
    /// Answers the step with this line, such as "550 No.", and does nothing.
    void refuse(const QString &step, const QString &answer);
    /// Never answers the step.
    void stall(const QString &step) { addTo(QStringLiteral("stall"), step); }
    /// Closes the control connection instead of answering.
    void drop(const QString &step) { addTo(QStringLiteral("drop"), step); }
    /// Waits so long before it answers a command.
    void delay(int milliseconds) { m_script[QStringLiteral("delay")] = milliseconds; }
    /// Sends no more than this of a file, and then says that it was the whole.
    void cutFilesAt(int bytes) { m_script[QStringLiteral("cut")] = bytes; }

    /// The commands so far, as they came, in their order: "PASS secret". "CONNECT" for each
    /// connection.
    QList<QByteArray> commands() const;
    int count(const QByteArray &command) const;

protected:
    QString program() const override { return QStringLiteral("ftp_server.py"); }
    bool configure() override;
    bool launch() override;
    /// It either listens or fails.
    bool hasEnded() const override { return true; }

private:
    void addTo(const QString &list, const QString &step);

    QJsonObject m_script;
    /// 0 while it does not run.
    qint64 m_process = 0;
};

/// An FTP proxy (ftp-proxy): USER user@host[:port]. For any user.
class FtpProxyServer : public FtpProgram
{
protected:
    QString program() const override { return QStringLiteral("/usr/sbin/ftp-proxy"); }
    QStringList arguments() const override;
    bool configure() override;
};

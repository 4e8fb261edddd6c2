// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "network/FtpReplyReader.h"
#include "network/XUrlInfo.h"

#include <QHostAddress>
#include <QObject>
#include <QQueue>
#include <QTcpSocket>
#include <QTimer>

#include <memory>

/// An FTP client (RFC 959, 1123 §4.1, 2428, 3659) of the shape of Qt 4's QFtp. Its user owns it and
/// may delete it at any time, also in a slot that it called.
///
/// Commands are queued, each with an id, and run one after another; nothing is emitted from inside
/// the call that queues one. Each command that started gives exactly one commandFinished(); the
/// queue's final signal is done(). A failed command clears what is queued behind it and gives
/// commandFinished(id, true) and done(true), with error() and errorString() set. When the
/// connection is lost, stateChanged(Unconnected) comes before these two.
///
/// There are no time-outs: a server may be silent for as long as the user is patient. Only what
/// nobody waits for, the answers to QUIT and to an abort, is given up after a short while.
class XFtp : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(XFtp)

public:
    static constexpr quint16 defaultPort = 21;
    enum State { Unconnected, HostLookup, Connecting, Connected, LoggedIn, Closing };
    /// ConnectionRefused: nobody listens there, or the greeting is a refusal. NotConnected: a
    /// command that needs a connection and has none. All else is UnknownError, a lost connection
    /// (state() tells it) and a command that the server refused (lastReplyCode() tells it)
    /// included.
    enum Error { NoError, UnknownError, HostNotFound, ConnectionRefused, NotConnected };
    enum Command { None, SetProxy, ConnectToHost, Login, Close, List, Cd, Get };

    explicit XFtp(QObject *parent = nullptr);
    ~XFtp() override;

    /// The commands; each returns its id, which is never 0. Texts are sent as UTF-8, byte arrays as
    /// they are: a name must reach the server with the very bytes that its listing gave. A text
    /// with a carriage return, a line feed or a NUL makes its command fail before anything is sent.

    /// Connect to this host instead, and name the real one at login (USER user@host[:port]). An
    /// empty host: no proxy any more.
    int setProxy(const QString &host, quint16 port);
    int connectToHost(const QString &host, quint16 port = defaultPort);
    /// Without a user: anonymous. Accounts (ACCT) are not supported.
    int login(const QString &user = {}, const QString &password = {});
    /// QUIT. Succeeds also when the server hangs up or stays silent, and when there is no
    /// connection.
    int close();
    /// LIST, of the current directory unless dir is given; entries by listInfo(). At most 100,000
    /// lines and 16 MiB. A server that refuses to list an empty directory (450, 550) says nothing
    /// that tells it from a forbidden one: that is an error.
    int list(const QString &dir = {});
    int list(const QByteArray &rawDir);
    /// CWD.
    int cd(const QString &dir);
    int cd(const QByteArray &rawDir);
    /// RETR, as binary; data by readyRead(). Up to 1 MiB is kept for the reader, then the sender
    /// has to wait, and the command does not finish before the rest is read. What is unread then
    /// stays until the next list() or get(). Less data than SIZE (RFC 3659 §4) announced is an
    /// error.
    int get(const QString &file);
    int get(const QByteArray &rawFile);

    /// 0 and None when nothing runs.
    int currentId() const { return m_current.id; }
    Command currentCommand() const { return m_current.command; }
    /// The running command is not one of these.
    bool hasPendingCommands() const { return !m_queue.isEmpty(); }
    /// Drops them without a signal.
    void clearPendingCommands() { m_queue.clear(); }

    State state() const { return m_state; }
    /// Of the last command.
    Error error() const { return m_error; }
    /// For people: one line of plain text, at most 500 characters, never with a password of ours.
    /// When the server refused a command, the server's own words.
    QString errorString() const { return m_errorString; }
    /// The code of the last whole reply, such as 530; 0 before the first one of a connection.
    int lastReplyCode() const { return m_reply.code; }

    /// Of the file that is or was fetched last.
    qint64 bytesAvailable() const;
    QByteArray readAll();

public Q_SLOTS:
    /// Ends the running command and clears the queue: commandFinished(id, true), done(true), before
    /// it returns. Nothing happens when there is nothing to abort. A transfer is aborted by ABOR
    /// and the connection kept if the server answers soon; in any other command the connection is
    /// dropped.
    void abort();

Q_SIGNALS:
    void stateChanged(int state);
    /// The name as the server gave it, as text (UTF-8, else Latin-1) and as bytes.
    void listInfo(const XUrlInfo &info, const QByteArray &rawName);
    void readyRead();
    /// Bytes; total is -1 when unknown.
    void dataTransferProgress(qint64 done, qint64 total);
    void commandStarted(int id);
    void commandFinished(int id, bool error);
    void done(bool error);

private Q_SLOTS:
    void startNext();
    void serveControl();
    void serveData();
    void giveUp();

private:
    /// What is waited for.
    enum Step {
        Idle,
        Opening,
        Greeting,
        User,
        Password,
        Directory,
        Type,
        Size,
        ExtendedPassive,
        Passive,
        DataOpening,
        Transfer,
        Quit,
        Settling, // replies that still belong to an ended command
    };
    struct Job {
        int id = 0;
        Command command = None;
        QByteArray text; // host, user or path
        QByteArray secret;
        quint16 port = 0;
    };

    int enqueue(Command command, const QByteArray &text = {}, quint16 port = 0,
                const QByteArray &secret = {});
    void run();
    void open();
    void send(const QByteArray &line, Step step);
    void logIn();
    void prepareTransfer();
    void openData(int port);
    bool readList();
    bool readFile();
    void checkTransfer();

    bool hasOpened();
    void takeReply(FtpReplyReader::Reply reply);
    void takeLoginReply(int code);
    void takeTransferReply(int code);
    void loggedIn();
    QString serverText() const;

    template<typename... Parameters, typename... Arguments>
    bool tell(void (XFtp::*signal)(Parameters...), Arguments &&...arguments);
    bool setState(State state);
    void setError(Error error, const QString &text);
    void settle(int replies);
    void drop();
    void lose(Error error, const QString &text);
    void fail(Error error, const QString &text);
    void finish(bool hasFailed);

    QQueue<Job> m_queue;
    Job m_current;
    int m_lastId = 0;
    Step m_step = Idle;
    State m_state = Unconnected;
    Error m_error = NoError;
    QString m_errorString;
    bool m_isFinishing = false; // between a command and the next one
    bool m_hasFailed = false;
    QTimer m_grace;

    // The connection; both sockets tell by queued signals, so that none is ever deleted in its own.
    std::unique_ptr<QTcpSocket> m_control;
    QByteArray m_proxyHost;
    quint16 m_proxyPort = 0;
    QByteArray m_realHost; // named at login, when connected to a proxy
    QByteArray m_user;
    QByteArray m_secret;
    QHostAddress m_peer;
    bool m_isEpsvRefused = false;

    FtpReplyReader m_replies;
    FtpReplyReader::Reply m_reply; // the last one
    int m_outstanding = 0;

    // The transfer that runs or ran last.
    std::unique_ptr<QTcpSocket> m_data;
    Command m_transfer = None;
    bool m_isAnnounced = false;
    bool m_isConfirmed = false;
    qint64 m_size = -1;
    qint64 m_received = 0;
    qint64 m_taken = 0;
    QByteArray m_listLine;
    int m_listLines = 0;
};

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "network/XFtp.h"

#include "network/FtpListing.h"

#include <QNetworkProxy>
#include <QPointer>
#include <QRegularExpression>

#include <utility>

namespace
{

constexpr int maxErrorText = 500;
constexpr int maxListLines = 100'000;
constexpr qint64 maxListBytes = 16 * 1024 * 1024;
constexpr qint64 controlBuffer = 64 * 1024;
constexpr qint64 dataBuffer = 1024 * 1024;
constexpr int graceMs = 2000;

bool isSendable(const QByteArray &text)
{
    return !text.contains('\r') && !text.contains('\n') && !text.contains('\0');
}

/// One line without anything that could act on a screen, bounded.
QString plainLine(QString text)
{
    for (QChar &c : text) {
        if (c.category() == QChar::Other_Control || c.category() == QChar::Other_Format) {
            c = QLatin1Char(' ');
        }
    }
    text = text.simplified().left(maxErrorText);
    if (!text.isEmpty() && text.at(text.size() - 1).isHighSurrogate()) {
        text.chop(1);
    }
    return text;
}

/// RFC 2428 §3: "(|||6446|)", any character in place of the bars; 0 if there is none.
int extendedPort(const QByteArray &text)
{
    static const QRegularExpression pattern(
        QStringLiteral("\\(([\\x21-\\x7e])\\1\\1([0-9]{1,5})\\1\\)"));
    const int port = pattern.match(QString::fromLatin1(text)).captured(2).toInt();
    return port <= 0xffff ? port : 0;
}

/// RFC 1123 §4.1.2.6: six numbers, not always in brackets; the first four are ignored, since an
/// address that a server chooses freely could be anyone's. 0 if there are none.
int passivePort(const QByteArray &text)
{
    static const QRegularExpression pattern(
        QStringLiteral("(?<![0-9])(?:[0-9]{1,3},){4}([0-9]{1,3}),([0-9]{1,3})(?![0-9])"));
    const QRegularExpressionMatch match = pattern.match(QString::fromLatin1(text));
    const int high = match.captured(1).toInt();
    const int low = match.captured(2).toInt();
    return high <= 0xff && low <= 0xff ? high * 0x100 + low : 0;
}

qint64 sizeOf(const QByteArray &text)
{
    static const QRegularExpression pattern(QStringLiteral("^\\s*([0-9]{1,19})\\s*$"));
    bool ok = false;
    const qint64 size = pattern.match(QString::fromLatin1(text)).captured(1).toLongLong(&ok);
    return ok ? size : -1;
}

bool isPeersEnd(const QTcpSocket &socket)
{
    return socket.error() == QAbstractSocket::RemoteHostClosedError;
}

} // namespace

XFtp::XFtp(QObject *parent)
    : QObject(parent)
    , m_grace(this)
{
    m_grace.setSingleShot(true);
    m_grace.setInterval(graceMs);
    connect(&m_grace, &QTimer::timeout, this, &XFtp::giveUp);
}

XFtp::~XFtp() = default;

// --- commands

int XFtp::enqueue(Command command, const QByteArray &text, quint16 port, const QByteArray &secret)
{
    m_queue.enqueue({++m_lastId, command, text, secret, port});
    QMetaObject::invokeMethod(this, &XFtp::startNext, Qt::QueuedConnection);
    return m_lastId;
}

int XFtp::setProxy(const QString &host, quint16 port)
{
    return enqueue(SetProxy, host.toUtf8(), port);
}

int XFtp::connectToHost(const QString &host, quint16 port)
{
    return enqueue(ConnectToHost, host.toUtf8(), port);
}

int XFtp::login(const QString &user, const QString &password)
{
    return enqueue(Login, user.toUtf8(), 0, password.toUtf8());
}

int XFtp::close()
{
    return enqueue(Close);
}

int XFtp::list(const QString &dir)
{
    return list(dir.toUtf8());
}

int XFtp::list(const QByteArray &rawDir)
{
    return enqueue(List, rawDir);
}

int XFtp::cd(const QString &dir)
{
    return cd(dir.toUtf8());
}

int XFtp::cd(const QByteArray &rawDir)
{
    return enqueue(Cd, rawDir);
}

int XFtp::get(const QString &file)
{
    return get(file.toUtf8());
}

int XFtp::get(const QByteArray &rawFile)
{
    return enqueue(Get, rawFile);
}

qint64 XFtp::bytesAvailable() const
{
    return m_data && m_transfer == Get ? m_data->bytesAvailable() : 0;
}

QByteArray XFtp::readAll()
{
    if (!m_data || m_transfer != Get) {
        return {};
    }
    QByteArray data = m_data->readAll();
    m_taken += data.size();
    return data;
}

void XFtp::abort()
{
    if (m_current.id == 0 && m_queue.isEmpty()) {
        return;
    }
    m_queue.clear();
    setError(UnknownError, tr("Aborted"));
    if (m_isFinishing) {
        m_hasFailed = true; // done() is on its way
        return;
    }
    if (m_current.id == 0) {
        Q_EMIT done(true);
        return;
    }
    if (m_step == Transfer && !m_isConfirmed) {
        // One reply to the transfer, one to ABOR (RFC 959 §4.1.3).
        m_control->write("ABOR\r\n");
        settle(2);
    } else if (m_step != Idle && m_step != DataOpening && m_step != Transfer) {
        drop();
        if (!setState(Unconnected)) {
            return;
        }
    }
    m_data.reset();
    finish(true);
}

void XFtp::startNext()
{
    if (m_current.id != 0 || m_isFinishing || m_queue.isEmpty()
        || (m_step == Settling && m_queue.head().command != ConnectToHost)) {
        return;
    }
    m_current = m_queue.dequeue();
    setError(NoError, {});
    if (tell(&XFtp::commandStarted, m_current.id)) {
        run();
    }
}

void XFtp::run()
{
    if (!isSendable(m_current.text) || !isSendable(m_current.secret)) {
        fail(UnknownError,
             tr("A name or password with a line break or a NUL cannot be sent to an FTP server"));
        return;
    }
    const bool needsConnection = m_current.command == Login || m_current.command == List
        || m_current.command == Cd || m_current.command == Get;
    if (needsConnection && !m_control) {
        fail(NotConnected, tr("Not connected to an FTP server"));
        return;
    }
    switch (m_current.command) {
    case SetProxy:
        m_proxyHost = m_current.text;
        m_proxyPort = m_current.port;
        finish(false);
        break;
    case ConnectToHost:
        open();
        break;
    case Login:
        logIn();
        break;
    case Cd:
        send("CWD " + m_current.text, Directory);
        break;
    case List:
    case Get:
        prepareTransfer();
        break;
    case Close:
        if (!m_control) {
            finish(false);
            break;
        }
        m_step = Quit;
        if (setState(Closing)) {
            send("QUIT", Quit);
            m_grace.start();
        }
        break;
    case None:
        break;
    }
}

void XFtp::open()
{
    drop();
    m_reply = {};
    m_isEpsvRefused = false;
    m_user.clear();
    m_secret.clear();
    m_realHost.clear();
    QByteArray host = m_current.text;
    quint16 port = m_current.port;
    if (!m_proxyHost.isEmpty()) {
        m_realHost = host.contains(':') ? '[' + host + ']' : host;
        if (port != defaultPort) {
            m_realHost += ':' + QByteArray::number(port);
        }
        host = m_proxyHost;
        port = m_proxyPort;
    }
    m_step = Opening;
    if (!setState(HostLookup)) {
        return;
    }
    m_control = std::make_unique<QTcpSocket>();
    QTcpSocket *socket = m_control.get();
    connect(socket, &QTcpSocket::stateChanged, this, &XFtp::serveControl, Qt::QueuedConnection);
    connect(socket, &QTcpSocket::readyRead, this, &XFtp::serveControl, Qt::QueuedConnection);
    socket->setProxy(QNetworkProxy::NoProxy);
    socket->setReadBufferSize(controlBuffer);
    socket->connectToHost(QString::fromUtf8(host), port);
}

void XFtp::send(const QByteArray &line, Step step)
{
    m_step = step;
    m_control->write(line + "\r\n");
}

void XFtp::logIn()
{
    const bool isAnonymous = m_current.text.isEmpty();
    m_user = isAnonymous ? QByteArrayLiteral("anonymous") : m_current.text;
    m_secret = m_current.secret;
    if (isAnonymous && m_secret.isEmpty()) {
        m_current.secret = QByteArrayLiteral("anonymous@");
    }
    send("USER " + m_user + (m_realHost.isEmpty() ? QByteArray() : '@' + m_realHost), User);
}

void XFtp::prepareTransfer()
{
    m_data.reset();
    m_transfer = m_current.command;
    m_isAnnounced = false;
    m_isConfirmed = false;
    m_size = -1;
    m_received = 0;
    m_taken = 0;
    m_listLine.clear();
    m_listLines = 0;
    send(m_transfer == Get ? "TYPE I" : "TYPE A", Type);
}

void XFtp::openData(int port)
{
    if (port == 0) {
        fail(UnknownError, tr("The server gave no port for the data connection"));
        return;
    }
    m_step = DataOpening;
    m_data = std::make_unique<QTcpSocket>();
    QTcpSocket *socket = m_data.get();
    connect(socket, &QTcpSocket::stateChanged, this, &XFtp::serveData, Qt::QueuedConnection);
    connect(socket, &QTcpSocket::readyRead, this, &XFtp::serveData, Qt::QueuedConnection);
    socket->setProxy(QNetworkProxy::NoProxy);
    socket->setReadBufferSize(dataBuffer);
    socket->connectToHost(m_peer, static_cast<quint16>(port));
}

// --- data connection

void XFtp::serveData()
{
    if (!m_data) {
        return;
    }
    if (m_step == DataOpening) {
        const QAbstractSocket::SocketState state = m_data->state();
        if (state == QAbstractSocket::HostLookupState
            || state == QAbstractSocket::ConnectingState) {
            return;
        }
        if (state == QAbstractSocket::UnconnectedState && !isPeersEnd(*m_data)) {
            fail(UnknownError,
                 tr("The data connection cannot be opened: %1").arg(m_data->errorString()));
            return;
        }
        const QByteArray argument = m_current.text.isEmpty() ? QByteArray() : ' ' + m_current.text;
        send((m_transfer == Get ? "RETR" : "LIST") + argument, Transfer);
    }
    if (m_step != Transfer) {
        return;
    }
    if (m_transfer == List ? readList() : readFile()) {
        checkTransfer();
    }
}

/// False when the command has ended.
bool XFtp::readFile()
{
    const qint64 received = m_taken + m_data->bytesAvailable();
    if (received == m_received) {
        return true;
    }
    m_received = received;
    return tell(&XFtp::dataTransferProgress, m_received, m_size) && tell(&XFtp::readyRead);
}

/// False when the command has ended.
bool XFtp::readList()
{
    const QString user = QString::fromUtf8(m_user);
    const QDateTime now = QDateTime::currentDateTimeUtc();
    while (m_data && m_data->bytesAvailable() > 0) {
        const QByteArray part = m_data->readLine();
        m_received += part.size();
        m_listLine += part;
        const bool isWhole = m_listLine.endsWith('\n');
        if (m_received > maxListBytes || (isWhole && ++m_listLines > maxListLines)) {
            fail(UnknownError, tr("The directory is too large to be listed"));
            return false;
        }
        if (!isWhole) {
            continue;
        }
        const auto entry = FtpListing::parse(std::exchange(m_listLine, {}), user, now);
        if (entry && !tell(&XFtp::listInfo, entry->info, entry->rawName)) {
            return false;
        }
    }
    return true;
}

/// The end of the data and the final reply come in either order; a transfer ends with both.
void XFtp::checkTransfer()
{
    if (m_step != Transfer || !m_data || m_data->state() != QAbstractSocket::UnconnectedState) {
        return;
    }
    if (!isPeersEnd(*m_data)) {
        fail(UnknownError, tr("The data connection failed: %1").arg(m_data->errorString()));
        return;
    }
    if (!m_isConfirmed) {
        return;
    }
    if (m_transfer == Get) {
        if (m_size >= 0 && m_received < m_size) {
            fail(UnknownError,
                 tr("The transfer ended early, after %1 of %2 bytes").arg(m_received).arg(m_size));
            return;
        }
        finish(false);
        return;
    }
    m_data.reset();
    const auto entry = FtpListing::parse(std::exchange(m_listLine, {}), QString::fromUtf8(m_user));
    if (!entry || tell(&XFtp::listInfo, entry->info, entry->rawName)) {
        finish(false);
    }
}

// --- control connection

void XFtp::serveControl()
{
    const QPointer<XFtp> self(this);
    if (!m_control || (m_step == Opening && !hasOpened())) {
        return;
    }
    auto progress = FtpReplyReader::Incomplete;
    while (self && m_control
           && (progress = m_replies.read(m_control.get())) != FtpReplyReader::Incomplete) {
        if (progress == FtpReplyReader::Whole) {
            takeReply(m_replies.reply());
        } else if (progress == FtpReplyReader::TooLong) {
            lose(UnknownError, tr("The server's answer is too long"));
        } else {
            lose(UnknownError, tr("The server does not speak FTP"));
        }
    }
    if (self && m_control && m_control->state() == QAbstractSocket::UnconnectedState
        && m_step != Opening) {
        lose(UnknownError, tr("The server closed the connection"));
    }
}

/// True once replies can be read; the socket may have gone through all its states meanwhile.
bool XFtp::hasOpened()
{
    const QAbstractSocket::SocketState state = m_control->state();
    if (state == QAbstractSocket::HostLookupState) {
        return false;
    }
    if (state == QAbstractSocket::UnconnectedState && !isPeersEnd(*m_control)) {
        const QString host =
            QString::fromUtf8(m_proxyHost.isEmpty() ? m_current.text : m_proxyHost);
        if (m_control->error() == QAbstractSocket::HostNotFoundError) {
            lose(HostNotFound, tr("Host %1 not found").arg(host));
        } else if (m_control->error() == QAbstractSocket::SocketTimeoutError) {
            lose(ConnectionRefused, tr("Connection timed out to host %1").arg(host));
        } else {
            lose(ConnectionRefused, tr("Connection refused to host %1").arg(host));
        }
        return false;
    }
    if (!setState(Connecting) || state == QAbstractSocket::ConnectingState) {
        return false;
    }
    m_peer = m_control->peerAddress();
    m_step = Greeting;
    return true;
}

void XFtp::takeReply(FtpReplyReader::Reply reply)
{
    const int code = reply.code;
    m_reply = std::move(reply);
    if (code == 421) {
        lose(m_step == Greeting ? ConnectionRefused : UnknownError, serverText());
        return;
    }
    const bool isPreliminary = code < 200;
    const bool isPositive = code >= 200 && code < 300;
    if (isPreliminary && m_step != Transfer && m_step != Greeting && m_step != Idle
        && m_step != Settling) {
        lose(UnknownError, tr("Unexpected answer from the server: %1").arg(serverText()));
        return;
    }
    switch (m_step) {
    case Greeting:
        // 120, "ready in nnn minutes", is a refusal for someone who waits at a screen.
        if (!isPositive) {
            lose(ConnectionRefused, serverText());
        } else if (setState(Connected)) {
            finish(false);
        }
        break;
    case User:
    case Password:
        takeLoginReply(code);
        break;
    case Directory:
        if (isPositive) {
            finish(false);
        } else {
            fail(UnknownError, serverText());
        }
        break;
    case Type:
        if (!isPositive) {
            fail(UnknownError, serverText());
        } else if (m_transfer == Get) {
            send("SIZE " + m_current.text, Size);
        } else {
            send(m_isEpsvRefused ? "PASV" : "EPSV", m_isEpsvRefused ? Passive : ExtendedPassive);
        }
        break;
    case Size:
        m_size = code == 213 ? sizeOf(m_reply.lastLine) : -1;
        send(m_isEpsvRefused ? "PASV" : "EPSV", m_isEpsvRefused ? Passive : ExtendedPassive);
        break;
    case ExtendedPassive:
        if (code == 229) {
            openData(extendedPort(m_reply.lastLine));
        } else if (code >= 500) {
            m_isEpsvRefused = true;
            send("PASV", Passive);
        } else {
            fail(UnknownError, serverText());
        }
        break;
    case Passive:
        if (code == 227) {
            openData(passivePort(m_reply.lastLine));
        } else {
            fail(UnknownError, serverText());
        }
        break;
    case Transfer:
        takeTransferReply(code);
        break;
    case Quit:
        lose(NoError, {});
        break;
    case Settling:
        if (!isPreliminary && --m_outstanding == 0) {
            m_grace.stop();
            m_step = Idle;
            startNext();
        }
        break;
    case Idle:
    case Opening:
    case DataOpening:
        break; // nobody asked
    }
}

void XFtp::takeLoginReply(int code)
{
    if (code == 230 || code == 232 || (code == 202 && m_step == Password)) {
        if (setState(LoggedIn)) {
            finish(false);
        }
    } else if (code == 331 && m_step == User) {
        send("PASS " + m_current.secret, Password);
    } else if (code == 332) {
        fail(UnknownError, tr("The server asks for an account, which is not supported"));
    } else {
        fail(UnknownError, serverText());
    }
}

void XFtp::takeTransferReply(int code)
{
    if (code < 200) {
        // RFC 959 §4.2: at most one preliminary reply a command.
        if (m_isAnnounced) {
            lose(UnknownError, tr("Unexpected answer from the server: %1").arg(serverText()));
        } else {
            m_isAnnounced = true;
        }
        return;
    }
    if (m_isConfirmed) {
        return;
    }
    m_isConfirmed = true;
    if (code >= 300) {
        fail(UnknownError, serverText());
        return;
    }
    // The end of the data may be known already, but not yet read.
    serveData();
}

QString XFtp::serverText() const
{
    QString text = m_reply.text;
    if (!m_secret.isEmpty()) {
        text.replace(QString::fromUtf8(m_secret), QLatin1String("***"));
    }
    text = plainLine(text);
    return text.isEmpty() ? tr("The server answers %1").arg(m_reply.code) : text;
}

// --- ends

/// Emits a signal. What a slot may do: read, abort, delete this object, run an event loop that
/// comes here again. False when this object is gone or has another command than before: the caller
/// has nothing more to do then.
template<typename... Parameters, typename... Arguments>
bool XFtp::tell(void (XFtp::*signal)(Parameters...), Arguments &&...arguments)
{
    const QPointer<XFtp> self(this);
    const int id = m_current.id;
    Q_EMIT(this->*signal)(std::forward<Arguments>(arguments)...);
    return self && m_current.id == id;
}

/// As tell().
bool XFtp::setState(State state)
{
    if (m_state == state) {
        return true;
    }
    m_state = state;
    return tell(&XFtp::stateChanged, state);
}

void XFtp::setError(Error error, const QString &text)
{
    m_error = error;
    m_errorString = text;
}

/// The command ends now, but the server will still answer it.
void XFtp::settle(int replies)
{
    m_step = Settling;
    m_outstanding = replies;
    m_grace.start();
}

void XFtp::giveUp()
{
    lose(NoError, {});
}

void XFtp::drop()
{
    m_grace.stop();
    m_control.reset();
    m_replies = {};
    m_step = Idle;
}

/// The connection is gone, or is of no more use.
void XFtp::lose(Error error, const QString &text)
{
    const bool isQuit = m_step == Quit;
    drop();
    m_data.reset();
    const bool isRunning = m_current.id != 0;
    if (isRunning && !isQuit) {
        setError(error, text);
    }
    if (!setState(Unconnected)) {
        return;
    }
    if (isRunning) {
        finish(!isQuit);
    } else {
        startNext();
    }
}

/// The command failed, the connection stays.
void XFtp::fail(Error error, const QString &text)
{
    setError(error, text);
    m_data.reset();
    if (m_step == Transfer && !m_isConfirmed) {
        settle(1);
    }
    finish(true);
}

void XFtp::finish(bool hasFailed)
{
    const int id = m_current.id;
    m_current = {};
    if (m_step != Settling) {
        m_step = Idle;
    }
    if (hasFailed) {
        m_queue.clear();
    }
    m_hasFailed = hasFailed;
    m_isFinishing = true;
    if (!tell(&XFtp::commandFinished, id, hasFailed)) {
        return;
    }
    m_isFinishing = false;
    if ((m_hasFailed || m_queue.isEmpty()) && !tell(&XFtp::done, m_hasFailed)) {
        return;
    }
    startNext();
}

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/support/HttpServer.h"

#include <QTcpSocket>
#include <QTimer>

#include <algorithm>
#include <linux/sockios.h>
#include <sys/ioctl.h>
#include <sys/socket.h>

namespace
{

QByteArray response(int status, const QByteArray &headers, const QByteArray &body)
{
    return "HTTP/1.1 " + QByteArray::number(status) + " Status\r\n" + headers + "Content-Length: "
        + QByteArray::number(body.size()) + "\r\nConnection: close\r\n\r\n" + body;
}

/// Breaks the connection when the other side has what was written: a reset overtakes what is not
/// read yet.
void reset(QTcpSocket *socket)
{
    auto *timer = new QTimer(socket);
    QObject::connect(timer, &QTimer::timeout, socket, [socket] {
        int unsent = 0;
        const int handle = static_cast<int>(socket->socketDescriptor());
        if (socket->bytesToWrite() > 0 || ::ioctl(handle, SIOCOUTQ, &unsent) != 0 || unsent > 0) {
            return;
        }
        const linger now{1, 0};
        ::setsockopt(handle, SOL_SOCKET, SO_LINGER, &now, sizeof now);
        socket->abort();
    });
    timer->start(50);
}

} // namespace

HttpServer::HttpServer(QObject *parent)
    : QObject(parent)
{
    connect(&m_server, &QTcpServer::newConnection, this, &HttpServer::accept);
    if (!m_server.listen(QHostAddress::LocalHost)) {
        qFatal("no port for the test's HTTP server");
    }
    // Qt lets 50 connections wait; the next ones would be tried again only after a second.
    ::listen(static_cast<int>(m_server.socketDescriptor()), 1024);
}

HttpServer::~HttpServer()
{
    // A socket that goes says so.
    const auto sockets = m_server.findChildren<QTcpSocket *>();
    for (QTcpSocket *socket : sockets) {
        socket->disconnect(this);
    }
}

QUrl HttpServer::url(const QString &path) const
{
    return QUrl(
        QStringLiteral("http://127.0.0.1:%1%2").arg(QString::number(m_server.serverPort()), path));
}

void HttpServer::serve(const QString &path, const QByteArray &body, int status,
                       const QByteArray &headers)
{
    serveRaw(path, response(status, headers, body));
}

void HttpServer::serveRaw(const QString &path, const QByteArray &answer, After after)
{
    m_answers.insert(path.toUtf8(), {answer, after});
}

void HttpServer::protect(const QString &user, const QString &password)
{
    m_credentials = (user + QLatin1Char(':') + password).toUtf8().toBase64();
}

void HttpServer::release()
{
    m_held = false;
    while (!m_waiting.isEmpty()) {
        releaseOne();
    }
}

void HttpServer::releaseOne()
{
    const Request request = m_waiting.takeFirst();
    answer(request.socket, request.head);
}

int HttpServer::connections() const
{
    return m_server.findChildren<QTcpSocket *>().size();
}

void HttpServer::accept()
{
    while (QTcpSocket *socket = m_server.nextPendingConnection()) {
        connect(socket, &QTcpSocket::readyRead, this, [this, socket] {
            receive(socket);
        });
        connect(socket, &QTcpSocket::disconnected, this, [this, socket] {
            const auto isOurs = [socket](const Request &request) {
                return request.socket == socket;
            };
            m_waiting.erase(std::remove_if(m_waiting.begin(), m_waiting.end(), isOurs),
                            m_waiting.end());
            socket->deleteLater();
        });
    }
}

void HttpServer::receive(QTcpSocket *socket)
{
    const QByteArray head = socket->peek(64 * 1024);
    if (!head.contains("\r\n\r\n")) {
        return;
    }
    socket->readAll();
    m_requests.append(head);
    m_waiting.append({socket, head});
    m_mostWaiting = qMax(m_mostWaiting, m_waiting.size());
    if (!m_held) {
        m_waiting.removeLast();
        answer(socket, head);
    }
}

void HttpServer::answer(QTcpSocket *socket, const QByteArray &head)
{
    const QByteArray path = head.split(' ').value(1);
    if (beforeAnswer) {
        beforeAnswer(path);
    }
    if (!m_credentials.isEmpty() && !head.contains("Authorization: Basic " + m_credentials)) {
        socket->write(response(401, "WWW-Authenticate: Basic realm=\"test\"\r\n", "who?"));
    } else {
        const Answer answer = m_answers.value(path, {response(404, {}, "not here")});
        socket->write(answer.bytes);
        if (answer.after == After::Stay) {
            return;
        }
        if (answer.after == After::Reset) {
            reset(socket);
            return;
        }
        if (answer.after == After::Drip) {
            auto *timer = new QTimer(socket);
            connect(timer, &QTimer::timeout, socket, [socket] {
                socket->write(".");
            });
            timer->start(20);
            return;
        }
    }
    socket->disconnectFromHost();
}

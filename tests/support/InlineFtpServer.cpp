// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/support/InlineFtpServer.h"

#include <QTcpSocket>

#include <utility>

InlineFtpServer::InlineFtpServer(const QHostAddress &address, QObject *parent)
    : QObject(parent)
    , m_answers({
          {"", "220 Ready\r\n"},
          {"USER", "331 Password\r\n"},
          {"PASS", "230 In\r\n"},
          {"CWD", "250 There\r\n"},
          {"TYPE", "200 Type\r\n"},
          {"QUIT", "221 Bye\r\n"},
      })
{
    connect(&m_server, &QTcpServer::newConnection, this, &InlineFtpServer::accept);
    if (!m_server.listen(address)) {
        qFatal("no port for the test's FTP server");
    }
}

InlineFtpServer::~InlineFtpServer()
{
    // A socket that goes says so.
    if (m_control) {
        m_control->disconnect(this);
    }
}

void InlineFtpServer::send(const QByteArray &bytes)
{
    if (m_control) {
        m_control->write(bytes);
    }
}

void InlineFtpServer::drop()
{
    if (m_control) {
        m_control->disconnectFromHost();
    }
}

void InlineFtpServer::accept()
{
    while (QTcpSocket *socket = m_server.nextPendingConnection()) {
        ++m_connections;
        m_control = socket;
        connect(socket, &QTcpSocket::readyRead, this, &InlineFtpServer::receive);
        connect(socket, &QTcpSocket::disconnected, this, [this, socket] {
            if (m_control == socket) {
                m_control = nullptr;
            }
            socket->deleteLater();
        });
        if (!onCommand || !onCommand({})) {
            send(m_answers.value({}));
        }
    }
}

void InlineFtpServer::receive()
{
    while (m_control && m_control->canReadLine()) {
        QByteArray line = m_control->readLine();
        line.chop(2);
        m_commands.append(line);
        serve(line);
    }
}

void InlineFtpServer::serve(const QByteArray &line)
{
    const QByteArray verb = line.split(' ').first();
    const bool isPassive = verb == "EPSV" || verb == "PASV";
    if (isPassive && !m_answers.contains(verb)) {
        m_dataServer = std::make_unique<QTcpServer>();
        m_data = nullptr;
        m_dataServer->listen(m_server.serverAddress());
        connect(m_dataServer.get(), &QTcpServer::newConnection, this, [this] {
            m_data = m_dataServer->nextPendingConnection();
            flush();
        });
    }
    if (onCommand && onCommand(verb)) {
        return;
    }
    if (m_answers.contains(verb)) {
        send(m_answers.value(verb));
    } else if (isPassive) {
        openPassive(verb);
    } else if (verb == "SIZE") {
        send("213 " + QByteArray::number(m_file.size()) + "\r\n");
    } else if (verb == "RETR" || verb == "LIST") {
        send("150 Here it comes\r\n");
        transfer(verb == "RETR" ? m_file : m_listing);
    } else {
        send("500 What?\r\n");
    }
}

void InlineFtpServer::openPassive(const QByteArray &verb)
{
    const int port = m_dataServer->serverPort();
    if (verb == "EPSV") {
        send("229 Extended (|||" + QByteArray::number(port) + "|)\r\n");
    } else {
        // Not where it listens: clients go by the port alone.
        send("227 Passive (192,0,2,1," + QByteArray::number(port / 256) + ','
             + QByteArray::number(port % 256) + ")\r\n");
    }
}

void InlineFtpServer::transfer(const QByteArray &data, const QByteArray &final)
{
    m_outgoing = data;
    m_final = final;
    m_isTransferring = true;
    flush();
}

void InlineFtpServer::flush()
{
    if (!m_data || !m_isTransferring) {
        return;
    }
    m_isTransferring = false;
    m_data->write(std::exchange(m_outgoing, {}));
    m_data->disconnectFromHost();
    send(m_final);
}

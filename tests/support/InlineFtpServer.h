// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QHash>
#include <QTcpServer>

#include <functional>
#include <memory>

class QTcpSocket;

/// An FTP server in the test's own thread, for one client at a time. It answers as a plain server
/// does, with one file for every RETR and one text for every LIST, unless the test says otherwise.
class InlineFtpServer : public QObject
{
    Q_OBJECT

public:
    explicit InlineFtpServer(const QHostAddress &address = QHostAddress(QHostAddress::LocalHost),
                             QObject *parent = nullptr);
    ~InlineFtpServer() override;

    quint16 port() const { return m_server.serverPort(); }

    /// These bytes in place of the usual answer to "USER", "RETR" …; nothing sent if empty. The
    /// greeting's verb is "".
    void answer(const QByteArray &verb, const QByteArray &bytes) { m_answers.insert(verb, bytes); }
    /// Called first; true says that it saw to the command.
    std::function<bool(const QByteArray &verb)> onCommand;

    void setFile(const QByteArray &file) { m_file = file; }
    void setListing(const QByteArray &listing) { m_listing = listing; }

    /// On the control connection, as it is.
    void send(const QByteArray &bytes);
    void drop();
    /// The usual transfer, whatever onCommand() did before; final: what follows the data.
    void transfer(const QByteArray &data,
                  const QByteArray &final = QByteArrayLiteral("226 Done\r\n"));
    /// The client's data connection; nullptr before it was accepted.
    QTcpSocket *data() const { return m_data; }
    void closeDataListener() { m_dataServer->close(); }

    /// All lines that clients sent.
    const QList<QByteArray> &commands() const { return m_commands; }
    int connections() const { return m_connections; }

private:
    void accept();
    void receive();
    void serve(const QByteArray &line);
    void openPassive(const QByteArray &verb);
    void flush();

    QTcpServer m_server;
    std::unique_ptr<QTcpServer> m_dataServer;
    QTcpSocket *m_control = nullptr;
    QTcpSocket *m_data = nullptr;
    QHash<QByteArray, QByteArray> m_answers;
    QList<QByteArray> m_commands;
    QByteArray m_file = QByteArrayLiteral("content");
    QByteArray m_listing;
    QByteArray m_outgoing;
    QByteArray m_final;
    bool m_isTransferring = false;
    int m_connections = 0;
};

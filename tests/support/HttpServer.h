// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QHash>
#include <QList>
#include <QTcpServer>
#include <QUrl>

#include <functional>

class QTcpSocket;

/// A small HTTP/1.1 server on the loopback interface, in the test's own thread: one request a
/// connection, fixed answers by path, 404 for any other path.
class HttpServer : public QObject
{
    Q_OBJECT

public:
    /// What follows the bytes of a raw answer.
    enum class After {
        Close,
        Stay, ///< nothing, for ever
        Reset, ///< once they are read: the connection breaks
        Drip, ///< a byte every 20 ms, for ever
    };

    explicit HttpServer(QObject *parent = nullptr);
    ~HttpServer() override;

    QUrl url(const QString &path) const;
    quint16 port() const { return m_server.serverPort(); }

    void serve(const QString &path, const QByteArray &body, int status = 200,
               const QByteArray &headers = {});
    /// Sends exactly these bytes.
    void serveRaw(const QString &path, const QByteArray &answer, After after = After::Close);
    /// Asks for these credentials, by the basic scheme, before it answers anything.
    void protect(const QString &user, const QString &password);
    /// Called with the path of each request before it is answered, so that the answers can change.
    std::function<void(const QByteArray &path)> beforeAnswer;
    /// Keeps requests unanswered until release().
    void hold() { m_held = true; }
    void release();
    /// Answers the request that waits the longest; the others wait on.
    void releaseOne();
    /// Connections that are open now.
    int connections() const;

    /// The heads of all requests so far, in the order in which they came.
    const QList<QByteArray> &requests() const { return m_requests; }
    /// Requests that are waiting for an answer now, and the most that ever did at a time.
    int waiting() const { return m_waiting.size(); }
    int mostWaiting() const { return m_mostWaiting; }

private:
    void accept();
    void receive(QTcpSocket *socket);
    void answer(QTcpSocket *socket, const QByteArray &head);

    struct Answer {
        QByteArray bytes;
        After after = After::Close;
    };

    QTcpServer m_server;
    QHash<QByteArray, Answer> m_answers;
    QList<QByteArray> m_requests;
    struct Request {
        QTcpSocket *socket;
        QByteArray head;
    };

    QList<Request> m_waiting;
    QByteArray m_credentials;
    int m_mostWaiting = 0;
    bool m_held = false;
};

Q_DECLARE_METATYPE(HttpServer::After)

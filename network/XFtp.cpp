// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "network/XFtp.h"

XFtp::XFtp(QObject *parent)
    : QObject(parent)
{
}

XFtp::~XFtp() = default;

int XFtp::enqueue(Command command, const QByteArray &text, quint16 port, const QByteArray &secret)
{
    m_queue.enqueue({++m_lastId, command, text, secret, port});
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
    return 0;
}

QByteArray XFtp::readAll()
{
    return {};
}

void XFtp::abort()
{
}

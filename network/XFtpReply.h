// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "network/XFtp.h"
#include "network/XSpooledReply.h"

#include <QPointer>

class XNetworkAccessManager;

/// The reply for a file of an FTP server. The path of its URL goes to the server as it stands, so
/// that what a listing names is what is fetched, whatever directory the login leads to. Its manager
/// owns it until its receiver releases it; final signal and limits are XSpooledReply's.
class XFtpReply : public XSpooledReply
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(XFtpReply)

public:
    /// Starts at once, and signals from the event loop only.
    XFtpReply(XNetworkAccessManager *manager, const QNetworkRequest &request);
    ~XFtpReply() override;

protected:
    void stop() override;

private Q_SLOTS:
    void commandFinished(int id, bool error);
    void receive();
    void progress(qint64 done, qint64 total);

private:
    void start();
    void handleError(int id);
    void loginRefused();
    void getRefused();
    /// Ends the reply, and the connection in good order.
    void finish(NetworkError code, const QString &text);

    QPointer<XNetworkAccessManager> m_manager;
    XFtp *m_ftp = nullptr;
    QByteArray m_path;
    QString m_user;
    QString m_password;
    int m_connectId = 0;
    int m_loginId = 0;
    int m_getId = 0;
    /// What the server announced, -1 for nothing.
    qint64 m_total = -1;
};

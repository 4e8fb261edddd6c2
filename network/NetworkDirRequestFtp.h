// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "network/NetworkDirRequestBase.h"
#include "network/XFtp.h"

#include <QNetworkProxy>
#include <QNetworkReply>
#include <QObject>
#include <QPointer>
#include <QUrl>

class QHostInfo;
class QTimer;

/// Lists a directory of an FTP server: connect, log in, change the directory, list, close, with a
/// limit of time for each. Its request owns it; the reply is its receiver's. The reply's final
/// signal comes exactly once, whatever the server and the user do.
class NetworkDirRequestFtp : public QObject, public NetworkDirRequestBase
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(NetworkDirRequestFtp)

public:
    /// `commandLimitMs`: so long each command may take.
    explicit NetworkDirRequestFtp(const QUrl &url, int commandLimitMs = 120'000);
    ~NetworkDirRequestFtp() override;

    bool directoryCapable() const override;
    XNetworkReply *getDirectory() override;
    void setManager(XNetworkAccessManager *manager) override;

private Q_SLOTS:
    void commandStarted(int id);
    void commandFinished(int id, bool error);
    void listInfo(XUrlInfo info, const QByteArray &rawName);
    void done(bool error);
    void stateChanged(int state);
    void hostLookupDone(const QHostInfo &info);
    void timeout();
    /// The reply was aborted, or deleted.
    void cancel();

private:
    XFtp *newFtp() const;
    /// The old connection says nothing more.
    void dropFtp();
    void requestFtpListing();
    void handleError(int id, XFtp::Error error);
    /// False when the failure is final.
    bool askForLogin();
    void fail(QNetworkReply::NetworkError code, const QString &text);

    QUrl m_url;
    XFtp *m_ftp;
    QString m_host;
    QString m_user;
    QString m_password;
    QByteArray m_path;
    int m_port = 0;
    int m_connectId = 0;
    int m_loginId = 0;
    int m_cdId = 0;
    int m_listId = 0;
    int m_closeId = 0;
    /// 0 between commands.
    int m_currentId = 0;
    QPointer<XNetworkReply> m_reply;
    QNetworkProxy m_proxy{QNetworkProxy::NoProxy};
    QPointer<XNetworkAccessManager> m_manager;
    QTimer *m_timer;
    int m_commandLimitMs;
    int m_hostLookup = 0;
    bool m_isLookingUpHost = false;
    bool m_isLoginGivenUp = false;
};

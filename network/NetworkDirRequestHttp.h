// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "network/NetworkDirRequestBase.h"
#include "network/XUrlInfo.h"

#include <QMap>
#include <QNetworkProxy>
#include <QObject>
#include <QPointer>
#include <QUrl>

#include <optional>

class QNetworkReply;

/// Lists a directory that a web server publishes as an HTML page: every link of the page is an
/// entry, whatever server wrote it. Its replies end with XNetworkReply::finishedReply(): with the
/// error of the transfer, with 299 for a page of more than 32 MiB or with more links than HtmlLinks
/// takes, and with 5 when they are aborted or their manager goes.
class NetworkDirRequestHttp : public QObject, public NetworkDirRequestBase
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(NetworkDirRequestHttp)

public:
    /// Bytes of a page; a larger one is not a directory index.
    static constexpr qint64 maximumPage = 32 * 1024 * 1024;

    explicit NetworkDirRequestHttp(const QUrl &url);
    ~NetworkDirRequestHttp() override;

    bool directoryCapable() const override;
    XNetworkReply *getDirectory() override;
    /// Also looks up which proxy applies to the URL.
    void setManager(XNetworkAccessManager *manager) override;

    /// For information only: the manager sends the request through its own.
    const QNetworkProxy &proxy() const { return m_proxy; }

    /// An entry for each link of the page that came from `url`; nothing when it has more than
    /// HtmlLinks takes.
    static std::optional<QList<XUrlInfo>> entriesOf(const QByteArray &page, const QUrl &url);
    /// Fills the entries of `out` with the links of the page that `reply` brought. If they are too
    /// many, it has none and ends with error 299, or with the error that it has already.
    void parseHtmlDirectory(QNetworkReply *reply, XNetworkReply *out);

private Q_SLOTS:
    void gotFinished(QNetworkReply *reply);

private:
    void watchSize(QNetworkReply *transfer);
    void cancel(QNetworkReply *transfer);
    void refusePage(QNetworkReply *transfer);
    void finish(XNetworkReply *out);

    /// The directory; getDirectory() gives it its trailing slash.
    QUrl m_url;
    QNetworkProxy m_proxy{QNetworkProxy::NoProxy};
    XNetworkAccessManager *m_manager = nullptr;
    /// The transfers in flight and the directory replies that will carry their results.
    QMap<QNetworkReply *, QPointer<XNetworkReply>> m_replies;
};

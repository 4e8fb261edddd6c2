// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QFile>
#include <QNetworkReply>

#include <memory>

/// The reply for a file of this system, which it reads where it lies. It is finished, with its
/// error or its size, as soon as it is made; its signals come from the event loop, finished() last.
/// Released with deleteLater() by whoever receives that.
class XFileReply : public QNetworkReply
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(XFileReply)

public:
    XFileReply(const QNetworkRequest &request, QObject *parent);
    ~XFileReply() override;

    bool isSequential() const override { return true; }
    qint64 bytesAvailable() const override;
    qint64 size() const override { return m_size; }
    void close() override;

public Q_SLOTS:
    /// Drops what is unread; it has finished all the same.
    void abort() override;

protected:
    qint64 readData(char *data, qint64 maxSize) override;

private:
    void fail(NetworkError code, const QString &text);

    std::unique_ptr<QFile> m_file;
    qint64 m_size = 0;
};

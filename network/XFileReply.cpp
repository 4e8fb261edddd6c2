// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "network/XFileReply.h"

#include "core/RVRegularFile.h"

#include <QDateTime>

XFileReply::XFileReply(const QNetworkRequest &request, QObject *parent)
    : QNetworkReply(parent)
{
    setOperation(QNetworkAccessManager::GetOperation);
    setRequest(request);
    setUrl(request.url());
    QNetworkReply::open(QIODevice::ReadOnly);
    setFinished(true);

    const QString host = url().host();
    if (!host.isEmpty() && host != QLatin1String("localhost")) {
        fail(QNetworkReply::ProtocolInvalidOperationError,
             QStringLiteral("The file is on another system"));
        return;
    }
    RVRegularFile file(url().path(QUrl::FullyDecoded));
    m_file = file.take();
    switch (file.fault()) {
    case RVRegularFile::Fault::None:
        break;
    case RVRegularFile::Fault::NotFound:
        fail(QNetworkReply::ContentNotFoundError, file.text());
        return;
    case RVRegularFile::Fault::Denied:
        fail(QNetworkReply::ContentAccessDenied, file.text());
        return;
    case RVRegularFile::Fault::Directory:
    case RVRegularFile::Fault::Special:
        fail(QNetworkReply::ContentOperationNotPermittedError, file.text());
        return;
    }
    m_size = m_file->size();
    setHeader(QNetworkRequest::LastModifiedHeader,
              m_file->fileTime(QFileDevice::FileModificationTime));
    setHeader(QNetworkRequest::ContentLengthHeader, m_size);
    // One after the other: a receiver of one of them may delete this.
    QMetaObject::invokeMethod(this, &QNetworkReply::metaDataChanged, Qt::QueuedConnection);
    QMetaObject::invokeMethod(
        this,
        [this] {
            Q_EMIT downloadProgress(m_size, m_size);
        },
        Qt::QueuedConnection);
    QMetaObject::invokeMethod(this, &QIODevice::readyRead, Qt::QueuedConnection);
    QMetaObject::invokeMethod(this, &QNetworkReply::finished, Qt::QueuedConnection);
}

XFileReply::~XFileReply() = default;

void XFileReply::fail(NetworkError code, const QString &text)
{
    setError(code, text);
    QMetaObject::invokeMethod(
        this,
        [this, code] {
            Q_EMIT errorOccurred(code);
        },
        Qt::QueuedConnection);
    QMetaObject::invokeMethod(this, &QNetworkReply::finished, Qt::QueuedConnection);
}

qint64 XFileReply::bytesAvailable() const
{
    const qint64 unread = m_file ? m_file->size() - m_file->pos() : 0;
    return QNetworkReply::bytesAvailable() + qMax<qint64>(unread, 0);
}

void XFileReply::close()
{
    QNetworkReply::close();
    m_file.reset();
}

void XFileReply::abort()
{
    close();
}

qint64 XFileReply::readData(char *data, qint64 maxSize)
{
    const qint64 length = m_file ? m_file->read(data, maxSize) : -1;
    if (length > 0 || maxSize == 0) {
        return length;
    }
    if (m_file && m_file->error() != QFileDevice::NoError) {
        setErrorString(m_file->errorString());
    }
    m_file.reset();
    return -1;
}

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "network/XNetworkReply.h"

#include "network/XNetworkAccessManager.h"

#include <QPointer>

XNetworkReply::XNetworkReply(QObject *parent)
    : QNetworkReply(parent)
{
}

XNetworkReply::~XNetworkReply() = default;

XNetworkReply &XNetworkReply::operator=(const QNetworkReply &other)
{
    setError(other.error(), other.errorString());
    for (const RawHeaderPair &header : other.rawHeaderPairs()) {
        setRawHeader(header.first, header.second);
    }
    setOperation(other.operation());
    setRequest(other.request());
    setUrl(other.url());
    setSslConfiguration(other.sslConfiguration());
    setReadBufferSize(other.readBufferSize());
    manager = qobject_cast<XNetworkAccessManager *>(other.manager());
    finished = other.isFinished();
    setFinished(finished);
    return *this;
}

void XNetworkReply::setDirectoryRequest(const QNetworkRequest &request)
{
    setRequest(request);
    setUrl(request.url());
    setOperation(directoryOperation);
}

void XNetworkReply::fail(QNetworkReply::NetworkError code, const QString &text)
{
    setError(code, text);
    // The base class passes this on as the deprecated error(code); emitting that as well, which
    // other versions of Qt need, would tell its receivers twice.
    Q_EMIT errorOccurred(code);
}

void XNetworkReply::finish()
{
    finished = true;
    setFinished(true);
    // A receiver may delete it outright, with the object that owns it.
    const QPointer<XNetworkReply> self(this);
    Q_EMIT finishedReply(this);
    if (self) {
        Q_EMIT QNetworkReply::finished();
    }
}

void XNetworkReply::abort()
{
    Q_EMIT abortOut();
}

qint64 XNetworkReply::readData(char * /*data*/, qint64 /*maxSize*/)
{
    return -1;
}

void XNetworkReply::sslConfigurationImplementation(QSslConfiguration &configuration) const
{
    configuration = m_sslConfiguration;
}

void XNetworkReply::setSslConfigurationImplementation(const QSslConfiguration &configuration)
{
    m_sslConfiguration = configuration;
}

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "network/XSpooledReply.h"

#include <QPointer>
#include <QSslConfiguration>

/// A get over http or https: Qt's own reply does the work and this one spools its body, holds it to
/// the limits of a transfer, and takes a broken answer for a failure where Qt takes it for a
/// success. Made by XNetworkAccessManager, whose child it is.
///
/// The manager's sslErrors(), encrypted() and finished() carry this reply. Its
/// authenticationRequired() carries Qt's own: its url() is the same, an abort() of either ends
/// both, and outer() leads from there to this one.
class XHttpReply : public XSpooledReply
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(XHttpReply)

public:
    /// Takes `inner`, which was made for `request` and is not finished, and releases it.
    XHttpReply(const QNetworkRequest &request, QNetworkReply *inner, QObject *parent);
    ~XHttpReply() override;

    /// The XHttpReply that wraps `reply`, or `reply` itself where none does.
    static QNetworkReply *outer(QNetworkReply *reply);

public Q_SLOTS:
    /// The answer to the question that is open now, in a slot of sslErrors(): exactly its errors
    /// are ignored, in this handshake. Every other handshake of the transfer asks anew, and one
    /// whose question nobody answers ends the transfer. Nothing while no question is open.
    void ignoreSslErrors() override;

protected:
    void stop() override;
    void ignoreSslErrorsImplementation(const QList<QSslError> &errors) override;
    void sslConfigurationImplementation(QSslConfiguration &configuration) const override;
    void setSslConfigurationImplementation(const QSslConfiguration &configuration) override;

private:
    void takeMetaData();
    bool takeBody();
    void takeEnd();
    void ask(const QList<QSslError> &errors);
    QString faultOfHead() const;
    QString faultOfBody() const;
    QByteArray coding(const char *header) const;
    bool isChunked() const;
    void refuse(NetworkError code, const QString &text);
    void releaseInner();

    QPointer<QNetworkReply> m_inner;
    QSslConfiguration m_sslConfiguration;
    qint64 m_announced = -1;
    /// The question that is open, and whether it is answered.
    QList<QSslError> m_question;
    bool m_asking = false;
    bool m_isAnswered = false;
};

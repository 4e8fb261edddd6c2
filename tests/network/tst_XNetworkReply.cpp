// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "network/XNetworkAccessManager.h"
#include "network/XNetworkReply.h"

#include <QNetworkRequest>
#include <QSignalSpy>
#include <QSslConfiguration>
#include <QtTest>

namespace
{

/// A reply of Qt's kind that a test can fill.
class SourceReply : public QNetworkReply
{
public:
    SourceReply()
    {
        setOperation(QNetworkAccessManager::GetOperation);
        setRequest(QNetworkRequest(QUrl(QStringLiteral("http://host/asked"))));
        setUrl(QUrl(QStringLiteral("http://host/given/")));
        setRawHeader("X-One", "1");
        setRawHeader("Server", "test");
        setReadBufferSize(4711);
        QNetworkReply::setFinished(true);
    }
    using QNetworkReply::setError;
    using QNetworkReply::setFinished;
    void abort() override { }

protected:
    qint64 readData(char * /*data*/, qint64 /*maxSize*/) override { return -1; }
    void sslConfigurationImplementation(QSslConfiguration &configuration) const override
    {
        configuration.setProtocol(QSsl::TlsV1_3);
    }
};

} // namespace

class tst_XNetworkReply : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hasNoByteStream();
    void abortIsPassedOn();
    void failEmitsBothErrorSignals();
    void finishEmitsBothFinalSignals();
    void carriesADirectoryRequest();
    void assignmentTakesOverTheState();
    void assignmentTakesTheManagerOfItsKindOnly();
};

void tst_XNetworkReply::hasNoByteStream()
{
    XNetworkReply reply;
    QVERIFY(!reply.isOpen());
    QVERIFY(reply.open(QIODevice::ReadOnly));
    char byte = 0;
    QCOMPARE(reply.read(&byte, 1), -1);
    QVERIFY(reply.readAll().isEmpty());
}

void tst_XNetworkReply::abortIsPassedOn()
{
    XNetworkReply reply;
    QSignalSpy aborts(&reply, &XNetworkReply::abortOut);
    reply.abort();
    QCOMPARE(aborts.count(), 1);
    QVERIFY(!reply.finished);
    QCOMPARE(reply.error(), QNetworkReply::NoError);
}

void tst_XNetworkReply::failEmitsBothErrorSignals()
{
    XNetworkReply reply;
    QSignalSpy current(&reply, &QNetworkReply::errorOccurred);
    QSignalSpy deprecated(&reply, SIGNAL(error(QNetworkReply::NetworkError)));
    reply.fail(QNetworkReply::ContentAccessDenied, QStringLiteral("no"));
    QCOMPARE(current.count(), 1);
    QCOMPARE(deprecated.count(), 1);
    QCOMPARE(deprecated[0][0].value<QNetworkReply::NetworkError>(),
             QNetworkReply::ContentAccessDenied);
    QCOMPARE(reply.error(), QNetworkReply::ContentAccessDenied);
    QCOMPARE(reply.errorString(), QStringLiteral("no"));
    QVERIFY(!reply.finished);
}

void tst_XNetworkReply::finishEmitsBothFinalSignals()
{
    XNetworkReply reply;
    QStringList order;
    XNetworkReply *announced = nullptr;
    connect(&reply, &XNetworkReply::finishedReply, this, [&](XNetworkReply *self) {
        order.append(QStringLiteral("finishedReply"));
        announced = self;
        QVERIFY(self->finished);
        QVERIFY(self->isFinished());
    });
    connect(&reply, &QNetworkReply::finished, this, [&] {
        order.append(QStringLiteral("finished"));
    });
    QVERIFY(!reply.finished);
    QVERIFY(reply.isRunning());
    reply.finish();
    QCOMPARE(order, (QStringList{QStringLiteral("finishedReply"), QStringLiteral("finished")}));
    QCOMPARE(announced, &reply);
}

void tst_XNetworkReply::carriesADirectoryRequest()
{
    QNetworkRequest request(QUrl(QStringLiteral("file:///tmp/")));
    request.setRawHeader("X", "y");
    XNetworkReply reply;
    reply.setDirectoryRequest(request);
    QCOMPARE(reply.request(), request);
    QCOMPARE(reply.url(), request.url());
    QCOMPARE(static_cast<int>(reply.operation()), 1000);
    QCOMPARE(reply.manager, nullptr);
    QVERIFY(reply.entries.isEmpty());
}

void tst_XNetworkReply::assignmentTakesOverTheState()
{
    SourceReply source;
    source.setError(QNetworkReply::ContentNotFoundError, QStringLiteral("gone"));
    XNetworkReply reply;
    QSignalSpy errors(&reply, &QNetworkReply::errorOccurred);
    QSignalSpy finals(&reply, &XNetworkReply::finishedReply);
    QCOMPARE(&(reply = source), &reply);
    QCOMPARE(reply.error(), QNetworkReply::ContentNotFoundError);
    QCOMPARE(reply.errorString(), QStringLiteral("gone"));
    QCOMPARE(reply.rawHeaderPairs(), source.rawHeaderPairs());
    QCOMPARE(reply.operation(), QNetworkAccessManager::GetOperation);
    QCOMPARE(reply.request(), source.request());
    QCOMPARE(reply.url(), source.url());
    QCOMPARE(reply.sslConfiguration().protocol(), QSsl::TlsV1_3);
    QCOMPARE(reply.readBufferSize(), 4711);
    QCOMPARE(reply.manager, nullptr);
    QVERIFY(reply.finished);
    QVERIFY(reply.isFinished());
    QCOMPARE(errors.count(), 0);
    QCOMPARE(finals.count(), 0);

    source.setFinished(false);
    reply = source;
    QVERIFY(!reply.finished);
    QVERIFY(!reply.isFinished());
}

void tst_XNetworkReply::assignmentTakesTheManagerOfItsKindOnly()
{
    XNetworkAccessManager ours;
    QNetworkAccessManager plain;
    const QNetworkRequest request(QUrl(QStringLiteral("data:,x")));
    XNetworkReply reply;
    reply = *ours.get(request);
    QCOMPARE(reply.manager, &ours);
    reply = *plain.get(request);
    QCOMPARE(reply.manager, nullptr);
}

QTEST_GUILESS_MAIN(tst_XNetworkReply)
#include "tst_XNetworkReply.moc"

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "network/XFileReply.h"
#include "network/XNetworkAccessManager.h"

#include <QDateTime>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <sys/stat.h>

namespace
{

/// The signals of a reply, in their order.
class Events : public QStringList
{
public:
    explicit Events(QNetworkReply *reply)
    {
        const auto note = [this](const char *text) {
            return [this, text] {
                append(QLatin1String(text));
            };
        };
        QObject::connect(reply, &QNetworkReply::metaDataChanged, reply, note("head"));
        QObject::connect(reply, &QNetworkReply::downloadProgress, reply,
                         [this](qint64 received, qint64 total) {
                             append(QStringLiteral("%1 of %2").arg(received).arg(total));
                         });
        QObject::connect(reply, &QIODevice::readyRead, reply, note("bytes"));
        QObject::connect(reply, &QNetworkReply::errorOccurred, reply, [this](int code) {
            append(QStringLiteral("error %1").arg(code));
        });
        QObject::connect(reply, &QNetworkReply::finished, reply, note("finished"));
    }
};

} // namespace

class tst_XFileReply : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QFile file(path("a b%.xml"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write("content"), qint64(7));
        QCOMPARE(::mkfifo(QFile::encodeName(path("pipe")).constData(), 0600), 0);
        QVERIFY(QFile::link(QStringLiteral("/dev/zero"), path("device")));
        QVERIFY(QFile::link(QStringLiteral("/proc/kmsg"), path("kmsg.xml")));
    }

    void reads_data()
    {
        QTest::addColumn<QUrl>("url");
        const QUrl url = QUrl::fromLocalFile(path("a b%.xml"));
        QTest::newRow("file") << url;
        QUrl plain;
        plain.setPath(url.path(QUrl::FullyDecoded), QUrl::DecodedMode);
        QTest::newRow("no scheme") << plain;
        QUrl local = url;
        local.setHost(QStringLiteral("localhost"));
        QTest::newRow("this host by its name") << local;
    }
    void reads()
    {
        QFETCH(QUrl, url);
        const std::unique_ptr<QNetworkReply> reply(m_manager.get(QNetworkRequest(url)));
        QVERIFY(qobject_cast<XFileReply *>(reply.get()));
        Events events(reply.get());
        QCOMPARE(reply->error(), QNetworkReply::NoError);
        QVERIFY(reply->isFinished());
        QVERIFY(reply->isSequential());
        QCOMPARE(reply->manager(), static_cast<QNetworkAccessManager *>(&m_manager));
        QCOMPARE(reply->header(QNetworkRequest::ContentLengthHeader).toLongLong(), qint64(7));
        QVERIFY(reply->header(QNetworkRequest::LastModifiedHeader).toDateTime().isValid());
        QVERIFY(events.isEmpty());
        QTRY_COMPARE(events,
                     QStringList({QStringLiteral("head"), QStringLiteral("7 of 7"),
                                  QStringLiteral("bytes"), QStringLiteral("finished")}));
        QCOMPARE(reply->bytesAvailable(), qint64(7));
        QCOMPARE(reply->peek(100), QByteArray("content"));
        QCOMPARE(reply->read(3), QByteArray("con"));
        QCOMPARE(reply->readAll(), QByteArray("tent"));
        QCOMPARE(reply->bytesAvailable(), qint64(0));
        QVERIFY(reply->atEnd());
    }

    void doesNotRead_data()
    {
        QTest::addColumn<QUrl>("url");
        QTest::addColumn<int>("code");
        const auto row = [this](const char *name, int code) {
            QTest::newRow(name) << QUrl::fromLocalFile(path(name)) << code;
        };
        row("missing", QNetworkReply::ContentNotFoundError);
        row("pipe", QNetworkReply::ContentOperationNotPermittedError);
        row("device", QNetworkReply::ContentOperationNotPermittedError);
        row("kmsg.xml", QNetworkReply::ContentOperationNotPermittedError);
        row("", QNetworkReply::ContentOperationNotPermittedError);
        const auto url = [](const char *title, const char *text, int code) {
            QTest::newRow(title) << QUrl(QLatin1String(text)) << code;
        };
        url("device by a link of a page", "file:///dev/zero#.deb",
            QNetworkReply::ContentOperationNotPermittedError);
        url("NUL in the name", "file:///proc/kmsg%00.xml", QNetworkReply::ContentNotFoundError);
        url("another host", "file://h/etc/hostname", QNetworkReply::ProtocolInvalidOperationError);
    }
    void doesNotRead()
    {
        QFETCH(QUrl, url);
        QFETCH(int, code);
        const std::unique_ptr<QNetworkReply> reply(m_manager.get(QNetworkRequest(url)));
        Events events(reply.get());
        QCOMPARE(int(reply->error()), code);
        QVERIFY(!reply->errorString().isEmpty());
        QTRY_COMPARE(
            events,
            QStringList({QStringLiteral("error %1").arg(code), QStringLiteral("finished")}));
        QCOMPARE(reply->readAll(), QByteArray());
    }

    // As a transfer that has ended: nothing but the file goes.
    void abortDropsTheRest()
    {
        const QUrl url = QUrl::fromLocalFile(path("a b%.xml"));
        const std::unique_ptr<QNetworkReply> reply(m_manager.get(QNetworkRequest(url)));
        const QSignalSpy finished(reply.get(), &QNetworkReply::finished);
        reply->abort();
        QCOMPARE(reply->bytesAvailable(), qint64(0));
        QTRY_COMPARE(finished.size(), 1);
        QCOMPARE(reply->error(), QNetworkReply::NoError);
    }

    void mayBeDeletedInASlot()
    {
        const QUrl url = QUrl::fromLocalFile(path("a b%.xml"));
        QPointer<QNetworkReply> reply = m_manager.get(QNetworkRequest(url));
        connect(reply, &QNetworkReply::metaDataChanged, this, [&reply] {
            delete reply;
        });
        QTRY_VERIFY(!reply);
    }

private:
    QString path(const char *name) const { return m_dir.filePath(QLatin1String(name)); }

    const QTemporaryDir m_dir;
    XNetworkAccessManager m_manager;
};

QTEST_GUILESS_MAIN(tst_XFileReply)
#include "tst_XFileReply.moc"

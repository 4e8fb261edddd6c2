// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/LocalCopy.h"
#include "network/XSpooledReply.h"
#include "tests/support/WarningGuard.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPointer>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <csignal>
#include <limits>
#include <memory>
#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <vector>

namespace
{

constexpr int limitMs = 5000;
constexpr qint64 mebibyte = 1024 * 1024;

class Reply : public XSpooledReply
{
    Q_OBJECT

public:
    explicit Reply(QObject *parent = nullptr)
        : XSpooledReply(QNetworkAccessManager::GetOperation,
                        QNetworkRequest(QUrl(QStringLiteral("http://host/a.deb"))), parent)
    {
    }

    using XSpooledReply::announce;
    using XSpooledReply::append;
    using XSpooledReply::end;
    using XSpooledReply::suspendInactivity;

    int stops = 0;

protected:
    void stop() override
    {
        ++stops;
        // A transfer that is stopped tells of it, too late.
        end(QNetworkReply::RemoteHostClosedError, QStringLiteral("stopped"));
        append("late", -1);
    }
};

/// The signals of a reply, in order.
class Record : public QObject
{
    Q_OBJECT

public:
    explicit Record(QNetworkReply *reply)
    {
        connect(reply, &QNetworkReply::readyRead, this, [this] {
            events.append(QStringLiteral("readyRead"));
        });
        connect(reply, &QNetworkReply::errorOccurred, this, [this](QNetworkReply::NetworkError e) {
            events.append(QStringLiteral("error %1").arg(e));
        });
        connect(reply, &QNetworkReply::finished, this, [this] {
            events.append(QStringLiteral("finished"));
        });
    }

    QStringList events;
};

/// Bytes that differ from place to place.
QByteArray pattern(qint64 from, int size)
{
    QByteArray bytes(size, Qt::Uninitialized);
    qint64 at = from;
    for (char &byte : bytes) {
        byte = static_cast<char>((static_cast<quint32>(at++) * 2654435761U) >> 24);
    }
    return bytes;
}

/// The paths that this process's descriptors lead to, of regular files alone.
QStringList openFiles()
{
    QStringList result;
    const QDir descriptors(QStringLiteral("/proc/self/fd"));
    const QStringList names = descriptors.entryList(QDir::AllEntries | QDir::System);
    for (const QString &name : names) {
        struct stat status = {};
        const QByteArray path = QFile::encodeName(descriptors.filePath(name));
        if (::stat(path.constData(), &status) == 0 && S_ISREG(status.st_mode)) {
            result.append(QFileInfo(descriptors.filePath(name)).symLinkTarget());
        }
    }
    return result;
}

} // namespace

class tst_XSpooledReply : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_guard = std::make_unique<WarningGuard>(); }
    void cleanup() { m_guard.reset(); }

    void isOpenFromTheStart()
    {
        Reply reply;
        QVERIFY(reply.isOpen());
        QVERIFY(reply.isReadable());
        QVERIFY(reply.isSequential());
        QVERIFY(reply.isRunning());
        QCOMPARE(reply.bytesAvailable(), 0);
        QCOMPARE(reply.read(1), QByteArray());
        QCOMPARE(reply.operation(), QNetworkAccessManager::GetOperation);
        QCOMPARE(reply.url(), QUrl(QStringLiteral("http://host/a.deb")));
        QCOMPARE(reply.request().url(), reply.url());
    }

    void keepsTheBody_data()
    {
        QTest::addColumn<int>("size");
        QTest::addColumn<int>("piece");
        QTest::addColumn<bool>("readsAsItComes");
        for (const bool reads : {false, true}) {
            const char *how = reads ? "read as it comes" : "read at the end";
            const auto row = [&](const char *name, int size, int piece) {
                QTest::addRow("%s, %s", name, how) << size << piece << reads;
            };
            row("nothing", 0, 1);
            row("one byte", 1, 1);
            row("all that memory takes", mebibyte, 16384);
            row("one byte more", mebibyte + 1, 16384);
            row("one large piece", 3 * mebibyte, 3 * mebibyte);
            row("many odd pieces", 5 * mebibyte + 7, 10007);
        }
    }
    void keepsTheBody()
    {
        QFETCH(int, size);
        QFETCH(int, piece);
        QFETCH(bool, readsAsItComes);
        Reply reply;
        QByteArray read;
        connect(&reply, &QNetworkReply::readyRead, this, [&] {
            if (readsAsItComes) {
                // Not all of it, so that the rest meets the next piece.
                read += reply.read(qMax<qint64>(1, reply.bytesAvailable() * 2 / 3));
            }
        });
        for (int at = 0; at < size; at += piece) {
            QVERIFY(reply.append(pattern(at, qMin(piece, size - at)), size));
            QCOMPARE(reply.bytesAvailable(), qMin(at + piece, size) - read.size());
        }
        reply.end();
        QCOMPARE(reply.received(), size);
        read += reply.readAll();
        QVERIFY(read == pattern(0, size));
        QVERIFY(reply.atEnd());
        QCOMPARE(reply.read(1), QByteArray());
        QCOMPARE(reply.error(), QNetworkReply::NoError);
    }

    void temporaryFileHasNoName()
    {
        QTemporaryDir directory;
        const QByteArray before = qgetenv("TMPDIR");
        qputenv("TMPDIR", QFile::encodeName(directory.path()));
        const QString inside = QFileInfo(directory.path()).canonicalFilePath();
        {
            Reply reply;
            QVERIFY(reply.append(pattern(0, mebibyte), -1));
            QVERIFY(openFiles().filter(inside).isEmpty());
            QVERIFY(reply.append("x", -1));
            QCOMPARE(openFiles().filter(inside).size(), 1);
            QCOMPARE(QDir(inside)
                         .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot)
                         .size(),
                     0);
            // All read: the next bytes need no file.
            QCOMPARE(reply.readAll().size(), mebibyte + 1);
            QVERIFY(openFiles().filter(inside).isEmpty());
            QVERIFY(reply.append(pattern(0, 2 * mebibyte), -1));
        }
        QVERIFY(openFiles().filter(inside).isEmpty());
        qputenv("TMPDIR", before);
    }

    void fullDiskEndsIt()
    {
        // Writing beyond the limit fails as on a full disk; a signal tells of it besides.
        rlimit before = {};
        QCOMPARE(::getrlimit(RLIMIT_FSIZE, &before), 0);
        rlimit small = before;
        small.rlim_cur = 2 * mebibyte;
        const auto handler = ::signal(SIGXFSZ, SIG_IGN);
        QCOMPARE(::setrlimit(RLIMIT_FSIZE, &small), 0);
        Reply reply;
        Record record(&reply);
        int pieces = 0;
        while (pieces < 5 && reply.append(pattern(0, mebibyte), -1)) {
            ++pieces;
        }
        QCOMPARE(::setrlimit(RLIMIT_FSIZE, &before), 0);
        ::signal(SIGXFSZ, handler);
        QCOMPARE(pieces, 2);
        QCOMPARE(reply.error(), QNetworkReply::UnknownNetworkError);
        QCOMPARE(record.events.mid(2),
                 QStringList({QStringLiteral("error 99"), QStringLiteral("finished")}));
        QCOMPARE(reply.stops, 1);
    }

    // Many of them at a time fill the disk together, but for the reserve.
    void bodiesThatNeverEndLeaveAReserve()
    {
        if (::geteuid() != 0 || ::unshare(CLONE_NEWNS) != 0
            || ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0) {
            QSKIP("mounting is not allowed here");
        }
        QTemporaryDir directory;
        const QByteArray place = QFile::encodeName(directory.path());
        QCOMPARE(::mount("tmpfs", place.constData(), "tmpfs", 0, "size=100m"), 0);
        const QByteArray before = qgetenv("TMPDIR");
        qputenv("TMPDIR", place);
        const QByteArray piece = pattern(0, mebibyte);
        std::vector<std::unique_ptr<Reply>> replies;
        for (int i = 0; i < 100; ++i) {
            replies.push_back(std::make_unique<Reply>());
        }
        for (int round = 0; round < 2; ++round) {
            for (const auto &reply : replies) {
                if (reply->error() == QNetworkReply::NoError) {
                    reply->append(piece, -1);
                }
            }
        }
        qputenv("TMPDIR", before);
        struct statvfs info = {};
        QCOMPARE(::statvfs(place.constData(), &info), 0);
        const auto failed = std::count_if(replies.cbegin(), replies.cend(), [](const auto &reply) {
            return reply->error() == QNetworkReply::UnknownNetworkError;
        });
        QVERIFY(failed > 0);
        QVERIFY(failed < 100);
        QVERIFY(info.f_bavail >= info.f_blocks / 20);
        replies.clear();
        QCOMPARE(::umount(place.constData()), 0);
    }

    void bodiesShareALimit()
    {
        constexpr int size = 2 * mebibyte;
        const auto stored = std::make_shared<qint64>(XSpooledReply::storedLimit - 3 * size);
        const qint64 before = *stored;
        std::vector<std::unique_ptr<Reply>> replies;
        for (int i = 0; i < 4; ++i) {
            replies.push_back(std::make_unique<Reply>());
            replies.back()->setStored(stored);
            QCOMPARE(replies.back()->append(pattern(0, size), -1), i < 3);
        }
        QCOMPARE(*stored, XSpooledReply::storedLimit);
        QCOMPARE(replies[3]->error(), QNetworkReply::UnknownNetworkError);
        QCOMPARE(replies[3]->stops, 1);
        QVERIFY(!replies[2]->append("x", -1));
        QCOMPARE(replies[2]->error(), QNetworkReply::UnknownNetworkError);
        // What is in memory does not count.
        Reply small;
        small.setStored(stored);
        QVERIFY(small.append(pattern(0, mebibyte), -1));

        // Room comes back when a body is read, dropped, or goes with its reply.
        replies[0]->end();
        QCOMPARE(replies[0]->readAll(), pattern(0, size));
        QCOMPARE(*stored, XSpooledReply::storedLimit - size);
        replies[1]->close();
        QCOMPARE(*stored, XSpooledReply::storedLimit - 2 * size);
        replies.clear();
        QCOMPARE(*stored, before);
        QVERIFY(small.append(pattern(0, size), -1));
    }

    void missingDirectoryEndsIt()
    {
        const QByteArray before = qgetenv("TMPDIR");
        qputenv("TMPDIR", "/does/not/exist");
        Reply reply;
        QVERIFY(reply.append(pattern(0, mebibyte), -1));
        QVERIFY(!reply.append("x", -1));
        qputenv("TMPDIR", before);
        QCOMPARE(reply.error(), QNetworkReply::UnknownNetworkError);
        QCOMPARE(reply.stops, 1);
    }

    void bodyLimit_data()
    {
        QTest::addColumn<qint64>("total");
        QTest::addColumn<bool>("ends");
        QTest::newRow("2 GiB") << (qint64(1) << 31) << true;
        QTest::newRow("one byte less") << (qint64(1) << 31) - 1 << false;
        QTest::newRow("most that can be said") << std::numeric_limits<qint64>::max() << true;
        QTest::newRow("unknown") << qint64(-1) << false;
    }
    void bodyLimit()
    {
        QFETCH(qint64, total);
        QFETCH(bool, ends);
        Reply reply;
        Record record(&reply);
        QCOMPARE(reply.announce(total), !ends);
        QCOMPARE(reply.error(), ends ? QNetworkReply::ProtocolFailure : QNetworkReply::NoError);
        QCOMPARE(record.events.size(), ends ? 2 : 0);
        QCOMPARE(reply.stops, ends ? 1 : 0);
    }

    void bodyThatGrowsTooLarge()
    {
        Reply reply;
        reply.setBodyLimit(10);
        QVERIFY(reply.append("123456789", -1));
        QVERIFY(!reply.append("0", -1));
        QCOMPARE(reply.error(), QNetworkReply::ProtocolFailure);
        QCOMPARE(reply.stops, 1);
        QVERIFY(!reply.append("1", -1));
        // What came before stays readable.
        QCOMPARE(reply.readAll(), QByteArray("123456789"));
    }

    void silenceEndsIt()
    {
        Reply reply;
        QSignalSpy finished(&reply, &QNetworkReply::finished);
        reply.setInactivityLimit(50);
        QVERIFY(finished.wait(limitMs));
        QCOMPARE(static_cast<int>(reply.error()), 4);
        QCOMPARE(reply.stops, 1);
    }

    void slowIsNotSilent()
    {
        Reply reply;
        QSignalSpy finished(&reply, &QNetworkReply::finished);
        reply.setInactivityLimit(400);
        QElapsedTimer clock;
        clock.start();
        QTimer drip;
        connect(&drip, &QTimer::timeout, &reply, [&] {
            if (clock.elapsed() < 1000) {
                reply.append(".", -1);
            }
        });
        drip.start(20);
        QVERIFY(finished.wait(limitMs));
        // The whole took longer than the limit; only the silence after it counted.
        QVERIFY(clock.elapsed() >= 1350);
        QCOMPARE(static_cast<int>(reply.error()), 4);
        QVERIFY(reply.received() > 5);
    }

    void openQuestionIsNoSilence()
    {
        Reply reply;
        QSignalSpy finished(&reply, &QNetworkReply::finished);
        reply.setInactivityLimit(50);
        reply.suspendInactivity(true);
        reply.suspendInactivity(true);
        reply.append("x", -1);
        reply.suspendInactivity(false);
        QVERIFY(!finished.wait(300));
        reply.suspendInactivity(false);
        QVERIFY(finished.wait(limitMs));
        QCOMPARE(static_cast<int>(reply.error()), 4);
    }

    void oneEnd_data()
    {
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("second");
        for (const char *first : {"end", "error", "abort", "timeout", "too large"}) {
            for (const char *second : {"end", "error", "abort", "close", "append"}) {
                QTest::addRow("%s, then %s", first, second)
                    << QString::fromLatin1(first) << QString::fromLatin1(second);
            }
        }
    }
    void oneEnd()
    {
        QFETCH(QString, first);
        QFETCH(QString, second);
        Reply reply;
        Record record(&reply);
        perform(&reply, first);
        const QStringList once = record.events;
        const QHash<QString, int> codes{{QStringLiteral("end"), 0},
                                        {QStringLiteral("error"), 299},
                                        {QStringLiteral("abort"), 5},
                                        {QStringLiteral("timeout"), 4},
                                        {QStringLiteral("too large"), 399}};
        QCOMPARE(static_cast<int>(reply.error()), codes.value(first));
        QCOMPARE(once.filter(QStringLiteral("finished")).size(), 1);
        QCOMPARE(once.filter(QStringLiteral("error")).size(),
                 first == QLatin1String("end") ? 0 : 1);
        // The transfer is stopped where it did not end by itself.
        const bool byItself = first == QLatin1String("end") || first == QLatin1String("error");
        QCOMPARE(reply.stops, byItself ? 0 : 1);
        perform(&reply, second);
        QCoreApplication::processEvents();
        QCOMPARE(record.events, once);
        QCOMPARE(static_cast<int>(reply.error()), codes.value(first));
        QVERIFY(reply.isFinished());
    }

    void deletedInItsOwnSlot_data()
    {
        QTest::addColumn<QString>("signal");
        QTest::addColumn<QString>("action");
        QTest::newRow("when bytes come") << "readyRead"
                                         << "append";
        QTest::newRow("on progress") << "progress"
                                     << "append";
        QTest::newRow("on the last progress") << "progress"
                                              << "end";
        QTest::newRow("at the end of the body") << "readChannelFinished"
                                                << "end";
        QTest::newRow("at the end") << "finished"
                                    << "end";
        for (const char *action : {"error", "abort", "too large", "timeout"}) {
            for (const char *signal : {"error", "readChannelFinished", "finished"}) {
                QTest::addRow("%s, by %s", action, signal) << signal << action;
            }
        }
    }
    void deletedInItsOwnSlot()
    {
        QFETCH(QString, signal);
        QFETCH(QString, action);
        auto *reply = new Reply;
        const QPointer<Reply> alive(reply);
        const auto remove = [&] {
            delete alive.data();
        };
        if (signal == QLatin1String("readyRead")) {
            connect(reply, &QNetworkReply::readyRead, this, remove);
        } else if (signal == QLatin1String("progress")) {
            connect(reply, &QNetworkReply::downloadProgress, this, remove);
        } else if (signal == QLatin1String("readChannelFinished")) {
            connect(reply, &QIODevice::readChannelFinished, this, remove);
        } else if (signal == QLatin1String("error")) {
            connect(reply, &QNetworkReply::errorOccurred, this, remove);
        } else {
            connect(reply, &QNetworkReply::finished, this, remove);
        }
        perform(reply, action);
        QVERIFY(!alive);
    }

    void appendSaysThatItIsGone()
    {
        auto *deleted = new Reply;
        connect(deleted, &QNetworkReply::readyRead, this, [deleted] {
            delete deleted;
        });
        QVERIFY(!deleted->append("x", -1));
        Reply aborted;
        connect(&aborted, &QNetworkReply::readyRead, &aborted, &QNetworkReply::abort);
        QVERIFY(!aborted.append("x", -1));
    }

    void closeStopsTheTransfer()
    {
        Reply reply;
        Record record(&reply);
        reply.append("unread", -1);
        reply.close();
        QCOMPARE(reply.bytesAvailable(), 0);
        QVERIFY(reply.append("more", -1));
        QCOMPARE(record.events.size(), 1);
        QTRY_COMPARE(record.events.size(), 3);
        QCOMPARE(static_cast<int>(reply.error()), 5);
        QCOMPARE(reply.stops, 1);
    }

    void errorIsToldOnceByEachName()
    {
        Reply reply;
        QSignalSpy occurred(&reply, &QNetworkReply::errorOccurred);
        QSignalSpy deprecated(&reply, SIGNAL(error(QNetworkReply::NetworkError)));
        reply.abort();
        QCOMPARE(occurred.count(), 1);
        QCOMPARE(deprecated.count(), 1);
    }

    void codesAreQt4s()
    {
        Reply reply;
        reply.end(QNetworkReply::ContentGoneError, QStringLiteral("gone"));
        QCOMPARE(static_cast<int>(reply.error()), 299);
        QCOMPARE(reply.errorString(), QStringLiteral("gone"));
    }

    void progress()
    {
        Reply reply;
        QList<QPair<qint64, qint64>> seen;
        connect(&reply, &QNetworkReply::downloadProgress, this, [&](qint64 done, qint64 total) {
            seen.append({done, total});
        });
        for (int i = 0; i < 1000; ++i) {
            reply.append("0123456789", 10000);
        }
        reply.end();
        QCOMPARE(seen.first(), qMakePair(qint64(10), qint64(10000)));
        QCOMPARE(seen.last(), qMakePair(qint64(10000), qint64(10000)));
        // A progress bar need not move for every packet.
        QVERIFY(seen.size() < 100);
    }

    void progressOfUnknownSize()
    {
        Reply reply;
        QSignalSpy spy(&reply, &QNetworkReply::downloadProgress);
        reply.append("0123456789", -1);
        QCOMPARE(spy.last().value(1).toLongLong(), -1);
        reply.end();
        QCOMPARE(spy.last().value(1).toLongLong(), 10);
    }

    void isTakenAsALocalCopy()
    {
        Reply reply;
        const QByteArray body = pattern(0, 3 * mebibyte);
        reply.append(body, -1);
        reply.end();
        LocalCopy copy;
        QVERIFY(copy.take(&reply));
        QVERIFY(copy.file()->readAll() == body);
    }

private:
    static void perform(Reply *reply, const QString &what)
    {
        if (what == QLatin1String("end")) {
            reply->end();
        } else if (what == QLatin1String("error")) {
            reply->end(QNetworkReply::UnknownContentError, QStringLiteral("broken"));
        } else if (what == QLatin1String("abort")) {
            reply->abort();
        } else if (what == QLatin1String("close")) {
            reply->close();
        } else if (what == QLatin1String("append")) {
            reply->append("x", -1);
        } else if (what == QLatin1String("too large")) {
            reply->announce(XSpooledReply::defaultBodyLimit);
        } else if (what == QLatin1String("timeout")) {
            QSignalSpy destroyed(reply, &QObject::destroyed);
            QSignalSpy finished(reply, &QNetworkReply::finished);
            reply->setInactivityLimit(1);
            QTRY_VERIFY_WITH_TIMEOUT(!destroyed.isEmpty() || !finished.isEmpty(), limitMs);
        }
    }

    std::unique_ptr<WarningGuard> m_guard;
};

QTEST_GUILESS_MAIN(tst_XSpooledReply)
#include "tst_XSpooledReply.moc"

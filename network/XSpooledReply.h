// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QElapsedTimer>
#include <QNetworkReply>
#include <QTimer>

#include <memory>

/// A reply whose body is kept as it comes: a little of it in memory, more in an unnamed temporary
/// file, so that memory does not grow with the update. What is unread stays readable after the end.
///
/// Its final signal is finished(), once, before it errorOccurred() where it failed; the first of
/// end(), abort(), close() and the limits below wins. Error codes are Qt 4's; the texts
/// beside them are for logs, users are shown a sentence for the code. Released with
/// deleteLater() by whoever receives finished(); it may be deleted in a slot of any of its signals.
class XSpooledReply : public QNetworkReply
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(XSpooledReply)

public:
    static constexpr int defaultInactivityMs = 120'000;
    static constexpr qint64 defaultBodyLimit = qint64(1) << 31;
    static constexpr qint64 storedLimit = defaultBodyLimit;

    ~XSpooledReply() override;

    /// So long may pass without a byte before it ends with TimeoutError; there is no limit on the
    /// whole.
    void setInactivityLimit(int milliseconds);
    /// A body of so many bytes or more, received or announced, ends it with ProtocolFailure.
    void setBodyLimit(qint64 bytes) { m_bodyLimit = bytes; }
    /// The bytes on disk of all replies with this counter: at most storedLimit, or a server with
    /// many bodies that never end fills the disk. Set before anything is stored.
    void setStored(const std::shared_ptr<qint64> &bytes) { m_stored = bytes; }
    /// Bytes of the body that came so far, read or not.
    qint64 received() const { return m_received; }

    bool isSequential() const override { return true; }
    qint64 bytesAvailable() const override;
    /// Drops what is unread; where the transfer still runs, it is aborted from the event loop.
    void close() override;

public Q_SLOTS:
    /// Ends it with OperationCanceledError, before the call returns. Nothing after the end.
    void abort() override;

protected:
    /// Open for reading from here on, and waiting for the first byte.
    XSpooledReply(QNetworkAccessManager::Operation operation, const QNetworkRequest &request,
                  QObject *parent);

    /// The next piece of the body; `total` is what the server announced, -1 for nothing. False once
    /// it has ended (too large, disk full, aborted by a reader) or is deleted: touch it no more.
    bool append(const QByteArray &data, qint64 total);
    /// The announced size alone, as soon as it is known. As append().
    bool announce(qint64 total);
    /// The other side is alive: the wait for the next byte begins again.
    void restartInactivity();
    /// While a question to the user is open; calls nest.
    void suspendInactivity(bool suspended);
    /// The whole body is there.
    void end();
    void end(NetworkError code, const QString &text);
    bool hasEnded() const { return m_ended; }

    /// Stops the transfer. Called once, before the final signals, unless the subclass ended it. Not
    /// called by the destructor.
    virtual void stop() = 0;

    qint64 readData(char *data, qint64 maxSize) override;

private:
    void failAndStop(NetworkError code, const QString &text);
    bool store(const QByteArray &data);
    bool storeInFile(const QByteArray &data, qint64 position);
    bool openFile();
    void dropBody();
    bool tellProgress(bool last);

    /// Unread, while there is no file. Read from m_readPosition on.
    QByteArray m_memory;
    /// The descriptor of the temporary file, -1 while memory is enough.
    int m_file = -1;
    /// What of m_stored is ours.
    qint64 m_ownStored = 0;
    std::shared_ptr<qint64> m_stored = std::make_shared<qint64>(0);
    qint64 m_readPosition = 0;
    /// The end of what is stored, in memory or in the file.
    qint64 m_writePosition = 0;
    qint64 m_received = 0;
    qint64 m_total = -1;
    qint64 m_bodyLimit = defaultBodyLimit;
    QTimer m_inactivity;
    QElapsedTimer m_lastProgress;
    int m_suspensions = 0;
    bool m_ended = false;
};

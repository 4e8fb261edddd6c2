// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>
#include <QUrl>

/// A folder that files are downloaded into: each has the suffix ".part" until it is complete and
/// stored, so that a file under its own name is a whole one. Names from servers stay names: none of
/// them leads out of the folder, and no link is followed or written through.
class RVCtlFolder
{
public:
    enum State {
        Missing,
        Present,
        /// A directory, link, pipe or device has that name.
        Foreign,
    };

    RVCtlFolder() = default;
    ~RVCtlFolder();

    /// The name that the file at `url` gets, as bytes; empty when it cannot have one.
    static QByteArray nameOf(const QUrl &url);

    /// Makes the folder when it is missing and keeps other runs out of it. False, and why, when it
    /// cannot be used.
    bool open(const QString &path, QString *error);
    const QString &path() const { return m_path; }

    State state(const QByteArray &name) const;
    qint64 sizeOf(const QByteArray &name) const;
    /// An empty part of the file to write to; errno says why there is none.
    bool begin(const QByteArray &name, QFile *part) const;
    /// The part's path, to look at it.
    QString partPath(const QByteArray &name) const;
    /// Stores the part and gives it its name. False when the disk does not take it; errno says why.
    bool complete(const QByteArray &name, QFile *part) const;
    void drop(const QByteArray &name) const;

private:
    Q_DISABLE_COPY_MOVE(RVCtlFolder)

    QString m_path;
    int m_handle = -1;
};

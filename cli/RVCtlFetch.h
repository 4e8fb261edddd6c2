// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "cli/RVCtlFault.h"
#include "network/RVAccess.h"

#include <QFile>
#include <QObject>
#include <QSharedPointer>

#include <functional>
#include <memory>

class QUrl;
class RVCtlAccess;
class RVCtlDeadline;
class RVCtlFolder;
class RVRepository;
class RVTrust;
class XNetworkAccessManager;

/// Downloads files of one repository into a folder, one after the other, as the window would fetch
/// them: through the same proxy, with the same logins.
class RVCtlFetch : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(RVCtlFetch)

public:
    RVCtlFetch(const RVRepository &repository, RVCtlAccess *access, RVCtlDeadline *deadline);
    ~RVCtlFetch() override;

    /// What the files are held against before they get their names; null for nothing.
    QSharedPointer<RVTrust> trust;
    /// Fetches the list of sums once more, past every cache, and from here on files as well. Runs
    /// an event loop.
    void renewList();

    /// Runs an event loop until the file is complete, or cannot be had, or the deadline is over.
    /// `progress` gets the bytes so far.
    RVCtlFault fetch(const QUrl &url, const QByteArray &name, const RVCtlFolder &folder,
                     const std::function<void(qint64)> &progress);

private:
    RVCtlFault transfer(const QUrl &url, QFile *part, const std::function<void(qint64)> &progress);

    RVAccess m_source;
    RVCtlAccess *m_access;
    RVCtlDeadline *m_deadline;
    std::unique_ptr<XNetworkAccessManager> m_manager;
    bool m_isFresh = false;
};

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QProcess>

#include <functional>

class QHostAddress;

/// A server that a test starts: in a process group of its own, and ending with the test program.
class ServerProcess : public QProcess
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ServerProcess)

public:
    enum Rights {
        AllRights, ///< those of who runs the test
        OrdinaryRights, ///< never root's
    };

    explicit ServerProcess(Rights rights);

    /// Starts it in `folder`, with its output in the file "output" there, and waits until
    /// `isReady`. False after 20 s, or when it ended.
    bool launch(const QString &folder, const QString &program, const QStringList &arguments,
                const std::function<bool()> &isReady);
    /// Ends it and its children at once.
    void killGroup();

    /// A port on which nobody listens now, 0 if there is none.
    static quint16 freePort(const QHostAddress &address);
    /// Makes a folder that everybody may enter and read.
    static void makeOpenFolder(const QString &folder);

protected:
    void setupChildProcess() override;

private:
    const Rights m_rights;
};

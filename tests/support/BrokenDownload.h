// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "tests/support/HttpServer.h"
#include "tests/support/InlineFtpServer.h"

/// A file of a server that cannot be got, each row in another way: for whoever downloads several
/// files and has to go on. Ends within a second if nothing may be silent for longer than
/// `inactivityLimit`.
class BrokenDownload
{
public:
    static constexpr int inactivityLimit = 500;

    /// The columns and the rows.
    static void addRows();
    /// That of the current row.
    BrokenDownload();

    QUrl serve(const QString &file);
    /// Qt 4's code, which is to be told once.
    int error() const { return m_error; }

private:
    Q_DISABLE_COPY_MOVE(BrokenDownload)

    HttpServer m_http;
    InlineFtpServer m_ftp;
    bool m_isFtp = false;
    QByteArray m_answer;
    HttpServer::After m_after = HttpServer::After::Close;
    int m_error = 0;
};

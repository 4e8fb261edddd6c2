// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/RVCtlMessages.h"

#include "core/RVText.h"

#include <cstdio>
#include <cstdlib>

namespace
{

constexpr char clearLine[] = "\r\033[K";

const RVCtlMessages *s_messages = nullptr;

void print(const char *kind, const QString &text, const QString &status = QString())
{
    std::fprintf(stderr, "%sravelctl: %s%s\n%s", status.isEmpty() ? "" : clearLine, kind,
                 RVText::safe(text).toLocal8Bit().constData(), status.toLocal8Bit().constData());
}

} // namespace

RVCtlMessages::RVCtlMessages()
    : m_previous(qInstallMessageHandler(handleQtMessage))
{
    s_messages = this;
}

RVCtlMessages::~RVCtlMessages()
{
    setStatus(QString());
    qInstallMessageHandler(m_previous);
    s_messages = nullptr;
}

void RVCtlMessages::error(const QString &text) const
{
    print("", text, m_status);
}

void RVCtlMessages::warning(const QString &text) const
{
    if (!m_quiet) {
        print("warning: ", text, m_status);
    }
}

void RVCtlMessages::note(const QString &text) const
{
    if (!m_quiet) {
        print("", text, m_status);
    }
}

void RVCtlMessages::setStatus(const QString &line)
{
    if (line != m_status) {
        m_status = line;
        std::fprintf(stderr, "%s%s", clearLine, line.toLocal8Bit().constData());
        std::fflush(stderr);
    }
}

void RVCtlMessages::handleQtMessage(QtMsgType type, const QMessageLogContext & /*context*/,
                                    const QString &text)
{
    if (type == QtFatalMsg) {
        print("fatal: ", text);
        std::abort();
    }
    if (s_messages && type != QtDebugMsg && type != QtInfoMsg) {
        s_messages->warning(text.trimmed());
    }
}

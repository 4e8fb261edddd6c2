// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/RVCtlMessages.h"

#include <cstdio>
#include <cstdlib>

#include "cli/RVCtlText.h"

namespace
{

const RVCtlMessages *s_messages = nullptr;

void print(const char *kind, const QString &text)
{
    std::fprintf(stderr, "ravelctl: %s%s\n", kind, RVCtlText::safe(text).toLocal8Bit().constData());
}

} // namespace

RVCtlMessages::RVCtlMessages()
    : m_previous(qInstallMessageHandler(handleQtMessage))
{
    s_messages = this;
}

RVCtlMessages::~RVCtlMessages()
{
    qInstallMessageHandler(m_previous);
    s_messages = nullptr;
}

void RVCtlMessages::error(const QString &text) const
{
    print("", text);
}

void RVCtlMessages::warning(const QString &text) const
{
    if (!m_quiet) {
        print("warning: ", text);
    }
}

void RVCtlMessages::note(const QString &text) const
{
    if (!m_quiet) {
        print("", text);
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

// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/support/WarningGuard.h"

#include <QTest>

namespace
{
WarningGuard *s_current = nullptr;
}

WarningGuard::WarningGuard()
    : m_previous(nullptr)
{
    Q_ASSERT(!s_current);
    s_current = this;
    m_previous = qInstallMessageHandler(&WarningGuard::handle);
}

WarningGuard::~WarningGuard()
{
    qInstallMessageHandler(m_previous);
    s_current = nullptr;
    const QStringList messages = unexpected();
    if (!messages.isEmpty() && QTest::currentTestFunction()) {
        QTest::qFail(qUtf8Printable(messages.join(QLatin1Char('\n'))), __FILE__, __LINE__);
    }
}

void WarningGuard::allow(const QString &pattern)
{
    m_allowed.append(QRegularExpression(pattern));
}

QStringList WarningGuard::unexpected() const
{
    QStringList result;
    for (const QString &message : m_messages) {
        bool expected = false;
        for (const QRegularExpression &pattern : m_allowed) {
            expected = expected || pattern.match(message).hasMatch();
        }
        if (!expected) {
            result.append(message);
        }
    }
    return result;
}

void WarningGuard::handle(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    // Qt's own, and harmless. Races: managers in two threads register the same type at once, a
    // request is given up while its host is looked up, and a reply whose connection ends just when
    // it fails is told so twice. The offscreen platform has no size hints.
    for (const char *known :
         {"Type conversion already registered from type QSharedPointer<QNetworkSession>",
          "QHttpNetworkConnectionPrivate::_q_hostLookupFinished could not de-queue request",
          "QNetworkReplyImplPrivate::error: Internal problem, this method must only be called once",
          "This plugin does not support propagateSizeHints"}) {
        if (text.startsWith(QLatin1String(known))) {
            return;
        }
    }
    // The threads of network managers write, too.
    const QMutexLocker locker(&s_current->m_mutex);
    if (type == QtWarningMsg || type == QtCriticalMsg) {
        s_current->m_messages.append(text);
    } else if (s_current->m_previous) {
        s_current->m_previous(type, context, text);
    }
}

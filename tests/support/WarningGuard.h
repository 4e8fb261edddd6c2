// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QMutex>
#include <QRegularExpression>
#include <QStringList>

/// Collects Qt's warning and critical messages for as long as it lives; one at a time.
/// A test ends with QVERIFY2(guard.isClean(), guard.report()).
class WarningGuard
{
public:
    WarningGuard();
    ~WarningGuard();

    /// Messages that match are expected and not reported.
    void allow(const QString &pattern);
    /// Every message, expected or not, in order.
    const QStringList &messages() const { return m_messages; }
    bool isClean() const { return unexpected().isEmpty(); }
    /// The unexpected messages, for QVERIFY2; valid until the next call.
    const char *report();

private:
    Q_DISABLE_COPY_MOVE(WarningGuard)
    static void handle(QtMsgType type, const QMessageLogContext &context, const QString &text);
    QStringList unexpected() const;

    QMutex m_mutex;
    QList<QRegularExpression> m_allowed;
    QStringList m_messages;
    QByteArray m_report;
    QtMessageHandler m_previous;
};

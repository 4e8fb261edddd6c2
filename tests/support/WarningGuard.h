// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QMutex>
#include <QRegularExpression>
#include <QStringList>

/// Collects Qt's warning and critical messages for as long as it lives; one at a time. When it
/// goes, it fails the running test if there was one that nobody expected.
class WarningGuard
{
public:
    WarningGuard();
    ~WarningGuard();

    /// Messages that match are expected and not reported.
    void allow(const QString &pattern);
    /// Every message, expected or not, in order.
    const QStringList &messages() const { return m_messages; }

private:
    Q_DISABLE_COPY_MOVE(WarningGuard)
    static void handle(QtMsgType type, const QMessageLogContext &context, const QString &text);
    QStringList unexpected() const;

    QMutex m_mutex;
    QList<QRegularExpression> m_allowed;
    QStringList m_messages;
    QtMessageHandler m_previous;
};

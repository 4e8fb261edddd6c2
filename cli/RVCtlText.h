// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QStringList>
#include <QVector>

/// Texts for terminals. Names, titles, notes and addresses come from servers: none of them may
/// move the cursor, start a line of its own or be read in another order than it is shown.
namespace RVCtlText
{

/// A document that is printed to a terminal without harm; what is not visible is escaped.
QByteArray json(const QJsonObject &document);
/// Null for an empty text.
QJsonValue jsonOrNull(const QString &text);
/// Columns under their headings; the cells are made safe.
QString table(const QStringList &headings, const QVector<QStringList> &rows);
/// "Label:  value" lines with aligned values, which are made safe; empty values are left out.
QString fields(const QVector<QPair<QString, QString>> &fields);
/// The text of formatted notes, without markup.
QString notes(const QString &html);
/// "1.5 KiB"; nothing for an unknown size.
QString size(qint64 bytes);

} // namespace RVCtlText

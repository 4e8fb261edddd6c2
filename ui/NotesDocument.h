// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QTextDocument>

/// Shows notes that somebody else wrote: simple formatted text, and nothing that reads a file or
/// keeps the layout busy.
class NotesDocument : public QTextDocument
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(NotesDocument)

public:
    explicit NotesDocument(QObject *parent = nullptr);
    ~NotesDocument() override;

    /// Shows sanitised(html).
    void setNotes(const QString &html);

    /// The same notes in the plain formatting tags of HTML, properly nested and without attributes
    /// but colour and alignment; every other tag is left out and its text kept. Bounded: 256 KiB,
    /// 16 elements and 4 tables deep, 1,000 table rows of 16 cells.
    static QString sanitised(const QString &html);

protected:
    QVariant loadResource(int type, const QUrl &name) override;
};
